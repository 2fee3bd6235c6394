#include "Models/LinkText.h"

#include <QtCore/QUrl>

namespace lanternix {

bool parsesAsUrl(const QString &text) {
  return !text.isEmpty() && QUrl(text, QUrl::TolerantMode).isValid();
}

}  // namespace lanternix
