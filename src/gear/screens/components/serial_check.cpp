#include "gear/screens/components/serial_check.h"

#include "gear/component_editor.h"
#include "gear/screens.h"

using namespace Qt::StringLiterals;

bool SerialIsFree(int model, const QString& serial, int component, int& switchTo) {
  const SerialCheck check = CheckSerial(model, serial, component);
  switchTo = check.verdict == SerialCheck::SwitchTo ? check.other : 0;
  if (check.verdict == SerialCheck::InUse)
    VerifyComponent(check.other, u"Serial number already exists for this model"_s, true);
  return check.verdict == SerialCheck::Pass;
}
