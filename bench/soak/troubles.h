#pragma once

#include <QTimer>
#include <thread>

#include "mariadb_demo.h"
#include "soak_desk/console_desk.h"
#include "support/graphics_peer.h"

namespace zelvor {

// What befalls a console in an evening: its servers hang and get lost, its database is slow, its disk full. Each begins
// at once; none waits.
class Troubles : public QObject {
 public:
    Troubles(ConsoleDesk& desk, MariaDbDemo& database, test::GraphicsPeer& peer);
    ~Troubles() override;
    Q_DISABLE_COPY_MOVE(Troubles)

    // Packets to the graphics server are dropped; with the route back it is another server, as after a restart. Only in
    // a network namespace of this program's own, mayDropRoute().
    void dropRoute(bool dropped);
    static bool mayDropRoute();
    void freezeServer(bool frozen) { peer_.freeze(frozen); }

    // Nobody else reads or writes the game for so long (milliseconds).
    void lockDatabase(int milliseconds);
    // The database works half of the time.
    void slowDatabase(bool slow);

    // This program can write no file any longer.
    static void fillDisk(bool full);

    void resizeWindow();
    // Another window lies over the console's.
    void coverWindow(bool covered);

 private:
    ConsoleDesk& desk_;
    MariaDbDemo& database_;
    test::GraphicsPeer& peer_;
    QTimer slowness_;
    bool frozen_ = false;
    std::thread lock_;
    QWidget cover_;
};

}  // namespace zelvor
