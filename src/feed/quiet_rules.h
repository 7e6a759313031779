#pragma once

#include <QObject>
#include <functional>

#include "base/error_trap.h"
#include "engine/card_engine.h"
#include "form/control.h"

namespace zelvor {

// What answers the timers, the feed and the game panels: an error ends that one event, goes to the error log, and is
// not shown to the operator.
class QuietRules : public QObject {
    Q_OBJECT

 public:
    explicit QuietRules(ErrorTrap& trap, QObject* parent = nullptr) : QObject(parent), trap_(trap) {}

 protected:
    // Runs the body in the trap; true when it ended without an error.
    template <class Body>
    bool quietly(const QString& procedure, Body&& body) {
        return trap_.run({QStringLiteral("frmMAIN.") + procedure}, ErrorTrap::Tell::LogOnly, std::forward<Body>(body));
    }

    // Calls the handler whenever that property of the control changes.
    using Handler = std::function<void(const Control& control)>;
    void onChange(Control& control, Control::Property property, const Handler& handler);

 private:
    ErrorTrap& trap_;
};

}  // namespace zelvor
