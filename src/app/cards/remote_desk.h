#pragma once

#include <memory>

#include "app_cards/remote_options.h"
#include "remote/control_server.h"
#include "remote/osc_door.h"
#include "remote/remote_console.h"

namespace zelvor {

// The ways in from outside put together: nothing listens that was not asked for.
class RemoteDesk {
 public:
    // All must outlive the desk.
    RemoteDesk(CardEngine& engine, CardConsole& cards, GameDesk& desk) : console_(engine, cards, desk) {}

    // What does not come to listen, in words a line each.
    QStringList listen(const RemoteOptions& options);
    // The start-up is over: deeds are taken from now on.
    void open() { console_.open(); }

    // Null where nothing listens.
    [[nodiscard]] const ControlServer* control() const { return control_.get(); }
    [[nodiscard]] const OscDoor* osc() const { return osc_.get(); }

 private:
    QString listenForControl(const RemoteOptions::Control& options);

    RemoteConsole console_;
    StateWatch watch_{console_};
    std::unique_ptr<ControlServer> control_;
    std::unique_ptr<OscDoor> osc_;
};

}  // namespace zelvor
