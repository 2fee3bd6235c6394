#include "Views/Settings/ListPlaceholder.h"

#include "Views/Style/FillStyle.h"
#include "Views/Style/SymbolLabel.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QVBoxLayout>

namespace lanternix {

namespace {

constexpr int padding = 16;
constexpr int spacing = 12;

TextLabel *addText(QVBoxLayout &layout, const QString &text, TextStyle style, FillStyle fill) {
  auto *label = new TextLabel(text, style, QFont::Normal, fill);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignHCenter);
  layout.addWidget(label);
  return label;
}

}  // namespace

ListPlaceholder::ListPlaceholder(const Content &content, QWidget *parent) : QWidget(parent) {
  setAccessibleName(content.title);
  setAccessibleDescription(content.hint);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(padding, padding, padding, padding);
  layout->setSpacing(spacing);
  layout->addStretch();
  layout->addWidget(
      new SymbolLabel(
          content.symbol, content.symbolSide,
          [](const QPalette &palette) { return fillColor(FillStyle::tertiary, palette); }, this),
      0, Qt::AlignHCenter);
  addText(*layout, content.title, content.titleStyle, FillStyle::secondary);
  addText(*layout, content.hint, content.hintStyle, FillStyle::tertiary);
  layout->addStretch();
}

}  // namespace lanternix
