#pragma once

#include <QObject>
#include <QTimer>

#include "data/connections.h"
#include "form/form_model.h"

namespace zelvor {

// What the status line says of the two database connections (lblDATABASE): as each statement has found them, and while
// a silent database is looked for.
class ConnectionStatus : public QObject {
    Q_OBJECT

 public:
    static constexpr int kLookInterval = 500;  // milliseconds, while a connection is tried

    ConnectionStatus(Connections& connections, FormModel& form, Clock& clock);

    void show();

 private:
    // One of the two, as it was when it was looked at last.
    struct Side {
        Session::Standing standing = Session::Standing::None;
        bool wasConnected = false;
        QString lostAt;
    };
    void look(Side& side, Session::Standing standing) const;
    [[nodiscard]] static QString words(const Side& side);
    [[nodiscard]] static Control::Role roleOf(const Side& side);

    const Connections& connections_;
    Control& label_;
    Clock& clock_;
    Side utf8_;
    Side greek_;
    QTimer timer_{this};
};

}  // namespace zelvor
