#pragma once

#include <QString>
#include <map>
#include <vector>

#include "engine/ports.h"

namespace zelvor {

// Which run's graphics stand on the layers of the two servers, as the lines that were sent say.
class StandingGraphics {
 public:
    struct Gone {
        qint64 run = 0;
        qint64 stood = 0;  // milliseconds
    };

    // A line was sent by that run, at that many steady milliseconds. The runs whose last graphic it has taken off.
    std::vector<Gone> sent(LinkId link, const QString& line, qint64 run, qint64 at);
    // The server has refused it: what it would have put on does not stand.
    void refused(LinkId link, const QString& line, qint64 run);

 private:
    struct Graphic {
        qint64 run = 0;
        qint64 since = 0;  // steady milliseconds
    };
    [[nodiscard]] bool stands(qint64 run) const;

    std::map<QString, Graphic> graphics_;  // by their layers, "main 1-20"
};

}  // namespace zelvor
