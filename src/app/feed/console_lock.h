#pragma once

#include <QHostAddress>
#include <QLockFile>

namespace zelvor {

// Held by the feed that sends to a console: two on one machine would take turns in setting its clock.
class ConsoleLock {
 public:
    ConsoleLock(const QHostAddress& host, quint16 port);

    // False when another feed holds it; who, is then in `holder`.
    bool take(QString& holder);

 private:
    QLockFile file_;
};

}  // namespace zelvor
