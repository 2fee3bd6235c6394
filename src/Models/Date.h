#pragma once

#include <QtCore/QDateTime>

namespace lanternix {

/// An absolute instant, held exactly as the data document holds it: seconds since
/// 2001-01-01 00:00:00 UTC as one double, so that a date that was read is written back bit for bit.
struct Date {
  double secondsSinceReferenceDate = 0;

  /// The instant \p milliseconds after 1970-01-01 00:00:00 UTC.
  static Date fromUnixMilliseconds(qint64 milliseconds);
  static Date fromDateTime(const QDateTime &dateTime);

  /// The same instant in local time, rounded to the millisecond. An instant beyond what QDateTime
  /// can express gives an invalid QDateTime.
  QDateTime toDateTime() const;

  friend bool operator==(const Date &, const Date &) = default;
  friend auto operator<=>(const Date &first, const Date &second) {
    return first.secondsSinceReferenceDate <=> second.secondsSinceReferenceDate;
  }
};

/// Hash of the instant; equal dates hash alike.
size_t qHash(const Date &date, size_t seed = 0) noexcept;

}  // namespace lanternix
