#include "App/AppearanceFollower.h"
#include "Views/Style/LanternixStyle.h"
#include "support/FakeSystemAppearance.h"
#include "support/TemporaryHome.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <gtest/gtest.h>
#include <memory>

namespace lanternix {

namespace {

/// Counts how often it is told of new icons.
class IconWidget : public QWidget {
 public:
  int changes = 0;

 protected:
  bool event(QEvent *event) override {
    changes += event->type() == QEvent::ThemeChange ? 1 : 0;
    return QWidget::event(event);
  }
};

/// Icon themes in a place of the test's own.
class IconThemeTest : public testing::Test {
 protected:
  ~IconThemeTest() override {
    follower.reset();
    QApplication::setPalette(QPalette());
    QIcon::setThemeName(themeBefore);
    QIcon::setThemeSearchPaths(placesBefore);
  }

  void start(const QString &desktopsTheme = {}) {
    desktop.become({.iconTheme = desktopsTheme});
    follower = std::make_unique<AppearanceFollower>(desktop, style);
  }

  void installIconThemes(const QStringList &names) {
    for (const QString &name : names) {
      TemporaryHome::write(icons.filePath(name + QStringLiteral("/index.theme")),
                           "[Icon Theme]\nName=x\nDirectories=\n");
    }
    QIcon::setThemeSearchPaths({icons.path()});
  }

  const QString themeBefore = QIcon::themeName();
  const QStringList placesBefore = QIcon::themeSearchPaths();
  QTemporaryDir icons;
  LanternixStyle style;
  FakeSystemAppearance desktop;
  std::unique_ptr<AppearanceFollower> follower;
};

}  // namespace

TEST_F(IconThemeTest, TheDesktopsIconTheme_IsUsedAndItsChangesTold) {
  installIconThemes({QStringLiteral("Fancy"), QStringLiteral("Plain")});
  IconWidget widget;
  start(QStringLiteral("Fancy"));
  EXPECT_EQ(QIcon::themeName(), QStringLiteral("Fancy"));
  EXPECT_EQ(widget.changes, 1);
  desktop.become({.iconTheme = QStringLiteral("Plain")});
  EXPECT_EQ(QIcon::themeName(), QStringLiteral("Plain"));
  EXPECT_EQ(widget.changes, 2);
  desktop.become(
      {.colorScheme = Appearance::ColorScheme::dark, .iconTheme = QStringLiteral("Plain")});
  EXPECT_EQ(widget.changes, 2);
}

TEST_F(IconThemeTest, WithoutAnIconThemeOfTheDesktop_ACommonOneIsUsed) {
  installIconThemes({QStringLiteral("Papirus"), QStringLiteral("breeze")});
  QIcon::setThemeName(QStringLiteral("hicolor"));
  start();
  EXPECT_EQ(QIcon::themeName(), QStringLiteral("breeze"));
}

TEST_F(IconThemeTest, IconThemeThatIsNotInstalled_LeavesTheOneThatQtFound) {
  installIconThemes({QStringLiteral("Adwaita"), QStringLiteral("Found")});
  QIcon::setThemeName(QStringLiteral("Found"));
  start(QStringLiteral("Missing"));
  EXPECT_EQ(QIcon::themeName(), QStringLiteral("Found"));
  desktop.become({.iconTheme = QStringLiteral("../icons/Adwaita")});
  EXPECT_EQ(QIcon::themeName(), QStringLiteral("Found"));
}

TEST_F(IconThemeTest, IconThemeThatOnlyQtBelievesIn_GivesWayToOneThatIsInstalled) {
  installIconThemes({QStringLiteral("Adwaita")});
  QIcon::setThemeName(QStringLiteral("Missing"));
  start();
  EXPECT_EQ(QIcon::themeName(), QStringLiteral("Adwaita"));
}

TEST_F(IconThemeTest, WithoutAnyIconTheme_NoneIsUsed) {
  installIconThemes({});
  QIcon::setThemeName(QStringLiteral("hicolor"));
  start();
  EXPECT_EQ(QIcon::themeName(), QStringLiteral("hicolor"));
}

}  // namespace lanternix
