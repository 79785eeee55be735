#pragma once
#include <QString>

/// The doors to the screens of people, rigs and components.

/// How the customers screen starts, in the place of a person's id.
constexpr int kPeopleAddNew = -99;
constexpr int kPeoplePick = -88;
constexpr int kPeopleNobody = -77;

/// Shows the customers, modally; `start` is a person's id, 0 for the first one, or a mode above. The person shown last,
/// 0 when there was none. With `ownerSetup` the next person who is saved becomes the owner of the program.
int ShowPeople(int start = 0, bool ownerSetup = false);

/// Opens the customers beside the other screens, or brings them forward.
void OpenPeople(int start = 0);

/// What the rig screen opens on.
struct RigScreenStart {
  int customer = 0;
  int rig = 0;
  int rigType = 0;           ///< only rigs of this type
  bool hideButtons = false;  ///< a plain display for the caller: no Exit button, nothing to change
  QString caption = {};      ///< in the place of "Rigs"
};
/// Shows the rigs, modally. False, after a notice, when the screen is open already.
bool ShowRigs(const RigScreenStart& start = {});

/// Opens the rigs beside the other screens, or brings them forward.
void OpenRigs(const RigScreenStart& start = {});

/// Shows one rig and nothing to change: on the rig screen or, while that is open, on a form of its own.
void ShowRig(int rig);

/// Shows what a rig is made of now, to be read.
void ShowCurrentComponents(int rig);

/// Lets a person choose a rig; false when cancelled. `rig` and `customer` are selected when the screen opens, `rigType`
/// limits the list.
bool PickRig(int& rig, int& customer, int rigType = 0);

/// Shows a rig with its components and asks whether to delete it; with `showOnly` it is only shown. True for Yes.
bool ConfirmRigDeletion(int rig, bool showOnly = false);

/// Asks how the empty place of a component type is to be filled: "new", "select", "load component:<id>", "s/n
/// <serial>", "new with s/n:<serial>" or "cancel".
QString AskNewOrOld(int componentType);

/// Shows a component on its own screen, modally; an open one goes over to it. One that has gone is not shown.
void ShowComponent(int component);

/// Edits model, serial number, date of manufacture and sub type of a component; true when it was saved.
bool EditComponentQuickly(int component);

/// Edits a component; its id when it was saved, another id when the person went over to the component that has its
/// serial number, 0 when cancelled.
int EditComponent(int component);

/// Shows a component with a question below; true for Yes. With `exitOnly` there is only a button that ends it.
bool VerifyComponent(int component, const QString& caption = {}, bool exitOnly = false);

/// What came of entering a new component.
struct EnteredComponent {
  int id = 0;          ///< 0 when cancelled
  bool isNew = false;  ///< false when the person went over to the component that has its serial number
};
/// Enters a component of a model that belongs to nobody and sits in no rig.
EnteredComponent EnterNewComponent(int model, const QString& serial = {});

/// Looks a component up by its serial number, among those of a type or (0) of all; 0 when none was chosen.
int PickComponentBySerial(int componentType = 0, const QString& serial = {});

/// Lets a person choose one of the components of a type (0 for all), and of an owner where one is given; 0 when none
/// was chosen.
int PickComponent(int componentType, int owner = 0);

/// Tells the picker how people, places, rigs and gear are listed, added and deleted.
void RegisterGearPickers();

/// Shows the places of the shop; the one that was chosen, 0 for none. `location` is selected when the screen opens.
int ShowLocations(int location = 0);

/// What the models screen opens on.
struct ModelScreenStart {
  int type = 0;                  ///< a component type; Misc shows the parts and nothing else
  bool onManufacturers = false;  ///< the list of makers has the cursor
  bool create = false;           ///< ends as soon as a model was added
};
/// Opens the models beside the other screens, or brings them forward.
void OpenModels(const ModelScreenStart& start = {});
/// The same, modally.
void ShowModels(const ModelScreenStart& start);
/// Lets a person add a model of a type; its id, 0 when none was added.
int CreateModel(int type);

/// Lets a person pick a model of a type, the present one proposed, or add one; 0 when nothing came of it.
int PickModel(int type, int presentModel = 0);

/// Lets a person choose the type of a new rig, the default one proposed; 0 when cancelled.
int ChooseTypeOfNewRig();

/// Lets a person choose a model; `type` and `model` are selected when the screen opens and receive the choice. False
/// when cancelled.
bool SelectModel(int& type, int& model);

/// Shows the component types, modally.
void ShowComponentTypes();
/// Opens the rig types beside the other screens, or brings them forward.
void OpenRigTypes();
/// The same, modally.
void ShowRigTypes();
