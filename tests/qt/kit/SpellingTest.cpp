// Spelling through Enchant: the dictionary of the user's language, the
// corrections and "Add to Dictionary" of the editor's context menu, the
// personal word list, and an editor that works on without a dictionary.
#include <gtest/gtest.h>

#include <memory>

#include <QMenu>
#include <QTemporaryDir>
#include <QTest>

#include "kit/EnchantChecker.h"
#include "kit/SpellHighlighter.h"
#include "kit/TextEditorView.h"
#include "support/ScopedEnv.h"
#include "toolkit/TextEditor.h"

namespace qv {
namespace {

TEST(Spelling, TheUsersLanguageComesFirstThenAmericanEnglish) {
    struct Case {
        const char* all;
        const char* messages;
        const char* lang;
        std::vector<std::string> languages;
    };
    const Case cases[] = {
        {nullptr, nullptr, "de_DE.UTF-8", {"de_DE", "de", "en_US"}},
        {nullptr, "fr_CA.UTF-8", "de_DE.UTF-8", {"fr_CA", "fr", "en_US"}},
        {"pt_BR@euro", "fr_CA", "de_DE", {"pt_BR", "pt", "en_US"}},
        {nullptr, nullptr, "en_US.UTF-8", {"en_US", "en"}},
        {nullptr, nullptr, "C.UTF-8", {"en_US"}},
        {nullptr, nullptr, nullptr, {"en_US"}},
    };
    for (const Case& c : cases) {
        ScopedEnv env;
        env.set("LC_ALL", c.all).set("LC_MESSAGES", c.messages).set("LANG", c.lang);
        EXPECT_EQ(EnchantChecker::userLanguages(), c.languages) << (c.lang ? c.lang : "(no LANG)");
    }
}

class SpellingWithEnglish : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(home_.isValid());
        // Personal word lists (Enchant's, and a provider's in the home
        // folder) go to a folder of the test's own.
        env_.set("ENCHANT_CONFIG_DIR", home_.path().toUtf8().constData());
        env_.set("HOME", home_.path().toUtf8().constData());
        checker_ = std::make_unique<EnchantChecker>(std::vector<std::string>{"en_US"}, false);
        if (!checker_->available()) GTEST_SKIP() << "no en_US dictionary installed";
    }
    // The context menu of the editor at a character of its text.
    static std::unique_ptr<QMenu> menuAt(TextEditorView& view, int position) {
        QTextCursor c(view.document());
        c.setPosition(position);
        return std::unique_ptr<QMenu>(view.contextMenuAt(view.cursorRect(c).center()));
    }
    static QStringList texts(const QMenu& menu) {
        QStringList out;
        for (const QAction* a : menu.actions()) out << a->text();
        return out;
    }

    // A shown editor checking with English, holding the text.
    std::unique_ptr<TextEditorView> editorWith(const std::string& text) {
        model_.setSpellCheckOn(true);
        auto view = std::make_unique<TextEditorView>(model_);
        view->setSpellChecker(*checker_);
        view->resize(400, 200);
        view->show();
        model_.setText(text);
        return view;
    }

    QTemporaryDir home_;
    ScopedEnv env_;
    std::unique_ptr<EnchantChecker> checker_;
    TextEditor model_{"spellTask"};
};

TEST_F(SpellingWithEnglish, AMarkedWordOffersItsCorrectionsAndTheChosenOneReplacesIt) {
    EXPECT_EQ(checker_->language(), "en_US");
    auto editor = editorWith("the quick brwn fox");
    TextEditorView& view = *editor;
    TextEditor& model = model_;
    EXPECT_EQ(view.highlighter()->misspelt(view.toPlainText()), QStringList{"brwn"});

    auto menu = menuAt(view, 11);  // inside "brwn"
    const QStringList entries = texts(*menu);
    ASSERT_TRUE(entries.contains("brown")) << entries.join(", ").toStdString();
    EXPECT_TRUE(entries.contains("Add to Dictionary"));
    EXPECT_LT(entries.indexOf("brown"), entries.indexOf("Add to Dictionary"));
    for (QAction* a : menu->actions())
        if (a->text() == "brown") a->trigger();
    EXPECT_EQ(model.text(), "the quick brown fox");

    // A right word, or a read-only editor, offers only the editing entries.
    EXPECT_FALSE(texts(*menuAt(view, 5)).contains("Add to Dictionary"));
    model.setText("the quick brwn fox");
    model.setReadOnly(true);
    EXPECT_FALSE(texts(*menuAt(view, 11)).contains("Add to Dictionary"));
}

TEST_F(SpellingWithEnglish, AnAddedWordIsRightNowAndInTheNextSession) {
    auto editor = editorWith("Quorvelish notes");
    TextEditorView& view = *editor;
    ASSERT_EQ(view.highlighter()->misspelt(view.toPlainText()), QStringList{"Quorvelish"});
    const auto menu = menuAt(view, 3);
    for (QAction* a : menu->actions())
        if (a->objectName() == "addToDictionary") a->trigger();
    EXPECT_TRUE(view.highlighter()->misspelt(view.toPlainText()).isEmpty());
    EXPECT_TRUE(EnchantChecker({"en_US"}, false).isCorrect("Quorvelish"));
}

TEST(Spelling, WithoutADictionaryTheEditorWorksAndMarksNothing) {
    EnchantChecker none({"zz_ZZ"}, false);
    EXPECT_FALSE(none.available());
    EXPECT_TRUE(none.isCorrect("brwn"));
    EXPECT_TRUE(none.suggest("brwn").empty());
    none.addToPersonal("brwn");  // nothing to add to, and no harm

    TextEditor model("spellTask");
    model.setSpellCheckOn(true);
    TextEditorView view(model);
    view.setSpellChecker(none);
    QTest::keyClicks(&view, "the quick brwn fox");
    EXPECT_EQ(model.text(), "the quick brwn fox");
    EXPECT_TRUE(view.highlighter()->misspelt(view.toPlainText()).isEmpty());
    std::unique_ptr<QMenu> menu(view.contextMenuAt({20, 10}));
    for (const QAction* a : menu->actions()) EXPECT_NE(a->text(), "Add to Dictionary");
}

}  // namespace
}  // namespace qv
