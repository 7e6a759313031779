#include "remote/remote_console.h"

#include <QTimer>

#include "remote/json_texts.h"

using namespace Qt::StringLiterals;

namespace zelvor {

DeedResult wrongDeed(int status, const QString& error) {
    return {status, {{u"error"_s, error}}};
}

RemoteConsole::RemoteConsole(CardEngine& engine, CardConsole& cards, GameDesk& desk)
    : engine_(engine), cards_(cards), desk_(desk) {
    second_.start();
    // Of deeds that came at once the first may ask.
    cards.presses().setMayComeFromOutside([this](const Presser& presser) { return mayComeNow(presser); });
    Questions& questions = engine.program().questions;
    questions.setBeforehand([this](const Question& question) -> std::optional<QString> {
        const auto found = pending_.find(question.asker.presser.number);
        if (found == pending_.end() || found->second.request.answers.isEmpty()) return std::nullopt;
        const QString given = found->second.request.answers.takeFirst();
        // What comes behind a wrong one would be given to the wrong question.
        if (!question.read(given)) found->second.request.answers.clear();
        return given;
    });
    connect(&questions, &Questions::changed, this, &RemoteConsole::tellAsked);
    connect(&engine.runs(), &CardRuns::begun, this, [this](const Asker& asker) {
        const auto found = pending_.find(asker.presser.number);
        if (found != pending_.end()) found->second.ran = true;
    });
    connect(&engine.runs(), &CardRuns::ended, this, [this](const Asker& asker, RunOutcome outcome) {
        const auto found = pending_.find(asker.presser.number);
        if (found == pending_.end()) return;
        const bool failed = outcome == RunOutcome::NoScript || outcome == RunOutcome::Failed;
        const bool cleared = outcome == RunOutcome::Cleared && !found->second.clears;
        const int status = failed ? 422 : cleared ? 409 : outcome == RunOutcome::Closed ? 503 : 200;
        finish(asker.presser.number, {status, {{u"run"_s, asker.run}, {u"outcome"_s, outcomeText(outcome)}}});
    });
    // Deeds that wait for their turn never come. A CLEAR that waits is done by the one that overtakes it.
    connect(&engine.program().clearing, &Clearing::begun, this, [this] {
        std::vector<qint64> waiting;
        for (const auto& [number, pending] : pending_) {
            if (!pending.ran && pending.over) waiting.push_back(number);
        }
        const DeedResult overtaken{200, {{u"outcome"_s, outcomeText(RunOutcome::Cleared)}}};
        for (const qint64 number : waiting) {
            const bool clears = pending_.at(number).clears;
            finish(number, clears ? overtaken : wrongDeed(409, u"CLEAR was pressed before its turn"_s));
        }
    });
}

RemoteConsole::~RemoteConsole() {
    engine_.program().questions.setBeforehand({});
    cards_.presses().setMayComeFromOutside({});
}

std::optional<DeedResult> RemoteConsole::refusal() {
    if (!open_ || engine_.program().closing.hasBegun()) return wrongDeed(503, u"the console is not ready"_s);
    if (auto asked = refusalByQuestion()) return asked;
    if (pending_.size() >= kMostAtOnce) return wrongDeed(503, u"too many deeds are not over"_s);
    constexpr qint64 kSecond = 1000;
    if (second_.elapsed() >= kSecond) {
        second_.start();
        inSecond_ = 0;
    }
    if (++inSecond_ > kMostInSecond) return wrongDeed(429, u"too many deeds in a second"_s);
    return std::nullopt;
}

std::optional<DeedResult> RemoteConsole::refusalByQuestion() const {
    const Question* top = engine_.program().questions.top();
    if (top == nullptr || !top->asker.isAttended()) return std::nullopt;
    DeedResult result = wrongDeed(409, u"a question is open"_s);
    result.body.insert(u"question"_s, question());
    return result;
}

bool RemoteConsole::mayComeNow(const Presser& presser) {
    const auto asked = refusalByQuestion();
    if (asked) finish(presser.number, *asked);
    return !asked;
}

// From the event loop, never from within the call: a deed may wait for long, and others are taken meanwhile.
void RemoteConsole::press(const QString& what, const Request& request,
                          const std::function<void(const Presser&)>& deed) {
    if (const auto refused = refusal()) return request.done(*refused);
    const qint64 number = ++lastNumber_;
    pending_[number].request = request;
    engine_.ports().notes.appendHistory({u" = "_s, request.from, u": "_s, what});
    QTimer::singleShot(kLongestAnswer, this, [this, number] { tellLate(number); });
    QMetaObject::invokeMethod(
        this, [this, number, deed] { carryOut(number, deed); }, Qt::QueuedConnection);
}

void RemoteConsole::carryOut(qint64 number, const std::function<void(const Presser&)>& deed) {
    const auto found = pending_.find(number);
    if (found == pending_.end()) return;
    // CLEAR, or the program's end, may take the entry away meanwhile.
    const Presser presser = presserOf(number, found->second.request.from);
    const bool ran =
        engine_.program().trap.run({u"frmMAIN.remote"_s}, ErrorTrap::Tell::LogOnly, [&] { deed(presser); });
    const auto still = pending_.find(number);
    if (still == pending_.end()) return;
    still->second.over = true;
    if (!ran) return finish(number, wrongDeed(422, u"it failed; the error log tells why"_s));
    if (!still->second.ran && !cards_.presses().isWaiting())
        finish(number, wrongDeed(409, u"it was not carried out"_s));
}

void RemoteConsole::tell(qint64 number, const DeedResult& result) {
    const auto found = pending_.find(number);
    if (found == pending_.end() || std::exchange(found->second.told, true)) return;
    const Done done = found->second.request.done;
    done(result);
}

// What neither runs nor waits for its turn any longer was given up by the console, which has told the operator why.
void RemoteConsole::tellLate(qint64 number) {
    const auto found = pending_.find(number);
    if (found == pending_.end()) return;
    if (found->second.over && !found->second.ran && !cards_.presses().isWaiting())
        return finish(number, wrongDeed(409, u"it was not carried out"_s));
    tell(number, {202, {{u"outcome"_s, u"running"_s}}});
}

void RemoteConsole::finish(qint64 number, const DeedResult& result) {
    tell(number, result);
    pending_.erase(number);
}

void RemoteConsole::tellAsked() {
    const Question* top = engine_.program().questions.top();
    if (top == nullptr) return;
    tell(top->asker.presser.number, {202, {{u"outcome"_s, u"asking"_s}, {u"question"_s, question()}}});
}

QJsonObject RemoteConsole::question() const {
    const Questions& questions = engine_.program().questions;
    return questions.top() == nullptr ? QJsonObject() : questionJson(*questions.top(), questions.topNumber());
}

void RemoteConsole::fireCard(int set, int row, const Request& request) {
    if (set < 0 || set >= CardTable::kSets || row < 1 || row > CardTable::kCards)
        return request.done(wrongDeed(404, u"there is no such place for a card"_s));
    const CardEntry& entry = engine_.state().cards.entry(set, row);
    if (entry.script.isEmpty()) return request.done(wrongDeed(404, u"no card in this place"_s));
    press(u"card %1/%2 %3"_s.arg(set).arg(row).arg(entry.shownCaption()), request,
          [this, set, row](const Presser& presser) {
              cards_.fireCard({set, row - 1}, presser);
          });
}

void RemoteConsole::pressKey(int number, const Request& request) {
    if (number < 1 || number > CardConsole::kFiringFunctionKeys ||
        engine_.state().cards.functionKey(number).script.isEmpty())
        return request.done(wrongDeed(404, u"this key fires nothing"_s));
    press(u'F' + QString::number(number), request,
          [this, number](const Presser& presser) { cards_.functionKey(number, presser); });
}

void RemoteConsole::runScript(const QString& name, const Request& request) {
    if (!isScriptName(name)) return request.done(wrongDeed(400, u"no name of a script in the pack's folder"_s));
    const AppFolder& folder = engine_.program().folder;
    if (!folder.exists(folder.packFile(engine_.state().language(), CardEngine::scriptName(name))))
        return request.done(wrongDeed(404, u"the pack has no such script"_s));
    press(name, request, [this, name](const Presser& presser) { cards_.fireScript(name, name, presser); });
}

void RemoteConsole::takeProposal(int number, const Request& request) {
    const Control* label = engine_.form().find(controls.lblPROPOSED.name, number);
    if (label == nullptr || label->tag().isEmpty()) return request.done(wrongDeed(404, u"no such proposal"_s));
    const QString what = u"Proposal %1"_s.arg(number);
    press(what, request, [this, number, what](const Presser& presser) {
        cards_.presses().press(what, presser,
                               [this, number, presser] { desk_.proposals.lblPROPOSED(number, presser); });
    });
}

void RemoteConsole::act(const QString& what, const std::function<void()>& deed, const Request& request) {
    press(what, request, [this, what, deed](const Presser& presser) {
        cards_.presses().press(what, presser, [this, deed, number = presser.number] {
            deed();
            finish(number, {});
        });
    });
}

void RemoteConsole::clear(const Request& request) {
    if (!open_ || engine_.program().closing.hasBegun())
        return request.done(wrongDeed(503, u"the console is not ready"_s));
    const qint64 number = ++lastNumber_;
    pending_[number] = {.request = request, .clears = true};
    engine_.ports().notes.appendHistory({u" = "_s, request.from, u": CLEAR"_s});
    const auto deed = [this](const Presser& presser) { cards_.pressClear(presser); };
    QTimer::singleShot(kLongestAnswer, this, [this, number] { tellLate(number); });
    QMetaObject::invokeMethod(
        this, [this, number, deed] { carryOut(number, deed); }, Qt::QueuedConnection);
}

DeedResult RemoteConsole::answer(const QString& given, qint64 number, const QString& from) {
    Questions& questions = engine_.program().questions;
    if (questions.top() == nullptr) return wrongDeed(404, u"no question is open"_s);
    if (number != 0 && number != questions.topNumber()) return wrongDeed(409, u"another question is open"_s);
    if (questions.isTopAnswered()) return wrongDeed(409, u"it was answered already"_s);
    engine_.ports().notes.appendHistory({u" = "_s, from, u": answer "_s, given});
    if (!questions.answerTop(given)) return wrongDeed(422, u"the question does not take this answer"_s);
    return {};
}

}  // namespace zelvor
