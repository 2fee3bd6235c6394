#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QAbstractButton;
class QButtonGroup;

namespace lanternix {

/// A choice of one among a few, side by side. The arrow keys move it as they move radio buttons.
class SegmentedPicker : public QWidget {
  Q_OBJECT

 public:
  /// \p name is what the choice is called for who cannot see its label.
  SegmentedPicker(const QString &name, const QStringList &texts, QWidget *parent = nullptr);

  /// -1 while nothing is chosen.
  int currentIndex() const;
  /// Says nothing by currentIndexChanged().
  void setCurrentIndex(int index);

  /// Segments of equal width with room for every text.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
  /// The user has chosen another one.
  void currentIndexChanged(int index);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  void letTabStopAt(int index);

  QButtonGroup *m_buttons;
};

}  // namespace lanternix
