#pragma once

#include <QtCore/QList>
#include <QtCore/QPoint>
#include <QtCore/QSize>
#include <QtCore/QString>

#include <linux/input-event-codes.h>
#include <memory>

namespace lanternix {

/// A keyboard of the United States and a mouse on a Wayland compositor, played by a test through
/// whichever protocol the compositor has for that. Keys and buttons are named by their evdev codes,
/// such as KEY_SPACE and BTN_LEFT. Each call returns once the compositor has taken it.
class WaylandInput {
 public:
  /// \p socket is the path of the compositor's socket, \p screen the size of its only screen.
  WaylandInput(const QString &socket, QSize screen);
  ~WaylandInput();
  Q_DISABLE_COPY_MOVE(WaylandInput)

  void pressKey(int key);
  void releaseKey(int key);
  void tap(int key, const QList<int> &modifiers = {});
  /// Small letters only.
  void type(const QString &letters);

  void moveTo(QPoint position);
  void pressButton(int button = BTN_LEFT);
  void releaseButton(int button = BTN_LEFT);
  void click(QPoint position, int button = BTN_LEFT);
  /// Moves by that far, as a mouse tells it.
  void moveBy(QPoint distance);
  /// Moves with the left button held, by steps as a hand does, and lets go.
  void drag(QPoint from, QPoint to);

 private:
  struct Objects;

  void key(int key, bool pressed);
  void button(int button, bool pressed);
  void sync();

  std::unique_ptr<Objects> m_objects;
  QSize m_screen;
  quint32 m_modifiers = 0;
  quint32 m_time = 0;
};

}  // namespace lanternix
