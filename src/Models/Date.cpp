#include "Models/Date.h"

#include <QtCore/QHashFunctions>

#include <cmath>
#include <limits>

namespace lanternix {

namespace {
// 2001-01-01 00:00:00 UTC, counted from 1970-01-01 00:00:00 UTC.
constexpr qint64 referenceDateUnixMilliseconds = 978'307'200'000;
}  // namespace

Date Date::fromUnixMilliseconds(qint64 milliseconds) {
  return {static_cast<double>(milliseconds - referenceDateUnixMilliseconds) / 1000.0};
}

Date Date::fromDateTime(const QDateTime &dateTime) {
  return fromUnixMilliseconds(dateTime.toMSecsSinceEpoch());
}

QDateTime Date::toDateTime() const {
  const double milliseconds = std::round(secondsSinceReferenceDate * 1000.0);
  constexpr double limit = 8.64e15;  // the range that calendars are defined for
  if (!(std::abs(milliseconds) < limit)) {
    return {};
  }
  return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(milliseconds) +
                                        referenceDateUnixMilliseconds);
}

size_t qHash(const Date &date, size_t seed) noexcept {
  return ::qHash(date.secondsSinceReferenceDate, seed);
}

}  // namespace lanternix
