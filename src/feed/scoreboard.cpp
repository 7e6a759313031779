#include "feed/scoreboard.h"

#include <array>

#include "base/number.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using Property = Control::Property;

Scoreboard::Scoreboard(FormModel& form, VariableStore& variables, ErrorTrap& trap)
    : QuietRules(trap),
      form_(form),
      variables_(variables),
      a_(sideOf(kHomeControls)),
      b_(sideOf(kAwayControls)),
      manualSwitch_(form.at(controls.chkMANUAL)),
      lamp_(form.at(controls.lblLIVEBLINK)) {
    follow(a_);
    follow(b_);
    onChange(manualSwitch_, Property::Checked, [this](const Control&) { setMode(); });
    onChange(form.at(controls.txtEXTRATIME), Property::Text,
             [this](const Control& box) { variables_.SetVar(u"@EXTRATIME", box.text()); });
    blinkTimer_.setObjectName(u"tmrBlink"_s);
    blinkTimer_.setInterval(kBlinkInterval);
    connect(&blinkTimer_, &QTimer::timeout, this, &Scoreboard::blink);
    blinkTimer_.start();
}

Scoreboard::Side Scoreboard::sideOf(const TeamControls& team) {
    return {team.scoreLetter, form_.at(team.score), form_.at(team.autoScore), form_.at(team.manualScore)};
}

void Scoreboard::follow(Side& side) {
    onChange(side.automatic, Property::Text, [this, &side](const Control& score) {
        if (!manualMode()) side.inUse.setText(score.text());
    });
    onChange(side.inUse, Property::Text, [this, &side](const Control& score) {
        variables_.SetVar(QString(u"@GREENSCORE"_s + side.letter), Val(score.text()));
    });
    onChange(side.manual, Property::Text, [this, &side](const Control& score) {
        const double value = Val(score.text());
        variables_.SetVar(QString(u"@MANUALSCORE"_s + side.letter), value);
        if (manualMode()) side.inUse.setText(numberText(value));
    });
}

void Scoreboard::setMode() {
    const bool manual = manualMode();
    manualSwitch_.setForeColour(manual ? colours::kGreen : colours::kWhite);
    for (Side* side : {&a_, &b_}) side->inUse.setText((manual ? side->manual : side->automatic).text());
    if (manual) {
        blinkTimer_.stop();
    } else {
        blinkTimer_.start();
    }
    lamp_.setVisible(!manual);
    for (Control* label : {&a_.automatic, &b_.automatic, &form_.at(controls.Label1)})
        label->setForeColour(manual ? colours::kRed : colours::kGreen);
}

void Scoreboard::cmdMANSCORE(int index) {
    quietly(u"cmdMANSCORE_Click"_s, [&] {
        constexpr std::array<std::array<int, 2>, 4> kSteps{{{1, 0}, {-1, 0}, {0, 1}, {0, -1}}};
        if (index < 0 || index >= static_cast<int>(kSteps.size())) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        const auto [stepA, stepB] = kSteps[static_cast<std::size_t>(index)];
        const QString scoreA = numberText(Val(a_.manual.text()) + stepA);
        const QString scoreB = numberText(Val(b_.manual.text()) + stepB);
        a_.manual.setText(scoreA);
        b_.manual.setText(scoreB);
        if (!manualMode()) return;
        a_.inUse.setText(scoreA);
        b_.inUse.setText(scoreB);
    });
}

void Scoreboard::blink() {
    ++blinks_;
    lamp_.setVisible(blinks_ > 1);
    if (blinks_ > 1) blinks_ = 0;
}

}  // namespace zelvor
