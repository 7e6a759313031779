#pragma once

#include <QString>

namespace zelvor {

// Where an installed console finds the demo that came with it, a folder with MODULES in it: beside the program's own
// folder, in ../share/zelvor-cards/demo.
QString installedDemo(const QString& programFolder);

// Whether a program there, started without a folder, works on the user's own: it has no MODULES beside it and was
// installed with a demo.
bool worksOnUserFolder(const QString& programFolder);

// Makes the folder as a copy of the demo. One that exists is left as it is, whatever it holds. Gives what went wrong,
// in words, after which there is no folder; empty when all is well.
QString makeUserFolder(const QString& folder, const QString& demo);

}  // namespace zelvor
