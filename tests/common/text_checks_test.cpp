#include "common/text_checks.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(TextChecks, Utf8AndMessageValues) {
  struct Case {
    std::string text;
    bool valid;
  } cases[] = {
      {"Velnesh", true},
      {"\xE0\xA4\xB0\xE0\xA4\xBE\xE0\xA4\xAE", true},  // Devanagari
      {"\xF0\x9F\x98\x80", true},                      // U+1F600, four bytes
      {"\xFF", false},                                 // never in UTF-8
      {"\xC0\xAF", false},                             // overlong "/"
      {"\xE0\x80\xAF", false},                         // overlong, three bytes
      {"\xED\xA0\x80", false},                         // a surrogate
      {"\xF4\x90\x80\x80", false},                     // above U+10FFFF
      {"\xE0\xA4", false},                             // cut short
      {"a\x80", false},                                // stray continuation byte
  };
  for (const Case& c : cases) EXPECT_EQ(IsValidUtf8(c.text), c.valid) << MessageValue(c.text);

  EXPECT_EQ(MessageValue("two\nlines\tand\x01"), "two\\nlines\\tand\\x01");
  EXPECT_EQ(MessageValue("bad\xFF" "byte"), "bad\\xFFbyte");
  EXPECT_EQ(MessageValue(std::string(100, '9'), 8), "99999999...");
  // Cut by characters, never inside one.
  EXPECT_EQ(MessageValue("\xE0\xA4\xB0\xE0\xA4\xBE\xE0\xA4\xAE", 2), "\xE0\xA4\xB0\xE0\xA4\xBE...");
}

}  // namespace
}  // namespace kelvaro
