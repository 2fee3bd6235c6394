#pragma once

#include "Views/Panel/PanelListView.h"
#include "Views/Panel/PopupPanelView.h"
#include "Views/Style/FillStyle.h"
#include "views/Picture.h"
#include "views/ViewTest.h"

#include <QtGui/QPalette>

#include <iosfwd>
#include <memory>
#include <string>

namespace lanternix {

/// How the panel is drawn in a test.
struct Look {
  bool isDark = false;
  PanelItemSize size = PanelItemSize::medium;

  friend std::ostream &operator<<(std::ostream &stream, const Look &look);
};

/// The name of a look in those of tests, such as DarkSmall.
std::string nameOfLook(const testing::TestParamInfo<Look> &info);

/// Both appearances in the usual density; every density in both appearances.
inline constexpr std::array appearances{Look{false}, Look{true}};
inline constexpr std::array looks{
    Look{false, PanelItemSize::small}, Look{false, PanelItemSize::medium},
    Look{false, PanelItemSize::large}, Look{true, PanelItemSize::small},
    Look{true, PanelItemSize::medium}, Look{true, PanelItemSize::large}};

/// A test that takes the measure of the whole panel, 700 by 500, as it is drawn. What is expected
/// is worked out from the user's own font and from numbers that stand in the tests, never from the
/// constants of the views.
class MeasuresTest : public ViewTest, public testing::WithParamInterface<Look> {
 protected:
  MeasuresTest();
  ~MeasuresTest() override;
  Q_DISABLE_COPY_MOVE(MeasuresTest)

  void show(const QList<PathGroup> &groups, const QList<PathItem> &items);

  Picture picture() const { return Picture::of(*panel); }

  /// The widget of a type that the panel has but one of.
  template <typename Widget>
  Widget *part() const {
    return panel->findChild<Widget *>();
  }
  /// Where a part of the panel is, in the panel.
  QRectF place(const QWidget *part) const;
  /// Where a row of the list is, in the panel.
  QRectF row(qsizetype index) const;
  /// Lets the pointer rest on a row.
  void pointAt(qsizetype index) const;

  /// Whether the panel shows a text or a symbol. Widgets stand on whole pixels, so what is in the
  /// middle of its place may be half a pixel off.
  template <typename Thing>
  testing::AssertionResult showsInMiddle(const Thing &thing) const {
    const Picture picture = this->picture();
    testing::AssertionResult result = testing::AssertionFailure();
    for (const double offset : {-0.5, 0.5, 0.0}) {
      Thing moved = thing;
      moved.place.translate(0, offset);
      result = picture.shows(moved, ground());
      if (result) {
        break;
      }
    }
    return result;
  }

  /// The user's own font at \p ratio of its size.
  static QFont font(double ratio, QFont::Weight weight = QFont::Normal);
  static double heightOf(const QFont &font);
  static double widthOf(const QString &text, const QFont &font);

  QColor ground() const { return palette.color(QPalette::Window); }
  QColor fill(FillStyle style) const { return fillColor(style, palette); }
  /// The same for text on a shape that has \p below in place of the panel's ground.
  QColor fillOn(const QColor &below, FillStyle style) const {
    return fillColor(style, palette, below);
  }
  /// The light or the dark value, whichever is on show.
  QColor either(QRgb light, QRgb dark) const { return QColor(GetParam().isDark ? dark : light); }
  QColor blue() const { return either(0x007AFF, 0x0A84FF); }
  /// What is seen where \p color is laid on the panel's ground at \p opacity, or at its own.
  QColor laid(QColor color, double opacity) const;
  QColor laid(const QColor &color) const { return laid(color, color.alphaF()); }

  const QPalette palette;
  std::unique_ptr<AppState> state;
  std::unique_ptr<PopupPanelView> panel;

 private:
  QPalette m_previousPalette;
};

}  // namespace lanternix
