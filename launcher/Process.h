// SPDX-License-Identifier: MIT
#pragma once

#include <limits>
#include <string>
#include <vector>

/// Other programs. None of them inherits a descriptor of the launcher but the standard ones.
namespace Process {
/// How a program ended, and what it wrote on standard output.
struct Answer
{
    int status;
    std::string output;
};

/// How long a program may take, in seconds, that nobody has to answer.
constexpr double shortly = 10;

/// Runs \a command with \a input until it ends or \a seconds have passed, in the environment that
/// \a prepare leaves. What it says on standard error is nobody's.
Answer filter(
    const std::vector<std::string>& command, const std::string& input,
    double seconds = std::numeric_limits<double>::infinity(), void (*prepare)() = [] {});

/// Replaces this process with \a command. Returns only when that is not possible.
void become(const std::vector<std::string>& command);

/// How a process ended that waitpid() describes by \a state, as shells say it.
int exitStatus(int state);
} // namespace Process
