#include "support/ProgramEnvironment.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString configDirectory = u".config"_s;
const QString dataDirectory = u".local/share"_s;

/// Where an application with the file \p record keeps one for each of its starts.
QString startsDirectory(const QString &record) {
  return record + u".starts"_s;
}

}  // namespace

ProgramEnvironment::ProgramEnvironment() {
  const QString runtimeDirectory = path(u"run"_s);
  for (const QString &directory : {path(configDirectory), path(dataDirectory),
                                   path(u".local/state"_s), path(u".cache"_s), runtimeDirectory}) {
    QDir().mkpath(directory);
  }
  QFile::setPermissions(runtimeDirectory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

  m_variables.insert(u"PATH"_s, qEnvironmentVariable("PATH"));
  m_variables.insert(u"LANG"_s, u"C.UTF-8"_s);
  m_variables.insert(u"HOME"_s, home());
  m_variables.insert(u"XDG_CONFIG_HOME"_s, path(configDirectory));
  m_variables.insert(u"XDG_DATA_HOME"_s, path(dataDirectory));
  m_variables.insert(u"XDG_STATE_HOME"_s, path(u".local/state"_s));
  m_variables.insert(u"XDG_CACHE_HOME"_s, path(u".cache"_s));
  m_variables.insert(u"XDG_RUNTIME_DIR"_s, runtimeDirectory);
  m_variables.insert(u"XDG_CONFIG_DIRS"_s, path(u"etc"_s));
  // The system's fonts and file types, and no more than those.
  m_variables.insert(u"XDG_DATA_DIRS"_s, u"/usr/share"_s);
  // Files are files here: no daemon of a desktop stands between.
  m_variables.insert(u"GIO_USE_VFS"_s, u"local"_s);
  // Settings of the sanitizers, where the program is built with them.
  for (const char *name : {"ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"}) {
    if (qEnvironmentVariableIsSet(name)) {
      m_variables.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    }
  }
}

QProcessEnvironment ProgramEnvironment::variables() const {
  return m_variables;
}

QString ProgramEnvironment::dataFile() const {
  return path(dataDirectory + u"/Lanternix/data.json"_s);
}

QString ProgramEnvironment::preferencesFile() const {
  return path(configDirectory + u"/Lanternix/Lanternix.conf"_s);
}

void ProgramEnvironment::write(const QString &path, const QByteArray &bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
    throw HarnessError(u"%1: %2"_s.arg(path, file.errorString()));
  }
}

std::optional<QByteArray> ProgramEnvironment::read(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return std::nullopt;
  }
  return file.readAll();
}

void ProgramEnvironment::writePreferences(const QByteArray &lines) {
  write(preferencesFile(), "[General]\n" + lines + "\n");
}

std::optional<QString> ProgramEnvironment::preference(const QString &key) const {
  const QStringList lines =
      QString::fromUtf8(read(preferencesFile()).value_or(QByteArray())).split(u'\n');
  for (const QString &line : lines) {
    if (line.startsWith(key + u'=')) {
      return line.mid(key.size() + 1);
    }
  }
  return std::nullopt;
}

QJsonObject ProgramEnvironment::data() const {
  return QJsonDocument::fromJson(read(dataFile()).value_or(QByteArray())).object();
}

QJsonObject ProgramEnvironment::item(const QString &name) const {
  const QJsonArray items = data()["items"_L1].toArray();
  for (const QJsonValue &item : items) {
    if (item["name"_L1].toString() == name) {
      return item.toObject();
    }
  }
  return {};
}

QString ProgramEnvironment::marking(const QString &name) const {
  return u"mkdir '%1'"_s.arg(path(u"marks-"_s + name));
}

bool ProgramEnvironment::isMarked(const QString &name) const {
  return QFile::exists(path(u"marks-"_s + name));
}

bool ProgramEnvironment::becomesMarked(const QString &name) const {
  return waitUntil([&] { return isMarked(name); });
}

QString ProgramEnvironment::installApplication(const QString &identifier,
                                               const QStringList &mimeTypes) {
  const QString record = path(identifier + u".arguments"_s);
  const QString script = path(identifier + u".sh"_s);
  QDir().mkpath(startsDirectory(record));
  // Written beside and renamed, so that who sees the record sees all of it.
  write(script,
        u"#!/bin/sh\npart='%1'.$$\nprintf '%s\\n' \"$@\" > \"$part\"\n"
        "ln \"$part\" '%2'\nmv \"$part\" '%1'\n"_s.arg(record, startsDirectory(record))
            .toUtf8());
  QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  write(path(dataDirectory + u"/applications/"_s + identifier + u".desktop"_s),
        "[Desktop Entry]\nType=Application\nName=" + identifier.toUtf8() +
            "\nExec=" + script.toUtf8() + " %u\nMimeType=" + mimeTypes.join(u';').toUtf8() + ";\n");
  for (const QString &mimeType : mimeTypes) {
    m_defaultApplications += mimeType.toUtf8() + '=' + identifier.toUtf8() + ".desktop\n";
  }
  write(path(configDirectory + u"/mimeapps.list"_s),
        "[Default Applications]\n" + m_defaultApplications);
  return record;
}

QStringList ProgramEnvironment::starts(const QString &record) {
  QStringList starts;
  const QDir directory(startsDirectory(record));
  const QStringList files = directory.entryList(QDir::Files);
  for (const QString &file : files) {
    starts.append(
        QString::fromUtf8(read(directory.filePath(file)).value_or(QByteArray())).trimmed());
  }
  return starts;
}

}  // namespace lanternix
