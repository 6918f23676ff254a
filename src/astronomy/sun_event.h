#pragma once
// SunEvent: what the sunrise search found for one event (a rise or a set) of
// a civil date, in words a caller can show where there is no moment to show.
#include "common/ole_date.h"

namespace kelvaro {

enum class SunEventKind {
  OnDate,        // the event falls on the date asked for
  NextDate,      // it falls after midnight, on the following date
  SunStaysUp,    // none within a day after the date's start: the Sun does not set
  SunStaysDown,  // likewise, and the Sun is down: the Sun does not rise
};

struct SunEvent {
  SunEventKind kind = SunEventKind::OnDate;
  OleDate moment;  // the true moment to the whole minute; only for OnDate and NextDate

  bool Known() const { return kind == SunEventKind::OnDate || kind == SunEventKind::NextDate; }
};

// "Sun does not rise" or "Sun does not set" for an event that is not known,
// and an empty text for one that is.
const char* SunEventWords(const SunEvent& event);

}  // namespace kelvaro
