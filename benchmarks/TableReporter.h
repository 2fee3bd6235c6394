#pragma once

#include "Series.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <benchmark/benchmark.h>

namespace lanternix {

/// Prints the benchmarks of the logic as rows of the same table that the whole program's figures go
/// into: figure, one column each for 1,000, 10,000 and 100,000 items, what is aimed at. Each cell
/// is the median of the repetitions with their spread.
class TableReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context &context) override;
  void ReportRuns(const std::vector<Run> &runs) override;
  /// Prints the rows, in the order in which the benchmarks first reported.
  void Finalize() override;

 private:
  struct Figure {
    QString name;
    QMap<QString, Series> byItemCount;
  };

  Figure &figureNamed(const QString &name);

  QList<Figure> m_figures;
};

}  // namespace lanternix
