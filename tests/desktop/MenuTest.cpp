#include "desktop/MenuTest.h"

#include <X11/keysym.h>

namespace lanternix {

using namespace Qt::StringLiterals;

void MenuTest::startWith(const SampleGroups &groups) {
  start(groups);
  m_first = selectNextRow();
}

void MenuTest::startWithCommands() {
  startWith(commands({u"first"_s, u"second"_s, u"third"_s}));
}

bool MenuTest::menuOpens() {
  return waitUntil([this] { return menus().size() == 1; });
}

bool MenuTest::menuCloses() {
  return waitUntil([this] { return menus().isEmpty(); });
}

void MenuTest::openMenuOf(int index) {
  input().click(onPanel(row(index).center()), 3);
  require(u"the menu"_s, [this] { return menus().size() == 1; });
  program().settle();  // it takes the pointer only after it is there
}

void MenuTest::choose(int entry) {
  input().tap(XK_Menu);
  require(u"the menu"_s, [this] { return menus().size() == 1; });
  for (int i = 0; i <= entry; ++i) {
    input().tap(XK_Down);
  }
  input().tap(XK_Return);
  EXPECT_TRUE(menuCloses());
}

}  // namespace lanternix
