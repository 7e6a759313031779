#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>
#include <optional>

namespace zelvor {

// Turns the bytes of a server's replies, in whatever pieces they arrive, into the texts shown for them: UTF-8, every
// CR LF removed. A character or CR LF that is cut between two pieces is put together.
class ReplyDecoder {
 public:
    // The text to show for this piece; bytes that are no UTF-8 show as U+FFFD. nullopt when the piece holds nothing
    // of its own: a part of a character, or the LF of a CR that came before.
    std::optional<QString> feed(QByteArrayView bytes);

    // Forgets what is held back; for a new connection.
    void reset();

 private:
    QStringDecoder utf8_{QStringDecoder::Utf8};
    bool carriageReturnHeld_ = false;
};

}  // namespace zelvor
