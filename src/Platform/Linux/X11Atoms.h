#pragma once

#include "Platform/Linux/X11Server.h"

#include <array>

namespace lanternix {

/// The names of the window manager's protocol that the program uses, as the server numbers them.
/// All are asked for at once when this is made, and waited for when the first is needed.
class X11Atoms {
 public:
  enum Name : std::size_t {
    gtkFrameExtents,
    kdeNetWmBlurBehindRegion,
    netActiveWindow,
    netStartupInfo,
    netStartupInfoBegin,
    netSupportingWmCheck,
    netWmDesktop,
    netWmState,
    netWmStateAbove,
    netWmStateSkipPager,
    netWmStateSkipTaskbar,
    netWmStateSticky,
    netWmUserTime,
    netWmUserTimeWindow,
    netWmWindowType,
    netWmWindowTypeUtility,
    wmState,
    nameCount,
  };

  explicit X11Atoms(const X11Server &server);
  ~X11Atoms();
  X11Atoms(const X11Atoms &) = delete;
  X11Atoms &operator=(const X11Atoms &) = delete;

  xcb_atom_t operator[](Name name);

 private:
  const X11Server &m_server;
  bool m_received = false;
  std::array<xcb_intern_atom_cookie_t, nameCount> m_cookies{};
  std::array<xcb_atom_t, nameCount> m_atoms{};
};

}  // namespace lanternix
