#include "support/screens/screen_script.h"

#include <QApplication>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>

#include "core/widgets/theme.h"
#include "gear/screens.h"
#include "jobs/screens.h"

ScreenScript::ScreenScript() {
  IsolateSettings();
  qApp->installEventFilter(this);
}

ScreenScript::~ScreenScript() { Finish(); }

void ScreenScript::WhenShown(const QString& form, std::function<void(Form&)> action, Place place) {
  steps_.push_back({form, std::move(action), place});
}

void ScreenScript::Finish() {
  for (const Step& step : steps_) Complain(step.form + " was never shown", step.place);
  steps_.clear();
}

void ScreenScript::Complain(const QString& message, const Place& place) const {
  if (!forgives_) QTest::qFail(qPrintable(message), place.file_name(), static_cast<int>(place.line()));
}

std::list<ScreenScript::Step>::iterator ScreenScript::NextStep(const QString& form) {
  const auto isOfForm = [&form](const Step& step) { return step.form.compare(form, Qt::CaseInsensitive) == 0; };
  const auto last = forgives_ || steps_.empty() ? steps_.end() : std::next(steps_.begin());
  const auto found = std::find_if(steps_.begin(), last, isOfForm);
  return found == last ? steps_.end() : found;
}

bool ScreenScript::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show || event->spontaneous()) return false;
  auto* form = dynamic_cast<Form*>(watched);
  if (form && form->isModal()) {
    QTimer::singleShot(0, this, [this, shown = QPointer<Form>(form)] {
      if (shown && shown->isVisible()) Handle(*shown);
    });
  }
  return false;
}

void ScreenScript::Handle(Form& form) {
  const QString name = form.FormName();
  const auto next = NextStep(name);
  if (next == steps_.end()) {
    Complain("Unexpected screen " + name, Place::current());
    form.hide();
    return;
  }
  const Step step = std::move(*next);
  steps_.erase(steps_.begin(), std::next(next));
  const QPointer<Form> shown = &form;
  step.action(form);
  if (shown && shown->isVisible()) {
    Complain(name + " was left open", step.place);
    shown->hide();
  }
}

void IsolateSettings() {
  static const QTemporaryDir folder;
  static const bool dressed = [] {
    InstallTheme(*qApp, qEnvironmentVariableIsSet("LOFTKEEP_TOUR_DARK"));
    RegisterGearPickers();
    RegisterJobPickers();
    return true;
  }();
  Q_UNUSED(dressed);
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
  QCoreApplication::setOrganizationName(QStringLiteral("Loftkeep"));
  QCoreApplication::setApplicationName(QStringLiteral("Loftkeep"));
}

void UnloadScreens() {
  for (LoadedForm* form : Forms::Loaded()) form->UnloadForm();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
