#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "gear/person_record.h"

namespace Ui {
class frmPeopleEdit;
}

/// The only place where a person's fields are typed. The caller sets the person, shows it modally, and reads the person
/// back when the tag is "save".
class frmPeopleEdit : public Form {
  Q_OBJECT
 public:
  frmPeopleEdit();
  ~frmPeopleEdit() override;

  void SetPerson(const Person& person, bool isNew);
  const Person& Edited() const { return person_; }

 private:
  void Save();

  std::unique_ptr<Ui::frmPeopleEdit> ui_;
  Person person_;
  bool isNew_ = false;
};
