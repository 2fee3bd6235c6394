#include "Views/Panel/NoResultsView.h"

#include "Views/Style/SymbolLabel.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lanternix {

NoResultsView::NoResultsView(QWidget *parent) : QWidget(parent) {
  setAccessibleName(u"No results found"_s);
  constexpr double markSide = 32;
  auto *mark = new SymbolLabel(
      u"magnifyingglass"_s, markSide,
      [](const QPalette &palette) { return fillColor(FillStyle::quaternary, palette); }, this);
  auto *text = new TextLabel(u"No results found"_s, TextStyle::subheadline, QFont::Normal,
                             FillStyle::secondary, this);

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 30, 0, 30);
  layout->setSpacing(12);
  layout->addWidget(mark, 0, Qt::AlignHCenter);
  layout->addWidget(text, 0, Qt::AlignHCenter);
}

}  // namespace lanternix
