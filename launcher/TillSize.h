// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

class DataFolder;
class Speech;

/// How large the till is drawn.
class TillSize
{
public:
    /// As the session shows every program.
    TillSize() = default;

    /// The size that \a text names: "auto", "ecran" (as large as the screen allows) or 100 to 300
    /// per cent.
    static std::optional<TillSize> parse(std::string_view text);

    /// The size that the shop in \a folder (a descriptor) remembers.
    static TillSize remembered(int folder);
    friend bool operator==(const TillSize&, const TillSize&) = default;
    /// Remembers this size. Throws Refusal.
    void remember(const DataFolder& folder) const;

    /// Has Qt draw whatever the launcher starts from now on at this size; what the session says of
    /// sizes stays for "auto", and where no screen can be asked.
    void apply(const Speech& speech) const;

    /// The size in per cent at which the till fits into \a room, a width and a height in pixels;
    /// nothing when that is not what \a room says.
    static std::optional<int> filling(const std::string& room);
    /// What pixels are drawn at, in per cent.
    static constexpr int unscaled = 100;
    /// Has Qt draw at \a percent, whatever the session says.
    static void tellQt(int percent);

private:
    static constexpr int automatic = 0;
    static constexpr int screen = -1;

    explicit TillSize(int percent)
        : percent_(percent)
    { }

    int percent_ = automatic;
};
