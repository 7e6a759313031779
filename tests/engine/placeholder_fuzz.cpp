#include "base/run_time_error.h"
#include "engine/placeholders.h"
#include "support/fuzz_input.h"

using namespace zelvor;

namespace {

template <class Expand>
QString expanded(Expand&& expand) {
    VariableStore variables;
    for (const QString& name : {QStringLiteral("@A"), QStringLiteral("@B"), QStringLiteral("@HSCORE")})
        variables.SetVar(name, QString(name + u"{1|0}"));
    const QueryResult result(1, 1, {Value(u"@A")});
    try {
        return expand(variables, result) + QString::number(variables.size());
    } catch (const RunTimeError& error) {
        return QString::number(static_cast<int>(error.number()));
    }
}

}  // namespace

// A text that was taken apart once expands to what it expands to at once, and enters the same names.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString text = QString::fromUtf8(test::fuzzBytes(data, size));
    const ExpandableText prepared(text);
    const auto atOnce = [&](VariableStore& variables, const QueryResult& result) {
        return EXPAND_VARS(text, variables, result);
    };
    const auto inParts = [&](VariableStore& variables, const QueryResult& result) {
        QString out = QStringLiteral("what stood there before");
        prepared.expandInto(out, variables, result);
        return out;
    };
    test::require(expanded(atOnce) == expanded(inParts));
    return 0;
}
