#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include "engine/card_engine.h"
#include "engine/packs.h"

namespace zelvor::test {

// An operator who answers from lists and remembers what was shown.
class FakeOperator : public Operator {
 public:
    void message(const Asker& asker, const QString& title, const QString& text, Severity) override {
        shown += title + u'|' + text;
        askers.push_back(asker);
    }
    bool yesNo(const Asker&, const QString& title, const QString& text) override {
        shown += title + u'|' + text;
        if (whileAsked) whileAsked();
        return answerYes;
    }
    std::optional<QString> input(const Asker&, const QString& title, const QString& prompt,
                                 const QString& proposed) override {
        asked += title + u'|' + prompt + u'|' + proposed;
        if (!answers.isEmpty()) return answers.takeFirst();
        if (closing == nullptr) throw RunTimeError(ErrorNumber::InputPastEndOfFile);
        closing->begin();
        return std::nullopt;
    }

    QStringList shown;
    std::vector<Asker> askers;  // of the messages
    QStringList asked;
    QList<std::optional<QString>> answers;  // nullopt: Cancel
    Closing* closing = nullptr;             // begins once no answer is left
    bool answerYes = true;
    std::function<void()> whileAsked;
};

class FakeGraphics : public Graphics, public GraphicsNotes {
 public:
    void sendLine(LinkId link, const QString& command, const Asker& asker) override {
        sent += (link == LinkId::Main ? u'm' : u'r') + command;
        sentFor.push_back(asker);
        if (whileSending) whileSending();
    }
    int state(LinkId) const override { return kConnected; }
    bool logging() const override { return true; }
    void writeLog(const QString& line) override { log += line; }
    void appendHistory(std::initializer_list<QStringView> pieces) override {
        QString line;
        for (const QStringView piece : pieces) line += piece;
        history += line;
    }
    void clearHistory() override { history.clear(); }
    void showLastTemplate(const QString& xml) override { lastTemplate = xml; }

    QStringList sent;
    std::vector<Asker> sentFor;
    QStringList log;
    QStringList history;
    QString lastTemplate;
    std::function<void()> whileSending;
};

// A clock that stands still until it is waited on; every wait takes 100 ms of its time and none of ours.
class FakeClock : public Clock {
 public:
    QDateTime now() const override { return time; }
    qint64 steadyMilliseconds() const override { return time.toMSecsSinceEpoch() - setForward; }
    // Somebody sets the wall clock.
    void set(qint64 milliseconds) {
        time = time.addMSecs(milliseconds);
        setForward += milliseconds;
    }
    bool turnEvents(int count, qint64) override {
        turns += count;
        if (const auto happens = std::exchange(whileTurning, {})) happens();
        return goesOn;
    }
    bool waitBriefly() override {
        time = time.addMSecs(100);
        if (whileWaiting) whileWaiting();
        return true;
    }

    QDateTime time{QDate(2026, 11, 21), QTime(23, 59, 58)};
    qint64 setForward = 0;  // milliseconds
    int turns = 0;
    bool goesOn = true;  // what turnEvents() gives
    std::function<void()> whileWaiting;
    std::function<void()> whileTurning;  // once
};

class FakeDatabase : public Database {
 public:
    int RUN_QUERY(const Asker&, const QString& sql) override {
        statements += sql;
        return 0;
    }
    int RUN_QUERY2(const Asker& asker, const QString& sql) override { return RUN_QUERY(asker, sql); }
    // A statement takes as long as whileWaiting.
    bool execute(const Asker& asker, const QString& sql) override {
        statements += sql;
        if (!whileWaiting) return true;
        const DatabaseWait::Scope scope(*wait, asker);
        whileWaiting();
        return scope.goesOn();
    }
    std::optional<NamedRows> readGreek(const Asker&, const QString& sql) override {
        statements += sql;
        return NamedRows();
    }

    QStringList statements;
    DatabaseWait* wait = nullptr;
    std::function<void()> whileWaiting;
};

class FakeDesktop : public Desktop {
 public:
    void open(const QString&) override {}
    void loadForm(const Asker&, const QString&) override {}
};

class FakeAskDialog : public AskDialog {
 public:
    void show(const Asker&) override {}
};

// An engine over a temporary application folder with one pack, "TT", and everything around it faked.
class EngineBench {
 public:
    EngineBench() {
        trap.setReporter([this](const ErrorPlace& place, const QString& message) {
            operatorDesk.shown += message;
            operatorDesk.askers.push_back(place.asker);
        });
        QDir(folderOnDisk.path()).mkpath(QStringLiteral("MODULES/QRD_TT"));
        database.wait = &program.databaseWait;
        state.variables.SetVar(u"@LANGUAGE", QStringLiteral("TT"));
    }

    // name: relative to MODULES.
    void write(const QString& name, const QByteArray& bytes) {
        QFile file(folderOnDisk.filePath(QStringLiteral("MODULES/") + name));
        if (file.open(QIODevice::WriteOnly)) file.write(bytes);
    }
    CardEngine::Outcome run(const QByteArray& script) {
        write(QStringLiteral("QRD_TT/card.csp"), script);
        return engine.SHOW_TVCARD(QStringLiteral("card.qrd"), false, false, {});
    }

    QTemporaryDir folderOnDisk;
    Program program{AppFolder(folderOnDisk.path()), {}, ErrorTrap(folderOnDisk.filePath(QStringLiteral("errors.log")))};
    AppFolder& folder = program.folder;
    TextFiles& files = program.files;
    ErrorTrap& trap = program.trap;
    ShowState state;
    FormModel form;
    FakeOperator operatorDesk;
    FakeGraphics graphics;
    FakeClock clock;
    FakeDatabase database;
    FakeDesktop desktop;
    FakeAskDialog askDialog;
    Packs packs{state, form, program, operatorDesk};
    CardEngine engine{state, form, program,
                      Ports{operatorDesk, askDialog, graphics, graphics, database, desktop, clock}};
};

}  // namespace zelvor::test
