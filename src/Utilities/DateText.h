#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace lanternix {

struct Date;

/// Dates as people read them.
namespace DateText {

/// A date with an abbreviated month, without the day of the week, and a time without seconds, as
/// \p locale writes them: "Nov 21, 2026 at 3:40 PM". In local time.
QString mediumDateShortTime(const Date &date, const QLocale &locale = QLocale::system());

/// The format of such a date. QLocale knows only a long one and a short one of digits; this is the
/// long one, with what is too long for a list taken out.
QString mediumDateFormat(const QLocale &locale);

}  // namespace DateText

}  // namespace lanternix
