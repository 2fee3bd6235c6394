#include "Views/Settings/ListPlaceholder.h"

#include "Views/Controls/TextColumn.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/SymbolLabel.h"

#include <QtWidgets/QVBoxLayout>

namespace lanternix {

namespace {

constexpr int padding = 16;
constexpr int spacing = 12;

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
  TextColumn::addCentered(*layout, content.title, content.titleStyle, QFont::Normal,
                          FillStyle::secondary);
  TextColumn::addCentered(*layout, content.hint, content.hintStyle, QFont::Normal,
                          FillStyle::tertiary);
  layout->addStretch();
}

}  // namespace lanternix
