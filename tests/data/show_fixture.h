#pragma once

#include <gtest/gtest.h>

#include "data/connections.h"
#include "engine/system_clock.h"
#include "support/fake_ports.h"

namespace zelvor::test {

// A show with one pack of its own in a temporary application folder, and the Connections under test.
struct Show {
    QTemporaryDir directory;
    Program program{AppFolder(directory.path()), {}, ErrorTrap(directory.filePath(QStringLiteral("error.log")))};
    ShowState state;
    SystemClock clock{program.closing};
    FakeOperator operatorDesk;
    std::unique_ptr<Connections> connections;

    Show() {
        operatorDesk.closing = &program.closing;
        state.variables.SetVar(u"@LANGUAGE", QStringLiteral("EN"));
        QDir(directory.path()).mkpath(QStringLiteral("MODULES/QRD_EN"));
        program.trap.setReporter([this](const ErrorPlace&, const QString& text) { operatorDesk.shown += text; });
    }

    void writeConnections(const QByteArray& text) {
        QFile file(directory.filePath(QStringLiteral("MODULES/QRD_EN/CONNECTIONS.TXT")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    // Connection 1 is chosen beforehand when no command line is given.
    void make(std::optional<QString> commandLine = std::nullopt) {
        Connections::Choice choice;
        choice.seconds = seconds;
        if (commandLine) {
            choice.commandLine = *commandLine;
        } else {
            choice.number = 1;
        }
        connections = std::make_unique<Connections>(state, operatorDesk, program, clock, choice);
    }
    int seconds = Patience::kSeconds;  // of make()
    QString cell(int row, int field) const {
        const Value* found = state.QUERY_RESULT.find(row, field);
        return found == nullptr ? QStringLiteral("(outside)") : found->text();
    }
    QString recordCount() { return state.variables.text(u"@RECORDCOUNT"); }
};

}  // namespace zelvor::test
