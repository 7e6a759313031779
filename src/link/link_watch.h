#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include "base/error_trap.h"
#include "engine/ports.h"
#include "form/blink.h"
#include "form/form_model.h"
#include "link/graphics_links.h"

namespace zelvor {

// One link as the operator handles it: connect button, blinking tab, its part of the status line, and the
// "Reconnect" box. One class for both links; they differ in their controls.
class LinkWatch : public QObject {
    Q_OBJECT

 public:
    static constexpr int kWatchInterval = 500;    // milliseconds
    static_assert(blinksCalmly(kWatchInterval));  // of the tab
    static constexpr int kRetryInterval = 2000;   // milliseconds
    // A server that leaves lines without a reply for longer is shown as not answering.
    static constexpr qint64 kSilence = 3000;  // milliseconds
    // How long it is shown that it answers again.
    static constexpr qint64 kRelief = 5000;  // milliseconds

    LinkWatch(LinkId id, GraphicsLinks& links, FormModel& form, Clock& clock, ErrorTrap& trap);

    // The connect button: connects or disconnects by its tag. True when it has connected.
    bool pressConnect();
    // tmrWS, tmrWSREMOTE: every 500 ms while the connection is wanted.
    void watch();
    // Every 2 s while a lost link is wanted back: tries it again, also when the host has not answered until then. A
    // name that is being looked up is waited for.
    void retry();
    // "404 CG ADD FAILED": what the last refused card's line got, shown until it is empty again.
    void showRefusal(const QString& reply);
    // A card has gone well since the link came up again: no need to say any longer that the server was empty.
    void forgetReconnect();
    // False while there is no such server: nobody wants a connection, and no address is given. Nobody misses its lines.
    [[nodiscard]] bool isUsed() const;

 Q_SIGNALS:
    // The link has come up for that many times since the start.
    void cameUp(int times);

 private:
    struct Status {
        QString words;
        Control::Role role;
    };

    void connectLink();
    void disconnectLink();
    void followLink(LinkState state);
    void updateRetrying();
    void countLostLine();
    void watchAnswers();
    void showStatus();
    [[nodiscard]] Status status() const;
    [[nodiscard]] Status connectedStatus() const;
    [[nodiscard]] bool wanted() const;

    GraphicsLinks& links_;
    LinkId id_;
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
    QString reason_;  // why the link was lost or could not be made; empty while neither has happened
    int lostLines_ = 0;
    int timesUp_ = 0;
    QString upAgainAt_;         // time of day, while what is on air must be fired again
    qint64 silentFor_ = 0;      // milliseconds, 0 while it answers
    qint64 answersSince_ = -1;  // steady milliseconds, while it is shown that it answers again
    QString refusal_;
};

}  // namespace zelvor
