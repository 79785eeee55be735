#include "faults/trial.h"

#include <QtTest>

#include "core/failure.h"
#include "core/store/connection.h"
#include "core/store/database.h"
#include "core/store/operation.h"
#include "core/store/undo.h"
#include "core/trap.h"
#include "faults/dump.h"
#include "support/screens/controls.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSign = 4711;  // an id that no customer of the sample has

QByteArray ReadWhole(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteWhole(const QString& path, const QByteArray& content) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) qFatal("no room for the copies");
}

QString JournalOf(const QString& database) { return database + u"-journal"_s; }

/// Lets SQLite take back what a journal that was left behind tells it to.
QByteArray Recovered(const QString& path) {
  try {
    const Database opened(path);
  } catch (const Failure&) {
    // what lies there then is judged
  }
  return ReadWhole(path);
}

QString Telling(const QList<Told>& told) {
  QStringList lines;
  for (const Told& box : told) lines << u'[' + box.title + u"] "_s + QString(box.text).replace(u'\n', u'/');
  return lines.join(u"  ");
}

}  // namespace

void Ground::Pick(const QString& start) {
  screens->WhenShown(u"frmPicker"_s, [start](Form& form) {
    TypeInto(form, u"txt"_s, start);
    Click(form, u"cmdSelect"_s);
  });
}

Trial::Trial() : ground_(std::make_unique<Ground>()) {
  ReleaseDatabaseFile();
  sample_ = ReadWhole(ground_->loft.DatabaseFile());
  disk_ = std::make_unique<FaultyDisk>(ground_->loft.DatabaseFile());
}

Trial::~Trial() { ReleaseDatabaseFile(); }

bool Trial::Begin(const Command& command) {
  command_ = &command;
  Lay(sample_);
  ground_->line = ground_->other = 0;
  if (command.prepare) command.prepare(*ground_);
  groundFile_ = Leave();

  Restore(Going::Straight);
  const QList<QByteArray> stages = RunInStages();
  QString error;
  wholes_.clear();
  before_ = {stages.first(), Dump(stages.first(), &error), End::Refused};
  after_ = {stages.last(), Dump(stages.last(), &error), End::Done};
  for (const QByteArray& stage : stages) {
    const QByteArray dump = Dump(stage, &error);
    if (OperationsOf(dump) == OperationsOf(after_.dump) && Writes())
      wholes_ << Whole{stage, dump, End::Done};
    else if (OperationsOf(dump) == OperationsOf(before_.dump))
      wholes_ << Whole{stage, dump, End::Refused};
  }
  beforeHealed_ = HealedDump(before_.file);
  afterHealed_ = HealedDump(after_.file);
  if (!error.isEmpty()) qCritical("%s: %s", command.name, qPrintable(error));
  return error.isEmpty();
}

/// Runs the command undisturbed: the file before it, after each of its transactions, and in the end.
QList<QByteArray> Trial::RunInStages() {
  const QString database = ground_->loft.DatabaseFile();
  QList<QByteArray> stages{ReadWhole(database)};
  disk_->FailAt();
  disk_->OnEachChange([&] {
    if (QFileInfo(JournalOf(database)).size() > 0) return;
    if (const QByteArray file = ReadWhole(database); file != stages.last()) stages << file;
  });
  Run();
  disk_->OnEachChange({});
  requests_ = disk_->Requests();
  usual_ = ground_->person.told;
  ground_->screens->Finish();
  if (const QByteArray file = Leave(); file != stages.last()) stages << file;
  return stages;
}

/// Puts a database in place, and a person in front of it.
void Trial::Lay(const QByteArray& file) {
  ReleaseDatabaseFile();
  const QString database = ground_->loft.DatabaseFile();
  QFile::remove(JournalOf(database));
  WriteWhole(database, file);
  Forms::SetInFront({});
  ground_->screens = std::make_unique<ScreenScript>();
  ground_->person.told.clear();
  ground_->person.answers.clear();
  ground_->person.typed.clear();
}

QByteArray Trial::Leave() {
  UnloadScreens();
  ReleaseDatabaseFile();
  return ReadWhole(ground_->loft.DatabaseFile());
}

void Trial::Restore(Going going) {
  Lay(groundFile_);
  if (going == Going::Astray) ground_->screens->Forgive();
  { const Bracket opens; }
  if (command_->open) command_->open(*ground_);
  SettleConnection();
  ground_->person.told.clear();
}

void Trial::Run() {
  FollowEvent(SetOff::ByPerson, [this] { command_->run(*ground_); });
  QCoreApplication::processEvents();
}

