#include "Views/Controls/TextColumn.h"

#include "Views/Style/TextLabel.h"

#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace lanternix::TextColumn {

TextLabel *addCentered(QVBoxLayout &column, const QString &text, TextStyle style,
                       QFont::Weight weight, FillStyle fill) {
  auto *label = new TextLabel(text, style, weight, fill, column.parentWidget());
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignHCenter);
  column.addWidget(label);
  return label;
}

void addClose(QBoxLayout &row, const QList<QWidget *> &lines, int stretch) {
  constexpr int spacing = 2;
  auto column = std::make_unique<QVBoxLayout>();
  column->setSpacing(spacing);
  for (QWidget *line : lines) {
    column->addWidget(line);
  }
  row.addLayout(column.release(), stretch);
}

}  // namespace lanternix::TextColumn
