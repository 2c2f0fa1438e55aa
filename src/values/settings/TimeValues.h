#pragma once
// Durations as the dialogs show and take them: whole minutes in the store,
// a compact text ("3:07", "2 Days", "1W 2D 3:07") on screen. The length of
// a day comes from DateFormats: HoursInDay, D5Start and D5End.

#include <cstdint>
#include <string>

namespace qv {

// Minutes to text. Under the trap: a failure (unreadable or zero day
// lengths, minutes beyond 32 bits) is reported and gives the empty text.
std::string SetTimeFormat(double minutes);

// Text to minutes. Never fails: what it cannot read gives 0.
int32_t FormatCTasTime(const std::string& text);

// Whether a typed time may be saved; an unreadable day or week count is told
// to the user ("Unable to read that time value. Resetting.") and gives false.
bool CheckCTasTime(const std::string& text);

// Whether a time cell's text is a time. A text with a day count of 0 or
// more always fails and goes to the reporter; the result is then false.
bool IsTimeValue(const std::string& text);

// Whether the text reads as a clock time ("9:30", "3:00:00 PM").
bool IsTime(const std::string& text);

}  // namespace qv
