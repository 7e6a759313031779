#pragma once

#include <QDateTime>
#include <QStringList>
#include <QStringView>
#include <functional>

#include "base/value.h"

namespace zelvor::script {

// Evaluates the script expressions of card scripts (docs/script-expressions.md): VBScript's operators and functions,
// no statements, objects or files. Nothing is kept from one evaluation to the next.
class Evaluator {
 public:
    using Clock = std::function<QDateTime()>;
    // The next random number, at least 0 and below 1.
    using Random = std::function<double()>;

    // The computer's clock and a random source seeded by the system.
    Evaluator();
    // The clock answers Now, Date, Time and Timer, the random source Rnd.
    Evaluator(Clock clock, Random random) : clock_(std::move(clock)), random_(std::move(random)) {}

    // The expression's value; Empty for a blank text. Throws RunTimeError with the position in the text, from 1:
    // 1002, 1006, 1031 and 1033 for what cannot be read, 5, 6, 7, 9, 11, 13, 28, 94 and 450 for what cannot be
    // evaluated. An expression that cannot be read to its end is reported as such whatever its beginning does.
    [[nodiscard]] Value evaluate(QStringView expression) const;

    // Reads the whole expression and computes nothing. Gives the names in it that stand for nothing. Throws as evaluate
    // does for what cannot be read, for a call of an unknown name and for a wrong number of arguments.
    [[nodiscard]] QStringList check(QStringView expression) const;

 private:
    Clock clock_;
    Random random_;
};

}  // namespace zelvor::script
