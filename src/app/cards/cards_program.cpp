#include "app_cards/cards_program.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QMessageBox>
#include <QNetworkProxy>
#include <QTextStream>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "app_cards/cards_app.h"
#include "app_cards/font_reading.h"
#include "app_cards/ui_language.h"
#include "app_cards/user_folder.h"
#include "command_line/command_line.h"
#include "console/theme.h"
#include "crash/crash_dump.h"
#include "system/termination.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kNoFolder = 1;

std::vector<CommandLine::Option> allOptions() {
    std::vector<CommandLine::Option> options{{u"--app-folder"_s, true},
                                             {u"--user-folder"_s},
                                             {u"--codepage"_s, true},
                                             {u"--feed-port"_s, true},
                                             {u"--pack"_s, true},
                                             {u"--connection"_s, true},
                                             {u"--main"_s, true},
                                             {u"--remote"_s, true},
                                             {u"--connect"_s},
                                             {u"--query-seconds"_s, true},
                                             {u"--no-as-run"_s},
                                             {u"--language-ui"_s, true},
                                             {u"--theme"_s, true},
                                             {u"--touch"_s},
                                             {u"--help"_s},
                                             {u"--version"_s}};
    std::ranges::copy(remoteOptionNames(), std::back_inserter(options));
    return options;
}

const QString kHelp =
    uR"(usage: zelvor-cards [options] [/PREVIEW] [CONNECTION]

Fires the cards of a pack on the air, from one window.

  --app-folder DIR      the folder that holds MODULES; the program's own folder without, or as an installed
                        program the user's own
  --user-folder         the user's own folder, ~/.local/share/zelvor-cards, made from the demo the first time
  --codepage NAME       read and write text files in this code page, e.g. windows-1253
  --feed-port N         hears the game feed on this UDP port, 0 for any free one; 7699 without
  --pack CODE           loads this pack instead of asking for one
  --connection N        takes this database connection instead of asking for one
  --query-seconds N     how long the database may take for an answer, 5 without; GetGame.csp gets 60, or N if more
  --main HOST:PORT      the address of the main graphics server
  --remote HOST:PORT    the same for the remote one
  --connect             connects the servers named so
  --language-ui CODE    the console's own words: en for English, el for Greek; the desktop's language without, English
                        where the console does not speak it
  --no-as-run           keeps no record of what was on air; without it there is one a day in AS-RUN, in the folder
  --theme NAME          dark, light or high-contrast; without it the one shown last
  --touch               makes all that is pressed large enough for fingers, as with a touch screen
  --control HOST:PORT   lets HTTP and web sockets control the console, e.g. 127.0.0.1:7700; a page for tablets is at /
  --control-token FILE  asks them for the token in this file; needed on an address that others reach
  --control-cert FILE   a certificate, and
  --control-key FILE    its key: the connections are encrypted
  --osc HOST:PORT       lets OSC control the console, e.g. 127.0.0.1:7701
  --osc-allow ADDRESS   hears this computer, too; repeatable, needed on an address that others reach
  --help                this text
  --version             the program's version

  /PREVIEW              starts the preview instance: no game feed
  CONNECTION            a number: the database connection to propose; 1 without
)"_s;

// All but where the error log stands. Throws UsageError.
CardsApp::Options readOptions(const CommandLine& line) {
    line.check();
    CardsApp::Options wanted;
    wanted.appFolder = line.appFolder();
    if (const auto codePage = line.codePage(u"--codepage")) wanted.files = TextFiles(*codePage);
    wanted.feedPort = line.port(u"--feed-port").value_or(wanted.feedPort);
    wanted.pack = line.value(u"--pack").value_or(QString());
    if (const auto number = line.number(u"--connection", 0, INT16_MAX))
        wanted.connection = static_cast<qint16>(*number);
    wanted.querySeconds = line.number(u"--query-seconds", 1, Patience::kMostSeconds).value_or(wanted.querySeconds);
    wanted.main = line.hostPort(u"--main");
    wanted.remote = line.hostPort(u"--remote");
    wanted.connects = line.has(u"--connect");
    wanted.remoteControl = readRemoteOptions(line);
    wanted.keepsAsRun = !line.has(u"--no-as-run");
    wanted.touch = line.has(u"--touch");
    if (const auto word = line.value(u"--theme")) {
        wanted.theme = theme::themeOf(*word);
        if (!wanted.theme) throw UsageError{u"--theme takes dark, light or high-contrast"_s};
    }
    if (wanted.connects && !wanted.main && !wanted.remote) {
        throw UsageError{u"--connect takes --main or --remote beside it"_s};
    }
    wanted.commandLine = line.restText();
    return wanted;
}

