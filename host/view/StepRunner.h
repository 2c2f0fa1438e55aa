#pragma once
// Drives windows from outside, as a user would: a list of steps, each run
// once its condition holds, polled by a timer that keeps ticking inside
// modal windows. A step that waits past its time-out is skipped and
// counted, so nothing waits for ever. Open message boxes are answered.

#include <functional>
#include <vector>

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

class QMessageBox;
class QWidget;

namespace qv {

class StepRunner : public QObject {
    Q_OBJECT
public:
    using Condition = std::function<bool()>;
    using Action = std::function<void()>;
    // Sees a message box before it is answered; returns the answer button
    // (QMessageBox::StandardButton) or 0 for Yes, else the box's default.
    using BoxHandler = std::function<int(QMessageBox&)>;

    explicit StepRunner(int timeoutMs = 8000, QObject* parent = nullptr);

    // A step that runs once cond holds (for settleMs, when given).
    StepRunner& when(const QString& name, Condition cond, Action act, int settleMs = 0);
    StepRunner& then(const QString& name, Action act) { return when(name, [] { return true; }, std::move(act)); }
    void onMessageBox(BoxHandler handler) { boxHandler_ = std::move(handler); }
    void onFinished(Action act) { finished_ = std::move(act); }

    void start();
    // Skips every step left and finishes now (the demonstration can't go on).
    void abandon(const QString& why);
    [[nodiscard]] bool done() const { return done_; }
    [[nodiscard]] const QStringList& skipped() const { return skipped_; }
    [[nodiscard]] const QStringList& messages() const { return messages_; }

    // The visible window of a form, or nullptr.
    [[nodiscard]] static QWidget* formWindow(const QString& form);
    // Clicks a sheet's tool in a form's window ("smtActions.QV2").
    static bool clickTool(const QString& form, const QString& cell);
    // Types text into a widget by key events, as the user would.
    static void typeInto(QWidget* w, const QString& text);
    // Closes every open form, so every modal wait returns.
    static void closeAll();

private:
    struct Step {
        QString name;
        Condition ready;
        Action act;
        int settleMs;
    };

    void tick();
    void answerMessageBox();
    void finish();

    int timeoutMs_;
    std::vector<Step> steps_;
    std::size_t next_ = 0;
    QElapsedTimer stepClock_;
    QElapsedTimer readySince_;
    QTimer ticker_;
    BoxHandler boxHandler_;
    Action finished_;
    QStringList skipped_;
    QStringList messages_;
    bool done_ = false;
};

}  // namespace qv
