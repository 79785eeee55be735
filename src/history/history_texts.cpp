#include "history/history_texts.h"

#include "core/format.h"
#include "core/prompts.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

const QString kNotEntered = u"(not entered)"_s;

/// How lines of other rigs come into a rig's history.
QStringList WholeLives() {
  return {u"A rig's history includes all components that have been installed"_s,
          u"in that rig."_s,
          QString(),
          u"Each component's history includes all events for that"_s,
          u"component even when it may have been installed in another rig."_s,
          QString()};
}

}  // namespace

QString HistoryComponentText(int component) {
  const QString text = ComponentDescription(component).trimmed();
  const QString serial = ComponentSerial(component, true);
  return serial.isEmpty() ? text : text + u' ' + serial;
}

QString HistoryRigText(int rig) { return RigExists(rig) ? RigName(rig) : u"(no rig)"_s; }

QString HistorySuffix(bool complete, bool isEvent, int job) {
  if (job < 1) return u" *"_s;
  return complete || isEvent ? QString() : u" (incomplete)"_s;
}

HistoryComponent HistoryComponentOf(int component) {
  if (!ComponentExists(component)) return {};
  const QString serial = ComponentSerial(component);
  const Date dom = ComponentDom(component);
  return {ComponentDescription(component).trimmed(), ManufacturerName(ModelManufacturer(ComponentModel(component))),
          serial.isEmpty() ? kNotEntered : serial, dom.IsNone() ? kNotEntered : Format(dom, u"mm/dd/yyyy"_s)};
}

HistoryOwners HistoryOwnersOf(int component) {
  const int owner = ComponentOwner(component);
  const int rig = ComponentRig(component);
  const int rigOwner = RigExists(rig) ? RigOwner(rig) : 0;
  const bool differ = owner != 0 && rigOwner != 0 && owner != rigOwner;
  return {PersonDisplayName(owner), HistoryRigText(rig),
          differ ? u"(rig is owned by "_s + PersonDisplayName(rigOwner) + u')' : QString()};
}

void ExplainOtherRigs() {
  MsgBox(
      Lines(WholeLives() << u"To hide events when components were installed in other rigs,"_s << u"check this box"_s),
      u"Hide events for other rigs"_s);
}

void ExplainCurrentComponents() {
  MsgBox(Lines({u"This form shows all components that have ever been"_s, u"part of this rig."_s, QString(),
                u"Check this box to show this rig's current components only"_s}),
         u"Show current components only"_s);
}

void ExplainDuplicates() {
  MsgBox(Lines({u"A task or event might be displayed more than once if it affects"_s, u"multiple components."_s,
                QString(), u"For example, a reserve repack affects both the reserve canopy"_s,
                u"and the container.  That task will be shown twice, once for the"_s,
                u"container and once for the reserve."_s, QString(),
                u"By checking this check box, duplicate tasks and events "_s, u"will be shown only once."_s}),
         u"Hiding duplicate events"_s);
}

void ExplainHistory() {
  MsgBox(Lines(WholeLives() << u"You can hide entries from other rigs by checking"_s
                            << u"the box 'HIDE ENTRIES FOR OTHER RIGS'"_s),
         u"Help"_s);
}
