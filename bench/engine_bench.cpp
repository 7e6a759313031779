// The card engine's hot paths: the variable store, placeholders, a record loop, template data.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>

#include "engine/card_engine.h"
#include "engine/card_script.h"
#include "engine/packs.h"
#include "engine/system_clock.h"
#include "engine/template_xml.h"
#include "link/graphics_links.h"
#include "support/line_server.h"
#include "support/unused_ports.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

void getAndSet(benchmark::State& bench) {
    VariableStore store;
    QStringList names;
    for (int i = 0; i < bench.range(0); ++i) names += u"@NAME%1"_s.arg(i * 7919 % bench.range(0));
    for (const QString& name : names) store.SetVar(name, u"value"_s);
    qsizetype at = 0;
    for (auto step : bench) {
        store.SetVar(names[at], u"value"_s);
        benchmark::DoNotOptimize(store.GetVar(names[at]));
        at = (at + 1) % names.size();
    }
}
BENCHMARK(getAndSet)->Arg(1000)->Arg(100'000);

void expand(benchmark::State& bench) {
    VariableStore store;
    store.SetVar(u"@FIRST", u"Maria"_s);
    store.SetVar(u"@LAST", u"Laskari"_s);
    const ExpandableText text(u"CG 1-20 UPDATE 1 'number 23 {@FIRST} {@LAST}, {@FIRST}'"_s);
    QString out;
    for (auto step : bench) {
        text.expandInto(out, store, {});
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(expand);

void makeXmlOf40Fields(benchmark::State& bench) {
    VariableStore fields;
    for (int i = 0; i < 40; ++i) fields.SetVar(u"t-0*f%1"_s.arg(i), u"value %1"_s.arg(i));
    for (auto step : bench) benchmark::DoNotOptimize(makeXml(fields));
}
BENCHMARK(makeXmlOf40Fields);

class CountedGraphics : public Graphics, public GraphicsNotes {
 public:
    void sendLine(LinkId, const QString& command, const Asker&) override { units += command.size(); }
    int state(LinkId) const override { return kConnected; }
    bool logging() const override { return false; }
    void writeLog(const QString&) override {}
    void appendHistory(std::initializer_list<QStringView>) override {}
    void clearHistory() override {}
    void showLastTemplate(const QString&) override {}
    qsizetype units = 0;
};

// A pack with one card and an engine to run it, on graphics that send and note nothing or on those given.
class OneCard {
 public:
    explicit OneCard(const QByteArray& script) : OneCard(script, nullptr) {}
    OneCard(const QByteArray& script, GraphicsLinks& links) : OneCard(script, &links) {}
    void run() { engine_.SHOW_TVCARD(u"card.qrd"_s, false, false, {}); }

 private:
    OneCard(const QByteArray& script, GraphicsLinks* links)
        : engine_(state, form, program,
                  Ports{unused_, unused_, links == nullptr ? static_cast<Graphics&>(counted_) : *links,
                        links == nullptr ? static_cast<GraphicsNotes&>(counted_) : *links, unused_, unused_, clock}) {
        QDir(onDisk_.path()).mkpath(u"MODULES/QRD_TT"_s);
        QFile file(onDisk_.filePath(u"MODULES/QRD_TT/card.csp"_s));
        if (!file.open(QIODevice::WriteOnly)) qFatal("no card");
        file.write(script);
        state.variables.SetVar(u"@LANGUAGE", u"TT"_s);
        program.trap.setReporter([](const ErrorPlace&, const QString& message) { qFatal("%s", qPrintable(message)); });
    }

    QTemporaryDir onDisk_;

 public:
    ShowState state;
    FormModel form;
    Program program{AppFolder(onDisk_.path()), {}, ErrorTrap(onDisk_.filePath(u"errors.log"_s))};
    SystemClock clock{program.closing};

 private:
    test::Unused unused_;
    CountedGraphics counted_;
    CardEngine engine_;
};

// The same work as the Tcl shell does in peer_loop.tcl.
constexpr const char* kLoop = R"(SETVAR~@RECORDCOUNT;1000
FOREACHREC~I
SETVAR~@NAME;Player {@I}
CALC~@PTS;{@I}*2
CALC~@AVG;{@PTS}/7
IFL~{@PTS};>;500~"SETVAR~@COL;red"~"SETVAR~@COL;green"
SETVAR~@FULL;{@NAME}
REPLACE~{@FULL};Player;P
SDATA~NAME{@I};{@FULL}
SDATA~PTS{@I};{@PTS}
SDATA~AVG{@I};{@AVG}
SPLIT~a,b,c;,;P
CSPSEND~CG 1-20 UPDATE 1 '{@FULL} {@PTS} {@AVG} {@COL} {@P_1}'
ROF
)";

void loopOf1000Records(benchmark::State& bench) {
    OneCard card(kLoop);
    for (auto step : bench) card.run();
}
BENCHMARK(loopOf1000Records)->Unit(benchmark::kMillisecond);

// A card that fills 40 fields and updates a template.
QByteArray cardOf40Fields() {
    QByteArray script = "CLEARDATA\n";
    for (int i = 0; i < 40; ++i)
        script += QByteArrayLiteral("SDATA~f%1;value %1\n").replace("%1", QByteArray::number(i));
    return script + "MAKEXML\nCSPSEND~CG 1-20 UPDATE 1 '{@CASPARXML}'\n";
}

// That card on a real server, a hundred times: the replies are read between two updates, the last ones at the end. The
// server lives on the console's event loop as the peer's does on the peer's, so that no send wakes another thread.
void hundredUpdates(benchmark::State& bench, bool untilReply) {
    using Steady = std::chrono::steady_clock;
    test::LineServer server;
    const QTemporaryDir folderOnDisk;
    FormModel form;
    Program program{AppFolder(folderOnDisk.path()), {}, ErrorTrap(folderOnDisk.filePath(u"errors.log"_s))};
    SystemClock clock(program.closing);
    GraphicsLinks links(form, clock, program);
    OneCard card(cardOf40Fields(), links);
    CasparLink& link = links.link(LinkId::Main);
    int replies = 0;
    QObject::connect(&link, &CasparLink::arrived, &link,
                     [&replies](const QByteArray& bytes) { replies += static_cast<int>(bytes.count('\n')); });
    link.connectTo(u"127.0.0.1"_s, server.port());
    while (link.state() != LinkState::Connected) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    for (auto step : bench) {
        const int before = replies;
        const auto start = Steady::now();
        Steady::duration toTheSocket{};
        for (int i = 0; i < 100; ++i) {
            const auto fired = Steady::now();
            card.run();
            while (link.unsentBytes() > 0) link.finishSending(QDeadlineTimer(1000));
            toTheSocket += Steady::now() - fired;
            QCoreApplication::processEvents();
        }
        server.bytes.clear();
        while (replies < before + 100) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        bench.SetIterationTime(std::chrono::duration<double>(untilReply ? Steady::now() - start : toTheSocket).count());
    }
}

// From the first line of the card until the network has taken the last byte, the reading of replies left out.
void hundredUpdatesToTheSocket(benchmark::State& bench) {
    hundredUpdates(bench, false);
}
BENCHMARK(hundredUpdatesToTheSocket)->Unit(benchmark::kMicrosecond)->UseManualTime();

// Until all replies are there.
void hundredUpdatesUntilTheReply(benchmark::State& bench) {
    hundredUpdates(bench, true);
}
BENCHMARK(hundredUpdatesUntilTheReply)->Unit(benchmark::kMicrosecond)->UseManualTime();

// The same without a server: building the line alone.
void updateOf40Fields(benchmark::State& bench) {
    OneCard card(cardOf40Fields());
    for (auto step : bench) card.run();
}
BENCHMARK(updateOf40Fields)->Unit(benchmark::kMicrosecond);

// A pack of 6 sets of 21 cards among 2 000 scripts of 10 lines.
class BigPack {
 public:
    BigPack() {
        program_.trap.setReporter([](const ErrorPlace&, const QString& message) { qFatal("%s", qPrintable(message)); });
        QDir(folder()).mkpath(u"."_s);
        QByteArray table;
        for (int set = 0; set < kSets; ++set) {
            table += "SETNO:" + QByteArray::number(set) + ",Set\r\n";
            for (int i = 0; i < kCardsASet; ++i) {
                const QByteArray number = QByteArray::number(set * kCardsASet + i);
                table += "Card " + number + ",card" + number + ".csp\r\n";
            }
        }
        write(u"CARDS.TXT"_s, table);
        for (int i = 0; i < kScripts; ++i) {
            write(name(i), "CLEARDATA\r\n" + QByteArray("SDATA~NAME;{@NAME}\r\nCALC~@A;{@A}+1\r\n").repeated(4) +
                               "CSPSEND~CG 1-20 UPDATE 1 '{@CASPARXML}'\r\n");
        }
        state_.variables.SetVar(u"@LANGUAGE", u"TT"_s);
    }

    // Reads the table and the first of the scripts from the disk.
    void load(qint64 scripts) {
        if (!packs_.LOAD_CARDS()) qFatal("no cards");
        for (int i = 0; i < scripts; ++i) {
            ScriptPlace reached;
            const CardScript script(name(i), folder() + u'/' + name(i), u"TT"_s, program_.folder, program_.files,
                                    reached);
            if (script.lineCount() != 10) qFatal("a script of %d lines", script.lineCount());
        }
    }

 private:
    static constexpr int kSets = 6;
    static constexpr int kCardsASet = 21;
    static constexpr int kScripts = 2000;

    static QString name(qint64 number) { return u"card%1.csp"_s.arg(number); }
    [[nodiscard]] QString folder() const { return onDisk_.filePath(u"MODULES/QRD_TT"_s); }
    void write(const QString& file, const QByteArray& text) {
        QFile made(folder() + u'/' + file);
        if (!made.open(QIODevice::WriteOnly)) qFatal("no file");
        made.write(text);
    }

    QTemporaryDir onDisk_;
    test::Unused unused_;
    ShowState state_;
    FormModel form_;
    Program program_{AppFolder(onDisk_.path()), {}, ErrorTrap(onDisk_.filePath(u"errors.log"_s))};
    Packs packs_{state_, form_, program_, unused_};
};

void bigPack(benchmark::State& bench) {
    BigPack pack;
    for (auto step : bench) pack.load(bench.range(0));
}
BENCHMARK(bigPack)->Arg(126)->Arg(2000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zelvor

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
