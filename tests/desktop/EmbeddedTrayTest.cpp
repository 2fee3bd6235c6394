#include "desktop/DesktopTest.h"
#include "support/EmbeddingTray.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// The program on a desktop whose tray takes in windows.
class EmbeddedTrayTest : public DesktopTest {
 protected:
  using DesktopTest::DesktopTest;
  EmbeddedTrayTest() = default;

  void startInTray() {
    tray = std::make_unique<EmbeddingTray>(session().displayName());
    startHidden(commands({u"Build"_s}));
    ASSERT_TRUE(tray->hasIcon());
  }

  bool isMenuOpen() { return !session().windows().menus(u"lanternix"_s).isEmpty(); }

  /// Whether the menu opens at a press on the icon and has what is expected.
  void expectMenuBy(quint8 button) {
    input().click(tray->geometry().center(), button);
    ASSERT_TRUE(waitUntil([this] { return isMenuOpen(); }));
    input().tap(XK_Up);
    input().tap(XK_Return);
    EXPECT_TRUE(waitUntil([this] { return program().exitCode() == 0; })) << "the last entry quits";
  }

  std::unique_ptr<EmbeddingTray> tray;
};

TEST_F(EmbeddedTrayTest, Icon_IsDrawn) {
  startInTray();
  EXPECT_TRUE(waitUntil([this] {
    const QImage picture = session().windows().grabRoot().copy(tray->geometry());
    return WindowProbe::hasContent(picture);
  }));
}

TEST_F(EmbeddedTrayTest, LeftButton_OpensTheMenu) {
  startInTray();
  expectMenuBy(1);
}

TEST_F(EmbeddedTrayTest, RightButton_OpensTheMenu) {
  startInTray();
  expectMenuBy(3);
}

TEST_F(EmbeddedTrayTest, Escape_ClosesTheMenu) {
  startInTray();
  input().click(tray->geometry().center());
  ASSERT_TRUE(waitUntil([this] { return isMenuOpen(); }));
  input().tap(XK_Escape);
  EXPECT_TRUE(waitUntil([this] { return !isMenuOpen(); }));
}

TEST_F(EmbeddedTrayTest, TrayThatComesLater_GetsTheIcon) {
  startHidden(commands({u"Build"_s}));
  tray = std::make_unique<EmbeddingTray>(session().displayName());
  EXPECT_TRUE(tray->hasIcon());
}

TEST_F(EmbeddedTrayTest, TrayThatIsStartedAnew_GetsTheIconAgain) {
  startInTray();
  tray.reset();
  tray = std::make_unique<EmbeddingTray>(session().displayName());
  EXPECT_TRUE(tray->hasIcon());
}

class EmbeddedTrayWithoutBusTest : public EmbeddedTrayTest {
 protected:
  EmbeddedTrayWithoutBusTest()
      : EmbeddedTrayTest(DesktopSession::WithManager::yes, DesktopSession::WithBus::no) {}
};

TEST_F(EmbeddedTrayWithoutBusTest, Tray_GetsTheIcon) {
  startInTray();
}

}  // namespace
}  // namespace lanternix
