#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <vector>

#include "remote/remote_console.h"

namespace zelvor {

// The console as JSON: what the operator sees of it, for those who look on from outside.
class StateView {
 public:
    explicit StateView(RemoteConsole& console);

    // Everything, as GET /api/state gives it.
    [[nodiscard]] QJsonObject whole() const;

 private:
    [[nodiscard]] QString text(const ControlRow& row, int index = -1) const;
    [[nodiscard]] QJsonObject status(const ControlRow& row) const;
    [[nodiscard]] QJsonObject onAir() const;
    [[nodiscard]] QJsonObject scores() const;
    [[nodiscard]] QJsonObject team(const TeamControls& team) const;
    [[nodiscard]] QJsonObject sets() const;
    [[nodiscard]] QJsonObject card(int set, int row) const;
    [[nodiscard]] QJsonObject keys() const;
    [[nodiscard]] QJsonObject proposals() const;
    [[nodiscard]] QJsonObject variables() const;

    RemoteConsole& console_;
    ShowState& state_;
    FormModel& form_;
};

// What differs between two states, as the paths to it with what stands there now; null for what has gone.
struct StateChange {
    QJsonArray path;
    QJsonValue value;
};
std::vector<StateChange> changesBetween(const QJsonObject& before, const QJsonObject& after);

}  // namespace zelvor
