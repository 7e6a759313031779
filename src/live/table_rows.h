#pragma once

#include <QMap>
#include <QStringList>
#include <array>
#include <optional>

#include "live/live_game.h"

namespace zelvor {

// The tables that cards query, and a game as rows of them.
inline constexpr std::array<QStringView, 3> kLiveTables{u"live_game", u"live_player", u"live_action"};

// Of each table the rows as SQL writes them, "('H', '18', 12)", under the condition that finds them again. Two players
// of one side with the same shirt stand under one condition.
using TableRows = std::array<QMap<QString, QStringList>, kLiveTables.size()>;
TableRows rowsOf(const LiveGame& game);

// The statements that make the tables' rows `after` out of `before`; nullopt: whatever is in them.
QStringList statementsFor(const std::optional<TableRows>& before, const TableRows& after);

}  // namespace zelvor
