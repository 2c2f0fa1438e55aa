#pragma once
// The desktop user-interface port: a modal show is a real modal dialog with
// its own event loop, message boxes carry the program's buttons and icons,
// and one QTimer drives the toolkit's timers.

#include <functional>
#include <map>
#include <memory>

#include <QObject>
#include <QTimer>

#include "Export.h"
#include "toolkit/Ui.h"

class QWidget;

namespace qv {

class FormWindow;
class ViewFactory;

class QV_EXPORT QtUi : public QObject, public Ui {
    Q_OBJECT
public:
    explicit QtUi(ViewFactory& views, QObject* parent = nullptr);
    ~QtUi() override;

    int32_t msgBox(const std::string& text, int32_t style, const std::string& title) override;
    void showModal(Form& form) override;
    void show(Form& form) override;
    void hide(Form& form) override;
    void doEvents() override;
    void holdInput(bool held) override { inputHeld_ = held; }
    void setWaitCursor(bool on) override;

    // The window that shows a form now, or nullptr.
    [[nodiscard]] FormWindow* windowOf(const Form& form) const;
    // Called with every window as soon as it is built (tests, screenshots).
    void setWindowBuilt(std::function<void(FormWindow&)> fn) { windowBuilt_ = std::move(fn); }

private:
    std::unique_ptr<FormWindow> build(Form& form);
    [[nodiscard]] QWidget* parentFor(const Form& form) const;

    ViewFactory& views_;
    std::map<const Form*, FormWindow*> windows_;
    std::map<const Form*, std::unique_ptr<FormWindow>> modeless_;
    std::function<void(FormWindow&)> windowBuilt_;
    QTimer timerPump_;
    int depth_ = 0;
    bool waitCursor_ = false;
    bool inputHeld_ = false;
};

}  // namespace qv
