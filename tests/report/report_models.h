#pragma once
// Small hand-made models for the report tests: a few cells, a few grid rows,
// and dasa lists whose dates are plain labels, so that every page can be
// laid out by hand.
#include <string>

#include "analysis/dasa.h"
#include "report/report_pages.h"

namespace kelvaro::testing {

struct ReportModels {
  ChartCells cells;
  PlanetTable planets;
  BhavaTables bhava;
  Vargas vargas;
  Ashtakavarga ashtakavarga;
  DasaTables dasa;

  ReportInput Input(bool withAntra = false, std::string style = "South", std::string system = "Equal") const {
    return ReportInput{Title(), {}, std::move(style), std::move(system), cells, planets, bhava, vargas,
                       ashtakavarga, dasa, withAntra};
  }

  static TitlePageValues Title() {
    TitlePageValues t;
    t.name = "Velnesh";
    t.sex = "Male";
    t.dateOfBirth = "14 / 7 / 1965";
    t.timeOfBirth = "2 : 15  PM";
    t.lmt = "14:07:00";
    t.gmt = "08:45:00";
    t.timeZone = "5.5 E";
    t.ishtaGhati = "19.15";
    t.birthCountry = "India";
    t.birthCity = "Hyderabad (A.P)";
    t.latitude = "17 20 N";
    t.longitude = "78 30 E";
    t.sunRise = "05:50:12";
    t.sunSet = "18:51:40";
    t.ayanamsa = "23.21.36";
    t.vedicDay = "Wednesday";
    t.gregorianDay = "Wednesday";
    t.solarDate = "Mithuna 30";
    t.lunarSukladiDate = "Ashada Sukla 16";
    t.lunarKrishnadiDate = "Shravana Krishna 1";
    t.kaliyugaYear = "Vishvavasu";
    t.ayana = "Dakshinayana";
    t.janmaLagna = "Libra";
    t.janmaRasi = "Capricon";
    t.star = "Uttarashada";
    t.tithi = "Pournami";
    t.paksha = "Sukla";
    t.yogam = "Vaidhriti";
    t.karnam = "Bava";
    return t;
  }
};

// The nine lords in running order from Sun, English.
inline const char* LordAt(int k) { return kDasaYears[static_cast<size_t>(k % 9)].lord; }

// A dasa of nine lords from Sun with `firstBhuktis` sub-periods left in the
// first dasa and nine in each other, all 729 antras, and grids whose dates are
// "sD.B" / "eD.B" (dasa, bhukti) or "sD.B.A" / "eD.B.A", so that a line shows
// which period it came from. The grids show Ketu for Kethu, as the names do.
inline void FillDasaModel(DasaTables& dasa, int firstBhuktis) {
  auto shown = [](const std::string& lord) { return lord == "Kethu" ? std::string("Ketu") : lord; };
  dasa.mshDasa.Resize(10, 4);
  for (int k = 0; k < 9; ++k) {
    dasa.DasaLord[static_cast<size_t>(k)] = LordAt(k);
    dasa.mshDasa.SetText(k + 1, 0, shown(LordAt(k)));
    dasa.mshDasa.SetText(k + 1, 1, "s" + std::to_string(k));
    dasa.mshDasa.SetText(k + 1, 2, "e" + std::to_string(k));
    dasa.mshDasa.SetText(k + 1, 3, std::to_string(k * 10));
  }
  dasa.DasaBalanceText = "Sun Dasa  2 Years 0 Months 17 Days ";
  dasa.bhuktis.clear();
  for (int k = 0; k < 9; ++k) {
    for (int j = 0; j < 9; ++j) {
      if (k == 0 && j < 9 - firstBhuktis) continue;
      dasa.bhuktis.push_back({LordAt(k), LordAt(k + j), {}, {}, {}});
    }
  }
  dasa.mshBukti.Resize(1 + static_cast<int>(dasa.bhuktis.size()), 4);
  for (size_t i = 0; i < dasa.bhuktis.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    dasa.mshBukti.SetText(row, 0, shown(dasa.bhuktis[i].bhuktiLord) + " Dasa");
    dasa.mshBukti.SetText(row, 1, "b" + std::to_string(i) + "s");
    dasa.mshBukti.SetText(row, 2, "b" + std::to_string(i) + "e");
  }
  dasa.antras.clear();
  dasa.mshAntra.Resize(1 + 810, 4);
  int row = 1;
  for (int k = 0; k < 9; ++k) {
    for (int j = 0; j < 9; ++j) {
      dasa.mshAntra.SetText(row++, 0, shown(LordAt(k)) + " Dasa, " + shown(LordAt(k + j)) + " Bhukthi");
      for (int a = 0; a < 9; ++a) {
        dasa.antras.push_back({LordAt(k), LordAt(k + j), LordAt(k + j + a), {}, {}});
        const std::string id = std::to_string(k) + "." + std::to_string(j) + "." + std::to_string(a);
        dasa.mshAntra.SetText(row, 0, shown(LordAt(k + j + a)));
        dasa.mshAntra.SetText(row, 1, "s" + id);
        dasa.mshAntra.SetText(row, 2, "e" + id);
        ++row;
      }
    }
  }
}

}  // namespace kelvaro::testing
