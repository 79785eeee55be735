#include <QtTest>

#include "core/dates.h"
#include "core/failure.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

Date Day(int year, int month, int day) { return Date::FromParts(year, month, day); }

QString Iso(Date date) { return date.IsNone() ? u"none"_s : date.ToQDate().toString(Qt::ISODate); }

}  // namespace

class TestDates : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ConvertsTexts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("date");
    const auto row = [](const char* text, const char* date) {
      QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(date);
    };
    row("12/25/2010", "2010-12-25T00:00:00");
    row(" 1/2/2010 ", "2010-01-02T00:00:00");
    row("01-02-2010", "2010-01-02T00:00:00");
    row("1.2.2010", "2010-01-02T00:00:00");
    row("1 2 2010", "2010-01-02T00:00:00");
    row("12 / 25 / 2010", "2010-12-25T00:00:00");
    row("25/12/2010", "2010-12-25T00:00:00");
    row("2/29/2012", "2012-02-29T00:00:00");
    row("1/2/29", "2029-01-02T00:00:00");
    row("2 jan 29", "2029-01-02T00:00:00");
    row("1/2/2010 23:59:59", "2010-01-02T23:59:59");
    row("1/2/30", "1930-01-02T00:00:00");
    row("1/2/00", "2000-01-02T00:00:00");
    row("1/2/5", "2005-01-02T00:00:00");
    row("1/2", "2010-01-02T00:00:00");
    row("25/12", "2010-12-25T00:00:00");
    row("6/2008", "2008-06-01T00:00:00");
    row("2010-12-25", "2010-12-25T00:00:00");
    row("2010/12/25", "2010-12-25T00:00:00");
    row("2010-25-12", "2010-12-25T00:00:00");
    row("Dec 25 2010", "2010-12-25T00:00:00");
    row("december 25, 2010", "2010-12-25T00:00:00");
    row("Dec. 25, 10", "2010-12-25T00:00:00");
    row("25 December 2010", "2010-12-25T00:00:00");
    row("25-Dec-2010", "2010-12-25T00:00:00");
    row("25Dec2010", "2010-12-25T00:00:00");
    row("Sept 3", "2010-09-03T00:00:00");
    row("3 May", "2010-05-03T00:00:00");
    row("May 2008", "2008-05-01T00:00:00");
    row("12/25/2010 3:15 PM", "2010-12-25T15:15:00");
    row("12/25/2010 3:15:30pm", "2010-12-25T15:15:30");
    row("12/25/2010 12:00 AM", "2010-12-25T00:00:00");
    row("12/25/2010 12:30 PM", "2010-12-25T12:30:00");
    row("12/25/2010 23:59:59", "2010-12-25T23:59:59");
    row("12/25/2010 3 am", "2010-12-25T03:00:00");
    row("2010-12-25T15:15:30", "2010-12-25T15:15:30");
    row("Dec 25, 2010 6:00", "2010-12-25T06:00:00");
    row("12/29/1899 6:00", "1899-12-29T06:00:00");
  }
  void ConvertsTexts() {
    const FixedClock clock(2010, 3, 4);
    QFETCH(QString, text);
    QCOMPARE(IsValidDate(text), true);
    QTEST(DateFromText(text).ToQDateTime().toString(Qt::ISODate), "date");
  }

  void RefusesOtherTexts_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"",
                             " ",
                             "soon",
                             "1/2/2010 24:00",
                             "1/2/2010 10:60",
                             "1/2/2010 10:30:60",
                             "2010/5/2010",
                             "2/30/2010",
                             "2/29/2011",
                             "13/13/2010",
                             "0/1/2010",
                             "1/0/2010",
                             "1999",
                             "5",
                             "12252010",
                             "12/25/2010 25:00",
                             "12/25/2010 13:00 PM",
                             "12/25/2010 0:30 AM",
                             "1/2/3/4",
                             "12/25-2010",
                             "12/25/20101",
                             "1,2,2010",
                             "1.5",
                             "-1/2/2010",
                             "Foo 25 2010",
                             "Ma 5 2010",
                             "Feb 30 2010",
                             "32 May 2010",
                             "10:30",
                             "3 PM",
                             "1/2/2010 x",
                             "13/2008",
                             "2010-12-2010"}) {
      QTest::newRow(text) << QString::fromUtf8(text);
    }
  }
  void RefusesOtherTexts() {
    QFETCH(QString, text);
    QCOMPARE(IsValidDate(text), false);
    QVERIFY_THROWS_EXCEPTION(Failure, DateFromText(text));
    ScriptedPrompts prompts;
    if (text != u"1999") prompts.ExpectBox(u"Function ParseDate"_s, u"Type mismatch"_s).WithIcon(Icon::Exclamation);
    QCOMPARE(Iso(ParseDate(text)), text == u"1999" ? u"1999-01-01"_s : u"none"_s);
  }

  void ParsesWhatAPersonTyped() {
    ScriptedPrompts prompts;
    QCOMPARE(Iso(ParseDate(u"12\\25\\2010")), u"2010-12-25"_s);
    QCOMPARE(Iso(ParseDate(u"1850")), u"1850-01-01"_s);
    QCOMPARE(Iso(ParseDate(u"2299")), u"2299-01-01"_s);
    QCOMPARE(Iso(ParseDate(2010)), u"2010-01-01"_s);
    QCOMPARE(Iso(ParseDate(Day(2010, 12, 25))), u"2010-12-25"_s);
    QCOMPARE(ParseDate(Date(40537.75)).Serial(), 40537.75);
    QCOMPARE(ParseDate(Date()).IsNone(), true);
  }

  void LeavesOtherYearsToTheConversion() {
    ScriptedPrompts prompts;
    for (const char16_t* text : {u"1849", u"2300"}) {
      prompts.ExpectBox(u"Function ParseDate"_s, u"Type mismatch"_s);
      QCOMPARE(ParseDate(text).IsNone(), true);
    }
    prompts.ExpectBox(u"Function ParseDate"_s, u"Type mismatch"_s);
    QCOMPARE(ParseDate(Value::Null{}).IsNone(), true);
  }

  void CountsTheDaysOfAMonth() {
    QCOMPARE(DaysInMonth(1, 2010), 31);
    QCOMPARE(DaysInMonth(4, 2010), 30);
    QCOMPARE(DaysInMonth(2, 2010), 28);
    QCOMPARE(DaysInMonth(2, 2012), 29);
    QCOMPARE(DaysInMonth(2, 1900), 28);
    QCOMPARE(DaysInMonth(2, 2000), 29);
    QCOMPARE(DaysInMonth(12, 9999), 31);
    QCOMPARE(DaysInMonth(13, 2010), 0);
    QCOMPARE(DaysInMonth(0, 2010), 0);
  }

  void FindsTheLastDayOfAMonth() {
    QCOMPARE(Iso(LastDayOfMonth(Day(2010, 1, 1))), u"2010-01-31"_s);
    QCOMPARE(Iso(LastDayOfMonth(Day(2012, 2, 29))), u"2012-02-29"_s);
    QCOMPARE(Iso(LastDayOfMonth(Day(2011, 2, 1) + 0.5)), u"2011-02-28"_s);
    QCOMPARE(Iso(LastDayOfMonth(Day(2010, 12, 15))), u"2010-12-31"_s);
  }

  void AddsMonthsAndKeepsTheDayValid_data() {
    QTest::addColumn<Date>("from");
    QTest::addColumn<int>("months");
    QTest::addColumn<QString>("to");
    QTest::newRow("plain") << Day(2010, 1, 15) << 1 << u"2010-02-15"_s;
    QTest::newRow("none") << Day(2010, 1, 31) << 0 << u"2010-01-31"_s;
    QTest::newRow("to a short month") << Day(2011, 1, 31) << 1 << u"2011-02-28"_s;
    QTest::newRow("back to a leap day") << Day(2012, 3, 31) << -1 << u"2012-02-29"_s;
    QTest::newRow("back in another year") << Day(2011, 3, 31) << -1 << u"2011-02-28"_s;
    QTest::newRow("back over two new years") << Day(2010, 1, 15) << -13 << u"2008-12-15"_s;
    QTest::newRow("to December") << Day(2010, 1, 15) << 11 << u"2010-12-15"_s;
    QTest::newRow("from December") << Day(2010, 12, 15) << 1 << u"2011-01-15"_s;
    QTest::newRow("back to December") << Day(2010, 12, 15) << -12 << u"2009-12-15"_s;
    QTest::newRow("a service life") << Day(2004, 2, 29) << 240 << u"2024-02-29"_s;
    QTest::newRow("the time goes") << Day(2010, 1, 15) + 0.5 << 1 << u"2010-02-15"_s;
  }
  void AddsMonthsAndKeepsTheDayValid() {
    QFETCH(Date, from);
    QFETCH(int, months);
    const Date to = AddMonthsToDate(from, static_cast<qint16>(months));
    QTEST(Iso(to), "to");
    QCOMPARE(to.Serial(), static_cast<double>(to.Days()));
  }

  void AddsMonthsPlainly() {
    QCOMPARE(Iso(AddMonthsPlain(14, Day(2010, 12, 15))), u"2012-02-15"_s);
    QCOMPARE(Iso(AddMonthsPlain(-1, Day(2010, 1, 30))), u"2009-12-30"_s);
    QCOMPARE(Iso(AddMonthsPlain(1, Day(2012, 1, 29))), u"2012-02-29"_s);
    QVERIFY_THROWS_EXCEPTION(Failure, AddMonthsPlain(1, Day(2011, 1, 31)));
    QVERIFY_THROWS_EXCEPTION(Failure, AddMonthsPlain(12, Day(2012, 2, 29)));
    QVERIFY_THROWS_EXCEPTION(Failure, AddMonthsPlain(std::numeric_limits<int>::max(), Day(2011, 1, 1)));
    QVERIFY_THROWS_EXCEPTION(Failure, AddMonthsPlain(std::numeric_limits<int>::min(), Day(2011, 1, 1)));
  }

  void MonthsBeyondTheCalendarShowABox() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Function ParseDate"_s, u"Type mismatch"_s);
    QCOMPARE(AddMonthsToDate(Day(9999, 12, 1), 1).IsNone(), true);
  }

  void AddsYears() {
    ScriptedPrompts prompts;
    QCOMPARE(Iso(AddYears(Day(2010, 12, 25), 3)), u"2013-12-25"_s);
    QCOMPARE(Iso(AddYears(Day(2010, 12, 25), -20)), u"1990-12-25"_s);
    QCOMPARE(Iso(AddYears(Day(2008, 2, 29), 4)), u"2012-02-29"_s);
    prompts.ExpectBox(u"Function ParseDate"_s, u"Type mismatch"_s);
    QCOMPARE(AddYears(Day(2008, 2, 29), 1).IsNone(), true);
  }

  void TheClockStopsAndRunsAgain() {
    {
      const FixedClock clock(Date(40537.75));
      QCOMPARE(Now().Serial(), 40537.75);
      QCOMPARE(Today().Serial(), 40537.0);
    }
    QVERIFY(std::abs(Date::From(QDateTime::currentDateTime()).Serial() - Now().Serial()) < 0.01);
    QCOMPARE(Today().Serial(), static_cast<double>(Now().Days()));
  }
};

LOFT_TEST_MAIN(TestDates)
#include "tst_dates.moc"
