// From the key to the painted list, when find is opened in a pack of many scripts with Greek names, and when a letter
// is typed into it. usage: find_bench [SCRIPTS]    1000 without; ends with 1 when the middle of the runs takes more
// than 20 ms

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

#include "console/theme.h"
#include "soak_desk/console_desk.h"

using namespace Qt::StringLiterals;
using namespace zelvor;

namespace {

constexpr int kRuns = 51;
constexpr double kAllowed = 20;  // milliseconds

double milliseconds(clockid_t clock) {
    std::timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

struct Figures {
    const char* what;
    std::vector<double> elapsed = {};
    std::vector<double> worked = {};  // of the processor: another program's load does not count

    // Until nothing is left to paint.
    void measure(QWidget& target, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
        const double start = milliseconds(CLOCK_MONOTONIC);
        const double before = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&target, &press);
        QApplication::processEvents();
        worked.push_back(milliseconds(CLOCK_THREAD_CPUTIME_ID) - before);
        elapsed.push_back(milliseconds(CLOCK_MONOTONIC) - start);
    }
    [[nodiscard]] bool report() {
        std::ranges::sort(elapsed);
        std::ranges::sort(worked);
        std::printf("%s, ms: median %.1f (of the processor %.1f), longest %.1f (%.1f)\n", what, elapsed[kRuns / 2],
                    worked[kRuns / 2], elapsed.back(), worked.back());
        return worked[kRuns / 2] <= kAllowed;
    }
};

}  // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int scripts = arguments.size() > 1 ? arguments[1].toInt() : 1000;
    if (scripts < 1) {
        std::fprintf(stderr, "usage: find_bench [SCRIPTS]\n");
        return 2;
    }
    theme::prepare(application);
    theme::apply(application);
    const SqliteDemo database;
    ConsoleDesk desk(database);
    for (int i = 0; i < scripts; ++i)
        desk.write(u"MODULES/QRD_EN/Τίτλος παίκτη %1.csp"_s.arg(i), "CSPSEND~CLEAR 1\r\n");
    desk.start();
    QWidget& window = desk.app().window();
    const auto* box = window.findChild<QDialog*>(u"frmFIND"_s);
    auto* typed = box->findChild<QLineEdit*>(u"txtFIND"_s);
    Figures opened{"find opened"};
    Figures letter{"a letter typed"};
    for (int run = 0; run < kRuns; ++run) {
        opened.measure(window, Qt::Key_K, Qt::ControlModifier, {});
        letter.measure(*typed, Qt::Key_T, Qt::NoModifier, u"τ"_s);
        if (!box->isVisible() || typed->text() != u"τ") qFatal("find has not opened");
        desk.press(Qt::Key_Escape);
        QApplication::processEvents();
    }
    const bool quickOpening = opened.report();
    const bool quickLetter = letter.report();
    window.close();
    return quickOpening && quickLetter ? 0 : 1;
}
