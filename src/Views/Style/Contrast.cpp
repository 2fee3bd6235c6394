#include "Views/Style/Contrast.h"

#include <array>
#include <cmath>
#include <utility>

namespace lanternix::Contrast {

namespace {

// The same for every colour, and too slow to work out at every drawing.
const std::array<double, 256> &linearParts() {
  static const std::array<double, 256> parts = [] {
    std::array<double, 256> values{};
    for (size_t i = 0; i < values.size(); ++i) {
      const double part = static_cast<double>(i) / 255;
      values[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return values;
  }();
  return parts;
}

double luminance(const QColor &color) {
  const auto linear = [](int part) { return linearParts()[static_cast<size_t>(part)]; };
  const QRgb rgb = color.rgb();
  return 0.2126 * linear(qRed(rgb)) + 0.7152 * linear(qGreen(rgb)) + 0.0722 * linear(qBlue(rgb));
}

QColor withLightness(const QColor &color, float lightness) {
  return QColor::fromHslF(color.hslHueF(), color.hslSaturationF(), lightness);
}

}  // namespace

QColor laidOn(const QColor &ground, const QColor &color) {
  const auto mixed = [share = color.alphaF()](int above, int below) {
    return qRound(static_cast<float>(above) * share + static_cast<float>(below) * (1 - share));
  };
  return {mixed(color.red(), ground.red()), mixed(color.green(), ground.green()),
          mixed(color.blue(), ground.blue())};
}

double ratio(const QColor &text, const QColor &ground) {
  double lighter = luminance(laidOn(ground, text));
  double darker = luminance(ground);
  if (lighter < darker) {
    std::swap(lighter, darker);
  }
  return (lighter + 0.05) / (darker + 0.05);
}

QColor readableOn(const QColor &ground, const QColor &color, double wanted) {
  QColor best = laidOn(ground, color);
  if (ratio(best, ground) >= wanted) {
    return color;
  }
  const bool darkens = ratio(Qt::black, ground) >= ratio(Qt::white, ground);
  float near = best.lightnessF();
  float far = darkens ? 0.0F : 1.0F;
  const QColor base = best;
  best = withLightness(base, far);
  // Halved often enough to tell any two colours of eight bits apart.
  for (int step = 0; step < 10; ++step) {
    const float middle = (near + far) / 2;
    const QColor candidate = withLightness(base, middle);
    if (ratio(candidate, ground) >= wanted) {
      far = middle;
      best = candidate;
    } else {
      near = middle;
    }
  }
  return best;
}

}  // namespace lanternix::Contrast
