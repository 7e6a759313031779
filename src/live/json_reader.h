#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

#include "live/refusals.h"

namespace zelvor {

// Reads an object of a message without trusting it: what is missing or null is nullopt, a number may be written as a
// text, and a value of another type or out of range is nullopt and counted among the refusals.
class JsonReader {
 public:
    JsonReader(QJsonObject object, Refusals& refusals) : object_(std::move(object)), refusals_(refusals) {}

    [[nodiscard]] std::optional<int> number(QStringView key, int least, int most) const;
    // At most 60 characters, blanks around it dropped; a number's digits too.
    [[nodiscard]] std::optional<QString> text(QStringView key) const;
    // Whether it is a text that begins so, in any case of letters.
    [[nodiscard]] bool begins(QStringView key, QStringView with) const;
    // True and false, 1 and 0.
    [[nodiscard]] std::optional<bool> flag(QStringView key) const;
    // Empty where there is none.
    [[nodiscard]] JsonReader object(QStringView key) const;
    // nullopt where there is no list; what is no object in it is refused.
    [[nodiscard]] std::optional<std::vector<JsonReader>> list(QStringView key) const;

    [[nodiscard]] bool isEmpty() const { return object_.isEmpty(); }
    [[nodiscard]] Refusals& refusals() const { return refusals_; }

 private:
    void refuseType() const { refusals_.count(QStringLiteral("wrong type")); }

    QJsonObject object_;
    Refusals& refusals_;
};

}  // namespace zelvor
