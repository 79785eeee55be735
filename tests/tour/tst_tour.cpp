#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/files.h"
#include "core/format.h"
#include "core/shell/frmMain2.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmSplash.h"
#include "core/shell/start_up.h"
#include "core/splash_info.h"
#include "core/store/access.h"
#include "core/text_files.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "reports/screens/print_pages.h"
#include "support/data_home.h"
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

/// From an empty machine to a printed invoice for a completed reserve repack, on the real screens, by mouse and key, in
/// one loft. Each step checks the rows that it left in the database; each screen leaves its picture.
class Tour : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    IsolateSettings();
    home_ = std::make_unique<DataHome>();
    QVERIFY(QFile::copy(QFINDTESTDATA("../support/models.txt"), home_->Folder() / u"work/models.txt"_s));
    QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + u"/../src/blank.mdb"_s,
                        home_->Folder() / u"work/blank.mdb"_s));
    SetClock(Date::FromParts(2026, 3, 2));
  }
  void cleanupTestCase() {
    UnloadScreens();
    LeaveDataFolder();
    home_.reset();
    SetClock(std::nullopt);
  }

  void FirstRun() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    screens.WhenShown(u"frmInstall"_s, [](Form& form) {
      Picture(form, u"01-install"_s);
      Control<QRadioButton>(form, u"optNew"_s).click();
      Click(form, u"cmdOK"_s);
    });
    prompts.ExpectBox(u"Create new database"_s,
                      u"Preparing to create new database.\n\nThis should take just a few seconds .........."_s);
    prompts.ExpectBox(u"Loftkeep"_s, u"New database file installed successfully"_s);
    prompts.ExpectBox(u"Your Information"_s, u"Please enter your name\n\nPress OK to continue"_s);
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      QTest::qWait(0);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Rita Rigger"_s);
      Picture(form, u"03-owner"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPeopleEdit"_s, [](Form& form) {
      TypeInto(form, u"txtLast"_s, u"rigger"_s);
      TypeInto(form, u"txtFirst"_s, u"rita"_s);
      Control<QCheckBox>(form, u"chkRigger"_s).click();
      Picture(form, u"02-your-name"_s);
      Click(form, u"cmdSave"_s);
    });
    prompts.ExpectInput(u"Enter repack cycle (in days)"_s, u"Reserve must be repacked every 180 days"_s, u"180"_s)
        .Proposing(u"180"_s);
    prompts.ExpectBox(u"Repack Cycle Saved"_s, u"Repack cycle is now set to 180 days"_s);
    prompts.ExpectBox(u"Welcome!"_s,
                      u"Setup is complete!  Welcome to Loftkeep!\n\nBe sure to check out the HELP menu.  There's a \n"
                      "select called QUICK TOUR that will get you started.\n\nThank you for using Loftkeep!"_s);
    QVERIFY(SubMain());

    for (const QString& folder :
         {u"photos/thumbnail"_s, u"photos/hires"_s, u"photos/archive"_s, u"backup"_s, u"other"_s})
      QVERIFY2(FolderExists(DataPath + folder), qPrintable(folder));
    for (const QString& file : {u"blank.mdb"_s, u"models.txt"_s})
      QVERIFY2(ExistFile(SupportFile(file)), qPrintable(file));
    QCOMPARE(Rows(u"select ID, lastname, firstname, rigger from tblPeople"_s), QStringList{u"1|Rigger|Rita|-1"_s});
    QCOMPARE(Rows(u"select UserID, RepackCycle, DefaultRigTypeID from tblMisc"_s), QStringList{u"1|180|1"_s});
    QCOMPARE(Rows(u"select ID, Name, IntervalType, IntervalNumber from tblTaskLib order by ID"_s),
             (QStringList{u"1|Inspect and repack reserve|1|180"_s, u"2|Install component|0|0"_s,
                          u"3|Remove component|0|0"_s}));
    QCOMPARE(Rows(u"select count(*) from tblComponentTypes"_s), QStringList{u"7"_s});
    QCOMPARE(Rows(u"select Name from tblRigTypes order by ID"_s),
             (QStringList{u"Sport Rig"_s, u"Tandem Rig"_s, u"Pilot Emergency Rig (back)"_s,
                          u"Pilot Emergency Rig (seat)"_s}));
    const int lines = static_cast<int>(ReadLines(SupportFile(u"models.txt"_s)).size());
    const int makers = Rows(u"select ID from tblManufacturers"_s).size();
    const int models = Rows(u"select ID from tblModels"_s).size();
    QVERIFY(models > 200);
    QCOMPARE(2 + 2 * makers + 4 * models, lines);
  }

  void HomePageMenuAndCounts() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    auto& splash = SharedForm<frmSplash>();
    QVERIFY(splash.isVisible());
    QCOMPARE(TextOf(splash, u"lblInfo"_s),
             u"1 customers \n0 rigs\n\n0 invoices\n0 tasks\n0 reserve pack jobs\n%1 manufactures\n%2 models\n\n"
             "0 scheduled tasks\n1 rigger\n\nThere are 0 tasks overdue\nThere are 0 tasks due within 30 days\n"
             "There are 0 tasks due within 60 days\nThere are 0 tasks due within 90 days"_s
                 .arg(Rows(u"select * from tblManufacturers"_s).size())
                 .arg(Rows(u"select * from tblModels"_s).size()));
    QCOMPARE(TextOf(splash, u"lblBackup"_s), u"Last database backup was performed on (never!)"_s);
    Picture(splash, u"04-splash"_s);
    Picture(Home(), u"05-home"_s);
    Picture(SharedForm<frmMenu>(), u"06-menu"_s);
    QTest::mouseClick(&splash, Qt::LeftButton);
    QVERIFY(!Forms::IsShown(u"frmSplash"_s));
    QCOMPARE(TextOf(Home(), u"lblDate"_s), u"Monday, Mar 2 2026"_s);
  }

  void ACustomerIsAdded() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    Click(Home(), u"cmdPeople"_s);
    Form& people = Shown(u"frmPeople"_s);
    screens.WhenShown(u"frmPeopleEdit"_s, [](Form& form) {
      const std::pair<const char*, const char*> values[] = {
          {"txtLast", "o'brien"}, {"txtFirst", "ann"}, {"txtAddress1", "7 Drop Zone Rd"}, {"txtCity", "Perris"},
          {"txtState", "ca"},     {"txtZip", "92570"}, {"txtPhoneCell", "555-0107"}};
      for (const auto& [box, text] : values) TypeInto(form, QString::fromLatin1(box), QString::fromLatin1(text));
      Picture(form, u"07-new-customer"_s);
      Click(form, u"cmdSave"_s);
    });
    Click(people, u"cmdAddNew"_s);
    QCOMPARE(Rows(u"select lastname, firstname, city, state, zip, phonecell, comment, rigger, PhotoName from tblPeople "
                  "where ID = 2"_s),
             QStringList{u"O'brien|Ann|Perris|CA|92570|555-0107| |0|"_s});
    QCOMPARE(Rows(u"select LastCustomerID from tblMisc"_s), QStringList{u"2"_s});
    QCOMPARE(TextOf(people, u"lblRigs"_s), u"No rigs"_s);
    Picture(people, u"08-customers"_s);
    PressKey(people, Qt::Key_Escape);
    QVERIFY(!Forms::IsShown(u"frmPeople"_s));
  }

  void ARigIsFilledFromEmptyRows() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    Click(Home(), u"cmdRigs"_s);
    Form& rigs = Shown(u"frmGetRig"_s);
    prompts.ExpectInput(u"Loftkeep"_s, u"What do you want to call this new rig?"_s, u"Ann's Javelin"_s);
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select Rig Type"_s);
      Picture(form, u"09-rig-type"_s);
      Click(form, u"cmdSelect"_s);
    });
    prompts.ExpectBox(u"Select rig components"_s,
                      u"Rig: Ann's Javelin has been created.\n\nTo select this rig's components, click on the grid\n"
                      "and select the Enter/Edit Component button."_s);
    Click(rigs, u"cmdAddRig"_s);
    prompts.Finish();
    QCOMPARE(Rows(u"select ID, OwnerID, TypeID, rigAlias, Comment from tblRig"_s),
             QStringList{u"1|2|1|Ann's Javelin| "_s});

    struct Piece {
      const char* model;
      const char* subType;
      const char* serial;
      const char* dom;
    };
    constexpr Piece kPieces[] = {{"Mirage G4.1", "", "MG-4711", "5/1/2019"},
                                 {"Pilot", "168", "P168-22", "6/15/2019"},
                                 {"Optimum", "143", "OP-143-9", "4/2/2019"},
                                 {"Vigil 2+", "", "V2-90210", "2019"}};
    auto& grid = Control<Grid>(rigs, u"Grid"_s);
    QCOMPARE(grid.RowCount(), 4);
    for (int row = 0; row < 4; ++row) {
      const Piece piece = kPieces[row];
      screens.WhenShown(u"frmNewOrOld"_s, [row](Form& form) {
        if (row == 0) Picture(form, u"10-new-or-old"_s);
        Click(form, u"cmdNew"_s);
      });
      screens.WhenShown(u"frmPicker"_s, [row, piece](Form& form) {
        TypeInto(form, u"txt"_s, QString::fromLatin1(piece.model).toLower());
        if (row == 0) Picture(form, u"11-model"_s);
        PressKey(form, u"txt"_s, Qt::Key_Return);
      });
      screens.WhenShown(u"frmComponentEdit"_s, [row, piece](Form& form) {
        QCOMPARE(TextOf(form, u"lblModel"_s), QString::fromLatin1(piece.model));
        TypeInto(form, u"txtSubType"_s, QString::fromLatin1(piece.subType));
        TypeInto(form, u"txtSerial"_s, QString::fromLatin1(piece.serial));
        TypeInto(form, u"txtDom"_s, QString::fromLatin1(piece.dom));
        if (row == 2) Picture(form, u"12-component"_s);
        Click(form, u"cmdSave"_s);
      });
      ClickCell(grid, row, 1);
      Click(rigs, u"cmdEnter"_s);
    }
    QCOMPARE(
        Rows(u"select TypeID, (select Name from tblModels where ID = ModelID), SubType, SerialNumber, DOM, OwnerID, "
             "RigID, Comment from tblComponents order by ID"_s),
        (QStringList{u"1|Mirage G4.1||MG-4711|%1|2|1| "_s.arg(Date::FromParts(2019, 5, 1).Days()),
                     u"2|Pilot|168|P168-22|%1|2|1| "_s.arg(Date::FromParts(2019, 6, 15).Days()),
                     u"3|Optimum|143|OP-143-9|%1|2|1| "_s.arg(Date::FromParts(2019, 4, 2).Days()),
                     u"4|Vigil 2+||V2-90210|%1|2|1| "_s.arg(Date::FromParts(2019, 1, 1).Days())}));
    QCOMPARE(grid.Text(2, 2), u"Optimum 143"_s);
    QCOMPARE(grid.Text(3, 4), u"01/01/2019"_s);
    Picture(rigs, u"13-rig"_s);
  }

  void AJobIsStartedOnTheRig() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    Form& rigs = Shown(u"frmGetRig"_s);
    screens.WhenShown(u"frmNewJob"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"txtName"_s), u"Ann's Javelin 3/2/2026"_s);
      Picture(form, u"14-new-job"_s);
      TypeInto(form, u"txtName"_s, u"Spring repack"_s);
      Click(form, u"cmdOK"_s);
    });
    ChooseMenu(rigs, {u"Jobs"_s, u"Start new job"_s});
    const QString today = QString::number(Today().Days());
    QCOMPARE(
        Rows(u"select ID, JobTitle, CustomerID, SystemID, RiggerID, LocationID, ComponentID, JobStatus, DateStarted, "
             "DateCompleted, Comments from tblJobs"_s),
        QStringList{u"1|Spring repack|2|1|1|0|0|-1|%1|0| "_s.arg(today)});
    QCOMPARE(Rows(u"select JobID, ComponentID from tblJobComponents order by ComponentID"_s),
             (QStringList{u"1|1"_s, u"1|2"_s, u"1|3"_s, u"1|4"_s}));
    QCOMPARE(Rows(u"select InvoiceNumber from tblJobs"_s), QStringList{u"1"_s});
    Picture(Shown(u"frmJob"_s), u"15-job"_s);
  }

  void TheRepackIsCompletedAndTakenBack() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    Form& job = Shown(u"frmJob"_s);
    auto& list = Control<List>(job, u"lstTasks"_s);
    list.SetListIndex(0);
    PressKey(list, Qt::Key_Return);
    const QString today = QString::number(Today().Days());
    const QString task =
        u"select TaskLibID, JobID, SystemID, CustomerID, RiggerID, status, DateTaskStarted, "
        "DateTaskCompleted, LogBook, PartID, IsEvent, TaskName from tblTasks"_s;
    const QString gear = u"select TaskID, CompID, Complete from tblTaskComponents order by CompID"_s;
    const QString due = u"select rigID, TaskLibID, DateDone, DateDue, TaskID, ComponentID from tblSchedules"_s;
    const QString state = u"select JobStatus, DateCompleted from tblJobs"_s;
    const auto isOpen = [&] {
      QCOMPARE(Rows(task), QStringList{u"1|1|1|2|1|0|%1|0|-1|0|0|Inspect and repack reserve"_s.arg(today)});
      QCOMPARE(Rows(gear), (QStringList{u"1|1|0"_s, u"1|3|0"_s}));
      QCOMPARE(Rows(due), QStringList());
      QCOMPARE(Rows(state), QStringList{u"0|0"_s});
    };
    const auto isComplete = [&] {
      QCOMPARE(Rows(task), QStringList{u"1|1|1|2|1|-1|%1|%1|-1|0|0|Inspect and repack reserve"_s.arg(today)});
      QCOMPARE(Rows(gear), (QStringList{u"1|1|-1"_s, u"1|3|-1"_s}));
      QCOMPARE(Rows(due), QStringList{u"1|1|%1|%2|1|0"_s.arg(today).arg(Today().Days() + 180)});
      QCOMPARE(Rows(state), QStringList{u"-1|%1"_s.arg(today)});
    };
    constexpr int kPrice = 2;
    constexpr int kStatus = 3;
    isOpen();
    auto& lines = Control<Grid>(job, u"Grid2"_s);
    ClickCell(lines, 0, kStatus);
    isComplete();
    QCOMPARE(lines.Text(0, kStatus), u"Completed"_s);
    QVERIFY(Control<QWidget>(job, u"lblJobComplete"_s).isVisible());
    ClickCell(lines, 0, kStatus);
    isOpen();
    PressKey(lines, Qt::Key_Space);
    isComplete();
    ClickCell(lines, 0, kPrice);
    QVERIFY(lines.IsEditing());
    lines.Editor()->selectAll();
    QTest::keyClicks(lines.Editor(), u"75.50"_s);
    QTest::keyClick(lines.Editor(), Qt::Key_Return);
    QCOMPARE(Rows(u"select FlatRate from tblTasks"_s), QStringList{u"755000"_s});
    isComplete();
    Picture(job, u"16-job-complete"_s);
    ChooseMenu(job, {u"Forms"_s, u"Arrange forms"_s});
    QCOMPARE(SharedForm<frmMenu>().pos(), QPoint(0, 0));
    QCOMPARE(Home().pos().y(), 0);
    QVERIFY(job.pos().y() > Home().pos().y());
  }

  void TheInvoiceIsPrinted() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    screens.WhenShown(u"frmComments"_s, [](Form& form) {
      Control<QPlainTextEdit>(form, u"txtComments"_s).setPlainText(u"Rita's Loft\n1 Airport Road"_s);
      Picture(form, u"17-business-address"_s);
      Click(form, u"cmdSave"_s);
    });
    prompts.ExpectBox(u"Business Address"_s, u"Saved"_s);
    ChooseMenu(Home(), {u"Set up"_s, u"Business title and address"_s});

    const QString pdf = home_->Folder() / u"invoice.pdf"_s;
    SetPrinterQuestion([pdf](QPrinter& printer, QWidget*) {
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(pdf);
      return true;
    });
    screens.WhenShown(u"frmPrintPreview"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Report"_s);
      Picture(form, u"18-invoice"_s);
      ChooseMenu(form, {u"Print"_s});
      PressKey(form, Qt::Key_Escape);
    });
    ChooseMenu(Shown(u"frmJob"_s), {u"Invoice"_s, u"View/Print/Email invoice"_s});
    const QString paper = PdfText(pdf);
    const QString mail = GetFileText(SupportFile(u"HTMLinvoice.txt"_s));
    const QString due = Format(Today() + 180, u"mm/dd/yy"_s);
    for (const QString& text : {u"Rita's Loft"_s, u"Job Title: Spring repack"_s, u"Rig: Ann's Javelin"_s,
                                u"Invoice #1"_s, u"Ann O'brien"_s, u"MG-4711"_s, u"Inspect and repack reserve"_s,
                                u"75.50"_s, u"Please note the following dates:"_s, u"Due on "_s + due}) {
      QVERIFY2(paper.contains(text), qPrintable(text + u" is not on paper:\n"_s + paper));
      QVERIFY2(Plain(mail).contains(text), qPrintable(text + u" is not in the mail:\n"_s + mail));
    }
    QVERIFY(mail.contains(u"$75.50"_s));
  }

  void LeavingAsksAndTheDataStays() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    const QStringList before = Rows(u"select * from tblTasks"_s) + Rows(u"select * from tblSchedules"_s) +
                               Rows(u"select * from tblComponents"_s);
    prompts.Expect(u"Leaving?"_s, u"Exit Loftkeep?"_s, Answer::No).WithPreset(Answer::No);
    Click(Home(), u"cmdExit"_s);
    QVERIFY(Forms::IsShown(u"frmJob"_s));
    prompts.Expect(u"Leaving?"_s, u"Exit Loftkeep?"_s, Answer::Yes);
    Click(Home(), u"cmdExit"_s);
    QCOMPARE(Forms::Names(), QStringList());
    LeaveDataFolder();
    prompts.Finish();

    QVERIFY(SubMain());
    QCOMPARE(Rows(u"select * from tblTasks"_s) + Rows(u"select * from tblSchedules"_s) +
                 Rows(u"select * from tblComponents"_s),
             before);
    QVERIFY(TextOf(Shown(u"frmSplash"_s), u"lblInfo"_s)
                .startsWith(u"2 customers \n1 rigs\n\n1 invoices\n1 tasks\n1 reserve pack jobs\n"_s));
    Picture(Shown(u"frmSplash"_s), u"19-splash-again"_s);
    auto& menu = Control<QListWidget>(SharedForm<frmMenu>(), u"lst"_s);
    for (int row = 0; row < menu.count(); ++row)
      if (menu.item(row)->text() == u"Job"_s)
        QTest::mouseClick(menu.viewport(), Qt::LeftButton, {}, menu.visualItemRect(menu.item(row)).center());
    QCOMPARE(TextOf(Shown(u"frmJob"_s), u"lblJob"_s), u"Spring repack"_s);
    QCOMPARE(Control<Grid>(Shown(u"frmJob"_s), u"Grid2"_s).Text(0, 3), u"Completed"_s);
  }

 private:
  static QStringList Rows(const QString& sql) { return RowsOfFile(DatabaseFile(), sql); }
  static Form& Home() { return SharedForm<frmMain2>(); }
  static Form& Shown(const QString& name) {
    auto* form = dynamic_cast<Form*>(Forms::Find(name));
    if (form == nullptr || !form->isVisible()) qFatal("%s is not on show", qPrintable(name));
    return *form;
  }
  static QString PdfText(const QString& pdf) {
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
      qFatal("pdftotext: %s", reader.readAllStandardError().data());
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
  /// HTML with its escapes taken back.
  static QString Plain(QString html) {
    return html.replace(u"&#39;"_s, u"'"_s).replace(u"&quot;"_s, u"\""_s).replace(u"&amp;"_s, u"&"_s);
  }

  std::unique_ptr<DataHome> home_;
};

LOFT_TEST_MAIN(Tour)
#include "tst_tour.moc"
