#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include "data/connection_status.h"
#include "mariadb_server.h"
#include "show_fixture.h"
#include "support/wait.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

class LostServer : public testing::Test {
 protected:
    void SetUp() override {
        show.writeConnections("1==test==" + server.connectionString());
        show.seconds = 1;
        show.make();
        status = std::make_unique<ConnectionStatus>(*show.connections, form, clock);
        show.connections->execute({}, u"create table t (a integer)"_s);
        ASSERT_EQ(queries(), 2);
        EXPECT_EQ(words(), u"database 1 connected"_s);
    }
    // How many of the two connections answer.
    int queries() {
        return show.connections->RUN_QUERY({}, u"select 1"_s) + show.connections->RUN_QUERY2({}, u"select 1"_s);
    }

    QString words() const { return form.at(controls.lblDATABASE).text(); }

    MariaDbServer server;
    Show show;
    FormModel form;
    FakeClock clock;
    std::unique_ptr<ConnectionStatus> status;
};

TEST_F(LostServer, isFoundAgainAsSoonAsItIsBack) {
    server.kill();
    EXPECT_EQ(show.connections->RUN_QUERY({}, u"insert into t values (1)"_s), 0);
    EXPECT_EQ(show.operatorDesk.shown.size(), 1);
    EXPECT_EQ(show.connections->connectionState(), Connections::State::Failed);
    EXPECT_EQ(words(), u"database 1 lost at 23:59:58"_s);
    EXPECT_EQ(form.at(controls.lblDATABASE).role(), Control::Role::Bad);
    EXPECT_EQ(queries(), 0);
    EXPECT_EQ(show.operatorDesk.shown.size(), 3);

    server.start();
    EXPECT_EQ(show.connections->RUN_QUERY({}, u"select 1"_s), 1);
    EXPECT_EQ(words(), u"database 1 connected, Greek lost at 23:59:58"_s);
    EXPECT_EQ(queries(), 2);
    EXPECT_EQ(words(), u"database 1 connected"_s);
    EXPECT_EQ(show.connections->connectionState(), Connections::State::Open);
    show.connections->RUN_QUERY({}, u"insert into t values (2)"_s);
    show.connections->RUN_QUERY({}, u"select a from t"_s);
    EXPECT_EQ(show.recordCount(), u"1"_s);  // the insert that failed was not repeated
    EXPECT_EQ(show.cell(1, 0), u"2"_s);

    // Gone and back between two statements: nobody notices.
    server.kill();
    server.start();
    EXPECT_EQ(queries(), 2);
    EXPECT_EQ(show.operatorDesk.shown.size(), 3);
}

TEST_F(LostServer, keepsNobodyWaitingWhenItSaysNothing) {
    server.freeze(true);
    QElapsedTimer waited;
    waited.start();
    EXPECT_EQ(show.connections->RUN_QUERY({}, u"select 1"_s), 0);
    EXPECT_LT(waited.restart(), 8000);
    // Once it is known to be silent, nobody waits, on either connection.
    EXPECT_EQ(show.connections->RUN_QUERY2({}, u"select 1"_s), 0);
    EXPECT_LT(waited.elapsed(), 900);
    EXPECT_TRUE(show.operatorDesk.shown.value(1).contains(u"has not answered since"_s));
    EXPECT_EQ(words(), u"database 1 lost at 23:59:58, trying"_s);
    server.freeze(false);
    EXPECT_TRUE(waitUntil([&] { return words() == u"database 1 connected"_s; })) << "without a statement";
    ASSERT_EQ(show.operatorDesk.shown.size(), 2);
    EXPECT_TRUE(show.operatorDesk.shown[0].contains(u"within 1 seconds"_s)) << show.operatorDesk.shown[0].toStdString();
    // Its own connection comes back as soon as the server does.
    waited.restart();
    while (show.connections->RUN_QUERY({}, u"select 1"_s) == 0 && waited.elapsed() < 20'000) QThread::msleep(20);
    EXPECT_EQ(queries(), 2);
}

TEST(EndlessStatement, isCancelled) {
    Show show;
    show.writeConnections("1==test==Driver=SQLite3;Database=show.db");
    show.seconds = 1;
    show.make();
    ASSERT_EQ(show.connections->RUN_QUERY({}, u"select 1"_s), 1);
    const auto threads = [] { return QDir(u"/proc/self/task"_s).count(); };
    const auto before = threads();
    const QString endless = u"with recursive n(i) as (select 1 union all select i + 1 from n) select max(i) from n"_s;
    EXPECT_EQ(show.connections->RUN_QUERY({}, endless), 0);
    QElapsedTimer waited;
    waited.start();
    while (threads() > before && waited.elapsed() < 20'000) QThread::msleep(20);
    EXPECT_LE(threads(), before);
    EXPECT_EQ(show.connections->RUN_QUERY({}, u"select 1"_s), 1);
}

}  // namespace
}  // namespace zelvor::test
