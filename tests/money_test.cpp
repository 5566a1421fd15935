#include <gtest/gtest.h>

#include <limits>

#include "game/currency.h"
#include "game/random.h"
#include "game/text.h"

namespace zelvo {
namespace {

Currency Counts(std::int64_t counts) { return Currency::FromCounts(counts); }

TEST(Currency, ProductsRoundTiesToTheEvenCount) {
  struct Row {
    std::int64_t amount, rate, product;
  };
  for (const auto& [amount, rate, product] :
       {Row{500'000'000, 400, 20'000'000}, Row{1, 5'000, 0},  // half a count, even below
        Row{3, 5'000, 2},                                     // one and a half, even above
        Row{5, 5'000, 2}, Row{-1, 5'000, 0}, Row{-3, 5'000, -2}, Row{1, 5'001, 1},
        Row{-1, 5'001, -1}, Row{1, 4'999, 0}}) {
    EXPECT_EQ((Counts(amount) * Counts(rate)).counts(), product) << amount << " x " << rate;
  }
}

TEST(Currency, SharesRoundEveryStepInDoublePrecision) {
  struct Row {
    std::int64_t amount;
    double rate;
    std::int64_t share;
  };
  for (const auto& [amount, rate, share] :
       {Row{1'000'000'000, 0.05, 50'000'000}, Row{10, 0.05, 0}, Row{30, 0.05, 2}, Row{50, 0.05, 2},
        Row{-30, 0.05, -2}, Row{0, 0.22, 0},

        Row{15'550, 0.07, 1088}, Row{-1'000'000, 0.3, -300'000}}) {
    EXPECT_EQ(Counts(amount).Share(rate).counts(), share) << amount << " at " << rate;
  }
}

TEST(Currency, SaturatesAtBothEnds) {
  const Currency highest = Counts(std::numeric_limits<std::int64_t>::max());
  const Currency lowest = Counts(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(highest + Counts(1), highest);
  EXPECT_EQ(lowest - Counts(1), lowest);
  EXPECT_EQ(-lowest, highest);
  EXPECT_EQ(highest * 2, highest);
  EXPECT_EQ(highest * -2, lowest);
  EXPECT_EQ(highest * Dollars(2), highest);
  EXPECT_EQ(lowest * Dollars(2), lowest);
  EXPECT_EQ(highest.Share(1.5), highest);
  EXPECT_EQ(lowest.Share(1.5), lowest);
  EXPECT_EQ(Dollars(std::numeric_limits<std::int64_t>::max()), highest);
}

TEST(Text, MoneyAndNumberForms) {
  struct Row {
    std::int64_t counts;
    const char* money;
    const char* winner;
    const char* number;
  };
  for (const auto& [counts, money, winner, number] :
       {Row{0, "$0", "$", " 0"}, Row{10'000, "$1", "$1", " 1"},
        Row{500'000'000, "$50,000", "$50,000", " 50000"},
        Row{12'345'670'000, "$1,234,567", "$1,234,567", " 1234567"},
        Row{1'005'000, "$101", "$101", " 100.5"}, Row{-1'005'000, "-$101", "-$101", "-100.5"},
        Row{4'999, "$0", "$", " .4999"}, Row{-4'999, "$0", "$", "-.4999"},
        Row{-5'000, "-$1", "-$1", "-.5"}, Row{500, "$0", "$", " .05"},
        Row{1'234'567'895'000, "$123,456,790", "$123,456,790", " 123456789.5"},
        Row{std::numeric_limits<std::int64_t>::min(), "-$922,337,203,685,478",
            "-$922,337,203,685,478", "-922337203685477.5808"}}) {
    EXPECT_EQ(MoneyText(Counts(counts)), money);
    EXPECT_EQ(WinnerMoneyText(Counts(counts)), winner);
    EXPECT_EQ(NumberText(Counts(counts)), number);
  }
}

TEST(Text, NumbersAreReadUpToTheFirstStrangeCharacter) {
  struct Row {
    const char* text;
    int number;
  };
  for (const auto& [text, number] :
       {Row{"", 0}, Row{"CS", 0}, Row{"0", 0}, Row{" 1", 1}, Row{"  12 3", 12}, Row{"7x", 7},
        Row{"-4", -4}, Row{"99999999999999999999", 1'000'000'000}}) {
    EXPECT_EQ(NumberFrom(text), number) << text;
  }
}

TEST(RandomGenerator, FirstNumbersAndTheRepeatedOne) {
  RandomGenerator generator;
  const auto next = [&](int argument) {
    return static_cast<double>(generator.Next(argument)) / RandomGenerator::modulus;
  };
  EXPECT_NEAR(next(4), 0.7055475, 5e-8);
  EXPECT_NEAR(next(236), 0.533424, 5e-8);
  EXPECT_NEAR(next(0), 0.533424, 5e-8);  // an argument of 0 repeats the last number
  EXPECT_NEAR(next(1), 0.5795186, 5e-8);
}

}  // namespace
}  // namespace zelvo
