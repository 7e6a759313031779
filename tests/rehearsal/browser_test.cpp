#include <gtest/gtest.h>

#include <QFile>
#include <QTcpSocket>
#include <functional>

#include "browser.h"
#include "demo/demo_folder.h"
#include "support/wait.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {
namespace {

// The rehearsal server's own program, with the ports it has chosen.
class Server {
 public:
    bool start(const QString& templates, const QStringList& more = {u"--amcp"_s, u"0"_s, u"--http"_s, u"0"_s}) {
        endWithTest(process_);
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral(REHEARSAL_PROGRAM), QStringList{u"--templates"_s, templates} + more);
        QByteArray output;
        test::waitUntil([&] {
            output += process_.readAllStandardOutput();
            return output.count('\n') == 2 || process_.state() == QProcess::NotRunning;
        });
        const QStringList lines = QString::fromUtf8(output).split(u'\n');
        page_ = lines.value(1).section(u' ', 1);
        amcpPort_ = lines.value(0).section(u':', -1);
        return !page_.isEmpty();
    }

    // Ends it as Ctrl-C does; true when it leaves in order.
    bool stop() {
        process_.terminate();
        return process_.waitForFinished() && process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0;
    }

    const QString& page() const { return page_; }
    QString amcpPort() const { return amcpPort_; }
    QString httpPort() const { return page_.section(u':', -1).remove(u'/'); }

 private:
    QProcess process_;
    QString page_;
    QString amcpPort_;
};

QString field(const QString& id, const QString& value) {
    return uR"(<componentData id=\"%1\"><data type=\"txt\" ani=\"0\" value=\"%2\"></data></componentData>)"_s.arg(
        id, value);
}

QString lowerThird(const QString& name, const QString& title) {
    return u"<templateData>"_s + field(u"NAME"_s, name) + field(u"TITLE"_s, title) + u"</templateData>"_s;
}

class BrowserTest : public testing::Test {
 protected:
    static void SetUpTestSuite() {
        browser_ = new Browser;
        started_ = browser_->start();
    }
    static void TearDownTestSuite() { delete browser_; }

    void SetUp() override { ASSERT_TRUE(started_) << qPrintable(browser_->fault()); }

    void TearDown() override { EXPECT_TRUE(server_.stop()); }
    void start(const QString& templates = test::demoPath(u"templates"_s)) {
        ASSERT_TRUE(server_.start(templates));
        browser_->open(server_.page());
        ASSERT_TRUE(becomes([] { return page(u"document.querySelectorAll('.channel').length"_s); }, u"2"_s));
        console_.connectToHost(u"127.0.0.1"_s, server_.amcpPort().toUShort());
        ASSERT_TRUE(test::waitUntil([&] { return console_.state() == QAbstractSocket::ConnectedState; }));
    }

    // Sends a line and waits for the reply.
    QString send(const QString& line) {
        console_.write(line.toUtf8() + "\r\n");
        test::waitUntil([&] { return console_.canReadLine(); });
        return QString::fromUtf8(console_.readAll()).trimmed();
    }

    static QString page(const QString& script) { return browser_->evaluate(script); }
    static QString frame(const QString& name, const QString& script, int which = 0) {
        return browser_->evaluateInFrame(name, script, which);
    }
    static QString lines() { return page(u"document.getElementById('lines').innerText"_s); }

    static testing::AssertionResult becomes(const std::function<QString()>& read, const QString& wanted) {
        QString last;
        if (test::waitUntil([&] { return (last = read()).contains(wanted); })) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << "still \"" << qPrintable(last) << "\", not " << qPrintable(wanted);
    }

    Server server_;
    QTcpSocket console_;
    static inline Browser* browser_ = nullptr;
    static inline bool started_ = false;
};

const QString kLowerThird = u"/lowerthird.html"_s;
const QString kName = u"document.querySelector('[data-field=NAME]').textContent"_s;
// How far the strap is open: "inset(0px)" when it is on, "inset(0px 100% 0px 0px)" when it is off.
const QString kStrap = u"getComputedStyle(document.querySelector('.strap')).clipPath"_s;

