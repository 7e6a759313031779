// A whole game at the console in compressed time; ends with 1 and what was wrong when anything was.
// usage: soak [SECONDS]            48 without: 50 times the game's speed
//        soak --evening [SEED]     two hours with all their troubles, at the same speed

#include <QApplication>
#include <QProcess>
#include <cstdio>
#include <ctime>

#include "console/theme.h"
#include "game.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kInNamespace = "ZELVOR_SOAK_IN_NAMESPACE";

// Runs this program again where packets can be dropped; nothing where that cannot be had.
std::optional<int> runInNamespace(const QStringList& arguments) {
    if (qEnvironmentVariableIsSet(kInNamespace)) return {};
    const QString prepare = u"ip link set lo up && iptables -L >/dev/null"_s;
    const QStringList unshare{u"-rn"_s, u"sh"_s, u"-c"_s};
    if (QProcess::execute(u"unshare"_s, unshare + QStringList{prepare}) != 0) return {};
    qputenv(kInNamespace, "1");
    return QProcess::execute(u"unshare"_s, unshare + QStringList{prepare + u" && exec \"$@\""_s, u"sh"_s} + arguments);
}

// Nothing for arguments that are none.
std::optional<zelvor::GamePlan> planOf(const QStringList& arguments) {
    if (arguments.value(1) == u"--evening")
        return zelvor::GamePlan::evening(arguments.size() > 2 ? arguments[2].toUInt()
                                                              : static_cast<unsigned>(std::time(nullptr)));
    zelvor::GamePlan plan;
    if (arguments.size() > 1) plan.seconds = arguments[1].toDouble();
    if (plan.seconds < zelvor::Game::kShortest) return {};
    return plan;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const std::optional<zelvor::GamePlan> plan = planOf(arguments);
    if (!plan) {
        std::fprintf(stderr, "usage: soak [SECONDS], %d at least; soak --evening [SEED]\n", zelvor::Game::kShortest);
        return 2;
    }
    if (plan->hasTroubles) {
        if (const auto ended = runInNamespace(arguments)) return *ended;
    }
    std::printf("seed %u\n", plan->seed);
    std::fflush(stdout);
    zelvor::theme::prepare(application);
    zelvor::theme::apply(application);
    zelvor::MariaDbDemo database;
    zelvor::ConsoleDesk desk(database);
    desk.start();
    zelvor::Game game(desk, database, *plan);
    game.play();
    game.report();
    for (const QString& fault : game.faults()) std::printf("WRONG %s\n", qPrintable(fault));
    desk.app().window().close();
    return game.faults().isEmpty() ? 0 : 1;
}
