#pragma once

#include <QCoreApplication>
#include <QUdpSocket>

#include "feed/game_desk.h"
#include "support/fake_ports.h"
#include "support/wait.h"

namespace zelvor::test {

// The game desk over an engine with everything around it faked.
struct Studio : EngineBench {
    Control& at(const char* name, int index = -1) const { return *form.find(QString::fromLatin1(name), index); }
    QString variable(const char* name) const { return state.variables.text(QString::fromLatin1(name)); }
    // The variables' texts, "|" between; "-" for one that does not exist.
    QString variablesText(const QStringList& names) const {
        QStringList texts;
        for (const QString& name : names) {
            const Value* value = state.variables.find(name);
            texts += value == nullptr ? QStringLiteral("-") : value->text();
        }
        return texts.join(u'|');
    }
    // A card that sends what the script's placeholders hold.
    void writeCard(const char* name, const QByteArray& line) {
        write(QStringLiteral("QRD_TT/") + QString::fromLatin1(name), "FUNCTIONCARD\nCSPSEND~" + line + '\n');
    }
    // Sends the datagrams to the desk's socket, with turns of the event loop between, until it has taken them.
    void sendToFeed(const QList<QByteArray>& datagrams) {
        for (const QByteArray& datagram : datagrams) {
            sender.writeDatagram(datagram, QHostAddress::LocalHost, desk.feedSocket.port());
            QCoreApplication::processEvents();
        }
    }
    qint64 taken() const { return desk.feedStatus.handledCount() + desk.feedStatus.refusedCount(); }

    GameDesk desk{engine};
    QUdpSocket sender;
};

}  // namespace zelvor::test
