#include "interop/InteropFixture.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "installer/ServerStore.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/Connection.h"
#include "store/PgConnection.h"
#include "store/Recordset.h"
#include "values/types/DateSerial.h"
#include "values/types/TextChars.h"

namespace qv {

namespace {

// Texts that a calendar file has to carry unchanged.
const std::array<std::string, 6> kOdd = {
    "Say \"hello\", then; leave",
    "line one\nline two\n\nline four",
    "emoji \xF0\x9F\x98\x80\xF0\x9F\x8E\x89 and \xE2\x9C\x93",
    "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D right-to-left \xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7",
    "back\\slash, colon: comma, semi; all",
    "a long line that goes on and on past the seventy-five octets a calendar line may hold, so it folds \xC3\xA9\xC3\xA9",
};

Value date(int day, int minute, int ms = 0) {
    return Value(Date{dateserial::fromCivil(2026, 1 + day % 12, 1 + day % 28, minute / 60 % 24, minute % 60, 0, ms)});
}

std::string key(char kind, int n) {
    char text[48];  // 36 for the numbers the tests use
    std::snprintf(text, sizeof text, "%c%07d-0000-4000-8000-%012d", kind, n, n * 7);
    return text;
}

class Adder {
public:
    explicit Adder(const char* table) {
        rs_.Open(std::string("SELECT * FROM ") + table + " WHERE 1=0", g().ConnString, adOpenDynamic,
                 adLockBatchOptimistic);
    }
    ~Adder() { rs_.UpdateBatch(adAffectAllChapters); }
    void add(const std::vector<std::pair<const char*, Value>>& fields) {
        rs_.AddNew();
        for (const auto& [column, value] : fields) rs_.Fields(column) = value;
        rs_.Update();
    }

private:
    Recordset rs_;
};

void addProjects(int projects) {
    Adder a("PROJECTS");
    for (int p = 0; p <= projects; ++p)  // the last one has no task
        a.add({{"prjGUIDID", Value(key('P', p))},
               {"prjProject", Value(midChars(kOdd[p % kOdd.size()], 1, 40) + " #" + std::to_string(p))},
               {"prjSummary", Value(kOdd[(p + 1) % kOdd.size()])},
               {"prjDeadline", p % 2 ? date(p, 0) : Value()},
               {"StatusLong", Value(int32_t{4})}});
}

void addKeywords(int keywords) {
    Adder a("KEYWORDS");
    for (int k = 0; k <= keywords; ++k)
        a.add({{"keyGUIDID", Value(key('K', k))},
               {"keySubject", Value("Subject " + midChars(kOdd[k % 3], 1, 12))},
               {"keyKeyword", Value(midChars(kOdd[k % kOdd.size()], 1, 20) + " " + std::to_string(k))}});
}

void addTask(Adder& a, int i, int projects) {
    const int16_t status = static_cast<int16_t>(i % 6);
    const Value notes = i % 7 == 3 ? Value() : Value(i % 7 == 4 ? std::string() : kOdd[(i + 1) % kOdd.size()]);
    a.add({{"tskGUIDID", Value(key('T', i))}, {"tskDesc", Value(kOdd[i % kOdd.size()] + " " + std::to_string(i))},
           {"tskProject", Value("Project + name " + std::to_string(i % projects))},
           {"tskProjectKey", Value(key('P', i % projects))}, {"tskStatus", Value(status)},
           {"tskImp", Value(static_cast<int16_t>(i % 5))}, {"tskDifficulty", Value(static_cast<int16_t>((i + 2) % 5))},
           {"tskTimeNeeded", Value(int32_t{15 * (i % 40)})}, {"tskTimeScheduled", Value(int32_t{60 * (i % 3)})},
           {"tskTimeSpent", Value(int32_t{7 * i})}, {"tskCurrent", Value(i % 3 == 0)},
           {"tskHasSchedule", Value(i % 2 == 0)}, {"tskNotes", notes}, {"tskHasNotes", Value(i % 7 != 3 && i % 7 != 4)},
           {"tskCreatedDate", date(i, 600 + i, i % 1000)}, {"tskLastMod", date(i + 1, 700 + i, 123)},
           {"tskDeadline", i % 4 == 1 ? Value() : date(i + 2, 9 * 60 + i % 50)},
           {"tskDoneDate", status == 0 ? date(i + 3, 17 * 60) : Value()}, {"tskPossPoints", Value(int32_t{i % 11})},
           {"tskCustSortQV", Value(int32_t{i})}, {"tskCustSortCUR", Value(int32_t{i / 3})},
           {"tskCustSortProj", Value(int32_t{i / projects})}, {"tskHasChecklist", Value(i % 5 == 0)},
           {"tskTCheckListGUID", i % 5 == 0 ? Value(key('C', i)) : Value(std::string())},
           {"tskTaskCatGUID", i % 9 == 0 ? Value(key('X', i)) : Value()}, {"tskWasImported", Value(false)},
           {"tskOUTEntityID", Value(std::string())}});
}

}  // namespace

void InteropFixture::fillStore(int tasks) {
    locateSessionStore();
    const int projects = std::max(1, tasks / 10), keywords = std::max(1, tasks / 6);
    addProjects(projects);
    addKeywords(keywords);
    {
        Adder a("TASKS");
        for (int i = 0; i < tasks; ++i) addTask(a, i, projects);
    }
    {
        Adder a("TaskKeywords");
        for (int i = 0; i < tasks; ++i)
            for (int k = 0; k < i % 4; ++k)
                a.add({{"ktTASKGUID", Value(key('T', i))},
                       {"ktTask", Value(kOdd[i % kOdd.size()] + " " + std::to_string(i))},
                       {"ktKEYGUID", Value(key('K', (i + k) % keywords))},
                       {"ktKeyword",
                        Value(midChars(kOdd[((i + k) % keywords) % kOdd.size()], 1, 20) + " " +
                              std::to_string((i + k) % keywords))}});
    }
    Adder a("TASKAPPTS");
    for (int i = 0; i < tasks; i += 2)
        for (int n = 0; n < 2; ++n)
            a.add({{"taGUIDID", Value(key('A', i * 2 + n))}, {"taTaskGUIDID", Value(key('T', i))},
                   {"taProject", Value("Project + name " + std::to_string(i % projects))},
                   {"taProjectGUIDID", Value(key('P', i % projects))}, {"taStartTime", date(i + n, 8 * 60 + 30 * n)},
                   {"taEndTime", date(i + n, 9 * 60 + 30 * n)},
                   {"taTaskDesc", Value(kOdd[i % kOdd.size()] + " " + std::to_string(i))},
                   {"taImp", Value(static_cast<int16_t>(i % 5))}, {"taDifficulty", Value(static_cast<int16_t>(n))},
                   {"taWasWorked", Value(n == 0)}, {"taTimeWorked", Value(int32_t{n == 0 ? 45 : 0})},
                   {"taDuration", Value(int32_t{60})}});
}

void InteropFixture::point(const std::string& folder) {
    g().AppPath = folder;
    g().ConnString.clear();
    locateSessionStore();
}

void InteropFixture::useSecondStore() {
    if (second_.empty()) {
        second_ = folder() + "/second";
        std::filesystem::create_directory(second_);
        if (const char* server = std::getenv("QV_STORE_URI"); server && *server) {
            writeSettingsFile(second_, makeScratchServerStore(server));
        } else {
            installStore(second_);
            installSettingsFile(second_);
        }
    }
    point(second_);
}

void InteropFixture::useFirstStore() {
    point(folder());
}

void InteropFixture::TearDown() {
    if (!second_.empty() && onServerStore()) {
        PgConnection::releaseAll();
        dropScratchServerStore(storeLocationOf(second_));
    }
    useFirstStore();
    TestEnv::TearDown();
}

std::vector<std::string> InteropFixture::dump(const std::string& table) {
    Recordset rs;
    rs.Open("SELECT * FROM " + table, g().ConnString, adOpenStatic, adLockReadOnly);
    std::vector<std::string> rows;
    for (; !rs.EOF_(); rs.MoveNext()) {
        std::string row;
        for (int i = 0; i < rs.FieldCount(); ++i) {
            Field f = rs.FieldAt(i);
            if (f.Name() == "qv_rowid") continue;
            const Value v = f.value();
            row += f.Name() + "=" + (v.isNull() ? "<null>" : v.toText()) + "|";
        }
        rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::string InteropFixture::run(const std::string& command) const {
    std::unique_ptr<FILE, decltype(&pclose)> pipe(popen(("cd '" + folder() + "' && " + command + " 2>&1").c_str(), "r"),
                                                  pclose);
    std::string out;
    if (!pipe) return out;
    char buffer[4096];
    while (std::size_t n = fread(buffer, 1, sizeof buffer, pipe.get())) out.append(buffer, n);
    return out;
}

}  // namespace qv
