// The functions that count in bytes: a character is two of them, the low one first. A text holds whole characters
// only, so a part that ends inside of one has it with a high byte of 0.

#include "script/functions.h"

namespace zelvor::script::functions {

namespace {

QByteArray bytesOf(const TextOf& text) {
    const QStringView view = text.view();
    QByteArray bytes;
    bytes.reserve(view.size() * 2);
    for (const QChar c : view) {
        bytes += static_cast<char>(c.cell());
        bytes += static_cast<char>(c.row());
    }
    return bytes;
}

Value textOf(const QByteArray& bytes) {
    QString text;
    for (qsizetype i = 0; i < bytes.size(); i += 2) {
        const auto high = i + 1 < bytes.size() ? static_cast<uchar>(bytes[i + 1]) : uchar{0};
        text += QChar(static_cast<uchar>(bytes[i]), high);
    }
    return text;
}

}  // namespace

Value ascB(const Arguments& args) {
    const QByteArray bytes = bytesOf(args.text(0));
    require(!bytes.isEmpty());
    return int{static_cast<uchar>(bytes.front())};
}

Value chrB(const Arguments& args) {
    const qint64 code = args.whole(0);
    require(code >= 0 && code <= 0xFF);
    return QString(QChar(static_cast<char16_t>(code)));
}

Value inStrB(const Arguments& args) {
    const qsizetype first = args.count() > 2 ? 1 : 0;
    if (args[first].isNull() || args[first + 1].isNull()) return Value::Null{};
    const qint64 start = first == 1 ? args.whole(0, 1) : 1;
    require(start >= 1);
    const QByteArray text = bytesOf(args.text(first));
    const QByteArray wanted = bytesOf(args.text(first + 1));
    if (start > text.size()) return 0;
    return static_cast<qint64>(text.indexOf(wanted, start - 1)) + 1;
}

Value leftB(const Arguments& args) {
    const qint64 length = args.whole(1);
    require(length >= 0);
    return textOf(bytesOf(args.text(0)).left(length));
}

Value lenB(const Arguments& args) {
    return static_cast<qint64>(args.text(0).view().size()) * 2;
}

Value midB(const Arguments& args) {
    const QByteArray bytes = bytesOf(args.text(0));
    const qint64 start = args.whole(1);
    const qint64 length = args.whole(2, bytes.size());
    require(start >= 1 && length >= 0);
    return textOf(bytes.mid(start - 1, length));
}

Value rightB(const Arguments& args) {
    const qint64 length = args.whole(1);
    require(length >= 0);
    return textOf(bytesOf(args.text(0)).right(length));
}

}  // namespace zelvor::script::functions
