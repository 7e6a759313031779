#include "command_line/command_line.h"

#include <gtest/gtest.h>

#include <array>

#include "support/cases.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

const std::array kOptions = [] {
    using Option = CommandLine::Option;
    return std::array{Option{u"--app-folder"_s, true},
                      Option{u"--set"_s, true},
                      Option{u"--yes"_s},
                      Option{u"--no"_s},
                      Option{u"--port"_s, true},
                      Option{u"--to"_s, true},
                      Option{u"--codepage"_s, true},
                      Option{u"-h"_s}};
}();

// What is wrong with the line as a program reads it; empty when nothing is.
QString faultOf(const QStringList& arguments) {
    const CommandLine line(arguments, kOptions);
    try {
        line.check();
        (void)line.port(u"--port");
        (void)line.hostPort(u"--to");
        (void)line.codePage(u"--codepage");
    } catch (const UsageError& error) {
        return error.text;
    }
    return {};
}

TEST(CommandLines, GiveTheirOptionsAndWhatIsLeft) {
    const CommandLine line({u"3"_s, u"--app-folder"_s, u"/preview"_s, u"--set=A=1"_s, u"--yes"_s, u"--no"_s, u"--set"_s,
                            u"B"_s, u"-style"_s, u"-"_s, u"--x/Preview"_s, u"-h"_s, u"--"_s, u"--yes"_s, u"--odd"_s},
                           kOptions);
    line.check();
    EXPECT_EQ(u"/preview"_s, line.value(u"--app-folder"));
    EXPECT_EQ((QStringList{u"A=1"_s, u"B"_s}), line.values(u"--set"));
    EXPECT_EQ(u"--no"_s, line.lastOf(std::array<QStringView, 2>{u"--yes", u"--no"}));
    EXPECT_TRUE(line.has(u"-h"));
    EXPECT_EQ(u"3 -style - --x/Preview --yes --odd"_s, line.restText());
    EXPECT_TRUE(isPreview(line.restText()));
    const auto address = CommandLine({u"--to"_s, u"a:b:5250"_s}, kOptions).hostPort(u"--to");
    EXPECT_EQ(address->host, u"a:b");
    EXPECT_EQ(address->port, 5250);
}

TEST(CommandLines, AreRefusedInOneWording) {
    test::forCases(
        [](const QString& line, const QString& fault) { EXPECT_EQ(faultOf(line.split(u' ')), fault); },
        "--odd --set -> unknown option --odd", "--yes=1 -> unknown option --yes=1", "--no --set -> --set takes a value",
        "--port 65536 -> --port takes a number from 0 to 65535, not 65536",
        "--port=x --port 1 -> --port takes a number from 0 to 65535, not x",
        "--port=0 --to=localhost:65535 --codepage=ISO-8859-7 -> ",
        "--to=localhost -> --to takes HOST:PORT, not localhost",
        "--to=localhost:0 -> --to takes HOST:PORT, not localhost:0", "--to=:5250 -> --to takes HOST:PORT, not :5250",
        "--codepage=greek-ish -> --codepage takes a code page such as windows-1253, not greek-ish");
}

}  // namespace
}  // namespace zelvor
