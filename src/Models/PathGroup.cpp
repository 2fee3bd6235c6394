#include "Models/PathGroup.h"

#include <QtCore/QHashFunctions>

#include <array>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {
struct NamedColor {
  QLatin1StringView name;
  SystemColor color = SystemColor::blue;
};

constexpr std::array namedColors{
    NamedColor{"red"_L1, SystemColor::red},       NamedColor{"orange"_L1, SystemColor::orange},
    NamedColor{"yellow"_L1, SystemColor::yellow}, NamedColor{"green"_L1, SystemColor::green},
    NamedColor{"blue"_L1, SystemColor::blue},     NamedColor{"purple"_L1, SystemColor::purple},
    NamedColor{"pink"_L1, SystemColor::pink},     NamedColor{"indigo"_L1, SystemColor::indigo},
    NamedColor{"teal"_L1, SystemColor::teal},
};
}  // namespace

SystemColor PathGroup::color() const {
  for (const NamedColor &named : namedColors) {
    if (colorName == named.name) {
      return named.color;
    }
  }
  return SystemColor::blue;
}

size_t qHash(const PathGroup &group, size_t seed) noexcept {
  return qHashMulti(seed, group.id, group.name, group.iconName, group.colorName, group.order,
                    group.isExpanded);
}

}  // namespace lanternix
