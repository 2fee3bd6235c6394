#include "App/AppearanceFollower.h"
#include "Views/Panel/PopupPanelView.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/LanternixStyle.h"
#include "Views/Style/Palettes.h"
#include "Views/Style/SystemColors.h"
#include "support/FakeSystemAppearance.h"
#include "views/ViewTest.h"

#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProxyStyle>

namespace lanternix {

namespace {

using ColorScheme = Appearance::ColorScheme;

/// A desktop with a palette of its own, in place of a platform plug-in.
class DesktopStyle : public QProxyStyle {
 public:
  explicit DesktopStyle(QPalette palette) : QProxyStyle(QStringLiteral("Fusion")) {
    desktopPalette = std::move(palette);
  }
  using QProxyStyle::polish;
  void polish(QPalette &palette) override { palette = desktopPalette; }

  static inline QPalette desktopPalette;
};

class AppearanceFollowerTest : public ViewTest {
 protected:
  ~AppearanceFollowerTest() override {
    follower.reset();
    view.reset();
    QApplication::setStyle(new LanternixStyle);  // owned by the application
    QApplication::setPalette(QPalette());
    QApplication::setFont(font);
    QCoreApplication::processEvents();
  }

  /// Starts on a desktop whose platform plug-in has a palette of its own.
  void startOver(const QPalette &desktopPalette, const Appearance &appearance = {}) {
    QApplication::setStyle(new DesktopStyle(desktopPalette));  // owned by the application
    start(appearance);
  }

  void start(const Appearance &appearance = {}) {
    desktop.become(appearance);
    follower = std::make_unique<AppearanceFollower>(desktop, style);
  }

  void showPanel() {
    state = makeState({}, {});
    view = std::make_unique<PopupPanelView>(*state);
    view->resize(500, 400);
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
  }

  /// What a desktop's plug-in makes Qt tell every window.
  void tellOfThemeChange() {
    QEvent event(QEvent::ThemeChange);
    QCoreApplication::sendEvent(view->windowHandle(), &event);
    QCoreApplication::processEvents();
  }

  QColor background() const { return view->grab().toImage().pixelColor(3, 200); }
  static QColor color(QPalette::ColorRole role) { return QApplication::palette().color(role); }

  static QPalette breeze() {
    QPalette palette = Palettes::light();
    palette.setColor(QPalette::Window, QColor(0xEFF0F1));
    palette.setColor(QPalette::Highlight, QColor(0x3DAEE9));
    return palette;
  }

  const QFont font = QApplication::font();
  LanternixStyle style;
  FakeSystemAppearance desktop;
  std::unique_ptr<AppState> state;
  std::unique_ptr<PopupPanelView> view;
  std::unique_ptr<AppearanceFollower> follower;
};

}  // namespace

TEST_F(AppearanceFollowerTest, WithoutAnyDesktop_ThePaletteIsTheLightOneWithBlue) {
  start();
  EXPECT_EQ(QApplication::palette(), Palettes::light());
  EXPECT_EQ(accentColor(QApplication::palette()), QColor(0x007AFF));
}

TEST_F(AppearanceFollowerTest, DarkAtTheStart_IsDarkInTheFirstPicture) {
  start({.colorScheme = ColorScheme::dark});
  showPanel();
  EXPECT_EQ(background(), QColor(0x262629));
}

TEST_F(AppearanceFollowerTest, ChangeOfTheColors_ShowsInAnOpenPanel) {
  start({.colorScheme = ColorScheme::dark});
  showPanel();
  desktop.become({.colorScheme = ColorScheme::light});
  EXPECT_TRUE(QTest::qWaitFor([this] { return background() == QColor(0xF6F6F7); }));
  const QPalette field = view->findChild<QLineEdit *>()->palette();
  EXPECT_EQ(field.color(QPalette::Text), Palettes::light().color(QPalette::Text));
  EXPECT_EQ(field.color(QPalette::Base).alpha(), 0);
}

TEST_F(AppearanceFollowerTest, TheDesktopsAccent_IsTheAccent) {
  start({.accentColor = Appearance::Rgb{0.5, 0.25, 1}});
  EXPECT_EQ(accentColor(QApplication::palette()).name(), QStringLiteral("#8040ff"));
  desktop.become({});
  EXPECT_EQ(accentColor(QApplication::palette()), QColor(0x007AFF));
}

TEST_F(AppearanceFollowerTest, HighContrast_IsBlackAndWhiteInTheDesktopsScheme) {
  start({.colorScheme = ColorScheme::dark, .prefersHighContrast = true});
  EXPECT_EQ(color(QPalette::Window), QColor(Qt::black));
  EXPECT_EQ(color(QPalette::WindowText), QColor(Qt::white));
  desktop.become({.colorScheme = ColorScheme::light, .prefersHighContrast = true});
  EXPECT_EQ(color(QPalette::Window), QColor(Qt::white));
}

TEST_F(AppearanceFollowerTest, ReducedMotion_IsTheStylesAtOnce) {
  start({.prefersReducedMotion = true});
  EXPECT_EQ(style.styleHint(QStyle::SH_Widget_Animate, nullptr, nullptr, nullptr), 0);
  desktop.become({});
  EXPECT_EQ(style.styleHint(QStyle::SH_Widget_Animate, nullptr, nullptr, nullptr), 1);
}

TEST_F(AppearanceFollowerTest, TheDesktopsOwnPalette_IsKeptWhereItAgrees) {
  startOver(breeze(), {.colorScheme = ColorScheme::light});
  EXPECT_EQ(color(QPalette::Window), QColor(0xEFF0F1));
  EXPECT_EQ(accentColor(QApplication::palette()), QColor(0x3DAEE9));
}

TEST_F(AppearanceFollowerTest, TheDesktopsOwnPalette_DecidesTheSchemeWhereNobodyElseDoes) {
  QPalette palette = Palettes::dark();
  palette.setColor(QPalette::Window, QColor(0x31363B));
  startOver(palette);
  EXPECT_EQ(color(QPalette::Window), QColor(0x31363B));
}

TEST_F(AppearanceFollowerTest, TheDesktopsOwnPalette_GivesOnlyItsAccentWhereItDisagrees) {
  startOver(breeze(), {.colorScheme = ColorScheme::dark});
  EXPECT_EQ(color(QPalette::Window), QColor(0x262629));
  EXPECT_EQ(accentColor(QApplication::palette()), QColor(0x3DAEE9));
}

TEST_F(AppearanceFollowerTest, TheDesktopsOwnPalette_TakesTheAccentThatIsSaid) {
  startOver(breeze(), {.accentColor = Appearance::Rgb{0.5, 0.25, 1}});
  EXPECT_EQ(color(QPalette::Window), QColor(0xEFF0F1));
  EXPECT_EQ(accentColor(QApplication::palette()).name(), QStringLiteral("#8040ff"));
}

TEST_F(AppearanceFollowerTest, TheDesktopsOwnPalette_IsNotKeptWhereItCannotBeRead) {
  QPalette palette = breeze();
  palette.setColor(QPalette::WindowText, QColor(0xA0A0A0));
  startOver(palette);
  EXPECT_EQ(color(QPalette::Window), QColor(0xF6F6F7));
}

TEST_F(AppearanceFollowerTest, FaintPlaceholdersOfTheDesktopsPalette_AreMadeReadable) {
  QPalette palette = breeze();
  palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 80));
  startOver(palette);
  EXPECT_GE(Contrast::ratio(color(QPalette::PlaceholderText), color(QPalette::Window)), 4.5);
}

