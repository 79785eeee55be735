#include <QtTest>

#include "jobs/random_work.h"
#include "support/random_setting.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<Action> Sequence(quint32 seed) {
  QRandomGenerator random(seed);
  std::vector<Action> actions(static_cast<size_t>(random.bounded(5, 40)));
  for (Action& action : actions) action = Action::Draw(random);
  return actions;
}

/// Takes steps out as long as the rest still fails.
std::vector<Action> Shrunk(RandomWork& work, std::vector<Action> actions) {
  for (bool shorter = true; shorter;) {
    shorter = false;
    for (size_t step = actions.size(); step-- > 0;) {
      std::vector<Action> rest = actions;
      rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(step));
      if (work.Run(rest).isEmpty()) continue;
      actions = rest;
      shorter = true;
    }
  }
  return actions;
}

}  // namespace

/// The schedule and the jobs' status against a second telling of the rules, over random work. LOFTKEEP_SEQUENCES and
/// LOFTKEEP_SEED say how much and where to begin.
class TestDueDates : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void RandomWorkKeepsTheSchedule() {
    RandomWork work;
    const int first = Setting("LOFTKEEP_SEED", 1);
    const int count = Setting("LOFTKEEP_SEQUENCES", 200);
    for (int seed = first; seed < first + count; ++seed) {
      const std::vector<Action> actions = Sequence(static_cast<quint32>(seed));
      if (work.Run(actions).isEmpty()) continue;
      const std::vector<Action> shortest = Shrunk(work, actions);
      QFAIL(qPrintable(u"seed %1: %2\n%3"_s.arg(seed).arg(work.Run(shortest), Told(shortest, u",\n"_s))));
    }
  }
};

LOFT_TEST_MAIN(TestDueDates)
#include "tst_due_dates.moc"
