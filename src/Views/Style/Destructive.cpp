#include "Views/Style/Destructive.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>

namespace lanternix {

namespace {

constexpr const char *property = "destructive";

}  // namespace

void markDestructive(QObject &control) {
  control.setProperty(property, true);
}

bool isDestructive(const QObject *control) {
  return control != nullptr && control->property(property).toBool();
}

}  // namespace lanternix
