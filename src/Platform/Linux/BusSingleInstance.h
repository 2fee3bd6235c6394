#pragma once

#include "Platform/SingleInstance.h"

namespace lanternix {

/// One program per session bus: whoever owns the name "org.lanternix.Lanternix". Others reach it
/// there by ApplicationAdaptor's interface, a second start too.
class BusSingleInstance : public SingleInstance {
  Q_OBJECT

 public:
  BusSingleInstance();

  /// Whether there is a session bus to claim the name on.
  static bool isAvailable();

  bool claim(const ActivationToken &token) override;

  /// What has been asked for on the bus.
  void receive(Request request, const ActivationToken &token);

 private:
  /// Whether the bus has started the program and what for is yet to come.
  bool m_awaitsReasonForStart;
};

}  // namespace lanternix
