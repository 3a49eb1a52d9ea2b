// SPDX-License-Identifier: MIT
#include "launcher/Watch.h"

#include "launcher/Clock.h"
#include "launcher/CopyWork.h"
#include "launcher/DataFolder.h"
#include "launcher/Process.h"
#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"
#include "launcher/Speech.h"
#include "launcher/TillOutput.h"

#include <array>
#include <cerrno>
#include <cmath>
#include <limits>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/timerfd.h>
#include <sys/wait.h>

namespace {
/// The number that the till finds its lock under.
constexpr int tillLock = 9;

Descriptor makeTimer()
{
    Descriptor timer(timerfd_create(CLOCK_BOOTTIME, TFD_CLOEXEC | TFD_NONBLOCK));
    if (!timer) {
        SafeFile::fail("timerfd");
    }
    return timer;
}

timespec timeOf(double seconds)
{
    constexpr double nanoseconds = 1e9;
    const double whole = std::floor(seconds);
    return {static_cast<time_t>(whole), static_cast<long>((seconds - whole) * nanoseconds)};
}

void setTimer(const Descriptor& timer, double first, double then)
{
    const itimerspec times{timeOf(then), timeOf(first)};
    timerfd_settime(timer.get(), 0, &times, nullptr);
}

bool hasRung(const Descriptor& timer)
{
    std::uint64_t times = 0;
    return read(timer.get(), &times, sizeof times) == sizeof times;
}

/// Whether the process \a child has ended, and how.
bool hasEnded(pid_t child, int& state)
{
    return child > 0 && waitpid(child, &state, WNOHANG) == child;
}
} // namespace

Watch::Watch(const DataFolder& folder, const Speech& speech, std::string program,
    bool isCopyFailureSaid, Times times)
    : folder_(folder)
    , speech_(speech)
    , program_(std::move(program))
    , isCopyFailureSaid_(isCopyFailureSaid)
    , times_(times)
    , log_(folder.get())
    , hours_(makeTimer())
    , deadline_(makeTimer())
    , lastCrash_(-std::numeric_limits<double>::infinity())
{
    sigset_t watched{};
    sigemptyset(&watched);
    for (const int number : {SIGCHLD, SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&watched, number);
    }
    sigprocmask(SIG_BLOCK, &watched, &before_);
    signals_ = Descriptor(signalfd(-1, &watched, SFD_CLOEXEC | SFD_NONBLOCK));
    if (!signals_) {
        SafeFile::fail("signalfd");
    }
    setTimer(hours_, times_.betweenCopies, times_.betweenCopies);
}

Watch::~Watch() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

int Watch::run()
{
    startTill();
    startCopy(Occasion::Opening);
    while (till_ > 0) {
        waitForSomething();
    }
    makeLastCopy();
    if (lastSignal_ != 0) {
        throw Refusal(
            {Sentences::endedTwice, {std::to_string(lastSignal_), folder_.path()}}, status_);
    }
    return status_;
}

void Watch::startTill()
{
    output_ = std::make_unique<TillOutput>(log_, STDOUT_FILENO);
    errors_ = std::make_unique<TillOutput>(log_, STDERR_FILENO);
    const Descriptor output = output_->takeTillEnd();
    const Descriptor errors = errors_->takeTillEnd();
    till_ = fork();
    if (till_ == 0) {
        becomeTill(output.get(), errors.get());
    }
    if (till_ < 0) {
        SafeFile::fail("fork");
    }
}

