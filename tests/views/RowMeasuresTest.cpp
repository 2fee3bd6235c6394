#include "Views/Style/Symbol.h"
#include "views/MeasuresTest.h"

#include <QtCore/QDir>
#include <QtGui/QFontMetricsF>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cmath>

namespace lanternix {

namespace {

/// The measures of an item's row at one density.
struct Sizes {
  double padding;
  double tile;
  double radius;
  double image;
  double symbol;
  double nameRatio;
  double pathRatio;
};

Sizes sizesFor(PanelItemSize size) {
  switch (size) {
    case PanelItemSize::small:
      return {5, 26, 6, 14, 12, 0.85, 0.77};
    case PanelItemSize::medium:
      return {8, 32, 8, 20, 15, 1, 0.77};
    case PanelItemSize::large:
      return {12, 40, 10, 26, 19, 1.15, 0.85};
  }
  return {};
}

class RowMeasuresTest : public MeasuresTest {
 protected:
  void showItem(ItemType type, const QString &path) {
    work.colorName = QStringLiteral("red");
    report.type = type;
    report.path = path;
    show({work}, {report});
  }
  void showCommand() { showItem(ItemType::command, QStringLiteral("make report")); }

  QFont nameFont() const { return font(sizes.nameRatio, QFont::Medium); }
  QFont pathFont() const { return font(sizes.pathRatio); }
  static double markSide() { return Symbol::sideFor(font(0.77)); }

  QRectF itemRow() const { return row(1); }
  QRectF tile() const {
    return {20, std::round(itemRow().center().y() - sizes.tile / 2), sizes.tile, sizes.tile};
  }
  double textLeft() const { return 20 + sizes.tile + 12; }
  /// The places of the name and of the path below it, as far as \p right.
  QRectF namePlace(double right) const {
    const double height = heightOf(nameFont()) + 2 + heightOf(pathFont());
    return {textLeft(), itemRow().center().y() - height / 2, right - textLeft(),
            heightOf(nameFont())};
  }
  QRectF pathPlace(double right) const {
    return {textLeft(), namePlace(right).bottom() + 2, right - textLeft(), heightOf(pathFont())};
  }
  /// Where texts end beside the arrow.
  double textRight() const { return itemRow().right() - 20 - markSide() - 12; }
  QRectF arrowPlace() const {
    return {itemRow().right() - 20 - markSide(), itemRow().top(), markSide(), itemRow().height()};
  }

  QColor red() const { return either(0xFF3B30, 0xFF453A); }
  QColor accent() const { return palette.color(QPalette::Highlight); }

  testing::AssertionResult showsHighlight(double opacity) const {
    // Between the tile's row of pixels and the row's edge, where nothing else is drawn.
    const QRectF shape = itemRow().adjusted(8, 0, -8, 0);
    const QRectF head(itemRow().left(), itemRow().top(), itemRow().width(), sizes.padding - 1);
    return picture().shows(head, ground(), [&](QPainter &painter) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(laid(accent(), opacity));
      painter.drawRoundedRect(shape, 8, 8);
    });
  }

  const Sizes sizes = sizesFor(GetParam().size);
  PathGroup work = group(QStringLiteral("Work"));
  PathItem report = item(QStringLiteral("Report"), work);
};

INSTANTIATE_TEST_SUITE_P(Looks, RowMeasuresTest, testing::ValuesIn(looks), nameOfLook);

}  // namespace

TEST_P(RowMeasuresTest, ARow_IsItsContentWithItsPadding) {
  showCommand();
  const double text = heightOf(nameFont()) + 2 + heightOf(pathFont());
  EXPECT_EQ(itemRow().height(), std::ceil(std::max(sizes.tile, text) + 2 * sizes.padding));
}

TEST_P(RowMeasuresTest, WithoutPaths_ARowIsNoHigherThanItsTileAndName) {
  showCommand();
  state->setShowURLs(false);
  EXPECT_EQ(itemRow().height(),
            std::ceil(std::max(sizes.tile, heightOf(nameFont())) + 2 * sizes.padding));
}

