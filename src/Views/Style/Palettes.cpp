#include "Views/Style/Palettes.h"

#include "Views/Style/Contrast.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/SystemColors.h"

#include <QtGui/QPalette>

#include <algorithm>
#include <array>
#include <utility>

namespace lanternix::Palettes {

namespace {

/// What a whole palette follows from.
struct Shades {
  QRgb window;
  QRgb base;
  QRgb alternateBase;
  QRgb button;
  QRgb toolTip;
  QRgb text;
  QRgb light;
  QRgb midlight;
  QRgb mid;
  QRgb dark;
  QRgb shadow;
};

constexpr float disabledOpacity = 0.4F;

/// Lets everything that carries text fade into its ground.
void fillDisabled(QPalette &palette) {
  using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
  for (const auto &[text, ground] :
       {Pair(QPalette::WindowText, QPalette::Window), Pair(QPalette::Text, QPalette::Base),
        Pair(QPalette::ButtonText, QPalette::Button),
        Pair(QPalette::PlaceholderText, QPalette::Base), Pair(QPalette::Link, QPalette::Window),
        Pair(QPalette::LinkVisited, QPalette::Window)}) {
    const QColor below = palette.color(QPalette::Active, ground);
    const QColor faded = withOpacity(palette.color(QPalette::Active, text), disabledOpacity);
    palette.setColor(QPalette::Disabled, text, Contrast::laidOn(below, faded));
  }
}

QPalette filled(const Shades &shades) {
  QPalette palette;
  const auto set = [&palette](QPalette::ColorRole role, QRgb color) {
    palette.setColor(QPalette::All, role, QColor(color));
  };
  set(QPalette::Window, shades.window);
  set(QPalette::WindowText, shades.text);
  set(QPalette::Base, shades.base);
  set(QPalette::AlternateBase, shades.alternateBase);
  set(QPalette::Text, shades.text);
  set(QPalette::BrightText, shades.light);
  set(QPalette::Button, shades.button);
  set(QPalette::ButtonText, shades.text);
  set(QPalette::ToolTipBase, shades.toolTip);
  set(QPalette::ToolTipText, shades.text);
  set(QPalette::Light, shades.light);
  set(QPalette::Midlight, shades.midlight);
  set(QPalette::Mid, shades.mid);
  set(QPalette::Dark, shades.dark);
  set(QPalette::Shadow, shades.shadow);
  const QColor placeholder =
      Contrast::laidOn(palette.color(QPalette::Window), fillColor(FillStyle::tertiary, palette));
  palette.setColor(QPalette::All, QPalette::PlaceholderText, placeholder);
  setAccent(palette, systemColor(SystemColor::blue, palette));
  fillDisabled(palette);
  return palette;
}

}  // namespace

QPalette light() {
  return filled({.window = 0xF6F6F7,
                 .base = 0xFFFFFF,
                 .alternateBase = 0xF2F2F4,
                 .button = 0xFCFCFD,
                 .toolTip = 0xFFFFFF,
                 .text = 0x161618,
                 .light = 0xFFFFFF,
                 .midlight = 0xEDEDEF,
                 .mid = 0xC4C4C8,
                 .dark = 0xA2A2A7,
                 .shadow = 0x6E6E73});
}

QPalette dark() {
  return filled({.window = 0x262629,
                 .base = 0x1D1D20,
                 .alternateBase = 0x232326,
                 .button = 0x38383C,
                 .toolTip = 0x333337,
                 .text = 0xF4F4F6,
                 .light = 0x55555A,
                 .midlight = 0x444449,
                 .mid = 0x1A1A1C,
                 .dark = 0x141416,
                 .shadow = 0x0A0A0B});
}

QPalette lightHighContrast() {
  return filled({.window = 0xFFFFFF,
                 .base = 0xFFFFFF,
                 .alternateBase = 0xFFFFFF,
                 .button = 0xFFFFFF,
                 .toolTip = 0xFFFFFF,
                 .text = 0x000000,
                 .light = 0xFFFFFF,
                 .midlight = 0xD0D0D0,
                 .mid = 0x808080,
                 .dark = 0x404040,
                 .shadow = 0x000000});
}

QPalette darkHighContrast() {
  return filled({.window = 0x000000,
                 .base = 0x000000,
                 .alternateBase = 0x000000,
                 .button = 0x000000,
                 .toolTip = 0x000000,
                 .text = 0xFFFFFF,
                 .light = 0xFFFFFF,
                 .midlight = 0xC0C0C0,
                 .mid = 0xA0A0A0,
                 .dark = 0x808080,
                 .shadow = 0xFFFFFF});
}

void setAccent(QPalette &palette, const QColor &accent) {
  const bool suitsWhite = Contrast::ratio(Qt::white, accent) >= Contrast::ofText;
  palette.setColor(QPalette::All, QPalette::Highlight, accent);
  // Of black and white, one always has the contrast.
  palette.setColor(QPalette::All, QPalette::HighlightedText, suitsWhite ? Qt::white : Qt::black);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, palette.color(QPalette::Mid));

  const QColor link =
      Contrast::readableOn(palette.color(QPalette::Active, QPalette::Window), accent);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Link, link);
    palette.setColor(group, QPalette::LinkVisited, link);
  }
}

bool isReadable(const QPalette &palette) {
  using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
  constexpr std::array pairs{Pair(QPalette::WindowText, QPalette::Window),
                             Pair(QPalette::Text, QPalette::Base),
                             Pair(QPalette::ButtonText, QPalette::Button)};
  return std::ranges::all_of(pairs, [&palette](const Pair &pair) {
    return Contrast::ratio(palette.color(QPalette::Active, pair.first),
                           palette.color(QPalette::Active, pair.second)) >= Contrast::ofText;
  });
}

}  // namespace lanternix::Palettes
