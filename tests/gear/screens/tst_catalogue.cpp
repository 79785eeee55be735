#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QtTest>

#include "core/data_folder.h"
#include "core/default_rows.h"
#include "core/widgets/list.h"
#include "gear/catalogue.h"
#include "gear/models.h"
#include "gear/screens.h"
#include "gear/service_lives.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

/// Two makers; containers of both and one of nobody, an AAD and a part.
struct Catalogue {
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  ScreenScript screens;
  int javelin, vector, homemade, cypres, loop;

  Catalogue() {
    loft.Run(u"insert into tblManufacturers (ID, Name) values (1, 'Sun Path')"_s);
    loft.Run(u"insert into tblManufacturers (ID, Name) values (2, 'UPT')"_s);
    javelin = AddModelOfManufacturer(u"Javelin"_s, kContainer, 1);
    vector = AddModelOfManufacturer(u"Vector"_s, kContainer, 2);
    homemade = AddModelOfManufacturer(u"Homemade"_s, kContainer, 0);
    cypres = AddModelOfManufacturer(u"CYPRES 2"_s, kAad, 0);
    loop = AddPart(u"Closing loop"_s, Money::FromText(u"3.5"_s), 0).id;
  }

  Form& Open(const ModelScreenStart& start = {}) const {
    OpenModels(start);
    return dynamic_cast<Form&>(*Forms::Find(u"frmComponentModels"_s));
  }
};

List& ListOf(Form& form, const char* name) { return Control<List>(form, QString::fromLatin1(name)); }
List& Models(Form& form) { return ListOf(form, "lstModels"); }
List& Makers(Form& form) { return ListOf(form, "lstManufacturers"); }

QStringList Items(const List& list) {
  QStringList items;
  for (int row = 0; row < list.Count(); ++row) items << list.ItemText(row);
  return items;
}

QString Chosen(const List& list) { return list.ItemText(list.ListIndex()); }
void Choose(Form& form, const char* option) { Control<QAbstractButton>(form, QString::fromLatin1(option)).click(); }
bool IsOn(Form& form, const char* option) {
  return Control<QAbstractButton>(form, QString::fromLatin1(option)).isChecked();
}
bool Hidden(Form& form, const char* name) { return Control<QWidget>(form, QString::fromLatin1(name)).isHidden(); }

}  // namespace

