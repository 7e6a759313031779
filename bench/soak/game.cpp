#include "game.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kPace = 2;               // milliseconds between looks at the plan
constexpr int kScoreChanges = 100;     // a tenth of a point a second of game time
constexpr double kServerAway = 1;      // seconds
constexpr double kReconnected = 4;     // seconds after the server went: its way back takes two seconds at most
constexpr long kMemoryAllowed = 4096;  // KiB
constexpr int kReloaded = 2000;        // milliseconds
constexpr int kQuarterSeconds = 600;
constexpr int kFunctionKeysFired = 4;  // the fifth clears

// The history and the log file hold the cards' own notes, too.
bool isOnTheWire(const QByteArray& line) {
    return line.startsWith("CG ") || line.startsWith("CLEAR ");
}

constexpr int kEveningSeconds = 7200;
constexpr int kQuestionsAMinute = 3;
constexpr double kFrozen = 4;          // seconds
constexpr double kRouteAway = 8;       // seconds
constexpr int kDatabaseLocked = 2000;  // milliseconds
constexpr double kDatabaseSlow = 5;    // seconds
constexpr double kDiskFull = 60.0 / GamePlan::kSpeed;

constexpr int kAsking = 3;  // all but one in so many cards of an evening ask for certain
constexpr qsizetype kShownOfLog = 2000;

QString clockText(qint64 second) {
    const qint64 left = kQuarterSeconds - second % kQuarterSeconds;
    return u"%1:%2"_s.arg(left / 60).arg(left % 60, 2, 10, QChar(u'0'));
}

}  // namespace

GamePlan GamePlan::evening(unsigned seed) {
    constexpr int kFiresAMinute = 6;
    return {kEveningSeconds, 10, kEveningSeconds / 60 * kFiresAMinute, true, seed, kEveningSeconds / kSpeed};
}

Game::Game(ConsoleDesk& desk, MariaDbDemo& database, const GamePlan& plan)
    : desk_(desk),
      database_(database),
      plan_(plan),
      seconds_(plan.seconds),
      peer_({[this] { arrived_.beginConnection(); }, [this](std::string_view line) { arrived_.add(line); }}) {
    pace_.setTimerType(Qt::PreciseTimer);
    connect(&pace_, &QTimer::timeout, this, &Game::turn);
}

