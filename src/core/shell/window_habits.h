#pragma once
#include "core/screens.h"  // ArrangeForms

class Form;

/// How a person moves among the screens that stand beside each other, and leaves them all.

/// Unloads every form but the floating menu and the home page, then shows the floating menu.
void HideForms();
/// Unloads every form but the home page, then shows the floating menu.
void CloseAllForms();
/// Unloads every form in the forms collection.
void UnloadAllForms();
/// Asks, and on Yes unloads the calling form and all others and ends the program.
void ExitProgram(Form* caller);
