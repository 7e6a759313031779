#pragma once

#include <QObject>

namespace zelvor {

// CLEAR: whatever waits when it is pressed ends at once and sends nothing more. Boxes subscribe; a wait notes count()
// when it begins and gives up when it is another one afterwards.
class Clearing : public QObject {
    Q_OBJECT

 public:
    // The operator presses CLEAR, wherever he is; the console answers.
    void press() { Q_EMIT pressed(); }
    // Ends what waits.
    void begin() {
        ++count_;
        Q_EMIT begun();
    }
    // How often it has begun.
    [[nodiscard]] int count() const { return count_; }

 Q_SIGNALS:
    void pressed();
    void begun();

 private:
    int count_ = 0;
};

}  // namespace zelvor
