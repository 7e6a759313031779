#include "base/questions.h"

#include <algorithm>
#include <utility>

namespace zelvor {

std::optional<QString> Question::read(const QString& given) const {
    const QString word = given.trimmed().toLower();
    switch (kind) {
        case Kind::Message:
            return kOk;
        case Kind::YesNo:
            if (word == kYes || word == u"1" || word == u"true") return kYes;
            if (word == kNo || word == u"0" || word == u"false" || word == kCancel) return kNo;
            return std::nullopt;
        case Kind::List:
            if (word == kCancel) return kCancel;
            return choice(word) < 0 ? std::nullopt : std::optional(word);
        case Kind::Text:
            return word == kCancel ? kCancel : given;
    }
    return std::nullopt;
}

int Question::choice(const QString& key) const {
    const auto found = std::ranges::find(choices, key, &Choice::key);
    return found == choices.end() ? -1 : static_cast<int>(found - choices.begin());
}

Questions::Standing::Standing(Questions& questions, const Question& question, Answer answer)
    : questions_(questions), number_(++questions.count_) {
    questions_.standing_.push_back({number_, question, std::move(answer)});
    Q_EMIT questions_.changed();
}

Questions::Standing::~Standing() {
    // Of boxes that stand over one another the lower one may end first.
    questions_.standing_.remove_if([this](const Entry& entry) { return entry.number == number_; });
    Q_EMIT questions_.changed();
}

std::optional<QString> Questions::answeredBeforehand(const Question& question) const {
    if (!beforehand_) return std::nullopt;
    const std::optional<QString> given = beforehand_(question);
    return given ? question.read(*given) : std::nullopt;
}

bool Questions::answerTop(const QString& given) {
    if (standing_.empty() || isTopAnswered()) return false;
    const std::optional<QString> answer = standing_.back().question.read(given);
    if (!answer) return false;
    const Answer end = std::exchange(standing_.back().answer, {});
    end(*answer);
    return true;
}

}  // namespace zelvor
