#include "gallery/PanelScene.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

/// Collects the groups and items of a scene.
class Collection {
 public:
  explicit Collection(QString home) : m_home(std::move(home)) {}

  Collection &group(const QString &name, const QString &icon, const QString &color,
                    bool isExpanded = true) {
    m_groups.append({QUuid::createUuid(), name, icon, color, m_groups.size(), isExpanded});
    return *this;
  }
  Collection &directory(const QString &name, const QString &path) {
    QDir().mkpath(m_home + path);
    return item(name, m_home + path, ItemType::directory);
  }
  Collection &file(const QString &name, const QString &path) {
    QDir().mkpath(QFileInfo(m_home + path).path());
    QFile file(m_home + path);
    if (!file.open(QIODevice::WriteOnly)) {
      qFatal("The gallery cannot write %s", qUtf8Printable(file.fileName()));
    }
    file.write("x");  // an empty file is of no type
    return item(name, file.fileName(), ItemType::file);
  }
  Collection &missingFile(const QString &name, const QString &path) {
    return item(name, m_home + path, ItemType::file);
  }
  Collection &link(const QString &name, const QString &url) {
    return item(name, url, ItemType::link);
  }
  Collection &command(const QString &name, const QString &line) {
    return item(name, line, ItemType::command);
  }
  /// The item added last was opened so many seconds after the beginning of 2001.
  Collection &opened(double seconds) {
    m_items.last().lastAccessed = Date{seconds};
    return *this;
  }

  PanelScene scene(const QString &query = {}, int steps = 0) const {
    return {m_groups, m_items, query, steps};
  }

 private:
  Collection &item(const QString &name, const QString &path, ItemType type) {
    m_items.append(
        {QUuid::createUuid(), name, path, type, m_groups.last().id, Date(), {}, m_items.size()});
    return *this;
  }

  QString m_home;
  QList<PathGroup> m_groups;
  QList<PathItem> m_items;
};

Collection everyday(const QString &home) {
  Collection collection(home);
  collection.group(u"Work"_s, u"briefcase.fill"_s, u"blue"_s)
      .directory(u"Projects"_s, u"/Projects"_s)
      .file(u"Budget 2026"_s, u"/Documents/Budget 2026.ods"_s)
      .file(u"Contract"_s, u"/Documents/Contract.pdf"_s)
      .opened(3)
      .link(u"Issue tracker"_s, u"https://tracker.example.org/board/17"_s)
      .opened(4)
      .command(u"Deploy to staging"_s, u"cd "_s + home + u"/Projects/lantern && ./deploy staging"_s)
      .opened(2);
  collection.group(u"Home"_s, u"house"_s, u"orange"_s)
      .directory(u"Pictures"_s, u"/Pictures"_s)
      .file(u"Harbour at night"_s, u"/Pictures/Harbour.jpg"_s)
      .missingFile(u"Old notes"_s, u"/Documents/notes-2019.txt"_s)
      .link(u"Weather"_s, u"https://weather.example.org"_s);
  collection.group(u"Servers"_s, u"terminal"_s, u"green"_s, false);
  for (const QString &host : {u"mail"_s, u"web"_s, u"build"_s}) {
    collection.command(u"Log in to "_s + host, u"ssh "_s + host + u".example.org"_s);
  }
  collection.group(u"Someday"_s, u"star"_s, u"purple"_s);
  return collection;
}

/// Names of people who write at length, and from right to left.
PanelScene longNames(const QString &home) {
  Collection collection(home);
  collection.group(u"Everything that has to do with the move to the new house by the harbour"_s,
                   u"house"_s, u"orange"_s);
  collection
      .directory(u"Plans, letters, permits and all the pictures of the garden before the work"_s,
                 u"/Documents/New house/Plans and permits/2026/Second version/Final"_s)
      .missingFile(u"The list of what is still missing, kept by both of us since last summer"_s,
                   u"/Documents/New house/Lists/What is still missing, second version.txt"_s)
      .link(u"رسائل العائلة"_s, u"https://mail.example.org/family"_s)
      .command(u"גיבוי התמונות"_s, u"rsync -a "_s + home + u"/Pictures backup.example.org:"_s);
  collection.group(u"עבודה"_s, u"briefcase.fill"_s, u"blue"_s)
      .link(u"לוח משימות"_s, u"https://tracker.example.org/board/17"_s);
  return collection.scene({}, 2);
}

PanelScene manyItems(const QString &home) {
  constexpr int groupCount = 100;
  constexpr int itemsPerGroup = 100;
  const QStringList colors{u"red"_s,    u"orange"_s, u"yellow"_s, u"green"_s, u"blue"_s,
                           u"purple"_s, u"pink"_s,   u"indigo"_s, u"teal"_s};
  Collection collection(home);
  for (int group = 0; group < groupCount; ++group) {
    collection.group(u"Group %1"_s.arg(group), u"folder.fill"_s, colors[group % colors.size()]);
    for (int item = 0; item < itemsPerGroup; ++item) {
      collection.link(u"Item %1 of group %2"_s.arg(item).arg(group),
                      u"https://example.org/%1/%2"_s.arg(group).arg(item));
    }
  }
  return collection.scene({}, 3);
}

}  // namespace

QStringList PanelScene::names() {
  return {u"recent"_s,     u"search"_s, u"scope"_s,     u"no-groups"_s,
          u"no-results"_s, u"many"_s,   u"long-names"_s};
}

PanelScene PanelScene::named(const QString &name, const QString &home) {
  if (name == u"no-groups"_s) {
    return {};
  }
  if (name == u"many"_s) {
    return manyItems(home);
  }
  if (name == u"long-names"_s) {
    return longNames(home);
  }
  const Collection collection = everyday(home);
  if (name == u"search"_s) {
    return collection.scene(u"pro"_s);
  }
  if (name == u"scope"_s) {
    return collection.scene(u"work: de"_s);
  }
  return name == u"no-results"_s ? collection.scene(u"zebra"_s) : collection.scene({}, 2);
}

}  // namespace lanternix
