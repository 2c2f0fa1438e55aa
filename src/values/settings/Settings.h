#pragma once
// The user's preferences from the table Settings into the session globals,
// and the window geometry back. Every load reads the store afresh and brings
// an older store up to the present layout by adding the rows it lacks.

namespace qv {

// Loads the date formats, then every section in its fixed order. Under the
// trap (module m_Task): after a failure the globals stay as far as they got.
bool LoadSettings();

// Writes TAS, TASKWINDOW, ETASKSettings and ETASK from the window globals.
// A negative value is not written to TAS.
bool SaveSettings();

}  // namespace qv
