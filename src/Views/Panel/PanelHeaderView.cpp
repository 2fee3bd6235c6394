#include "Views/Panel/PanelHeaderView.h"

#include "Views/Style/SymbolButton.h"
#include "Views/Style/SymbolLabel.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QHBoxLayout>

using namespace Qt::StringLiterals;

namespace lanternix {

PanelHeaderView::PanelHeaderView(QWidget *parent) : QWidget(parent) {
  auto *mark = new SymbolLabel(
      u"arrow.triangle.branch"_s, TextStyle::title2,
      [](const QPalette &palette) { return systemColor(SystemColor::blue, palette); }, this);
  auto *name =
      new TextLabel(u"Lanternix"_s, TextStyle::title3, QFont::DemiBold, FillStyle::primary, this);
  auto *settings =
      new SymbolButton(u"gearshape"_s, TextStyle::body, FillStyle::secondary, u"Settings"_s, this);
  connect(settings, &QAbstractButton::clicked, this, &PanelHeaderView::settingsRequested);

  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(20, 18, 20 - SymbolButton::margin, 12);
  layout->setSpacing(12);
  layout->addWidget(mark);
  layout->addWidget(name);
  layout->addStretch();
  layout->addWidget(settings);
}

}  // namespace lanternix
