// The operations of the pixel buffer on 1024 by 1024 pixels, as a share of the speed at which the same bytes
// are copied.

#include "kit/benchTimes.h"
#include "sglDib.h"

#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int size = 1024;
constexpr int rounds = 40;

void fill_with_noise(sglDib & dib, std::uint32_t seed)
{
    dib.create(size, size);
    for (std::size_t i = 0; i < dib.count(); ++i) {
        seed = seed * 1664525U + 1013904223U;
        dib.pixels()[i] = sglCOLORREF(seed ^ seed >> 13);
    }
}

struct Operation {
    char const * name;
    std::function<void()> work;
};

} // namespace

int main()
{
    sglDib to;
    sglDib from;
    fill_with_noise(to, 1);
    fill_with_noise(from, 2);
    sglCOLORREF const key(0x00123456);
    sglCOLORREF const none(0x01000000);

    std::vector<Operation> const operations = {
        {"blend", [&] { to.blend(&from, 77); }},
        {"multiply", [&] { to.multiply(&from); }},
        {"screen", [&] { to.screen(&from); }},
        {"darken", [&] { to.darken(&from); }},
        {"lighten", [&] { to.lighten(&from); }},
        {"difference", [&] { to.difference(&from); }},
        {"blend_rect", [&] { to.blend_rect(&from, 0, 0, 77); }},
        {"multiply_rect", [&] { to.multiply_rect(&from, 0, 0); }},
        {"screen_rect", [&] { to.screen_rect(&from, 0, 0); }},
        {"darken_rect", [&] { to.darken_rect(&from, 0, 0); }},
        {"lighten_rect", [&] { to.lighten_rect(&from, 0, 0); }},
        {"difference_rect", [&] { to.difference_rect(&from, 0, 0); }},
        {"copy_rect_from", [&] { to.copy_rect_from(&from, 0, 0); }},
        {"copy_rect_from, key", [&] { to.copy_rect_from(&from, 0, 0, key); }},
        {"copy_rect_from_alpha", [&] { to.copy_rect_from_alpha(&from, 0, 0); }},
        {"copy_mask_rect_from", [&] { to.copy_mask_rect_from(&from, 0, 0, key, key, none); }},
        {"fill_glass", [&] { to.fill_glass(200, 100, 50, 128); }},
        {"darken by an amount", [&] { to.darken(1, key); }},
        {"multiply_color", [&] { to.multiply_color(250, 250, 250, none); }},
        {"greyscale", [&] { to.greyscale(); }},
        {"color_tint_3", [&] { to.color_tint_3(key, none, key, 100); }},
        {"blur_3x3", [&] { to.blur_3x3(); }},
    };
    auto const bytes = to.count() * sizeof(sglCOLORREF);
    for (auto const & operation : operations) {
        std::vector<double> ours;
        std::vector<double> copies;
        for (int round = 0; round < rounds; ++round) {
            // In turn, so that both meet the same machine.
            copies.push_back(bench_milliseconds(
                [&] { std::memcpy(static_cast<void *>(to.pixels()), from.pixels(), bytes); }));
            ours.push_back(bench_milliseconds(operation.work));
        }
        std::printf("%-22s %7.3f ms   a copy %.3f ms   %.2f of its speed\n", operation.name,
                    bench_median(ours), bench_median(copies), bench_median(copies) / bench_median(ours));
    }
    return 0;
}
