#pragma once

#include <QtWidgets/QProxyStyle>

namespace lanternix {

/// How the program draws its controls: the same on every desktop. Colours and fonts are those of
/// the palette and the application font.
class LanternixStyle : public QProxyStyle {
  Q_OBJECT

 public:
  LanternixStyle();

  /// Whether nothing moves that need not. Views ask by the style hint SH_Widget_Animate.
  void setMotionReduced(bool reduced) { m_isMotionReduced = reduced; }

  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *returned) const override;

 private:
  bool m_isMotionReduced = false;
};

}  // namespace lanternix
