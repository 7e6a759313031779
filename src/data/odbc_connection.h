#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <chrono>
#include <mutex>

#include "data/character_set.h"
#include "data/odbc_handle.h"
#include "data/odbc_statement.h"

namespace zelvor::odbc {

// One connection to a database. It is opened by the first statement at the latest, and anew when it was lost; no
// statement is ever repeated. Calls block, for so many seconds as the driver knows how to keep to; the errors they
// throw are RunTimeErrors in the driver's words.
class Connection {
 public:
    enum class State { NotTried, Open, Failed };

    // A PostgreSQL server that was not spoken to for so long is asked first whether it is still there: its driver
    // learns that only from a statement that fails.
    static constexpr std::chrono::milliseconds kIdle{10'000};

    // connectionString: handed to the driver manager as it is. folder: what a relative path in it starts from.
    Connection(QString connectionString, QString folder, std::chrono::milliseconds idle = kIdle);

    // Opens the connection unless it is open.
    void open(int seconds);
    // Runs a statement; the rows it gives, none for an UPDATE.
    Rows run(const QString& sql, int seconds);
    // Runs statements that give no rows as one transaction: all of them or, when one fails, none.
    void runTogether(const QStringList& statements, int seconds);

    // From any thread: a statement that runs is given up, as soon as its driver can, and no further one begins until
    // resume().
    void cancel();
    void resume() { cancelled_ = false; }

    // How the last try to open it ended.
    [[nodiscard]] State state() const { return state_; }
    // Whether the last statement has found the connection gone.
    [[nodiscard]] bool isLost() const { return lost_; }

 private:
    class Running;
    class Transaction;

    Rows runOpen(const QString& sql, int seconds);
    void refuseCancelled() const;
    [[nodiscard]] bool isUsable(int seconds);
    [[nodiscard]] bool isDead();
    [[nodiscard]] bool isReplaced() const;
    // Notes what a statement, about to run, means for those after it.
    void note(const QString& sql);
    void askCharacterSet(int seconds);
    void noteFile();
    [[nodiscard]] QByteArray info(SQLUSMALLINT what) const;
    [[noreturn]] void fail(const Handle& handle);

    QString connectionString_;
    QString folder_;
    Handle environment_;
    Handle handle_;
    CharacterSet characterSet_;
    std::atomic<bool> lost_ = false;
    bool isMariaDbDriver_ = false;
    bool isPostgreSql_ = false;
    bool inTransaction_ = false;  // that a statement has begun
    bool isWorn_ = false;         // the driver would not survive another statement
    QString file_;                // SQLite's database, and
    quint64 fileNumber_ = 0;      // its number on the disk; 0 where that is not known
    std::chrono::milliseconds idle_;
    std::chrono::steady_clock::time_point used_;
    std::atomic<State> state_ = State::NotTried;

    std::mutex runningMutex_;
    const Statement* running_ = nullptr;
    std::atomic<bool> cancelled_ = false;
};

// Refuses a string that names an OLE DB provider, other than the one for ODBC drivers, which is left out. Throws
// RunTimeError.
QString odbcPart(const QString& connectionString);

}  // namespace zelvor::odbc
