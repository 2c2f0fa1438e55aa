#include "dialogs/shared/SpellChecking.h"

#include "session/globals/SessionGlobals.h"
#include "toolkit/TextEditor.h"

namespace qv {

namespace {
const char* const kSpellSettings = "TarnvikQuorvel";
}  // namespace

void applySpellChecking(std::initializer_list<TextEditor*> editors) {
    const bool on = g().SpellCheckOn;
    for (TextEditor* e : editors) {
        e->setSpellCheckOn(on);
        if (on) e->bindSettings(kSpellSettings);
    }
}

}  // namespace qv
