#include <QElapsedTimer>
#include <QtTest>

#include "invariants/references.h"
#include "invariants/work.h"
#include "support/random_setting.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// Random work over all rules and screens. LOFTKEEP_SEQUENCES and LOFTKEEP_SEED say how much and where to
/// begin; LOFTKEEP_INVARIANT_SECONDS lets it run so long.
class TestRandomWork : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void EveryColumnOfIdsIsListed() { QCOMPARE(UnlistedReferences().join(u' '), QString()); }

  void EverythingHoldsAfterEachStep() {
    Work work;
    const int seconds = Setting("LOFTKEEP_INVARIANT_SECONDS", 0);
    const int first = Setting("LOFTKEEP_SEED", 1);
    const int count = Setting("LOFTKEEP_SEQUENCES", 40);
    QElapsedTimer time;
    time.start();
    int seed = first;
    for (; seconds == 0 ? seed < first + count : time.elapsed() < 1000 * seconds; ++seed) {
      const std::vector<Step> steps = Sequence(static_cast<quint32>(seed));
      if (work.Run(steps).isEmpty()) continue;
      const std::vector<Step> shortest = Shrunk(work, steps);
      const QString wrong = work.Run(shortest);
      QFAIL(qPrintable(
          u"seed %1: %2\n%3\n{%4}"_s.arg(seed).arg(wrong, work.Told().join(u'\n'), Told(shortest, u", "_s))));
    }
    const Work::Figures& figures = work.Counted();
    qInfo("seeds %d to %d: %d steps, %d screens compared, %d could not be, %lld ms", first, seed - 1, figures.steps,
          figures.compared, figures.notCompared, time.elapsed());
    QVERIFY(figures.compared > 5 * figures.notCompared);
  }
};

LOFT_TEST_MAIN(TestRandomWork)
#include "tst_random_work.moc"
