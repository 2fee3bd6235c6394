#pragma once

#include "Platform/Appearance.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <optional>

class QVariant;

namespace lanternix {

/// The settings of the desktop portal that bear on the appearance. A value of another type than it
/// should have, or of no known meaning, counts as not said.
class PortalSettings {
 public:
  struct Key {
    QString nameSpace;
    QString name;
  };

  /// Every setting that is of use here.
  static const QList<Key> &keys();
  static QStringList nameSpaces();

  /// Takes one value, as it came over the bus; an invalid one takes it back. A key of no use here
  /// is ignored.
  void set(const QString &nameSpace, const QString &name, const QVariant &value);

  /// What the settings mean together.
  Appearance appearance() const;

 private:
  std::optional<quint32> m_colorScheme;
  std::optional<Appearance::Rgb> m_accentColor;
  std::optional<quint32> m_contrast;
  std::optional<quint32> m_reducedMotion;
  std::optional<bool> m_enableAnimations;
  QString m_iconTheme;
};

}  // namespace lanternix
