#include "analysis/lords.h"

#include <gtest/gtest.h>

#include <string>

#include "common/calculation_error.h"
#include "support/sample_chart.h"

namespace kelvaro {
namespace {

// The Sanskrit tables, so that a local name differs from its English lord.
using testing::SanskritNames;

TEST(Lords, DegreesInRasiSubtractsThirtyWhileThirtyOrMore) {
  struct Case {
    double longitude, expected;
  };
  const Case cases[] = {
      {0, 0}, {29.999, 29.999}, {30, 0}, {65, 5}, {359.5, 29.5}, {-5, -5},
  };
  for (const Case& c : cases) EXPECT_DOUBLE_EQ(DegreesInRasi(c.longitude), c.expected) << c.longitude;
}

TEST(Lords, RasiLordByRasiAndByNavamsa) {
  struct Case {
    double longitude;
    const char* kind;
    const char* lord;
  };
  const Case cases[] = {
      {0, "Rasi", "Mars"},        {29.99, "Rasi", "Mars"},     {30, "Rasi", "Venus"},
      {100, "Rasi", "Moon"},      {125, "Rasi", "Sun"},        {305, "Rasi", "Saturn"},
      {359.9, "Rasi", "Jupiter"},
      // Navamsa rasis of 3.33333333333333 through the whole zodiac.
      {0, "Navamsa", "Mars"},     {3.4, "Navamsa", "Venus"},   {36.5, "Navamsa", "Saturn"},
      // 10 / 3.33333333333333 is 3.000000000000003: the short literal puts
      // 10 degrees in the fourth navamsa, not the third.
      {10, "Navamsa", "Moon"},
      // 40 degrees starts the thirteenth navamsa, which is Aries again.
      {40, "Navamsa", "Mars"},    {359.99, "Navamsa", "Jupiter"},
      // Any kind but "Rasi" counts navamsas.
      {10, "rasi", "Moon"},
      // A negative longitude has rasi 0, which has no lord.
      {-1, "Rasi", ""},           {-1, "Navamsa", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(RasiLordOf(c.longitude, c.kind), c.lord) << c.longitude << " " << c.kind;
}

TEST(Lords, StarLordCountsAbhijitWithTheSun) {
  struct Case {
    int star;
    const char* lord;
  };
  const Case cases[] = {
      {1, "Kethu"},  {2, "Venus"},  {9, "Mercury"}, {10, "Kethu"}, {21, "Sun"},
      {22, "Sun"},   {23, "Moon"},  {28, "Mercury"}, {0, ""},       {29, ""},
  };
  for (const Case& c : cases) EXPECT_EQ(StarLordOf(c.star), c.lord) << c.star;
}

TEST(Lords, LocalisedNameFollowsLongNamesWithVenusBeforeJupiter) {
  const ChartData chart = SanskritNames();
  struct Case {
    const char* english;
    const char* local;
  };
  const Case cases[] = {
      {"Sun", "Surya"},  {"Moon", "Chandra"}, {"Mars", "Kuja"}, {"Mercury", "Budha"}, {"Jupiter", "Guru"},
      {"Venus", "Sukra"}, {"Saturn", "Sani"}, {"Rahu", "Rahu"}, {"Kethu", "Ketu"},
      // Only the nine lord names are known.
      {"Ketu", ""},      {"Lagna", ""},       {"Asc", ""},      {"", ""},             {"sun", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(LocalisedPlanetName(chart, c.english), c.local) << c.english;
}

TEST(Lords, RasiNameOfOneToTwelve) {
  const ChartData chart = SanskritNames();
  EXPECT_EQ(RasiNameOf(chart, 1), "Mesha");
  EXPECT_EQ(RasiNameOf(chart, 10), "Makara");
  EXPECT_EQ(RasiNameOf(chart, 12), "Meena");
  EXPECT_THROW(RasiNameOf(chart, 0), CalculationError);
  EXPECT_THROW(RasiNameOf(chart, 13), CalculationError);
}

}  // namespace
}  // namespace kelvaro
