#include <QtTest>

#include "core/data_folder.h"
#include "core/default_rows.h"
#include "gear/catalogue.h"
#include "gear/component_types.h"
#include "gear/models.h"
#include "gear/models_file.h"
#include "gear/rig_type_rules.h"
#include "gear/rigs.h"
#include "gear/service_lives.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

/// Names at their longest, blank or cancelled, and rows that stand out of order.
class TestCatalogueEdges : public QObject {
  Q_OBJECT

  static int Manufacturer(const ThrowAwayLoft& loft, int id, const char* name) {
    loft.Add(u"tblManufacturers"_s, {{u"ID"_s, id}, {u"Name"_s, name}});
    return id;
  }

 private Q_SLOTS:
  void ANameOfFiftyCharactersFits() {
    const ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    const QString name(50, u'x');
    prompts.ExpectInput(u"Add new main canopy model"_s, u"Enter Main Canopy model"_s, name);
    QCOMPARE(ModelName(AddModelByAsking(kMainCanopy, 0, u"Add"_s).id), name);
  }

  void ACancelledNameAddsNothing() {
    const ThrowAwayLoft loft;
    loft.Add(u"tblModels"_s, {{u"Name"_s, ""}, {u"TypeID"_s, 2}});  // a nameless model from elsewhere is no duplicate
    Manufacturer(loft, 4, "PD");
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectInput(u"Add new main canopy model"_s, u"Enter Main Canopy model"_s, QString());
    const NewModel none = AddModelByAsking(kMainCanopy, 0, u"Add"_s);
    QCOMPARE(none.id, 0);
    QVERIFY(!none.isNew);
    prompts.ExpectInput(u"New Main Canopy"_s, u"Enter name of new Main Canopy"_s, QString());
    QCOMPARE(AddModelFromPicker(kMainCanopy), 0);
    prompts.ExpectInput(u"Rename manufacturer"_s, u"Enter new name:"_s, QString());
    QVERIFY(!RenameManufacturer(4));
    prompts.ExpectInput(u"New Manufacturer"_s, u"Enter name of new manufacturer"_s, u"  "_s);
    QCOMPARE(AddManufacturer(), 0);
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }

  void AMakerWithoutANameIsNone() {
    const ThrowAwayLoft loft;
    Manufacturer(loft, 4, " ");
    const int model = AddModelOfManufacturer(u"Storm"_s, kMainCanopy, 4);
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Duplicate Name"_s,
                      u"There is already a Main Canopy named storm\n(Manufacturer not specified)"_s);
    int existing = 0;
    QVERIFY(RefuseDuplicateModel(u"storm"_s, kMainCanopy, existing));
    QCOMPARE(existing, model);
    QCOMPARE(RepairModelManufacturer(model), 0);
    QCOMPARE(ModelManufacturer(model), 0);
  }

  void PartsKeepTheirMakerNameAndPrice() {
    const ThrowAwayLoft loft;
    QCOMPARE(ModelManufacturer(AddPart(u"Loop"_s, Money::Whole(5), kNoManufacturerSelected).id), 0);
    const int toggle = AddPart(u"Toggle"_s, Money::Whole(7), 4).id;
    QCOMPARE(ModelManufacturer(toggle), 4);
    QCOMPARE(ModelPrice(toggle), Money::Whole(7));
    SavePart(toggle, u"Toggle, red"_s, Money::Whole(8));
    QCOMPARE(ModelName(toggle), u"Toggle, red"_s);
    QCOMPARE(ModelPrice(toggle), Money::Whole(8));
  }

  void ANewTypeStandsBehindTheHighestEvenWithAGap() {
    const ThrowAwayLoft loft;
    loft.Add(u"tblComponentTypes"_s, {{u"ID"_s, 20}, {u"Name"_s, "Helmet"}});
    ScriptedPrompts prompts;
    prompts.ExpectInput(kProgramTitle, u"Enter name of new component"_s, u"Camera"_s);
    QCOMPARE(AddNewComponentType(), 21);
  }

  void ATypeOfAComponentAloneIsUsed() {
    const ThrowAwayLoft loft;
    loft.Add(u"tblComponentTypes"_s, {{u"ID"_s, 20}, {u"Name"_s, "Helmet"}});
    loft.Add(u"tblComponents"_s, {{u"TypeID"_s, 20}});
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Component type is being used"_s,
                      u"There are either models or actual components of this type.\n"
                      "This component type cannot be deleted until those\ncomponents and models have been deleted"_s);
    QVERIFY(!DeleteComponentType(20));
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }

  void AModelThatHasGoneDoesNotExist() {
    const ThrowAwayLoft loft;
    const int model = AddModel(u"Storm"_s, kMainCanopy);
    QVERIFY(ModelExists(model));
    QVERIFY(!ModelExists(model + 1));
    QVERIFY(!ModelExists(0));
  }

  void ALifeOfTwelveMonthsIsAYear() {
    const ThrowAwayLoft loft;
    const int model = AddModel(u"Storm"_s, kMainCanopy);
    SaveServiceLife(model, 12);
    const ServiceLifeEntry life = ServiceLifeOfModel(model);
    QVERIFY(life.inYears);
    QCOMPARE(life.number, 1);
  }

  void AModelsFileNeedsItsStartAndItsEnd() {
    QVERIFY(IsModelsFile({u"<mfg>"_s, u"<end mfg>"_s}));
    QVERIFY(!IsModelsFile({u"<end mfg>"_s}));
    QVERIFY(!IsModelsFile({u"<mfg>"_s}));
  }

  void TheShopsOwnModelsFileIsNotWrittenOver() {
    const ThrowAwayLoft loft;
    AddModel(u"Storm"_s, kMainCanopy);
    const TempFolder program;
    const TempFolder data;
    data.Write(u"support/models.txt"_s, "own");
    program.Write(u"models.txt"_s, "<mfg>\r\n<end mfg>\r\n");
    DataPath = data.Path() + u'/';
    const QString here = QDir::currentPath();
    QDir::setCurrent(program.Path());
    CheckModelsFile();
    QDir::setCurrent(here);
    QCOMPARE(data.Read(u"support/models.txt"_s), "own"_ba);
  }

  void BlanksMakeNoOtherRigTypeAndNoOtherRig() {
    const ThrowAwayLoft loft;
    loft.Add(u"tblRigTypes"_s, {{u"Name"_s, " Base Rig "}});
    QVERIFY(IsDuplicateRigType(u"base rig"_s));
    loft.Add(u"tblRig"_s, {{u"rigAlias"_s, " Blue "}, {u"OwnerID"_s, 3}});
    QVERIFY(RigNameIsTaken(u"blue"_s, 3, nullptr));
    QVERIFY(!RigNameIsTaken(u"blue"_s, 4, nullptr));
  }

  void ComponentTypesNeedARigType() {
    const ThrowAwayLoft loft;
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"There are no rig types"_s);
    QVERIFY(!SetComponentTypesOfRigType(1, {kContainer}, true));
    prompts.ExpectBox(kProgramTitle, u"Please select a rig type"_s);
    QVERIFY(!SetComponentTypesOfRigType(0, {kContainer}, false));
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }
};

LOFT_TEST_MAIN(TestCatalogueEdges)
#include "tst_catalogue_edges.moc"
