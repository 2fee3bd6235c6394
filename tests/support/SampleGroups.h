#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QString>

namespace lanternix {

/// Builds a data document for a program to read, without any code of the program's own.
class SampleGroups {
 public:
  /// What an item or a group has beside its name; the defaults are the ordinary case.
  struct GroupOptions {
    QString iconName = QStringLiteral("folder.fill");
    QString colorName = QStringLiteral("blue");
    bool isExpanded = true;
  };

  /// Appends a group; the items added next belong to it.
  SampleGroups &group(const QString &name, const GroupOptions &options);
  SampleGroups &group(const QString &name) { return group(name, GroupOptions()); }

  SampleGroups &directory(const QString &name, const QString &path);
  SampleGroups &file(const QString &name, const QString &path);
  SampleGroups &link(const QString &name, const QString &url);
  SampleGroups &command(const QString &name, const QString &commandLine);
  /// Marks the item added last as opened at this many seconds since 2001.
  SampleGroups &opened(double seconds);

  QByteArray json() const;

 private:
  SampleGroups &item(const QString &name, const QString &path, const QString &type);

  QString m_groupId;
  qint64 m_order = 0;
  QJsonArray m_groups;
  QJsonArray m_items;
};

}  // namespace lanternix
