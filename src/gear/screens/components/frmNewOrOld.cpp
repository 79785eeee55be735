#include "gear/screens/components/frmNewOrOld.h"

#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "gear/component_rules.h"
#include "gear/component_types.h"
#include "gear/screens/components/ui_frmNewOrOld.h"

using namespace Qt::StringLiterals;

frmNewOrOld::frmNewOrOld() : ui_(std::make_unique<Ui::frmNewOrOld>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  connect(ui_->cmdNew, &QPushButton::clicked, this, [this] { End(u"new"_s); });
  connect(ui_->cmdEnter, &QPushButton::clicked, this, &frmNewOrOld::EnterSerial);
  connect(ui_->txtSerial, &QLineEdit::returnPressed, this, &frmNewOrOld::EnterSerial);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmNewOrOld::Cancel);
  connect(ui_->cmdDatabase, &QPushButton::clicked, this, [this] { End(u"select"_s); });
}

frmNewOrOld::~frmNewOrOld() = default;

void frmNewOrOld::SetComponentType(int type) {
  type_ = type;
  command_ = u"cancel"_s;
  ReloadForm();
  ui_->txtSerial->clear();
}

QStringList frmNewOrOld::ShowsTables() const { return {tblComponentTypes::kTable}; }

void frmNewOrOld::ReloadForm() {
  const QString name = TypeInSentence(type_);
  setWindowTitle(u"New "_s + (name.isEmpty() ? u"Component"_s : name));
}

void frmNewOrOld::EnterSerial() {
  if (const QString command = CommandForSerial(ui_->txtSerial->text(), type_); !command.isEmpty())
    End(command);
  else
    SelectAllInBox(ui_->txtSerial);
}

void frmNewOrOld::End(const QString& command) {
  command_ = command;
  SetTag(command);
  Leave();
}

void frmNewOrOld::Cancel() { End(u"cancel"_s); }
