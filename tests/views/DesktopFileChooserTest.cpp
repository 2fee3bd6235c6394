#include "Views/Settings/DesktopFileChooser.h"
#include "views/FormTest.h"

#include <QtCore/QPointer>
#include <QtWidgets/QFileDialog>

#include <memory>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class DesktopFileChooserTest : public FormTest {
 protected:
  DesktopFileChooser chooser;
  QWidget window;
  QStringList chosen;

  QFileDialog *ask(const FileChooser::Request &request) {
    present(window);
    chooser.choose(request, &window, [this](const QString &path) { chosen.append(path); });
    return window.findChild<QFileDialog *>();
  }
};

}  // namespace

TEST_F(DesktopFileChooserTest, ForADirectory_FilesCannotBeChosenNorDirectoriesMade) {
  const QFileDialog *dialog = ask({.kind = FileChooser::Kind::directory,
                                   .title = u"Choose"_s,
                                   .nameFilters = {},
                                   .start = home.root()});
  EXPECT_EQ(dialog->fileMode(), QFileDialog::Directory);
  EXPECT_TRUE(dialog->testOption(QFileDialog::ShowDirsOnly));
  EXPECT_TRUE(dialog->testOption(QFileDialog::ReadOnly));
  EXPECT_EQ(dialog->directory().path(), home.root());
}

TEST_F(DesktopFileChooserTest, ForAFile_OneThatExistsIsAskedFor) {
  const QString file = home.root() + u"/notes.txt"_s;
  TemporaryHome::write(file, "x");
  QFileDialog *dialog = ask(
      {.kind = FileChooser::Kind::file, .title = u"Choose"_s, .nameFilters = {}, .start = file});
  EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
  EXPECT_EQ(dialog->directory().path(), home.root());
  dialog->selectFile(file);
  static_cast<QDialog *>(dialog)->accept();
  EXPECT_EQ(chosen, QStringList{file});
}

TEST_F(DesktopFileChooserTest, ToSave_TheNameIsProposedAndTakenAsItIs) {
  QFileDialog *dialog = ask({.kind = FileChooser::Kind::fileToReplace,
                             .title = u"Export"_s,
                             .nameFilters = {u"JSON Files (*.json)"_s},
                             .start = home.root() + u"/Lanternix-Backup.json"_s});
  EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
  EXPECT_EQ(dialog->nameFilters(), QStringList{u"JSON Files (*.json)"_s});
  EXPECT_EQ(dialog->selectedFiles(), QStringList{home.root() + u"/Lanternix-Backup.json"_s});
  EXPECT_EQ(dialog->defaultSuffix(), QString());
}

TEST_F(DesktopFileChooserTest, APathThatLeadsNowhere_StartsAtHome) {
  for (const QString &start : {u"/no/such/place"_s, u"relative"_s, QString()}) {
    QFileDialog *dialog = ask(
        {.kind = FileChooser::Kind::file, .title = u"Choose"_s, .nameFilters = {}, .start = start});
    EXPECT_EQ(dialog->directory().path(), QDir::homePath());
    delete dialog;
  }
}

TEST_F(DesktopFileChooserTest, AFileToBeWrittenNowhere_IsProposedAtHome) {
  const QFileDialog *dialog = ask({.kind = FileChooser::Kind::fileToReplace,
                                   .title = u"Export"_s,
                                   .nameFilters = {},
                                   .start = u"/no/such/place/Lanternix-Backup.json"_s});
  EXPECT_EQ(dialog->selectedFiles(), QStringList{QDir::homePath() + u"/Lanternix-Backup.json"_s});
}

TEST_F(DesktopFileChooserTest, AnOwnerThatEndsFirst_IsNotTold) {
  present(window);
  const QString file = home.root() + u"/notes.txt"_s;
  TemporaryHome::write(file, "x");
  auto owner = std::make_unique<QWidget>(&window);
  chooser.choose(
      {.kind = FileChooser::Kind::file, .title = u"Choose"_s, .nameFilters = {}, .start = file},
      owner.get(), [this](const QString &path) { chosen.append(path); });
  const QPointer<QFileDialog> dialog = window.findChild<QFileDialog *>();
  owner.reset();
  ASSERT_TRUE(dialog) << "over the window, which is still there";
  dialog->selectFile(file);
  static_cast<QDialog *>(dialog.data())->accept();
  EXPECT_EQ(chosen, QStringList());
}

TEST_F(DesktopFileChooserTest, Cancelling_ChoosesNothing) {
  QFileDialog *dialog =
      ask({.kind = FileChooser::Kind::file, .title = u"Choose"_s, .nameFilters = {}, .start = {}});
  dialog->reject();
  EXPECT_TRUE(chosen.isEmpty());
}

}  // namespace lanternix
