#include "data/odbc_connection.h"

#include <QDir>
#include <QFile>

#include "base/run_time_error.h"
#include "data/statement_kind.h"
#include "system/file_stamp.h"
#include "system/thread_folder.h"

using namespace Qt::StringLiterals;

namespace zelvor::odbc {

namespace {

// The working folder while a connection is opened: a driver takes relative paths from it. It is the calling thread's
// own where the system allows that (containers may not), else the process's, which gets its own back.
class WorkingFolder {
 public:
    explicit WorkingFolder(const QString& folder) : before_(takeOwnWorkingFolder() ? QString() : QDir::currentPath()) {
        if (!QDir::setCurrent(folder)) throw RunTimeError(ErrorNumber::PathNotFound, folder);
    }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder() {
        if (!before_.isEmpty() && !QDir::setCurrent(before_)) qWarning("the working folder is gone");
    }

 private:
    QString before_;
};

}  // namespace

// The statement that another thread may cancel, for as long as this lives: while the server works on it, not while its
// rows are read, for drivers free what is being read.
class Connection::Running {
 public:
    Running(Connection& connection, const Statement& statement) : connection_(connection) {
        const std::lock_guard lock(connection_.runningMutex_);
        connection_.refuseCancelled();
        connection_.running_ = &statement;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() {
        const std::lock_guard lock(connection_.runningMutex_);
        connection_.running_ = nullptr;
    }

 private:
    Connection& connection_;
};

// What runs on an open connection while this lives is rolled back, unless it was committed.
class Connection::Transaction {
 public:
    explicit Transaction(const Handle& connection) : connection_(connection) { setAutoCommit(SQL_AUTOCOMMIT_OFF); }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction() {
        if (!committed_) SQLEndTran(SQL_HANDLE_DBC, connection_.raw(), SQL_ROLLBACK);
        setAutoCommit(SQL_AUTOCOMMIT_ON);
    }

    // False when the driver refused.
    bool commit() {
        committed_ = SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, connection_.raw(), SQL_COMMIT));
        return committed_;
    }

 private:
    void setAutoCommit(quintptr how) const {
        SQLSetConnectAttr(connection_.raw(), SQL_ATTR_AUTOCOMMIT, attributeValue(how), 0);
    }

    const Handle& connection_;
    bool committed_ = false;
};

QString odbcPart(const QString& connectionString) {
    const qsizetype end = connectionString.indexOf(u';');
    const QString first = connectionString.left(end < 0 ? connectionString.size() : end);
    if (first.section(u'=', 0, 0).trimmed().compare(u"Provider", Qt::CaseInsensitive) != 0) return connectionString;
    const QString provider = first.section(u'=', 1).trimmed();
    if (provider.section(u'.', 0, 0).compare(u"MSDASQL", Qt::CaseInsensitive) != 0) {
        throw RunTimeError::withText(
            ErrorNumber::DatabaseError,
            u"The connection string names the OLE DB provider \"%1\". Use an ODBC driver: Driver=...;"_s.arg(provider));
    }
    return end < 0 ? QString() : connectionString.mid(end + 1);
}

Connection::Connection(QString connectionString, QString folder, std::chrono::milliseconds idle)
    : connectionString_(std::move(connectionString)), folder_(std::move(folder)), idle_(idle) {}

void Connection::open(int seconds) {
    if (state_ == State::Open && isUsable(seconds)) return;
    state_ = State::Failed;
    lost_ = false;
    isWorn_ = inTransaction_ = false;
    characterSet_ = CharacterSet();
    const QByteArray text = odbcPart(connectionString_).toUtf8();
    const WorkingFolder workingFolder(folder_);

    handle_ = Handle();
    environment_ = Handle(SQL_HANDLE_ENV, SQL_NULL_HANDLE);
    SQLSetEnvAttr(environment_.raw(), SQL_ATTR_ODBC_VERSION, attributeValue(SQL_OV_ODBC3), 0);
    handle_ = Handle(SQL_HANDLE_DBC, environment_.raw());
    SQLSetConnectAttr(handle_.raw(), SQL_ATTR_LOGIN_TIMEOUT, attributeValue(seconds), 0);
    auto* bytes = reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.constData()));
    if (!SQL_SUCCEEDED(
            SQLDriverConnect(handle_.raw(), nullptr, bytes, SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT))) {
        fail(handle_);
    }
    isMariaDbDriver_ = info(SQL_DRIVER_NAME).toLower().contains("maodbc");
    askCharacterSet(seconds);
    noteFile();
    used_ = std::chrono::steady_clock::now();
    state_ = State::Open;
}

Rows Connection::run(const QString& sql, int seconds) {
    if (sql.trimmed().isEmpty()) {
        throw RunTimeError::withText(ErrorNumber::DatabaseError, u"The statement is empty."_s);
    }
    open(seconds);
    return runOpen(sql, seconds);
}

