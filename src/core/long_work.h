#pragma once
#include <QElapsedTimer>
#include <QString>

#include <atomic>
#include <exception>
#include <functional>
#include <future>
#include <utility>

/// The person wants no more of some long work. Traps pass it on to the outermost operation, which takes everything back
/// and shows no box; where no operation stands, it ends the routine that traps it.
class WorkCancelled : public std::exception {
 public:
  const char* what() const noexcept override { return "The person has cancelled the work"; }
};

/// Work that may keep a person waiting, from here to the end of the scope:
///
///     LongWork work(u"Reconstructing schedules"_s, components.RecordCount());
///     for (...) {
///       ...
///       work.Step();
///     }
///
/// When it has taken a while, the wait form shows how far it is and offers Cancel. Screens are painted and timers run
/// from then on, but nothing else takes input, so nothing else is started or closed. Work inside other work is a part
/// of it: it shows nothing of its own, and is cancelled with it.
class LongWork {
 public:
  /// Whether the person may cancel it. Inside other work, that one's choice counts.
  enum class Cancelling { Possible, Impossible };

  /// A `total` of 0 is one that nobody knows.
  explicit LongWork(const QString& caption, qint64 total = 0, Cancelling cancelling = Cancelling::Possible);
  ~LongWork();
  LongWork(const LongWork&) = delete;
  LongWork& operator=(const LongWork&) = delete;

  /// So much is done. This and what follows is for the thread that made the work, and for its worker.
  void Done(qint64 done);
  qint64 Done() const { return done_; }
  void SetTotal(qint64 total) { total_ = total; }
  bool Cancelled() const { return Outermost().cancelled_; }
  /// So much more is done. Throws WorkCancelled when the person wants no more.
  void Step(qint64 more = 1);

  /// True while any work stands: nothing else may be started.
  static bool Stands();
  /// For a routine that takes its time inside whatever work stands: keeps the wait form alive.
  static void GoesOn();

  /// Runs a body in a worker thread, and returns when it has ended. It must not throw; see InWorker.
  void RunInThread(const std::function<void()>& body);

 private:
  const LongWork& Outermost() const { return outermost_ ? *outermost_ : *this; }
  void KeepAlive();

  QString caption_;
  std::atomic<qint64> total_;
  std::atomic<qint64> done_ = 0;
  std::atomic<bool> cancelled_ = false;
  bool canCancel_;
  LongWork* outermost_;  // null for the outermost itself
  Qt::HANDLE thread_;
  QElapsedTimer since_;
  qint64 nextLook_;
  bool shown_ = false;
  bool showing_ = false;
};

/// Runs a body in a worker thread while the wait form stays alive, and hands back its result, or throws what it threw.
/// The body keeps off all that belongs to the main thread: the shared connection and what reads through it, boxes,
/// screens. It reads files by a Database of its own, and may report and ask through the work.
template <typename Body>
auto InWorker(LongWork& work, Body&& body) {
  std::packaged_task<std::invoke_result_t<Body>()> task(std::forward<Body>(body));
  auto result = task.get_future();
  work.RunInThread([&task] { task(); });
  return result.get();
}

/// How far some work is, as the wait form shows it.
struct WorkProgress {
  QString caption;
  qint64 done = 0;
  qint64 total = 0;  ///< 0 when nobody knows
  bool canCancel = false;
};

/// The wait form, as the work knows it. Without one nothing shows, and nothing can be cancelled.
class WorkScreen {
 public:
  virtual ~WorkScreen() = default;
  /// Shows it and handles the events that wait. True once the person has asked to cancel.
  virtual bool Show(const WorkProgress& progress) = 0;
  virtual void Hide() = 0;
};

/// Installs the wait form; returns the one that stood before.
WorkScreen* SetWorkScreen(WorkScreen* screen);
