#include <dlfcn.h>

#include <QElapsedTimer>
#include <QScopeGuard>
#include <QThread>
#include <QTimer>

#include "base/run_time_error.h"
#include "mariadb_server.h"
#include "show_fixture.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

using Kind = Value::Kind;
const QString kSqlite = u"Driver=SQLite3;Database=show.db"_s;
// Called when a statement was carried out and its rows are about to be read.
std::function<void()> beforeRows;

// The same expectations of every kind of database.
class OnEachDatabase : public testing::TestWithParam<const char*> {
 protected:
    // One server for all tests; each begins with tables of its own.
    static void TearDownTestSuite() { server().reset(); }
    static std::unique_ptr<MariaDbServer>& server() {
        static std::unique_ptr<MariaDbServer> one;
        return one;
    }

    void SetUp() override {
        QByteArray connectionString = kSqlite.toLatin1();
        if (isMariaDb()) {
            if (!server()) server() = std::make_unique<MariaDbServer>();
            connectionString = server()->connectionString();
        }
        show.writeConnections("1==test==" + connectionString);
        show.make();
        database = show.connections.get();
    }
    [[nodiscard]] odbc::Connection connection() const {
        return {isMariaDb() ? QString::fromLatin1(server()->connectionString()) : kSqlite, show.directory.path()};
    }
    [[nodiscard]] static bool isMariaDb() { return QByteArrayView(GetParam()) == "MariaDB"; }

    // Makes the table anew with these columns and rows.
    void makeTable(const QString& columns, const QStringList& rows) {
        database->execute({}, u"drop table if exists t"_s);
        database->execute({}, u"create table t ("_s + columns + u')');
        for (const QString& row : rows) database->execute({}, u"insert into t values ("_s + row + u')');
    }

    // The first cell of what a query gives.
    QString cellOf(const QString& sql) {
        database->RUN_QUERY({}, sql);
        return show.cell(1, 0);
    }

    Show show;
    Connections* database = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Suite, OnEachDatabase, testing::Values("SQLite", "MariaDB"),
                         [](const auto& database) { return std::string(database.param); });

TEST_P(OnEachDatabase, valuesKeepTheirKind) {
    struct Column {
        QString type;
        QString literal;
        Kind kind;
        QString text;
    };
    std::vector<Column> columns{
        {u"bigint"_s, u"9223372036854775807"_s, Kind::Integer, u"9223372036854775807"_s},
        {u"double"_s, u"2.11"_s, Kind::Double, u"2.11"_s},
        {u"real"_s, u"0.1"_s, Kind::Double, u"0.1"_s},
        {u"datetime"_s, u"'2026-11-21 20:31:07'"_s, Kind::Date, u"2026-11-21 20:31:07"_s},
        {u"date"_s, u"'2026-11-21'"_s, Kind::Date, u"2026-11-21"_s},
        {u"time"_s, u"'20:31:07'"_s, Kind::Date, u"20:31:07"_s},
        {u"varchar(20)"_s, u"'007'"_s, Kind::Text, u"007"_s},
        {u"varchar(20)"_s, u"''"_s, Kind::Text, u""_s},
        {u"integer"_s, u"null"_s, Kind::Null, u""_s},
        {u"blob"_s, u"x'4162'"_s, Kind::Text, u"Ab"_s},
    };
    if (isMariaDb()) {
        columns.push_back({u"decimal(10,2)"_s, u"3.10"_s, Kind::Double, u"3.1"_s});
        columns.push_back({u"tinyint"_s, u"-1"_s, Kind::Integer, u"-1"_s});
        columns.push_back({u"bigint unsigned"_s, u"18446744073709551615"_s, Kind::Text, u"18446744073709551615"_s});
        columns.push_back({u"bit(1)"_s, u"b'1'"_s, Kind::Boolean, u"True"_s});
    }
    QStringList declarations;
    QStringList literals;
    for (const Column& column : columns) {
        declarations += u"c%1 "_s.arg(declarations.size()) + column.type;
        literals += column.literal;
    }
    makeTable(declarations.join(u','), {literals.join(u',')});
    for (const bool greek : {false, true}) {
        const QString all = u"select t.*, count(*), 'x' from t group by c0"_s;
        ASSERT_EQ(greek ? database->RUN_QUERY2({}, all) : database->RUN_QUERY({}, all), 1);
        ASSERT_EQ(show.state.QUERY_RESULT.fieldCount(), static_cast<int>(columns.size()) + 2);
        for (size_t i = 0; i < columns.size(); ++i) {
            const Value& value = show.state.QUERY_RESULT.cell(1, static_cast<int>(i));
            EXPECT_EQ(value.kind(), columns[i].kind) << columns[i].type.toStdString() << " greek " << greek;
            EXPECT_EQ(value.text(), columns[i].text) << columns[i].type.toStdString() << " greek " << greek;
        }
        EXPECT_EQ(show.state.QUERY_RESULT.cell(1, static_cast<int>(columns.size())), Value(1));
    }
}

