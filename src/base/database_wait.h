#pragma once

#include <QObject>
#include <optional>

#include "base/asker.h"

namespace zelvor {

// The wait for the database, and what a long loop lets in between its rounds. While it is on the event loop turns, but
// no card begins: presses and what fires cards by itself have their turn when it is over. So waits never nest, and
// neither do runs inside of one.
class DatabaseWait : public QObject {
    Q_OBJECT

 public:
    // One wait, for as long as this lives.
    class Scope {
     public:
        // asker: whose run waits. Must outlive this.
        Scope(DatabaseWait& wait, const Asker& asker) : wait_(wait) { wait_.asker_ = &asker; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope() {
            wait_.asker_ = nullptr;
            Q_EMIT wait_.over();
        }

        // False when a press is not to wait for this run: it runs by itself. The run is then over.
        [[nodiscard]] bool goesOn() const {
            if (wait_.asker_->isAttended() || !wait_.pressWaits_) return true;
            wait_.endedRun_ = wait_.asker_->run;
            return false;
        }

     private:
        DatabaseWait& wait_;
    };

    [[nodiscard]] bool isOn() const { return asker_ != nullptr; }
    // Whether a press of the operator waits for its turn.
    void setPressWaits(bool waits) { pressWaits_ = waits; }
    // Whether that run was ended for a press.
    [[nodiscard]] bool hasEnded(const Asker& asker) const { return endedRun_ == asker.run; }
    // The database has not answered a statement in time.
    void tellRanOut(const Asker& asker) { Q_EMIT ranOut(asker); }

 Q_SIGNALS:
    void over();
    void ranOut(const Asker& asker);

 private:
    const Asker* asker_ = nullptr;
    bool pressWaits_ = false;
    std::optional<qint64> endedRun_;
};

}  // namespace zelvor
