#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QUdpSocket>
#include <array>
#include <functional>
#include <utility>
#include <vector>

#include "mariadb_demo.h"
#include "soak_desk/console_desk.h"
#include "soak_desk/line_ledger.h"
#include "support/graphics_peer.h"

namespace zelvor {

// A whole game at the console in compressed time, and what must hold at its end: the clock's datagrams once a second
// of game time, timed cards at the same pace, scores, card fires, an orderly and an abrupt restart of the graphics
// server, a restart of the database's.
class Game : public QObject {
 public:
    static constexpr int kClockSeconds = 2400;
    static constexpr int kFires = 300;
    static constexpr int kShortest = 12;  // seconds of real time
    static constexpr std::size_t kMemoryLooks = 9;

    // seconds: real time, kShortest at least.
    Game(ConsoleDesk& desk, MariaDbDemo& database, double seconds);

    void play();
    // Prints the figures; what is wrong is in faults() afterwards.
    void report();
    [[nodiscard]] const QStringList& faults() const { return faults_; }

 private:
    using Step = std::function<void()>;
    struct Event {
        double at;  // seconds of real time
        Step step;
    };

    void plan();
    void planFires();
    void planScores();
    void planServer(double at, test::GraphicsPeer::End end);
    void planDatabase();
    void awaitDatabase();
    void turn();
    void sendClock();
    void fire(int number);
    void fireCard(int number);
    void changeScore(int number);
    void writeScores();
    void setManual(bool manual);
    void checkScores();
    void checkConnected(const QString& when);
    void checkLines();
    void checkHistory(const LineLedger::Connection& sent);
    void checkLeftovers();
    void fault(const QString& what);
    void noteSent(const QString& line);

    ConsoleDesk& desk_;
    MariaDbDemo& database_;
    double seconds_;
    LineLedger arrived_;
    LineLedger sent_;
    test::GraphicsPeer peer_;
    std::vector<Event> events_;
    std::size_t nextEvent_ = 0;
    std::vector<std::pair<int, int>> cards_;  // set and button
    QElapsedTimer time_;
    QTimer pace_;
    QUdpSocket feed_;
    qint64 clocks_ = 0;
    int fired_ = 0;
    int reloads_ = 0;
    bool busy_ = false;
    bool databaseOut_ = false;
    std::array<int, 2> automatic_{78, 74};  // what the demo's database begins with
    std::array<int, 2> manual_{};
    bool isManual_ = false;
    qsizetype boxesBefore_ = 0;
    qsizetype boxesInOutage_ = 0;
    QByteArray errorsAfterOutage_;
    std::array<long, kMemoryLooks> memory_{};  // KiB
    int timedLines_ = 0;
    int feedLines_ = 0;
    QString lastClockLine_;
    QString lastScoreLine_;
    QStringList faults_;
};

}  // namespace zelvor
