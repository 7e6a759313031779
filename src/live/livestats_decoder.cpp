#include "live/livestats_decoder.h"

#include <QJsonDocument>

#include "live/clock_text.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kMostPoints = 999;
constexpr int kHighestNumber = 1'000'000;

bool saysDeleted(const JsonReader& action) {
    for (const QStringView key : {u"edited", u"status", u"actionType", u"subType"}) {
        if (action.begins(key, u"delet")) return true;
    }
    return action.flag(u"deleted").value_or(false) || action.flag(u"isDeleted").value_or(false);
}

// The first of the keys that holds a text.
QString firstText(const JsonReader& object, std::initializer_list<QStringView> keys) {
    for (const QStringView key : keys) {
        const std::optional<QString> text = object.text(key);
        if (text && !text->isEmpty()) return *text;
    }
    return {};
}

std::optional<int> readClock(const JsonReader& object, QStringView key) {
    const std::optional<QString> text = object.text(key);
    if (!text || text->isEmpty()) return std::nullopt;
    const std::optional<int> clock = clockHundredths(*text);
    if (!clock) object.refusals().count(u"wrong clock"_s);
    return clock;
}

template <class T>
void keepWhereTold(T& kept, const std::optional<T>& told) {
    if (told) kept = *told;
}

template <class T>
void keepWhereTold(std::optional<T>& kept, const std::optional<T>& told) {
    if (told) kept = told;
}

}  // namespace

const std::array<LiveStatsDecoder::MessageType, 6> LiveStatsDecoder::kTypes{{
    {u"setup", &LiveStatsDecoder::readSetup},
    {u"teams", &LiveStatsDecoder::readTeams},
    {u"status", &LiveStatsDecoder::readStatus},
    {u"action", &LiveStatsDecoder::readAction},
    {u"playbyplay", &LiveStatsDecoder::readAllActions},
    {u"boxscore", &LiveStatsDecoder::readBoxScore},
}};

void LiveStatsDecoder::take(const QByteArray& message, qint64 now) {
    const QJsonDocument document = QJsonDocument::fromJson(message);
    if (!document.isObject()) {
        refusals_.count(u"no message"_s);
        return;
    }
    clock_.heard(now);
    const JsonReader reader(document.object(), refusals_);
    const QString name = reader.text(u"type").value_or(QString());
    for (const MessageType& type : kTypes) {
        if (type.name.compare(name, Qt::CaseInsensitive) == 0) (this->*type.read)(reader, now);
    }
}

void LiveStatsDecoder::readSetup(const JsonReader& message, qint64) {
    keepWhereTold(regularPeriods_, message.object(u"periods").number(u"number", 1, 8));
}

void LiveStatsDecoder::readTeams(const JsonReader& message, qint64) {
    const auto teams = message.list(u"teams");
    if (!teams) return;
    for (const JsonReader& team : *teams) {
        const std::optional<int> number = team.number(u"teamNumber", 1, 2);
        if (!number) {
            refusals_.count(u"unknown team"_s);
            continue;
        }
        const JsonReader detail = team.object(u"detail");
        const QString name = firstText(detail, {u"teamName", u"teamNameInternational", u"teamCode"});
        if (!name.isEmpty()) game_.team(*number).name = name;
        game_.team(*number).told = true;
        if (detail.flag(u"isHomeCompetitor") == true) game_.homeTeam = *number;
        if (const auto players = team.list(u"players")) readRoster(*number, *players);
    }
    if (game_.homeTeam == 0) game_.homeTeam = 1;
}