TEST_P(OnEachDatabase, countsAreExact) {
    makeTable(u"a integer, b varchar(9)"_s, {u"1,'x'"_s, u"2,'y'"_s, u"3,null"_s});
    EXPECT_EQ(database->RUN_QUERY({}, u"select b, a from t order by a"_s), 3);
    EXPECT_EQ(show.recordCount(), u"3"_s);
    EXPECT_EQ(show.cell(3, 1), u"3"_s);
    // Nothing found: the table stays; @RECORDCOUNT is reset by the first procedure alone.
    EXPECT_EQ(database->RUN_QUERY2({}, u"select a from t where a > 9"_s), 0);
    EXPECT_EQ(show.recordCount(), u"3"_s);
    EXPECT_EQ(database->RUN_QUERY({}, u"select a from t where a > 9"_s), 0);
    EXPECT_EQ(show.recordCount(), u"0"_s);
    EXPECT_EQ(show.state.QUERY_RESULT.rowCount(), 3);
    for (const QString& change : {u"update t set b = 'z' where a = 9"_s, u"delete from t where a = 2"_s})
        EXPECT_EQ(database->RUN_QUERY({}, change), 0) << change.toStdString();
    EXPECT_TRUE(show.operatorDesk.shown.isEmpty()) << show.operatorDesk.shown.join(u'\n').toStdString();
    EXPECT_EQ(database->RUN_QUERY2({}, u"select b from t order by a"_s), 2);

    // The procedures' own count is a 16-bit number.
    QStringList rows;
    for (int i = 0; i < 200; ++i) rows += QString::number(i);
    makeTable(u"a integer"_s, {rows.join(u"),("_s)});
    EXPECT_EQ(database->RUN_QUERY({}, u"select x.a * 200 + y.a from t x, t y order by 1"_s), 32767);
    EXPECT_EQ(show.cell(40000, 0), u"39999"_s);
}

TEST_P(OnEachDatabase, greekIsRightOnBothConnections) {
    const QString name = u"Άγγελος Παπαδόπουλος-Ώντ «ΐΰ»"_s;
    makeTable(u"n varchar(60)"_s, {u'\'' + name + u'\''});
    EXPECT_EQ(database->RUN_QUERY2({}, u"insert into t values ('"_s + name + u"')"_s), 0);
    const QString same = u"select n, length(n) from t where n = '"_s + name + u'\'';
    EXPECT_EQ(database->RUN_QUERY({}, same), 2);
    EXPECT_EQ(show.cell(1, 0), name);
    EXPECT_EQ(show.cell(1, 1), show.cell(2, 1));
    EXPECT_EQ(database->RUN_QUERY2({}, same), 2);
    EXPECT_EQ(show.cell(2, 0), name);
    EXPECT_EQ(database->readGreek({}, u"select 'Έξι' as αριθμός from t"_s)->columns, QStringList(u"αριθμός"_s));
}

TEST_P(OnEachDatabase, errorsAreShownAndNothingChanges) {
    makeTable(u"a integer"_s, {u"1"_s, u"2"_s});
    ASSERT_EQ(database->RUN_QUERY({}, u"select a from t"_s), 2);
    Asker card;
    card.at = {u"card.csp"_s, {}, 4};
    EXPECT_EQ(database->RUN_QUERY2(card, u"select a from nowhere"_s), 0);
    const QString logged = TextFiles().readLines(show.directory.filePath(u"error.log"_s)).value(0);
    EXPECT_TRUE(logged.contains(u"\tcard.csp\tline 4\t"_s) && logged.endsWith(u"  select a from nowhere"_s))
        << logged.toStdString();
    EXPECT_EQ(show.recordCount(), u"2"_s);
    EXPECT_EQ(database->RUN_QUERY({}, u"selekt"_s), 0);
    EXPECT_EQ(show.recordCount(), u"0"_s);
    EXPECT_EQ(database->RUN_QUERY({}, u"  "_s), 0);
    EXPECT_EQ(show.state.QUERY_RESULT.rowCount(), 2);
    ASSERT_EQ(show.operatorDesk.shown.size(), 3);
    EXPECT_TRUE(show.operatorDesk.shown[0].startsWith(u"Error in Query2|["_s));
    EXPECT_TRUE(show.operatorDesk.shown[0].endsWith(u"\r\nselect a from nowhere"_s));
    EXPECT_TRUE(show.operatorDesk.shown[1].startsWith(u"Error in Query|["_s));

    EXPECT_THROW(database->execute({}, u"insert into nowhere values (1)"_s), RunTimeError);
    EXPECT_THROW(database->readGreek({}, u"select nothing from t"_s), RunTimeError);
    EXPECT_EQ(show.operatorDesk.shown.size(), 3);
    EXPECT_EQ(database->RUN_QUERY({}, u"select a from t"_s), 2);
}

