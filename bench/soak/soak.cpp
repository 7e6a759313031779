// A whole game at the console in compressed time; ends with 1 and what was wrong when anything was.
// usage: soak [SECONDS]    48 without: 50 times the game's speed

#include <QApplication>
#include <cstdio>

#include "console/theme.h"
#include "game.h"

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const double seconds = arguments.size() > 1 ? arguments[1].toDouble() : 48;
    if (seconds < zelvor::Game::kShortest) {
        std::fprintf(stderr, "usage: soak [SECONDS], %d at least\n", zelvor::Game::kShortest);
        return 2;
    }
    zelvor::theme::apply(application);
    zelvor::MariaDbDemo database;
    zelvor::ConsoleDesk desk(database);
    desk.start();
    zelvor::Game game(desk, database, seconds);
    game.play();
    game.report();
    for (const QString& fault : game.faults()) std::printf("WRONG %s\n", qPrintable(fault));
    desk.app().window().close();
    return game.faults().isEmpty() ? 0 : 1;
}
