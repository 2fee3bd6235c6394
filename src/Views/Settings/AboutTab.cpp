#include "Views/Settings/AboutTab.h"

#include "Views/Controls/TextColumn.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int markSide = 56;

/// The program's symbol, filled from corner to corner with blue running into cyan.
class Mark : public QWidget {
 public:
  explicit Mark(QWidget *parent) : QWidget(parent) { setFixedSize(markSide, markSide); }

 protected:
  void paintEvent(QPaintEvent * /*event*/) override {
    QImage image =
        Symbol::image(u"arrow.triangle.branch"_s, markSide, Qt::black, devicePixelRatioF());
    QLinearGradient gradient(0, 0, markSide, markSide);
    gradient.setColorAt(0, systemColor(SystemColor::blue, palette()));
    gradient.setColorAt(1, systemColor(SystemColor::cyan, palette()));
    QPainter filling(&image);
    filling.setCompositionMode(QPainter::CompositionMode_SourceIn);
    filling.fillRect(QRect(0, 0, markSide, markSide), gradient);
    filling.end();
    QPainter(this).drawImage(0, 0, image);
  }
};

}  // namespace

AboutTab::AboutTab(QWidget *parent) : QWidget(parent) {
  constexpr int spacing = 20;
  constexpr int nameSpacing = 4;
  auto *layout = new QVBoxLayout(this);
  layout->setSpacing(spacing);
  layout->addStretch();
  layout->addWidget(new Mark(this), 0, Qt::AlignHCenter);
  auto name = std::make_unique<QVBoxLayout>();
  QVBoxLayout &lines = *name;
  lines.setSpacing(nameSpacing);
  layout->addLayout(name.release());
  TextColumn::addCentered(lines, u"Lanternix"_s, TextStyle::largeTitle, QFont::Bold,
                          FillStyle::primary);
  TextColumn::addCentered(lines, u"Version 1.0.0"_s, TextStyle::subheadline, QFont::Normal,
                          FillStyle::secondary);
  TextColumn::addCentered(*layout, u"Quick launcher for directories, files, and links"_s,
                          TextStyle::body, QFont::Normal, FillStyle::primary);
  layout->addStretch();
}

}  // namespace lanternix
