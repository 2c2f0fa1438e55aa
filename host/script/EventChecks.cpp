#include "script/EventChecks.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "script/ScriptContext.h"
#include "script/ScriptHelp.h"
#include "script/ScriptLine.h"
#include "toolkit/Form.h"
#include "toolkit/ScriptedUi.h"
#include "values/types/Convert.h"

namespace qv {

void EventChecks::addTo(ScriptCommands& table) {
    table.checks.insert({
        {"event", [](ScriptContext& c, const ScriptLine& l) { return event(c, l, true); }},
        {"no-event", [](ScriptContext& c, const ScriptLine& l) { return event(c, l, false); }},
        {"message", &message},
        {"no-message", &noMessage},
        {"form", &form},
        {"help",
         [](ScriptContext& c, const ScriptLine& l) { return c.help().checkTopic(toLong(l.word(2)), l.word(3)); }},
        {"help-page", [](ScriptContext& c, const ScriptLine& l) { return c.help().checkPage(l.word(2)); }},
    });
}

std::string EventChecks::event(ScriptContext& c, const ScriptLine& l, bool present) {
    const auto& name = l.word(2);
    std::vector<std::string> args(l.words.begin() + std::min<std::size_t>(3, l.words.size()), l.words.end());
    for (std::size_t i = c.eventCursor; i < c.events.size(); ++i) {
        if (c.events[i].name != name || (!args.empty() && c.events[i].args != args)) continue;
        if (!present) return "the event " + name + " was raised";
        c.eventCursor = i + 1;
        return {};
    }
    if (present) return "no event " + name + (args.empty() ? "" : " with " + l.rest(3));
    return {};
}

std::string EventChecks::message(ScriptContext& c, const ScriptLine& l) {
    std::optional<std::string> title;
    std::optional<int32_t> style;
    for (std::size_t i = 3; i < l.words.size(); ++i) {
        const auto& w = l.words[i];
        if (w.rfind("title=", 0) == 0) title = w.substr(6);
        else if (w.rfind("style=", 0) == 0) style = static_cast<int32_t>(toLong(w.substr(6)));
        else throw std::invalid_argument("expect message TEXT [title=TITLE] [style=N]");
    }
    const auto& msgs = c.ui().messages();
    for (std::size_t i = c.messageCursor; i < msgs.size(); ++i) {
        if (msgs[i].text != l.word(2)) continue;
        c.messageCursor = i + 1;
        if (title && msgs[i].title != *title)
            return "the message's title is \"" + msgs[i].title + "\", not \"" + *title + "\"";
        if (style && msgs[i].style != *style)
            return "the message's style is " + std::to_string(msgs[i].style) + ", not " + std::to_string(*style);
        return {};
    }
    return "no message \"" + l.word(2) + "\"";
}

std::string EventChecks::noMessage(ScriptContext& c, const ScriptLine& l) {
    const auto& msgs = c.ui().messages();
    for (std::size_t i = c.messageCursor; i < msgs.size(); ++i)
        if (l.words.size() < 3 || msgs[i].text == l.word(2)) return "a message was shown: " + msgs[i].text;
    return {};
}

std::string EventChecks::form(ScriptContext& c, const ScriptLine& l) {
    std::string shown = "none";
    try {
        shown = c.activeForm().name();
    } catch (const std::runtime_error&) {
    }
    if (shown == l.word(2)) return {};
    return "the dialog shown is " + shown + ", not " + l.word(2);
}

}  // namespace qv
