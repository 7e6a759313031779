#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "evaluate.h"
#include "expr/cls_formula.h"
#include "expr/constants.h"

namespace zelvor::expr {
namespace {

TEST(Functions, GiveTheirValues) {
    clsFormula formula;
    expectValues(
        formula, "Sgn(-5)+Sgn(0) -> -1", "Fix(-2.7)*10+Int(-2.7)+Neg(3)*100 -> -323", "Mod(-7,3) -> -1",
        "Mod(7,-3) -> 1", "Root(16,-4) -> 0.5", "Rnd(0) -> 0", "Round(2.5,0) -> 2", "Round(-0.125,2) -> -0.12",
        "Round(2.675,2) -> 2.68", "Round(1.005,2) -> 1", "Round(1234.5,-2) -> 1200", "Round(99.96,1) -> 100",
        "Round(0.5,0) -> 0", "Round(7,-1) -> 10", "Round(1e300,2) -> 1e300", "Round(1.23456789,300) -> 1.23456789",
        "And(2,0) -> 0", "Or(2,0) -> 1", "Xor(2,3) -> 0", "Nand(1,1) -> 0", "Nor(0,0) -> 1", "NXor(2,3) -> 1",
        "Not(0) -> 1", "gcd(12,-18,27) -> 3", "mcd(0,0) -> 0", "lcm(4,6,10) -> 60", "mcm(4,0) -> 0",
        "Comb(5,0)+0! -> 2", "min(3,-1,2) -> -1", "mean(1,2,6) -> 3", "meang(0,5) -> 0", "var(1,2,3,4)*3 -> 5",
        "varp(1,2,3,4)*4 -> 5", "stdevp(1,3) -> 1", "varp(7) -> 0", "DBinom(0,4,0) -> 1", "DPoisson(0,0) -> 1",
        "CPoisson(2,0)+CPoisson(1e5,0) -> 2", "GammaI(1e5,1e-9)+Gamma(-12345.5) -> 0", "DBinom(0,0,0.5) -> 1",
        "PolyLe(2,0) -> 1", "HypGeom(-2,3,-4,2) -> 8", "DateSerial(1899,12,30) -> 0", "DateSerial(2024,2,30) -> 45352",
        "Year(DateSerial(29,13,1)) * 10000 + Year(DateSerial(30,1,1)) -> 20301930", "DateSerial(2024,14,1) -> 45689",
        "Year(45352.5)*10000+Month(45352)*100+Day(45352) -> 20240301", "TimeSerial(18,30,0) -> 0.770833333333333370",
        "Hour(TimeSerial(18,59,7))*10000+Minute(TimeSerial(18,59,7))*100+Second(TimeSerial(18,59,7)) -> 185907",
        "Day(DateSerial(2024,1,1)+TimeSerial(23,59,59)) -> 1", "Year(-1.5) -> 1899",
        "Day(-1.25)*100+Hour(-1.25) -> 2906", "Hour(1-1e-9)+Day(1-1e-9) -> 31");
}

// Each waveform over one period of 8, a step of 1, and the same one period earlier and a thousand later.
TEST(Functions, DrawWaves) {
    const struct {
        const char* text;
        double values[8];
    } cases[] = {
        {"wtri(t,8)", {0, 0.5, 1, 0.5, 0, -0.5, -1, -0.5}},
        {"wsqr(t,8)", {1, 1, 1, 1, -1, -1, -1, -1}},
        {"wsaw(t,8)", {-1, -0.75, -0.5, -0.25, 0, 0.25, 0.5, 0.75}},
        {"wraise(t,8)", {0, 0.125, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875}},
        {"wparab(t,8)", {0, 0.75, 1, 0.75, 0, -0.75, -1, -0.75}},
        {"wrect(t,8,0.25)", {1, 1, -1, -1, -1, -1, -1, -1}},
        {"wtrapez(t,8,0.5)", {0, 1, 1, 1, 0, -1, -1, -1}},
        {"wtrapez(t,8,1)", {1, 1, 1, 1, -1, -1, -1, -1}},
        {"wlin(t,8,0.5)", {0, 0.25, 0.5, 0.75, 0, 0, 0, 0}},
        {"wpulse(t,8,0.25)", {1, 1, 0, 0, 0, 0, 0, 0}},
        {"wsteps(t,8,3)*2", {0, 0, 0, 1, 1, 1, 2, 2}},
        {"wexp(t,8,ln(256))", {1, 0.5, 0.25, 0.125, 0.0625, 0.03125, 0.015625, 0.0078125}},
        {"wexpb(t,8,ln(16))", {1, 0.5, 0.25, 0.125, -1, -0.5, -0.25, -0.125}},
        {"wpulsef(t,8,ln(256))*17", {1, 9, 13, 15, 16, 8, 4, 2}},
        {"wripple(t,8,ln(256))^2",
         {1, 0.853553390593274, 0.5, 0.146446609406726, 0.00390625, 0.146446609406726, 0.5, 0.853553390593274}},
        {"wring(t,8,ln(256),1/4)", {0, 0.5, 0, -0.125, 0, 0.03125, 0, -0.0078125}},
        {"wam(t,1/4,1/8,0.5)",
         {0, 1.35355339059327, 0, -1.35355339059327, 0, 0.646446609406726, 0, -0.646446609406726}},
        {"wfm(t,1/8,1/4,pi/2)",
         {0, 0.707106781186548, 1, 0.707106781186548, 0, -0.707106781186548, -1, -0.707106781186548}},
    };
    clsFormula formula;
    for (const auto& [text, values] : cases) {
        ASSERT_TRUE(formula.StoreExpression(text));
        for (int t = 0; t < 8; ++t) {
            for (const int shift : {0, -8, 8000})
                EXPECT_NEAR(formula.Eval1(t + shift), values[t], 1e-12) << text << " at " << t + shift;
        }
    }
}

TEST(Functions, FailOutsideTheirDomain) {
    // Every function of a row with every list of arguments of that row.
    clsFormula formula;
    const auto expectErrors = [&formula](const std::string& row) {
        std::istringstream names(row.substr(0, row.find(':')));
        for (std::string name; names >> name;) {
            std::istringstream lists(row.substr(row.find(':') + 1));
            for (std::string list; lists >> list;) {
                const std::string text = name + "(" + list + ")";
                ASSERT_TRUE(formula.StoreExpression(text)) << text << ": " << formula.ErrorDescription();
                EXPECT_EQ(formula.Eval(), 0) << text;
                EXPECT_GE(formula.ErrorID(), 14) << text;
                EXPECT_LE(formula.ErrorID(), 17) << text;
            }
        }
    };
    const auto all = [&](const auto&... rows) { (expectErrors(rows), ...); };
    all("Ln csc cot csch coth acsch asech asec Gamma Digamma Ei Ci Y0: 0", "Sqr Log Fact Psi Ci K0 Gammaln: -1",
        "Asin Acos asech: 1.1 -1.1", "Atanh acoth Zeta var stdev: 1", "Acosh acsc: 0.5", "Exp Cosh: 711",
        "Fact: 2.5 171", "Gamma: -2 172", "Year: 1e9 -1e9", "Second: -700000", "LogN: 2,1 2,0", "Root: -4,2 2,0 0,-1",
        "Comb: 3,4 3.5,1 2000,1000", "Perm: 3,-1", "gcd: 1.5,2", "lcm: 1e15,1e15-1", "meang: -1,2", "sum: 1e308,1e308",
        "DPoisson PolyLe: 1,-1", "CPoisson: -1,1", "Beta: 0,1", "Round PolyHe: 1,0.5", "BesselJ BesselI: -1,0.5 0,-0.5",
        "DNorm CNorm: 0,0,0 0,0,-1", "DBinom CBinom: 1.5,2,0.5 3,2,0.5 1,2,1.5", "GammaI: -1,1 0,0 1,-1",
        "BetaI: 2,1,1 0.5,-1,1", "Ein: 0,0 0,1 -1,2 1,1.5", "BesselK: 0,1", "BesselY: -1,0", "PolyLa: 1,1001",
        "PolyHe: 100,1000", "elli1: 1,2 pi2,1", "elli2: 2,3", "HypGeom: 1,1,0,0.5 1,1,2,1 1,1,2,1.5 1e6,1e6,1,0.9",
        "Mod: 1,0", "wtri wsqr wsaw wraise wparab: 1,0 1,-1", "wrect wtrapez wlin wpulse: 1,0,0.5 1,1,-0.1 1,1,2",
        "wsteps: 1,1,1 1,0,4", "wexp wexpb wpulsef wripple: 1,0,1 1,1,-1", "wpulsef: 1,1,0", "wring: 1,0,1,1",
        "Clip: 1,3,2", "BesselI BesselJ BesselK BesselY: 1,2000000000", "DateSerial: -1,1,1 10000,1,1 2024,1.5,1",
        "TimeSerial: 1e12,0,0");
}

TEST(Functions, WarnBesideTheResult) {
    const std::pair<const char*, const char*> cases[] = {
        {"HypGeom(1,1,2,1.5)", "The hypergeometric series is divergent"},
        {"HypGeom(-40,41,0.5,0.5)", "Warning! You should check the accuracy"},
        {"HypGeom(43,60,1e11,1)", "Warning! You should check the accuracy"},
        {"GammaI(1e9,1e9)", "a and/or x too large"},
        {"HypGeom(1,1,2,0.5)", ""},
    };
    clsFormula formula;
    for (const auto& [text, warning] : cases) {
        ASSERT_TRUE(formula.StoreExpression(text));
        formula.Eval();
        EXPECT_EQ(formula.Warning(), warning) << text;
    }
}

TEST(Functions, AreKnownByAnyCaseAndByTheirArity) {
    clsFormula formula;
    EXPECT_EQ(functions().size(), 133U);
    for (const Function& function : functions()) {
        std::string shout(function.name);
        for (char& c : shout) c = static_cast<char>(std::toupper(c));
        EXPECT_EQ(findFunction(shout), &function) << shout;
        if (function.name == "dec") continue;
        std::string call = shout + "(1";
        for (int i = 1; i < function.arity; ++i) call += ",1";
        EXPECT_TRUE(formula.StoreExpression(call + ")")) << call;
        EXPECT_EQ(formula.StoreExpression(call + ",1)"), function.arity == kAnyNumber) << call;
    }
    EXPECT_EQ(findFunction("nothing"), nullptr);
}

TEST(Functions, StandBesideConstantsAndMoments) {
    clsFormula formula([] { return 45352.75; });
    EXPECT_EQ(evaluate(formula, "DATE"), 45352);
    EXPECT_EQ(evaluate(formula, "TIME*24"), 18);
    EXPECT_EQ(evaluate(formula, "NOW-DATE"), 0.75);
    EXPECT_FALSE(formula.StoreExpression("date(1)"));
    EXPECT_EQ(evaluate(formula, "R"), 8.31451);
    // Light from its two field constants.
    EXPECT_NEAR(evaluate(formula, "1/sqr(eps*mu)/c"), 1, 1e-9);
    // Other spellings are variables.
    ASSERT_TRUE(formula.StoreExpression("Pi+date+r+E"));
    EXPECT_EQ(formula.VarTop(), 4);
}

TEST(Functions, DrawRandomNumbersBelowTheirArgument) {
    clsFormula formula;
    ASSERT_TRUE(formula.StoreExpression("rnd(6)"));
    double sum = 0;
    for (int i = 0; i < 10000; ++i) {
        const double value = formula.Eval();
        ASSERT_GE(value, 0);
        ASSERT_LT(value, 6);
        sum += value;
    }
    // The mean of so many draws is off by more than this once in 10^17 runs.
    EXPECT_NEAR(sum / 10000, 3, 0.15);
}

}  // namespace
}  // namespace zelvor::expr
