#pragma once

#include "Platform/SingleInstance.h"

#include <QtCore/QDeadlineTimer>

#include <chrono>

namespace lanternix {

/// One program per session bus: whoever owns the name "org.lanternix.Lanternix". Others reach it
/// there by ApplicationAdaptor's interface, a second start too.
class BusSingleInstance : public SingleInstance {
  Q_OBJECT

 public:
  /// Where the bus has started the program, what for is heard of within \p due; what comes
  /// later is a request of its own.
  explicit BusSingleInstance(std::chrono::milliseconds due = std::chrono::seconds(10));

  /// Whether there is a session bus to claim the name on.
  static bool isAvailable();

  bool claim(const ActivationToken &token) override;

  /// What has been asked for on the bus.
  void receive(Request request, const ActivationToken &token);

 private:
  /// Until then, what the bus has started the program for may be yet to come.
  QDeadlineTimer m_reasonForStart;
};

}  // namespace lanternix
