#pragma once

#include "Views/Settings/RecordRowDelegate.h"

namespace lanternix {

class ItemListModel;

/// The row of an item: a badge of its type, its name, its path, a warning when it is broken. Asks
/// the file system whether it is, for rows in sight only.
class ItemRowDelegate : public RecordRowDelegate {
  Q_OBJECT

 public:
  /// \p view owns the delegate.
  ItemRowDelegate(const ItemListModel &model, RecordListView &view);

 protected:
  std::optional<Lines> linesOf(qsizetype row) const override;
  void paintPicture(QPainter &painter, const QPalette &palette, const QRectF &area,
                    qsizetype row) const override;

 private:
  const ItemListModel &m_model;
};

}  // namespace lanternix
