#include "support/screens/screen_script.h"

#include <QApplication>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "core/widgets/theme.h"
#include "gear/screens.h"
#include "jobs/screens.h"

namespace {

void Fail(const QString& message, const std::source_location& place) {
  QTest::qFail(qPrintable(message), place.file_name(), static_cast<int>(place.line()));
}

}  // namespace

ScreenScript::ScreenScript() {
  IsolateSettings();
  qApp->installEventFilter(this);
}

ScreenScript::~ScreenScript() { Finish(); }

void ScreenScript::WhenShown(const QString& form, std::function<void(Form&)> action, Place place) {
  steps_.push_back({form, std::move(action), place});
}

void ScreenScript::Finish() {
  for (const Step& step : steps_) Fail(step.form + " was never shown", step.place);
  steps_.clear();
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
  if (steps_.empty() || steps_.front().form.compare(name, Qt::CaseInsensitive) != 0) {
    Fail("Unexpected screen " + name, Place::current());
    form.hide();
    return;
  }
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  const QPointer<Form> shown = &form;
  step.action(form);
  if (shown && shown->isVisible()) {
    Fail(name + " was left open", step.place);
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