TEST_F(BrowserTest, ShowsUpdatesStopsAndReplaysATemplate) {
    start();
    const auto name = [] { return frame(kLowerThird, kName); };
    const auto panel = [] { return frame(kLowerThird, kStrap); };
    // The name and the panel as soon as the new page has its name.
    const auto firstSeenAfterReload = [] {
        frame(kLowerThird, u"window.isOld = true"_s);
        page(u"location.reload()"_s);
        QString seen;
        test::waitUntil([&] {
            seen = frame(kLowerThird, u"window.isOld ? '' : `${%1} ${%2}`"_s.arg(kName, kStrap));
            return seen.startsWith(u"O’Neal"_s);
        });
        return seen;
    };

    EXPECT_EQ(send(u"CG 1-20 ADD 1 \"lowerthird\" 1 \"%1\""_s.arg(lowerThird(u"Γιώργος"_s, u"<Guard> & more"_s))),
              u"202 CG OK"_s);
    EXPECT_TRUE(becomes(name, u"Γιώργος"_s));
    EXPECT_TRUE(becomes(panel, u"inset(0px)"_s));
    EXPECT_EQ(frame(kLowerThird, u"document.querySelector('[data-field=TITLE]').textContent"_s), u"<Guard> & more"_s);

    EXPECT_EQ(send(u"CG 1-20 UPDATE 1 \"%1\""_s.arg(lowerThird(u"O\\\"Neal"_s, {}))), u"202 CG OK"_s);
    EXPECT_TRUE(becomes(name, u"O’Neal"_s));

    EXPECT_EQ(firstSeenAfterReload().toStdString(), "O’Neal inset(0px)") << "no animation is played again";

    EXPECT_EQ(send(u"CG 1-20 STOP 1"_s), u"202 CG OK"_s);
    EXPECT_TRUE(becomes(panel, u"100%"_s));
    EXPECT_EQ(send(u"CG 1-20 PLAY 1"_s), u"202 CG OK"_s);
    EXPECT_EQ(send(u"CG 1-20 STOP 1"_s), u"202 CG OK"_s);
    EXPECT_EQ(firstSeenAfterReload().toStdString(), "O’Neal inset(0px 100% 0px 0px)") << "in the middle of going off";

    EXPECT_EQ(send(u"PLAY 1-10 #8000FF00"_s), u"202 PLAY OK"_s);
    EXPECT_EQ(send(u"MIXER 1-10 FILL 0.5 0 0.5 1"_s), u"202 MIXER OK"_s);
    EXPECT_TRUE(becomes([] { return page(u"document.querySelector('.layers').innerText"_s); }, u"10 #00FF0080"_s));
    EXPECT_EQ(page(u"[...document.querySelectorAll('#channel-1 .layer')].map(e => e.style.zIndex).sort().join()"_s),
              u"10,20"_s);
    EXPECT_EQ(send(u"CLEAR 1"_s), u"202 CLEAR OK"_s);
    EXPECT_TRUE(
        becomes([] { return page(u"`${document.querySelectorAll('iframe').length} frames`"_s); }, u"0 frames"_s));
}

