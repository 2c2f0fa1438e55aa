#pragma once
// The spell editor: plain text and its rich form kept in step, a font, the
// spell-as-you-type switch bound to a settings name, read-only and locked.
// Change goes to the dialog on every change of the text; Changed to views.

#include <string>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class QV_EXPORT TextEditor {
public:
    explicit TextEditor(std::string name = {});
    TextEditor(const TextEditor&) = delete;
    TextEditor& operator=(const TextEditor&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }

    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(const std::string& t);
    // HTML-ish content: tags give the look, the text between them the words.
    [[nodiscard]] const std::string& richText() const { return rich_; }
    void setRichText(const std::string& html);
    // What the user typed, as a view reports it; ignored when read-only or locked.
    void userEdit(const std::string& t);

    [[nodiscard]] const std::string& fontName() const { return fontName_; }
    void setFontName(const std::string& n);
    [[nodiscard]] double fontSize() const { return fontSize_; }
    void setFontSize(double s);
    [[nodiscard]] bool fontBold() const { return fontBold_; }
    void setFontBold(bool b);

    [[nodiscard]] bool spellCheckOn() const { return spellCheckOn_; }
    void setSpellCheckOn(bool on);
    // Binds the user dictionary and options to a settings name.
    void bindSettings(const std::string& settingsName);
    [[nodiscard]] const std::string& settingsName() const { return settingsName_; }

    [[nodiscard]] bool readOnly() const { return readOnly_; }
    void setReadOnly(bool r);
    [[nodiscard]] bool locked() const { return locked_; }
    void setLocked(bool l);

    // Plain text of HTML-ish content, and the content of plain text.
    [[nodiscard]] static std::string plainOf(const std::string& html);
    [[nodiscard]] static std::string htmlOf(const std::string& plain);

    Event<> Change;   // the text changed
    Event<> Changed;  // anything a view shows changed

private:
    void apply(const std::string& text, const std::string& rich);

    std::string name_;
    std::string text_;
    std::string rich_;
    std::string fontName_ = "Arial";
    double fontSize_ = 10.0;
    bool fontBold_ = false;
    bool spellCheckOn_ = false;
    std::string settingsName_;
    bool readOnly_ = false;
    bool locked_ = false;
};

}  // namespace qv
