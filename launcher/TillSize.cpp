// SPDX-License-Identifier: MIT
#include "launcher/TillSize.h"

#include "launcher/DataFolder.h"
#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"
#include "launcher/Speech.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <sstream>
#include <system_error>

namespace {
constexpr const char* fileName = "taille";
constexpr int smallest = TillSize::unscaled;
constexpr int largest = 300;
} // namespace

std::optional<TillSize> TillSize::parse(std::string_view text)
{
    constexpr std::size_t digits = 3;
    if (text == "auto") {
        return TillSize(automatic);
    }
    if (text == "ecran") {
        return TillSize(screen);
    }
    int percent = 0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, percent);
    const bool isPercent = text.size() == digits && read.ec == std::errc() && read.ptr == end
        && percent >= smallest && percent <= largest;
    return isPercent ? std::optional(TillSize(percent)) : std::nullopt;
}

TillSize TillSize::remembered(int folder)
{
    constexpr std::size_t longest = 16;
    const std::string text = SafeFile::read(folder, fileName, longest).value_or("");
    return parse(std::string_view(text).substr(0, text.find('\n'))).value_or(TillSize());
}

void TillSize::remember(const DataFolder& folder) const
{
    const std::string text = percent_ == automatic ? "auto"
        : percent_ == screen                       ? "ecran"
                                                   : std::to_string(percent_);
    try {
        SafeFile::write(folder.get(), fileName, text + '\n', SafeFile::Existing::Replace);
    } catch (const std::system_error&) {
        throw folder.unusable({Sentences::fileNotWritten, {fileName}});
    }
}

void TillSize::apply(const Speech& speech) const
{
    const auto percent = percent_ == screen ? filling(speech.screen()) : percent_;
    if (percent.value_or(automatic) != automatic) {
        tellQt(*percent);
    }
}

std::optional<int> TillSize::filling(const std::string& room)
{
    // The sales screen in the frame that a desktop draws around it.
    constexpr int neededWidth = 1050 + 8;
    constexpr int neededHeight = 626 + 38;
    constexpr int largestSide = 65536;
    constexpr int step = 5;
    int width = 0;
    int height = 0;
    if (!(std::istringstream(room) >> width >> height) || width <= 0 || height <= 0
        || width > largestSide || height > largestSide) {
        return std::nullopt;
    }
    const int fitting
        = std::min(width * unscaled / neededWidth, height * unscaled / neededHeight) / step * step;
    return std::clamp(fitting, smallest, largest);
}

void TillSize::tellQt(int percent)
{
    const std::string part = std::to_string(unscaled + percent % unscaled).substr(1);
    setenv("QT_SCALE_FACTOR", (std::to_string(percent / unscaled) + '.' + part).c_str(), 1);
    setenv("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough", 1);
    // Qt would multiply its own factors with the screen's density.
    setenv("QT_AUTO_SCREEN_SCALE_FACTOR", "0", 1);
    setenv("QT_ENABLE_HIGHDPI_SCALING", "0", 1);
    for (const char* other :
        {"QT_SCREEN_SCALE_FACTORS", "QT_DEVICE_PIXEL_RATIO", "QT_USE_PHYSICAL_DPI"}) {
        unsetenv(other);
    }
}
