#include "interop/IcsReader.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <unordered_set>

#include "interop/IcalMapping.h"
#include "interop/IcalTime.h"
#include "interop/IcsSource.h"
#include "interop/InteropError.h"
#include "interop/NameRules.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "values/types/TextChars.h"

namespace qv {

namespace {

constexpr std::size_t kKeyLength = 36;
constexpr const char* kEmpty = "X-QUORVEL-EMPTY";

bool isOurs(const char* name) {
    return std::string_view(name).starts_with("X-QUORVEL-");
}

std::string xValue(icalproperty* p) {
    const char* v = icalproperty_get_x(p);
    return v ? v : "";
}

std::string keyParam(icalproperty* p) {
    for (auto* k = icalproperty_get_first_parameter(p, ICAL_X_PARAMETER); k;
         k = icalproperty_get_next_parameter(p, ICAL_X_PARAMETER))
        if (std::string_view(icalparameter_get_xname(k)) == "X-QUORVEL-KEY") return icalparameter_get_x(k);
    return {};
}

std::vector<std::string> split(const std::string& list) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t comma; (comma = list.find(',', start)) != std::string::npos; start = comma + 1)
        parts.push_back(list.substr(start, comma - start));
    parts.push_back(list.substr(start));
    return parts;
}

// Reads the X-QUORVEL properties of specs (and the empties) into row.
class ExactReader {
public:
    ExactReader(const IcsSource& source, icalcomponent* c) : source_(source), c_(c) {}

    // True when the property is one of specs' (or the empties); its value
    // goes into row.
    bool take(icalproperty* p, std::span<const ColumnSpec> specs, Row& row) const {
        const std::string name = icalproperty_get_x_name(p);
        if (name == kEmpty) {
            for (const auto& column : split(xValue(p))) {
                auto entry = std::find_if(specs.begin(), specs.end(), [&](const ColumnSpec& s) { return column == s.column; });
                if (entry == specs.end() || entry->kind != ColumnKind::Text) return false;
                row[entry->column] = Value(std::string());
            }
            return true;
        }
        for (const auto& entry : specs) {
            if (!entry.property || name != entry.property) continue;
            auto v = columns::fromText(entry.kind, xValue(p));
            if (!v) fail(p, fill(tr("%1 \"%2\" can't be read"), {name, xValue(p)}));
            row[entry.column] = std::move(*v);
            return true;
        }
        return false;
    }

    [[noreturn]] void fail(icalproperty* p, const std::string& what) const {
        throw InteropError::at(source_.path(), source_.lineOf(c_, p), what);
    }

private:
    const IcsSource& source_;
    icalcomponent* c_;
};

class Reader {
public:
    explicit Reader(const IcsSource& source) : source_(source) {}

    ImportSet run() {
        icalcomponent* cal = source_.calendar();
        readDictionaries(cal);
        for (auto* c = icalcomponent_get_first_component(cal, ICAL_VTODO_COMPONENT); c;
             c = icalcomponent_get_next_component(cal, ICAL_VTODO_COMPONENT))
            set_.tasks.push_back(task(c));
        for (auto* c = icalcomponent_get_first_component(cal, ICAL_VEVENT_COMPONENT); c;
             c = icalcomponent_get_next_component(cal, ICAL_VEVENT_COMPONENT))
            if (auto a = appointment(c)) set_.appointments.push_back(std::move(*a));
        return std::move(set_);
    }

private:
    [[noreturn]] void fail(icalcomponent* c, const std::string& what) const {
        throw InteropError::at(source_.path(), source_.lineOf(c), what);
    }

