#pragma once
#include <memory>

#include "core/lists.h"
#include "core/widgets/form.h"
#include "jobs/screens.h"

namespace Ui {
class frmSelectTask;
}

/// The tasks, or the events, of the library: to choose one, or to keep them. The tag is "select" when one was chosen.
class frmSelectTask : public Form {
  Q_OBJECT
 public:
  frmSelectTask();
  ~frmSelectTask() override;

  void Browse(bool events);
  void Pick(const LibraryQuestion& question);
  LibraryChoice Choice() const;
  /// True while a routine waits for the choice.
  bool IsPicking() const { return picking_; }
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetUp(const LibraryQuestion& question, bool picking);
  QString Noun() const;  ///< "a task" or "an event"
  int Entry() const;
  void ShowList();
  void LoadEntries();
  IdList EntriesOfText() const;
  void LoadArrayAll();
  void ListTasksByComponent();
  void LoadListBoxFromArray();
  void HighlightTaskType(int taskLibID);

  void Select();
  void Create(const QString& name);
  void Edit();
  void Delete();
  bool TypedNothingKnown() const;

  std::unique_ptr<Ui::frmSelectTask> ui_;
  bool events_ = false;
  bool picking_ = false;
  IdList entries_;  ///< of which the typed text shows some
};
