#include "SampleData.h"
#include "Services/DataDocument.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

void readAndDecode(benchmark::State &state) {
  const QByteArray bytes = *sampleData(state.range(0)).encoded();
  const QTemporaryDir directory;
  const QString path = directory.filePath(u"data.json"_s);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
    state.SkipWithError("the document cannot be written");
    return;
  }
  for (auto iteration : state) {
    QFile stored(path);
    if (!stored.open(QIODevice::ReadOnly)) {
      state.SkipWithError("the document cannot be read");
      return;
    }
    benchmark::DoNotOptimize(DataDocument::decoded(stored.readAll()));
  }
  state.SetBytesProcessed(state.iterations() * bytes.size());
}
BENCHMARK(readAndDecode)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void encode(benchmark::State &state) {
  const DataDocument document = sampleData(state.range(0));
  for (auto iteration : state) {
    benchmark::DoNotOptimize(document.encoded());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(encode)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lanternix
