#pragma once

#include "Services/BackupInfo.h"
#include "Views/Controls/FormView.h"

namespace lanternix {

class AppState;
class FileChooser;
class Stepper;
class TextLabel;

/// The tab of the settings for what is kept: export and import, backups, and how much there is.
///
/// Success is told whenever the user has carried an action through, also when a file could not be
/// written or held nothing to import; what failed is in the log.
class DataSettingsTab : public FormView {
  Q_OBJECT

 public:
  /// \p fileChooser answers for the files of export and import.
  DataSettingsTab(AppState &appState, FileChooser &fileChooser, QWidget *parent = nullptr);

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  void addExchangeSection();
  void addBackupSection();
  void addStatisticsSection();
  void exportData();
  void importData();
  void importFile(const QString &path);
  void setRetention(int count);
  void createBackup();
  void loadBackups();
  void confirmRestore(const BackupInfo &backup);
  void updateStatistics();

  AppState &m_appState;
  FileChooser &m_fileChooser;
  Stepper *m_retention = nullptr;
  FormSection *m_savedBackups = nullptr;
  TextLabel *m_groups = nullptr;
  TextLabel *m_items = nullptr;
  TextLabel *m_directories = nullptr;
  TextLabel *m_files = nullptr;
  TextLabel *m_links = nullptr;
};

}  // namespace lanternix
