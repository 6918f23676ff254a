#include "panchanga/planet_strength.h"

#include <array>

namespace kelvaro {

namespace {

using StrengthRow = std::array<const char*, 12>;  // Aries (0) to Pisces (11)

constexpr StrengthRow kSun = {"Exa", "Enemy", "Neu", "Neu", "Own", "neu",
                              "deb", "friend", "friend", "enemy", "enemy", "Friend"};
constexpr StrengthRow kMoon = {"Neu", "Exa", "Friend", "Own", "friend", "friend",
                               "neu", "deb", "neu", "neu", "neu", "Neu"};
constexpr StrengthRow kMars = {"Own", "Neu", "Ene", "Deb", "friend", "enemy",
                               "neu", "own", "friend", "exa", "neu", "Friend"};
constexpr StrengthRow kMercury = {"Neu", "Friend", "Own", "Enemy", "friend", "exa-own",
                                  "friend", "neu", "neu", "neu", "neu", "Deb"};
constexpr StrengthRow kJupiter = {"Friend", "Neu", "Ene", "Exa", "friend", "friend",
                                  "enemy", "friend", "own", "deb", "neu", "Own"};
constexpr StrengthRow kVenus = {"Neu", "Own", "Friend", "Enemy", "Enemy", "deb",
                                "own", "neu", "friend", "friend", "friend", "Exa"};
constexpr StrengthRow kSaturn = {"Deb", "Friend", "Friend", "Enemy", "Enemy", "friend",
                                 "exa", "enemy", "neu", "own", "own", "Neu"};
constexpr StrengthRow kRahu = {"Neu", "Exa", "Friend", "Enemy", "Enemy", "friend",
                               "friend", "exa", "friend", "friend", "enemy", "Neu"};
constexpr StrengthRow kKethu = {"Enemy", "Deb", "Friend", "Enemy", "Enemy", "friend",
                                "friend", "deb", "neu", "friend", "enemy", "Neu"};

void Assign(const StrengthRow& row, std::int16_t house, std::string& strength) {
  if (house < 0 || house > 11) return;
  strength = row[static_cast<size_t>(house)];
}

}  // namespace

void clsPlanetStrength::FindPlanetStrength() {
  Assign(kSun, SunHouse, SunStrength);
  Assign(kMoon, MoonHouse, MoonStrength);
  Assign(kMars, MarsHouse, MarsStrength);
  Assign(kMercury, MercuryHouse, MercuryStrength);
  Assign(kJupiter, JupiterHouse, JupiterStrength);
  Assign(kVenus, VenusHouse, VenusStrength);
  Assign(kSaturn, SaturnHouse, SaturnStrength);
  Assign(kRahu, RahuHouse, RahuStrength);
  Assign(kKethu, KethuHouse, KethuStrength);
}

}  // namespace kelvaro
