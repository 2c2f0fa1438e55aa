#pragma once
// The window geometry rules every dialog follows: minimum sizes, the state
// kept in the settings array on resize and on close, and the restore that
// brings a window closed minimised back maximised. Also where a dialog's
// splitter layout file lies and when it is loaded.

#include <array>
#include <cstdint>
#include <string>

namespace qv {

class Form;

class WindowGeometry {
public:
    using Window = std::array<int32_t, 6>;  // top, left, width, height, ..., state

    // The three dialogs' rules, on their globals.
    static WindowGeometry forTAS(Form& form);           // frmTAS2, TASWindow
    static WindowGeometry forExistingTask(Form& form);  // frmExistingTask, ETaskWindow
    static WindowGeometry forNewTask(Form& form);       // frmTask3, TaskWindow

    WindowGeometry(Form& form, Window& window, int32_t minWidth, int32_t minHeight, std::size_t statePos);

    // Form_Resize: a maximised or minimised window only records its state;
    // a normal one is held to the minimum size and its geometry is kept.
    void onResize();
    // Closing: a normal window keeps its geometry once more, then SaveSettings.
    void onClose();
    // SetSize: state 0 places the window, 1 or 2 place it and maximise it,
    // any other state leaves it as it is.
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
    std::size_t statePos_;
};

}  // namespace qv
