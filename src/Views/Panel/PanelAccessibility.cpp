#include "Views/Panel/PanelAccessibility.h"

#include "Utilities/FloatingPanel.h"
#include "Views/Panel/AccessiblePanelList.h"
#include "Views/Panel/EmptyStateView.h"
#include "Views/Panel/KeyHintView.h"
#include "Views/Panel/NoResultsView.h"
#include "Views/Panel/PanelListView.h"
#include "Views/Panel/ScopeBadgeView.h"

#include <QtCore/QHash>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QLayout>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

template <typename View>
QString nameOf() {
  return QString::fromLatin1(View::staticMetaObject.className());
}

/// What kind of thing a view is that paints its own text, or stands for what is in it.
const QHash<QString, QAccessible::Role> &rolesByClass() {
  static const QHash<QString, QAccessible::Role> roles{
      {nameOf<FloatingPanel>(), QAccessible::Window},
      {nameOf<KeyHintView>(), QAccessible::StaticText},
      {nameOf<ScopeBadgeView>(), QAccessible::StaticText},
      // Spoken by itself as soon as it shows.
      {nameOf<EmptyStateView>(), QAccessible::Notification},
      {nameOf<NoResultsView>(), QAccessible::Notification},
  };
  return roles;
}

// Qt asks for each class of an object, the most derived one first, and owns what it is given.
QAccessibleInterface *makeInterface(const QString &className, QObject *object) {
  if (className == nameOf<PanelListView>()) {
    return new AccessiblePanelList(*static_cast<PanelListView *>(object));  // owned by Qt's cache
  }
  const auto role = rolesByClass().constFind(className);
  return role == rolesByClass().cend()
             ? nullptr
             : new QAccessibleWidget(static_cast<QWidget *>(object), *role);  // owned likewise
}

}  // namespace

void PanelAccessibility::install() {
  QAccessible::installFactory(makeInterface);
}

void PanelAccessibility::readInOrderOf(const QLayout &layout) {
  for (int index = 0; index < layout.count(); ++index) {
    QLayoutItem *item = layout.itemAt(index);
    if (QWidget *widget = item->widget()) {
      widget->raise();  // to the end of the children, which is what readers go by
    } else if (const QLayout *inner = item->layout()) {
      readInOrderOf(*inner);
    }
  }
}

}  // namespace lanternix
