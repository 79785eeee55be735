#include "jobs/person_deletion.h"

#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/people.h"
#include "gear/person_record.h"

using namespace Qt::StringLiterals;

namespace {

struct Tie {
  Column column;
  QString text;
};

const QList<Tie>& Ties() {
  static const QList<Tie> ties = {{tblRig::OwnerID, u" rig"_s},
                                  {tblComponents::OwnerID, u" rig component"_s},
                                  {tblJobs::CustomerID, u" job"_s},
                                  {tblTasks::CustomerID, u" task"_s},
                                  {tblMoney::CustomerID, u" money transaction"_s}};
  return ties;
}

}  // namespace

bool RefuseProgramOwner(int id) {
  if (id != ProgramOwner()) return false;
  MsgBox(Lines({PersonDisplayName(id) + u" is the Loftkeep program owner."_s, QString(),
                u"You cannot delete the program owner."_s}),
         u"Can't delete program owner"_s);
  return true;
}

DeletionReport ReportPersonDeletion(int id) {
  QStringList lines;
  Operation(u"Function ReportPersonDeletion"_s, [&] {
    for (const Tie& tie : Ties()) {
      const int count = GetNumberRecords(tie.column, id);
      if (count > 0) lines << u"      "_s + QString::number(count) + tie.text + (count > 1 ? u"s"_s : QString());
    }
  });
  if (lines.isEmpty()) return DeletionReport::NothingTied;
  lines.prepend(u"Customer "_s + PersonDisplayName(id) + u" is associated with the following: "_s);
  lines << u"It is recommended that you NOT delete this"_s << u"customer."_s << QString()
        << u"Do you want to delete this customer anyway?"_s
        << u"(rigs, components, jobs, and tasks will not be deleted)"_s;
  return AskYes(Lines(lines), u"Deletion NOT recommended"_s) ? DeletionReport::GoOn : DeletionReport::Stop;
}

int NeighbourAfterDeletion(int id) {
  int neighbour = NextPerson(id);
  if (neighbour == id) neighbour = PreviousPerson(id);
  if (neighbour == id) MsgBox(u"This is the only customer in the database"_s, u"Customer database will be empty"_s);
  return neighbour;
}

bool DeletePerson(int id) {
  return Operation(u"Sub DeletePerson"_s, [&] {
    DeletePersonRow(id);
    for (const Tie& tie : Ties()) UpdateTable(tie.column, 0, tie.column, id);
  });
}

namespace {

bool DeleteTellingNeighbour(int id, int& neighbour) {
  neighbour = NeighbourAfterDeletion(id);
  if (neighbour == id) neighbour = 0;
  return DeletePerson(id);
}

}  // namespace

bool DeleteCustomer(int id, int& neighbour) {
  if (RefuseProgramOwner(id)) return false;
  if (!AskYes(u"Are you sure you want to delete this customer?"_s, u"Delete "_s + PersonDisplayName(id))) return false;
  if (ReportPersonDeletion(id) == DeletionReport::Stop) return false;
  return DeleteTellingNeighbour(id, neighbour);
}

bool DeleteCustomerFromRigScreen(int id, int& neighbour) {
  if (RefuseProgramOwner(id)) return false;
  switch (ReportPersonDeletion(id)) {
    case DeletionReport::Stop:
      return false;
    case DeletionReport::NothingTied:
      if (!AskYes(u"Are you sure you want to delete "_s + PersonDisplayName(id), u"Delete customer?"_s)) return false;
      break;
    case DeletionReport::GoOn:
      break;
  }
  return DeleteTellingNeighbour(id, neighbour);
}
