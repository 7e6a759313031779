#include "rehearsal/place.h"

#include <QStringList>

namespace zelvor::rehearsal {

std::optional<Place> parsePlace(const QString& token) {
    const QStringList parts = token.split(u'-');
    bool isNumber = false;
    Place place;
    place.channel = parts.first().toInt(&isNumber);
    if (!isNumber) {
        return std::nullopt;
    }
    const int layer = parts.value(1).toInt(&isNumber);
    if (isNumber && layer >= 0) {
        place.layer = layer;
    }
    return place;
}

}  // namespace zelvor::rehearsal
