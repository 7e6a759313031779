#pragma once

#include <QStringList>

#include "engine/ports.h"

namespace zelvor::test {

// Notes what is shown and gives prepared answers; nullopt stands for Cancel. When the answers are used up it says that
// the program is closing.
class ScriptedOperator : public Operator {
 public:
    explicit ScriptedOperator(bool& closing) : closing_(closing) {}

    void message(const QString& title, const QString& text, Severity) override { shown += title + u'|' + text; }
    bool yesNo(const QString&, const QString&) override { return true; }
    std::optional<QString> input(const QString& title, const QString& prompt, const QString& proposed) override {
        asked += title + u'|' + prompt + u'|' + proposed;
        if (answers.empty()) {
            closing_ = true;
            return std::nullopt;
        }
        const std::optional<QString> answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }

    QStringList shown;
    QStringList asked;
    std::vector<std::optional<QString>> answers;

 private:
    bool& closing_;
};

}  // namespace zelvor::test
