#include "Views/Style/ThemeIcon.h"
#include "support/TemporaryHome.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QIcon>
#include <QtGui/QPainter>

#include <gtest/gtest.h>

namespace lanternix {

namespace {

/// Icon themes of the test's own: "one" has a red folder, "two" a green one.
class ThemeIconTest : public testing::Test {
 protected:
  ThemeIconTest() {
    install(QStringLiteral("one"), Qt::red);
    install(QStringLiteral("two"), Qt::green);
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(QStringLiteral("one"));
  }
  ~ThemeIconTest() override {
    QIcon::setThemeName(themeBefore);
    QIcon::setThemeSearchPaths(placesBefore);
  }

  void install(const QString &theme, const QColor &color) const {
    const QString place = themes.filePath(theme);
    TemporaryHome::write(place + QStringLiteral("/index.theme"),
                         "[Icon Theme]\nName=Test\nDirectories=32\n[32]\nSize=32\n");
    QDir().mkpath(place + QStringLiteral("/32"));
    square(color).save(place + QStringLiteral("/32/test-folder.png"));
  }

  static QImage square(const QColor &color, QSize size = {32, 32}) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
  }

  static QColor centre(const QImage &image) {
    return image.pixelColor(image.width() / 2, image.height() / 2);
  }

  const QString themeBefore = QIcon::themeName();
  const QStringList placesBefore = QIcon::themeSearchPaths();
  QTemporaryDir themes;
  const QStringList folder{QStringLiteral("test-folder")};
};

}  // namespace

TEST_F(ThemeIconTest, AnIconOfTheTheme_HasTheSizeThatIsAskedFor) {
  const QImage image = ThemeIcon::image(folder, 20, 1);
  EXPECT_EQ(image.size(), QSize(20, 20));
  EXPECT_EQ(centre(image), QColor(Qt::red));
}

TEST_F(ThemeIconTest, OnADenseScreen_ItHasMorePixels) {
  const QImage image = ThemeIcon::image(folder, 20, 2);
  EXPECT_EQ(image.size(), QSize(40, 40));
  EXPECT_EQ(image.deviceIndependentSize(), QSizeF(20, 20));
}

TEST_F(ThemeIconTest, TheFirstNameThatTheThemeHas_IsTaken) {
  const QStringList names{QStringLiteral("no-such-icon"), QStringLiteral("test-folder")};
  EXPECT_EQ(centre(ThemeIcon::image(names, 20, 1)), QColor(Qt::red));
}

TEST_F(ThemeIconTest, AnotherTheme_ShowsItsOwnIcon) {
  ThemeIcon::image(folder, 20, 1);
  QIcon::setThemeName(QStringLiteral("two"));
  EXPECT_EQ(centre(ThemeIcon::image(folder, 20, 1)), QColor(Qt::green));
}

TEST_F(ThemeIconTest, WhereTheThemeHasNone_ThereIsNoPicture) {
  EXPECT_TRUE(ThemeIcon::image({QStringLiteral("no-such-icon")}, 20, 1).isNull());
  EXPECT_TRUE(ThemeIcon::image({}, 20, 1).isNull());
  QImage canvas = square(Qt::white);
  QPainter painter(&canvas);
  EXPECT_FALSE(ThemeIcon::draw(painter, canvas.rect(), {QStringLiteral("no-such-icon")}, 20));
}

TEST_F(ThemeIconTest, AnImagesPath_IsAnIconToo) {
  const QString path = themes.filePath(QStringLiteral("own.png"));
  square(Qt::blue).save(path);
  EXPECT_EQ(centre(ThemeIcon::image({path}, 20, 1)), QColor(Qt::blue));
}

TEST_F(ThemeIconTest, APictureThatIsNoSquare_KeepsItsShape) {
  const QString path = themes.filePath(QStringLiteral("wide.png"));
  square(Qt::blue, {64, 16}).save(path);
  const QImage image = ThemeIcon::image({path}, 20, 1);
  EXPECT_EQ(image.size(), QSize(20, 20));
  EXPECT_EQ(centre(image), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(10, 1).alpha(), 0);
}

TEST_F(ThemeIconTest, IsDrawnInTheMiddle) {
  QImage canvas = square(Qt::white);
  QPainter painter(&canvas);
  EXPECT_TRUE(ThemeIcon::draw(painter, canvas.rect(), folder, 20));
  EXPECT_EQ(canvas.pixelColor(6, 6), QColor(Qt::red));
  EXPECT_EQ(canvas.pixelColor(5, 16), QColor(Qt::white));
  EXPECT_EQ(canvas.pixelColor(26, 16), QColor(Qt::white));
}

}  // namespace lanternix
