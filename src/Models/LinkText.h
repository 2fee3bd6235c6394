#pragma once

#include <QtCore/QString>

namespace lanternix {

/// Whether \p text parses as a URL, absolute or relative, with the leniency of a browser's address
/// field: blanks in a path and characters outside ASCII are fine, a broken host or port is not.
/// Empty text does not parse.
bool parsesAsUrl(const QString &text);

}  // namespace lanternix
