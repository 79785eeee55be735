#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "core/failure.h"
#include "core/long_work.h"
#include "core/screens.h"
#include "core/stand_by.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/undo.h"
#include "core/widgets/form.h"
#include "core/widgets/qt_prompts.h"
#include "core/widgets/undo_keys.h"
#include "support/screens/controls.h"
#include "support/screens/keyboard.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

/// A screen beside the wait form, with a command that a person might start.
class frmShop : public Form {
  Q_OBJECT
 public:
  frmShop() {
    auto* button = new QPushButton(u"Delete"_s, this);
    connect(button, &QPushButton::clicked, this, [this] { ++started; });
    button->setFocus();
    resize(300, 200);
  }
  int started = 0;
  int painted = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++painted;
    Form::paintEvent(event);
  }
};

Form* WaitForm() { return dynamic_cast<Form*>(Forms::Find(u"frmStandBy"_s)); }

bool Shows() { return Forms::IsShown(u"frmStandBy"_s); }

/// Work of the main thread, a tenth of a second to a step.
void Labour(LongWork& work, int steps = 12) {
  for (int i = 0; i < steps; ++i) {
    QThread::msleep(100);
    work.Step();
  }
}

/// As the platform hands keys and clicks to windows, so that it can keep them from one that is blocked.
void PressAt(QWidget& window, const QPoint& at) {
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
}

}  // namespace

