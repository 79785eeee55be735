#include "jobs/gear_edits.h"

#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/text.h"
#include "gear/component_editor.h"
#include "gear/components.h"
#include "gear/models.h"
#include "jobs/job_components.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestSerial = 50;

}  // namespace

bool EditGearSerial(int componentID) {
  const QString old = ComponentSerial(componentID);
  const QString serial = InputBox(u"Enter serial number"_s, u"Serial Number"_s, old).trimmed().left(kLongestSerial);
  if (serial.isEmpty() || serial == old) return false;
  SetComponentSerial(componentID, serial);
  return true;
}

bool EditGearDom(int componentID) {
  const Date old = ComponentDom(componentID);
  const QString shown = old.IsNone() ? QString() : Format(old, u"mm/dd/yyyy"_s);
  const QString typed = InputBox(u"Enter date of manufacture"_s, u"Date of Manufacture"_s, shown).trimmed();
  Date dom;
  if (typed.isEmpty() || typed == shown || !ReadDom(typed, dom)) return false;
  SetComponentDom(componentID, dom);
  return true;
}

void TellEmptyPlace(int componentType, int rigID) {
  const QString name = ComponentTypeName(componentType);
  if (rigID != 0)
    MsgBox(Lines({u"To add %1%2, select INSTALL COMPONENT"_s.arg(ArticleFor(name), name), u"(see menu on left)"_s}));
  else
    MsgBox(u"This rig doesn't have "_s + ArticleFor(name) + name, u"No component"_s);
}
