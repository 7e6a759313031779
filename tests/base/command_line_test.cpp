#include "command_line/command_line.h"

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

const std::array kOptions{CommandLine::Option{u"--app-folder"_s, true},
                          CommandLine::Option{u"--set"_s, true},
                          CommandLine::Option{u"--yes"_s},
                          CommandLine::Option{u"--no"_s},
                          CommandLine::Option{u"--port"_s, true},
                          CommandLine::Option{u"--to"_s, true},
                          CommandLine::Option{u"--codepage"_s, true},
                          CommandLine::Option{u"-h"_s}};

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
    const std::pair<QStringList, QString> cases[] = {
        {{u"--odd"_s, u"--set"_s}, u"unknown option --odd"_s},
        {{u"--yes=1"_s}, u"unknown option --yes=1"_s},
        {{u"--no"_s, u"--set"_s}, u"--set takes a value"_s},
        {{u"--port"_s, u"65536"_s}, u"--port takes a number from 0 to 65535, not 65536"_s},
        {{u"--port=x"_s, u"--port"_s, u"1"_s}, u"--port takes a number from 0 to 65535, not x"_s},
        {{u"--port=0"_s, u"--to=localhost:65535"_s, u"--codepage=ISO-8859-7"_s}, {}},
        {{u"--to=localhost"_s}, u"--to takes HOST:PORT, not localhost"_s},
        {{u"--to=localhost:0"_s}, u"--to takes HOST:PORT, not localhost:0"_s},
        {{u"--to=:5250"_s}, u"--to takes HOST:PORT, not :5250"_s},
        {{u"--codepage=greek-ish"_s}, u"--codepage takes a code page such as windows-1253, not greek-ish"_s},
    };
    for (const auto& [arguments, fault] : cases) EXPECT_EQ(faultOf(arguments), fault);
}

}  // namespace
}  // namespace zelvor
