#include "Views/Style/SpokenText.h"

#include "Models/PathItem.h"
#include "Views/Style/DisplayText.h"

#include <QtCore/QStringList>

using namespace Qt::StringLiterals;

namespace lanternix::SpokenText {

QString of(const QString &text) {
  constexpr qsizetype longest = 1000;
  QString result = DisplayText::shortened(text, longest, Qt::ElideRight);
  for (QChar &character : result) {
    if (character.category() == QChar::Other_Control) {
      character = u' ';
    }
  }
  return result;
}

// What matters most comes first, because listeners cut short what they need no more of.
QString describing(const PathItem &item, const QString &path) {
  QStringList parts(displayName(item.type));
  if (!item.isValid()) {
    parts.append(defectName(item.type));
  }
  if (!path.isEmpty()) {
    parts.append(of(path));
  }
  return parts.join(u", "_s);
}

}  // namespace lanternix::SpokenText
