#pragma once

#include <QString>

#include <optional>

namespace runtime {

/// Rounds to the nearest whole number, ties to the even one, and checks the range: error 6 outside it
/// (and for a number that is none). 300 into 8 bits is an error, never 44.
qint16 toInt16(double value);
qint32 toInt32(double value);
quint8 toByte(double value);

/// Sum and product of 16-bit numbers; error 6 when the result needs more.
qint16 add16(qint16 a, qint16 b);
qint16 mul16(qint16 a, qint16 b);

/// The number a text begins with, decimal point only, blanks skipped wherever they stand; 0 if there is
/// none. "30 sec" gives 30, "" gives 0.
double leadingNumber(const QString& text);

/// Whether the whole text is a number (blanks around it allowed, decimal point or comma).
bool isNumber(const QString& text);

/// The number the whole text stands for; error 13 if it is none.
double strictNumber(const QString& text);

/// The same, rounded to a whole number; error 13 if it is no number, 6 outside the range.
qint32 textToInt32(const QString& text);

/// A typed whole number from 0 to 255; nothing for any other text.
std::optional<quint8> wholeByte(const QString& text);

/// True/False/Vero/Falso in any letter case, or a number (0 is false); else error 13.
bool textToBoolean(const QString& text);

/// "True" or "False": the text form of a Boolean.
QString booleanText(bool value);

/// The shortest plain text of a number, with a decimal point and no exponent.
QString numberText(double value);

} // namespace runtime
