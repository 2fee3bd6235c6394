#include "Services/JsonNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace lanternix {

namespace {

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

const char *skipDigits(const char *position, const char *end) {
  return std::find_if_not(position, end, isDigit);
}

/// A number as digits and a power of ten.
struct Decimal {
  bool isNegative = false;
  /// The digits without a point, zeros at either end included.
  QByteArray digits;
  /// What the digits are to be multiplied with, as a power of ten. Absurd exponents are cut to a
  /// value that is as hopeless.
  qint64 exponent = 0;
};

Decimal decimalFromJsonNumber(QByteArrayView number) {
  Decimal decimal;
  const char *position = number.begin();
  if (*position == '-') {
    decimal.isNegative = true;
    ++position;
  }
  const char *pointOrExponent = skipDigits(position, number.end());
  decimal.digits.append(position, pointOrExponent - position);
  position = pointOrExponent;
  if (position != number.end() && *position == '.') {
    ++position;
    const char *exponent = skipDigits(position, number.end());
    decimal.digits.append(position, exponent - position);
    decimal.exponent = -(exponent - position);
    position = exponent;
  }
  if (position != number.end()) {
    ++position;  // the letter
    position += *position == '+' ? 1 : 0;
    qint64 exponent = 0;
    constexpr qint64 hopeless = std::numeric_limits<qint64>::max() / 4;
    if (std::from_chars(position, number.end(), exponent).ec != std::errc{}) {
      exponent = *position == '-' ? -hopeless : hopeless;
    }
    decimal.exponent += std::clamp(exponent, -hopeless, hopeless);
  }
  return decimal;
}

}  // namespace

QByteArrayView leadingJsonNumber(QByteArrayView bytes) {
  const char *const end = bytes.end();
  const char *position = bytes.begin();
  const auto skipFollowingDigits = [&position, end] {
    const char *const start = position;
    position = skipDigits(position, end);
    return position != start;
  };
  if (position != end && *position == '-') {
    ++position;
  }
  if (position != end && *position == '0') {
    ++position;  // a leading zero stands alone
  } else if (!skipFollowingDigits()) {
    return {};
  }
  if (position != end && *position == '.') {
    ++position;
    if (!skipFollowingDigits()) {
      return {};
    }
  }
  if (position != end && (*position == 'e' || *position == 'E')) {
    ++position;
    if (position != end && (*position == '+' || *position == '-')) {
      ++position;
    }
    if (!skipFollowingDigits()) {
      return {};
    }
  }
  return bytes.first(position - bytes.begin());
}

std::optional<double> realFromJsonNumber(QByteArrayView number) {
  double value = 0;
  const auto [end, error] = std::from_chars(number.begin(), number.end(), value);
  if (error != std::errc{} || end != number.end()) {
    return {};
  }
  return value;
}

std::optional<qint64> integerFromJsonNumber(QByteArrayView number) {
  qint64 value = 0;
  const auto [end, error] = std::from_chars(number.begin(), number.end(), value);
  if (end == number.end()) {
    return error == std::errc{} ? std::optional(value) : std::nullopt;
  }

  Decimal decimal = decimalFromJsonNumber(number);
  while (decimal.digits.endsWith('0')) {
    decimal.digits.chop(1);
    ++decimal.exponent;
  }
  const auto firstDigit =
      std::find_if(decimal.digits.cbegin(), decimal.digits.cend(), [](char c) { return c != '0'; });
  decimal.digits.remove(0, firstDigit - decimal.digits.cbegin());
  if (decimal.digits.isEmpty()) {
    return 0;
  }
  constexpr qint64 mostDigits = 19;
  if (decimal.exponent < 0 || decimal.exponent > mostDigits ||
      decimal.digits.size() + decimal.exponent > mostDigits) {
    return {};
  }
  decimal.digits.append(static_cast<qsizetype>(decimal.exponent), '0');
  if (decimal.isNegative) {
    decimal.digits.prepend('-');
  }
  return integerFromJsonNumber(decimal.digits);
}

char *writeJsonNumber(double value, char *out) {
  Q_ASSERT(std::isfinite(value));
  const double magnitude = std::abs(value);
  constexpr double plainFrom = 1e-4;
  constexpr double plainBelow = 18'014'398'509'481'984.0;  // 2^54
  const bool isPlain = magnitude == 0 || (magnitude >= plainFrom && magnitude < plainBelow);
  return std::to_chars(out, out + longestJsonNumber, value,
                       isPlain ? std::chars_format::fixed : std::chars_format::scientific)
      .ptr;
}

}  // namespace lanternix
