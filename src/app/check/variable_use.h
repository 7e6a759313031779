#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>
#include <vector>

#include "app_check/findings.h"

namespace zelvor {

// Which variables a pack sets and reads. Names are exact; kAnything in one stands for any text.
class VariableUse {
 public:
    void set(const QString& name);
    void read(const QString& name, const Place& place) { reads_[name].push_back(place); }

    // Warns of each variable that is read but set neither by the pack nor by the program itself.
    void report(Findings& findings) const;

 private:
    [[nodiscard]] bool isSet(const QString& name) const;

    QSet<QString> names_;
    QStringList patterns_;
    QHash<QString, std::vector<Place>> reads_;
};

}  // namespace zelvor
