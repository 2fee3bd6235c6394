#pragma once

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QElapsedTimer>

namespace lanternix {

/// The server's time of the user's last action: a key typed into a window of this program, or what
/// a door has seen elsewhere. Window managers take it as the proof that a window asks for the
/// keyboard because of that action, and of two such proofs only count the later one.
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
  /// Whether the last action was a key typed into a window of this program.
  bool wasTypedHere() const { return m_wasTypedHere; }

  /// An action that need not have been meant for a window of this program.
  void note(quint32 serverTime);
  /// The program is about to answer something else, of which the server's time is not known.
  void forget() { m_age.invalidate(); }

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 private:
  quint32 m_last = 0;
  QElapsedTimer m_age;
  bool m_wasTypedHere = false;
};

}  // namespace lanternix
