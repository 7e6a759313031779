#include "remote/api_handlers.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/number.h"
#include "remote/json_texts.h"

using namespace Qt::StringLiterals;

namespace zelvor::api {

namespace {

constexpr int kHighestScore = 999;

const TeamControls* teamNamed(const QString& side) {
    if (side == u"home") return &kHomeControls;
    return side == u"away" ? &kAwayControls : nullptr;
}

void refuse(const ApiCall& call, int status, const QString& error) {
    call.request.done(wrongDeed(status, error));
}

// A whole number within these limits; nullopt for anything else.
std::optional<int> wholeNumber(const QJsonValue& value, int lowest, int highest) {
    const double number = value.toDouble(std::nan(""));
    if (!(number >= lowest && number <= highest) || number != std::floor(number)) return std::nullopt;
    return static_cast<int>(number);
}

}  // namespace

std::optional<QString> scalarText(const QJsonValue& value) {
    constexpr qsizetype kLongest = 10'000;
    if (!value.isString() && !value.isDouble() && !value.isBool()) return std::nullopt;
    QString text = value.toVariant().toString();
    return text.size() <= kLongest && isOneLine(text) ? std::optional(text) : std::nullopt;
}

void getState(const ApiCall& call) {
    call.request.done({200, call.view.whole()});
}

void getQuestion(const ApiCall& call) {
    const QJsonObject question = call.console.question();
    if (question.isEmpty()) return refuse(call, 404, u"no question is open"_s);
    call.request.done({200, question});
}

void answerQuestion(const ApiCall& call) {
    const std::optional<QString> answer = scalarText(call.body.value("answer"_L1));
    if (!answer) return refuse(call, 400, u"\"answer\" is to be a text or a number"_s);
    const QJsonValue meant = call.body.value("number"_L1);
    const auto number = meant.isUndefined() ? 0 : wholeNumber(meant, 0, std::numeric_limits<int>::max());
    if (!number) return refuse(call, 400, u"\"number\" is to be that of a question"_s);
    call.request.done(call.console.answer(*answer, *number, call.request.from));
}

void fireCard(const ApiCall& call) {
    call.console.fireCard(numberInPath(call.values[0]), numberInPath(call.values[1]), call.request);
}

void pressKey(const ApiCall& call) {
    call.console.pressKey(numberInPath(call.values[0]), call.request);
}

void clear(const ApiCall& call) {
    call.console.clear(call.request);
}

void runScript(const ApiCall& call) {
    call.console.runScript(call.values[0], call.request);
}

void showSet(const ApiCall& call) {
    const int set = numberInPath(call.values[0]);
    if (set < 1 || set > CardConsole::kSelectors) return refuse(call, 404, u"there is no such set of cards"_s);
    call.console.act(
        u"set %1"_s.arg(set), [&cards = call.console.cards(), set] { cards.selectBox(set - 1); }, call.request);
}

void setVariable(const ApiCall& call) {
    const QString& name = call.values[0];
    const std::optional<QString> value = scalarText(call.body.value("value"_L1));
    if (!isVariableName(name)) return refuse(call, 400, u"no name of a variable"_s);
    if (!value) return refuse(call, 400, u"\"value\" is to be a text of one line, or a number"_s);
    VariableStore& variables = call.console.engine().state().variables;
    call.console.act(
        name + u" = "_s + *value, [&variables, name, value] { variables.SetVar(name, *value); }, call.request);
}

void setScore(const ApiCall& call) {
    FormModel& form = call.console.engine().form();
    if (call.values[0] == u"mode") {
        const QJsonValue manual = call.body.value("manual"_L1);
        if (!manual.isBool()) return refuse(call, 400, u"\"manual\" is to be true or false"_s);
        return call.console.act(
            manual.toBool() ? u"manual score"_s : u"automatic score"_s,
            [&form, manual] { form.at(controls.chkMANUAL).setChecked(manual.toBool()); }, call.request);
    }
    const TeamControls* team = teamNamed(call.values[0]);
    if (team == nullptr) return refuse(call, 404, u"the sides are home and away"_s);
    const auto step = wholeNumber(call.body.value("step"_L1), -kHighestScore, kHighestScore);
    const auto score = wholeNumber(call.body.value("score"_L1), 0, kHighestScore);
    if (step.has_value() == score.has_value())
        return refuse(call, 400, u"\"step\" or \"score\" is to be a whole number"_s);
    Control& manual = form.at(team->manualScore);
    call.console.act(
        u"score "_s + call.values[0],
        [&manual, step, score] {
            const double wanted = score ? *score : Val(manual.text()) + *step;
            manual.setText(numberText(std::max(wanted, 0.0)));
        },
        call.request);
}

void clearTags(const ApiCall& call) {
    call.console.act(
        u"clear tag"_s, [&cards = call.console.cards()] { cards.clearTag(); }, call.request);
}

void tagPlayer(const ApiCall& call) {
    const TeamControls* team = teamNamed(call.values[0]);
    const int index = numberInPath(call.values[1]);
    const Control* label = team == nullptr ? nullptr : call.console.engine().form().find(team->players.name, index);
    if (label == nullptr || label->text().isEmpty()) return refuse(call, 404, u"no player stands there"_s);
    const Qt::MouseButton button = call.body.value("second"_L1).toBool() ? Qt::RightButton : Qt::LeftButton;
    PlayerLabels& players = call.console.desk().players;
    const bool isHome = team == &kHomeControls;
    call.console.act(
        u"player "_s + label->text(),
        [&players, isHome, index, button] {
            isHome ? players.lblHPLAYERS(index, button) : players.lblAPLAYERS(index, button);
        },
        call.request);
}

void setStarter(const ApiCall& call) {
    const TeamControls* team = teamNamed(call.values[0]);
    const int place = numberInPath(call.values[1]);
    Control* box = team == nullptr ? nullptr : call.console.engine().form().find(team->startFive.name, place - 1);
    if (box == nullptr) return refuse(call, 404, u"the places are 1 to 5 of home and away"_s);
    const std::optional<QString> player = scalarText(call.body.value("player"_L1));
    constexpr qsizetype kLongest = 20;
    if (!player || player->size() > kLongest) return refuse(call, 400, u"\"player\" is to be a number"_s);
    call.console.act(
        u"starter %1 %2 = %3"_s.arg(call.values[0]).arg(place).arg(*player), [box, player] { box->setText(*player); },
        call.request);
}

void takeProposal(const ApiCall& call) {
    call.console.takeProposal(numberInPath(call.values[0]), call.request);
}

}  // namespace zelvor::api
