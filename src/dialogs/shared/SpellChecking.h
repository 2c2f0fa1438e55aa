#pragma once
// Spell checking of a task dialog's editors, as the settings say: on, and
// bound to the program's dictionary settings, or off.

#include <initializer_list>

namespace qv {

class TextEditor;

void applySpellChecking(std::initializer_list<TextEditor*> editors);

}  // namespace qv
