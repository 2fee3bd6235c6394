#include "Views/Settings/SettingsAccessibility.h"

#include "Views/Controls/ChoiceGrid.h"
#include "Views/Controls/FormSection.h"
#include "Views/Controls/SegmentedPicker.h"
#include "Views/Settings/SettingsView.h"

#include <QtCore/QHash>
#include <QtWidgets/QAccessibleWidget>

namespace lanternix {

namespace {

template <typename View>
QString nameOf() {
  return QString::fromLatin1(View::staticMetaObject.className());
}

const QHash<QString, QAccessible::Role> &rolesByClass() {
  static const QHash<QString, QAccessible::Role> roles{
      {nameOf<SettingsView>(), QAccessible::Window},
      {nameOf<ChoiceGrid>(), QAccessible::Grouping},
      {nameOf<FormSection>(), QAccessible::Grouping},
      {nameOf<SegmentedPicker>(), QAccessible::Grouping},
  };
  return roles;
}

// Qt asks for each class of an object, the most derived one first, and owns what it is given.
QAccessibleInterface *makeInterface(const QString &className, QObject *object) {
  const auto role = rolesByClass().constFind(className);
  return role == rolesByClass().cend()
             ? nullptr
             : new QAccessibleWidget(static_cast<QWidget *>(object), *role);  // owned by Qt's cache
}

}  // namespace

void SettingsAccessibility::install() {
  QAccessible::installFactory(makeInterface);
}

}  // namespace lanternix
