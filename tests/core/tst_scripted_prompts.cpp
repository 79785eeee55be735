#include <QtTest>

#include "core/failure.h"
#include "core/trap.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestScriptedPrompts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void AnswersInOrder() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Saved"_s, u"Rig saved"_s).WithIcon(Icon::Information);
    prompts.Expect(u"Delete?"_s, u"Are you sure?"_s, Answer::Yes).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    prompts.ExpectInput(u"Name"_s, u"New name?"_s, u"Ann"_s).Proposing(u"Bob"_s);
    prompts.ExpectOpenFile(u"Open"_s, u"/a"_s).Proposing(u"b.txt"_s).Filtering(u"all files (*.*)|*.*"_s);
    prompts.ExpectSaveFile(u"Save"_s, u"/c"_s);
    prompts.ExpectFont(FontChoice{.name = u"Arial"_s, .size = 12});

    MsgBox(u"Rig saved"_s, u"Saved"_s, Icon::Information);
    QCOMPARE(AskYes(u"Are you sure?"_s, u"Delete?"_s), true);
    QCOMPARE(InputBox(u"New name?"_s, u"Name"_s, u"Bob"_s), u"Ann"_s);
    QCOMPARE(OpenFileDialog({u"Open"_s, u"b.txt"_s, u"all files (*.*)|*.*"_s}), u"/a"_s);
    QCOMPARE(SaveFileDialog({u"Save"_s, QString(), QString()}), u"/c"_s);
    QCOMPARE(FontDialog({})->name, u"Arial"_s);
    QCOMPARE(prompts.Transcript().size(), 6);
    QCOMPARE(prompts.Transcript().at(1).Describe(), u"box titled \"Delete?\": \"Are you sure?\""_s);
  }

  void FailsOnABoxThatWasNotExpected() {
    QStringList failures;
    ScriptedPrompts prompts;
    prompts.FailInto(&failures);
    QCOMPARE(AskYes(u"Sure?"_s, u"Delete"_s), false);
    QCOMPARE(Ask(u"Sure?"_s, u"Delete"_s, Buttons::OkCancel, Answer::Ok), Answer::Ok);
    QCOMPARE(failures, QStringList(2, u"Not expected: box titled \"Delete\": \"Sure?\""_s));
  }

  void FailsOnABoxThatNeverCame() {
    QStringList failures;
    {
      ScriptedPrompts prompts;
      prompts.FailInto(&failures);
      prompts.ExpectInput(u"Name"_s, u"New name?"_s, u"Ann"_s);
    }
    QCOMPARE(failures, QStringList{u"Never came: input box titled \"Name\": \"New name?\""_s});
  }

  void FailsOnAnotherTextAndGoesOn() {
    QStringList failures;
    ScriptedPrompts prompts;
    prompts.FailInto(&failures);
    prompts.ExpectBox(u"Saved"_s, u"Rig saved"_s);
    prompts.ExpectBox(u"Saved"_s, u"Job saved"_s);
    MsgBox(u"rig saved"_s, u"Saved"_s);
    MsgBox(u"In between"_s, u"Note"_s);
    MsgBox(u"Job saved"_s, u"Saved"_s);
    QCOMPARE(failures.size(), 2);
    QCOMPARE(failures.at(0),
             u"Not expected: box titled \"Saved\": \"rig saved\"\n"
             u"   Expected: box titled \"Saved\": \"Rig saved\""_s);
    QVERIFY(failures.at(1).startsWith(u"Not expected: box titled \"Note\""_s));
  }

  void FailsOnOtherButtonsAndProposals() {
    QStringList failures;
    ScriptedPrompts prompts;
    prompts.FailInto(&failures);
    prompts.Expect(u"A"_s, u"a"_s, Answer::Cancel);
    prompts.Expect(u"B"_s, u"b"_s, Answer::Yes).WithPreset(Answer::Yes).WithIcon(Icon::Critical);
    prompts.ExpectInput(u"C"_s, u"c"_s, u"x"_s).Proposing(u"y"_s);
    prompts.ExpectOpenFile(u"D"_s, u"x"_s).Filtering(u"y"_s);
    prompts.ExpectBox(u"E"_s, u"e"_s);
    QCOMPARE(AskYes(u"a"_s, u"A"_s), false);
    QCOMPARE(AskYes(u"b"_s, u"B"_s), true);
    InputBox(u"c"_s, u"C"_s);
    OpenFileDialog({u"D"_s, QString(), QString()});
    Ask(u"e"_s, u"E"_s, Buttons::OkCancel, Answer::Ok);
    QCOMPARE(
        failures,
        QStringList({u"Has no such button to answer with: box titled \"A\": \"a\""_s,
                     u"Another default button: box titled \"B\": \"b\""_s, u"Another icon: box titled \"B\": \"b\""_s,
                     u"Proposes \"\": input box titled \"C\": \"c\""_s,
                     u"Filters \"\": open dialog titled \"D\": \"\""_s, u"Other buttons: box titled \"E\": \"e\""_s}));
  }

  void AnswersTheRestByACallback() {
    ScriptedPrompts prompts;
    prompts.AnswerRestWith([](const ShownPrompt& shown) { return shown.title == u"A" ? Answer::Yes : shown.preset; });
    QCOMPARE(AskYes(u"a"_s, u"A"_s), true);
    QCOMPARE(AskYes(u"b"_s, u"B"_s), false);
    QCOMPARE(prompts.Transcript().last().text, u"b"_s);
  }

  void RunsWhatHappensMeanwhile() {
    ScriptedPrompts prompts;
    bool busy = true;
    prompts.ExpectBox(u"A"_s, u"a"_s).Meanwhile([&] { busy = PointerIsBusy(); });
    SetBusyPointer(true);
    QCOMPARE(prompts.ShowsBusyPointer(), true);
    SetBusyPointer(false);
    MsgBox(u"a"_s, u"A"_s);
    QCOMPARE(busy, false);
    QCOMPARE(prompts.ShowsBusyPointer(), false);
  }

  void WithoutBoxesEveryPromptFails() {
    QVERIFY_THROWS_EXCEPTION(Failure, MsgBox(u"a"_s));
    QVERIFY_THROWS_EXCEPTION(Failure, InputBox(u"a"_s));
    QVERIFY_THROWS_EXCEPTION(Failure, OpenFileDialog({}));
  }

  void TheProgramNamesUntitledBoxes() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Loftkeep"_s, u"one\ntwo"_s);
    MsgBox(Lines({u"one"_s, u"two"_s}));
  }

  void SettlesBeforeItShows() {
    static bool settled = false;
    SetBeforePrompt([] { settled = true; });
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"A"_s, u"a"_s).Meanwhile([] { QVERIFY(settled); });
    MsgBox(u"a"_s, u"A"_s);
    SetBeforePrompt(nullptr);
  }

  void ATrapShowsTheErrorUnderTheRoutinesName() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Sub A"_s, u"No such thing"_s).WithIcon(Icon::Exclamation);
    prompts.ExpectBox(u"Sub B"_s, u"plain"_s);
    prompts.ExpectBox(u"Sub C"_s, u"No such thing\nID = 7"_s);
    QCOMPARE(Trap(u"Sub A"_s, [] { throw Failure(u"No such thing"_s); }), false);
    QCOMPARE(Trap(u"Sub B"_s, [] { throw std::runtime_error("plain"); }), false);
    QCOMPARE(TrapWith(
                 u"Sub C"_s, [] { throw Failure(u"No such thing"_s); }, [] { return u"ID = 7"_s; }),
             false);
    QCOMPARE(Trap(u"Sub D"_s, [] {}), true);
  }
};

LOFT_TEST_MAIN(TestScriptedPrompts)
#include "tst_scripted_prompts.moc"
