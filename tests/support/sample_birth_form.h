#pragma once
// The sample chart as the birth form holds it: Velnesh, 14 Jul 1965, 02:15
// PM, Hyderabad (A.P), India, 17 N 20, 78 E 30, zone 5.5 E.
#include "horoscope/birth_form.h"

namespace kelvaro::testing {

inline BirthFormFields SampleBirthForm() {
  BirthFormFields f;
  f.name = "Velnesh";
  f.day = "14";
  f.month = "Jul";
  f.year = "1965";
  f.hour = "02";
  f.minute = "15";
  f.pm = true;
  f.country = "India";
  f.city = "Hyderabad (A.P)";
  f.zone = "Asia/Kolkata  (5.5 hrs E)";
  f.latDeg = 17;
  f.latMin = 20;
  f.lonDeg = 78;
  f.lonMin = 30;
  f.timeDiff = 5.5;
  return f;
}

}  // namespace kelvaro::testing
