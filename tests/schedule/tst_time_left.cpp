#include <QtTest>

#include "schedule/time_left.h"
#include "support/fixed_clock.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestTimeLeft : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void TellsTheTimeLeft_data() {
    QTest::addColumn<int>("days");
    QTest::addColumn<QString>("due");
    QTest::addColumn<QString>("expiry");
    QTest::addColumn<QString>("life");
    const auto row = [](int days, const QString& due, const QString& expiry, const QString& life) {
      QTest::addRow("%d days", days) << days << due << expiry << life;
    };
    row(5000, u"14 years"_s, u"14 years"_s, u"14 years left"_s);
    row(1465, u"4 years"_s, u"4 years"_s, u"4 years left"_s);
    row(1643, u"5 years"_s, u"5 years"_s, u"5 years left"_s);
    row(1464, u"48 months"_s, u"48 months"_s, u"48 months left"_s);
    row(382, u"13 months"_s, u"13 months"_s, u"13 months left"_s);
    row(367, u"12 months"_s, u"12 months"_s, u"12 months left"_s);
    row(366, u"366 days"_s, u"366 days"_s, u"366 days left"_s);
    row(2, u"2 days"_s, u"2 days"_s, u"2 days left"_s);
    row(1, u"1 day"_s, u"1 day"_s, u"Expires tomorrow! "_s);
    row(0, u"Due today!"_s, u"Expires today!"_s, u"Expires today!"_s);
    row(-1, u"Overdue!"_s, u"Expired!"_s, u"Expired!"_s);
  }
  void TellsTheTimeLeft() {
    QFETCH(int, days);
    const FixedClock clock(2026, 3, 15);
    const Date date = Date::FromParts(2026, 3, 15) + days;
    QTEST(TimeLeftText(date), "due");
    QTEST(ExpiryTimeLeftText(date), "expiry");
    QTEST(LifeLeftText(date), "life");
  }

  void CountsWholeDaysLateInTheDay() {
    const FixedClock clock(Date::FromParts(2026, 3, 15) + 0.99);
    QCOMPARE(TimeLeftText(Date::FromParts(2026, 3, 15)), u"Due today!"_s);
    QCOMPARE(TimeLeftText(Date::FromParts(2026, 3, 16) + 0.01), u"1 day"_s);
  }
};

LOFT_TEST_MAIN(TestTimeLeft)
#include "tst_time_left.moc"
