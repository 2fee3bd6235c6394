#pragma once

#include "desktop/SettingsWindowTest.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace lanternix {

/// A test of something that a person does in the settings, from the press to what is on the disk.
class SettingsFlowTest : public SettingsWindowTest {
 protected:
  using SettingsWindowTest::openSettings;
  /// Starts the program over \p groups and opens the settings.
  void openSettings(const SampleGroups &groups) {
    start(groups);
    pressSettingsKeys();
    requireSettings();
  }

  /// The editor, question or message with this title, once it has the keyboard.
  AccessibilityBus::Node dialog(const QString &title) {
    const auto found =
        reader.find(reader.program(QStringLiteral("Lanternix")), QStringLiteral("dialog"), title);
    require(title + QStringLiteral(" to have the keyboard"), [&] { return isActive(found); });
    return found;
  }
  /// Returns once \p dialog is gone and the settings have the keyboard again.
  void requireClosed(const AccessibilityBus::Node &dialog) {
    require(QStringLiteral("the dialog to close"), [&] { return !reader.isKnown(dialog); });
    requireSettings();
  }
  bool isActive(const AccessibilityBus::Node &window) const {
    return reader.has(window, AccessibilityBus::State::active);
  }
  /// Presses Tab until \p control has the keyboard, which also scrolls it into sight.
  void tabTo(const AccessibilityBus::Node &control) {
    constexpr int mostControls = 60;
    const auto isFocused = [&] { return reader.has(control, AccessibilityBus::State::focused); };
    for (int count = 0; count < mostControls && !isFocused(); ++count) {
      input().tap(XK_Tab);
      program().settle();
    }
    require(QStringLiteral("the control to have the keyboard"), isFocused);
  }

  AccessibilityBus::Node button(const QString &name) {
    return control(QStringLiteral("push button"), name);
  }
  /// A row of one of the Groups tab's two lists.
  AccessibilityBus::Node row(const QString &name) {
    return control(QStringLiteral("list item"), name);
  }
  /// Presses a row, which is selected then.
  void select(const QString &name) {
    const auto node = row(name);
    click(node);
    require(name + QStringLiteral(" to be selected"),
            [&] { return reader.has(node, AccessibilityBus::State::selected); });
  }

  /// What the data file holds: the names of the groups in their order.
  QStringList storedGroups() {
    return namesByOrder(session().home().data()[QLatin1StringView("groups")], {});
  }
  /// The same of a group's items.
  QStringList storedItems(const QString &group) {
    const QJsonObject data = session().home().data();
    const QJsonArray groups = data[QLatin1StringView("groups")].toArray();
    for (const QJsonValue &candidate : groups) {
      if (candidate[QLatin1StringView("name")].toString() == group) {
        return namesByOrder(data[QLatin1StringView("items")],
                            candidate[QLatin1StringView("id")].toString());
      }
    }
    return {};
  }
  bool becomesStored(const QStringList &groups) {
    return waitUntil([&] { return storedGroups() == groups; });
  }
  bool becomesStored(const QString &group, const QStringList &items) {
    return waitUntil([&] { return storedItems(group) == items; });
  }

 private:
  static QStringList namesByOrder(const QJsonValue &records, const QString &groupId) {
    QMap<int, QString> names;
    const QJsonArray array = records.toArray();
    for (const QJsonValue &record : array) {
      if (groupId.isEmpty() || record[QLatin1StringView("groupId")].toString() == groupId) {
        names.insert(record[QLatin1StringView("order")].toInt(),
                     record[QLatin1StringView("name")].toString());
      }
    }
    return names.values();
  }
};

}  // namespace lanternix
