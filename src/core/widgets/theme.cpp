#include "core/widgets/theme.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>

namespace {

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

struct Colours {
  QRgb window, base, alternate, text, button, border, accent, onAccent, link, tip;
};
constexpr Colours kLight{0xfff4f5f7, 0xffffffff, 0xfff7f8fa, 0xff1f2730, 0xfffbfbfc,
                         0xffb9c0c8, 0xff2b6a94, 0xffffffff, 0xff1f5f8b, 0xffffffff};
constexpr Colours kDark{0xff2b3036, 0xff1c2024, 0xff22272c, 0xffe4e7ea, 0xff3a4149,
                        0xff59626c, 0xff33739f, 0xffffffff, 0xff7cbcea, 0xff3a4149};

constexpr int kSpacing = 8;
constexpr int kMargin = 12;

void Polish(QLabel* label) {
  label->setTextFormat(Qt::PlainText);
  if (label->property("heading").toBool()) {
    QFont font = QApplication::font(label);
    font.setPointSizeF(font.pointSizeF() * 1.35);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
  } else if (label->property("hint").toBool()) {
    label->setForegroundRole(QPalette::PlaceholderText);
  }
}

void Polish(QPushButton* button) {
  if (!button->property("primary").toBool() && !button->isDefault()) return;
  // The style lightens a button's colour; white text has to be read on it all the same.
  const QColor colour = QApplication::palette().color(QPalette::Highlight).darker(150);
  QPalette palette = button->palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Button, colour);
    palette.setColor(group, QPalette::ButtonText, QApplication::palette().color(QPalette::HighlightedText));
  }
  button->setPalette(palette);
}

class LoftStyle : public QProxyStyle {
 public:
  LoftStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_LayoutHorizontalSpacing:
      case PM_LayoutVerticalSpacing:
        return kSpacing;
      case PM_LayoutLeftMargin:
      case PM_LayoutTopMargin:
      case PM_LayoutRightMargin:
      case PM_LayoutBottomMargin:
        return kMargin;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;  // boxes look like the screens
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isCheck = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if ((!isCheck && element != PE_IndicatorRadioButton) || !IsDark(option->palette)) return;
    // The style's own outline is darker than the window and drowns in a dark one.
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, !isCheck);
    painter->setPen(option->palette.color(QPalette::Mid));
    painter->setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isCheck)
      painter->drawRect(edge);
    else
      painter->drawEllipse(edge);
    painter->restore();
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_PushButton) result = result.grownBy({4, 2, 4, 2});
    if (type == CT_ItemViewItem || type == CT_HeaderSection) result.rheight() += 6;
    return result;
  }

  using QProxyStyle::polish;
  void polish(QWidget* widget) override {
    QProxyStyle::polish(widget);
    if (auto* label = qobject_cast<QLabel*>(widget)) Polish(label);
    if (auto* button = qobject_cast<QPushButton*>(widget)) Polish(button);
  }
};

}  // namespace

QPalette ThemePalette(bool dark) {
  const Colours& c = dark ? kDark : kLight;
  const QColor window = QColor::fromRgb(c.window);
  const QColor text = QColor::fromRgb(c.text);
  const QColor border = QColor::fromRgb(c.border);
  QPalette palette(QColor::fromRgb(c.button), window);
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, QColor::fromRgb(c.base));
  palette.setColor(QPalette::AlternateBase, QColor::fromRgb(c.alternate));
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::Button, QColor::fromRgb(c.button));
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::Mid, border);
  palette.setColor(QPalette::Highlight, QColor::fromRgb(c.accent));
  palette.setColor(QPalette::HighlightedText, QColor::fromRgb(c.onAccent));
  palette.setColor(QPalette::Link, QColor::fromRgb(c.link));
  palette.setColor(QPalette::LinkVisited, QColor::fromRgb(c.link));
  palette.setColor(QPalette::ToolTipBase, QColor::fromRgb(c.tip));
  palette.setColor(QPalette::ToolTipText, text);
  QColor quiet = text;
  quiet.setAlphaF(0.66F);
  palette.setColor(QPalette::PlaceholderText, quiet);
  QColor disabled = text;
  disabled.setAlphaF(0.42F);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
    palette.setColor(QPalette::Disabled, role, disabled);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, border);
  palette.setColor(QPalette::Disabled, QPalette::Base, window);
  return palette;
}

void InstallTheme(QApplication& app, std::optional<bool> dark) {
  const bool useDark = dark.value_or(IsDark(QApplication::palette()));
  app.setStyle(new LoftStyle);
  QApplication::setPalette(ThemePalette(useDark));
}

bool ThemeIsDark() { return IsDark(QApplication::palette()); }

void MakeHeading(QLabel* label) {
  label->setProperty("heading", true);
  Polish(label);
}

void MakeHint(QLabel* label) {
  label->setProperty("hint", true);
  Polish(label);
}

void MakePrimary(QPushButton* button) {
  button->setProperty("primary", true);
  Polish(button);
}

QColor ReadableOn(const QColor& background) {
  // Perceived brightness; halfway between the two is where black and white read equally well.
  const double brightness = 0.299 * background.redF() + 0.587 * background.greenF() + 0.114 * background.blueF();
  return brightness > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
}
