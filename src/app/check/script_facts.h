#pragma once

#include <QStringList>
#include <vector>

#include "app_check/findings.h"

namespace zelvor {

// A name, and where it stands. kAnything in the name stands for a placeholder.
struct NamePlace {
    QString name;
    Place place;
};

// What a script says by itself, whatever the rest of its pack does.
struct ScriptFacts {
    Findings findings;
    QStringList sources;           // the paths of the script and of its includes
    std::vector<NamePlace> sets;   // variables
    std::vector<NamePlace> reads;  // variables
    std::vector<NamePlace> cards;
    std::vector<NamePlace> autoCards;  // run by the game clock or the local clock
    std::vector<NamePlace> waits;      // commands that hold up the clock that runs them
    std::vector<NamePlace> queries;    // commands that wait for the database
};

}  // namespace zelvor
