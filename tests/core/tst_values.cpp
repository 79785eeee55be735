#include <QtTest>

#include <limits>

#include "core/failure.h"
#include "core/format.h"
#include "core/money.h"
#include "core/value.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Body>
QString FailureOf(Body&& body) {
  try {
    std::forward<Body>(body)();
  } catch (const Failure& failure) {
    return failure.Text();
  }
  return u"none"_s;
}

Date Christmas() { return Date::FromParts(2010, 12, 25); }

}  // namespace

class TestValues : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void DatesCountFromTheEndOf1899() {
    QCOMPARE(Date::FromParts(1899, 12, 30).Serial(), 0.0);
    QCOMPARE(Date::FromParts(1900, 1, 1).Serial(), 2.0);
    QCOMPARE(Christmas().Serial(), 40537.0);
    QCOMPARE(Date(40537.75).ToQDateTime(), QDateTime(QDate(2010, 12, 25), QTime(18, 0)));
    QCOMPARE(Date::From(QDateTime(QDate(2010, 12, 25), QTime(18, 0))).Serial(), 40537.75);
    QCOMPARE(Date(40537.99999999999).ToQDateTime(), QDateTime(QDate(2010, 12, 26), QTime(0, 0)));
    QCOMPARE(Date::From(QDate()).IsNone(), true);
    QCOMPARE(DaysBetween(Date(40537.9), Date(40538.1)), 1);
  }

  void DatesBefore1899KeepTheirTimeOfDay() {
    const Date date = Date::From(QDateTime(QDate(1899, 12, 29), QTime(6, 0)));
    QCOMPARE(date.Serial(), -1.25);
    QCOMPARE(date.ToQDateTime(), QDateTime(QDate(1899, 12, 29), QTime(6, 0)));
    QCOMPARE(date.Days(), -1);
  }

  void DatesRefuseWhatTheCalendarLacks() {
    QCOMPARE(Date::IsValid(2012, 2, 29), true);
    QCOMPARE(Date::IsValid(2011, 2, 29), false);
    QCOMPARE(Date::IsValid(99, 1, 1), false);
    QCOMPARE(Date::IsValid(10000, 1, 1), false);
    QCOMPARE(FailureOf([] { Date::FromParts(2011, 2, 31); }), u"Type mismatch"_s);
    QCOMPARE(FailureOf([] { Date(1e12).Days(); }), u"Overflow"_s);
    QCOMPARE(Date::FromParts(9999, 12, 31).Days(), 2958465);
    QCOMPARE(FailureOf([] { Date(2958466).Days(); }), u"Overflow"_s);
    QCOMPARE(Date::FromParts(100, 1, 1).ToQDate(), QDate(100, 1, 1));
  }

  void DateFormats_data() {
    QTest::addColumn<double>("serial");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    const double may = Date::FromParts(2009, 5, 3).Serial();
    QTest::newRow("grid") << may << u"mm/dd/yyyy"_s << u"05/03/2009"_s;
    QTest::newRow("noon") << may + 0.5 << u"h:nn AM/PM"_s << u"12:00 PM"_s;
    QTest::newRow("midnight") << may << u"h:nn AM/PM"_s << u"12:00 AM"_s;
    QTest::newRow("early year") << Date::FromParts(987, 1, 2).Serial() << u"mm/dd/yyyy"_s << u"01/02/0987"_s;
    QTest::newRow("capitals") << may << u"MM/dd/yyyy"_s << u"05/03/2009"_s;
    QTest::newRow("box") << may << u"mm/dd/yy"_s << u"05/03/09"_s;
    QTest::newRow("short") << may << u"m/d/yyyy"_s << u"5/3/2009"_s;
    QTest::newRow("long") << may << u"dddd, mmm d yyyy"_s << u"Sunday, May 3 2009"_s;
    QTest::newRow("names") << may << u"ddd mmmm"_s << u"Sun May"_s;
    QTest::newRow("file name") << may << u"yyyymmdd"_s << u"20090503"_s;
    QTest::newRow("afternoon") << may + 15.5 / 24 << u"m/d/yyyy h:mm:ss AM/PM"_s << u"5/3/2009 3:30:00 PM"_s;
    QTest::newRow("midnight") << may << u"h:nn am/pm"_s << u"12:00 AM"_s;
    QTest::newRow("minutes") << may + 0.25 << u"hh:nn mm"_s << u"06:00 05"_s;
    QTest::newRow("none") << 0.0 << u"mm/dd/yyyy"_s << u"12/30/1899"_s;
  }
  void DateFormats() {
    QFETCH(double, serial);
    QFETCH(QString, pattern);
    QTEST(Format(Date(serial), pattern), "text");
  }

  void NumberFormats_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::newRow("price") << 95.5 << u"#######0.00"_s << u"95.50"_s;
    QTest::newRow("below one") << 0.5 << u"#0.00"_s << u"0.50"_s;
    QTest::newRow("whole") << 12.4 << u"######0"_s << u"12"_s;
    QTest::newRow("groups") << 1234567.891 << u"###,###,##0.00"_s << u"1,234,567.89"_s;
    QTest::newRow("small in groups") << 0.0 << u"###,###,##0.00"_s << u"0.00"_s;
    QTest::newRow("over the pattern") << 1234567890123.0 << u"###,###,##0"_s << u"1,234,567,890,123"_s;
    QTest::newRow("odd groups") << 12345.0 << u"##,###,###"_s << u"12,345"_s;
    QTest::newRow("dollar") << 1234.5 << u"$###,###,##0.00"_s << u"$1,234.50"_s;
    QTest::newRow("minus before dollar") << -1234.5 << u"$###,###,##0.00"_s << u"-$1,234.50"_s;
    QTest::newRow("zeros") << 42.0 << u"00000"_s << u"00042"_s;
    QTest::newRow("one place") << 1.05 << u"###,###,##0.0"_s << u"1.1"_s;
    QTest::newRow("half away from zero") << -2.5 << u"0"_s << u"-3"_s;
    QTest::newRow("as people see the digits") << 1.005 << u"0.00"_s << u"1.01"_s;
    QTest::newRow("carry") << 999.995 << u"##,##0.00"_s << u"1,000.00"_s;
    QTest::newRow("no minus on nothing") << -0.001 << u"0.00"_s << u"0.00"_s;
    QTest::newRow("needed digits only") << 0.0 << u"#"_s << QString();
    QTest::newRow("needed places") << 1.5 << u"0.0##"_s << u"1.5"_s;
    QTest::newRow("words around") << 3.0 << u"(0 kB)"_s << u"(3 kB)"_s;
    QTest::newRow("very large") << 1e21 << u"0"_s << u"1000000000000000000000"_s;
    QTest::newRow("very small") << 1e-7 << u"0.00"_s << u"0.00"_s;
  }
  void NumberFormats() {
    QFETCH(double, number);
    QFETCH(QString, pattern);
    QTEST(Format(number, pattern), "text");
  }

  void AmountsFormatWithoutAFloat() {
    const Money huge = Money::FromText(u"922337203685477.5807"_s);
    QCOMPARE(Format(huge, u"###,###,###,##0.00"_s), u"922,337,203,685,477.58"_s);
    QCOMPARE(Format(Money::FromUnits(10050), u"#######0.00"_s), u"1.01"_s);
    QCOMPARE(Format(Money::FromUnits(-1), u"0.0000"_s), u"-0.0001"_s);
    QCOMPARE(Format(7, u"000000000"_s), u"000000007"_s);
    QCOMPARE(FailureOf([] { Format(std::numeric_limits<double>::infinity(), u"0"_s); }), u"Overflow"_s);
  }

  void AmountsFromTexts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("units");
    QTest::newRow("plain") << u"95.50"_s << qint64{955000};
    QTest::newRow("words behind") << u"95.50 each"_s << qint64{955000};
    QTest::newRow("blanks") << u"  1 000.25"_s << qint64{10002500};
    QTest::newRow("minus") << u"-.5"_s << qint64{-5000};
    QTest::newRow("comma ends it") << u"1,000"_s << qint64{10000};
    QTest::newRow("none") << u"free"_s << qint64{0};
    QTest::newRow("empty") << QString() << qint64{0};
    QTest::newRow("half to even below") << u"0.00005"_s << qint64{0};
    QTest::newRow("half to even above") << u"0.00015"_s << qint64{2};
    QTest::newRow("over half") << u"0.000050001"_s << qint64{1};
    QTest::newRow("exponent") << u"1.5e2"_s << qint64{1500000};
    QTest::newRow("largest") << u"922337203685477.5807"_s << std::numeric_limits<qint64>::max();
    QTest::newRow("smallest") << u"-922337203685477.5808"_s << std::numeric_limits<qint64>::min();
  }
  void AmountsFromTexts() {
    QFETCH(QString, text);
    QTEST(Money::FromText(text).Units(), "units");
  }

  void AmountsOutOfRange() {
    QCOMPARE(FailureOf([] { Money::FromText(u"922337203685477.5808"_s); }), u"Overflow"_s);
    QCOMPARE(FailureOf([] { Money::FromDouble(1e15); }), u"Overflow"_s);
    QCOMPARE(FailureOf([] { Money::FromDouble(std::numeric_limits<double>::quiet_NaN()); }), u"Overflow"_s);
    QCOMPARE(Money::FromDouble(0.00015).Units(), qint64{2});
    QCOMPARE(Money::FromDouble(19.99).Units(), qint64{199900});
  }

  void LeadingNumbers() {
    QCOMPARE(Val(u"12 months"_s), 12.0);
    QCOMPARE(Val(u" 1 2.5x"_s), 12.5);
    QCOMPARE(Val(u"1,000"_s), 1.0);
    QCOMPARE(Val(u"-3e-1"_s), -0.3);
    QCOMPARE(Val(u"5 each"_s), 5.0);
    QCOMPARE(Val(u"$5"_s), 0.0);
    QCOMPARE(Val(u"."_s), 0.0);
    QCOMPARE(Val(u"1.2.3"_s), 1.2);
    QCOMPARE(FailureOf([] { Val(u"1e999"_s); }), u"Overflow"_s);
    QCOMPARE(Val(u"1e-999"_s), 0.0);
  }

  void NothingConvertsToNothing() {
    for (const Value& value : {Value(), Value(Value::Null{})}) {
      QCOMPARE(value.ToInt(), 0);
      QCOMPARE(value.ToDouble(), 0.0);
      QCOMPARE(value.ToBool(), false);
      QCOMPARE(value.ToMoney().Units(), 0);
      QCOMPARE(value.ToDate().IsNone(), true);
      QCOMPARE(value.ToText(), QString());
    }
  }

  void WholeNumbers() {
    QCOMPARE(Value(2.5).ToInt(), 2);
    QCOMPARE(Value(3.5).ToInt(), 4);
    QCOMPARE(Value(-2.5).ToInt(), -2);
    QCOMPARE(Value(true).ToInt(), -1);
    QCOMPARE(Value(u"True").ToInt(), -1);
    QCOMPARE(Value(u" 1,234 ").ToInt(), 1234);
    QCOMPARE(Value(u"$12").ToInt(), 12);
    QCOMPARE(Value(Money::FromUnits(25000)).ToInt(), 2);
    QCOMPARE(Value(Christmas()).ToInt(), 40537);
    QCOMPARE(Value(2147483647.4).ToInt(), 2147483647);
    QCOMPARE(FailureOf([] { Value(2147483647.5).ToInt(); }), u"Overflow"_s);
    QCOMPARE(FailureOf([] { Value(qint64{1} << 40).ToInt(); }), u"Overflow"_s);
    QCOMPARE(Value(-32768).ToInt16(), -32768);
    QCOMPARE(FailureOf([] { Value(32768).ToInt16(); }), u"Overflow"_s);
    for (const char16_t* text : {u"", u"twelve", u"12 each", u",1", u"1-", u"- 1"}) {
      QCOMPARE(FailureOf([text] { Value(text).ToInt(); }), u"Type mismatch"_s);
    }
  }

  void OtherConversions() {
    QCOMPARE(Value(u"922337203685477.5807").ToMoney().Units(), std::numeric_limits<qint64>::max());
    QCOMPARE(Value(-5).ToMoney().Units(), -50000);
    QCOMPARE(Value(qint64{922337203685477}).ToMoney().Units(), 9223372036854770000);
    QCOMPARE(Value(0.1).ToMoney().Units(), 1000);
    QCOMPARE(FailureOf([] { Value(std::numeric_limits<qint64>::max()).ToMoney(); }), u"Overflow"_s);
    QCOMPARE(Value(0.25).ToBool(), true);
    QCOMPARE(Value(u"false").ToBool(), false);
    QCOMPARE(Value(u"-1").ToBool(), true);
    QCOMPARE(FailureOf([] { Value(u"yes").ToBool(); }), u"Type mismatch"_s);
    QCOMPARE(Value(40537).ToDate().Serial(), 40537.0);
    QCOMPARE(Value(u"12/25/2010").ToDate().Serial(), 40537.0);
    QCOMPARE(FailureOf([] { Value(u"soon").ToDate(); }), u"Type mismatch"_s);
  }

  void Texts() {
    QCOMPARE(Value(true).ToText(), u"True"_s);
    QCOMPARE(Value(false).ToText(), u"False"_s);
    QCOMPARE(Value(-17).ToText(), u"-17"_s);
    QCOMPARE(Value(0.1 + 0.2).ToText(), u"0.3"_s);
    QCOMPARE(Value(1e20).ToText(), u"1E+20"_s);
    QCOMPARE(Value(1234567.25).ToText(), u"1234567.25"_s);
    QCOMPARE(Value(Money::FromUnits(955000)).ToText(), u"95.5"_s);
    QCOMPARE(Value(Money::FromUnits(-1)).ToText(), u"-0.0001"_s);
    QCOMPARE(Value(Money()).ToText(), u"0"_s);
    QCOMPARE(Value(Christmas()).ToText(), u"12/25/2010"_s);
    QCOMPARE(Value(Christmas() + 0.75).ToText(), u"12/25/2010 6:00:00 PM"_s);
    QCOMPARE(Value("rig").ToText(), u"rig"_s);
  }

  void EqualValuesHaveEqualKinds() {
    QVERIFY(Value() == Value());
    QVERIFY(Value(1) == Value(qint64{1}));
    QVERIFY(!(Value() == Value(Value::Null{})));
    QVERIFY(!(Value(1) == Value(1.0)));
  }
};

LOFT_TEST_MAIN(TestValues)
#include "tst_values.moc"
