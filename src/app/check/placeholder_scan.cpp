#include "app_check/placeholder_scan.h"

#include <QSet>
#include <algorithm>
#include <vector>

#include "base/number.h"
#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

bool mayBeWholeNumber(const QString& text) {
    if (text.contains(kAnything)) return true;
    try {
        return wholeNumber32(text) >= 0;
    } catch (const RunTimeError&) {
        return false;
    }
}

// Whether "{inner}" may be a cell "row|column" of the query result.
bool mayBeCell(const QString& inner) {
    const QStringList parts = inner.split(u'|');
    if (parts.size() < 2) return inner.contains(kAnything);
    return mayBeWholeNumber(parts[0]) && mayBeWholeNumber(parts[1]);
}

QString shown(QString text) {
    return text.replace(kAnything, u"..."_s);
}

}  // namespace

PlaceholderScan scanPlaceholders(const QString& text) {
    PlaceholderScan scan;
    if (text.startsWith(u'%') || !text.contains(u'{')) {
        scan.text = text;
        return scan;
    }
    std::vector<qsizetype> opens;
    QSet<QString> known;    // the placeholders before a "}" without "{": behind it no other is replaced
    bool isClosed = false;  // whether there was such a "}"
    for (const QChar character : text) {
        if (character == u'{') opens.push_back(scan.text.size());
        if (character != u'}') {
            scan.text += character;
            continue;
        }
        if (opens.empty()) {
            isClosed = true;
            scan.text += u'}';
            continue;
        }
        const QString inner = scan.text.mid(opens.back() + 1);
        scan.text.truncate(opens.back());
        opens.pop_back();
        if (!isClosed) {
            known.insert(inner);
        } else if (!known.contains(inner) && !inner.contains(kAnything)) {
            scan.fault = u"\"}\" before \"{\""_s;
        }
        if (inner.startsWith(u'@')) {
            scan.variables += inner;
        } else if (!mayBeCell(inner)) {
            scan.fault = u"{%1} is neither {@NAME} nor {row|column}"_s.arg(shown(inner));
        }
        scan.text += kAnything;
    }
    if (!opens.empty()) scan.fault = isClosed ? u"\"}\" before \"{\""_s : u"\"{\" without \"}\""_s;
    return scan;
}

}  // namespace zelvor
