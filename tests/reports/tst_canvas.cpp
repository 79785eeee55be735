#include <QPainter>
#include <QtTest>

#include "reports/canvas.h"
#include "reports/paint_page.h"
#include "reports/primitives.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

const FontChoice kArial = {u"Arial"_s, 10, false, false};

Canvas Portrait(const FontChoice& font = kArial) { return Canvas(PageOrientation::Portrait, font); }

QList<PageText> TextsOf(const Canvas& canvas, qsizetype page = 0) {
  QList<PageText> texts;
  for (const PageItem& item : canvas.Drawn().pages.at(page))
    if (const auto* text = std::get_if<PageText>(&item)) texts << *text;
  return texts;
}

QList<PageLine> LinesOf(const Canvas& canvas, qsizetype page = 0) {
  QList<PageLine> lines;
  for (const PageItem& item : canvas.Drawn().pages.at(page))
    if (const auto* line = std::get_if<PageLine>(&item)) lines << *line;
  return lines;
}

double RightEdge(const Canvas& canvas, const PageText& text) { return text.x + canvas.TextWidth(text.text); }

}  // namespace

class TestCanvas : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void PagesAreUSLetterInTwips() {
    QCOMPARE(Portrait().Width(), 12240.0);
    QCOMPARE(Portrait().Height(), 15840.0);
    const Canvas landscape(PageOrientation::Landscape, kArial);
    QCOMPARE(landscape.Width(), 15840.0);
    QCOMPARE(landscape.Height(), 12240.0);
  }

  void TextIsMeasuredInTwips() {
    Canvas canvas = Portrait();
    QVERIFY(qAbs(canvas.TextWidth(u"0000000000"_s) - 10 * 0.556 * 200) < 10);  // a digit of Arial is 0.556 of its size
    QVERIFY(canvas.TextHeight(u"x"_s) > 200 && canvas.TextHeight(u"x"_s) < 250);
    const double before = canvas.TextWidth(u"Reserve"_s);
    canvas.FontBold = true;
    QVERIFY(canvas.TextWidth(u"Reserve"_s) > before);
    canvas.FontBold = false;
    canvas.FontSize = 20;
    QVERIFY(qAbs(canvas.TextWidth(u"Reserve"_s) - 2 * before) < 1);
  }

  void PrintGoesOnInTheNextLineOrStays() {
    Canvas canvas = Portrait();
    canvas.CurrentX = 1000;
    canvas.Print(u"one"_s, true);
    QCOMPARE(canvas.CurrentX, 1000 + canvas.TextWidth(u"one"_s));
    QCOMPARE(canvas.CurrentY, 0.0);
    canvas.Print(u"two"_s);
    QCOMPARE(canvas.CurrentX, 0.0);
    QCOMPARE(canvas.CurrentY, canvas.TextHeight(u"x"_s));
    canvas.Print({});
    QCOMPARE(canvas.CurrentY, 2 * canvas.TextHeight(u"x"_s));
    QCOMPARE(TextsOf(canvas).size(), 2);
    QCOMPARE(TextsOf(canvas).at(1).x, 1000 + canvas.TextWidth(u"one"_s));
  }

  void LineBreaksInNamesAreBlanks() {
    Canvas canvas = Portrait();
    canvas.Print(u"one\r\ntwo\tthree"_s);
    QCOMPARE(TextsOf(canvas).first().text, u"one  two three"_s);
    QCOMPARE(canvas.TextWidth(u"a\nb"_s), canvas.TextWidth(u"a b"_s));
  }

  void ANewPageBeginsAtItsCornerInTheReportsFont() {
    Canvas canvas = Portrait();
    canvas.CurrentX = 500;
    canvas.CurrentY = 900;
    canvas.FontBold = true;
    canvas.FontSize = 30;
    canvas.NewPage();
    QCOMPARE(canvas.PageNumber(), 2);
    QCOMPARE(canvas.CurrentX, 0.0);
    QCOMPARE(canvas.CurrentY, 0.0);
    canvas.Print(u"x"_s);
    QCOMPARE(TextsOf(canvas, 1).first().font, kArial);
  }

  void FontsOfAPageKeepTheirStyleAndAreNeverTooSmallToDraw() {
    const QFont font = PageFont({u"Arial"_s, 12, true, true});
    QVERIFY(font.bold() && font.italic());
    QCOMPARE(font.pixelSize(), 240);
    QVERIFY(!PageFont(kArial).bold() && !PageFont(kArial).italic());
    QCOMPARE(PageFont({u"Arial"_s, 0, false, false}).pixelSize(), 1);
  }

  void SetFontTakesAllFourFields() {
    Canvas canvas = Portrait();
    canvas.SetFont({u"Courier New"_s, 12.5, true, true});
    canvas.Print(u"x"_s);
    QCOMPARE(TextsOf(canvas).first().font, (FontChoice{u"Courier New"_s, 12.5, true, true}));
  }

  void JustifiesLeftRightAndCentred() {
    Canvas canvas = Portrait();
    PrintJustified(canvas, 0.5, u"left"_s, true);
    PrintJustified(canvas, 0.5, u"right"_s, true, kJustifyRight);
    PrintJustified(canvas, 0.5, u"centre"_s, false, kJustifyCentre);
    const QList<PageText> texts = TextsOf(canvas);
    QCOMPARE(texts.at(0).x, 6120.0);
    QCOMPARE(RightEdge(canvas, texts.at(1)), 6120.0);
    QCOMPARE((texts.at(2).x + RightEdge(canvas, texts.at(2))) / 2, 6120.0);
    QCOMPARE(texts.at(2).y, 0.0);
    QCOMPARE(canvas.CurrentY, canvas.TextHeight(u"x"_s));
  }

  void AnUnknownJustifyCodeIsToldAndPrintsWhereItStands() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"need justify value (vbleft, vbright, etc)"_s);
    Canvas canvas = Portrait();
    canvas.CurrentX = 777;
    PrintJustified(canvas, 0.5, u"x"_s, false, 3);
    QCOMPARE(TextsOf(canvas).first().x, 777.0);
  }

  void AmountsLineUpOnThePoint_data() {
    QTest::addColumn<qint64>("units");
    QTest::addColumn<QString>("whole");
    QTest::addColumn<QString>("decimals");
    QTest::newRow("nothing") << qint64{0} << "0"
                             << "00";
    QTest::newRow("small") << qint64{500} << "0"
                           << "05";
    QTest::newRow("rounds") << qint64{19950} << "2"
                            << "00";
    QTest::newRow("thousands") << qint64{12345600} << "1,234"
                               << "56";
    QTest::newRow("millions") << qint64{12345678900000} << "1,234,567,890"
                              << "00";
    QTest::newRow("negative") << qint64{-955000} << "-95"
                              << "50";
  }
  void AmountsLineUpOnThePoint() {
    QFETCH(qint64, units);
    QFETCH(QString, whole);
    QFETCH(QString, decimals);
    for (const double size : {8.0, 10.0, 14.0}) {
      Canvas canvas = Portrait({u"Arial"_s, size, false, false});
      PrintMoney(canvas, 0.7, Money::FromUnits(units));
      const QList<PageText> texts = TextsOf(canvas);
      QCOMPARE(texts.size(), 3);
      QCOMPARE(texts.at(0).text, whole);
      QCOMPARE(RightEdge(canvas, texts.at(0)), (0.7 - 0.0005) * 12240);
      QCOMPARE(texts.at(1).text, u"."_s);
      QCOMPARE(texts.at(1).x, 0.7 * 12240);
      QCOMPARE(texts.at(2).text, decimals);
      QCOMPARE(texts.at(2).x, (0.7 + 0.005) * 12240);
      QCOMPARE(texts.at(2).y, 0.0);
      QCOMPARE(canvas.CurrentY, canvas.TextHeight(u"x"_s));
    }
  }

  void WideTextsAreCutByCharacters() {
    const Canvas canvas = Portrait();
    const QString text = u"Inspect and repack reserve"_s;
    QCOMPARE(FitToWidth(canvas, text, 0.9), text);
    QCOMPARE(FitToUnits(canvas, text, canvas.TextWidth(text)), text);
    const QString cut = FitToUnits(canvas, text, 1000);
    QVERIFY(text.startsWith(cut));
    QVERIFY(canvas.TextWidth(cut) <= 1000);
    QVERIFY(canvas.TextWidth(text.left(cut.size() + 1)) > 1000);
    QCOMPARE(FitToWidth(canvas, text, 1000 / canvas.Width()), cut);
    QCOMPARE(FitToWidth(canvas, text, 0), QString());
    QCOMPARE(FitToUnits(canvas, text, -5), QString());
    QCOMPARE(FitToWidth(canvas, {}, 0), QString());
  }

  void ALongTextIsCutAsQuicklyAsAShortOne() {
    const Canvas canvas = Portrait();
    const QString text = QString(10000, u'x');
    QElapsedTimer timer;
    timer.start();
    const QString cut = FitToUnits(canvas, text, 10.5 * canvas.TextWidth(u"x"_s));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(cut.size(), 10);
  }

  void NoCharacterIsCutInHalf() {
    const Canvas canvas = Portrait();
    const QString text = u"a\U0001F600\U0001F600"_s;
    for (double units = 0; units < canvas.TextWidth(text); units += 10) {
      const QString cut = FitToUnits(canvas, text, units);
      QVERIFY(cut.isEmpty() || !cut.back().isHighSurrogate());
    }
  }

  void RulesRunBetweenFractions() {
    Canvas canvas = Portrait();
    canvas.CurrentX = 11;
    canvas.CurrentY = 500;
    PrintRule(canvas, 0.25, 0.75);
    QCOMPARE(LinesOf(canvas), (QList<PageLine>{{3060, 500, 9180, 500}}));
    QCOMPARE(canvas.CurrentX, 11.0);
    QCOMPARE(canvas.CurrentY, 500.0);
  }

  void BoxLinesAreOneLineHighAndLeaveThePlace() {
    Canvas canvas = Portrait();
    canvas.CurrentY = 500;
    BoxLine(canvas, 0.5);
    QCOMPARE(LinesOf(canvas), (QList<PageLine>{{6120, 500, 6120, 500 + canvas.TextHeight(u"x"_s)}}));
    QCOMPARE(canvas.CurrentY, 500.0);
  }

  void NineAndFiveRulesDrawEachColumn() {
    Canvas canvas = Portrait();
    FiveRules(canvas, {0.1, 0.2, 0.3, 0.4, 0.5});
    QCOMPARE(LinesOf(canvas).size(), 5);
    QCOMPARE(LinesOf(canvas).at(4).x1, 6120.0);
    NineRules(canvas, {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9});
    QCOMPARE(LinesOf(canvas).size(), 14);
    QCOMPARE(LinesOf(canvas).at(13).x1, 0.9 * 12240);
    QCOMPARE(canvas.CurrentY, 0.0);
  }

  void PageCheckBreaksAboveNineTenths() {
    Canvas canvas = Portrait();
    canvas.CurrentY = 0.9 * canvas.Height();
    PageCheck(canvas);
    QCOMPARE(canvas.PageNumber(), 1);
    canvas.CurrentY += 1;
    PageCheck(canvas);
    QCOMPARE(canvas.PageNumber(), 2);
    QCOMPARE(canvas.CurrentY, 0.0);
    Canvas landscape(PageOrientation::Landscape, kArial);
    landscape.CurrentY = 0.9 * 12240 + 1;
    PageCheck(landscape);
    QCOMPARE(landscape.PageNumber(), 2);
  }

  void APageIsReplayedBelowItsHeadMargin() {
    Canvas canvas = Portrait({u"Arial"_s, 40, true, false});
    canvas.CurrentX = 1440;
    canvas.Print(u"H"_s);
    canvas.Line(0, 7200, 12240, 7200);
    QImage image(816, 1056, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
      QPainter painter(&image);
      painter.scale(1.0 / 15, 1.0 / 15);
      PaintPage(painter, canvas.Drawn().pages.first());
      QCOMPARE(painter.transform(), QTransform::fromScale(1.0 / 15, 1.0 / 15));  // left as it was found
    }
    const auto inked = [&](const QRect& area) {
      for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
          if (qGray(image.pixel(x, y)) < 100) return true;
      return false;
    };
    QVERIFY(!inked({0, 0, 816, 48}));
    QVERIFY(inked({96, 48, 60, 60}));
    QVERIFY(!inked({0, 48, 95, 60}));
    QVERIFY(inked({400, 527, 1, 3}));
    QVERIFY(!inked({0, 535, 816, 500}));
  }

  void APageReadsAsLinesOfText() {
    Canvas canvas = Portrait();
    PrintJustified(canvas, 0.1, u"Total:"_s, true);
    PrintMoney(canvas, 0.7, Money::Whole(1095));
    canvas.Line(0, 0, 1, 1);
    PrintJustified(canvas, 0.1, u"Due"_s);
    QCOMPARE(PageAsText(canvas.Drawn().pages.first()), u"Total: 1,095.00\nDue"_s);
    QCOMPARE(PageAsText({}), QString());
  }
};

LOFT_TEST_MAIN(TestCanvas)
#include "tst_canvas.moc"
