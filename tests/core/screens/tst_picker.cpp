#include <QCheckBox>
#include <QPushButton>
#include <QTest>

#include "core/screens.h"
#include "core/widgets/form.h"
#include "core/widgets/list.h"
#include "core/widgets/theme.h"
#include "gear/screens.h"
#include "jobs/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

List& Rows(Form& form) { return Control<List>(form, u"lst"_s); }

QStringList Texts(Form& form) {
  QStringList texts;
  for (int row = 0; row < Rows(form).Count(); ++row) texts += Rows(form).ItemText(row);
  return texts;
}

struct People {
  explicit People(const ThrowAwayLoft& loft)
      : smith(loft.Add(u"tblPeople"_s, {{u"LastName"_s, "Smith"}, {u"FirstName"_s, "Bob"}, {u"Rigger"_s, true}})),
        jones(loft.Add(u"tblPeople"_s, {{u"LastName"_s, "Jones"}, {u"FirstName"_s, "Ann"}, {u"Rigger"_s, true}})) {}
  int smith;
  int jones;
};

/// The kinds whose owners add and delete; here it is the tests that do.
constexpr PickerType kChanging[] = {kPickCustomer, kPickTask, kPickLocation, kPickGearReport, kPickMiscItem};

void Amend(PickerType type, const std::function<void(PickerKind&)>& change) {
  PickerKind kind = PickerKindOf(type);
  change(kind);
  RegisterPicker(type, kind);
}

QString Numbered(const QString& name, int id) { return u"%1 (%2)"_s.arg(name).arg(id); }

}  // namespace

