#include "common/text_checks.h"

#include <cstdio>

namespace kelvaro {

namespace {

// The length of the well-formed UTF-8 sequence at `i`, or 0.
std::size_t SequenceLength(std::string_view s, std::size_t i) {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
  const unsigned char b = byte(i);
  if (b < 0x80) return 1;
  std::size_t n = 0;
  unsigned char low = 0x80, high = 0xBF;
  if (b >= 0xC2 && b <= 0xDF) {
    n = 2;
  } else if (b >= 0xE0 && b <= 0xEF) {
    n = 3;
    if (b == 0xE0) low = 0xA0;   // no overlong forms
    if (b == 0xED) high = 0x9F;  // no surrogates
  } else if (b >= 0xF0 && b <= 0xF4) {
    n = 4;
    if (b == 0xF0) low = 0x90;
    if (b == 0xF4) high = 0x8F;  // nothing above U+10FFFF
  } else {
    return 0;
  }
  if (i + n > s.size()) return 0;
  if (byte(i + 1) < low || byte(i + 1) > high) return 0;
  for (std::size_t k = 2; k < n; ++k) {
    if (byte(i + k) < 0x80 || byte(i + k) > 0xBF) return 0;
  }
  return n;
}

}  // namespace

bool IsValidUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t n = SequenceLength(text, i);
    if (n == 0) return false;
    i += n;
  }
  return true;
}

std::string MessageValue(std::string_view text, std::size_t maxCharacters) {
  std::string out;
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (characters == maxCharacters) {
      out += "...";
      break;
    }
    const std::size_t n = SequenceLength(text, i);
    const auto b = static_cast<unsigned char>(text[i]);
    if (n == 1 && b == '\n') {
      out += "\\n";
    } else if (n == 1 && b == '\t') {
      out += "\\t";
    } else if (n == 1 && b == '\r') {
      out += "\\r";
    } else if (n == 0 || (n == 1 && (b < 0x20 || b == 0x7F))) {
      char escaped[5];
      std::snprintf(escaped, sizeof escaped, "\\x%02X", b);
      out += escaped;
    } else {
      out.append(text.substr(i, n));
    }
    i += n == 0 ? 1 : n;
    ++characters;
  }
  return out;
}

}  // namespace kelvaro
