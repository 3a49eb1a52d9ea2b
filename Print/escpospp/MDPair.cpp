// SPDX-License-Identifier: MIT
#include "Print/escpospp/MDPair.h"

#include "Print/escpospp/EscPos.h"

#include <memory>
#include <utility>
#include <vector>

namespace {
/// Adds a pair to the map, unless its marker is there.
void addPair(const std::string& marker, const std::string& on, const std::string& off)
{
    if (MDPair::mdPairMap.contains(marker)) {
        return;
    }
    static std::vector<std::unique_ptr<MDPair>> pairs;
    auto& pair = pairs.emplace_back(std::make_unique<MDPair>(marker));
    pair->on = on;
    pair->off = off;
    MDPair::mdPairMap[marker] = pair.get();
}
} // namespace

MDPair::MDPair(std::string markerText)
    : marker(std::move(markerText))
{ }

bool MDPair::operator==(const MDPair& other) const { return on == other.on && off == other.off; }

MDPair MDPair::getMatching(const std::string& marker)
{
    if (mdPairMap.empty()) {
        initializeMap();
    }
    const auto found = mdPairMap.find(marker);
    if (found == mdPairMap.end()) {
        throw -1;
    }
    return *found->second;
}

void MDPair::initializeMap()
{
    addPair("__", EscPos::UNDERLINE_2_DOT, EscPos::UNDERLINE_OFF);
    addPair("**", EscPos::BOLD_ON, EscPos::BOLD_OFF);
}
