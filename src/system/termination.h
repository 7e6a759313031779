#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

namespace zelvor {

// The system's wish that the program ends: SIGTERM, SIGINT (Ctrl-C), SIGHUP (its terminal is closed), but for those
// that it was started to ignore. The event loop ends, so that the program leaves by the end of its main(); one more
// signal, half a second later or after, ends it at once. One at a time; where the system has no such signals, none.
class Termination : public QObject {
    Q_OBJECT

 public:
    Termination();
    ~Termination() override;
    Q_DISABLE_COPY_MOVE(Termination)

 Q_SIGNALS:
    // Emitted once, from the event loop, before that ends.
    void wanted();

 private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zelvor
