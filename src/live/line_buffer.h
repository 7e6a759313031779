#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include "live/refusals.h"

namespace zelvor {

// Puts lines together out of pieces. A line that grows beyond all measure is refused and passed over to its end.
class LineBuffer {
 public:
    static constexpr qsizetype kLongest = qsizetype{8} * 1024 * 1024;

    explicit LineBuffer(Refusals& refusals) : refusals_(refusals) {}

    // Calls line(QByteArray) for each line that the piece completes, without its end; empty ones are passed over.
    template <class Take>
    void add(QByteArrayView piece, Take&& line) {
        while (!piece.isEmpty()) {
            const qsizetype end = piece.indexOf('\n');
            append(end < 0 ? piece : piece.first(end));
            if (end < 0) return;
            piece = piece.sliced(end + 1);
            const QByteArray whole = std::exchange(buffer_, {}).trimmed();
            if (!std::exchange(passingOver_, false) && !whole.isEmpty()) line(whole);
        }
    }
    // The connection is gone: what has come of a line is refused.
    void drop() {
        if (!buffer_.isEmpty()) refusals_.count(QStringLiteral("half a line"));
        buffer_.clear();
        passingOver_ = false;
    }

 private:
    void append(QByteArrayView piece) {
        if (passingOver_) return;
        if (buffer_.size() + piece.size() > kLongest) {
            refusals_.count(QStringLiteral("line too long"));
            buffer_ = {};
            passingOver_ = true;
            return;
        }
        buffer_.append(piece);
    }

    Refusals& refusals_;
    QByteArray buffer_;
    bool passingOver_ = false;
};

}  // namespace zelvor
