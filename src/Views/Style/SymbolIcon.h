#pragma once

#include <QtGui/QIcon>

namespace lanternix {

/// The symbol \p name for controls that take icons. It has the colours of text as they are when it
/// is drawn: plain, on the accent colour where the control is selected, faint where it is disabled.
QIcon symbolIcon(const QString &name);

}  // namespace lanternix
