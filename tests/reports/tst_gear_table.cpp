#include <QtTest>

#include "reports/gear_table.h"
#include "reports/gear_table_html.h"
#include "reports/gear_table_page.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestGearTable : public QObject {
  Q_OBJECT

  static constexpr double kLowest = 0.9 * 15840;

  static Canvas PageAt(double y) {
    Canvas canvas(PageOrientation::Portrait, {u"Arial"_s, 10, false, false});
    canvas.CurrentY = y;
    return canvas;
  }
  static QStringList TextsOf(const Canvas& canvas, qsizetype page) {
    QStringList texts;
    for (const PageItem& item : canvas.Drawn().pages.at(page))
      if (const auto* text = std::get_if<PageText>(&item)) texts << text->text;
    return texts;
  }

 private Q_SLOTS:
  void AComponentWithoutADateShowsNone() {
    ScriptedPrompts prompts;
    const ThrowAwayLoft loft;
    const int model = loft.Add(u"tblModels"_s, {{u"Name"_s, "Javelin"}, {u"TypeID"_s, 1}});
    const int component = loft.Add(
        u"tblComponents"_s,
        {{u"TypeID"_s, 1}, {u"ModelID"_s, model}, {u"SerialNumber"_s, "J-1"}, {u"SubType"_s, ""}, {u"DOM"_s, Date()}});
    const GearRow row = GearRowOf(component);
    QCOMPARE(QStringList({row.type, row.model, row.serial, row.dom}),
             QStringList({u"Container"_s, u"Javelin"_s, u"J-1"_s, QString()}));
    loft.Run(u"update tblComponents set DOM = #5/1/2019#"_s);
    QCOMPARE(GearRowOf(component).dom, u"05/01/2019"_s);
  }

  void APlaceThatIsEmptyIsARowOfItsTypeAlone() {
    ScriptedPrompts prompts;
    const ThrowAwayLoft loft;
    const int type = loft.Add(u"tblRigTypes"_s, {{u"Name"_s, "Pilot rig"}});
    loft.Add(u"tblRigTypeComponents"_s, {{u"RigTypeID"_s, type}, {u"ComponentTypeID"_s, 3}});
    const int rig = loft.Add(u"tblRig"_s, {{u"rigAlias"_s, "Blue"}, {u"TypeID"_s, type}});
    const QList<GearRow> rows = GearRowsOfRig(rig);
    QCOMPARE(rows.size(), 1);
    QCOMPARE(QStringList({rows[0].type, rows[0].model, rows[0].serial, rows[0].dom}),
             QStringList({u"Reserve Canopy"_s, QString(), QString(), QString()}));
  }

  void TheTableGoesToTheNextPageRowByRow() {
    const QList<GearRow> rows = {{u"AAD"_s, u"Cypres 2"_s, u"7"_s, {}}};
    Canvas full = PageAt(kLowest + 1);
    PaintGearTable(rows, full);
    QCOMPARE(TextsOf(full, 0), QStringList());
    QCOMPARE(TextsOf(full, 1).first(), u" Component"_s);
    Canvas last = PageAt(kLowest);
    PaintGearTable(rows, last);
    QCOMPARE(TextsOf(last, 0), QStringList({u" Component"_s, u" Model"_s, u" S/N"_s, u" DOM"_s}));
    QCOMPARE(TextsOf(last, 1).first(), u" AAD"_s);
  }

  void TheCaptionOfARigGoesToTheNextPage() {
    Canvas full = PageAt(kLowest + 1);
    PaintRigTable({u"Sport Rig  (Rig name: Blue)"_s, {}}, full);
    QCOMPARE(TextsOf(full, 0), QStringList());
    QCOMPARE(TextsOf(full, 1).first(), u"Sport Rig  (Rig name: Blue)"_s);
  }

  void ARigIsReadUnderItsCaption() {
    ScriptedPrompts prompts;
    const ThrowAwayLoft loft;
    const int rig = loft.Add(u"tblRig"_s, {{u"rigAlias"_s, "Blue"}, {u"TypeID"_s, 1}});
    QCOMPARE(LoadRigTable(rig).caption, u"Sport Rig  (Rig name: Blue)"_s);
  }

  void TheMailHasARowToEachPiece() {
    QCOMPARE(
        RigTableHtml({u"<Blue>"_s, {{u"AAD"_s, u"Cypres & Co"_s, u"7"_s, {}}}}),
        QStringList(
            {u"&lt;Blue&gt;<br>"_s,
             u"<table style=\"text-align: left; width: 500px;\" border=\"1\" cellpadding=\"2\" "
             u"cellspacing=\"0\">"_s,
             u"<tr><td><b> Component</b></td><td><b> Model</b></td><td><b> S/N</b></td><td><b> DOM</b></td></tr>"_s,
             u"<tr><td>AAD</td><td>Cypres &amp; Co</td><td>7</td><td></td></tr>"_s, u"</table>"_s}));
  }
};

LOFT_TEST_MAIN(TestGearTable)
#include "tst_gear_table.moc"
