#pragma once

#include "Platform/Clock.h"

namespace lanternix {

/// A clock that stands still until a test moves it.
class FakeClock final : public Clock {
 public:
  explicit FakeClock(const QDateTime &start = QDateTime(QDate(2026, 3, 7), QTime(9, 5, 41)))
      : m_now(Date::fromDateTime(start)) {}

  Date now() const override { return m_now; }

  void set(const Date &now) { m_now = now; }
  /// \p dateTime is local time unless it says otherwise.
  void set(const QDateTime &dateTime) { m_now = Date::fromDateTime(dateTime); }
  void advance(double seconds) { m_now.secondsSinceReferenceDate += seconds; }

 private:
  Date m_now;
};

}  // namespace lanternix
