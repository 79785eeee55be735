#pragma once
#include <QSet>

#include <memory>

#include "core/lists.h"
#include "core/widgets/form.h"
#include "jobs/library_entry.h"
#include "jobs/screens.h"

namespace Ui {
class frmTaskType;
}

/// One task of the library. The tag is "save" when it was saved.
class frmTaskType : public Form {
  Q_OBJECT
 public:
  frmTaskType();
  ~frmTaskType() override;

  void SetStart(const TaskTypeStart& start);
  /// Takes over what was entered as a custom task; its form is still loaded.
  void GetDataFromFormMiscTask();
  int TaskLibID() const { return taskLibID_; }
  /// Reads what is offered anew; what is entered and ticked stays. An entry that has gone can't be edited any more.
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  void Load(int taskLibID);
  void ShowEntry(const TaskTypeEntry& entry);
  TaskTypeEntry Entry() const;
  IntervalUnit Unit() const;

  void ShowScheduled(bool scheduled);
  void ShowUnit();
  void ChooseModel(bool specific);
  IdList RequiredToChoose() const;
  void FillComponents(const QList<int>& ticked);
  void LetGoOfLostModel();
  void ShowRigSpecific(bool specific);
  void TickAllOrNone();

  void CreateTheArray();
  void LoadParts();
  void UpdateIsCheckedArray(int row, bool ticked);
  int Part() const;
  void NewPart();
  void EditPart();
  void DeletePart();

  void Save();
  void DeleteThis();

  std::unique_ptr<Ui::frmTaskType> ui_;
  int taskLibID_ = 0;
  bool openedForModel_ = false;
  int modelID_ = 0;
  QList<int> componentsBefore_;  ///< ticked before the task was tied to a model
  IdList parts_;                 ///< all parts, of which a search shows some
  QSet<int> checkedParts_;
};
