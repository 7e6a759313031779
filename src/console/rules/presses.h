#pragma once

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>

#include "engine/card_engine.h"

namespace zelvor {

// The operator's presses, carried out in the order in which they were made. Timers and sockets have a turn before and
// after each; a press that arrives in such a turn waits for its own. While a card waits (DELAY, the pause before
// PLAY, a question) the next press is carried out at once, inside; in the pause before PLAY of a card that runs by
// itself, and while one waits for the database, it waits: for the end of a card that runs by itself, which a wait for
// the database brings about at once, or for the operator's own statement. Pauses before PLAY stand two deep at most: a
// press in the inner one waits for its end, so that many at once do not keep the first of them from the air. No card
// that runs by itself begins before a press that waits. His own come before those from outside, which begin in no
// pause before PLAY: however many there are, they take none of his time but the rest of a pause.
class Presses : public QObject {
    Q_OBJECT

 public:
    // A press that waited longer (milliseconds) is told and not carried out: by then it may be wrong.
    static constexpr qint64 kLongestWait = 1500;

    // Milliseconds that the press being delivered has waited until now.
    using Waited = std::function<qint64()>;

    explicit Presses(CardEngine& engine);

    // Without one no press is ever late.
    void setWaited(Waited waited) { waited_ = std::move(waited); }

    // Asked of a press from outside when its turn has come: false when it is no longer to be carried out.
    using MayCome = std::function<bool(const Presser& presser)>;
    void setMayComeFromOutside(MayCome may) { mayComeFromOutside_ = std::move(may); }

    // name: of the press, as the operator is told of it ("F1"). One from outside has waited nowhere before. Throws what
    // the deed throws.
    void press(const QString& name, const Presser& presser, std::function<void()> deed);
    // Whether presses wait for their turn.
    [[nodiscard]] bool isWaiting() const { return !waiting_.empty(); }
    // CLEAR: carried out at once, before whatever waits for its turn, and that never comes. What waits for the database
    // ends first.
    void clear(const std::function<void()>& deed);

 Q_SIGNALS:
    // A press that whoever makes it has seen all notes before.
    void made();
    // names: of all that were late since then. seconds: how long the last has waited, "3.1".
    void late(const QStringList& names, const QString& seconds);
    // The turn before a deed begins and ends.
    void turnBefore(bool begins);

 private:
    struct Waiting {
        QString name;
        std::function<void()> deed;
        qint64 since = 0;  // steady milliseconds
        bool isHis = true;
    };

    static constexpr int kLookInterval = 5;  // milliseconds, at a card that holds presses up

    [[nodiscard]] bool isHeldUp(bool isHis);
    void tellLate(const QString& name, qint64 waited);
    void carryOut(const std::function<void()>& deed);
    void turn();
    void carryOutWaiting();
    void carryOutSoon();
    void wait(Waiting press);
    [[nodiscard]] qint64 now() const;
    // Tells what is to make room whether a press waits, beside those in the queue.
    void tellWait(bool another = false);

    CardEngine& engine_;
    Waited waited_;
    MayCome mayComeFromOutside_;
    std::deque<Waiting> waiting_;
    QStringList late_;       // told since the last press that was made afterwards
    qint64 toldLateAt_ = 0;  // steady milliseconds
    qint64 heldUpBy_ = 0;    // the number of the run whose end is waited for
    bool turning_ = false;
    QTimer look_;
};

}  // namespace zelvor
