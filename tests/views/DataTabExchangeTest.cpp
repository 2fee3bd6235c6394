#include "views/DataSettingsTabTest.h"

#include <QtCore/QStandardPaths>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class DataTabExchangeTest : public DataSettingsTabTest {};

const QStringList exported{u"Export Successful"_s, u"[OK]"_s};
const QStringList imported{u"Import Successful"_s, u"Your data has been restored successfully."_s,
                           u"[OK]"_s};

}  // namespace

TEST_F(DataTabExchangeTest, Export_ProposesANameAndJsonFiles) {
  show();
  click(u"Export..."_s);
  ASSERT_EQ(fileChooser.requests.size(), 1);
  const FileChooser::Request &request = fileChooser.requests.first();
  EXPECT_EQ(request.kind, FileChooser::Kind::fileToReplace);
  EXPECT_EQ(QFileInfo(request.start).fileName(), u"Lanternix-Backup.json"_s);
  EXPECT_EQ(QFileInfo(request.start).path(),
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  EXPECT_EQ(request.nameFilters, QStringList{u"JSON Files (*.json)"_s});
}

TEST_F(DataTabExchangeTest, Export_WritesTheDocumentUnderTheVeryNameChosen) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {item(u"Thing"_s, group)});
  show();
  fileChooser.answer = home.root() + u"/my export"_s;
  click(u"Export..."_s);
  EXPECT_EQ(TemporaryHome::read(*fileChooser.answer), state->exportData());
  EXPECT_EQ(alert(), exported);
  answer(Qt::Key_Return);
}

TEST_F(DataTabExchangeTest, Export_ReplacesAFile) {
  show();
  fileChooser.answer = home.root() + u"/old.json"_s;
  TemporaryHome::write(*fileChooser.answer, QByteArray(5000, 'x'));
  click(u"Export..."_s);
  EXPECT_EQ(TemporaryHome::read(*fileChooser.answer), state->exportData());
}

TEST_F(DataTabExchangeTest, ACancelledExport_SaysNothing) {
  show();
  click(u"Export..."_s);
  EXPECT_EQ(alert(), QStringList());
}

TEST_F(DataTabExchangeTest, AnExportThatCannotBeWritten_SaysItIsDoneAllTheSame) {
  show();
  fileChooser.answer = home.root() + u"/missing/place.json"_s;
  click(u"Export..."_s);
  EXPECT_FALSE(QFile::exists(*fileChooser.answer));
  EXPECT_EQ(alert(), exported);
}

TEST_F(DataTabExchangeTest, AnExportOntoAFullDevice_HarmsNothing) {
  show();
  fileChooser.answer = u"/dev/full"_s;
  click(u"Export..."_s);
  EXPECT_EQ(alert(), exported);
}

TEST_F(DataTabExchangeTest, DataThatCannotBeEncoded_AreNotExported) {
  const PathGroup group = this->group(u"Work"_s);
  show();
  PathItem endless = item(u"Thing"_s, group);
  endless.dateAdded = Date{qInf()};
  state->addItem(endless);
  click(u"Export..."_s);
  EXPECT_TRUE(fileChooser.requests.isEmpty());
  EXPECT_EQ(alert(), QStringList());
}

TEST_F(DataTabExchangeTest, Import_AsksForOneJsonFile) {
  show();
  click(u"Import..."_s);
  ASSERT_EQ(fileChooser.requests.size(), 1);
  EXPECT_EQ(fileChooser.requests.first().kind, FileChooser::Kind::file);
  EXPECT_EQ(fileChooser.requests.first().nameFilters, QStringList{u"JSON Files (*.json)"_s});
  EXPECT_EQ(alert(), QStringList());
}

TEST_F(DataTabExchangeTest, AnExportImportedElsewhere_BringsEverythingBack) {
  const PathGroup group = foldedGroup(u"Work"_s, 4);
  const PathItem first = opened(item(u"First"_s, group, 2), 1234.5);
  PathItem stray = item(u"Stray"_s, group, 9);
  stray.groupId = QUuid::createUuid();
  state = makeState({group}, {first, stray});
  const QList<PathItem> items = state->items();
  show();
  fileChooser.answer = home.root() + u"/export.json"_s;
  click(u"Export..."_s);
  answer(Qt::Key_Return);
  state->deleteGroup(group.id);
  state->deleteItem(stray.id);
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(state->items(), items);
  EXPECT_EQ(savedData(), (DataDocument{{group}, items}));
  EXPECT_EQ(alert(), imported);
  answer(Qt::Key_Escape);
}

TEST_F(DataTabExchangeTest, AnImportWithoutItems_ChangesNothingYetSaysItIsDone) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {});
  show();
  fileChooser.answer = home.root() + u"/half.json"_s;
  TemporaryHome::write(*fileChooser.answer, R"({"groups": []})");
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(alert(), imported);
}

TEST_F(DataTabExchangeTest, AnImportThatCannotBeRead_SaysNothing) {
  show();
  for (const QString &path : {home.root() + u"/missing.json"_s, home.root()}) {
    fileChooser.answer = path;
    click(u"Import..."_s);
    EXPECT_EQ(alert(), QStringList());
  }
}

TEST_F(DataTabExchangeTest, AHundredMegabytesOfRubbish_ChangeNothing) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {});
  show();
  fileChooser.answer = home.root() + u"/rubbish.json"_s;
  TemporaryHome::write(*fileChooser.answer, QByteArray(100'000'000, '['));
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(alert(), imported);
}

TEST_F(DataTabExchangeTest, ALargeDocument_IsImportedToo) {
  const PathGroup group = this->group(u"Work"_s);
  show();
  fileChooser.answer = home.root() + u"/large.json"_s;
  constexpr qsizetype blanks = 150'000'000;
  TemporaryHome::write(*fileChooser.answer,
                       *DataDocument{{group}, {}}.encoded() + QByteArray(blanks, ' '));
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(alert(), imported);
}

TEST_F(DataTabExchangeTest, AFileTooLargeToBeRead_ChangesNothingAndSaysNothing) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {});
  show();
  fileChooser.answer = home.root() + u"/huge.json"_s;
  TemporaryHome::write(*fileChooser.answer, *DataDocument{}.encoded());
  ASSERT_TRUE(QFile::resize(*fileChooser.answer, PosixFileManager::largestFile + 1));
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(alert(), QStringList());
}

}  // namespace lanternix
