#include "feed/game_desk.h"

namespace zelvor {

GameDesk::GameDesk(CardEngine& engine)
    : cards(engine),
      feed(engine, cards),
      feedStatus(engine.state(), engine.form(), engine.ports().clock),
      feedSocket(feed, feedStatus, engine.ports().clock),
      localClock(engine, cards),
      timedCards(engine, cards),
      scoreboard(engine.form(), engine.state().variables, engine.program().trap),
      lineUps(engine.form(), engine.state().variables, engine.program().trap),
      players(engine.form(), engine.state(), engine.program().trap),
      proposals(engine),
      stopwatch(engine.form(), engine.ports().graphics, engine.program().trap) {}

}  // namespace zelvor
