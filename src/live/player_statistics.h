#pragma once

#include <QStringView>
#include <array>

namespace zelvor {

// A statistic of a player: its key in a box score, its column in the tables.
struct PlayerStatistic {
    QStringView key;
    QStringView column;
};

inline constexpr std::array kPlayerStatistics{
    PlayerStatistic{u"sPoints", u"points"},
    PlayerStatistic{u"sFoulsPersonal", u"fouls"},
    PlayerStatistic{u"sReboundsOffensive", u"rebounds_offensive"},
    PlayerStatistic{u"sReboundsDefensive", u"rebounds_defensive"},
    PlayerStatistic{u"sReboundsTotal", u"rebounds"},
    PlayerStatistic{u"sAssists", u"assists"},
    PlayerStatistic{u"sSteals", u"steals"},
    PlayerStatistic{u"sBlocks", u"blocks"},
    PlayerStatistic{u"sTurnovers", u"turnovers"},
    PlayerStatistic{u"sFieldGoalsMade", u"fg_made"},
    PlayerStatistic{u"sFieldGoalsAttempted", u"fg_tried"},
    PlayerStatistic{u"sThreePointersMade", u"three_made"},
    PlayerStatistic{u"sThreePointersAttempted", u"three_tried"},
    PlayerStatistic{u"sFreeThrowsMade", u"ft_made"},
    PlayerStatistic{u"sFreeThrowsAttempted", u"ft_tried"},
    PlayerStatistic{u"sPlusMinusPoints", u"plus_minus"},
};

}  // namespace zelvor
