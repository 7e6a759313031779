#include "rehearsal/amcp_tokenizer.h"

namespace zelvor::rehearsal {

namespace {

QStringView escaped(QChar character) {
    switch (character.unicode()) {
        case u'\\':
            return u"\\";
        case u'"':
            return u"\"";
        case u'n':
            return u"\n";
        default:
            return {};
    }
}

}  // namespace

QStringList tokenize(QStringView line) {
    QStringList tokens;
    QString token;
    bool inQuotes = false;
    int openParentheses = 0;
    const auto finish = [&] {
        tokens.append(token);
        token.clear();
    };

    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar character = line[i];
        if (character == u'\\') {
            if (++i < line.size()) {
                token += escaped(line[i]);
            }
        } else if (character == u'"') {
            inQuotes = !inQuotes;
            if (!inQuotes || !token.isEmpty()) {
                finish();
            }
        } else if (character == u' ' && !inQuotes && openParentheses == 0) {
            if (!token.isEmpty()) {
                finish();
            }
        } else {
            if (!inQuotes && character == u'(') {
                ++openParentheses;
            } else if (!inQuotes && character == u')' && openParentheses > 0) {
                --openParentheses;
            }
            token += character;
        }
    }
    if (!token.isEmpty()) {
        finish();
    }
    return tokens;
}

}  // namespace zelvor::rehearsal
