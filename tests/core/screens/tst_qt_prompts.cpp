#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "core/trap.h"
#include "core/widgets/qt_prompts.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// Runs once the platform's box is up; closes a box that the action leaves open.
void WhenBoxShows(const std::function<void(QDialog& box)>& action) {
  QTimer::singleShot(0, qApp, [action] {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    QVERIFY(box);
    action(*box);
    if (box->isVisible()) {
      QTest::qFail("the box was left open", __FILE__, __LINE__);
      box->done(0);
    }
  });
}

QAbstractButton* ButtonOf(QDialog& box, const QString& caption) {
  for (auto* button : box.findChildren<QAbstractButton*>()) {
    if (button->text().remove(u'&') == caption) return button;
  }
  return nullptr;
}

}  // namespace

class TestQtPrompts : public QObject {
  Q_OBJECT
  QtPrompts boxes_;

 private Q_SLOTS:
  void initTestCase() {
    IsolateSettings();
    SetPrompts(&boxes_);
  }
  void cleanupTestCase() { SetPrompts(nullptr); }

  void ABoxShowsPlainTextAndItsTitle() {
    WhenBoxShows([](QDialog& box) {
      QCOMPARE(box.windowTitle(), u"Duplicate <name>"_s);
      QCOMPARE(box.property("text").toString(), u"<b>Smith</b> & sons\nexist"_s);
      QCOMPARE(box.property("textFormat").value<Qt::TextFormat>(), Qt::PlainText);
      ButtonOf(box, u"OK"_s)->click();
    });
    MsgBox(u"<b>Smith</b> & sons\nexist"_s, u"Duplicate <name>"_s);
  }

  void TheDefaultButtonAnswersEnter() {
    for (const Answer preset : {Answer::Yes, Answer::No, Answer::Cancel}) {
      WhenBoxShows([](QDialog& box) { PressKey(box, Qt::Key_Return); });
      QCOMPARE(Ask(u"Sure?"_s, u"Q"_s, Buttons::YesNoCancel, preset), preset);
    }
    WhenBoxShows([](QDialog& box) { PressKey(box, Qt::Key_Return); });
    QVERIFY(!AskYes(u"Delete?"_s, u"Q"_s));
  }

  void EscMeansCancelOrNo() {
    const std::pair<Buttons, Answer> expected[] = {{Buttons::Ok, Answer::Ok},
                                                   {Buttons::OkCancel, Answer::Cancel},
                                                   {Buttons::YesNo, Answer::No},
                                                   {Buttons::YesNoCancel, Answer::Cancel}};
    for (const auto& [buttons, answer] : expected) {
      const Answer preset = buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel ? Answer::Yes : Answer::Ok;
      WhenBoxShows([](QDialog& box) { PressKey(box, Qt::Key_Escape); });
      QCOMPARE(Ask(u"?"_s, u"Q"_s, buttons, preset), answer);
      WhenBoxShows([](QDialog& box) { box.close(); });
      QCOMPARE(Ask(u"?"_s, u"Q"_s, buttons, preset), answer);
    }
  }

  void ButtonsGiveTheirAnswers() {
    const std::pair<QString, Answer> expected[] = {
        {u"Yes"_s, Answer::Yes}, {u"No"_s, Answer::No}, {u"Cancel"_s, Answer::Cancel}};
    for (const auto& [caption, answer] : expected) {
      WhenBoxShows([&](QDialog& box) { ButtonOf(box, caption)->click(); });
      QCOMPARE(Ask(u"?"_s, u"Q"_s, Buttons::YesNoCancel, Answer::Yes), answer);
    }
  }

  void AnInputBoxGivesItsTextOrNothing() {
    WhenBoxShows([](QDialog& box) {
      QCOMPARE(box.windowTitle(), u"New rig"_s);
      auto* line = box.findChild<QLineEdit*>();
      QCOMPARE(line->selectedText(), u"proposal"_s);
      QCOMPARE(box.findChild<QLabel*>()->textFormat(), Qt::PlainText);
      QTest::keyClicks(line, u"typed"_s);
      PressKey(*line, Qt::Key_Return);
    });
    QCOMPARE(InputBox(u"Name?"_s, u"New rig"_s, u"proposal"_s), u"typed"_s);
    WhenBoxShows([](QDialog& box) { PressKey(box, Qt::Key_Escape); });
    QCOMPARE(InputBox(u"Name?"_s, u"New rig"_s, u"proposal"_s), QString());
  }

  void FileAndFontDialogsCanBeCancelled() {
    WhenBoxShows([](QDialog& box) {
      QCOMPARE(box.windowTitle(), u"Open a backup"_s);
      box.reject();
    });
    QCOMPARE(OpenFileDialog({u"Open a backup"_s, QString(), u"databases|*.mdb|all files (*.*)|*.*"_s}), QString());
    WhenBoxShows([](QDialog& box) { box.reject(); });
    QVERIFY(!FontDialog({u"DejaVu Sans"_s, 12, true, false}));
    WhenBoxShows([](QDialog& box) { box.accept(); });
    const auto font = FontDialog({u"DejaVu Sans"_s, 12, true, false});
    QVERIFY(font);
    QCOMPARE(font->size, 12.0);
    QVERIFY(font->bold);
    QVERIFY(!font->italic);
  }

  void FileFiltersAreConverted() {
    QCOMPARE(NameFilters(u"photos|*.jpg;*.png|all files (*.*)|*.*"_s),
             QStringList({u"photos (*.jpg *.png)"_s, u"all files (*)"_s}));
    QCOMPARE(NameFilters(QString()), QStringList());
  }

  void TheBusyPointerGivesWayToABox() {
    SetBusyPointer(true);
    WhenBoxShows([](QDialog& box) {
      QVERIFY(!QGuiApplication::overrideCursor());
      box.close();
    });
    MsgBox(u"?"_s);
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    SetBusyPointer(false);
    QVERIFY(!QGuiApplication::overrideCursor());
  }

  void ATrapShowsItsBox() {
    WhenBoxShows([](QDialog& box) {
      QCOMPARE(box.windowTitle(), u"Sub CheckFolderSystem"_s);
      QCOMPARE(box.property("text").toString(), u"disk full"_s);
      box.close();
    });
    QVERIFY(!Trap(u"Sub CheckFolderSystem"_s, [] { throw Failure(u"disk full"_s); }));
  }
};

LOFT_TEST_MAIN(TestQtPrompts)
#include "tst_qt_prompts.moc"
