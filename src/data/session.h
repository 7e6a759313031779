#pragma once

#include <QString>
#include <QStringList>
#include <QTime>
#include <chrono>
#include <functional>
#include <future>
#include <memory>

#include "base/run_time_error.h"
#include "data/odbc_connection.h"

namespace zelvor {

// How the caller of a statement waits.
struct Patience {
    static constexpr int kSeconds = 5;
    static constexpr int kMostSeconds = 3600;

    // For the answer, opening included.
    int seconds = kSeconds;
    // For the end of a statement that was cancelled.
    std::chrono::milliseconds untilCancelled{200};
    // Called again and again while the answer is waited for, false: it is given up. Without it the thread sleeps.
    std::function<bool()> meanwhile = {};
};

// A connection that keeps its caller waiting for no longer than he has patience: each call runs on a thread of its own.
// When the time is up, or the caller gives up, the statement is cancelled, and what came of it is told: an error only
// for what was not done. A driver that does not end it is left to itself with that thread and the connection; after a
// time-out calls then fail almost at once, until another connection has been opened behind their backs.
// One statement at a time: not for two threads, nor from within `meanwhile`.
class Session {
 public:
    static constexpr std::chrono::milliseconds kAllowedInSilence{200};

    // Thrown when `meanwhile` gave up.
    struct GivenUp {};
    // Thrown when the time was up, or is known to be of no use.
    struct OutOfTime : RunTimeError {
        explicit OutOfTime(const QString& text) : RunTimeError(withText(ErrorNumber::DatabaseError, text)) {}
    };

    // folder: what a relative path in the connection string starts from.
    explicit Session(QString folder) : folder_(std::move(folder)) {}

    // Takes effect with the next call; an open connection is dropped.
    void setConnectionString(const QString& connectionString);
    // Closes the connection and forgets its string.
    void close();
    [[nodiscard]] bool hasConnectionString() const { return connection_ != nullptr; }

    // Opens the connection unless it is open. All three throw RunTimeError, also when no connection string was set.
    void open(const Patience& patience = {});
    // Runs a statement on the connection, opened anew first when it was lost.
    odbc::Rows run(const QString& sql, const Patience& patience = {});
    // Runs statements as one transaction, within the time of one: all of them or none.
    void runTogether(const QStringList& statements);

    [[nodiscard]] odbc::Connection::State state() const;
    [[nodiscard]] bool isSilent() const { return silentSince_.isValid(); }
    // It is known that the server says nothing: another connection is opened in the background.
    void fallSilent();
    // What is known of it now. Untried: its first statement will open it. Trying: a silent one is looked for.
    enum class Standing { None, Untried, Trying, Connected, Down };
    [[nodiscard]] Standing standing() const;

 private:
    enum class Waited { Answered, TooLong, GivenUp };

    // Runs work(connection) within the caller's patience.
    template <class Work>
    auto inTime(const Patience& patience, Work work);
    template <class Result>
    static Waited await(std::future<Result>& result, std::chrono::milliseconds allowed, const Patience& patience);
    // Cancels what runs; whether it ended soon enough.
    template <class Result>
    static bool endsWhenCancelled(const std::shared_ptr<odbc::Connection>& connection, std::future<Result>& result,
                                  std::chrono::milliseconds allowed);
    // Throws while the database is silent.
    void awaitAnswer(const Patience& patience);
    void beginOpening();

    QString folder_;
    QString connectionString_;
    std::shared_ptr<odbc::Connection> connection_;
    QTime silentSince_;          // invalid while it answers
    std::future<void> opening_;  // in silence: the connection that is being opened
};

}  // namespace zelvor
