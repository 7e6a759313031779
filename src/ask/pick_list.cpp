#include "ask/pick_list.h"

#include <algorithm>
#include <functional>

#include "base/letters.h"
#include "base/number.h"
#include "base/run_time_error.h"
#include "engine/placeholders.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

enum class Word { Whole, Beginning };

// Whether a word of TEXT is TYPED or begins so, in either case.
bool hasWord(const QString& text, QStringView typed, Word word) {
    const auto isInWord = [&](qsizetype at) { return at >= 0 && at < text.size() && text[at].isLetterOrNumber(); };
    for (qsizetype at = text.indexOf(typed, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(typed, at + 1, Qt::CaseInsensitive)) {
        if (!isInWord(at - 1) && (word == Word::Beginning || !isInWord(at + typed.size()))) return true;
    }
    return false;
}

QString inOneLine(QString text) {
    return text.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ');
}

int columnNamed(const QStringList& columns, const QString& name) {
    const auto found = std::ranges::find_if(
        columns, [&](const QString& column) { return column.compare(name.trimmed(), Qt::CaseInsensitive) == 0; });
    if (found == columns.end()) {
        throw RunTimeError::withText(
            ErrorNumber::DatabaseError,
            u"The query of the pick list has no column \"%1\", only %2."_s.arg(name, columns.join(u", "_s)));
    }
    return static_cast<int>(found - columns.begin());
}

}  // namespace

PickList::PickList(ShowState& state, Database& database, ErrorTrap& trap, const Asker& asker)
    : state_(state), openBefore_(state.ask.ASK_OPEN) {
    state_.ask.ASK_OPEN = AskState::kYes;
    state_.ask.ASK_RESULT = u"-1"_s;
    trap.run({u"frmASK.Form_Load"_s, 0, asker}, ErrorTrap::Tell::Operator, [&] { readRows(database, asker); });
    if (!fault_.isEmpty()) trap.warn({u"frmASK.Form_Load"_s, 0, asker}, fault_);
}

void PickList::readRows(Database& database, const Asker& asker) {
    const AskField field = state_.ask.field(state_.ask.ASK_FIELD);
    title_ = field.title;
    QString sql = EXPAND_VARS(field.sql, state_.variables, state_.QUERY_RESULT, PreviousAnswer::LeftAlone);
    sql.replace(u"{@@}"_s, state_.ask.ASK_PREVIOUS);
    // Still there in a query that begins with "%", which keeps its other placeholders.
    for (const QString& name : {u"@EIDOSEKLOGWN"_s, u"@PERIOD"_s}) {
        sql.replace(u'{' + name + u'}', state_.variables.text(name));
    }

    std::optional<NamedRows> answer = database.readGreek(asker, sql);
    isGivenUp_ = !answer;
    if (isGivenUp_) return;
    const NamedRows found = *std::move(answer);
    const int display = columnNamed(found.columns, field.display);
    const int code = columnNamed(found.columns, field.getCode);
    std::vector<Row> read;
    read.reserve(found.rows.size());
    int number = 0;
    for (const std::vector<Value>& row : found.rows) {
        ++number;
        try {
            const qint32 key = wholeNumber32(row[code].number());
            read.push_back({inOneLine(row[display].text()), key});
        } catch (const RunTimeError& error) {
            if (!fault_.isEmpty()) continue;
            fault_ = u"ask field %1, GETCODE %2, row %3: "_s.arg(state_.ask.ASK_FIELD).arg(field.getCode).arg(number) +
                     error.text();
        }
    }
    rows_ = std::move(read);
}

int PickList::find(QStringView typed) const {
    const QString plain = withoutAccents(typed);
    if (plain.isEmpty()) return -1;
    const auto isNumber = [&](const QString& text) {
        return typed.front().isDigit() && hasWord(text, typed, Word::Whole);
    };
    const auto isAtFront = [&](const QString& text) { return text.startsWith(typed, Qt::CaseInsensitive); };
    const auto isAnyWord = [&](const QString& text) { return hasWord(text, typed, Word::Beginning); };
    const auto isSimilar = [&](const QString& text) { return hasWord(withoutAccents(text), plain, Word::Beginning); };
    using Rule = std::function<bool(const QString&)>;
    for (const Rule& holds : {Rule(isNumber), Rule(isAtFront), Rule(isAnyWord), Rule(isSimilar)}) {
        const auto found = std::ranges::find_if(rows_, holds, &Row::text);
        if (found != rows_.end()) return static_cast<int>(found - rows_.begin());
    }
    return -1;
}

void PickList::choose(int row) {
    state_.ask.ASK_RESULT = QString::number(rows_.at(row).key);
    state_.ask.lastItemData = state_.ask.ASK_RESULT;
    state_.ask.ASK_CANCELLED = 0;
    close();
}

void PickList::cancel() {
    state_.ask.ASK_RESULT = u"-1"_s;
    state_.ask.ASK_CANCELLED = AskState::kYes;
    close();
}

void PickList::close() {
    // A list may open above another, for a card that runs meanwhile: the lower one is still open then.
    state_.ask.ASK_OPEN = openBefore_;
}

}  // namespace zelvor
