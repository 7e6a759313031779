#include "app_run/run_graphics.h"

#include "app_run/terminal_ports.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kConnectTimeout = 5000;  // milliseconds
constexpr int kReplyTimeout = 2000;    // milliseconds
constexpr std::array kLinks{LinkId::Main, LinkId::Remote};

// Handles events until the condition holds or the time is over; whether it held.
template <class Condition>
bool waitFor(Clock& clock, Condition&& condition) {
    const qint64 start = clock.steadyMilliseconds();
    while (!condition()) {
        if (clock.steadyMilliseconds() - start > kConnectTimeout || !clock.waitBriefly()) return false;
    }
    return true;
}

// Reads replies until none has come for a moment: leaving one unread would make the server see the connection as
// broken, and lines that it has not read yet could be lost.
void waitForQuiet(CasparLink& link, Clock& clock) {
    constexpr int kQuiet = 100;  // milliseconds
    qint64 lastHeard = clock.steadyMilliseconds();
    const QMetaObject::Connection listening =
        QObject::connect(&link, &CasparLink::received, &link, [&] { lastHeard = clock.steadyMilliseconds(); });
    waitFor(clock, [&] { return clock.steadyMilliseconds() - lastHeard > kQuiet; });
    QObject::disconnect(listening);
}

}  // namespace

RunGraphics::RunGraphics(GraphicsLinks& links, const RunOptions& options, QTextStream& out, QTextStream& err)
    : links_(links), options_(options), out_(out), err_(err) {
    QObject::connect(&links_, &GraphicsLinks::lineSent, &links_,
                     [this](LinkId link, const ReplyMatcher::SentLine& sent) { printSentLine(out_, link, sent.line); });
    QObject::connect(
        &links_, &GraphicsLinks::lineLost, &links_,
        [this](LinkId link, const ReplyMatcher::SentLine& lost) { complain(link, u"not sent"_s, lost.line); });
    QObject::connect(&links_, &GraphicsLinks::lineAnswered, &links_,
                     [this](LinkId link, const ReplyMatcher::Answer& answer) {
                         if (answer.refused()) complain(link, answer.reply, answer.to.line);
                     });
}

void RunGraphics::complain(LinkId link, const QString& what, const QString& line) {
    allTaken_ = false;
    err_ << "zelvor run: " << (link == LinkId::Main ? "main: " : "remote: ") << what << ": " << line << '\n';
    err_.flush();
}

const std::optional<HostPort>& RunGraphics::address(LinkId link) const {
    return link == LinkId::Main ? options_.main : options_.remote;
}

bool RunGraphics::connectNamed(Clock& clock) {
    for (const LinkId id : kLinks) {
        if (!address(id)) continue;
        CasparLink& link = links_.link(id);
        link.connectTo(address(id)->host, QString::number(address(id)->port));
        waitFor(clock, [&] { return link.state() == LinkState::Connected || link.state() == LinkState::Error; });
        if (link.state() == LinkState::Connected) continue;
        err_ << "zelvor run: cannot reach " << address(id)->text() << ' ' << link.errorText() << '\n';
        err_.flush();
        return false;
    }
    return true;
}

void RunGraphics::finishSending(Clock& clock) {
    for (const LinkId id : kLinks) {
        CasparLink& link = links_.link(id);
        if (!isSendable(link.state())) continue;
        waitFor(clock, [&] { return link.unsentBytes() == 0 || !isSendable(link.state()); });
        // A server that never replies is not waited for longer than this.
        const qint64 start = clock.steadyMilliseconds();
        waitFor(clock, [&] { return !links_.awaitsReply(id) || clock.steadyMilliseconds() - start > kReplyTimeout; });
        waitForQuiet(link, clock);
        if (link.unsentBytes() > 0)
            complain(id, u"the server does not read"_s, u"%1 bytes not sent"_s.arg(link.unsentBytes()));
    }
}

void RunGraphics::sendLine(LinkId link, const QString& command, const Asker& asker) {
    if (address(link)) {
        links_.sendLine(link, command, asker);
    } else {
        printSentLine(out_, link, oneLine(command));
    }
}

int RunGraphics::state(LinkId link) const {
    return address(link) ? links_.state(link) : kConnected;
}

}  // namespace zelvor
