#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "app_calc/calc_command.h"

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
        EXPECT_EQ(runCalc(arguments, outText, errText), status) << arguments.back();
        EXPECT_EQ(outText.str(), out) << arguments.back();
        EXPECT_EQ(errText.str(), err) << arguments.back();
    }
}

TEST(Calc, RefusesWrongUsage) {
    const std::vector<std::vector<std::string>> cases = {
        {},
        {"1", "2"},
        {"--dump"},
        {"--what", "1"},
        {"--var"},
        {"--var", "x", "1"},
        {"--var", "=1", "1"},
        {"--var", "x=1y", "x"},
        {"--var", "x=inf", "x"},
        {"--angle", "TURN", "1"},
        {"--digits", "0", "1"},
        {"--digits", "18", "1"},
    };
    for (const auto& arguments : cases) {
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(runCalc(arguments, out, err), 2);
        EXPECT_EQ(out.str(), "");
        EXPECT_TRUE(err.str().starts_with("zelvor calc: ")) << err.str();
    }
}

TEST(Calc, ListsTheFunctions) {
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(runCalc(std::vector<std::string>{"--list"}, out, err), 0);
    const std::string list = out.str();
    EXPECT_TRUE(list.starts_with("Elementary\n  Abs(x) ")) << list;
    EXPECT_NE(list.find("\n\nDates\n  Year(date) "), std::string::npos);
    EXPECT_NE(list.find("  Comb(n, k) "), std::string::npos);
}

}  // namespace
}  // namespace zelvor
