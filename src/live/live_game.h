#pragma once

#include <QMap>
#include <QString>
#include <array>
#include <optional>
#include <utility>

#include "live/player_statistics.h"

namespace zelvor {

// A player as the source tells of him; what it has not told is empty.
struct LivePlayer {
    QString shirt;  // "00" is another shirt than "0"
    QString firstName;
    QString lastName;
    bool starter = false;
    QString minutes;  // "24:31"
    std::array<std::optional<int>, kPlayerStatistics.size()> statistics;
};

// One action of the play-by-play.
struct LiveAction {
    int period = 0;
    QString clock;   // time left, "9:27"
    int team = 0;    // 1 or 2, 0 for none
    int player = 0;  // the source's number of the player, 0 for none
    QString kind;    // "3pt", "foul", "substitution"
    QString detail;  // "dunk", "in", "offensive"
    std::optional<int> success;
    std::array<std::optional<int>, 2> scores;  // after it, by team
    qint64 message = 0;                        // the source's number of the message that told of it, 0 for none
};

struct LiveTeam {
    bool told = false;  // the source has introduced it
    QString name;
    std::optional<int> score;
    std::optional<int> fouls;
    std::optional<int> timeouts;
    int bonus = 0;  // 1 bonus, 2 double bonus
};

// A game as far as its source has told of it. Teams are numbered 1 and 2 as the source does; homeTeam says which of
// them is at home. Copying one is cheap.
struct LiveGame {
    QString state;  // "INPROGRESS", "PERIODBREAK", ...
    std::optional<int> period;
    QString clock;  // "9:27"
    std::optional<int> shotClock;
    QString heardAt;  // "2026-11-21 20:31:07"
    int homeTeam = 0;
    int possession = 0;
    std::array<LiveTeam, 2> teams;
    QMap<std::pair<int, int>, LivePlayer> players;  // by team and the source's number of the player
    QMap<int, LiveAction> actions;                  // by number

    [[nodiscard]] bool told(int team) const { return (team == 1 || team == 2) && teams[team - 1].told; }
    LiveTeam& team(int number) { return teams[number - 1]; }
};

}  // namespace zelvor
