#pragma once
#include <QString>
#include <QStringList>

#include <vector>

/// A number that the environment gives to a test of random work, else the usual one.
inline int Setting(const char* name, int usual) {
  bool isSet = false;
  const int value = qEnvironmentVariableIntValue(name, &isSet);
  return isSet ? value : usual;
}

/// A sequence of steps as a failure tells it, to be done again.
template <typename Step>
QString Told(const std::vector<Step>& steps, const QString& between) {
  QStringList texts;
  for (const Step& step : steps) texts << step.ToText();
  return texts.join(between);
}
