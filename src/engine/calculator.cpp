#include "engine/calculator.h"

#include <QRandomGenerator>

#include "base/run_time_error.h"

namespace zelvor {

Calculator::Calculator(const Clock& clock)
    : evaluator_([&clock] { return clock.now(); }, [] { return QRandomGenerator::global()->generateDouble(); }) {}

double Calculator::calculate(QStringView formula) {
    const QByteArray utf8 = formula.toUtf8();
    const double result =
        formula_.StoreExpression({utf8.data(), static_cast<size_t>(utf8.size())}) ? formula_.Eval() : 0;
    if (formula_.ErrorID() != 0) {
        throw RunTimeError::withText(ErrorNumber::InvalidProcedureCall,
                                     QString::fromStdString(formula_.ErrorDescription()));
    }
    return result;
}

}  // namespace zelvor
