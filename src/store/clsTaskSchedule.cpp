#include "store/clsTaskSchedule.h"

#include "toolkit/Failure.h"

namespace qv {

namespace {

constexpr OpenParams kGetDataKeySpec{adOpenStatic, adLockBatchOptimistic, adOpenStatic, adLockBatchOptimistic};
constexpr OpenParams kBindingSpec{adOpenDynamic, adLockBatchOptimistic, -1, -1};

int16_t digitAt(const std::string& text, bool last) {
    if (text.empty()) throw Failure(err::TypeMismatch, "Type mismatch: no importance and difficulty given");
    const char c = last ? text.back() : text.front();
    if (c < '0' || c > '9')
        throw Failure(err::TypeMismatch, "Type mismatch: \"" + text + "\" is not two digits");
    return static_cast<int16_t>(c - '0');
}

}  // namespace

clsTaskSchedule::clsTaskSchedule() : DataSource("clsTaskSchedule", kBindingSpec) {}

bool clsTaskSchedule::GetDataKEY(RecordsetPtr& rst) {
    return openSet("GetDataKEY", sql(), kGetDataKeySpec, rst);
}

bool clsTaskSchedule::KillTA(const std::string& TAGUID) {
    return trapped("KillTA", [&] {
        auto& rs = set();
        rs.Requery(-1);
        bool found = false;
        // The walk goes on past a hit: a key may stand twice.
        while (!rs.EOF_()) {
            if (rs.Fields("taGUIDID").value().toText() == TAGUID) {
                rs.Delete(adAffectCurrent);
                rs.Update();
                rs.UpdateBatch(adAffectAllChapters);
                found = true;
            }
            rs.MoveNext();
        }
        rs.Requery(-1);
        pumpEvents();
        return found;
    });
}

bool clsTaskSchedule::AddTA(const std::string& TAGUID, const std::string& taTaskGuid,
                            const std::string& Project, const std::string& projectKey, Date Dstart, Date Dend,
                            const std::string& desc, const std::string& diffImp) {
    return trapped("AddTA", [&] {
        // Both digits are read before anything is written.
        const int16_t importance = digitAt(diffImp, false);
        const int16_t difficulty = digitAt(diffImp, true);
        auto& rs = set();
        rs.AddNew();
        rs.Fields("taGUIDID") = TAGUID;
        rs.Fields("taTaskGUIDID") = taTaskGuid;
        rs.Fields("taProject") = Project;
        rs.Fields("taProjectGUIDID") = projectKey;
        rs.Fields("taStartTime") = Dstart;
        rs.Fields("taEndTime") = Dend;
        rs.Fields("taTaskDesc") = desc;
        rs.Fields("taImp") = importance;
        rs.Fields("taDifficulty") = difficulty;
        rs.Fields("taWasWorked") = false;
        rs.Update();
        rs.UpdateBatch(adAffectAllChapters);
        rs.Requery(-1);
        pumpEvents();
        return true;
    });
}

}  // namespace qv
