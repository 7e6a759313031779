#include <algorithm>

#include "base/text_search.h"
#include "engine/card_run.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

// Packs write single quotes where the command line needs double ones.
QString commandLine(const Arguments& args) {
    // Without a branch, so that compilers take many characters at a time.
    const QString& written = args.text();
    QString line(written.size(), Qt::Uninitialized);
    std::transform(written.begin(), written.end(), line.begin(), [](QChar c) { return c == u'\'' ? u'"' : c; });
    return line;
}

void CSPSEND(CardRun& run, const Arguments& args) {
    QString line = commandLine(args);
    if (holdsAny(line, u'!')) line.replace(u"!!POC!!"_s, run.state().preview ? u"2"_s : u"1"_s);
    run.engine().sendLine(LinkId::Main, line, run.asker());
    run.goOn();
}

void CSPSENDREMOTE(CardRun& run, const Arguments& args) {
    run.engine().sendLine(LinkId::Remote, commandLine(args), run.asker());
    run.goOn();
}

void WRITELOG(CardRun& run, const Arguments& args) {
    if (run.ports().notes.logging()) run.ports().notes.writeLog(u"-CARDLOG-:"_s + args.text());
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kGraphicsCommands{
    Command{u"CSPSEND", CSPSEND, Argument::Expanded, u"command line", u"sends a line to the main graphics server",
            roles(Role::CommandLine)},
    Command{u"CSPSENDREMOTE", CSPSENDREMOTE, Argument::Expanded, u"command line",
            u"sends a line to the remote graphics server", roles(Role::CommandLine)},
    Command{u"WRITELOG", WRITELOG, Argument::Expanded, u"text", u"writes a line to the log file"},
};

}  // namespace

std::span<const Command> graphics() {
    return kGraphicsCommands;
}

}  // namespace zelvor::commands
