#include "Platform/Linux/DirectoryFlush.h"

#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>

#include <fcntl.h>
#include <unistd.h>

namespace lanternix {

namespace {
Q_LOGGING_CATEGORY(files, "lanternix.files", QtWarningMsg)
}  // namespace

void flushDirectory(const QString &directory) {
  const int descriptor =
      open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0 || fsync(descriptor) != 0) {
    // Some network and user-space file systems know no such flush.
    qCInfo(files) << "the directory" << directory << "cannot be flushed:" << qt_error_string();
  }
  if (descriptor >= 0) {
    close(descriptor);
  }
}

}  // namespace lanternix
