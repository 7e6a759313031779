#include "app_eval/eval_command.h"

#include <array>

#include "base/run_time_error.h"
#include "command_line/command_line.h"
#include "script/evaluator.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kEvaluated = 0;
constexpr int kFailed = 1;

QString usage() {
    return uR"(usage: zelvor eval [--] EXPRESSION

Prints the value of a script expression, as EVAL computes it.
"--" comes before an expression that begins with "-".

Exit status: 0, 1 for an error in the expression, 2 for wrong usage.
Example: zelvor eval "7 mod 4" prints 3
)"_s;
}

QString shown(const Value& value) {
    if (value.isNull()) return u"Null"_s;
    const auto* array = value.as<Value::Array>();
    if (array == nullptr) return value.text();
    QStringList elements;
    for (const Value& element : **array) elements += shown(element);
    return elements.join(u", "_s);
}

}  // namespace

int runEval(const QStringList& arguments, QTextStream& out, QTextStream& err) {
    static const std::array kOptions{CommandLine::Option{u"--help"_s}, CommandLine::Option{u"-h"_s}};
    const CommandLine line(arguments, kOptions);
    if (line.has(u"--help") || line.has(u"-h")) {
        out << usage();
        return kEvaluated;
    }
    line.check();
    if (line.rest().isEmpty()) throw UsageError{u"no expression"_s};
    try {
        out << shown(script::Evaluator().evaluate(line.restText())) << '\n';
        return kEvaluated;
    } catch (const RunTimeError& error) {
        err << "Error " << error.number() << ": " << error.text() << "\nPosition " << error.position() << '\n';
        return kFailed;
    }
}

}  // namespace zelvor
