#include "interop/Interop.h"

#include <cctype>
#include <ctime>
#include <filesystem>

#include "interop/CsvWriter.h"
#include "interop/IcsReader.h"
#include "interop/IcsSource.h"
#include "interop/IcsWriter.h"
#include "interop/InteropError.h"
#include "interop/TaskSelection.h"
#include "store/ErrorPath.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {

constexpr const char* kModule = "Interop";

double now() {
    if (ports().clock) return clock().now();
    const std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    return dateserial::fromCivil(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                                 local.tm_sec);
}

std::string plural(int n, const char* one, const char* many) {
    return std::to_string(n) + " " + (n == 1 ? one : many);
}

// Runs body under the trap; a file fault becomes the result's message.
template <class F>
InteropResult guarded(const char* procedure, F&& body) {
    InteropResult result;
    const bool ran = trap(kModule, procedure, [&] {
        try {
            body(result);
            result.ok = true;
        } catch (const InteropError& e) {
            result.message = e.what();
        }
    });
    if (!ran) result.message = "The store failed; nothing was changed.";
    return result;
}

// A to-do's file in a calendar folder: its key, kept to safe characters.
std::string fileNameOf(std::string key) {
    for (char& c : key)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '-') c = '_';
    return key + ".ics";
}

std::string importSummary(const std::string& path, const ImportCounts& c) {
    std::string text = "Imported " + path + ": " + plural(c.tasksAdded, "task", "tasks") + " added, " +
                       plural(c.tasksChanged, "task", "tasks") + " updated, " +
                       plural(c.appointmentsAdded, "appointment", "appointments") + " added, " +
                       plural(c.appointmentsChanged, "appointment", "appointments") + " updated, " +
                       plural(c.projectsAdded, "project", "projects") + " and " +
                       plural(c.keywordsAdded, "keyword", "keywords") + " added.";
    if (c.eventsLeftOut)
        text += " " + plural(c.eventsLeftOut, "event", "events") + " related to no task left out.";
    return text;
}

}  // namespace

InteropResult Interop::exportCalendar(const std::string& path, const ExportScope& scope) {
    return guarded("exportCalendar", [&](InteropResult& r) {
        const TaskSelection selection = TaskSelection::read(scope);
        std::error_code unreadable;
        if (std::filesystem::is_directory(path, unreadable)) {
            for (const auto& one : selection.perTask())
                IcsWriter::save(IcsWriter::calendar(one).get(), path + "/" + fileNameOf(textOf(one.tasks[0], "tskGUIDID")));
        } else {
            IcsWriter::save(IcsWriter::calendar(selection).get(), path);
        }
        r.tasks = static_cast<int>(selection.tasks.size());
        r.message = "Exported " + plural(r.tasks, "task", "tasks") + " and " +
                    plural(static_cast<int>(selection.appointments.size()), "appointment", "appointments") + " to " +
                    path + ".";
    });
}

InteropResult Interop::importCalendar(const std::string& path) {
    return guarded("importCalendar", [&](InteropResult& r) {
        ImportSet set = IcsReader::read(IcsSource(path));
        r.tasks = static_cast<int>(set.tasks.size());
        r.counts = StoreImporter::write(std::move(set), now());
        r.message = importSummary(path, r.counts);
    });
}

InteropResult Interop::exportSpreadsheet(const std::string& path) {
    return guarded("exportSpreadsheet", [&](InteropResult& r) {
        IcsWriter::saveText(CsvWriter::taskList(r.tasks), path);
        r.message = "Exported " + plural(r.tasks, "task", "tasks") + " to " + path + ".";
    });
}

}  // namespace qv
