#pragma once

#include <QString>
#include <QStringList>
#include <QTime>
#include <chrono>
#include <future>
#include <memory>

#include "data/odbc_connection.h"

namespace zelvor {

// A connection that never keeps its caller waiting for more than a few seconds: each call runs on a thread of its
// own. When the time is up the statement is cancelled and that thread left to itself, with the connection it hangs on;
// from then on calls fail almost at once, until another connection has been opened behind their backs.
class Session {
 public:
    static constexpr std::chrono::milliseconds kAllowedInSilence{200};

    // folder: what a relative path in the connection string starts from.
    explicit Session(QString folder) : folder_(std::move(folder)) {}

    // Takes effect with the next call; an open connection is dropped.
    void setConnectionString(const QString& connectionString);
    // Closes the connection and forgets its string.
    void close();
    [[nodiscard]] bool hasConnectionString() const { return connection_ != nullptr; }

    // Opens the connection unless it is open. Both throw RunTimeError, also when the time is up or no connection
    // string was set.
    void open();
    // Runs a statement on the connection, opened anew first when it was lost.
    odbc::Rows run(const QString& sql);
    // Runs statements as one transaction, within the time of one: all of them or none.
    void runTogether(const QStringList& statements);

    [[nodiscard]] odbc::Connection::State state() const;
    // What is known of it now. Untried: its first statement will open it. Trying: a silent one is looked for.
    enum class Standing { None, Untried, Trying, Connected, Down };
    [[nodiscard]] Standing standing() const;

 private:
    // Runs work(connection) within the time allowed.
    template <class Work>
    auto inTime(Work work);
    void fallSilent();
    // Throws while the database is silent.
    void awaitAnswer();
    void beginOpening();

    QString folder_;
    QString connectionString_;
    std::shared_ptr<odbc::Connection> connection_;
    QTime silentSince_;          // invalid while it answers
    std::future<void> opening_;  // in silence: the connection that is being opened
};

}  // namespace zelvor
