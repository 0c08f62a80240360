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

// The keys that carry the generation of one save; all must agree.
struct Snapshot
{
    bool complete = false;
    int work_time = -1;
    int rest_time = -1;
    int day_temperature = -1;
    QString marker;
};

Snapshot read_snapshot(const QByteArray& file)
{
    Snapshot snapshot;
    int seen = 0;
    for (const QByteArray& raw : file.split('\n')) {
        const int equals = raw.indexOf('=');
        if (equals <= 0)
            continue;
        const QByteArray key = raw.left(equals);
        const QByteArray value = raw.mid(equals + 1);
        if (key == "WorkTime") {
            snapshot.work_time = value.toInt();
            ++seen;
        } else if (key == "RestTime") {
            snapshot.rest_time = value.toInt();
            ++seen;
        } else if (key == "DayTemperature") {
            snapshot.day_temperature = value.toInt();
            ++seen;
        } else if (key == "LastCheckedDailyUsageOn") {
            snapshot.marker = QString::fromLatin1(value);
            ++seen;
        } else if (key == "ZoomOutHotkey") {
            // Sorted last of the [General] keys that a save writes.
            ++seen;
        }
    }
    snapshot.complete = seen == 5;
    return snapshot;
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
    int kills = 0;
    for (int round = 0; round < 25; ++round) {
        QProcess writer;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(writer_variable, "1");
        writer.setProcessEnvironment(environment);
        writer.start(QCoreApplication::applicationFilePath(),
                     {"--gtest_filter=AtomicSaveTest.WriterChild"});
        ASSERT_TRUE(writer.waitForStarted(10000));
        // Wait until the first save is on disk, then let it run a little.
        while (!writer.readAllStandardOutput().contains("saving")) {
            ASSERT_EQ(writer.state(), QProcess::Running) << writer.readAllStandardError().data();
            writer.waitForReadyRead(100);
        }
        QThread::usleep(static_cast<unsigned long>(random() % 150000));
        ::kill(static_cast<pid_t>(writer.processId()), SIGKILL);
        writer.waitForFinished(10000);
        ++kills;

        const Snapshot snapshot = read_snapshot(read_store());
        ASSERT_TRUE(snapshot.complete) << "round " << round << ": a torn file";
        const int generation = snapshot.marker.left(snapshot.marker.indexOf('x')).toInt();
        EXPECT_GE(generation, 1);
        EXPECT_EQ(snapshot.marker, generation_text(generation)) << "round " << round;
        EXPECT_EQ(snapshot.work_time, 1 + generation % 1440) << "round " << round;
        EXPECT_EQ(snapshot.rest_time, 1 + generation % 1440) << "round " << round;
        EXPECT_EQ(snapshot.day_temperature, 100 * (generation % 100)) << "round " << round;
    }
    EXPECT_EQ(kills, 25);

    // The lock a killed writer leaves behind does not block the next save.
    settings.clear();
    open().restore_settings();
    settings[SaveKeys::WORK_TIME] = 77;
    manager->save_settings();
    EXPECT_EQ(manager->get_settings()->status(), QSettings::NoError);
    close();
    EXPECT_EQ(read_snapshot(read_store()).work_time, 77);
}
