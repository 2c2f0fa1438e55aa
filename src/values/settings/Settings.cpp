#include "values/settings/Settings.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "store/clsSettings.h"
#include "toolkit/Failure.h"
#include "values/types/Convert.h"
#include "values/settings/DateFormats.h"
#include "values/settings/SettingsSection.h"
#include "values/settings/SettingsSnapshot.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

constexpr const char* kModule = "m_Task";
// The number stamped into AppVersion: the layout of this component.
constexpr int32_t kLayoutVersion = 10;

[[noreturn]] void outOfBounds() { throw Failure(err::SubscriptOutOfRange, "Subscript out of range"); }

template <class Array>
auto& slot(Array& array, std::size_t i) {
    if (i >= array.size()) outOfBounds();
    return array[i];
}

using Rows = SettingsSnapshot::Rows;

// The sections a load reads, in its order.
const std::vector<std::string>& loadedSections() {
    static const std::vector<std::string> sections = {
        "AppVersion", "Spellchecking", "UserStuff", "Status", "Importance Level", "Difficulty", "Time Needed",
        "TAS", "TASKWINDOW", "ETASK", "Points", "OutLookIntegration", "OutlookProfileString"};
    return sections;
}

// The value sections' rule: the value when it has any length, else the default.
std::string valueOrDefault(const StoredSetting& row) {
    std::string value = row.value.toText();
    return value.empty() ? row.fallback.toText() : value;
}

// The window sections' rule: the value as a number when 0 or more, else the default.
int32_t windowValue(const StoredSetting& row) {
    const int32_t value = toLong(row.value.toText());
    return value >= 0 ? value : toLong(row.fallback.toText());
}

// Rows in display order into positions 0 upward.
template <class Array, class Read>
void fillByOrder(const Rows& rows, Array& array, Read read) {
    std::size_t i = 0;
    for (const StoredSetting& row : rows) slot(array, i++) = read(row);
}

struct NewRow {
    std::string section, name, value, comment;
    int32_t displayOrd;
};

void addRow(Recordset& rows, const NewRow& row) {
    rows.AddNew();
    rows.Fields("SetSettingSection") = Value(row.section);
    rows.Fields("SetUser") = Value("1");
    rows.Fields("SetSettingValue") = Value(row.value);
    rows.Fields("SetSettingName") = Value(row.name);
    rows.Fields("SetDefault") = Value(row.value);
    rows.Fields("setSettingDisplayOrd") = Value(row.displayOrd);
    rows.Fields("setSettingComment") = Value(row.comment);
    rows.Update();
}

// --- the value sections.

// Stamps the one row with the layout number and reads it back.
void stampAppVersion(clsSettings& reader) {
    SettingsSection section(reader, "AppVersion");
    const int32_t count = section.count();
    if (count > 1) return;
    if (count == 1) {
        // A row that holds the number already is not written (the set
        // writes only what differs): an open writes nothing.
        section.rows().Fields("SetSettingValue") = Value(kLayoutVersion);
        section.rows().Update();
        section.rows().UpdateBatch(adAffectAllChapters);
    }
    // No row reads the empty text, which is no number.
    g().AppVersion = toSingle(count == 1 ? section.text("SetSettingValue") : std::string());
}

void loadAppVersion(clsSettings& reader, const Rows& rows) {
    if (rows.size() > 1) return;
    // Only a row that lacks the number opens the section to be written.
    if (rows.size() == 1 && rows[0].value.toText() != std::to_string(kLayoutVersion)) {
        stampAppVersion(reader);
        return;
    }
    g().AppVersion = toSingle(rows.size() == 1 ? rows[0].value.toText() : std::string());
}

void loadSpellchecking(const Rows& rows) {
    if (rows.size() == 1) g().SpellCheckOn = rows[0].value.toBool();
    if (rows.empty()) g().SpellCheckOn = true;
}

// By name STATUS1 to STATUS6, compared upper-cased; other names are passed over.
void loadStatus(const Rows& rows) {
    auto& list = g().StatusList;
    list.assign(rows.size(), std::string());
    for (const StoredSetting& row : rows) {
        std::string name = row.name.toText();
        for (char& c : name)
            if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        if (name.size() == 7 && name.compare(0, 6, "STATUS") == 0 && name[6] >= '1' && name[6] <= '6')
            slot(list, static_cast<std::size_t>(name[6] - '1')) = valueOrDefault(row);
    }
}

void loadTimeNeeded(const Rows& rows) {
    auto& labels = g().TimeNeededLabels;
    auto& minutes = g().TimeNeededMinutes;
    labels.assign(rows.size(), std::string());
    minutes.assign(rows.size(), 0);
    std::size_t i = 0;
    for (const StoredSetting& row : rows) {
        const std::string value = valueOrDefault(row);
        slot(labels, i) = SetTimeFormat(toDouble(value));
        slot(minutes, i) = toLong(value);
        ++i;
    }
}

