#pragma once
// Small helpers the dialogs share: the chosen entry of a list tool, colour
// texts, caption-safe names and a wait that keeps events flowing.

#include <cstdint>
#include <string>

namespace qv {

class Tool;

// The first sub-item whose caption equals the tool's text, or nullptr.
[[nodiscard]] Tool* GetItemSelected(Tool& tool);

// "R<sep>G<sep>B" of a colour long (red in the low byte).
[[nodiscard]] std::string LongToRGB(int32_t color, const std::string& separator);
// The first three parts in hexadecimal, joined. A 0 part is "00"; no other
// part is padded, so 10 gives "A" and "255,0,10" gives "FF00A": the report
// builder takes these texts as they are. Throws Failure for fewer than three
// parts or a part that is no number.
[[nodiscard]] std::string RGBToHex(const std::string& rgb, const std::string& separator);
[[nodiscard]] std::string LongToHex(int32_t color);

// "&" marks a hot key in a caption: every one becomes "+".
[[nodiscard]] std::string ZapAmps(const std::string& text);

// Waits the given seconds by the clock's seconds since midnight, pumping
// events meanwhile. Past midnight the wait ends at once. With the fake clock
// and the scripted Ui every pump moves the clock a few milliseconds, so the
// wait ends without sleeping.
void subDelay(float seconds);

}  // namespace qv
