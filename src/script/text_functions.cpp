#include <QStringDecoder>
#include <QStringEncoder>
#include <algorithm>

#include "base/run_time_error.h"
#include "script/functions.h"

namespace zelvor::script::functions {

namespace {

constexpr auto kBlank = u' ';
// Codes from 128 to 255 mean the characters that single-byte text files hold there.
constexpr auto kCodePage = "windows-1253";

Value part(const TextOf& text, qsizetype start, qsizetype length) {
    return text.view().mid(start, length).toString();
}

QChar firstCharacter(const Arguments& args) {
    const TextOf text = args.text(0);
    require(!text.view().isEmpty());
    return text.view().front();
}

QStringView withoutLeadingBlanks(QStringView text) {
    while (text.startsWith(kBlank)) text = text.mid(1);
    return text;
}

QStringView withoutTrailingBlanks(QStringView text) {
    while (text.endsWith(kBlank)) text.chop(1);
    return text;
}

Value repeated(qint64 count, QChar character) {
    require(count >= 0);
    requireLength(count);
    return QString(count, character);
}

// Letter by letter, so that the length stays: a letter whose other case is two letters stays as it is.
template <class Change>
Value letterByLetter(QString text, Change change) {
    for (QChar& letter : text) letter = change(letter);
    return text;
}

// A limit on pieces or replacements: -1 is none.
qint64 limitOf(const Arguments& args, qsizetype index) {
    const qint64 limit = args.whole(index, -1);
    require(limit >= -1);
    return limit;
}

}  // namespace

Value asc(const Arguments& args) {
    const QChar character = firstCharacter(args);
    if (character.unicode() < 0x80) return int{character.unicode()};
    QStringEncoder encoder(kCodePage);
    const QByteArray bytes = encoder.encode(QString(character));
    if (!encoder.isValid() || encoder.hasError() || bytes.size() != 1) return int{'?'};
    return int{static_cast<uchar>(bytes.front())};
}

Value ascW(const Arguments& args) {
    return int{firstCharacter(args).unicode()};
}

Value chr(const Arguments& args) {
    const qint64 code = args.whole(0);
    require(code >= 0 && code <= 0xFF);
    if (code < 0x80) return QString(QChar(static_cast<char16_t>(code)));
    QStringDecoder decoder(kCodePage);
    return QString(decoder.decode(QByteArray(1, static_cast<char>(code))));
}

Value chrW(const Arguments& args) {
    const qint64 code = args.whole(0);
    require(code >= -0x8000 && code <= 0xFFFF);
    return QString(QChar(static_cast<char16_t>(code & 0xFFFF)));
}

Value filter(const Arguments& args) {
    const TextOf wanted = args.text(1);
    const bool include = args.truth(2, true);
    const Qt::CaseSensitivity comparison = args.comparison(3);
    std::vector<Value> kept;
    for (const Value& element : args.array(0)) {
        if (TextOf(element).view().contains(wanted, comparison) == include) kept.push_back(element);
    }
    return std::make_shared<const std::vector<Value>>(std::move(kept));
}

Value inStr(const Arguments& args) {
    // With three or four arguments the first is where to start.
    const qsizetype first = args.count() > 2 ? 1 : 0;
    if (args[first].isNull() || args[first + 1].isNull()) return Value::Null{};
    const qint64 start = first == 1 ? args.whole(0, 1) : 1;
    require(start >= 1);
    const TextOf text = args.text(first);
    const TextOf wanted = args.text(first + 1);
    const Qt::CaseSensitivity comparison = args.comparison(3);
    if (start > text.view().size()) return 0;
    return static_cast<qint64>(text.view().indexOf(wanted, start - 1, comparison)) + 1;
}

Value inStrRev(const Arguments& args) {
    if (args[0].isNull() || args[1].isNull()) return Value::Null{};
    const TextOf text = args.text(0);
    const TextOf wanted = args.text(1);
    const qint64 start = args.whole(2, -1);
    require(start == -1 || start >= 1);
    const Qt::CaseSensitivity comparison = args.comparison(3);
    const qint64 size = text.view().size();
    const qint64 end = start == -1 ? size : start;
    if (size == 0 || end > size) return 0;
    if (wanted.view().isEmpty()) return end;
    // The match must end at or before the start position.
    return static_cast<qint64>(text.view().left(end).lastIndexOf(wanted, -1, comparison)) + 1;
}

Value joined(const Arguments& args) {
    const QString delimiter = args.has(1) ? args.text(1).string() : QString(kBlank);
    QString text;
    bool first = true;
    for (const Value& element : args.array(0)) {
        if (!first) text += delimiter;
        first = false;
        text += TextOf(element).view();
        requireLength(text.size());
    }
    return text;
}

Value lCase(const Arguments& args) {
    return letterByLetter(args.text(0).string(), [](QChar letter) { return letter.toLower(); });
}

Value left(const Arguments& args) {
    const qint64 length = args.whole(1);
    require(length >= 0);
    return part(args.text(0), 0, length);
}

Value len(const Arguments& args) {
    return static_cast<qint64>(args.text(0).view().size());
}

Value lTrim(const Arguments& args) {
    return withoutLeadingBlanks(args.text(0)).toString();
}

Value mid(const Arguments& args) {
    const TextOf text = args.text(0);
    const qint64 start = args.whole(1);
    const qint64 length = args.whole(2, text.view().size());
    require(start >= 1 && length >= 0);
    if (start > text.view().size()) return QString();
    return part(text, start - 1, length);
}

Value replace(const Arguments& args) {
    const TextOf text = args.text(0);
    const TextOf wanted = args.text(1);
    const TextOf replacement = args.text(2);
    const qint64 start = args.whole(3, 1);
    const qint64 limit = limitOf(args, 4);
    const Qt::CaseSensitivity comparison = args.comparison(5);
    require(start >= 1);
    if (start > text.view().size()) return QString();
    // What stands before the start is not part of the result.
    const QStringView source = text.view().mid(start - 1);
    if (wanted.view().isEmpty()) return source.toString();
    QString result;
    qsizetype copied = 0;
    for (qint64 count = 0; count != limit; ++count) {
        const qsizetype found = source.indexOf(wanted, copied, comparison);
        if (found < 0) break;
        result += source.mid(copied, found - copied);
        result += replacement.view();
        requireLength(result.size());
        copied = found + wanted.view().size();
    }
    result += source.mid(copied);
    requireLength(result.size());
    return result;
}

Value right(const Arguments& args) {
    const TextOf text = args.text(0);
    const qint64 length = args.whole(1);
    require(length >= 0);
    return part(text, std::max<qsizetype>(0, text.view().size() - length), length);
}

Value rTrim(const Arguments& args) {
    return withoutTrailingBlanks(args.text(0)).toString();
}

Value space(const Arguments& args) {
    return repeated(args.whole(0), kBlank);
}

Value split(const Arguments& args) {
    const TextOf text = args.text(0);
    const QString delimiter = args.has(1) ? args.text(1).string() : QString(kBlank);
    const qint64 limit = limitOf(args, 2);
    const Qt::CaseSensitivity comparison = args.comparison(3);
    std::vector<Value> pieces;
    if (!text.view().isEmpty() && limit != 0) {
        qsizetype start = 0;
        while (!delimiter.isEmpty() && static_cast<qint64>(pieces.size()) + 1 != limit) {
            const qsizetype found = text.view().indexOf(delimiter, start, comparison);
            if (found < 0) break;
            pieces.push_back(part(text, start, found - start));
            start = found + delimiter.size();
        }
        pieces.push_back(part(text, start, text.view().size()));
    }
    return std::make_shared<const std::vector<Value>>(std::move(pieces));
}

Value strComp(const Arguments& args) {
    if (args[0].isNull() || args[1].isNull()) return Value::Null{};
    const int order = args.text(0).view().compare(args.text(1).view(), args.comparison(2));
    return (order > 0 ? 1 : 0) - (order < 0 ? 1 : 0);
}

Value string(const Arguments& args) {
    const qint64 count = args.whole(0);
    if (args[1].isText()) {
        const TextOf text = args.text(1);
        require(!text.view().isEmpty());
        return repeated(count, text.view().front());
    }
    return repeated(count, QChar(static_cast<char16_t>(args.whole(1) & 0xFF)));
}

Value strReverse(const Arguments& args) {
    QString text = args.text(0).string();
    std::ranges::reverse(text);
    return text;
}

Value trim(const Arguments& args) {
    return withoutLeadingBlanks(withoutTrailingBlanks(args.text(0))).toString();
}

Value uCase(const Arguments& args) {
    return letterByLetter(args.text(0).string(), [](QChar letter) { return letter.toUpper(); });
}

}  // namespace zelvor::script::functions
