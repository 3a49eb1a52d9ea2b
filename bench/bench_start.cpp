// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "bench/Support.h"
#include "widgets/Application.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QTemporaryDir>

#include <chrono>
#include <string>

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
constexpr auto residentFile = "resident";

/// Ends the program once a window has painted itself, and leaves the memory held then in a file.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget& window)
        : window_(window)
    {
        window_.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched == &window_) {
            QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
        }
        return false;
    }

private:
    QWidget& window_;
};

template <class Window> void showUntilPainted()
{
    Window window;
    const FirstPaint paint(window);
    window.show();
    QApplication::exec();
    QFile file(QString::fromLatin1(residentFile));
    check(file.open(QIODevice::WriteOnly), "a writable directory");
    file.write(QByteArray::number(residentBytes(), 'f', 0));
}

int play(const std::string& mode, int argc, char* argv[])
{
    if (mode == "floor") {
        const QApplication application(argc, argv);
        showUntilPainted<QMainWindow>();
        return 0;
    }
    Application::setAttributes();
    QApplication application(argc, argv);
    Application::setUp(application);
    showUntilPainted<FormVendel>();
    return 0;
}

/// A process of its own from its start to its first painted window.
void start(benchmark::State& state, std::string mode)
{
    std::string self = "/proc/self/exe";
    char* const arguments[]{self.data(), mode.data(), nullptr};
    for ([[maybe_unused]] auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        pid_t child = 0;
        int status = -1;
        check(
            posix_spawn(&child, self.c_str(), nullptr, nullptr, arguments, environ) == 0, "spawn");
        check(waitpid(child, &status, 0) == child && status == 0, "a window");
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
    QFile file(QString::fromLatin1(residentFile));
    check(file.open(QIODevice::ReadOnly), "the memory held");
    const double megabytes = file.readAll().toDouble() / 1e6;
    state.SetLabel((mode == "floor" ? "bare " : "till ")
        + QString::number(megabytes, 'f', 0).toStdString() + " MB");
}
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string mode = argc == 2 ? argv[1] : "";
    if (mode == "floor" || mode == "program") {
        return play(mode, argc, argv);
    }
    const QTemporaryDir folder;
    check(QDir::setCurrent(folder.path()), "a working directory");
    for (const char* side : {"floor", "program"}) {
        benchmark::RegisterBenchmark((std::string("start_to_paint/") + side).c_str(), start, side)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime()
            ->Iterations(10);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
