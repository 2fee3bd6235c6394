#include "Views/Controls/ChoiceCell.h"
#include "views/GroupEditorViewTest.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class GroupEditorChoicesTest : public GroupEditorViewTest {};

}  // namespace

TEST_F(GroupEditorChoicesTest, EveryIconAndColour_IsSavedByItsName) {
  const QStringList icons{u"folder"_s,
                          u"folder.fill"_s,
                          u"briefcase"_s,
                          u"briefcase.fill"_s,
                          u"hammer"_s,
                          u"hammer.fill"_s,
                          u"wrench"_s,
                          u"wrench.fill"_s,
                          u"globe"_s,
                          u"globe.americas"_s,
                          u"book"_s,
                          u"book.fill"_s,
                          u"star"_s,
                          u"star.fill"_s,
                          u"heart"_s,
                          u"heart.fill"_s,
                          u"gamecontroller"_s,
                          u"gamecontroller.fill"_s,
                          u"music.note"_s,
                          u"photo"_s,
                          u"doc.text"_s,
                          u"terminal"_s,
                          u"chevron.left.forwardslash.chevron.right"_s,
                          u"cpu"_s,
                          u"desktopcomputer"_s,
                          u"display"_s,
                          u"externaldrive"_s,
                          u"gearshape"_s,
                          u"person"_s,
                          u"house"_s,
                          u"building.2"_s};
  const QStringList colors{u"red"_s,    u"orange"_s, u"yellow"_s, u"green"_s, u"blue"_s,
                           u"purple"_s, u"pink"_s,   u"indigo"_s, u"teal"_s};
  for (int i = 0; i < icons.size(); ++i) {
    GroupEditorView *editor = open();
    ASSERT_EQ(grid(*editor, u"Icon"_s)->cells().size(), icons.size());
    ASSERT_EQ(grid(*editor, u"Color"_s)->cells().size(), colors.size());
    nameField(*editor)->setText(u"Group"_s);
    grid(*editor, u"Icon"_s)->cells()[i]->click();
    grid(*editor, u"Color"_s)->cells()[i % colors.size()]->click();
    button(*editor, u"Add Group"_s)->click();
    EXPECT_EQ(state->groups().last().iconName, icons[i]);
    EXPECT_EQ(state->groups().last().colorName, colors[i % colors.size()]);
  }
}

TEST_F(GroupEditorChoicesTest, EveryCell_HasANameOfItsOwn) {
  const GroupEditorView *editor = open();
  for (const QString &choice : {u"Icon"_s, u"Color"_s}) {
    QSet<QString> cellNames;
    for (const QAbstractButton *cell : grid(*editor, choice)->cells()) {
      cellNames.insert(cell->accessibleName());
    }
    EXPECT_FALSE(cellNames.contains(QString()));
    EXPECT_EQ(cellNames.size(), grid(*editor, choice)->cells().size());
  }
}

TEST_F(GroupEditorChoicesTest, CellsOfIcons_Are32By32WithAtLeast8BetweenThem) {
  const GroupEditorView *editor = open();
  const QList<ChoiceCell *> &cells = grid(*editor, u"Icon"_s)->cells();
  for (const QAbstractButton *cell : cells) {
    EXPECT_EQ(cell->size(), QSize(32, 32));
  }
  EXPECT_GE(cells[1]->x() - cells[0]->geometry().right() - 1, 8);
  const auto below = std::ranges::find_if(
      cells, [&cells](const QAbstractButton *cell) { return cell->y() > cells[0]->y(); });
  EXPECT_EQ((*below)->y() - cells[0]->geometry().bottom() - 1, 8);
  EXPECT_EQ((*below)->x(), cells[0]->x());
}

TEST_F(GroupEditorChoicesTest, Circles_Are24WideWith8BetweenThem) {
  const GroupEditorView *editor = open();
  const QList<ChoiceCell *> &cells = grid(*editor, u"Color"_s)->cells();
  EXPECT_EQ(cells[0]->size(), QSize(24, 24));
  EXPECT_EQ(cells[1]->x() - cells[0]->geometry().right() - 1, 8);
  EXPECT_EQ(cells.last()->y(), cells[0]->y());
}

