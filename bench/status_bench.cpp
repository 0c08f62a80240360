// The cost of the status texts the controller makes once a second: the
// tooltip and the page's status line, with the values shared and per monitor.
#include <QApplication>
#include <QCoreApplication>
#include <QSettings>
#include <benchmark/benchmark.h>

#include <iostream>

#include "app/MainWindow.h"
#include "color/GammaFactory.h"
#include "color/IGamma.h"
#include "settings/SaveManager.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"
#include "tray/ITrayIcon.h"

namespace {

class QuietGamma : public IGamma
{
public:
    int set_temperature(const ColorSettings*, std::vector<int>, int) override { return 0; }
};

class QuietFactory : public GammaFactory
{
public:
    IGamma* get_gamma() override { return new QuietGamma(); }
};

// Keeps the tooltip, as the real icon does.
class TooltipTray : public ITrayIcon
{
public:
    void show_icon() override {}
    bool is_visible() const override { return true; }
    void refresh_selected_type() override {}
    void refresh_selected_mode() override {}
    void refresh_tray_icon_actions() override {}
    void refresh_tray_icon_menu() override {}
    void refresh_pausers_actions() override {}
    void update_tray_icon(bool) override {}
    void set_tooltip(const QString& text) override { tooltip = text; }
    void show_message(const QString&, const QString&) override {}
    QString tooltip;
};

void BM_update_ui(benchmark::State& state)
{
    const bool per_monitor = state.range(0) != 0;
    QuietFactory factory;
    MainWindow::gamma_factory_override = &factory;
    MainWindow::screen_count_override = 2;
    {
        QSettings store(QCoreApplication::organizationName(), SaveManager::store_application_name());
        store.clear();
        store.setValue("SaveVersion", "3");
        store.setValue("UsePerMonitorSettings", per_monitor);
    }
    std::streambuf* out = std::cout.rdbuf(nullptr);
    auto* save_manager = new SaveManager();
    auto* solar = new SolarPosition();
    auto* clock = new ClockPosition();
    auto* window = new MainWindow(nullptr);
    std::cout.rdbuf(out);
    // The solar road, the dearer of the two curves.
    window->latitude = 52.52;
    window->longitude = 13.40;
    TooltipTray tray;
    window->tray_icon = &tray;
    window->update_ui();
    for (auto _ : state)
        window->update_ui();
    benchmark::DoNotOptimize(tray.tooltip);
    window->tray_icon = nullptr;
    delete window;
    delete clock;
    delete solar;
    delete save_manager;
    MainWindow::gamma_factory_override = nullptr;
    MainWindow::screen_count_override = -1;
}
BENCHMARK(BM_update_ui)->ArgName("per_monitor")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace

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
