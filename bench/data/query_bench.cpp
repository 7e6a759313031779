// What RUN_QUERY costs over the plainest loop on the same driver: bound columns, each value made a text.
//
//     query_bench [--mariadb | CONNECTION_STRING]
//
// Makes a table of 100 000 rows of 6 columns (in a temporary SQLite database, or on a MariaDB server of its own, when
// no connection string is given) and prints the best time of each and their ratio.

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <array>
#include <optional>

#include "base/run_time_error.h"
#include "data/connections.h"
#include "engine/system_clock.h"
#include "mariadb_server.h"
#include "support/unused_ports.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kRows = 100'000;
constexpr int kRowsAnInsert = 500;
constexpr int kColumns = 6;
constexpr int kRounds = 9;
const QString kQuery = u"select * from query_bench"_s;

void makeTable(zelvor::Connections& database) {
    try {
        database.execute({}, u"drop table query_bench"_s);
    } catch (const zelvor::RunTimeError&) {
        // the first time there is none
    }
    database.execute(
        {},
        u"create table query_bench (id integer, team integer, points double precision, average double precision, "
        "name varchar(60), played timestamp)"_s);
    for (int first = 0; first < kRows; first += kRowsAnInsert) {
        QStringList rows;
        for (int i = first; i < first + kRowsAnInsert; ++i) {
            rows +=
                u"(%1, %2, %3, %4.25, 'Παίκτης Number %1', '2026-11-21 20:31:07')"_s.arg(i).arg(i % 40).arg(i % 35).arg(
                    i % 60);
        }
        database.execute({}, u"insert into query_bench values "_s + rows.join(u','));
    }
}

void plainLoop(zelvor::odbc::Handle& connection) {
    const zelvor::odbc::Handle statement(SQL_HANDLE_STMT, connection.raw());
    QByteArray sql = kQuery.toUtf8();
    if (!SQL_SUCCEEDED(SQLExecDirect(statement.raw(), reinterpret_cast<SQLCHAR*>(sql.data()), SQL_NTS)))
        qFatal("plain query");
    std::array<std::array<char, 512>, kColumns> buffers{};
    std::array<SQLLEN, kColumns> lengths{};
    for (int i = 0; i < kColumns; ++i) {
        SQLBindCol(statement.raw(), static_cast<SQLUSMALLINT>(i + 1), SQL_C_CHAR, buffers[i].data(), buffers[i].size(),
                   &lengths[i]);
    }
    std::vector<QString> texts;
    while (SQL_SUCCEEDED(SQLFetch(statement.raw()))) {
        for (int i = 0; i < kColumns; ++i) texts.push_back(QString::fromUtf8(buffers[i].data(), lengths[i]));
    }
    if (texts.size() != static_cast<size_t>(kRows) * kColumns) qFatal("plain loop: %zu cells", texts.size());
}

// Milliseconds that it takes, the driver's and our own freeing of the rows included.
template <class Work>
double timeOf(Work work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir directory;
    QDir(directory.path()).mkpath(u"MODULES/QRD_EN"_s);
    std::optional<zelvor::test::MariaDbServer> server;
    QByteArray connectionString = "Driver=SQLite3;Database=" + QFile::encodeName(directory.filePath(u"bench.db"_s));
    if (argc > 1) connectionString = argv[1];
    if (connectionString == "--mariadb") connectionString = server.emplace().connectionString();
    QFile list(directory.filePath(u"MODULES/QRD_EN/CONNECTIONS.TXT"_s));
    if (!list.open(QIODevice::WriteOnly)) return 1;
    list.write("1==bench==" + connectionString);
    list.close();

    zelvor::ShowState state;
    state.variables.SetVar(u"@LANGUAGE", u"EN"_s);
    zelvor::test::Unused unused;
    zelvor::Program program{zelvor::AppFolder(directory.path()), {}, zelvor::ErrorTrap(directory.filePath(u"log"_s))};
    zelvor::SystemClock clock(program.closing);
    zelvor::Connections database(state, unused, program, clock, {.number = 1});
    makeTable(database);

    zelvor::odbc::Handle environment(SQL_HANDLE_ENV, nullptr);
    SQLSetEnvAttr(environment.raw(), SQL_ATTR_ODBC_VERSION, zelvor::odbc::attributeValue(SQL_OV_ODBC3), 0);
    zelvor::odbc::Handle connection(SQL_HANDLE_DBC, environment.raw());
    QByteArray text = connectionString;
    if (!SQL_SUCCEEDED(SQLDriverConnect(connection.raw(), nullptr, reinterpret_cast<SQLCHAR*>(text.data()), SQL_NTS,
                                        nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT))) {
        qFatal("%s", zelvor::odbc::diagnostics(connection).text.constData());
    }

    std::vector<double> plain;
    std::vector<double> query;
    for (int round = 0; round < kRounds; ++round) {
        plain.push_back(timeOf([&] { plainLoop(connection); }));
        query.push_back(timeOf([&] { database.RUN_QUERY({}, kQuery); }));
        if (state.QUERY_RESULT.rowCount() != kRows) qFatal("RUN_QUERY: %d rows", state.QUERY_RESULT.rowCount());
    }
    const double bestPlain = *std::ranges::min_element(plain);
    const double bestQuery = *std::ranges::min_element(query);
    QTextStream(stdout) << u"plain loop %1 ms, RUN_QUERY %2 ms, ratio %3\n"_s.arg(bestPlain, 0, 'f', 1)
                               .arg(bestQuery, 0, 'f', 1)
                               .arg(bestQuery / bestPlain, 0, 'f', 2);
    return 0;
}
