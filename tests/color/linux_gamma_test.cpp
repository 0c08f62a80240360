#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cmath>
#include <memory>
#include <string>

#include "XcbRamps.h"
#include "color/GammaFactory.h"
#include "color/LinuxGamma.h"
#include "color/RampCrashFile.h"

// These tests talk to the X server of $DISPLAY (a private Xvfb under
// `make test`) and put back every ramp they touch.

namespace {

// What the server holds before a backend starts: xrandr's identity.
uint16_t identity(unsigned int j, unsigned int size)
{
    return static_cast<uint16_t>(j * 65535u / (size - 1));
}

// A calibration curve of the kind another tool loads: brighter mid-tones.
uint16_t calibration(unsigned int j, unsigned int size)
{
    return static_cast<uint16_t>(std::sqrt(static_cast<double>(j) / (size - 1)) * 65535.0);
}

template <typename F>
std::string stderr_of(F f)
{
    testing::internal::CaptureStderr();
    f();
    return testing::internal::GetCapturedStderr();
}

class LinuxGammaTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            GTEST_SKIP() << "no DISPLAY: run under make test or scripts/with-xserver.sh";
        probe = std::make_unique<XcbRamps>();
        if (!probe->connected() || probe->count() == 0)
            GTEST_SKIP() << "the X server of DISPLAY has no RandR CRTCs";
        for (int i = 0; i < probe->count(); ++i)
            found.push_back(probe->get(i));
        old_runtime = qgetenv("XDG_RUNTIME_DIR");
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        for (int i = 0; i < probe->count(); ++i)
            ASSERT_TRUE(probe->set_curve(i, identity));
    }

    void TearDown() override
    {
        if (!probe)
            return;
        for (int i = 0; i < static_cast<int>(found.size()); ++i)
            probe->set(i, found[i]);
        qputenv("XDG_RUNTIME_DIR", old_runtime);
    }

    // Tints CRTC 0 at half brightness and checks that it lies over `base`.
    void expect_half_of(LinuxGamma& gamma, const CrtcRamps& base)
    {
        ColorSettings s{6500, {1, 1, 1}, 0.5f};
        ASSERT_EQ(gamma.set_temperature(&s, {}, 0), 0);
        const CrtcRamps half = probe->get(0);
        for (unsigned int j = 0; j < half.size; ++j)
            ASSERT_NEAR(half.red[j], std::floor(base.red[j] * 0.5), 1.0) << j;
    }

    std::unique_ptr<XcbRamps> probe;
    std::vector<CrtcRamps> found;
    QTemporaryDir runtime;
    QByteArray old_runtime;
};

} // namespace