    void readDictionaries(icalcomponent* cal) {
        std::map<std::string, Row> projects, keywords;
        std::map<std::string, icalproperty*> firstOf;
        ExactReader exact(source_, cal);
        for (auto* p = icalcomponent_get_first_property(cal, ICAL_X_PROPERTY); p;
             p = icalcomponent_get_next_property(cal, ICAL_X_PROPERTY)) {
            const std::string key = keyParam(p);
            if (key.empty()) continue;
            const std::string name = icalproperty_get_x_name(p);
            const bool project = name.starts_with("X-QUORVEL-PRJ-") ||
                                 (name == kEmpty && xValue(p).starts_with("prj"));
            Row& row = project ? projects[key] : keywords[key];
            if (!exact.take(p, project ? columns::projects() : columns::keywords(), row)) continue;
            firstOf.emplace(key, p);
        }
        for (auto& [key, row] : projects) {
            row["prjGUIDID"] = Value(key);
            if (auto why = NameRules::projectRefusal(textOf(row, "prjProject"))) exact.fail(firstOf[key], *why);
            set_.projects.push_back(std::move(row));
        }
        for (auto& [key, row] : keywords) {
            row["keyGUIDID"] = Value(key);
            if (auto why = NameRules::keywordRefusal(textOf(row, "keySubject"), textOf(row, "keyKeyword")))
                exact.fail(firstOf[key], *why);
            set_.keywords.push_back(std::move(row));
        }
    }

    std::optional<double> timeOf(icalcomponent* c, icalproperty* p) const {
        auto t = icaltime::localOf(p, c);
        if (!t) ExactReader(source_, c).fail(p, fill(tr("%1 is not a possible date and time"), {icalproperty_get_property_name(p)}));
        return t;
    }

    // A standard time and the exact one: the exact one stands while it
    // still names the same second (another program may have moved it).
    void takeTime(icalcomponent* c, icalproperty_kind kind, Row& row, const char* column) const {
        icalproperty* p = icalcomponent_get_first_property(c, kind);
        if (!p) return;
        const double t = *timeOf(c, p);
        auto exact = row.find(column);
        if (exact != row.end() && icaltime::sameSecond(exact->second.toDate().serial, t)) return;
        row[column] = Value(Date{t});
    }

    ImportedTask task(icalcomponent* c) {
        ImportedTask t;
        Row& row = t.fields;
        const char* uid = icalcomponent_get_uid(c);
        const char* summary = icalcomponent_get_summary(c);
        if (!uid || !*uid)
            fail(c, fill(tr("the to-do \"%1\" has no UID"), {summary ? summary : ""}));
        row["tskGUIDID"] = Value(storeKeyOf(uid));
        ExactReader exact(source_, c);
        t.foreign = true;
        for (auto* p = icalcomponent_get_first_property(c, ICAL_X_PROPERTY); p;
             p = icalcomponent_get_next_property(c, ICAL_X_PROPERTY)) {
            const std::string name = icalproperty_get_x_name(p);
            if (!isOurs(name.c_str())) continue;
            t.foreign = false;
            if (name == "X-QUORVEL-KEYWORD") t.keywordKeys.push_back(xValue(p));
            else exact.take(p, columns::tasks(), row);
        }
        if (summary) row["tskDesc"] = Value(std::string(summary));
        else if (!row.contains("tskDesc")) fail(c, fill(tr("the to-do \"%1\" has no SUMMARY"), {uid}));
        if (const char* notes = icalcomponent_get_description(c)) row["tskNotes"] = Value(std::string(notes));
        takeTime(c, ICAL_DUE_PROPERTY, row, "tskDeadline");
        takeTime(c, ICAL_COMPLETED_PROPERTY, row, "tskDoneDate");
        if (!row.contains("tskCreatedDate")) takeTime(c, ICAL_CREATED_PROPERTY, row, "tskCreatedDate");
        if (!row.contains("tskLastMod")) takeTime(c, ICAL_LASTMODIFIED_PROPERTY, row, "tskLastMod");
        takeStatus(c, row);
        takePriority(c, row);
        takeCategories(c, t);
        return t;
    }

