#include "remote/json_texts.h"

#include <QJsonArray>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

QJsonObject questionJson(const Question& question, qint64 number) {
    const QString kind = question.kind == Question::Kind::Message ? u"message"_s
                         : question.kind == Question::Kind::YesNo ? u"yes-no"_s
                         : question.kind == Question::Kind::Text  ? u"text"_s
                                                                  : u"list"_s;
    QJsonArray choices;
    for (const Question::Choice& choice : question.choices)
        choices += QJsonObject{{u"key"_s, choice.key}, {u"text"_s, choice.text}};
    return {{u"number"_s, number},      {u"kind"_s, kind},       {u"title"_s, question.title},
            {u"text"_s, question.text}, {u"choices"_s, choices}, {u"card"_s, question.asker.card}};
}

bool isOneLine(const QString& text) {
    return std::ranges::none_of(text, [](QChar c) { return c.category() == QChar::Other_Control; });
}

int numberInPath(const QString& piece) {
    constexpr qsizetype kDigits = 3;
    const bool isNumber = !piece.isEmpty() && piece.size() <= kDigits &&
                          std::ranges::all_of(piece, [](QChar c) { return c >= u'0' && c <= u'9'; });
    return isNumber ? piece.toInt() : -1;
}

bool isScriptName(const QString& name) {
    constexpr qsizetype kLongest = 100;
    constexpr QStringView kOfPaths = u"/\\:~{}";
    return !name.isEmpty() && name.size() <= kLongest && !name.startsWith(u'.') && isOneLine(name) &&
           name.endsWith(u".csp"_s, Qt::CaseInsensitive) &&
           std::ranges::none_of(name, [&](QChar c) { return kOfPaths.contains(c); });
}

bool isVariableName(const QString& name) {
    constexpr qsizetype kLongest = 100;
    return !name.isEmpty() && name.size() <= kLongest && isOneLine(name) &&
           std::ranges::all_of(name, [](QChar c) { return c.isPrint(); });
}

}  // namespace zelvor
