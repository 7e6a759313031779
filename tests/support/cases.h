#pragma once

#include <QString>

namespace zelvor::test {

// Calls expect(given, expected) with both sides of each case, "given -> expected".
template <class Expect, class... Cases>
void forCases(const Expect& expect, const Cases&... cases) {
    static const QString kArrow = QStringLiteral(" -> ");
    const auto one = [&](const QString& each) { expect(each.section(kArrow, 0, 0), each.section(kArrow, 1)); };
    (one(QString::fromUtf8(cases)), ...);
}

}  // namespace zelvor::test
