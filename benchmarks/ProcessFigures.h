#pragma once

#include <QtCore/QtGlobal>

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

}  // namespace ProcessFigures

}  // namespace lanternix
