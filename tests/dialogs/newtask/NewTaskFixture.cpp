#include "dialogs/newtask/NewTaskFixture.h"

#include <algorithm>

#include "session/globals/SessionGlobals.h"

namespace qv {

void NewTaskFixture::SetUp() {
    TestEnv::SetUp();
    task_.Raised.connect([this](const HostEvent& e) { events_.push_back(e.name); });
}

void NewTaskFixture::addProject(const std::string& key, const std::string& name) const {
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('" + key + "', '" + name + "')");
}

void NewTaskFixture::addKeyword(const std::string& key, const std::string& subject, const std::string& word) const {
    exec("INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) VALUES ('" + key + "', '" + subject + "', '" +
         word + "')");
}

void NewTaskFixture::seed() const {
    addProject(kAlpha, "Alpha");
    addProject(kBeta, "Beta");
    addKeyword(kKeyRed, "Colour", "Red");
    addKeyword(kKeyBlue, "Colour", "Blue");
}

void NewTaskFixture::open(int32_t mode, const std::string& guid, const std::string& project) {
    task_.SetupTask(mode, guid, {"u0", "u1", "u2", "u3", "u4", "u5"}, 1, "", "", project);
}

void NewTaskFixture::click(const std::string& sheetName, const std::string& key) {
    then([this, sheetName, key] { sheet(sheetName).click(tool(sheetName, key)); });
}

void NewTaskFixture::typeDescription(const std::string& text) {
    then([this, text] { shown().editor("spellTask")->userEdit(text); });
}

int NewTaskFixture::count(const std::string& eventName) const {
    return static_cast<int>(std::count(events_.begin(), events_.end(), eventName));
}

}  // namespace qv
