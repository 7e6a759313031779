#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include "base/error_trap.h"
#include "engine/ports.h"
#include "form/form_model.h"
#include "link/caspar_link.h"

namespace zelvor {

// One link as the operator handles it: connect button, blinking tab, its part of the status line, and the
// "Reconnect" box. One class for both links; they differ in their controls.
class LinkWatch : public QObject {
    Q_OBJECT

 public:
    static constexpr int kWatchInterval = 500;   // milliseconds
    static constexpr int kRetryInterval = 2000;  // milliseconds

    LinkWatch(LinkId id, CasparLink& link, FormModel& form, Clock& clock, ErrorTrap& trap);

    // The connect button: connects or disconnects by its tag. True when it has connected.
    bool pressConnect();
    // tmrWS, tmrWSREMOTE: every 500 ms while the connection is wanted.
    void watch();
    // Every 2 s while a lost link is wanted back: tries it again, also when the host has not answered until then. A
    // name that is being looked up is waited for.
    void retry();

 private:
    struct Status {
        QString words;
        Control::Role role;
    };

    void connectLink();
    void disconnectLink();
    void followLink(LinkState state);
    void updateRetrying();
    void showStatus();
    [[nodiscard]] Status status() const;
    [[nodiscard]] bool wanted() const;

    CasparLink& link_;
    Clock& clock_;
    QString name_;
    Control& address_;
    Control& port_;
    Control& button_;
    Control& tab_;
    Control& reconnect_;
    Control& status_;
    QTimer watchTimer_;
    QTimer retryTimer_;
    int blink_ = 0;
    bool wasConnected_ = false;
    QString host_;
    QString hostPort_;
    QString lostAt_;  // time of day; empty when the link is not lost
};

}  // namespace zelvor
