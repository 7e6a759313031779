#pragma once

#include <QStringView>

namespace zelvor {

// The comparison of IFL and IF. Operators are exact: null !null in !in = < > <> <= >= s= s!; any other is false.
bool conditionHolds(QStringView left, QStringView operation, QStringView right);

// Whether it is one of those operators.
bool isConditionOperator(QStringView operation);

}  // namespace zelvor
