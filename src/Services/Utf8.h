#pragma once

namespace lanternix {

/// Writes \p codePoint, which is no surrogate, in UTF-8 to \p out and returns where it ends: one to
/// four bytes.
template <typename OutputIterator>
OutputIterator writeUtf8(char32_t codePoint, OutputIterator out) {
  const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
  const auto putContinuation = [put](char32_t bits) { put(0x80 | (bits & 0x3f)); };
  if (codePoint < 0x80) {
    put(codePoint);
  } else if (codePoint < 0x800) {
    put(0xc0 | (codePoint >> 6));
    putContinuation(codePoint);
  } else if (codePoint < 0x10000) {
    put(0xe0 | (codePoint >> 12));
    putContinuation(codePoint >> 6);
    putContinuation(codePoint);
  } else {
    put(0xf0 | (codePoint >> 18));
    putContinuation(codePoint >> 12);
    putContinuation(codePoint >> 6);
    putContinuation(codePoint);
  }
  return out;
}

}  // namespace lanternix
