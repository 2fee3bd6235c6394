#pragma once

#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

namespace lanternix {

/// The global shortcuts of a desktop portal on a session bus, for as long as this object lives. As
/// the real one does, it knows a method by its interface and signature, and lets a program
/// introduce itself only on a connection that has called for nothing yet.
class ShortcutsPortal : public QDBusVirtualObject {
  Q_OBJECT

 public:
  enum class Registry { no, yes };
  enum class Shortcuts { no, yes };
  /// What the user does when asked: agrees, declines, strikes the shortcut from the list, or
  /// leaves the question open.
  enum class User { agrees, declines, strikes, waits };

  struct Nature {
    Registry registry = Registry::yes;
    Shortcuts shortcuts = Shortcuts::yes;
    User user = User::agrees;
  };

  /// Takes the portal's name on the bus at \p busAddress.
  explicit ShortcutsPortal(const QString &busAddress) : ShortcutsPortal(busAddress, Nature()) {}
  ShortcutsPortal(const QString &busAddress, Nature nature);
  ~ShortcutsPortal() override;

  /// From now on, calls are kept until answerAll().
  void keepSilent() { m_isSilent = true; }
  void answerAll();

  /// The methods called so far, in their order.
  const QStringList &calls() const { return m_calls; }
  /// The names under which programs have introduced themselves.
  const QStringList &applications() const { return m_applications; }
  /// The combinations in force, such as "SHIFT+LOGO+space".
  QStringList triggers() const;
  /// The identifiers of the shortcuts in force.
  QStringList identifiers() const { return m_bound.values(); }

  /// Presses the shortcut \p identifier of the newest session, or of another one.
  void press(const QString &identifier) { press(identifier, m_session); }
  void press(const QString &identifier, const QString &session, const QVariantMap &options = {});
  void pressWithToken(const QString &identifier, const QString &token) {
    press(identifier, m_session, {{QStringLiteral("activation_token"), token}});
  }
  /// Ends the newest session, as a desktop may.
  void endSession();

  bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
  QString introspect(const QString &path) const override;

 private:
  void answer(const QDBusMessage &call);
  void answerDesktop(const QDBusMessage &call);
  void introduce(const QDBusMessage &call);
  void createSession(const QDBusMessage &call);
  void bindShortcuts(const QDBusMessage &call);
  void close(const QDBusMessage &call);
  void respond(const QDBusMessage &call, uint code, const QVariantMap &results);
  void refuse(const QDBusMessage &call);

  QString m_connectionName;
  QDBusConnection m_connection;
  Nature m_nature;
  bool m_isSilent = false;
  QList<QDBusMessage> m_unanswered;
  QStringList m_calls;
  QStringList m_applications;
  QSet<QString> m_callers;  // whom a call has been answered to
  QString m_client;
  QString m_session;
  QMap<QString, QString> m_bound;     // identifiers by sessions
  QMap<QString, QString> m_triggers;  // by sessions
};

}  // namespace lanternix
