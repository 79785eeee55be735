#pragma once
#include "faults/commands.h"
#include "faults/ground.h"
#include "support/faulty_disk.h"

/// Runs commands again and again on copies of the ground that each needs.
///
/// What a command may leave behind: all that was there before, or all that it leaves undisturbed, row by row, but for
/// the ids that tblMisc remembers of what was shown last. What the program puts right by itself when it shows something
/// (upkeep) is not part of the command: it may be missing until the next look.
class Trial {
 public:
  Trial();
  ~Trial();

  /// Lays the ground of a command and runs it undisturbed. False, told, when that goes wrong.
  bool Begin(const Command& command);
  /// The requests that the undisturbed run made of the disk.
  const QList<FaultyDisk::Request>& Requests() const { return requests_; }

  /// Puts the ground back, with the database open and the command's screens shown. What then goes astray is let go.
  enum class Going { Straight, Astray };
  void Restore(Going going = Going::Astray);
  void Run();
  /// Closes all screens and the database; its file.
  QByteArray Leave();

  enum class End { Refused, Done, Half, Corrupt, Lost };
  struct Verdict {
    End end = End::Half;
    QString complaint = {};  ///< what was wrong, empty when all was right
  };
  /// What came of a run that the disk has disturbed; all works again. Ends with the database closed. `forGood`: the
  /// disk failed from then on, so that nobody could look what had come of the last request.
  Verdict Judge(bool forGood);
  /// What a database that a power cut has left holds. `acknowledged`: the command had ended.
  Verdict JudgeCut(const QMap<QString, QByteArray>& survivors, bool acknowledged);

  FaultyDisk& Disk() { return *disk_; }
  /// Where the database lies.
  QString Folder() const { return ground_->loft.Folder().Path(); }

 private:
  /// A state of the database that is whole.
  struct Whole {
    QByteArray file;
    QByteArray dump;
    End end;
  };

  void Lay(const QByteArray& file);
  QByteArray HealedDump(const QByteArray& file);
  QList<QByteArray> RunInStages();
  Verdict JudgeFile(const QByteArray& file);
  Verdict JudgeHealed(const QByteArray& file, const QString& difference);
  bool Writes() const { return before_.dump != after_.dump; }
  QString ComplaintAbout(End end, const QList<Told>& told, bool mustTellNothing) const;
  QString GoOn();

  std::unique_ptr<Ground> ground_;
  std::unique_ptr<FaultyDisk> disk_;
  QByteArray sample_;  // the file of the prepared loft
  const Command* command_ = nullptr;
  QByteArray groundFile_;
  Whole before_;
  Whole after_;
  QList<Whole> wholes_;  // both, and those between that lack some upkeep
  QByteArray beforeHealed_;
  QByteArray afterHealed_;
  QList<FaultyDisk::Request> requests_;
  QList<Told> usual_;  // the boxes of the undisturbed run
};