void Game::play() {
    GraphicsLinks& links = desk_.app().links();
    connect(&links, &GraphicsLinks::lineSent, this,
            [this](LinkId, const ReplyMatcher::SentLine& line) { noteSent(line); });
    connect(&links, &GraphicsLinks::lineLost, this,
            [this](LinkId, const ReplyMatcher::SentLine& line) { noteLost(line); });
    connect(&links.link(LinkId::Main), &CasparLink::stateChanged, this, [this](LinkState state) {
        if (state != LinkState::Connected) return;
        sent_.beginConnection();
        toldLost_.push_back(0);
    });
    connect(&desk_.app().cards().presses(), &Presses::late, this,
            [this](const QStringList& names) { noteLate(names.back()); });
    // Pressed in one language and carried out in another.
    connect(&desk_.at("lblNOTE"), &Control::changed, this, [this](Control* note) {
        if (note->text().endsWith(u"other cards were loaded, not fired")) ++toldOtherwise_;
    });
    connect(&desk_.app().engine().runs(), &CardRuns::begun, this, [this](const Asker& asker) {
        if (asker.presser.by == u"key" || asker.presser.by == u"button") ++begun_;
    });
    boxesBefore_ = desk_.boxes.size();
    if (!peer_.start()) return fault(u"no local server"_s);
    desk_.check("chkRECONNECT", true);
    desk_.check("chkLOGFILE", true);
    desk_.connectMain(peer_.port());
    checkConnected(u"at the start"_s);

    const double speed = plan_.gameSeconds / seconds_;
    auto* timedCards = desk_.app().desk().timedCards.findChild<QTimer*>(u"tmrCARD"_s);
    timedCards->setTimerType(Qt::PreciseTimer);
    timedCards->setInterval(std::max(1, static_cast<int>(TimedCards::kInterval / speed)));
    plan();
    desk_.answerPickLists();
    time_.start();
    pace_.start(kPace);
    while (clocks_ <= clockCount() || busy_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    pace_.stop();
    // What is on its way arrives.
    const QDeadlineTimer settled(1000);
    while (!settled.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, kPace);
}

void Game::plan() {
    for (std::size_t i = 0; i < kMemoryLooks; ++i)
        events_.push_back(
            {seconds_ * (i + 1) / (kMemoryLooks + 1), [this, i] { memory_.at(i) = residentKilobytes(); }});
    for (int quarter = 0; quarter < 4; ++quarter)
        events_.push_back({seconds_ * quarter / 4, [this, quarter] { desk_.at("cbQt").setPosition(quarter); }});
    events_.push_back({seconds_ * 0.5, [this] { setManual(true); }});
    events_.push_back({seconds_ * 0.75, [this] { setManual(false); }});
    planFires();
    planScores();
    planServer(seconds_ * 0.30, test::GraphicsPeer::End::Orderly);
    planServer(seconds_ * 0.65, test::GraphicsPeer::End::Abrupt);
    planDatabase();
    if (plan_.hasTroubles) planTroubles();
    std::stable_sort(events_.begin(), events_.end(), [](const Event& a, const Event& b) { return a.at < b.at; });
}

void Game::planFires() {
    const CardTable& table = desk_.app().state().cards;
    for (int set = 1; set <= CardConsole::kSelectors; ++set)
        for (int row = 1; row <= CardTable::kCards; ++row)
            if (const QString& script = table.sets.at(set).at(row).script; !script.isEmpty()) {
                cards_.emplace_back(set, row - 1);
                if (script == u"player.csp") asking_ = cards_.back();
            }
    for (int i = 0; i < plan_.fires; ++i)
        events_.push_back({seconds_ * (i + 0.5) / plan_.fires, [this, i] { fire(i); }});
}

void Game::planScores() {
    for (int i = 0; i < kScoreChanges; ++i)
        events_.push_back({seconds_ * (i + 0.25) / kScoreChanges, [this, i] { changeScore(i); }});
}

void Game::planServer(double at, test::GraphicsPeer::End end) {
    events_.push_back({at, [this, end] { peer_.stop(end); }});
    events_.push_back({at + kServerAway, [this] {
                           if (desk_.app().links().state(LinkId::Main) == Graphics::kConnected)
                               fault(u"the link did not notice that the server went"_s);
                           if (!peer_.start()) fault(u"the server's port is taken"_s);
                       }});
    events_.push_back({at + kReconnected, [this] { checkConnected(u"after a restart of the server"_s); }});
}

// The database server is killed and comes back: queries fail meanwhile, and on the connection that was open.
void Game::planDatabase() {
    events_.push_back({seconds_ * 0.45, [this] {
                           if (desk_.boxes.size() != boxesBefore_) fault(u"a box: "_s + desk_.boxes.last());
                           if (const QByteArray errors = desk_.read(u"errors.log"_s); !errors.isEmpty())
                               fault(u"error log: "_s + QString::fromUtf8(errors));
                           boxesBefore_ = desk_.boxes.size();
                           database_.kill();
                           databaseOut_ = true;
                       }});
    events_.push_back({seconds_ * 0.5, [this] {
                           database_.beginStart();
                           awaitDatabase();
                       }});
}

void Game::planTroubles() {
    planServerTroubles();
    planDatabaseTroubles();
    events_.push_back({seconds_ * 0.10, [this] { troubles_.resizeWindow(); }});
    events_.push_back({seconds_ * 0.12, [this] { troubles_.coverWindow(true); }});
    events_.push_back({seconds_ * 0.14, [this] { troubles_.coverWindow(false); }});
    for (const auto& [at, language] : {std::pair(0.34, u"GR"_s), std::pair(0.42, u"EN"_s)})
        events_.push_back({seconds_ * at, [this, language = language] { desk_.at("cmbLANG").setText(language); }});
    for (const bool full : {true, false}) {
        events_.push_back({seconds_ * 0.80 + (full ? 0 : kDiskFull), [this, full] {
                               diskFull_ = full;
                               Troubles::fillDisk(full);
                           }});
    }
    events_.push_back({seconds_ * 2 / 3, [this] { handlesEarly_ = openHandles(); }});
}

void Game::planServerTroubles() {
    events_.push_back({seconds_ * 0.15, [this] { troubles_.freezeServer(true); }});
    events_.push_back({seconds_ * 0.15 + kFrozen, [this] { troubles_.freezeServer(false); }});
    const double route = seconds_ * 0.20;
    events_.push_back({route, [this] { troubles_.dropRoute(true); }});
    events_.push_back({route + kRouteAway, [this] { troubles_.dropRoute(false); }});
    events_.push_back({route + kRouteAway + kReconnected, [this] { checkConnected(u"with the route back"_s); }});
}

// Nobody at the desk writes or reads anew meanwhile: cards do.
void Game::planDatabaseTroubles() {
    const auto busy = [this](double from, double to, const Step& begin, const Step& end) {
        events_.push_back({from, [this, begin] {
                               databaseBusy_ = true;
                               begin();
                           }});
        events_.push_back({to, end});
        events_.push_back({to + 1, [this] { databaseBusy_ = false; }});
    };
    const double locked = seconds_ * 0.56;
    busy(
        locked, locked + kDatabaseLocked / 1000.0, [this] { troubles_.lockDatabase(kDatabaseLocked); }, [] {});
    const double slow = seconds_ * 0.60;
    busy(
        slow, slow + kDatabaseSlow, [this] { troubles_.slowDatabase(true); },
        [this] { troubles_.slowDatabase(false); });
}

// Looks again until it answers; the game goes on meanwhile.
void Game::awaitDatabase() {
    if (!database_.isUp()) {
        QTimer::singleShot(200, this, &Game::awaitDatabase);
        return;
    }
    databaseOut_ = false;
    boxesInOutage_ = desk_.boxes.size() - boxesBefore_;
    errorsAfterOutage_ = desk_.read(u"errors.log"_s);
    if (boxesInOutage_ == 0) fault(u"nobody was told that the database is away"_s);
}

// Clocks go out whatever the console is at; the operator does one thing after the other.
void Game::turn() {
    sendClock();
    if (busy_ || awaitsScores() || ConsoleDesk::atAQuestion() || nextEvent_ == events_.size()) return;
    if (static_cast<double>(time_.elapsed()) < events_[nextEvent_].at * 1000) return;
    busy_ = true;
    events_[nextEvent_++].step();
    busy_ = false;
}

void Game::sendClock() {
    const double now = static_cast<double>(time_.elapsed()) / 1000 / seconds_ * clockCount();
    const int count = clockCount();
    const auto send = [this](const QString& text) {
        feed_.writeDatagram('t' + text.toLatin1() + 't', QHostAddress::LocalHost, desk_.app().desk().feedSocket.port());
        ++clocks_;
    };
    while (clocks_ < count && static_cast<double>(clocks_) <= now) send(clockText(clocks_ / plan_.clocksPerSecond));
    // The last one when all is done, so that it must be what is on air in the end.
    if (clocks_ == count && now >= count && nextEvent_ == events_.size() && !busy_) send(u"0:00"_s);
}

void Game::fire(int number) {
    ++fired_;
    const bool clockRuns = desk_.app().state().switches.IsTimeCard;
    if (clockRuns && number % 15 == 7) return desk_.click("lblPROPOSED", 1 + number / 15 % 5);
    ++pressed_;
    if (!clockRuns || number == plan_.fires - 1) return desk_.press(Qt::Key_F1);
    if (number % 10 == 3) return desk_.press(static_cast<Qt::Key>(Qt::Key_F1 + number / 10 % kFunctionKeysFired));
    fireCard(number);
}

void Game::fireCard(int number) {
    if (number % 6 == 5) {
        desk_.click("lblHPLAYERS", number / 6 % 12);
        desk_.click("lblAPLAYERS", number / 7 % 12, Qt::RightButton);
    }
    const bool asks = plan_.hasTroubles && number % kAsking != 0;
    const auto [set, button] = asks ? asking_ : cards_[chance_() % cards_.size()];
    desk_.click("GradientButtonS", set - 1);
    desk_.look("cmbCARD", button);
    // The small button asks although a player is tagged.
    desk_.click(asks ? "cmdCARDBOX" : "cmbCARD", button);
}

// In the third quarter by hand, else by the database: another program writes, the operator reads it anew.
void Game::changeScore(int number) {
    const int side = number % 3 == 0 ? 1 : 0;
    if (isManual_) {
        desk_.click("cmdMANSCORE", 2 * side);
        ++manual_.at(side);
    } else if (!databaseOut_ && !databaseBusy_) {
        ++automatic_.at(side);
        writeScores();
        desk_.choose("mnReloadVar");
        ++reloads_;
    }
    if (databaseOut_) return;
    scoresBy_ = QDeadlineTimer(kReloaded);
}

// Reading anew takes its turn behind what runs; nobody waits inside of it.
bool Game::awaitsScores() {
    if (!scoresBy_) return false;
    if (shownScores() != wantedScores() && !scoresBy_->hasExpired()) return true;
    scoresBy_.reset();
    checkScores();
    return false;
}

void Game::writeScores() {
    const QString sql = u"update game set home_score = %1, away_score = %2 where game_id = 2;"_s;
    if (!database_.change(sql.arg(automatic_[0]).arg(automatic_[1]).toUtf8()))
        fault(u"the database cannot be written by another program"_s);
}

void Game::setManual(bool manual) {
    desk_.check("chkMANUAL", manual);
    isManual_ = manual;
    if (manual) manual_ = {desk_.at("lblScoreA").text().toInt(), desk_.at("lblScoreB").text().toInt()};
    checkScores();
}

QString Game::shownScores() const {
    return desk_.at("lblScoreA").text() + u'-' + desk_.at("lblScoreB").text();
}

QString Game::wantedScores() const {
    const std::array<int, 2>& scores = isManual_ ? manual_ : automatic_;
    return u"%1-%2"_s.arg(scores[0]).arg(scores[1]);
}

void Game::checkScores() {
    if (shownScores() != wantedScores()) fault(u"score %1 instead of %2"_s.arg(shownScores(), wantedScores()));
}

void Game::checkConnected(const QString& when) {
    if (desk_.app().links().state(LinkId::Main) != Graphics::kConnected)
        fault(u"not connected "_s + when + u": "_s + desk_.at("lblLINKMAIN").text());
}

// Reading anew is asked for once more, as an operator would.
void Game::noteLate(const QString& name) {
    if (name == u"Reload db vars") {
        scoresBy_ = QDeadlineTimer(kReloaded);
        QTimer::singleShot(0, this, [this] { desk_.choose("mnReloadVar"); });
    } else if (!name.startsWith(u"Proposal")) {
        ++toldLate_;
    }
}

void Game::noteLost(const ReplyMatcher::SentLine& lost) {
    const bool wasPut = lost.number <= lastPut_ && !toldLost_.empty();
    if (wasPut) ++toldLost_.back();
    if (!wasPut) ++neverPut_;
}

void Game::noteSent(const ReplyMatcher::SentLine& sent) {
    const QString& line = sent.line;
    lastPut_ = sent.number;
    if (diskFull_) ++unlogged_;
    const QByteArray bytes = line.toUtf8();
    sent_.add({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    const bool scoreBug = line.startsWith(u"CG 1-20 ");
    const bool withScore = line.contains(u"SCOREA");
    if (scoreBug) (withScore ? lastScoreLine_ : lastClockLine_) = line;
    if (scoreBug && !busy_) ++(withScore ? timedLines_ : feedLines_);
}

void Game::fault(const QString& what) {
    faults_ += u"at %1 s: %2"_s.arg(static_cast<double>(time_.elapsed()) / 1000, 0, 'f', 1).arg(what);
}

void Game::report() {
    const long late = residentKilobytes();
    const FeedStatus& feed = desk_.app().desk().feedStatus;
    std::printf(
        "%d s of game in %.0f s, seed %u: %d cards fired, %d questions, scores read from the database %d times\n",
        plan_.gameSeconds, seconds_, plan_.seed, fired_, desk_.picked(), reloads_);
    std::printf("clock datagrams: %lld sent, %lld handled, %lld refused\n", static_cast<long long>(clocks_),
                static_cast<long long>(feed.handledCount()), static_cast<long long>(feed.refusedCount()));
    std::printf("lines by themselves: %d of the feed's card, %d of the timed card\n", feedLines_, timedLines_);
    checkLines();
    std::printf("boxes: %lld while the database was away, %lld else\n", static_cast<long long>(boxesInOutage_),
                static_cast<long long>(desk_.boxes.size() - boxesBefore_ - boxesInOutage_));
    std::printf("memory, KiB, at each tenth of the game:");
    for (const long kilobytes : memory_) std::printf(" %ld", kilobytes);
    std::printf(" %ld (%.3f times)\n", late, static_cast<double>(late) / static_cast<double>(memory_.front()));
    if (plan_.hasTroubles) checkFlat(late);
    if (feed.handledCount() != clocks_ || feed.refusedCount() != 0) fault(u"datagrams lost"_s);
    if (databaseOut_) fault(u"the database did not come back"_s);
    if (fired_ != plan_.fires) fault(u"%1 cards fired"_s.arg(fired_));
    if (timedLines_ == 0 || feedLines_ == 0) fault(u"no card has run by itself"_s);
    if (const long grown = late - memory_.front(); grown > kMemoryAllowed && !plan_.hasTroubles)
        fault(u"memory grew by %1 KiB"_s.arg(grown));
    checkPresses();
    checkLeftovers();
}

// Whatever was pressed has begun or was told as too late.
void Game::checkPresses() {
    std::printf("presses: %d of cards, %d begun, %d told as too late, %d as of another language\n", pressed_, begun_,
                toldLate_, toldOtherwise_);
    if (pressed_ != begun_ + toldLate_ + toldOtherwise_) fault(u"presses lost"_s);
}

// In the last third nothing grows: caches are full by then.
void Game::checkFlat(long late) {
    const std::size_t handles = openHandles();
    const long early = memory_.at(kMemoryLooks * 2 / 3);
    std::printf("in the last third: memory %+ld KiB, handles %zu to %zu; route dropped: %s\n", late - early,
                handlesEarly_, handles, Troubles::mayDropRoute() ? "yes" : "no, for want of a network namespace");
    constexpr long kFlat = 2048;  // KiB
    if (late - early > kFlat) fault(u"memory grew by %1 KiB in the last third"_s.arg(late - early));
    if (handles > handlesEarly_) fault(u"%1 handles more in the last third"_s.arg(handles - handlesEarly_));
    if (desk_.picked() < plan_.gameSeconds / 60 * kQuestionsAMinute) fault(u"too few questions"_s);
}

// What has arrived of a connection is what was sent on it, from its beginning on and in its order. The rest was told as
// lost. A server that was killed may have taken its last lines or not: nobody can tell.
void Game::checkLines() {
    const auto sent = sent_.connections();
    const auto arrived = arrived_.connections();
    std::printf("lines: %zu sent, %zu arrived;", sent_.lineCount(), arrived_.lineCount());
    for (std::size_t i = 0; i < std::min(sent.size(), arrived.size()); ++i) {
        std::printf(" connection %zu: %zu of %zu, told as lost %zu;", i + 1, arrived[i].size(), sent[i].size(),
                    toldLost_.at(i));
        if (arrived[i].size() > sent[i].size() || !std::equal(arrived[i].begin(), arrived[i].end(), sent[i].begin()))
            fault(u"connection %1: lines differ"_s.arg(i + 1));
        else if (i + 2 != sent.size() && sent[i].size() - arrived[i].size() > toldLost_.at(i))
            fault(u"connection %1: lines lost"_s.arg(i + 1));
    }
    std::printf(" %d told as lost without a link\n", neverPut_);
    const std::size_t expected = plan_.hasTroubles && Troubles::mayDropRoute() ? 4 : 3;
    if (sent.size() != expected || arrived.size() != expected)
        return fault(u"%1 connections of the console, %2 of the server instead of %3"_s.arg(sent.size())
                         .arg(arrived.size())
                         .arg(expected));
    checkHistory(sent.back());
}

// The history's newest lines, and the log file, tell of the same lines.
void Game::checkHistory(const LineLedger::Connection& sent) {
    const LineList& history = desk_.app().links().history();
    const QString mark = u" > "_s;
    std::size_t compared = 0;
    for (int row = history.rowCount() - 1; row >= 0 && compared < sent.size(); --row) {
        const QString text = history.text(row);
        const QByteArray line = text.mid(text.indexOf(mark) + mark.size()).toUtf8();
        if (!text.contains(mark) || !isOnTheWire(line)) continue;
        ++compared;
        if (LineLedger::numberOf({line.constData(), static_cast<std::size_t>(line.size())}) !=
            sent[sent.size() - compared])
            return fault(u"the history differs from what was sent: "_s + text);
    }
    if (compared == 0) fault(u"the history is empty"_s);

    desk_.check("chkLOGFILE", false);
    const QList<QByteArray> log = desk_.read(u"MODULES/CASPAROUT.TXT"_s).split('\n');
    const auto logged = std::count_if(log.begin(), log.end(), isOnTheWire);
    if (static_cast<std::size_t>(logged) + unlogged_ < sent_.lineCount() ||
        static_cast<std::size_t>(logged) > sent_.lineCount())
        fault(u"%1 lines in the log file, %2 were sent"_s.arg(logged).arg(sent_.lineCount()));
}

void Game::checkLeftovers() {
    checkScores();
    checkConnected(u"at the end"_s);
    for (const QString& title : ConsoleDesk::openDialogs()) fault(u"left open: "_s + title);
    int ofFullDisk = 0;
    for (const QString& box : desk_.boxes.mid(boxesBefore_ + boxesInOutage_)) {
        const bool expected = plan_.hasTroubles && box.startsWith(u"As-run record|");
        if (expected) ++ofFullDisk;
        if (!expected) fault(u"a box: "_s + box);
    }
    if (plan_.hasTroubles && ofFullDisk != 1) fault(u"the full disk was told %1 times"_s.arg(ofFullDisk));
    if (desk_.read(u"errors.log"_s) != errorsAfterOutage_)
        fault(u"error log: "_s +
              QString::fromUtf8(desk_.read(u"errors.log"_s).mid(errorsAfterOutage_.size()).left(kShownOfLog)));
    if (!lastClockLine_.contains(u"0:00")) fault(u"the clock on air is not the newest: "_s + lastClockLine_);
    for (const int score : automatic_)
        if (!lastScoreLine_.contains(QString::number(score))) fault(u"the score on air is old: "_s + lastScoreLine_);
}

}  // namespace zelvor
