#include "data/character_set.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

struct ServerName {
    const char* server;
    const char* codec;
};
constexpr std::array kServerNames{
    ServerName{"greek", "ISO-8859-7"},    ServerName{"latin1", "windows-1252"}, ServerName{"latin2", "ISO-8859-2"},
    ServerName{"latin5", "ISO-8859-9"},   ServerName{"latin7", "ISO-8859-13"},  ServerName{"hebrew", "ISO-8859-8"},
    ServerName{"koi8r", "KOI8-R"},        ServerName{"koi8u", "KOI8-U"},        ServerName{"cp1250", "windows-1250"},
    ServerName{"cp1251", "windows-1251"}, ServerName{"cp1256", "windows-1256"}, ServerName{"cp1257", "windows-1257"},
};

QByteArray codecName(const QByteArray& server) {
    const QByteArray name = server.trimmed().toLower();
    const auto* known =
        std::ranges::find_if(kServerNames, [&](const ServerName& candidate) { return name == candidate.server; });
    if (known != kServerNames.end()) return known->codec;
    if (name.startsWith("win12")) return "windows-" + name.mid(3);
    if (name.startsWith("iso_8859_")) return "ISO-8859-" + name.mid(9);
    return "UTF-8";
}

template <class Converter>
Converter converter(const QByteArray& server) {
    Converter made(codecName(server).constData(), QStringConverter::Flag::Stateless);
    return made.isValid() ? std::move(made) : Converter(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
}

bool isAscii(QByteArrayView bytes) {
    return std::ranges::all_of(bytes, [](char c) { return static_cast<signed char>(c) >= 0; });
}

}  // namespace

CharacterSet::CharacterSet(const QByteArray& sends, const QByteArray& takes)
    : takes_(takes),
      sendsUtf8_(codecName(sends) == "UTF-8"),
      decoder_(converter<QStringDecoder>(sends)),
      encoder_(converter<QStringEncoder>(takes)) {}

QString CharacterSet::decode(QByteArrayView bytes) {
    if (sendsUtf8_) return QString::fromUtf8(bytes);
    if (isAscii(bytes)) return QString::fromLatin1(bytes);
    return decoder_.decode(bytes);
}

QByteArray CharacterSet::encode(const QString& text) {
    constexpr char kSubstitute = '\x1A';
    QByteArray bytes = encoder_.encode(text);
    if (bytes.contains(kSubstitute) && bytes.count(kSubstitute) > text.count(QChar(u'\x1A'))) {
        throw RunTimeError::withText(
            ErrorNumber::DatabaseError,
            u"The character set %1 of the connection lacks %2."_s.arg(QString::fromLatin1(takes_), lacking(text)));
    }
    return bytes;
}

// á (U+00E1), 日 (U+65E5)
QString CharacterSet::lacking(const QString& text) {
    QStringList names;
    for (const char32_t character : text.toStdU32String()) {
        const QString one = QString::fromUcs4(&character, 1);
        if (character == U'\x1A' || !QByteArray(encoder_.encode(one)).contains('\x1A')) continue;
        const QString number = QString::number(static_cast<uint>(character), 16).toUpper().rightJustified(4, u'0');
        names += one + u" (U+"_s + number + u')';
    }
    names.removeDuplicates();
    return names.join(u", "_s);
}

QString CharacterSet::decodeMessage(QByteArrayView bytes) {
    QStringDecoder utf8(QStringConverter::Utf8);
    QString text = utf8.decode(bytes);
    return utf8.hasError() ? decode(bytes) : text;
}

}  // namespace zelvor
