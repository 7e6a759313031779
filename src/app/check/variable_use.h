#pragma once

#include <QHash>
#include <QStringList>
#include <vector>

#include "app_check/findings.h"
#include "app_check/name_patterns.h"

namespace zelvor {

// The variables that the program itself sets, those of a family (kAnything) left out.
QStringList ownVariables();

// Which variables a pack sets and reads. Names are exact; kAnything in one stands for any text.
class VariableUse {
 public:
    // Those that the program itself sets are set from the beginning.
    VariableUse();

    void set(const QString& name);
    void read(const QString& name, const Place& place) { reads_[name].push_back(place); }

    // Warns of each variable that is read but set nowhere.
    void report(Findings& findings) const;

 private:
    [[nodiscard]] bool isSet(const QString& name) const;

    ExactNames names_;
    NamePatterns patterns_;
    QHash<QString, std::vector<Place>> reads_;
};

}  // namespace zelvor
