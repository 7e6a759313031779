#pragma once

#include <QSocketNotifier>

namespace zelvor {

// Ends the event loop on SIGINT and SIGTERM, so that the program leaves by the end of its main(). One at a time.
class Termination : public QObject {
    Q_OBJECT

 public:
    Termination();
    ~Termination() override;
    Q_DISABLE_COPY_MOVE(Termination)

 private:
    int readingEnd_;
    QSocketNotifier notifier_;
};

}  // namespace zelvor
