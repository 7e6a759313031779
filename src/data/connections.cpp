#include "data/connections.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "base/command_line.h"
#include "base/number.h"
#include "data/connection_list.h"

using namespace Qt::StringLiterals;

namespace zelvor {

Connections::Connections(ShowState& state, Operator& operatorDesk, const AppFolder& folder, const TextFiles& files,
                         ErrorTrap& trap, Choice choice, std::function<void()> endProgram)
    : state_(state),
      operator_(operatorDesk),
      folder_(folder),
      files_(files),
      trap_(trap),
      choice_(std::move(choice)),
      endProgram_(std::move(endProgram)),
      utf8_(folder.path()),
      greek_(folder.path()) {}

QString Connections::GET_CONNECTION_STRING() {
    auto number = static_cast<qint16>(leadingNumber(choice_.commandLine));
    if (number == 0) number = 1;
    return FIND_CONNECTION(number);
}

QString Connections::FIND_CONNECTION(qint16& ConnID) {
    const QString path = folder_.resolve(folder_.packFile(state_.language(), u"CONNECTIONS.TXT"));
    const ConnectionList list(files_.readLines(path));
    const std::optional<qint16> chosen = choice_.number ? choice_.number : askNumber(list.menuText(), ConnID);
    if (!chosen) return {};
    ConnID = *chosen;
    number_ = ConnID;
    QString found = list.find(ConnID);
    if (found.isEmpty()) {
        operator_.message({}, u"Error find connection for ConnID:%1\r\nProgram stop!!!"_s.arg(ConnID),
                          Operator::Severity::Critical);
        endProgram_();
    }
    return found;
}

std::optional<qint16> Connections::askNumber(const QString& menu, qint16 proposed) {
    while (!state_.closing) {
        const std::optional<QString> answer = operator_.input(u"Επιλογή σύνδεσης"_s, menu, QString::number(proposed));
        if (!answer) continue;
        try {
            return wholeNumber16(*answer);
        } catch (const RunTimeError&) {
            continue;  // no number: asked again
        }
    }
    return std::nullopt;
}

void Connections::CONNECTDATABASE() {
    if (choice_.number) return;
    trap_.run({u"mDATABASE.CONNECTDATABASE"_s}, ErrorTrap::Tell::Operator, [&] {
        const QString connectionString = GET_CONNECTION_STRING();
        if (connectionString.isEmpty()) return;
        setConnectionStrings(connectionString);
        utf8_.open();
        greek_.open();
    });
}

void Connections::close() {
    utf8_.close();
    greek_.close();
}

void Connections::setConnectionStrings(const QString& connectionString) {
    utf8_.setConnectionString(connectionString);
    greek_.setConnectionString(QString(connectionString).replace(u"'utf8'"_s, u"'greek'"_s));
}

odbc::Rows Connections::run(Session& session, const QString& sql) {
    if (choice_.number && !session.hasConnectionString()) {
        isMissing_ = true;
        const QString connectionString = GET_CONNECTION_STRING();
        if (!connectionString.isEmpty()) setConnectionStrings(connectionString);
        isMissing_ = connectionString.isEmpty();
    }
    return session.run(sql);
}

int Connections::runIntoResult(Session& session, const QString& sql, const QString& procedure,
                               const QString& errorTitle) {
    int count = 0;
    trap_.run({procedure}, ErrorTrap::Tell::LogOnly, [&] {
        try {
            odbc::Rows rows = run(session, sql);
            count = rows.rowCount();
            if (count == 0) return;
            state_.QUERY_RESULT = QueryResult(count, static_cast<int>(rows.columns.size()), std::move(rows.cells));
            state_.variables.SetVar(u"@RECORDCOUNT", count);
        } catch (const RunTimeError& error) {
            // Who has just been told that the program ends needs no second message.
            if (!state_.closing) {
                operator_.message(errorTitle, error.text() + u"\r\n"_s + sql, Operator::Severity::Warning);
            }
            throw;  // for the error log
        }
    });
    // The count is a 16-bit number, @RECORDCOUNT has all of it.
    return std::min<int>(count, std::numeric_limits<qint16>::max());
}

int Connections::RUN_QUERY(const QString& sql) {
    state_.variables.SetVar(u"@RECORDCOUNT", 0);
    return runIntoResult(utf8_, sql, u"mDATABASE.RUN_QUERY"_s, u"Error in Query"_s);
}

int Connections::RUN_QUERY2(const QString& sql) {
    // @RECORDCOUNT is meant to keep the last query's count when this one finds nothing.
    return runIntoResult(greek_, sql, u"mDATABASE.RUN_QUERY2"_s, u"Error in Query2"_s);
}

void Connections::execute(const QString& sql) {
    run(utf8_, sql);
}

NamedRows Connections::readGreek(const QString& sql) {
    odbc::Rows read = run(greek_, sql);
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
