#include "app_run/run_graphics.h"

#include "app_run/terminal_ports.h"

namespace zelvor {

namespace {

constexpr int kConnectTimeout = 5000;  // milliseconds
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

RunGraphics::RunGraphics(GraphicsLinks& links, const RunOptions& options, QTextStream& out)
    : links_(links), options_(options), out_(out) {
    QObject::connect(&links_, &GraphicsLinks::lineSent, &links_,
                     [this](LinkId link, const QString& line) { printSentLine(out_, link, line); });
}

const std::optional<HostPort>& RunGraphics::address(LinkId link) const {
    return link == LinkId::Main ? options_.main : options_.remote;
}

bool RunGraphics::connectNamed(Clock& clock, QTextStream& err) {
    for (const LinkId id : kLinks) {
        if (!address(id)) continue;
        CasparLink& link = links_.link(id);
        link.connectTo(address(id)->host, QString::number(address(id)->port));
        waitFor(clock, [&] { return link.state() == LinkState::Connected || link.state() == LinkState::Error; });
        if (link.state() == LinkState::Connected) continue;
        err << "zelvor run: cannot reach " << address(id)->text() << ' ' << link.errorText() << '\n';
        err.flush();
        return false;
    }
    return true;
}

void RunGraphics::finishSending(Clock& clock) {
    for (const LinkId id : kLinks) {
        CasparLink& link = links_.link(id);
        if (!isSendable(link.state())) continue;
        waitFor(clock, [&] { return link.unsentBytes() == 0 || !isSendable(link.state()); });
        waitForQuiet(link, clock);
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
