#pragma once

#include "Views/Panel/PanelAccessibility.h"
#include "Views/Panel/PopupPanelView.h"
#include "views/ViewTest.h"

#include <QtGui/QAccessible>

#include <memory>

namespace lanternix {

/// A test of what a screen reader finds in the panel.
class AccessiblePanelTest : public ViewTest {
 protected:
  static void SetUpTestSuite() { PanelAccessibility::install(); }

  void show(const QList<PathGroup> &groups, const QList<PathItem> &items) {
    state = makeState(groups, items);
    view = std::make_unique<PopupPanelView>(*state);
    view->resize(500, 400);
    view->show();
  }

  static QString nameOf(const QAccessibleInterface *about) {
    return about->text(QAccessible::Name);
  }

  PathGroup work = group(QStringLiteral("Work"));
  PathItem report = item(QStringLiteral("Report"), work, 0, QStringLiteral("make report"));
  std::unique_ptr<AppState> state;
  std::unique_ptr<PopupPanelView> view;
};

}  // namespace lanternix
