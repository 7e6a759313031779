#include "app_check/expression_check.h"

#include <QRegularExpression>

#include "app_check/placeholder_scan.h"
#include "base/run_time_error.h"
#include "expr/function_table.h"
#include "script/function_table.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// The names that are called outside of quoted texts, next to no placeholder.
QStringList calledNames(QString text) {
    static const QRegularExpression kQuoted(u"\"[^\"]*\"|'[^']*'"_s);
    static const QRegularExpression kCall(u"(?<![\\w.\uFFFC])([A-Za-z_]\\w*)\\s*\\("_s);
    text.replace(kQuoted, u"\"\""_s);
    QStringList names;
    for (auto call = kCall.globalMatch(text); call.hasNext();) names += call.next().captured(1);
    return names;
}

bool isExpressionFunction(const QString& name) {
    static const QStringList kOperators{u"not"_s, u"and"_s, u"or"_s, u"xor"_s, u"eqv"_s, u"imp"_s, u"mod"_s};
    return kOperators.contains(name, Qt::CaseInsensitive) || script::findFunction(name) != nullptr;
}

bool isFormulaFunction(const QString& name) {
    return expr::findFunction(name.toStdString()) != nullptr;
}

template <class Known>
void checkCalls(const QString& text, Known isFunction, const QString& what, const Place& place, Findings& findings) {
    for (const QString& name : calledNames(text)) {
        if (!isFunction(name)) findings.error(place, u"%1: no function %2"_s.arg(what, name));
    }
}

}  // namespace

void ExpressionCheck::checkFormula(const QString& formula, const Place& place, Findings& findings) {
    const QString what = u"formula"_s;
    if (formula.contains(kAnything)) return checkCalls(formula, isFormulaFunction, what, place, findings);
    if (!formula_.StoreExpression(formula.toStdString())) {
        findings.error(place, u"formula: "_s + QString::fromStdString(formula_.ErrorDescription()));
    } else if (formula_.VarTop() > 0) {
        findings.error(place, u"formula: %1 has no value; variables are written {@NAME}"_s.arg(
                                  QString::fromStdString(formula_.VarName(1))));
    }
}

void ExpressionCheck::checkExpression(const QString& expression, const Place& place, Findings& findings) const {
    const QString what = u"expression"_s;
    if (expression.contains(kAnything)) return checkCalls(expression, isExpressionFunction, what, place, findings);
    try {
        for (const QString& name : evaluator_.check(expression)) {
            findings.warning(place,
                             u"expression: %1 is empty; texts are quoted, variables written {@NAME}"_s.arg(name));
        }
    } catch (const RunTimeError& error) {
        findings.error(place, u"expression: %1 at position %2"_s.arg(error.text()).arg(error.position()));
    }
}

void ExpressionCheck::checkOperand(const QString& operand, const Place& place, Findings& findings) const {
    constexpr QStringView kEvaluated = u"EVAL";
    // What stands before a placeholder that may begin with it is known as well.
    if (operand.startsWith(kEvaluated)) checkExpression(operand.mid(kEvaluated.size()), place, findings);
}

}  // namespace zelvor
