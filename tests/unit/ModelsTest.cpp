#include "Models/Blanks.h"
#include "Models/LinkText.h"
#include "Models/PanelItemSize.h"
#include "Models/PathGroup.h"
#include "Models/PathItem.h"

#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

PathItem itemOf(ItemType type, const QString &path) {
  PathItem item;
  item.type = type;
  item.path = path;
  return item;
}

PathGroup groupColored(const QString &colorName) {
  PathGroup group;
  group.colorName = colorName;
  return group;
}

PathItem fullItem() {
  return {QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11), u"name"_s, u"path"_s, ItemType::file,
          QUuid(2, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11), Date{1},   Date{2},   3};
}

TEST(ItemType, AllCases_AreListedInTheOrderOfPickers) {
  QStringList names;
  for (const ItemType type : allItemTypes) {
    names.append(rawValue(type) + u'|' + displayName(type) + u'|' + systemImage(type));
  }
  EXPECT_EQ(names, QStringList({u"directory|Directory|folder.fill"_s, u"file|File|doc.fill"_s,
                                u"link|Link|globe"_s, u"command|Command|terminal"_s}));
}

TEST(ItemType, RawValue_ReadsBackAsTheSameType) {
  for (const ItemType type : allItemTypes) {
    EXPECT_EQ(itemTypeFromRawValue(rawValue(type)), type);
  }
}

TEST(ItemType, RawValue_OfOtherTextOrCase_IsNone) {
  for (const QString &text : {u"url"_s, u"Directory"_s, u""_s, u" file"_s, u"files"_s}) {
    EXPECT_EQ(itemTypeFromRawValue(text), std::nullopt) << qPrintable(text);
  }
}

TEST(PanelItemSize, RawValue_ReadsBackAsTheSameSize) {
  for (const PanelItemSize size : allPanelItemSizes) {
    EXPECT_EQ(panelItemSizeFromRawValue(rawValue(size)), size);
  }
}

TEST(PanelItemSize, RawValues_AreSmallMediumLarge) {
  EXPECT_EQ(rawValue(PanelItemSize::small), u"small"_s);
  EXPECT_EQ(rawValue(PanelItemSize::medium), u"medium"_s);
  EXPECT_EQ(rawValue(PanelItemSize::large), u"large"_s);
}

TEST(PanelItemSize, RawValue_OfAnotherCase_IsNone) {
  EXPECT_EQ(panelItemSizeFromRawValue(u"Large"), std::nullopt);
}

TEST(PathGroup, Color_OfEachName_IsThatColor) {
  EXPECT_EQ(groupColored(u"red"_s).color(), SystemColor::red);
  EXPECT_EQ(groupColored(u"orange"_s).color(), SystemColor::orange);
  EXPECT_EQ(groupColored(u"yellow"_s).color(), SystemColor::yellow);
  EXPECT_EQ(groupColored(u"green"_s).color(), SystemColor::green);
  EXPECT_EQ(groupColored(u"blue"_s).color(), SystemColor::blue);
  EXPECT_EQ(groupColored(u"purple"_s).color(), SystemColor::purple);
  EXPECT_EQ(groupColored(u"pink"_s).color(), SystemColor::pink);
  EXPECT_EQ(groupColored(u"indigo"_s).color(), SystemColor::indigo);
  EXPECT_EQ(groupColored(u"teal"_s).color(), SystemColor::teal);
}

TEST(PathGroup, Color_OfAnyOtherText_IsBlue) {
  for (const QString &name : {u"Red"_s, u""_s, u"teal "_s, u"magenta"_s}) {
    EXPECT_EQ(groupColored(name).color(), SystemColor::blue) << qPrintable(name);
  }
}

TEST(PathGroup, Equality_ComparesEveryField) {
  const PathGroup group{QUuid(), u"n"_s, u"i"_s, u"c"_s, 1, true};
  QList<PathGroup> others(6, group);
  others[0].id = QUuid::createUuid();
  others[1].name = u"N"_s;
  others[2].iconName = u"I"_s;
  others[3].colorName = u"C"_s;
  others[4].order = 2;
  others[5].isExpanded = false;
  for (const PathGroup &other : others) {
    EXPECT_NE(group, other);
  }
  EXPECT_EQ(QSet<PathGroup>(others.begin(), others.end()).size(), others.size());
}

TEST(PathItem, Equality_ComparesEveryField) {
  const PathItem item = fullItem();
  QList<PathItem> others(9, item);
  others[0].id = QUuid();
  others[1].name = u"N"_s;
  others[2].path = u"P"_s;
  others[3].type = ItemType::link;
  others[4].groupId = QUuid();
  others[5].dateAdded = Date{9};
  others[6].lastAccessed = Date{9};
  others[7].lastAccessed.reset();
  others[8].order = 9;
  for (const PathItem &other : others) {
    EXPECT_NE(item, other);
  }
  EXPECT_EQ(QSet<PathItem>(others.begin(), others.end()).size(), others.size());
}

TEST(PathItem, Hash_OfAbsentAndZeroLastAccess_Differs) {
  PathItem never = fullItem();
  never.lastAccessed.reset();
  PathItem atReferenceDate = fullItem();
  atReferenceDate.lastAccessed = Date{0};
  EXPECT_NE(qHash(never, 7), qHash(atReferenceDate, 7));
}