void LiveStatsDecoder::readRoster(int team, const std::vector<JsonReader>& players) {
    const int refusedBefore = refusals_.total();
    QMap<std::pair<int, int>, LivePlayer> roster;
    for (const JsonReader& entry : players) {
        const std::optional<int> number = entry.number(u"pno", 1, kHighestNumber);
        if (!number) {
            refusals_.count(u"player without number"_s);
            continue;
        }
        LivePlayer player = game_.players.value({team, *number});
        keepWhereTold(player.shirt, entry.text(u"shirtNumber"));
        const QString first = firstText(entry, {u"firstName", u"internationalFirstName"});
        const QString last =
            firstText(entry, {u"familyName", u"internationalFamilyName", u"TVName", u"scoreboardName"});
        if (!first.isEmpty()) player.firstName = first;
        if (!last.isEmpty()) player.lastName = last;
        keepWhereTold(player.starter, entry.flag(u"starter"));
        roster.insert({team, *number}, player);
    }
    // A roster that has come through whole also says who is no longer on it.
    if (refusals_.total() == refusedBefore) {
        game_.players.removeIf([&](const auto& player) { return player.key().first == team; });
    }
    game_.players.insert(roster);
}

std::optional<int> LiveStatsDecoder::toldTeam(const JsonReader& object) const {
    const std::optional<int> number = object.number(u"teamNumber", 0, kHighestNumber);
    if (number && game_.told(*number)) return number;
    refusals_.count(u"unknown team"_s);
    return std::nullopt;
}

std::optional<int> LiveStatsDecoder::periodOf(const JsonReader& object, QStringView key) const {
    const std::optional<int> number = object.number(key, 0, 50);
    const bool overtime = object.text(u"periodType").value_or(QString()).compare(u"OVERTIME", Qt::CaseInsensitive) == 0;
    // Overtimes are counted from 1 or on from the last quarter.
    return number && overtime && *number <= regularPeriods_ ? regularPeriods_ + *number : number;
}

void LiveStatsDecoder::readPeriod(const JsonReader& object, QStringView key) {
    const std::optional<int> period = periodOf(object, key);
    if (period && *period > 0) game_.period = period;
}

void LiveStatsDecoder::readStatus(const JsonReader& message, qint64 now) {
    if (const auto state = message.text(u"status")) game_.state = state->toUpper();
    readPeriod(message.object(u"period"), u"current");
    const bool running = message.flag(u"clockRunning").value_or(clock_.running());
    if (const auto clock = readClock(message, u"clock")) {
        setClock(*clock, running, now);
    } else {
        clock_.setRunning(running, now);
    }
    if (const auto shotClock = readClock(message, u"shotClock")) game_.shotClock = *shotClock / 100;
    if (const auto team = message.number(u"possession", 0, 2)) game_.possession = *team;
    const auto scores = message.list(u"scores");
    if (!scores) return;
    for (const JsonReader& told : *scores) {
        const std::optional<int> number = toldTeam(told);
        if (!number) continue;
        LiveTeam& team = game_.team(*number);
        keepWhereTold(team.score, told.number(u"score", 0, kMostPoints));
        keepWhereTold(team.timeouts, told.number(u"timeoutsRemaining", 0, 20));
        const std::optional<int> teamFouls = told.number(u"teamFouls", 0, 99);
        keepWhereTold(team.fouls, teamFouls ? teamFouls : told.number(u"fouls", 0, 99));
    }
}

void LiveStatsDecoder::readClockAction(const JsonReader& message, qint64 now) {
    const QString kind = message.text(u"actionType").value_or(QString()).toLower();
    if (kind == u"clock") {
        readPeriod(message, u"period");
        const QString what = message.text(u"subType").value_or(QString()).toLower();
        const bool running = what == u"start" || (what != u"stop" && clock_.running());
        if (const auto clock = readClock(message, u"clock")) {
            setClock(*clock, running, now);
        } else {
            clock_.setRunning(running, now);
        }
    } else if (kind == u"possessionchange") {
        if (const auto team = toldTeam(message)) game_.possession = *team;
    }
}

void LiveStatsDecoder::readAction(const JsonReader& message, qint64 now) {
    const int number = message.number(u"actionNumber", 0, kHighestNumber).value_or(0);
    if (number == 0) {
        readClockAction(message, now);
        return;
    }
    if (!keepAction(message, game_.actions) || number < newestAction_) return;
    const bool isNew = number > newestAction_;
    newestAction_ = number;
    const LiveAction& action = game_.actions[number];
    readScoresAfter(action);
    if (isNew && action.kind == u"period") {
        readPeriod(message, u"period");
        if (const auto clock = readClock(message, u"clock")) setClock(*clock, false, now);
    }
}

