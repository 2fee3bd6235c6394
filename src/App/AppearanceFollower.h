#pragma once

#include <QtCore/QObject>
#include <QtGui/QFont>
#include <QtGui/QPalette>

namespace lanternix {

class LanternixStyle;
class SystemAppearance;

/// Gives the running program the desktop's appearance, from the start and at every change: colours,
/// accent colour, contrast, font, icon theme, and whether things move.
///
/// The desktop speaks in two voices: through SystemAppearance, and through the palette, font and
/// icon theme that Qt takes from the desktop's own plug-in where there is one. What the first says
/// goes; the second fills in.
class AppearanceFollower : public QObject {
  Q_OBJECT

 public:
  /// Applies what is known already. To be made before the first window. \p style is the
  /// application's, whose palette is nobody else's to set from then on.
  AppearanceFollower(const SystemAppearance &systemAppearance, LanternixStyle &style,
                     QObject *parent = nullptr);

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void apply();
  void applyPalette();
  void applyIconTheme();
  void followIcons();
  void readDesktopPalette();
  void followPalette();
  void followFont();

  const SystemAppearance &m_systemAppearance;
  LanternixStyle &m_style;
  QPalette m_desktopPalette;
  /// Whether that is the desktop's own, rather than what the style makes up where there is none.
  bool m_desktopHasPalette = false;
  QFont m_font;
  /// Qt's own choice.
  QString m_iconTheme;
  bool m_isSettingPalette = false;
};

}  // namespace lanternix
