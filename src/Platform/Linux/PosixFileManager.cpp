#include "Platform/Linux/PosixFileManager.h"

#include "Platform/Linux/BaseDirectories.h"
#include "Platform/Linux/DirectoryFlush.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>
#include <QtCore/QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace lanternix {

namespace {

Q_LOGGING_CATEGORY(files, "lanternix.files", QtWarningMsg)

/// \p path for the system's calls. A path that holds a NUL names nothing: the system would see only
/// what stands before it, which may be some other file.
QByteArray nativePath(const QString &path) {
  return path.contains(QChar::Null) ? QByteArray() : QFile::encodeName(path);
}

/// The file that a chain of links at \p path ends in, whether it exists or not; none when the chain
/// goes round in circles.
std::optional<QString> linkTarget(const QString &path) {
  namespace fs = std::filesystem;
  constexpr int longestChain = 40;  // the system's own limit
  fs::path target = nativePath(path).toStdString();
  std::error_code error;
  for (int i = 0; i < longestChain; ++i) {
    if (!fs::is_symlink(fs::symlink_status(target, error))) {
      return QFile::decodeName(target.c_str());
    }
    target = target.parent_path() / fs::read_symlink(target, error);
  }
  return {};
}

/// Where no file can be made beside the one at \p path, fails or writes over it, as \p mayWriteOver
/// says.
bool replaceFile(QByteArrayView bytes, const QString &path, bool mayWriteOver) {
  const std::optional<QString> target = linkTarget(path);
  if (!target || (QFileInfo::exists(*target) && !QFileInfo(*target).isFile())) {
    qCWarning(files) << path << "is no file that could be replaced";
    return false;
  }
  QSaveFile file(*target);
  file.setDirectWriteFallback(mayWriteOver);
  // commit() overlooks a failure to write what is still in the buffer, or to reach the disk, and
  // would put the stump in place of a good file.
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), bytes.size()) != bytes.size() ||
      !file.flush() || fsync(file.handle()) != 0 || !file.commit()) {
    qCWarning(files) << path << "cannot be written:" << file.errorString();
    return false;
  }
  flushDirectory(QFileInfo(*target).path());
  return true;
}

}  // namespace

QString PosixFileManager::applicationSupportDirectory() const {
  return BaseDirectories::dataHome();
}

bool PosixFileManager::createDirectory(const QString &path) {
  return QDir().mkpath(path);
}

std::optional<QByteArray> PosixFileManager::contents(const QString &path) const {
  // Without O_NONBLOCK, opening a pipe waits for somebody to write to it.
  const int descriptor = open(nativePath(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  QFile file;
  if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
    qCInfo(files) << path << "cannot be opened:" << qt_error_string();
    return {};
  }
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > largestFile) {
    qCWarning(files) << path << "is no file of a size to be read";
    return {};
  }
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    qCWarning(files) << path << "cannot be read to its end:" << file.errorString();
    return {};
  }
  return bytes;
}

bool PosixFileManager::writeAtomically(QByteArrayView bytes, const QString &path) {
  return replaceFile(bytes, path, false);
}

bool PosixFileManager::write(QByteArrayView bytes, const QString &path) {
  return replaceFile(bytes, path, true);
}

std::optional<QStringList> PosixFileManager::contentsOfDirectory(const QString &path) const {
  namespace fs = std::filesystem;
  std::error_code error;
  QStringList names;
  const fs::directory_iterator end;
  fs::directory_iterator entry(nativePath(path).toStdString(), error);
  for (; !error && entry != end; entry.increment(error)) {
    const QString name = QFile::decodeName(entry->path().filename().c_str());
    if (!name.startsWith(u'.')) {
      names.append(name);
    }
  }
  return error ? std::nullopt : std::optional(names);
}

std::optional<Date> PosixFileManager::creationDate(const QString &path) const {
  struct statx status {};
  if (statx(AT_FDCWD, nativePath(path).constData(), 0, STATX_BTIME | STATX_MTIME, &status) != 0) {
    return {};
  }
  const bool hasBirthTime = (status.stx_mask & STATX_BTIME) != 0;
  const statx_timestamp &time = hasBirthTime ? status.stx_btime : status.stx_mtime;
  // Not rounded to the millisecond: two backups may well be made within one.
  Date date = Date::fromUnixMilliseconds(time.tv_sec * 1000);
  date.secondsSinceReferenceDate += static_cast<double>(time.tv_nsec) / 1e9;
  return date;
}

std::optional<qint64> PosixFileManager::fileSize(const QString &path) const {
  struct stat status {};
  return stat(nativePath(path).constData(), &status) == 0 ? std::optional<qint64>(status.st_size)
                                                          : std::nullopt;
}

bool PosixFileManager::removeItem(const QString &path) {
  return unlink(nativePath(path).constData()) == 0 || errno == ENOENT;
}

}  // namespace lanternix
