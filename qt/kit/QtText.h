#pragma once
// Interface texts of the Qt layer and the host in the user's language,
// from the same catalogue as the logic's (toolkit/Translate.h).

#include <QString>

#include "toolkit/Translate.h"

namespace qv {

inline QString qtr(const char* english) { return QString::fromStdString(tr(english)); }
inline QString qtrn(const char* one, const char* many, unsigned long n) {
    return QString::fromStdString(trn(one, many, n));
}

}  // namespace qv
