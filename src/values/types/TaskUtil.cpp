#include "values/types/TaskUtil.h"

#include <vector>

#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Tool.h"
#include "toolkit/Ui.h"
#include "values/types/CCreateGuid.h"
#include "values/types/Value.h"

namespace qv {

namespace {
std::vector<std::string> split(const std::string& text, const std::string& separator) {
    if (separator.empty()) return {text};
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string::npos; at = text.find(separator, from)) {
        parts.push_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    parts.push_back(text.substr(from));
    return parts;
}

std::string hexPart(const std::string& part) {
    const auto n = static_cast<uint32_t>(Value(part).toInt32());
    return n == 0 ? "00" : CCreateGuid::PadHex(n, 0);
}
}  // namespace

Tool* GetItemSelected(Tool& tool) {
    for (const auto& item : tool.items())
        if (item->caption() == tool.text()) return item.get();
    return nullptr;
}

std::string LongToRGB(int32_t color, const std::string& separator) {
    const int64_t c = color;
    const int64_t b = c / 65536;
    const int64_t g = (c - 65536 * b) / 256;
    const int64_t r = c - 65536 * b - 256 * g;
    return std::to_string(r) + separator + std::to_string(g) + separator + std::to_string(b);
}

std::string RGBToHex(const std::string& rgb, const std::string& separator) {
    const auto parts = split(rgb, separator);
    if (parts.size() < 3)
        throw Failure(err::SubscriptOutOfRange,
                      "Subscript out of range: \"" + rgb + "\" holds no three colour parts");
    return hexPart(parts[0]) + hexPart(parts[1]) + hexPart(parts[2]);
}

std::string LongToHex(int32_t color) {
    return RGBToHex(LongToRGB(color, ","), ",");
}

std::string ZapAmps(const std::string& text) {
    std::string out = text;
    for (char& c : out)
        if (c == '&') c = '+';
    return out;
}

void subDelay(float seconds) {
    Clock& clk = clock();
    const double start = clk.secondsSinceMidnight();
    double end = start + seconds;
    do {
        if (clk.secondsSinceMidnight() < start) end = start - 86400;
        ui().doEvents();
    } while (clk.secondsSinceMidnight() < end);
}

}  // namespace qv
