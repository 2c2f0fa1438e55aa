#pragma once
// What every fuzz target installs once: a scripted Ui that answers every
// message box with OK, a fake clock, and a reporter that only counts.

#include <cstddef>
#include <cstdint>
#include <string>

namespace qv::fuzz {

// Installs the ports on first use; each call queues the answer for the
// next message box and forgets the messages of the last input.
void readyPorts();
// Faults the error path was told of since the start.
int faultsTold();
// The input as text.
inline std::string text(const uint8_t* data, size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}
// Aborts with a message: a property of the reader does not hold.
[[noreturn]] void broken(const char* what, const std::string& input);

}  // namespace qv::fuzz
