#pragma once
#include <QIcon>
#include <QString>
#include <QStringList>

#include <optional>

#include "core/picker.h"

/// The doors to the general dialogs.

struct Picked {
  int id = kPickCancelled;  ///< -1 when nothing was chosen, -99 to add a record, -88 to add a person
  QString text;
  bool saveAsDefault = false;  ///< the default box was ticked
};

/// Lets a person choose from a list. A `modelTypeId` other than that of misc items asks for a model of that component
/// type. `presentId` is selected when the list opens.
Picked PickItem(int pickerType, int modelTypeId = 0, int presentId = 0);
/// The same with the box that makes the choice the default; what that means is up to the caller.
Picked PickItemWithDefault(int pickerType, int modelTypeId = 0, int presentId = 0);

/// Shows a text to be read at length. `buttonType` 1 has the Exit button alone, 2 has two buttons with the captions
/// given. 1 or 2 for the button pressed, 0 for Exit.
int ShowMessageForm(const QString& title, const QString& myText, const QStringList& captions = {}, int buttonType = 1);

/// Lets a person edit one long text; nothing when it was not saved.
std::optional<QString> EditComments(const QString& heading, const QString& text,
                                    const QString& title = QStringLiteral("Comments"));

/// Gives long work its notice (core/stand_by.h) and its wait form (core/long_work.h).
void InstallStandByNotice();

/// Cascades all loaded forms behind the floating menu, in load order.
void ArrangeForms();

/// The program's own icon, drawn at any size.
QIcon ProgramIcon();
