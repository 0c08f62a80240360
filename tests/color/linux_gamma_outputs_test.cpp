#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <cmath>
#include <memory>
#include <string>

#include "XcbRamps.h"
#include "color/LinuxGamma.h"

// LinuxGamma on a server with several outputs: a headless Xorg with the dummy
// driver, started by tests/tools/xorg-dummy.sh with three active outputs.

namespace {

QString server_display;
QString skip_reason;

QString script_path()
{
    const QString source = qEnvironmentVariable("OVRA_SOURCE_DIR");
    return source.isEmpty() ? QString() : source + "/tests/tools/xorg-dummy.sh";
}

// A different base curve on each CRTC, so that mixing them up shows.
uint16_t base_entry(int crtc, unsigned int j, unsigned int size)
{
    return static_cast<uint16_t>(static_cast<unsigned long>(j) * (65535u - 1000u * crtc) / (size - 1));
}

class LinuxGammaOutputsTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        const QString script = script_path();
        if (script.isEmpty()) {
            skip_reason = "OVRA_SOURCE_DIR is not set: run through ctest";
            return;
        }
        QProcess process;
        process.start("/bin/sh", {script, "start", "3"});
        if (!process.waitForFinished(30000) || process.exitCode() != 0) {
            skip_reason = "no headless Xorg with the dummy driver here: "
                + QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
            process.kill();
            return;
        }
        server_display = QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
    }

    static void TearDownTestSuite()
    {
        if (!server_display.isEmpty())
            QProcess::execute("/bin/sh", {script_path(), "stop", server_display});
        server_display.clear();
    }

    void SetUp() override
    {
        if (server_display.isEmpty())
            GTEST_SKIP() << skip_reason.toStdString();
        display = server_display.toStdString();
        probe = std::make_unique<XcbRamps>(display.c_str());
        ASSERT_TRUE(probe->connected());
        ASSERT_GE(probe->count(), 3);
        old_runtime = qgetenv("XDG_RUNTIME_DIR");
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        for (int i = 0; i < probe->count(); ++i)
            ASSERT_TRUE(probe->set_curve(i, [i](unsigned int j, unsigned int size) { return base_entry(i, j, size); }));
    }

    void TearDown() override
    {
        if (probe)
            qputenv("XDG_RUNTIME_DIR", old_runtime);
    }

    std::string display;
    std::unique_ptr<XcbRamps> probe;
    QTemporaryDir runtime;
    QByteArray old_runtime;
};

} // namespace

TEST_F(LinuxGammaOutputsTest, EveryCrtcButTheIgnoredGetsTheTintAndItsOwnRampsBack)
{
    std::vector<CrtcRamps> before;
    for (int i = 0; i < probe->count(); ++i)
        before.push_back(probe->get(i));
    // Monitor numbers start at 1: monitor 2 is CRTC 1.
    const struct
    {
        int temperature;
        float brightness;
        std::vector<int> ignored;
        double green, blue;
    } cases[] = {{3400, 1.0f, {}, 0.76888303, 0.52427322}, {2000, 0.6f, {2}, 0.54360078, 0.08679949}};
    for (const auto& c : cases) {
        LinuxGamma gamma(display.c_str());
        ASSERT_TRUE(gamma.is_connected());
        ASSERT_EQ(gamma.start(), 0);
        // Connected or not, every CRTC counts.
        EXPECT_EQ(gamma.get_screen_count(), probe->count());
        ColorSettings s{c.temperature, {1, 1, 1}, c.brightness};
        ASSERT_EQ(gamma.set_temperature(&s, c.ignored, 0), 0);
        for (int i = 0; i < probe->count(); ++i) {
            const CrtcRamps r = probe->get(i);
            const bool tinted = !(i == 1 && !c.ignored.empty());
            const double top = base_entry(i, r.size - 1, r.size) * (tinted ? c.brightness : 1.0);
            EXPECT_NEAR(r.red.back(), std::floor(top), 1.0) << "CRTC " << i;
            EXPECT_NEAR(r.green.back(), std::floor(top * (tinted ? c.green : 1.0)), 1.0) << "CRTC " << i;
            EXPECT_NEAR(r.blue.back(), std::floor(top * (tinted ? c.blue : 1.0)), 1.0) << "CRTC " << i;
        }
        EXPECT_EQ(gamma.restore(), 0);
        for (int i = 0; i < probe->count(); ++i)
            EXPECT_EQ(probe->get(i), before[i]) << "CRTC " << i;
    }
}
