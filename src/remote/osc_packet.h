#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantList>
#include <optional>
#include <vector>

namespace zelvor {

// An OSC message: its address, and its arguments as numbers, truths and texts.
struct OscMessage {
    QString address;
    QVariantList arguments = {};

    // As a packet; empty for an argument that OSC has no kind for.
    [[nodiscard]] QByteArray bytes() const;
};

// The messages of a packet, those of bundles in it one after the other; the times of bundles are not waited for.
// nullopt for what is no packet, is cut short, or nests or holds too much.
std::optional<std::vector<OscMessage>> readOscPacket(const QByteArray& packet);

}  // namespace zelvor
