#pragma once

#include "Platform/Linux/X11Atoms.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QWindow>

namespace lanternix {

/// Notices that the panel has been lost by its window manager. One that is very busy may meet a
/// request to hide only after the show that followed it, and take that for the last word.
class X11PanelRecovery : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  /// \p atoms outlives this object.
  explicit X11PanelRecovery(X11Atoms &atoms);

  /// Call before the panel is hidden.
  void noteHiding();
  /// Call before \p panel is shown. Long after a hiding, there is nothing to watch for.
  void noteShow(QWindow &panel);

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 Q_SIGNALS:
  /// The window manager has changed the state of \p panel, which should be shown, and has had time
  /// to end what it was about. Only within two seconds of a hiding: who takes the panel off the
  /// screen later means it.
  void mayBeLost(QWindow &panel);

 private:
  void check();

  X11Atoms &m_atoms;
  QPointer<QWindow> m_panel;
  /// Expired when the last hiding is too long ago to be met only now.
  QDeadlineTimer m_recentHiding;
  QTimer m_pause;
};

}  // namespace lanternix
