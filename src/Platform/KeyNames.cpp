#include "Platform/KeyNames.h"

#include "Platform/KeyCodes.h"

namespace lanternix::KeyNames {
namespace {

using namespace Qt::StringLiterals;

/// The four modifiers in the words of one desktop, in the order in which they are written.
struct ModifierNames {
  QLatin1StringView control;
  QLatin1StringView option;
  QLatin1StringView shift;
  QLatin1StringView command;
};

QString joined(quint32 classicModifiers, const ModifierNames &names) {
  QString text;
  const auto add = [&](quint32 modifier, QLatin1StringView name) {
    if ((classicModifiers & modifier) != 0) {
      text += name;
    }
  };
  add(KeyCodes::classicControl, names.control);
  add(KeyCodes::classicOption, names.option);
  add(KeyCodes::classicShift, names.shift);
  add(KeyCodes::classicCommand, names.command);
  return text;
}

constexpr ModifierNames portalNames{"CTRL+"_L1, "ALT+"_L1, "SHIFT+"_L1, "LOGO+"_L1};
constexpr ModifierNames gnomeNames{"<Control>"_L1, "<Alt>"_L1, "<Shift>"_L1, "<Super>"_L1};
constexpr ModifierNames swayNames{"Control+"_L1, "Mod1+"_L1, "Shift+"_L1, "Mod4+"_L1};

quint32 xKeyCode(const KeyCodes::Key &key) {
  return key.evdevCode + KeyCodes::firstXKeyCode;
}

}  // namespace

QString portalTrigger(quint32 keyCode, quint32 classicModifiers) {
  const auto key = KeyCodes::keyForVirtualCode(keyCode);
  return key ? joined(classicModifiers, portalNames) + key->name : QString();
}

QStringList gnomeAccelerators(quint32 keyCode, quint32 classicModifiers) {
  const auto key = KeyCodes::keyForVirtualCode(keyCode);
  if (!key) {
    return {};
  }
  const QString modifiers = joined(classicModifiers, gnomeNames);
  const QString byName = modifiers + key->name;
  if (key->keySymbol != 0) {
    return {byName};
  }
  return {modifiers + u"0x%1"_s.arg(xKeyCode(*key), 2, 16, QChar(u'0')), byName};
}

SwayBinding swayBinding(quint32 keyCode, quint32 classicModifiers) {
  const auto key = KeyCodes::keyForVirtualCode(keyCode);
  if (!key) {
    return {};
  }
  const QString modifiers = joined(classicModifiers, swayNames);
  if (key->keySymbol != 0) {
    return {u"bindsym"_s, modifiers + key->name};
  }
  return {u"bindcode"_s, modifiers + QString::number(xKeyCode(*key))};
}

}  // namespace lanternix::KeyNames
