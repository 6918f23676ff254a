#include "report/period_blocks.h"

#include <functional>
#include <map>
#include <string_view>

namespace kelvaro {

namespace {

using LordNames = std::map<std::string, std::string, std::less<>>;

std::string Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string GridText(const Grid& grid, int row, int col) {
  return row < grid.Rows() && col < grid.Cols() ? Trim(grid.Text(row, col)) : std::string();
}

// The English lord names of the dasa lists in the language of the report,
// as the dasa grid shows each of the nine lords.
LordNames LocalLordNames(const DasaTables& dasa) {
  LordNames names;
  for (size_t k = 0; k < dasa.DasaLord.size(); ++k) {
    const int row = static_cast<int>(k) + 1;
    if (row < dasa.mshDasa.Rows() && dasa.mshDasa.Cols() > 0) names[dasa.DasaLord[k]] = Trim(dasa.mshDasa.Text(row, 0));
  }
  return names;
}

const std::string& Local(const LordNames& names, const std::string& lord) {
  const auto it = names.find(lord);
  return it == names.end() || it->second.empty() ? lord : it->second;
}

}  // namespace

std::vector<PeriodBlock> BhuktiPeriodBlocks(const DasaTables& dasa) {
  const LordNames names = LocalLordNames(dasa);
  std::vector<PeriodBlock> blocks;
  for (size_t i = 0; i < dasa.bhuktis.size(); ++i) {
    const DasaPeriod& p = dasa.bhuktis[i];
    if (i == 0 || p.dasaLord != dasa.bhuktis[i - 1].dasaLord) blocks.push_back({Local(names, p.dasaLord) + " - Bhukti", {}});
    const int row = static_cast<int>(i) + 1;
    blocks.back().lines.push_back(
        {Local(names, p.bhuktiLord), GridText(dasa.mshBukti, row, 1), GridText(dasa.mshBukti, row, 2)});
  }
  return blocks;
}

std::vector<PeriodBlock> AntraPeriodBlocks(const DasaTables& dasa) {
  const LordNames names = LocalLordNames(dasa);
  std::vector<PeriodBlock> blocks;
  int row = 0;
  for (size_t i = 0; i < dasa.antras.size(); ++i) {
    const DasaPeriod& p = dasa.antras[i];
    if (i % 9 == 0) {
      blocks.push_back({Local(names, p.dasaLord) + " - " + Local(names, p.bhuktiLord) + " - Antra", {}});
      ++row;
    }
    ++row;
    blocks.back().lines.push_back(
        {Local(names, p.antraLord), GridText(dasa.mshAntra, row, 1), GridText(dasa.mshAntra, row, 2)});
  }
  return blocks;
}

}  // namespace kelvaro
