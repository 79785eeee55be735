#include "jobs/screens/choose_component.h"

#include "gear/screens.h"

using namespace Qt::StringLiterals;

namespace {

ChosenComponent CreateNewComponent(int jobID, int type, const QString& serial, ChosenComponent::How how) {
  int model = 0;
  if (type != 0)
    model = PickModel(type);
  else if (!SelectModel(type, model))
    return {};
  if (model == 0 || RefuseDuplicateType(jobID, type, how)) return {};
  const EnteredComponent entered = EnterNewComponent(model, serial);
  return {entered.id, entered.isNew ? ChosenComponent::New : how};
}

ChosenComponent GetComponentFromDb(int type) { return {PickComponent(type), ChosenComponent::FromDatabase}; }

ChosenComponent CreateNewComponentWithSerialNumberAnyType(int jobID, int type, const QString& serial) {
  return CreateNewComponent(jobID, type, serial, ChosenComponent::BySerial);
}

ChosenComponent InstallbySerialNumber(int jobID, int type, const QString& command) {
  const auto follows = [&command](const QString& start, QString& rest) {
    if (!command.startsWith(start)) return false;
    rest = command.mid(start.size());
    return true;
  };
  QString rest;
  if (follows(u"new with s/n:"_s, rest)) return CreateNewComponentWithSerialNumberAnyType(jobID, type, rest);
  if (follows(u"s/n "_s, rest)) return {PickComponentBySerial(type, rest), ChosenComponent::BySerial};
  if (follows(u"load component:"_s, rest) && VerifyComponent(rest.toInt()))
    return {rest.toInt(), ChosenComponent::BySerial};
  return {};
}

}  // namespace

ChosenComponent ChooseComponentForJob(int jobID, int componentType) {
  const QString command = AskNewOrOld(componentType);
  if (command == "new"_L1) return CreateNewComponent(jobID, componentType, {}, ChosenComponent::FromDatabase);
  if (command == "select"_L1) return GetComponentFromDb(componentType);
  return InstallbySerialNumber(jobID, componentType, command);
}
