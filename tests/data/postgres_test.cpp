#include <QElapsedTimer>
#include <QThread>
#include <QTimer>

#include "postgres_server.h"
#include "show_fixture.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

class PostgreSql : public testing::Test {
 protected:
    void SetUp() override {
        if (!PostgresServer::isInstalled()) GTEST_SKIP() << "postgresql and odbc-postgresql are not installed";
        server = std::make_unique<PostgresServer>();
        show.writeConnections("1==test==" + server->connectionString());
        show.seconds = 2;
        show.make();
        ASSERT_TRUE(show.connections->execute({}, u"create table t (a integer, n varchar(60))"_s));
        ASSERT_TRUE(show.connections->execute({}, u"insert into t values (1, 'Άγγελος Ώντ')"_s));
    }
    int rows() { return show.connections->RUN_QUERY({}, u"select a, n from t order by a"_s); }

    std::unique_ptr<PostgresServer> server;
    Show show;
};

TEST_F(PostgreSql, answersGivesUpAndComesBack) {
    ASSERT_EQ(rows(), 1);
    EXPECT_EQ(show.cell(1, 0), u"1"_s);
    EXPECT_EQ(show.cell(1, 1), u"Άγγελος Ώντ"_s);
    EXPECT_EQ(show.connections->RUN_QUERY2({}, u"select a from t where n = 'Άγγελος Ώντ'"_s), 1);
    // A RETURNING gives the rows that it met.
    EXPECT_EQ(show.connections->RUN_QUERY({}, u"update t set a = a where a = 9 returning a"_s), 0);
    EXPECT_EQ(show.connections->RUN_QUERY({}, u"update t set a = a where a = 1 returning a"_s), 1);
    EXPECT_TRUE(show.operatorDesk.shown.isEmpty()) << show.operatorDesk.shown.join(u'\n').toStdString();

    // Given up for a press; the connection is as good as before.
    QTimer::singleShot(200, [this] { show.program.databaseWait.setPressWaits(true); });
    QElapsedTimer waited;
    waited.start();
    EXPECT_EQ(show.connections->RUN_QUERY({Asker::Kind::TimedCard}, u"select pg_sleep(30)"_s), 0);
    EXPECT_LT(waited.elapsed(), 1900);
    EXPECT_EQ(rows(), 1);

    // What is told as failed is not done.
    const std::unique_ptr<Connections> other = std::move(show.connections);
    show.make();
    for (const QString& step : {u"begin"_s, u"lock table t"_s}) other->execute({}, step);
    EXPECT_EQ(show.connections->RUN_QUERY({}, u"insert into t values (2, 'x')"_s), 0);
    EXPECT_EQ(show.operatorDesk.shown.size(), 1);
    other->execute({}, u"commit"_s);
    QThread::msleep(300);  // for a statement that was left running
    EXPECT_EQ(rows(), 1);
}

TEST_F(PostgreSql, isAskedFirstAfterALongTime) {
    odbc::Connection busy(QString::fromUtf8(server->connectionString()), show.directory.path());
    odbc::Connection idle(QString::fromUtf8(server->connectionString()), show.directory.path(),
                          std::chrono::milliseconds{0});
    for (odbc::Connection* each : {&busy, &idle}) EXPECT_EQ(each->run(u"select a from t"_s, 5).rowCount(), 1);
    server->kill();
    server->start();
    EXPECT_THROW(busy.run(u"select a from t"_s, 5), RunTimeError) << "its driver has noticed nothing";
    EXPECT_EQ(idle.run(u"select a from t"_s, 5).rowCount(), 1);
}

}  // namespace
}  // namespace zelvor::test
