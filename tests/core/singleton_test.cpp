// The process-wide objects exist once; the soft assertion logs and goes on.
#include <gtest/gtest.h>

#include "base/Singleton.h"

namespace {

class Manager : public Singleton<Manager>
{
};

TEST(Singleton, RegistersAndClearsItsInstance)
{
    EXPECT_EQ(Manager::s_instance, nullptr);
    {
        Manager first;
        EXPECT_EQ(Manager::s_instance, &first);
    }
    EXPECT_EQ(Manager::s_instance, nullptr);
}

TEST(SingletonDeathTest, ASecondInstanceAborts)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            Manager first;
            Manager second;
        },
        "!s_instance.*line 18");
}

TEST(SoftAssertion, PrintsWhatFailedAndGoesOn)
{
    testing::internal::CaptureStdout();
    EXPECT_FALSE(slap_custom_assert_function(true, "m_dom", "REQUIRE", 12, "MainWindow.cpp"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");

    testing::internal::CaptureStdout();
    EXPECT_TRUE(slap_custom_assert_function(false, "m_dom", "REQUIRE", 12, "MainWindow.cpp"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Condition failed: REQUIRE\nExpected:\tm_dom\nSource:\t\tMainWindow.cpp, line 12\n");
}

} // namespace
