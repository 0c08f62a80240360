// The cost of one colour tick: with a backend that only counts, and on the X
// server against a bare xcb write of the same ramps.
#include <QApplication>
#include <QCoreApplication>
#include <QSettings>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <vector>
#include <xcb/randr.h>
#include <xcb/xcb.h>

#include "app/MainWindow.h"
#include "color/GammaFactory.h"
#include "color/IGamma.h"
#include "settings/SaveManager.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

namespace {

class CountingGamma : public IGamma
{
public:
    int set_temperature(const ColorSettings*, std::vector<int>, int) override
    {
        ++writes;
        return 0;
    }
    long writes = 0;
};

class CountingFactory : public GammaFactory
{
public:
    IGamma* get_gamma() override { return new CountingGamma(); }
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
        save_manager = new SaveManager();
        solar = new SolarPosition();
        clock = new ClockPosition();
        window = new MainWindow(nullptr);
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

void BM_tick_fake_backend(benchmark::State& state)
{
    CountingFactory factory;
    Controller controller(&factory);
    for (auto _ : state)
        benchmark::DoNotOptimize(controller.window->update_gamma());
}
BENCHMARK(BM_tick_fake_backend);

void BM_tick_x_server(benchmark::State& state)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        state.SkipWithError("no DISPLAY");
        return;
    }
    Controller controller(nullptr);
    for (auto _ : state)
        benchmark::DoNotOptimize(controller.window->update_gamma());
    controller.window->restore_gamma();
}
BENCHMARK(BM_tick_x_server)->Unit(benchmark::kMicrosecond);

// The floor: the same number of ramps written with nothing else around it.
void BM_bare_xcb_write(benchmark::State& state)
{
    xcb_connection_t* conn = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(conn)) {
        state.SkipWithError("no X server");
        xcb_disconnect(conn);
        return;
    }
    xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(conn)).data;
    auto* resources = xcb_randr_get_screen_resources_current_reply(
        conn, xcb_randr_get_screen_resources_current(conn, screen->root), nullptr);
    const xcb_randr_crtc_t* crtcs = xcb_randr_get_screen_resources_current_crtcs(resources);
    const int count = xcb_randr_get_screen_resources_current_crtcs_length(resources);
    std::vector<std::vector<uint16_t>> saved;
    std::vector<int> sizes;
    for (int i = 0; i < count; ++i) {
        auto* size = xcb_randr_get_crtc_gamma_size_reply(
            conn, xcb_randr_get_crtc_gamma_size(conn, crtcs[i]), nullptr);
        sizes.push_back(size ? size->size : 0);
        free(size);
        std::vector<uint16_t> ramp(3 * sizes.back());
        for (int j = 0; j < sizes.back(); ++j)
            ramp[j] = ramp[sizes.back() + j] = ramp[2 * sizes.back() + j] =
                static_cast<uint16_t>(j * 65535.0 / sizes.back());
        saved.push_back(ramp);
    }
    for (auto _ : state) {
        for (int i = 0; i < count; ++i) {
            const int n = sizes[i];
            if (n == 0)
                continue;
            xcb_generic_error_t* error = xcb_request_check(
                conn, xcb_randr_set_crtc_gamma_checked(conn, crtcs[i], n, saved[i].data(),
                                                       saved[i].data() + n,
                                                       saved[i].data() + 2 * n));
            free(error);
        }
    }
    free(resources);
    xcb_disconnect(conn);
}
BENCHMARK(BM_bare_xcb_write)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName("Morvenik");
    QCoreApplication::setApplicationName("OvraBenchmark");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