TEST_F(BrowserTest, ShowsDemoCardsFiredFromTheTerminal) {
    const test::DemoFolder demo;
    ASSERT_TRUE(demo.isMade());
    start();
    const auto fire = [&](const QString& language, const QStringList& cardAndOptions) {
        QProcess zelvor;
        endWithTest(zelvor);
        zelvor.start(QStringLiteral(ZELVOR_PROGRAM),
                     QStringList{u"run"_s, u"--app-folder"_s, demo.path(), u"--main"_s,
                                 u"127.0.0.1:"_s + server_.amcpPort(), u"--language"_s, language} +
                         cardAndOptions);
        return zelvor.waitForFinished() && zelvor.exitStatus() == QProcess::NormalExit && zelvor.exitCode() == 0;
    };
    const QStringList player{u"player.csp"_s, u"--answer"_s, u"1"_s, u"--answer"_s, u"118"_s};
    const QStringList onAir{u"--set"_s, u"@ONTHIRD=player"_s, u"--set"_s, u"@THIRDTAG=T:1##P:118"_s};

    EXPECT_TRUE(fire(u"EN"_s, player));
    EXPECT_TRUE(becomes([] { return frame(kLowerThird, kName); }, u"Tyler Vance"_s));
    EXPECT_TRUE(becomes([] { return frame(kLowerThird, kStrap); }, u"inset(0px)"_s));
    frame(kLowerThird, u"window.before = 'the same page'"_s);
    EXPECT_TRUE(fire(u"GR"_s, player + onAir));
    EXPECT_TRUE(becomes([] { return frame(kLowerThird, kName); }, u"Τάιλερ Βανς"_s));
    EXPECT_EQ(frame(kLowerThird, u"window.before"_s), u"the same page"_s);
    EXPECT_TRUE(fire(u"GR"_s, QStringList{u"lowerthird_off.csp"_s} + onAir));
    EXPECT_TRUE(becomes([] { return frame(kLowerThird, kStrap); }, u"100%"_s));
    EXPECT_TRUE(fire(u"GR"_s, {u"clear.csp"_s}));
    EXPECT_TRUE(becomes([] { return page(u"`${document.querySelectorAll('iframe').length} left`"_s); }, u"0 left"_s));
}

TEST_F(BrowserTest, CallsInOrderAndKeepsTemplatesInTheirFrames) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"calls.html"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"(<!-- c --><!doctype html><p id="calls"></p><script>
        const note = (text) => { calls.textContent += text + ";"; };
        const update = (data) => note("update " + data);
        function play() { note("play"); }
        addEventListener("load", () => note("load"));
        function stop() { note("stop"); throw new Error("stops badly"); }
        function reach(what) { try { note(String(what())); } catch (fault) { note(fault.name); } }
        const spy = new WebSocket(location.origin.replace("http", "ws") + "/state");
        spy.onmessage = () => note("spied"); spy.onclose = () => { document.title = "shut out"; };
        </script><img src="missing.png">)");
    file.close();
    start(folder.path());
    const auto calls = [] { return frame(u"/calls.html"_s, u"document.getElementById('calls').textContent"_s); };

    // Quotes, a backslash, a line break and a line separator arrive as they were sent.
    send(uR"(CG 2-1 ADD 1 CALLS 1 "{\"a\":\"<b>'\\\"</b>\\\\\n)"_s + QChar(0x2028) + uR"(\"}")"_s);
    EXPECT_TRUE(becomes(calls, u"load;update {\"a\":\"<b>'\\\"</b>\\\\\n"_s + QChar(0x2028) + u"\"};play;"_s));
    EXPECT_TRUE(becomes([] { return frame(u"/calls.html"_s, u"document.title"_s); }, u"shut out"_s));
    send(u"CG 2-1 STOP 1"_s);
    send(u"CG 2-1 NEXT 1"_s);
    send(u"CG 2-1 INVOKE 1 \"reach(() => parent.document.title)\""_s);
    send(u"CG 2-1 INVOKE 1 \"reach(() => localStorage)\""_s);
    EXPECT_TRUE(becomes(calls, u"stop;SecurityError;SecurityError;"_s)) << "still there after STOP and a fault";
    EXPECT_FALSE(calls().contains(u"spied"_s));
    EXPECT_EQ(frame(u"/calls.html"_s, u"document.compatMode"_s), u"CSS1Compat"_s);
    for (const QString& fault : {u"2-1 calls.html: cannot load"_s, u"stops badly"_s, u"the template has no next()"_s})
        EXPECT_TRUE(becomes(&BrowserTest::lines, fault));
    EXPECT_EQ(page(u"document.querySelectorAll('#lines b').length"_s), u"0"_s);

    // A second one of the same template knows nothing of the first.
    send(u"CG 1-1 ADD 1 CALLS 0"_s);
    send(u"CALL 1-1 \"note('second')\""_s);
    EXPECT_TRUE(becomes([] { return frame(u"/calls.html"_s, u"calls.textContent"_s, 1); }, u"second;"_s));
    EXPECT_FALSE(calls().contains(u"second"_s));
    send(u"CLEAR 1"_s);

    // The list goes on showing the newest line when it has become shorter.
    page(u"lines.style.cssText = 'flex: none; height: 60px'"_s);
    send(u"CG 2-1 ADD 1 missing 1"_s);
    send(u"NOPE <b>x</b>"_s);
    EXPECT_TRUE(becomes(&BrowserTest::lines, u"404 CG ADD FAILED"_s));
    EXPECT_TRUE(becomes(&BrowserTest::lines, u"NOPE <b>x</b>"_s));
    EXPECT_EQ(page(u"lines.scrollTop + lines.clientHeight > lines.scrollHeight - 4"_s), u"true"_s);
}

