#include "horoscope/report_input.h"

#include <utility>

#include "analysis/rasi_number.h"

namespace kelvaro {

TitlePageValues TitlePageValuesOf(const BirthSummary& b) {
  TitlePageValues t;
  t.name = b.txtGName;
  t.sex = b.txtSex;
  t.dateOfBirth = b.Txt_BC_Date;
  t.timeOfBirth = b.txtTimeOfBirth;
  t.lmt = b.txtlmt;
  t.gmt = b.txtgmt;
  t.timeZone = b.txtTimeZone;
  t.ishtaGhati = b.txtIshtaGhati;
  t.birthCountry = b.txtCountry;
  t.birthCity = b.txtCity;
  t.latitude = b.txtLatutude;
  t.longitude = b.txtLongitude;
  t.sunRise = b.txtSunRise;
  t.sunSet = b.txtSunSet;
  t.ayanamsa = b.txtAyanamsa;
  t.vedicDay = b.txtVedic;
  t.gregorianDay = b.txtGregorian;
  t.solarDate = b.txtSolarDate;
  t.lunarSukladiDate = b.txtSLunarDate;
  t.lunarKrishnadiDate = b.txtKLunarDate;
  t.kaliyugaYear = b.txtKaliyugaYear;
  t.ayana = b.txtAyana;
  t.janmaLagna = b.txtLagna;
  t.janmaRasi = b.txtRasi;
  t.star = b.txtStar;
  t.tithi = b.txtTithi;
  t.paksha = b.txtPaksha;
  t.yogam = b.txtYogam;
  t.karnam = b.txtKarnam;
  t.clockOffset = b.txtClockOffset;
  return t;
}

ReportInput ReportInputOf(const CalculationContext& ctx, OwnerDetails owner, bool withAntra) {
  ReportInput input{TitlePageValuesOf(ctx.summary), std::move(owner), ctx.state.ChartStyle, ctx.state.BhavaSystem,
                    ctx.cells,  ctx.planets, ctx.bhava, ctx.vargas, ctx.ashtakavarga, ctx.dasa, withAntra};
  input.rasiLagnaSign = RasiOfLongitude(ctx.state.LagnaLon, kRasiDivision);
  input.navamsaLagnaSign = RasiOfLongitude(ctx.state.LagnaLon, kNavamsaDivision);
  return input;
}

}  // namespace kelvaro
