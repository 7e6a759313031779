#include "live/table_rows.h"

#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kNull = u"null"_s;

// A text as every server reads it: what needs an escape in one of them, or is wider than its column, is left out.
QString sqlText(const QString& text, qsizetype width) {
    QString kept;
    for (const QChar c : text) {
        if (c.isPrint() && c != u'\\' && kept.size() < width) kept += c;
    }
    if (kept.isEmpty()) return kNull;
    return u'\'' + kept.replace(u'\'', u"''"_s) + u'\'';
}

QString sqlNumber(const std::optional<int>& number) {
    return number ? QString::number(*number) : kNull;
}

QString sqlFlag(bool flag) {
    return flag ? u"1"_s : u"0"_s;
}

QString sqlSide(const LiveGame& game, int team) {
    if (team == 0 || game.homeTeam == 0) return kNull;
    return team == game.homeTeam ? u"'H'"_s : u"'A'"_s;
}

QString row(const QStringList& values) {
    return u'(' + values.join(u", "_s) + u')';
}

QString equals(const QString& column, const QString& value) {
    return column + (value == kNull ? u" is "_s : u" = "_s) + value;
}

QString columnsOf(QStringView table) {
    if (table == u"live_game") {
        return u"state, period, clock, shot_clock, home_name, away_name, home_score, away_score, home_fouls, "
               "away_fouls, home_timeouts, away_timeouts, possession, heard_at"_s;
    }
    if (table == u"live_action") {
        return u"number, period, clock, side, shirt, kind, detail, success, home_score, away_score"_s;
    }
    QString columns = u"side, shirt, first_name, last_name, starter, on_court, minutes"_s;
    for (const PlayerStatistic& statistic : kPlayerStatistics) columns += u", "_s + statistic.column;
    return columns;
}

QString gameRow(const LiveGame& game) {
    const LiveTeam& home = game.teams[game.homeTeam == 2 ? 1 : 0];
    const LiveTeam& away = game.teams[game.homeTeam == 2 ? 0 : 1];
    return row({sqlText(game.state, 20), sqlNumber(game.period), sqlText(game.clock, 8), sqlNumber(game.shotClock),
                sqlText(home.name, 60), sqlText(away.name, 60), sqlNumber(home.score), sqlNumber(away.score),
                sqlNumber(home.fouls), sqlNumber(away.fouls), sqlNumber(home.timeouts), sqlNumber(away.timeouts),
                sqlSide(game, game.possession), sqlText(game.heardAt, 19)});
}

// Who plays: the starters, changed by each substitution.
QSet<std::pair<int, int>> onCourt(const LiveGame& game) {
    QSet<std::pair<int, int>> playing;
    for (const auto& [key, player] : game.players.asKeyValueRange()) {
        if (player.starter) playing.insert(key);
    }
    for (const LiveAction& action : game.actions) {
        if (action.kind != u"substitution") continue;
        if (action.detail == u"in") playing.insert({action.team, action.player});
        if (action.detail == u"out") playing.remove({action.team, action.player});
    }
    return playing;
}

}  // namespace

TableRows rowsOf(const LiveGame& game) {
    TableRows rows;
    auto& [games, players, actions] = rows;
    games[{}] += gameRow(game);
    const auto playing = onCourt(game);
    for (const auto& [key, player] : game.players.asKeyValueRange()) {
        const QString side = sqlSide(game, key.first);
        const QString shirt = sqlText(player.shirt, 4);
        QStringList values{side,
                           shirt,
                           sqlText(player.firstName, 60),
                           sqlText(player.lastName, 60),
                           sqlFlag(player.starter),
                           sqlFlag(playing.contains(key)),
                           sqlText(player.minutes, 8)};
        for (const std::optional<int>& statistic : player.statistics) values += sqlNumber(statistic);
        players[equals(u"side"_s, side) + u" and "_s + equals(u"shirt"_s, shirt)] += row(values);
    }
    const int home = game.homeTeam == 2 ? 1 : 0;
    for (const auto& [number, action] : game.actions.asKeyValueRange()) {
        const QString shirt = game.players.value({action.team, action.player}).shirt;
        actions[equals(u"number"_s, QString::number(number))] +=
            row({QString::number(number), sqlNumber(action.period), sqlText(action.clock, 8),
                 sqlSide(game, action.team), sqlText(shirt, 4), sqlText(action.kind, 20), sqlText(action.detail, 40),
                 sqlNumber(action.success), sqlNumber(action.scores[home]), sqlNumber(action.scores[1 - home])});
    }
    return rows;
}

QStringList statementsFor(const std::optional<TableRows>& before, const TableRows& after) {
    constexpr int kRowsAtOnce = 50;
    QStringList statements;
    for (std::size_t i = 0; i < kLiveTables.size(); ++i) {
        const QString table = kLiveTables[i].toString();
        QStringList added;
        if (!before) statements += u"delete from "_s + table;
        if (before) {
            for (const auto& [condition, rows] : (*before)[i].asKeyValueRange()) {
                if (after[i].value(condition) == rows) continue;
                statements += u"delete from "_s + table + (condition.isEmpty() ? QString() : u" where "_s + condition);
            }
        }
        for (const auto& [condition, rows] : after[i].asKeyValueRange()) {
            if (!before || (*before)[i].value(condition) != rows) added += rows;
        }
        for (qsizetype at = 0; at < added.size(); at += kRowsAtOnce) {
            statements += u"insert into "_s + table + u" ("_s + columnsOf(table) + u") values "_s +
                          added.mid(at, kRowsAtOnce).join(u", "_s);
        }
    }
    return statements;
}

}  // namespace zelvor
