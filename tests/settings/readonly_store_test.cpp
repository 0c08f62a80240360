#include "settings/SaveKeys.h"
#include "store_fixture.h"

// A configuration directory the program cannot write: one line on standard
// output, and the program runs on with its settings in memory.
class ReadOnlyStoreTest : public StoreFixture
{
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        // Not even root can create a directory here.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           "/proc/ovra-read-only-config");
    }

    void TearDown() override
    {
        StoreFixture::TearDown();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           qEnvironmentVariable("XDG_CONFIG_HOME"));
    }
};

TEST_F(ReadOnlyStoreTest, ReportsOnceAndRunsOnInMemory)
{
    testing::internal::CaptureStdout();
    SaveManager& store = open();
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_EQ(output, "Settings not writable\n");

    store.restore_settings();
    EXPECT_EQ(settings[SaveKeys::NIGHT_TEMPERATURE].toInt(), 3400);
    EXPECT_TRUE(settings[SaveKeys::IS_FIRST_START].toBool());

    settings[SaveKeys::NIGHT_TEMPERATURE] = 2700;
    settings[SaveKeys::WORK_TIME] = 50;
    store.save_settings();
    store.first_start_finished();
    EXPECT_NE(store.get_settings()->status(), QSettings::NoError);
    EXPECT_FALSE(QFileInfo::exists(store_path()));

    // What was saved lives on in memory for the rest of the run.
    store.restore_settings();
    EXPECT_EQ(settings[SaveKeys::NIGHT_TEMPERATURE].toInt(), 2700);
    EXPECT_EQ(settings[SaveKeys::WORK_TIME].toInt(), 50);
    EXPECT_FALSE(settings[SaveKeys::IS_FIRST_START].toBool());
}
