#pragma once

#include "support/XConnection.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

namespace lanternix {

/// Hears, as a desktop does, what programs say on a display of the starts that it waits for.
class StartupListener {
 public:
  explicit StartupListener(const QString &displayName);

  /// Every text until now, such as "remove: ID=\"terminal_TIME7\"".
  const QStringList &texts();

 private:
  void take(const xcb_client_message_event_t &piece);

  XConnection m_connection;
  /// What has come of texts whose end has not, by the window that sends it.
  QHash<xcb_window_t, QByteArray> m_begun;
  QStringList m_texts;
};

}  // namespace lanternix
