#include "Utilities/DateText.h"

#include "Models/Date.h"

#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace lanternix::DateText {

namespace {

bool isEnglish(const QLocale &locale) {
  return locale.language() == QLocale::English || locale.language() == QLocale::C;
}

const QRegularExpression &leadingWeekday() {
  // With all up to the next format letter or quoted text, such as a comma or a particle.
  static const QRegularExpression pattern(u"^d{3,4}[^dMyG']*"_s);
  return pattern;
}

const QRegularExpression &otherWeekday() {
  static const QRegularExpression pattern(u"[\\s,،、(]*d{3,4}\\)?"_s);
  return pattern;
}

/// Without the seconds that the locale of no language has even in a short time.
QString shortTimeFormat(const QLocale &locale) {
  static const QRegularExpression seconds(u"[:.]ss?"_s);
  return locale.timeFormat(QLocale::ShortFormat).remove(seconds);
}

}  // namespace

QString mediumDateFormat(const QLocale &locale) {
  QString format = locale.dateFormat(QLocale::LongFormat);
  format.remove(leadingWeekday());
  format.remove(otherWeekday());
  format.replace(u"MMMM"_s, u"MMM"_s);
  return format.trimmed();
}

QString mediumDateShortTime(const Date &date, const QLocale &locale) {
  const QDateTime dateTime = date.toDateTime();
  return locale.toString(dateTime.date(), mediumDateFormat(locale)) +
         (isEnglish(locale) ? u" at "_s : u", "_s) +
         locale.toString(dateTime.time(), shortTimeFormat(locale));
}

}  // namespace lanternix::DateText
