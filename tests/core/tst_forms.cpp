#include <QtTest>

#include "core/forms.h"

using namespace Qt::StringLiterals;

namespace {

class Screen : public LoadedForm {
 public:
  explicit Screen(QString name, bool shown = true) : name_(std::move(name)), shown_(shown) { Forms::Add(this); }
  ~Screen() override { Forms::Remove(this); }
  QString FormName() const override { return name_; }
  bool FormIsShown() const override { return shown_; }
  void ReloadForm() override { ++reloads; }
  void ReloadSchedule() override { ++scheduleReloads; }
  void UnloadForm() override {}
  int reloads = 0;
  int scheduleReloads = 0;

 private:
  QString name_;
  bool shown_;
};

}  // namespace

class TestForms : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void KeepsLoadOrder() {
    const Screen menu(u"frmMenu"_s);
    Screen job(u"frmJob"_s);
    {
      const Screen rig(u"frmRig"_s);
      Forms::Add(&job);
      QCOMPARE(Forms::Names(), QStringList({u"frmMenu"_s, u"frmJob"_s, u"frmRig"_s}));
    }
    QCOMPARE(Forms::Names(), QStringList({u"frmMenu"_s, u"frmJob"_s}));
    QCOMPARE(Forms::Loaded().last(), &job);
  }

  void FindsWithoutRegardToCase() {
    Screen job(u"frmJob"_s, false);
    const Screen rig(u"frmRig"_s);
    QCOMPARE(Forms::Find(u"FRMJOB"_s), &job);
    QCOMPARE(Forms::Find(u"frmJobs"_s), nullptr);
    QCOMPARE(Forms::IsShown(u"frmJob"_s), false);
    QCOMPARE(Forms::IsShown(u"frmrig"_s), true);
    QCOMPARE(Forms::IsShown(u"frmSchedule"_s), false);
  }

  void ReloadsWhatIsLoaded() {
    Screen job(u"frmJob"_s);
    Screen rig(u"frmRig"_s);
    Forms::ReloadIfLoaded(u"frmjob"_s);
    Forms::ReloadIfLoaded(u"frmSchedule"_s);
    QCOMPARE(job.reloads, 1);
    QCOMPARE(rig.reloads, 0);
  }

  void NewDueDatesReachEveryLoadedForm() {
    const Screen job(u"frmJob"_s);
    const Screen rig(u"frmRig"_s, false);
    Forms::ReloadSchedules();
    QCOMPARE(job.scheduleReloads, 1);
    QCOMPARE(rig.scheduleReloads, 1);
    QCOMPARE(job.reloads, 0);
  }
};

QTEST_APPLESS_MAIN(TestForms)
#include "tst_forms.moc"
