#pragma once

#include "desktop/DesktopTest.h"

namespace lanternix {

/// A test with the menu of an item's row.
class MenuTest : public DesktopTest {
 protected:
  /// Shows the items of one group and selects the first.
  void startWith(const SampleGroups &groups);
  /// The same with commands that leave marks of their names.
  void startWithCommands();

  /// A row's highlight on the panel, counted from the first item.
  QRect row(int index) const { return m_first.translated(0, index * m_first.height()); }

  QList<xcb_window_t> menus() { return session().windows().menus(QStringLiteral("lanternix")); }
  bool menuOpens();
  bool menuCloses();
  QRect menuGeometry() { return session().windows().geometry(menus().value(0)); }

  void openMenuOf(int index);
  /// Opens the menu of the selected row by the keyboard and does what its entry says.
  void choose(int entry);

 private:
  QRect m_first;
};

}  // namespace lanternix
