#pragma once

#include "Platform/Linux/X11Server.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QObject>

namespace lanternix {

/// Whether somebody owns one of the selections by which programs say that they do a certain job for
/// a screen, such as blending its windows. The server tells when that changes.
class X11SelectionWatch : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  /// \p prefix is the selection's name without the number of the screen at its end.
  X11SelectionWatch(const X11Server &server, const char *prefix);

  bool isOwned() const { return m_isOwned; }

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 Q_SIGNALS:
  void changed();

 private:
  void select();

  const X11Server &m_server;
  xcb_atom_t m_selection = XCB_ATOM_NONE;
  quint8 m_firstEvent = 0;
  bool m_isOwned = false;
};

}  // namespace lanternix
