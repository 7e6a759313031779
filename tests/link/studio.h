#pragma once

#include "link/link_console.h"
#include "support/fake_ports.h"
#include "support/line_server.h"
#include "support/wait.h"

namespace zelvor::test {

// Takes what it is sent and says nothing.
struct Server : LineServer {
    explicit Server(bool reads = true) : LineServer(reads ? Manner::Listens : Manner::NeverReads) {}
};

// The links with all they work on, in an application folder of their own.
struct Studio {
    explicit Studio(bool withModules = true) {
        clock.time.setTime(QTime(20, 31, 7));
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
    // The same as the operator does it, on the main link.
    void pressConnect(const Server& server) {
        at("txtGASPARPORT").setText(server.port());
        console.cmdGASPARCONNECT();
        EXPECT_TRUE(isIn(LinkId::Main, Graphics::kConnected) && waitUntil([&] { return server.peer != nullptr; }));
    }
    Control& at(const char* control, int index = -1) const { return *form.find(QString::fromLatin1(control), index); }
    QByteArray logFile() const {
        QFile file(folder.filePath(QStringLiteral("MODULES/CASPAROUT.TXT")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QTemporaryDir folder;
    FormModel form;
    FakeClock clock;
    QStringList told;
    Program program{AppFolder(folder.path()), {}, ErrorTrap(folder.filePath(QStringLiteral("errors.log")))};
    GraphicsLinks links{form, clock, program};
    LinkConsole console{form, links, clock, program.trap, [](const QString& text) { return text; }};
};

}  // namespace zelvor::test
