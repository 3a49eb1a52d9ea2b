// SPDX-License-Identifier: MIT
#include "launcher/Watch.h"

#include "launcher/BookAddress.h"
#include "launcher/Clock.h"
#include "launcher/CopyWork.h"
#include "launcher/DataFolder.h"
#include "launcher/Process.h"
#include "launcher/Reasons.h"
#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"
#include "launcher/Speech.h"
#include "launcher/TillOutput.h"
#include "launcher/Timer.h"

#include <array>
#include <cerrno>
#include <limits>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/wait.h>

namespace {
/// The number that the till finds its lock under.
constexpr int tillLock = 9;
/// The exit status of a process that could not become the till.
constexpr int notRun = 126;
/// That of a process that a disk does not let go of.
constexpr int neverEnded = 128 + SIGKILL;

/// Whether the process \a child has ended, and how.
bool hasEnded(pid_t child, int& state)
{
    return child > 0 && waitpid(child, &state, WNOHANG) == child;
}
} // namespace

Watch::Watch(DataFolder& folder, const Speech& speech, std::string program, std::string central,
    bool isCopyFailureSaid, Times times)
    : folder_(folder)
    , speech_(speech)
    , program_(std::move(program))
    , central_(std::move(central))
    , times_(times)
    , log_(folder.get())
    , hours_(Timer::make())
    , deadline_(Timer::make())
    , copyTrouble_{isCopyFailureSaid, std::nullopt}
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
    Timer::set(hours_, times_.betweenCopies, times_.betweenCopies);
}

Watch::~Watch() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

int Watch::run()
{
    if (startTill()) {
        spread();
    }
    while (till_ > 0) {
        waitForSomething();
    }
    makeLastCopy();
    // Whoever ends the launcher while it only shows a box ends the box, too.
    sigprocmask(SIG_SETMASK, &before_, nullptr);
    sayTrouble();
    if (lastWords_) {
        log_.write(say(speech_.language(), *lastWords_));
        throw Refusal(*lastWords_, status_);
    }
    return status_;
}

/// False when there can be no till: why is then in the last words.
bool Watch::startTill()
{
    try {
        forkTill();
        return true;
    } catch (const std::system_error& error) {
        lastWords_ = Words(Sentences::notStarted, {Reasons::ofSystem(error.code().value())});
        status_ = EXIT_FAILURE;
        return false;
    }
}

void Watch::forkTill()
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
    folder_.announceTill(till_);
}

void Watch::becomeTill(int output, int errors) const
{
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
    std::array<pollfd, 8> ready{{{output_ ? output_->get() : -1, POLLIN, 0},
        {errors_ ? errors_->get() : -1, POLLIN, 0}, {signals_.get(), POLLIN, 0},
        {hours_.get(), POLLIN, 0}, {deadline_.get(), POLLIN, 0}, {copying_.clock(), POLLIN, 0},
        {carrying_.clock(), POLLIN, 0}, {sending_.clock(), POLLIN, 0}}};
    if (poll(ready.data(), ready.size(), -1) < 0) {
        return;
    }
    if (ready[0].revents != 0 && !output_->pass()) {
        output_.reset();
    }
    if (ready[1].revents != 0 && !errors_->pass()) {
        errors_.reset();
    }
    if (Timer::hasRung(hours_)) {
        startCopy(Occasion::Hour);
    }
    if (Timer::hasRung(deadline_) && till_ > 0) {
        kill(till_, SIGKILL);
    }
    copying_.lookAtClock();
    carrying_.lookAtClock();
    sending_.lookAtClock();
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
    if (const auto status = copying_.ended()) {
        copyEnded(*status);
    }
    if (const auto status = carrying_.ended()) {
        carryingEnded(*status);
    }
    if (const auto status = sending_.ended()) {
        sendingEnded(*status);
    }
    int state = 0;
    if (hasEnded(till_, state)) {
        tillEnded(state);
    }
}

