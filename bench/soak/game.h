#pragma once

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTimer>
#include <QUdpSocket>
#include <array>
#include <functional>
#include <optional>
#include <random>
#include <utility>
#include <vector>

#include "mariadb_demo.h"
#include "soak_desk/console_desk.h"
#include "soak_desk/line_ledger.h"
#include "support/graphics_peer.h"
#include "troubles.h"

namespace zelvor {

// What is played, all of it by chance that comes of the seed.
struct GamePlan {
    static constexpr int kSpeed = 50;  // times as fast as a game

    int gameSeconds = 2400;
    int clocksPerSecond = 1;
    int fires = 300;
    bool hasTroubles = false;  // an evening's, beside restarts
    unsigned seed = 1;
    double seconds = static_cast<double>(gameSeconds) / kSpeed;  // of real time

    static GamePlan evening(unsigned seed);
};

// A whole game at the console in compressed time, and what must hold at its end: the clock's datagrams, timed cards at
// the same pace, scores, card fires, an orderly and an abrupt restart of the graphics server, a restart of the
// database's, and the troubles of the plan.
class Game : public QObject {
 public:
    static constexpr int kShortest = 12;  // seconds of real time
    static constexpr std::size_t kMemoryLooks = 9;

    // plan: of kShortest real seconds at least.
    Game(ConsoleDesk& desk, MariaDbDemo& database, const GamePlan& plan);

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
    void planTroubles();
    void planServerTroubles();
    void planDatabaseTroubles();
    void awaitDatabase();
    void turn();
    void sendClock();
    void fire(int number);
    void fireCard(int number);
    void changeScore(int number);
    [[nodiscard]] bool awaitsScores();
    void writeScores();
    void setManual(bool manual);
    [[nodiscard]] QString shownScores() const;
    [[nodiscard]] QString wantedScores() const;
    void checkScores();
    void checkPresses();
    void checkConnected(const QString& when);
    void checkFlat(long late);
    void checkLines();
    void checkHistory(const LineLedger::Connection& sent);
    void checkLeftovers();
    void fault(const QString& what);
    void noteLate(const QString& name);
    void noteSent(const ReplyMatcher::SentLine& sent);
    void noteLost(const ReplyMatcher::SentLine& lost);
    [[nodiscard]] int clockCount() const { return plan_.gameSeconds * plan_.clocksPerSecond; }

    ConsoleDesk& desk_;
    MariaDbDemo& database_;
    GamePlan plan_;
    double seconds_;
    std::mt19937 chance_{plan_.seed};
    LineLedger arrived_;
    LineLedger sent_;
    test::GraphicsPeer peer_;
    Troubles troubles_{desk_, database_, peer_};
    std::vector<std::size_t> toldLost_;  // of each connection
    qint64 lastPut_ = 0;                 // number of the newest line that was put on the link
    int neverPut_ = 0;                   // lines told as lost because there was no link
    std::size_t unlogged_ = 0;           // sent while the disk was full
    bool diskFull_ = false;
    bool databaseBusy_ = false;
    std::size_t handlesEarly_ = 0;  // after two thirds
    std::vector<Event> events_;
    std::size_t nextEvent_ = 0;
    std::vector<std::pair<int, int>> cards_;  // set and button
    std::pair<int, int> asking_{1, 0};        // one with a pick list
    QElapsedTimer time_;
    QTimer pace_;
    QUdpSocket feed_;
    qint64 clocks_ = 0;
    int fired_ = 0;
    int pressed_ = 0;  // of these on buttons and keys of cards
    int begun_ = 0;
    int toldLate_ = 0;
    int toldOtherwise_ = 0;
    std::optional<QDeadlineTimer> scoresBy_;
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
