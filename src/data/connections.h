#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "base/program.h"
#include "data/session.h"
#include "engine/ports.h"
#include "engine/show_state.h"

namespace zelvor {

// The two database connections of the current pack's CONNECTIONS.TXT, and the queries on them. Nothing here throws
// but execute() and readGreek().
class Connections : public Database {
 public:
    using State = odbc::Connection::State;

    struct Choice {
        // What is left of the program's command line: a number that it begins with is proposed to the operator.
        QString commandLine = {};
        // A number chosen beforehand: nobody is asked.
        std::optional<qint16> number = {};
        // For an answer; GetGame.csp gets kSecondsOfStart where that is more.
        int seconds = Patience::kSeconds;
        // For the end of a statement that was cancelled.
        std::chrono::milliseconds untilCancelled = Patience().untilCancelled;
        // Opened by CONNECTDATABASE also when the number was chosen beforehand; else that waits for the first query.
        bool opensAtOnce = false;
    };

    static constexpr int kSecondsOfStart = 60;

    // clock: turns the event loop while a statement runs. When no connection has the chosen number, the operator is
    // told and the program closes.
    Connections(ShowState& state, Operator& operatorDesk, Program& program, Clock& clock, Choice choice);

    // The connection string to use, empty when there is none. Throws RunTimeError when CONNECTIONS.TXT cannot be read.
    QString GET_CONNECTION_STRING();
    // Asks the operator, ConnID being proposed, and leaves the number chosen in ConnID. Throws as above.
    QString FIND_CONNECTION(qint16& ConnID);
    // Chooses and opens both connections. One that did not open is tried again before its next statement.
    void CONNECTDATABASE();
    // Closes both connections; no statement opens them again.
    void close();

    int RUN_QUERY(const Asker& asker, const QString& sql) override;
    int RUN_QUERY2(const Asker& asker, const QString& sql) override;
    bool execute(const Asker& asker, const QString& sql) override;
    std::optional<NamedRows> readGreek(const Asker& asker, const QString& sql) override;

    // Called whenever one of the connections may stand otherwise: after each try to open it, and each statement.
    void setStandingTold(std::function<void()> told) { standingTold_ = std::move(told); }
    [[nodiscard]] Session::Standing utf8Standing() const { return utf8_.standing(); }
    [[nodiscard]] Session::Standing greekStanding() const { return greek_.standing(); }
    // Failed when either connection could not be opened at the last try, or none was found.
    [[nodiscard]] State connectionState() const;
    // The number chosen last, 0 before.
    [[nodiscard]] qint16 connectionNumber() const { return number_; }
    // Whether a query has failed since the start.
    [[nodiscard]] bool queryFailed() const { return queryFailed_; }

 private:
    // Asks until the answer is a number; nullopt when the program is closing.
    std::optional<qint16> askNumber(const QString& menu, qint16 proposed);
    void setConnectionStrings(const QString& connectionString);
    // Waits for work(patience), which is about a session, with turns of the event loop, and tells how it stands then.
    // Throws as Session does.
    template <class Work>
    auto waitFor(const Asker& asker, Session& session, Work work);
    [[nodiscard]] int secondsFor(const Asker& asker) const;
    // Runs a statement, the connection being chosen first where that was left to the first query.
    odbc::Rows run(const Asker& asker, Session& session, const QString& sql);
    struct Query {
        Session& session;
        QString procedure;
        QString errorTitle;
    };
    int runIntoResult(const Query& query, const Asker& asker, const QString& sql);

    ShowState& state_;
    Operator& operator_;
    Program& program_;
    Clock& clock_;
    Choice choice_;
    Session utf8_;
    Session greek_;
    std::function<void()> standingTold_ = [] {};
    qint16 number_ = 0;
    bool queryFailed_ = false;
    bool isMissing_ = false;  // no connection was found for a query that wanted one
};

}  // namespace zelvor
