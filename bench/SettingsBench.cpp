// LoadSettings on the default store against the bare SQLite reads of the
// same sections, and the duration formatter and parser per call.

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/BenchStore.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "toolkit/FakeClock.h"
#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"
#include "toolkit/ScriptedUi.h"
#include "values/settings/Settings.h"
#include "values/settings/TimeValues.h"

namespace {

using namespace qv;

// The sections one LoadSettings opens, in its order (ETASK twice: the
// upgrade check, then the read).
const std::vector<std::string> kSections = {
    "DateFormats", "AppVersion", "Spellchecking", "UserStuff", "Status", "Importance Level",
    "Difficulty", "Time Needed", "TAS", "TASKWINDOW", "ETASK", "ETASK", "Points",
    "OutLookIntegration", "OutlookProfileString"};

bench::BenchStore& store() {
    static bench::BenchStore s("settings-bench");
    return s;
}

void BM_LoadSettings(benchmark::State& state) {
    store().use();
    for (auto _ : state) benchmark::DoNotOptimize(LoadSettings());
    if (store().reporter.faults != 0) state.SkipWithError("LoadSettings reported a fault");
}
BENCHMARK(BM_LoadSettings)->Unit(benchmark::kMicrosecond);

// The same queries with prepared statements, every column read as text; with
// stamp, also the one write of AppVersion that every load makes.
void bareReads(benchmark::State& state, bool stamp) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(store().storePath().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_stmt* read = nullptr;
    sqlite3_prepare_v2(db,
                       "SELECT * from Settings WHERE SetUser='1' and SetSettingSection = ? ORDER BY "
                       "setSettingDisplayOrd",
                       -1, &read, nullptr);
    sqlite3_stmt* write = nullptr;
    sqlite3_prepare_v2(db, "UPDATE Settings SET SetSettingValue='10' WHERE SetSettingSection='AppVersion'", -1,
                       &write, nullptr);
    std::vector<std::string> values;
    for (auto _ : state) {
        values.clear();
        for (const auto& section : kSections) {
            sqlite3_bind_text(read, 1, section.c_str(), -1, SQLITE_STATIC);
            while (sqlite3_step(read) == SQLITE_ROW)
                for (int c = 0; c < sqlite3_column_count(read); ++c) {
                    const auto* text = sqlite3_column_text(read, c);
                    values.emplace_back(text ? reinterpret_cast<const char*>(text) : "");
                }
            sqlite3_reset(read);
        }
        if (stamp) {
            sqlite3_step(write);
            sqlite3_reset(write);
        }
        benchmark::DoNotOptimize(values.data());
    }
    sqlite3_finalize(read);
    sqlite3_finalize(write);
    sqlite3_close(db);
}

void BM_BareSettingsReads(benchmark::State& state) { bareReads(state, false); }
BENCHMARK(BM_BareSettingsReads)->Unit(benchmark::kMicrosecond);

void BM_BareSettingsReadsAndStamp(benchmark::State& state) { bareReads(state, true); }
BENCHMARK(BM_BareSettingsReadsAndStamp)->Unit(benchmark::kMicrosecond);

void BM_SetTimeFormatAndParse(benchmark::State& state) {
    store().use();
    g().DateFormats[35] = "24";
    const double minutes[] = {5, 90, 1440, 1441, 2880, 3067, 10080, 10081, 13147, 20160};
    std::size_t i = 0;
    for (auto _ : state) {
        const std::string text = SetTimeFormat(minutes[i++ % 10]);
        benchmark::DoNotOptimize(FormatCTasTime(text));
    }
}
BENCHMARK(BM_SetTimeFormatAndParse);

}  // namespace
