#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>

#include "reports/fonts.h"
#include "reports/report.h"
#include "reports/screens.h"
#include "reports/screens/frmPrintPreview.h"
#include "reports/screens/print_pages.h"
#include "support/data_folder_here.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestPrintPreview : public QObject {
  Q_OBJECT

  std::unique_ptr<ThrowAwayLoft> loft_;
  std::unique_ptr<DataFolderHere> here_;
  std::unique_ptr<ScriptedPrompts> prompts_;
  std::unique_ptr<ScreenScript> screens_;
  PrinterQuestion before_;
  int asked_ = 0;

  QString Pdf() const { return loft_->Folder() / u"report.pdf"_s; }
  void PrintToPdf(const QString& file) {
    SetPrinterQuestion([this, file](QPrinter& printer, QWidget*) {
      ++asked_;
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(file);
      return true;
    });
  }
  /// What another program reads from the printed file; the pages end in form feeds.
  QString PdfText() const {
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, Pdf(), u"-"_s});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
      qFatal("pdftotext: %s", reader.readAllStandardError().data());
    return QString::fromUtf8(reader.readAllStandardOutput());
  }

  int Job(int lines) const {
    const int customer = loft_->Add(u"tblPeople"_s, {{u"firstname"_s, u"Ann"}, {u"lastname"_s, u"Jones"}});
    const int type = loft_->Add(u"tblRigTypes"_s, {{u"Name"_s, u"Sport rig"}});
    loft_->Add(u"tblRigTypeComponents"_s, {{u"RigTypeID"_s, type}, {u"ComponentTypeID"_s, 1}});
    const int rig = loft_->Add(u"tblRig"_s, {{u"rigAlias"_s, u"Blue"}, {u"TypeID"_s, type}, {u"OwnerID"_s, customer}});
    const int model = loft_->Add(u"tblModels"_s, {{u"Name"_s, u"Javelin"}, {u"TypeID"_s, 1}});
    loft_->Add(u"tblComponents"_s,
               {{u"RigID"_s, rig}, {u"TypeID"_s, 1}, {u"ModelID"_s, model}, {u"SerialNumber"_s, u"J-1001"}});
    const int job = loft_->Add(u"tblJobs"_s, {{u"JobTitle"_s, u"Spring service"},
                                              {u"CustomerID"_s, customer},
                                              {u"SystemID"_s, rig},
                                              {u"DateStarted"_s, Date::FromParts(2026, 3, 9)}});
    int task = 0;
    for (int line = 1; line <= lines; ++line)
      task = loft_->Add(u"tblTasks"_s, {{u"JobID"_s, job},
                                        {u"TaskName"_s, u"Service no. %1"_s.arg(line)},
                                        {u"FlatRate"_s, Money::FromText(u"12.75"_s)}});
    loft_->Add(u"tblSchedules"_s,
               {{u"rigID"_s, rig}, {u"TaskID"_s, task}, {u"DateDue"_s, Date::FromParts(2026, 9, 5)}});
    return job;
  }

  static QAction& Menu(QWidget& form, const QString& caption) {
    for (QAction* action : form.findChildren<QAction*>())
      if (QString(action->text()).remove(u'&') == caption) return *action;
    NoSuchControl(form, caption);
  }
  static QScrollBar& Bar(QWidget& form, const char* name) {
    return Control<QScrollBar>(form, QString::fromLatin1(name));
  }
  static QString ShownText(QWidget& form) { return Control<QWidget>(form, u"pic"_s).accessibleDescription(); }

 private Q_SLOTS:
  void init() {
    prompts_ = std::make_unique<ScriptedPrompts>();
    loft_ = std::make_unique<ThrowAwayLoft>();
    here_ = std::make_unique<DataFolderHere>(loft_->Folder());
    loft_->Folder().Write(u"support/address.txt"_s, "Sky Loft\r\n1 Airport Road\r\n");
    screens_ = std::make_unique<ScreenScript>();
    asked_ = 0;
    before_ = SetPrinterQuestion([this](QPrinter&, QWidget*) {
      ++asked_;
      return false;
    });
  }
  void cleanup() {
    SetPrinterQuestion(before_);
    screens_.reset();
    UnloadScreens();
    here_.reset();
    loft_.reset();
    prompts_.reset();
  }

  void TheInvoiceShowsAndPrints() {
    PrintToPdf(Pdf());
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Report"_s);
      QVERIFY(form.isModal());
      QVERIFY(ShownText(form).contains(u"Ann Jones"_s));
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 1 of 1"_s);
      QVERIFY(!Menu(form, u"Email"_s).isEnabled());
      Picture(form, u"preview"_s);
      ChooseMenu(form, {u"Print"_s});
      QVERIFY(form.isVisible());
      ChooseMenu(form, {u"Exit"_s});
    });
    DoReport(u"INVOICE"_s, Job(3));
    QCOMPARE(asked_, 1);
    const QString text = PdfText().simplified();
    for (const auto& line :
         {u"Sky Loft"_s, u"Ann Jones"_s, u"Job Title: Spring service"_s, u"Sport rig (Rig name: Blue)"_s,
          u"Component Model S/N DOM"_s, u"Container Javelin J-1001"_s, u"Service no. 1 12.75"_s,
          u"Service no. 3 12.75"_s, u"Total: 38.25"_s, u"Please note the following dates:"_s,
          u"Service no. 3 Due on 09/05/26"_s})
      QVERIFY2(text.contains(line), qPrintable(line + u"\nin\n"_s + text));
    QVERIFY(Forms::Names().isEmpty());
  }

  void PrintingFromTheLastPagePrintsTheWholeReport() {
    PrintToPdf(Pdf());
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      ChooseMenu(form, {u"Page Numbering"_s, u"Next page"_s});
      ChooseMenu(form, {u"Page Numbering"_s, u"Next page"_s});
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 3 of 3"_s);
      ChooseMenu(form, {u"Print"_s});
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 3 of 3"_s);
      form.close();
    });
    DoReport(u"invoice"_s, Job(130));
    const QString text = PdfText();
    QCOMPARE(text.count(u'\f'), 3);
    const QStringList pages = text.split(u'\f');
    QVERIFY(pages.at(0).contains(u"Service no. 1 "_s));
    QVERIFY(pages.at(1).contains(u"Service no. 60 "_s));
    QVERIFY(pages.at(2).contains(u"Service no. 130 "_s));
  }

  void PaperIsLetterAsTheReportLies_data() {
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QString>("size");
    QTest::newRow("portrait") << 1 << "612 x 792";
    QTest::newRow("landscape") << 2 << "792 x 612";
  }
  void PaperIsLetterAsTheReportLies() {
    QFETCH(int, orientation);
    PrintToPdf(Pdf());
    Canvas canvas(static_cast<PageOrientation>(orientation), {u"Arial"_s, 10, false, false});
    canvas.Print(u"x"_s);
    PrintPages(canvas.Drawn(), nullptr);
    QProcess reader;
    reader.start(u"pdfinfo"_s, {Pdf()});
    QVERIFY(reader.waitForFinished());
    const QString size = QString::fromUtf8(reader.readAllStandardOutput());
    QTEST(size.section(u"Page size:"_s, 1).trimmed().section(u" pts"_s, 0, 0), "size");
  }

  void ACancelledPrintDialogChangesNothing() {
    screens_->WhenShown(u"frmPrintPreview"_s, [this](Form& form) {
      const QString shown = ShownText(form);
      ChooseMenu(form, {u"Print"_s});
      QCOMPARE(asked_, 1);
      QVERIFY(form.isVisible());
      QCOMPARE(ShownText(form), shown);
      form.close();
    });
    DoReport(u"invoice"_s, Job(1));
    QVERIFY(!QFile::exists(Pdf()));
  }

  void ThePlatformsDialogOffersTheWholeReportOnly() {
    SetPrinterQuestion(before_);
    bool shown = false;
    QTimer::singleShot(0, this, [&shown] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      QVERIFY(dialog);
      shown = true;
      QVERIFY(!dialog->testOption(QAbstractPrintDialog::PrintPageRange));
      QVERIFY(!dialog->testOption(QAbstractPrintDialog::PrintSelection));
      QVERIFY(!dialog->testOption(QAbstractPrintDialog::PrintCurrentPage));
      QCOMPARE(dialog->printer()->pageLayout().pageSize().id(), QPageSize::Letter);
      dialog->reject();
    });
    PrintPages(Canvas(PageOrientation::Portrait, {u"Arial"_s, 10, false, false}).Drawn(), nullptr);
    QVERIFY(shown);
  }

  void APrinterThatFailsIsTold() {
    PrintToPdf(loft_->Folder() / u"gone/report.pdf"_s);
    prompts_->ExpectBox(u"Sub PrintPages"_s, u"Printer error"_s);
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      ChooseMenu(form, {u"Print"_s});
      QVERIFY(form.isVisible());
      form.close();
    });
    DoReport(u"invoice"_s, Job(1));
  }

  void UnknownKeysShowNoPreview() {
    prompts_->ExpectBox(kProgramTitle, u"don't know Nonsense"_s);
    DoReport(u"Nonsense"_s, 1);
  }

  void EscIsExit() {
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) { PressKey(form, u"picOuter"_s, Qt::Key_Escape); });
    DoReport(u"invoice"_s, Job(1));
    QVERIFY(Forms::Names().isEmpty());
  }

  void PagesTurnByMenuAndEndAtTheEnds() {
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      QAction& next = Menu(form, u"Next page"_s);
      QAction& prev = Menu(form, u"Prev page"_s);
      QVERIFY(next.isEnabled());
      QVERIFY(!prev.isEnabled());
      next.trigger();
      QVERIFY(ShownText(form).contains(u"Service no. 80"_s));
      QVERIFY(!next.isEnabled());
      QVERIFY(prev.isEnabled());
      prev.trigger();
      QVERIFY(ShownText(form).contains(u"Service no. 1 "_s));
      QVERIFY(!prev.isEnabled());
      form.close();
    });
    DoReport(u"invoice"_s, Job(80));
  }

  void KeysScrollAndTurnPages() {
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      form.resize(500, 500);
      QCoreApplication::processEvents();
      QScrollBar& down = Bar(form, "VScroll1");
      QScrollBar& across = Bar(form, "HScroll1");
      QVERIFY(down.maximum() > 0);
      QVERIFY(across.maximum() > 0);
      PressKey(form, u"picOuter"_s, Qt::Key_Right);
      QVERIFY(across.value() > 0);
      PressKey(form, u"picOuter"_s, Qt::Key_Left);
      QCOMPARE(across.value(), 0);
      PressKey(form, u"picOuter"_s, Qt::Key_Down);
      const int step = down.value();
      QVERIFY(step > 0);
      PressKey(form, u"picOuter"_s, Qt::Key_PageDown);
      QVERIFY(down.value() > step + 100);
      for (int press = 0; press < 3 && down.value() < down.maximum(); ++press)
        PressKey(form, u"picOuter"_s, Qt::Key_PageDown);
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 1 of 2"_s);
      PressKey(form, u"picOuter"_s, Qt::Key_PageDown);
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 2 of 2"_s);
      QCOMPARE(down.value(), 0);
      PressKey(form, u"picOuter"_s, Qt::Key_Up);
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 1 of 2"_s);
      QCOMPARE(down.value(), down.maximum());
      PressKey(form, u"picOuter"_s, Qt::Key_End);
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 2 of 2"_s);
      PressKey(form, u"picOuter"_s, Qt::Key_Home);
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 1 of 2"_s);
      QCOMPARE(down.value(), 0);
      form.close();
    });
    DoReport(u"invoice"_s, Job(80));
  }

  void AnotherFontDrawsTheSameReportAndIsKept() {
    const FontChoice courier = {u"Courier New"_s, 16, false, true};
    prompts_->ExpectFont(courier);
    prompts_->ExpectFont(std::nullopt);
    screens_->WhenShown(u"frmPrintPreview"_s, [this, courier](Form& form) {
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 1 of 1"_s);
      loft_->Run(u"update tblJobs set JobTitle = 'Changed'"_s);
      loft_->ChangeSchema("drop table tblTasks");
      loft_->Folder().Write(u"support/HTMLinvoice.txt"_s, "left alone");
      ChooseMenu(form, {u"Font"_s});
      QCOMPARE(TextOf(form, u"lblPage"_s), u"Page 1 of 2"_s);
      QVERIFY(ShownText(form).contains(u"Job Title: Spring service"_s));
      QVERIFY(ShownText(form).contains(u"Service no. 1 "_s));
      QCOMPARE(loft_->Folder().Read(u"support/HTMLinvoice.txt"_s), "left alone");
      QCOMPARE(ReadFonts(), courier);
      ChooseMenu(form, {u"Font"_s});
      QCOMPARE(ReadFonts(), courier);
      form.close();
    });
    DoReport(u"invoice"_s, Job(40));
  }

  void WhatAReportTellsIsToldOnce() {
    QVERIFY(QFile::remove(loft_->Folder() / u"support/address.txt"_s));
    prompts_->ExpectBox(u"No business address"_s,
                        u"You haven't entered a business address yet.\nYou can do this from the main screen.\n"
                        u"(See the SETUP menu)"_s);
    prompts_->ExpectFont(FontChoice{u"Courier New"_s, 16, false, true});
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      ChooseMenu(form, {u"Font"_s});
      ChooseMenu(form, {u"Print"_s});
      form.close();
    });
    DoReport(u"invoice"_s, Job(1));
    QCOMPARE(asked_, 1);
  }

  void AReportThatCannotBeReadShowsItsBoxAndNoPreview() {
    const int job = Job(1);
    loft_->ChangeSchema("drop table tblTasks");
    prompts_->AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    DoReport(u"invoice"_s, job);
    QCOMPARE(prompts_->Transcript().size(), 1);
    QCOMPARE(prompts_->Transcript().first().title, u"Sub Invoice"_s);
  }

  void AReportOfAnyMakingIsShown() {
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      QCOMPARE(ShownText(form), u"Jumps of Ann"_s);
      QVERIFY(Control<QWidget>(form, u"pic"_s).width() > Control<QWidget>(form, u"pic"_s).height());
      form.close();
    });
    ShowReport(Report{.orientation = PageOrientation::Landscape,
                      .paint = [](Canvas& page) { page.Print(u"Jumps of Ann"_s); }});
    ShowReport(std::nullopt);
  }

  void AFontTooGreatForAReportIsToldWheneverItIsChosen() {
    WriteFonts({u"Arial"_s, 14, false, false});
    prompts_->ExpectBox(u"Font size = 14"_s, u"Logbook cannot have font size > 10\n\nFont size changed to 10"_s);
    prompts_->ExpectFont(FontChoice{u"Arial"_s, 12, true, false});
    prompts_->ExpectBox(u"Font size = 12"_s, u"Logbook cannot have font size > 10\n\nFont size changed to 10"_s);
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      ChooseMenu(form, {u"Font"_s});
      form.close();
    });
    ShowReport(Report{.paint = [](Canvas& page) { page.Print(u"x"_s); }, .limitFont = LimitLogbookFont});
    QCOMPARE(ReadFonts(), (FontChoice{u"Arial"_s, 10, true, false}));
  }

  void TheWindowShrinksByHalf() {
    screens_->WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      const QSize before = form.size();
      QVERIFY(qAbs(before.height() - form.screen()->availableSize().height() * 0.9) <= 1);
      ChooseMenu(form, {u"Tools"_s, u"Shrink window 50%"_s});
      QCOMPARE(form.size(), before / 2);
      QCoreApplication::processEvents();
      QVERIFY(Bar(form, "VScroll1").maximum() > 0);
      form.close();
    });
    DoReport(u"invoice"_s, Job(1));
  }

  void AReportStartedMeanwhileTakesThePreviewOver() {
    const int first = Job(1);
    const int second = loft_->Add(u"tblJobs"_s, {{u"JobTitle"_s, u"Second job"}});
    screens_->WhenShown(u"frmPrintPreview"_s, [second](Form& form) {
      DoReport(u"invoice"_s, second);
      QVERIFY(form.isVisible());
      QVERIFY(ShownText(form).contains(u"Second job"_s));
      form.close();
    });
    DoReport(u"invoice"_s, first);
    QVERIFY(Forms::Names().isEmpty());
  }

  void TheBusinessAddressIsEditedAndSaved() {
    prompts_->ExpectBox(u"Business Address"_s, u"Saved"_s);
    screens_->WhenShown(u"frmComments"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Business Address"_s);
      QCOMPARE(TextOf(form, u"lblComments"_s), u"Enter business address"_s);
      auto& text = Control<QPlainTextEdit>(form, u"txtComments"_s);
      QCOMPARE(text.toPlainText(), u"Sky Loft\n1 Airport Road"_s);
      text.setPlainText(u"New Loft\n2 Hill\n\n"_s);
      Click(form, u"cmdSave"_s);
    });
    EditBusinessAddress();
    QCOMPARE(loft_->Folder().Read(u"support/address.txt"_s), "New Loft\r\n2 Hill\r\n");
    screens_->WhenShown(u"frmComments"_s, [](Form& form) { form.close(); });
    EditBusinessAddress();
    QCOMPARE(loft_->Folder().Read(u"support/address.txt"_s), "New Loft\r\n2 Hill\r\n");
  }
};

LOFT_TEST_MAIN(TestPrintPreview)
#include "tst_print_preview.moc"
