#include "ask/pick_list.h"

#include <algorithm>

#include "base/number.h"
#include "base/run_time_error.h"
#include "engine/placeholders.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString withoutAccents(QStringView text) {
    QString plain;
    for (const QChar c : text.toString().normalized(QString::NormalizationForm_D)) {
        if (!c.isMark()) plain += c;
    }
    return plain;
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
    trap.run({u"frmASK.Form_Load"_s, 0, asker}, ErrorTrap::Tell::Operator, [&] { readRows(database); });
}

void PickList::readRows(Database& database) {
    const AskField field = state_.ask.field(state_.ask.ASK_FIELD);
    title_ = field.title;
    QString sql = EXPAND_VARS(field.sql, state_.variables, state_.QUERY_RESULT, PreviousAnswer::LeftAlone);
    sql.replace(u"{@@}"_s, state_.ask.ASK_PREVIOUS);
    // Still there in a query that begins with "%", which keeps its other placeholders.
    for (const QString& name : {u"@EIDOSEKLOGWN"_s, u"@PERIOD"_s}) {
        sql.replace(u'{' + name + u'}', state_.variables.text(name));
    }

    const NamedRows found = database.readGreek(sql);
    const int display = columnNamed(found.columns, field.display);
    const int code = columnNamed(found.columns, field.getCode);
    std::vector<Row> read;
    read.reserve(found.rows.size());
    for (const std::vector<Value>& row : found.rows) {
        read.push_back({row[display].text(), wholeNumber32(row[code].number())});
    }
    rows_ = std::move(read);
}

int PickList::firstBeginningWith(QStringView character) const {
    const auto found = std::ranges::find_if(
        rows_, [&](const Row& row) { return row.text.startsWith(character, Qt::CaseInsensitive); });
    if (found != rows_.end()) return static_cast<int>(found - rows_.begin());
    const QString plain = withoutAccents(character);
    const auto similar = std::ranges::find_if(rows_, [&](const Row& row) {
        return !plain.isEmpty() && withoutAccents(QStringView(row.text).left(4)).startsWith(plain, Qt::CaseInsensitive);
    });
    return similar == rows_.end() ? -1 : static_cast<int>(similar - rows_.begin());
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
