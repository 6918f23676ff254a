#include "shell/master_grids.h"

#include "store/text_rules.h"

namespace kelvaro::shell {

Grid CityGrid(const std::vector<store::CityRow>& cities) {
  Grid grid("mshCity");
  grid.SetHeader("City                        |   LatDeg     |  LatNS     |  LatMin     |  LonDeg     |  LonEW     |"
                 "  LonMin     ");
  grid.Resize(static_cast<int>(cities.size()) + 1, grid.Cols());
  int row = 1;
  for (const auto& c : cities) {
    const std::string cells[] = {c.name,
                                 store::NumberText(c.latDeg),
                                 c.latNS,
                                 store::NumberText(c.latMin),
                                 store::NumberText(c.lonDeg),
                                 c.lonEW,
                                 store::NumberText(c.lonMin)};
    for (int col = 0; col < 7; ++col) grid.SetText(row, col, cells[col]);
    ++row;
  }
  return grid;
}

Grid ZoneGrid(const std::vector<store::ZoneRow>& zones) {
  Grid grid("mshCity");
  grid.SetHeader("Time Zone                   |  SNo     |  Hours     |  East / West  ");
  grid.Resize(static_cast<int>(zones.size()) + 1, grid.Cols());
  int row = 1;
  for (const auto& z : zones) {
    const std::string cells[] = {z.place, std::to_string(z.sno), store::NumberText(z.timeDifference), z.direction};
    for (int col = 0; col < 4; ++col) grid.SetText(row, col, cells[col]);
    ++row;
  }
  return grid;
}

}  // namespace kelvaro::shell