TEST_P(RowMeasuresTest, TheTile_IsARoundedSquareInTheGroupsColour) {
  showCommand();
  const QColor color = laid(red(), 0.12);
  EXPECT_EQ(picture().boundsOf(color, itemRow()), tile());
  const QRectF corner(tile().topLeft(), QSizeF(sizes.radius, sizes.radius));
  EXPECT_TRUE(picture().shows(corner, ground(), [&](QPainter &painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(tile(), sizes.radius, sizes.radius);
  }));
}

TEST_P(RowMeasuresTest, ACommand_HasTheTerminalOnItsTile) {
  showCommand();
  EXPECT_TRUE(picture().shows({QStringLiteral("terminal"), sizes.symbol, red(), tile()},
                              laid(red(), 0.12)));
}

TEST_P(RowMeasuresTest, ALink_HasTheGlobeOnItsTile) {
  showItem(ItemType::link, QStringLiteral("https://example.org"));
  EXPECT_TRUE(
      picture().shows({QStringLiteral("globe"), sizes.symbol, red(), tile()}, laid(red(), 0.12)));
}

TEST_P(RowMeasuresTest, AFolderWithoutAnIconTheme_HasOurOwnDrawingInTheSizeOfAnImage) {
  showItem(ItemType::directory, home.root());
  EXPECT_TRUE(picture().shows({QStringLiteral("folder.fill"), sizes.image, red(), tile()},
                              laid(red(), 0.12)));
}

TEST_P(RowMeasuresTest, TheImageOfAFile_IsFittedIntoItsSquare) {
  const QString path = home.root() + QStringLiteral("/wide.png");
  QImage wide(80, 40, QImage::Format_RGB32);
  wide.fill(Qt::magenta);
  ASSERT_TRUE(wide.save(path));
  workspace.icons.insert(path, {path});
  showItem(ItemType::file, path);
  QRectF image(0, 0, sizes.image, sizes.image / 2);
  image.moveCenter(tile().center());
  const QRectF seen = picture().boundsOf(Qt::magenta, itemRow());
  EXPECT_EQ(seen.width(), image.width());
  EXPECT_NEAR(seen.height(), image.height(), 1);
  EXPECT_NEAR(seen.center().x(), image.center().x(), 0.5);
  EXPECT_NEAR(seen.center().y(), image.center().y(), 0.5);
}

TEST_P(RowMeasuresTest, TheNameAndThePath_StandBesideTheTile) {
  showCommand();
  EXPECT_TRUE(picture().shows(Picture::Text{QStringLiteral("Report"), nameFont(),
                                            fill(FillStyle::primary), namePlace(textRight())},
                              ground()));
  EXPECT_TRUE(picture().shows(Picture::Text{QStringLiteral("make report"), pathFont(),
                                            fill(FillStyle::secondary), pathPlace(textRight())},
                              ground()));
}

TEST_P(RowMeasuresTest, WithoutPaths_TheNameAloneIsInTheMiddle) {
  showCommand();
  state->setShowURLs(false);
  const QRectF place(textLeft(), itemRow().top(), textRight() - textLeft(), itemRow().height());
  EXPECT_TRUE(picture().shows(
      Picture::Text{QStringLiteral("Report"), nameFont(), fill(FillStyle::primary), place},
      ground()));
}

TEST_P(RowMeasuresTest, ALongPath_LosesItsMiddle) {
  const QString path = QStringLiteral("https://example.org/start/") +
                       QStringLiteral("middle/").repeated(60) + QStringLiteral("end");
  showItem(ItemType::link, path);
  const QRectF place = pathPlace(textRight());
  const QString shown = QFontMetricsF(pathFont()).elidedText(path, Qt::ElideMiddle, place.width());
  ASSERT_TRUE(shown.startsWith(u"https://") && shown.endsWith(u"end"));
  EXPECT_TRUE(picture().shows(Picture::Text{shown, pathFont(), fill(FillStyle::secondary), place},
                              ground()));
}

