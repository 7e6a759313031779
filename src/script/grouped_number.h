#pragma once

#include <QStringView>

namespace zelvor::script {

// As readNumber() of base, and also what the format functions write: thousands between commas, "$", and brackets
// around a negative number. "1,234.5" is one, "1,5" is none. Throws 6 for a number too large to hold.
bool readNumberText(QStringView text, double& number);

// The same, but a number too large to hold is none.
bool readsAsNumber(QStringView text, double& number);

}  // namespace zelvor::script
