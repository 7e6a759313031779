#include "link/reply_decoder.h"

using namespace Qt::StringLiterals;

namespace zelvor {

std::optional<QString> ReplyDecoder::feed(QByteArrayView bytes) {
    QString text = utf8_.decode(bytes);
    if (text.isEmpty()) return std::nullopt;

    const bool joined = carriageReturnHeld_;
    if (joined) text.prepend(u'\r');
    carriageReturnHeld_ = text.endsWith(u'\r');
    if (carriageReturnHeld_) text.chop(1);

    const bool nothingOfItsOwn = text.isEmpty() || (joined && text == u"\r\n"_s);
    if (nothingOfItsOwn) return std::nullopt;
    return text.remove(u"\r\n"_s);
}

void ReplyDecoder::reset() {
    utf8_.resetState();
    carriageReturnHeld_ = false;
}

}  // namespace zelvor
