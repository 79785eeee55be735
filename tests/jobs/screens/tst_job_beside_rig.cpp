#include <QTest>

#include "core/forms.h"
#include "core/widgets/form.h"
#include "core/widgets/grid.h"
#include "gear/screens.h"
#include "jobs/sample_job.h"
#include "jobs/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

QWidget& Screen(const QString& name) { return dynamic_cast<QWidget&>(*Forms::Find(name)); }

/// The repack's row on the rig screen: done, due.
QString RepackOnRigScreen() {
  const auto& schedule = Control<Grid>(Screen(u"frmGetRig"_s), u"Grid2"_s);
  return schedule.Text(0, 1) + u'|' + schedule.Text(0, 2);
}

}  // namespace

/// A job and the rig screen open side by side: what falls due is right on both.
class TestJobBesideRig : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void TheRigScreenFollowsTheJob() {
    SampleJob shop;
    const ScreenScript screens;
    shop.AddTask(RepackTaskLibID);
    OpenRigs({.rig = shop.rig});
    GotoJob(shop.job);
    QCOMPARE(RepackOnRigScreen(), u"unknown|unknown"_s);
    auto& lines = Control<Grid>(Screen(u"frmJob"_s), u"Grid2"_s);
    ClickCell(lines, 0, 3);
    QCOMPARE(RepackOnRigScreen(), u"03/01/2026|08/28/2026"_s);
    PressKey(lines, Qt::Key_Space);
    QCOMPARE(RepackOnRigScreen(), u"unknown|unknown"_s);
    PressKey(lines, Qt::Key_Space);
    QCOMPARE(RepackOnRigScreen(), u"03/01/2026|08/28/2026"_s);
    shop.prompts.Expect(u"Delete Inspect and repack reserve?"_s, u"Are you sure you want to delete this entry?"_s,
                        Answer::Yes);
    lines.SelectCell(0, 0);
    PressKey(lines, Qt::Key_Delete);
    QCOMPARE(RepackOnRigScreen(), u"unknown|unknown"_s);
  }
};

LOFT_TEST_MAIN(TestJobBesideRig)
#include "tst_job_beside_rig.moc"
