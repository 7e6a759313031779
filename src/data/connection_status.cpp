#include "data/connection_status.h"

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using Standing = Session::Standing;

ConnectionStatus::ConnectionStatus(Connections& connections, FormModel& form, Clock& clock)
    : connections_(connections), label_(form.at(controls.lblDATABASE)), clock_(clock) {
    timer_.setInterval(kLookInterval);
    connect(&timer_, &QTimer::timeout, this, &ConnectionStatus::show);
    connections.setStandingTold([this] { show(); });
    show();
}

void ConnectionStatus::show() {
    using Role = Control::Role;
    look(utf8_, connections_.utf8Standing());
    look(greek_, connections_.greekStanding());
    const bool tries = utf8_.standing == Standing::Trying || greek_.standing == Standing::Trying;
    if (tries != timer_.isActive()) tries ? timer_.start() : timer_.stop();
    if (utf8_.standing == Standing::None) {
        label_.setText(translate("data", "database none"));
        label_.setRole(Role::Off);
        return;
    }
    const bool isGreek = utf8_.standing == Standing::Connected &&
                         (greek_.standing == Standing::Trying || greek_.standing == Standing::Down);
    const Side& worse = isGreek ? greek_ : utf8_;
    const QString text =
        isGreek ? translate("data", "database %1 connected, Greek %2") : translate("data", "database %1 %2");
    label_.setText(text.arg(QString::number(connections_.connectionNumber()), words(worse)));
    label_.setRole(roleOf(worse));
}

void ConnectionStatus::look(Side& side, Standing standing) const {
    side.standing = standing;
    if (standing == Standing::Connected) {
        side.wasConnected = true;
        side.lostAt.clear();
    } else if (side.wasConnected && side.lostAt.isEmpty()) {
        side.lostAt = clock_.now().toString(u"hh:mm:ss"_s);
    }
}

QString ConnectionStatus::words(const Side& side) {
    if (side.standing == Standing::Connected) return translate("data", "connected");
    const bool down = side.standing == Standing::Down;
    if (side.lostAt.isEmpty()) return down ? translate("data", "failed") : translate("data", "trying");
    return (down ? translate("data", "lost at %1") : translate("data", "lost at %1, trying")).arg(side.lostAt);
}

Control::Role ConnectionStatus::roleOf(const Side& side) {
    if (side.standing == Standing::Connected) return Control::Role::Good;
    return side.standing == Standing::Down || !side.lostAt.isEmpty() ? Control::Role::Bad : Control::Role::Waiting;
}

}  // namespace zelvor
