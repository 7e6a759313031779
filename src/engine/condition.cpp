#include "engine/condition.h"

#include <algorithm>
#include <array>

#include "base/number.h"

namespace zelvor {

namespace {

struct Comparison {
    QStringView operation;
    bool (*holds)(QStringView left, QStringView right);
};

constexpr std::array kComparisons{
    Comparison{u"null", [](QStringView left, QStringView) { return left.isEmpty(); }},
    // Meant: the same test as "null"; packs depend on it.
    Comparison{u"!null", [](QStringView left, QStringView) { return left.isEmpty(); }},
    Comparison{u"in", [](QStringView left, QStringView right) { return right.contains(left); }},
    Comparison{u"!in", [](QStringView left, QStringView right) { return !right.contains(left); }},
    Comparison{u"=", [](QStringView left, QStringView right) { return Val(left) == Val(right); }},
    Comparison{u"<", [](QStringView left, QStringView right) { return Val(left) < Val(right); }},
    Comparison{u">", [](QStringView left, QStringView right) { return Val(left) > Val(right); }},
    Comparison{u"<>", [](QStringView left, QStringView right) { return Val(left) != Val(right); }},
    Comparison{u"<=", [](QStringView left, QStringView right) { return Val(left) <= Val(right); }},
    Comparison{u">=", [](QStringView left, QStringView right) { return Val(left) >= Val(right); }},
    Comparison{u"s=", [](QStringView left, QStringView right) { return left == right; }},
    Comparison{u"s!", [](QStringView left, QStringView right) { return left != right; }},
};

const Comparison* findComparison(QStringView operation) {
    const auto* comparison = std::ranges::find(kComparisons, operation, &Comparison::operation);
    return comparison == kComparisons.end() ? nullptr : comparison;
}

}  // namespace

bool conditionHolds(QStringView left, QStringView operation, QStringView right) {
    const Comparison* comparison = findComparison(operation);
    return comparison != nullptr && comparison->holds(left, right);
}

bool isConditionOperator(QStringView operation) {
    return findComparison(operation) != nullptr;
}

}  // namespace zelvor
