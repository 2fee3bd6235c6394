#include "Views/Panel/PanelFooterView.h"

#include "App/AppState.h"
#include "Views/Panel/KeyHintView.h"
#include "Views/Panel/PanelAccessibility.h"
#include "Views/Panel/ScopeBadgeView.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QHBoxLayout>

using namespace Qt::StringLiterals;

namespace lanternix {

PanelFooterView::PanelFooterView(AppState &appState, QWidget *parent)
    : QWidget(parent),
      m_appState(appState),
      m_toggleHint(new KeyHintView({}, u"toggle"_s, this)),
      m_scope(new ScopeBadgeView(this)),
      m_count(new TextLabel({}, TextStyle::caption2, QFont::Normal, FillStyle::tertiary, this)) {
  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(20, 8, 20, 8);
  layout->setSpacing(16);
  layout->addWidget(new KeyHintView(u"esc"_s, u"close"_s, this));
  layout->addWidget(m_toggleHint);
  layout->addStretch();
  layout->addWidget(m_scope);
  layout->addWidget(m_count);
  PanelAccessibility::readInOrderOf(*layout);

  connect(&appState, &AppState::searchQueryChanged, this, &PanelFooterView::updateScope);
  connect(&appState, &AppState::groupsChanged, this, &PanelFooterView::updateScope);
  connect(&appState, &AppState::itemsChanged, this, &PanelFooterView::updateCount);
  connect(&appState.hotkeyService(), &HotkeyService::currentShortcutChanged, this,
          &PanelFooterView::updateShortcut);
  updateScope();
  updateCount();
  updateShortcut();
}

void PanelFooterView::updateScope() {
  const std::optional<QList<PathGroup>> scoped = m_appState.scopedGroups();
  m_scope->setVisible(scoped.has_value());
  if (!scoped) {
    return;
  }
  QStringList names;
  for (const PathGroup &group : *scoped) {
    names.append(group.name);
  }
  m_scope->setNames(names.join(u", "_s));
}

void PanelFooterView::updateCount() {
  m_count->setText(u"%1 items"_s.arg(m_appState.items().size()));
}

void PanelFooterView::updateShortcut() {
  m_toggleHint->setKey(m_appState.hotkeyService().currentShortcut().displayString());
}

}  // namespace lanternix
