#include "command_line/host_port.h"

namespace zelvor {

std::optional<HostPort> readHostPort(const QString& text) {
    const qsizetype colon = text.lastIndexOf(u':');
    bool isNumber = false;
    const quint16 port = text.mid(colon + 1).toUShort(&isNumber);
    if (colon < 1 || !isNumber || port == 0) return std::nullopt;
    return HostPort{text.left(colon), port};
}

}  // namespace zelvor
