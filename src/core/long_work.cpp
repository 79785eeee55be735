#include "core/long_work.h"

#include <QScopedValueRollback>
#include <QThread>

#include <memory>

#include "core/prompts.h"
#include "core/store/operation.h"

namespace {

constexpr int kShowsAfter = 300;   // milliseconds: quicker work shows nothing
constexpr int kBetweenLooks = 40;  // and these lie between two looks at the wait form

WorkScreen* installed = nullptr;
LongWork* standing = nullptr;

}  // namespace

WorkScreen* SetWorkScreen(WorkScreen* screen) { return std::exchange(installed, screen); }

LongWork::LongWork(const QString& caption, qint64 total, Cancelling cancelling)
    : caption_(caption),
      total_(total),
      canCancel_(cancelling == Cancelling::Possible && OperationScope::CanBeTakenBack()),
      outermost_(standing),
      thread_(QThread::currentThreadId()),
      nextLook_(kShowsAfter) {
  since_.start();
  if (!outermost_) standing = this;
}

LongWork::~LongWork() {
  if (outermost_) return;
  standing = nullptr;
  if (shown_ && installed) installed->Hide();
}

void LongWork::Done(qint64 done) {
  done_ = done;
  if (thread_ == QThread::currentThreadId()) GoesOn();
}

void LongWork::Step(qint64 more) {
  Done(done_ + more);
  if (Cancelled()) throw WorkCancelled();
}

bool LongWork::Stands() { return standing != nullptr; }

void LongWork::GoesOn() {
  if (standing && standing->thread_ == QThread::currentThreadId()) standing->KeepAlive();
}

void LongWork::KeepAlive() {
  if (!installed || showing_ || since_.elapsed() < nextLook_) return;
  const QScopedValueRollback<bool> once(showing_, true);
  const EventsRun events;
  shown_ = true;
  if (installed->Show({caption_, done_, total_, canCancel_}) && canCancel_) cancelled_ = true;
  nextLook_ = since_.elapsed() + kBetweenLooks;
}

void LongWork::RunInThread(const std::function<void()>& body) {
  const std::unique_ptr<QThread> thread(QThread::create(body));
  thread->start();
  while (!thread->wait(QDeadlineTimer(kBetweenLooks))) GoesOn();
}
