#include "rehearsal/options.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <array>

#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

const std::array kOptions{
    CommandLine::Option{u"--amcp"_s, true}, CommandLine::Option{u"--http"_s, true},
    CommandLine::Option{u"--bind"_s, true}, CommandLine::Option{u"--channels"_s, true},
    CommandLine::Option{u"--mode"_s, true}, CommandLine::Option{u"--templates"_s, true},
    CommandLine::Option{u"--help"_s},       CommandLine::Option{u"-h"_s},
    CommandLine::Option{u"--version"_s},    CommandLine::Option{u"-v"_s},
};

const QString kHelp =
    uR"(Usage: zelvor-rehearsal [options]
A graphics server for rehearsals: takes AMCP lines and shows the graphics on a page in a browser.

Options:
  --amcp <PORT>      Listen for AMCP on this port (5250); 0 takes a free one.
  --http <PORT>      Serve the page on this port (8250); 0 takes a free one.
  --bind <ADDRESS>   Listen on this address (127.0.0.1); 0.0.0.0 opens both
                     ports to the network.
  --channels <N>     Offer this many channels (2), 1 to 16.
  --mode <MODE>      Run all channels in this video mode (1080i5000), e.g.
                     720p5000.
  --templates <DIR>  Take HTML templates and pictures from this folder (the
                     demo's).
  -h, --help         Show this help.
  -v, --version      Show the version.
)"_s;

// The demo's templates: of the checkout, beside the program, or installed.
QString demoTemplates() {
    const QString program = QCoreApplication::applicationDirPath();
    for (const auto* place : {"/templates", "/../share/zelvor-cards/demo/templates"}) {
        QString folder = QDir::cleanPath(program + QLatin1StringView(place));
        if (QFileInfo(folder).isDir()) return folder;
    }
    return u"demo/templates"_s;
}

std::optional<VideoMode> modeNamed(const QString& text) {
    return videoModeNamed(text);
}

std::optional<QHostAddress> ipAddress(const QString& text) {
    const QHostAddress address(text);
    return address.isNull() ? std::nullopt : std::optional(address);
}

}  // namespace

Options readOptions(const QStringList& arguments) {
    const CommandLine line(arguments, kOptions);
    Options options;
    if (line.has(u"--help") || line.has(u"-h")) {
        options.wantedText = kHelp;
    } else if (line.has(u"--version") || line.has(u"-v")) {
        options.wantedText = u"zelvor-rehearsal " ZELVOR_VERSION "\n"_s;
    }
    if (!options.wantedText.isEmpty()) return options;
    line.check();
    if (!line.rest().isEmpty()) throw UsageError{u"not understood: "_s + line.rest().constFirst()};

    options.amcpPort = line.port(u"--amcp").value_or(options.amcpPort);
    options.httpPort = line.port(u"--http").value_or(options.httpPort);
    options.channels = line.number(u"--channels", 1, Options::kMaxChannels).value_or(options.channels);
    options.mode = line.read(u"--mode", u"a video mode such as 720p5000"_s, modeNamed).value_or(options.mode);
    options.bind = line.read(u"--bind", u"an IP address"_s, ipAddress).value_or(options.bind);
    options.templates = line.value(u"--templates").value_or(demoTemplates());
    if (!QFileInfo(options.templates).isDir()) {
        throw UsageError{u"there is no folder \"%1\"; name the folder of the templates with --templates DIR"_s.arg(
            options.templates)};
    }
    return options;
}

}  // namespace zelvor::rehearsal
