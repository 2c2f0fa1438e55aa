#pragma once
// The window geometry rules every dialog follows: minimum sizes, the state
// kept in the settings array on resize and on close, and the restore that
// brings a window closed minimised back maximised. Also where a dialog's
// splitter layout file lies and when it is loaded. The Task Appointment
// window differs: it keeps left before top, and a window closed minimised
// comes back normal.

#include <array>
#include <cstdint>
#include <string>

namespace qv {

class Form;

class WindowGeometry {
public:
    using Window = std::array<int32_t, 6>;  // top, left, width, height, ..., state
    // Where a dialog keeps its values; width and height are always 2 and 3.
    struct Slots {
        std::size_t top = 0;
        std::size_t left = 1;
        std::size_t state = 4;
        bool minimisedComesBackMaximised = true;
    };

    // The three dialogs' rules, on their globals.
    static WindowGeometry forTAS(Form& form);           // frmTAS2, TASWindow
    static WindowGeometry forExistingTask(Form& form);  // frmExistingTask, ETaskWindow
    static WindowGeometry forNewTask(Form& form);       // frmTask3, TaskWindow

    WindowGeometry(Form& form, Window& window, int32_t minWidth, int32_t minHeight, Slots slots);

    // Form_Resize: a maximised or minimised window only records its state;
    // a normal one is held to the minimum size and its geometry is kept.
    void onResize();
    // Closing: a normal window keeps its geometry once more, then SaveSettings.
    void onClose();
    // SetSize: state 0 places the window, 1 or 2 place it and maximise it
    // (1 normal where a minimised window comes back normal), any other
    // state leaves it as it is.
    void restore();

    // A layout file in the program's folder, with the trailing-separator test.
    static std::string layoutPath(const std::string& fileName);
    // Loaded only when AppVersion is not 0, at least 10, and the file exists.
    static bool mayLoadLayout(const std::string& path);

private:
    void keepNormalGeometry();

    Form& form_;
    Window& window_;
    int32_t minWidth_;
    int32_t minHeight_;
    Slots slots_;
};

}  // namespace qv