TEST_P(RowMeasuresTest, ALongName_KeepsToOneLineAndLosesItsEnd) {
  report.name = QStringLiteral("A name that goes on ").repeated(30);
  showCommand();
  const QRectF place = namePlace(textRight());
  const QString shown =
      QFontMetricsF(nameFont()).elidedText(report.name, Qt::ElideRight, place.width());
  EXPECT_TRUE(
      picture().shows(Picture::Text{shown, nameFont(), fill(FillStyle::primary), place}, ground()));
}

TEST_P(RowMeasuresTest, TheHomeDirectory_IsATildeInAPath) {
  showItem(ItemType::command, QStringLiteral("ls ") + QDir::homePath() + QStringLiteral("/tmp"));
  EXPECT_TRUE(picture().shows(Picture::Text{QStringLiteral("ls ~/tmp"), pathFont(),
                                            fill(FillStyle::secondary), pathPlace(textRight())},
                              ground()));
}

TEST_P(RowMeasuresTest, EveryRow_EndsWithAnArrow) {
  showCommand();
  EXPECT_TRUE(picture().shows(Picture::Mark{QStringLiteral("arrow.right"), markSide(),
                                            fill(FillStyle::quaternary), arrowPlace()},
                              ground()));
  const QRectF before = arrowPlace().translated(-12 - markSide(), 0);
  EXPECT_TRUE(picture().isPlain(before, ground())) << "nothing is broken";
}

TEST_P(RowMeasuresTest, ABrokenItem_HasAYellowTriangleBeforeTheArrow) {
  showItem(ItemType::file, home.root() + QStringLiteral("/missing"));
  EXPECT_TRUE(picture().shows(
      Picture::Mark{QStringLiteral("exclamationmark.triangle.fill"), markSide(),
                    either(0xFFCC00, 0xFFD60A), arrowPlace().translated(-12 - markSide(), 0)},
      ground()));
  EXPECT_TRUE(picture().shows(Picture::Mark{QStringLiteral("arrow.right"), markSide(),
                                            fill(FillStyle::quaternary), arrowPlace()},
                              ground()));
}

TEST_P(RowMeasuresTest, ARowAtRest_HasNoHighlight) {
  showCommand();
  EXPECT_TRUE(picture().isPlain({0, itemRow().top(), 700, sizes.padding - 1}, ground()));
}

TEST_P(RowMeasuresTest, TheSelectedRow_HasTheAccentColourBehindIt) {
  showCommand();
  state->setSelectedItemId(report.id);
  const QColor color = laid(accent(), 0.15);
  EXPECT_EQ(picture().boundsOf(color, itemRow()), itemRow().adjusted(8, 0, -8, 0));
  EXPECT_TRUE(showsHighlight(0.15));
}

TEST_P(RowMeasuresTest, TheRowUnderThePointer_HasAFainterHighlight) {
  showCommand();
  pointAt(1);
  const QColor color = laid(accent(), 0.08);
  EXPECT_EQ(picture().boundsOf(color, itemRow()), itemRow().adjusted(8, 0, -8, 0));
  EXPECT_TRUE(showsHighlight(0.08));
}

TEST_P(RowMeasuresTest, TheSelectedRow_KeepsItsStrongerHighlightUnderThePointer) {
  showCommand();
  state->setSelectedItemId(report.id);
  pointAt(1);
  EXPECT_TRUE(showsHighlight(0.15));
}

TEST_P(RowMeasuresTest, AnItemWithoutAGroup_HasItsTileInTheAccentColour) {
  report.groupId = QUuid::createUuid();
  show({}, {opened(report, 1)});
  EXPECT_EQ(picture().boundsOf(laid(accent(), 0.12), itemRow()), tile());
}

}  // namespace lanternix
