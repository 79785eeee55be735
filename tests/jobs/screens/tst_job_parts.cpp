#include <QtTest>

#include "core/default_rows.h"
#include "jobs/screens/open_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSelectPart = 4;
constexpr int kCustomPartItem = 5;

void RunItem(const OpenJob& shop, int item) {
  Control<List>(shop.Screen(), u"lstTasks"_s).SetListIndex(item);
  Click(shop.Screen(), u"cmdTask"_s);
}

/// Name, price and part of every line.
QStringList LinesOf(const OpenJob& shop) {
  return shop.loft.Rows(u"SELECT TaskName, FlatRate, PartID, LogBook, IsEvent FROM tblTasks ORDER BY ID"_s);
}

}  // namespace

class TestJobParts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void APartIsPickedFromTheCatalogue() {
    OpenJob shop;
    const int loop = shop.AddPart("Closing loop", 3);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& picker) { Click(picker, u"cmdCancel"_s); });
    RunItem(shop, kSelectPart);
    QCOMPARE(LinesOf(shop), QStringList());
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& picker) {
      TypeInto(picker, u"txt"_s, u"closing"_s);
      Click(picker, u"cmdSelect"_s);
    });
    RunItem(shop, kSelectPart);
    QCOMPARE(LinesOf(shop), QStringList{u"Closing loop|30000|%1|0|0"_s.arg(loop)});
    QCOMPARE(shop.Row(0), u"     Closing loop||3.00||"_s);
  }

  void APartThatIsMissingIsAddedOnTheWay() {
    OpenJob shop;
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& picker) {
      Control<List>(picker, u"lst"_s).SetListIndex(0);  // (add new model)
      Click(picker, u"cmdSelect"_s);
    });
    shop.screens.WhenShown(u"frmNewMisc"_s, [](Form& part) {
      TypeInto(part, u"txtName"_s, u"Slider"_s);
      TypeInto(part, u"txtCost"_s, u"40"_s);
      Click(part, u"cmdOK"_s);
    });
    RunItem(shop, kSelectPart);
    QCOMPARE(shop.loft.Rows(u"SELECT Name, Price FROM tblModels WHERE TypeID = %1"_s.arg(kMisc)),
             QStringList{u"Slider|400000"_s});
    QCOMPARE(shop.Row(0), u"     Slider||40.00||"_s);
  }

  void ACustomPartIsOfferedToTheCatalogue_data() {
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("parts");
    QTest::newRow("added") << Answer::Yes << 1;
    QTest::newRow("this job alone") << Answer::No << 0;
  }
  void ACustomPartIsOfferedToTheCatalogue() {
    QFETCH(Answer, answer);
    OpenJob shop;
    shop.screens.WhenShown(u"frmNewMisc"_s, [&](Form& part) {
      QCOMPARE(part.windowTitle(), u"Enter Custom Item"_s);
      TypeInto(part, u"txtName"_s, u"Ann's toggle"_s);
      TypeInto(part, u"txtCost"_s, u"7.5"_s);
      shop.prompts.Expect(u"New Item: Ann's toggle"_s,
                          u"Would you like to add this item to the PARTS database for future use?"_s, answer);
      if (answer == Answer::Yes) shop.prompts.ExpectBox(u"Done"_s, u"Ann's toggle has been added to the parts table"_s);
      Click(part, u"cmdOK"_s);
    });
    RunItem(shop, kCustomPartItem);
    const QStringList ids = shop.loft.Rows(u"SELECT ID FROM tblModels WHERE Name = 'Ann''s toggle'"_s);
    QTEST(static_cast<int>(ids.size()), "parts");
    QCOMPARE(LinesOf(shop), QStringList{u"Ann's toggle|75000|%1|0|0"_s.arg(ids.value(0, u"-99"_s))});
  }

  void APartThatIsKnownTakesItsOwnPrice() {
    OpenJob shop;
    const int loop = shop.AddPart("Closing loop", 3);
    const QString question =
        u"closing LOOP already exists in the parts database.\nIt has a cost of 3.00\n"
        "Do you still want to add it to this job?"_s;
    const auto enter = [&](Answer answer) {
      shop.screens.WhenShown(u"frmNewMisc"_s, [&, answer](Form& part) {
        TypeInto(part, u"txtName"_s, u"closing LOOP"_s);
        TypeInto(part, u"txtCost"_s, u"99"_s);
        shop.prompts.Expect(u"Add closing LOOP?"_s, question, answer);
        Click(part, u"cmdOK"_s);
      });
      RunItem(shop, kCustomPartItem);
    };
    const QStringList before = shop.loft.Snapshot();
    enter(Answer::No);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    enter(Answer::Yes);
    QCOMPARE(LinesOf(shop), QStringList{u"Closing loop|30000|%1|0|0"_s.arg(loop)});
  }

  void LeavingTheEntryAddsNothing() {
    OpenJob shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmNewMisc"_s, [](Form& part) { PressKey(part, Qt::Key_Escape); });
    RunItem(shop, kCustomPartItem);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void TheLocationIsChosenAndItsLinesStay() {
    OpenJob shop;
    const int line = shop.AddShown(RepackTaskLibID);
    const int perris = shop.loft.Add("tblLocation", {{"City", "Perris"}, {"State", "CA"}, {"TaxRate", 7.25}});
    shop.screens.WhenShown(u"frmLocation"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"txtCity"_s), u"Perris"_s);  // the default one, being the only one
      Click(form, u"cmdOK"_s);
    });
    shop.Choose(u"Jobs"_s, u"Change location"_s);
    QCOMPARE(JobLocationID(shop.job), perris);
    QCOMPARE(shop.Label("lblLocation"), u"Perris, CA"_s);
    QCOMPARE(LineField(line, tblTasks::LocationID).ToInt(), 0);
    shop.screens.WhenShown(u"frmLocation"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    QTest::mouseClick(&Control<QWidget>(shop.Screen(), u"lblLocation"_s), Qt::LeftButton);
    QCOMPARE(JobLocationID(shop.job), perris);
  }
};

LOFT_TEST_MAIN(TestJobParts)
#include "tst_job_parts.moc"
