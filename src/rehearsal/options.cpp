#include "rehearsal/options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

// The option's value as a number from LOWEST to HIGHEST; another text becomes the fault, unless there already is one.
int number(const QCommandLineParser& parser, const QCommandLineOption& option, int lowest, int highest,
           QString& fault) {
    bool isNumber = false;
    const int value = parser.value(option).toInt(&isNumber);
    if ((!isNumber || value < lowest || value > highest) && fault.isEmpty()) {
        fault = u"--%1 takes a number from %2 to %3, not \"%4\"."_s.arg(option.names().first())
                    .arg(lowest)
                    .arg(highest)
                    .arg(parser.value(option));
    }
    return value;
}

// The demo's templates: of the checkout, beside the program, or installed.
QString demoTemplates() {
    const QString program = QCoreApplication::applicationDirPath();
    for (const auto* place : {"/templates", "/../share/zelvor-cards/demo/templates"}) {
        QString folder = QDir::cleanPath(program + QLatin1StringView(place));
        if (QFileInfo(folder).isDir()) return folder;
    }
    return u"demo/templates"_s;
}

}  // namespace

Options parseOptions(const QStringList& arguments) {
    constexpr int kMaxPort = 65535;
    Options options;
    const QCommandLineOption amcp(u"amcp"_s,
                                  u"Listen for AMCP on this port (%1); 0 takes a free one."_s.arg(Options::kAmcpPort),
                                  u"PORT"_s, QString::number(Options::kAmcpPort));
    const QCommandLineOption http(u"http"_s,
                                  u"Serve the page on this port (%1); 0 takes a free one."_s.arg(Options::kHttpPort),
                                  u"PORT"_s, QString::number(Options::kHttpPort));
    const QCommandLineOption bind(u"bind"_s,
                                  u"Listen on this address (127.0.0.1); 0.0.0.0 opens both ports to the network."_s,
                                  u"ADDRESS"_s, u"127.0.0.1"_s);
    const QCommandLineOption channels(
        u"channels"_s, u"Offer this many channels (2), 1 to %1."_s.arg(Options::kMaxChannels), u"N"_s, u"2"_s);
    const QCommandLineOption templates(u"templates"_s,
                                       u"Take HTML templates and pictures from this folder (the demo's)."_s, u"DIR"_s,
                                       demoTemplates());
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Show this help."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Show the version."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"A graphics server for rehearsals: takes AMCP lines and shows the graphics on a page in a browser."_s);
    parser.addOptions({amcp, http, bind, channels, templates, help, version});
    if (!parser.parse(arguments)) {
        options.fault = parser.errorText();
    } else if (!parser.positionalArguments().isEmpty()) {
        options.fault = u"\"%1\" is no option."_s.arg(parser.positionalArguments().first());
    } else if (parser.isSet(help)) {
        options.wantedText = parser.helpText();
    } else if (parser.isSet(version)) {
        options.wantedText = u"zelvor-rehearsal " ZELVOR_VERSION "\n"_s;
    }
    if (!options.fault.isEmpty() || !options.wantedText.isEmpty()) {
        return options;
    }

    options.amcpPort = static_cast<quint16>(number(parser, amcp, 0, kMaxPort, options.fault));
    options.httpPort = static_cast<quint16>(number(parser, http, 0, kMaxPort, options.fault));
    options.channels = number(parser, channels, 1, Options::kMaxChannels, options.fault);
    options.bind = QHostAddress(parser.value(bind));
    options.templates = parser.value(templates);
    if (options.fault.isEmpty() && options.bind.isNull()) {
        options.fault = u"--bind takes an IP address, not \"%1\"."_s.arg(parser.value(bind));
    }
    if (options.fault.isEmpty() && !QFileInfo(options.templates).isDir()) {
        options.fault = u"There is no folder \"%1\". Name the folder of the templates with --templates DIR."_s.arg(
            options.templates);
    }
    return options;
}

}  // namespace zelvor::rehearsal
