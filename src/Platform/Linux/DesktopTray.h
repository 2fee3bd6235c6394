#pragma once

#include "Platform/SystemTray.h"

#include <memory>

namespace lanternix {

class StatusNotifierHost;
class X11SelectionWatch;

/// The tray of a Linux desktop: one that shows status notifier items, else one of the older kind,
/// which embeds windows.
class DesktopTray : public SystemTray {
  Q_OBJECT

 public:
  /// \p host is null without a session bus, \p embedder (the owner of the tray's selection) on
  /// other window systems than X11.
  DesktopTray(std::unique_ptr<StatusNotifierHost> host,
              std::unique_ptr<X11SelectionWatch> embedder);
  ~DesktopTray() override;

  Kind kind() const override;
  bool isAlwaysDark() const override;

 private:
  const std::unique_ptr<StatusNotifierHost> m_host;
  const std::unique_ptr<X11SelectionWatch> m_embedder;
};

}  // namespace lanternix
