#include "Platform/Linux/X11Keyboard.h"

#include <algorithm>
#include <array>
#include <span>

namespace lanternix {
namespace {

constexpr quint32 noSymbol = 0;
constexpr std::array<quint32, 1> numLockSymbols{0xff7f};
constexpr std::array<quint32, 2> superSymbols{0xffeb, 0xffec};
constexpr std::array<quint32, 2> altSymbols{0xffe9, 0xffea};
constexpr std::array<quint32, 2> metaSymbols{0xffe7, 0xffe8};
constexpr std::size_t modifierCount = 8;

}  // namespace

X11Keyboard::X11Keyboard(const X11Server &server)
    : m_firstKeyCode(xcb_get_setup(server.connection())->min_keycode) {
  const std::size_t lastKeyCode = xcb_get_setup(server.connection())->max_keycode;
  m_keyCount = lastKeyCode - m_firstKeyCode + 1;
  const auto mappingCookie = xcb_get_keyboard_mapping(server.connection(), m_firstKeyCode,
                                                      static_cast<quint8>(m_keyCount));
  const auto modifiersCookie = xcb_get_modifier_mapping(server.connection());

  const auto mapping = awaitReply(xcb_get_keyboard_mapping_reply, server, mappingCookie);
  const auto modifiers = awaitReply(xcb_get_modifier_mapping_reply, server, modifiersCookie);
  if (!mapping || !modifiers) {
    m_keyCount = 0;
    return;
  }
  const std::span symbols(
      xcb_get_keyboard_mapping_keysyms(mapping.get()),
      static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(mapping.get())));
  m_columnCount = mapping->keysyms_per_keycode;
  m_symbols.assign(symbols.begin(), symbols.end());

  const std::span modifierKeys(xcb_get_modifier_mapping_keycodes(modifiers.get()),
                               modifierCount * modifiers->keycodes_per_modifier);
  const auto maskOf = [&](std::span<const quint32> wanted) -> quint16 {
    for (std::size_t i = 0; i < modifierKeys.size(); ++i) {
      if (modifierKeys[i] >= m_firstKeyCode && std::ranges::any_of(wanted, [&](quint32 symbol) {
            return hasSymbol(std::size_t{modifierKeys[i]} - m_firstKeyCode, symbol);
          })) {
        return static_cast<quint16>(1U << (i / modifiers->keycodes_per_modifier));
      }
    }
    return 0;
  };
  m_numLockMask = maskOf(numLockSymbols);
  m_superMask = maskOf(superSymbols);
  m_altMask = maskOf(altSymbols);
  if (m_altMask == 0) {
    m_altMask = maskOf(metaSymbols);
  }
}

std::vector<xcb_keycode_t> X11Keyboard::keyCodes(const KeyCodes::Key &key) const {
  // The same rule that names a key press, so that a shortcut is held on the key that recorded it.
  auto found = keyCodesWhere([&](std::size_t keyIndex) {
    return KeyCodes::virtualCodeForPress(static_cast<quint32>(m_firstKeyCode + keyIndex),
                                         symbol(keyIndex, 0)) == key.virtualCode;
  });
  if (found.empty() && key.keySymbol != noSymbol) {
    found = keyCodesWhere([&](std::size_t keyIndex) { return hasSymbol(keyIndex, key.keySymbol); });
  }
  return found;
}

std::optional<quint16> X11Keyboard::modifierMask(quint32 classicModifiers) const {
  quint16 mask = 0;
  const auto add = [&](quint32 classicModifier, quint16 modifierMask) {
    const bool wanted = (classicModifiers & classicModifier) != 0;
    mask = static_cast<quint16>(mask | (wanted ? modifierMask : 0));
    return !wanted || modifierMask != 0;
  };
  const bool complete = add(KeyCodes::classicShift, XCB_MOD_MASK_SHIFT) &&
                        add(KeyCodes::classicControl, XCB_MOD_MASK_CONTROL) &&
                        add(KeyCodes::classicCommand, m_superMask) &&
                        add(KeyCodes::classicOption, m_altMask);
  return complete ? std::optional(mask) : std::nullopt;
}

quint32 X11Keyboard::symbol(std::size_t keyIndex, std::size_t column) const {
  const std::size_t index = keyIndex * m_columnCount + column;
  return index < m_symbols.size() ? m_symbols[index] : noSymbol;
}

bool X11Keyboard::hasSymbol(std::size_t keyIndex, quint32 wanted) const {
  for (std::size_t column = 0; column < m_columnCount; ++column) {
    if (symbol(keyIndex, column) == wanted) {
      return true;
    }
  }
  return false;
}

template <typename Predicate>
std::vector<xcb_keycode_t> X11Keyboard::keyCodesWhere(Predicate predicate) const {
  std::vector<xcb_keycode_t> found;
  for (std::size_t keyIndex = 0; keyIndex < m_keyCount; ++keyIndex) {
    if (predicate(keyIndex)) {
      found.push_back(static_cast<xcb_keycode_t>(m_firstKeyCode + keyIndex));
    }
  }
  return found;
}

}  // namespace lanternix
