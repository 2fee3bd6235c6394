#include "Views/Style/ApplicationIcon.h"

#include <QtCore/QHash>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtSvg/QSvgRenderer>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

// The linker drops the drawings from a static library unless something asks for them. The macro has
// to stand outside every namespace.
static void initIconResources() {
  Q_INIT_RESOURCE(resources);
}

namespace lanternix {

namespace {

constexpr int largestOfSmallDrawing = 32;
constexpr std::array windowSizes{16, 22, 24, 32, 48, 64, 128};

QString drawingFor(int pixels) {
  return pixels <= largestOfSmallDrawing ? u":/icons/org.lanternix.Lanternix-small.svg"_s
                                         : u":/icons/org.lanternix.Lanternix.svg"_s;
}

// Qt's own engines keep what they draw in QPixmapCache, whose clean-up runs on a timer and would
// wake the program while the panel is hidden.
class ApplicationIconEngine : public QIconEngine {
 public:
  void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override {
    const int side = qMin(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    const int pixels = qRound(side * painter->device()->devicePixelRatioF());
    painter->drawPixmap(square, pixmap({pixels, pixels}, mode, state));
  }

  QPixmap pixmap(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    const int pixels = qMin(size.width(), size.height());
    const auto kept = m_windowPixmaps.constFind(pixels);
    if (kept != m_windowPixmaps.constEnd()) {
      return *kept;
    }
    QPixmap drawn = rendered(pixels);
    // Every window and menu asks for these sizes anew.
    if (std::ranges::find(windowSizes, pixels) != windowSizes.end()) {
      m_windowPixmaps.insert(pixels, drawn);
    }
    return drawn;
  }

  QSize actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    const int side = qMin(size.width(), size.height());
    return {side, side};
  }

  QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    QList<QSize> sizes;
    for (const int side : windowSizes) {
      sizes.append({side, side});
    }
    return sizes;
  }

  bool isNull() override { return false; }

  QIconEngine *clone() const override { return new ApplicationIconEngine(*this); }

 private:
  static QPixmap rendered(int pixels) {
    if (pixels <= 0) {
      return {};
    }
    QPixmap drawn(pixels, pixels);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    QSvgRenderer(drawingFor(pixels)).render(&painter);
    return drawn;
  }

  QHash<int, QPixmap> m_windowPixmaps;
};

}  // namespace

QIcon applicationIcon() {
  initIconResources();
  return QIcon(new ApplicationIconEngine);  // owned by the icon
}

}  // namespace lanternix
