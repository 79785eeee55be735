#pragma once
#include <QPalette>

#include <optional>

class QApplication;
class QLabel;
class QPushButton;

/// Installs the one look of the program: Fusion with the program's palette and spacing. Light or dark follows the
/// system where it tells, else light; `dark` decides for tests.
void InstallTheme(QApplication& app, std::optional<bool> dark = std::nullopt);

/// True while the dark palette is in use.
bool ThemeIsDark();

/// The palette by itself.
QPalette ThemePalette(bool dark);

/// Looks of single widgets. In a .ui file the dynamic properties `heading`, `hint` and `primary` (bool) do the same.
void MakeHeading(QLabel* label);        ///< the title of a screen or of a part of it
void MakeHint(QLabel* label);           ///< a quieter note
void MakePrimary(QPushButton* button);  ///< the button that does what the screen is for; default buttons are it anyway

/// Text colour that can be read on a background.
QColor ReadableOn(const QColor& background);
