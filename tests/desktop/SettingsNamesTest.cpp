#include "desktop/SettingsFlowTest.h"

#include <QtCore/QRegularExpression>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// What a screen reader calls the controls of the settings.
class SettingsNamesTest : public SettingsFlowTest {
 protected:
  void openTwoItems() {
    SampleGroups groups;
    groups.group(u"Work"_s).link(u"Report"_s, u"https://example.org/1"_s);
    groups.command(u"Build"_s, u"true"_s);
    openSettings(groups);
  }

  /// The names of the controls in sight below \p ancestor, each after its role.
  QStringList controlsBelow(const AccessibilityBus::Node &ancestor) const {
    static const QStringList roles{u"check box"_s,    u"combo box"_s, u"list"_s,
                                   u"list item"_s,    u"page tab"_s,  u"push button"_s,
                                   u"radio button"_s, u"spin box"_s,  u"text"_s};
    QStringList names;
    const QList<AccessibilityBus::Node> nodes = reader.children(ancestor);
    for (const AccessibilityBus::Node &node : nodes) {
      if (!reader.has(node, AccessibilityBus::State::showing)) {
        continue;
      }
      const QString role = reader.role(node);
      if (roles.contains(role)) {
        names.append(role + u": "_s + reader.name(node));
      }
      names.append(controlsBelow(node));
    }
    return names;
  }
  QStringList controlsOfSettings() { return controlsBelow(window(u"Lanternix Settings"_s)); }
  static QStringList nameless(const QStringList &controls) {
    return controls.filter(QRegularExpression(u": $"_s));
  }
};

TEST_F(SettingsNamesTest, EveryControlOfTheGroupsTab_HasAName) {
  openTwoItems();
  select(u"Work"_s);
  const QStringList controls = controlsOfSettings();
  EXPECT_TRUE(controls.contains(u"list: Groups"_s)) << controls.join(u'\n').toStdString();
  EXPECT_TRUE(controls.contains(u"list item: Report"_s)) << controls.join(u'\n').toStdString();
  EXPECT_TRUE(controls.contains(u"push button: Delete Group"_s));
  EXPECT_EQ(nameless(controls), QStringList()) << controls.join(u'\n').toStdString();
}

TEST_F(SettingsNamesTest, EveryControlOfTheSettingsTab_HasAName) {
  openTwoItems();
  showTab(u"Settings"_s);
  control(u"check box"_s, u"Launch Lanternix at Login"_s);
  const QStringList controls = controlsOfSettings();
  EXPECT_TRUE(controls.contains(u"push button: Toggle Popup Panel"_s));
  EXPECT_EQ(nameless(controls), QStringList()) << controls.join(u'\n').toStdString();
}

TEST_F(SettingsNamesTest, EveryControlOfTheDataTab_HasAName) {
  openTwoItems();
  showTab(u"Data"_s);
  control(u"push button"_s, u"Restore"_s);
  const QStringList controls = controlsOfSettings();
  EXPECT_TRUE(controls.contains(u"spin box: Backup Retention"_s))
      << controls.join(u'\n').toStdString();
  EXPECT_TRUE(controls.contains(u"push button: Create Backup"_s));
  EXPECT_EQ(nameless(controls), QStringList()) << controls.join(u'\n').toStdString();
}

TEST_F(SettingsNamesTest, EveryControlOfTheGroupEditor_HasAName) {
  openTwoItems();
  click(button(u"Add Group"_s));
  const QStringList controls = controlsBelow(dialog(u"New Group"_s));
  EXPECT_TRUE(controls.contains(u"text: Group Name"_s)) << controls.join(u'\n').toStdString();
  EXPECT_TRUE(controls.contains(u"radio button: Filled Folder"_s))
      << controls.join(u'\n').toStdString();
  EXPECT_EQ(nameless(controls), QStringList()) << controls.join(u'\n').toStdString();
}

TEST_F(SettingsNamesTest, TheChoicesOfTheGroupEditor_StandInNamedGroups) {
  openTwoItems();
  click(button(u"Add Group"_s));
  const auto editor = dialog(u"New Group"_s);
  for (const auto &[name, first] :
       {std::pair(u"Icon"_s, u"Folder"_s), std::pair(u"Color"_s, u"Red"_s)}) {
    const auto section = reader.find(editor, u"panel"_s, name);
    const auto choices = reader.children(reader.find(section, u"panel"_s, name));
    ASSERT_FALSE(choices.isEmpty());
    EXPECT_EQ(reader.role(choices.front()), u"radio button"_s);
    EXPECT_EQ(reader.name(choices.front()), first);
  }
}

TEST_F(SettingsNamesTest, EveryControlOfTheItemEditor_HasAName) {
  openTwoItems();
  select(u"Work"_s);
  click(button(u"Add Item"_s));
  const QStringList controls = controlsBelow(dialog(u"New Item"_s));
  // The toolkit gives a list of choices the name of the one that is chosen.
  EXPECT_TRUE(controls.contains(u"combo box: Directory"_s)) << controls.join(u'\n').toStdString();
  EXPECT_TRUE(controls.contains(u"text: Path"_s)) << controls.join(u'\n').toStdString();
  EXPECT_EQ(nameless(controls), QStringList()) << controls.join(u'\n').toStdString();
}

TEST_F(SettingsNamesTest, TheChoicesOfTheItemEditor_AreLabelled) {
  openTwoItems();
  select(u"Work"_s);
  click(button(u"Add Item"_s));
  const auto editor = dialog(u"New Item"_s);
  for (const auto &[choice, label] :
       {std::pair(u"Directory"_s, u"Type"_s), std::pair(u"Work"_s, u"Group"_s)}) {
    const auto labels = reader.labels(reader.find(editor, u"combo box"_s, choice));
    ASSERT_EQ(labels.size(), 1) << choice.toStdString();
    EXPECT_EQ(reader.name(labels.front()), label);
  }
}

}  // namespace
}  // namespace lanternix
