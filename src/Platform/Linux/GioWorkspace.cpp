#include "Platform/Linux/GioWorkspace.h"

#include "Platform/Linux/SessionBusAddress.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(workspaceLog, "lanternix.workspace", QtWarningMsg)

struct ObjectDeleter {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Type>
using ObjectPointer = std::unique_ptr<Type, ObjectDeleter>;

struct ErrorDeleter {
  void operator()(GError *error) const { g_error_free(error); }
};
using ErrorPointer = std::unique_ptr<GError, ErrorDeleter>;

struct TextDeleter {
  void operator()(char *text) const { g_free(text); }
};

ObjectPointer<GFile> fileAt(const QString &path) {
  return ObjectPointer<GFile>(g_file_new_for_path(QFile::encodeName(path).constData()));
}

ObjectPointer<GAppInfo> applicationWithIdentifier(const QString &identifier) {
  const QByteArray entry = (identifier + ".desktop"_L1).toUtf8();
  auto *application = g_desktop_app_info_new(entry.constData());
  return ObjectPointer<GAppInfo>(application != nullptr ? G_APP_INFO(application) : nullptr);
}

void report(const QString &subject, GError *error) {
  const ErrorPointer owned(error);
  qCWarning(workspaceLog).noquote()
      << "Cannot open" << subject << "-"
      << (owned ? QString::fromUtf8(owned->message) : u"no application for it"_s);
}

/// The library's own connection to the bus, by which it starts applications that live there. It is
/// made so that the end of the bus would end the program; this keeps it from that, and sees to it
/// that what was sent has left before the call returns.
class LaunchBus {
 public:
  LaunchBus() {
    if (isSessionBusAnnounced()) {
      m_bus.reset(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    }
    if (m_bus) {
      g_dbus_connection_set_exit_on_close(m_bus.get(), FALSE);
    }
  }
  ~LaunchBus() {
    if (m_bus) {
      g_dbus_connection_flush_sync(m_bus.get(), nullptr, nullptr);
    }
  }
  Q_DISABLE_COPY_MOVE(LaunchBus)

 private:
  ObjectPointer<GDBusConnection> m_bus;
};

void launch(GAppInfo *application, GFile *file, const QString &path) {
  const LaunchBus bus;
  GList files{file, nullptr, nullptr};
  GError *error = nullptr;
  if (application == nullptr || g_app_info_launch(application, &files, nullptr, &error) == FALSE) {
    report(path, error);
  }
}

void launchFile(const QString &path) {
  const auto file = fileAt(path);
  GError *error = nullptr;
  const ObjectPointer<GAppInfo> application(
      g_file_query_default_handler(file.get(), nullptr, &error));
  if (!application) {
    report(path, error);
    return;
  }
  launch(application.get(), file.get(), path);
}

void launchUrl(const QString &url) {
  const LaunchBus bus;
  GError *error = nullptr;
  if (g_app_info_launch_default_for_uri(url.toUtf8().constData(), nullptr, &error) == FALSE) {
    report(url, error);
  }
}

/// The names that \p icon goes by in icon themes, or its file's path.
QStringList iconNames(GIcon *icon) {
  if (icon == nullptr) {
    return {};
  }
  if (G_IS_FILE_ICON(icon)) {
    const std::unique_ptr<char, TextDeleter> path(
        g_file_get_path(g_file_icon_get_file(G_FILE_ICON(icon))));
    return path ? QStringList{QFile::decodeName(path.get())} : QStringList();
  }
  QStringList names;
  if (G_IS_THEMED_ICON(icon)) {
    for (const char *const *name = g_themed_icon_get_names(G_THEMED_ICON(icon)); *name != nullptr;
         ++name) {
      const QString text = QString::fromUtf8(*name);
      if (!text.endsWith("-symbolic"_L1)) {  // which are drawn for toolbars
        names.append(text);
      }
    }
  }
  return names;
}

QStringList iconNamesForType(const char *contentType) {
  const ObjectPointer<GIcon> icon(g_content_type_get_icon(contentType));
  return iconNames(icon.get());
}

QString uriOf(const QString &path) {
  const std::unique_ptr<char, TextDeleter> uri(g_file_get_uri(fileAt(path).get()));
  return QString::fromUtf8(uri.get());
}

}  // namespace

GioWorkspace::GioWorkspace() {
  m_launches.setMaxThreadCount(1);
  m_launches.setExpiryTimeout(0);
}

GioWorkspace::~GioWorkspace() {
  const auto unanswered = m_reveals.findChildren<QDBusPendingCallWatcher *>();
  for (QDBusPendingCallWatcher *reveal : unanswered) {
    reveal->waitForFinished();
  }
}

void GioWorkspace::openFile(const QString &path) {
  m_launches.start([path] { launchFile(path); });
}

void GioWorkspace::openUrl(const QString &url) {
  m_launches.start([url] { launchUrl(url); });
}

bool GioWorkspace::hasApplication(const QString &identifier) const {
  return applicationWithIdentifier(identifier) != nullptr;
}

void GioWorkspace::openDirectory(const QString &path, const QString &identifier) {
  m_launches.start([path, identifier] {
    launch(applicationWithIdentifier(identifier).get(), fileAt(path).get(), path);
  });
}

void GioWorkspace::revealInFileViewer(const QString &path) {
  constexpr int patience = 5000;  // milliseconds; a file manager may have to be started first
  if (!hasSessionBus()) {
    openEnclosingFolder(path);
    return;
  }
  auto call = QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s,
                                             u"/org/freedesktop/FileManager1"_s,
                                             u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
  const QString noStartupId = u""_s;
  call.setArguments({QStringList{uriOf(path)}, noStartupId});
  auto *reveal = new QDBusPendingCallWatcher(
      QDBusConnection::sessionBus().asyncCall(call, patience), &m_reveals);
  QObject::connect(reveal, &QDBusPendingCallWatcher::finished, &m_reveals, [this, reveal, path] {
    if (reveal->isError()) {
      qCInfo(workspaceLog) << "No file manager shows" << path << ":" << reveal->error().message();
      openEnclosingFolder(path);
    }
    reveal->deleteLater();
  });
}

QStringList GioWorkspace::iconNamesForFile(const QString &path) const {
  GError *error = nullptr;
  const ObjectPointer<GFileInfo> info(g_file_query_info(
      fileAt(path).get(), G_FILE_ATTRIBUTE_STANDARD_ICON "," G_FILE_ATTRIBUTE_STANDARD_TYPE,
      G_FILE_QUERY_INFO_NONE, nullptr, &error));
  const ErrorPointer owned(error);
  // A link whose target is gone answers for itself.
  const bool isThere = info && g_file_info_get_file_type(info.get()) != G_FILE_TYPE_SYMBOLIC_LINK;
  return isThere ? iconNames(g_file_info_get_icon(info.get())) : QStringList();
}

QStringList GioWorkspace::iconNamesForFolders() const {
  return iconNamesForType("inode/directory");
}

QStringList GioWorkspace::iconNamesForAnyFile() const {
  return iconNamesForType("application/octet-stream");
}

void GioWorkspace::openEnclosingFolder(const QString &path) {
  m_launches.start([path] {
    const auto file = fileAt(path);
    const ObjectPointer<GFile> parent(g_file_get_parent(file.get()));
    constexpr gboolean needNotTakeUris = FALSE;
    const ObjectPointer<GAppInfo> application(
        g_app_info_get_default_for_type("inode/directory", needNotTakeUris));
    launch(application.get(), parent ? parent.get() : file.get(), path);
  });
}

}  // namespace lanternix
