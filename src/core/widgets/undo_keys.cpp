#include "core/widgets/undo_keys.h"

#include <QShortcut>
#include <QToolTip>

#include "core/format.h"
#include "core/long_work.h"
#include "core/prompts.h"
#include "core/store/operation.h"
#include "core/store/undo.h"
#include "core/widgets/form.h"

using namespace Qt::StringLiterals;

namespace {

/// Says what has happened, without asking for an answer.
void Tell(const Form& form, const QString& text) { QToolTip::showText(form.mapToGlobal(form.rect().center()), text); }

bool IsConfirmed(const Form& form, const RecordedOperation& operation, const QString& verb) {
  if (operation.screen.isEmpty() || operation.screen == form.FormName()) return true;
  return Ask(Lines({u"%1 \"%2\"?"_s.arg(verb, operation.name),
                    u"It was done on another screen, on %1."_s.arg(Format(operation.at, u"mm/dd/yyyy h:nn AM/PM"_s))}),
             verb, Buttons::YesNo, Answer::Yes) == Answer::Yes;
}

bool Run(Form& form, const QString& verb, const QString& done, std::optional<RecordedOperation> (*next)(),
         bool (*run)()) {
  // One that has not ended may stand below a box or a dialog, and the wait form has the keys of any form.
  if (OperationScope::AnyStands() || LongWork::Stands()) return false;
  const auto operation = next();
  if (!operation) {
    Tell(form, u"There is nothing to %1."_s.arg(verb.toLower()));
    return false;
  }
  if (!IsConfirmed(form, *operation, verb) || !run()) return false;
  Tell(form, done + operation->name);
  return true;
}

}  // namespace

void GiveUndoKeys(Form* form) {
  const auto give = [form](const QKeySequence& keys, bool (*run)(Form&)) {
    auto* shortcut = new QShortcut(keys, form);
    QObject::connect(shortcut, &QShortcut::activated, form, [form, run] { run(*form); });
  };
  give(Qt::CTRL | Qt::Key_Z, &UndoOnScreen);
  give(Qt::CTRL | Qt::Key_Y, &RedoOnScreen);
  give(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &RedoOnScreen);
}

bool UndoOnScreen(Form& form) { return Run(form, u"Undo"_s, u"Undone: "_s, &NextUndo, &UndoOperation); }

bool RedoOnScreen(Form& form) { return Run(form, u"Redo"_s, u"Done again: "_s, &NextRedo, &RedoOperation); }
