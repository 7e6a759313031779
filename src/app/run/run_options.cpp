#include "app_run/run_options.h"

#include <QFileInfo>
#include <array>

#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const std::array kOptions{
    CommandLine::Option{u"--app-folder"_s, true},
    CommandLine::Option{u"--user-folder"_s},
    CommandLine::Option{u"--language"_s, true},
    CommandLine::Option{u"--codepage"_s, true},
    CommandLine::Option{u"--set"_s, true},
    CommandLine::Option{u"--answer"_s, true},
    CommandLine::Option{u"--connection"_s, true},
    CommandLine::Option{u"--query-seconds"_s, true},
    CommandLine::Option{u"--main"_s, true},
    CommandLine::Option{u"--remote"_s, true},
    CommandLine::Option{u"--preview"_s},
    CommandLine::Option{u"--yes"_s},
    CommandLine::Option{u"--no"_s},
    CommandLine::Option{u"--auto"_s},
    CommandLine::Option{u"--keep-states"_s},
    CommandLine::Option{u"--vars"_s},
    CommandLine::Option{u"--start"_s},
    CommandLine::Option{u"--watch"_s},
    CommandLine::Option{u"--help"_s},
};

std::optional<std::pair<QString, QString>> variable(const QString& text) {
    const qsizetype equals = text.indexOf(u'=');
    if (equals < 1) return std::nullopt;
    return std::pair(text.left(equals), text.mid(equals + 1));
}

}  // namespace

RunOptions readRunOptions(const QStringList& arguments) {
    const CommandLine line(arguments, kOptions);
    RunOptions options;
    options.help = line.has(u"--help");
    if (options.help) return options;
    line.check();
    if (line.rest().size() != 1) throw UsageError{u"one CARD is to be named"_s};

    options.card = line.rest().constFirst();
    options.appFolder = line.appFolder();
    if (!QFileInfo(options.appFolder).isDir()) throw UsageError{u"no such folder: "_s + options.appFolder};
    options.appFolder = QFileInfo(options.appFolder).absoluteFilePath();
    options.language = line.value(u"--language").value_or(QString());
    if (const auto codePage = line.codePage(u"--codepage")) options.files = TextFiles(*codePage);
    options.variables = line.readAll(u"--set", u"NAME=VALUE"_s, variable);
    options.answers = line.values(u"--answer");
    options.preview = line.has(u"--preview");
    options.yes = line.lastOf(std::array<QStringView, 2>{u"--yes", u"--no"}) != u"--no";
    options.autoRun = line.has(u"--auto");
    options.keepStates = line.has(u"--keep-states");
    options.start = line.has(u"--start");
    options.watch = line.has(u"--watch");
    options.printVariables = line.has(u"--vars");
    options.connection = static_cast<qint16>(line.number(u"--connection", 0, INT16_MAX).value_or(1));
    options.querySeconds = line.number(u"--query-seconds", 1, Patience::kMostSeconds).value_or(options.querySeconds);
    options.main = line.hostPort(u"--main");
    options.remote = line.hostPort(u"--remote");
    return options;
}

QString runHelp() {
    return uR"(usage: zelvor run [options] [--] CARD

Runs a card of a pack without a display and prints every line that it puts on air.

  --app-folder DIR     the application folder (default: the program's own)
  --user-folder        the user's own folder, ~/.local/share/zelvor-cards
  --language CODE      the pack (default: the first pack of PACKS.TXT whose folder exists)
  --preview            run as the preview instance does
  --codepage NAME      the single-byte code page of text files (default: windows-1253)
  --start              run GetGame.csp first, as the console does
  --watch              run the card again whenever its script or an include of it changes, until Ctrl+C
  --set NAME=VALUE     set a variable before the run; repeatable, in order
  --answer KEY|cancel  the answers of pick lists; repeatable, in order
  --yes | --no         the answer of every yes/no question (default: yes)
  --auto               run as a card that fires by itself: ask fields take their automatic answers
  --keep-states        leave the ON and OFF of the card buttons as they are
  --connection N       the database connection (default: 1)
  --query-seconds N    how long the database may take for an answer (default: 5; 60 for GetGame.csp, or N if more)
  --main HOST:PORT     connect the main link; without it its lines are only printed
  --remote HOST:PORT   the same for the remote link
  --vars               print every variable at the end

Prints, in order of happening:
  main > LINE, remote > LINE   a line put on that link
  console > ...                a change of the form
  var > NAME = VALUE           with --vars, at the end

Exit status: 0 the card ran, 1 a run-time error or a query that failed, 2 wrong usage, 3 no such script, 4 a link or the
database could not be reached, or a line was not sent or was refused.
)"_s;
}

}  // namespace zelvor
