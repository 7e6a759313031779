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

QStringList Evaluator::check(QStringView expression) const {
    Environment environment{.clock = clock_, .random = random_, .depth = 0, .lastRandom = std::nullopt};
    Parser parser(expression, environment, Parser::Mode::CheckNames);
    parser.parse();
    return parser.emptyNames();
}

}  // namespace zelvor::script
