#include "interop/IcsWriter.h"

#include <cstdio>
#include <ctime>
#include <fstream>
#include <map>

#include "interop/IcalMapping.h"
#include "interop/IcalTime.h"
#include "interop/InteropError.h"

namespace qv {

namespace {

constexpr double kNoDate = 1.0;  // at or below: no date

void addX(icalcomponent* c, const char* name, const std::string& text, const std::string& key = {}) {
    icalproperty* p = icalproperty_new_x(text.c_str());
    icalproperty_set_x_name(p, name);
    if (!key.empty()) {
        icalparameter* k = icalparameter_new_x(key.c_str());
        icalparameter_set_xname(k, "X-QUORVEL-KEY");
        icalproperty_add_parameter(p, k);
    }
    icalcomponent_add_property(c, p);
}

bool isEmptyText(const Value& v) {
    return v.kind() == Value::Kind::Text && v.toText().empty();
}

// Every column that has an X-QUORVEL property and a value. A property
// can't hold an empty text: the columns that hold one are listed in
// X-QUORVEL-EMPTY, which keeps them apart from those that hold nothing.
void addExact(icalcomponent* c, std::span<const ColumnSpec> specs, const Row& row, const std::string& key = {}) {
    std::string empties;
    for (const auto& entry : specs) {
        auto it = row.find(entry.column);
        if (it == row.end()) continue;
        if (isEmptyText(it->second)) empties += (empties.empty() ? "" : ",") + std::string(entry.column);
        else if (entry.property) addX(c, entry.property, columns::toText(entry.kind, it->second), key);
    }
    if (!empties.empty()) addX(c, "X-QUORVEL-EMPTY", empties, key);
}

std::optional<double> dateOf(const Row& row, const char* column) {
    auto it = row.find(column);
    if (it == row.end()) return std::nullopt;
    const double serial = it->second.toDate().serial;
    return serial > kNoDate ? std::optional(serial) : std::nullopt;
}

std::optional<int16_t> numberOf(const Row& row, const char* column) {
    auto it = row.find(column);
    return it == row.end() ? std::nullopt : std::optional(it->second.toInt16());
}

void addText(icalcomponent* c, icalproperty* (*make)(const char*), const Row& row, const char* column) {
    if (auto it = row.find(column); it != row.end() && !isEmptyText(it->second))
        icalcomponent_add_property(c, make(it->second.toText().c_str()));
}

void addStamp(icalcomponent* c, icaltimetype now) {
    icalcomponent_add_property(c, icalproperty_new_dtstamp(now));
}

void addDictionaries(icalcomponent* cal, const TaskSelection& s) {
    for (const auto& p : s.projects) addExact(cal, columns::projects(), p, textOf(p, "prjGUIDID"));
    for (const auto& k : s.keywords) addExact(cal, columns::keywords(), k, textOf(k, "keyGUIDID"));
}

icalcomponent* todoOf(const Row& task, const std::vector<const Row*>& links,
                      const std::map<std::string, std::string>& keywordNames, icaltimetype now) {
    icalcomponent* todo = icalcomponent_new_vtodo();
    addText(todo, icalproperty_new_uid, task, "tskGUIDID");
    addStamp(todo, now);
    addText(todo, icalproperty_new_summary, task, "tskDesc");
    addText(todo, icalproperty_new_description, task, "tskNotes");
    if (auto created = dateOf(task, "tskCreatedDate"))
        icalcomponent_add_property(todo, icalproperty_new_created(icaltime::utcOf(*created)));
    if (auto changed = dateOf(task, "tskLastMod"))
        icalcomponent_add_property(todo, icalproperty_new_lastmodified(icaltime::utcOf(*changed)));
    if (auto due = dateOf(task, "tskDeadline")) icalcomponent_add_property(todo, icalproperty_new_due(icaltime::utcOf(*due)));
    if (auto imp = numberOf(task, "tskImp"); imp && icalmap::priorityOf(*imp))
        icalcomponent_add_property(todo, icalproperty_new_priority(icalmap::priorityOf(*imp)));
    if (auto status = numberOf(task, "tskStatus")) {
        icalcomponent_add_property(todo, icalproperty_new_status(icalmap::statusOf(*status)));
        if (auto done = dateOf(task, "tskDoneDate"); done && *status == icalmap::kDoneStatus)
            icalcomponent_add_property(todo, icalproperty_new_completed(icaltime::utcOf(*done)));
    }
    // One CATEGORIES list: some readers take only one. (A comma inside a
    // keyword reads there as two categories; X-QUORVEL-KEYWORD keeps it whole.)
    std::string categories;
    for (const Row* link : links) {
        const std::string key = textOf(*link, "ktKEYGUID");
        auto name = keywordNames.find(key);
        const std::string word = name != keywordNames.end() ? name->second : textOf(*link, "ktKeyword");
        if (!word.empty()) categories += (categories.empty() ? "" : ",") + word;
        if (!key.empty()) addX(todo, "X-QUORVEL-KEYWORD", key);
    }
    if (!categories.empty()) icalcomponent_add_property(todo, icalproperty_new_categories(categories.c_str()));
    addExact(todo, columns::tasks(), task);
    return todo;
}

icalcomponent* eventOf(const Row& appt, icaltimetype now) {
    icalcomponent* event = icalcomponent_new_vevent();
    addText(event, icalproperty_new_uid, appt, "taGUIDID");
    addStamp(event, now);
    addText(event, icalproperty_new_relatedto, appt, "taTaskGUIDID");
    addText(event, icalproperty_new_summary, appt, "taTaskDesc");
    if (auto start = dateOf(appt, "taStartTime"))
        icalcomponent_add_property(event, icalproperty_new_dtstart(icaltime::utcOf(*start)));
    if (auto end = dateOf(appt, "taEndTime")) icalcomponent_add_property(event, icalproperty_new_dtend(icaltime::utcOf(*end)));
    addExact(event, columns::appointments(), appt);
    return event;
}

}  // namespace

IcalComponentPtr IcsWriter::calendar(const TaskSelection& s) {
    IcalComponentPtr cal(icalcomponent_new_vcalendar());
    icalcomponent_add_property(cal.get(), icalproperty_new_prodid("-//Quorvel//Quorvel 1.14//EN"));
    icalcomponent_add_property(cal.get(), icalproperty_new_version("2.0"));
    addDictionaries(cal.get(), s);

    std::map<std::string, std::string> keywordNames;
    for (const auto& k : s.keywords) keywordNames[textOf(k, "keyGUIDID")] = textOf(k, "keyKeyword");
    std::map<std::string, std::vector<const Row*>> linksOf;
    for (const auto& l : s.links) linksOf[textOf(l, "ktTASKGUID")].push_back(&l);

    const icaltimetype now = icaltime_from_timet_with_zone(std::time(nullptr), 0, icaltimezone_get_utc_timezone());
    static const std::vector<const Row*> kNone;
    for (const auto& task : s.tasks) {
        auto links = linksOf.find(textOf(task, "tskGUIDID"));
        icalcomponent_add_component(cal.get(), todoOf(task, links == linksOf.end() ? kNone : links->second,
                                                      keywordNames, now));
    }
    for (const auto& appt : s.appointments) icalcomponent_add_component(cal.get(), eventOf(appt, now));
    return cal;
}

void IcsWriter::save(icalcomponent* calendar, const std::string& path) {
    char* text = icalcomponent_as_ical_string_r(calendar);
    const std::string body = text ? text : "";
    icalmemory_free_buffer(text);
    saveText(body, path);
}

void IcsWriter::saveText(const std::string& text, const std::string& path) {
    const std::string temp = path + ".part";
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        out << text;
        out.flush();
        if (!out) {
            std::remove(temp.c_str());
            throw InteropError(path + " can't be written: the folder is missing, full or not writable");
        }
    }
    if (std::rename(temp.c_str(), path.c_str()) != 0) {
        std::remove(temp.c_str());
        throw InteropError(path + " can't be written: the folder is missing, full or not writable");
    }
}

}  // namespace qv
