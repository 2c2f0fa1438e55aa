#pragma once
// Appointments for the sample store's tasks: two per task, keyed by the
// task's number, so that a benchmark can name one.

#include <string>

namespace qv::bench {

// Adds two appointments to each of the first `tasks` sample tasks.
void addSampleAppointments(const std::string& storePath, int tasks);
// The key of the first appointment of sample task n.
[[nodiscard]] std::string sampleAppointmentKey(int n);

}  // namespace qv::bench
