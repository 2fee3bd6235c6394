#include "desktop/GroupsDragTest.h"

#include <QtCore/QJsonObject>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// Text that another program drags into the settings.
class ForeignDragTest : public GroupsDragTest {
 protected:
  /// Drags \p text from a window of another program onto a group, and lets go there.
  void dragFromElsewhere(const QString &text, const QString &group) {
    other.start({text}, session().variables());
    require(u"the other program's window"_s, [this] {
      const auto window = findOther();
      return window && session().windows().hasFocus(*window);
    });
    drag(session().windows().geometry(*findOther()).center(), onto(group));
  }
  std::optional<xcb_window_t> findOther() {
    return session().windows().find(u"TextDragProbe"_s, u"Text"_s);
  }
  /// What the other program heard of its drag.
  QByteArray answer() { return other.firstLine().trimmed(); }

 private:
  ChildProcess other{QStringLiteral(TEXT_DRAG_PROBE), u"lanternix"_s};
};

TEST_F(ForeignDragTest, AnyText_ChangesNothing) {
  openTwoGroups();
  const QByteArray data = *ProgramEnvironment::read(session().home().dataFile());
  const QImage before = settingsAt(onto(u"Home"_s).mark);
  dragFromElsewhere(u"Report"_s, u"Home"_s);
  EXPECT_EQ(answer(), "taken");
  EXPECT_TRUE(waitUntil([&] { return settingsAt(onto(u"Home"_s).mark) == before; }))
      << "the group is still lit up";
  EXPECT_EQ(ProgramEnvironment::read(session().home().dataFile()), data);
  EXPECT_TRUE(program().isRunning());
}

TEST_F(ForeignDragTest, TheIdOfAnItem_MovesIt) {
  openTwoGroups();
  dragFromElsewhere(session().home().item(u"Notes"_s)["id"_L1].toString(), u"Home"_s);
  EXPECT_EQ(answer(), "taken");
  EXPECT_TRUE(becomesStored(u"Home"_s, {u"Notes"_s}));
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Report"_s, u"Plan"_s}));
}

}  // namespace
}  // namespace lanternix