/// What a person does next works.
QString Trial::GoOn() {
  if (OperationScope::AnyStands()) return u"an operation stands for ever"_s;
  if (ConnectionIsOpen) return u"the connection stays open"_s;
  ground_->person.told.clear();
  SetLastCustomerID(kSign);
  if (!ground_->person.told.isEmpty()) return u"what comes next fails: "_s + Telling(ground_->person.told);
  if (LastCustomerID() != kSign) return u"what comes next is not written"_s;
  return {};
}

/// A write that is refused is told once, by the command's own name; one that went through is not told to have failed.
QString Trial::ComplaintAbout(End end, const QList<Told>& told, bool mustTellNothing) const {
  QList<Told> more = told;
  for (const Told& box : usual_) more.removeOne(box);
  if (more.size() > 1) return u"%1 boxes"_s.arg(more.size());
  const bool refused = end == End::Refused && Writes();
  if (more.isEmpty()) return refused ? u"not told"_s : QString();
  const bool tellsNothing = more.first().text.endsWith(kNothingWasChanged);
  if (end == End::Done && Writes() && tellsNothing) return u"told to be undone"_s;
  if (refused && mustTellNothing && !tellsNothing) return u"does not tell that nothing was changed"_s;
  const QStringList routines = QString::fromUtf8(command_->routines).split(u'|');
  if (tellsNothing && !routines.contains(more.first().title)) return u"told by another name"_s;
  return {};
}

/// The work after the program's next look at it.
QByteArray Trial::HealedDump(const QByteArray& file) {
  Lay(file);
  AssignInvoiceNumbers();
  for (const QString& job : ground_->loft.Rows(u"select ID from tblJobs order by ID"_s))
    RecomputeJobStatus(job.toInt());
  QString error;
  return WorkOf(Dump(Leave(), &error));
}

/// A state that no undisturbed run passes through: some upkeep has failed, or the person went another way to the same
/// end. The next look must bring it to that end, and what the record then holds must lead back.
Trial::Verdict Trial::JudgeHealed(const QByteArray& file, const QString& difference) {
  QString error;
  const QByteArray operations = OperationsOf(Dump(file, &error));
  const QByteArray healed = HealedDump(file);
  if (operations == OperationsOf(before_.dump) && healed == beforeHealed_) return {End::Refused};
  if (operations != OperationsOf(after_.dump) || healed != afterHealed_) return {End::Half, u"half:"_s + difference};
  if (operations == OperationsOf(before_.dump)) return {End::Done};
  Lay(file);
  UndoOperation();
  if (HealedDump(Leave()) != beforeHealed_) return {End::Half, u"half in the record of operations:"_s + difference};
  return {End::Done};
}

Trial::Verdict Trial::JudgeFile(const QByteArray& file) {
  for (const Whole& whole : std::as_const(wholes_))
    if (file == whole.file) return {whole.end};
  QString error;
  const QByteArray now = Dump(file, &error);
  if (!error.isEmpty()) return {End::Corrupt, u"corrupt: "_s + error};
  for (const Whole& whole : std::as_const(wholes_))
    if (now == whole.dump) return {whole.end};
  return {End::Half, Difference(before_.dump, now)};
}

Trial::Verdict Trial::Judge(bool forGood) {
  const bool mustTellNothing = disk_->HasFailedWriting() && !forGood;
  disk_->Mend();
  const QList<Told> told = ground_->person.told;
  UnloadScreens();
  const QString stuck = GoOn();
  ReleaseDatabaseFile();
  const QByteArray file = Recovered(ground_->loft.DatabaseFile());
  Verdict verdict = JudgeFile(file);
  if (verdict.end == End::Half) verdict = JudgeHealed(file, verdict.complaint);
  if (verdict.complaint.isEmpty()) verdict.complaint = stuck;
  if (verdict.complaint.isEmpty()) verdict.complaint = ComplaintAbout(verdict.end, told, mustTellNothing);
  if (!verdict.complaint.isEmpty()) verdict.complaint += u"; told: "_s + Telling(told);
  return verdict;
}

Trial::Verdict Trial::JudgeCut(const QMap<QString, QByteArray>& survivors, bool acknowledged) {
  const QString copy = ground_->loft.Folder() / u"copy.mdb"_s;
  QFile::remove(JournalOf(copy));
  QFile::remove(copy);
  for (auto it = survivors.cbegin(); it != survivors.cend(); ++it) WriteWhole(copy + it.key(), *it);
  const QByteArray file = Recovered(copy);
  Verdict verdict = JudgeFile(file);
  if (verdict.end == End::Half) verdict.complaint = u"half:"_s + verdict.complaint;
  if (acknowledged && verdict.end == End::Refused && Writes()) verdict = {End::Lost, u"lost"_s};
  return verdict;
}
