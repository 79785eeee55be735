#include <QFile>
#include <QTest>

#include "core/failure.h"
#include "core/store/jet.h"
#include "support/scripted_prompts.h"
#include "support/store_fixture.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class JetTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void Translates_data() {
    QTest::addColumn<QString>("jet");
    QTest::addColumn<QByteArray>("sqlite");
    const auto row = [](const char* jet, const char* sqlite) {
      QTest::newRow(jet) << QString::fromUtf8(jet) << QByteArray(sqlite);
    };
    row("tblMisc", "SELECT *, [tblMisc].rowid FROM [tblMisc]");
    row("[tblMisc]", "SELECT *, [tblMisc].rowid FROM [tblMisc]");
    row("Delete * from tblRig where id = 5", "DELETE from [tblRig] where [id] = ?1");
    row("delete PhotoFile from tblPhotos where photofile = ''", "DELETE from [tblPhotos] where [photofile] = ?1");
    row("select id from tblJobs order by ID", "select [id], [tblJobs].rowid from [tblJobs] order by [ID]");
    row("Select * from tblPeople where Rigger = true order by Lastname desc",
        "Select *, [tblPeople].rowid from [tblPeople] where [Rigger] = -1 order by [Lastname] desc");
    row("Select * from tblTaskLib where IsEvent = False",
        "Select *, [tblTaskLib].rowid from [tblTaskLib] where [IsEvent] = 0");
    row("update tblLocation set Default = false", "update [tblLocation] set [Default] = 0");
    row("Update [tblPeople] set [email1] = 'a@b.c' where [id] = 7",
        "Update [tblPeople] set [email1] = ?1 where [id] = ?2");
    row("Select * from tblTasks where status = -1", "Select *, [tblTasks].rowid from [tblTasks] where [status] = - ?1");
    row("Select * from tblTasks where ID between 3 and 9",
        "Select *, [tblTasks].rowid from [tblTasks] where [ID] between ?1 and ?2");
    row("Select * from tblTasks where TaskLibID IN ( 1, 2)",
        "Select *, [tblTasks].rowid from [tblTasks] where [TaskLibID] IN ( ?1 , ?2 )");
    row("Select tblTasks.* from tblTasks INNER JOIN tblJobs ON tblTasks.JobID = tblJobs.ID",
        "Select [tblTasks].* from [tblTasks] INNER JOIN [tblJobs] ON [tblTasks].[JobID] = [tblJobs].[ID]");
    row("Select distinct State from tblPeople", "Select distinct [State] from [tblPeople]");
    row("Select State from tblPeople group by State", "Select [State] from [tblPeople] group by [State]");
    row("Select State from tblPeople union Select State from tblPeople",
        "Select [State] from [tblPeople] union Select [State] from [tblPeople]");
    row("Select Max(ID) from tblJobs", "Select Max ( [ID] ) from [tblJobs]");
    row("Select * from tblPeople where lastname = \"Lee\" & 'x';",
        "Select *, [tblPeople].rowid from [tblPeople] where [lastname] = ?1 || ?2");
  }
  void Translates() {
    QFETCH(QString, jet);
    QFETCH(QByteArray, sqlite);
    QCOMPARE(jet::Translate(jet).sql, sqlite);
  }

  void StatementsThatDifferInValuesShareOneKey() {
    jet::Cut one;
    jet::Cut other;
    jet::CutStatement(u"Select * from tblJobs where ID = 17 and JobTitle = 'it''s'", one);
    jet::CutStatement(u"select  * FROM TBLJOBS where id=18 AND jobtitle='x'", other);
    QVERIFY(one.key == other.key);
    QCOMPARE(jet::TextOf(one.literals.at(0)), u"17"_s);
    QCOMPARE(jet::TextOf(one.literals.at(1)), u"it's"_s);
    jet::CutStatement(u"Select * from tblJobs where ID > 17 and JobTitle = 'x'", other);
    QVERIFY(one.key != other.key);
    jet::CutStatement(u"Select [Order] from tblJobs", one);
    jet::CutStatement(u"Select Order from tblJobs", other);
    QVERIFY(one.key != other.key);
    jet::CutStatement(u"tblJobs", one);
    jet::CutStatement(u"tbl Jobs", other);
    QVERIFY(one.key != other.key);
  }

  void NamesTheColumnThatALiteralMeets() {
    const auto compared = jet::Translate(
        u"update tblTasks set FlatRate = 5, Comments = 'a' where ID = 3 and DateTaskStarted between #1/1/2020# and "
        u"#2/1/2020#");
    QCOMPARE(compared.comparedTo,
             (std::vector<QString>{u"FlatRate"_s, u"Comments"_s, u"ID"_s, u"DateTaskStarted"_s, u"DateTaskStarted"_s}));
  }

  void ReadsDateLiterals() {
    QCOMPARE(jet::ParseDateLiteral(u"11/21/2026"), Date::FromParts(2026, 11, 21));
    QCOMPARE(jet::ParseDateLiteral(u"1/2/05"), Date::FromParts(2005, 1, 2));
    QCOMPARE(jet::ParseDateLiteral(u"1/2/29"), Date::FromParts(2029, 1, 2));
    QCOMPARE(jet::ParseDateLiteral(u"1/2/30"), Date::FromParts(1930, 1, 2));
    QCOMPARE(jet::ParseDateLiteral(u"11/21/2026 6:00 pm"), Date::FromParts(2026, 11, 21) + 0.75);
    QCOMPARE(jet::ParseDateLiteral(u"1/2/95"), Date::FromParts(1995, 1, 2));
    QCOMPARE(jet::ParseDateLiteral(u"11/21/2026 6:00 PM"), Date::FromParts(2026, 11, 21) + 0.75);
    QVERIFY_THROWS_EXCEPTION(Failure, jet::ParseDateLiteral(u"2/30/2026"));
    QVERIFY_THROWS_EXCEPTION(Failure, jet::ParseDateLiteral(u"soon"));
  }

  void RefusesWhatIsNotClosed() {
    jet::Cut cut;
    QVERIFY_THROWS_EXCEPTION(Failure, jet::CutStatement(u"Select * from tblPeople where lastname = 'O'Neil'", cut));
    QVERIFY_THROWS_EXCEPTION(Failure, jet::CutStatement(u"Select * from [tblPeople", cut));
    QVERIFY_THROWS_EXCEPTION(Failure, jet::CutStatement(u"Select * from tblJobs where DateStarted = #1/1/2020", cut));
  }

  /// Every statement that the program's routines write is accepted as it stands, against the whole schema.
  void AcceptsEveryStatementOfTheProgram_data() {
    QTest::addColumn<QString>("statement");
    QFile file(QFINDTESTDATA("core/data/statements.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    for (const QByteArray& line : file.readAll().split('\n'))
      if (!line.isEmpty()) QTest::newRow(line.constData()) << QString::fromUtf8(line);
  }
  void AcceptsEveryStatementOfTheProgram() {
    QFETCH(QString, statement);
    static StoreFixture store;
    ScriptedPrompts prompts;
    const bool reads = statement.startsWith("select"_L1, Qt::CaseInsensitive) || !statement.contains(u' ');
    if (reads) {
      QCOMPARE(GetNumberRecordsComplex(statement).ToInt(), 0);
      Bracket bracket;
      Recordset records(statement);
      QVERIFY(!records.Fields().empty());
      for (const Field& field : records.Fields()) QVERIFY2(field.type != 0, qPrintable(field.name));
    } else {
      UpdateTableBySQL(statement);
    }
    QVERIFY(!ConnectionIsOpen);
  }
};

LOFT_TEST_MAIN(JetTest)
#include "tst_jet.moc"
