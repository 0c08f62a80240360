#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <csignal>
#include <gtest/gtest.h>
#include <vector>

#include "web/WebHost.h"

namespace {

// Points WebHost at a host binary for one test.
class HostPath
{
public:
    explicit HostPath(const QByteArray& path) : m_saved(qgetenv("OVRA_WEB_HOST"))
    {
        qputenv("OVRA_WEB_HOST", path);
    }
    ~HostPath() { qputenv("OVRA_WEB_HOST", m_saved); }

private:
    QByteArray m_saved;
};

bool wait_until(const std::function<bool()>& done, int ms = 60000)
{
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < ms) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    }
    return done();
}

bool process_alive(qint64 pid)
{
    return pid > 0 && ::kill(pid_t(pid), 0) == 0;
}

// Every signal of a WebHost, written down in order as one short line each.
struct Recorder
{
    explicit Recorder(WebHost* host)
    {
        QObject::connect(host, &WebHost::loaded, [this](const QString& id, bool ok) {
            add("loaded " + id + (ok ? " ok" : " failed"));
        });
        QObject::connect(host, &WebHost::mapped, [this](const QString& id, quint32 xid) {
            add("mapped " + id + " " + QString::number(xid));
        });
        QObject::connect(host, &WebHost::close_requested,
                         [this](const QString& id) { add("close_requested " + id); });
        QObject::connect(host, &WebHost::escape_pressed,
                         [this](const QString& id) { add("escape " + id); });
        QObject::connect(host, &WebHost::state_changed, [this](const QString& id, ShowState s) {
            add("state " + id + " " + QString::number(int(s)));
        });
        QObject::connect(host, &WebHost::window_gone,
                         [this](const QString& id) { add("gone " + id); });
        QObject::connect(host, &WebHost::host_died, [this] { add(QStringLiteral("died")); });
    }
    void add(const QString& line) { log.push_back(line.toStdString()); }
    bool has(const char* line) const { return std::count(log.begin(), log.end(), line) > 0; }
    std::vector<std::string> log;
};

const QUrl k_page(QStringLiteral("data:text/html,<p>ovra</p>"));

QByteArray fake_host()
{
    return qgetenv("OVRA_SOURCE_DIR") + "/tests/web/fake_web_host.py";
}

} // namespace

TEST(WebHostEvents, ReportsOnlyWindowsStillOpenAndNotTheClosedOneUnderTheSameId)
{
    HostPath path(fake_host());
    WebHost host;
    Recorder record(&host);
    ASSERT_TRUE(host.open("a", k_page, {}, ShowState::Normal));
    ASSERT_TRUE(host.open("b", k_page, {}, ShowState::Normal));
    host.evaluate("a", R"([{"event":"close_requested","id":"a"},{"event":"escape","id":"a"},
        {"event":"state","id":"a","state":"minimized"},{"event":"mapped","id":"a","xid":77},
        {"event":"loaded","id":"nobody","ok":true}])");
    ASSERT_TRUE(wait_until([&] { return record.has("mapped a 77"); }));
    // The old "a" says escape and gone after its close; the new "a" must
    // hear neither.
    host.close("a");
    ASSERT_TRUE(host.open("a", k_page, {}, ShowState::Normal));
    host.evaluate("b", R"([{"event":"loaded","id":"b","ok":false}])");
    ASSERT_TRUE(wait_until([&] { return record.has("loaded b failed"); }));
    const std::vector<std::string> expected = {
        "loaded a ok", "loaded b ok",  "close_requested a", "escape a", "state a 2",
        "mapped a 77", "loaded a ok", "loaded b failed"};
    EXPECT_EQ(record.log, expected);
    EXPECT_TRUE(host.has_window("a"));
}

TEST(WebHostLifecycle, HostRunsWhileAWindowIsOpenAndEndsWithTheLast)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") || qEnvironmentVariableIsEmpty("OVRA_WEB_HOST"))
        GTEST_SKIP() << "needs DISPLAY and OVRA_WEB_HOST";
    WebHost host;
    Recorder record(&host);
    ASSERT_TRUE(host.open("a", k_page, {}, ShowState::Hidden));
    ASSERT_TRUE(host.open("b", k_page, {}, ShowState::Hidden));
    const qint64 pid = host.pid();
    ASSERT_TRUE(wait_until([&] { return record.has("loaded a ok") && record.has("loaded b ok"); }));
    host.close("a");
    EXPECT_TRUE(host.is_running());
    host.close("b");
    EXPECT_FALSE(host.is_running());
    EXPECT_TRUE(wait_until([&] { return !process_alive(pid); }, 10000));
    EXPECT_FALSE(record.has("died"));
}

TEST(WebHostLifecycle, MissingHostFailsWithOneLineEachTime)
{
    HostPath path("/nonexistent/ovra-web");
    WebHost host;
    for (int attempt = 0; attempt < 2; ++attempt) {
        testing::internal::CaptureStderr();
        EXPECT_FALSE(host.open("a", k_page, {}, ShowState::Normal));
        const std::string err = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
        EXPECT_FALSE(host.has_window("a"));
        EXPECT_FALSE(host.is_running());
    }
}

TEST(WebHostLifecycle, KilledHostReportsItsWindowsGoneAndAnotherStartsOnTheNextOpen)
{
    HostPath path(fake_host());
    WebHost host;
    Recorder record(&host);
    ASSERT_TRUE(host.open("a", k_page, {}, ShowState::Normal));
    ASSERT_TRUE(wait_until([&] { return record.has("loaded a ok"); }));
    const qint64 first = host.pid();
    testing::internal::CaptureStderr();
    ::kill(pid_t(first), SIGKILL);
    ASSERT_TRUE(wait_until([&] { return record.has("died"); }));
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
    EXPECT_EQ(record.log, (std::vector<std::string>{"loaded a ok", "gone a", "died"}));
    EXPECT_FALSE(host.has_window("a"));

    ASSERT_TRUE(host.open("a", k_page, {}, ShowState::Normal));
    EXPECT_NE(host.pid(), first);
    EXPECT_TRUE(wait_until([&] { return record.log.size() == 4; }));
    EXPECT_EQ(record.log.back(), "loaded a ok");
}
