#include "core/shell/window_habits.h"

#include <QCoreApplication>

#include "core/data_folder.h"
#include "core/prompts.h"
#include "core/shell/frmMenu.h"
#include "core/store/connection.h"
#include "core/trap.h"
#include "core/widgets/form.h"
#include "core/widgets/screen_routines.h"

using namespace Qt::StringLiterals;

namespace {

bool IsForm(const LoadedForm* form, const QString& name) {
  return form->FormName().compare(name, Qt::CaseInsensitive) == 0;
}

void UnloadFormsExcept(const QStringList& kept) {
  const QList<LoadedForm*> loaded = Forms::Loaded();
  for (LoadedForm* form : loaded)
    if (!kept.contains(form->FormName(), Qt::CaseInsensitive)) form->UnloadForm();
}

}  // namespace

void ArrangeForms() {
  Trap(u"Sub ArrangeForms"_s, [] {
    constexpr int kStep = FromTwips(300);
    auto& menu = SharedForm<frmMenu>();
    menu.Show();
    menu.move(0, 0);
    int across = menu.frameGeometry().width();
    int down = 0;
    const QList<LoadedForm*> loaded = Forms::Loaded();
    for (LoadedForm* form : loaded) {
      auto* window = dynamic_cast<Form*>(form);
      if (window == nullptr || IsForm(form, u"frmmenu"_s) || !form->FormIsShown()) continue;
      window->move(across, down);
      window->Show();
      across += kStep;
      down += kStep;
    }
    CloseLeftOpenConnection();
  });
}

void HideForms() {
  UnloadFormsExcept({u"frmMenu"_s, u"frmMain2"_s});
  SharedForm<frmMenu>().Show();
}

void CloseAllForms() {
  UnloadFormsExcept({u"frmMain2"_s});
  SharedForm<frmMenu>().Show();
}

void UnloadAllForms() { UnloadFormsExcept({}); }

void ExitProgram(Form* caller) {
  if (!AskYes(u"Exit Loftkeep?"_s, u"Leaving?"_s)) return;
  if (caller != nullptr) caller->UnloadForm();
  if (DiagnosticMode) MsgBox(Lines(Forms::Names()), u"Loaded Forms"_s);
  UnloadAllForms();
  CloseLeftOpenConnection();
  ReleaseDatabaseFile();
  QCoreApplication::quit();
}
