#pragma once
// What a screen reader says for a tool: its caption without the mnemonic
// and the trailing colon, or, for a tool with no caption, the label that
// stands before it, its tip, its key in words or its sheet's title; and
// the state a picture shows ("ready", "running").

#include <string>

#include <QString>

class QWidget;

namespace qv {

class Tool;

class AccessibleText {
public:
    // "&Update Task" -> "Update Task", "Status:\t" -> "Status".
    [[nodiscard]] static QString clean(const std::string& caption);
    [[nodiscard]] static QString nameOf(const Tool& tool);
    // What a state picture tells, or empty for none.
    [[nodiscard]] static QString stateOf(const std::string& image);
    // Sets the name and description where they differ (each change is an
    // event to the screen reader).
    static void set(QWidget* w, const QString& name, const QString& description = {});
};

}  // namespace qv
