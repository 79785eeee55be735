#include "invariants/exceptions.h"

#include "invariants/shown.h"
#include "support/scripted_prompts.h"

using namespace Qt::StringLiterals;

namespace {

struct Control {
  const char* form;
  const char* name;
  const char* why;
};

constexpr Control kNotCompared[] = {
    {"frmJob", "txtAny", "lies over a label while its text is typed"},
    {"frmHistoryForm", "lblCustomer", "a click on it shows the owners of the selected component until the next look"},
    {"frmHistoryForm", "lblRig", "the same"},
    {"frmHistoryForm", "lblRigOwner", "the same"},
    {"frmComponentModels", "cmdSaveServiceLife", "waits while a service life is typed"},
    {"frmPeople", "cmdNext", "enabled by a search, and disabled by the move that leads nowhere"},
    {"frmPeople", "cmdPrev", "the same"},
    {"frmLocation", "chkDefault", "while no place is selected it is that of a place that may be entered"},
    {"frmRigTypes", "optOther", "a new rig type has no place of its reserve marked until one is chosen"},
    {"frmRigTypes", "cmdSave", "waits while components are ticked"},
    {"frmRigTypes", "cmdCancel", "the same"},
};

constexpr Control kNotKept[] = {
    {"frmGetRig", "lstCustomers", "follows the owner of the rig that is shown"},
    {"frmJob", "txtDate", "what is no date becomes the working date again"},
};

constexpr Control kNotUsed[] = {
    {"", "cmdPrint", "paper"},
    {"", "cmdEmail", "another program"},
    {"frmMain2", "cmdExit", "ends the program"},
    {"frmMain2", "Exit", "ends the program"},
    {"frmMain2", "Forms", "closes and moves all screens"},
    {"frmMain2", "Help", "a notice that waits"},
    {"frmMain2", "Database", "other files"},
    {"frmMain2", "Business title and address", "other files"},
    {"frmMain2", "Check database fields", "alters the file"},
    {"frmMain2", "Export data to another computer", "other files"},
    {"frmMain2", "Import data from another computer", "other files"},
    {"frmMain2", "View support files", "other files"},
    {"frmComponentModels", "Export models", "other files"},
    {"frmComponentModels", "Import models", "other files"},
};

template <size_t N>
bool Lists(const Control (&controls)[N], const QString& form, const QString& name) {
  return std::any_of(std::begin(controls), std::end(controls), [&](const Control& control) {
    return (*control.form == '\0' || form == QLatin1StringView(control.form)) &&
           name == QLatin1StringView(control.name);
  });
}

}  // namespace

bool Compared(const QString& form, const QString& control) { return !Lists(kNotCompared, form, control); }

bool Compared(const QString& form, const ShownThing& thing) {
  // Until the next load an incomplete job reads as the click on a line's status has left it.
  return form != "frmJob"_L1 || thing.control != "lblDateCompleted"_L1 ||
         (thing.text != "reads (n/a)"_L1 && thing.text != "reads n/a"_L1);
}

bool Keeps(const QString& form, const QString& control) { return !Lists(kNotKept, form, control); }

bool MayBeUsed(const QString& form, const QString& command) {
  return form != "frmPrintPreview"_L1 && !Lists(kNotUsed, form, command);
}

bool IsMeant(const ShownPrompt& box) {
  static const QSet<QString> titles = {u"Function ParseDate"_s,    // tells that what was typed is no date
                                       u"Sub ReplaceSchedule"_s};  // the month that work falls due in lacks its day;
                                                                   // the work stays, its due date is unknown
  return titles.contains(box.title) && box.text.startsWith("Type mismatch"_L1);
}
