#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <new>
#include <string>

#include "evaluate.h"
#include "expr/cls_formula.h"

namespace {

std::size_t allocationCount = 0;

}  // namespace

// Counts what evaluation and storing take from the heap.
void* operator new(std::size_t size) {
    ++allocationCount;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace zelvor::expr {
namespace {

using namespace std::literals;

// error: "NUMBER at POSITION: MESSAGE".
void expectError(clsFormula& formula, std::string_view text, std::string_view error) {
    formula.StoreExpression(text);
    EXPECT_EQ(formula.Eval(), 0) << text;
    const std::string place = std::to_string(formula.ErrorID()) + " at " + std::to_string(formula.ErrorPos());
    EXPECT_EQ(place + ": " + std::string(formula.ErrorDescription()), error) << text;
}

TEST(Formula, FollowsTheGrammar) {
    clsFormula formula;
    expectValues(formula, "2*(3+4] -> 14", "{[(1)}] -> 1", "2^3^2 -> 64", "-2^2 -> -4", "2^-1 -> 0.5",
                 "2^-2^2 -> 0.0625", "2^--2 -> 4", "2*-3+1 -> -5", "2--3 -> 5", "+3-+2 -> 1", "-3! -> -6", "3!! -> 720",
                 "50%^2 -> 0.25", "sqr(9)! -> 6", "|2-5|*2 -> 6", "|-|-3|| -> 3", "|1|+|-2| -> 3", "2.5\\1 -> 2",
                 "-7\\2 -> -3", "(2<3)+2*(2=<1)+4*(2=>2)+8*(2<>3)+16*(1+1=2)+32*(3>=4)+64*(2<=2) -> 93", "3>2>1 -> 0",
                 "And(1<2,2<3) -> 1", "1e3+1E-3+2e+1+.5+5. -> 1025.501", "1e-400 -> 0", "0.0001e2 -> 0.01",
                 " 2 *\t( 3 )\r\n -> 6", "SIN (0) -> 0", "sum(1,[2+3],max(4,|-5|)) -> 11", "PI/pi+e^0+(pi2*2-pi) -> 2",
                 "1+2*3+(4-5*(6-7)) -> 16", "7-2-1+100/10/2 -> 9", "123456789012345678 -> 123456789012345678",
                 "9007199254740993*1 -> 9007199254740992");
}

// The quotient by what is no finite number would be one again, and no function is given it.
TEST(Formula, ReportsWhatIsWrongAndWhere) {
    clsFormula formula;
    const auto expect = [&formula](const auto&... cases) {
        (expectError(formula, cases.substr(0, cases.find(" -> ")), cases.substr(cases.find(" -> ") + 4)), ...);
    };
    expect("|x -> 4 at 1: abs symbols |.| mismatch"sv, "|(1|) -> 4 at 4: abs symbols |.| mismatch"sv,
           " -> 5 at 1: Syntax error at pos: 1"sv, "1 2 -> 5 at 3: Syntax error at pos: 3"sv,
           "2(3) -> 5 at 2: Syntax error at pos: 2"sv, "1#2 -> 5 at 2: Syntax error at pos: 2"sv,
           "() -> 5 at 2: Syntax error at pos: 2"sv, "(1,2) -> 5 at 3: Syntax error at pos: 3"sv,
           "α+? -> 5 at 3: Syntax error at pos: 3"sv, "1+foo(2) -> 6 at 3: Function < foo > unknown at pos: 3"sv,
           "pi(2) -> 6 at 1: Function < pi > unknown at pos: 1"sv,
           "1+2) -> 7 at 4: Too many closing brackets at pos: 4"sv,
           "|3)| -> 7 at 3: Too many closing brackets at pos: 3"sv, "(1+ -> 11 at 1: Not enough closing brackets"sv,
           "sin() -> 8 at 5: missing argument"sv, "comb(,1) -> 8 at 6: missing argument"sv,
           "1+ -> 8 at 3: missing argument"sv, "(2*) -> 8 at 4: missing argument"sv,
           "sin(1,2) -> 9 at 6: Too many arguments at pos: 6"sv, "(1+2 -> 11 at 1: Not enough closing brackets"sv,
           "2*sin( -> 11 at 3: Not enough closing brackets"sv, "1e999 -> 12 at 1: Syntax error: 1e999"sv,
           "1+Sin*2 -> 13 at 3: Function < Sin > missing?"sv,
           "2+sqr(-4) -> 14 at 3: Evaluation error < Sqr(-4) > at pos: 3"sv,
           "(-1)! -> 14 at 5: Evaluation error < Fact(-1) > at pos: 5"sv,
           "LOGN(-1,10) -> 15 at 1: Evaluation error < LogN(-1, 10) > at pos: 1"sv,
           "1/0 -> 16 at 2: Evaluation error < 1 / 0 > at pos: 2"sv,
           "(0-8)^0.5 -> 16 at 6: Evaluation error < -8 ^ 0.5 > at pos: 6"sv,
           "1E300*1E+10 -> 16 at 6: Evaluation error < 1E+300 * 10000000000 > at pos: 6"sv,
           "1/(1E300*1E300) -> 16 at 9: Evaluation error < 1E+300 * 1E+300 > at pos: 9"sv,
           "fact(1/0)+2/0 -> 16 at 7: Evaluation error < 1 / 0 > at pos: 7"sv,
           "1<1/0 -> 16 at 4: Evaluation error < 1 / 0 > at pos: 4"sv,
           "1^(1/0) -> 16 at 5: Evaluation error < 1 / 0 > at pos: 5"sv,
           "not(1/0) -> 16 at 6: Evaluation error < 1 / 0 > at pos: 6"sv,
           "and(1,1/0) -> 16 at 8: Evaluation error < 1 / 0 > at pos: 8"sv,
           "min(1,1/0) -> 16 at 8: Evaluation error < 1 / 0 > at pos: 8"sv,
           "clip(1,3,2) -> 17 at 1: Evaluation error < Clip(1, 3, 2) > at pos: 1"sv,
           "2*a -> 18 at 3: Variable < a > not assigned"sv);
}

TEST(Formula, MultipliesANumberAndItsLetter) {
    clsFormula formula;
    for (const char* const letter : {"x", "y", "z", "X", "Y", "Z"}) {
        ASSERT_TRUE(formula.StoreExpression("2"s + letter + "^2+1"));
        EXPECT_EQ(formula.Eval1(3), 19) << letter;
    }
    EXPECT_FALSE(formula.StoreExpression("2a"));
    EXPECT_EQ(formula.ErrorID(), 5);
}

TEST(Formula, KeepsVariables) {
    clsFormula formula;
    ASSERT_TRUE(formula.StoreExpression("b*a+b-c_1"));
    ASSERT_EQ(formula.VarTop(), 3);
    EXPECT_EQ(formula.VarName(1) + formula.VarName(2) + formula.VarName(3), "bac_1");
    formula.VarValue(1, 2);
    formula.VarSymb("a", 5);
    formula.Eval();
    EXPECT_EQ(formula.ErrorDescription(), "Variable < c_1 > not assigned");
    formula.Variable("c_1", 1);
    EXPECT_EQ(formula.Eval(), 11);
    formula.Variable(1, std::numeric_limits<double>::infinity());
    formula.Eval();
    EXPECT_EQ(formula.ErrorID(), 18);

    for (const bool explicitly : {false, true}) {
        formula.OpAssignExplicit(explicitly);
        ASSERT_TRUE(formula.StoreExpression("1"));
        ASSERT_TRUE(formula.StoreExpression("a"));
        formula.Eval();
        EXPECT_EQ(formula.ErrorID(), explicitly ? 18 : 0);
        EXPECT_EQ(formula.VarValue(1), explicitly ? 0 : 5);
    }

    formula.VarSymb("nobody", 1);
    EXPECT_EQ(formula.ErrorDescription(), "Variable not found");
    EXPECT_EQ(formula.VarName(2), "");
    EXPECT_EQ(formula.ErrorID(), 2);
}

TEST(Formula, SurvivesAnEvaluationError) {
    clsFormula formula;
    ASSERT_TRUE(formula.StoreExpression("1/x"));
    formula.Eval1(0);
    EXPECT_EQ(formula.ErrorID(), 16);
    EXPECT_EQ(formula.Eval1(4), 0.25);
    EXPECT_EQ(formula.ErrorDescription(), "");
    EXPECT_EQ(formula.ErrorPos(), 0);

    const double values[] = {1, 2, 0, 4};
    EXPECT_EQ(formula.EvalMulti("x", values), (std::vector<double>{1, 0.5}));
    EXPECT_EQ(formula.ErrorID(), 16);
    EXPECT_EQ(formula.EvalMulti(1, std::span(values).first(2)), (std::vector<double>{1, 0.5}));
    EXPECT_TRUE(formula.EvalMulti("y", values).empty());
    EXPECT_EQ(formula.ErrorID(), 2);
}

TEST(Formula, ReadsAnglesInTheCurrentUnit) {
    clsFormula formula;
    EXPECT_EQ(formula.AngleUnit(), "RAD");
    expectValues(formula, "deg(pi) -> 180", "grad(pi) -> 200", "rad(2) -> 2");
    ASSERT_TRUE(formula.AngleUnit("GRAD"));
    expectValues(formula, "sin(30)/sin(30) -> 1", "cos(100) -> 0", "Atn(1) -> 50", "deg(100) -> 90");
    ASSERT_TRUE(formula.AngleUnit("DEG"));
    expectValues(formula, "sin(90) -> 1", "sin(180) -> 0", "cos(-270) -> 0", "tan(225) -> 1", "sec(60) -> 2",
                 "cos(3.6e15+60) -> 0.5", "asin(0.5) -> 30", "acot(-1) -> 135", "rad(180)/pi -> 1", "grad(90) -> 100");
    EXPECT_FALSE(formula.AngleUnit("TURN"));
    EXPECT_EQ(formula.AngleUnit(), "DEG");
    expectError(formula, "tan(90)", "14 at 1: Evaluation error < Tan(90) > at pos: 1");
}

TEST(Formula, ReadsUnitsAndDegrees) {
    clsFormula formula;
    formula.OpUnitConv(true);
    expectValues(formula, "5mV -> 0.005", "5m -> 5", "3kg+2g -> 3002", "2.5MHz -> 2.5e6", "10cm -> 0.1", "4uF -> 4e-6",
                 "4µF -> 4e-6", "7nm -> 7e-9", "7Nm -> 7", "1GPa -> 1e9", "1TOhm -> 1e12", "3pA -> 3e-12",
                 "1mrad -> 1e-3", "1e3 *2 -> 2000", "2mohm*3 -> 0.006");
    expectError(formula, "1+5kq", "19 at 3: Constant unknown: kq");
    EXPECT_TRUE(formula.StoreExpression("5x"));
    formula.OpUnitConv(false);
    EXPECT_FALSE(formula.StoreExpression("5m"));

    formula.OpDMSConv(true);
    formula.AngleUnit("DEG");
    expectValues(formula, "10d30m -> 10.5", "10d30m36s -> 10.51", "10d36s -> 10.01", "-10.5d+1 -> -9.5",
                 "dec(1d30m) -> 1.5", "dec(-1d30m) -> -1.5", "sin(30d0m0s) -> 0.5", "1d0m1.8s*2 -> 2.001", "2d^2 -> 4");
    for (const char* const text : {"10d60m", "10d30", "10.5d30m", "10d5s3m", "30m", "1d2x"})
        expectError(formula, text, "21 at 1: Wrong DMS format");
    expectError(formula, "1+dec(10.5)", "22 at 3: No DMS format");
    expectError(formula, "dec(1d+1)", "22 at 1: No DMS format");

    formula.OpUnitConv(true);
    EXPECT_DOUBLE_EQ(evaluate(formula, "30m+1d"), 31);
    ASSERT_TRUE(formula.StoreExpression("90d"));
    formula.AngleUnit("GRAD");
    EXPECT_DOUBLE_EQ(formula.Eval(), 100);
}

TEST(Formula, DumpsItsTable) {
    clsFormula formula;
    ASSERT_TRUE(formula.StoreExpression("a<2*(b+1)"));
    formula.VarSymb("a", 1);
    formula.VarSymb("b", 2.5);
    EXPECT_EQ(formula.Eval(), 1);
    EXPECT_EQ(formula.ET_Dump(),
              "Fun  ArgTop  A1 Idx  Arg1 Name  Arg1 Value  A2 Idx  Arg2 Name  Arg2 Value  ArgOf  ArgIdx  Value  PriLvl"
              "  PosInExpr  PriIdx  Cond\n"
              "+    2       2       b          2.5                 (number)   1           2      2       3.5    12    "
              "  7          1       0\n"
              "*    2               (number)   2           1       (row)      3.5         3      2       7      3     "
              "  4          2       0\n"
              "<    2       1       a          1           2       (row)      7                          1      1     "
              "  2          3       1\n");
}

TEST(Formula, KnowsItsLimits) {
    clsFormula formula;
    std::string sum = "v1";
    for (std::size_t i = 2; i <= kMaxVariables; ++i) sum += "+v" + std::to_string(i);
    EXPECT_TRUE(formula.StoreExpression(sum));
    expectError(formula, sum + "+w", "1 at " + std::to_string(sum.size() + 2) + ": too many variables");

    std::string ones = "1";
    for (std::size_t i = 0; i < kMaxRows; ++i) ones += "+1";
    EXPECT_EQ(evaluate(formula, ones), static_cast<double>(kMaxRows) + 1);
    expectError(formula, ones + "+1", "20 at " + std::to_string(ones.size() + 1) + ": Too many operations");
}

TEST(Formula, TakesLongTexts) {
    clsFormula formula;
    const std::size_t half = 51200;
    EXPECT_EQ(evaluate(formula, std::string(half, '(') + "7" + std::string(half, ']')), 7);
    for (const char* const piece : {"-", "|", "sin(", "2^", "max(1,"}) {
        std::string text;
        while (text.size() < 2 * half) text += piece;
        EXPECT_FALSE(formula.StoreExpression(text));
        EXPECT_EQ(formula.ErrorID(), 20) << piece;
    }
    EXPECT_FALSE(formula.StoreExpression(std::string(2 * half, '(')));
    EXPECT_EQ(formula.ErrorID(), 11);
    std::string list = "sum(1";
    while (list.size() < 2 * half) list += ",1";
    EXPECT_EQ(evaluate(formula, list + ")"), static_cast<double>(list.size() - 3) / 2);
}

TEST(Formula, AllocatesNothingToEvaluateAndToStoreAgain) {
    clsFormula formula;
    const std::string text = "2*x+sin(y)*3-x^2/(1+y)+max(x,y,gcd(12,18))-hypgeom(1,2,3,0.5)";
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(formula.StoreExpression(text));
        formula.VarSymb("x", 1.5);
        formula.VarSymb("y", 2.5);
        formula.Eval();
    }
    const std::size_t before = allocationCount;
    formula.Eval1(3);
    EXPECT_EQ(formula.ErrorID(), 0);
    formula.StoreExpression(text);
    formula.StoreExpression("17*2");
    EXPECT_EQ(allocationCount, before);
    EXPECT_EQ(formula.Eval(), 34);
}

}  // namespace
}  // namespace zelvor::expr
