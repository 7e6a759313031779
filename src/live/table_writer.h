#pragma once

#include <QString>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "data/session.h"
#include "live/table_rows.h"

namespace zelvor {

// Keeps the tables as the game is, on a thread of its own: whoever hands it a game never waits for the database. What
// one message changed is one transaction; while the database is slow or gone the newest game waits.
class TableWriter {
 public:
    enum class State {
        Waiting,  // nothing was written yet
        Writing,  // the tables are as the newest game, or about to be
        Failed,   // the database does not take it; tried again
        Refused,  // another feed writes these tables: nothing more is written
    };
    struct Status {
        State state = State::Waiting;
        QString text;  // of a failure, of who writes instead
    };
    // How often a feed shows that it is alive. One that has not for three times as long is taken for dead.
    static constexpr std::chrono::milliseconds kBeat{2000};

    // folder: what a relative path in the connection string starts from. owner: of this feed, in words.
    TableWriter(const QString& connectionString, const QString& folder, const QString& owner,
                std::chrono::milliseconds beat = kBeat);
    TableWriter(const TableWriter&) = delete;
    TableWriter& operator=(const TableWriter&) = delete;
    // Gives the tables back; a statement that runs is waited for.
    ~TableWriter();

    // The newest game.
    void write(const LiveGame& game);
    // Waits until the newest game is written; false when it is not in that time.
    bool finish(std::chrono::milliseconds patience);

    [[nodiscard]] Status status() const;

 private:
    using Lock = std::unique_lock<std::mutex>;

    void run();
    void claim();
    void waitForOther(const QString& owner, int beat);
    void keepAlive();
    void writeNewest(const LiveGame& game);
    void setStatus(State state, const QString& text = {});
    [[nodiscard]] bool stopping() const;

    Session session_;  // of the thread alone, as all down to the mutex
    QString owner_;
    std::chrono::milliseconds beat_;
    std::chrono::steady_clock::time_point lastBeat_;
    bool claimed_ = false;
    std::optional<TableRows> written_;  // nullopt when the tables may hold anything

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<LiveGame> newest_;  // not yet written
    bool busy_ = false;               // with the one before
    bool stop_ = false;
    Status status_;
    std::thread thread_;
};

}  // namespace zelvor
