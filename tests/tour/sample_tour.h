#pragma once
#include <QFile>
#include <QTest>

#include <memory>

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/screens.h"
#include "core/shell/start_up.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "sample/sample_loft.h"
#include "support/data_home.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/throwaway_loft.h"

/// The program running on the sample loft, from its start to its end.
class SampleTour {
 public:
  inline static const Date kToday = Date::FromParts(2026, 3, 2);

  std::unique_ptr<ScriptedPrompts> prompts;

  SampleTour() {
    IsolateSettings();
    home_ = std::make_unique<DataHome>();
    for (const auto& [from, name] :
         {std::pair{QFINDTESTDATA("../support/models.txt"), QStringLiteral("models.txt")},
          {QCoreApplication::applicationDirPath() + QStringLiteral("/../src/blank.mdb"), QStringLiteral("blank.mdb")}})
      if (!QFile::copy(from, home_->Folder() / QStringLiteral("work/") + name))
        qFatal("%s is missing", qPrintable(name));
    MakeSampleLoft(kToday);
    SetClock(kToday);
    prompts = std::make_unique<ScriptedPrompts>();
    if (!SubMain()) qFatal("The program does not start");
  }
  ~SampleTour() {
    prompts.reset();
    UnloadScreens();
    LeaveDataFolder();
    home_.reset();
    SetClock(std::nullopt);
  }

  /// The first field that a statement of SQLite reads from the file, as a number.
  static int Number(const QString& sql) {
    ReleaseDatabaseFile();
    return RowsOfFile(DatabasePath(), sql).value(0).toInt();
  }

 private:
  std::unique_ptr<DataHome> home_;
};

inline Form& Shown(const QString& form) { return dynamic_cast<Form&>(*Forms::Find(form)); }
inline List& ListOf(Form& form, const QString& name) { return Control<List>(form, name); }
inline Grid& GridOf(Form& form, const QString& name = QStringLiteral("Grid")) { return Control<Grid>(form, name); }
inline void Select(List& list, int id) { QVERIFY2(list.SelectData(id), qPrintable(QString::number(id))); }
