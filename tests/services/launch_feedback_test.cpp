#include <gtest/gtest.h>

#include "services/LaunchFeedback.h"

namespace {

struct TimeCase
{
    const char* id;
    quint32 time;
};

TEST(LaunchFeedback, ReadsTheTimeAtTheEndOfTheId)
{
    const TimeCase cases[] = {
        {"launcher-12-host-ovra-0_TIME48213", 48213},
        {"a_TIME1_TIME2", 2},
        {"x_TIME4294967295", 4294967295u},
        {"x_TIME4294967296", 0},
        {"x_TIME99999999999999999999", 0},
        {"x_TIME", 0},
        {"x_TIME12a", 0},
        {"x_TIME-5", 0},
        {"x_TIME 5", 0},
        {"x_TIME0", 0},
        {"no time at all", 0},
        {"", 0},
    };
    for (const TimeCase& c : cases)
        EXPECT_EQ(LaunchFeedback::time_of(c.id), c.time) << c.id;
}

TEST(LaunchFeedback, KeepsOnlyIdsALauncherWrites)
{
    EXPECT_EQ(LaunchFeedback::checked("menu-1_TIME5"), QByteArray("menu-1_TIME5"));
    EXPECT_EQ(LaunchFeedback::checked("d\xc3\xa9j\xc3\xa0_TIME5"), QByteArray("d\xc3\xa9j\xc3\xa0_TIME5"));
    const QByteArray longest(LaunchFeedback::MAX_ID_LENGTH, 'a');
    EXPECT_EQ(LaunchFeedback::checked(longest), longest);
    const QByteArray refused[] = {
        QByteArray(LaunchFeedback::MAX_ID_LENGTH + 1, 'a'),
        QByteArray("line\nbreak_TIME5"),
        QByteArray("tab\there"),
        QByteArray("nul\0inside", 10),
        QByteArray("bad \xff utf8"),
        QByteArray("\xc3"),
    };
    for (const QByteArray& id : refused)
        EXPECT_TRUE(LaunchFeedback::checked(id).isEmpty()) << id.toHex().constData();
}

TEST(LaunchFeedback, QuotesTheIdInTheRemoveMessageOnlyWhenItMust)
{
    EXPECT_EQ(LaunchFeedback::remove_message("menu-1_TIME5"), QByteArray("remove: ID=menu-1_TIME5"));
    EXPECT_EQ(LaunchFeedback::remove_message("two words"), QByteArray("remove: ID=\"two words\""));
    EXPECT_EQ(LaunchFeedback::remove_message("a\"b\\c"), QByteArray("remove: ID=\"a\\\"b\\\\c\""));
}

TEST(LaunchFeedback, TakesTheIdOutOfTheEnvironment)
{
    qputenv("DESKTOP_STARTUP_ID", "menu-1_TIME5");
    EXPECT_EQ(LaunchFeedback::take_from_environment(), QByteArray("menu-1_TIME5"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"));
    // Garbage goes too: nothing started later may claim it.
    qputenv("DESKTOP_STARTUP_ID", "bad\x01");
    EXPECT_TRUE(LaunchFeedback::take_from_environment().isEmpty());
    EXPECT_FALSE(qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"));
}

} // namespace
