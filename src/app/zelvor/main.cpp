// The card engine in a terminal, for pack authors and for scripts. It needs no display.

#include <QCoreApplication>
#include <QTextStream>
#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>

#include "app_as_run/as_run_command.h"
#include "app_calc/calc_command.h"
#include "app_check/check_command.h"
#include "app_eval/eval_command.h"
#include "app_feed/feed_command.h"
#include "app_language_server/language_server_command.h"
#include "app_new_pack/new_pack_command.h"
#include "app_run/run_command.h"
#include "command_line/command_line.h"
#include "crash/crash_dump.h"

using namespace Qt::StringLiterals;

namespace {

struct Subcommand {
    QString name;
    QString summary;
    int (*run)(const QStringList& arguments, QTextStream& out, QTextStream& err);
};

int run(const QStringList& arguments, QTextStream& out, QTextStream& err) {
    return static_cast<int>(zelvor::runCard(arguments, out, err));
}

int calc(const QStringList& arguments, QTextStream&, QTextStream&) {
    return zelvor::runCalc(arguments, std::cout, std::cerr);
}

const std::array kOptions{zelvor::CommandLine::Option{u"--help"_s}, zelvor::CommandLine::Option{u"-h"_s},
                          zelvor::CommandLine::Option{u"--version"_s}};

const std::array kSubcommands{
    Subcommand{u"as-run"_s, u"tells what was on air on a day"_s, zelvor::runAsRun},
    Subcommand{u"calc"_s, u"evaluates a formula"_s, calc},
    Subcommand{u"check"_s, u"finds what is wrong with packs without running them"_s, zelvor::runCheck},
    Subcommand{u"eval"_s, u"evaluates a script expression"_s, zelvor::runEval},
    Subcommand{u"feed"_s, u"sends the game clock, brings live data to the console"_s, zelvor::runFeed},
    Subcommand{u"language-server"_s, u"serves an editor of packs"_s, zelvor::runLanguageServer},
    Subcommand{u"new"_s, u"makes the smallest pack that runs"_s, zelvor::runNewPack},
    Subcommand{u"run"_s, u"runs a card and prints every line that it puts on air"_s, run},
};

QString help() {
    QString text =
        u"usage: zelvor COMMAND [options]\n\n"_s
        u"Runs the card engine in a terminal, without a display.\n\n"_s;
    for (const Subcommand& command : kSubcommands) {
        text += u"  "_s + command.name.leftJustified(17) + command.summary + u'\n';
    }
    return text + u"\nzelvor COMMAND --help tells more; zelvor --version names the version.\n"_s;
}

}  // namespace

int main(int argc, char* argv[]) {
    zelvor::dumpCrashes();
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const auto* command = std::ranges::find(kSubcommands, arguments.value(0), &Subcommand::name);
    try {
        if (command != kSubcommands.end()) return command->run(arguments.mid(1), out, err);
        const zelvor::CommandLine line(arguments, kOptions);
        if (line.has(u"--version")) {
            out << "zelvor " ZELVOR_VERSION "\n";
            return 0;
        }
        if (line.has(u"--help") || line.has(u"-h")) {
            out << help();
            return 0;
        }
        line.check();
    } catch (const zelvor::UsageError& error) {
        err << error.line(command == kSubcommands.end() ? u"zelvor"_s : u"zelvor "_s + command->name);
        return zelvor::UsageError::kExitStatus;
    }
    err << help();
    return zelvor::UsageError::kExitStatus;
}