class TestCatalogueScreen : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() {
    UnloadScreens();
    DiagnosticMode = false;
  }

  void ShowsModelsOfATypeAndOfAMaker() {
    Catalogue shop;
    Form& form = shop.Open();
    QCOMPARE(form.windowTitle(), u"Components"_s);
    QVERIFY(!Items(ListOf(form, "lstTypes")).contains(u"Misc"_s));
    QCOMPARE(Items(Models(form)), QStringList({u"Javelin"_s, u"Vector"_s, u"Homemade"_s}));
    QCOMPARE(Items(Makers(form)), QStringList({u"Sun Path"_s, u"UPT"_s, u"(not specified)"_s}));
    QCOMPARE(Chosen(Makers(form)), u"(not specified)"_s);
    QCOMPARE(TextOf(form, u"cmdAdd"_s), u"&Add new container"_s);
    QCOMPARE(TextOf(form, u"cmdDelete"_s), u"&Delete container"_s);
    QCOMPARE(TextOf(form, u"cmdRename"_s), u"&Rename container"_s);
    Models(form).SelectData(shop.vector);
    QCOMPARE(Chosen(Makers(form)), u"UPT"_s);
    Picture(form, u"frmComponentModels"_s);

    Choose(form, "optManufacturer");
    QCOMPARE(Items(Models(form)), QStringList{u"Vector"_s});
    Makers(form).SelectData(0);
    QCOMPARE(Items(Models(form)), QStringList{u"Homemade"_s});
    Makers(form).SelectData(1);
    QCOMPARE(Items(Models(form)), QStringList{u"Javelin"_s});
    QVERIFY(!Control<QWidget>(form, u"cmdLink"_s).isEnabled());
    Choose(form, "optAll");
    QVERIFY(Control<QWidget>(form, u"cmdLink"_s).isEnabled());

    ListOf(form, "lstTypes").SelectData(kAad);
    QCOMPARE(TextOf(form, u"optAll"_s).remove(u'&'), u"Display all AAD's"_s);
    QCOMPARE(TextOf(form, u"cmdAdd"_s), u"&Add new AAD"_s);
  }

  void DiagnosticsShowIds() {
    Catalogue shop;
    DiagnosticMode = true;
    Form& form = shop.Open();
    QCOMPARE(Items(Models(form)).first(), u"Javelin (%1)"_s.arg(shop.javelin));
    QCOMPARE(Items(Makers(form)), QStringList({u"Sun Path (1)"_s, u"UPT (2)"_s, u"(not specified)"_s}));
  }

  void AMakerThatHasGoneIsPutRightWhenTheModelIsChosen() {
    Catalogue shop;
    shop.loft.Run(u"delete from tblManufacturers where ID = 2"_s);
    Form& form = shop.Open();
    Models(form).SelectData(shop.vector);
    QCOMPARE(Chosen(Makers(form)), u"(not specified)"_s);
    QCOMPARE(ModelManufacturer(shop.vector), 0);
  }

  void AServiceLifeIsShownInTheUnitThatFits() {
    Catalogue shop;
    SaveServiceLife(shop.javelin, 24);
    SaveServiceLife(shop.vector, 18);
    Form& form = shop.Open();
    Models(form).SelectData(shop.javelin);
    QVERIFY(IsOn(form, "chkServiceLife") && IsOn(form, "optYears"));
    QCOMPARE(TextOf(form, u"txtServiceLife"_s), u"2"_s);
    Models(form).SelectData(shop.vector);
    QVERIFY(IsOn(form, "optMonths"));
    QCOMPARE(TextOf(form, u"txtServiceLife"_s), u"18"_s);
    Models(form).SelectData(shop.homemade);
    QVERIFY(!IsOn(form, "chkServiceLife"));
    QCOMPARE(TextOf(form, u"txtServiceLife"_s), QString());
  }

  void AServiceLifeIsSavedWithAWordOrInSilence() {
    Catalogue shop;
    Form& form = shop.Open();
    Models(form).SelectData(shop.javelin);
    Choose(form, "chkServiceLife");
    TypeInto(form, u"txtServiceLife"_s, u"2.5"_s);
    Choose(form, "optYears");
    shop.prompts.ExpectBox(u"Done"_s, u"Service life saved"_s);
    Click(form, u"cmdSaveServiceLife"_s);
    QCOMPARE(ServiceLife(shop.javelin), 30);
    QVERIFY(!Control<QWidget>(form, u"cmdSaveServiceLife"_s).isEnabled());

    Models(form).SelectData(shop.vector);
    Choose(form, "chkServiceLife");
    TypeInto(form, u"txtServiceLife"_s, u"20"_s);
    Models(form).SelectData(shop.javelin);  // leaving saves
    QCOMPARE(ServiceLife(shop.vector), 20);
    QCOMPARE(ServiceLife(shop.javelin), 30);

    Choose(form, "chkServiceLife");  // cleared: at once
    QCOMPARE(ServiceLife(shop.javelin), 0);
    Models(form).SelectData(shop.homemade);
    Choose(form, "chkServiceLife");
    TypeInto(form, u"txtServiceLife"_s, u"7"_s);
    Click(form, u"cmdExit"_s);
    QCOMPARE(ServiceLife(shop.homemade), 7);
  }

  void AServiceLifeThatIsTooLongIsTold() {
    Catalogue shop;
    Form& form = shop.Open();
    Models(form).SelectData(shop.javelin);
    Choose(form, "chkServiceLife");
    TypeInto(form, u"txtServiceLife"_s, u"999999999"_s);
    Choose(form, "optYears");
    shop.prompts.ExpectBox(u"Sub SaveServiceLife"_s, u"Overflow"_s);
    Click(form, u"cmdSaveServiceLife"_s);
    QCOMPARE(ServiceLife(shop.javelin), 0);
  }

  void TheHelpExplainsServiceLife() {
    Catalogue shop;
    Form& form = shop.Open();
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    Click(form, u"cmdExplain"_s);
    QCOMPARE(shop.prompts.Transcript().last().title, u"Model's Service Life"_s);
  }

  void AModelIsAddedForTheSelectedMaker() {
    Catalogue shop;
    Form& form = shop.Open();
    Makers(form).SelectData(2);
    shop.prompts.ExpectInput(u"Add new container model"_s, u"Manufacturer: UPT\nEnter Container model"_s, u"Micron"_s);
    PressKey(form, u"lstManufacturers"_s, Qt::Key_Return);
    QCOMPARE(Chosen(Models(form)), u"Micron"_s);
    QCOMPARE(ModelManufacturer(Models(form).ItemData(Models(form).ListIndex())), 2);
  }

  void AModelThatIsThereIsShownInstead() {
    Catalogue shop;
    Form& form = shop.Open();
    Choose(form, "optManufacturer");
    Makers(form).SelectData(2);
    shop.prompts.ExpectInput(u"Add new container model"_s, u"Manufacturer: UPT\nEnter Container model"_s,
                             u" JAVELIN "_s);
    shop.prompts.ExpectBox(u"Duplicate Name"_s,
                           u"There is already a Container named JAVELIN\nManufactured by Sun Path"_s);
    Click(form, u"cmdAdd"_s);
    QCOMPARE(Chosen(Makers(form)), u"Sun Path"_s);
    QCOMPARE(Chosen(Models(form)), u"Javelin"_s);
    QCOMPARE(shop.loft.Rows(u"SELECT count(*) FROM tblModels"_s), QStringList{u"5"_s});
  }

  void TheStartThatAddsAModelEndsWithIt() {
    Catalogue shop;
    shop.screens.WhenShown(u"frmComponentModels"_s, [&](Form& form) {
      QCOMPARE(Chosen(ListOf(form, "lstTypes")), u"AAD"_s);
      Makers(form).SelectData(1);
      shop.prompts.ExpectInput(u"Add new aad model"_s, u"Manufacturer: Sun Path\nEnter AAD model"_s, u"Vigil"_s);
      Click(form, u"cmdAdd"_s);
      QVERIFY(!form.isVisible());
    });
    const int created = CreateModel(kAad);
    QCOMPARE(ModelName(created), u"Vigil"_s);
    shop.screens.WhenShown(u"frmComponentModels"_s, [](Form& form) { Click(form, u"cmdExit"_s); });
    QCOMPARE(CreateModel(kAad), 0);
  }

  void ModelsAreRenamedAndDeletedWithTheirComponents() {
    Catalogue shop;
    const int component = shop.loft.Add("tblComponents", {{"ModelID", shop.vector}, {"TypeID", kContainer}});
    Form& form = shop.Open();
    Models(form).SelectData(shop.javelin);
    shop.prompts.ExpectInput(u"Rename Javelin"_s, u"Enter new name:"_s, u"Javelin Odyssey"_s).Proposing(u"Javelin"_s);
    PressKey(form, u"lstModels"_s, Qt::Key_Return);
    QCOMPARE(Chosen(Models(form)), u"Javelin Odyssey"_s);

    const QStringList before = shop.loft.Snapshot();
    Models(form).SelectData(shop.vector);
    shop.prompts.Expect(u"Deleting model Vector"_s,
                        u"There is 1 Vector in your gear database.\nIf you delete this model, you will also delete "
                        "this Vector\n\nWould you like to see a list?"_s,
                        Answer::No);
    shop.prompts.Expect(u"Delete Vector"_s, u"Are you sure you wish to delete Vector"_s, Answer::Yes);
    PressKey(form, u"lstModels"_s, Qt::Key_Delete);
    QCOMPARE(Items(Models(form)), QStringList({u"Javelin Odyssey"_s, u"Homemade"_s}));
    QCOMPARE(shop.loft.TouchedSince(before),
             QStringList({u"-tblComponents|%1"_s.arg(component), u"-tblModels|%1"_s.arg(shop.vector)}));
  }

  void MakersAreAddedRenamedDeletedAndLinked() {
    Catalogue shop;
    Form& form = shop.Open();
    shop.prompts.ExpectInput(u"New Manufacturer"_s, u"Enter name of new manufacturer"_s, u"Strong"_s);
    Click(form, u"cmdAddManufacturer"_s);
    QCOMPARE(Chosen(Makers(form)), u"Strong"_s);
    Models(form).SelectData(shop.homemade);
    Makers(form).SelectData(3);
    shop.prompts.Expect(u"Link?"_s,
                        u"Do you want to link the following:\n\n   Manufacturer:  Strong\n\n     Container: Homemade"_s,
                        Answer::Yes);
    Click(form, u"cmdLink"_s);
    QCOMPARE(ModelManufacturer(shop.homemade), 3);
    Makers(form).SelectData(0);
    shop.prompts.ExpectBox(u"No manufacturer selected"_s, u"Please select a manufacturer"_s);
    ChooseMenu(form, {u"Models"_s, u"Link model to manufacturer"_s});
    Makers(form).SelectData(3);
    shop.prompts.ExpectInput(u"Rename manufacturer"_s, u"Enter new name:"_s, u"Strong Enterprises"_s);
    Click(form, u"cmdRenameManufacturer"_s);
    QCOMPARE(Chosen(Makers(form)), u"Strong Enterprises"_s);
    shop.prompts.Expect(u"Delete Manufacturer?"_s, u"Are you you want to delete manufacturer Strong Enterprises?"_s,
                        Answer::Yes);
    Click(form, u"cmdDeleteManufacturer"_s);
    QCOMPARE(Items(Makers(form)), QStringList({u"Sun Path"_s, u"UPT"_s, u"(not specified)"_s}));
    QCOMPARE(ModelManufacturer(shop.homemade), 0);
  }

  void PartsHaveANameAndAPriceAndNoServiceLife() {
    Catalogue shop;
    Form& form = shop.Open({.type = kMisc});
    QVERIFY(Hidden(form, "lstTypes") && Hidden(form, "fraLife"));
    QCOMPARE(Items(Models(form)), QStringList{u"Closing loop"_s});
    QCOMPARE(TextOf(form, u"cmdAdd"_s), u"&Add new Misc Items"_s);
    shop.screens.WhenShown(u"frmNewMisc"_s, [](Form& part) {
      QCOMPARE(part.windowTitle(), u"Enter New Misc Item"_s);
      QCOMPARE(TextOf(part, u"txtName"_s), QString());
      QVERIFY(Hidden(part, "lblTaskOnly"));
      TypeInto(part, u"txtName"_s, u"Toggle's keeper"_s);
      TypeInto(part, u"txtCost"_s, u"4.25"_s);
      Picture(part, u"frmNewMisc"_s);
      Click(part, u"cmdOK"_s);
    });
    Click(form, u"cmdAdd"_s);
    QCOMPARE(Chosen(Models(form)), u"Toggle's keeper"_s);
    Picture(form, u"frmComponentModels-parts"_s);
    shop.screens.WhenShown(u"frmNewMisc"_s, [](Form& part) {
      QCOMPARE(part.windowTitle(), u"Edit Part"_s);
      QCOMPARE(TextOf(part, u"txtCost"_s), u"4.25"_s);
      TypeInto(part, u"txtCost"_s, u"5"_s);
      Click(part, u"cmdOK"_s);
    });
    Click(form, u"cmdRename"_s);
    shop.screens.WhenShown(u"frmNewMisc"_s, [](Form& part) { PressKey(part, Qt::Key_Escape); });
    Click(form, u"cmdRename"_s);
    shop.screens.WhenShown(u"frmNewMisc"_s, [](Form& part) {
      TypeInto(part, u"txtName"_s, u"closing LOOP"_s);
      Click(part, u"cmdOK"_s);
    });
    shop.prompts.ExpectBox(u"Duplicate Name"_s,
                           u"There is already a Misc named closing LOOP\n(Manufacturer not specified)"_s);
    Click(form, u"cmdAdd"_s);
    QCOMPARE(Chosen(Models(form)), u"Closing loop"_s);
    QCOMPARE(shop.loft.Rows(u"SELECT Name, Price FROM tblModels WHERE TypeID = 7 ORDER BY ID"_s),
             QStringList({u"Closing loop|35000"_s, u"Toggle's keeper|50000"_s}));
  }

  void ModelsTravelByFile() {
    Catalogue shop;
    Form& form = shop.Open();
    shop.prompts.ExpectBox(u"cancelling"_s, u"tblModels isn't empty"_s);
    ChooseMenu(form, {u"Models"_s, u"Import models"_s});
  }

  void AModelIsChosenByItsType() {
    Catalogue shop;
    int type = kContainer;
    int model = shop.vector;
    shop.screens.WhenShown(u"frmSelectModel"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select Model"_s);
      QCOMPARE(Chosen(Models(form)), u"Vector"_s);
      Picture(form, u"frmSelectModel"_s);
      ListOf(form, "lstTypes").SelectData(kReserveCanopy);
      shop.prompts.ExpectBox(u"Can't select model"_s,
                             u"Model list is empty.  To enter one or more\nmodels for this component type, select\n"
                             "'MODELS' from the menu or main screen."_s);
      Click(form, u"cmdSelect"_s);
      ListOf(form, "lstTypes").SelectData(kAad);
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a model"_s);
      Click(form, u"cmdSelect"_s);
      Models(form).SetListIndex(0);
      PressKey(form, u"lstModels"_s, Qt::Key_Return);
    });
    QVERIFY(SelectModel(type, model));
    QCOMPARE(type, int{kAad});
    QCOMPARE(model, shop.cypres);
    shop.screens.WhenShown(u"frmSelectModel"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    QVERIFY(!SelectModel(type, model));
    QCOMPARE(model, shop.cypres);
  }

  void ComponentTypesAreKept() {
    Catalogue shop;
    shop.screens.WhenShown(u"frmComponentTypes"_s, [&](Form& form) {
      auto& list = ListOf(form, "lst");
      QCOMPARE(form.windowTitle(), u"Component Types"_s);
      QCOMPARE(list.Count(), 6);
      shop.prompts.ExpectBox(kProgramTitle, u"Please select a component to delete"_s);
      Click(form, u"cmdDelete"_s);
      Click(form, u"cmdRename"_s);  // nothing is selected
      shop.prompts.ExpectInput(kProgramTitle, u"Enter name of new component"_s, u"Drogue"_s);
      Click(form, u"cmdAdd"_s);
      QCOMPARE(Chosen(list), u"Drogue"_s);
      Picture(form, u"frmComponentTypes"_s);
      shop.prompts.ExpectInput(u"Rename"_s, u"Enter component type name"_s, u"Drogue chute"_s).Proposing(u"Drogue"_s);
      Click(form, u"cmdRename"_s);
      QCOMPARE(Chosen(list), u"Drogue chute"_s);
      list.SetListIndex(0);
      shop.prompts.ExpectBox(u"Cannot delete this component type"_s,
                             u"This is a fixed component type.\nIt cannot be deleted."_s);
      Click(form, u"cmdDelete"_s);
      list.SelectData(8);
      shop.prompts.Expect(u"Are you sure?"_s, u"Delete Drogue chute?"_s, Answer::Yes);
      PressKey(form, u"lst"_s, Qt::Key_Delete);
      QCOMPARE(list.Count(), 6);
      shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
      Click(form, u"cmdHelp"_s);
      QCOMPARE(shop.prompts.Transcript().last().title, u"Component Types"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowComponentTypes();
    QCOMPARE(shop.loft.Rows(u"SELECT count(*) FROM tblComponentTypes"_s), QStringList{u"7"_s});
  }
};

LOFT_TEST_MAIN(TestCatalogueScreen)
#include "tst_catalogue.moc"
