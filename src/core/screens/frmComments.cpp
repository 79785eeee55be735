#include "core/screens/frmComments.h"

#include <QMenuBar>

#include "core/prompts.h"
#include "core/screens/ui_frmComments.h"

using namespace Qt::StringLiterals;

frmComments::frmComments() : ui_(std::make_unique<Ui::frmComments>()) {
  ui_->setupUi(this);
  mnuSave_ = MenuBar()->addAction(u"Save"_s, this, &frmComments::Save);
  MenuBar()->addAction(u"Clear"_s, this, &frmComments::Clear);
  mnuUndo_ = MenuBar()->addAction(u"Undo"_s, this, &frmComments::Undo);
  MenuBar()->addAction(u"Exit"_s, this, &frmComments::Cancel);
  connect(ui_->txtComments, &QPlainTextEdit::textChanged, this, &frmComments::ShowState);
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmComments::Save);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmComments::Cancel);
}

frmComments::~frmComments() = default;

void frmComments::SetComments(const QString& heading, const QString& text) {
  ui_->lblComments->setText(heading);
  // An empty comment is stored as one blank.
  ui_->txtComments->setPlainText(text.trimmed().isEmpty() ? QString() : text);
  loaded_ = Text();
  cleared_.clear();
  saved_ = false;
  ShowState();
}

QString frmComments::Text() const { return ui_->txtComments->toPlainText(); }

bool frmComments::IsChanged() const { return Text() != loaded_; }

void frmComments::ShowState() {
  ui_->cmdSave->setEnabled(IsChanged());
  mnuSave_->setEnabled(IsChanged());
  mnuUndo_->setEnabled(!cleared_.isEmpty());
}

void frmComments::Save() {
  saved_ = true;
  SetTag(u"save"_s);
  Leave();
}

void frmComments::Clear() {
  if (Text().isEmpty()) return;
  cleared_ = Text();
  ui_->txtComments->clear();
}

void frmComments::Undo() {
  if (cleared_.isEmpty()) return;
  const QString restored = std::exchange(cleared_, QString());
  ui_->txtComments->setPlainText(restored);
}

void frmComments::Cancel() {
  if (IsChanged() && AskYes(u"Save changes before exiting"_s, u"Comments"_s)) {
    Save();
    return;
  }
  Form::Cancel();
}
