#include "Views/Style/Contrast.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/Palettes.h"
#include "Views/Style/SystemColors.h"

#include <QtGui/QPalette>

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace lanternix {

namespace {

struct Named {
  const char *name;
  QPalette (*make)();
};

/// Every palette of the program's own, with several accent colours.
class PalettesTest : public testing::TestWithParam<Named> {
 protected:
  static QList<QColor> accents() {
    return {QColor(0x007AFF), QColor(0xFFCC00),  QColor(0x34C759), QColor(0x5856D6),
            QColor(0xE62D42), QColor(Qt::black), QColor(Qt::white)};
  }

  /// Calls \p check with the palette in each accent colour.
  void forEachAccent(const std::function<void(const QPalette &)> &check) const {
    for (const QColor &accent : accents()) {
      SCOPED_TRACE(accent.name().toStdString());
      QPalette palette = GetParam().make();
      Palettes::setAccent(palette, accent);
      check(palette);
    }
  }

  static QColor onWindow(const QPalette &palette, const QColor &color) {
    return Contrast::laidOn(palette.color(QPalette::Window), color);
  }
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(, PalettesTest,
                         testing::Values(Named{"Light", Palettes::light},
                                         Named{"Dark", Palettes::dark},
                                         Named{"LightHighContrast", Palettes::lightHighContrast},
                                         Named{"DarkHighContrast", Palettes::darkHighContrast}),
                         [](const auto &instance) { return std::string(instance.param.name); });

TEST_P(PalettesTest, EveryRoleOfEveryGroup_IsFilled) {
  const QPalette palette = GetParam().make();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    for (int role = 0; role <= QPalette::PlaceholderText; ++role) {
      if (role != QPalette::NoRole) {
        EXPECT_TRUE(palette.isBrushSet(group, static_cast<QPalette::ColorRole>(role))) << role;
      }
    }
  }
}

TEST_P(PalettesTest, EveryText_IsReadableOnItsGround) {
  using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
  forEachAccent([](const QPalette &palette) {
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      for (const auto &[text, ground] :
           {Pair(QPalette::WindowText, QPalette::Window), Pair(QPalette::Text, QPalette::Base),
            Pair(QPalette::Text, QPalette::AlternateBase),
            Pair(QPalette::ButtonText, QPalette::Button),
            Pair(QPalette::ToolTipText, QPalette::ToolTipBase),
            Pair(QPalette::PlaceholderText, QPalette::Base),
            Pair(QPalette::PlaceholderText, QPalette::Window),
            Pair(QPalette::Link, QPalette::Window), Pair(QPalette::LinkVisited, QPalette::Window),
            Pair(QPalette::HighlightedText, QPalette::Highlight)}) {
        EXPECT_GE(Contrast::ratio(palette.color(group, text), palette.color(group, ground)), 4.5)
            << "role " << text;
      }
    }
  });
}

TEST_P(PalettesTest, TextInEveryFillStyle_IsReadableOnTheWindow) {
  forEachAccent([](const QPalette &palette) {
    for (const auto style : {FillStyle::primary, FillStyle::secondary, FillStyle::tertiary}) {
      EXPECT_GE(Contrast::ratio(fillColor(style, palette), palette.color(QPalette::Window)), 4.5);
    }
  });
}

TEST_P(PalettesTest, NameAndPathOfARow_AreReadableWhileItIsSelected) {
  forEachAccent([](const QPalette &palette) {
    const QColor selected = onWindow(palette, withOpacity(accentColor(palette), 0.15F));
    for (const auto style : {FillStyle::primary, FillStyle::secondary}) {
      EXPECT_GE(Contrast::ratio(fillColor(style, palette), selected), 4.5);
    }
  });
}

TEST_P(PalettesTest, TextOnACapsule_IsReadable) {
  const QPalette palette = GetParam().make();
  const QColor capsule = onWindow(palette, fillColor(FillStyle::quaternary, palette));
  for (const auto style : {FillStyle::secondary, FillStyle::tertiary}) {
    EXPECT_GE(Contrast::ratio(fillColor(style, palette, capsule), capsule), 4.5);
  }
}

TEST_P(PalettesTest, TheRanksOfText_AreToldApart) {
  const QPalette palette = GetParam().make();
  const auto contrast = [&palette](FillStyle style) {
    return Contrast::ratio(fillColor(style, palette), palette.color(QPalette::Window));
  };
  EXPECT_GT(contrast(FillStyle::primary), contrast(FillStyle::secondary) * 1.2);
  EXPECT_GT(contrast(FillStyle::secondary), contrast(FillStyle::tertiary) * 1.1);
}

TEST_P(PalettesTest, TheAccent_IsWhatIsSelected) {
  QPalette palette = GetParam().make();
  EXPECT_EQ(accentColor(palette), systemColor(SystemColor::blue, palette));
  Palettes::setAccent(palette, QColor(0xE62D42));
  EXPECT_EQ(accentColor(palette), QColor(0xE62D42));
}

TEST(PaletteTest, Light_IsDarkOnLight_AndDarkTheReverse) {
  EXPECT_EQ(Palettes::light().color(QPalette::Window), QColor(0xF6F6F7));
  EXPECT_FALSE(isDark(Palettes::light()));
  EXPECT_EQ(Palettes::dark().color(QPalette::Window), QColor(0x262629));
  EXPECT_TRUE(isDark(Palettes::dark()));
}

TEST(PaletteTest, HighContrast_IsBlackAndWhite) {
  EXPECT_EQ(Palettes::lightHighContrast().color(QPalette::Window), QColor(Qt::white));
  EXPECT_EQ(Palettes::lightHighContrast().color(QPalette::WindowText), QColor(Qt::black));
  EXPECT_EQ(Palettes::darkHighContrast().color(QPalette::Window), QColor(Qt::black));
  EXPECT_EQ(Palettes::darkHighContrast().color(QPalette::WindowText), QColor(Qt::white));
}

TEST(PaletteTest, FillStylesOfAFaintPalette_GiveWayToReadability) {
  QPalette faint = Palettes::light();
  faint.setColor(QPalette::WindowText, QColor(0x606060));
  EXPECT_GE(Contrast::ratio(fillColor(FillStyle::tertiary, faint), faint.color(QPalette::Window)),
            4.5);
}

TEST(PaletteTest, TextTooFaintForItsGround_MakesAPaletteUnreadable) {
  QPalette palette = Palettes::light();
  EXPECT_TRUE(Palettes::isReadable(palette));
  palette.setColor(QPalette::ButtonText, QColor(0x909090));
  EXPECT_FALSE(Palettes::isReadable(palette));
}

}  // namespace lanternix
