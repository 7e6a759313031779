#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "app_calc/calc_command.h"
#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

TEST(Calc, PrintsResultsAndErrors) {
    const struct {
        std::vector<std::string> arguments;
        int status;
        const char* out;
        const char* err;
    } cases[] = {
        {{"--var", "x=3", "--var", "b_1=-1e2", "2x+b_1"}, 0, "-94\n", ""},
        {{"--", "--3"}, 0, "3\n", ""},
        {{"1/3"}, 0, "0.333333333333333\n", ""},
        {{"--digits", "17", "0.1"}, 0, "0.10000000000000001\n", ""},
        {{"10^15"}, 0, "1E+15\n", ""},
        {{"10^14"}, 0, "100000000000000\n", ""},
        {{"1/10^7"}, 0, "1E-07\n", ""},
        {{"--angle", "DEG", "sin(90)"}, 0, "1\n", ""},
        {{"--angle", "deg", "--dms", "sin(30d0m)"}, 0, "0.5\n", ""},
        {{"--units", "5mV*2"}, 0, "0.01\n", ""},
        {{"--dump", "1+2"},
         0,
         "Fun  ArgTop  A1 Idx  Arg1 Name  Arg1 Value  A2 Idx  Arg2 Name  Arg2 Value  ArgOf  ArgIdx  Value  PriLvl  "
         "PosInExpr  PriIdx  Cond\n"
         "+    2               (number)   1                   (number)   2                          3      2       "
         "2          1       0\n"
         "3\n",
         ""},
        {{"GammaI(1e9,2e9)"}, 0, "1\n", "a and/or x too large\n"},
        {{"1+2)"}, 1, "", "Too many closing brackets at pos: 4\n  1+2)\n     ^\n"},
        {{"ä\n+1/0"}, 1, "", "Variable < ä > not assigned\n  ä +1/0\n  ^\n"},
        {{std::string(100, ' ') + "#"},
         1,
         "",
         "Syntax error at pos: 101\n                                      #\n"
         "                                      ^\n"},
        {{"--var", "y=1", "2"}, 1, "", "Variable not found: y\n"},
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
    const std::pair<QStringList, QString> cases[] = {
        {{}, u"no formula"_s},
        {{u"1"_s, u"2"_s}, u"more than one formula; put it in quotes"_s},
        {{u"--dump"_s}, u"no formula"_s},
        {{u"--what"_s, u"1"_s}, u"unknown option --what"_s},
        {{u"--var"_s, u"x"_s, u"1"_s}, u"--var takes NAME=VALUE, not x"_s},
        {{u"--var"_s, u"=1"_s, u"1"_s}, u"--var takes NAME=VALUE, not =1"_s},
        {{u"--var=x=1y"_s, u"x"_s}, u"--var takes NAME=VALUE, not x=1y"_s},
        {{u"--var"_s, u"x=inf"_s, u"x"_s}, u"--var takes NAME=VALUE, not x=inf"_s},
        {{u"--angle"_s, u"TURN"_s, u"1"_s}, u"--angle takes RAD, DEG or GRAD, not TURN"_s},
        {{u"--digits"_s, u"0"_s, u"1"_s}, u"--digits takes a number from 1 to 17, not 0"_s},
        {{u"--digits"_s, u"18"_s, u"1"_s}, u"--digits takes a number from 1 to 17, not 18"_s},
    };
    for (const auto& [arguments, fault] : cases) {
        std::ostringstream out;
        try {
            runCalc(arguments, out, out);
            ADD_FAILURE() << fault.toStdString();
        } catch (const UsageError& error) {
            EXPECT_EQ(error.text, fault);
        }
        EXPECT_EQ(out.str(), "");
    }
}

TEST(Calc, ListsTheFunctions) {
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(runCalc({u"--list"_s}, out, err), 0);
    const std::string list = out.str();
    EXPECT_TRUE(list.starts_with("Elementary\n  Abs(x) ")) << list;
    EXPECT_NE(list.find("\n\nDates\n  Year(date) "), std::string::npos);
    EXPECT_NE(list.find("  Comb(n, k) "), std::string::npos);
}

}  // namespace
}  // namespace zelvor
