#include "live/table_writer.h"

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Thrown and caught here alone: another feed owns the tables.
struct OwnedByOther {
    QString owner;
};

}  // namespace

TableWriter::TableWriter(const QString& connectionString, const QString& folder, const QString& owner,
                         std::chrono::milliseconds beat)
    : session_(folder), owner_(owner.left(80)), beat_(beat) {
    session_.setConnectionString(connectionString);
    thread_ = std::thread([this] { run(); });
}

TableWriter::~TableWriter() {
    {
        const std::lock_guard lock(mutex_);
        stop_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void TableWriter::write(const LiveGame& game) {
    {
        const std::lock_guard lock(mutex_);
        newest_ = game;
    }
    changed_.notify_all();
}

bool TableWriter::finish(std::chrono::milliseconds patience) {
    Lock lock(mutex_);
    return changed_.wait_for(lock, patience,
                             [this] { return (!newest_ && !busy_) || status_.state == State::Refused; });
}

TableWriter::Status TableWriter::status() const {
    const std::lock_guard lock(mutex_);
    return status_;
}

bool TableWriter::stopping() const {
    const std::lock_guard lock(mutex_);
    return stop_;
}

void TableWriter::setStatus(State state, const QString& text) {
    const std::lock_guard lock(mutex_);
    status_ = {state, text};
    changed_.notify_all();
}

void TableWriter::run() {
    constexpr std::chrono::seconds kPauseAfterFailure{1};
    while (!stopping()) {
        std::optional<LiveGame> game;
        try {
            if (!claimed_) claim();
            keepAlive();
            {
                Lock lock(mutex_);
                changed_.wait_for(lock, beat_, [this] { return newest_ || stop_; });
                if (!newest_) continue;
                game = std::exchange(newest_, std::nullopt);
                busy_ = true;
            }
            writeNewest(*game);
            setStatus(State::Writing);
        } catch (const OwnedByOther& other) {
            setStatus(State::Refused, other.owner);
            return;
        } catch (const RunTimeError& error) {
            written_.reset();
            setStatus(State::Failed, error.text());
            Lock lock(mutex_);
            if (game && !newest_) newest_ = game;
            busy_ = false;
            changed_.wait_for(lock, kPauseAfterFailure, [this] { return stop_; });
            continue;
        }
        const std::lock_guard lock(mutex_);
        busy_ = false;
        changed_.notify_all();
    }
    if (!claimed_) return;
    try {
        session_.run(u"delete from live_feed where owner = '"_s + owner_ + u'\'');
    } catch (const RunTimeError&) {
        return;  // the next feed will find that nobody is alive
    }
}

void TableWriter::claim() {
    const odbc::Rows rows = session_.run(u"select owner, beat from live_feed"_s);
    if (rows.rowCount() > 0 && rows.cells[0].text() != owner_) {
        waitForOther(rows.cells[0].text(), static_cast<int>(rows.cells[1].number()));
        if (stopping()) return;
        session_.run(u"delete from live_feed where owner = '"_s + rows.cells[0].text() + u'\'');
    }
    if (rows.rowCount() == 0 || rows.cells[0].text() != owner_) {
        // Of two that come at the same time the server takes one.
        session_.run(u"insert into live_feed (id, owner, beat) values (1, '"_s + owner_ + u"', 0)"_s);
    }
    claimed_ = true;
}

void TableWriter::waitForOther(const QString& owner, int beat) {
    {
        Lock lock(mutex_);
        status_ = {State::Waiting, u"whether "_s + owner + u" still writes"_s};
        if (changed_.wait_for(lock, 3 * beat_, [this] { return stop_; })) return;
    }
    const odbc::Rows rows = session_.run(u"select owner, beat from live_feed"_s);
    const bool alive =
        rows.rowCount() > 0 && (rows.cells[0].text() != owner || static_cast<int>(rows.cells[1].number()) != beat);
    if (alive) throw OwnedByOther{rows.cells[0].text()};
}

void TableWriter::keepAlive() {
    const auto now = std::chrono::steady_clock::now();
    if (!claimed_ || now - lastBeat_ < beat_) return;
    const odbc::Rows rows = session_.run(u"select owner from live_feed"_s);
    // Taken for dead by another one, as after a long sleep.
    if (rows.rowCount() > 0 && rows.cells[0].text() != owner_) throw OwnedByOther{rows.cells[0].text()};
    if (rows.rowCount() == 0) {
        session_.run(u"insert into live_feed (id, owner, beat) values (1, '"_s + owner_ + u"', 0)"_s);
    }
    session_.run(u"update live_feed set beat = beat + 1 where owner = '"_s + owner_ + u'\'');
    lastBeat_ = now;
}

void TableWriter::writeNewest(const LiveGame& game) {
    TableRows rows = rowsOf(game);
    const QStringList statements = statementsFor(written_, rows);
    if (!statements.isEmpty()) session_.runTogether(statements);
    written_ = std::move(rows);
}

}  // namespace zelvor
