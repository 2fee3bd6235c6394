#pragma once

#include <QtCore/QString>

namespace lanternix {

/// Sees the entries of \p directory onto the disk: a file that was renamed has its new content
/// there only after this. What fails is logged; nothing more can be done about it.
void flushDirectory(const QString &directory);

}  // namespace lanternix
