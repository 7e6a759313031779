#pragma once

#include <QString>
#include <optional>

namespace zelvor {

// A host, by name or address, and a port of it from 1 to 65535.
struct HostPort {
    QString host;
    quint16 port = 0;

    [[nodiscard]] QString text() const { return host + QLatin1Char(':') + QString::number(port); }
};

// HOST:PORT; nullopt for any other text.
std::optional<HostPort> readHostPort(const QString& text);

}  // namespace zelvor
