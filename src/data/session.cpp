#include "data/session.h"

#include <thread>
#include <utility>

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

RunTimeError silence(const QString& text) {
    return RunTimeError::withText(ErrorNumber::DatabaseError, text);
}

}  // namespace

void Session::setConnectionString(const QString& connectionString) {
    close();
    connectionString_ = connectionString;
    connection_ = std::make_shared<odbc::Connection>(connectionString_, folder_);
}

void Session::close() {
    connection_.reset();
    silentSince_ = {};
    opening_ = {};
}

template <class Work>
auto Session::inTime(Work work) {
    if (!connection_) throw RunTimeError::withText(ErrorNumber::DatabaseError, u"No database connection is open."_s);
    if (silentSince_.isValid()) awaitAnswer();
    // The thread shares the connection, so that it outlives a caller who no longer waits.
    std::packaged_task task([work = std::move(work), connection = connection_] { return work(*connection); });
    auto result = task.get_future();
    std::thread thread(std::move(task));
    if (result.wait_for(std::chrono::seconds(odbc::Connection::kSecondsAllowed)) == std::future_status::timeout) {
        thread.detach();
        fallSilent();
        throw silence(u"The database did not answer within %1 seconds."_s.arg(odbc::Connection::kSecondsAllowed));
    }
    thread.join();
    return result.get();
}

void Session::fallSilent() {
    silentSince_ = QTime::currentTime();
    // Nor is it waited for that the driver gives up.
    std::thread([abandoned = std::move(connection_)] { abandoned->cancel(); }).detach();
    connection_ = std::make_shared<odbc::Connection>(connectionString_, folder_);
    beginOpening();
}

void Session::beginOpening() {
    std::packaged_task<void()> task([connection = connection_] { connection->open(); });
    opening_ = task.get_future();
    std::thread(std::move(task)).detach();
}

void Session::awaitAnswer() {
    // Each try is waited for once.
    std::chrono::milliseconds allowed{0};
    if (!opening_.valid()) {
        beginOpening();
        allowed = kAllowedInSilence;
    }
    if (opening_.wait_for(allowed) == std::future_status::timeout) {
        throw silence(u"The database has not answered since %1."_s.arg(silentSince_.toString(u"HH:mm:ss"_s)));
    }
    std::exchange(opening_, {}).get();
    silentSince_ = {};
}

void Session::open() {
    inTime([](odbc::Connection& connection) { connection.open(); });
}

odbc::Rows Session::run(const QString& sql) {
    return inTime([sql](odbc::Connection& connection) { return connection.run(sql); });
}

void Session::runTogether(const QStringList& statements) {
    inTime([statements](odbc::Connection& connection) { connection.runTogether(statements); });
}

odbc::Connection::State Session::state() const {
    using State = odbc::Connection::State;
    if (silentSince_.isValid()) return State::Failed;
    return connection_ ? connection_->state() : State::NotTried;
}

Session::Standing Session::standing() const {
    using State = odbc::Connection::State;
    if (!connection_) return Standing::None;
    if (silentSince_.isValid()) {
        if (!opening_.valid()) return Standing::Down;
        // Until then the connection is the other thread's.
        if (opening_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return Standing::Trying;
    }
    if (connection_->state() == State::NotTried) return Standing::Untried;
    return connection_->state() == State::Open && !connection_->isLost() ? Standing::Connected : Standing::Down;
}

}  // namespace zelvor
