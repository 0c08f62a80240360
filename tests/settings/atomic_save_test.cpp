#include <QCoreApplication>
#include <QProcess>
#include <QThread>
#include <csignal>
#include <random>

#include "settings/SaveKeys.h"
#include "store_fixture.h"

// A save interrupted by kill -9 at any moment leaves the old file or the new
// one, never a mix. The test runs this same binary as a child that saves in a
// loop, kills it at random moments and reads what is left.
namespace {

const char writer_variable[] = "OVRA_ATOMIC_SAVE_WRITER";
// Large enough that a save takes a while and kills land inside writes.
const int padding_size = 300000;

QString generation_text(int generation)
{
    return QString::number(generation) + QString(padding_size, QChar('x'));
}

} // namespace

using AtomicSaveTest = StoreFixture;

// Runs only as the child of the test below.
TEST_F(AtomicSaveTest, WriterChild)
{
    if (qEnvironmentVariableIsEmpty(writer_variable))
        GTEST_SKIP() << "runs only as the writer of KilledSavesLeaveAWholeFile";
    open().restore_settings();
    for (int generation = 1;; ++generation) {
        settings[SaveKeys::WORK_TIME] = 1 + generation % 1440;
        settings[SaveKeys::REST_TIME] = 1 + generation % 1440;
        settings[SaveKeys::DAY_TEMPERATURE] = 100 * (generation % 100);
        settings[SaveKeys::LAST_CHECKED_DAILY_USAGE_ON] = generation_text(generation);
        manager->save_settings();
        if (generation == 1) {
            std::fputs("saving\n", stdout);
            std::fflush(stdout);
        }
    }
}

TEST_F(AtomicSaveTest, KilledSavesLeaveAWholeFile)
{
    std::mt19937 random(7);
    for (int round = 0; round < 25; ++round) {
        QProcess writer;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(writer_variable, "1");
        writer.setProcessEnvironment(environment);
        writer.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=AtomicSaveTest.WriterChild"});
        ASSERT_TRUE(writer.waitForStarted(10000));
        // Wait until the first save is on disk, then let it run a little.
        while (!writer.readAllStandardOutput().contains("saving")) {
            ASSERT_EQ(writer.state(), QProcess::Running) << writer.readAllStandardError().data();
            writer.waitForReadyRead(100);
        }
        QThread::usleep(static_cast<unsigned long>(random() % 150000));
        ::kill(static_cast<pid_t>(writer.processId()), SIGKILL);
        writer.waitForFinished(10000);

        // A whole file has the keys of one generation, all in agreement,
        // and ZoomOutHotkey, sorted last of the keys a save writes.
        const std::map<QString, QString> lines = stored_lines();
        for (const char* key : {"WorkTime", "RestTime", "DayTemperature", "LastCheckedDailyUsageOn", "ZoomOutHotkey"})
            ASSERT_EQ(lines.count(key), 1u) << "round " << round << ": a torn file without " << key;
        const QString marker = lines.at("LastCheckedDailyUsageOn");
        const int generation = marker.left(marker.indexOf('x')).toInt();
        EXPECT_GE(generation, 1);
        EXPECT_EQ(marker, generation_text(generation)) << "round " << round;
        EXPECT_EQ(lines.at("WorkTime").toInt(), 1 + generation % 1440) << "round " << round;
        EXPECT_EQ(lines.at("RestTime").toInt(), 1 + generation % 1440) << "round " << round;
        EXPECT_EQ(lines.at("DayTemperature").toInt(), 100 * (generation % 100)) << "round " << round;
    }

    // The lock a killed writer leaves behind does not block the next save.
    settings.clear();
    open().restore_settings();
    settings[SaveKeys::WORK_TIME] = 77;
    manager->save_settings();
    EXPECT_EQ(manager->get_settings()->status(), QSettings::NoError);
    close();
    EXPECT_EQ(stored_lines().at("WorkTime"), "77");
}
