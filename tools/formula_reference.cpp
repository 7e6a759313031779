// Writes the reference page of the formulas and its sheet of waveforms into a folder, from the function table:
//   formula_reference docs            writes docs/formulas.md and docs/waves.svg
//   formula_reference --check docs    writes nothing, and fails when one of them is not up to date

#include <cstdio>
#include <sstream>
#include <string>
#include <string_view>

#include "expr/cls_formula.h"
#include "expr/constants.h"
#include "expr/error_table.h"
#include "expr/function_table.h"
#include "plain/number.h"
#include "written_page.h"

namespace {

using namespace zelvor::expr;

constexpr std::string_view kIntroduction = R"(# Formulas

What the card command `CALC` and `zelvor calc` understand. This page is written by `tools/formula_reference.cpp` from
the table of functions; change it there.

## Numbers, names and brackets

- Numbers have "." as decimal sign and may have an exponent: `2.5`, `.5`, `1e-3`. Blanks end a number or a name and
  mean nothing else.
- Every name that is neither a function nor a constant is a variable. Functions are known in any case, variables and
  constants only as written. A formula may have 100 variables and 1000 operations.
- `(`, `[` and `{` open, `)`, `]` and `}` close, and any of them match. `|x|` is the absolute value: a bar where an
  operand is expected opens, any other closes.
- A number directly followed by x, y, z, X, Y or Z multiplies what begins there: `2x` is `2*x`. No other product goes
  without its `*`.

## Operators

| Level | Operators | |
|---|---|---|
| 9 | `!` `%` | factorial and percent, behind the operand: `3!` is 6, `5%` is 0.05 |
| 6 | `-` | sign of an exponent: `2^-1` is 0.5 |
| 5 | `^` | power, from the left: `2^3^2` is 64 |
| 4 | `-` | sign: `-2^2` is -4 |
| 3 | `*` `/` `\` | `\` rounds both operands to whole numbers, halves to the even one, and cuts the quotient |
| 2 | `+` `-` | |
| 1 | `=` `<>` `<` `>` `<=` `>=` | 1 when true, else 0; `=<` and `=>` are accepted too |

Operators of one level are taken from left to right, signs from right to left.

## Angles

Trigonometric functions read and give angles in the current unit: RAD (the default), DEG or GRAD. In degrees and grads
whole quarters of a turn are exact: `cos(90)` is 0. With the switch for degrees on (`--dms`) an angle may be written
as `10d30m15s` in any formula, minutes or seconds left out as wanted, only the last part with a fraction; it becomes
an angle of the current unit. `dec(10d30m)` gives 10.5 whatever the unit.

## Units

With the switch for units on (`--units`) a number may be followed by a unit, with a prefix or without: `5mV` is 0.005.
Only the prefix scales the number.

- Prefixes: p n u (or µ) m c k M G T, from 10^-12 to 10^12.
- Units: s Hz m g rad (Rad, RAD) S V A W F bar Pa Nm Ohm (ohm).

## Dates

A date is the number of days since 30 December 1899, a time of day its fraction. `DATE`, `TIME` and `NOW` (in upper
case) stand for the current date, the time and both.
)";

constexpr std::string_view kWaves = R"(
In the waveforms t is the time, p the period, u the part of the period that has passed, from 0 to 1. Duties lie
between 0 and 1, decays a (not negative; of wpulsef above 0) are counted per period, frequencies fo and fm per unit of
time.

![The waveforms over two periods](waves.svg)
)";

void addFunctions(std::ostream& page) {
    auto group = functionGroups().begin();
    for (const Function& function : functions()) {
        if (group != functionGroups().end() && function.name == group->first) {
            page << "\n## " << (group == functionGroups().begin() ? "Functions: " : "") << group->title << '\n';
            if (group->title == "Signals") page << kWaves;
            page << "\n| Function | |\n|---|---|\n";
            ++group;
        }
        page << "| `" << function.name << '(' << function.arguments << ")` | ";
        for (const char c : function.meaning) page << (c == '|' ? "\\" : "") << c;
        page << " |\n";
    }
}

std::string referencePage() {
    std::ostringstream page;
    page << kIntroduction;
    addFunctions(page);
    page << "\n## Constants\n\nNames are case-sensitive.\n\n| Constant | Value | |\n|---|---|---|\n";
    for (const Constant& constant : constants()) {
        page << "| `" << constant.name << "` | " << zelvor::plain::numberText(constant.value) << " | "
             << constant.meaning << " |\n";
    }
    page << "\n## Errors\n\nEach `$` stands for a detail: a name, values, or a place in the formula, counted from 1.\n"
            "\n| Id | Message |\n|---|---|\n";
    for (int id = 1; id <= kErrorSlots; ++id) {
        if (errorTemplate(id).empty()) continue;
        page << "| " << id << " | `" << errorTemplate(id) << "` |\n";
    }
    return page.str();
}

// The waveforms as drawn, over the time t with a period of 1.
constexpr std::string_view kDrawn[] = {
    "wtri(t,1)",        "wsqr(t,1)",      "wsaw(t,1)",       "wraise(t,1)",      "wparab(t,1)",    "wrect(t,1,0.3)",
    "wtrapez(t,1,0.5)", "wlin(t,1,0.6)",  "wpulse(t,1,0.3)", "wsteps(t,1,4)",    "wexp(t,1,4)",    "wexpb(t,1,4)",
    "wpulsef(t,1,12)",  "wripple(t,1,1)", "wring(t,1,4,5)",  "wam(t,6,0.5,0.8)", "wfm(t,4,0.5,3)", "step(t,0.5)",
};

constexpr int kColumns = 3;
constexpr int kCellWidth = 220;
constexpr int kCellHeight = 110;
constexpr int kPlotWidth = 200;
// Height of a value of 1.
constexpr double kUnit = 20;
constexpr int kPeriods = 2;

// One waveform as a line of points, a pixel apart, the time axis at the height 0.
std::string curve(std::string_view text) {
    clsFormula formula;
    formula.StoreExpression(text);
    std::ostringstream points;
    for (int i = 0; i <= kPlotWidth; ++i) {
        const double value = formula.Eval1(static_cast<double>(i) * kPeriods / kPlotWidth);
        points << (i == 0 ? "" : " ") << i << ',' << zelvor::plain::numberText(-value * kUnit, 3);
    }
    return points.str();
}

std::string waveSheet() {
    std::ostringstream sheet;
    constexpr int kRows = (static_cast<int>(std::size(kDrawn)) + kColumns - 1) / kColumns;
    sheet << R"(<svg xmlns="http://www.w3.org/2000/svg" font-family="sans-serif" font-size="12" width=")"
          << kColumns * kCellWidth << R"(" height=")" << kRows * kCellHeight << "\">\n"
          << R"(<rect width="100%" height="100%" fill="#fff"/>)" << '\n';
    int index = 0;
    for (const std::string_view text : kDrawn) {
        const int left = index % kColumns * kCellWidth + 10;
        const int middle = index / kColumns * kCellHeight + 65;
        sheet << R"svg(<g transform="translate()svg" << left << ',' << middle << R"svg()"><text y="-45">)svg" << text
              << R"(</text><path d="M0,0H)" << kPlotWidth
              << R"(" stroke="#999"/><polyline fill="none" stroke="#06c" points=")" << curve(text) << "\"/></g>\n";
        ++index;
    }
    sheet << "</svg>\n";
    return sheet.str();
}

}  // namespace

int main(int argc, char* argv[]) {
    const bool checkOnly = argc == 3 && std::string_view(argv[1]) == "--check";
    if (argc != 2 && !checkOnly) {
        std::fprintf(stderr, "usage: formula_reference [--check] FOLDER\n");
        return 2;
    }
    const std::string folder = argv[argc - 1];
    const bool page = holdsOrWrites(folder + "/formulas.md", referencePage(), checkOnly, "formula_reference");
    const bool sheet = holdsOrWrites(folder + "/waves.svg", waveSheet(), checkOnly, "formula_reference");
    return page && sheet ? 0 : 1;
}
