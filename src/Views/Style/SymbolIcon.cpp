#include "Views/Style/SymbolIcon.h"

#include "Views/Style/AccentFill.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/PaintedIconEngine.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <optional>
#include <utility>

namespace lanternix {

namespace {

QColor colorFor(QIcon::Mode mode, std::optional<SystemColor> color) {
  const QPalette palette = QGuiApplication::palette();
  switch (mode) {
    case QIcon::Selected:
      return AccentFill::of(palette).text;
    case QIcon::Disabled:
      return fillColor(FillStyle::tertiary, palette);
    case QIcon::Normal:
    case QIcon::Active:
      break;
  }
  return color.has_value() ? systemColor(*color, palette) : fillColor(FillStyle::primary, palette);
}

/// Draws anew each time, so that no colour is kept that is not the palette's any more.
class SymbolIconEngine : public PaintedIconEngine {
 public:
  SymbolIconEngine(QString name, std::optional<SystemColor> color)
      : m_name(std::move(name)), m_color(color) {}

  void paint(QPainter *painter, const QRect &area, QIcon::Mode mode,
             QIcon::State /*state*/) override {
    Symbol::draw(*painter, area, m_name, qMin(area.width(), area.height()),
                 colorFor(mode, m_color));
  }

  QIconEngine *clone() const override {
    return new SymbolIconEngine(m_name, m_color);  // owned by the icon
  }

 private:
  QString m_name;
  std::optional<SystemColor> m_color;
};

}  // namespace

QIcon symbolIcon(const QString &name) {
  return QIcon(new SymbolIconEngine(name, {}));  // owned by the icon
}

QIcon symbolIcon(const QString &name, SystemColor color) {
  return QIcon(new SymbolIconEngine(name, color));  // owned by the icon
}

}  // namespace lanternix
