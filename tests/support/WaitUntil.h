#pragma once

#include <chrono>
#include <functional>

class QString;

namespace lanternix {

/// How long a condition may take before it counts as never coming true. Generous, because it is
/// only ever spent by something that is broken.
inline constexpr std::chrono::milliseconds patience{8000};

/// Runs the event loop until \p condition holds. False when it still does not after \p timeout.
bool waitUntil(const std::function<bool()> &condition,
               std::chrono::milliseconds timeout = patience);

/// The same for what has to come true before anything else makes sense: throws a HarnessError that
/// names \p what was waited for.
void require(const QString &what, const std::function<bool()> &condition,
             std::chrono::milliseconds timeout = patience);

}  // namespace lanternix
