#pragma once
#include <memory>
#include <optional>

#include "core/lists.h"
#include "core/widgets/form.h"
#include "history/history_entries.h"

class QAction;

namespace Ui {
class frmHistoryForm;
}

/// What has ever been done to a rig or a component, and the ways from there to the job, the rig and the component.
class frmHistoryForm : public Form {
  Q_OBJECT
 public:
  frmHistoryForm();
  ~frmHistoryForm() override;

  /// Reads everything anew for another rig or component.
  void ReloadMe(const HistoryView& view);
  /// Reads the lines anew.
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void BuildMenus();
  void SetUpGrid();
  IdList ToTick() const;
  void LoadComponentTypes();
  void ReloadView();
  QList<HistoryLine> LoadHx() const;
  void TickAll(bool ticked);
  void RememberDateOrder();

  std::optional<HistoryLine> LineOf(int row) const;
  /// The selected line; none, told, when nothing is selected.
  std::optional<HistoryLine> Selected() const;
  int ChosenComponent() const;  ///< the one viewed, else the selected line's
  void ShowSelected();
  void DoComponentInfo(int component);
  void CheckComments(int task);
  void CheckOwner();

  void AddTaskOrEvent(bool isEvent);
  void DeleteEvent();
  void EditEvent();
  void ShowJob();
  void GoToJob(int job);
  void StartJob();
  void ShowRig();
  void SelectRig();
  void SelectComponent();
  void ShowLineComponent();
  void DoComments();

  std::unique_ptr<Ui::frmHistoryForm> ui_;
  HistoryView view_;
  QList<HistoryLine> lines_;
  QAction* showRig_ = nullptr;
  std::optional<Qt::SortOrder> dateOrder_;  ///< the order by date that was chosen last; lines stand as found before
};
