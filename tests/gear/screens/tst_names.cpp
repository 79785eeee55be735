#include <QtTest>

#include "core/picker.h"
#include "core/screens.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/people.h"
#include "gear/person_record.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

/// Names as people have them. What counts is that each is shown, sorted and found as its bearer expects.
struct Names {
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  ScreenScript screens;
  const QString longest = QString(49, u'W') + u'y';
  int angstrom = Add(u"Ångström"_s, u"Nils"_s);
  int abel = Add(u"abel"_s, u"Mary Ann"_s);
  int angus = Add(u"Angus"_s, u"Tom"_s);
  int obrien = Add(u"O'Brien"_s, u"Ann"_s);
  int zeta = Add(u"Çelik"_s, u"Zeynep"_s);
  int hebrew = Add(u"כהן"_s, u"דוד"_s);
  int longName = Add(longest, QString(50, u'i'));
  int club = InsertPerson({.organization = u"Club \"Blue Sky\" & Co."_s});

  static int Add(const QString& last, const QString& first) {
    return InsertPerson({.lastName = last, .firstName = first});
  }
};

QStringList Items(const List& list) {
  QStringList items;
  for (int row = 0; row < list.Count(); ++row) items << list.ItemText(row);
  return items;
}

}  // namespace

class TestNames : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void StandInTheOrderOfTheirLetters() {
    Names names;
    OpenPeople(names.abel);
    auto& form = dynamic_cast<Form&>(*Forms::Find(u"frmPeople"_s));
    const QStringList items = Items(Control<List>(form, u"lstPeople"_s));
    const QStringList latin = items.filter(QRegularExpression(u"^[aAÅÇO]"_s));
    QCOMPARE(latin, QStringList({u"abel, Mary Ann"_s, u"Ångström, Nils"_s, u"Angus, Tom"_s, u"Çelik, Zeynep"_s,
                                 u"O'Brien, Ann"_s}));
    QVERIFY(items.contains(u"כהן, דוד"_s));
    QVERIFY(items.contains(u"Club \"Blue Sky\" & Co."_s));
    QVERIFY(items.contains(names.longest + u", "_s + QString(50, u'i')));
    Control<List>(form, u"lstPeople"_s).SelectData(names.longName);
    Picture(form, u"names-longest"_s);
    Control<List>(form, u"lstPeople"_s).SelectData(names.hebrew);
    QCOMPARE(TextOf(form, u"lblName"_s), u"דוד כהן"_s);
    Picture(form, u"names-right-to-left"_s);
    Control<List>(form, u"lstPeople"_s).SelectData(names.club);
    QCOMPARE(TextOf(form, u"lblName"_s), u"Club \"Blue Sky\" & Co."_s);
  }

  void AreFoundByTheirFirstLetters_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    QTest::newRow("lower case") << u"o'b"_s << u"O'Brien, Ann"_s;
    QTest::newRow("accent typed") << u"ång"_s << u"Ångström, Nils"_s;
    QTest::newRow("upper case") << u"ABEL"_s << u"abel, Mary Ann"_s;
    QTest::newRow("right to left") << u"כה"_s << u"כהן, דוד"_s;
    QTest::newRow("organization") << u"club \"b"_s << u"Club \"Blue Sky\" & Co."_s;
  }
  void AreFoundByTheirFirstLetters() {
    QFETCH(QString, typed);
    QFETCH(QString, found);
    Names names;
    names.screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, typed);
      QVERIFY2(Control<List>(form, u"lst"_s).ListIndex() >= 0, qPrintable(typed));
      Click(form, u"cmdSelect"_s);
    });
    const int id = PickItem(kPickCustomer).id;
    QCOMPARE(PersonSortName(id), found);
  }

  void AnApostropheLosesNothingOnTheWayThroughTheEditor() {
    Names names;
    OpenPeople(names.obrien);
    auto& form = dynamic_cast<Form&>(*Forms::Find(u"frmPeople"_s));
    names.screens.WhenShown(u"frmPeopleEdit"_s, [](Form& edit) {
      TypeInto(edit, u"txtCity"_s, u"Coeur d'Alene"_s);
      TypeInto(edit, u"txtComment"_s, u"says \"it's fine\"; drop table tblPeople --"_s);
      Click(edit, u"cmdSave"_s);
    });
    Click(form, u"cmdEdit"_s);
    QCOMPARE(names.loft.Rows(u"SELECT LastName, City, Comment FROM tblPeople WHERE ID = %1"_s.arg(names.obrien)),
             QStringList{u"O'Brien|Coeur d'Alene|says \"it's fine\"; drop table tblPeople --"_s});
    QCOMPARE(names.loft.Rows(u"SELECT count(*) FROM tblPeople"_s), QStringList{u"8"_s});
  }

  void RigsKeepTheirNames() {
    Names names;
    const QString rig = u"Ann's \"Curv\" – été"_s;
    const int id = CreateRig(names.obrien, 1, rig);
    OpenRigs({.customer = names.obrien, .rig = id});
    auto& form = dynamic_cast<Form&>(*Forms::Find(u"frmGetRig"_s));
    QCOMPARE(Items(Control<List>(form, u"lstGear"_s)), QStringList{rig});
    QVERIFY(RigNameIsTaken(u" ANN'S \"CURV\" – ÉTÉ "_s, names.obrien));
    QVERIFY(!RigNameIsTaken(rig, names.abel));
  }
};

LOFT_TEST_MAIN(TestNames)
#include "tst_names.moc"
