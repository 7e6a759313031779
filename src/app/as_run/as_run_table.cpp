#include "app_as_run/as_run_table.h"

#include "app_as_run/as_run_report.h"
#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr size_t kRowsInStatement = 100;
constexpr qsizetype kShort = 120;
constexpr qsizetype kLong = 4000;

// Types that SQLite, MariaDB and PostgreSQL have in common.
const QString kColumns =
    u"day varchar(10), run varchar(40), fired_at varchar(29), pack varchar(120), card_set integer, card_row integer, "
    u"caption varchar(120), script varchar(120), asked_by varchar(120), asked_from varchar(120), "
    u"answers varchar(120), outcome varchar(120), refused integer, stood_ms integer, sponsor varchar(120), lines text, times integer"_s;

// As every server takes it: no backslashes and control characters but line feeds, cut to its column.
QString quoted(const QString& text, qsizetype width = kShort) {
    QString kept;
    for (const QChar c : text.left(width)) {
        if ((c.isPrint() && c != u'\\') || c == u'\n') kept += c;
    }
    return u'\'' + kept.replace(u'\'', u"''"_s) + u'\'';
}

QString rowOf(const QString& day, const AsRunCard& card) {
    const auto number = [](bool known, qint64 value) { return known ? QString::number(value) : u"null"_s; };
    const QStringList values{day,
                             quoted(card.run),
                             quoted(card.at.toString(Qt::ISODateWithMs)),
                             quoted(card.pack),
                             number(card.row > 0, card.set),
                             number(card.row > 0, card.row),
                             quoted(card.caption),
                             quoted(card.script),
                             quoted(card.by),
                             quoted(card.from),
                             quoted(card.answers.join(u" | "_s)),
                             quoted(card.outcome),
                             card.refused() ? u"1"_s : u"0"_s,
                             number(card.stood.has_value(), card.stood.value_or(0)),
                             quoted(card.sponsor),
                             quoted(asRunLines(card), kLong),
                             QString::number(card.times)};
    return u'(' + values.join(u", "_s) + u')';
}

bool hasColumn(Session& session, const QString& column) {
    try {
        session.run(u"select "_s + column + u" from as_run where 1 = 0"_s);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace

void writeAsRunTable(Session& session, QDate day, const std::vector<AsRunCard>& cards) {
    session.open();
    if (!hasColumn(session, u"day"_s)) session.run(u"create table as_run ("_s + kColumns + u')');
    // The newest column: a table made before lacks it.
    if (!hasColumn(session, u"times"_s)) session.run(u"alter table as_run add times integer"_s);
    const QString date = quoted(day.toString(Qt::ISODate));
    QStringList statements{u"delete from as_run where day="_s + date};
    for (size_t first = 0; first < cards.size(); first += kRowsInStatement) {
        QStringList rows;
        for (size_t i = first; i < std::min(first + kRowsInStatement, cards.size()); ++i) rows += rowOf(date, cards[i]);
        statements += u"insert into as_run values "_s + rows.join(u", "_s);
    }
    session.runTogether(statements);
}

}  // namespace zelvor
