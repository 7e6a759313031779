// The operator's console.

#include <QApplication>
#include <QTextStream>
#include <QTimer>
#include <array>
#include <cstdio>

#include "app_cards/cards_app.h"
#include "base/command_line.h"
#include "console/theme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kUsageError = 2;

const QString kHelp =
    uR"(usage: zelvor-cards [options] [/PREVIEW] [CONNECTION]

  --app-folder DIR   the folder that holds MODULES; the program's own folder without
  --codepage NAME    read and write text files in this code page, e.g. windows-1253
  --feed-port N      hears the game feed on this UDP port, 0 for any free one; 7699 without
  --help             this text
  --version          the program's version

  /PREVIEW           starts the preview instance: no game feed
  CONNECTION         a number: the database connection to propose; 1 without
)"_s;

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const std::array options{
        zelvor::CommandLine::Option{u"--app-folder"_s, true}, zelvor::CommandLine::Option{u"--codepage"_s, true},
        zelvor::CommandLine::Option{u"--feed-port"_s, true}, zelvor::CommandLine::Option{u"--help"_s, false},
        zelvor::CommandLine::Option{u"--version"_s, false}};
    const zelvor::CommandLine line(QApplication::arguments().mid(1), options);
    QTextStream out(stdout);
    QTextStream err(stderr);
    if (line.has(u"--help")) {
        out << kHelp;
        return 0;
    }
    if (line.has(u"--version")) {
        out << "zelvor-cards " ZELVOR_VERSION "\n";
        return 0;
    }
    if (!line.optionWithoutValue().isEmpty()) {
        err << "zelvor-cards: " << line.optionWithoutValue() << " needs a value\n";
        return kUsageError;
    }
    zelvor::CardsApp::Options wanted;
    if (const auto codePage = line.value(u"--codepage")) {
        const auto files = zelvor::TextFiles::withCodePage(*codePage);
        if (!files) {
            err << "zelvor-cards: no such code page: " << *codePage << '\n';
            return kUsageError;
        }
        wanted.files = *files;
    }
    if (const auto port = line.value(u"--feed-port")) {
        bool isPort = false;
        wanted.feedPort = port->toUShort(&isPort);
        if (!isPort) {
            err << "zelvor-cards: --feed-port takes a number from 0 to 65535, not " << *port << '\n';
            return kUsageError;
        }
    }
    wanted.appFolder = line.value(u"--app-folder").value_or(QApplication::applicationDirPath());
    wanted.commandLine = line.restText();
    wanted.errorLog = zelvor::errorLogPath(QApplication::applicationFilePath(), wanted.appFolder);

    zelvor::theme::apply(application);
    zelvor::CardsApp app(wanted);
    app.window().showMaximized();
    QTimer::singleShot(0, &app, &zelvor::CardsApp::start);
    return QApplication::exec();
}