/// What a person sees of long work, and can do meanwhile.
class WaitFormTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void init() {
    InstallStandByNotice();
    shop_ = new frmShop;
    shop_->Show();
    QVERIFY(QTest::qWaitForWindowExposed(shop_));
  }
  void cleanup() {
    UnloadScreens();
    SetStandByNotice({});
    SetWorkScreen(nullptr);
  }

  void QuickWorkShowsNoForm() {
    LongWork work(u"Reconstructing schedules"_s, 2);
    Labour(work, 2);
    QVERIFY(!Shows());
  }

  void TheFormTellsHowFarTheWorkIs() {
    QList<int> values;
    {
      LongWork work(u"Reconstructing schedules"_s, 12);
      OnceShown([&] {
        const Form& form = *WaitForm();
        QCOMPARE(TextOf(*WaitForm(), u"lbl"_s), u"Reconstructing schedules"_s);
        QVERIFY(Control<QPushButton>(*WaitForm(), u"cmdCancel"_s).isVisible());
        QVERIFY(Control<QPushButton>(*WaitForm(), u"cmdCancel"_s).isEnabled());
        QCOMPARE(form.windowModality(), Qt::ApplicationModal);
        QCOMPARE(ClashesOf(*WaitForm()), QString());
      });
      for (int i = 0; i < 12; ++i) {
        Labour(work, 1);
        if (Shows()) values << Control<QProgressBar>(*WaitForm(), u"bar"_s).value();
      }
      Picture(*WaitForm(), u"frmStandBy_work"_s);
    }
    QVERIFY(values.size() >= 8);
    QVERIFY(std::is_sorted(values.begin(), values.end()));
    QCOMPARE(values.last(), 1000);
    QVERIFY(!Shows());
    QVERIFY(happened_);
  }

  void WorkOfUnknownLengthShowsABarThatRuns() {
    LongWork work(u"Reading"_s);
    Labour(work, 5);
    QCOMPARE(Control<QProgressBar>(*WaitForm(), u"bar"_s).maximum(), 0);
  }

  void TimersRunAndScreensArePaintedMeanwhile() {
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
      ++ticks;
      shop_->update();
    });
    timer.start(50);
    const int painted = shop_->painted;
    {
      LongWork work(u"Reconstructing schedules"_s, 12);
      Labour(work);
    }
    QVERIFY2(ticks >= 6, qPrintable(QString::number(ticks)));
    QVERIFY(shop_->painted >= painted + 5);
  }

  void AWorkerLeavesTheScreensAlive() {
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
    timer.start(20);
    LongWork work(u"Reading"_s);
    InWorker(work, [] { QThread::msleep(1200); });
    QVERIFY2(ticks >= 15, qPrintable(QString::number(ticks)));
    QVERIFY(Shows());
  }

  void NothingElseTakesInput() {
    LongWork work(u"Reconstructing schedules"_s, 12);
    OnceShown([&] {
      PressAt(*shop_, shop_->findChild<QPushButton*>()->geometry().center());
      for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(shop_->windowHandle(), key);
      QCOMPARE(QGuiApplication::modalWindow(), WaitForm()->windowHandle());  // so the platform closes none
    });
    Labour(work);
    QVERIFY(happened_);
    QCOMPARE(shop_->started, 0);
    QVERIFY(shop_->isVisible());
    QVERIFY(!work.Cancelled());
  }

  void NothingIsTakenBackMeanwhile() {
    const ScriptedPrompts prompts;
    const ThrowAwayLoft loft;
    Forms::SetInFront(QString());
    const auto add = [] { UpdateTableBySQL(u"insert into tblRig (RigAlias) values ('Blue')"_s); };
    QVERIFY(Operation(u"Sub AddRig"_s, add));
    const auto undo = [this] { QTest::keyClick(WaitForm()->windowHandle(), Qt::Key_Z, Qt::ControlModifier); };
    {
      LongWork work(u"Reading"_s, 12);
      OnceShown(undo);
      Labour(work);
      QVERIFY(happened_);
    }
    QVERIFY(NextUndo().has_value());
    QCOMPARE(loft.Rows(u"select RigAlias from tblRig"_s), QStringList(u"Blue"_s));
    QVERIFY(UndoOnScreen(*shop_));
    QCOMPARE(loft.Rows(u"select RigAlias from tblRig"_s), QStringList());
  }

  void WhatIsPressedBeforeTheFormComesStartsNothing() {
    LongWork work(u"Reconstructing schedules"_s, 12);
    QTimer::singleShot(0, shop_, [this] { PressAt(*shop_, shop_->findChild<QPushButton*>()->geometry().center()); });
    Labour(work);
    QCOMPARE(shop_->started, 0);
  }

  void CancelEndsTheWork_data() {
    QTest::addColumn<QString>("way");
    for (const char* way : {"button", "Esc", "letter", "Tab", "close"}) QTest::newRow(way) << QString::fromLatin1(way);
  }
  void CancelEndsTheWork() {
    QFETCH(QString, way);
    LongWork work(u"Reconstructing schedules"_s, 100);
    OnceShown([&] {
      QWindow* window = WaitForm()->windowHandle();
      auto& button = Control<QPushButton>(*WaitForm(), u"cmdCancel"_s);
      if (way == "button"_L1) PressAt(*WaitForm(), button.geometry().center());
      if (way == "Esc"_L1) QTest::keyClick(window, Qt::Key_Escape);
      if (way == "letter"_L1) QTest::keyClick(window, Qt::Key_C, Qt::AltModifier);
      if (way == "close"_L1) window->close();
      if (way == "Tab"_L1) {
        QTest::keyClick(window, Qt::Key_Tab);
        QTest::keyClick(window, Qt::Key_Space);
      }
    });
    QVERIFY_THROWS_EXCEPTION(WorkCancelled, Labour(work, 20));
    QVERIFY(happened_);
    QVERIFY(work.Done() < 15);
    QVERIFY(Shows());  // until the work has ended
    QVERIFY(!Control<QPushButton>(*WaitForm(), u"cmdCancel"_s).isEnabled());
  }

  void AKeyThatIsStillTypedCancelsNothing() {
    LongWork work(u"Reconstructing schedules"_s, 12);
    OnceShown([&] {
      for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_C})
        QTest::keyClick(WaitForm()->windowHandle(), key);
    });
    Labour(work);
    QVERIFY(happened_);
  }

  void WorkThatCantBeCancelledHasItsButtonDisabled() {
    LongWork work(u"copying"_s, 12, LongWork::Cancelling::Impossible);
    OnceShown([&] {
      auto& button = Control<QPushButton>(*WaitForm(), u"cmdCancel"_s);
      QVERIFY(button.isVisible() && !button.isEnabled());
      PressAt(*WaitForm(), button.geometry().center());
      QTest::keyClick(WaitForm()->windowHandle(), Qt::Key_Escape);
      WaitForm()->close();
    });
    Labour(work);
    QVERIFY(happened_);
    QVERIFY(Shows() && !work.Cancelled());
  }

  void TheTextOfAStepStandsInPlaceOfTheCaption() {
    LongWork work(u"copying"_s, 12);
    ShowStandBy(u"copying c1.jpg"_s);
    QVERIFY(Shows() && !WaitForm()->isModal());
    Labour(work, 5);
    QVERIFY(WaitForm()->isModal());
    QCOMPARE(TextOf(*WaitForm(), u"lbl"_s), u"copying c1.jpg"_s);
    ShowStandBy(u"copying a photo with quite a long name that needs more room than there was before.jpg"_s);
    const auto& label = Control<QLabel>(*WaitForm(), u"lbl"_s);
    QVERIFY(label.width() >= label.sizeHint().width());
    UnloadStandBy();
    QVERIFY(Shows());
    QCOMPARE(TextOf(*WaitForm(), u"lbl"_s), u"copying"_s);
  }

  void ANoticeWithoutWorkHasNeitherBarNorButton() {
    ShowStandBy();
    QVERIFY(!Control<QProgressBar>(*WaitForm(), u"bar"_s).isVisible());
    QVERIFY(!Control<QPushButton>(*WaitForm(), u"cmdCancel"_s).isVisible());
  }

  void AFailureClosesTheFormBeforeItsBox() {
    ScriptedPrompts prompts;
    const ThrowAwayLoft loft;
    prompts.ExpectBox(u"Sub Rebuild"_s, u"Type mismatch"_s).Meanwhile([] { QVERIFY(!Shows()); });
    QVERIFY(!Operation(u"Sub Rebuild"_s, [] {
      LongWork work(u"Rebuilding"_s, 9);
      Labour(work, 5);
      QVERIFY(Shows());
      throw Failure(u"Type mismatch"_s);
    }));
    QVERIFY(shop_->isEnabled());
    PressAt(*shop_, shop_->findChild<QPushButton*>()->geometry().center());
    QCOMPARE(shop_->started, 1);
  }

  void ACancelledOperationWritesNothingAndTheRecordNamesTheScreenBehind() {
    const ScriptedPrompts prompts;
    const ThrowAwayLoft loft;
    Forms::SetInFront(u"frmShop"_s);
    const auto rebuild = [] {
      LongWork work(u"Rebuilding"_s, 9);
      UpdateTableBySQL(u"insert into tblRig (RigAlias) values ('Blue')"_s);
      Labour(work, 5);
    };
    QVERIFY(Operation(u"Sub Rebuild"_s, rebuild));
    QCOMPARE(NextUndo()->screen, u"frmShop"_s);
    const QStringList before = loft.Snapshot();
    happened_ = false;
    OnceShown([] { QTest::keyClick(WaitForm()->windowHandle(), Qt::Key_Escape); });
    QVERIFY(!Operation(u"Sub Rebuild"_s, [] {
      LongWork work(u"Rebuilding"_s, 90);
      UpdateTableBySQL(u"insert into tblRig (RigAlias) values ('Red')"_s);
      Labour(work, 20);
    }));
    QVERIFY(happened_);
    QCOMPARE(loft.Snapshot(), before);
    QVERIFY(!Shows());
  }

  void ABoxDuringTheWorkCanBeAnswered() {
    LongWork work(u"Rebuilding"_s, 9);
    Labour(work, 5);
    QtPrompts platform;
    Prompts* before = SetPrompts(&platform);
    bool asked = false;
    QTimer::singleShot(0, this, [&] {
      QWidget* box = QApplication::activeModalWidget();
      asked = box != nullptr && box != WaitForm();
      QTest::keyClick(box->windowHandle(), Qt::Key_Return);
    });
    MsgBox(u"One row could not be made"_s);
    SetPrompts(before);
    QVERIFY(asked);
    Labour(work, 2);
    QVERIFY(Shows() && !work.Cancelled());
  }

 private:
  /// Does something, once, when the wait form has come up; a timer of the program's own tells when.
  void OnceShown(std::function<void()> action) {
    happened_ = false;
    auto* timer = new QTimer(shop_);
    connect(timer, &QTimer::timeout, this, [this, timer, action = std::move(action)] {
      if (!Shows() || !WaitForm()->isModal() || happened_) return;
      happened_ = true;
      timer->stop();
      action();
    });
    timer->start(10);
  }

  QPointer<frmShop> shop_;
  bool happened_ = false;
};

LOFT_TEST_MAIN(WaitFormTest)
#include "tst_wait_form.moc"
