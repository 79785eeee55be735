#pragma once
#include <QString>
#include <QStringList>

#include <optional>

struct ShownThing;
struct ShownPrompt;

/// Where the system itself says that something need not hold: each list gives the reason. What is not listed holds
/// after every step.

/// Controls in which an open screen may differ from a fresh one.
bool Compared(const QString& form, const QString& control);
bool Compared(const QString& form, const ShownThing& thing);

/// Selections that may go by themselves.
bool Keeps(const QString& form, const QString& control);

/// Commands that lead out of the loft: to paper, to other programs, to the end of the program.
bool MayBeUsed(const QString& form, const QString& command);

/// Boxes of a failure that the system means as they are.
bool IsMeant(const ShownPrompt& box);
