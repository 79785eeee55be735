#include "jobs/screens/frmCalc.h"

#include "core/clock.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/value.h"
#include "jobs/repack_calculator.h"
#include "jobs/screens.h"
#include "jobs/screens/ui_frmCalc.h"

using namespace Qt::StringLiterals;

frmCalc::frmCalc() : ui_(std::make_unique<Ui::frmCalc>()) {
  ui_->setupUi(this);
  ui_->txtStart->setText(Value(Today()).ToText());
  ui_->txtInt->setText(u"180"_s);
  connect(ui_->txtInt, &QLineEdit::textEdited, this, &frmCalc::DoCalc);
  for (QLineEdit* box : {ui_->txtStart, ui_->txtEnd})
    connect(box, &QLineEdit::textEdited, this, [this, box] { CalcFrom(box); });
  for (QRadioButton* option : {ui_->optEnd, ui_->optStart})
    connect(option, &QRadioButton::clicked, this, &frmCalc::DoCalc);
  const auto setToday = [this](QLineEdit* box) {
    box->setText(Value(Today()).ToText());
    CalcFrom(box);
  };
  connect(ui_->cmdToday1, &QPushButton::clicked, this, [=, this] { setToday(ui_->txtStart); });
  connect(ui_->cmdToday2, &QPushButton::clicked, this, [=, this] { setToday(ui_->txtEnd); });
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmCalc::Cancel);
  DoCalc();
}

frmCalc::~frmCalc() = default;

QLineEdit* frmCalc::Result() const { return ui_->optEnd->isChecked() ? ui_->txtEnd : ui_->txtStart; }

/// What is typed into the box of the result stays as it was typed.
void frmCalc::CalcFrom(const QLineEdit* box) {
  if (box != Result()) DoCalc();
}

void frmCalc::DoCalc() {
  const bool forward = ui_->optEnd->isChecked();
  QLineEdit* from = forward ? ui_->txtStart : ui_->txtEnd;
  QLineEdit* result = Result();
  const QString typed = from->text().trimmed();
  const bool valid = IsValidDate(typed);
  MarkLabel(ui_->lblStart, forward && !valid);
  MarkLabel(ui_->lblEnd, !forward && !valid);
  if (!valid) {
    ui_->lblExpire->setText(u"??????"_s);
    return;
  }
  const double days = Val(ui_->txtInt->text());
  result->setText(Value(ParseDate(typed) + (forward ? days : -days)).ToText());
  ui_->lblExpire->setText(ExpirationText(ParseDate(ui_->txtEnd->text())));
}

void frmCalc::MarkLabel(QLabel* label, bool wrong) {
  QPalette colours = palette();
  if (wrong) colours.setColor(QPalette::WindowText, QColor(255, 0, 0));
  label->setPalette(colours);
}

void OpenRepackCalculator() { SharedForm<frmCalc>().Show(); }
