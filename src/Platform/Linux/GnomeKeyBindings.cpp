#include "Platform/Linux/GnomeKeyBindings.h"

#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <gio/gio.h>
#include <iterator>
#include <memory>
#include <vector>

namespace lanternix::GnomeKeyBindings {
namespace {

using namespace Qt::StringLiterals;

constexpr const char *mediaKeys = "org.gnome.settings-daemon.plugins.media-keys";
constexpr const char *customKey = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
constexpr const char *customList = "custom-keybindings";

/// The settings whose lists of accelerators GNOME acts upon.
constexpr std::array bindingSchemas{
    mediaKeys, "org.gnome.desktop.wm.keybindings", "org.gnome.mutter.keybindings",
    "org.gnome.mutter.wayland.keybindings", "org.gnome.shell.keybindings"};

struct Deleter {
  void operator()(GSettings *settings) const { g_object_unref(settings); }
  void operator()(GSettingsSchema *schema) const { g_settings_schema_unref(schema); }
  void operator()(GVariant *value) const { g_variant_unref(value); }
  void operator()(char **texts) const { g_strfreev(texts); }
  void operator()(char *text) const { g_free(text); }
};
template <typename Type>
using Pointer = std::unique_ptr<Type, Deleter>;

/// Null when it is not installed. To open such a schema would end the program.
Pointer<GSettingsSchema> schema(const char *identifier) {
  GSettingsSchemaSource *source = g_settings_schema_source_get_default();
  return Pointer<GSettingsSchema>(
      source != nullptr ? g_settings_schema_source_lookup(source, identifier, TRUE) : nullptr);
}

Pointer<GSettings> openSettings(const char *identifier) {
  return Pointer<GSettings>(g_settings_new(identifier));
}

Pointer<GSettings> openCustom(const QString &path) {
  return Pointer<GSettings>(g_settings_new_with_path(customKey, path.toUtf8().constData()));
}

QStringList texts(char **values) {
  const Pointer<char *> owned(values);
  QStringList list;
  for (; *values != nullptr; ++values) {
    list.append(QString::fromUtf8(*values));
  }
  return list;
}

QString text(GSettings &settings, const char *key) {
  return QString::fromUtf8(Pointer<char>(g_settings_get_string(&settings, key)).get());
}

QStringList customPaths(GSettings &settings) {
  return texts(g_settings_get_strv(&settings, customList));
}

bool setCustomPaths(GSettings &settings, const QStringList &paths) {
  std::vector<QByteArray> bytes;
  std::vector<const char *> pointers;
  bytes.reserve(static_cast<std::size_t>(paths.size()));
  for (const QString &path : paths) {
    pointers.push_back(bytes.emplace_back(path.toUtf8()).constData());
  }
  pointers.push_back(nullptr);
  return g_settings_set_strv(&settings, customList, pointers.data()) != FALSE;
}

/// What an accelerator consists of.
using Parts = QSet<QString>;
using Wanted = QList<Parts>;

/// The same for two accelerators that mean the same, however they are written.
Parts parts(const QString &accelerator) {
  QString lower = accelerator.toLower();
  lower.replace("<primary>"_L1, "<control>"_L1).replace("<ctrl>"_L1, "<control>"_L1);
  lower.replace("<mod1>"_L1, "<alt>"_L1).replace("<mod4>"_L1, "<super>"_L1);
  const QStringList pieces = lower.split(u'>', Qt::SkipEmptyParts);
  return {pieces.begin(), pieces.end()};
}

bool hasAccelerator(GSettings &settings, const char *key, const Wanted &wanted) {
  const Pointer<GVariant> value(g_settings_get_value(&settings, key));
  QStringList accelerators;
  if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING_ARRAY) != FALSE) {
    accelerators = texts(g_variant_dup_strv(value.get(), nullptr));
  } else if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING) != FALSE) {
    accelerators = {QString::fromUtf8(g_variant_get_string(value.get(), nullptr))};
  }
  return std::ranges::any_of(accelerators, [&](const QString &accelerator) {
    return wanted.contains(parts(accelerator));
  });
}

QString holderInSchema(const char *identifier, const Wanted &wanted) {
  const auto found = schema(identifier);
  if (!found) {
    return {};
  }
  const auto settings = openSettings(identifier);
  const QStringList keys = texts(g_settings_schema_list_keys(found.get()));
  for (const QString &key : keys) {
    if (hasAccelerator(*settings, key.toUtf8().constData(), wanted)) {
      return QString::fromLatin1(identifier) + u' ' + key;
    }
  }
  return {};
}

}  // namespace

bool areInstalled() {
  return schema(mediaKeys) != nullptr && schema(customKey) != nullptr;
}

QString holderOf(const QStringList &accelerators, const QString &ownPath) {
  Wanted wanted;
  std::ranges::transform(accelerators, std::back_inserter(wanted), parts);
  const QStringList paths = customPaths(*openSettings(mediaKeys));
  for (const QString &path : paths) {
    if (path != ownPath && wanted.contains(parts(text(*openCustom(path), "binding")))) {
      return path;
    }
  }
  for (const char *identifier : bindingSchemas) {
    QString holder = holderInSchema(identifier, wanted);
    if (!holder.isEmpty()) {
      return holder;
    }
  }
  return {};
}

bool hasCustom(const QString &path) {
  return customPaths(*openSettings(mediaKeys)).contains(path);
}

bool setCustom(const QString &path, const CustomBinding &binding) {
  const auto custom = openCustom(path);
  const auto write = [&custom](const char *key, const QString &value) {
    return g_settings_set_string(custom.get(), key, value.toUtf8().constData()) != FALSE;
  };
  const auto settings = openSettings(mediaKeys);
  QStringList paths = customPaths(*settings);
  // The list last: whoever follows it finds the binding complete.
  bool isWritten = write("name", binding.name) && write("command", binding.command) &&
                   write("binding", binding.accelerator);
  if (isWritten && !paths.contains(path)) {
    paths.append(path);
    isWritten = setCustomPaths(*settings, paths);
  }
  return isWritten;
}

void removeCustom(const QString &path) {
  const auto settings = openSettings(mediaKeys);
  QStringList paths = customPaths(*settings);
  if (paths.removeAll(path) > 0) {
    setCustomPaths(*settings, paths);
  }
  const auto custom = openCustom(path);
  for (const char *key : {"name", "command", "binding"}) {
    g_settings_reset(custom.get(), key);
  }
}

void flush() {
  g_settings_sync();
}

}  // namespace lanternix::GnomeKeyBindings
