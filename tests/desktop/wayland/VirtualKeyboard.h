#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>

namespace lanternix {

/// A keyboard of the United States on a Wayland compositor, played by a test. Keys are named by
/// their places (evdev codes), such as KEY_SPACE.
class VirtualKeyboard {
 public:
  /// \p socket is the path of the compositor's socket.
  explicit VirtualKeyboard(const QString &socket);
  ~VirtualKeyboard();
  Q_DISABLE_COPY_MOVE(VirtualKeyboard)

  // Each returns once the compositor has taken the key.
  void press(int key);
  void release(int key);
  /// Presses and releases \p key while \p modifiers are held.
  void tap(int key, const QList<int> &modifiers = {});
  /// Types small letters and blanks.
  void type(const QString &text);

 private:
  struct Objects;

  void send(int key, bool pressed);

  std::unique_ptr<Objects> m_objects;
  quint32 m_modifiers = 0;
  quint32 m_time = 0;
};

}  // namespace lanternix
