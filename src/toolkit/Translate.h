#pragma once
// Interface texts in the user's language (GNU gettext, domain "quorvel").
// The English text is its own key: with no catalogue for the language
// (LANG=C, any English locale) a text comes back unchanged, byte for byte.
// Stored values, settings keys and the report file's fixed words are data,
// not interface: they never go through here.

#include <string>

#include "Export.h"

namespace qv {

inline constexpr const char* kTextDomain = "quorvel";

// The text in the user's language.
QV_EXPORT std::string tr(const char* english);
// The form for n: one for 1 and many otherwise in English; the catalogue's
// plural rule decides in other languages.
QV_EXPORT std::string trn(const char* one, const char* many, unsigned long n);
// The folder the catalogues are read from (<folder>/<lang>/LC_MESSAGES/quorvel.mo).
QV_EXPORT std::string catalogueFolder();

}  // namespace qv

// Marks a text for the catalogue where it is translated later, when shown
// (a table of captions, say).
#define QV_N(text) text
