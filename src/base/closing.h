#pragma once

#include <QObject>

namespace zelvor {

// The end of the program, begun once. Loops that wait ask it; boxes and what must be released subscribe.
class Closing : public QObject {
    Q_OBJECT

 public:
    [[nodiscard]] bool hasBegun() const { return begun_; }
    // Later calls do nothing.
    void begin();

 Q_SIGNALS:
    // Emitted with hasBegun() already true.
    void begun();

 private:
    bool begun_ = false;
};

}  // namespace zelvor
