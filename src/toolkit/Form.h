#pragma once
// The model of one dialog window: caption, geometry, visibility and the
// load/unload life. Dialog logic derives from it; the Ui port shows it.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class Sheet;
class TextEditor;
class DateBox;
class Timer;
class Splitter;
class Grid;
class Label;
class TabStrip;

// Key codes the dialogs look at.
enum KeyCode : int32_t { vbKeyReturn = 13, vbKeyEscape = 27, vbKeyF1 = 112 };
// Window states as the settings keep them.
enum WindowState : int32_t { vbNormal = 0, vbMinimized = 1, vbMaximized = 2 };

class QV_EXPORT Form : public std::enable_shared_from_this<Form> {
public:
    explicit Form(std::string name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(const std::string& c);

    [[nodiscard]] bool visible() const { return visible_; }
    [[nodiscard]] bool loaded() const { return loaded_; }
    // Loads the form (runs Form_Load once), as the first reference to it does.
    void load();

    // Modal show: returns when the form is hidden or unloaded.
    void showModal(Form* owner = nullptr);
    void hide();
    // Takes the form out of the open forms, stops its timers, runs the
    // unload logic and hides, even when that logic fails (the failure is
    // passed on after). A second unload while one runs does nothing. The
    // object itself lives on while anyone holds it.
    void unload();
    // The user closes the window: QueryUnload may cancel, else unload.
    void requestClose();
    // A key pressed while the form has the focus (the form sees keys first).
    void keyDown(int32_t keyCode, int32_t shift = 0);

    [[nodiscard]] Form* owner() const { return owner_; }

    // Geometry in twips, as the settings keep it.
    struct Geometry {
        int32_t left = 0, top = 0, width = 0, height = 0;
        int32_t state = vbNormal;
    };
    [[nodiscard]] const Geometry& geometry() const { return geometry_; }
    // Set by the program; views follow.
    void move(int32_t left, int32_t top, int32_t width, int32_t height);
    void setWindowState(int32_t state);
    // Reported by a view when the user resizes; runs Form_Resize.
    void userResized(const Geometry& g);

    // The form's named controls, for views and scripts (nullptr if none).
    [[nodiscard]] Sheet* sheet(const std::string& name) const { return lookup(sheets_, name); }
    [[nodiscard]] TextEditor* editor(const std::string& name) const { return lookup(editors_, name); }
    [[nodiscard]] DateBox* dateBox(const std::string& name) const { return lookup(dateBoxes_, name); }
    [[nodiscard]] Timer* timer(const std::string& name) const { return lookup(timers_, name); }
    [[nodiscard]] Splitter* splitter(const std::string& name) const { return lookup(splitters_, name); }
    [[nodiscard]] Grid* grid(const std::string& name) const { return lookup(grids_, name); }
    [[nodiscard]] Label* label(const std::string& name) const { return lookup(labels_, name); }
    [[nodiscard]] TabStrip* tabStrip(const std::string& name) const { return lookup(tabStrips_, name); }
    [[nodiscard]] const std::map<std::string, Sheet*>& sheets() const { return sheets_; }
    [[nodiscard]] const std::map<std::string, Grid*>& grids() const { return grids_; }
    [[nodiscard]] const std::map<std::string, TabStrip*>& tabStrips() const { return tabStrips_; }

    // The forms loaded now, oldest first (the error path unloads them all).
    static std::vector<std::shared_ptr<Form>> openForms();

    Event<> Changed;   // caption, geometry or visibility changed
    Event<> Unloaded;  // after the unload logic ran

protected:
    // Hooks for the dialogs.
    virtual void Form_Load() {}
    virtual void Form_KeyDown(int32_t /*keyCode*/, int32_t /*shift*/) {}
    // unloadMode 0: the user closed the window.
    virtual void Form_QueryUnload(bool& /*cancel*/, int32_t /*unloadMode*/) {}
    virtual void Form_Unload() {}
    virtual void Form_Resize() {}

    // Dialogs name their controls once, in their constructor.
    void addControl(const std::string& name, Sheet& c) { sheets_[name] = &c; }
    void addControl(const std::string& name, TextEditor& c) { editors_[name] = &c; }
    void addControl(const std::string& name, DateBox& c) { dateBoxes_[name] = &c; }
    void addControl(const std::string& name, Timer& c) { timers_[name] = &c; }
    void addControl(const std::string& name, Splitter& c) { splitters_[name] = &c; }
    void addControl(const std::string& name, Grid& c) { grids_[name] = &c; }
    void addControl(const std::string& name, Label& c) { labels_[name] = &c; }
    void addControl(const std::string& name, TabStrip& c) { tabStrips_[name] = &c; }

private:
    friend class FormAccess;
    template <typename T>
    static T* lookup(const std::map<std::string, T*>& m, const std::string& name) {
        auto it = m.find(name);
        return it == m.end() ? nullptr : it->second;
    }

    void setVisible(bool v);
    void stopTimers();

    std::string name_;
    std::string caption_;
    bool visible_ = false;
    bool loaded_ = false;
    bool unloading_ = false;
    Form* owner_ = nullptr;
    Geometry geometry_;
    std::map<std::string, Sheet*> sheets_;
    std::map<std::string, TextEditor*> editors_;
    std::map<std::string, DateBox*> dateBoxes_;
    std::map<std::string, Timer*> timers_;
    std::map<std::string, Splitter*> splitters_;
    std::map<std::string, Grid*> grids_;
    std::map<std::string, Label*> labels_;
    std::map<std::string, TabStrip*> tabStrips_;
};

// The Ui ports' side door: they flip visibility as their windows come and go.
class QV_EXPORT FormAccess {
public:
    static void setVisible(Form& f, bool v) { f.setVisible(v); }
};

// Keeps an object alive until the outermost handler on the stack returns:
// release after unload never destroys an object whose handler still runs.
QV_EXPORT void deferRelease(std::shared_ptr<void> object);
// Drops everything deferred; called when a modal wait has returned.
QV_EXPORT void releaseDeferred();

}  // namespace qv
