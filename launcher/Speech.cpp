// SPDX-License-Identifier: MIT
#include "launcher/Speech.h"

#include "launcher/Outlet.h"
#include "launcher/Process.h"
#include "launcher/TillSize.h"

#include <cstdlib>
#include <iostream>

#include <unistd.h>

namespace {
bool isSet(const char* variable)
{
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}
} // namespace

Speech::Speech(Language language, std::string dialogue)
    : language_(language)
    , dialogue_(std::move(dialogue))
{ }

bool Speech::hasDisplay() { return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY"); }

void Speech::error(const Words& words) const
{
    note(words);
    box("--erreur", say(language_, words));
}

void Speech::warn(const Words& words) const
{
    note(words);
    box("--avertissement", say(language_, words));
}

void Speech::note(const Words& words) const
{
    Outlet(STDERR_FILENO).write(say(language_, words) + '\n');
}

void Speech::done(const Words& words) const
{
    std::cout << say(language_, words) << std::endl;
    if (isatty(STDIN_FILENO) == 0) {
        box("--note", say(language_, words));
    }
}

bool Speech::hasBoxes() const { return hasDisplay() && access(dialogue_.c_str(), X_OK) == 0; }

std::optional<std::string> Speech::choose(const Words& question, const std::string& lines) const
{
    constexpr int closed = 1;
    if (!hasBoxes()) {
        return std::nullopt;
    }
    const auto answer = Process::filter(command({"--copies", say(language_, question)}), lines);
    if (answer.status == 0) {
        return answer.output.substr(0, answer.output.find('\n'));
    }
    return answer.status == closed ? std::optional<std::string>("") : std::nullopt;
}

bool Speech::show(pid_t till) const
{
    return till > 0 && hasBoxes()
        && Process::filter({dialogue_, "--montrer", std::to_string(till)}, {}, Process::shortly)
               .status
        == 0;
}

std::string Speech::screen() const
{
    if (!hasBoxes()) {
        return {};
    }
    const auto answer = Process::filter(
        command({"--ecran"}), {}, Process::shortly, [] { TillSize::tellQt(TillSize::unscaled); });
    return answer.status == 0 ? answer.output : std::string();
}

void Speech::box(const char* kind, const std::string& text) const
{
    if (hasBoxes()) {
        Process::filter(command({kind, text}), {});
    }
}

std::vector<std::string> Speech::command(std::vector<std::string> arguments) const
{
    arguments.insert(arguments.begin(), dialogue_);
    if (language_ == Language::English) {
        arguments.insert(arguments.begin() + 1, "--en");
    }
    return arguments;
}
