#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <vector>

namespace lanternix {

struct PathItem;

/// The names and paths of all items, folded once and laid end to end, so that a search is one sweep
/// over memory.
class SearchIndex {
 public:
  /// Folds the texts of \p items in the user's present locale.
  explicit SearchIndex(const QList<PathItem> &items);

  /// For each item, in the order given to the constructor, whether its name or its path contains
  /// \p needle (see LocalizedText::contains).
  std::vector<bool> matches(const QList<PathItem> &items, const QString &needle) const;

 private:
  struct Text {
    qsizetype end;  // in m_texts, past this text's separator
    bool simple;
  };

  QByteArray m_texts;
  std::vector<Text> m_ends;  // two an item: its name, its path
};

}  // namespace lanternix
