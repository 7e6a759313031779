#include "app_feed/live_feed.h"

#include <QDateTime>
#include <limits>

#include "live/clock_text.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kTick = 20;  // milliseconds

QString tablesWord(const TableWriter::Status& status) {
    switch (status.state) {
        case TableWriter::State::Waiting:
            return status.text.isEmpty() ? u"waiting"_s : u"waiting to see "_s + status.text;
        case TableWriter::State::Writing:
            return u"written"_s;
        case TableWriter::State::Failed:
            return u"not written: "_s + status.text;
        case TableWriter::State::Refused:
            return u"written by another feed, "_s + status.text;
    }
    Q_UNREACHABLE();
}

QString scoreText(const LiveTeam& team) {
    return team.score ? QString::number(*team.score) : u"–"_s;
}

}  // namespace

LiveFeed::LiveFeed(LiveSource& source, LiveDecoder& decoder, Refusals& refusals, LiveFiles& files, TableWriter* writer,
                   const QHostAddress& host, quint16 port)
    : source_(source),
      decoder_(decoder),
      refusals_(refusals),
      files_(files),
      writer_(writer),
      host_(host),
      port_(port),
      link_(u"connecting"_s) {
    connect(&source_, &LiveSource::message, this, &LiveFeed::take);
    connect(&source_, &LiveSource::connected, this, &LiveFeed::connected);
    connect(&source_, &LiveSource::lost, this, &LiveFeed::lost);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &LiveFeed::tick);
}

void LiveFeed::start() {
    running_.start();
    timer_.start(kTick);
    source_.start();
}

void LiveFeed::take(const QByteArray& message) {
    heard_.start();
    files_.message(running_.elapsed(), message);
    decoder_.take(message, source_.now());
    noteRefusals();
    publish();
}

void LiveFeed::connected() {
    link_ = u"connected"_s;
    files_.event(running_.elapsed(), RecordedMessage::What::Connected, link_);
}

void LiveFeed::lost(const QString& why) {
    link_ = u"lost: "_s + why;
    files_.event(running_.elapsed(), RecordedMessage::What::Lost, link_);
    noteRefusals();
}

void LiveFeed::noteRefusals() {
    if (refusals_.total() == refusedBefore_) return;
    refusedBefore_ = refusals_.total();
    files_.refused(refusals_.text());
}

qint64 LiveFeed::sinceHeard() const {
    return heard_.isValid() ? heard_.elapsed() : std::numeric_limits<qint64>::max();
}

void LiveFeed::tick() {
    const qint64 now = source_.now();
    if (sinceHeard() > kMessageComplete) decoder_.settle(now);
    sendClock(now);
}

void LiveFeed::sendClock(qint64 now) {
    const std::optional<int> hundredths = decoder_.clock().hundredths(now);
    if (!hundredths) return;
    const QString clock = secondsText(*hundredths);
    QString datagram;
    if (clock != clock_) {
        clock_ = clock;
        changed_.start();
        datagram = u't' + clock + u't';
        publish();
    } else if (changed_.elapsed() > kStandsStill && sent_.elapsed() >= kPauseRepeated && sinceHeard() < kHeardLately) {
        datagram = u"pause"_s;
    }
    if (datagram.isEmpty()) return;
    socket_.writeDatagram(datagram.toLatin1(), host_, port_);
    sent_.start();
}

void LiveFeed::publish() {
    if (writer_ == nullptr) return;
    LiveGame game = decoder_.game();
    if (const auto hundredths = decoder_.clock().hundredths(source_.now())) game.clock = secondsText(*hundredths);
    game.heardAt = QDateTime::currentDateTime().addMSecs(-sinceHeard()).toString(u"yyyy-MM-dd HH:mm:ss");
    writer_->write(game);
}

QString LiveFeed::statusLine() const {
    const LiveGame& game = decoder_.game();
    const int home = game.homeTeam == 2 ? 1 : 0;
    const QString age = heard_.isValid() ? QString::number(heard_.elapsed() / 1000) + u" s ago"_s : u"nothing heard"_s;
    return source_.name() + u", "_s + link_ + u", "_s + age + u": period "_s +
           (game.period ? QString::number(*game.period) : u"–"_s) + u' ' + (clock_.isEmpty() ? u"–:––"_s : clock_) +
           u' ' + scoreText(game.teams[home]) + u':' + scoreText(game.teams[1 - home]) + statusWords();
}

QString LiveFeed::statusWords() const {
    QString words;
    if (!decoder_.game().state.isEmpty()) words += u' ' + decoder_.game().state;
    if (writer_ != nullptr) words += u"; tables "_s + tablesWord(writer_->status());
    if (refusals_.total() > 0) words += u"; refused: "_s + refusals_.text();
    if (!files_.fault().isEmpty()) words += u"; "_s + files_.fault();
    return words;
}

}  // namespace zelvor
