#pragma once
// A footer text of the print settings as it prints: the date picks become
// today's date in their form and the page-number pick the engine's page
// field; any other text prints as it stands.

#include <string>

namespace qv {

// now: a day serial.
[[nodiscard]] std::string footerPart(const std::string& stored, double now);

// The engine's field for the page number.
inline constexpr const char* kPageNumField = "{PageNum}";

}  // namespace qv
