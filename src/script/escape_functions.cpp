// Texts made safe for another place.

#include <QHash>

#include "script/functions.h"

using namespace Qt::StringLiterals;

namespace zelvor::script::functions {

namespace {

constexpr QStringView kNeverEscaped = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789@*_+-./";

QString hexadecimal(char16_t code, int digits) {
    return QString::number(code, 16).rightJustified(digits, u'0').toUpper();
}

// The character whose code stands in `digits` hexadecimal digits at the front; none when they are none.
std::optional<QChar> character(QStringView text, qsizetype digits) {
    if (text.size() < digits) return std::nullopt;
    bool valid = !text.startsWith(u'+') && !text.startsWith(u'-');
    const uint code = valid ? text.left(digits).toUInt(&valid, 16) : 0;
    return valid ? std::optional(QChar(static_cast<char16_t>(code))) : std::nullopt;
}

}  // namespace

Value escape(const Arguments& args) {
    const TextOf text = args.text(0);
    QString result;
    for (const QChar c : text.view()) {
        if (kNeverEscaped.contains(c)) {
            result += c;
        } else if (c.unicode() <= 0xFF) {
            result += u'%' + hexadecimal(c.unicode(), 2);
        } else {
            result += u"%u"_s + hexadecimal(c.unicode(), 4);
        }
    }
    requireLength(result.size());
    return result;
}

Value unescape(const Arguments& args) {
    const TextOf text = args.text(0);
    const QStringView source = text.view();
    QString result;
    for (qsizetype at = 0; at < source.size(); ++at) {
        std::optional<QChar> found;
        if (source[at] == u'%') {
            const bool wide = source.mid(at + 1).startsWith(u'u');
            found = wide ? character(source.mid(at + 2), 4) : character(source.mid(at + 1), 2);
            if (found) at += wide ? 5 : 2;
        }
        result += found.value_or(source[at]);
    }
    return result;
}

// Look-alikes, not entities: SDATA would split the text at an entity's ";", and MAKEXML cut it at a "#" or a "|".
Value xmlText(const Arguments& args) {
    static const QHash<QChar, QChar> kLookAlikes{
        {u'\'', u'\u2019'}, {u'"', u'\u201D'}, {u'<', u'\u2039'}, {u'>', u'\u203A'}, {u'&', u'\uFF06'},
        {u'\\', u'\uFF3C'}, {u'|', u'\u00A6'}, {u'#', u'\uFF03'}, {u';', u'\u037E'},
    };
    QString text = args.text(0).string();
    for (QChar& c : text) {
        // No XML may hold a control character.
        c = c < u' ' ? QChar(u' ') : kLookAlikes.value(c, c);
    }
    return text;
}

}  // namespace zelvor::script::functions
