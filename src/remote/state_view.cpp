#include "remote/state_view.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

void addChanges(const QJsonObject& before, const QJsonObject& after, const QJsonArray& path,
                std::vector<StateChange>& changes) {
    const auto below = [&path](const QString& key) {
        QJsonArray longer = path;
        longer.append(key);
        return longer;
    };
    for (auto now = after.begin(); now != after.end(); ++now) {
        const auto was = before.find(now.key());
        if (was != before.end() && QJsonValue(*was) == QJsonValue(*now)) continue;
        const bool isDeeper = was != before.end() && was->isObject() && now->isObject();
        if (isDeeper) {
            addChanges(was->toObject(), now->toObject(), below(now.key()), changes);
        } else {
            changes.push_back({below(now.key()), *now});
        }
    }
    for (auto was = before.begin(); was != before.end(); ++was) {
        if (!after.contains(was.key())) changes.push_back({below(was.key()), QJsonValue::Null});
    }
}

}  // namespace

std::vector<StateChange> changesBetween(const QJsonObject& before, const QJsonObject& after) {
    std::vector<StateChange> changes;
    addChanges(before, after, {}, changes);
    return changes;
}

StateView::StateView(RemoteConsole& console)
    : console_(console), state_(console.engine().state()), form_(console.engine().form()) {}

QJsonObject StateView::whole() const {
    const QJsonObject clocks{{u"game"_s, text(controls.lblTime)},
                             {u"extra"_s, text(controls.lblETime)},
                             {u"local"_s, text(controls.lblCLOCK)},
                             {u"period"_s, text(controls.cbQt)}};
    const QJsonObject links{{u"main"_s, status(controls.lblLINKMAIN)}, {u"remote"_s, status(controls.lblLINKREMOTE)}};
    return {{u"version"_s, QStringLiteral(ZELVOR_VERSION)},
            {u"pack"_s, state_.language()},
            {u"set"_s, state_.currentSet},
            {u"onAir"_s, onAir()},
            {u"links"_s, links},
            {u"database"_s, status(controls.lblDATABASE)},
            {u"feed"_s, status(controls.lblFEED)},
            {u"note"_s, text(controls.lblNOTE)},
            {u"clocks"_s, clocks},
            {u"scores"_s, scores()},
            {u"teams"_s, QJsonObject{{u"home"_s, team(kHomeControls)}, {u"away"_s, team(kAwayControls)}}},
            {u"playerTagged"_s, state_.console.playerSelected},
            {u"sets"_s, sets()},
            {u"keys"_s, keys()},
            {u"proposals"_s, proposals()},
            {u"question"_s, console_.question()},
            {u"variables"_s, variables()}};
}

QString StateView::text(const ControlRow& row, int index) const {
    return form_.at(row, index).text();
}

QJsonObject StateView::status(const ControlRow& row) const {
    const Control& control = form_.at(row);
    return {{u"text"_s, control.text()}, {u"is"_s, roleText(control.role())}};
}

QJsonObject StateView::onAir() const {
    return {{u"state"_s, text(controls.lblONAIR)},
            {u"card"_s, text(controls.lblONAIRCARD)},
            {u"trouble"_s, text(controls.lblONAIRTROUBLE)},
            {u"locked"_s, form_.at(controls.chkONAIRLOCK).checked()}};
}

QJsonObject StateView::scores() const {
    const auto score = [this](const TeamControls& team) {
        return QJsonObject{{u"inUse"_s, text(team.score)},
                           {u"automatic"_s, text(team.autoScore)},
                           {u"manual"_s, text(team.manualScore)}};
    };
    return {{u"home"_s, score(kHomeControls)},
            {u"away"_s, score(kAwayControls)},
            {u"manual"_s, form_.at(controls.chkMANUAL).checked()}};
}

QJsonObject StateView::team(const TeamControls& team) const {
    QJsonObject players;
    for (const Control* label : form_.named(team.players)) {
        if (label->text().isEmpty()) continue;
        const bool isTagged = label->foreColour() == colours::kGreen;
        const bool isSecond = label->foreColour() == colours::kRed;
        players.insert(QString::number(label->index()), QJsonObject{{u"text"_s, label->text()},
                                                                    {u"tagged"_s, isTagged   ? u"first"_s
                                                                                  : isSecond ? u"second"_s
                                                                                             : u""_s}});
    }
    QJsonObject five;
    for (const Control* box : form_.named(team.startFive)) five.insert(QString::number(box->index() + 1), box->text());
    return {{u"name"_s, text(team.team)}, {u"players"_s, players}, {u"five"_s, five}};
}

QJsonObject StateView::sets() const {
    QJsonObject sets;
    for (int set = 1; set < CardTable::kSets; ++set) {
        QJsonObject cards;
        for (int row = 1; row <= CardTable::kCards; ++row) {
            const CardEntry& entry = state_.cards.entry(set, row);
            if (!entry.script.isEmpty() || !entry.shownCaption().isEmpty())
                cards.insert(QString::number(row), card(set, row));
        }
        sets.insert(QString::number(set),
                    QJsonObject{{u"title"_s, state_.cards.entry(set, 0).caption}, {u"cards"_s, cards}});
    }
    return sets;
}

QJsonObject StateView::card(int set, int row) const {
    const CardEntry& entry = state_.cards.entry(set, row);
    // The button of the set that is shown tells what a script has written on it.
    const bool isShown = set == state_.currentSet;
    const Control& button = form_.at(controls.cmbCARD, row - 1);
    return {{u"caption"_s, isShown ? button.text() : entry.shownCaption()},
            {u"script"_s, entry.script},
            {u"on"_s, isShown ? button.state() == u"ON" : entry.on},
            {u"flag"_s, entry.flag},
            {u"last"_s, state_.console.lastFired == CardPlace{set, row - 1}},
            {u"fault"_s, entry.fault},
            {u"trouble"_s, console_.cards().troubleOf(entry)}};
}

QJsonObject StateView::keys() const {
    QJsonObject keys;
    for (int number = 1; number <= CardConsole::kFiringFunctionKeys; ++number) {
        const FunctionKey& key = state_.cards.functionKey(number);
        if (!key.script.isEmpty())
            keys.insert(QString::number(number), QJsonObject{{u"title"_s, key.title}, {u"script"_s, key.script}});
    }
    return keys;
}

QJsonObject StateView::proposals() const {
    QJsonObject proposals;
    for (const Control* label : form_.named(controls.lblPROPOSED)) {
        if (label->tag().isEmpty()) continue;
        proposals.insert(QString::number(label->index()),
                         QJsonObject{{u"text"_s, label->text()},
                                     {u"used"_s, label->backColour() == colours::kUsedProposal},
                                     {u"trouble"_s, label->state()}});
    }
    return proposals;
}

QJsonObject StateView::variables() const {
    QJsonObject variables;
    state_.variables.forEach(
        [&variables](const QString& name, const Value& value) { variables.insert(name, value.text()); });
    return variables;
}

}  // namespace zelvor
