#include "Platform/Linux/AutostartEntry.h"

#include "Platform/ApplicationId.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <algorithm>
#include <glib.h>
#include <memory>
#include <optional>

namespace lanternix::AutostartEntry {
namespace {

using namespace Qt::StringLiterals;

constexpr auto group = G_KEY_FILE_DESKTOP_GROUP;
constexpr auto gnomeEnabledKey = "X-GNOME-Autostart-enabled";

struct Deleter {
  void operator()(GKeyFile *keyFile) const { g_key_file_unref(keyFile); }
  void operator()(char *text) const { g_free(text); }
  void operator()(char **texts) const { g_strfreev(texts); }
};
using KeyFile = std::unique_ptr<GKeyFile, Deleter>;
using Text = std::unique_ptr<char, Deleter>;
using Texts = std::unique_ptr<char *, Deleter>;

QString stringValue(const KeyFile &entry, const char *key) {
  return QString::fromUtf8(Text(g_key_file_get_string(entry.get(), group, key, nullptr)).get());
}

QStringList listValue(const KeyFile &entry, const char *key) {
  const Texts texts(g_key_file_get_string_list(entry.get(), group, key, nullptr, nullptr));
  QStringList list;
  for (char **text = texts.get(); text != nullptr && *text != nullptr; ++text) {
    list.append(QString::fromUtf8(*text));
  }
  return list;
}

bool booleanValue(const KeyFile &entry, const char *key, bool fallback) {
  return g_key_file_has_key(entry.get(), group, key, nullptr) != 0
             ? g_key_file_get_boolean(entry.get(), group, key, nullptr) != 0
             : fallback;
}

/// \p path as the first word of a command line in an "Exec" key.
QString quoted(const QString &path) {
  QString word;
  bool needsQuotes = false;
  for (const QChar character : path) {
    const char16_t code = character.unicode();
    needsQuotes |= u" \t\n\"'\\><~|&;$*?#()`"_s.contains(character);
    if (code == u'"' || code == u'`' || code == u'$' || code == u'\\') {
      word += u'\\';
    } else if (code == u'%') {
      word += u'%';  // one alone would begin a field code
    }
    word += character;
  }
  return needsQuotes ? u'"' + word + u'"' : word;
}

/// The program that a command line of an "Exec" key names; empty when it names none.
QString programOf(const QString &commandLine) {
  char **words = nullptr;
  if (g_shell_parse_argv(commandLine.toUtf8().constData(), nullptr, &words, nullptr) == 0) {
    return {};
  }
  const Texts owned(words);
  QString program = QString::fromUtf8(words[0]);
  program.replace(u"%%"_s, u"%"_s);
  return program;
}

/// The file that would be run; empty when there is none.
QString resolved(const QString &program) {
  // Which directory a relative path starts from is up to the desktop.
  if (program.contains(u'/') && !program.startsWith(u'/')) {
    return {};
  }
  return QFileInfo(QStandardPaths::findExecutable(program)).canonicalFilePath();
}

bool isShownIn(const KeyFile &entry, const QStringList &desktops) {
  const QStringList only = listValue(entry, G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN);
  const QStringList never = listValue(entry, G_KEY_FILE_DESKTOP_KEY_NOT_SHOW_IN);
  const auto named = std::ranges::find_if(desktops, [&](const QString &desktop) {
    return only.contains(desktop) || never.contains(desktop);
  });
  return named != desktops.end()
             ? only.contains(*named)
             : g_key_file_has_key(entry.get(), group, G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN,
                                  nullptr) == 0;
}

bool starts(const KeyFile &entry, const QString &program) {
  const QString condition = stringValue(entry, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC);
  if (stringValue(entry, G_KEY_FILE_DESKTOP_KEY_TYPE) != "Application"_L1 ||
      (!condition.isEmpty() && resolved(condition).isEmpty())) {
    return false;
  }
  const QString started = resolved(programOf(stringValue(entry, G_KEY_FILE_DESKTOP_KEY_EXEC)));
  return !started.isEmpty() && started == QFileInfo(program).canonicalFilePath();
}

QByteArray textOf(const KeyFile &entry) {
  return Text(g_key_file_to_data(entry.get(), nullptr, nullptr)).get();
}

KeyFile emptyEntry() {
  KeyFile entry(g_key_file_new());
  g_key_file_set_string(entry.get(), group, G_KEY_FILE_DESKTOP_KEY_TYPE, "Application");
  g_key_file_set_string(entry.get(), group, G_KEY_FILE_DESKTOP_KEY_NAME, "Lanternix");
  return entry;
}

}  // namespace

QByteArray starting(const QString &program) {
  const KeyFile entry = emptyEntry();
  const auto set = [&entry](const char *key, const QString &value) {
    g_key_file_set_string(entry.get(), group, key, value.toUtf8().constData());
  };
  set(G_KEY_FILE_DESKTOP_KEY_EXEC, quoted(program));
  // So that nobody is told of a program that has been removed since.
  set(G_KEY_FILE_DESKTOP_KEY_TRY_EXEC, program);
  set(G_KEY_FILE_DESKTOP_KEY_ICON, applicationId);
  set(G_KEY_FILE_DESKTOP_KEY_TERMINAL, u"false"_s);
  return textOf(entry);
}

QByteArray masking() {
  const KeyFile entry = emptyEntry();
  g_key_file_set_boolean(entry.get(), group, G_KEY_FILE_DESKTOP_KEY_HIDDEN, 1);
  return textOf(entry);
}

LoginItem::Status status(const QByteArray &entry, const QString &program,
                         const QStringList &desktops) {
  const KeyFile parsed(g_key_file_new());
  if (g_key_file_load_from_data(parsed.get(), entry.constData(), static_cast<gsize>(entry.size()),
                                G_KEY_FILE_NONE, nullptr) == 0) {
    return LoginItem::Status::notFound;
  }
  if (booleanValue(parsed, G_KEY_FILE_DESKTOP_KEY_HIDDEN, false)) {
    return LoginItem::Status::notRegistered;
  }
  if (!starts(parsed, program)) {
    return LoginItem::Status::notFound;
  }
  const bool isAllowed = booleanValue(parsed, gnomeEnabledKey, true) && isShownIn(parsed, desktops);
  return isAllowed ? LoginItem::Status::enabled : LoginItem::Status::requiresApproval;
}

}  // namespace lanternix::AutostartEntry
