#include "Models/PanelItemSize.h"

namespace lanternix {

using namespace Qt::StringLiterals;

QString rawValue(PanelItemSize size) {
  switch (size) {
    case PanelItemSize::small:
      return u"small"_s;
    case PanelItemSize::medium:
      return u"medium"_s;
    case PanelItemSize::large:
      return u"large"_s;
  }
  Q_UNREACHABLE();
}

std::optional<PanelItemSize> panelItemSizeFromRawValue(QStringView rawValue) {
  for (const PanelItemSize size : allPanelItemSizes) {
    if (rawValue == lanternix::rawValue(size)) {
      return size;
    }
  }
  return {};
}

}  // namespace lanternix
