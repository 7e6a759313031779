#include "engine/calculator.h"

#include <QRandomGenerator>
#include <algorithm>

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

double wholeSecondOf(const QDateTime& now) {
    return Value::fromDateTime(now.addMSecs(-now.time().msec())).as<Value::Date>()->days;
}

// The part of a long expression around the place of an error, counted from 1.
QString excerpt(QStringView expression, int position) {
    if (expression.trimmed().isEmpty()) return u"\"\""_s;
    constexpr qsizetype kShown = 120;
    const qsizetype last = std::max<qsizetype>(0, expression.size() - kShown);
    const qsizetype first = std::clamp<qsizetype>(position - kShown / 2, 0, last);
    const QStringView part = expression.mid(first, kShown);
    return (first > 0 ? u"..."_s : QString()) + part + (first + kShown < expression.size() ? u"..."_s : QString());
}

}  // namespace

Calculator::Calculator(const Clock& clock)
    : formula_([&clock] { return wholeSecondOf(clock.now()); }),
      evaluator_([&clock] { return clock.now(); }, [] { return QRandomGenerator::global()->generateDouble(); }) {}

double Calculator::calculate(QStringView formula) {
    const std::optional<double> stored = stored_.calculate(formula);
    wasStored_ = stored.has_value();
    if (wasStored_) return *stored;
    const QByteArray utf8 = formula.toUtf8();
    const double result =
        formula_.StoreExpression({utf8.data(), static_cast<size_t>(utf8.size())}) ? formula_.Eval() : 0;
    if (formula_.ErrorID() != 0) {
        throw RunTimeError::withText(
            ErrorNumber::InvalidProcedureCall,
            QString::fromStdString(formula_.ErrorDescription()) + u" in "_s + excerpt(formula, formula_.ErrorPos()));
    }
    return result;
}

Value Calculator::evaluate(QStringView expression) const {
    try {
        return evaluator_.evaluate(expression);
    } catch (const RunTimeError& error) {
        throw RunTimeError::withText(error.code(), error.text() + u" at position %1 of "_s.arg(error.position()) +
                                                       excerpt(expression, error.position()))
            .atPosition(error.position());
    }
}

}  // namespace zelvor
