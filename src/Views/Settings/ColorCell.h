#pragma once

#include "Models/SystemColor.h"
#include "Views/Controls/ChoiceCell.h"

namespace lanternix {

/// One colour among those that a group can have.
class ColorCell : public ChoiceCell {
  Q_OBJECT

 public:
  /// \p name is the colour's, in words.
  ColorCell(SystemColor color, const QString &name, QWidget *parent = nullptr);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  SystemColor m_color;
};

}  // namespace lanternix
