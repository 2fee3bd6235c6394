#include "App/SearchIndex.h"

#include "Models/PathItem.h"
#include "Utilities/LocalizedText.h"

#include <cstring>

namespace lanternix {

namespace {

// Ends each text. UTF-8 has no such byte, so that no needle reaches from one text into the next.
constexpr char separator = '\xff';

}  // namespace

SearchIndex::SearchIndex(const QList<PathItem> &items) {
  const QLocale locale;
  qsizetype size = 0;
  for (const PathItem &item : items) {
    size += item.name.size() + item.path.size() + 2;
  }
  m_texts.reserve(size);
  m_ends.reserve(static_cast<std::size_t>(items.size()) * 2);
  for (const PathItem &item : items) {
    for (const QString *text : {&item.name, &item.path}) {
      const bool simple = LocalizedText::appendFolded(m_texts, *text, locale);
      m_texts += separator;
      m_ends.push_back({m_texts.size(), simple});
    }
  }
}

std::vector<bool> SearchIndex::matches(const QList<PathItem> &items, const QString &needle) const {
  std::vector<bool> result(static_cast<std::size_t>(items.size()));
  const QByteArray folded = LocalizedText::folded(needle).utf8;
  if (folded.isEmpty()) {
    return result;
  }
  const auto needleSize = static_cast<std::size_t>(folded.size());
  qsizetype from = 0;
  std::size_t text = 0;
  while (const void *found =
             memmem(m_texts.constData() + from, static_cast<std::size_t>(m_texts.size() - from),
                    folded.constData(), needleSize)) {
    const qsizetype at = static_cast<const char *>(found) - m_texts.constData();
    while (m_ends[text].end <= at) {
      ++text;
    }
    const std::size_t index = text / 2;
    const PathItem &item = items[static_cast<qsizetype>(index)];
    if (m_ends[text].simple ||
        LocalizedText::contains(text % 2 == 0 ? item.name : item.path, needle)) {
      result[index] = true;
      text = index * 2 + 1;  // one hit is enough: on to the next item
    }
    from = m_ends[text].end;
  }
  return result;
}

}  // namespace lanternix
