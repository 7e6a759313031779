#pragma once

#include "link/link_console.h"
#include "support/fake_ports.h"
#include "support/line_server.h"
#include "support/wait.h"

namespace zelvor::test {

// Half past eight in the evening; the pause before "PLAY" is what the test makes of it.
class StudioClock : public FakeClock {
 public:
    StudioClock() { time.setTime(QTime(20, 31, 7)); }
    bool turnEvents(int count, qint64 longest) override {
        return FakeClock::turnEvents(count, longest) && duringTurns();
    }

    std::function<bool()> duringTurns = [] { return true; };
};

// Takes what it is sent and says nothing.
struct Server : LineServer {
    explicit Server(bool reads = true) : LineServer(reads ? Manner::Listens : Manner::NeverReads) {}
};

// The links with all they work on, in an application folder of their own.
struct Studio {
    explicit Studio(bool withModules = true) {
        if (withModules) QDir(folder.path()).mkdir(QStringLiteral("MODULES"));
        program.trap.setReporter([this](const ErrorPlace&, const QString& message) { told += message; });
    }
    bool isIn(LinkId id, int state) const {
        return waitUntil([&] { return links.state(id) == state; });
    }
    void connectTo(LinkId id, const Server& server) {
        links.link(id).connectTo(QStringLiteral("127.0.0.1"), server.port());
        waitUntil([&] { return links.state(id) == Graphics::kConnected && server.peer != nullptr; });
    }
    Control& at(const char* control, int index = -1) const { return *form.find(QString::fromLatin1(control), index); }
    QByteArray logFile() const {
        QFile file(folder.filePath(QStringLiteral("MODULES/CASPAROUT.TXT")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QTemporaryDir folder;
    FormModel form;
    StudioClock clock;
    QStringList told;
    Program program{AppFolder(folder.path()), {}, ErrorTrap(folder.filePath(QStringLiteral("errors.log")))};
    GraphicsLinks links{form, clock, program};
    LinkConsole console{form, links, clock, program.trap, [](const QString& text) { return text; }};
};

}  // namespace zelvor::test
