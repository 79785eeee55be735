#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileSystemModel>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>
#include <QTreeView>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/widgets/list.h"
#include "dbcare/screens.h"
#include "dbcare/screens/frmFolders.h"
#include "support/data_home.h"
#include "support/exported_loft.h"
#include "support/screens/controls.h"
#include "support/screens/keyboard.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

QTreeView& Tree(frmFolders& form) { return Control<QTreeView>(form, u"tree"_s); }

/// Waits until the tree shows a folder, as a person does, and gives its place.
QModelIndex Shown(frmFolders& form, const QString& folder) {
  auto& model = dynamic_cast<QFileSystemModel&>(*Tree(form).model());
  const auto shows = [&] {
    const QModelIndex index = model.index(folder);
    return index.isValid() && Tree(form).visualRect(index).isValid();
  };
  if (!QTest::qWaitFor(shows)) NoSuchControl(form, folder);
  return model.index(folder);
}

bool IsEnabled(Form& form, const QString& command) {
  for (const QAction* action : form.MenuBar()->actions().first()->menu()->actions())
    if (action->text().remove(u'&') == command) return action->isEnabled();
  NoSuchControl(form, command);
}

QStringList Names(List& list) {
  QStringList names;
  for (int row = 0; row < list.Count(); ++row) names << list.ItemText(row);
  return names;
}

}  // namespace

class FoldersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    QCoreApplication::setApplicationVersion(u"0.1.0"_s);
    home_ = std::make_unique<DataHome>();
    homeBefore_ = qgetenv("HOME");
    qputenv("HOME", home_->Folder().MakeFolder(u"Ann"_s).toUtf8());
    documents_ = home_->Folder().MakeFolder(u"Ann/Documents"_s);
    home_->Folder().MakeFolder(u"Ann/Desktop"_s);
    for (const char* folder : {"Loft", "Photos", "Photos/2026", ".hidden"})
      home_->Folder().MakeFolder(u"Ann/Documents/"_s + QString::fromLatin1(folder));
    home_->Folder().Write(u"Ann/Documents/Loft/loftkeep.mdb"_s, "x");
    home_->Folder().Write(u"Ann/Documents/Loft/notes.txt"_s, "x");
    CreateSubFolders();
    ConnectionString = ConnectionStringFor(DatabaseFile());
  }
  void cleanup() {
    UnloadScreens();
    qputenv("HOME", homeBefore_);
    home_.reset();
  }

  void EachModeHasItsTitle_data() {
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("wantsFile");
    QTest::newRow("backups") << QString() << u"Export back up database files"_s << false;
    QTest::newRow("moving") << u"moving"_s << u"Select or create an empty folder for file exporting"_s << false;
    QTest::newRow("importing") << u"IMPORTING"_s << u"Select source folder for importing"_s << false;
    QTest::newRow("selectdb") << u"selectdb"_s << u"Select database file (.mdb) to import"_s << true;
    QTest::newRow("db_only") << u"db_only"_s << u"Select database file (.mdb) to install"_s << true;
  }
  void EachModeHasItsTitle() {
    QFETCH(QString, mode);
    QFETCH(QString, title);
    QFETCH(bool, wantsFile);
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown<frmFolders>([&](frmFolders& form) {
      QCOMPARE(form.windowTitle(), title);
      QCOMPARE(form.Folder(), documents_);
      QVERIFY(form.isModal());
      QCOMPARE(Control<QWidget>(form, u"lblBackups"_s).isVisible(), mode.isEmpty());
      QCOMPARE(Control<QCheckBox>(form, u"chkDatabases"_s).isChecked(), wantsFile);
      QCOMPARE(Control<QCheckBox>(form, u"chkDatabases"_s).isEnabled(), mode != "db_only"_L1);
      QCOMPARE(Control<QWidget>(form, u"cmdSelect"_s).isEnabled(), !wantsFile);
      QCOMPARE(ClashesOf(form), QString());
      form.GoTo(documents_ + u"/Loft"_s);
      const auto isAbove = [&form](const QModelIndex& one, const QModelIndex& other) {
        return Tree(form).visualRect(one).top() < Tree(form).visualRect(other).top();
      };
      QTRY_VERIFY(isAbove(Shown(form, documents_ + u"/Loft"_s), Shown(form, documents_ + u"/Photos"_s)));
      Picture(form, u"frmFolders-"_s + QString::fromLatin1(QTest::currentDataTag()));
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(ChooseFolder(mode), u"cancel"_s);
    QVERIFY(Forms::Names().isEmpty());
  }

  void TheTreeIsWalkedByKeysAndMouse() {
    ScriptedPrompts prompts;
    auto& form = Open(u"moving"_s);
    const QModelIndex loft = Shown(form, documents_ + u"/Loft"_s);
    Shown(form, documents_ + u"/Photos"_s);
    QTest::mouseClick(Tree(form).viewport(), Qt::LeftButton, {}, Tree(form).visualRect(loft).center());
    QCOMPARE(form.Folder(), documents_ + u"/Loft"_s);
    QCOMPARE(TextOf(form, u"txtFolder"_s), documents_ + u"/Loft"_s);
    QCOMPARE(Names(Files(form)), (QStringList{u"loftkeep.mdb"_s, u"notes.txt"_s}));
    PressKey(form, u"tree"_s, Qt::Key_Down);
    QCOMPARE(form.Folder(), documents_ + u"/Photos"_s);
    QCOMPARE(Files(form).Count(), 0);
    PressKey(form, u"tree"_s, Qt::Key_Right);
    Shown(form, documents_ + u"/Photos/2026"_s);
    PressKey(form, u"tree"_s, Qt::Key_Down);
    QCOMPARE(form.Folder(), documents_ + u"/Photos/2026"_s);
    QCOMPARE(TabRoad(form, u"tree"_s),
             u"tree lstFiles chkHidden cmdNewFolder chkDatabases cmdSelect cmdCancel "
             "cboDrive cmdDocuments cmdDesktop txtFolder"_s);
  }

  void TheSelectedFolderIsTheOpenOne() {
    ScriptedPrompts prompts;
    auto& form = Open(u"moving"_s);
    const auto picture = [&](const QString& folder) {
      return Shown(form, folder).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    };
    const QImage closed = picture(documents_ + u"/Loft"_s);
    const QImage open = picture(documents_);
    QVERIFY(!open.isNull() && open != closed);
    form.GoTo(documents_ + u"/Loft"_s);
    QCOMPARE(picture(documents_ + u"/Loft"_s), open);
    QCOMPARE(picture(documents_), closed);
  }

  void TheShortCutsAndTheDrives() {
    ScriptedPrompts prompts;
    auto& form = Open(u"moving"_s);
    Click(form, u"cmdDesktop"_s);
    QCOMPARE(form.Folder(), home_->Folder() / u"Ann/Desktop"_s);
    Click(form, u"cmdDocuments"_s);
    QCOMPARE(form.Folder(), documents_);
    auto& drives = Control<QComboBox>(form, u"cboDrive"_s);
    const QString drive = drives.currentText();
    QVERIFY(!drive.isEmpty() && documents_.startsWith(drive));
    drives.clear();  // as if the drive had been plugged in only now
    QFocusEvent arrival(QEvent::FocusIn);
    QCoreApplication::sendEvent(&drives, &arrival);
    QCOMPARE(drives.currentText(), drive);
    PressKey(drives, Qt::Key_Home);
    Q_EMIT drives.textActivated(drives.currentText());
    QCOMPARE(form.Folder(), drives.currentText());
    QVERIFY(!Tree(form).currentIndex().isValid());
    form.UnloadForm();
    QVERIFY(QDir().rmdir(home_->Folder() / u"Ann/Desktop"_s));
    QVERIFY(!Control<QWidget>(Open(u"moving"_s), u"cmdDesktop"_s).isEnabled());
  }

  void HiddenFoldersAreShownWhenAskedFor() {
    ScriptedPrompts prompts;
    auto& form = Open(u"moving"_s);
    Shown(form, documents_ + u"/Loft"_s);
    const auto& model = *Tree(form).model();
    const auto folders = [&] { return model.rowCount(Shown(form, documents_)); };
    QTRY_COMPARE(folders(), 2);
    Click(form, u"chkHidden"_s);
    QTRY_COMPARE(folders(), 3);
    Click(form, u"chkHidden"_s);
    QTRY_COMPARE(folders(), 2);
    form.GoTo(documents_ + u"/.hidden"_s);
    QCOMPARE(form.Folder(), documents_ + u"/.hidden"_s);
    QVERIFY(Control<QCheckBox>(form, u"chkHidden"_s).isChecked());
  }

  void AFolderIsMade() {
    ScriptedPrompts prompts;
    auto& form = Open(u"moving"_s);
    const QString title = u"Create new folder"_s;
    const QString text = u"Enter the name of the new folder"_s;
    prompts.ExpectInput(title, text, QString());
    Click(form, u"cmdNewFolder"_s);
    QCOMPARE(form.Folder(), documents_);
    prompts.ExpectInput(title, text, u" Ann's stick "_s);
    Click(form, u"cmdNewFolder"_s);
    QCOMPARE(form.Folder(), documents_ + u"/Ann's stick"_s);
    QVERIFY(FolderExists(form.Folder()));
    home_->Folder().Write(u"Ann/Documents/file"_s, "in the way");
    form.GoTo(documents_);
    prompts.ExpectInput(title, text, u"file"_s);
    prompts.ExpectBox(documents_ + u"/file"_s, u"Unable to create new folder - Sub CreateFolder()"_s);
    Click(form, u"cmdNewFolder"_s);
    QCOMPARE(form.Folder(), documents_);
  }

  void APathIsSavedOfferedAndDeleted() {
    ScriptedPrompts prompts;
    auto& form = Open(u"moving"_s);
    auto& paths = Control<QComboBox>(form, u"cboPaths"_s);
    QCOMPARE(paths.count(), 0);
    QVERIFY(IsEnabled(form, u"Save path"_s) && !IsEnabled(form, u"Delete path"_s));
    prompts.ExpectBox(u"Loftkeep"_s, u"Path saved"_s);
    ChooseMenu(form, {u"Paths"_s, u"Save path"_s});
    prompts.ExpectBox(u"Loftkeep"_s, u"Path has already been saved"_s);
    ChooseMenu(form, {u"Paths"_s, u"Save path"_s});
    QCOMPARE(paths.count(), 1);
    QCOMPARE(paths.currentText(), documents_);
    form.GoTo(documents_ + u"/Loft"_s);
    QCOMPARE(paths.currentIndex(), -1);
    PressKey(paths, Qt::Key_Down);
    QCOMPARE(form.Folder(), documents_);
    prompts.Expect(u"Loftkeep"_s, u"Delete this path?"_s, Answer::No);
    ChooseMenu(form, {u"Paths"_s, u"Delete path"_s});
    QCOMPARE(paths.count(), 1);
    prompts.Expect(u"Loftkeep"_s, u"Delete this path?"_s, Answer::Yes);
    ChooseMenu(form, {u"Paths"_s, u"Delete path"_s});
    QCOMPARE(paths.count(), 0);
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/support/paths.txt"_s), QByteArray());
    QVERIFY(!IsEnabled(form, u"Delete path"_s));
  }

  void ASavedPathWhoseFolderHasGoneCanBeDeleted() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"home/loftkeep/support/paths.txt"_s, "/gone\r\n");
    auto& form = Open(u"moving"_s);
    prompts.ExpectBox(u"Loftkeep"_s, u"Path not found"_s);
    PressKey(form, u"cboPaths"_s, Qt::Key_Down);
    QCOMPARE(form.Folder(), documents_);
    prompts.Expect(u"Loftkeep"_s, u"Delete this path?"_s, Answer::Yes);
    ChooseMenu(form, {u"Paths"_s, u"Delete path"_s});
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/support/paths.txt"_s), QByteArray());
  }

  void WithoutASupportFolderNoPathIsSaved() {
    ScriptedPrompts prompts;
    DeleteFolderTree(DataPath);
    QVERIFY(!IsEnabled(Open(u"IMPORTING"_s), u"Save path"_s));
  }

  void APathIsEntered() {
    ScriptedPrompts prompts;
    auto& form = Open(u"moving"_s);
    prompts.ExpectInput(u"Loftkeep"_s, u"Enter path"_s, documents_ + u"/Photos/2026/"_s).Proposing(documents_);
    ChooseMenu(form, {u"Paths"_s, u"Enter path"_s});
    QCOMPARE(form.Folder(), documents_ + u"/Photos/2026"_s);
    prompts.ExpectInput(u"Loftkeep"_s, u"Enter path"_s, u"/gone"_s);
    prompts.ExpectBox(u"Loftkeep"_s, u"Path not found"_s);
    ChooseMenu(form, {u"Paths"_s, u"Enter path"_s});
    prompts.ExpectInput(u"Loftkeep"_s, u"Enter path"_s, QString());
    ChooseMenu(form, {u"Paths"_s, u"Enter path"_s});
    QCOMPARE(form.Folder(), documents_ + u"/Photos/2026"_s);
  }

  void ADatabaseFileIsChosen() {
    ScriptedPrompts prompts;
    ScreenScript screens;
    for (const QString& mode : {u"selectdb"_s, u"db_only"_s}) {
      screens.WhenShown<frmFolders>([this](frmFolders& form) {
        form.GoTo(documents_ + u"/Loft"_s);
        QCOMPARE(Names(Files(form)), QStringList{u"loftkeep.mdb"_s});
        PressKey(form, u"lstFiles"_s, Qt::Key_Down);
        PressKey(form, Qt::Key_Return);
      });
      QCOMPARE(ChooseFolder(mode), documents_ + u"/Loft/loftkeep.mdb"_s);
    }
  }

  void OnlyADatabaseFileCanBeSelected() {
    ScriptedPrompts prompts;
    auto& form = Open(u"selectdb"_s);
    form.GoTo(documents_ + u"/Loft"_s);
    Click(form, u"chkDatabases"_s);
    Files(form).SetListIndex(1);
    QVERIFY(!Control<QWidget>(form, u"cmdSelect"_s).isEnabled());
    Files(form).SetListIndex(0);
    QVERIFY(Control<QWidget>(form, u"cmdSelect"_s).isEnabled());
    Q_EMIT Files(form).ItemDoubleClick(0);
    QVERIFY(Forms::Names().isEmpty());
  }

  void AnExportWantsAnEmptyFolder() {
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown<frmFolders>([&](frmFolders& form) {
      form.GoTo(documents_ + u"/Loft"_s);
      prompts.ExpectBox(u"Loftkeep"_s,
                        u"There are 2 files in the selected folder.\nPlease select or create an empty folder"_s);
      Click(form, u"cmdSelect"_s);
      QVERIFY(form.isVisible());
      form.GoTo(documents_ + u"/Photos"_s);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(ChooseFolder(u"moving"_s), documents_ + u"/Photos"_s);
  }

  void TheBackupsGoToTheChosenFolder() {
    ScriptedPrompts prompts;
    ScreenScript screens;
    home_->Folder().Write(u"home/loftkeep/backup/db00001.mdb"_s, "a backup");
    screens.WhenShown<frmFolders>([&](frmFolders& form) {
      QCOMPARE(TextOf(form, u"lblBackups"_s), u"There is one file in the backup folder"_s);
      form.GoTo(documents_ + u"/Photos"_s);
      const QString question =
          u"There is one backup database file present\nYou are about to copy your backup \n"
          "database files from:\n   %1backup/\n              to\n   %2/Photos\n"
          "Are you ready to copy?"_s.arg(DataPath, documents_);
      prompts.Expect(u"Export backup database files"_s, question, Answer::No);
      Click(form, u"cmdSelect"_s);
      QVERIFY(form.isVisible());
      prompts.Expect(u"Export backup database files"_s, question, Answer::Yes);
      Click(form, u"cmdSelect"_s);
    });
    ExportBackupFiles();
    QCOMPARE(home_->Folder().Read(u"Ann/Documents/Photos/db00001.mdb"_s), QByteArray("a backup"));
  }

  void AnImportIsDoneOrTheChooserStays() {
    ScriptedPrompts prompts;
    ScreenScript screens;
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
    const QString theirs = MakeExport(home_->Folder());
    screens.WhenShown<frmFolders>([&](frmFolders& form) {
      form.GoTo(documents_);
      prompts.ExpectBox(u"Selected folder is empty"_s, u"There are no files in selected folder"_s);
      Click(form, u"cmdSelect"_s);
      QVERIFY(form.isVisible());
      form.GoTo(theirs);
      prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
      Click(form, u"cmdSelect"_s);
    });
    QVERIFY(ImportFromFolder());
    QCOMPARE(prompts.Transcript().last().title, u"Continue?"_s);
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"New"_s});
    screens.WhenShown<frmFolders>([](frmFolders& form) { Click(form, u"cmdCancel"_s); });
    QVERIFY(!ImportFromFolder());
  }

 private:
  static frmFolders& Open(const QString& mode) {
    IsolateSettings();
    auto& form = SharedForm<frmFolders>();
    form.SetMode(mode);
    form.Show();
    return form;
  }

  static List& Files(frmFolders& form) { return Control<List>(form, u"lstFiles"_s); }

  std::unique_ptr<DataHome> home_;
  QByteArray homeBefore_;
  QString documents_;
};

LOFT_TEST_MAIN(FoldersTest)
#include "tst_folders.moc"
