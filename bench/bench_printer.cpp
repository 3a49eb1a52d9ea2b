// SPDX-License-Identifier: MIT
// The work between a picture or a styled text and the printer's bytes. "allocated" is the memory
// asked for, in bytes for each byte of output. Its limit and those of the time are the same for
// each dot of a picture and each byte of a text, whatever the size.
#include "Print/escpospp/Bitmap.h"
#include "Print/escpospp/Markdown.h"

#include <cstdlib>
#include <new>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

namespace {
/// A logo of 576 x 576 dots in 2 ms, texts at 100 MB/s.
constexpr double limitMsPerDot = 2.0 / (576 * 576);
constexpr double limitMsPerByte = 1e3 / 100e6;
constexpr double limitAllocated = 4;

std::size_t allocatedBytes = 0;
} // namespace

[[gnu::noinline]] void* operator new(std::size_t size)
{
    allocatedBytes += size;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {
DotMatrix checkered(std::size_t side)
{
    DotMatrix dots(side, std::vector<bool>(side));
    for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < side; ++x) {
            dots[y][x] = (x / 3 + y / 5) % 2 == 0;
        }
    }
    return dots;
}

template <class Render>
void measure(benchmark::State& state, std::size_t input, double limitMs, Render&& render)
{
    const std::size_t before = allocatedBytes;
    const std::size_t output = render();
    const double allocated
        = static_cast<double>(allocatedBytes - before) / static_cast<double>(output);
    if (allocated > limitAllocated) {
        throw std::runtime_error("too much memory for the output: " + std::to_string(allocated));
    }
    state.counters["allocated"] = allocated;
    state.counters["limit_ms"] = limitMs * static_cast<double>(input);
    for (auto _ : state) {
        benchmark::DoNotOptimize(render());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(input) * state.iterations());
    state.SetComplexityN(static_cast<std::int64_t>(input));
}

/// A square logo; bytes a second are dots a second here.
void image(benchmark::State& state)
{
    const auto side = static_cast<std::size_t>(state.range(0));
    const DotMatrix dots = checkered(side);
    measure(state, side * side, limitMsPerDot, [&dots] { return renderBitmap(dots, 0)->size(); });
}

void textOf(benchmark::State& state, const std::string& piece)
{
    std::string text;
    while (text.size() < static_cast<std::size_t>(state.range(0))) {
        text += piece;
    }
    measure(
        state, text.size(), limitMsPerByte, [&text] { return renderMarkdown(text).bytes.size(); });
}

void plainText(benchmark::State& state)
{
    textOf(state, "3  Café au lait \t$2.50       $7.50\r\n");
}

void styledText(benchmark::State& state)
{
    textOf(state, "**3**  Café __au lait__ \t$2.50       **$7.50**\r\n");
}

void nothingButMarkers(benchmark::State& state) { textOf(state, "**__x__**"); }
} // namespace

BENCHMARK(image)
    ->RangeMultiplier(2)
    ->Range(72, 1152)
    ->Arg(576)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(plainText)->RangeMultiplier(16)->Range(4 << 10, 1 << 20)->Complexity(benchmark::oN);
BENCHMARK(styledText)->RangeMultiplier(16)->Range(4 << 10, 1 << 20)->Complexity(benchmark::oN);
BENCHMARK(nothingButMarkers)
    ->RangeMultiplier(16)
    ->Range(4 << 10, 1 << 20)
    ->Complexity(benchmark::oN);
