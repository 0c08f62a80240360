// The cost of moving the settings between the file and the map: one full
// restore (all passes), one full save with its write to disk, and the change
// rule that every slider drag runs.
#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "settings/SettingsHost.h"

namespace {

struct Controller
{
    SettingsMap settings;
    double latitude = 52.52;
    double longitude = 13.405;
    std::vector<int> ignored_monitors{2};
    int screens = 2;

    Controller()
    {
        set_settings_host_source([this] {
            SettingsHost host;
            host.settings = &settings;
            host.latitude = &latitude;
            host.longitude = &longitude;
            host.ignored_monitors = &ignored_monitors;
            host.screen_count = [this] { return screens; };
            return host;
        });
    }
    ~Controller() { set_settings_host_source({}); }
};

void BM_RestoreAllPasses(benchmark::State& state)
{
    Controller controller;
    SaveManager store;
    store.restore_settings();
    store.save_settings();
    for (auto _ : state) {
        store.restore_settings();
        benchmark::DoNotOptimize(controller.settings.size());
    }
}
BENCHMARK(BM_RestoreAllPasses);

void BM_SaveAllPassesToDisk(benchmark::State& state)
{
    Controller controller;
    SaveManager store;
    store.restore_settings();
    int value = 0;
    for (auto _ : state) {
        // A changed value, so that every save has something to write.
        controller.settings[SaveKeys::WORK_TIME] = 1 + (++value % 1440);
        store.save_settings();
    }
}
BENCHMARK(BM_SaveAllPassesToDisk);

void BM_ChangeRuleSliderDrag(benchmark::State& state)
{
    Controller controller;
    SaveManager store;
    store.restore_settings();
    SettingChanger change_setting{controller.settings};
    int value = 2700;
    int emitted = 0;
    for (auto _ : state) {
        value = value == 2700 ? 2800 : 2700;
        change_setting(SaveKeys::NIGHT_TEMPERATURE, value, nullptr,
                       [&](const QVariant& stored) { emitted += stored.toInt() & 1; });
    }
    benchmark::DoNotOptimize(emitted);
}
BENCHMARK(BM_ChangeRuleSliderDrag);

} // namespace

int main(int argc, char** argv)
{
    // As in the program: Qt's messages go nowhere.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
