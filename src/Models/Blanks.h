#pragma once

#include <QtCore/QStringView>

namespace lanternix {

/// \p text without the blanks (tabs and Unicode space separators, not line breaks) at both ends.
QStringView trimmedBlanks(QStringView text);

}  // namespace lanternix
