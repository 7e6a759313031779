#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "app_calc/calc_command.h"
#include "command_line/command_line.h"
#include "support/cases.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

TEST(Calc, PrintsResultsAndErrors) {
    const std::tuple<std::vector<std::string>, int, const char*, const char*> cases[] = {
        {{"--var", "x=3", "--var", "b_1=-1e2", "2x+b_1"}, 0, "-94\n", ""},
        {{"--", "--3"}, 0, "3\n", ""},
        {{"1/3"}, 0, "0.333333333333333\n", ""},
        {{"--digits", "17", "0.1"}, 0, "0.10000000000000001\n", ""},
        {{"--angle", "DEG", "sin(90)"}, 0, "1\n", ""},
        {{"--angle", "deg", "--dms", "sin(30d0m)"}, 0, "0.5\n", ""},
        {{"--units", "5mV*2"}, 0, "0.01\n", ""},
        {{"GammaI(1e9,2e9)"}, 0, "1\n", "a and/or x too large\n"},
        {{"1+2)"}, 1, "", "Too many closing brackets at pos: 4\n  1+2)\n     ^\n"},
        {{"ä\n+1/0"}, 1, "", "Variable < ä > not assigned\n  ä +1/0\n  ^\n"},
        {{std::string(100, ' ') + "#"},
         1,
         "",
         "Syntax error at pos: 101\n                                      #\n"
         "                                      ^\n"},
        {{"--var", "y=1", "2"}, 0, "2\n", "Variable not found: y\n"},
        {{"--var", "X=1", "2x"}, 1, "", "Variable not found: X\nVariable < x > not assigned\n  2x\n   ^\n"},
    };
    for (const auto& [arguments, status, out, err] : cases) {
        std::ostringstream outText;
        std::ostringstream errText;
        QStringList words;
        for (const std::string& argument : arguments) words += QString::fromStdString(argument);
        EXPECT_EQ(runCalc(words, outText, errText), status) << arguments.back();
        EXPECT_EQ(outText.str(), out) << arguments.back();
        EXPECT_EQ(errText.str(), err) << arguments.back();
    }
}

TEST(Calc, RefusesWrongUsage) {
    const auto refuses = [](const QString& line, const QString& fault) {
        std::ostringstream out;
        try {
            runCalc(line.split(u' ', Qt::SkipEmptyParts), out, out);
            ADD_FAILURE() << qPrintable(fault);
        } catch (const UsageError& error) {
            EXPECT_EQ(error.text, fault);
        }
        EXPECT_EQ(out.str(), "");
    };
    test::forCases(refuses, " -> no formula", "1 2 -> more than one formula; put it in quotes", "--dump -> no formula",
                   "--what 1 -> unknown option --what", "--var x 1 -> --var takes NAME=VALUE, not x",
                   "--var =1 1 -> --var takes NAME=VALUE, not =1", "--var=x=1y x -> --var takes NAME=VALUE, not x=1y",
                   "--var x=inf x -> --var takes NAME=VALUE, not x=inf",
                   "--angle TURN 1 -> --angle takes RAD, DEG or GRAD, not TURN",
                   "--digits 0 1 -> --digits takes a number from 1 to 17, not 0",
                   "--digits 18 1 -> --digits takes a number from 1 to 17, not 18");
}

TEST(Calc, DumpsItsTableAndListsTheFunctions) {
    std::ostringstream dump;
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(runCalc({u"--dump"_s, u"1+2"_s}, dump, err), 0);
    EXPECT_TRUE(dump.str().starts_with("Fun  ArgTop ") && dump.str().ends_with("\n3\n")) << dump.str();
    EXPECT_EQ(runCalc({u"--list"_s}, out, err), 0);
    const std::string list = out.str();
    EXPECT_TRUE(list.starts_with("Elementary\n  Abs(x) ")) << list;
    EXPECT_NE(list.find("\n\nDates\n  Year(date) "), std::string::npos);
    EXPECT_NE(list.find("  Comb(n, k) "), std::string::npos);
}

}  // namespace
}  // namespace zelvor
