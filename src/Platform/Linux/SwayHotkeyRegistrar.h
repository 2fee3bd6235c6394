#pragma once

#include "Platform/HotkeyRegistrar.h"
#include "Platform/KeyNames.h"

#include <QtCore/QSocketNotifier>

#include <memory>
#include <optional>

namespace lanternix {

class SwayConnection;

/// The shortcut as a key binding of sway, made over its socket for this run of sway alone: nothing
/// is written to the user's configuration. The bound command does nothing by itself; sway tells
/// whoever asks of every binding that is used, which is quicker than a command that it would have
/// to start, and needs no other program.
///
/// A binding that the configuration makes for the same keys is hidden meanwhile and is back when
/// this one goes; one that is made by key codes ("--to-code" or "bindcode") may be back only when
/// sway reads its configuration again. Then sway drops this one too, and it is made anew.
class SwayHotkeyRegistrar : public HotkeyRegistrar {
  Q_OBJECT

 public:
  /// \p socketPath as SWAYSOCK names it.
  explicit SwayHotkeyRegistrar(QString socketPath);
  ~SwayHotkeyRegistrar() override;

  /// Whether sway answers there.
  bool isAvailable() const;

  bool registerHotkey(quint32 keyCode, quint32 classicModifiers) override;
  void unregisterHotkey() override;

 private:
  void release();
  bool isDone(const QString &command) const;
  bool bind() const;
  bool listen();
  void stopListening();
  void readEvents();
  void readEvent(quint32 kind, const QByteArray &payload);
  void lose(const char *reason);

  QString m_socketPath;
  std::optional<KeyNames::SwayBinding> m_binding;
  std::unique_ptr<SwayConnection> m_events;
  std::unique_ptr<QSocketNotifier> m_notifier;
};

}  // namespace lanternix
