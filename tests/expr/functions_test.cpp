#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "expr/cls_formula.h"
#include "expr/constants.h"

namespace zelvor::expr {
namespace {

double evaluate(clsFormula& formula, std::string_view text) {
    EXPECT_TRUE(formula.StoreExpression(text)) << text << ": " << formula.ErrorDescription();
    const double value = formula.Eval();
    EXPECT_EQ(formula.ErrorID(), 0) << text << ": " << formula.ErrorDescription();
    return value;
}

TEST(Functions, GiveTheirValues) {
    const struct {
        const char* text;
        double value;
    } cases[] = {
        // Elementary
        {"Fix(-2.7)", -2},
        {"Int(-2.7)", -3},
        {"Sgn(-5)+Sgn(0)", -1},
        {"Neg(3)", -3},
        {"Mod(-7,3)", -1},
        {"Mod(7,-3)", 1},
        {"Mod(5.5,2)", 1.5},
        {"Root(-27,3)", -3},
        {"Root(16,-4)", 0.5},
        {"Cbr(-8)", -2},
        {"Log(1000)", 3},
        {"LogN(1000,10)", 3},
        {"Rnd(0)", 0},
        {"Round(2.5,0)", 2},
        {"Round(3.5,0)", 4},
        {"Round(-0.125,2)", -0.12},
        {"Round(2.675,2)", 2.68},
        {"Round(2.665,2)", 2.66},
        {"Round(1.005,2)", 1},
        {"Round(1234.5,-2)", 1200},
        {"Round(99.96,1)", 100},
        {"Round(0.5,0)", 0},
        {"Round(0.51,0)", 1},
        {"Round(7,-1)", 10},
        {"Round(7,-5)", 0},
        {"Round(1e300,2)", 1e300},
        {"Round(1.23456789,300)", 1.23456789},
        // Logic
        {"And(2,0)", 0},
        {"Or(2,0)", 1},
        {"Xor(2,3)", 0},
        {"Nand(1,1)", 0},
        {"Nor(0,0)", 1},
        {"NXor(2,3)", 1},
        {"Not(0)", 1},
        {"Not(0.5)", 0},
        // Whole numbers
        {"gcd(12,-18,27)", 3},
        {"mcd(0,0)", 0},
        {"lcm(4,6,10)", 60},
        {"mcm(4,0)", 0},
        {"Comb(5,0)", 1},
        {"0!", 1},
        // Statistics
        {"min(3,-1,2)", -1},
        {"mean(1,2,6)", 3},
        {"meanq(3,4,5)^2*3", 50},
        {"meang(2,8)", 4},
        {"meang(0,5)", 0},
        {"var(1,2,3,4)*3", 5},
        {"varp(1,2,3,4)*4", 5},
        {"stdevp(1,3)", 1},
        {"varp(7)", 0},
        // Probability
        {"DBinom(0,4,0)", 1},
        {"DBinom(4,4,1)", 1},
        {"CBinom(4,4,0.3)", 1},
        {"DPoisson(0,0)", 1},
        {"CPoisson(2,0)", 1},
        {"DBinom(0,0,0.5)", 1},
        {"DBinom(1,1,0.25)", 0.25},
        // Polynomials
        {"PolyLe(2,0)", 1},
        {"PolyLe(2,1)", 2},
        {"PolyLe(2,2)", 5.5},
        {"PolyHe(2,2)", 14},
        {"PolyCh(2,2)", 7},
        {"PolyLa(2,2)", -1},
        {"HypGeom(-2,3,-4,2)", 8},
        // Dates
        {"DateSerial(1899,12,30)", 0},
        {"DateSerial(2024,2,30)", 45352},
        {"DateSerial(2024,0,1)", 45261},
        {"DateSerial(2024,14,1)", 45689},
        {"Year(45352.5)", 2024},
        {"Month(45352)", 3},
        {"Day(45352)", 1},
        {"TimeSerial(18,30,0)", 0.770833333333333370},
        {"Hour(0.75)", 18},
        {"Minute(TimeSerial(1,59,7))", 59},
        {"Second(TimeSerial(1,59,7))", 7},
        {"Day(DateSerial(2024,1,1)+TimeSerial(23,59,59))", 1},
        {"Year(-1.5)", 1899},
        {"Hour(1-1e-9)", 0},
        {"Day(1-1e-9)", 31},
    };
    clsFormula formula;
    for (const auto& [text, value] : cases) EXPECT_DOUBLE_EQ(evaluate(formula, text), value) << text;
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
            for (const int shift : {0, -8, 8000}) {
                EXPECT_NEAR(formula.Eval1(t + shift), values[t], 1e-12) << text << " at " << t + shift;
            }
        }
    }
}

