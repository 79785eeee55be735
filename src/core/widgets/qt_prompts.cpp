#include "core/widgets/qt_prompts.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

bool pointerShown = false;

void ShowPointer(bool busy) {
  if (busy == pointerShown) return;
  pointerShown = busy;
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

QWidget* Caller() {
  QWidget* modal = QApplication::activeModalWidget();
  return modal ? modal : QApplication::activeWindow();
}

QMessageBox::StandardButton ButtonOf(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return QMessageBox::Ok;
    case Answer::Cancel:
      return QMessageBox::Cancel;
    case Answer::Yes:
      return QMessageBox::Yes;
    case Answer::No:
      return QMessageBox::No;
  }
  return QMessageBox::NoButton;
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return QMessageBox::Ok;
    case Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(Icon icon) {
  switch (icon) {
    case Icon::None:
      return QMessageBox::NoIcon;
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Exclamation:
      return QMessageBox::Warning;
    case Icon::Critical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

Answer EscapeOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return Answer::Ok;
    case Buttons::YesNo:
      return Answer::No;
    case Buttons::OkCancel:
    case Buttons::YesNoCancel:
      return Answer::Cancel;
  }
  return Answer::Cancel;
}

/// The suffix of the first pattern, which a name typed without one is given.
QString DefaultSuffix(const QString& filter) {
  const QString pattern = filter.section(u'|', 1, 1).section(u';', 0, 0);
  const QString suffix = QFileInfo(pattern).suffix();
  return suffix.contains(u'*') ? QString() : suffix;
}

QString RunFileDialog(const FileDialog& wanted, QFileDialog::AcceptMode mode) {
  const PointerAside aside;
  QFileDialog dialog(Caller(), wanted.title);
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  if (!wanted.filter.isEmpty()) {
    dialog.setNameFilters(NameFilters(wanted.filter));
    if (mode == QFileDialog::AcceptSave) dialog.setDefaultSuffix(DefaultSuffix(wanted.filter));
  }
  if (!wanted.fileName.isEmpty()) {
    const QFileInfo proposed(wanted.fileName);
    if (proposed.isDir()) {
      dialog.setDirectory(wanted.fileName);
    } else {
      if (proposed.dir().exists() && proposed.path() != "."_L1) dialog.setDirectory(proposed.path());
      dialog.selectFile(proposed.fileName());
    }
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return QString();
  return dialog.selectedFiles().constFirst();
}

}  // namespace

PointerAside::PointerAside() { ShowPointer(false); }
PointerAside::~PointerAside() { ShowPointer(PointerIsBusy()); }

QStringList NameFilters(const QString& filter) {
  QStringList filters;
  const QStringList parts = filter.split(u'|');
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
    for (QString& pattern : patterns) {
      pattern = pattern.trimmed();
      if (pattern == "*.*"_L1) pattern = u"*"_s;
    }
    // A description that tells its patterns already would show them twice.
    QString text = parts[i].trimmed();
    const qsizetype bracket = text.lastIndexOf(u'(');
    if (bracket >= 0 && text.endsWith(u')')) text = text.left(bracket).trimmed();
    filters += u"%1 (%2)"_s.arg(text, patterns.join(u' '));
  }
  return filters;
}

Answer QtPrompts::Box(const QString& text, const QString& title, Buttons buttons, Icon icon, Answer preset) {
  const PointerAside aside;
  QMessageBox box(IconOf(icon), title, text, ButtonsOf(buttons), Caller());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(ButtonOf(preset));
  box.setEscapeButton(ButtonOf(EscapeOf(buttons)));
  switch (box.exec()) {
    case QMessageBox::Ok:
      return Answer::Ok;
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    default:
      return EscapeOf(buttons);
  }
}

QString QtPrompts::Input(const QString& text, const QString& title, const QString& proposal) {
  const PointerAside aside;
  QInputDialog dialog(Caller());
  dialog.setWindowTitle(title);
  dialog.setLabelText(text);
  dialog.setTextValue(proposal);
  for (QLabel* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

QString QtPrompts::OpenFile(const FileDialog& dialog) { return RunFileDialog(dialog, QFileDialog::AcceptOpen); }
QString QtPrompts::SaveFile(const FileDialog& dialog) { return RunFileDialog(dialog, QFileDialog::AcceptSave); }

std::optional<FontChoice> QtPrompts::Font(const FontChoice& present) {
  const PointerAside aside;
  QFont font(present.name);
  font.setPointSizeF(present.size);
  font.setBold(present.bold);
  font.setItalic(present.italic);
  QFontDialog dialog(font, Caller());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QFont chosen = dialog.selectedFont();
  return FontChoice{chosen.family(), chosen.pointSizeF(), chosen.bold(), chosen.italic()};
}

void QtPrompts::BusyPointer(bool busy) { ShowPointer(busy); }
