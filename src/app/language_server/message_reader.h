#pragma once

#include <QByteArray>
#include <optional>

namespace zelvor {

// Takes the messages of the language-server protocol out of a stream of bytes: a header with the length, then as many
// bytes. A header that gives no length, or one beyond kLargest, is passed over; behind a wrong length the next header
// is found again.
class MessageReader {
 public:
    static constexpr qint64 kLargest = qint64{64} * 1024 * 1024;

    void add(const QByteArray& bytes) { bytes_ += bytes; }
    // The next whole message, nullopt when there is none yet.
    std::optional<QByteArray> next();

 private:
    QByteArray bytes_;
    qint64 skipped_ = 0;  // bytes of a refused message that are still to come
};

}  // namespace zelvor
