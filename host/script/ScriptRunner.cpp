#include "script/ScriptRunner.h"

#include <stdexcept>

#include "script/EventChecks.h"
#include "script/FormChecks.h"
#include "script/GridCommands.h"
#include "script/InputCommands.h"
#include "script/OutputChecks.h"
#include "script/ScriptContext.h"
#include "script/SessionCommands.h"
#include "toolkit/ScriptedUi.h"

namespace qv {

namespace {

// Every command family's lines, by their first word and by the word after "expect".
const ScriptCommands& table() {
    static const ScriptCommands commands = [] {
        ScriptCommands t;
        SessionCommands::addTo(t);
        InputCommands::addTo(t);
        GridCommands::addTo(t);
        FormChecks::addTo(t);
        EventChecks::addTo(t);
        OutputChecks::addTo(t);
        return t;
    }();
    return commands;
}

std::string expectations() {
    std::string list;
    std::size_t left = table().checks.size();
    for (const auto& [word, check] : table().checks) list += word + (--left > 1 ? ", " : left == 1 ? " or " : "");
    return list;
}

}  // namespace

ScriptRunner::ScriptRunner(std::ostream& out)
    : out_(out), context_(std::make_unique<ScriptContext>(out, [this](const std::string& text) {
          ++failed_;
          out_ << "FAILED line " << (next_ > 0 ? steps_[next_ - 1].number : 0)
               << ": no answer queued for the message \"" << text << "\"\n";
      })) {}

ScriptRunner::~ScriptRunner() = default;

const std::string& ScriptRunner::folder() const { return context_->folder(); }

int ScriptRunner::run(const std::vector<std::string>& lines) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        try {
            auto line = ScriptLine::parse(static_cast<int>(i + 1), lines[i]);
            if (!line.words.empty()) steps_.push_back(std::move(line));
        } catch (const std::exception& e) {
            fail(ScriptLine{static_cast<int>(i + 1), {}}, e.what());
        }
    }
    while (next_ < steps_.size()) runNextStep();
    out_ << passed_ << " passed, " << failed_ << " failed\n";
    return failed_;
}

// Lines run one at a time, also while a dialog is shown: each run queues
// the next one first, so a dialog opened by this line takes the rest.
void ScriptRunner::runNextStep() {
    if (next_ >= steps_.size()) return;
    const ScriptLine& line = steps_[next_++];
    if (next_ < steps_.size()) context_->ui().queueAction([this] { runNextStep(); });
    try {
        step(line);
    } catch (const std::exception& e) {
        fail(line, e.what());
    }
}

void ScriptRunner::step(const ScriptLine& line) {
    const auto command = line.lowerWord(0);
    if (command == "expect") return expect(line);
    auto it = table().commands.find(command);
    if (it == table().commands.end()) throw std::invalid_argument("unknown command \"" + line.word(0) + "\"");
    it->second(*context_, line);
}

void ScriptRunner::expect(const ScriptLine& line) {
    auto it = table().checks.find(line.lowerWord(1));
    if (it == table().checks.end()) throw std::invalid_argument("expect " + expectations());
    const std::string why = it->second(*context_, line);
    if (why.empty()) {
        ++passed_;
        return;
    }
    fail(line, why);
}

void ScriptRunner::fail(const ScriptLine& line, const std::string& why) {
    ++failed_;
    out_ << "FAILED line " << line.number << ": " << why << "\n";
}

}  // namespace qv
