#include <gtest/gtest.h>

#include <set>

#include "values/types/CCreateGuid.h"

namespace qv {

TEST(CCreateGuid, ThirtySixUpperHexWithDashesAndUnique) {
    std::set<std::string> seen;
    for (int i = 0; i < 500; ++i) {
        const std::string g = CCreateGuid::guid();
        ASSERT_EQ(g.size(), 36u) << g;
        for (std::size_t k = 0; k < g.size(); ++k) {
            if (k == 8 || k == 13 || k == 18 || k == 23)
                ASSERT_EQ(g[k], '-') << g;
            else
                ASSERT_TRUE(std::isdigit(static_cast<unsigned char>(g[k])) || (g[k] >= 'A' && g[k] <= 'F'))
                    << g;
        }
        EXPECT_EQ(g[14], '4') << "version 4";
        seen.insert(g);
    }
    EXPECT_EQ(seen.size(), 500u);
}

TEST(CCreateGuid, PadHexPadsAndDashes) {
    EXPECT_EQ(CCreateGuid::PadHex(0xA, 4), "000A");
    EXPECT_EQ(CCreateGuid::PadHex(0xABCDE, 2, true), "ABCDE-");
    EXPECT_EQ(CCreateGuid::PadHex(0, 0), "0");
}

}  // namespace qv