TEST_F(GroupEditorChoicesTest, TheSelectedCircle_HasARingAndAWhiteMark) {
  const GroupEditorView *editor = open();
  const QList<ChoiceCell *> &cells = grid(*editor, u"Color"_s)->cells();
  const auto whiteness = [](QAbstractButton *cell) {
    const QImage picture = cell->grab().toImage();
    int most = 0;
    for (int y = 6; y < 18; ++y) {
      for (int x = 6; x < 18; ++x) {
        const QColor color = picture.pixelColor(x, y);
        most = std::max(most, std::min({color.red(), color.green(), color.blue()}));
      }
    }
    return most;
  };
  EXPECT_GT(whiteness(cells[4]), 200);
  EXPECT_LT(whiteness(cells[0]), 100);
  // The ring is the colour of text, which is dark on a light window.
  EXPECT_LT(cells[4]->grab().toImage().pixelColor(12, 1).lightness(),
            cells[0]->grab().toImage().pixelColor(12, 1).lightness());
}

TEST_F(GroupEditorChoicesTest, TheSelectedIcon_HasALineOfTheAccentColour) {
  const GroupEditorView *editor = open();
  const QList<ChoiceCell *> &cells = grid(*editor, u"Icon"_s)->cells();
  const QColor accent = window.palette().color(QPalette::Highlight);
  EXPECT_EQ(cells[0]->grab().toImage().pixelColor(16, 0), accent);
  EXPECT_NE(cells[1]->grab().toImage().pixelColor(16, 0), accent);
}

TEST_F(GroupEditorChoicesTest, ArrowKeys_WalkTheIconsInRowsAndColumns) {
  GroupEditorView *editor = open();
  const ChoiceGrid *icons = grid(*editor, u"Icon"_s);
  press(*editor, Qt::Key_Tab);
  ASSERT_EQ(editor->focusWidget(), icons->cells()[0]);
  press(*editor, Qt::Key_Right);
  EXPECT_EQ(icons->currentIndex(), 1);
  press(*editor, Qt::Key_Down);
  const QAbstractButton *below = icons->cells()[icons->currentIndex()];
  EXPECT_EQ(below->x(), icons->cells()[1]->x());
  EXPECT_GT(below->y(), icons->cells()[1]->y());
  EXPECT_EQ(editor->focusWidget(), below);
  press(*editor, Qt::Key_Up);
  press(*editor, Qt::Key_Left);
  EXPECT_EQ(icons->currentIndex(), 0);
  press(*editor, Qt::Key_Left);
  EXPECT_EQ(icons->currentIndex(), 0);
  press(*editor, Qt::Key_End);
  EXPECT_EQ(icons->currentIndex(), 30);
  press(*editor, Qt::Key_Home);
  EXPECT_EQ(icons->currentIndex(), 0);
}

TEST_F(GroupEditorChoicesTest, TheTabKey_StopsOnceAtEachChoice) {
  GroupEditorView *editor = open();
  nameField(*editor)->setText(u"Work"_s);
  press(*editor, Qt::Key_Tab);
  press(*editor, Qt::Key_Tab);
  EXPECT_EQ(editor->focusWidget(), grid(*editor, u"Color"_s)->cells()[4]);
  press(*editor, Qt::Key_Tab);
  EXPECT_EQ(editor->focusWidget(), button(*editor, u"Cancel"_s));
}

TEST_F(GroupEditorChoicesTest, ReturnOnACell_Saves) {
  GroupEditorView *editor = open();
  type(*editor, u"Work"_s);
  press(*editor, Qt::Key_Tab);
  press(*editor, Qt::Key_Right);
  press(*editor, Qt::Key_Return);
  ASSERT_EQ(state->groups().size(), 1);
  EXPECT_EQ(state->groups().first().iconName, u"folder.fill"_s);
}

}  // namespace lanternix
