#pragma once

#include <QtCore/QtGlobal>

#include <chrono>

namespace lanternix {

/// What the kernel tells about a running process.
namespace ProcessFigures {

/// Memory in kilobytes, with what is shared with other processes counted in proportion. Libraries
/// that the measuring process uses too count in part only.
qint64 proportionalSetSize(qint64 processId);

/// Memory in kilobytes, with what is shared counted in full.
qint64 residentSetSize(qint64 processId);

/// How often its threads, all together, have been put to sleep and woken since they began.
qint64 wakeUps(qint64 processId);

/// How long its threads, all together, have had a processor since they began.
std::chrono::duration<double, std::milli> processorTime(qint64 processId);

}  // namespace ProcessFigures

}  // namespace lanternix
