#include "core/screens/frmMessage.h"

#include <QHideEvent>
#include <QScreen>

#include "core/prompts.h"
#include "core/screens/ui_frmMessage.h"
#include "core/widgets/screen_routines.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int kExitAlone = 1;
constexpr int kTwoButtons = 2;
constexpr int kBelowText = FromTwips(1500);  // what the form has besides its text
}  // namespace

frmMessage::frmMessage() : ui_(std::make_unique<Ui::frmMessage>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  const auto press = [this](int button) {
    pressed_ = button;
    Leave();
  };
  connect(ui_->cmd1, &QPushButton::clicked, this, [press] { press(1); });
  connect(ui_->cmd2, &QPushButton::clicked, this, [press] { press(2); });
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmMessage::Cancel);
}

frmMessage::~frmMessage() = default;

void frmMessage::SetText(const QString& title, const QString& text) {
  setWindowTitle(title);
  ui_->lbl->setText(text);
  pressed_ = 0;
  FitToText();
}

bool frmMessage::SetButtons(int buttonType, const QStringList& captions) {
  if (buttonType != kExitAlone && buttonType != kTwoButtons) {
    MsgBox(u"didn't allow for this button type"_s);
    return false;
  }
  const bool two = buttonType == kTwoButtons;
  ui_->cmd1->setText(captions.value(0));
  ui_->cmd2->setText(captions.value(1));
  ui_->cmd1->setAccessibleName(captions.value(0));
  ui_->cmd2->setAccessibleName(captions.value(1));
  ui_->cmd1->setVisible(two);
  ui_->cmd2->setVisible(two);
  ui_->cmdExit->setVisible(!two);
  return true;
}

void frmMessage::FitToText() {
  ensurePolished();
  const QSize text = ui_->lbl->sizeHint();
  const QSize most = screen()->availableGeometry().size() * 0.8;
  const QSize wanted(text.width() + 60, text.height() + kBelowText);
  resize(wanted.expandedTo({260, 120}).boundedTo(most));
}

void frmMessage::hideEvent(QHideEvent* event) {
  Form::hideEvent(event);
  if (!event->spontaneous()) ui_->lbl->clear();
}
