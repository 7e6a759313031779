#pragma once

#include "feed/feed_socket.h"
#include "feed/line_ups.h"
#include "feed/local_clock.h"
#include "feed/player_labels.h"
#include "feed/proposals.h"
#include "feed/scoreboard.h"
#include "feed/stopwatch_sender.h"
#include "feed/timed_cards.h"

namespace zelvor {

// The rules of the running game, made and tied together: game feed, clocks, timed cards, scores, players, proposals.
struct GameDesk {
    explicit GameDesk(CardEngine& engine);

    UnattendedCards cards;
    GameFeed feed;
    FeedStatus feedStatus;
    FeedSocket feedSocket;
    LocalClock localClock;
    TimedCards timedCards;
    Scoreboard scoreboard;
    LineUps lineUps;
    PlayerLabels players;
    Proposals proposals;
    StopwatchSender stopwatch;
};

}  // namespace zelvor
