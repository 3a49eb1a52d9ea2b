// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Where the launcher's own things are installed.
struct Places
{
    /// The till.
    std::string program;
    /// What shows boxes.
    std::string dialogue;
    /// The folder of the pictures and the translation.
    std::string shared;
    /// The command that sends sales to the central book, where it is installed.
    std::string central;
    /// The guide, a page for the browser.
    std::string guide;
};