void Watch::becomeTill(int output, int errors) const
{
    constexpr int notRun = 126;
    dup2(output, STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    // The lock stays with the till, however the launcher ends.
    if (folder_.lockFile() == tillLock) {
        fcntl(tillLock, F_SETFD, 0);
    } else if (folder_.lockFile() >= 0) {
        dup2(folder_.lockFile(), tillLock);
    }
    std::signal(SIGPIPE, SIG_DFL);
    sigprocmask(SIG_SETMASK, &before_, nullptr);
    Process::become({program_});
    _exit(notRun);
}

void Watch::waitForSomething()
{
    std::array<pollfd, 5> ready{{{signals_.get(), POLLIN, 0}, {hours_.get(), POLLIN, 0},
        {deadline_.get(), POLLIN, 0}, {output_ ? output_->get() : -1, POLLIN, 0},
        {errors_ ? errors_->get() : -1, POLLIN, 0}}};
    if (poll(ready.data(), ready.size(), -1) < 0) {
        return;
    }
    if (ready[3].revents != 0 && !output_->pass()) {
        output_.reset();
    }
    if (ready[4].revents != 0 && !errors_->pass()) {
        errors_.reset();
    }
    if (hasRung(hours_)) {
        startCopy(Occasion::Hour);
    }
    if (hasRung(deadline_)) {
        const pid_t late = till_ > 0 ? till_ : copying_;
        if (late > 0) {
            kill(late, SIGKILL);
        }
    }
    readSignals();
}

void Watch::readSignals()
{
    signalfd_siginfo signal{};
    while (read(signals_.get(), &signal, sizeof signal) == sizeof signal) {
        if (signal.ssi_signo != SIGCHLD) {
            askToEnd();
        }
    }
    int state = 0;
    if (hasEnded(copying_, state)) {
        copyEnded(state);
    }
    if (hasEnded(till_, state)) {
        tillEnded(state);
    }
}

void Watch::askToEnd()
{
    if (!isEnding_ && till_ > 0) {
        isEnding_ = true;
        kill(till_, SIGTERM);
        setTimer(deadline_, times_.ending, 0);
    }
}

void Watch::tillEnded(int state)
{
    till_ = -1;
    for (auto* stream : {&output_, &errors_}) {
        if (*stream) {
            (*stream)->drain();
            stream->reset();
        }
    }
    status_ = Process::exitStatus(state);
    if (!WIFSIGNALED(state) || isEnding_) {
        return;
    }
    const double crash = steadySeconds();
    if (crash - lastCrash_ <= times_.crashWindow) {
        lastSignal_ = WTERMSIG(state);
        return;
    }
    lastCrash_ = crash;
    const Words again(Sentences::startedAgain, {std::to_string(WTERMSIG(state))});
    log_.write(say(speech_.language(), again));
    speech_.note(again);
    startTill();
}

void Watch::startCopy(Occasion occasion)
{
    if (copying_ > 0) {
        return;
    }
    // A stick that hangs must not hold up the till's output, so another process waits for it.
    const CopyWork work(folder_.get());
    const bool makesCopy = occasion != Occasion::Opening && work.isChanged();
    if (!makesCopy && !work.hasSecondPlace()) {
        return;
    }
    copying_ = fork();
    if (copying_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        close(folder_.lockFile());
        const auto pace = occasion == Occasion::Closing ? Backup::Pace::Full : Backup::Pace::Gentle;
        _exit(static_cast<int>(work.run(makesCopy, pace)));
    }
}

void Watch::copyEnded(int state)
{
    copying_ = -1;
    const auto result = static_cast<CopyWork::Result>(Process::exitStatus(state));
    if (result == CopyWork::Result::Done || isCopyFailureSaid_) {
        return;
    }
    isCopyFailureSaid_ = true;
    const Words words = result == CopyWork::Result::Damaged
        ? Words(Sentences::databaseUnusable, {folder_.path(), Sentences::damaged})
        : Words(Sentences::noDailyCopy, {folder_.path()});
    log_.write(say(speech_.language(), words));
    // Nobody answers a box who is serving customers, or whose session ends.
    if (isClosing_ && !isEnding_) {
        speech_.warn(words);
    } else {
        speech_.note(words);
    }
}

void Watch::makeLastCopy()
{
    isClosing_ = true;
    setTimer(deadline_, times_.lastCopy, 0);
    while (copying_ > 0) {
        waitForSomething();
    }
    startCopy(Occasion::Closing);
    while (copying_ > 0) {
        waitForSomething();
    }
}
