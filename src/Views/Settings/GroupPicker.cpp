#include "Views/Settings/GroupPicker.h"

#include "App/AppState.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/SymbolIcon.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double widestEntry = 220;  // logical pixels

QList<PathGroup> inDisplayOrder(QList<PathGroup> groups) {
  std::ranges::stable_sort(groups, {}, &PathGroup::order);
  return groups;
}

}  // namespace

GroupPicker::GroupPicker(AppState &appState, const std::optional<QUuid> &selected, QWidget *parent)
    : QComboBox(parent), m_appState(appState), m_selectedGroupId(selected) {
  setAccessibleName(u"Group"_s);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(this, &QComboBox::currentIndexChanged, this, &GroupPicker::readIndex);
  connect(&m_appState, &AppState::groupsChanged, this, &GroupPicker::readGroups);
  readGroups();
}

void GroupPicker::readGroups() {
  const bool wasShown = currentIndex() >= 0;
  {
    const QSignalBlocker blocker(this);
    hidePopup();
    clear();
    for (const PathGroup &group : inDisplayOrder(m_appState.groups())) {
      addItem(symbolIcon(group.iconName),
              DisplayText::elided(group.name, font(), Qt::ElideRight, widestEntry), group.id);
    }
    setCurrentIndex(m_selectedGroupId.has_value() ? findData(*m_selectedGroupId) : -1);
  }
  // An item that were put into a group that is gone would not be seen again.
  if (wasShown && currentIndex() < 0) {
    m_selectedGroupId.reset();
    Q_EMIT selectedGroupIdChanged();
  }
}

void GroupPicker::readIndex(int index) {
  if (index >= 0) {
    m_selectedGroupId = itemData(index).toUuid();
    Q_EMIT selectedGroupIdChanged();
  }
}

}  // namespace lanternix
