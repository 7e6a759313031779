#include "script/evaluator.h"

#include <QRandomGenerator>

#include "script/parser.h"

namespace zelvor::script {

Evaluator::Evaluator()
    : Evaluator([] { return QDateTime::currentDateTime(); },
                [] { return QRandomGenerator::global()->generateDouble(); }) {}

Value Evaluator::evaluate(QStringView expression) const {
    Environment environment{.clock = clock_, .random = random_, .depth = 0, .lastRandom = std::nullopt};
    return evaluateText(expression, environment);
}

void Evaluator::check(QStringView expression) const {
    Environment environment{.clock = clock_, .random = random_, .depth = 0, .lastRandom = std::nullopt};
    Parser(expression, environment, Parser::Mode::CheckOnly).parse();
}

}  // namespace zelvor::script
