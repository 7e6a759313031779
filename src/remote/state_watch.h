#pragma once

#include <QTimer>

#include "remote/state_view.h"

namespace zelvor {

// Tells what changes in the console's state, gathered for a moment, for as long as somebody looks on.
class StateWatch : public QObject {
    Q_OBJECT

 public:
    // The console must outlive the watch.
    explicit StateWatch(RemoteConsole& console);

    // The state of now, all changes up to it told; whoever joins is counted until he leaves.
    const QJsonObject& join();
    void leave();
    // As it was told last.
    [[nodiscard]] const QJsonObject& state() const { return state_; }

 Q_SIGNALS:
    void changed(const std::vector<zelvor::StateChange>& changes);

 private:
    void lookSoon();
    void look();

    StateView view_;
    QJsonObject state_;
    QTimer soon_;
    QTimer often_;
    int watchers_ = 0;
};

}  // namespace zelvor
