#pragma once

#include "support/ChildProcess.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QRect>
#include <QtDBus/QDBusConnection>

#include <optional>

namespace lanternix {

/// A session's bus for assistive technologies (AT-SPI), and on it a listener that asks and hears
/// what a screen reader would. Programs that are started later find the bus and describe
/// themselves.
class AccessibilityBus : public QObject {
  Q_OBJECT

 public:
  /// Something that a program describes: a window, a field, a row.
  struct Node {
    QString service;
    QString path;
    friend bool operator==(const Node &, const Node &) = default;
  };

  /// That something happened to a node, such as "focused" with 1 or "Deactivate" with 0.
  struct Event {
    QString what;
    int detail;
    Node node;
  };

  /// The states that are asked for, by their numbers in the protocol.
  enum class State : unsigned {
    active = 1,
    checked = 4,
    collapsed = 5,
    editable = 7,
    expandable = 9,
    expanded = 10,
    focused = 12,
    selectable = 22,
    selected = 23,
    showing = 25,
  };

  /// Starts the bus for the session with these variables, which needs a bus of its own.
  explicit AccessibilityBus(const QProcessEnvironment &session);
  ~AccessibilityBus() override;

  /// The root of the program with this name, for which this waits.
  Node program(const QString &name);
  QList<Node> children(const Node &node) const;
  /// The first node below \p ancestor, in reading order, with this role and this name. Waits for
  /// it.
  Node find(const Node &ancestor, const QString &role, const QString &name) const;

  QString name(const Node &node) const;
  QString description(const Node &node) const;
  /// What the node is labelled by; none for most.
  QList<Node> labels(const Node &node) const;
  /// Such as "tree item".
  QString role(const Node &node) const;
  /// Where it is on the screen.
  QRect geometry(const Node &node) const;
  bool has(const Node &node, State state) const;
  /// Whether the program still knows the node.
  bool isKnown(const Node &node) const;
  /// Does the node's first action.
  void act(const Node &node) const;

  /// What was heard, oldest first, since the start or since forgetEvents().
  const QList<Event> &events() const { return m_events; }
  void forgetEvents() { m_events.clear(); }
  /// The node that has got the focus last; none so far.
  const std::optional<Node> &focus() const { return m_focus; }

 private Q_SLOTS:
  void hear(const QDBusMessage &signal);

 private:
  QDBusMessage call(const Node &node, const QString &interface, const QString &method,
                    const QVariantList &arguments = {}) const;
  QString property(const Node &node, const QString &name) const;
  std::optional<Node> findBelow(const Node &ancestor, const QString &role,
                                const QString &name) const;

  ChildProcess m_launcher;
  QDBusConnection m_connection;
  QList<Event> m_events;
  std::optional<Node> m_focus;
};

}  // namespace lanternix
