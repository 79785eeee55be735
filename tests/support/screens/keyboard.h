#pragma once
#include <QString>

class Form;

/// How a screen is worked without a mouse.

/// The controls that Tab reaches from one on, in order, until it comes round: their names between blanks.
QString TabRoad(Form& form, const QString& from);
/// The captions of visible controls and menus whose letter another one claims already, between blanks.
QString ClashesOf(Form& form);
