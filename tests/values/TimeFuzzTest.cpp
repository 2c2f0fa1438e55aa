// Random texts through the duration grammar and the conversions: every
// input must end in a documented result or on the error path.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <random>
#include <string>

#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "support/FailureOf.h"
#include "toolkit/Ui.h"
#include "values/types/Convert.h"
#include "values/settings/DateFormats.h"
#include "values/settings/TimeValues.h"

namespace qv {
namespace {

class TimeFuzzTest : public TestEnv {
protected:
    TimeFuzzTest() : TestEnv({false, false}) {}
};

// Deterministic texts built from the grammar's pieces and noise.
class TextGenerator {
public:
    explicit TextGenerator(uint32_t seed) : rng_(seed) {}

    std::string next() {
        static const char* pieces[] = {"0", "1", "2", "9", "59", "60", "1440", ":", ":", "D", "d", "W", "w",
                                       " ", " ", "DAYS", "Week", "Days", ",", ".", "-", "+", "E", "AM", "PM",
                                       "/", "\t", "é", "日", "\xF0\x9F\x98\x80", "\xFF", "2147483648", "1e308"};
        std::string text;
        const int shape = pick(20);
        const int length = shape == 0 ? 2000 + pick(3000) : pick(12);
        for (int i = 0; i < length; ++i) text += pieces[pick(sizeof pieces / sizeof *pieces)];
        return text;
    }
    double minutes() {
        switch (pick(6)) {
            case 0: return static_cast<double>(static_cast<int32_t>(rng_()));
            case 1: return std::ldexp(static_cast<double>(rng_()), pick(80) - 20);
            case 2: return pick(20000) / 7.0;
            default: return pick(60000);
        }
    }
    int pick(std::size_t n) { return static_cast<int>(rng_() % n); }

private:
    std::mt19937 rng_;
};

TEST_F(TimeFuzzTest, RandomTextsEndInDocumentedResults) {
    TextGenerator gen(20240115);
    const char* days[][3] = {{"24", "480", "1020"}, {"8", "480", "1020"}, {"7.5", "8", "17"},
                             {"0", "0", "0"},      {"x", "", ""},         {"8", "1020", "480"}};
    const auto started = std::chrono::steady_clock::now();
    int formatted = 0;
    for (int i = 0; i < 100'000; ++i) {
        const auto& d = days[i % 6];
        g().DateFormats[datefmt::HoursInDay] = d[0];
        g().DateFormats[datefmt::D5Start] = d[1];
        g().DateFormats[datefmt::D5End] = d[2];
        const std::string text = gen.next();
        const std::size_t faultsBefore = reporter().faults().size();

        if (scriptedUi().pendingAnswers() == 0) scriptedUi().queueAnswer(vbOK);
        const int32_t minutes = FormatCTasTime(text);
        if (CheckCTasTime(text) && minutes != 0) { EXPECT_NE(text, ""); }
        IsTimeValue(text);
        IsTime(text);
        const std::string shown = SetTimeFormat(gen.minutes());
        formatted += !shown.empty();
        if (!shown.empty()) { EXPECT_LT(shown.size(), 40u) << shown; }

        // Conversions: a value or a Failure of the documented kinds.
        const int32_t failed = failureOf([&] { (void)toLong(text); }).number();
        EXPECT_TRUE(failed == 0 || failed == err::TypeMismatch || failed == err::Overflow) << text;
        (void)tryToDouble(text);
        (void)readsAsDate(text);

        // Every report names the procedure that failed.
        for (std::size_t k = faultsBefore; k < reporter().faults().size(); ++k)
        {
            EXPECT_EQ(reporter().faults()[k].module, "m_Task");
            EXPECT_NE(reporter().faults()[k].procedure, "CheckCTasTime") << text;  // told, never reported
        }
        if (reporter().faults().size() > 1000) reporter().clear();
        scriptedUi().clearMessages();
    }
    EXPECT_GT(formatted, 10'000);
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(120));
}

}  // namespace
}  // namespace qv
