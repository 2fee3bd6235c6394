#include "Platform/Linux/AutostartLoginItem.h"

#include "Platform/ApplicationId.h"
#include "Platform/FileManager.h"
#include "Platform/Linux/AutostartEntry.h"
#include "Platform/Linux/BaseDirectories.h"
#include "Platform/Linux/DirectoryFlush.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>

#include <filesystem>
#include <unistd.h>
#include <utility>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

const QString placeInDirectory = u"/autostart/"_s + applicationId + u".desktop"_s;

QString failure(const QString &path, const QString &reason) {
  return path + u": "_s + reason;
}

/// Makes the directories that lead to \p path. Returns what went wrong.
std::optional<QString> createDirectories(const QString &path) {
  const QString directory = QFileInfo(path).path();
  std::error_code error;
  std::filesystem::create_directories(QFile::encodeName(directory).constData(), error);
  return error ? std::optional(failure(directory, QString::fromStdString(error.message())))
               : std::nullopt;
}

/// Puts \p bytes in the place of the file at \p path in one step. Returns what went wrong; the file
/// is as it was then.
std::optional<QString> replaceFile(const QString &path, const QByteArray &bytes) {
  if (path.isEmpty()) {
    return u"there is no home directory to keep settings in"_s;
  }
  if (const std::optional<QString> error = createDirectories(path)) {
    return error;
  }
  QSaveFile file(path);
  // commit() overlooks a failure to write what is still in the buffer, or to reach the disk.
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
    return failure(path, file.errorString());
  }
  if (fsync(file.handle()) != 0) {
    return failure(path, qt_error_string());
  }
  if (!file.commit()) {
    return failure(path, file.errorString());
  }
  flushDirectory(QFileInfo(path).path());
  return std::nullopt;
}

std::optional<QString> removeFile(const QString &path) {
  if (unlink(QFile::encodeName(path).constData()) != 0) {
    return errno == ENOENT || errno == ENOTDIR ? std::nullopt
                                               : std::optional(failure(path, qt_error_string()));
  }
  flushDirectory(QFileInfo(path).path());
  return std::nullopt;
}

/// \p program by the name that an installation gives it, which may be a link to it.
QString installedPath(const QString &program) {
  const QString found = QStandardPaths::findExecutable(QFileInfo(program).fileName());
  const QString canonical = QFileInfo(found).canonicalFilePath();
  return !canonical.isEmpty() && canonical == QFileInfo(program).canonicalFilePath() ? found
                                                                                     : program;
}

}  // namespace

AutostartLoginItem::AutostartLoginItem(const FileManager &fileManager, QString program)
    : m_fileManager(fileManager), m_program(std::move(program)) {}

LoginItem::Status AutostartLoginItem::status() const {
  // An entry of the user's counts even where it cannot be read: desktops look no further either.
  // Nor do they where it is a link to nowhere.
  const QFileInfo users(userEntry());
  const QString path = users.exists() || users.isSymLink() ? users.filePath() : systemEntry();
  if (path.isEmpty()) {
    return Status::notRegistered;
  }
  const QStringList desktops =
      qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
  return AutostartEntry::status(m_fileManager.contents(path).value_or(QByteArray()), m_program,
                                desktops);
}

std::optional<QString> AutostartLoginItem::registerItem() {
  return replaceFile(userEntry(), AutostartEntry::starting(installedPath(m_program)));
}

std::optional<QString> AutostartLoginItem::unregisterItem() {
  return systemEntry().isEmpty() ? removeFile(userEntry())
                                 : replaceFile(userEntry(), AutostartEntry::masking());
}

QString AutostartLoginItem::userEntry() const {
  const QString directory = BaseDirectories::configHome();
  return directory.isEmpty() ? QString() : directory + placeInDirectory;
}

QString AutostartLoginItem::systemEntry() const {
  const QStringList directories = BaseDirectories::configDirectories();
  for (const QString &directory : directories) {
    if (QFileInfo::exists(directory + placeInDirectory)) {
      return directory + placeInDirectory;
    }
  }
  return {};
}

}  // namespace lanternix
