#include "data/connections.h"

#include <QScopeGuard>
#include <algorithm>
#include <iterator>
#include <limits>

#include "base/number.h"
#include "data/connection_list.h"
#include "engine/card_engine.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// The number that the text begins with, read behind a "0": 0 for an empty text or one that begins with anything else.
qint16 leadingNumber(const QString& commandLine) {
    const double number = Val(QString(u'0' + commandLine));
    return number >= 1 && number <= INT16_MAX ? static_cast<qint16>(number) : qint16{0};
}

}  // namespace

Connections::Connections(ShowState& state, Operator& operatorDesk, Program& program, Clock& clock, Choice choice)
    : state_(state),
      operator_(operatorDesk),
      program_(program),
      clock_(clock),
      choice_(std::move(choice)),
      utf8_(program.folder.path()),
      greek_(program.folder.path()) {}

QString Connections::GET_CONNECTION_STRING() {
    qint16 number = leadingNumber(choice_.commandLine);
    if (number == 0) number = 1;
    return FIND_CONNECTION(number);
}

QString Connections::FIND_CONNECTION(qint16& ConnID) {
    const AppFolder& folder = program_.folder;
    const QString path = folder.resolve(folder.packFile(state_.language(), u"CONNECTIONS.TXT"));
    const ConnectionList list(program_.files.readLines(path));
    const std::optional<qint16> chosen = choice_.number ? choice_.number : askNumber(list.menuText(), ConnID);
    if (!chosen) return {};
    ConnID = *chosen;
    number_ = ConnID;
    QString found = list.find(ConnID);
    if (found.isEmpty()) {
        operator_.message({Asker::Kind::StartUp}, {},
                          u"Error find connection for ConnID:%1\r\nProgram stop!!!"_s.arg(ConnID),
                          Operator::Severity::Critical);
        program_.closing.begin();
    }
    return found;
}

std::optional<qint16> Connections::askNumber(const QString& menu, qint16 proposed) {
    while (!program_.closing.hasBegun()) {
        const std::optional<QString> answer =
            operator_.input({Asker::Kind::StartUp}, u"Επιλογή σύνδεσης"_s, menu, QString::number(proposed));
        if (!answer) continue;
        try {
            return wholeNumber16(*answer);
        } catch (const RunTimeError&) {
            continue;  // no number: asked again
        }
    }
    return std::nullopt;
}

int Connections::secondsFor(const Asker& asker) const {
    const bool isStart = CardEngine::scriptName(asker.card).compare(CardEngine::kStartCard, Qt::CaseInsensitive) == 0;
    return isStart ? std::max(choice_.seconds, kSecondsOfStart) : choice_.seconds;
}

template <class Work>
auto Connections::waitFor(const Asker& asker, Session& session, Work work) {
    const auto told = qScopeGuard([this] { standingTold_(); });
    const DatabaseWait::Scope wait(program_.databaseWait, asker);
    const int clearings = program_.clearing.count();
    const auto meanwhile = [&] {
        return clock_.waitBriefly() && program_.clearing.count() == clearings && wait.goesOn();
    };
    try {
        return work(Patience{secondsFor(asker), choice_.untilCancelled, meanwhile});
    } catch (const Session::OutOfTime&) {
        // Both connections go to one server.
        if (session.isSilent()) (&session == &utf8_ ? greek_ : utf8_).fallSilent();
        program_.databaseWait.tellRanOut(asker);
        throw;
    }
}

void Connections::CONNECTDATABASE() {
    if (choice_.number && !choice_.opensAtOnce) return;
    program_.trap.run({u"mDATABASE.CONNECTDATABASE"_s}, ErrorTrap::Tell::Operator, [&] {
        const QString connectionString = GET_CONNECTION_STRING();
        if (connectionString.isEmpty()) return;
        setConnectionStrings(connectionString);
        try {
            for (Session* session : {&utf8_, &greek_}) {
                waitFor({Asker::Kind::StartUp}, *session, [&](const Patience& patience) { session->open(patience); });
            }
        } catch (const Session::GivenUp&) {
            // By CLEAR; the first query opens what is not open.
        }
    });
}