TEST_F(LinuxGammaTest, FactoryBackendReconnectsCountsEveryCrtcAndKeepsItsFileWhileItLives)
{
    std::unique_ptr<IGamma> gamma(GammaFactory().get_gamma());
    ASSERT_NE(dynamic_cast<LinuxGamma*>(gamma.get()), nullptr);
    // As the controller does, and once more: each connection replaces the last.
    gamma->init();
    gamma->init();
    EXPECT_TRUE(gamma->is_connected());
    ASSERT_EQ(gamma->start(), 0);
    EXPECT_EQ(gamma->get_screen_count(), probe->count());
    const QString path = QString::fromStdString(static_cast<LinuxGamma*>(gamma.get())->crash_file_path());
    EXPECT_TRUE(path.startsWith(runtime.path() + "/ovra-ramps-"));
    EXPECT_TRUE(QFile::exists(path));
    ColorSettings s{3400, {1, 1, 1}, 1.0f};
    EXPECT_EQ(gamma->set_temperature(&s, {}, 0), 0);
    EXPECT_EQ(probe->get(0).green.back(), 50388); // 65535 * .76888303
    EXPECT_EQ(gamma->restore(), 0);
    EXPECT_EQ(probe->get(0), probe->curve(0, identity));
    gamma.reset();
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(LinuxGammaTest, TintReachesTheServerUnlessBelowFivePercent)
{
    LinuxGamma gamma;
    ASSERT_EQ(gamma.start(), 0);
    ColorSettings s{3400, {1, 1, 1}, 0.8f};
    ASSERT_EQ(gamma.set_temperature(&s, {}, 0), 0);
    const CrtcRamps written = probe->get(0);
    ASSERT_EQ(written.size, probe->size(0));
    for (unsigned int j = 0; j < written.size; ++j) {
        const double base = identity(j, written.size) * 0.8;
        EXPECT_NEAR(written.red[j], std::floor(base), 1.0) << j;
        EXPECT_NEAR(written.green[j], std::floor(base * 0.76888303), 1.0) << j;
        EXPECT_NEAR(written.blue[j], std::floor(base * 0.52427322), 1.0) << j;
    }
    EXPECT_EQ(written.red.back(), 52428); // 65535 * 0.8 exactly

    s = {6500, {1, 1, 1}, 0.049f};
    EXPECT_EQ(gamma.set_temperature(&s, {}, 0), -1);
    EXPECT_EQ(probe->get(0), written);
    s.brightness = 0.05f;
    EXPECT_EQ(gamma.set_temperature(&s, {}, 0), 0);
    EXPECT_NEAR(probe->get(0).red.back(), 3276, 1); // 65535 * 0.05 = 3276.75
}

TEST_F(LinuxGammaTest, CalibrationStaysUnderTheTintAndComesBackExactly)
{
    ASSERT_TRUE(probe->set_curve(0, calibration));
    const CrtcRamps before = probe->get(0);
    LinuxGamma gamma;
    ASSERT_EQ(gamma.start(), 0);
    expect_half_of(gamma, before);
    EXPECT_EQ(gamma.restore(), 0);
    EXPECT_EQ(probe->get(0), before);
}

TEST_F(LinuxGammaTest, RestoreAfterResetWritesTheLinearCurve)
{
    ASSERT_TRUE(probe->set_curve(0, calibration));
    LinuxGamma gamma;
    ASSERT_EQ(gamma.start(), 0);
    const CrtcRamps before = probe->get(0);
    EXPECT_EQ(gamma.reset(), 0);
    EXPECT_EQ(probe->get(0), before); // reset alone leaves the display alone
    EXPECT_EQ(gamma.restore(), 0);
    const CrtcRamps linear = probe->curve(
        0, [](unsigned int j, unsigned int n) { return static_cast<uint16_t>(static_cast<double>(j) / n * 65535.0); });
    EXPECT_EQ(probe->get(0), linear);
    // The tint now works from the linear curve too.
    expect_half_of(gamma, linear);
}

TEST_F(LinuxGammaTest, InversionStartsEveryRampAtTheTop)
{
    LinuxGamma gamma;
    ASSERT_EQ(gamma.start(), 0);
    gamma.set_use_inverted_gamma(true);
    ColorSettings s{6500, {1, 1, 1}, 1.0f};
    ASSERT_EQ(gamma.set_temperature(&s, {}, 0), 0);
    const CrtcRamps written = probe->get(0);
    EXPECT_EQ(written.red[0], 65535);
    EXPECT_EQ(written.green[0], 65535);
    EXPECT_EQ(written.blue[0], 65535);
    // The last entry of the falling curve is 65535 / size.
    EXPECT_NEAR(written.red.back(), std::floor(65535.0 / written.size), 1.0);
    gamma.set_use_inverted_gamma(false);
    ASSERT_EQ(gamma.set_temperature(&s, {}, 0), 0);
    EXPECT_EQ(probe->get(0).red[0], 0);
}

TEST_F(LinuxGammaTest, IgnoredMonitorGetsTheNeutralRecord)
{
    ASSERT_TRUE(probe->set_curve(0, calibration));
    LinuxGamma gamma;
    ASSERT_EQ(gamma.start(), 0);
    ColorSettings s{3000, {1, 1, 1}, 0.7f};
    ASSERT_EQ(gamma.set_temperature(&s, {1}, 0), 0);
    const CrtcRamps written = probe->get(0);
    const CrtcRamps cal = probe->curve(0, calibration);
    for (unsigned int j = 0; j < written.size; ++j) {
        ASSERT_NEAR(written.red[j], cal.red[j], 1.0) << j;
        ASSERT_NEAR(written.blue[j], cal.blue[j], 1.0) << j;
    }
    // Monitor numbers start at 1: ignoring 2 leaves CRTC 0 tinted.
    ASSERT_EQ(gamma.set_temperature(&s, {2}, 0), 0);
    EXPECT_NEAR(probe->get(0).red.back(), 45874, 1); // 65535 * 0.7 = 45874.5
    EXPECT_NEAR(probe->get(0).blue.back(), std::floor(65535 * 0.7 * 0.42860152), 1);
}

TEST_F(LinuxGammaTest, AnInvalidCrtcIsReported)
{
    LinuxGamma gamma;
    ASSERT_EQ(gamma.start(), 0);
    ColorSettings s{3400, {1, 1, 1}, 1.0f};
    const int n = gamma.get_screen_count();
    EXPECT_EQ(stderr_of([&] { EXPECT_EQ(gamma.set_temperature_for_display(gamma.randr_state(), n, &s), -1); }),
              n < 2 ? std::string("CRTC -1 does not exist. Only CRTC 0 exists.\n")
                    : "CRTC -1 does not exist. Valid CRTCs are [0-" + std::to_string(n - 1) + "].\n");
    EXPECT_EQ(gamma.restore_monitor_colors(99), -1);
}

TEST_F(LinuxGammaTest, AScreenThatIsNotThereEndsStart)
{
    LinuxGamma gamma;
    gamma.randr_state()->screen_num = 7;
    EXPECT_EQ(stderr_of([&] { EXPECT_EQ(gamma.start(), -1); }), "Screen 7 could not be found.\n");
    EXPECT_EQ(gamma.get_screen_count(), 0);
    // The default screen is found again.
    gamma.randr_state()->screen_num = -1;
    EXPECT_EQ(gamma.start(), 0);
    EXPECT_EQ(gamma.get_screen_count(), probe->count());
}

TEST_F(LinuxGammaTest, ASecondStartIsNoCrashToRecoverFrom)
{
    LinuxGamma gamma;
    ASSERT_EQ(gamma.start(), 0);
    ColorSettings s{3400, {1, 1, 1}, 1.0f};
    ASSERT_EQ(gamma.set_temperature(&s, {}, 0), 0);
    const CrtcRamps tinted = probe->get(0);
    EXPECT_EQ(stderr_of([&] { ASSERT_EQ(gamma.start(), 0); }), "");
    // The server was left alone, and what start reads now is what it keeps.
    EXPECT_EQ(probe->get(0), tinted);
    ASSERT_TRUE(probe->set_curve(0, identity));
    EXPECT_EQ(gamma.restore(), 0);
    EXPECT_EQ(probe->get(0), tinted);
}

// The tick writes the same ramps every second without waiting for the server.
TEST_F(LinuxGammaTest, ARepeatRepairsAForeignResetAndItsRefusalIsToldAtTheNextWrite)
{
    LinuxGamma gamma;
    ASSERT_EQ(gamma.start(), 0);
    ColorSettings s{3400, {1, 1, 1}, 0.7f};
    ASSERT_EQ(gamma.set_temperature(&s, {}, 0), 0);
    const CrtcRamps tinted = probe->get(0);
    xcb_connection_t* conn = gamma.randr_state()->conn;
    // Nothing waited for the repeat: a round trip puts it before the probe's read.
    const auto settle = [conn] { free(xcb_get_input_focus_reply(conn, xcb_get_input_focus(conn), nullptr)); };

    ASSERT_TRUE(probe->set_curve(0, identity));
    EXPECT_EQ(stderr_of([&] { EXPECT_EQ(gamma.set_temperature(&s, {}, 0), 0); }), "");
    settle();
    EXPECT_EQ(probe->get(0), tinted);

    // A request the server refuses (a ramp of the wrong size), sent as a
    // repeat is: its error waits on the connection until the next write.
    const randr_crtc_state_t& crtc = gamma.randr_state()->crtcs[0];
    const uint16_t half = static_cast<uint16_t>(crtc.ramp_size / 2);
    const std::vector<uint16_t> zeros(half, 0);
    xcb_randr_set_crtc_gamma(conn, crtc.crtc, half, zeros.data(), zeros.data(), zeros.data());
    settle();
    ASSERT_TRUE(probe->set_curve(0, identity));
    EXPECT_EQ(stderr_of([&] { EXPECT_EQ(gamma.set_temperature(&s, {}, 0), 0); }),
              "`RANDR Set CRTC Gamma' returned error 8\n");
    // The write after a refusal waited for its answer, so it is on the screen now.
    EXPECT_EQ(probe->get(0), tinted);

    // A connection that broke under a repeat: the write says so.
    ::shutdown(xcb_get_file_descriptor(conn), SHUT_RDWR);
    EXPECT_NE(stderr_of([&] { EXPECT_EQ(gamma.set_temperature(&s, {}, 0), -1); }), "");
    EXPECT_FALSE(gamma.is_connected());
    EXPECT_NE(stderr_of([&] { gamma.restore(); }), "");
}

TEST_F(LinuxGammaTest, AProcessKilledWithItsTintIsRepairedByTheNextStart)
{
    ASSERT_TRUE(probe->set_curve(0, calibration));
    const CrtcRamps original = probe->get(0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // Its own connection, its tint on the screen, then kill -9.
        LinuxGamma* dying = new LinuxGamma;
        ColorSettings s{1900, {1, 1, 1}, 0.4f};
        if (dying->start() != 0 || dying->set_temperature(&s, {}, 0) != 0)
            _exit(1);
        raise(SIGKILL);
        _exit(2);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "child exited with " << WEXITSTATUS(status);
    ASSERT_FALSE(probe->get(0) == original);

    LinuxGamma next;
    const std::string err = stderr_of([&] { ASSERT_EQ(next.start(), 0); });
    EXPECT_NE(err.find("earlier run"), std::string::npos) << err;
    EXPECT_EQ(probe->get(0), original);
    // The kept ramps are the originals, not the tint it found: no compounding.
    expect_half_of(next, original);
    EXPECT_EQ(next.restore(), 0);
    EXPECT_EQ(probe->get(0), original);
}

TEST_F(LinuxGammaTest, ARampFileThatIsNotOursIsIgnoredWithOneLine)
{
    ASSERT_TRUE(probe->set_curve(0, calibration));
    const CrtcRamps before = probe->get(0);
    const QString path = RampCrashFile::path_for_display(getenv("DISPLAY"));
    const std::string prefix = "Ignoring saved ramps in " + path.toStdString() + ": ";
    std::vector<KeptCrtcRamps> foreign = {{probe->crtc_id(0) + 1000, probe->size(0), {}}};
    foreign[0].ramps.assign(3 * foreign[0].ramp_size, 0);
    for (const bool corrupt : {true, false}) {
        if (corrupt) {
            QFile f(path);
            ASSERT_TRUE(f.open(QIODevice::WriteOnly));
            f.write("this is not a ramp file at all");
        } else {
            ASSERT_TRUE(RampCrashFile(path).write(foreign));
        }
        LinuxGamma gamma;
        EXPECT_EQ(stderr_of([&] { ASSERT_EQ(gamma.start(), 0); }),
                  prefix + (corrupt ? "not a ramp file\n" : "they belong to other CRTCs\n"));
        EXPECT_EQ(probe->get(0), before);
        ColorSettings s{3000, {1, 1, 1}, 0.5f};
        ASSERT_EQ(gamma.set_temperature(&s, {}, 0), 0);
        EXPECT_EQ(gamma.restore(), 0);
        EXPECT_EQ(probe->get(0), before);
    }
}

TEST(LinuxGammaWithoutServer, AnUnreachableDisplayDoesNotCrash)
{
    testing::internal::CaptureStderr();
    LinuxGamma gamma(":4093");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "`RANDR Query Version' returned error -1\n");
    EXPECT_FALSE(gamma.is_connected());
    stderr_of([&] {
        EXPECT_EQ(gamma.start(), -1);
        EXPECT_EQ(gamma.get_screen_count(), 0);
        ColorSettings s{3400, {1, 1, 1}, 1.0f};
        EXPECT_EQ(gamma.set_temperature(&s, {}, 0), 0);
        EXPECT_EQ(gamma.restore(), 0);
        EXPECT_EQ(gamma.reset(), 0);
        gamma.init();
        EXPECT_FALSE(gamma.is_connected());
    });
}