Rows Connection::runOpen(const QString& sql, int seconds) {
    Statement statement(handle_.raw(), seconds);
    const QByteArray bytes = characterSet_.encode(sql);
    note(sql);
    {
        const Running running(*this, statement);
        if (!statement.execute(bytes)) fail(statement.handle());
    }
    Rows rows;
    const std::optional<int> columns = statement.columnCount();
    if (columns == 0) return rows;
    // What is written is written: its rows are read to the end, and it is not told as failed.
    static const std::atomic<bool> kNever = false;
    const bool written = mayWrite(sql);
    if (!columns || !statement.readRows(characterSet_, rows, written ? kNever : cancelled_)) fail(statement.handle());
    if (!written) refuseCancelled();
    return rows;
}

void Connection::runTogether(const QStringList& statements, int seconds) {
    open(seconds);
    Transaction transaction(handle_);
    for (const QString& sql : statements) runOpen(sql, seconds);
    refuseCancelled();
    if (!transaction.commit()) fail(handle_);
}

void Connection::refuseCancelled() const {
    if (cancelled_) throw RunTimeError::withText(ErrorNumber::DatabaseError, u"The statement was cancelled."_s);
}

void Connection::cancel() {
    const std::lock_guard lock(runningMutex_);
    cancelled_ = true;
    if (running_ != nullptr) SQLCancel(running_->handle().raw());
}

void Connection::note(const QString& sql) {
    const QString word = firstWord(sql);
    if (word == u"begin" || word == u"start") inTransaction_ = true;
    if (word == u"commit" || word == u"rollback") inTransaction_ = false;
    if (isMariaDbDriver_ && !isSafeForMariaDbDriver(sql)) isWorn_ = true;
    used_ = std::chrono::steady_clock::now();
}

bool Connection::isUsable(int seconds) {
    // A transaction would be lost with the connection.
    if (isDead() || ((isWorn_ || isReplaced()) && !inTransaction_)) return false;
    if (!isPostgreSql_ || std::chrono::steady_clock::now() - used_ < idle_) return true;
    return Statement(handle_.raw(), seconds).execute("select 1");
}

bool Connection::isDead() {
    SQLUINTEGER dead = SQL_CD_FALSE;
    const SQLRETURN result = SQLGetConnectAttr(handle_.raw(), SQL_ATTR_CONNECTION_DEAD, &dead, sizeof dead, nullptr);
    return lost_ || (SQL_SUCCEEDED(result) && dead == SQL_CD_TRUE);
}

// SQLite would go on reading a file in whose place another one was put.
bool Connection::isReplaced() const {
    if (fileNumber_ == 0) return false;
    const std::optional<FileStamp> stamp = fileStamp(file_);
    return stamp && stamp->number != fileNumber_;
}

void Connection::noteFile() {
    fileNumber_ = 0;
    if (!info(SQL_DBMS_NAME).toLower().contains("sqlite")) return;
    file_ = QDir(folder_).absoluteFilePath(QString::fromUtf8(info(SQL_DATABASE_NAME)));
    if (const std::optional<FileStamp> stamp = fileStamp(file_)) fileNumber_ = stamp->number;
}

QByteArray Connection::info(SQLUSMALLINT what) const {
    constexpr SQLSMALLINT kLongest = 4096;  // bytes: a path
    QByteArray text(kLongest, '\0');
    SQLGetInfo(handle_.raw(), what, text.data(), kLongest, nullptr);
    return text.constData();
}

void Connection::askCharacterSet(int seconds) {
    const QByteArray name = info(SQL_DBMS_NAME).toLower();
    isPostgreSql_ = name.contains("postgres");
    QByteArray question;
    if (name.contains("maria") || name.contains("mysql")) {
        question = "select @@character_set_results, @@character_set_client";
    } else if (isPostgreSql_) {
        question = "show client_encoding";
    } else {
        return;  // UTF-8, as SQLite
    }
    Statement statement(handle_.raw(), seconds);
    Rows rows;
    if (!statement.execute(question) || !statement.readRows(characterSet_, rows, cancelled_)) fail(statement.handle());
    if (rows.cells.empty()) return;
    characterSet_ =
        CharacterSet(rows.cells.front().text().toLatin1(), rows.cells[rows.columns.size() - 1].text().toLatin1());
}

void Connection::fail(const Handle& handle) {
    const Diagnostics said = diagnostics(handle);
    lost_ = said.connectionLost;
    const QString text = characterSet_.decodeMessage(said.text);
    throw RunTimeError::withText(ErrorNumber::DatabaseError,
                                 text.isEmpty() ? u"The database driver failed without a word."_s : text);
}

}  // namespace zelvor::odbc
