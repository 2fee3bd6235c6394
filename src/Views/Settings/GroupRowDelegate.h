#pragma once

#include "Views/Settings/RecordRowDelegate.h"

namespace lanternix {

class GroupListModel;

/// The row of a group: its symbol in its colour, its name, the number of its items.
class GroupRowDelegate : public RecordRowDelegate {
  Q_OBJECT

 public:
  /// \p view owns the delegate.
  GroupRowDelegate(const GroupListModel &model, RecordListView &view);

 protected:
  std::optional<Lines> linesOf(qsizetype row) const override;
  void paintPicture(QPainter &painter, const QPalette &palette, const QRectF &area,
                    qsizetype row) const override;

 private:
  const GroupListModel &m_model;
};

}  // namespace lanternix
