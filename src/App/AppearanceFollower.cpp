#include "App/AppearanceFollower.h"

#include "Platform/SystemAppearance.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/LanternixStyle.h"
#include "Views/Style/Palettes.h"
#include "Views/Style/SystemColors.h"

#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

Q_LOGGING_CATEGORY(appearanceLog, "lanternix.appearance", QtWarningMsg)

bool wantsDark(const Appearance &appearance, const QPalette &desktop) {
  switch (appearance.colorScheme) {
    case Appearance::ColorScheme::dark:
      return true;
    case Appearance::ColorScheme::light:
      return false;
    case Appearance::ColorScheme::noPreference:
      break;
  }
  return isDark(desktop);
}

QPalette ownPalette(bool dark, bool highContrast) {
  if (highContrast) {
    return dark ? Palettes::darkHighContrast() : Palettes::lightHighContrast();
  }
  return dark ? Palettes::dark() : Palettes::light();
}

QColor toColor(const Appearance::Rgb &color) {
  return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                          static_cast<float>(color.blue));
}

/// The desktop's palette as far as the program can be read in it.
QPalette kept(QPalette desktop) {
  const QColor window = desktop.color(QPalette::Active, QPalette::Window);
  const QColor placeholder = desktop.color(QPalette::Active, QPalette::PlaceholderText);
  if (Contrast::ratio(placeholder, window) < Contrast::ofText) {
    desktop.setColor(QPalette::PlaceholderText, fillColor(FillStyle::tertiary, desktop));
  }
  const QColor selected = desktop.color(QPalette::Active, QPalette::HighlightedText);
  const QColor accent = accentColor(desktop);
  if (Contrast::ratio(selected, accent) < Contrast::ofText) {
    Palettes::setAccent(desktop, accent);
  }
  return desktop;
}

/// \p isDesktops tells whether \p desktop is more than what stands in for a palette of the
/// desktop's.
QPalette choosePalette(const Appearance &appearance, const QPalette &desktop, bool isDesktops) {
  const bool dark = wantsDark(appearance, desktop);
  const bool keeps = isDesktops && isDark(desktop) == dark && Palettes::isReadable(desktop) &&
                     !appearance.prefersHighContrast;
  QPalette palette = keeps ? kept(desktop) : ownPalette(dark, appearance.prefersHighContrast);
  if (appearance.accentColor) {
    Palettes::setAccent(palette, toColor(*appearance.accentColor));
  } else if (isDesktops && !keeps) {
    Palettes::setAccent(palette, accentColor(desktop));
  }
  return palette;
}

bool isInstalled(const QString &iconTheme) {
  // The name comes from outside, and only plain names are themes.
  if (iconTheme.isEmpty() || iconTheme.contains(u'/')) {
    return false;
  }
  const QStringList places = QIcon::themeSearchPaths();
  return std::ranges::any_of(places, [&iconTheme](const QString &place) {
    return QFile::exists(place + u'/' + iconTheme + "/index.theme"_L1);
  });
}

/// \p wanted is the desktop's, \p qts what Qt takes by itself.
QString chooseIconTheme(const QString &wanted, const QString &qts) {
  if (isInstalled(wanted)) {
    return wanted;
  }
  // Every theme falls back on "hicolor", which has the icons of applications only.
  if (qts != "hicolor"_L1 && isInstalled(qts)) {
    return qts;
  }
  for (const QString &common : {u"Adwaita"_s, u"breeze"_s, u"Papirus"_s}) {
    if (isInstalled(common)) {
      return common;
    }
  }
  return qts;
}

void tellOfNewIcons() {
  const QWidgetList widgets = QApplication::allWidgets();
  for (QWidget *widget : widgets) {
    QEvent event(QEvent::ThemeChange);
    QCoreApplication::sendEvent(widget, &event);
    widget->update();
  }
}

}  // namespace

AppearanceFollower::AppearanceFollower(const SystemAppearance &systemAppearance,
                                       LanternixStyle &style, QObject *parent)
    : QObject(parent),
      m_systemAppearance(systemAppearance),
      m_style(style),
      m_font(QApplication::font()),
      m_iconTheme(QIcon::themeName()) {
  connect(&systemAppearance, &SystemAppearance::changed, this, &AppearanceFollower::apply);
  QCoreApplication::instance()->installEventFilter(this);
  readDesktopPalette();
  apply();
}

bool AppearanceFollower::eventFilter(QObject *watched, QEvent *event) {
  if (m_isSettingPalette) {
    return false;
  }
  switch (event->type()) {
    case QEvent::ApplicationPaletteChange:
      if (watched == QCoreApplication::instance()) {
        followPalette();
      }
      break;
    case QEvent::ThemeChange:
      // Qt tells windows of every change of the desktop's plug-in, but of the palette only while
      // the program has set none, and of the font not at all.
      if (watched->isWindowType()) {
        followPalette();
        followFont();
        followIcons();
      }
      break;
    case QEvent::ApplicationFontChange:
      m_font = QApplication::font();
      break;
    default:
      break;
  }
  return false;
}

void AppearanceFollower::apply() {
  m_style.setMotionReduced(m_systemAppearance.appearance().prefersReducedMotion);
  applyPalette();
  applyIconTheme();
}

void AppearanceFollower::applyPalette() {
  const QScopedValueRollback setting(m_isSettingPalette, true);
  QApplication::setPalette(
      choosePalette(m_systemAppearance.appearance(), m_desktopPalette, m_desktopHasPalette));
}

void AppearanceFollower::applyIconTheme() {
  const QString theme = chooseIconTheme(m_systemAppearance.appearance().iconTheme, m_iconTheme);
  if (theme == QIcon::themeName()) {
    return;
  }
  qCDebug(appearanceLog) << "the icons are those of" << theme;
  QIcon::setThemeName(theme);
  tellOfNewIcons();
}

void AppearanceFollower::followIcons() {
  // Without a name of the program's own, Qt tells the desktop's.
  const QString shown = QIcon::themeName();
  QIcon::setThemeName({});
  m_iconTheme = QIcon::themeName();
  QIcon::setThemeName(shown);
  applyIconTheme();
}

void AppearanceFollower::readDesktopPalette() {
  const QScopedValueRollback setting(m_isSettingPalette, true);
  // The only way to learn the desktop's colours from behind the program's own.
  QApplication::setPalette(QPalette());
  m_desktopPalette = QApplication::palette();
  m_desktopHasPalette = m_desktopPalette != m_style.standardPalette();
}

void AppearanceFollower::followPalette() {
  readDesktopPalette();
  applyPalette();
}

void AppearanceFollower::followFont() {
  if (QApplication::font() == m_font) {
    return;
  }
  m_font = QApplication::font();
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (QWidget *window : windows) {
    QEvent event(QEvent::ApplicationFontChange);
    QCoreApplication::sendEvent(window, &event);
  }
}

}  // namespace lanternix