TEST(PathItem, Hash_OfEqualItems_IsEqual) {
  EXPECT_EQ(qHash(fullItem(), 7), qHash(fullItem(), 7));
}

TEST(PathItemValidity, DirectoryAndFile_AcceptEitherKindOfEntry) {
  const QTemporaryDir directory;
  QFile file(directory.filePath(u"file"_s));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  for (const ItemType type : {ItemType::directory, ItemType::file}) {
    EXPECT_TRUE(itemOf(type, directory.path()).isValid());
    EXPECT_TRUE(itemOf(type, file.fileName()).isValid());
  }
}

TEST(PathItemValidity, PathOutsideAscii_IsFound) {
  const QTemporaryDir directory;
  QFile file(directory.filePath(u"Übersicht 日記"_s));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_TRUE(itemOf(ItemType::file, file.fileName()).isValid());
}

TEST(PathItemValidity, MissingFileOrEmptyPath_IsInvalid) {
  EXPECT_FALSE(itemOf(ItemType::file, u"/nonexistent/file"_s).isValid());
  EXPECT_FALSE(itemOf(ItemType::directory, u""_s).isValid());
}

TEST(PathItemValidity, LinkToNothing_IsInvalid) {
  const QTemporaryDir directory;
  const QString link = directory.filePath(u"link"_s);
  ASSERT_TRUE(QFile::link(u"/nonexistent"_s, link));
  EXPECT_FALSE(itemOf(ItemType::file, link).isValid());
}

TEST(PathItemValidity, Tilde_IsNotExpanded) {
  EXPECT_FALSE(itemOf(ItemType::directory, u"~"_s).isValid());
  EXPECT_FALSE(itemOf(ItemType::directory, u"~/"_s).isValid());
}

TEST(PathItemValidity, PathOfACompiledInResource_IsInvalid) {
  const QString path = u":/compiled-in/main.cpp"_s;
  ASSERT_TRUE(QFile::exists(path)) << "Qt's file classes find it";
  EXPECT_FALSE(itemOf(ItemType::file, path).isValid());
}

TEST(PathItemValidity, PathWithNul_IsInvalid) {
  EXPECT_FALSE(itemOf(ItemType::directory, u"/\0/nonexistent"_s).isValid());
}

TEST(PathItemValidity, PathThroughAFileOrTooLong_IsInvalid) {
  EXPECT_FALSE(itemOf(ItemType::file, u"/etc/passwd/x"_s).isValid());
  EXPECT_FALSE(itemOf(ItemType::file, u'/' + QString(100'000, u'a')).isValid());
}

TEST(PathItemValidity, Command_IsValidUnlessBlank) {
  EXPECT_TRUE(itemOf(ItemType::command, u"ls"_s).isValid());
  EXPECT_TRUE(itemOf(ItemType::command, u" ls "_s).isValid());
  EXPECT_FALSE(itemOf(ItemType::command, u""_s).isValid());
  EXPECT_FALSE(itemOf(ItemType::command, u"   "_s).isValid());
  EXPECT_FALSE(itemOf(ItemType::command, u" \t\u00a0\u3000"_s).isValid());
}

TEST(PathItemValidity, CommandOfALineBreak_IsValid) {
  EXPECT_TRUE(itemOf(ItemType::command, u" \n "_s).isValid());
}

TEST(PathItemValidity, Link_IsValidWhenItParses) {
  EXPECT_TRUE(itemOf(ItemType::link, u"https://example.org/a b?q=ä"_s).isValid());
  EXPECT_TRUE(itemOf(ItemType::link, u"not a url"_s).isValid());
  EXPECT_FALSE(itemOf(ItemType::link, u""_s).isValid());
  EXPECT_FALSE(itemOf(ItemType::link, u"http://a b/"_s).isValid());
}

TEST(LinkText, AbsoluteAndRelativeUrls_Parse) {
  for (const QString &text :
       {u"https://example.org"_s, u"mailto:a@example.org"_s, u"example.org"_s, u"/path/only"_s,
        u"https://bücher.example"_s, u"http://[::1]:8080/"_s, u"file:///tmp/a%20b"_s}) {
    EXPECT_TRUE(parsesAsUrl(text)) << qPrintable(text);
  }
}

TEST(LinkText, BrokenHostsAndPorts_DoNotParse) {
  for (const QString &text : {u""_s, u"http://exa mple.org"_s, u"http://host:port/"_s,
                              u"http://host:99999/"_s, u"http://[::1"_s}) {
    EXPECT_FALSE(parsesAsUrl(text)) << qPrintable(text);
  }
}

TEST(Blanks, TabsAndSpaceSeparators_AreTrimmedAtBothEnds) {
  EXPECT_EQ(trimmedBlanks(u"\t\u00a0\u2003 a b \u3000\t"), u"a b");
}

TEST(Blanks, LineBreaksAndZeroWidthSpaces_Stay) {
  EXPECT_EQ(trimmedBlanks(u" \na\r\n "), u"\na\r\n");
  EXPECT_EQ(trimmedBlanks(u"\u200b"), u"\u200b");
}

TEST(Blanks, NothingButBlanks_LeavesNothing) {
  EXPECT_TRUE(trimmedBlanks(u"").isEmpty());
  EXPECT_TRUE(trimmedBlanks(u" \t ").isEmpty());
}

}  // namespace
}  // namespace lanternix
