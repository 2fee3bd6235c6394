#pragma once

#include "Views/Controls/ChoiceCell.h"

namespace lanternix {

/// One symbol among those that a group can have.
class SymbolCell : public ChoiceCell {
  Q_OBJECT

 public:
  /// \p name is what the symbol shows, in words.
  SymbolCell(QString symbol, const QString &name, QWidget *parent = nullptr);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QString m_symbol;
};

}  // namespace lanternix
