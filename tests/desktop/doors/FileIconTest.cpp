#include "Platform/Linux/GioWorkspace.h"
#include "support/TemporaryHome.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::Each;
using testing::IsEmpty;
using testing::Not;

class FileIconTest : public testing::Test {
 protected:
  QString madeFile(const QString &name) const {
    const QString path = directory.filePath(name);
    TemporaryHome::write(path, "text");
    return path;
  }

  QTemporaryDir directory;
  GioWorkspace workspace;
};

TEST_F(FileIconTest, AFile_HasTheIconOfItsType) {
  EXPECT_THAT(workspace.iconNamesForFile(madeFile(u"report.pdf"_s)),
              Contains(u"application-pdf"_s));
  EXPECT_THAT(workspace.iconNamesForFile(madeFile(u"boat.jpg"_s)), Contains(u"image-x-generic"_s));
}

TEST_F(FileIconTest, AMissingFile_HasNoIconOfItsOwn) {
  EXPECT_THAT(workspace.iconNamesForFile(directory.filePath(u"gone.pdf"_s)), IsEmpty());
  EXPECT_THAT(workspace.iconNamesForFile({}), IsEmpty());
}

TEST_F(FileIconTest, AFileThatGoesAndComesBack_LosesItsIconAndGetsItAgain) {
  const QString path = madeFile(u"report.pdf"_s);
  const QStringList names = workspace.iconNamesForFile(path);
  QFile::remove(path);
  EXPECT_THAT(workspace.iconNamesForFile(path), IsEmpty());
  madeFile(u"report.pdf"_s);
  EXPECT_EQ(workspace.iconNamesForFile(path), names);
}

TEST_F(FileIconTest, ALinkToAFile_HasTheIconOfAFile) {
  const QString link = directory.filePath(u"link.pdf"_s);
  QFile::link(madeFile(u"report.pdf"_s), link);
  EXPECT_THAT(workspace.iconNamesForFile(link), Contains(u"application-pdf"_s));
}

TEST_F(FileIconTest, ALinkWhoseTargetIsGone_HasNoIconOfItsOwn) {
  const QString link = directory.filePath(u"link"_s);
  QFile::link(directory.filePath(u"gone"_s), link);
  EXPECT_THAT(workspace.iconNamesForFile(link), IsEmpty());
}

TEST_F(FileIconTest, ADirectory_HasTheIconOfFolders) {
  EXPECT_THAT(workspace.iconNamesForFile(directory.path()), Contains(u"folder"_s));
  EXPECT_THAT(workspace.iconNamesForFolders(), Contains(u"folder"_s));
}

TEST_F(FileIconTest, AFileOfNoKnownType_HasAnIconToo) {
  EXPECT_THAT(workspace.iconNamesForAnyFile(), Not(IsEmpty()));
}

TEST_F(FileIconTest, DrawingsForToolbars_AreLeftOut) {
  EXPECT_THAT(workspace.iconNamesForFile(madeFile(u"report.pdf"_s)),
              Each(testing::ResultOf([](const QString &name) { return name.endsWith(u"symbolic"); },
                                     false)));
}

}  // namespace
}  // namespace lanternix
