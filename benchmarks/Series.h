#pragma once

#include <QtCore/QString>

#include <chrono>
#include <vector>

namespace lanternix {

/// Repeated measurements of one figure.
class Series {
 public:
  using Duration = std::chrono::duration<double, std::milli>;

  void add(Duration duration) { m_milliseconds.push_back(duration.count()); }

  /// The value that the given part of the measurements does not exceed; 0.5 is the median.
  double quantile(double part) const;

  /// Median with the spread from the tenth to the ninetieth percentile, such as
  /// "9.8 ms (9.1 to 11.2)". A dash when nothing was measured.
  QString text() const;

 private:
  std::vector<double> m_milliseconds;
};

}  // namespace lanternix
