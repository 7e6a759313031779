#pragma once

#include <QStringView>
#include <optional>
#include <span>

#include "base/value.h"
#include "script/arguments.h"

namespace zelvor::script {

// A function of script expressions.
struct Function {
    // Whether the result is Null when the first argument is, before the handler is asked.
    enum class NullRule { Spreads, OwnRule };
    // In most: any number of arguments.
    static constexpr int kAny = -1;

    QStringView name;
    QStringView parameters;  // as the reference shows them: "text, start[, length]"
    int least = 0;
    int most = 0;
    NullRule nullRule = NullRule::OwnRule;
    Value (*handler)(const Arguments&) = nullptr;
    QStringView meaning;  // one line of the reference, in Markdown

    [[nodiscard]] bool takes(qsizetype count) const { return count >= least && (most == kAny || count <= most); }
};

// All functions, sorted by name.
std::span<const Function> functionTable();
// By name in any case; null when there is none.
const Function* findFunction(QStringView name);

// The value of a named constant such as vbCrLf, in any case; nullopt when there is none.
std::optional<Value> findConstant(QStringView name);

// The reference's list of functions and of constants, as docs/script-expressions.md holds it.
QString functionReference();

}  // namespace zelvor::script
