#include "feed/game_desk.h"

namespace zelvor {

GameDesk::GameDesk(CardEngine& engine, ErrorTrap& trap)
    : feed(engine, trap),
      feedStatus(engine.state(), engine.form(), engine.ports().clock),
      feedSocket(feed, feedStatus),
      localClock(engine, trap),
      timedCards(engine, trap),
      scoreboard(engine.form(), engine.state().variables, trap),
      lineUps(engine.form(), engine.state().variables, trap),
      players(engine.form(), engine.state(), trap),
      proposals(engine, trap),
      stopwatch(engine.form(), engine.ports().graphics, trap) {}

}  // namespace zelvor
