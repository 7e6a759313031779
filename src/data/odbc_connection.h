#pragma once

#include <QString>
#include <QStringList>
#include <mutex>

#include "data/character_set.h"
#include "data/odbc_handle.h"
#include "data/odbc_statement.h"

namespace zelvor::odbc {

// One connection to a database. It is opened by the first statement at the latest, and anew when it was lost; no
// statement is ever repeated. Calls block; the errors they throw are RunTimeErrors in the driver's words.
class Connection {
 public:
    // The longest a call may take.
    static constexpr int kSecondsAllowed = 5;

    enum class State { NotTried, Open, Failed };

    // connectionString: handed to the driver manager as it is. folder: what a relative path in it starts from.
    Connection(QString connectionString, QString folder);

    // Opens the connection unless it is open.
    void open();
    // Runs a statement; the rows it gives, none for an UPDATE.
    Rows run(const QString& sql);
    // Runs statements that give no rows as one transaction: all of them or, when one fails, none.
    void runTogether(const QStringList& statements);

    // From any thread: a statement that runs is given up, as soon as its driver can, and no further one begins.
    void cancel();

    // How the last try to open it ended.
    [[nodiscard]] State state() const { return state_; }
    // Whether the last statement has found the connection gone.
    [[nodiscard]] bool isLost() const { return lost_; }

 private:
    class Running;
    class Transaction;

    Rows runOpen(const QString& sql);
    [[nodiscard]] bool isDead();
    void askCharacterSet();
    [[noreturn]] void fail(const Handle& handle);

    QString connectionString_;
    QString folder_;
    Handle environment_;
    Handle handle_;
    CharacterSet characterSet_;
    bool lost_ = false;
    State state_ = State::NotTried;

    std::mutex runningMutex_;
    const Statement* running_ = nullptr;
    bool cancelled_ = false;
};

// Refuses a string that names an OLE DB provider, other than the one for ODBC drivers, which is left out. Throws
// RunTimeError.
QString odbcPart(const QString& connectionString);

}  // namespace zelvor::odbc
