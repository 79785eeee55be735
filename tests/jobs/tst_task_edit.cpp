#include <QtTest>

#include "jobs/sample_job.h"
#include "jobs/task_edit.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestTaskEditRules : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void WhatIsSavedIsWritten() {
    SampleJob shop;
    const int line = shop.AddTask(shop.aadCheck);
    TaskEntry entry;
    QVERIFY(LoadTaskEntry(line, entry));
    QVERIFY(entry.logBook);
    entry.logBook = false;
    entry.price = u"33.50"_s;
    QVERIFY(SaveTaskEntry(line, entry));
    QCOMPARE(shop.loft.Rows(u"select LogBook, FlatRate from tblTasks where ID = %1"_s.arg(line)),
             QStringList(u"0|335000"_s));
  }

  void APartAloneHasNoPlaceInTheLogBook() {
    SampleJob shop;
    int line = 0;
    AddTaskToJob(shop.Context(), shop.AddPart("Loop", 3), true, Day(3, 2, 2026), line);
    QVERIFY(LineIsPart(line));
    QVERIFY(!LineIsPart(shop.AddTask(shop.aadCheck)));
    AddCustomLine(shop.Context(), {u"Sew"_s, Money::Whole(5), true, 0, false}, Day(3, 2, 2026), line);
    QVERIFY(!LineIsPart(line));
    QCOMPARE(OriginalTaskName(line), u"(custom task)"_s);
  }
};

LOFT_TEST_MAIN(TestTaskEditRules)
#include "tst_task_edit.moc"
