#pragma once
// The Settings rows of a fresh store: every section the settings load reads.

#include <cstdint>
#include <string>
#include <vector>

namespace qv {

struct SettingRow {
    std::string section;
    std::string name;
    std::string value;  // also the row's default
    int32_t displayOrd = 0;
    std::string comment;
};

class DateConventions;

// The rows, with the date formats written as the locale writes dates (the
// program's own defaults for US English and C).
std::vector<SettingRow> defaultSettings(const DateConventions& locale);

}  // namespace qv
