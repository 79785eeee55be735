#pragma once

class Form;

/// Ctrl+Z and Ctrl+Y (or Ctrl+Shift+Z) on every screen: the last operation is taken back, or done again, and named. One
/// that was done on another screen is asked about first. A box that holds a text which is being edited keeps the keys
/// for itself. While an operation or long work stands they do nothing.
void GiveUndoKeys(Form* form);

/// What the keys do. True when something was taken back or done again.
bool UndoOnScreen(Form& form);
bool RedoOnScreen(Form& form);
