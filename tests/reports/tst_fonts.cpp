#include <QtTest>

#include "reports/business_address.h"
#include "reports/fonts.h"
#include "support/data_folder_here.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// The two small files of the reports: the font and the business address.
class TestFonts : public QObject {
  Q_OBJECT

  std::unique_ptr<TempFolder> folder_;
  std::unique_ptr<DataFolderHere> here_;
  std::unique_ptr<ScriptedPrompts> prompts_;

  const FontChoice newFont_ = {u"Arial"_s, 10, false, false};

 private Q_SLOTS:
  void init() {
    folder_ = std::make_unique<TempFolder>();
    here_ = std::make_unique<DataFolderHere>(*folder_);
    prompts_ = std::make_unique<ScriptedPrompts>();
  }
  void cleanup() {
    prompts_.reset();
    here_.reset();
    folder_.reset();
    DiagnosticMode = false;
  }

  void AMissingFileIsMadeAnew() {
    QCOMPARE(ReadFonts(), newFont_);
    QCOMPARE(folder_->Read(u"fonts.ini"_s), "Arial\r\n10\r\nFalse\r\nFalse\r\n"_ba);
  }

  void DiagnosticModeTellsOfTheNewFile() {
    DiagnosticMode = true;
    prompts_->ExpectBox(kProgramTitle, u"creating new fonts.ini file at: "_s + FontsFile());
    ReadFonts();
    ReadFonts();
  }

  void WhatIsWrittenIsRead() {
    const FontChoice font = {u"Courier New"_s, 9.75, true, true};
    WriteFonts(font);
    QCOMPARE(folder_->Read(u"fonts.ini"_s), "Courier New\r\n9.75\r\nTrue\r\nTrue\r\n"_ba);
    QCOMPARE(ReadFonts(), font);
  }

  void DamagedFilesReadAsNewOnesWhereTheyAreDamaged_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("size");
    QTest::addColumn<bool>("bold");
    QTest::newRow("empty") << ""_ba
                           << "Arial" << 10.0 << false;
    QTest::newRow("name alone") << "Georgia\n"_ba
                                << "Georgia" << 10.0 << false;
    QTest::newRow("no size") << "Georgia\n\nTrue\nFalse\n"_ba
                             << "Georgia" << 10.0 << true;
    QTest::newRow("size 0") << "Georgia\n0\nFalse\nFalse\n"_ba
                            << "Georgia" << 10.0 << false;
    QTest::newRow("huge") << "Georgia\n99999999\nFalse\nFalse\n"_ba
                          << "Georgia" << 10.0 << false;
    QTest::newRow("negative") << "Georgia\n-12\nFalse\nFalse\n"_ba
                              << "Georgia" << 10.0 << false;
    QTest::newRow("smallest") << "Georgia\n1\nFalse\nFalse\n"_ba
                              << "Georgia" << 1.0 << false;
    QTest::newRow("greatest") << "Georgia\n200\nFalse\nFalse\n"_ba
                              << "Georgia" << 200.0 << false;
    QTest::newRow("blanks") << "  Georgia \n 12 \nFalse\nFalse\n"_ba
                            << "Georgia" << 12.0 << false;
    QTest::newRow("lower case") << "Georgia\n12\ntrue\nfalse\n"_ba
                                << "Georgia" << 12.0 << true;
  }
  void DamagedFilesReadAsNewOnesWhereTheyAreDamaged() {
    QFETCH(QByteArray, content);
    folder_->Write(u"fonts.ini"_s, content);
    const FontChoice font = ReadFonts();
    QTEST(font.name, "name");
    QTEST(font.size, "size");
    QTEST(font.bold, "bold");
    QCOMPARE(font.italic, false);
  }

  void AFontThatCannotBeKeptIsToldAndUsed() {
    DataPath = *folder_ / u"gone/"_s;
    prompts_->AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    QCOMPARE(ReadFonts(), newFont_);
    QCOMPARE(prompts_->Transcript().size(), 1);
    QCOMPARE(prompts_->Transcript().first().title, u"Sub WriteFonts"_s);
  }

  void TheLogbooksFontIsCutToTenAndKept() {
    FontChoice font = {u"Georgia"_s, 12, true, false};
    prompts_->ExpectBox(u"Font size = 12"_s, u"Logbook cannot have font size > 10\n\nFont size changed to 10"_s);
    LimitLogbookFont(font);
    QCOMPARE(font, (FontChoice{u"Georgia"_s, 10, true, false}));
    QCOMPARE(ReadFonts(), font);
    LimitLogbookFont(font);
    font.size = 8;
    LimitLogbookFont(font);
    QCOMPARE(font.size, 8.0);
  }

  void NoAddressFileGivesAnEmptyHeader() { QCOMPARE(GetBusinessAddress(), QString()); }

  void TheAddressIsKeptWithoutBlankLinesAtItsEnd() {
    prompts_->ExpectBox(u"Business Address"_s, u"Saved"_s);
    SaveAddress(u"Sky Loft\n\n1 Airport Road & Gate <2>\n \n\n"_s);
    QCOMPARE(folder_->Read(u"support/address.txt"_s), "Sky Loft\r\n\r\n1 Airport Road & Gate <2>\r\n"_ba);
    QCOMPARE(GetBusinessAddress(), u"Sky Loft\n\n1 Airport Road & Gate <2>"_s);
  }

  void AnAddressOfBlanksIsNone() {
    prompts_->ExpectBox(u"Business Address"_s, u"Saved"_s);
    SaveAddress(u" \n\n"_s);
    QCOMPARE(GetBusinessAddress(), QString());
  }

  void AnAddressThatCannotBeKeptIsNotCalledSaved() {
    DataPath = *folder_ / u"gone/"_s;
    prompts_->AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    SaveAddress(u"Sky Loft"_s);
    QCOMPARE(prompts_->Transcript().size(), 1);
    QCOMPARE(prompts_->Transcript().first().title, u"Sub SaveAddress"_s);
    QVERIFY(prompts_->Transcript().first().text != u"Saved"_s);
  }
};

LOFT_TEST_MAIN(TestFonts)
#include "tst_fonts.moc"
