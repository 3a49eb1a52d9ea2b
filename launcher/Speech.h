// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

/// How the launcher speaks to the shopkeeper: on standard error, and in boxes where there is a
/// display.
class Speech
{
public:
    /// \a dialogue is the program that shows boxes.
    Speech(Language language, std::string dialogue);

    /// Whether this user has a display at all.
    static bool hasDisplay();

    Language language() const { return language_; }

    /// Says what ended the launcher, in a box too.
    void error(const Words& words) const;
    /// Says what to look after, and waits until it is read.
    void warn(const Words& words) const;
    /// Says what nobody has to answer.
    void note(const Words& words) const;
    /// Says that something is done, on standard output and, away from a terminal, in a box.
    void done(const Words& words) const;

    /// What is chosen of \a lines in a box that asks \a question, empty when it is closed; nothing
    /// when there is no box.
    std::optional<std::string> choose(const Words& question, const std::string& lines) const;

    /// Brings the windows of the process \a till to the front; false where that cannot be done.
    bool show(pid_t till) const;
    /// Width and height that a window may take of the screen, in pixels, as the program that shows
    /// boxes says them; empty when there is no screen.
    std::string screen() const;

private:
    bool hasBoxes() const;
    void box(const char* kind, const std::string& text) const;
    std::vector<std::string> command(std::vector<std::string> arguments) const;

    Language language_;
    std::string dialogue_;
};
