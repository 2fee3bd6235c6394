#pragma once

#include "Services/DataDocument.h"

namespace lanternix {

/// A document such as a busy user might have: \p itemCount items spread over \p groupCount groups,
/// with names, paths, links and commands of real length, some of them outside ASCII, and two thirds
/// of them opened before. The same numbers give the same document on every machine.
DataDocument sampleData(qsizetype itemCount, qsizetype groupCount = 100);

}  // namespace lanternix
