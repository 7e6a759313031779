#include <QCoreApplication>
#include <cstdio>

#include "command_line/command_line.h"
#include "crash/crash_dump.h"
#include "rehearsal/options.h"
#include "rehearsal/page_server.h"
#include "system/termination.h"

using namespace Qt::StringLiterals;
using namespace zelvor::rehearsal;

namespace {

constexpr int kExitFailure = 1;

void print(std::FILE* stream, const QString& text) {
    std::fputs(qPrintable(text), stream);
    std::fflush(stream);
}

int reportPort(const QHostAddress& address, quint16 port, const QString& reason, const QString& option) {
    print(stderr,
          u"zelvor-rehearsal: port %1 on %2 cannot be used: %3.\n"
          "Another rehearsal or graphics server may be running there: end it, or choose another port with %4.\n"_s
              .arg(port)
              .arg(address.toString(), reason, option));
    return kExitFailure;
}

}  // namespace

int main(int argc, char** argv) {
    zelvor::dumpCrashes();
    const QCoreApplication application(argc, argv);
    Options options;
    try {
        options = readOptions(QCoreApplication::arguments().mid(1));
    } catch (const zelvor::UsageError& error) {
        print(stderr, error.line(u"zelvor-rehearsal"_s));
        return zelvor::UsageError::kExitStatus;
    }
    if (!options.wantedText.isEmpty()) {
        print(stdout, options.wantedText);
        return 0;
    }

    const zelvor::Termination termination;
    const TemplateFolder folder(options.templates);
    Stage stage(options.channels, options.mode);
    Journal journal;
    AmcpInterpreter interpreter(stage, folder);
    AmcpServer amcp(interpreter, journal);
    ViewerFeed feed(stage, journal, amcp);
    PageServer page(folder, feed);

    if (!amcp.listen(options.bind, options.amcpPort)) {
        return reportPort(options.bind, options.amcpPort, amcp.errorString(), u"--amcp PORT"_s);
    }
    if (const QString reason = page.start(options.bind, options.httpPort); !reason.isEmpty()) {
        return reportPort(options.bind, options.httpPort, reason, u"--http PORT"_s);
    }
    print(stdout, u"AMCP %1\nPage http://%2:%3/\n"_s.arg(amcp.address(), options.bind.toString()).arg(page.port()));
    return QCoreApplication::exec();
}
