#pragma once

namespace lanternix {

class LoginItem;

/// Switches the start at login for those who need not know whether that worked: they ask for the
/// status afterwards.
namespace LoginItemHelper {

/// Registers or unregisters the program. A failure is told by a line on standard output, which
/// begins with "Login item error: ".
void setEnabled(LoginItem &loginItem, bool enabled);

}  // namespace LoginItemHelper

}  // namespace lanternix
