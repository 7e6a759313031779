#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "data/connections.h"
#include "engine/system_clock.h"

namespace zelvor::test {

// Notes what is shown and gives prepared answers; nullopt stands for Cancel. When the answers are used up it says that
// the program is closing.
class ScriptedOperator : public Operator {
 public:
    explicit ScriptedOperator(Closing& closing) : closing_(closing) {}

    void message(const Asker&, const QString& title, const QString& text, Severity) override {
        shown += title + u'|' + text;
    }
    bool yesNo(const Asker&, const QString&, const QString&) override { return true; }
    std::optional<QString> input(const Asker&, const QString& title, const QString& prompt,
                                 const QString& proposed) override {
        asked += title + u'|' + prompt + u'|' + proposed;
        if (answers.empty()) {
            closing_.begin();
            return std::nullopt;
        }
        const std::optional<QString> answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }

    QStringList shown;
    QStringList asked;
    std::vector<std::optional<QString>> answers;

 private:
    Closing& closing_;
};

// A show with one pack of its own in a temporary application folder, and the Connections under test.
struct Show {
    QTemporaryDir directory;
    Program program{AppFolder(directory.path()), {}, ErrorTrap(directory.filePath(QStringLiteral("error.log")))};
    ShowState state;
    SystemClock clock{program.closing};
    ScriptedOperator operatorDesk{program.closing};
    std::unique_ptr<Connections> connections;

    Show() {
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
