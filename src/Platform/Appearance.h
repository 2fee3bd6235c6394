#pragma once

#include <QtCore/QString>

#include <optional>

namespace lanternix {

/// How the desktop wants its programs to look. What it does not say has the value of a desktop
/// without preferences.
struct Appearance {
  enum class ColorScheme { noPreference, light, dark };

  /// A colour by its parts, each from 0 to 1.
  struct Rgb {
    double red = 0;
    double green = 0;
    double blue = 0;

    friend bool operator==(const Rgb &, const Rgb &) = default;
  };

  ColorScheme colorScheme = ColorScheme::noPreference;
  std::optional<Rgb> accentColor = std::nullopt;
  bool prefersHighContrast = false;
  bool prefersReducedMotion = false;
  /// Empty when the desktop names none.
  QString iconTheme = QString();

  friend bool operator==(const Appearance &, const Appearance &) = default;
};

}  // namespace lanternix
