#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "gear/person_record.h"

class QAction;
class QMenu;

namespace Ui {
class frmPeople;
}

/// Browses and edits customers, riggers and the owner of the program, one at a time, and is the door to a person's
/// rigs.
class frmPeople : public Form {
  Q_OBJECT
 public:
  frmPeople();
  ~frmPeople() override;

  /// A person's id or a start mode, see gear/screens.h. Takes effect when the screen shows.
  void SetStart(int start) { start_ = start; }
  /// The next person who is saved is the owner of the program.
  void SetOwnerSetup(bool setup) { ownerSetup_ = ownerPending_ = setup; }
  int CurrentPerson() const { return current_; }
  int SavedOwner() const { return savedOwner_; }  ///< who was saved as the owner of the program, 0 for nobody
  /// What a start asks for, on the screen that is open already: the person who was added, else the one shown, 0 for
  /// nobody. While somebody waits for this screen's person, it stays on that one.
  int GoTo(int start);
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void MakeMenu();
  void Start(int start);
  void LoadList();
  void Display(int id);
  void ShowFields(const Person& person);
  void ShowRigsAndDue(int id);
  void ShowEnds(int id);
  void ShowPhoto();
  void ShowState();
  void SetLocked(bool locked);
  void Move(int neighbour, bool forward);
  bool AddNew();
  /// Lets the person be typed; true when the editor ended with Save.
  bool Edit(Person& person, bool isNew);
  void EditPerson();
  void DeletePerson();
  void Search();
  void Refresh();
  void OpenRigs();
  void WriteRigger(bool rigger);

  std::unique_ptr<Ui::frmPeople> ui_;
  QMenu* mnuMenu_ = nullptr;
  QMenu* mnuJobsDummy_ = nullptr;
  QAction* mnuExit_ = nullptr;
  QAction* mnuEditCustomer_ = nullptr;
  QAction* mnuDeleteCustomer_ = nullptr;
  QAction* mnuNewJob_ = nullptr;
  QAction* mnuReviewJobs_ = nullptr;
  int start_ = 0;
  int current_ = -1;
  int savedOwner_ = 0;
  bool ownerSetup_ = false;
  bool ownerPending_ = false;
  bool locked_ = false;
  bool loading_ = false;
};
