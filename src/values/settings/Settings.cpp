#include "values/settings/Settings.h"

#include <array>
#include <cstdint>
#include <string>

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "store/clsSettings.h"
#include "toolkit/Failure.h"
#include "values/types/Convert.h"
#include "values/settings/DateFormats.h"
#include "values/settings/SettingsSection.h"
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

// Rows in display order into positions 0 upward.
template <class Array, class Read>
void fillByOrder(SettingsSection& section, Array& array, Read read) {
    std::size_t i = 0;
    for (Recordset& rows = section.rows(); !rows.EOF_(); rows.MoveNext()) slot(array, i++) = read();
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

void loadAppVersion(clsSettings& reader) {
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

void loadSpellchecking(clsSettings& reader) {
    SettingsSection section(reader, "Spellchecking");
    const int32_t count = section.count();
    if (count == 1) g().SpellCheckOn = section.rows().Fields("SetSettingValue").value().toBool();
    if (count == 0) g().SpellCheckOn = true;
}

void loadUserStuff(clsSettings& reader) {
    SettingsSection section(reader, "UserStuff");
    fillByOrder(section, g().UStuff, [&] { return section.text("SetSettingValue"); });
}

// By name STATUS1 to STATUS6, compared upper-cased; other names are passed over.
void loadStatus(clsSettings& reader) {
    SettingsSection section(reader, "Status");
    auto& list = g().StatusList;
    list.assign(static_cast<std::size_t>(section.count()), std::string());
    for (Recordset& rows = section.rows(); !rows.EOF_(); rows.MoveNext()) {
        std::string name = section.text("SetSettingName");
        for (char& c : name)
            if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        if (name.size() == 7 && name.compare(0, 6, "STATUS") == 0 && name[6] >= '1' && name[6] <= '6')
            slot(list, static_cast<std::size_t>(name[6] - '1')) = section.valueOrDefault();
    }
}

void loadList(clsSettings& reader, const char* name, std::array<std::string, 5>& list) {
    SettingsSection section(reader, name);
    fillByOrder(section, list, [&] { return section.valueOrDefault(); });
}

void loadTimeNeeded(clsSettings& reader) {
    SettingsSection section(reader, "Time Needed");
    const auto count = static_cast<std::size_t>(section.count());
    auto& labels = g().TimeNeededLabels;
    auto& minutes = g().TimeNeededMinutes;
    labels.assign(count, std::string());
    minutes.assign(count, 0);
    std::size_t i = 0;
    for (Recordset& rows = section.rows(); !rows.EOF_(); rows.MoveNext(), ++i) {
        const std::string value = section.valueOrDefault();
        slot(labels, i) = SetTimeFormat(toDouble(value));
        slot(minutes, i) = toLong(value);
    }
}

void loadPoints(clsSettings& reader) {
    SettingsSection section(reader, "Points");
    fillByOrder(section, g().PointsTable, [&] { return toLong(section.valueOrDefault()); });
}

void loadOutlookIntegration(clsSettings& reader) {
    SettingsSection section(reader, "OutLookIntegration");
    for (Recordset& rows = section.rows(); !rows.EOF_(); rows.MoveNext())
        if (section.text("SetSettingName") == "Integrate Outlook Tasks")
            g().OutlookIntegrationOn = rows.Fields("SetSettingValue").value().toBool();
}

void loadOutlookProfile(clsSettings& reader) {
    SettingsSection section(reader, "OutlookProfileString");
    const int32_t count = section.count();
    if (count == 1) g().OutlookProfile = section.text("SetSettingValue");
    if (count == 0) g().OutlookProfile = "NONE";
}

// --- the window sections.

using Window = std::array<int32_t, 6>;

// The state row that older stores lack; its display order is 5 in every section.
void addWindowState(SettingsSection& section, const std::string& name) {
    addRow(section.rows(), {name, "WindowState", "0", "Open Max or Normal, never minimized", 5});
    section.rows().UpdateBatch(adAffectAllChapters);
}

// Reads the section; with exactly rowsWithoutState rows the state is added.
void loadWindow(clsSettings& reader, const std::string& name, Window& window, int32_t rowsWithoutState) {
    SettingsSection section(reader, name);
    fillByOrder(section, window, [&] { return section.windowValue(); });
    if (section.count() != rowsWithoutState) return;
    window[static_cast<std::size_t>(rowsWithoutState)] = 0;
    addWindowState(section, name);
}

// A store without ETASK gets the Existing Task window's rows.
void addExistingTaskWindow(clsSettings& reader) {
    SettingsSection section(reader, "ETASK");
    if (section.count() != 0) return;
    static const NewRow rows[] = {{"ETASK", "meLeft", "3705", "Left", 2},  {"ETASK", "meHeight", "7950", "Height", 4},
                                  {"ETASK", "meSplit", "2505", "Split", 5}, {"ETASK", "meTop", "1000", "Top", 1},
                                  {"ETASK", "meWidth", "9975", "Left", 3}};
    for (const NewRow& row : rows) addRow(section.rows(), row);
    section.rows().UpdateBatch(adAffectAllChapters);
}

void loadAll() {
    clsSettings reader;
    loadAppVersion(reader);
    loadSpellchecking(reader);
    loadUserStuff(reader);
    loadStatus(reader);
    loadList(reader, "Importance Level", g().ImportanceList);
    loadList(reader, "Difficulty", g().DifficultyList);
    loadTimeNeeded(reader);
    loadWindow(reader, "TAS", g().TASWindow, 5);
    loadWindow(reader, "TASKWINDOW", g().TaskWindow, 4);
    addExistingTaskWindow(reader);
    loadWindow(reader, "ETASK", g().ETaskWindow, 4);
    loadPoints(reader);
    loadOutlookIntegration(reader);
    loadOutlookProfile(reader);
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
