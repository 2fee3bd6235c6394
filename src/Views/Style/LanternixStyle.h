#pragma once

#include <QtWidgets/QProxyStyle>

class QStyleOptionButton;
class QStyleOptionMenuItem;
class QStyleOptionSlider;

namespace lanternix {

/// How the program draws its controls: the same on every desktop. Colours and fonts are those of
/// the palette and the application font.
///
/// A push button that is the default one of its window is prominent: filled with the accent colour.
/// Push buttons and menu entries that are marked as destructive are red.
class LanternixStyle : public QProxyStyle {
  Q_OBJECT

 public:
  /// A style hint of the program's own; 0 means no, as of any style that does not know it.
  static constexpr auto blendsWindows = static_cast<StyleHint>(SH_CustomBase);

  LanternixStyle();

  /// Whether nothing moves that need not. Views ask by the style hint SH_Widget_Animate.
  void setMotionReduced(bool reduced) { m_isMotionReduced = reduced; }

  /// Whether windows are blended with what is below them. The corners of menus are smooth then, and
  /// views ask by the style hint blendsWindows.
  void setSoftEdges(bool soft) { m_hasSoftEdges = soft; }

  void polish(QWidget *widget) override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                          QPainter *painter, const QWidget *widget) const override;
  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption *option,
                  const QWidget *widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                         const QWidget *widget) const override;
  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *returned) const override;
  QRect subElementRect(SubElement element, const QStyleOption *option,
                       const QWidget *widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                       SubControl subControl, const QWidget *widget) const override;

 private:
  bool m_isMotionReduced = false;
  bool m_hasSoftEdges = false;
};

}  // namespace lanternix
