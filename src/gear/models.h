#pragma once
#include <QString>

#include "core/money.h"

/// Component types, the models of each type, and their makers. A model whose type is Misc is a part with a price.

QString ComponentTypeName(int id);
QString ModelName(int id);
int ModelType(int id);
Money ModelPrice(int id);
int ModelManufacturer(int id);  ///< 0 = not specified
bool ModelExists(int id);
/// Months from the date of manufacture after which a component of the model expires; 0 for never.
int ServiceLife(int modelId);
QString ManufacturerName(int id);

/// Deletes the row alone.
void DeleteModelRow(int id);
/// Adds a model with nothing but a name and a type; its id. An empty name adds nothing and returns 0.
int AddModel(const QString& name, int type);
/// The same with the name trimmed and a maker.
int AddModelOfManufacturer(const QString& name, int type, int manufacturer);
