#include "support/screens/keyboard.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenuBar>
#include <QTest>

#include <set>

#include "core/widgets/form.h"
#include "support/screens/controls.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostControls = 60;

}  // namespace

QString TabRoad(Form& form, const QString& from) {
  QStringList road;
  auto* start = &Control<QWidget>(form, from);
  start->setFocus();
  QWidget* at = start;
  do {
    road << at->objectName();
    QTest::keyClick(at, Qt::Key_Tab);
    at = form.focusWidget();
  } while (at != start && road.size() < kMostControls);
  return road.join(u' ');
}

QString ClashesOf(Form& form) {
  QStringList clashes;
  std::set<QChar> seen;
  const auto claim = [&](const QString& text) {
    const qsizetype at = QString(text).replace(u"&&"_s, u"  "_s).indexOf(u'&');
    if (at < 0 || at + 1 >= text.size()) return;
    if (!seen.insert(text.at(at + 1).toLower()).second) clashes << text;
  };
  for (QAbstractButton* button : form.findChildren<QAbstractButton*>())
    if (button->isVisible()) claim(button->text());
  for (QLabel* label : form.findChildren<QLabel*>())
    if (label->isVisible() && label->buddy()) claim(label->text());
  if (auto* bar = form.findChild<QMenuBar*>())
    for (QAction* action : bar->actions()) claim(action->text());
  return clashes.join(u' ');
}
