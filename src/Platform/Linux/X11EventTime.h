#pragma once

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QElapsedTimer>

namespace lanternix {

/// The server's time, in milliseconds, of the user's last action that a door has seen. Window
/// managers take it as the proof that a window asks for the keyboard because of that action.
///
/// A key typed into a window of this program is no such action, but makes the one before it too
/// old: Qt tells window managers of that key, and they refuse an earlier time from then on.
class X11EventTime : public QAbstractNativeEventFilter {
 public:
  /// Once the application is there.
  X11EventTime();

  /// 0 when the last action is too long ago to be what the program answers to: an old time would be
  /// taken as proof of the contrary.
  quint32 recent() const {
    constexpr qint64 longestAnswer = 1000;  // milliseconds
    return m_age.isValid() && !m_age.hasExpired(longestAnswer) ? m_last : 0;
  }

  void note(quint32 serverTime) {
    m_last = serverTime;
    m_age.start();
  }
  /// What the program answers from now on has no time that was noted.
  void forget() { m_age.invalidate(); }

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 private:
  quint32 m_last = 0;
  QElapsedTimer m_age;
};

}  // namespace lanternix
