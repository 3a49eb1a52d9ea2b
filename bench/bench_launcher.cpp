// SPDX-License-Identifier: MIT
#include "launcher/Copies.h"
#include "launcher/CopyChoice.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
constexpr const char* reportName = "report";
constexpr double largestMegabytes = 8;
constexpr std::size_t copiesInList = 10000;
constexpr double listLimitMs = 1000;

double monotonicSeconds()
{
    constexpr double nanoseconds = 1e9;
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / nanoseconds;
}

void check(bool holds, const char* what)
{
    if (!holds) {
        throw std::runtime_error(what);
    }
}

/// Megabytes that the process \a number holds.
double megabytesOf(pid_t number)
{
    std::ifstream file("/proc/" + std::to_string(number) + "/statm");
    double total = 0;
    double resident = 0;
    file >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Stands for the till: leaves the moment at which it was reached, and what its parent holds.
int playTill()
{
    const double reached = monotonicSeconds();
    std::ofstream file(reportName);
    file.precision(9);
    file << std::fixed << reached << ' ' << megabytesOf(getppid()) << '\n';
    return file ? EXIT_SUCCESS : EXIT_FAILURE;
}

void run(const std::string& program, const char* argument)
{
    std::string name = program;
    std::string value = argument == nullptr ? "" : argument;
    char* const arguments[]{name.data(), argument == nullptr ? nullptr : value.data(), nullptr};
    pid_t child = 0;
    int status = -1;
    check(posix_spawn(&child, name.c_str(), nullptr, nullptr, arguments, environ) == 0, "spawn");
    check(waitpid(child, &status, 0) == child && status == 0, "a start");
}

/// From a command to the first line of the till that it starts.
void reach(benchmark::State& state, const std::string& program, const std::string& folder)
{
    std::filesystem::current_path(folder);
    constexpr double limitMs = 15;
    double most = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double begin = monotonicSeconds();
        run(program, nullptr);
        std::ifstream report(reportName);
        double reached = 0;
        double megabytes = 0;
        check(static_cast<bool>(report >> reached >> megabytes), "a report");
        most = std::max(most, megabytes);
        state.SetIterationTime(reached - begin);
    }
    state.counters["limit_ms"] = limitMs;
    if (program == VENDEL_BENCH_LAUNCHER) {
        check(most <= largestMegabytes, "at most 8 MB");
        state.SetLabel("launcher " + std::to_string(most).substr(0, 3) + " MB");
    }
}
/// The copies in \a folder as nothing but files.
void listNames(benchmark::State& state, const std::string& folder)
{
    std::filesystem::current_path(folder);
    for ([[maybe_unused]] auto _ : state) {
        std::size_t regular = 0;
        for (const auto& entry : std::filesystem::directory_iterator("copies")) {
            regular += entry.symlink_status().type() == std::filesystem::file_type::regular ? 1 : 0;
        }
        check(regular == copiesInList, "ten thousand files");
    }
    state.counters["limit_ms"] = listLimitMs;
}

/// The copies in \a folder as they are offered to be put back.
void listCopies(benchmark::State& state, const std::string& folder)
{
    std::filesystem::current_path(folder);
    const Descriptor shop(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for ([[maybe_unused]] auto _ : state) {
        check(CopyChoice::items(Copies(shop.get())).size() == copiesInList, "every copy");
    }
    state.counters["limit_ms"] = listLimitMs;
}

/// Makes a data folder with ten thousand copies.
void makeManyCopies(const std::string& folder)
{
    constexpr int minutesOfADay = 1440;
    std::filesystem::create_directories(folder + "/copies");
    for (int minute = 0; minute < int(copiesInList); ++minute) {
        const int time = minute % minutesOfADay / 60 * 100 + minute % 60;
        const std::string digits = std::to_string(10000 + time).substr(1);
        std::ofstream(folder + "/copies/Vendel-2026-01-0"
            + std::to_string(minute / minutesOfADay + 1) + '-' + digits + ".db")
            << 'x';
    }
}
} // namespace

int main(int argc, char* argv[])
{
    const std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
    if (std::getenv("VENDEL_BENCH_TILL") != nullptr) {
        return playTill();
    }
    std::string base = std::filesystem::temp_directory_path() / "vendel-bench-XXXXXX";
    check(mkdtemp(base.data()) != nullptr, "a temporary directory");
    const std::string folder = base + "/vendel";
    run(VENDEL_BENCH_DEMO, folder.c_str());
    setenv("XDG_DATA_HOME", base.c_str(), 1);
    setenv("VENDEL_BENCH_TILL", "1", 1);
    // The day's first start makes a copy; an ordinary one has nothing to copy.
    run(VENDEL_BENCH_LAUNCHER, nullptr);

    benchmark::RegisterBenchmark("start_by_launcher/floor", reach, self, folder)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(20);
    benchmark::RegisterBenchmark(
        "start_by_launcher/program", reach, std::string(VENDEL_BENCH_LAUNCHER), folder)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(20);
    const std::string many = base + "/many";
    makeManyCopies(many);
    benchmark::RegisterBenchmark("list_of_10000_copies/floor", listNames, many)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("list_of_10000_copies/program", listCopies, many)
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::filesystem::remove_all(base);
    return 0;
}
