#pragma once

#include <QObject>
#include <deque>
#include <functional>

#include "engine/card_engine.h"

namespace zelvor {

// The operator's presses, carried out in the order in which they were made. Timers and sockets have a turn before and
// after each; a press that arrives in such a turn waits for its own. While a card waits (DELAY, the pause before
// PLAY, a question) the next press is carried out at once, inside.
class Presses : public QObject {
    Q_OBJECT

 public:
    // A press that waited longer (milliseconds) is told and not carried out: the console could not even paint.
    static constexpr qint64 kLongestWait = 1500;

    // Milliseconds that the press being delivered has waited until now.
    using Waited = std::function<qint64()>;

    explicit Presses(CardEngine& engine) : engine_(engine) {}

    // Without one no press is ever late.
    void setWaited(Waited waited) { waited_ = std::move(waited); }

    // name: of the press, as the operator is told of it ("F1"). Throws what the deed throws.
    void press(const QString& name, std::function<void()> deed);
    // CLEAR: carried out at once, before whatever waits for its turn, and that never comes.
    void clear(const std::function<void()>& deed);

 Q_SIGNALS:
    // seconds: how long it has waited, "3.1".
    void late(const QString& name, const QString& seconds);

 private:
    void carryOut(const std::function<void()>& deed);
    void turn();
    void carryOutWaiting();

    CardEngine& engine_;
    Waited waited_;
    std::deque<std::function<void()>> waiting_;
    bool turning_ = false;
};

}  // namespace zelvor
