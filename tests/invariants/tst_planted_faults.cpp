#include <QtTest>

#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/screens.h"
#include "gear/screens/rigs/frmGetRig.h"
#include "invariants/work.h"
#include "jobs/screens.h"
#include "jobs/screens/frmJob.h"
#include "jobs/screens/frmJobList.h"
#include "schedule/screens.h"
#include "schedule/screens/frmSchedule.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// Puts a screen with a fault in the place of the sound one, through its own door.
template <class Faulty, class Sound>
void Replace(void (*open)()) {
  auto* loaded = FormIfLoaded<Sound>();
  if (dynamic_cast<Faulty*>(loaded) != nullptr) return;
  if (loaded != nullptr) loaded->UnloadForm();
  new Faulty;  // the forms collection has it
  open();
}

/// Does not hear of what is written to people.
class DeafRigs : public frmGetRig {
 public:
  void TablesChanged(const Changes& changes) override {
    if (!changes.Touches(u"tblPeople"_s)) frmGetRig::TablesChanged(changes);
  }
};

class DeafSchedule : public frmSchedule {
 public:
  void TablesChanged(const Changes&) override {}
};

/// Takes the text box of a cell away before it reads the job anew.
class ForgetfulJob : public frmJob {
 public:
  void TablesChanged(const Changes& changes) override {
    findChild<Grid*>(u"Grid2"_s)->AbandonEditor();
    frmJob::TablesChanged(changes);
  }
};

/// Selects again by the number of the row.
class NumberedJobList : public frmJobList {
 public:
  void TablesChanged(const Changes& changes) override {
    auto& jobs = *findChild<List*>(u"lstJobs"_s);
    const int row = jobs.ListIndex();
    frmJobList::TablesChanged(changes);
    jobs.SetListIndex(qMin(row, jobs.Count() - 1));
  }
};

/// The gear of a job without lines is written, and the job itself is lost.
void LoseJobs(const SmallLoft& loft) {
  loft.Loft().ChangeSchema(
      "CREATE TRIGGER lost AFTER INSERT ON tblJobComponents "
      "WHEN NOT EXISTS (SELECT 1 FROM tblTasks WHERE JobID = NEW.JobID) "
      "BEGIN DELETE FROM tblJobs WHERE ID = NEW.JobID; END");
}

const std::vector<PlantedFault>& Faults() {
  static const std::vector<PlantedFault> faults = {
      {.name = "a dead owner on an open Rigs screen",
       .shows = "frmGetRig is stale",
       .beforeStep = [] { Replace<DeafRigs, frmGetRig>([] { OpenRigs(); }); }},
      {.name = "a stale schedule",
       .shows = "frmSchedule is stale",
       .beforeStep =
           [] {
             // Its door makes a new one, so this one is shown past it.
             Replace<DeafSchedule, frmSchedule>([] {
               auto& screen = SharedForm<frmSchedule>();
               screen.SetStart({});
               screen.Show();
             });
           }},
      {.name = "half a new job", .shows = "tblJobs, which is gone", .atStart = LoseJobs},
      {.name = "a lost text in a cell",
       .shows = "frmJob lost a text that is being typed",
       .beforeStep = [] { Replace<ForgetfulJob, frmJob>([] { ShowJob(); }); }},
      {.name = "a selection by row number",
       .shows = "frmJobList lost a selection",
       .beforeStep = [] { Replace<NumberedJobList, frmJobList>([] { OpenJobList(); }); }},
  };
  return faults;
}

}  // namespace

/// Faults of the kinds that such a program has had are found by random work within 2,000 steps.
class TestPlantedFaults : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void EachIsFound_data() {
    QTest::addColumn<int>("place");
    for (int place = 0; place < static_cast<int>(Faults().size()); ++place)
      QTest::addRow("%s", qPrintable(Faults()[static_cast<size_t>(place)].name)) << place;
  }
  void EachIsFound() {
    QFETCH(const int, place);
    const PlantedFault& fault = Faults()[static_cast<size_t>(place)];
    constexpr int kMostSteps = 2000;
    Work work;
    for (quint32 seed = 1; work.Counted().steps < kMostSteps; ++seed) {
      const QString wrong = work.Run(Sequence(seed), &fault);
      if (wrong.isEmpty()) continue;
      qInfo("found by seed %u after %d steps: %s", seed, work.Counted().steps, qPrintable(wrong));
      QVERIFY2(wrong.contains(fault.shows), qPrintable(work.Told().join(u'\n')));
      return;
    }
    QFAIL("not found");
  }
};

LOFT_TEST_MAIN(TestPlantedFaults)
#include "tst_planted_faults.moc"
