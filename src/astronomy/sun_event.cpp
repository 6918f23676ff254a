#include "astronomy/sun_event.h"

namespace kelvaro {

const char* SunEventWords(const SunEvent& event) {
  switch (event.kind) {
    case SunEventKind::SunStaysUp: return "Sun does not set";
    case SunEventKind::SunStaysDown: return "Sun does not rise";
    default: return "";
  }
}

}  // namespace kelvaro
