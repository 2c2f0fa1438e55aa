#pragma once
// The program speaks the language of its environment (LANG, LC_ALL, ...):
// the quorvel catalogue through gettext, Qt's own texts (standard buttons,
// a line edit's menu, the file dialog) from Qt's catalogue. The logic's
// numbers keep '.' decimals whatever the locale.

class QCoreApplication;

namespace qv {

class UserLanguage {
public:
    // Before any text is shown, with or without an application: the
    // environment's locale, numbers excepted.
    static void fromEnvironment();
    // Once the application stands (it set the whole locale again from the
    // environment): numbers back to "C", and Qt's catalogue for the language.
    static void useIn(QCoreApplication& app);
};

}  // namespace qv
