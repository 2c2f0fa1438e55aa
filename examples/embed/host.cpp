// The smallest host of the component: opens the store in the folder given,
// runs one New Task in a project without a display (a scripted user types
// the task and saves it) and prints every event the component raised.
//
//   host FOLDER PROJECT_KEY "Task text"
//
// Build it against an installed component with CMakeLists.txt beside it, or:
//   c++ host.cpp $(pkg-config --cflags --libs quorveltask2) -o host

#include <iostream>
#include <memory>
#include <string>

#include <quorvel/ConsoleReporter.h>
#include <quorvel/FakeClock.h>
#include <quorvel/Form.h>
#include <quorvel/Ports.h>
#include <quorvel/ScriptedUi.h>
#include <quorvel/SessionGlobals.h>
#include <quorvel/Sheet.h>
#include <quorvel/TextEditor.h>
#include <quorvel/clsTask2.h>

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: host FOLDER PROJECT_KEY \"Task text\"\n";
        return 2;
    }
    // The program's folder: QuorvelSettings.txt there says where the store is.
    qv::g().AppPath = argv[1];

    // The ports a host supplies: here a scripted user, a clock that moves
    // only when told, and the reporter that prints faults.
    qv::ScriptedUi ui;
    qv::FakeClock clock;
    auto reporter = std::make_shared<qv::ConsoleReporter>();
    qv::ports().ui = &ui;
    qv::ports().clock = &clock;
    qv::ports().reporter = reporter.get();

    qv::clsTask2 task;
    task.setTempErrReport(reporter);
    task.Raised.connect([](const qv::HostEvent& e) {
        std::cout << "heard " << e.name;
        for (const auto& arg : e.args) std::cout << " \"" << arg << "\"";
        std::cout << "\n";
    });

    // What the user does while the dialog is shown: wait for the defaults,
    // type the task, save it, close the dialog.
    const std::string text = argv[3];
    ui.queueAction([&] {
        clock.advance(600);
        qv::Form& form = *qv::Form::openForms().back();
        form.editor("spellTask")->userEdit(text);
        qv::Sheet& actions = *form.sheet("smtActions");
        actions.click(actions.tool("QV"));
        form.keyDown(qv::vbKeyEscape);
    });

    const std::vector<std::string> user{"", "", "", "", "", ""};
    task.SetupTask(0, "", user, 0, "", "", argv[2]);
    for (const auto& m : ui.messages()) std::cout << "message: " << m.text << "\n";
    qv::ports() = {};
    return 0;
}
