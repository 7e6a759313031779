#include "remote/osc_door.h"

#include "base/number.h"
#include "remote/json_texts.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kMostInTurn = 100;  // packets; further ones wait for the next turn of the event loop
constexpr qsizetype kLargestPacket = 65536;
constexpr int kHighestScore = 999;

// Buttons send 1 when they are pressed and 0 when they are let go; without an argument it is a press.
bool isRelease(const OscMessage& message) {
    return !message.arguments.isEmpty() && !message.arguments.constFirst().isNull() &&
           message.arguments.constFirst().userType() != QMetaType::QString &&
           message.arguments.constFirst().toDouble() == 0;
}

}  // namespace

OscDoor::OscDoor(RemoteConsole& console, StateWatch& watch, const QList<QHostAddress>& allowed)
    : console_(console),
      allowed_(allowed),
      feedback_(watch, [this](const OscFeedback::Peer& peer, const OscMessage& message) { send(peer, message); }) {
    connect(&socket_, &QUdpSocket::readyRead, this, &OscDoor::read);
}

QString OscDoor::listen(const QHostAddress& address, quint16 port) {
    return socket_.bind(address, port, QAbstractSocket::DontShareAddress) ? QString() : socket_.errorString();
}

void OscDoor::read() {
    QByteArray bytes(kLargestPacket, Qt::Uninitialized);
    for (int i = 0; i < kMostInTurn; ++i) {
        QHostAddress from;
        quint16 port = 0;
        // Until nothing is left, whatever the socket was said to hold: after a readyRead() without a read Qt tells no
        // more.
        const qint64 size = socket_.readDatagram(bytes.data(), bytes.size(), &from, &port);
        if (size < 0) return;
        const bool isAllowed = std::ranges::any_of(allowed_, [&from](const QHostAddress& each) {
            return each.isEqual(from, QHostAddress::TolerantConversion);
        });
        if (from.isLoopback() || isAllowed) takePacket(bytes.first(size), {from, port});
    }
}

void OscDoor::takePacket(const QByteArray& packet, const OscFeedback::Peer& peer) {
    const auto messages = readOscPacket(packet);
    if (!messages) return send(peer, {u"/zelvor/error"_s, {u""_s, u"no OSC packet"_s}});
    for (const OscMessage& message : *messages) {
        if (!take(message, peer))
            send(peer, {u"/zelvor/error"_s, {message.address, u"there is no such address, or not with this"_s}});
    }
}

bool OscDoor::take(const OscMessage& message, const OscFeedback::Peer& peer) {
    QStringList path = message.address.split(u'/');
    if (path.size() < 3 || path[1] != u"zelvor") return false;
    path.remove(0, 2);
    const QString& word = path.constFirst();
    const QVariant argument = message.arguments.value(0);
    const QString text = argument.toString();
    const RemoteConsole::Request request{
        u"OSC "_s + peer.address.toString(), {}, [this, peer, address = message.address](const DeedResult& result) {
            const QString error = result.body["error"_L1].toString();
            if (!error.isEmpty()) send(peer, {u"/zelvor/error"_s, {address, error}});
        }};
    if (word.endsWith(u"subscribe") && path.size() == 1) return takeSubscription(word, argument, peer);
    if (word == u"score") return takeScore(path, argument, request);
    if (word == u"variable" && path.size() == 2 && !argument.isNull()) {
        const QString name = path[1];
        if (!isVariableName(name) || !isOneLine(text)) return false;
        VariableStore& variables = console_.engine().state().variables;
        console_.act(
            name + u" = "_s + text, [&variables, name, text] { variables.SetVar(name, text); }, request);
        return true;
    }
    if (word == u"answer" && path.size() == 1 && !argument.isNull()) {
        request.done(console_.answer(text, 0, request.from));
        return true;
    }
    if (isRelease(message)) return true;
    if (word == u"clear" && path.size() == 1) {
        console_.clear(request);
    } else if (word == u"card" && path.size() == 3) {
        console_.fireCard(numberInPath(path[1]), numberInPath(path[2]), request);
    } else if (word == u"key" && path.size() == 2) {
        console_.pressKey(numberInPath(path[1]), request);
    } else if (word == u"script" && path.size() == 2) {
        console_.runScript(path[1], request);
    } else if (word == u"proposal" && path.size() == 2) {
        console_.takeProposal(numberInPath(path[1]), request);
    } else if (word == u"set" && path.size() == 2) {
        const int set = numberInPath(path[1]);
        if (set < 1 || set > CardConsole::kSelectors) return false;
        CardConsole& cards = console_.cards();
        console_.act(
            u"set %1"_s.arg(set), [&cards, set] { cards.selectBox(set - 1); }, request);
    } else {
        return false;
    }
    return true;
}

// "/zelvor/score/home 1" steps the manual score, "/zelvor/score/home/set 12" sets it.
bool OscDoor::takeScore(const QStringList& path, const QVariant& argument, const RemoteConsole::Request& request) {
    const bool sets = path.value(2) == u"set";
    bool isNumber = false;
    const double number = argument.toDouble(&isNumber);
    const bool isSide = path.value(1) == u"home" || path.value(1) == u"away";
    const double lowest = sets ? 0 : -kHighestScore;
    const bool isTaken = isNumber && number >= lowest && number <= kHighestScore && number == std::floor(number);
    if (!isSide || !isTaken || path.size() != (sets ? 3 : 2)) return false;
    const TeamControls& team = path[1] == u"home" ? kHomeControls : kAwayControls;
    Control& manual = console_.engine().form().at(team.manualScore);
    console_.act(
        u"score "_s + path[1],
        [&manual, sets, number] {
            manual.setText(numberText(std::max(sets ? number : Val(manual.text()) + number, 0.0)));
        },
        request);
    return true;
}

// "/zelvor/subscribe" to where it comes from, "/zelvor/subscribe 12321" to another port there.
bool OscDoor::takeSubscription(const QString& word, const QVariant& argument, OscFeedback::Peer peer) {
    if (!argument.isNull()) {
        const int port = argument.toInt();
        if (port < 1 || port > std::numeric_limits<quint16>::max()) return false;
        peer.port = static_cast<quint16>(port);
    }
    if (word == u"unsubscribe") {
        feedback_.unsubscribe(peer);
        return true;
    }
    return word == u"subscribe" && feedback_.subscribe(peer);
}

void OscDoor::send(const OscFeedback::Peer& peer, const OscMessage& message) {
    socket_.writeDatagram(message.bytes(), peer.address, peer.port);
}

}  // namespace zelvor
