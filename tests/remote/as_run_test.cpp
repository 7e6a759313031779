#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QJsonObject>
#include <QPushButton>
#include <QTemporaryDir>

#include "app_as_run/as_run_command.h"
#include "as_run/as_run_file.h"
#include "as_run/as_run_reader.h"
#include "as_run/standing_graphics.h"
#include "console/gallery.h"
#include "support/full_disk.h"
#include "support/told.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

const QDate kDay(2026, 11, 21);

QJsonObject fired(const QString& run) {
    return {{u"event"_s, u"fired"_s}, {u"run"_s, run}, {u"caption"_s, QString(u"Λήδα \" , "_s + run)}};
}

std::vector<AsRunCard> read(const QByteArray& record) {
    QBuffer buffer;
    buffer.setData(record);
    buffer.open(QIODevice::ReadOnly);
    return readAsRun(buffer);
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Wherever the program is killed, what was written before and what a later one writes can both be read.
TEST(AsRunFile, CutAtAnyByteItGoesOn) {
    const QTemporaryDir disk;
    const AppFolder folder(disk.path());
    const QString path = AsRunFile::pathOf(folder, kDay);
    {
        AsRunFile file(folder, kDay);
        for (const QString& run : {u"1"_s, u"2"_s}) file.append(fired(run));
    }
    const QByteArray whole = bytesOf(path);
    const qsizetype second = whole.indexOf('\n') + 1;
    ASSERT_EQ(read(whole).size(), 2U);
    for (qsizetype cut = second; cut < whole.size(); ++cut) {
        QFile file(path);
        ASSERT_TRUE(file.resize(cut));
        AsRunFile(folder, kDay).append(fired(u"3"_s));
        const auto cards = read(bytesOf(path));
        // Without its line end alone the second one is whole.
        const size_t before = cut == whole.size() - 1 ? 2 : 1;
        ASSERT_EQ(cards.size(), before + 1) << cut;
        ASSERT_EQ(cards.back().run, u"3") << cut;
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(whole);
    }
}

TEST(AsRunFile, FullDiskIsToldOnceAndEndsNothing) {
    const QTemporaryDir disk;
    AsRunFile file(AppFolder(disk.path()), kDay);
    int told = 0;
    QObject::connect(&file, &AsRunFile::failed, [&] { ++told; });
    file.append(fired(u"1"_s));
    {
        const FullDisk full(static_cast<rlim_t>(bytesOf(file.path()).size() + 10));
        for (int i = 0; i < 3; ++i) file.append(fired(u"lost"_s));
    }
    EXPECT_EQ(told, 1);
    file.append(fired(u"2"_s));
    const auto cards = read(bytesOf(file.path()));
    ASSERT_EQ(cards.size(), 2U);
    EXPECT_EQ(cards[1].run, u"2");
}

// Run and line, at tenths of a second; what leaves, as "run:tenths".
TEST(AsRun, GraphicsStandUntilTheyAreTakenOff) {
    const std::tuple<qint64, QString, QString> steps[]{
        {1, u"CG 1-20 ADD 1 \"a\" 1 \"<x>CLEAR</x>\""_s, {}},
        {1, u"CG 1-21 ADD 1 \"b\" 1"_s, {}},
        {2, u"CG 1-20 UPDATE 1 \"STOP\""_s, {}},
        {2, u"CG 1-20 ADD 1 \"c\" 1"_s, {}},
        {3, u"CG 1-21 STOP 1"_s, u"1:3"_s},
        {4, u"CG 1-22 ADD 1 \"d\" 0"_s, {}},
        {5, u"CG 1-22 PLAY 1"_s, {}},
        {5, u"CG 1-22 PLAY 1"_s, {}},
        {6, u"PLAY 1-23 LOGO"_s, {}},
        {7, u"CLEAR 1-23"_s, {}},
        {0, u"PLAY 2-1 FILM"_s, {}},
        {8, u"CLEAR 1"_s, u"2:8 5:5"_s},
        {8, u"CLEAR 2"_s, {}},
    };
    StandingGraphics graphics;
    qint64 at = 0;
    for (const auto& [run, line, gone] : steps) {
        QStringList left;
        for (const auto& each : graphics.sent(LinkId::Main, line, run, at))
            left += u"%1:%2"_s.arg(each.run).arg(each.stood);
        EXPECT_EQ(left.join(u' '), gone) << line.toStdString();
        if (line.endsWith(u"LOGO")) graphics.refused(LinkId::Main, line, run);
        ++at;
    }
}

// A card that asks, one that is refused, CLEAR and the start: who, what, how it ended.
TEST(AsRun, ConsoleKeepsWhatWasOnAirAndTheTerminalTellsIt) {
    LineServer server(LineServer::Manner::Listens);
    Gallery gallery;
    gallery.writePack({"Strap,strap.csp", "Bad,bad.csp"});
    gallery.writeCard("strap",
                      "BREAK~Sure?\r\nCSPSENDREMOTE~CG 1-1 STOP 1\r\nSETVAR~@SPONSOR;Harbour, \"Bank\"\r\n"
                      "CSPSEND~CG 1-20 ADD 1 'a' 1");
    gallery.writeCard("bad", "SETVAR~@SPONSOR;\r\nCSPSEND~CG 1-30 ADD 1 'b' 1");
    gallery.start();
    gallery.connectMain(server);
    gallery.click("cmbCARD", 0);
    gallery.click("cmbCARD", 1);
    ASSERT_TRUE(waitUntil([&] { return server.bytes.count('\n') == 2; }));
    server.peer->write("202 CG OK\r\n404 CG ADD FAILED\r\n");
    ASSERT_TRUE(waitUntil([&] { return !gallery.at("lblONAIRTROUBLE").text().isEmpty(); }));
    gallery.click("GradientButtonAIR");
    gallery.answer = [](QDialog& box) { box.findChild<QPushButton*>(u"cmdCLEAR"_s)->click(); };
    gallery.click("cmbCARD", 0);
    // Of the runs of a timed card those that put something on air are told, the others counted.
    gallery.writeCard("tick", "IFL~{@GO};=;1~\"CSPSEND~TICK\"");
    gallery.app->state().cards.timedCards = {{u"tick.csp"_s, 1}};
    for (const int go : {0, 0, 1, 0}) {
        gallery.app->state().variables.SetVar(u"@GO", go);
        gallery.app->desk().timedCards.tick();
    }
    gallery.app.reset();

    const auto tell = [&](const QStringList& arguments) -> QString {
        const Told told(runAsRun, QStringList{u"--app-folder"_s, gallery.folder.path()} + arguments);
        return QString::number(told.status) + told.out + told.err;
    };
    const QString csv = tell({u"--csv"_s});
    for (const QString& part : {u",EN,1,1,Strap,strap.csp,button,,yes,ran,0,"_s, u",\"Harbour, \"\"Bank\"\"\",1\n"_s,
                                u",Strap,strap.csp,button,,,cleared,0,"_s, u",Bad,bad.csp,button,,,ran,1,,,1\n"_s,
                                u"clear.csp,clear,,,ran,"_s, u"GetGame.csp,start,"_s})
        EXPECT_TRUE(csv.contains(part)) << qPrintable(part + u" in\n" + csv);
    const QString ticks = tell({u"--from"_s, u"timer"_s, u"--csv"_s});
    EXPECT_EQ(ticks.count(u",tick,tick.csp,timer,,,ran,"_s), 2) << ticks.toStdString();
    EXPECT_TRUE(ticks.contains(u"ran,0,,,3\n"_s)) << ticks.toStdString();
    EXPECT_FALSE(ticks.contains(u"Strap"_s) || csv.contains(u"tick"_s));
    const QString list = tell({u"--refused"_s, u"--lines"_s});
    EXPECT_TRUE(list.contains(u"main > CG 1-30 ADD 1 \"b\" 1 = 404 CG ADD FAILED"_s)) << list.toStdString();
    EXPECT_FALSE(list.contains(u"Strap"_s));
    const QString sums = tell({u"--card"_s, u"strap"_s});
    EXPECT_TRUE(sums.contains(u"By sponsor\n  Harbour, \"Bank\""_s)) << sums.toStdString();
    EXPECT_TRUE(tell({u"2020-01-01"_s}).startsWith(u"1zelvor as-run: no record"_s));

    Session session(gallery.folder.path());
    session.setConnectionString(u"Driver=SQLite3;Database=test.db"_s);
    EXPECT_TRUE(tell({u"--into"_s, u"1"_s}).startsWith(u'0'));
    session.run(u"alter table as_run drop column times"_s);  // as an older one
    // Again: the day replaces itself.
    EXPECT_TRUE(tell({u"--into"_s, u"1"_s}).startsWith(u'0'));
    const odbc::Rows rows =
        session.run(u"select sum(times), sum(refused) from as_run where caption in ('Strap','Bad')"_s);
    ASSERT_EQ(rows.rowCount(), 1);
    EXPECT_EQ(rows.cells[0].text() + u' ' + rows.cells[1].text(), u"3 1");
}

}  // namespace
}  // namespace zelvor::test
