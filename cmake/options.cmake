# One INTERFACE target carries the language level, the warnings and the Qt habits of the whole tree. The presets of
# developers make warnings errors; that of packagers doesn't, for their compiler may know more of them.
add_library(loft_options INTERFACE)
target_compile_features(loft_options INTERFACE cxx_std_20)
target_compile_options(loft_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough)
target_compile_definitions(loft_options INTERFACE
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(LOFTKEEP_SANITIZE)
  target_compile_options(loft_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                         -fno-sanitize-recover=undefined)
  target_link_options(loft_options INTERFACE -fsanitize=address,undefined)
endif()

# What many sources include is parsed once. That makes the build quick and no more: each source includes what it uses.
set(precompiled_for_rules <algorithm> <array> <functional> <limits> <memory> <optional> <string> <utility> <vector>
  <QDir> <QFile> <QFileInfo> <QHash> <QList> <QRegularExpression> <QString> <QStringList>)
set(precompiled_for_screens ${precompiled_for_rules}
  <QApplication> <QCheckBox> <QDialog> <QGroupBox> <QKeyEvent> <QLabel> <QLineEdit> <QMenu> <QMenuBar> <QPushButton>
  <QRadioButton> <QTableView> <QTimer>)
