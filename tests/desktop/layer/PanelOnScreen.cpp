#include "desktop/layer/PanelOnScreen.h"

namespace lanternix {

namespace {

/// Of a row or column of pixels, the longest run that has the panel's brightness begins and ends.
struct Run {
  int first = 0;
  int length = 0;
};

template <typename IsBright>
Run longestRun(int count, IsBright isBright) {
  Run longest;
  Run run;
  for (int i = 0; i < count; ++i) {
    run = isBright(i) ? Run{run.length == 0 ? i : run.first, run.length + 1} : Run{};
    longest = run.length > longest.length ? run : longest;
  }
  return longest;
}

}  // namespace

QRect panelOnScreen(const QImage &picture, QSize screen) {
  constexpr int leastBrightness = 200;
  constexpr int smallestSide = 200;  // logical pixels; smaller is some other window
  const auto isBright = [&](int x, int y) { return qGray(picture.pixel(x, y)) >= leastBrightness; };
  if (picture.isNull()) {
    return {};
  }
  // The rows that are bright for most of the panel's width, but for texts, and their widest.
  Run widest;
  const Run rows = longestRun(picture.height(), [&](int y) {
    int brightPixels = 0;
    const Run row = longestRun(picture.width(), [&](int x) {
      const bool bright = isBright(x, y);
      brightPixels += bright ? 1 : 0;
      return bright;
    });
    widest = row.length > widest.length ? row : widest;
    return brightPixels > smallestSide;
  });
  const double scale = static_cast<double>(picture.width()) / screen.width();
  const QRect frame(qRound(widest.first / scale), qRound(rows.first / scale),
                    qRound(widest.length / scale), qRound(rows.length / scale));
  return frame.width() > smallestSide && frame.height() > smallestSide ? frame : QRect();
}

}  // namespace lanternix
