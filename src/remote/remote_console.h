#pragma once

#include <QElapsedTimer>
#include <QJsonObject>
#include <QObject>
#include <functional>
#include <map>

#include "console_rules/card_console.h"
#include "feed/game_desk.h"

namespace zelvor {

// What became of a deed from outside, in the statuses of HTTP: 200 done, 202 a question waits or the card still runs,
// 400 no such thing, 404 nothing there, 409 a question is open or the deed was cleared, 429 too many, 503 not now.
struct DeedResult {
    int status = 200;
    QJsonObject body = {};  // "error" in words where the status is one
};

// The operator's deeds for those who ask for them from outside. Each takes its turn among his presses and is told him
// with its source; the limits keep the console as quick for him as before.
class RemoteConsole : public QObject {
    Q_OBJECT

 public:
    static constexpr int kMostAtOnce = 8;        // deeds that are not over
    static constexpr int kMostInSecond = 100;    // deeds in any second
    static constexpr int kLongestAnswer = 2000;  // milliseconds until a deed that goes on is answered

    using Done = std::function<void(const DeedResult& result)>;
    // Who asks, with the answers to what his card may ask, and what he is told: once, in time; a refusal from within
    // the call.
    struct Request {
        QString from;  // "HTTP 10.0.0.5"
        QStringList answers = {};
        Done done;
    };

    // All must outlive it.
    RemoteConsole(CardEngine& engine, CardConsole& cards, GameDesk& desk);
    RemoteConsole(const RemoteConsole&) = delete;
    RemoteConsole& operator=(const RemoteConsole&) = delete;
    ~RemoteConsole() override;

    // Before the start-up is over nothing is taken.
    void open() { open_ = true; }

    void fireCard(int set, int row, const Request& request);
    void pressKey(int number, const Request& request);
    void runScript(const QString& name, const Request& request);
    void takeProposal(int number, const Request& request);
    // At once, before whatever waits, as the operator's own.
    void clear(const Request& request);
    // Any other deed. what: in the operator's words, "Score home 12".
    void act(const QString& what, const std::function<void()>& deed, const Request& request);
    // The answer to the question that stands on top. number: the question's; 0 for whichever it is.
    DeedResult answer(const QString& given, qint64 number, const QString& from);

    // The question that stands on top; empty when none does.
    [[nodiscard]] QJsonObject question() const;

    [[nodiscard]] CardEngine& engine() { return engine_; }
    [[nodiscard]] CardConsole& cards() { return cards_; }
    [[nodiscard]] GameDesk& desk() { return desk_; }

 private:
    struct Pending {
        Request request;
        bool clears = false;
        bool told = false;
        bool ran = false;  // its card was begun
        bool over = false;
    };
    // The refusal of any deed now; nullopt when it may be done.
    [[nodiscard]] std::optional<DeedResult> refusal();
    // That of any deed while a question of his stands.
    [[nodiscard]] std::optional<DeedResult> refusalByQuestion() const;
    // When its turn has come; one that may not is refused.
    bool mayComeNow(const Presser& presser);
    void press(const QString& what, const Request& request, const std::function<void(const Presser&)>& deed);
    void carryOut(qint64 number, const std::function<void(const Presser&)>& deed);
    void tell(qint64 number, const DeedResult& result);
    void tellLate(qint64 number);
    void finish(qint64 number, const DeedResult& result);
    void tellAsked();
    [[nodiscard]] Presser presserOf(qint64 number, const QString& from) const {
        return {QStringLiteral("remote"), from, number};
    }

    CardEngine& engine_;
    CardConsole& cards_;
    GameDesk& desk_;
    bool open_ = false;
    std::map<qint64, Pending> pending_;  // by the numbers of their presses
    qint64 lastNumber_ = 0;
    QElapsedTimer second_;
    int inSecond_ = 0;
};

// A result that tells what is wrong.
DeedResult wrongDeed(int status, const QString& error);

}  // namespace zelvor
