#pragma once

#include "Views/Controls/Stepper.h"
#include "Views/Settings/DataSettingsTab.h"
#include "views/FormTest.h"

#include <QtCore/QPointer>
#include <QtWidgets/QPushButton>

#include <memory>

namespace lanternix {

/// A test of the settings' tab for data.
class DataSettingsTabTest : public FormTest {
 protected:
  std::unique_ptr<AppState> state = makeState();
  std::unique_ptr<DataSettingsTab> tab;

  /// Shows the tab over the store as it is.
  void show() {
    tab = std::make_unique<DataSettingsTab>(*state, fileChooser);
    tab->resize(600, 480);
    present(*tab);
  }

  void writeBackup(const QString &name, const QByteArray &bytes) {
    ASSERT_TRUE(TemporaryHome::write(home.backupDirectory() + u'/' + name, bytes));
  }
  void writeBackups(int count) {
    for (int i = 0; i < count; ++i) {
      writeBackup(QStringLiteral("backup-%1.json").arg(i, 4, 10, QLatin1Char('0')),
                  *DataDocument{}.encoded());
    }
  }
  QStringList backupFiles() const { return QDir(home.backupDirectory()).entryList(QDir::Files); }

  Stepper *stepper() const { return named<Stepper>(*tab, QStringLiteral("Backup Retention")); }
  void click(const QString &text) const { button(*tab, text)->click(); }

  /// What the alert over the tab says, in order, and what can be answered; empty without one.
  QStringList alert() const {
    const QDialog *dialog = dialogOver(*tab);
    if (dialog == nullptr) {
      return {};
    }
    QStringList result = texts(*dialog);
    for (const QPushButton *answer : dialog->findChildren<QPushButton *>()) {
      result.append(u'[' + answer->text() + u']');
    }
    return result;
  }

  void answer(Qt::Key key) {
    QPointer<QDialog> dialog = dialogOver(*tab);
    activate(*dialog);
    press(*dialog, key);
    ASSERT_TRUE(waitUntil([&dialog] { return dialog.isNull(); }));
  }

  /// The value beside the title of a row.
  QString figure(const QString &title) const {
    const QStringList all = texts(*tab);
    return all.value(all.lastIndexOf(title) + 1);
  }

  PathItem typed(ItemType type, const PathGroup &group) {
    PathItem result = item(QStringLiteral("Item"), group);
    result.type = type;
    return result;
  }
};

}  // namespace lanternix
