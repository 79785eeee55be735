#pragma once
#include <QString>
#include <QStringList>

#include <optional>

/// The one seam between the routines and the boxes that a person answers. The program installs the boxes of the
/// platform; tests install a script. An open transaction of the store is settled before anything is shown.

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Answer { Ok, Cancel, Yes, No };

/// The title of a box that names none.
inline const QString kProgramTitle = QStringLiteral("Loftkeep");

struct FileDialog {
  QString title;
  QString fileName;  ///< the name proposed, with or without a folder
  QString filter;    ///< "all files (*.*)|*.*": pairs of description and patterns between bars
};

struct FontChoice {
  QString name;
  double size = 10;
  bool bold = false;
  bool italic = false;
  friend bool operator==(const FontChoice&, const FontChoice&) = default;
};

class Prompts {
 public:
  virtual ~Prompts() = default;
  virtual Answer Box(const QString& text, const QString& title, Buttons buttons, Icon icon, Answer preset) = 0;
  virtual QString Input(const QString& text, const QString& title, const QString& proposal) = 0;
  virtual QString OpenFile(const FileDialog& dialog) = 0;
  virtual QString SaveFile(const FileDialog& dialog) = 0;
  virtual std::optional<FontChoice> Font(const FontChoice& present) = 0;
  virtual void BusyPointer(bool busy) = 0;
};

/// Installs the boxes; returns those that stood before. With none installed every prompt throws Failure.
Prompts* SetPrompts(Prompts* prompts);

/// A box with an OK button.
void MsgBox(const QString& text, const QString& title = kProgramTitle, Icon icon = Icon::None);
/// A question; `preset` is the default button.
Answer Ask(const QString& text, const QString& title, Buttons buttons, Answer preset, Icon icon = Icon::Question);
/// A Yes/No question whose default is No; true for Yes.
bool AskYes(const QString& text, const QString& title, Icon icon = Icon::Question);
/// One line of text; the empty text when the person cancels.
QString InputBox(const QString& text, const QString& title = kProgramTitle, const QString& proposal = QString());
/// A file's path, empty when cancelled.
QString OpenFileDialog(const FileDialog& dialog);
QString SaveFileDialog(const FileDialog& dialog);
/// A font, nothing when cancelled.
std::optional<FontChoice> FontDialog(const FontChoice& present);
/// Shows or takes away the busy pointer.
void SetBusyPointer(bool busy);
bool PointerIsBusy();

/// Lines joined by line ends, as long messages are built.
QString Lines(const QStringList& lines);

/// Called before any prompt or modal screen shows; the store settles its open transaction here.
void SetBeforePrompt(void (*settle)());

/// Stands while a routine lets events be handled before it goes on: what runs then is not below that routine.
class EventsRun {
 public:
  EventsRun();
  ~EventsRun();
  EventsRun(const EventsRun&) = delete;
  EventsRun& operator=(const EventsRun&) = delete;
  /// How many stand.
  static int Depth();
};

/// Stands while the program waits for the person: around each prompt and each modal screen.
class PersonAnswers {
 public:
  PersonAnswers();

 private:
  std::optional<EventsRun> events_;
};