// Throws UsageError.
QString uiLanguage(const CommandLine& line) {
    const auto asked = line.value(u"--language-ui");
    if (!asked) return UiLanguage::firstSpoken(QLocale::system().uiLanguages());
    const QStringList known = UiLanguage::all();
    if (!known.contains(*asked)) throw UsageError{u"--language-ui takes "_s + known.join(u" or "_s)};
    return *asked;
}

// What needs no display is answered before one is looked for. Gives whether that was all.
bool isAnswered(const CommandLine& asked) {
    QTextStream out(stdout);
    if (asked.has(u"--help")) {
        out << kHelp;
        return true;
    }
    if (asked.has(u"--version")) {
        out << "zelvor-cards " ZELVOR_VERSION "\n";
        return true;
    }
    return false;
}

// Works on the user's own folder where that is wanted, or where no other is named and the program was installed; makes
// it the first time. Gives what went wrong, in words; empty when all is well.
QString chooseFolder(const CommandLine& line, QString& folder) {
    const QString programFolder = QApplication::applicationDirPath();
    const bool namesNone = !line.has(u"--user-folder") && !line.has(u"--app-folder");
    if (!line.has(u"--user-folder") && !(namesNone && worksOnUserFolder(programFolder))) return {};
    folder = userFolder();
    return makeUserFolder(folder, installedDemo(programFolder));
}

}  // namespace

int runCards(int argc, char* argv[]) {
    QStringList words;
    for (int i = 1; i < argc; ++i) words += QString::fromLocal8Bit(argv[i]);
    const std::vector<CommandLine::Option> options = allOptions();
    if (isAnswered(CommandLine(words, options))) return 0;

    const std::future<void> fontFiles = readFontFiles();
    QApplication application(argc, argv);
    const std::future<void> fontList = readFontList(fontFiles);
    // Not before: without a display Qt ends the program with its own words, which is no crash.
    dumpCrashes();
    QGuiApplication::setDesktopFileName(u"zelvor-cards"_s);
    // Servers and feeds stand beside the console: the system is not asked which proxy leads to them, and not waited
    // for.
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    const CommandLine line(QApplication::arguments().mid(1), options);
    CardsApp::Options wanted;
    QString language;
    try {
        wanted = readOptions(line);
        language = uiLanguage(line);
    } catch (const UsageError& error) {
        QTextStream(stderr) << error.line(u"zelvor-cards"_s);
        return UsageError::kExitStatus;
    }
    const UiLanguage spoken(language);
    const QString fault = chooseFolder(line, wanted.appFolder);
    if (!fault.isEmpty()) {
        // Started from the desktop, it has no terminal to say it in.
        QMessageBox::critical(nullptr, u"Zelvor Cards"_s, fault);
        return kNoFolder;
    }
    dumpCrashes(QFile::encodeName(wanted.appFolder).toStdString());
    wanted.errorLog = errorLogPath(QApplication::applicationFilePath(), wanted.appFolder);

    theme::prepare(application);
    const Termination termination;  // outlives the console, whose end takes a while
    CardsApp app(wanted);
    QObject::connect(&termination, &Termination::wanted, &app.program().closing, &Closing::begin);
    // Not by the last window: after its answer the first question is that.
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(
        &app.program().closing, &Closing::begun, &application, [] { QApplication::exit(); }, Qt::QueuedConnection);
    QTimer::singleShot(0, &app, &CardsApp::start);
    // Not QApplication's own, which would wait for the desktop's bus before the first question.
    return QCoreApplication::exec();
}

}  // namespace zelvor
