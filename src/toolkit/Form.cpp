#include "toolkit/Form.h"

#include <algorithm>
#include <exception>

#include "toolkit/Ports.h"
#include "toolkit/Sheet.h"
#include "toolkit/Timer.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {
std::vector<std::weak_ptr<Form>>& registry() {
    static std::vector<std::weak_ptr<Form>> forms;
    return forms;
}
std::vector<std::shared_ptr<void>>& graveyard() {
    static std::vector<std::shared_ptr<void>> dead;
    return dead;
}
}  // namespace

Form::Form(std::string name) : name_(std::move(name)) {}

Form::~Form() = default;

void Form::setCaption(const std::string& c) {
    caption_ = c;
    Changed();
}

void Form::load() {
    if (loaded_) return;
    loaded_ = true;
    registry().push_back(weak_from_this());
    Form_Load();
}

void Form::showModal(Form* owner) {
    load();
    owner_ = owner;
    ui().showModal(*this);
}

void Form::hide() {
    if (!visible_) return;
    ui().hide(*this);
    setVisible(false);
}

void Form::setVisible(bool v) {
    if (visible_ == v) return;
    visible_ = v;
    Changed();
}

void Form::unload() {
    if (!loaded_ || unloading_) return;
    // Out of the open forms first: a fault in the unload logic that takes
    // the error path does not unload this form a second time.
    unloading_ = true;
    auto& forms = registry();
    forms.erase(std::remove_if(forms.begin(), forms.end(),
                               [this](const std::weak_ptr<Form>& w) {
                                   auto f = w.lock();
                                   return !f || f.get() == this;
                               }),
                forms.end());
    // Keep this object alive for the rest of the caller's handler.
    if (auto self = weak_from_this().lock()) deferRelease(self);
    stopTimers();
    std::exception_ptr fault;
    try {
        Form_Unload();
    } catch (...) {
        fault = std::current_exception();
    }
    stopTimers();  // the unload logic may have started one
    try {
        hide();
    } catch (...) {
        if (!fault) fault = std::current_exception();
    }
    loaded_ = false;
    unloading_ = false;
    Unloaded();
    if (fault) std::rethrow_exception(fault);
}

void Form::stopTimers() {
    for (auto& [name, timer] : timers_) timer->setEnabled(false);
}

void Form::requestClose() {
    bool cancel = false;
    Form_QueryUnload(cancel, 0);
    if (!cancel) unload();
}

// F1 is the dialog's own Help tool, wherever the focus is; the dialogs'
// key handlers never see it.
void Form::keyDown(int32_t keyCode, int32_t shift) {
    if (keyCode == vbKeyF1) {
        for (const auto& [name, sheet] : sheets_)
            if (Tool* help = sheet->find("HELP"); help && help->enabled() && help->visible()) {
                sheet->click(*help);
                return;
            }
        return;
    }
    Form_KeyDown(keyCode, shift);
}

void Form::move(int32_t left, int32_t top, int32_t width, int32_t height) {
    geometry_.left = left;
    geometry_.top = top;
    geometry_.width = width;
    geometry_.height = height;
    Changed();
}

void Form::setWindowState(int32_t state) {
    geometry_.state = state;
    Changed();
}

void Form::userResized(const Geometry& g) {
    geometry_ = g;
    Form_Resize();
}

std::vector<std::shared_ptr<Form>> Form::openForms() {
    std::vector<std::shared_ptr<Form>> out;
    for (const auto& w : registry())
        if (auto f = w.lock()) out.push_back(std::move(f));
    return out;
}

void deferRelease(std::shared_ptr<void> object) { graveyard().push_back(std::move(object)); }

void releaseDeferred() {
    // Destructors may defer more; drain until quiet.
    while (!graveyard().empty()) {
        auto dead = std::move(graveyard());
        graveyard().clear();
        dead.clear();
    }
}

}  // namespace qv
