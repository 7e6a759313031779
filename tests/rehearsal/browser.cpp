#include "browser.h"

#include <sys/prctl.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <csignal>

#include "support/wait.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

void endWithTest(QProcess& process) {
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

Browser::~Browser() {
    process_.kill();
    process_.waitForFinished();
}

bool Browser::start() {
    // Without the flags against background work it asks the network for updates.
    endWithTest(process_);
    process_.start(u"chromium"_s,
                   {u"--headless"_s, u"--no-sandbox"_s, u"--disable-gpu"_s, u"--disable-quic"_s, u"--no-first-run"_s,
                    u"--disable-background-networking"_s, u"--disable-component-update"_s, u"--disable-sync"_s,
                    u"--disable-dev-shm-usage"_s, u"--enable-features=IsolateSandboxedIframes"_s,
                    u"--user-data-dir="_s + profile_.path(), u"--remote-debugging-port=0"_s,
                    u"--window-size=1280,800"_s, u"about:blank"_s});
    static const QRegularExpression listening(u"DevTools listening on (ws://\\S+)"_s);
    QString output;
    const bool answers = process_.waitForStarted() && test::waitUntil([&] {
                             output += QString::fromLocal8Bit(process_.readAllStandardError());
                             return output.contains(listening) || process_.state() == QProcess::NotRunning;
                         });
    const auto match = listening.match(output);
    if (!answers || !match.hasMatch()) {
        fault_ = u"Chromium (package chromium) does not start: %1 %2"_s.arg(process_.errorString(), output);
        return false;
    }
    QObject::connect(&socket_, &QWebSocket::textMessageReceived, &socket_,
                     [this](const QString& message) { receive(message); });
    socket_.open(QUrl(match.captured(1)));
    if (!test::waitUntil([&] { return socket_.isValid(); })) {
        fault_ = u"Chromium does not take a connection: "_s + socket_.errorString();
        return false;
    }
    const QJsonArray targets = call(u"Target.getTargets"_s, {})["targetInfos"_L1].toArray();
    for (const auto& target : targets) {
        if (target["type"_L1] == "page"_L1) {
            page_ = call(u"Target.attachToTarget"_s,
                         {{u"targetId"_s, target["targetId"_L1]}, {u"flatten"_s, true}})["sessionId"_L1]
                        .toString();
        }
    }
    call(u"Target.setAutoAttach"_s,
         {{u"autoAttach"_s, true}, {u"waitForDebuggerOnStart"_s, false}, {u"flatten"_s, true}}, page_);
    return true;
}

QString Browser::evaluateInFrame(const QString& path, const QString& script, int which) {
    for (const QString& frame : QStringList(frames_)) {
        if (evaluateIn(frame, u"location.pathname"_s).endsWith(path) && which-- == 0) {
            return evaluateIn(frame, script);
        }
    }
    return {};
}

QImage Browser::picture() {
    call(u"Emulation.setDeviceMetricsOverride"_s,
         {{u"width"_s, 1920}, {u"height"_s, 1080}, {u"deviceScaleFactor"_s, 1}, {u"mobile"_s, false}}, page_);
    const QJsonObject result = call(u"Page.captureScreenshot"_s, {}, page_);
    return QImage::fromData(QByteArray::fromBase64(result["data"_L1].toString().toLatin1()));
}

QJsonObject Browser::call(const QString& method, const QJsonObject& parameters, const QString& session) {
    const int id = ++lastCall_;
    QJsonObject message{{u"id"_s, id}, {u"method"_s, method}, {u"params"_s, parameters}};
    if (!session.isEmpty()) {
        message.insert("sessionId"_L1, session);
    }
    socket_.sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
    // A frame that goes meanwhile never answers.
    const auto isGone = [&] { return !session.isEmpty() && session != page_ && !frames_.contains(session); };
    test::waitUntil([&] { return results_.contains(id) || isGone(); });
    const auto result = results_.extract(id);
    return result.empty() ? QJsonObject() : result.mapped();
}

QString Browser::evaluateIn(const QString& session, const QString& script) {
    const QJsonObject result = call(u"Runtime.evaluate"_s, {{u"expression"_s, script}}, session);
    if (result.contains("exceptionDetails"_L1)) {
        return u"exception: "_s +
               result["exceptionDetails"_L1].toObject()["exception"_L1].toObject()["description"_L1].toString();
    }
    return result["result"_L1].toObject()["value"_L1].toVariant().toString();
}

void Browser::receive(const QString& message) {
    const QJsonObject object = QJsonDocument::fromJson(message.toUtf8()).object();
    const QString method = object["method"_L1].toString();
    const QString session = object["params"_L1].toObject()["sessionId"_L1].toString();
    if (object.contains("id"_L1)) {
        results_[object["id"_L1].toInt()] = object["result"_L1].toObject();
    } else if (method == "Target.attachedToTarget"_L1 && session != page_ && !page_.isEmpty()) {
        frames_.append(session);
    } else if (method == "Target.detachedFromTarget"_L1) {
        frames_.removeAll(session);
    }
}

}  // namespace zelvor::rehearsal
