#include "desktop/DesktopTest.h"
#include "support/AccessibilityBus.h"

#include <X11/keysym.h>
#include <algorithm>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using State = AccessibilityBus::State;

class AccessibilityTest : public DesktopTest {
 protected:
  void startWithTwo() {
    SampleGroups groups = commands({u"first"_s, u"second"_s});
    groups.group(u"Broken"_s).file(u"Gone"_s, u"/nonexistent/file"_s);
    groups.group(u"Folded"_s, {.isExpanded = false}).link(u"Site"_s, u"https://example.org"_s);
    start(groups);
    panel = reader.find(reader.program(u"Lanternix"_s), u"frame"_s, u"Lanternix"_s);
  }

  AccessibilityBus::Node list() const { return reader.find(panel, u"tree"_s, u"Items"_s); }
  AccessibilityBus::Node row(const QString &name) const {
    return reader.find(list(), u"tree item"_s, name);
  }
  QStringList namesBelow(const AccessibilityBus::Node &node) const {
    QStringList names;
    for (const AccessibilityBus::Node &child : reader.children(node)) {
      names.append(reader.name(child));
    }
    return names;
  }
  /// Whether a reader is told that the focus goes to what has this name.
  bool focusComesTo(const QString &name) {
    return waitUntil([&] { return reader.focus() && reader.name(*reader.focus()) == name; });
  }
  qsizetype heard(const QString &what, int detail) const {
    return std::ranges::count_if(reader.events(), [&](const AccessibilityBus::Event &event) {
      return event.what == what && event.detail == detail;
    });
  }

  AccessibilityBus reader{session().variables()};
  AccessibilityBus::Node panel;
};

TEST_F(AccessibilityTest, TheSearchField_IsNamedAndHasTheKeyboard) {
  startWithTwo();
  const AccessibilityBus::Node field = reader.find(panel, u"text"_s, u"Search"_s);
  EXPECT_EQ(reader.description(field), u"Search... or group: query to scope"_s);
  EXPECT_TRUE(reader.has(field, State::editable));
  EXPECT_TRUE(waitUntil([&] { return reader.has(field, State::focused); }));
}

TEST_F(AccessibilityTest, TheList_HasABranchForEveryGroup) {
  startWithTwo();
  EXPECT_EQ(namesBelow(list()), (QStringList{u"Commands"_s, u"Broken"_s, u"Folded"_s}));
  EXPECT_EQ(namesBelow(row(u"Commands"_s)), (QStringList{u"first"_s, u"second"_s}));
  EXPECT_EQ(namesBelow(row(u"Folded"_s)), QStringList());
}

TEST_F(AccessibilityTest, AGroup_TellsItsCountAndState) {
  startWithTwo();
  const AccessibilityBus::Node commands = row(u"Commands"_s);
  EXPECT_EQ(reader.description(commands), u"2 items"_s);
  EXPECT_TRUE(reader.has(commands, State::expandable));
  EXPECT_TRUE(reader.has(commands, State::expanded));
  const AccessibilityBus::Node folded = row(u"Folded"_s);
  EXPECT_EQ(reader.description(folded), u"1 item"_s);
  EXPECT_TRUE(reader.has(folded, State::expandable));
  EXPECT_TRUE(reader.has(folded, State::collapsed));
  EXPECT_FALSE(reader.has(folded, State::expanded));
}

TEST_F(AccessibilityTest, AnItem_TellsItsTypePathAndWhetherItIsBroken) {
  startWithTwo();
  EXPECT_EQ(reader.description(row(u"first"_s)), u"Command, mkdir '~/marks-first'"_s);
  EXPECT_EQ(reader.description(row(u"Gone"_s)), u"File, not found, /nonexistent/file"_s);
}

TEST_F(AccessibilityTest, TheMovingSelection_IsHeard) {
  startWithTwo();
  input().tap(XK_Down);
  ASSERT_TRUE(focusComesTo(u"first"_s));
  const AccessibilityBus::Node first = row(u"first"_s);
  EXPECT_EQ(reader.focus(), first);
  EXPECT_TRUE(reader.has(first, State::selected));
  EXPECT_TRUE(reader.has(first, State::focused));

  reader.forgetEvents();
  input().tap(XK_Down);
  ASSERT_TRUE(focusComesTo(u"second"_s));
  EXPECT_FALSE(reader.has(first, State::selected));
  EXPECT_EQ(heard(u"selected"_s, 0), 1);
  EXPECT_EQ(heard(u"selected"_s, 1), 1);
  EXPECT_EQ(heard(u"focused"_s, 1), 1);
}

