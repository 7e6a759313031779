#include "data/session.h"

#include <thread>
#include <utility>

using namespace Qt::StringLiterals;

namespace zelvor {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

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

template <class Result>
Session::Waited Session::await(std::future<Result>& result, milliseconds allowed, const Patience& patience) {
    // Most answers come within this: nothing happens in between.
    constexpr milliseconds kAtOnce{10};
    const auto isReady = [&](milliseconds longest) { return result.wait_for(longest) == std::future_status::ready; };
    const auto until = steady_clock::now() + allowed;
    if (isReady(patience.meanwhile ? std::min(kAtOnce, allowed) : allowed)) return Waited::Answered;
    while (patience.meanwhile && steady_clock::now() < until) {
        const bool goesOn = patience.meanwhile();
        if (isReady(milliseconds{0})) return Waited::Answered;
        if (!goesOn) return Waited::GivenUp;
    }
    return Waited::TooLong;
}

template <class Result>
bool Session::endsWhenCancelled(const std::shared_ptr<odbc::Connection>& connection, std::future<Result>& result,
                                milliseconds allowed) {
    // A driver may take its time for that, too.
    std::packaged_task<void()> cancel([connection] { connection->cancel(); });
    const std::future<void> cancelled = cancel.get_future();
    std::thread(std::move(cancel)).detach();
    const auto until = steady_clock::now() + allowed;
    if (result.wait_until(until) == std::future_status::timeout) return false;
    if (cancelled.wait_until(until) == std::future_status::timeout) return false;
    connection->resume();
    return true;
}

template <class Work>
auto Session::inTime(const Patience& patience, Work work) {
    if (!connection_) throw RunTimeError::withText(ErrorNumber::DatabaseError, u"No database connection is open."_s);
    if (isSilent()) awaitAnswer(patience);
    // The thread shares the connection, so that it outlives a caller who no longer waits.
    const std::shared_ptr<odbc::Connection> connection = connection_;
    std::packaged_task task([work = std::move(work), connection] { return work(*connection); });
    auto result = task.get_future();
    std::thread thread(std::move(task));
    const Waited waited = await(result, std::chrono::seconds(patience.seconds), patience);
    const bool ended = waited == Waited::Answered || endsWhenCancelled(connection, result, patience.untilCancelled);
    if (ended) {
        thread.join();
    } else {
        thread.detach();
    }
    if (waited == Waited::Answered) return result.get();

    const bool isOurs = connection == connection_;  // not closed meanwhile
    if (!ended && isOurs && waited == Waited::TooLong) fallSilent();
    if (!ended && isOurs && waited == Waited::GivenUp) setConnectionString(connectionString_);
    if (waited == Waited::GivenUp) throw GivenUp();
    if (ended) {
        try {
            return result.get();  // in the last moment
        } catch (const RunTimeError&) {
            // It was cancelled.
        }
    }
    throw OutOfTime(u"The database did not answer within %1 seconds."_s.arg(patience.seconds));
}

void Session::fallSilent() {
    if (!connection_ || isSilent()) return;
    silentSince_ = QTime::currentTime();
    // Nor is it waited for that the driver closes it.
    std::thread([abandoned = std::move(connection_)] {}).detach();
    connection_ = std::make_shared<odbc::Connection>(connectionString_, folder_);
    beginOpening();
}

void Session::beginOpening() {
    std::packaged_task<void()> task([connection = connection_] { connection->open(Patience::kSeconds); });
    opening_ = task.get_future();
    std::thread(std::move(task)).detach();
}

void Session::awaitAnswer(const Patience& patience) {
    // Each try is waited for once.
    milliseconds allowed{0};
    if (!opening_.valid()) {
        beginOpening();
        allowed = kAllowedInSilence;
    }
    const Waited waited = await(opening_, allowed, patience);
    if (waited == Waited::GivenUp) throw GivenUp();
    if (waited == Waited::TooLong) {
        throw OutOfTime(u"The database has not answered since %1."_s.arg(silentSince_.toString(u"HH:mm:ss"_s)));
    }
    std::exchange(opening_, {}).get();
    silentSince_ = {};
}

void Session::open(const Patience& patience) {
    inTime(patience, [seconds = patience.seconds](odbc::Connection& connection) { connection.open(seconds); });
}

odbc::Rows Session::run(const QString& sql, const Patience& patience) {
    return inTime(patience, [sql, seconds = patience.seconds](odbc::Connection& connection) {
        return connection.run(sql, seconds);
    });
}

void Session::runTogether(const QStringList& statements) {
    inTime({}, [statements](odbc::Connection& connection) { connection.runTogether(statements, Patience::kSeconds); });
}

odbc::Connection::State Session::state() const {
    using State = odbc::Connection::State;
    if (isSilent()) return State::Failed;
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
