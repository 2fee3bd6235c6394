#include "Views/Settings/DataSettingsTab.h"

#include "App/AppState.h"
#include "Platform/FileManager.h"
#include "Utilities/DateText.h"
#include "Views/Controls/Alert.h"
#include "Views/Controls/FormSection.h"
#include "Views/Controls/Stepper.h"
#include "Views/Settings/BackupRowView.h"
#include "Views/Settings/FileChooser.h"
#include "Views/Style/TextLabel.h"

#include <QtCore/QStandardPaths>
#include <QtWidgets/QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int fewestBackups = 1;
constexpr int mostBackups = 365;

QStringList jsonFilters() {
  return {u"JSON Files (*.json)"_s};
}

QString documentsDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// A row of \p title and the figure that is returned.
TextLabel *addFigure(FormSection &section, const QString &title) {
  auto *figure = new TextLabel({}, TextStyle::body, QFont::Normal, FillStyle::secondary, &section);
  section.addRow(title, {}, figure);
  return figure;
}

qsizetype count(const QList<PathItem> &items, ItemType type) {
  return std::ranges::count(items, type, &PathItem::type);
}

}  // namespace

DataSettingsTab::DataSettingsTab(AppState &appState, FileChooser &fileChooser, QWidget *parent)
    : FormView(parent), m_appState(appState), m_fileChooser(fileChooser) {
  addExchangeSection();
  addBackupSection();
  m_savedBackups = &addSection(u"Saved Backups (0)"_s);
  addStatisticsSection();
}

void DataSettingsTab::addExchangeSection() {
  FormSection &section = addSection(u"Export / Import"_s);
  auto *exportButton = new QPushButton(u"Export..."_s, &section);
  connect(exportButton, &QPushButton::clicked, this, &DataSettingsTab::exportData);
  section.addRow(u"Export Data"_s, u"Save your groups and items as a JSON backup file"_s,
                 exportButton);
  auto *importButton = new QPushButton(u"Import..."_s, &section);
  connect(importButton, &QPushButton::clicked, this, &DataSettingsTab::importData);
  section.addRow(u"Import Data"_s, u"Restore groups and items from a JSON backup file"_s,
                 importButton);
}

void DataSettingsTab::addBackupSection() {
  FormSection &section = addSection(u"Automatic Backups"_s);
  m_retention = new Stepper(u"Backup Retention"_s, u"day"_s, fewestBackups, mostBackups, &section);
  const auto readRetention = [this] {
    const QSignalBlocker blocker(m_retention);
    m_retention->setValue(static_cast<int>(
        std::clamp<qint64>(m_appState.backupRetentionDays(), fewestBackups, mostBackups)));
  };
  readRetention();
  connect(&m_appState, &AppState::backupRetentionDaysChanged, this, readRetention);
  connect(m_retention, &QSpinBox::valueChanged, this, &DataSettingsTab::setRetention);
  section.addRow(u"Backup Retention"_s, u"Number of daily backups to keep"_s, m_retention);
  auto *createButton = new QPushButton(u"Create Backup"_s, &section);
  connect(createButton, &QPushButton::clicked, this, &DataSettingsTab::createBackup);
  section.addRow(u"Create Backup Now"_s, u"Manually save a snapshot of current data"_s,
                 createButton);
}

void DataSettingsTab::addStatisticsSection() {
  FormSection &section = addSection(u"Statistics"_s);
  m_groups = addFigure(section, u"Groups"_s);
  m_items = addFigure(section, u"Total Items"_s);
  m_directories = addFigure(section, u"Directories"_s);
  m_files = addFigure(section, u"Files"_s);
  m_links = addFigure(section, u"Links"_s);
  connect(&m_appState, &AppState::groupsChanged, this, &DataSettingsTab::updateStatistics);
  connect(&m_appState, &AppState::itemsChanged, this, &DataSettingsTab::updateStatistics);
  updateStatistics();
}

void DataSettingsTab::showEvent(QShowEvent *event) {
  FormView::showEvent(event);
  loadBackups();
}

// --- Export and import --------------------------------------------------------------------------

void DataSettingsTab::exportData() {
  const std::optional<QByteArray> bytes = m_appState.exportData();
  if (!bytes) {
    return;
  }
  const FileChooser::Request request{.kind = FileChooser::Kind::fileToReplace,
                                     .title = u"Export Data"_s,
                                     .nameFilters = jsonFilters(),
                                     .start = documentsDirectory() + u"/Lanternix-Backup.json"_s};
  m_fileChooser.choose(request, this, [this, bytes = *bytes](const QString &path) {
    m_appState.fileManager().write(bytes, path);
    Alert{.title = u"Export Successful"_s, .message = {}, .destructiveAction = {}}.show(this);
  });
}

void DataSettingsTab::importData() {
  const FileChooser::Request request{.kind = FileChooser::Kind::file,
                                     .title = u"Import Data"_s,
                                     .nameFilters = jsonFilters(),
                                     .start = documentsDirectory()};
  m_fileChooser.choose(request, this, [this](const QString &path) { importFile(path); });
}

void DataSettingsTab::importFile(const QString &path) {
  const std::optional<QByteArray> bytes = m_appState.fileManager().contents(path);
  if (!bytes) {
    return;
  }
  m_appState.importData(*bytes);
  Alert{.title = u"Import Successful"_s,
        .message = u"Your data has been restored successfully."_s,
        .destructiveAction = {}}
      .show(this);
}

// --- Backups ------------------------------------------------------------------------------------

void DataSettingsTab::setRetention(int count) {
  m_appState.setBackupRetentionDays(count);
  m_appState.backupService().pruneBackups(count);
  loadBackups();
}

void DataSettingsTab::createBackup() {
  m_appState.backupService().createBackup({m_appState.groups(), m_appState.items()},
                                          m_appState.backupRetentionDays());
  loadBackups();
  Alert{.title = u"Backup Created"_s,
        .message = u"A backup snapshot has been saved."_s,
        .destructiveAction = {}}
      .show(this);
}

void DataSettingsTab::loadBackups() {
  const QList<BackupInfo> backups = m_appState.backupService().listBackups();
  m_savedBackups->setTitle(u"Saved Backups (%1)"_s.arg(backups.size()));
  m_savedBackups->hide();  // or each row would lay out all those before it anew
  m_savedBackups->clear();
  for (const BackupInfo &backup : backups) {
    auto *row =
        new BackupRowView(backup, m_appState.fileManager().fileSize(backup.url), m_savedBackups);
    connect(row, &BackupRowView::restoreRequested, this,
            [this, backup] { confirmRestore(backup); });
    m_savedBackups->addRow(row);
  }
  m_savedBackups->show();
}

void DataSettingsTab::confirmRestore(const BackupInfo &backup) {
  Alert{.title = u"Restore Backup?"_s,
        .message =
            u"This will replace your current data with the backup from %1. This cannot be "
            "undone."_s.arg(DateText::mediumDateShortTime(backup.date)),
        .destructiveAction = u"Restore"_s}
      .show(this, [this, backup] { m_appState.restoreFromBackup(backup); });
}

// --- Statistics ---------------------------------------------------------------------------------

void DataSettingsTab::updateStatistics() {
  const QList<PathItem> &items = m_appState.items();
  const auto show = [](TextLabel *label, qsizetype number) {
    label->setText(QString::number(number));
  };
  show(m_groups, m_appState.groups().size());
  show(m_items, items.size());
  show(m_directories, count(items, ItemType::directory));
  show(m_files, count(items, ItemType::file));
  show(m_links, count(items, ItemType::link));
}

}  // namespace lanternix
