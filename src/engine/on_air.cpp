#include "engine/on_air.h"

#include <algorithm>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr Colour kOnAir = colours::kRed;
constexpr Colour kNoData = rgb(255, 200, 0);

void showOnAirLine(FormModel& form, const QString& text, Colour colour, const QString& card) {
    form.at(controls.lblONAIR).setText(text);
    form.at(controls.lblONAIR).setForeColour(colour);
    form.at(controls.lblONAIRLAMP).setBackColour(colour);
    form.at(controls.lblONAIRCARD).setText(card);
}

}  // namespace

QString captionOf(const ShowState& state, const QString& cardFile) {
    const QString name = cardFile.left(cardFile.lastIndexOf(u'.'));
    const auto runsIt = [&](const CardEntry& entry) {
        return !entry.script.isEmpty() && entry.script.left(entry.script.lastIndexOf(u'.')) == name;
    };
    const auto captionIn = [&](const CardTable::Set& set) {
        const auto entry = std::find_if(set.begin() + 1, set.end(), runsIt);
        return entry == set.end() ? QString() : entry->shownCaption();
    };
    QString caption = captionIn(state.cards.sets[state.currentSet]);
    for (int set = 0; caption.isEmpty() && set < CardTable::kSets; ++set) caption = captionIn(state.cards.sets[set]);
    return caption.isEmpty() ? name : caption;
}

void SHOW_ONAIR(const ShowState& state, FormModel& form, const QString& cardFile) {
    showOnAirLine(form, u"ON AIR"_s, kOnAir, captionOf(state, cardFile));
}

void showNoData(const ShowState& state, FormModel& form, const QString& cardFile) {
    showOnAirLine(form, u"NO DATA"_s, kNoData, translate("engine", "%1 found nothing").arg(captionOf(state, cardFile)));
}

void showClear(FormModel& form) {
    showOnAirLine(form, {}, colours::kGreen, {});
}

bool onAirLocked(const FormModel& form) {
    return form.at(controls.chkONAIRLOCK).checked();
}

bool SHOW_RTX(const AppFolder& folder) {
    return !folder.modulesFile(u"RTXOUT.TXT").isEmpty();
}

void showCurrentSet(const ShowState& state, FormModel& form) {
    const CardTable::Set& set = state.cards.sets[state.currentSet];
    for (int i = 0; i < CardTable::kCards; ++i) {
        const CardEntry& entry = set[i + 1];
        Control& button = form.at(controls.cmbCARD, i);
        button.setText(entry.shownCaption());
        button.setState(entry.on ? u"ON"_s : u"OFF"_s);
        button.setBackColour(std::nullopt);
    }
    for (int i = 0; i < CardTable::kSets - 1; ++i) {
        form.at(controls.GradientButtonS, i).setText(state.cards.sets[i + 1][0].caption);
    }
}

}  // namespace zelvor
