#include "reports/screens/frmPrintPreview.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>

#include "core/widgets/screen_routines.h"
#include "reports/fonts.h"
#include "reports/screens/page_picture.h"
#include "reports/screens/print_pages.h"
#include "reports/screens/ui_frmPrintPreview.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kScreenShare = 0.9;
constexpr int kAroundPage = 24;
constexpr int kArrowStep = 40;

}  // namespace

frmPrintPreview::frmPrintPreview() : ui_(std::make_unique<Ui::frmPrintPreview>()), pic_(new PagePicture(this)) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  QScrollArea& outer = *ui_->picOuter;
  outer.setBackgroundRole(QPalette::Mid);
  outer.setWidget(pic_);
  outer.horizontalScrollBar()->setObjectName(u"HScroll1"_s);
  outer.verticalScrollBar()->setObjectName(u"VScroll1"_s);
  for (QScrollBar* bar : {outer.horizontalScrollBar(), outer.verticalScrollBar()}) bar->setSingleStep(kArrowStep);
  outer.installEventFilter(this);
  MakeMenus();
  outer.setFocus();
}

frmPrintPreview::~frmPrintPreview() = default;

void frmPrintPreview::MakeMenus() {
  QMenuBar& bar = *MenuBar();
  bar.addAction(u"&Print"_s, this, [this] { PrintPages(pages_, this); })->setShortcut(QKeySequence::Print);
  bar.addAction(u"&Email"_s)->setEnabled(false);
  bar.addAction(u"&Font"_s, this, &frmPrintPreview::ChooseFont);
  bar.addMenu(u"&Tools"_s)->addAction(u"&Shrink window 50%"_s, this, &frmPrintPreview::ShrinkWindow);
  QMenu& numbering = *bar.addMenu(u"Page &Numbering"_s);
  mnuPrev_ = numbering.addAction(u"&Prev page"_s, this, [this] { ShowPage(page_ - 1); });
  mnuPrev_->setShortcut(Qt::CTRL | Qt::Key_PageUp);
  mnuNext_ = numbering.addAction(u"&Next page"_s, this, [this] { ShowPage(page_ + 1); });
  mnuNext_->setShortcut(Qt::CTRL | Qt::Key_PageDown);
  bar.addAction(u"E&xit"_s, this, &frmPrintPreview::Cancel);
}

void frmPrintPreview::SetReport(const Report& report, const FontChoice& font) {
  report_ = report;
  Draw(font);
  FitWindow();
}

void frmPrintPreview::Draw(const FontChoice& font) {
  font_ = font;
  pages_ = DrawReport(report_, font_);
  ShowPage(1);
}

/// As wide as the page and nearly as high as the screen.
void frmPrintPreview::FitWindow() {
  const QSize room = screen()->availableSize();
  const int width = pic_->width() + ui_->picOuter->verticalScrollBar()->sizeHint().width() + kAroundPage;
  resize(qMin(width, qRound(room.width() * kScreenShare)), qRound(room.height() * kScreenShare));
}

void frmPrintPreview::ShowPage(int number) {
  const int count = static_cast<int>(pages_.pages.size());
  page_ = qBound(1, number, count);
  pic_->SetPage(pages_, page_);
  ui_->picOuter->verticalScrollBar()->setValue(0);
  ui_->lblPage->setText(u"Page %1 of %2"_s.arg(page_).arg(count));
  mnuPrev_->setEnabled(page_ > 1);
  mnuNext_->setEnabled(page_ < count);
}

void frmPrintPreview::ChooseFont() {
  const std::optional<FontChoice> chosen = FontDialog(font_);
  if (!chosen) return;
  WriteFonts(*chosen);
  Draw(*chosen);
}

void frmPrintPreview::ShrinkWindow() {
  resize(size() / 2);
  CentreForm(this);
}

bool frmPrintPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && TurnPage(*static_cast<QKeyEvent*>(event))) return true;
  return Form::eventFilter(watched, event);
}

/// Scrolling past an end of a page goes on with the next one. True when a page was turned.
bool frmPrintPreview::TurnPage(const QKeyEvent& key) {
  QScrollBar& bar = *ui_->picOuter->verticalScrollBar();
  switch (key.key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Down:
      if (bar.value() < bar.maximum() || !mnuNext_->isEnabled()) return false;
      ShowPage(page_ + 1);
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_Up:
      if (bar.value() > bar.minimum() || !mnuPrev_->isEnabled()) return false;
      ShowPage(page_ - 1);
      bar.setValue(bar.maximum());
      return true;
    case Qt::Key_Home:
      ShowPage(1);
      return true;
    case Qt::Key_End:
      ShowPage(static_cast<int>(pages_.pages.size()));
      return true;
    default:
      return false;
  }
}
