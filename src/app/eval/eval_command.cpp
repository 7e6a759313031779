#include "app_eval/eval_command.h"

#include "base/run_time_error.h"
#include "script/evaluator.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kEvaluated = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

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
    const QString first = arguments.value(0);
    if (first == u"--help" || first == u"-h") {
        out << usage();
        return kEvaluated;
    }
    const bool optionsEnded = first == u"--";
    const QStringList words = optionsEnded ? arguments.mid(1) : arguments;
    // A number may be negative, an option is none of ours.
    const bool unknownOption = !optionsEnded && first.startsWith(u"--") && first.size() > 2 && first[2].isLetter();
    if (words.isEmpty() || unknownOption) {
        err << usage();
        return kWrongUsage;
    }
    try {
        out << shown(script::Evaluator().evaluate(words.join(u' '))) << '\n';
        return kEvaluated;
    } catch (const RunTimeError& error) {
        err << "Error " << error.number() << ": " << error.text() << "\nPosition " << error.position() << '\n';
        return kFailed;
    }
}

}  // namespace zelvor
