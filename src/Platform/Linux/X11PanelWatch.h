#pragma once

#include "Platform/Linux/X11Atoms.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QWindow>

namespace lanternix {

/// Watches what the window manager makes of the panel in the time in which it can still go wrong. A
/// very busy one may meet a request to hide only after the show that followed it, and take that for
/// the last word.
class X11PanelWatch : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  /// \p atoms outlives this object.
  explicit X11PanelWatch(X11Atoms &atoms);

  /// Call before the panel is hidden: for two seconds its window manager may meet that late.
  void noteHiding();
  /// Call before \p panel is shown.
  void noteShow(QWindow &panel);
  /// Nothing more to watch for, until the panel is hidden again.
  void stop();

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 Q_SIGNALS:
  /// The window manager has written the state of \p panel, which should be shown, and has had time
  /// to end what it was about: what has become of the panel can now be asked.
  void stateSettled(QWindow &panel);

 private:
  void announce();

  X11Atoms &m_atoms;
  QPointer<QWindow> m_panel;
  /// Who takes the panel off the screen after this means it.
  QDeadlineTimer m_end;
  QTimer m_pause;
};

}  // namespace lanternix