bool LiveStatsDecoder::keepAction(const JsonReader& message, QMap<int, LiveAction>& actions) const {
    const std::optional<int> number = message.number(u"actionNumber", 0, kHighestNumber);
    if (!number) refusals_.count(u"action without number"_s);
    if (number.value_or(0) == 0) return false;  // 0: the clock's, the possession's
    LiveAction action;
    action.message = message.number(u"messageId", 0, std::numeric_limits<int>::max()).value_or(0);
    const auto known = actions.constFind(*number);
    if (known != actions.constEnd() && action.message != 0 && action.message < known->message) return false;
    if (saysDeleted(message)) {
        actions.remove(*number);
        return false;
    }
    action.kind = message.text(u"actionType").value_or(QString()).toLower();
    if (action.kind.isEmpty()) {
        refusals_.count(u"action without type"_s);
        return false;
    }
    action.detail = message.text(u"subType").value_or(QString()).toLower();
    action.period = periodOf(message, u"period").value_or(0);
    if (const auto clock = readClock(message, u"clock")) action.clock = secondsText(*clock);
    // An action keeps its row even when its team or player was never told.
    const int team = message.number(u"teamNumber", 0, kHighestNumber).value_or(0);
    if (game_.told(team)) {
        action.team = team;
    } else if (team != 0) {
        refusals_.count(u"unknown team"_s);
    }
    action.player = message.number(u"pno", 0, kHighestNumber).value_or(0);
    if (action.player != 0 && !game_.players.contains({action.team, action.player})) {
        refusals_.count(u"unknown player"_s);
    }
    action.success = message.number(u"success", 0, 1);
    action.scores = {message.number(u"score1", 0, kMostPoints), message.number(u"score2", 0, kMostPoints)};
    actions.insert(*number, action);
    return true;
}

void LiveStatsDecoder::readScoresAfter(const LiveAction& action) {
    const auto [first, second] = action.scores;
    // Where both are 0 there may just be no score in it.
    if (!first || !second || (*first == 0 && *second == 0)) return;
    for (int team = 1; team <= 2; ++team) {
        if (game_.told(team)) game_.team(team).score = action.scores[team - 1];
    }
}

void LiveStatsDecoder::readAllActions(const JsonReader& message, qint64) {
    const int refusedBefore = refusals_.total();
    const auto list = message.list(u"actions");
    if (!list) return;
    QMap<int, LiveAction> actions;
    for (const JsonReader& action : *list) keepAction(action, actions);
    // A list that has come through whole also says what was deleted while nobody listened. Never cleared in place: a
    // copy may just have been read on another thread.
    if (refusals_.total() == refusedBefore) {
        game_.actions = actions;
    } else {
        game_.actions.insert(actions);
    }
    newestAction_ = game_.actions.isEmpty() ? 0 : game_.actions.lastKey();
}

void LiveStatsDecoder::readBoxScore(const JsonReader& message, qint64) {
    const auto teams = message.list(u"teams");
    if (!teams) return;
    for (const JsonReader& box : *teams) {
        const std::optional<int> team = toldTeam(box);
        if (!team) continue;
        const JsonReader total = box.object(u"total");
        keepWhereTold(game_.team(*team).score, total.object(u"team").number(u"sPoints", 0, kMostPoints));
        const auto lines = total.list(u"players");
        if (!lines) continue;
        for (const JsonReader& line : *lines) {
            const std::optional<int> number = line.number(u"pno", 1, kHighestNumber);
            if (!number || !game_.players.contains({*team, *number})) {
                refusals_.count(u"unknown player"_s);
                continue;
            }
            LivePlayer& player = game_.players[{*team, *number}];
            if (const auto minutes = readClock(line, u"sMinutes")) player.minutes = secondsText(*minutes);
            for (std::size_t i = 0; i < kPlayerStatistics.size(); ++i) {
                keepWhereTold(player.statistics[i], line.number(kPlayerStatistics[i].key, -kMostPoints, kMostPoints));
            }
        }
    }
}

}  // namespace zelvor
