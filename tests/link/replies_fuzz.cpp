#include "link/reply_decoder.h"
#include "link/reply_matcher.h"
#include "support/fuzz_input.h"

using namespace zelvor;

namespace {

const QStringList kLines = {QStringLiteral("CG 1-20 ADD 1 'bug' 1"), QStringLiteral("CLEAR 1"), QStringLiteral("INFO"),
                            QStringLiteral("VERSION"), QStringLiteral("CG 1-20 STOP 1")};

// What is shown of the bytes, and which lines they answer, arriving in pieces of that size.
QStringList taken(const QByteArray& bytes, qsizetype piece) {
    ReplyDecoder decoder;
    ReplyMatcher matcher;
    for (const QString& line : kLines) matcher.sent({line, {}});
    QString shown;
    QStringList answers;
    for (qsizetype at = 0; at < bytes.size(); at += piece) {
        shown += decoder.feed(bytes.mid(at, piece)).value_or(QString());
        for (const ReplyMatcher::Answer& answer : matcher.read(bytes.mid(at, piece)))
            answers += answer.to.line + u'>' + answer.reply;
    }
    test::require(answers.size() + static_cast<qsizetype>(matcher.forget().size()) <= kLines.size());
    // Of bytes that are no UTF-8 the decoder may make more or fewer marks, as they come.
    return bytes.isValidUtf8() ? answers << shown : answers;
}

}  // namespace

// However the bytes are cut on their way, they mean the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes = test::fuzzBytes(data, size);
    const QStringList whole = taken(bytes + "\n", bytes.size() + 1);
    for (const int piece : {1, 2, 7}) test::require(taken(bytes + "\n", piece) == whole);
    return 0;
}
