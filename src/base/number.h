#pragma once

#include <QString>
#include <QStringView>

namespace zelvor {

// A number as text: at most 15 significant digits, "." as decimal sign, "1E+15" and "1E-07" outside 1E-4 .. 1E+15.
QString numberText(double number);
// The same at the end of a text, without one of its own.
void appendNumber(QString& out, double number);

// The leading number of a text, 0 when there is none. Blanks are skipped wherever they stand; a sign, digits, one ".",
// an exponent (E or D), &H and &O are taken. &H and &O numbers of up to 16 bits are signed, as pack authors know them,
// unless an & stands behind them.
double Val(QStringView text);

// True when the whole text (blanks around it aside) is one number, its value in `number`.
bool readNumber(QStringView text, double& number);

// The same number; a text that is none throws 13 with the text.
double wantedNumber(QStringView text);

// Whole numbers, halves to the even neighbour. A text that is no number throws 13, one out of range throws 6.
qint16 wholeNumber16(QStringView text);
qint32 wholeNumber32(QStringView text);
qint16 wholeNumber16(double number);
qint32 wholeNumber32(double number);

}  // namespace zelvor