    void takeStatus(icalcomponent* c, Row& row) const {
        auto exact = row.find("tskStatus");
        if (icalproperty* p = icalcomponent_get_first_property(c, ICAL_STATUS_PROPERTY)) {
            const icalproperty_status s = icalproperty_get_status(p);
            if (exact != row.end() && icalmap::statusOf(exact->second.toInt16()) == s) return;
            row["tskStatus"] = Value(icalmap::storeStatusOf(s));
        } else if (row.contains("tskDoneDate") && exact == row.end()) {
            row["tskStatus"] = Value(icalmap::kDoneStatus);
        }
    }

    void takePriority(icalcomponent* c, Row& row) const {
        icalproperty* p = icalcomponent_get_first_property(c, ICAL_PRIORITY_PROPERTY);
        if (!p) return;
        const auto imp = icalmap::importanceOf(icalproperty_get_priority(p));
        if (!imp) return;
        auto exact = row.find("tskImp");
        if (exact != row.end() && icalmap::importanceOf(icalmap::priorityOf(exact->second.toInt16())) == imp) return;
        row["tskImp"] = Value(*imp);
    }

    void takeCategories(icalcomponent* c, ImportedTask& t) const {
        t.holdsKeywords = !t.foreign;
        if (!t.foreign) return;
        for (auto* p = icalcomponent_get_first_property(c, ICAL_CATEGORIES_PROPERTY); p;
             p = icalcomponent_get_next_property(c, ICAL_CATEGORIES_PROPERTY)) {
            t.holdsKeywords = true;
            if (const char* name = icalproperty_get_categories(p); name && !NameRules::trimmed(name).empty())
                t.categories.push_back(NameRules::trimmed(name));
        }
    }

    std::optional<ImportedAppointment> appointment(icalcomponent* c) {
        ImportedAppointment a;
        Row& row = a.fields;
        icalproperty* related = icalcomponent_get_first_property(c, ICAL_RELATEDTO_PROPERTY);
        const char* uid = icalcomponent_get_uid(c);
        if (!related || !uid || !*uid) {
            ++set_.eventsWithoutTask;
            return std::nullopt;
        }
        row["taGUIDID"] = Value(storeKeyOf(uid));
        row["taTaskGUIDID"] = Value(storeKeyOf(icalproperty_get_relatedto(related)));
        ExactReader exact(source_, c);
        a.foreign = true;
        for (auto* p = icalcomponent_get_first_property(c, ICAL_X_PROPERTY); p;
             p = icalcomponent_get_next_property(c, ICAL_X_PROPERTY)) {
            if (!isOurs(icalproperty_get_x_name(p))) continue;
            a.foreign = false;
            exact.take(p, columns::appointments(), row);
        }
        if (const char* summary = icalcomponent_get_summary(c)) row["taTaskDesc"] = Value(std::string(summary));
        takeTime(c, ICAL_DTSTART_PROPERTY, row, "taStartTime");
        takeTime(c, ICAL_DTEND_PROPERTY, row, "taEndTime");
        return a;
    }

    const IcsSource& source_;
    ImportSet set_;
};

uint64_t fnv1a(const std::string& text, uint64_t basis) {
    uint64_t h = basis;
    for (unsigned char c : text) {
        h ^= c;
        h *= 1099511628211ULL;
    }
    return h;
}

}  // namespace

std::string storeKeyOf(const std::string& uid) {
    if (charCount(uid) == kKeyLength) return uid;
    const uint64_t hi = fnv1a(uid, 14695981039346656037ULL), lo = fnv1a(uid, 0x9E3779B97F4A7C15ULL);
    char key[37];
    std::snprintf(key, sizeof key, "%08llX-%04llX-%04llX-%04llX-%012llX", (unsigned long long)(hi >> 32),
                  (unsigned long long)((hi >> 16) & 0xFFFF), (unsigned long long)(hi & 0xFFFF),
                  (unsigned long long)(lo >> 48), (unsigned long long)(lo & 0xFFFFFFFFFFFFULL));
    return key;
}

ImportSet IcsReader::read(const IcsSource& source) {
    return Reader(source).run();
}

}  // namespace qv
