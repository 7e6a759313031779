#pragma once

#include <QString>

namespace zelvor {

[[nodiscard]] QString withoutAccents(QStringView text);

// What two texts have in common that an operator takes for the same: small letters without accents, Greek ones as the
// Latin ones of their sound ("Λάσκαρης" and "Laskaris" are one).
[[nodiscard]] QString foldedLetters(QStringView text);

}  // namespace zelvor
