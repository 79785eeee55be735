#include <QElapsedTimer>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "core/screens.h"
#include "core/stand_by.h"
#include "core/widgets/form.h"
#include "core/widgets/list.h"
#include "core/widgets/screen_routines.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestDialogs : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  // frmMessage

  void AMessageShowsItsTextAndExitAlone() {
    ScreenScript screens;
    screens.WhenShown(u"frmMessage"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Support files"_s);
      QCOMPARE(TextOf(form, u"lbl"_s), u"one <b>\ntwo"_s);
      QCOMPARE(Control<QLabel>(form, u"lbl"_s).textFormat(), Qt::PlainText);
      QVERIFY(!Control<QPushButton>(form, u"cmd1"_s).isVisible());
      QVERIFY(!Control<QPushButton>(form, u"cmd2"_s).isVisible());
      Picture(form, u"frmMessage"_s);
      Click(form, u"cmdExit"_s);
      QCOMPARE(TextOf(form, u"lbl"_s), QString());
    });
    QCOMPARE(ShowMessageForm(u"Support files"_s, u"one <b>\ntwo"_s), 0);
    QVERIFY(Forms::Names().isEmpty());
  }

  void AMessageHasTheCallersButtons() {
    for (const int wanted : {1, 2}) {
      ScreenScript screens;
      screens.WhenShown(u"frmMessage"_s, [&](Form& form) {
        QCOMPARE(TextOf(form, u"cmd1"_s), u"Keep"_s);
        QCOMPARE(TextOf(form, u"cmd2"_s), u"Throw away"_s);
        QVERIFY(!Control<QPushButton>(form, u"cmdExit"_s).isVisible());
        Picture(form, u"frmMessage_buttons"_s);
        Click(form, u"cmd"_s + QString::number(wanted));
      });
      QCOMPARE(ShowMessageForm(u"Old photo"_s, u"What now?"_s, {u"Keep"_s, u"Throw away"_s}, 2), wanted);
    }
    ScreenScript screens;
    screens.WhenShown(u"frmMessage"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    QCOMPARE(ShowMessageForm(u"Old photo"_s, u"What now?"_s, {u"Keep"_s, u"Throw away"_s}, 2), 0);
  }

  void AnUnknownButtonTypeIsTold() {
    ScriptedPrompts prompts;
    ScreenScript screens;
    prompts.ExpectBox(kProgramTitle, u"didn't allow for this button type"_s);
    QCOMPARE(ShowMessageForm(u"?"_s, u"text"_s, {}, 7), 0);
  }

  void AMessageIsAsTallAsItsTextNeeds() {
    for (const int lines : {4, 20}) {
      ScreenScript screens;
      screens.WhenShown(u"frmMessage"_s, [lines](Form& form) {
        const auto& label = Control<QLabel>(form, u"lbl"_s);
        QVERIFY(label.sizeHint().height() > lines * 10);
        QCOMPARE(form.height(), label.sizeHint().height() + FromTwips(1500));
        Click(form, u"cmdExit"_s);
      });
      ShowMessageForm(u"Support files"_s, u"a line\n"_s.repeated(lines));
    }
  }

  void ALongMessageFitsTheScreen() {
    ScreenScript screens;
    screens.WhenShown(u"frmMessage"_s, [](Form& form) {
      QVERIFY(form.screen()->availableGeometry().contains(form.frameGeometry()));
      QVERIFY(Control<QPushButton>(form, u"cmdExit"_s).visibleRegion().boundingRect().height() > 10);
      form.close();
    });
    ShowMessageForm(u"Long"_s, u"a line that is repeated\n"_s.repeated(400));
  }

  // frmComments

  void CommentsAreSaved() {
    ScreenScript screens;
    screens.WhenShown(u"frmComments"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Comments"_s);
      QCOMPARE(TextOf(form, u"lblComments"_s), u"Job: Repack"_s);
      QCOMPARE(TextOf(form, u"txtComments"_s), u"old"_s);
      QVERIFY(!Control<QPushButton>(form, u"cmdSave"_s).isEnabled());
      TypeInto(form, u"txtComments"_s, u"new text"_s);
      QVERIFY(Control<QPushButton>(form, u"cmdSave"_s).isEnabled());
      Picture(form, u"frmComments"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(EditComments(u"Job: Repack"_s, u"old"_s), std::optional(u"new text"_s));
  }

  void ExitWithoutAChangeAsksNothing() {
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmComments"_s, [](Form& form) { Click(form, u"cmdExit"_s); });
    QCOMPARE(EditComments(u"Job"_s, u"old"_s), std::nullopt);
  }

  void ExitWithAChangeAsks() {
    for (const Answer answer : {Answer::Yes, Answer::No}) {
      ScriptedPrompts prompts;
      ScreenScript screens;
      prompts.Expect(u"Comments"_s, u"Save changes before exiting"_s, answer)
          .WithButtons(Buttons::YesNo)
          .WithPreset(Answer::No);
      screens.WhenShown(u"frmComments"_s, [](Form& form) {
        TypeInto(form, u"txtComments"_s, u"changed"_s);
        PressKey(form, Qt::Key_Escape);
      });
      const auto saved = EditComments(u"Job"_s, u"old"_s);
      QCOMPARE(saved, answer == Answer::Yes ? std::optional(u"changed"_s) : std::nullopt);
    }
  }

  void UndoBringsBackWhatClearRemoved() {
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmComments"_s, [](Form& form) {
      ChooseMenu(form, {u"Clear"_s});
      QCOMPARE(TextOf(form, u"txtComments"_s), QString());
      QVERIFY(Control<QPushButton>(form, u"cmdSave"_s).isEnabled());
      ChooseMenu(form, {u"Undo"_s});
      QCOMPARE(TextOf(form, u"txtComments"_s), u"line 1\nline 2"_s);
      ChooseMenu(form, {u"Exit"_s});
    });
    QCOMPARE(EditComments(u"Job"_s, u"line 1\nline 2"_s), std::nullopt);

    screens.WhenShown(u"frmComments"_s, [](Form& form) {
      ChooseMenu(form, {u"Clear"_s});
      ChooseMenu(form, {u"Save"_s});
    });
    QCOMPARE(EditComments(u"Job"_s, u"text"_s), std::optional(QString()));
  }

  void AStoredBlankCountsAsEmpty() {
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmComments"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"txtComments"_s), QString());
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(EditComments(u"Enter business address"_s, u" "_s, u"Business Address"_s), std::nullopt);
  }

  // frmStandBy

  void TheWaitNoticeShowsAndGoes() {
    InstallStandByNotice();
    ShowStandBy();
    QVERIFY(Forms::IsShown(u"frmStandBy"_s));
    auto* form = dynamic_cast<Form*>(Forms::Find(u"frmStandBy"_s));
    QCOMPARE(TextOf(*form, u"lbl"_s), u"Please wait..................."_s);
    QVERIFY(!form->isModal());
    Picture(*form, u"frmStandBy"_s);
    ShowStandBy(u"Creating table tblRig"_s);
    QCOMPARE(TextOf(*form, u"lbl"_s), u"Creating table tblRig"_s);
    PressKey(*form, Qt::Key_Escape);
    form->close();
    QVERIFY(Forms::IsShown(u"frmStandBy"_s));
    QElapsedTimer timer;
    timer.start();
    PauseOnStandBy();
    QVERIFY(timer.elapsed() >= 100);
    UnloadStandBy();
    QVERIFY(Forms::Names().isEmpty());
    UnloadStandBy();
    SetStandByNotice({});
    ShowStandBy();
    timer.restart();
    PauseOnStandBy();
    QVERIFY(timer.elapsed() < 100);
    QVERIFY(Forms::Names().isEmpty());
  }

  // List

  void AListAnswersByRow() {
    List list;
    list.Fill({{u"a"_s, u"b"_s, u"c"_s}, {10, 20, 30}});
    QCOMPARE(list.Count(), 3);
    QCOMPARE(list.ListIndex(), -1);
    QVERIFY(list.SelectData(20));
    QCOMPARE(list.ListIndex(), 1);
    QVERIFY(!list.SelectData(99));
    QCOMPARE(list.ListIndex(), -1);
    QCOMPARE(list.ItemText(2), u"c"_s);
    QCOMPARE(list.ItemData(7), 0);
    list.AddItem(u"d"_s, 40);
    QCOMPARE(list.FindData(40), 3);
    int entered = -1;
    connect(&list, &List::ItemEnter, this, [&](int row) { entered = row; });
    list.SetListIndex(0);
    PressKey(list, Qt::Key_Down);
    PressKey(list, Qt::Key_Return);
    QCOMPARE(entered, 1);
  }

  void TicksAreSetByHandAndByCode() {
    List list;
    list.Fill({{u"a"_s, u"b"_s}, {1, 2}});
    list.SetTickable(true);
    list.SetTicked(1, true);
    QVERIFY(!list.IsTicked(0) && list.IsTicked(1));
    list.show();
    list.SetListIndex(0);
    PressKey(list, Qt::Key_Space);
    QVERIFY(list.IsTicked(0));
    list.TickAll(false);
    QVERIFY(!list.IsTicked(0) && !list.IsTicked(1));
  }
};

LOFT_TEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
