// With "--table", prints rows of a Markdown table; otherwise what Google Benchmark prints.
#include "TableReporter.h"

#include <algorithm>
#include <string_view>
#include <vector>

int main(int argc, char **argv) {
  std::vector<char *> arguments(argv, argv + argc);
  const auto isTable = [](const char *argument) { return std::string_view(argument) == "--table"; };
  const bool table = std::erase_if(arguments, isTable) > 0;
  int count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  if (table) {
    lanternix::TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
  } else {
    benchmark::RunSpecifiedBenchmarks();
  }
  return 0;
}
