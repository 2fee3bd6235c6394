#pragma once

#include <QtCore/QObject>

#include <functional>

class QKeyEvent;

namespace lanternix {

/// Sees every key press that reaches one of the program's windows before the window's own widgets
/// do, but after an input method has taken what it composes with. Presses for an open menu pass by.
class LocalKeyMonitor : public QObject {
  Q_OBJECT

 public:
  /// Whether the press is consumed: no window sees it then.
  using Handler = std::function<bool(const QKeyEvent &press)>;

  explicit LocalKeyMonitor(Handler handler, QObject *parent = nullptr);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  Handler m_handler;
};

}  // namespace lanternix
