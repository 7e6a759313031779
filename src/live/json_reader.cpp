#include "live/json_reader.h"

#include <cmath>

namespace zelvor {

std::optional<int> JsonReader::number(QStringView key, int least, int most) const {
    const QJsonValue value = object_.value(key);
    if (value.isUndefined() || value.isNull()) return std::nullopt;
    bool isNumber = value.isDouble();
    double number = value.toDouble();
    if (value.isString()) {
        if (value.toString().trimmed().isEmpty()) return std::nullopt;
        number = value.toString().trimmed().toDouble(&isNumber);
    } else if (value.isBool()) {
        isNumber = true;
        number = value.toBool() ? 1 : 0;
    }
    if (isNumber && number == std::floor(number) && number >= least && number <= most) return static_cast<int>(number);
    refuseType();
    return std::nullopt;
}

std::optional<QString> JsonReader::text(QStringView key) const {
    constexpr qsizetype kLongest = 60;
    const QJsonValue value = object_.value(key);
    if (value.isUndefined() || value.isNull()) return std::nullopt;
    if (value.isString()) return value.toString().simplified().left(kLongest);
    if (value.isDouble()) return QString::number(value.toDouble(), 'g', 15);
    refuseType();
    return std::nullopt;
}

bool JsonReader::begins(QStringView key, QStringView with) const {
    return object_.value(key).toString().startsWith(with, Qt::CaseInsensitive);
}

std::optional<bool> JsonReader::flag(QStringView key) const {
    const QJsonValue value = object_.value(key);
    if (value.toString() == u"true") return true;
    if (value.toString() == u"false") return false;
    const std::optional<int> number = this->number(key, 0, 1);
    return number ? std::optional(*number == 1) : std::nullopt;
}

JsonReader JsonReader::object(QStringView key) const {
    const QJsonValue value = object_.value(key);
    if (!value.isObject() && !value.isUndefined() && !value.isNull()) refuseType();
    return {value.toObject(), refusals_};
}

std::optional<std::vector<JsonReader>> JsonReader::list(QStringView key) const {
    const QJsonValue value = object_.value(key);
    if (value.isUndefined() || value.isNull()) return std::nullopt;
    if (!value.isArray()) {
        refuseType();
        return std::nullopt;
    }
    std::vector<JsonReader> readers;
    for (const QJsonValue element : value.toArray()) {
        if (element.isObject()) {
            readers.emplace_back(element.toObject(), refusals_);
        } else {
            refuseType();
        }
    }
    return readers;
}

}  // namespace zelvor
