#pragma once

#include <QtWidgets/QRadioButton>

namespace lanternix {

/// One symbol among those that a group can have. A radio button, so that screen readers take it for
/// what it is.
class SymbolCell : public QRadioButton {
  Q_OBJECT

 public:
  /// \p name is what the symbol shows, in words.
  SymbolCell(QString symbol, const QString &name, QWidget *parent = nullptr);

  QSize sizeHint() const override;

 protected:
  bool hitButton(const QPoint &position) const override;
  void paintEvent(QPaintEvent *event) override;

 private:
  QString m_symbol;
};

}  // namespace lanternix