TEST_F(AccessibilityTest, TheFirstMatchOfASearch_IsHeard) {
  startWithTwo();
  const AccessibilityBus::Node first = row(u"first"_s);
  input().type(u"sec"_s);
  ASSERT_TRUE(focusComesTo(u"second"_s));
  EXPECT_EQ(namesBelow(row(u"Commands"_s)), QStringList(u"second"_s));
  EXPECT_TRUE(std::ranges::any_of(reader.events(), [&](const AccessibilityBus::Event &event) {
    return event.what == u"add"_s && event.node == list();
  })) << "that the list has new rows";
  EXPECT_FALSE(reader.isKnown(first)) << "a row that is gone";
}

TEST_F(AccessibilityTest, WhenTheSearchIsEmptiedAgain_TheFieldIsHeard) {
  startWithTwo();
  input().type(u"sec"_s);
  ASSERT_TRUE(focusComesTo(u"second"_s));
  for (int letter = 0; letter < 3; ++letter) {
    input().tap(XK_BackSpace);
  }
  EXPECT_TRUE(focusComesTo(u"Search"_s));
}

TEST_F(AccessibilityTest, ASearchThatFindsNothing_IsHeardOnce) {
  startWithTwo();
  reader.forgetEvents();
  input().type(u"zzz"_s);
  const AccessibilityBus::Node message =
      reader.find(panel, u"notification"_s, u"No results found"_s);
  const auto isShown = [&](const AccessibilityBus::Event &event) {
    return event.what == u"showing"_s && event.detail == 1 && event.node == message;
  };
  EXPECT_TRUE(waitUntil([&] { return std::ranges::any_of(reader.events(), isShown); }));
  EXPECT_EQ(std::ranges::count_if(reader.events(), isShown), 1);
}

TEST_F(AccessibilityTest, ThePanelThatIsShownAgain_StartsInTheField) {
  startWithTwo();
  input().tap(XK_Down);
  ASSERT_TRUE(focusComesTo(u"first"_s));
  reader.forgetEvents();
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  // Once as the window is hidden, and once more when no other window of the program has got the
  // keyboard instead.
  ASSERT_TRUE(waitUntil([&] { return heard(u"Deactivate"_s, 0) > 1; }));
  showByShortcut();
  EXPECT_TRUE(focusComesTo(u"Search"_s));
  EXPECT_EQ(heard(u"selected"_s, 0) + heard(u"selected"_s, 1), 0) << "of a hidden list";
}

TEST_F(AccessibilityTest, ThePanelThatIsShownAgainAtOnce_HasTheKeyboardInTheField) {
  startWithTwo();
  const AccessibilityBus::Node field = reader.find(panel, u"text"_s, u"Search"_s);
  ASSERT_TRUE(waitUntil([&] { return reader.has(field, State::focused); }));
  // Sooner than the toolkit believes that the keyboard has gone.
  pressShortcut();
  pressShortcut();
  program().settle();
  EXPECT_TRUE(waitUntil([&] { return reader.has(field, State::focused); }));
  EXPECT_TRUE(waitUntil([&] { return reader.has(panel, State::active); }));
}

TEST_F(AccessibilityTest, AReader_FoldsAGroup) {
  startWithTwo();
  reader.act(row(u"Commands"_s));
  EXPECT_TRUE(waitUntil([&] { return namesBelow(row(u"Commands"_s)).isEmpty(); }));
  EXPECT_TRUE(reader.has(row(u"Commands"_s), State::collapsed));
}

TEST_F(AccessibilityTest, AReader_OpensAnItem) {
  startWithTwo();
  reader.act(row(u"second"_s));
  EXPECT_TRUE(becomesMarked(u"second"_s));
  EXPECT_TRUE(becomesHidden());
}

}  // namespace
}  // namespace lanternix
