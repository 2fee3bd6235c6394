#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QUuid>

class QVariantAnimation;

namespace lanternix {

/// The groups of the list that are on their way from folded to unfolded or back. A group that is
/// turned round on its way goes back from where it stands.
class GroupFolding : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  bool isMoving() const { return !m_movements.isEmpty(); }
  bool isMoving(const QUuid &group) const { return m_movements.contains(group); }

  /// How far a moving group has unfolded, 0 to 1.
  double openness(const QUuid &group) const;

  /// Lets \p group unfold, or fold.
  void start(const QUuid &group, bool unfolds);

  /// Ends every movement at once.
  void finish();

 Q_SIGNALS:
  /// A group has moved a little.
  void moved();
  /// \p group has come to rest.
  void settled(const QUuid &group);

 private:
  QHash<QUuid, QVariantAnimation *> m_movements;
};

}  // namespace lanternix