void loadOutlookIntegration(const Rows& rows) {
    for (const StoredSetting& row : rows)
        if (row.name.toText() == "Integrate Outlook Tasks") g().OutlookIntegrationOn = row.value.toBool();
}

void loadOutlookProfile(const Rows& rows) {
    if (rows.size() == 1) g().OutlookProfile = rows[0].value.toText();
    if (rows.empty()) g().OutlookProfile = "NONE";
}

// --- the window sections.

using Window = std::array<int32_t, 6>;

// The state row that older stores lack; its display order is 5 in every section.
void addWindowState(clsSettings& reader, const std::string& name) {
    SettingsSection section(reader, name);
    addRow(section.rows(), {name, "WindowState", "0", "Open Max or Normal, never minimized", 5});
    section.rows().UpdateBatch(adAffectAllChapters);
}

// Reads the section; with exactly rowsWithoutState rows the state is added.
void loadWindow(clsSettings& reader, const SettingsSnapshot& all, const std::string& name, Window& window,
                std::size_t rowsWithoutState) {
    const Rows& rows = all.rows(name);
    fillByOrder(rows, window, windowValue);
    if (rows.size() != rowsWithoutState) return;
    window[rowsWithoutState] = 0;
    addWindowState(reader, name);
}

// A store without ETASK gets the Existing Task window's rows.
void addExistingTaskWindow(clsSettings& reader, SettingsSnapshot& all) {
    if (!all.rows("ETASK").empty()) return;
    {
        SettingsSection section(reader, "ETASK");
        if (section.count() != 0) return;
        static const NewRow rows[] = {
            {"ETASK", "meLeft", "3705", "Left", 2}, {"ETASK", "meHeight", "7950", "Height", 4},
            {"ETASK", "meSplit", "2505", "Split", 5}, {"ETASK", "meTop", "1000", "Top", 1},
            {"ETASK", "meWidth", "9975", "Left", 3}};
        for (const NewRow& row : rows) addRow(section.rows(), row);
        section.rows().UpdateBatch(adAffectAllChapters);
    }
    all.reread(reader, "ETASK");
}

void loadAll() {
    clsSettings reader;
    SettingsSnapshot all(reader, loadedSections());
    loadAppVersion(reader, all.rows("AppVersion"));
    loadSpellchecking(all.rows("Spellchecking"));
    fillByOrder(all.rows("UserStuff"), g().UStuff, [](const StoredSetting& row) { return row.value.toText(); });
    loadStatus(all.rows("Status"));
    fillByOrder(all.rows("Importance Level"), g().ImportanceList, valueOrDefault);
    fillByOrder(all.rows("Difficulty"), g().DifficultyList, valueOrDefault);
    loadTimeNeeded(all.rows("Time Needed"));
    loadWindow(reader, all, "TAS", g().TASWindow, 5);
    loadWindow(reader, all, "TASKWINDOW", g().TaskWindow, 4);
    addExistingTaskWindow(reader, all);
    loadWindow(reader, all, "ETASK", g().ETaskWindow, 4);
    fillByOrder(all.rows("Points"), g().PointsTable, [](const StoredSetting& row) { return toLong(valueOrDefault(row)); });
    loadOutlookIntegration(all.rows("OutLookIntegration"));
    loadOutlookProfile(all.rows("OutlookProfileString"));
}

void saveWindow(clsSettings& reader, const std::string& name, const Window& window, bool skipNegative) {
    SettingsSection section(reader, name);
    if (section.count() < 1) return;
    std::size_t i = 0;
    for (Recordset& rows = section.rows(); !rows.EOF_(); rows.MoveNext()) {
        const int32_t value = slot(window, i++);
        if (!(skipNegative && value < 0)) rows.Fields("SetSettingValue") = Value(value);
        rows.Update();
    }
    section.rows().UpdateBatch(adAffectAllChapters);
}

void saveAll() {
    clsSettings reader;
    saveWindow(reader, "TAS", g().TASWindow, true);
    saveWindow(reader, "TASKWINDOW", g().TaskWindow, false);
    saveWindow(reader, "ETASKSettings", g().ETaskWindow, false);
    saveWindow(reader, "ETASK", g().ETaskWindow, false);
}

}  // namespace

bool LoadSettings() {
    LoadDateFormatSettings();
    return trap(kModule, "LoadSettings", [] { loadAll(); });
}

bool SaveSettings() { return trap(kModule, "SaveSettings", [] { saveAll(); }); }

}  // namespace qv