void Connections::close() {
    utf8_.close();
    greek_.close();
}

void Connections::setConnectionStrings(const QString& connectionString) {
    utf8_.setConnectionString(connectionString);
    greek_.setConnectionString(QString(connectionString).replace(u"'utf8'"_s, u"'greek'"_s));
    standingTold_();
}

odbc::Rows Connections::run(const Asker& asker, Session& session, const QString& sql) {
    if (choice_.number && !session.hasConnectionString()) {
        isMissing_ = true;
        const QString connectionString = GET_CONNECTION_STRING();
        if (!connectionString.isEmpty()) setConnectionStrings(connectionString);
        isMissing_ = connectionString.isEmpty();
    }
    try {
        return waitFor(asker, session, [&](const Patience& patience) { return session.run(sql, patience); });
    } catch (const RunTimeError& error) {
        throw RunTimeError::withText(error.code(), error.text() + u"\r\n"_s + sql);
    }
}

int Connections::runIntoResult(const Query& query, const Asker& asker, const QString& sql) {
    int count = 0;
    program_.trap.run({query.procedure, 0, asker}, ErrorTrap::Tell::LogOnly, [&] {
        try {
            odbc::Rows rows = run(asker, query.session, sql);
            count = rows.rowCount();
            if (count == 0) return;
            state_.QUERY_RESULT = QueryResult(count, static_cast<int>(rows.columns.size()), std::move(rows.cells));
            state_.variables.SetVar(u"@RECORDCOUNT", count);
        } catch (const RunTimeError& error) {
            queryFailed_ = true;
            // Who has just been told that the program ends needs no second message.
            if (!program_.closing.hasBegun()) {
                operator_.message(asker, query.errorTitle, error.text(), Operator::Severity::Warning);
            }
            throw;  // for the error log
        } catch (const Session::GivenUp&) {
            // Whoever gave it up knows, and its run is over.
        }
    });
    // The count is a 16-bit number, @RECORDCOUNT has all of it.
    return std::min<int>(count, std::numeric_limits<qint16>::max());
}

int Connections::RUN_QUERY(const Asker& asker, const QString& sql) {
    state_.variables.SetVar(u"@RECORDCOUNT", 0);
    return runIntoResult({utf8_, u"mDATABASE.RUN_QUERY"_s, u"Error in Query"_s}, asker, sql);
}

int Connections::RUN_QUERY2(const Asker& asker, const QString& sql) {
    // @RECORDCOUNT is meant to keep the last query's count when this one finds nothing.
    return runIntoResult({greek_, u"mDATABASE.RUN_QUERY2"_s, u"Error in Query2"_s}, asker, sql);
}

bool Connections::execute(const Asker& asker, const QString& sql) {
    try {
        run(asker, utf8_, sql);
        return true;
    } catch (const Session::GivenUp&) {
        return false;
    }
}

std::optional<NamedRows> Connections::readGreek(const Asker& asker, const QString& sql) {
    odbc::Rows read;
    try {
        read = run(asker, greek_, sql);
    } catch (const Session::GivenUp&) {
        return std::nullopt;
    }
    NamedRows named{read.columns, {}};
    const auto width = static_cast<std::ptrdiff_t>(read.columns.size());
    named.rows.reserve(read.rowCount());
    for (auto cell = read.cells.begin(); cell != read.cells.end(); cell += width) {
        named.rows.emplace_back(std::make_move_iterator(cell), std::make_move_iterator(cell + width));
    }
    return named;
}

Connections::State Connections::connectionState() const {
    if (isMissing_ || utf8_.state() == State::Failed || greek_.state() == State::Failed) return State::Failed;
    return utf8_.state() == State::Open || greek_.state() == State::Open ? State::Open : State::NotTried;
}

}  // namespace zelvor
