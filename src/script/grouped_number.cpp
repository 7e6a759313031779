#include "script/grouped_number.h"

#include <QString>

#include "base/number.h"
#include "base/run_time_error.h"

namespace zelvor::script {

namespace {

bool isDecimalDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// True when the whole digits stand in groups of three, the first group of one to three.
bool isGrouped(QStringView text) {
    qsizetype sinceComma = 0;
    bool first = true;
    for (const QChar c : text) {
        if (c == u',') {
            if (first ? sinceComma < 1 || sinceComma > 3 : sinceComma != 3) return false;
            first = false;
            sinceComma = 0;
        } else if (isDecimalDigit(c)) {
            ++sinceComma;
        } else {
            break;
        }
    }
    return !first && sinceComma == 3;
}

}  // namespace

bool readNumberText(QStringView text, double& number) {
    if (readNumber(text, number)) return true;
    QStringView rest = text.trimmed();
    bool negative = false;
    if (rest.startsWith(u'(') && rest.endsWith(u')')) {
        negative = true;
        rest = rest.mid(1, rest.size() - 2);
    } else if (rest.startsWith(u'-') || rest.startsWith(u'+')) {
        negative = rest.front() == u'-';
        rest = rest.mid(1);
    }
    if (rest.startsWith(u'$')) rest = rest.mid(1);
    if (rest.isEmpty() || !(isDecimalDigit(rest.front()) || rest.front() == u'.')) return false;
    QString digits = rest.toString();
    if (isGrouped(rest)) digits.remove(u',');
    if (!readNumber(digits, number)) return false;
    if (negative) number = -number;
    return true;
}

bool readsAsNumber(QStringView text, double& number) {
    try {
        return readNumberText(text, number);
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace zelvor::script
