#include "Views/Style/LanternixStyle.h"

using namespace Qt::StringLiterals;

namespace lanternix {

LanternixStyle::LanternixStyle() : QProxyStyle(u"Fusion"_s) {}

int LanternixStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                              QStyleHintReturn *returned) const {
  switch (hint) {
    case SH_Widget_Animate:
      return m_isMotionReduced ? 0 : 1;
    case SH_Widget_Animation_Duration:
      return m_isMotionReduced ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    default:
      return QProxyStyle::styleHint(hint, option, widget, returned);
  }
}

}  // namespace lanternix
