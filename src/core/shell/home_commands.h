#pragma once
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

/// What a person can start from the home page, its menu bar and the floating menu. A command without a routine belongs
/// to a screen that is not there yet; it shows disabled.
using HomeCommand = std::function<void()>;

/// A line of the menu bar: the menus that lead to it, its caption, what it does. A line without a caption is a
/// separator.
struct MenuLine {
  QStringList menus;
  QString caption;
  HomeCommand run;
  /// For a line that says more than its caption: what it reads now; nothing while there is nothing to do.
  std::function<std::optional<QString>()> now = nullptr;
};

/// The menu bar of the home page, in its order.
std::vector<MenuLine> MainMenu();

/// The commands of the home page's buttons, by the button's name.
HomeCommand ButtonCommand(const QString& button);

/// An entry of the floating menu; the blank ones divide it.
struct FloatingEntry {
  QString caption;
  HomeCommand run;
};
std::vector<FloatingEntry> FloatingMenu();
