#include "desktop/CompositedTest.h"
#include "support/WindowShape.h"

#include <X11/keysym.h>
#include <algorithm>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

// Small enough for the screen at the largest scale.
constexpr QSize panelSize{480, 360};

struct Case {
  double scale;
  bool isComposited;
};

std::string nameOf(const testing::TestParamInfo<Case> &info) {
  return std::to_string(qRound(info.param.scale * 100)) +
         (info.param.isComposited ? "Composited" : "Plain");
}

/// In the names of the tests' parameters.
void PrintTo(const Case &value, std::ostream *stream) {
  *stream << value.scale << (value.isComposited ? " composited" : " plain");
}

class ScaleTest : public CompositedTest, public testing::WithParamInterface<Case> {
 protected:
  ScaleTest() : CompositedTest(GetParam().isComposited ? Compositing::on : Compositing::off) {
    session().home().set(u"QT_SCALE_FACTOR"_s, QString::number(GetParam().scale));
    session().home().writePreferences("panelWidth=480\npanelHeight=360");
  }

  /// Starts the program and waits until the window manager and it agree on the panel's place, which
  /// they do only after its first picture.
  void showAtRest(const SampleGroups &groups) {
    input().moveTo({2, 2});  // away from the rows, which would light up
    start(groups);
    settledPicture();
    program().settle();
  }

  static int scaled(int length) { return qRound(length * GetParam().scale); }
  static QMargins scaledShadow() {
    return GetParam().isComposited ? QMargins(scaled(shadow.left()), scaled(shadow.top()),
                                              scaled(shadow.right()), scaled(shadow.bottom()))
                                   : QMargins();
  }

  /// The highlight of the row that the down arrow selects, on the screen.
  QRect selectRow() {
    const QRect list = frame().adjusted(0, scaled(90), 0, -scaled(30));
    const QImage before = settledPicture();
    const QPoint origin = panelGeometry().topLeft();
    input().tap(XK_Down);
    program().settle();
    return changedArea(before, list.translated(-origin)).translated(origin);
  }
};

TEST_P(ScaleTest, Panel_IsScaledWithItsShadow) {
  showAtRest(commands({u"Build"_s}));
  EXPECT_EQ(frameExtents(), scaledShadow());
  EXPECT_EQ(frame().size(), QSize(scaled(panelSize.width()), scaled(panelSize.height())));
}

TEST_P(ScaleTest, Panel_IsCentredOnTheWorkAreaAndABitUp) {
  showAtRest(commands({u"Build"_s}));
  QRect expected = placed(frame().size()).translated(0, 60 - scaled(60));
  expected.moveTop(std::max(expected.top(), session().windows().workArea().top()));
  const QPoint difference = frame().center() - expected.center();
  EXPECT_LE(difference.manhattanLength(), 4) << frame().x() << ',' << frame().y();
}

TEST_P(ScaleTest, OutlineOfTheWindow_IsScaled) {
  showAtRest(commands({u"Build"_s}));
  const XConnection &connection = session().windows().connection();
  const QRect inWindow = frame().translated(-panelGeometry().topLeft());
  EXPECT_EQ(WindowShape::input(connection, program().panel()).boundingRect(), inWindow);
  EXPECT_EQ(WindowShape::bounding(connection, program().panel()).boundingRect(),
            QRect(QPoint(), panelGeometry().size()));
}

TEST_P(ScaleTest, ClickOnARow_OpensThatRow) {
  showAtRest(commands({u"first"_s, u"second"_s, u"third"_s}));
  const QRect first = selectRow();
  // Just above the row's lower edge, where a wrong scale would already be in the next one.
  input().click({first.center().x(), first.bottom() + first.height() - 3});
  EXPECT_TRUE(becomesMarked(u"second"_s));
}

TEST_P(ScaleTest, RightClick_OpensTheMenuAtThePointer) {
  showAtRest(commands({u"first"_s, u"second"_s, u"third"_s}));
  const QPoint pointer = selectRow().center();
  input().click(pointer, 3);
  const auto menus = [this] { return session().windows().menus(u"lanternix"_s); };
  ASSERT_TRUE(waitUntil([&] { return menus().size() == 1; }));
  const QRect menu = session().windows().geometry(menus().first());
  EXPECT_LE((menu.topLeft() - pointer).manhattanLength(), 4);
}

TEST_P(ScaleTest, DragOfTheCorner_StoresTheUnscaledSize) {
  showAtRest(commands({u"Build"_s}));
  const QPoint grip = frame().bottomRight() - QPoint(1, scaled(12));
  // Lengths that are whole at every scale. The place of an edge need not be.
  const QSize smaller(scaled(440), scaled(340));
  input().moveTo(grip);
  input().pressButton();
  input().moveTo(grip - QPoint(scaled(40), scaled(20)));
  EXPECT_TRUE(waitUntil([&] { return frame().size() == smaller; }));
  program().settle();
  input().releaseButton();
  EXPECT_TRUE(waitUntil([this] {
    return session().home().preference(u"panelWidth"_s) == u"440"_s &&
           session().home().preference(u"panelHeight"_s) == u"340"_s;
  })) << session().home().preference(u"panelWidth"_s).value_or(QString()).toStdString()
      << 'x' << session().home().preference(u"panelHeight"_s).value_or(QString()).toStdString();
}

TEST_P(ScaleTest, PressJustOutsideTheFrame_Hides) {
  showAtRest(commands({u"Build"_s}));
  input().click(frame().bottomRight() + QPoint(3, -40));
  EXPECT_TRUE(becomesHidden());
}

TEST_P(ScaleTest, PressJustInsideTheFrame_DoesNotHide) {
  showAtRest(commands({u"first"_s, u"second"_s}));
  input().click(frame().bottomRight() - QPoint(scaled(8), scaled(8)));
  input().type(u"second"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"second"_s));
}

INSTANTIATE_TEST_SUITE_P(Scales, ScaleTest,
                         testing::Values(Case{1.25, false}, Case{1.5, false}, Case{2, false},
                                         Case{1.25, true}, Case{1.5, true}, Case{2, true}),
                         nameOf);

}  // namespace
}  // namespace lanternix
