#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtGlobal>

#include <optional>

namespace lanternix {

/// The number at the beginning of \p bytes as JSON spells numbers; empty when there is none. What
/// follows the number is not looked at.
QByteArrayView leadingJsonNumber(QByteArrayView bytes);

/// The double nearest to \p number, which is a whole JSON number; minus zero keeps its sign. None
/// when it is beyond what a double can hold: too great, or so small that only zero would be left.
std::optional<double> realFromJsonNumber(QByteArrayView number);

/// The integer that \p number, which is a whole JSON number, stands for, however it is spelled
/// ("120", "120.0", "1.2e2"). None when its value has a fraction or does not fit 64 bits.
std::optional<qint64> integerFromJsonNumber(QByteArrayView number);

/// Room enough for every text that writeJsonNumber() gives.
inline constexpr qsizetype longestJsonNumber = 40;

/// Writes the shortest decimal that reads back as the same double to \p out, which has room for
/// longestJsonNumber characters; \p value is finite. Plain notation from 0.0001 up to 2^54, so that
/// moments and sizes look as people write them, an exponent beyond. Returns the end of the text.
char *writeJsonNumber(double value, char *out);

}  // namespace lanternix