TEST_P(OnEachDatabase, theLoopTurnsUntilAStatementIsGivenUp) {
    const QString slow =
        isMariaDb() ? u"select sleep(60)"_s
                    : u"with recursive n(i) as (select 1 union all select i + 1 from n) select max(i) from n"_s;
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(10);
    DatabaseWait& wait = show.program.databaseWait;
    const Asker timed{Asker::Kind::TimedCard, u"card.csp"_s, {}, {}, 7};
    const Asker operators{Asker::Kind::Operator, u"card.csp"_s, {}, {}, 8};
    for (const Asker& asker : {timed, operators}) {
        QElapsedTimer waited;
        waited.start();
        wait.setPressWaits(false);
        QTimer::singleShot(300, &timer, [&] {
            EXPECT_TRUE(wait.isOn());
            wait.setPressWaits(true);
        });
        // Nobody but CLEAR ends his own.
        if (asker.isAttended()) QTimer::singleShot(800, &timer, [&] { show.program.clearing.begin(); });
        EXPECT_EQ(database->RUN_QUERY2(asker, slow), 0);
        EXPECT_GT(waited.elapsed(), asker.isAttended() ? 790 : 290);
        EXPECT_LT(waited.elapsed(), 4000);
        EXPECT_EQ(wait.hasEnded(asker), !asker.isAttended());
        EXPECT_EQ(database->RUN_QUERY2({}, u"select 1"_s), 1) << "and the connection is as good as before";
    }
    EXPECT_GT(ticks, 20);
    EXPECT_TRUE(show.operatorDesk.shown.isEmpty()) << show.operatorDesk.shown.join(u'\n').toStdString();
}

// Statements after which MariaDB's driver crashes or hangs.
TEST_P(OnEachDatabase, survivesWhatTheDriverDoesNot) {
    makeTable(u"a integer"_s, {u"1"_s});
    const QStringList odd = isMariaDb() ? QStringList{u"optimize table t"_s,
                                                      u"/* x */ (values (1), (2))"_s,
                                                      u"do 1"_s,
                                                      u"help 'select'"_s,
                                                      u"repair table t"_s,
                                                      u"insert into t values (2); select 1"_s,
                                                      u"select ';\\';', 1; select 2"_s}
                                        : QStringList{u"values (1), (2)"_s, u"vacuum"_s};
    for (const QString& statement : odd) {
        database->RUN_QUERY({}, statement);
        EXPECT_EQ(database->RUN_QUERY({}, u"select a from t"_s), 1) << statement.toStdString();
    }
    // Kept open with its temporary table: a semicolon in a text begins no statement.
    for (const QString& step : {u"create temporary table k (a integer)"_s, u"insert into k values (1)"_s}) {
        database->execute({}, step);
    }
    EXPECT_EQ(database->RUN_QUERY({}, u"select ';', 'a''; b', \"; c\" from k; "_s), 1);
    EXPECT_EQ(database->RUN_QUERY({}, u"select a from k"_s), 1);
    for (const QString& step : {u"begin"_s, u"insert into t values (2)"_s, u"rollback"_s}) database->execute({}, step);
    EXPECT_EQ(database->RUN_QUERY({}, u"select a from t"_s), 1);
}

TEST_P(OnEachDatabase, aFileThatWasPutInItsPlaceIsRead) {
    if (isMariaDb()) GTEST_SKIP() << "has no file";
    const QString file = show.directory.filePath(u"show.db"_s);
    const auto replace = [&](int value) {
        odbc::Connection other(u"Driver=SQLite3;Database=other.db"_s, show.directory.path());
        for (const QString& step : {u"create table t (a integer)"_s, u"insert into t values (%1)"_s.arg(value)})
            other.run(step, 1);
        QFile::remove(file);
        EXPECT_EQ(cellOf(u"select a from t"_s), QString::number(value - 1)) << "one that is gone is read on";
        ASSERT_TRUE(QFile::rename(show.directory.filePath(u"other.db"_s), file));
    };
    makeTable(u"a integer"_s, {u"1"_s});
    replace(2);
    EXPECT_EQ(cellOf(u"select a from t"_s), u"2");
    database->execute({}, u"begin"_s);
    replace(3);
    EXPECT_EQ(cellOf(u"select a from t"_s), u"2") << "a transaction goes on in the old one";
    database->execute({}, u"rollback"_s);
    EXPECT_EQ(cellOf(u"select a from t"_s), u"3");
}

