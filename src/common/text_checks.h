#pragma once
// Text at the edge of the program: is it valid UTF-8, and how a value is
// quoted in a message so that a long, binary or multi-line value cannot
// swamp or break the line it stands on.
#include <cstddef>
#include <string>
#include <string_view>

namespace kelvaro {

// Well-formed UTF-8: no stray continuation bytes, no overlong forms, no
// surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view text);

// The value for a message: control characters and bytes that are not valid
// UTF-8 written as \n, \t, \r or \xNN, and cut after `maxCharacters`
// characters with "..." after it.
std::string MessageValue(std::string_view text, std::size_t maxCharacters = 60);

}  // namespace kelvaro