class TestPicker : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void init() {
    RegisterGearPickers();
    RegisterJobPickers();
    for (const PickerType type : kChanging)
      Amend(type, [](PickerKind& kind) { kind.add = nullptr, kind.remove = nullptr; });
  }
  void cleanup() { UnloadScreens(); }

  void CustomersComeByLastNameWithTheirNumber() {
    const ThrowAwayLoft loft;
    const People people(loft);
    ScreenScript screens;
    screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select Customer"_s);
      QCOMPARE(Texts(form), QStringList({Numbered(u"Jones, Ann"_s, people.jones),
                                         Numbered(u"Smith, Bob"_s, people.smith), u"(add new)"_s}));
      QCOMPARE(TextOf(form, u"cmdCancel"_s), u"E&xit"_s);
      QVERIFY(!Control<QPushButton>(form, u"cmdDelete"_s).isVisible());
      QVERIFY(!Control<QCheckBox>(form, u"chkDefault"_s).isVisible());
      TypeInto(form, u"txt"_s, u"smi"_s);
      QCOMPARE(Rows(form).ListIndex(), 1);
      Picture(form, u"frmPicker"_s);
      PressKey(form, u"txt"_s, Qt::Key_Return);
    });
    const Picked picked = PickItem(kPickCustomer);
    QCOMPARE(picked.id, people.smith);
    QCOMPARE(picked.text, Numbered(u"Smith, Bob"_s, people.smith));
    QCOMPARE(loft.Rows(u"select LastCustomerID from tblMisc"_s), QStringList{QString::number(people.smith)});
  }

  void CancelGivesNothing() {
    const ThrowAwayLoft loft;
    const People people(loft);
    for (const bool byKey : {false, true}) {
      ScreenScript screens;
      screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
        Rows(form).SetListIndex(0);
        if (byKey) {
          PressKey(form, u"txt"_s, Qt::Key_Escape);
        } else {
          Click(form, u"cmdCancel"_s);
        }
        QCOMPARE(form.Tag(), u"cancel"_s);
      });
      QCOMPARE(PickItem(kPickCustomer).id, kPickCancelled);
    }
    QVERIFY(!Forms::Find(u"frmPicker"_s));
  }

  void AddNewRowsGiveTheirNumbers() {
    const ThrowAwayLoft loft;
    loft.Add(u"tblRig"_s, {{u"rigAlias"_s, "Red"}});
    loft.Add(u"tblModels"_s, {{u"Name"_s, "Ripcord"}, {u"TypeID"_s, 7}});
    loft.Add(u"tblModels"_s, {{u"Name"_s, "PD 143"}, {u"TypeID"_s, 3}});
    const QString reserve = loft.Rows(u"select Name from tblComponentTypes where ID = 3"_s).value(0);
    struct Case {
      int type;
      int model;
      QString title;
      QString row;
      int index;
      int result;
      int rows;
    };
    const Case cases[] = {
        {kPickCustomer, 0, u"Select Customer"_s, u"(add new)"_s, 0, kPickAddNewPerson, 1},
        {kPickRig, 0, u"Select System"_s, u"(add new)"_s, 0, kPickAddNew, 2},
        {kPickMiscItem, 7, u"Select Misc Item Model"_s, u"(add new model)"_s, 0, kPickAddNew, 2},
        {kPickMiscItem, 3, u"Select "_s + reserve + u" model"_s, u"(add new)"_s, 0, kPickAddNew, 2},
    };
    for (const Case& wanted : cases) {
      ScreenScript screens;
      screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
        QCOMPARE(form.windowTitle(), wanted.title);
        QCOMPARE(Rows(form).Count(), wanted.rows);
        QCOMPARE(Rows(form).ItemText(wanted.index), wanted.row);
        Rows(form).SetListIndex(wanted.index);
        Click(form, u"cmdSelect"_s);
      });
      QCOMPARE(PickItem(wanted.type, wanted.model).id, wanted.result);
    }
    QCOMPARE(loft.Rows(u"select LastCustomerID from tblMisc"_s), QStringList{u"0"_s});
  }

  void EachTypeHasItsTitleAndRows() {
    const ThrowAwayLoft loft;
    for (const char* table : {"tblTaskLib", "tblRigTypes", "tblLocation"}) {
      loft.Run(u"Delete * from "_s + QString::fromLatin1(table));
    }
    loft.Add(u"tblTaskLib"_s, {{u"Name"_s, "Patch"}});
    loft.Add(u"tblJobs"_s, {{u"JobTitle"_s, "Winter check"}, {u"InvoiceNumber"_s, "2025-7"}});
    loft.Add(u"tblLocation"_s, {{u"Location"_s, "Shop"}, {u"Default"_s, true}});
    loft.Add(u"tblLocation"_s, {{u"Location"_s, "Airfield"}, {u"Default"_s, false}});
    loft.Add(u"tblGearReports"_s, {{u"Name"_s, "All gear"}});
    loft.Add(u"tblRigTypes"_s, {{u"Name"_s, "Sport"}});
    struct Case {
      int type;
      QString title;
      QStringList rows;
    };
    const QStringList types = loft.Rows(u"select Name from tblComponentTypes order by ID"_s);
    const Case cases[] = {{kPickTask, u"Task Library"_s, {u"Patch"_s}},
                          {kPickJob, u"Jobs"_s, {u"Winter check"_s}},
                          {kPickInvoice, u"Select Invoice"_s, {u"2025-7"_s}},
                          {kPickLocation, u"Select Location"_s, {u"Airfield"_s, u"Shop (default)"_s}},
                          {kPickGearReport, u"Select Gear List Report"_s, {u"All gear"_s}},
                          {kPickRigType, u"Select Rig Type"_s, {u"Sport"_s}},
                          {kPickComponentType, u"Select Component Type"_s, types}};
    for (const Case& wanted : cases) {
      ScreenScript screens;
      screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
        QCOMPARE(form.windowTitle(), wanted.title);
        QCOMPARE(Texts(form), wanted.rows);
        QCOMPARE(TextOf(form, u"cmdCancel"_s), u"&Cancel"_s);
        form.close();
      });
      PickItem(wanted.type);
    }
  }

  void TheDefaultRiggerIsMarkedAndItsNumberReturned() {
    const ThrowAwayLoft loft;
    const People people(loft);
    loft.Run(u"update tblMisc set DefaultRiggerID = "_s + QString::number(people.jones));
    ScreenScript screens;
    screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select Rigger"_s);
      QCOMPARE(Texts(form), QStringList({u"Jones, Ann (default rigger)"_s, u"Smith, Bob"_s}));
      QCOMPARE(TextOf(form, u"cmdCancel"_s), u"E&xit"_s);
      QCOMPARE(TextOf(form, u"chkDefault"_s), u"Save as default rigger"_s);
      Rows(form).SetListIndex(0);
      QTest::mouseClick(&Control<QCheckBox>(form, u"chkDefault"_s), Qt::LeftButton, {}, QPoint(8, 8));
      PressKey(form, u"lst"_s, Qt::Key_Return);
    });
    const Picked picked = PickItemWithDefault(kPickRigger);
    QCOMPARE(picked.id, people.jones);
    QVERIFY(picked.saveAsDefault);
  }

  void TheDefaultBoxIsNamedByWhatIsPicked() {
    const ThrowAwayLoft loft;
    const std::pair<int, QString> captions[] = {{kPickLocation, u"Save as default location"_s},
                                                {kPickRigType, u"Save as default"_s}};
    for (const auto& [type, caption] : captions) {
      ScreenScript screens;
      screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
        QVERIFY(Control<QCheckBox>(form, u"chkDefault"_s).isVisible());
        QCOMPARE(TextOf(form, u"chkDefault"_s), caption);
        form.close();
      });
      QVERIFY(!PickItemWithDefault(type).saveAsDefault);
    }
  }

  void ThePresentRowIsSelectedAndADoubleClickPicks() {
    const ThrowAwayLoft loft;
    const People people(loft);
    ScreenScript screens;
    screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      QCOMPARE(Rows(form).ListIndex(), 1);
      QCOMPARE(TextOf(form, u"txt"_s), Numbered(u"Smith, Bob"_s, people.smith));
      const QRect place = Rows(form).visualRect(Rows(form).model()->index(0, 0));
      QTest::mouseClick(Rows(form).viewport(), Qt::LeftButton, {}, place.center());
      QCOMPARE(TextOf(form, u"txt"_s), Numbered(u"Jones, Ann"_s, people.jones));
      QCOMPARE(Rows(form).ListIndex(), 0);
      QTest::mouseDClick(Rows(form).viewport(), Qt::LeftButton, {}, place.center());
    });
    QCOMPARE(PickItem(kPickCustomer, 0, people.smith).id, people.jones);
  }

  void ArrowsMoveThroughTheListWhileTyping() {
    const ThrowAwayLoft loft;
    const People people(loft);
    ScreenScript screens;
    screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, u"j"_s);
      PressKey(form, u"txt"_s, Qt::Key_Down);
      QCOMPARE(Rows(form).ListIndex(), 1);
      PressKey(form, u"txt"_s, Qt::Key_Return);
    });
    QCOMPARE(PickItem(kPickCustomer).id, people.smith);
  }

  void TextNotInTheListGivesMinusOneForJobsAndInvoices() {
    const ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    for (const int type : {kPickJob, kPickInvoice}) {
      ScreenScript screens;
      screens.WhenShown(u"frmPicker"_s, [](Form& form) {
        TypeInto(form, u"txt"_s, u"nothing like it"_s);
        Click(form, u"cmdSelect"_s);
        QCOMPARE(form.Tag(), QString());
      });
      QCOMPARE(PickItem(type).id, -1);
    }
  }

  void AnEmptyPickerSelectsNothing_data() {
    QTest::addColumn<int>("type");
    for (int type : {kPickMiscItem, kPickRig, kPickCustomer, kPickTask, kPickJob, kPickLocation, kPickInvoice,
                     kPickGearReport, kPickRigger, kPickRigType, kPickComponentType})
      QTest::addRow("type %d", type) << type;
  }
  void AnEmptyPickerSelectsNothing() {
    QFETCH(int, type);
    const ThrowAwayLoft loft;
    for (const char* table : {"tblTaskLib", "tblRigTypes", "tblComponentTypes", "tblPeople", "tblModels"})
      loft.Run(u"delete from "_s + QString::fromLatin1(table));
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      auto& list = Control<List>(form, u"lst"_s);
      for (int row = 0; row < list.Count(); ++row) QVERIFY2(list.ItemData(row) < 0, "only what adds a record");
      Click(form, u"cmdSelect"_s);
      QVERIFY(form.isVisible());
      form.close();
    });
    QCOMPARE(PickItem(type).id, kPickCancelled);
  }

  void TextNotInTheListIsToldByType() {
    const ThrowAwayLoft loft;
    struct Case {
      int type;
      QString title;
      QString text;
    };
    const Case cases[] = {
        {kPickGearReport, u"Sorry....."_s, u"There isn't a gear list named 'zz'"_s},
        {kPickRigger, u"Can't add new rigger here"_s,
         u"There isn't a rigger named 'zz'\n\nYou can designate a person as a rigger from the\ncustomers form"_s},
        {kPickComponentType, u"No such component type"_s,
         u"There isn't a component type called zz\n\nTo add a new component type, access the SETUP menu"_s},
        {kPickRig, u"didn't allow for this type"_s, u"Type = 8"_s},
        {kPickRigType, u"didn't allow for this type"_s, u"Type = 17"_s}};
    for (const Case& wanted : cases) {
      ScriptedPrompts prompts;
      ScreenScript screens;
      prompts.ExpectBox(wanted.title, wanted.text);
      screens.WhenShown(u"frmPicker"_s, [](Form& form) {
        TypeInto(form, u"txt"_s, u"zz"_s);
        Click(form, u"cmdSelect"_s);
        QVERIFY(form.isVisible());
        form.close();
      });
      QCOMPARE(PickItem(wanted.type).id, kPickCancelled);
    }
  }

  void AnUnknownTypeIsTold() {
    const ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    ScreenScript screens;
    prompts.ExpectBox(kProgramTitle, u"need to set form caption for this type"_s);
    prompts.ExpectBox(u"didn't allow for this type"_s, u"see DoingComponents (above)"_s);
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      QCOMPARE(Rows(form).Count(), 0);
      form.close();
    });
    PickItem(18);
  }

  void ALocationOrTaskThatIsMissingCanBeAdded() {
    const ThrowAwayLoft loft;
    struct Case {
      PickerType type;
      QString title;
      QString text;
      QString table;
      QString field;
    };
    const Case cases[] = {
        {kPickLocation, u"Add new location?"_s,
         u"Can't find 'Barn' anywhere in the location database\n\nWould you like to add a new location?"_s,
         u"tblLocation"_s, u"Location"_s},
        {kPickTask, u"Add new task?"_s,
         u"Can't find 'Barn' anywhere in the task library\n\nWould you like to add a new task?"_s, u"tblTaskLib"_s,
         u"Name"_s}};
    for (const Case& wanted : cases) {
      int added = 0;
      Amend(wanted.type, [&](PickerKind& kind) {
        kind.add = [&](const QString& name, int) { return added = loft.Add(wanted.table, {{wanted.field, name}}); };
      });
      ScriptedPrompts prompts;
      ScreenScript screens;
      prompts.Expect(wanted.title, wanted.text, Answer::No).WithButtons(Buttons::YesNo);
      prompts.Expect(wanted.title, wanted.text, Answer::Yes).WithButtons(Buttons::YesNo);
      screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
        TypeInto(form, u"txt"_s, u"Barn"_s);
        Click(form, u"cmdSelect"_s);
        QCOMPARE(added, 0);
        Click(form, u"cmdSelect"_s);
        QVERIFY(added > 0);
        Click(form, u"cmdSelect"_s);
      });
      const Picked picked = PickItem(wanted.type);
      QCOMPARE(picked.id, added);
      QCOMPARE(picked.text, u"Barn"_s);
    }
  }

  void WithoutAnOwnerNothingIsOffered() {
    const ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    ScreenScript screens;
    prompts.ExpectBox(kProgramTitle, u"Can't find 'Barn' anywhere in the location database"_s);
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      QVERIFY(!Control<QPushButton>(form, u"cmdDelete"_s).isVisible());
      TypeInto(form, u"txt"_s, u"Barn"_s);
      Click(form, u"cmdSelect"_s);
      form.close();
    });
    PickItem(kPickLocation);
  }

  void ACustomerIsFoundByNameBeforeOneIsAdded() {
    const ThrowAwayLoft loft;
    const People people(loft);
    Amend(kPickCustomer, [](PickerKind& kind) { kind.add = [](const QString&, int) { return 0; }; });
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"bob smith"_s);
      QCOMPARE(Rows(form).ListIndex(), -1);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickItem(kPickCustomer).id, people.smith);

    prompts
        .Expect(u"Add new customer?"_s,
                u"Can't find 'Zed' anywhere in the customer database\n\nWould you like to add a new customer?"_s,
                Answer::Yes)
        .WithButtons(Buttons::YesNo);
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"Zed"_s);
      Click(form, u"cmdSelect"_s);
      form.close();
    });
    QCOMPARE(PickItem(kPickCustomer).id, kPickCancelled);
  }

  void DeletingAsksAndReloads() {
    const ThrowAwayLoft loft;
    const int shop = loft.Add(u"tblLocation"_s, {{u"Location"_s, "Shop"}});
    const int report = loft.Add(u"tblGearReports"_s, {{u"Name"_s, "All gear"}});
    struct Case {
      PickerType type;
      int id;
      QString table;
      QString question;
    };
    const Case cases[] = {
        {kPickLocation, shop, u"tblLocation"_s, u"Delete Shop?"_s},
        {kPickGearReport, report, u"tblGearReports"_s, u"Are you sure you want to delete this report?"_s}};
    for (const Case& wanted : cases) {
      Amend(wanted.type, [&](PickerKind& kind) {
        kind.removeAsks = false;
        kind.remove = [&](int id) {
          loft.Run(u"Delete * from "_s + wanted.table + u" where ID = "_s + QString::number(id));
          return true;
        };
      });
      ScriptedPrompts prompts;
      ScreenScript screens;
      prompts.Expect(kProgramTitle, wanted.question, Answer::No).WithPreset(Answer::No);
      prompts.Expect(kProgramTitle, wanted.question, Answer::Yes);
      screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
        Click(form, u"cmdDelete"_s);
        QVERIFY(Rows(form).SelectData(wanted.id));
        Click(form, u"cmdDelete"_s);
        QCOMPARE(Rows(form).FindData(wanted.id), 0);
        Click(form, u"cmdDelete"_s);
        QCOMPARE(Rows(form).FindData(wanted.id), -1);
        form.close();
      });
      PickItem(wanted.type);
    }
  }

  void FixedTasksCanNotBeDeleted() {
    const ThrowAwayLoft loft;
    int removed = 0;
    Amend(kPickTask, [&](PickerKind& kind) {
      kind.remove = [&](int) { return ++removed > 0; };
      kind.removeAsks = true;
    });
    const int patch = loft.Add(u"tblTaskLib"_s, {{u"Name"_s, "Patch"}});
    ScriptedPrompts prompts;
    ScreenScript screens;
    for (int id = 1; id <= 3; ++id) {
      prompts.ExpectBox(kProgramTitle, u"You cannot delete this task type.  You can only edit it."_s);
    }
    screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      for (int id = 1; id <= 3; ++id) {
        QVERIFY(Rows(form).SelectData(id));
        Click(form, u"cmdDelete"_s);
      }
      QCOMPARE(removed, 0);
      QVERIFY(Rows(form).SelectData(patch));
      Click(form, u"cmdDelete"_s);
      QCOMPARE(removed, 1);
      form.close();
    });
    PickItem(kPickTask);
  }

  void ThePickerStandsOverTheJobScreen() {
    const ThrowAwayLoft loft;
    class frmJobLike : public Form {
     public:
      QString FormName() const override { return u"frmJob"_s; }
    };
    auto* job = new frmJobLike;
    job->resize(500, 400);
    job->Show();
    job->move(60, 40);
    ScreenScript screens;
    screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      QVERIFY((form.frameGeometry().center() - job->frameGeometry().center()).manhattanLength() < 60);
      form.close();
    });
    PickItem(kPickJob);
  }
};

LOFT_TEST_MAIN(TestPicker)
#include "tst_picker.moc"
