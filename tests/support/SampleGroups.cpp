#include "support/SampleGroups.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QUuid>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

QString newId() {
  return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

}  // namespace

SampleGroups &SampleGroups::group(const QString &name, const GroupOptions &options) {
  m_groupId = newId();
  m_order = 0;
  m_groups.append(QJsonObject{{u"id"_s, m_groupId},
                              {u"name"_s, name},
                              {u"iconName"_s, options.iconName},
                              {u"colorName"_s, options.colorName},
                              {u"order"_s, m_groups.size()},
                              {u"isExpanded"_s, options.isExpanded}});
  return *this;
}

SampleGroups &SampleGroups::directory(const QString &name, const QString &path) {
  return item(name, path, u"directory"_s);
}

SampleGroups &SampleGroups::file(const QString &name, const QString &path) {
  return item(name, path, u"file"_s);
}

SampleGroups &SampleGroups::link(const QString &name, const QString &url) {
  return item(name, url, u"link"_s);
}

SampleGroups &SampleGroups::command(const QString &name, const QString &commandLine) {
  return item(name, commandLine, u"command"_s);
}

SampleGroups &SampleGroups::opened(double seconds) {
  QJsonObject last = m_items.takeAt(m_items.size() - 1).toObject();
  last.insert("lastAccessed"_L1, seconds);
  m_items.append(last);
  return *this;
}

QByteArray SampleGroups::json() const {
  return QJsonDocument(QJsonObject{{u"groups"_s, m_groups}, {u"items"_s, m_items}}).toJson();
}

SampleGroups &SampleGroups::item(const QString &name, const QString &path, const QString &type) {
  m_items.append(QJsonObject{{u"id"_s, newId()},
                             {u"name"_s, name},
                             {u"path"_s, path},
                             {u"type"_s, type},
                             {u"groupId"_s, m_groupId},
                             {u"dateAdded"_s, 0},
                             {u"order"_s, m_order++}});
  return *this;
}

}  // namespace lanternix
