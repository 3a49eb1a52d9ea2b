// SPDX-License-Identifier: MIT
#include "Print/escpospp/Markdown.h"

#include "Print/escpospp/MDPair.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace {
constexpr std::size_t markerLength = 2;

/// The pairs of MDPair, for a fast look-up.
class MarkerTable
{
public:
    MarkerTable()
    {
        if (MDPair::mdPairMap.empty()) {
            MDPair::initializeMap();
        }
        for (const auto& [marker, pair] : MDPair::mdPairMap) {
            pairs_.push_back(pair);
            isFirst_[static_cast<unsigned char>(marker[0])] = true;
        }
    }

    /// The pair whose marker is the two characters at \a two; null when there is none.
    const MDPair* at(const char* two) const
    {
        // The first character alone rules out nearly every position of a text.
        if (!isFirst_[static_cast<unsigned char>(two[0])]) {
            return nullptr;
        }
        const auto found = std::find_if(pairs_.begin(), pairs_.end(), [two](const MDPair* pair) {
            return pair->marker[0] == two[0] && pair->marker[1] == two[1];
        });
        return found == pairs_.end() ? nullptr : *found;
    }

private:
    std::array<bool, std::numeric_limits<unsigned char>::max() + 1> isFirst_{};
    std::vector<const MDPair*> pairs_;
};
} // namespace

Markdown renderMarkdown(std::string_view text)
{
    const MarkerTable markers;
    std::vector<const MDPair*> open;
    std::string out;
    out.reserve(text.size());
    std::size_t pending = 0;
    std::size_t i = 0;
    while (i + 1 < text.size()) {
        const MDPair* pair = markers.at(text.data() + i);
        if (pair == nullptr) {
            ++i;
            continue;
        }
        out.append(text, pending, i - pending);
        if (std::find(open.begin(), open.end(), pair) == open.end()) {
            out += pair->on;
            open.push_back(pair);
        } else if (open.back() == pair) {
            out += pair->off;
            open.pop_back();
        } else {
            return {{}, "Incorrect text string with markdown"};
        }
        i += markerLength;
        pending = i;
    }
    if (!open.empty()) {
        return {{}, "Unmatched characters in markdown string"};
    }
    out.append(text, pending);
    return {std::move(out), {}};
}