TEST_P(OnEachDatabase, whatIsToldAsFailedIsNotDone) {
    makeTable(u"a integer"_s, {});
    const std::unique_ptr<Connections> other = std::move(show.connections);
    show.seconds = 1;
    show.make();
    database = show.connections.get();
    other->execute({}, isMariaDb() ? u"lock tables t write"_s : u"begin exclusive"_s);
    const QString write = u"insert into t values (1)"_s;
    EXPECT_EQ(database->RUN_QUERY({}, write), 0);
    EXPECT_TRUE(show.operatorDesk.shown.value(0).contains(u"did not answer within 1 seconds"_s))
        << show.operatorDesk.shown.join(u'\n').toStdString();
    other->execute({}, isMariaDb() ? u"unlock tables"_s : u"commit"_s);
    QThread::msleep(300);  // for a statement that was left running
    EXPECT_EQ(other->RUN_QUERY({}, u"select a from t"_s), 0);
    database->execute({}, write);
    EXPECT_EQ(database->RUN_QUERY({}, u"select a from t"_s), 1);
}

TEST_P(OnEachDatabase, aWriteThatIsCancelledBeforeItsRowsAreReadIsTold) {
    makeTable(u"a integer"_s, {});
    odbc::Connection one = connection();
    one.open(5);
    beforeRows = [&] { one.cancel(); };
    const auto reset = qScopeGuard([] { beforeRows = {}; });
    // SQLite's driver gives no rows of it.
    EXPECT_EQ(one.run(u"insert into t values (1) returning a"_s, 5).rowCount(), isMariaDb() ? 1 : 0);
    one.resume();
    EXPECT_THROW(one.run(u"select a from t"_s, 5), RunTimeError);
}

TEST_P(OnEachDatabase, theStartHasLonger) {
    makeTable(u"a integer"_s, {});
    odbc::Connection other = connection();
    other.run(isMariaDb() ? u"lock tables t write"_s : u"begin exclusive"_s, 5);
    show.seconds = 1;
    show.make();
    QTimer::singleShot(2500, [&] { other.run(isMariaDb() ? u"unlock tables"_s : u"commit"_s, 5); });
    EXPECT_TRUE(show.connections->execute({.card = u"getgame.QRD"_s}, u"insert into t values (1)"_s));
}

TEST_P(OnEachDatabase, longResultsAreWhole) {
    // Lengths around the buffers' sizes, long and short cells mixed in rows and columns.
    makeTable(u"a integer, long1 text, short varchar(10), long2 "_s + (isMariaDb() ? u"longtext"_s : u"text"_s), {});
    const std::vector<int> lengths{0, 1, 255, 256, 257, 511, 512, 513, 4095, 4096, 4097, 32767, 1'048'576 / 2};
    const auto text = [](int length, QChar filler) -> QString { return QString(length, filler) + u"end"_s; };
    for (const int length : lengths) {
        database->execute({}, u"insert into t values (%1, '"_s.arg(length) + text(std::min(length, 9000), u'x') +
                                  u"', 'ab', '"_s + text(length, u'Ω') + u"')"_s);
    }
    const QString all = u"select * from t order by a"_s;
    for (const bool greek : {false, true}) {
        ASSERT_EQ(greek ? database->RUN_QUERY2({}, all) : database->RUN_QUERY({}, all),
                  static_cast<int>(lengths.size()));
        for (int row = 1; row <= static_cast<int>(lengths.size()); ++row) {
            const int length = lengths[row - 1];
            EXPECT_EQ(show.cell(row, 0), QString::number(length));
            EXPECT_TRUE(show.cell(row, 1) == text(std::min(length, 9000), u'x')) << length << " greek " << greek;
            EXPECT_EQ(show.cell(row, 2), u"ab"_s);
            EXPECT_TRUE(show.cell(row, 3) == text(length, u'Ω')) << length << " greek " << greek;
        }
    }
}

}  // namespace
}  // namespace zelvor::test

// Stands before the driver manager's.
extern "C" SQLRETURN SQLNumResultCols(SQLHSTMT statement, SQLSMALLINT* count) {
    static const auto real = reinterpret_cast<decltype(&SQLNumResultCols)>(dlsym(RTLD_NEXT, "SQLNumResultCols"));
    if (zelvor::test::beforeRows) zelvor::test::beforeRows();
    return real(statement, count);
}
