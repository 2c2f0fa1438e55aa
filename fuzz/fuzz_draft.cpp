// The draft file reader: any text is a draft or nothing, never a crash;
// a draft read back writes the same text again.

#include "FuzzPorts.h"
#include "dialogs/shared/DraftFile.h"

using namespace qv;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string input = fuzz::text(data, size);
    const DraftKey key{"/home/u/QuorvelData.mdb", 1, "99999999-0000-0000-0000-000000000009"};
    const auto draft = DraftFile::decode(input, key);
    if (!draft) return 0;
    const std::string again = DraftFile::encode(*draft);
    const auto back = DraftFile::decode(again, key);
    if (!back || back->changes != draft->changes) fuzz::broken("a draft does not read back", input);
    return 0;
}
