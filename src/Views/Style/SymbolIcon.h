#pragma once

#include "Models/SystemColor.h"

#include <QtGui/QIcon>

namespace lanternix {

/// The symbol \p name for controls that take icons. It has the colours of text as they are when it
/// is drawn: plain, on the accent colour where the control is selected, faint where it is disabled.
QIcon symbolIcon(const QString &name);

/// The same in \p color, as long as the control is neither selected nor disabled.
QIcon symbolIcon(const QString &name, SystemColor color);

}  // namespace lanternix
