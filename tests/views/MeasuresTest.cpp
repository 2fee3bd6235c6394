#include "views/MeasuresTest.h"

#include "Views/Style/LanternixStyle.h"
#include "Views/Style/Palettes.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

namespace lanternix {

namespace {

void useFreshStyle(bool isMotionReduced) {
  auto style = std::make_unique<LanternixStyle>();
  style->setMotionReduced(isMotionReduced);
  QApplication::setStyle(style.release());  // owned by the application
}

}  // namespace

std::ostream &operator<<(std::ostream &stream, const Look &look) {
  const QString size = rawValue(look.size);
  return stream << (look.isDark ? "Dark" : "Light") << size.left(1).toUpper().toStdString()
                << size.mid(1).toStdString();
}

std::string nameOfLook(const testing::TestParamInfo<Look> &info) {
  return testing::PrintToString(info.param);
}

MeasuresTest::MeasuresTest()
    : palette(GetParam().isDark ? Palettes::dark() : Palettes::light()),
      m_previousPalette(QApplication::palette()) {
  QApplication::setPalette(palette);
  useFreshStyle(true);  // every highlight is there at once
}

MeasuresTest::~MeasuresTest() {
  useFreshStyle(false);
  QApplication::setPalette(m_previousPalette);
}

void MeasuresTest::show(const QList<PathGroup> &groups, const QList<PathItem> &items) {
  state = makeState(groups, items);
  state->setPanelItemSize(GetParam().size);
  panel = std::make_unique<PopupPanelView>(*state);
  panel->resize(700, 500);
  panel->show();
}

QRectF MeasuresTest::place(const QWidget *part) const {
  // Layouts wait for the event loop with what has changed.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  return {part->mapTo(panel.get(), QPoint()), QSizeF(part->size())};
}

QRectF MeasuresTest::row(qsizetype index) const {
  const auto *list = part<PanelListView>();
  return QRectF(list->rowRect(index)).translated(place(list->viewport()).topLeft());
}

void MeasuresTest::pointAt(qsizetype index) const {
  QWidget *viewport = part<PanelListView>()->viewport();
  const QPointF position = QRectF(part<PanelListView>()->rowRect(index)).center();
  QMouseEvent move(QEvent::MouseMove, position, viewport->mapToGlobal(position), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(viewport, &move);
}

QFont MeasuresTest::font(double ratio, QFont::Weight weight) {
  QFont font = QApplication::font();
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * ratio);
  } else {
    font.setPixelSize(qRound(font.pixelSize() * ratio));
  }
  font.setWeight(weight);
  return font;
}

double MeasuresTest::heightOf(const QFont &font) {
  return QFontMetricsF(font).height();
}

double MeasuresTest::widthOf(const QString &text, const QFont &font) {
  return QFontMetricsF(font).horizontalAdvance(text);
}

QColor MeasuresTest::laid(QColor color, double opacity) const {
  const auto mixed = [opacity](int above, int below) {
    return qRound(above * opacity + below * (1 - opacity));
  };
  return {mixed(color.red(), ground().red()), mixed(color.green(), ground().green()),
          mixed(color.blue(), ground().blue())};
}

}  // namespace lanternix
