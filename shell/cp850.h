#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

/// Text in the DOS code page 850, one byte a character, as UTF-8. Each of the 256 bytes means a
/// character; those below 128 are ASCII, control characters too.
std::string aus_CP850(std::string_view bytes);

/// UTF-8 as bytes of the code page 850; what the page doesn't hold is "?".
std::string nach_CP850(std::string_view utf8);

}  // namespace polarkreis
