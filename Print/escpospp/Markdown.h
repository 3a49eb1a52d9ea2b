// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// A text whose markers were replaced, or the reason why they were not.
struct Markdown
{
    /// The text with its markers replaced by commands; empty when there is a fault.
    std::string bytes;
    /// Why the text is rejected, as one line without its end; empty when it is not.
    std::string_view fault;
};

/// Replaces the markers of \a text (see MDPair) by the commands that open and close their styles.
/// Styles must nest and be closed at the end. The last character is never the start of a marker.
Markdown renderMarkdown(std::string_view text);
