#include "Views/Settings/DataSettingsTab.h"

namespace lanternix {

DataSettingsTab::DataSettingsTab(AppState & /*appState*/, QWidget *parent) : QWidget(parent) {}

}  // namespace lanternix
