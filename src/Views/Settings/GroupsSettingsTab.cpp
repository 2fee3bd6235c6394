#include "Views/Settings/GroupsSettingsTab.h"

namespace lanternix {

GroupsSettingsTab::GroupsSettingsTab(AppState & /*appState*/, QWidget *parent) : QWidget(parent) {}

}  // namespace lanternix