TEST_F(BrowserTest, ShowsATemplateAsItLooksAlone) {
    start();
    const QString fields = uR"({"HOME":"North","SCOREA":"7"})"_s;
    const auto settled = [](const auto& read) {
        return becomes([&] { return read(u"`${document.getAnimations().length} left ${document.body.className}`"_s); },
                       u"0 left on"_s);
    };
    browser_->open(server_.page() + u"?channel=1&behind=black"_s);
    send(u"CG 1-20 ADD 1 scorebug 1 \"%1\""_s.arg(QString(fields).replace(u'"', u"\\\""_s)));
    browser_->picture();  // from here on in the size of the programme
    ASSERT_TRUE(settled([](const QString& script) { return frame(u"/scorebug.html"_s, script); }));
    const QImage there = browser_->picture();

    browser_->open(server_.page() + u"templates/scorebug.html"_s);
    ASSERT_TRUE(becomes([] { return page(u"`${typeof update} ${document.readyState}`"_s); }, u"function complete"_s));
    page(u"document.documentElement.style.background = 'black'; update('%1'); play()"_s.arg(fields));
    ASSERT_TRUE(settled([](const QString& script) { return page(script); }));
    const QImage alone = browser_->picture();
    ASSERT_EQ(there.size(), QSize(1920, 1080));
    ASSERT_EQ(alone.size(), there.size());
    int different = 0;
    int lit = 0;
    for (int y = 0; y < 1080; ++y) {
        for (int x = 0; x < 1920; ++x) {
            const QColor one = there.pixelColor(x, y);
            const QColor other = alone.pixelColor(x, y);
            lit += one.lightness() > 20 ? 1 : 0;
            const int distance = std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
                                 std::abs(one.blue() - other.blue());
            different += distance > 6 ? 1 : 0;
        }
    }
    EXPECT_GT(lit, 10000) << "the bug is to be seen";
    EXPECT_EQ(different, 0);
}

TEST_F(BrowserTest, FollowsConsoleAndServerThroughRestarts) {
    start();
    const auto consoleStatus = [] { return page(u"document.getElementById('console').textContent"_s); };
    const auto serverStatus = [] { return page(u"document.getElementById('server').textContent"_s); };

    EXPECT_TRUE(becomes(consoleStatus, u"Console connected"_s));
    console_.disconnectFromHost();
    EXPECT_TRUE(becomes(consoleStatus, u"Console disconnected at "_s));

    const QStringList samePorts = {u"--amcp"_s, server_.amcpPort(), u"--http"_s, server_.httpPort()};
    EXPECT_TRUE(server_.stop());
    EXPECT_TRUE(becomes(serverStatus, u"does not answer"_s));
    ASSERT_TRUE(server_.start(test::demoPath(u"templates"_s), samePorts));
    EXPECT_TRUE(becomes(serverStatus, u"Following"_s));
    EXPECT_TRUE(becomes(consoleStatus, u"No console yet: connect it to 127.0.0.1:"_s));
}

