#include "ProcessFigures.h"

#include "support/HarnessError.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

/// The number behind "key:" in a file of /proc.
qint64 valueOf(const QByteArray &key, const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw HarnessError(u"%1: %2"_s.arg(path, file.errorString()));
  }
  const QList<QByteArray> lines = file.readAll().split('\n');
  for (const QByteArray &line : lines) {
    if (line.startsWith(key + ':')) {
      return line.mid(key.size() + 1).simplified().split(' ').first().toLongLong();
    }
  }
  throw HarnessError(u"%1 has no %2"_s.arg(path, QString::fromLatin1(key)));
}

/// The directories of its threads.
QStringList threads(qint64 processId) {
  const QDir tasks(u"/proc/%1/task"_s.arg(processId));
  QStringList paths;
  for (const QString &thread : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    paths.append(tasks.filePath(thread));
  }
  return paths;
}

}  // namespace

qint64 ProcessFigures::proportionalSetSize(qint64 processId) {
  return valueOf("Pss", u"/proc/%1/smaps_rollup"_s.arg(processId));
}

qint64 ProcessFigures::residentSetSize(qint64 processId) {
  return valueOf("Rss", u"/proc/%1/smaps_rollup"_s.arg(processId));
}

qint64 ProcessFigures::wakeUps(qint64 processId) {
  qint64 sum = 0;
  for (const QString &thread : threads(processId)) {
    sum += valueOf("voluntary_ctxt_switches", thread + u"/status"_s);
  }
  return sum;
}

std::chrono::duration<double, std::milli> ProcessFigures::processorTime(qint64 processId) {
  std::chrono::nanoseconds sum{0};
  for (const QString &thread : threads(processId)) {
    QFile file(thread + u"/schedstat"_s);
    if (!file.open(QIODevice::ReadOnly)) {
      throw HarnessError(u"%1: %2"_s.arg(file.fileName(), file.errorString()));
    }
    sum += std::chrono::nanoseconds(file.readAll().split(' ').first().toLongLong());
  }
  return sum;
}

}  // namespace lanternix
