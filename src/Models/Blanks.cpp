#include "Models/Blanks.h"

namespace lanternix {

namespace {
bool isBlank(QChar character) {
  return character == u'\t' || character.category() == QChar::Separator_Space;
}
}  // namespace

QStringView trimmedBlanks(QStringView text) {
  while (!text.isEmpty() && isBlank(text.back())) {
    text.chop(1);
  }
  while (!text.isEmpty() && isBlank(text.front())) {
    text = text.sliced(1);
  }
  return text;
}

}  // namespace lanternix
