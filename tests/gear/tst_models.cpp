#include <QtTest>

#include "core/data_folder.h"
#include "core/default_rows.h"
#include "gear/catalogue.h"
#include "gear/component_types.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/models_file.h"
#include "gear/service_lives.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestModels : public QObject {
  Q_OBJECT

  static int Manufacturer(const ThrowAwayLoft& loft, int id, const char* name) {
    loft.Add(u"tblManufacturers"_s, {{u"ID"_s, id}, {u"Name"_s, name}});
    return id;
  }

 private Q_SLOTS:
  void ReadsAModel() {
    ThrowAwayLoft loft;
    Manufacturer(loft, 4, "Aerodyne");
    const QStringList before = loft.Snapshot();
    const int id = AddModelOfManufacturer(u" Pilot "_s, kMainCanopy, 4);
    QCOMPARE(loft.ChangesSince(before), QStringList(u"+tblModels|1|4|2|0|Pilot|0"_s));
    QCOMPARE(ModelName(id), u"Pilot"_s);
    QCOMPARE(ModelType(id), int{kMainCanopy});
    QCOMPARE(ManufacturerName(ModelManufacturer(id)), u"Aerodyne"_s);
    QVERIFY(ModelExists(id));
    QVERIFY(!ModelExists(0));
    QCOMPARE(AddModel(QString(), kMainCanopy), 0);
    QCOMPARE(ManufacturerName(9), QString());
    QCOMPARE(ComponentTypeName(4), u"AAD"_s);
  }

  void ListsModelsOfATypeAndMaker() {
    ThrowAwayLoft loft;
    const int stiletto = AddModelOfManufacturer(u"Stiletto"_s, kMainCanopy, 4);
    const int pilot = AddModel(u"Pilot"_s, kMainCanopy);
    AddModel(u"Raven"_s, kReserveCanopy);
    QCOMPARE(LoadModels(kMainCanopy).ids, QList<int>({stiletto, pilot}));
    QCOMPARE(LoadModels(kMainCanopy, 0).texts, QStringList(u"Pilot"_s));
    QCOMPARE(LoadModels(kMainCanopy, 4).ids, QList<int>({stiletto}));
    Manufacturer(loft, 4, "PD");
    QCOMPARE(LoadManufacturers().texts, QStringList({u"PD"_s, u"(not specified)"_s}));
    QCOMPARE(LoadManufacturers().ids, QList<int>({4, 0}));
  }

  void AMakerThatHasGoneIsPutRight() {
    ThrowAwayLoft loft;
    const int model = AddModelOfManufacturer(u"Pilot"_s, kMainCanopy, 4);
    QCOMPARE(RepairModelManufacturer(model), 0);
    QCOMPARE(ModelManufacturer(model), 0);
    Manufacturer(loft, 4, "PD");
    const int other = AddModelOfManufacturer(u"Storm"_s, kMainCanopy, 4);
    QCOMPARE(RepairModelManufacturer(other), 4);
  }

  void AddsAModelByAsking() {
    ThrowAwayLoft loft;
    Manufacturer(loft, 4, "PD");
    ScriptedPrompts prompts;
    prompts.ExpectInput(u"Add new main canopy model"_s, u"Manufacturer: PD\nEnter Main Canopy model"_s,
                        QString(51, u'x'));
    prompts.ExpectBox(u"50 characters max"_s, u"Name is too long"_s);
    prompts.ExpectInput(u"Add new main canopy model"_s, u"Manufacturer: PD\nEnter Main Canopy model"_s, u"Storm"_s);
    const NewModel storm = AddModelByAsking(kMainCanopy, 4, u"Add new main canopy"_s);
    QVERIFY(storm.isNew);
    QCOMPARE(loft.Rows(u"select * from tblModels"_s), QStringList(u"1|4|2|0|Storm|0"_s));

    prompts.ExpectInput(u"Add new main canopy model"_s, u"Enter Main Canopy model"_s, u" storm "_s);
    prompts.ExpectBox(u"Duplicate Name"_s, u"There is already a Main Canopy named storm\nManufactured by PD"_s);
    const NewModel twice = AddModelByAsking(kMainCanopy, 0, u"Add new main canopy"_s);
    QCOMPARE(twice.id, storm.id);
    QVERIFY(!twice.isNew);
    prompts.ExpectInput(u"Add new main canopy model"_s, u"Enter Main Canopy model"_s, QString());
    QCOMPARE(AddModelByAsking(kMainCanopy, 0, u"Add new main canopy"_s).id, 0);
  }

  void AddingAModelMayWantAManufacturerFirst() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    prompts.Expect(u"Add new model"_s, u"Do you want to specify a manufacturer?"_s, Answer::Yes)
        .WithPreset(Answer::No)
        .WithButtons(Buttons::YesNo);
    prompts.ExpectBox(u"Select manufacturer"_s, u"Select a manufacturer, then click ADD NEW AAD"_s);
    QCOMPARE(AddModelByAsking(kAad, kNoManufacturerSelected, u"Add new aad"_s).id, 0);
    prompts.Expect(u"Add new model"_s, u"Do you want to specify a manufacturer?"_s, Answer::No);
    prompts.ExpectInput(u"Add new aad model"_s, u"Enter AAD model"_s, u"Vigil"_s);
    const NewModel vigil = AddModelByAsking(kAad, kNoManufacturerSelected, u"Add new aad"_s);
    QCOMPARE(ModelManufacturer(vigil.id), 0);
    int existing = 0;
    prompts.ExpectBox(u"Duplicate Name"_s, u"There is already a AAD named VIGIL\n(Manufacturer not specified)"_s);
    QVERIFY(RefuseDuplicateModel(u"VIGIL"_s, kAad, existing));
    QCOMPARE(existing, vigil.id);
    QVERIFY(!RefuseDuplicateModel(u"Vigil"_s, kContainer, existing));
  }

  void AddsAModelThatAPickListLacks() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    prompts.ExpectInput(u"New AAD"_s, u"Enter name of new AAD"_s, u" "_s);
    QCOMPARE(AddModelFromPicker(kAad), 0);
    prompts.ExpectInput(u"New AAD"_s, u"Enter name of new AAD"_s, u"Vigil"_s);
    prompts.ExpectBox(u"New AAD added"_s, u"'Vigil' has been added to the AAD database"_s);
    QCOMPARE(AddModelFromPicker(kAad), 1);
    prompts.ExpectInput(u"New AAD"_s, u"Enter name of new AAD"_s, u"vigil"_s);
    prompts.ExpectBox(u"Duplicate name"_s, u"The name 'vigil' already exists in the AAD database"_s);
    QCOMPARE(AddModelFromPicker(kAad), 0);
    QCOMPARE(loft.Rows(u"select Name from tblModels"_s), QStringList(u"Vigil"_s));
  }

  void RenamesWithoutLookingForDuplicates() {
    ThrowAwayLoft loft;
    const int storm = AddModel(u"Storm"_s, kMainCanopy);
    AddModel(u"Pilot"_s, kMainCanopy);
    ScriptedPrompts prompts;
    prompts.ExpectInput(u"Rename Storm"_s, u"Enter new name:"_s, u" Storm "_s).Proposing(u"Storm"_s);
    QVERIFY(!RenameModel(storm));
    prompts.ExpectInput(u"Rename Storm"_s, u"Enter new name:"_s, u""_s);
    QVERIFY(!RenameModel(storm));
    prompts.ExpectInput(u"Rename Storm"_s, u"Enter new name:"_s, u"Pilot"_s);
    QVERIFY(RenameModel(storm));
    QCOMPARE(ModelName(storm), u"Pilot"_s);
  }

  void DeletesAModelWithItsComponents() {
    ThrowAwayLoft loft;
    const int storm = AddModel(u"Storm"_s, kMainCanopy);
    const int pilot = AddModel(u"Pilot"_s, kMainCanopy);
    NewComponent(pilot, kMainCanopy, 0);
    NewComponent(storm, kMainCanopy, 0);
    QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    const QString one =
        u"There is 1 Storm in your gear database.\nIf you delete this model, you will also delete this Storm\n\n"
        "Would you like to see a list?"_s;
    prompts.Expect(u"Deleting model Storm"_s, one, Answer::Yes).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    QCOMPARE(DeleteModel(storm), ModelDeletion::ShowList);
    prompts.Expect(u"Deleting model Storm"_s, one, Answer::No);
    prompts.Expect(u"Delete Storm"_s, u"Are you sure you wish to delete Storm"_s, Answer::No).WithPreset(Answer::No);
    QCOMPARE(DeleteModel(storm), ModelDeletion::Kept);
    QCOMPARE(loft.ChangesSince(before), QStringList());
    NewComponent(storm, kMainCanopy, 0);
    before = loft.Snapshot();
    prompts.Expect(u"Deleting model Storm"_s,
                   u"There are 2 Storm's in your gear database.\n"
                   "If you delete this model, you will also delete  these Storm's\n\nWould you like to see a list?"_s,
                   Answer::No);
    prompts.Expect(u"Delete Storm"_s, u"Are you sure you wish to delete Storm"_s, Answer::Yes);
    QCOMPARE(DeleteModel(storm), ModelDeletion::Deleted);
    QCOMPARE(loft.TouchedSince(before), QStringList({u"-tblComponents|2"_s, u"-tblComponents|3"_s, u"-tblModels|1"_s}));
  }

  void LinksAModelToAManufacturer() {
    ThrowAwayLoft loft;
    Manufacturer(loft, 4, "PD");
    const int storm = AddModel(u"Storm"_s, kMainCanopy);
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"No manufacturer selected"_s, u"Please select a manufacturer"_s);
    QVERIFY(!LinkModelToManufacturer(storm, 0));
    const QString text = u"Do you want to link the following:\n\n   Manufacturer:  PD\n\n     Main Canopy: Storm"_s;
    prompts.Expect(u"Link?"_s, text, Answer::No);
    QVERIFY(!LinkModelToManufacturer(storm, 4));
    QCOMPARE(ModelManufacturer(storm), 0);
    prompts.Expect(u"Link?"_s, text, Answer::Yes);
    QVERIFY(LinkModelToManufacturer(storm, 4));
    QCOMPARE(ModelManufacturer(storm), 4);
    prompts.ExpectBox(u"Link Model and Manufacturer"_s, u"PD and Storm are already linked"_s);
    QVERIFY(!LinkModelToManufacturer(storm, 4));
  }

  void KeepsManufacturers() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    prompts.ExpectInput(u"New Manufacturer"_s, u"Enter name of new manufacturer"_s, u""_s);
    QCOMPARE(AddManufacturer(), 0);
    prompts.ExpectInput(u"New Manufacturer"_s, u"Enter name of new manufacturer"_s, u"PD"_s);
    QCOMPARE(AddManufacturer(), 1);
    Manufacturer(loft, 7, "Icarus");
    prompts.ExpectInput(u"New Manufacturer"_s, u"Enter name of new manufacturer"_s, u" pd "_s);
    prompts.ExpectBox(u"Please note:"_s, u" pd  already exists"_s);
    QCOMPARE(AddManufacturer(), 0);
    prompts.ExpectInput(u"New Manufacturer"_s, u"Enter name of new manufacturer"_s, u"Aerodyne"_s);
    QCOMPARE(AddManufacturer(), 8);
    prompts.ExpectInput(u"Rename manufacturer"_s, u"Enter new name:"_s, u"Icarus Canopies"_s).Proposing(u"Icarus"_s);
    QVERIFY(RenameManufacturer(7));
    const int storm = AddModelOfManufacturer(u"Storm"_s, kMainCanopy, 7);
    AddModelOfManufacturer(u"Pilot"_s, kMainCanopy, 8);
    const QStringList before = loft.Snapshot();
    const QString text = u"Are you you want to delete manufacturer Icarus Canopies?"_s;
    prompts.Expect(u"Delete Manufacturer?"_s, text, Answer::No).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    QVERIFY(!DeleteManufacturer(7));
    QCOMPARE(loft.ChangesSince(before), QStringList());
    prompts.Expect(u"Delete Manufacturer?"_s, text, Answer::Yes);
    QVERIFY(DeleteManufacturer(7));
    QCOMPARE(ModelManufacturer(storm), 0);
    QCOMPARE(loft.TouchedSince(before), QStringList({u"+tblModels|1"_s, u"-tblManufacturers|7"_s, u"-tblModels|1"_s}));
  }

  void ServiceLivesShowInYearsWhereTheyDivide() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    const int vigil = AddModel(u"Vigil"_s, kAad);
    QVERIFY(!ServiceLifeOfModel(vigil).defined);
    SaveServiceLife(vigil, 24);
    QCOMPARE(ServiceLifeOfModel(vigil).number, 2);
    QVERIFY(ServiceLifeOfModel(vigil).inYears);
    SaveServiceLife(vigil, 18);
    QCOMPARE(ServiceLifeOfModel(vigil).number, 18);
    QVERIFY(!ServiceLifeOfModel(vigil).inYears);
    QCOMPARE(ServiceLifeMonths(u"2.5"_s, true), 30);
    QCOMPARE(ServiceLifeMonths(u"12"_s, false), 12);
    QCOMPARE(ServiceLifeMonths(u"1.5"_s, false), 2);
    QCOMPARE(ServiceLifeMonths(u"x"_s, true), 0);
  }

  void AddsComponentTypesBehindTheHighest() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    prompts.ExpectInput(kProgramTitle, u"Enter name of new component"_s, u""_s);
    QCOMPARE(AddNewComponentType(), 0);
    prompts.ExpectInput(kProgramTitle, u"Enter name of new component"_s, u"Helmet"_s);
    QCOMPARE(AddNewComponentType(), 8);
    QCOMPARE(LoadMajorComponentTypes().ids, QList<int>({1, 2, 3, 4, 5, 6, 8}));
    QCOMPARE(LoadMajorComponentTypes().texts.last(), u"Helmet"_s);
    QCOMPARE(TypeInSentence(kMainCanopy), u"main canopy"_s);
    QCOMPARE(TypeInSentence(kAad), u"AAD"_s);
    prompts.ExpectInput(u"Rename"_s, u"Enter component type name"_s, u"Hat"_s).Proposing(u"Helmet"_s);
    QVERIFY(RenameComponentType(8));
    prompts.ExpectInput(u"Rename"_s, u"Enter component type name"_s, u" "_s);
    QVERIFY(!RenameComponentType(8));
    QCOMPARE(ComponentTypeName(8), u"Hat"_s);
  }

  void AnEmptyTypeTableIsNoticed() {
    ThrowAwayLoft loft;
    loft.Run(u"delete * from tblComponentTypes"_s);
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"you shouldn't be here"_s);
    prompts.ExpectInput(kProgramTitle, u"Enter name of new component"_s, u""_s);
    QCOMPARE(AddNewComponentType(), 0);
  }

  void FixedAndUsedTypesStay() {
    ThrowAwayLoft loft;
    loft.Add(u"tblComponentTypes"_s, {{u"ID"_s, 8}, {u"Name"_s, "Helmet"}});
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"Please select a component to delete"_s);
    QVERIFY(!DeleteComponentType(0));
    prompts.ExpectBox(u"Cannot delete this component type"_s,
                      u"This is a fixed component type.\nIt cannot be deleted."_s);
    QVERIFY(!DeleteComponentType(7));
    const int model = AddModel(u"Cookie"_s, 8);
    prompts.ExpectBox(u"Component type is being used"_s,
                      u"There are either models or actual components of this type.\n"
                      "This component type cannot be deleted until those\ncomponents and models have been deleted"_s);
    QVERIFY(!DeleteComponentType(8));
    loft.Run(u"delete * from tblModels where ID = "_s + QString::number(model));
    const QStringList before = loft.Snapshot();
    prompts.Expect(u"Are you sure?"_s, u"Delete Helmet?"_s, Answer::No).WithPreset(Answer::No);
    QVERIFY(!DeleteComponentType(8));
    prompts.Expect(u"Are you sure?"_s, u"Delete Helmet?"_s, Answer::Yes);
    QVERIFY(DeleteComponentType(8));
    QCOMPARE(loft.ChangesSince(before), QStringList(u"-tblComponentTypes|8|Helmet"_s));
  }

  void ModelsFileTravels() {
    ThrowAwayLoft loft;
    Manufacturer(loft, 4, "PD");
    Manufacturer(loft, 2, "Icarus");
    AddModelOfManufacturer(u"Storm"_s, kMainCanopy, 4);
    loft.Add(u"tblModels"_s, {{u"Name"_s, "Loop"},
                              {u"ManfID"_s, 0},
                              {u"TypeID"_s, int{kMisc}},
                              {u"Price"_s, Money::FromText(u"2.5"_s)},
                              {u"ServiceLife"_s, 0}});
    const TempFolder folder;
    const QString here = QDir::currentPath();
    QDir::setCurrent(folder.Path());
    ScriptedPrompts prompts;
    prompts.Expect(kProgramTitle, u"ready to export to file?"_s, Answer::No);
    ExportModels();
    QVERIFY(folder.Names().isEmpty());
    prompts.Expect(kProgramTitle, u"ready to export to file?"_s, Answer::Yes);
    prompts.ExpectBox(kProgramTitle, u"models.txt created in local directory"_s);
    ExportModels();
    QDir::setCurrent(here);
    QCOMPARE(folder.Read(u"models.txt"_s),
             "<mfg>\r\nPD\r\n4\r\nIcarus\r\n2\r\n<end mfg>\r\nStorm\r\n4\r\n2\r\n0\r\nLoop\r\n0\r\n7\r\n2.5\r\n"_ba);

    prompts.ExpectBox(u"cancelling"_s, u"tblModels isn't empty"_s);
    ImportModels(false);
    loft.Run(u"delete * from tblModels"_s);
    loft.Run(u"delete * from tblManufacturers"_s);
    const QStringList before = loft.Snapshot();
    prompts.Expect(kProgramTitle, u"Import models and manufacturers?"_s, Answer::Yes);
    prompts.ExpectOpenFile(u"Find file 'models.txt"_s, folder / u"models.txt"_s)
        .Proposing(u"models.txt"_s)
        .Filtering(u"all files (*.*)|*.*"_s);
    prompts.Expect(kProgramTitle, u"Valid file.  Ready to import?"_s, Answer::Yes);
    prompts.ExpectBox(u"Done"_s, u"Manufacturers and models updated"_s);
    ImportModels(false);
    QCOMPARE(loft.ChangesSince(before), QStringList({u"+tblManufacturers|4|PD"_s, u"+tblManufacturers|2|Icarus"_s,
                                                     u"+tblModels|3|4|2|0|Storm|0"_s, u"+tblModels|4|0|7|0|Loop|0"_s}));
  }

  void ImportRefusesAndCanBeLeft() {
    ThrowAwayLoft loft;
    const TempFolder folder;
    const QString bad = folder.Write(u"bad.txt"_s, "<mfg>\n<END mfg>\n");
    const QString good = folder.Write(u"good.txt"_s, "<mfg>\nPD\n 4 \n<end mfg>\nStorm\n 4\n2 \n10\nCut");
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    const auto ask = [&](const QString& file) {
      prompts.Expect(kProgramTitle, u"Import models and manufacturers?"_s, Answer::Yes);
      prompts.ExpectOpenFile(u"Find file 'models.txt"_s, file);
    };
    prompts.Expect(kProgramTitle, u"Import models and manufacturers?"_s, Answer::No);
    ImportModels(false);
    ask(QString());
    ImportModels(false);
    ask(bad);
    prompts.ExpectBox(u"wrong file"_s, u"that isn't a valid models text file"_s);
    ImportModels(false);
    ask(good);
    prompts.Expect(kProgramTitle, u"Valid file.  Ready to import?"_s, Answer::No);
    ImportModels(false);
    QCOMPARE(loft.ChangesSince(before), QStringList());
    ask(good);
    prompts.Expect(kProgramTitle, u"Valid file.  Ready to import?"_s, Answer::Yes);
    prompts.ExpectBox(u"Done"_s, u"Manufacturers and models updated"_s);
    ImportModels(false);
    QCOMPARE(loft.Rows(u"select Name, ManfID, TypeID, Price from tblModels"_s),
             QStringList({u"Storm|4|2|0"_s, u"Cut|0|0|0"_s}));
  }

  void TheStartTakesInTheModelsBesideTheProgram() {
    ThrowAwayLoft loft;
    const TempFolder program;
    const TempFolder data;
    data.MakeFolder(u"support"_s);
    DataPath = data.Path() + u'/';
    const QString here = QDir::currentPath();
    QDir::setCurrent(program.Path());
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Can't find 'models.txt')"_s,
                      u"The file 'models.txt' is missing.  Manufacturers and models will not be loaded"_s);
    CheckModelsFile();
    program.Write(u"models.txt"_s, "<mfg>\r\nPD\r\n4\r\n<end mfg>\r\nStorm\r\n4\r\n2\r\n0\r\n");
    CheckModelsFile();
    QVERIFY(data.Has(u"support/models.txt"_s));
    QCOMPARE(loft.Rows(u"select Name from tblModels"_s), QStringList(u"Storm"_s));
    CheckModelsFile();
    QDir::setCurrent(here);
    QCOMPARE(loft.Rows(u"select Name from tblModels"_s), QStringList(u"Storm"_s));
  }
};

LOFT_TEST_MAIN(TestModels)
#include "tst_models.moc"
