#pragma once

namespace lanternix {

class LoginItem;

/// Turns the start at login on and off.
namespace LoginItemHelper {

/// Registers the program with \p loginItem, or takes that back. A failure is one line on standard
/// output and nothing else: the item's status tells how things stand.
void setEnabled(LoginItem &loginItem, bool enabled);

}  // namespace LoginItemHelper

}  // namespace lanternix
