#include "app_language_server/message_reader.h"

#include <QList>
#include <algorithm>

namespace zelvor {

namespace {

constexpr qsizetype kLongestHeader = 4096;

// -1 when the header gives no length. It may stand behind the rest of a message that was longer than it said.
qint64 lengthIn(const QByteArray& header) {
    constexpr QByteArrayView kName = "content-length:";
    const qsizetype at = header.toLower().lastIndexOf(kName);
    if (at < 0) return -1;
    bool valid = false;
    const qint64 length = header.mid(at + kName.size()).split('\n').constFirst().trimmed().toLongLong(&valid);
    return valid && length >= 0 ? length : -1;
}

}  // namespace

std::optional<QByteArray> MessageReader::next() {
    while (true) {
        const qint64 gone = std::min<qint64>(skipped_, bytes_.size());
        bytes_.remove(0, gone);
        skipped_ -= gone;
        const qsizetype end = bytes_.indexOf("\r\n\r\n");
        if (skipped_ > 0 || end < 0) {
            // What is no header this long becomes none.
            if (end < 0 && bytes_.size() > kLongestHeader) bytes_ = bytes_.right(3);
            return std::nullopt;
        }
        const qint64 length = lengthIn(bytes_.left(end));
        if (length >= 0 && length <= kLargest) {
            if (bytes_.size() - end - 4 < length) return std::nullopt;
            QByteArray message = bytes_.mid(end + 4, length);
            bytes_.remove(0, end + 4 + length);
            return message;
        }
        bytes_.remove(0, end + 4);
        skipped_ = std::max<qint64>(length, 0);
    }
}

}  // namespace zelvor