TEST_F(BrowserTest, FitsLongNamesIntoTheSafeArea) {
    start();
    const QString longName = u"Κωνσταντίνος-Αλέξανδρος Παπαχατζηθεοδωροπουλόπουλος von Wolfeschlegelsteinhausen"_s;
    QString data;
    const QString texts =
        u"HOME AWAY NAME TITLE TEAM LINE2 LABEL COACH EXTRA P1 P12 FIRST NOTE L1 L5 F1 R1 H2 H7 R1C2 VENUE COMPETITION "
        "COACHLABEL PLAYED HOMESHORT"_s;
    for (const QString& id : texts.split(u' ')) data += field(id, longName);
    for (const QString& id : u"NUMBER SCOREA SCOREB N1 N12 A1 B1 V1 V5 R1C7 PHOTO"_s.split(u' '))
        data += field(id, u"188"_s);
    const QStringList names =
        u"scorebug lowerthird lineup clock titles comparison table startingfive statistics timeout fulltime"_s.split(
            u' ');
    // Every text that shows: inside the safe area, with the look for 4:3 sets that of the middle, and inside its box.
    const QString outside =
        u"half = document.body.classList.contains('narrow') ? innerHeight * 0.6 : innerWidth * 0.45;"
        "[...document.querySelectorAll('[data-field] > span, .fit > span')].filter(text => {"
        "  const inner = text.getBoundingClientRect(), box = text.parentElement.getBoundingClientRect();"
        "  return inner.width > 0 && (inner.right > box.right + 1 || inner.left < box.left - 1 ||"
        "    inner.left < innerWidth / 2 - half - 1 || inner.right > innerWidth / 2 + half + 1 ||"
        "    inner.top < innerHeight * 0.05 - 1 || inner.bottom > innerHeight * 0.95 + 1); }).map(text =>"
        "  text.parentElement.dataset.field ?? text.parentElement.id).join()"_s;
    for (const QString& aspect : {u"16:9"_s, u"4:3"_s}) {
        page(
            u"{ const choice = document.getElementById('aspect'); choice.value = '%1';"
            "choice.dispatchEvent(new Event('change')); }"_s.arg(aspect));
        for (int i = 0; i < names.size(); ++i) {
            EXPECT_EQ(send(u"CG 1-%1 ADD 1 %2 1 \"<templateData>%3</templateData>\""_s.arg(i).arg(names[i], data)),
                      u"202 CG OK"_s);
        }
        for (int i = 0; i < names.size(); ++i) {
            const QString& name = names[i];
            const QString path = u"/%1.html"_s.arg(name);
            EXPECT_TRUE(becomes([&] { return frame(path, u"document.body.className"_s); }, u"on"_s))
                << qPrintable(name + u' ' + aspect);
            EXPECT_TRUE(becomes([&] { return frame(path, u"document.body.innerText"_s); }, u"Κωνσταντίνος"_s));
            // Also lets the animations run out.
            EXPECT_TRUE(
                becomes([&] { return frame(path, u"`${document.getAnimations().length} left`"_s); }, u"0 left"_s));
            EXPECT_EQ(frame(path, u"`${innerWidth}x${innerHeight}`"_s),
                      aspect == u"4:3"_s ? u"1440x1080"_s : u"1920x1080"_s);
            EXPECT_EQ(frame(path, outside).toStdString(), "") << qPrintable(name + u' ' + aspect);
            send(uR"(CG 1-%1 UPDATE 1 "{\"LOOK\":\"4_3 10 10 10 10\"}")"_s.arg(i));
            EXPECT_TRUE(becomes([&] { return frame(path, u"document.body.className"_s); }, u"narrow"_s));
            EXPECT_EQ(frame(path, outside).toStdString(), "") << qPrintable(name + u" for 4:3 sets in "_s + aspect);
        }
        send(u"CLEAR 1"_s);
    }
}

}  // namespace
}  // namespace zelvor::rehearsal
