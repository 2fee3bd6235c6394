#include "Platform/SystemTray.h"
#include "Views/MenuBar/StatusItem.h"
#include "views/ViewTest.h"

#include <QtCore/QLoggingCategory>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// A tray that a test puts up itself.
class FakeSystemTray final : public SystemTray {
 public:
  Kind kind() const override { return m_kind; }
  bool isAlwaysDark() const override { return false; }
  void become(Kind kind) {
    m_kind = kind;
    Q_EMIT changed();
  }

 private:
  Kind m_kind = Kind::none;
};

class StatusItemTest : public ViewTest {
 protected:
  static qsizetype menus() {
    qsizetype count = 0;
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
      count += qobject_cast<const MenuBarView *>(widget) != nullptr ? 1 : 0;
    }
    return count;
  }

  std::unique_ptr<AppState> state = makeState();
  FakeSystemTray tray;
};

TEST_F(StatusItemTest, WithoutATray_MakesNothing) {
  const StatusItem item(*state, tray);
  EXPECT_EQ(menus(), 0);
}

TEST_F(StatusItemTest, TrayThatEmbeds_GetsTheMenuThatTheProgramDraws) {
  const StatusItem item(*state, tray);
  tray.become(SystemTray::Kind::embedding);
  EXPECT_EQ(menus(), 1);
}

TEST_F(StatusItemTest, TrayThatDraws_GetsAMenuOfItsOwnBeside) {
  const StatusItem item(*state, tray);
  tray.become(SystemTray::Kind::drawing);
  EXPECT_EQ(menus(), 2);
}

TEST_F(StatusItemTest, TrayThatGoesAndComes_FindsTheSameItem) {
  const StatusItem item(*state, tray);
  tray.become(SystemTray::Kind::drawing);
  tray.become(SystemTray::Kind::none);
  tray.become(SystemTray::Kind::drawing);
  EXPECT_EQ(menus(), 2);
}

TEST_F(StatusItemTest, TrayOfAnotherKind_IsToldOfInTheLog) {
  const StatusItem item(*state, tray);
  tray.become(SystemTray::Kind::embedding);
  tray.become(SystemTray::Kind::none);
  QLoggingCategory::setFilterRules(u"lanternix.tray.info=true"_s);
  static QStringList log;
  const QtMessageHandler usual =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context, const QString &) {
        log.append(QString::fromLatin1(context.category));
      });
  tray.become(SystemTray::Kind::embedding);
  EXPECT_FALSE(log.contains(u"lanternix.tray"_s));
  tray.become(SystemTray::Kind::drawing);
  qInstallMessageHandler(usual);
  QLoggingCategory::setFilterRules({});
  EXPECT_EQ(log.count(u"lanternix.tray"_s), 1);
  EXPECT_EQ(menus(), 1);
}

TEST_F(StatusItemTest, Quit_IsAskedForByEitherMenu) {
  const StatusItem item(*state, tray);
  tray.become(SystemTray::Kind::drawing);
  const QSignalSpy quits(&item, &StatusItem::quitRequested);
  for (QWidget *widget : QApplication::topLevelWidgets()) {
    if (auto *menu = qobject_cast<MenuBarView *>(widget)) {
      Q_EMIT menu->quitRequested();
    }
  }
  EXPECT_EQ(quits.size(), 2);
}

}  // namespace
}  // namespace lanternix
