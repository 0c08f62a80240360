// The cost of one colour tick: with a backend that only counts, and on the X
// server against a bare xcb write of the very ramps the tick wrote, both in
// one run so that their ratio holds on a busy machine.
#include <QApplication>
#include <QCoreApplication>
#include <QSettings>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <map>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include "app/MainWindow.h"
#include "color/GammaFactory.h"
#include "color/IGamma.h"
#include "color/LinuxGamma.h"
#include "crtc_ramps.h"
#include "settings/SaveManager.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

namespace {

class CountingGamma : public IGamma
{
public:
    explicit CountingGamma(long* writes) : writes(writes) {}
    int set_temperature(const ColorSettings*, std::vector<int>, int) override
    {
        ++*writes;
        return 0;
    }

private:
    long* writes;
};

// The real backend; only counted, so that a tick that wrote nothing shows.
class CountedLinuxGamma : public LinuxGamma
{
public:
    explicit CountedLinuxGamma(long* writes) : writes(writes) {}
    int set_temperature(const ColorSettings* settings, std::vector<int> ignored, int monitor) override
    {
        ++*writes;
        return LinuxGamma::set_temperature(settings, std::move(ignored), monitor);
    }

private:
    long* writes;
};

template <typename Backend>
class CountingFactory : public GammaFactory
{
public:
    IGamma* get_gamma() override { return new Backend(&writes); }
    long writes = 0;
};

struct Controller
{
    explicit Controller(GammaFactory* factory)
    {
        MainWindow::gamma_factory_override = factory;
        QSettings store(QCoreApplication::organizationName(), SaveManager::store_application_name());
        store.clear();
        store.setValue("SaveVersion", "3");
        store.setValue("PauseTransitionDuration", 0);
        store.sync();
        // A fresh store is a first start, which the controller announces on
        // standard output, in the middle of the table.
        std::streambuf* out = std::cout.rdbuf(nullptr);
        save_manager = new SaveManager();
        solar = new SolarPosition();
        clock = new ClockPosition();
        window = new MainWindow(nullptr);
        std::cout.rdbuf(out);
        // Give the curve a place so the tick takes the solar road.
        window->latitude = 52.52;
        window->longitude = 13.40;
    }
    ~Controller()
    {
        delete window;
        delete clock;
        delete solar;
        delete save_manager;
        MainWindow::gamma_factory_override = nullptr;
    }
    SaveManager* save_manager;
    SolarPosition* solar;
    ClockPosition* clock;
    MainWindow* window;
};

bool skip_without_display(benchmark::State& state)
{
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    state.SkipWithError("no DISPLAY");
    return true;
}

void BM_tick_fake_backend(benchmark::State& state)
{
    CountingFactory<CountingGamma> factory;
    Controller controller(&factory);
    factory.writes = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(controller.window->update_gamma());
    state.counters["writes"] = benchmark::Counter(factory.writes, benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_tick_fake_backend)->Unit(benchmark::kMicrosecond);

void BM_tick_x_server(benchmark::State& state)
{
    if (skip_without_display(state))
        return;
    CountingFactory<CountedLinuxGamma> factory;
    Controller controller(&factory);
    // The first tick starts the fade-in; from the second on it is the plain
    // once-a-second tick.
    controller.window->update_gamma();
    factory.writes = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(controller.window->update_gamma());
    state.counters["writes"] = benchmark::Counter(factory.writes, benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_tick_x_server)->Unit(benchmark::kMicrosecond);

// The floor: the ramps a tick leaves on the CRTCs, written again to the same
// CRTCs with nothing around them. The tick's repeat does not wait for the
// server's answer, so the floor is measured both ways: waiting, as a simple
// program writes, and sending only, as the tick does.
void bare_xcb_write(benchmark::State& state, bool wait_for_answer)
{
    if (skip_without_display(state))
        return;
    CrtcRamps before;
    CrtcRamps ticked;
    if (before.open() != 0) {
        state.SkipWithError("no ramps to read");
        return;
    }
    {
        CountingFactory<CountedLinuxGamma> factory;
        Controller controller(&factory);
        controller.window->update_gamma();
        controller.window->update_gamma();
        if (factory.writes == 0 || ticked.open() != 0) {
            state.SkipWithError("the tick left no ramps to copy");
            return;
        }
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(ticked.write(wait_for_answer));
    ticked.read(); // a round trip: what was sent has reached the server
    before.write();
}

void BM_bare_xcb_write(benchmark::State& state)
{
    bare_xcb_write(state, true);
}
BENCHMARK(BM_bare_xcb_write)->Unit(benchmark::kMicrosecond);

void BM_bare_xcb_send(benchmark::State& state)
{
    bare_xcb_write(state, false);
}
BENCHMARK(BM_bare_xcb_send)->Unit(benchmark::kMicrosecond);

// The usual table, then the tick on the X server as a multiple of the bare
// write: medians of the repetitions when there are several, which run
// interleaved so that both see the same load.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    explicit RatioReporter(OutputOptions options) : ConsoleReporter(options) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred || run.iterations == 0)
                continue;
            const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            const bool single = run.run_type == Run::RT_Iteration && run.repetitions <= 1;
            if (!median && !single)
                continue;
            const double unit = benchmark::GetTimeUnitMultiplier(run.time_unit);
            seconds[run.run_name.function_name] = {run.GetAdjustedRealTime() / unit,
                                                   run.GetAdjustedCPUTime() / unit};
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        const auto tick = seconds.find("BM_tick_x_server");
        if (tick == seconds.end())
            return;
        for (const char* floor : {"BM_bare_xcb_write", "BM_bare_xcb_send"}) {
            const auto bare = seconds.find(floor);
            if (bare == seconds.end())
                continue;
            const double real = tick->second.first / bare->second.first;
            const double cpu = tick->second.second / bare->second.second;
            char line[220];
            std::snprintf(line, sizeof line,
                          "tick_vs_%s  real %.1f us / %.1f us = %.2fx   cpu %.1f us / %.1f us = %.2fx"
                          "   (target <= 1.10x)\n",
                          floor + 3, tick->second.first * 1e6, bare->second.first * 1e6, real,
                          tick->second.second * 1e6, bare->second.second * 1e6, cpu);
            GetOutputStream() << line << std::flush;
        }
    }

private:
    std::map<std::string, std::pair<double, double>> seconds; // real, cpu per iteration
};

bool has_flag(int argc, char** argv, const char* flag)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], flag, std::strlen(flag)) == 0)
            return true;
    }
    return false;
}

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName("Morvenik");
    QCoreApplication::setApplicationName("OvraBenchmark");

    // Unless told otherwise: several repetitions, interleaved, and only their
    // summaries in the table.
    std::vector<char*> args(argv, argv + argc);
    char repetitions[] = "--benchmark_repetitions=7";
    char interleave[] = "--benchmark_enable_random_interleaving=true";
    char summaries[] = "--benchmark_display_aggregates_only=true";
    if (!has_flag(argc, argv, "--benchmark_repetitions"))
        args.insert(args.end(), {repetitions, interleave, summaries});
    int count = static_cast<int>(args.size());
    args.push_back(nullptr);
    benchmark::Initialize(&count, args.data());
    RatioReporter reporter(isatty(STDOUT_FILENO) ? benchmark::ConsoleReporter::OO_ColorTabular
                                                 : benchmark::ConsoleReporter::OO_Tabular);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
