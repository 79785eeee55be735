#pragma once
#include <QString>

#include "core/lists.h"
#include "core/money.h"

/// Adding, renaming, linking and deleting models and manufacturers, with their questions.

constexpr int kLongestModelName = 50;
/// A manufacturer list in which nothing is selected, not even "(not specified)", which is 0.
constexpr int kNoManufacturerSelected = -1;

/// Models of a type as the models screen shows them: all, or those of one maker (0 for none).
IdList LoadModels(int type, int manufacturer = kNoManufacturerSelected);
/// All manufacturers in the table's order, and "(not specified)" with id 0 behind them.
IdList LoadManufacturers();

/// The model of this name in a type, outer blanks and case aside; 0 when the name is free.
int FindModelByName(const QString& name, int type);
/// The maker of a model. One that does not exist is put right to 0.
int RepairModelManufacturer(int model);

/// What became of adding a model.
struct NewModel {
  int id = 0;  ///< the new model, or the one that has the name; 0 when nothing was done
  bool isNew = false;
};
/// Asks for the name of a new model of a major type and adds it. `buttonCaption` names the button to come back to.
NewModel AddModelByAsking(int type, int manufacturer, const QString& buttonCaption);
/// Adds a part, a model of type Misc, by the name and price that were entered; a name in use is told.
NewModel AddPart(const QString& name, Money price, int manufacturer);
/// Writes the name and the price of a part; duplicates are not looked for.
void SavePart(int id, const QString& name, Money price);
/// Adds a model by the name that was typed in a pick list: a name that is too long or in use is told. The new model, or
/// the one that has the name; 0 when nothing was added.
int AddModelByName(const QString& name, int type);
/// Tells that a model has this name already; true when it does. `existing` is that model.
bool RefuseDuplicateModel(const QString& name, int type, int& existing);
/// Asks for the name of a model that a pick list lacks and adds it; 0 when nothing came of it.
int AddModelFromPicker(int type);
/// Asks for another name; duplicates are not looked for. True when it was written.
bool RenameModel(int id);
/// How deleting a model ended.
enum class ModelDeletion { Kept, Deleted, ShowList };
/// Deletes a model and all its components, after two questions.
ModelDeletion DeleteModel(int id);
/// Links a model to a maker after a question; true when it was written.
bool LinkModelToManufacturer(int model, int manufacturer);

/// Asks for a name and adds it; the new id, 0 when nothing came of it.
int AddManufacturer();
bool RenameManufacturer(int id);
/// Deletes a manufacturer after a question; its models stay, without one.
bool DeleteManufacturer(int id);
