#include "Services/JsonNumber.h"

#include <array>
#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace lanternix {
namespace {

std::string written(double value) {
  std::array<char, longestJsonNumber> buffer{};
  return {buffer.data(), writeJsonNumber(value, buffer.data())};
}

TEST(JsonNumber, LeadingNumber_EndsWhereTheGrammarDoes) {
  EXPECT_EQ(leadingJsonNumber("12,"), "12");
  EXPECT_EQ(leadingJsonNumber("-0.50e+7]"), "-0.50e+7");
  EXPECT_EQ(leadingJsonNumber("012"), "0");
  EXPECT_EQ(leadingJsonNumber("0x1"), "0");
}

TEST(JsonNumber, LeadingNumber_OfAnythingElse_IsEmpty) {
  for (const char *text :
       {"", "-", "+1", ".5", "1.", "1.e5", "1e", "1e+", "Infinity", "NaN", "a"}) {
    EXPECT_TRUE(leadingJsonNumber(text).isEmpty()) << text;
  }
}

TEST(JsonNumber, Integer_OfPlainDigits_CoversSixtyFourBits) {
  EXPECT_EQ(integerFromJsonNumber("0"), 0);
  EXPECT_EQ(integerFromJsonNumber("-0"), 0);
  EXPECT_EQ(integerFromJsonNumber("9223372036854775807"), std::numeric_limits<qint64>::max());
  EXPECT_EQ(integerFromJsonNumber("-9223372036854775808"), std::numeric_limits<qint64>::min());
  EXPECT_EQ(integerFromJsonNumber("9223372036854775808"), std::nullopt);
  EXPECT_EQ(integerFromJsonNumber("-9223372036854775809"), std::nullopt);
}

TEST(JsonNumber, Integer_SpelledWithPointOrExponent_IsTakenWhenWhole) {
  EXPECT_EQ(integerFromJsonNumber("1.0"), 1);
  EXPECT_EQ(integerFromJsonNumber("-120.00"), -120);
  EXPECT_EQ(integerFromJsonNumber("1.25e2"), 125);
  EXPECT_EQ(integerFromJsonNumber("5000E-3"), 5);
  EXPECT_EQ(integerFromJsonNumber("1e18"), 1'000'000'000'000'000'000);
  EXPECT_EQ(integerFromJsonNumber("0.0e-999999999999999999999"), 0);
  EXPECT_EQ(integerFromJsonNumber("0e999999999999999999999"), 0);
}

TEST(JsonNumber, Integer_SpelledWithPoint_IsExactBeyondTheDigitsOfADouble) {
  EXPECT_EQ(integerFromJsonNumber("9007199254740993.0"), 9'007'199'254'740'993);
  EXPECT_EQ(integerFromJsonNumber("9223372036854775807.0"), std::numeric_limits<qint64>::max());
  EXPECT_EQ(integerFromJsonNumber("9223372036854775808.0"), std::nullopt);
  EXPECT_EQ(integerFromJsonNumber("-9.223372036854775808e18"), std::numeric_limits<qint64>::min());
}

TEST(JsonNumber, Integer_WithAFractionOrOutOfRange_IsNone) {
  for (const char *text :
       {"1.5", "0.1", "1e-1", "1e30", "-1e30", "12345e-3", "1e19", "1e9999999999999999999999",
        "1e-9999999999999999999999", "1e9223372036854775807", "10e-9223372036854775808"}) {
    EXPECT_EQ(integerFromJsonNumber(text), std::nullopt) << text;
  }
}

TEST(JsonNumber, Real_KeepsTheSignOfZero) {
  EXPECT_FALSE(std::signbit(*realFromJsonNumber("0")));
  EXPECT_TRUE(std::signbit(*realFromJsonNumber("-0")));
  EXPECT_TRUE(std::signbit(*realFromJsonNumber("-0.0e5")));
}

TEST(JsonNumber, Real_ReachesBothEndsOfTheRange) {
  EXPECT_EQ(realFromJsonNumber("5e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(realFromJsonNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
  EXPECT_EQ(realFromJsonNumber("1e20"), 1e20);
}

TEST(JsonNumber, Real_BeyondTheRange_IsNone) {
  for (const char *text : {"1e309", "-1e309", "1e-400", "1e99999999999999999999"}) {
    EXPECT_EQ(realFromJsonNumber(text), std::nullopt) << text;
  }
}

TEST(JsonNumber, Written_WholeNumbers_HaveNoFraction) {
  EXPECT_EQ(written(0), "0");
  EXPECT_EQ(written(-0.0), "-0");
  EXPECT_EQ(written(700'000'000), "700000000");
  EXPECT_EQ(written(-978'307'200), "-978307200");
  EXPECT_EQ(written(9'007'199'254'740'992), "9007199254740992");
}

TEST(JsonNumber, Written_Fractions_AreAsShortAsReadsBack) {
  EXPECT_EQ(written(0.1), "0.1");
  EXPECT_EQ(written(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(written(762'345'678.123456), "762345678.123456");
}

TEST(JsonNumber, Written_BetweenTheLimits_HasNoExponent) {
  EXPECT_EQ(written(1e-4), "0.0001");
  EXPECT_EQ(written(18'014'398'509'481'982), "18014398509481982");
  EXPECT_EQ(written(-1e16), "-10000000000000000");
}

TEST(JsonNumber, Written_BeyondTheLimits_HasAnExponent) {
  EXPECT_EQ(written(9.999e-5), "9.999e-05");
  EXPECT_EQ(written(18'014'398'509'481'984), "1.8014398509481984e+16");
  EXPECT_EQ(written(1e20), "1e+20");
  EXPECT_EQ(written(5e-324), "5e-324");
}

TEST(JsonNumber, Written_AnyFiniteDouble_ReadsBackBitForBit) {
  std::mt19937_64 generator(1);
  for (int i = 0; i < 200'000; ++i) {
    const auto value = std::bit_cast<double>(generator());
    if (std::isfinite(value)) {
      const std::string text = written(value);
      ASSERT_EQ(leadingJsonNumber(text), QByteArrayView(text));
      ASSERT_EQ(std::bit_cast<quint64>(*realFromJsonNumber(text)), std::bit_cast<quint64>(value))
          << text;
    }
  }
}

}  // namespace
}  // namespace lanternix