void Watch::askToEnd()
{
    // Also while the last copy is made: then nobody is there any more to answer a box.
    if (!std::exchange(isEnding_, true) && till_ > 0) {
        kill(till_, SIGTERM);
        Timer::set(deadline_, times_.ending);
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
    if (status_ == notRun) {
        lastWords_ = Words(Sentences::notStarted, {program_});
    }
    if (!WIFSIGNALED(state) || isEnding_) {
        return;
    }
    const std::string signal = std::to_string(WTERMSIG(state));
    const double crash = steadySeconds();
    if (crash - lastCrash_ <= times_.crashWindow) {
        lastWords_ = Words(Sentences::endedTwice, {signal, folder_.path()});
        return;
    }
    lastCrash_ = crash;
    const Words again(Sentences::startedAgain, {signal});
    log_.write(say(speech_.language(), again));
    speech_.note(again);
    startTill();
}

void Watch::startCopy(Occasion occasion)
{
    const CopyWork work(folder_.get());
    if (copying_.isUnderWay()) {
        return;
    }
    if (!work.isChanged()) {
        spread();
        return;
    }
    const bool isLast = occasion == Occasion::Closing;
    const auto pace = isLast ? Backup::Pace::Full : Backup::Pace::Gentle;
    const auto make = [this, &work, pace] {
        close(folder_.lockFile());
        return static_cast<int>(work.make(pace));
    };
    if (!copying_.start(make, isLast ? times_.lastCopy : times_.copy)) {
        copyEnded(static_cast<int>(CopyWork::Made::Failed));
    }
}

void Watch::startCarrying()
{
    const CopyWork work(folder_.get());
    if (carrying_.isUnderWay() || work.secondPlace().empty()) {
        return;
    }
    const auto carry = [this, &work] {
        close(folder_.lockFile());
        return work.carry();
    };
    if (!carrying_.start(carry, isClosing_ ? times_.lastCopy : times_.copy)) {
        carryingEnded(EAGAIN);
    }
}

void Watch::startSending()
{
    if (sending_.isUnderWay() || access(central_.c_str(), X_OK) != 0
        || BookAddress(folder_.get()).uri().empty()) {
        return;
    }
    const auto send = [this] {
        close(folder_.lockFile());
        // What it has to say is said by its exit status.
        const Descriptor nobody(open("/dev/null", O_RDWR | O_CLOEXEC));
        dup2(nobody.get(), STDOUT_FILENO);
        dup2(nobody.get(), STDERR_FILENO);
        sigprocmask(SIG_SETMASK, &before_, nullptr);
        Process::become({central_, "--envoyer", "--dossier", folder_.path()});
        return notRun;
    };
    if (!sending_.start(send, isClosing_ ? times_.lastSending : times_.sending)) {
        sendingEnded(notRun);
    }
}

void Watch::spread()
{
    startCarrying();
    startSending();
}

void Watch::copyEnded(int status)
{
    const auto made = static_cast<CopyWork::Made>(status);
    if (made == CopyWork::Made::Done) {
        copyTrouble_ = {};
        spread();
        return;
    }
    if (made == CopyWork::Made::Later) {
        // It is made an hour later, or when the till is closed.
        return;
    }
    const bool isUnusable = made == CopyWork::Made::Damaged || made == CopyWork::Made::Foreign;
    note(copyTrouble_,
        isUnusable ? Words(Sentences::databaseUnusable,
            {folder_.path(),
                made == CopyWork::Made::Damaged ? Sentences::damaged : Sentences::foreignContent})
                   : Words(Sentences::noDailyCopy, {folder_.path()}));
}

void Watch::carryingEnded(int status)
{
    constexpr int mostErrors = 133;
    if (status == 0) {
        carryTrouble_ = {};
    }
    if (status == 0 || status == CopyWork::isAway) {
        return;
    }
    // A medium that hangs had its process killed.
    const int number = status <= mostErrors ? status : ETIMEDOUT;
    note(carryTrouble_,
        {Sentences::notCarried,
            {CopyWork(folder_.get()).secondPlace(), Reasons::ofSystem(number)}});
}

/// Only the log has it: a network that is away in the evening is nothing to press a key for.
void Watch::sendingEnded(int status)
{
    if (status == 0) {
        sendTrouble_ = {};
        return;
    }
    note(sendTrouble_, {Sentences::notSent, {Reasons::ofBook(status)}});
}

void Watch::note(Trouble& trouble, const Words& words)
{
    if (!std::exchange(trouble.isKnown, true)) {
        log_.write(say(speech_.language(), words));
        speech_.note(words);
        trouble.unread = words;
    }
}

/// Nobody answers a box who is serving customers, or whose session ends.
void Watch::sayTrouble() const
{
    for (const Trouble* trouble : {&copyTrouble_, &carryTrouble_}) {
        if (trouble->unread && !isEnding_) {
            speech_.warn(*trouble->unread);
        }
    }
}

void Watch::await(Chore& chore, double seconds)
{
    chore.limit(seconds);
    while (chore.isAwaited()) {
        waitForSomething();
    }
}

void Watch::makeLastCopy()
{
    isClosing_ = true;
    folder_.announceEnd();
    await(copying_, times_.lastCopy);
    startCopy(Occasion::Closing);
    await(copying_, times_.lastCopy);
    if (copying_.isUnderWay()) {
        copyEnded(neverEnded);
    }
    // The till may start again while a slow medium is written to.
    folder_.unlock();
    await(carrying_, times_.lastCopy);
    if (carrying_.isUnderWay()) {
        carryingEnded(neverEnded);
    } else {
        // What was under way may have been an earlier copy.
        startCarrying();
        await(carrying_, times_.lastCopy);
    }
    // The same for the sales.
    await(sending_, times_.lastSending);
    startSending();
    await(sending_, times_.lastSending);
}
