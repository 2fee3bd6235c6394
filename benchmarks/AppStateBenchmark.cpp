#include "App/AppState.h"
#include "App/SearchIndex.h"
#include "SampleData.h"
#include "support/StoreFixture.h"

#include <benchmark/benchmark.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

// A home with so many items in its data file.
struct Store : StoreFixture {
  explicit Store(qsizetype itemCount) {
    TemporaryHome::write(home.dataFile(), *sampleData(itemCount).encoded());
  }
};

// Typing and taking back a letter, with the reads of a view that copies what it shows.
void search(benchmark::State &state, const QString &query) {
  Store store(state.range(0));
  AppState appState(store.doors());
  appState.setSearchQuery(u"warm up"_s);
  for (auto iteration : state) {
    appState.setSearchQuery(query);
    benchmark::DoNotOptimize(appState.filteredGroups());
    benchmark::DoNotOptimize(appState.navigationItems());
    state.PauseTiming();
    appState.setSearchQuery(QString());
    state.ResumeTiming();
  }
}
BENCHMARK_CAPTURE(search, letter, u"a"_s)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, word, u"thesis 77"_s)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, scoped, u"work: report"_s)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, accented, u"résumé"_s)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond);

// The same for a view that reads positions.
void searchByPosition(benchmark::State &state) {
  Store store(state.range(0));
  AppState appState(store.doors());
  appState.setSearchQuery(u"warm up"_s);
  for (auto iteration : state) {
    appState.setSearchQuery(u"a"_s);
    for (const qsizetype position : appState.filteredGroupPositions()) {
      benchmark::DoNotOptimize(
          appState.itemPositionsForGroup(appState.groups()[position].id).size());
    }
    state.PauseTiming();
    appState.setSearchQuery(QString());
    state.ResumeTiming();
  }
}
BENCHMARK(searchByPosition)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

// With names and paths as they are, and with the part of them that is plain ASCII.
void buildIndex(benchmark::State &state, bool asciiOnly) {
  QList<PathItem> items = sampleData(state.range(0)).items;
  for (PathItem &item : items) {
    if (asciiOnly) {
      item.name.removeIf([](QChar unit) { return unit.unicode() > 0x7f; });
      item.path.removeIf([](QChar unit) { return unit.unicode() > 0x7f; });
    }
  }
  for (auto iteration : state) {
    benchmark::DoNotOptimize(SearchIndex(items));
  }
}
BENCHMARK_CAPTURE(buildIndex, mixed, false)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(buildIndex, ascii, true)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond);

void start(benchmark::State &state) {
  Store store(state.range(0));
  const AppState firstOfTheDay(store.doors());  // makes the daily backup
  for (auto iteration : state) {
    const AppState appState(store.doors());
    benchmark::DoNotOptimize(appState.filteredGroupPositions());
  }
}
BENCHMARK(start)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void openItem(benchmark::State &state) {
  Store store(state.range(0));
  AppState appState(store.doors());
  for (auto iteration : state) {
    appState.openItem(appState.items().back());
    store.processLauncher.launches.clear();
    store.workspace.requests.clear();
  }
}
BENCHMARK(openItem)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lanternix
