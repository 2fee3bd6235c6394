#include "Platform/Linux/PortalSettings.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusVariant>

#include <algorithm>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(appearanceLog, "lanternix.appearance", QtWarningMsg)

const QString appearanceSpace = u"org.freedesktop.appearance"_s;
const QString interfaceSpace = u"org.gnome.desktop.interface"_s;

/// Some portals wrap a value into a variant once more than the interface says.
QVariant unwrapped(QVariant value) {
  while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
    value = qvariant_cast<QDBusVariant>(value).variant();
  }
  return value;
}

template <typename T>
std::optional<T> as(const QVariant &value) {
  return value.metaType() == QMetaType::fromType<T>() ? std::optional(value.value<T>())
                                                      : std::nullopt;
}

bool isPart(double part) {
  return part >= 0 && part <= 1;
}

std::optional<Appearance::Rgb> asColor(const QVariant &value) {
  const auto argument = as<QDBusArgument>(value);
  if (!argument || argument->currentSignature() != "(ddd)"_L1) {
    return std::nullopt;
  }
  Appearance::Rgb color;
  argument->beginStructure();
  *argument >> color.red >> color.green >> color.blue;
  argument->endStructure();
  // A portal without an accent colour says so by one outside the range.
  const bool isColor = isPart(color.red) && isPart(color.green) && isPart(color.blue);
  return isColor ? std::optional(color) : std::nullopt;
}

Appearance::ColorScheme scheme(std::optional<quint32> value) {
  switch (value.value_or(0)) {
    case 1:
      return Appearance::ColorScheme::dark;
    case 2:
      return Appearance::ColorScheme::light;
    default:
      return Appearance::ColorScheme::noPreference;
  }
}

}  // namespace

const QList<PortalSettings::Key> &PortalSettings::keys() {
  static const QList<Key> keys{
      {appearanceSpace, u"color-scheme"_s},     {appearanceSpace, u"accent-color"_s},
      {appearanceSpace, u"contrast"_s},         {appearanceSpace, u"reduced-motion"_s},
      {interfaceSpace, u"enable-animations"_s}, {interfaceSpace, u"icon-theme"_s}};
  return keys;
}

QStringList PortalSettings::nameSpaces() {
  return {appearanceSpace, interfaceSpace};
}

void PortalSettings::set(const QString &nameSpace, const QString &name, const QVariant &value) {
  const bool isUsed = std::ranges::any_of(
      keys(), [&](const Key &key) { return key.nameSpace == nameSpace && key.name == name; });
  if (!isUsed) {
    return;
  }
  const QVariant plain = unwrapped(value);
  qCDebug(appearanceLog) << "the portal says" << nameSpace << name << plain;
  if (name == "color-scheme"_L1) {
    m_colorScheme = as<quint32>(plain);
  } else if (name == "accent-color"_L1) {
    m_accentColor = asColor(plain);
  } else if (name == "contrast"_L1) {
    m_contrast = as<quint32>(plain);
  } else if (name == "reduced-motion"_L1) {
    m_reducedMotion = as<quint32>(plain);
  } else if (name == "enable-animations"_L1) {
    m_enableAnimations = as<bool>(plain);
  } else if (name == "icon-theme"_L1) {
    m_iconTheme = as<QString>(plain).value_or(QString());
  }
}

Appearance PortalSettings::appearance() const {
  return {
      .colorScheme = scheme(m_colorScheme),
      .accentColor = m_accentColor,
      .prefersHighContrast = m_contrast == 1U,
      .prefersReducedMotion = m_reducedMotion == 1U || m_enableAnimations == false,
      .iconTheme = m_iconTheme,
  };
}

}  // namespace lanternix
