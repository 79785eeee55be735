#pragma once
#include <QHash>
#include <QSet>

#include <memory>

#include "core/money.h"
#include "core/widgets/form.h"

class Grid;

namespace Ui {
class frmRepack;
}

/// The prices of a reserve repack: the default one, by rig type and by container model.
class frmRepack : public Form {
  Q_OBJECT
 public:
  frmRepack();
  ~frmRepack() override;

  /// Used while the program is being set up: saving shows no box.
  void SetSetUpMode(bool setUp) { setUp_ = setUp; }
  /// Reads the prices anew; what was typed and is not saved yet stays.
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  void SetUpGrid(Grid& grid, const QString& heading);
  void LoadAnew();  ///< what was typed and is not saved is lost
  void HandleKey(Grid& grid, int key, bool& handled);
  void Save();
  void ClearAll(bool byType);

  std::unique_ptr<Ui::frmRepack> ui_;
  QHash<const Grid*, QSet<int>> typed_;  ///< the rows whose price was typed and is not saved yet
  bool setUp_ = false;
};
