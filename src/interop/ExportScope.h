#pragma once
// Which tasks an export takes.

#include <string>

namespace qv {

struct ExportScope {
    enum class Kind { All, Task, Project, Current };
    Kind kind = Kind::All;
    std::string key;  // the task's or the project's key

    static ExportScope all() { return {}; }
    static ExportScope task(std::string key) { return {Kind::Task, std::move(key)}; }
    static ExportScope project(std::string key) { return {Kind::Project, std::move(key)}; }
    static ExportScope current() { return {Kind::Current, {}}; }
};

}  // namespace qv
