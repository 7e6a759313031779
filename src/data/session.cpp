#include "data/session.h"

#include <chrono>
#include <future>
#include <thread>

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

void Session::setConnectionString(const QString& connectionString) {
    connectionString_ = connectionString;
    connection_ = std::make_shared<odbc::Connection>(connectionString_, folder_);
    timedOut_ = false;
}

template <class Work>
auto Session::inTime(Work work) {
    if (!connection_) throw RunTimeError::withText(ErrorNumber::DatabaseError, u"No database connection is open."_s);
    // The thread shares the connection, so that it outlives a caller who no longer waits.
    std::packaged_task task([work = std::move(work), connection = connection_] { return work(*connection); });
    auto result = task.get_future();
    std::thread thread(std::move(task));
    timedOut_ = result.wait_for(std::chrono::seconds(odbc::Connection::kSecondsAllowed)) == std::future_status::timeout;
    if (timedOut_) {
        thread.detach();
        // Nor is it waited for that the driver gives up.
        std::thread([abandoned = connection_] { abandoned->cancel(); }).detach();
        connection_ = std::make_shared<odbc::Connection>(connectionString_, folder_);
        throw RunTimeError::withText(
            ErrorNumber::DatabaseError,
            u"The database did not answer within %1 seconds."_s.arg(odbc::Connection::kSecondsAllowed));
    }
    thread.join();
    return result.get();
}

void Session::open() {
    inTime([](odbc::Connection& connection) { connection.open(); });
}

odbc::Rows Session::run(const QString& sql) {
    return inTime([sql](odbc::Connection& connection) { return connection.run(sql); });
}

odbc::Connection::State Session::state() const {
    using State = odbc::Connection::State;
    if (timedOut_) return State::Failed;
    return connection_ ? connection_->state() : State::NotTried;
}

}  // namespace zelvor
