#pragma once
// The bhukti and antra periods grouped as the printed pages show them: one
// block per dasa (bhuktis) or per bhukti (antras), headed by the lords'
// names in the language of the report. The text pages and the typeset PDF
// both lay these out.
#include <string>
#include <vector>

#include "analysis/dasa.h"

namespace kelvaro {

struct PeriodEntry {
  std::string lord, start, end;
};

struct PeriodBlock {
  std::string heading;  // "Sun - Bhukti", "Moon - Mars - Antra"
  std::vector<PeriodEntry> lines;
};

// The bhuktis by dasa, with the dates of mshBukti.
std::vector<PeriodBlock> BhuktiPeriodBlocks(const DasaTables& dasa);
// The antras by bhukti, with the dates of mshAntra (which has a section row
// before each run of nine).
std::vector<PeriodBlock> AntraPeriodBlocks(const DasaTables& dasa);

}  // namespace kelvaro
