#include "Platform/Linux/QtWindowSystem.h"
#include "Utilities/FloatingPanel.h"
#include "views/AccessiblePanelTest.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

class PanelAccessibilityTest : public AccessiblePanelTest {
 protected:
  /// The names of everything below that is shown and named, in the order in which readers come to
  /// it.
  static void collectShown(const QAccessibleInterface *about, QStringList &texts) {
    for (int index = 0; index < about->childCount(); ++index) {
      QAccessibleInterface *child = about->child(index);
      if (child != nullptr && !child->state().invisible) {
        if (!nameOf(child).isEmpty()) {
          texts.append(nameOf(child));
        }
        collectShown(child, texts);
      }
    }
  }
};

}  // namespace

TEST_F(PanelAccessibilityTest, TheSearchField_HasANameAndSaysWhatCanBeTyped) {
  show({work}, {report});
  auto *field = QAccessible::queryAccessibleInterface(view->findChild<QLineEdit *>());
  EXPECT_EQ(nameOf(field), u"Search"_s);
  EXPECT_EQ(field->text(QAccessible::Description), u"Search... or group: query to scope"_s);
  EXPECT_EQ(field->role(), QAccessible::EditableText);
}

TEST_F(PanelAccessibilityTest, EveryButton_IsANamedButton) {
  show({}, {});
  const QList<QAbstractButton *> buttons = view->findChildren<QAbstractButton *>();
  EXPECT_EQ(buttons.size(), 3) << "settings twice, and clear";
  for (QAbstractButton *button : buttons) {
    auto *about = QAccessible::queryAccessibleInterface(button);
    EXPECT_EQ(about->role(), QAccessible::Button) << nameOf(about).toStdString();
    EXPECT_FALSE(nameOf(about).isEmpty());
    ASSERT_NE(about->actionInterface(), nullptr);
    EXPECT_TRUE(about->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
  }
}

TEST_F(PanelAccessibilityTest, EveryTextThatIsShown_IsReadFromTopToBottom) {
  show({work}, {report});
  state->setSearchQuery(u"work: zzz"_s);
  QStringList texts;
  collectShown(QAccessible::queryAccessibleInterface(view.get()), texts);
  const QString shortcut = state->hotkeyService().currentShortcut().displayString();
  EXPECT_EQ(texts, (QStringList{u"Lanternix"_s, u"Settings"_s, u"Search"_s, u"Clear Search"_s,
                                u"No items yet"_s, u"No items yet"_s,
                                u"Open Settings to add groups and items"_s, u"Open Settings"_s,
                                u"No results found"_s, u"No results found"_s, u"esc close"_s,
                                shortcut + u" toggle"_s, u"Scope: Work"_s, u"1 items"_s}));
}

TEST_F(PanelAccessibilityTest, ThePanel_IsAWindowNamedLanternix) {
  QtWindowSystem windowSystem;
  FloatingPanel panel(windowSystem);
  auto *about = QAccessible::queryAccessibleInterface(&panel);
  EXPECT_EQ(about->role(), QAccessible::Window);
  EXPECT_EQ(nameOf(about), u"Lanternix"_s);
}

}  // namespace lanternix
