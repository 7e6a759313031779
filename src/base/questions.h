#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <list>
#include <optional>
#include <vector>

#include "base/asker.h"

namespace zelvor {

// What a box or a pick list asks the operator.
struct Question {
    enum class Kind { Message, YesNo, Text, List };
    struct Choice {
        QString key;
        QString text;
    };
    // What cancels a text or a list, and what is answered to a message.
    inline static const QString kCancel = QStringLiteral("cancel");
    inline static const QString kOk = QStringLiteral("ok");
    inline static const QString kYes = QStringLiteral("yes");
    inline static const QString kNo = QStringLiteral("no");

    Kind kind = Kind::Message;
    Asker asker = {};
    QString title = {};
    QString text = {};
    std::vector<Choice> choices = {};  // of a list

    // The answer as the question takes it: "ok"; "yes" or "no" (also 1, 0, true, false); a key of the list; any text;
    // "cancel". nullopt for what is no answer to it.
    [[nodiscard]] std::optional<QString> read(const QString& given) const;
    // The place of that key among the choices; -1 for none.
    [[nodiscard]] int choice(const QString& key) const;
};

// The boxes and lists that stand and wait, the newest on top, so that they can be answered from elsewhere than by
// their own buttons, beforehand as well.
class Questions : public QObject {
    Q_OBJECT

 public:
    // Ends the box with an answer that its question takes.
    using Answer = std::function<void(const QString& answer)>;

    // A question while its box stands.
    class Standing {
     public:
        Standing(Questions& questions, const Question& question, Answer answer);
        ~Standing();
        Standing(const Standing&) = delete;
        Standing& operator=(const Standing&) = delete;

     private:
        Questions& questions_;
        qint64 number_;
    };

    // Asked before a box is shown: the answer that its presser has given with the press.
    using Beforehand = std::function<std::optional<QString>(const Question& question)>;
    void setBeforehand(Beforehand beforehand) { beforehand_ = std::move(beforehand); }
    // That answer as the question takes it; nullopt when there is none that it takes.
    [[nodiscard]] std::optional<QString> answeredBeforehand(const Question& question) const;

    // The question that stands on top; null when none does. Valid until the next turn of the event loop.
    [[nodiscard]] const Question* top() const { return standing_.empty() ? nullptr : &standing_.back().question; }
    // Counted from 1; 0 when none stands.
    [[nodiscard]] qint64 topNumber() const { return standing_.empty() ? 0 : standing_.back().number; }
    // Whether it has been answered and its box is about to close.
    [[nodiscard]] bool isTopAnswered() const { return !standing_.empty() && !standing_.back().answer; }
    // Answers it, once; false when it does not take that.
    bool answerTop(const QString& given);

    // What a box or list was answered with in the end, whoever gave it; of one that CLEAR has ended nothing is told.
    void tellAnswer(const Question& question, const QString& answer) { Q_EMIT answered(question, answer); }

 Q_SIGNALS:
    // Another question stands on top, or none.
    void changed();
    void answered(const zelvor::Question& question, const QString& answer);

 private:
    struct Entry {
        qint64 number;
        Question question;
        Answer answer;
    };
    std::list<Entry> standing_;
    qint64 count_ = 0;
    Beforehand beforehand_;
};

}  // namespace zelvor
