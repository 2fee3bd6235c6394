#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

/// The names of the groups that the search is narrowed to, on a capsule. One line, cut short where
/// the place is too narrow.
class ScopeBadgeView : public QWidget {
  Q_OBJECT

 public:
  explicit ScopeBadgeView(QWidget *parent = nullptr);

  void setNames(const QString &names);
  QString names() const { return m_names; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QString m_names;
};

}  // namespace lanternix
