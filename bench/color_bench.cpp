// Figures for the colour engine: the ramp fill alone at three ramp sizes, and
// one full set_temperature against a bare xcb write of the same ramps on the
// X server of $DISPLAY (left out when there is none). The ratio of the last
// two is the backend's own overhead per tick.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>
#include <xcb/randr.h>
#include <xcb/xcb.h>

#include "color/ColorRamp.h"
#include "color/LinuxGamma.h"

namespace {

ColorSettings tint()
{
    ColorSettings s;
    s.temperature = 3400;
    s.brightness = 0.8f;
    return s;
}

void BM_color_ramp_fill(benchmark::State& state)
{
    const int size = static_cast<int>(state.range(0));
    std::vector<unsigned short> base(size), r(size), g(size), b(size);
    for (int j = 0; j < size; ++j)
        base[j] = static_cast<unsigned short>(static_cast<double>(j) / size * 65535.0);
    ColorRamp ramp;
    const ColorSettings s = tint();
    for (auto _ : state) {
        // Fresh base each time, as the backend hands the fill a copy of the
        // kept ramps.
        std::memcpy(r.data(), base.data(), size * sizeof(unsigned short));
        std::memcpy(g.data(), base.data(), size * sizeof(unsigned short));
        std::memcpy(b.data(), base.data(), size * sizeof(unsigned short));
        ramp.color_ramp_fill(r.data(), g.data(), b.data(), size, &s);
        benchmark::DoNotOptimize(r.data());
        benchmark::DoNotOptimize(b.data());
    }
    state.SetItemsProcessed(state.iterations() * size * 3);
}
BENCHMARK(BM_color_ramp_fill)->Arg(256)->Arg(1024)->Arg(4096);

// The backend's write of one tick: every CRTC, computed and sent, each write
// waiting for the server.
void BM_LinuxGamma_set_temperature(benchmark::State& state)
{
    LinuxGamma gamma;
    if (!gamma.is_connected() || gamma.start() != 0) {
        state.SkipWithError("no usable X server");
        return;
    }
    const ColorSettings s = tint();
    for (auto _ : state)
        benchmark::DoNotOptimize(gamma.set_temperature(&s, {}, 0));
    state.counters["crtcs"] = gamma.get_screen_count();
    gamma.restore();
}

// The same ramps, computed once, written with nothing but xcb.
void BM_bare_xcb_write(benchmark::State& state)
{
    LinuxGamma gamma; // reads the CRTCs and keeps what to restore
    if (!gamma.is_connected() || gamma.start() != 0) {
        state.SkipWithError("no usable X server");
        return;
    }
    randr_state_t* randr = gamma.randr_state();
    xcb_connection_t* conn = xcb_connect(nullptr, nullptr);
    const ColorSettings s = tint();
    ColorRamp ramp;
    std::vector<std::vector<uint16_t>> blocks(randr->crtc_count);
    for (unsigned int i = 0; i < randr->crtc_count; ++i) {
        const unsigned int n = randr->crtcs[i].ramp_size;
        blocks[i].assign(randr->crtcs[i].saved_ramps, randr->crtcs[i].saved_ramps + 3 * n);
        ramp.color_ramp_fill(blocks[i].data(), blocks[i].data() + n, blocks[i].data() + 2 * n, static_cast<int>(n), &s);
    }
    for (auto _ : state) {
        for (unsigned int i = 0; i < randr->crtc_count; ++i) {
            const unsigned int n = randr->crtcs[i].ramp_size;
            const uint16_t* b = blocks[i].data();
            free(xcb_request_check(conn, xcb_randr_set_crtc_gamma_checked(conn, randr->crtcs[i].crtc,
                                                                           static_cast<uint16_t>(n), b, b + n,
                                                                           b + 2 * n)));
        }
    }
    state.counters["crtcs"] = randr->crtc_count;
    xcb_disconnect(conn);
    gamma.restore();
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const char* display = getenv("DISPLAY");
    if (display && *display) {
        benchmark::RegisterBenchmark("BM_LinuxGamma_set_temperature", BM_LinuxGamma_set_temperature);
        benchmark::RegisterBenchmark("BM_bare_xcb_write", BM_bare_xcb_write);
    } else {
        fprintf(stderr, "No DISPLAY: the two X server figures are left out.\n");
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
