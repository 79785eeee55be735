#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "core/widgets/form.h"
#include "core/widgets/qt_prompts.h"
#include "core/widgets/screen_routines.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class frmSample : public Form {
  Q_OBJECT
 public:
  frmSample() {
    auto* column = new QVBoxLayout(this);
    for (const char* name : {"cmdFirst", "cmdOK"}) {
      auto* button = new QPushButton(QString::fromLatin1(name), this);
      button->setObjectName(QString::fromLatin1(name));
      column->addWidget(button);
      connect(button, &QPushButton::clicked, this, [this, button] { pressed += button->objectName(); });
    }
    findChild<QPushButton*>(u"cmdOK"_s)->setDefault(true);
    auto* box = new QLineEdit(this);
    box->setObjectName(u"txt"_s);
    column->addWidget(box);
    ++made;
  }
  void ReloadForm() override { ++reloads; }

  QStringList pressed;
  int reloads = 0;
  static inline int made = 0;
};

class frmOther : public Form {
  Q_OBJECT
 public:
  frmOther() { (new QPushButton(u"Press"_s, this))->setObjectName(u"cmdPress"_s); }
};

class TestForm : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() {
    UnloadScreens();
    SetBeforePrompt(nullptr);
  }

  void OneSharedInstanceStandsInTheCollection() {
    frmSample::made = 0;
    QVERIFY(!FormIfLoaded<frmSample>());
    frmSample& form = SharedForm<frmSample>();
    QCOMPARE(&SharedForm<frmSample>(), &form);
    QCOMPARE(frmSample::made, 1);
    QCOMPARE(Forms::Names(), QStringList{u"frmSample"_s});
    QVERIFY(!Forms::IsShown(u"FRMSAMPLE"_s));
    form.Show();
    QVERIFY(Forms::IsShown(u"frmsample"_s));
  }

  void UnloadingForgetsAtOnceAndDeletesLater() {
    const QPointer<frmSample> form = &SharedForm<frmSample>();
    form->Show();
    form->UnloadForm();
    QVERIFY(!form->isVisible());
    QVERIFY(Forms::Names().isEmpty());
    QVERIFY(form);
    QVERIFY(&SharedForm<frmSample>() != form);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!form);
  }

  void EscCancelsAModalFormWhoseCallerReadsTheTag() {
    ScreenScript screens;
    frmSample& form = SharedForm<frmSample>();
    form.SetTag(u"old"_s);
    screens.WhenShown<frmSample>([](frmSample& shown) {
      QVERIFY(shown.isModal());
      QCOMPARE(shown.Tag(), QString());
      PressKey(shown, u"txt"_s, Qt::Key_Escape);
    });
    form.ShowModal();
    QCOMPARE(form.Tag(), u"cancel"_s);
    QVERIFY(!form.isVisible());
    QCOMPARE(&SharedForm<frmSample>(), &form);
  }

  void TheWindowsCloseButtonCancelsToo() {
    ScreenScript screens;
    screens.WhenShown(u"frmSample"_s, [](Form& shown) { shown.close(); });
    SharedForm<frmSample>().ShowModal();
    QCOMPARE(SharedForm<frmSample>().Tag(), u"cancel"_s);
  }

  void LeavingAFormThatStandsByItselfUnloadsIt() {
    SharedForm<frmSample>().Show();
    PressKey(SharedForm<frmSample>(), u"txt"_s, Qt::Key_Escape);
    QVERIFY(!FormIfLoaded<frmSample>());
  }

  void AFormShownFromAModalOneCanBeUsed() {
    ScreenScript screens;
    screens.WhenShown(u"frmSample"_s, [](Form& shown) {
      auto& other = SharedForm<frmOther>();
      other.Show();
      QVERIFY(!other.isModal());
      QSignalSpy pressed(&Control<QPushButton>(other, u"cmdPress"_s), &QPushButton::clicked);
      const QPoint inButton(5, 5);
      QTest::mouseClick(other.windowHandle(), Qt::LeftButton, {}, inButton);  // by way of the window, as a person does
      QCOMPARE(pressed.count(), 1);
      shown.close();
    });
    SharedForm<frmSample>().ShowModal();
    QVERIFY(SharedForm<frmOther>().isVisible());
    QVERIFY(!SharedForm<frmOther>().windowHandle()->transientParent());
  }

  void AFormBroughtForwardFromItsOwnModalFormCanBeUsed() {
    ScreenScript screens;
    auto& other = SharedForm<frmOther>();
    other.Show();
    screens.WhenShown(u"frmSample"_s, [&](Form& shown) {
      QCOMPARE(shown.windowHandle()->transientParent(), other.windowHandle());
      other.Show();
      QCOMPARE(other.windowHandle()->transientParent(), shown.windowHandle());
      QVERIFY(!shown.windowHandle()->transientParent());
      shown.close();
    });
    SharedForm<frmSample>().SetCaller(&other);
    SharedForm<frmSample>().ShowModal();
    QVERIFY(!other.windowHandle()->transientParent());
  }

  void EnterPressesTheFocusedElseTheDefaultButton() {
    frmSample& form = SharedForm<frmSample>();
    form.Show();
    PressKey(form, u"txt"_s, Qt::Key_Return);
    QCOMPARE(form.pressed, QStringList{u"cmdOK"_s});
    Control<QPushButton>(form, u"cmdFirst"_s).setFocus();
    PressKey(form, u"cmdFirst"_s, Qt::Key_Return);
    QCOMPARE(form.pressed, QStringList({u"cmdOK"_s, u"cmdFirst"_s}));
    Control<QPushButton>(form, u"cmdOK"_s).setDefault(false);
    Control<QLineEdit>(form, u"txt"_s).setFocus();
    PressKey(form, u"txt"_s, Qt::Key_Return);
    QCOMPARE(form.pressed.size(), 2);
  }

  void AModalFormSettlesTheStoreAndSetsTheBusyPointerAside() {
    static int settled;
    settled = 0;
    SetBeforePrompt([] { ++settled; });
    QtPrompts boxes;
    Prompts* before = SetPrompts(&boxes);
    SetBusyPointer(true);
    QVERIFY(QGuiApplication::overrideCursor());
    ScreenScript screens;
    screens.WhenShown(u"frmSample"_s, [](Form& shown) {
      QCOMPARE(settled, 1);
      QVERIFY(!QGuiApplication::overrideCursor());
      shown.close();
    });
    SharedForm<frmSample>().ShowModal();
    QVERIFY(QGuiApplication::overrideCursor());

    screens.WhenShown(u"frmSample"_s, [](Form& shown) {
      SetBusyPointer(false);
      shown.close();
    });
    SharedForm<frmSample>().ShowModal();
    QVERIFY(!QGuiApplication::overrideCursor());
    SetPrompts(before);
  }

  void AFormUnloadedWhileShownModallyEndsItsShowing() {
    ScreenScript screens;
    const QPointer<frmSample> form = &SharedForm<frmSample>();
    screens.WhenShown(u"frmSample"_s, [](Form& shown) {
      shown.SetTag(u"end"_s);
      shown.UnloadForm();
    });
    form->ShowModal();
    QVERIFY(form);
    QCOMPARE(form->Tag(), u"end"_s);
    QVERIFY(!FormIfLoaded<frmSample>());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!form);
  }

  void AFormIsNotDeletedBelowAModalLoop() {
    ScreenScript screens;
    const QPointer<frmSample> form = &SharedForm<frmSample>();
    form->Show();
    screens.WhenShown(u"frmOther"_s, [&](Form& other) {
      form->UnloadForm();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      QVERIFY(form);
      other.close();
    });
    SharedForm<frmOther>().ShowModal();
    QVERIFY(form);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!form);
  }

  void AShownFormCanBeShownModallyAndAgainBesideOthers() {
    ScreenScript screens;
    frmSample& form = SharedForm<frmSample>();
    form.Show();
    screens.WhenShown(u"frmSample"_s, [](Form& shown) { shown.close(); });
    form.ShowModal();
    form.Show();
    QVERIFY(form.isVisible());
    QVERIFY(!form.isModal());
  }

  void PlaceAndSizeAreRemembered() {
    frmSample& form = SharedForm<frmSample>();
    form.Show();
    form.setGeometry(120, 90, 333, 222);
    UnloadScreens();
    frmSample& again = SharedForm<frmSample>();
    again.Show();
    QCOMPARE(again.geometry(), QRect(120, 90, 333, 222));
  }

  void TheMenuBarStandsAboveTheForm() {
    frmSample& form = SharedForm<frmSample>();
    form.MenuBar()->addMenu(u"Jobs"_s)->addAction(u"Start &new job"_s, &form, [&] { form.SetTag(u"new"_s); });
    QCOMPARE(form.layout()->menuBar(), form.MenuBar());
    ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
    QCOMPARE(form.Tag(), u"new"_s);
  }

  void CentreFormStaysOnTheScreen() {
    QWidget caller;
    caller.setGeometry(200, 150, 300, 200);
    caller.show();
    QWidget form;
    form.resize(100, 80);
    CentreForm(&form, &caller);
    QVERIFY((form.frameGeometry().center() - caller.frameGeometry().center()).manhattanLength() <= 2);
    caller.move(-280, -190);
    CentreForm(&form, &caller);
    QVERIFY(form.screen()->availableGeometry().contains(form.frameGeometry()));
    caller.hide();
    CentreForm(&form, &caller);
    QVERIFY((form.frameGeometry().center() - form.screen()->availableGeometry().center()).manhattanLength() <= 2);
  }

  void SelectAllInBoxSelectsTheText() {
    QLineEdit box(u"12345"_s);
    SelectAllInBox(&box);
    QCOMPARE(box.selectedText(), u"12345"_s);
  }

  void EnableControlsLeavesLabelsAlone() {
    QWidget form;
    auto* label = new QLabel(&form);
    auto* box = new QLineEdit(&form);
    EnableControls(&form, false);
    QVERIFY(label->isEnabled());
    QVERIFY(!box->isEnabled());
    EnableControls(&form, true);
    QVERIFY(box->isEnabled());
  }

  void WaitSecondsShowsTheBusyPointerMeanwhile() {
    ScriptedPrompts prompts;
    bool busy = false;
    QTimer::singleShot(0, this, [&] { busy = prompts.ShowsBusyPointer(); });
    QElapsedTimer timer;
    timer.start();
    WaitSeconds(0.1);
    QVERIFY(timer.elapsed() >= 100);
    QVERIFY(busy);
    QVERIFY(!prompts.ShowsBusyPointer());
  }
};

LOFT_TEST_MAIN(TestForm)
#include "tst_form.moc"
