#pragma once

#include "live/json_reader.h"
#include "live/live_decoder.h"

namespace zelvor {

// Reads the messages of a LiveStats feed, a JSON object each. Types and keys that it does not know are passed over.
class LiveStatsDecoder : public LiveDecoder {
 public:
    using LiveDecoder::LiveDecoder;

    void take(const QByteArray& message, qint64 now) override;

 private:
    using Reader = void (LiveStatsDecoder::*)(const JsonReader& message, qint64 now);
    struct MessageType {
        QStringView name;
        Reader read;
    };
    static const std::array<MessageType, 6> kTypes;

    void readSetup(const JsonReader& message, qint64 now);
    void readTeams(const JsonReader& message, qint64 now);
    void readRoster(int team, const std::vector<JsonReader>& players);
    void readStatus(const JsonReader& message, qint64 now);
    void readAction(const JsonReader& message, qint64 now);
    void readClockAction(const JsonReader& message, qint64 now);
    void readAllActions(const JsonReader& message, qint64 now);
    void readBoxScore(const JsonReader& message, qint64 now);

    // Puts an action with a number of its own among the others; false when it is none, or an older version.
    bool keepAction(const JsonReader& action, QMap<int, LiveAction>& actions) const;
    void readScoresAfter(const LiveAction& action);
    // The number of a team that was introduced; anything else is refused.
    [[nodiscard]] std::optional<int> toldTeam(const JsonReader& object) const;
    void readPeriod(const JsonReader& object, QStringView key);
    [[nodiscard]] std::optional<int> periodOf(const JsonReader& object, QStringView key) const;

    int regularPeriods_ = 4;
    int newestAction_ = 0;
};

}  // namespace zelvor
