#include "SampleData.h"

#include <QtCore/QStringList>

#include <random>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

/// Draws words, dates and identifiers. Only the generator itself is used, because the distributions
/// of the standard library differ from one library to the next.
class Dice {
 public:
  qsizetype below(qsizetype limit) {
    return static_cast<qsizetype>(m_generator() % static_cast<quint64>(limit));
  }

  const QString &pick(const QStringList &words) { return words[below(words.size())]; }

  QUuid uuid() {
    const quint64 head = m_generator();
    const quint64 tail = m_generator();
    QUuid uuid;
    uuid.data1 = static_cast<uint>(head >> 32);
    uuid.data2 = static_cast<ushort>(head >> 16);
    uuid.data3 = static_cast<ushort>((head & 0x0fff) | 0x4000);
    for (int i = 0; i < 8; ++i) {
      uuid.data4[i] = static_cast<uchar>(tail >> (8 * i));
    }
    uuid.data4[0] = static_cast<uchar>((uuid.data4[0] & 0x3f) | 0x80);
    return uuid;
  }

  /// A moment of the years 2023 to 2026, to the microsecond.
  Date date() {
    constexpr double start = 694'224'000;
    constexpr qsizetype span = 94'608'000;
    return {start + static_cast<double>(below(span)) + static_cast<double>(below(1'000'000)) / 1e6};
  }

 private:
  std::mt19937_64 m_generator{20260307};
};

const QStringList &subjects() {
  static const QStringList words{
      u"Reports"_s,   u"Invoices"_s,    u"Photos"_s,   u"Recipes"_s,  u"Thesis"_s,   u"Backups"_s,
      u"Contracts"_s, u"Übersichten"_s, u"Kernel"_s,   u"Scripts"_s,  u"Music"_s,    u"Résumés"_s,
      u"Drawings"_s,  u"Travel"_s,      u"Budget"_s,   u"Lectures"_s, u"日記"_s,     u"Website"_s,
      u"Archive"_s,   u"Notes"_s,       u"Meetings"_s, u"Projects"_s, u"Datasets"_s, u"Releases"_s};
  return words;
}

const QStringList &qualifiers() {
  static const QStringList words{u"Annual"_s, u"Old"_s,    u"Shared"_s, u"Draft"_s,   u"Final"_s,
                                 u"Client"_s, u"Home"_s,   u"Work"_s,   u"Private"_s, u"Public"_s,
                                 u"Team"_s,   u"Summer"_s, u"Winter"_s, u"Spring"_s,  u"Autumn"_s};
  return words;
}

QString pathFor(ItemType type, const QString &name, Dice &dice) {
  QString slug = name.toLower();
  slug.replace(u' ', u'-');
  const QString folder = u"/home/maria/"_s + dice.pick(qualifiers()) + u'/' + dice.pick(subjects());
  switch (type) {
    case ItemType::directory:
      return folder + u'/' + slug;
    case ItemType::file:
      return folder + u'/' + slug + u".pdf"_s;
    case ItemType::link:
      return u"https://intranet.example.org/"_s + slug + u"?view=list&page="_s +
             QString::number(dice.below(100));
    case ItemType::command:
      return u"cd \"$HOME/src/"_s + slug + u"\" && make -j4 install"_s;
  }
  Q_UNREACHABLE();
}

PathGroup sampleGroup(qsizetype index, Dice &dice) {
  static const QStringList icons{u"folder.fill"_s, u"star.fill"_s, u"globe"_s, u"terminal"_s};
  static const QStringList colors{u"red"_s, u"orange"_s, u"green"_s, u"blue"_s, u"teal"_s};
  PathGroup group;
  group.id = dice.uuid();
  group.name = dice.pick(qualifiers()) + u' ' + dice.pick(subjects());
  group.iconName = dice.pick(icons);
  group.colorName = dice.pick(colors);
  group.order = index;
  group.isExpanded = dice.below(4) != 0;
  return group;
}

PathItem sampleItem(qsizetype index, const QList<PathGroup> &groups, Dice &dice) {
  PathItem item;
  item.id = dice.uuid();
  item.name =
      dice.pick(qualifiers()) + u' ' + dice.pick(subjects()) + u' ' + QString::number(index);
  item.type = allItemTypes[static_cast<std::size_t>(dice.below(allItemTypes.size()))];
  item.path = pathFor(item.type, item.name, dice);
  item.groupId = groups[index % groups.size()].id;
  item.dateAdded = dice.date();
  if (dice.below(3) != 0) {
    item.lastAccessed = dice.date();
  }
  item.order = index / groups.size();
  return item;
}

}  // namespace

DataDocument sampleData(qsizetype itemCount, qsizetype groupCount) {
  Dice dice;
  DataDocument document;
  document.groups.reserve(groupCount);
  for (qsizetype i = 0; i < groupCount; ++i) {
    document.groups.append(sampleGroup(i, dice));
  }
  document.items.reserve(itemCount);
  for (qsizetype i = 0; i < itemCount; ++i) {
    document.items.append(sampleItem(i, document.groups, dice));
  }
  return document;
}

}  // namespace lanternix
