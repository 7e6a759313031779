#pragma once

#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QWebSocket>
#include <map>

namespace zelvor::rehearsal {

// Has the process killed when the test program ends, however it ends. To be called before its start.
void endWithTest(QProcess& process);

// A headless Chromium with one page, steered through its debugging protocol.
class Browser {
 public:
    ~Browser();

    // False, with the reason in fault(), when there is no Chromium or it does not start.
    bool start();
    const QString& fault() const { return fault_; }

    void open(const QString& url) { call(QStringLiteral("Page.navigate"), {{QStringLiteral("url"), url}}, page_); }

    // What SCRIPT gives in the page; a string, number or boolean, as text. "exception: ..." when it throws.
    QString evaluate(const QString& script) { return evaluateIn(page_, script); }
    // The same in the frame whose path ends in PATH, of several the one opened as number WHICH from 0; empty when there
    // is no such frame.
    QString evaluateInFrame(const QString& path, const QString& script, int which = 0);

    // The page as it looks in a window of 1920 x 1080.
    QImage picture();

 private:
    QJsonObject call(const QString& method, const QJsonObject& parameters, const QString& session = {});
    QString evaluateIn(const QString& session, const QString& script);
    void receive(const QString& message);

    QTemporaryDir profile_;
    QProcess process_;
    QWebSocket socket_;
    QString fault_;
    QString page_;        // the page's session
    QStringList frames_;  // sessions of the frames in it, as they came
    std::map<int, QJsonObject> results_;
    int lastCall_ = 0;
};

}  // namespace zelvor::rehearsal
