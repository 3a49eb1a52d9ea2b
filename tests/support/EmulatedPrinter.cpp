// SPDX-License-Identifier: MIT
#include "tests/support/EmulatedPrinter.h"

#include "Print/escpospp/Printer.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
std::string makeFolder()
{
    std::string folder = (std::filesystem::temp_directory_path() / "printer-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) {
        throw std::runtime_error("cannot make " + folder);
    }
    return folder;
}

std::vector<std::string> argumentsFor(
    const EmulatedPrinter::Setup& setup, const std::string& recordPath)
{
    std::vector<std::string> arguments{VENDEL_EMULATED_PRINTER, "--record", recordPath};
    if (setup.devices.empty()) {
        arguments.emplace_back("--no-device");
    }
    for (const auto& ids : setup.devices) {
        arguments.insert(arguments.end(), {"--device", ids});
    }
    const std::pair<bool, const char*> switches[]{
        {setup.kernelDriver, "--kernel-driver"},
        {setup.detachRefused, "--detach-refused"},
        {setup.claimRefused, "--claim-refused"},
        {setup.openRefused, "--open-refused"},
    };
    for (const auto& [on, option] : switches) {
        if (on) {
            arguments.emplace_back(option);
        }
    }
    return arguments;
}

/// The printer's process is no client of a mocked bus.
std::vector<char*> hostEnvironment()
{
    std::vector<char*> environment;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view text(*entry);
        if (!text.starts_with("LD_PRELOAD=") && !text.starts_with("UMOCKDEV_DIR=")) {
            environment.push_back(*entry);
        }
    }
    environment.push_back(nullptr);
    return environment;
}

std::string bytesFrom(const std::string& hex)
{
    static constexpr int hexadecimal = 16;
    std::string bytes;
    if (hex == "-") {
        return bytes;
    }
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, hexadecimal));
    }
    return bytes;
}
} // namespace

EmulatedPrinter::EmulatedPrinter()
    : EmulatedPrinter(Setup{})
{ }

EmulatedPrinter::EmulatedPrinter(const Setup& setup)
    : folder_(makeFolder())
{
    start(argumentsFor(setup, folder_ + "/record"));
    const std::string directory = readLine();
    if (directory.empty()) {
        throw std::runtime_error("the emulated printer does not start");
    }
    setenv("UMOCKDEV_DIR", directory.c_str(), 1);
    if (!std::filesystem::exists("/sys/devices/usb1")) {
        throw std::runtime_error("libumockdev-preload.so.0 is not loaded");
    }
}

EmulatedPrinter::~EmulatedPrinter()
{
    std::unique_ptr<Printer>(std::exchange(Printer::instance, nullptr)).reset();
    unsetenv("UMOCKDEV_DIR");
    commands_.reset();
    if (process_ > 0) {
        waitpid(process_, nullptr, 0);
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

void EmulatedPrinter::start(const std::vector<std::string>& arguments)
{
    std::array<int, 2> toHost{};
    std::array<int, 2> fromHost{};
    if (pipe2(toHost.data(), O_CLOEXEC) != 0 || pipe2(fromHost.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("cannot make a pipe");
    }
    std::vector<std::string> copies = arguments;
    std::vector<char*> argv;
    argv.reserve(copies.size() + 1);
    for (auto& argument : copies) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, toHost[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, fromHost[1], STDOUT_FILENO);
    const int result
        = posix_spawn(&process_, argv[0], &actions, nullptr, argv.data(), hostEnvironment().data());
    posix_spawn_file_actions_destroy(&actions);
    close(toHost[0]);
    close(fromHost[1]);
    commands_.reset(fdopen(toHost[1], "w"));
    answers_.reset(fdopen(fromHost[0], "r"));
    if (result != 0) {
        process_ = -1;
        throw std::runtime_error("cannot start " + arguments[0]);
    }
}

std::string EmulatedPrinter::readLine()
{
    std::string line;
    for (int c = std::fgetc(answers_.get()); c != EOF && c != '\n';
         c = std::fgetc(answers_.get())) {
        line += static_cast<char>(c);
    }
    return line;
}

void EmulatedPrinter::send(const std::string& command)
{
    std::fputs((command + "\n").c_str(), commands_.get());
    std::fflush(commands_.get());
    const std::string answer = readLine();
    if (answer != "ok") {
        throw std::runtime_error(command + ": " + answer);
    }
}

std::vector<std::string> EmulatedPrinter::records() const
{
    std::ifstream file(folder_ + "/record");
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<EmulatedTransfer> EmulatedPrinter::transfers() const
{
    std::vector<EmulatedTransfer> transfers;
    for (const auto& record : records()) {
        std::istringstream fields(record);
        EmulatedTransfer transfer{};
        std::string hex;
        if (fields >> transfer.device >> transfer.result >> transfer.requested >> hex) {
            transfer.bytes = bytesFrom(hex);
            transfers.push_back(std::move(transfer));
        }
    }
    return transfers;
}

std::string EmulatedPrinter::bytes() const
{
    std::string all;
    for (const auto& transfer : transfers()) {
        all += transfer.bytes;
    }
    return all;
}

std::vector<std::string> EmulatedPrinter::conversation() const
{
    std::vector<std::string> words;
    for (const auto& record : records()) {
        words.push_back(record.substr(0, record.find(' ', record.find(' ') + 1)));
    }
    return words;
}
