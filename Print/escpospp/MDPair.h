// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

/// A two-character text marker with the commands that open and close its style.
class MDPair
{
public:
    explicit MDPair(std::string marker);

    /// Equal when both commands are; the marker does not count.
    bool operator==(const MDPair& other) const;

    /// A copy of the pair of \a marker; fills the map first when it is empty.
    /// Throws the int -1 when there is no such marker.
    static MDPair getMatching(const std::string& marker);

    /// Fills the map with "__" (thick underline) and "**" (bold); what is there stays.
    static void initializeMap();

    /// The pairs by marker. They live as long as the process.
    static inline std::map<std::string, MDPair*> mdPairMap;

    std::string on;
    std::string off;
    std::string marker;
};