TEST_F(AppearanceFollowerTest, FaintSelectedTextOfTheDesktopsPalette_IsMadeReadable) {
  QPalette palette = breeze();
  palette.setColor(QPalette::HighlightedText, Qt::white);
  startOver(palette);
  EXPECT_EQ(accentColor(QApplication::palette()), QColor(0x3DAEE9));
  EXPECT_GE(Contrast::ratio(color(QPalette::HighlightedText), color(QPalette::Highlight)), 4.5);
}

TEST_F(AppearanceFollowerTest, TextSelectedInTheSearchField_IsReadableInEveryAccent) {
  start();
  showPanel();
  for (const Appearance::Rgb &accent :
       {Appearance::Rgb{0, 0.48, 1}, Appearance::Rgb{1, 0.8, 0}, Appearance::Rgb{0.2, 0.8, 0.35},
        Appearance::Rgb{0.1, 0, 0.3}}) {
    desktop.become({.accentColor = accent});
    QCoreApplication::processEvents();
    const QPalette field = view->findChild<QLineEdit *>()->palette();
    EXPECT_GE(
        Contrast::ratio(field.color(QPalette::HighlightedText), field.color(QPalette::Highlight)),
        4.5)
        << field.color(QPalette::Highlight).name().toStdString();
  }
  desktop.become({});
  QCoreApplication::processEvents();
  EXPECT_EQ(view->findChild<QLineEdit *>()->palette().color(QPalette::HighlightedText),
            QColor(Qt::white));
}

TEST_F(AppearanceFollowerTest, ChangeOfTheDesktopsOwnPalette_IsFollowedInAnOpenPanel) {
  startOver(breeze());
  showPanel();
  DesktopStyle::desktopPalette = Palettes::dark();
  DesktopStyle::desktopPalette.setColor(QPalette::Window, QColor(0x31363B));
  tellOfThemeChange();
  EXPECT_EQ(background(), QColor(0x31363B));
}

TEST_F(AppearanceFollowerTest, ChangeOfTheDesktopsOwnPalette_IsHeardBehindTheProgramsOwn) {
  startOver(breeze(), {.colorScheme = ColorScheme::dark});
  showPanel();
  DesktopStyle::desktopPalette.setColor(QPalette::Highlight, QColor(0xE62D42));
  tellOfThemeChange();
  EXPECT_EQ(color(QPalette::Window), QColor(0x262629));
  EXPECT_EQ(accentColor(QApplication::palette()), QColor(0xE62D42));
}

TEST_F(AppearanceFollowerTest, FontThatTheDesktopChangesUnsaid_ReachesTheOpenPanel) {
  start();
  showPanel();
  const int before = view->findChild<QLineEdit *>()->height();
  QFont larger = font;
  larger.setPointSizeF(font.pointSizeF() * 2);
  // A plug-in changes the font without a word about it.
  QCoreApplication::instance()->removeEventFilter(follower.get());
  QApplication::setFont(larger);
  QCoreApplication::removePostedEvents(nullptr, QEvent::ApplicationFontChange);
  QCoreApplication::instance()->installEventFilter(follower.get());
  tellOfThemeChange();
  EXPECT_TRUE(QTest::qWaitFor([&] { return view->findChild<QLineEdit *>()->height() > before; }));
}

}  // namespace lanternix