TEST(Functions, FailOutsideTheirDomain) {
    clsFormula formula;
    for (const char* const text : {"Sqr(-1)",
                                   "Ln(0)",
                                   "Log(-1)",
                                   "LogN(2,1)",
                                   "LogN(2,0)",
                                   "Root(-4,2)",
                                   "Root(2,0)",
                                   "Root(0,-1)",
                                   "Mod(1,0)",
                                   "Round(1,0.5)",
                                   "Asin(1.1)",
                                   "Acos(-1.1)",
                                   "acsc(0.5)",
                                   "asec(0)",
                                   "csc(0)",
                                   "cot(0)",
                                   "Atanh(1)",
                                   "Acosh(0.9)",
                                   "csch(0)",
                                   "coth(0)",
                                   "acsch(0)",
                                   "asech(0)",
                                   "asech(1.1)",
                                   "acoth(1)",
                                   "Exp(710)",
                                   "Cosh(711)",
                                   "Fact(2.5)",
                                   "Fact(-1)",
                                   "Fact(171)",
                                   "Comb(3,4)",
                                   "Comb(3.5,1)",
                                   "Comb(2000,1000)",
                                   "Perm(3,-1)",
                                   "gcd(1.5,2)",
                                   "lcm(1e15,1e15-1)",
                                   "var(1)",
                                   "stdev(1)",
                                   "meang(-1,2)",
                                   "sum(1e308,1e308)",
                                   "DNorm(0,0,0)",
                                   "CNorm(0,0,-1)",
                                   "DBinom(1.5,2,0.5)",
                                   "CBinom(3,2,0.5)",
                                   "DBinom(1,2,1.5)",
                                   "DPoisson(1,-1)",
                                   "CPoisson(-1,1)",
                                   "Gamma(0)",
                                   "Gamma(-2)",
                                   "Gamma(172)",
                                   "Gammaln(-1)",
                                   "Digamma(0)",
                                   "Psi(-1)",
                                   "Beta(0,1)",
                                   "GammaI(0,0)",
                                   "GammaI(-1,1)",
                                   "GammaI(1,-1)",
                                   "BetaI(2,1,1)",
                                   "BetaI(0.5,-1,1)",
                                   "Zeta(1)",
                                   "Ei(0)",
                                   "Ein(0,1)",
                                   "Ein(-1,2)",
                                   "Ein(1,1.5)",
                                   "Ci(0)",
                                   "Ci(-1)",
                                   "Y0(0)",
                                   "K0(-1)",
                                   "BesselJ(-1,0.5)",
                                   "BesselI(-1,0.5)",
                                   "BesselK(0,1)",
                                   "BesselY(-1,0)",
                                   "PolyLe(1,-1)",
                                   "PolyHe(1,1.5)",
                                   "PolyLa(1,1001)",
                                   "PolyHe(100,1000)",
                                   "elli1(1,2)",
                                   "elli1(pi2,1)",
                                   "elli2(2,3)",
                                   "HypGeom(1,1,0,0.5)",
                                   "HypGeom(1,1,2,1)",
                                   "HypGeom(1,1,2,1.5)",
                                   "HypGeom(1e6,1e6,1,0.9)",
                                   "wtri(1,0)",
                                   "wsqr(1,-1)",
                                   "wsaw(1,0)",
                                   "wraise(1,0)",
                                   "wparab(1,0)",
                                   "wrect(1,0,0.5)",
                                   "wrect(1,1,2)",
                                   "wtrapez(1,1,-0.1)",
                                   "wtrapez(1,0,0.5)",
                                   "wlin(1,0,0.5)",
                                   "wpulse(1,1,-1)",
                                   "wsteps(1,1,1)",
                                   "wsteps(1,0,4)",
                                   "wexp(1,1,-1)",
                                   "wexpb(1,0,1)",
                                   "wpulsef(1,1,0)",
                                   "wpulsef(1,0,1)",
                                   "wripple(1,0,1)",
                                   "wring(1,0,1,1)",
                                   "Clip(1,3,2)",
                                   "Year(1e9)",
                                   "Year(-1e9)",
                                   "Second(-700000)",
                                   "DateSerial(99,1,1)",
                                   "DateSerial(10000,1,1)",
                                   "DateSerial(2024,1.5,1)",
                                   "TimeSerial(1e12,0,0)"}) {
        ASSERT_TRUE(formula.StoreExpression(text)) << text << ": " << formula.ErrorDescription();
        const double value = formula.Eval();
        EXPECT_EQ(value, 0) << text;
        EXPECT_GE(formula.ErrorID(), 14) << text;
        EXPECT_LE(formula.ErrorID(), 17) << text;
    }
}

TEST(Functions, WarnBesideTheResult) {
    const struct {
        const char* text;
        const char* warning;
    } cases[] = {
        {"HypGeom(1,1,2,1.5)", "The hypergeometric series is divergent"},
        {"HypGeom(-40,41,0.5,0.5)", "Warning! You should check the accuracy"},
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
    EXPECT_EQ(evaluate(formula, "g"), 9.80665);
    EXPECT_EQ(evaluate(formula, "A"), 6.02214076e23);
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
