#pragma once

#include "Platform/Appearance.h"

#include <QtCore/QObject>

namespace lanternix {

/// What the desktop says of its appearance, as far as it is known by now. The first answer may come
/// after the start, as a change.
class SystemAppearance : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual const Appearance &appearance() const = 0;

 Q_SIGNALS:
  /// The appearance is another one now.
  void changed();
};

/// Stands where nobody says how programs shall look.
class NullSystemAppearance : public SystemAppearance {
  Q_OBJECT

 public:
  using SystemAppearance::SystemAppearance;
  const Appearance &appearance() const override;
};

}  // namespace lanternix
