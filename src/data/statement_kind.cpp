#include "data/statement_kind.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace zelvor::odbc {

namespace {

// Behind the mark that ends what begins at `from`; the text's end without one.
qsizetype behind(const QString& text, const QString& mark, qsizetype from) {
    const qsizetype found = text.indexOf(mark, from);
    return found < 0 ? text.size() : found + mark.size();
}

// Whether something follows a semicolon that stands in no quotes.
bool holdsSeveral(const QString& sql) {
    static const QRegularExpression kQuoted(uR"('(?:[^'\\]|\\.)*+'|"(?:[^"\\]|\\.)*+"|`[^`]*+`)"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    if (!sql.contains(u';')) return false;
    const QString bare = QString(sql).remove(kQuoted).trimmed();
    const qsizetype semicolon = bare.indexOf(u';');
    return semicolon >= 0 && semicolon < bare.size() - 1;
}

}  // namespace

QString firstWord(const QString& sql) {
    qsizetype at = 0;
    while (at < sql.size()) {
        const QStringView rest = QStringView(sql).mid(at);
        if (rest.front().isSpace() || rest.front() == u'(') {
            ++at;
        } else if (rest.startsWith(u"/*") && !rest.startsWith(u"/*!") && !rest.startsWith(u"/*M!")) {
            at = behind(sql, u"*/"_s, at + 2);
        } else if (rest.startsWith(u'#') || rest.startsWith(u"--")) {
            at = behind(sql, u"\n"_s, at);
        } else {
            break;
        }
    }
    qsizetype end = at;
    while (end < sql.size() && sql[end].isLetter()) ++end;
    return sql.mid(at, end - at).toLower();
}

bool mayWrite(const QString& sql) {
    static const QRegularExpression kWrites(u"\\b(insert|update|delete|replace|merge|call|exec|execute)\\b"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    // A SELECT may name them for other ends, as the function replace().
    return firstWord(sql) != u"select" && sql.contains(kWrites);
}

bool isSafeForMariaDbDriver(const QString& sql) {
    static const QSet<QString> kSafe{u"select"_s, u"insert"_s, u"update"_s, u"delete"_s,   u"replace"_s,
                                     u"call"_s,   u"with"_s,   u"show"_s,   u"explain"_s,  u"set"_s,
                                     u"create"_s, u"drop"_s,   u"alter"_s,  u"describe"_s, u"truncate"_s,
                                     u"begin"_s,  u"start"_s,  u"commit"_s, u"rollback"_s};
    return kSafe.contains(firstWord(sql)) && !holdsSeveral(sql);
}

}  // namespace zelvor::odbc
