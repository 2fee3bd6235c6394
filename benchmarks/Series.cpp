#include "Series.h"

#include <algorithm>
#include <cmath>

namespace lanternix {

using namespace Qt::StringLiterals;

double Series::quantile(double part) const {
  std::vector<double> sorted = m_milliseconds;
  std::sort(sorted.begin(), sorted.end());
  const double position = part * static_cast<double>(sorted.size() - 1);
  return sorted.at(static_cast<size_t>(std::lround(position)));
}

QString Series::text() const {
  if (m_milliseconds.empty()) {
    return u"–"_s;
  }
  const auto rounded = [this](double part) {
    const double value = quantile(part);
    const int decimals = value < 1 ? 3 : value < 10 ? 2 : 1;
    return QString::number(value, 'f', decimals);
  };
  return u"%1 ms (%2 to %3)"_s.arg(rounded(0.5), rounded(0.1), rounded(0.9));
}

}  // namespace lanternix
