#include <QtTest>

#include "core/failure.h"
#include "core/forms.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

class Screen : public LoadedForm {
 public:
  explicit Screen(QString name, bool shown = true) : name_(std::move(name)), shown_(shown) { Forms::Add(this); }
  ~Screen() override { Forms::Remove(this); }
  QString FormName() const override { return name_; }
  bool FormIsShown() const override { return shown_; }
  void ReloadForm() override {}
  void TablesChanged(const Changes&) override {}
  void UnloadForm() override {}

 private:
  QString name_;
  bool shown_;
};

/// A screen that can't read anew.
class FailingForm : public CountingForm {
 public:
  using CountingForm::CountingForm;
  void TablesChanged(const Changes& changes) override {
    CountingForm::TablesChanged(changes);
    throw StorageFailure(u"disk I/O error"_s);
  }
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

  void AScreenThatCantReadKeepsNoOtherFromBeingTold() {
    const FailingForm rigs(u"frmGetRig"_s, {u"tblRig"_s});
    const CountingForm list(u"frmRigList"_s, {u"tblRig"_s});
    Changes changes;
    changes.Note(u"tblRig"_s);
    QVERIFY_THROWS_EXCEPTION(StorageFailure, Forms::Tell(changes));
    QCOMPARE(rigs.told, 1);
    QCOMPARE(list.told, 1);
  }

  void TellsOfTheTablesThatAScreenShows() {
    const CountingForm job(u"frmJob"_s, {u"tblJobs"_s, u"tblTasks"_s});
    const CountingForm rig(u"frmRig"_s, {u"tblRig"_s});
    const CountingForm blank(u"frmBlank"_s, {});
    Changes changes;
    changes.Note(u"tblJobs"_s);
    changes.Note(u"tblTasks"_s);
    Forms::Tell(changes);
    QCOMPARE(job.told, 1);
    QCOMPARE(rig.told, 0);
    QCOMPARE(blank.told, 0);
  }
};

LOFT_TEST_MAIN(TestForms)
#include "tst_forms.moc"
