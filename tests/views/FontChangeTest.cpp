#include "Views/Panel/EmptyStateView.h"
#include "Views/Panel/KeyHintView.h"
#include "Views/Panel/PanelHeaderView.h"
#include "Views/Panel/PopupPanelView.h"
#include "Views/Panel/ScopeBadgeView.h"
#include "Views/Style/SymbolButton.h"
#include "Views/Style/SymbolLabel.h"
#include "Views/Style/TextLabel.h"
#include "views/ViewTest.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

namespace lanternix {

namespace {

/// The user makes the font larger while the panel is open. Only larger: the family stays, which is
/// when Qt tells the fewest widgets.
class FontChangeTest : public ViewTest {
 protected:
  ~FontChangeTest() override {
    view.reset();
    QApplication::setFont(font);
    QCoreApplication::processEvents();
  }

  void show(const QList<PathGroup> &groups, const QList<PathItem> &items) {
    state = makeState(groups, items);
    view = std::make_unique<PopupPanelView>(*state);
    view->resize(700, 500);
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
  }

  static void enlarge() {
    QFont larger = QApplication::font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    QApplication::setFont(larger);
    QCoreApplication::processEvents();
  }

  /// Enlarges the font and expects every visible \p Widget to grow in its layout.
  template <typename Widget>
  void expectAllToGrow() {
    QHash<const QWidget *, QSize> before;
    for (const Widget *widget : view->findChildren<Widget *>()) {
      if (widget->isVisible()) {
        before.insert(widget, widget->size());
      }
    }
    ASSERT_FALSE(before.isEmpty());
    enlarge();
    for (const auto &[widget, size] : before.asKeyValueRange()) {
      EXPECT_TRUE(QTest::qWaitFor([&] { return widget->height() > size.height(); }))
          << widget->accessibleName().toStdString();
    }
  }

  const QFont font = QApplication::font();
  PathGroup work = group(QStringLiteral("Work"));
  std::unique_ptr<AppState> state;
  std::unique_ptr<PopupPanelView> view;
};

}  // namespace

TEST_F(FontChangeTest, Texts_Grow) {
  show({}, {});
  expectAllToGrow<TextLabel>();
}

TEST_F(FontChangeTest, TheMessageOfASearchWithoutMatches_Grows) {
  show({work}, {});
  state->setSearchQuery(QStringLiteral("zebra"));
  expectAllToGrow<TextLabel>();
}

TEST_F(FontChangeTest, KeyHints_Grow) {
  show({}, {});
  expectAllToGrow<KeyHintView>();
}

TEST_F(FontChangeTest, TheSearchField_Grows) {
  show({}, {});
  expectAllToGrow<QLineEdit>();
}

TEST_F(FontChangeTest, Buttons_Grow) {
  show({}, {});
  expectAllToGrow<SymbolButton>();
}

TEST_F(FontChangeTest, TheButtonOfTheEmptyPanel_Grows) {
  show({}, {});
  expectAllToGrow<QPushButton>();
}

TEST_F(FontChangeTest, TheScopeBadge_Grows) {
  show({work}, {});
  state->setSearchQuery(QStringLiteral("work:"));
  expectAllToGrow<ScopeBadgeView>();
}

TEST_F(FontChangeTest, TheMarkBesideTheName_Grows_AndMarksOfAFixedSizeStay) {
  show({}, {});
  const auto *mark = view->findChild<PanelHeaderView *>()->findChild<SymbolLabel *>();
  const auto *emptyMark = view->findChild<EmptyStateView *>()->findChild<SymbolLabel *>();
  const int before = mark->height();
  enlarge();
  EXPECT_TRUE(QTest::qWaitFor([&] { return mark->height() > before; }));
  EXPECT_EQ(emptyMark->height(), 44);
}

TEST_F(FontChangeTest, Rows_Grow) {
  QList<PathItem> items;
  for (int i = 0; i < 50; ++i) {
    items.append(item(QStringLiteral("Item %1").arg(i), work, i));
  }
  show({work}, items);
  int longest = 0;
  const auto listLength = [this] {
    int length = 0;
    for (const QScrollBar *bar : view->findChildren<QScrollBar *>()) {
      length = qMax(length, bar->maximum());
    }
    return length;
  };
  longest = listLength();
  enlarge();
  EXPECT_GT(listLength(), longest);
}

TEST_F(FontChangeTest, LabelMovedToAnotherParent_StillGrows) {
  QWidget first;
  QWidget second;
  TextLabel label(QStringLiteral("Text"), TextStyle::body, QFont::Normal, FillStyle::primary,
                  &first);
  label.setParent(&second);
  second.show();
  const int before = label.sizeHint().height();
  enlarge();
  EXPECT_GT(label.sizeHint().height(), before);
}

}  // namespace lanternix
