#pragma once

#include "Platform/ProcessLauncher.h"

#include <QtCore/QStringList>

#include <functional>

namespace lanternix {

/// Starts nothing and notes what it was to start, such as "/bin/sh -c ls".
class FakeProcessLauncher final : public ProcessLauncher {
 public:
  bool launch(const QString &launchPath, const QStringList &arguments) override {
    launches.append((QStringList(launchPath) + arguments).join(u' '));
    if (onLaunch) {
      onLaunch();
    }
    return succeeds;
  }

  QStringList launches;
  bool succeeds = true;
  /// Called at every launch, to look at the state of things at that moment.
  std::function<void()> onLaunch;
};

}  // namespace lanternix
