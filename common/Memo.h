// SPDX-License-Identifier: MIT
#pragma once

#include <unordered_map>

/// What a function makes of each key, made once: texts that are the same then share one string. The
/// sales of a year name some forty articles at some forty prices.
template <class Key, class Value> class Memo
{
public:
    explicit Memo(Value (*make)(const Key&))
        : make_(make)
    { }

    const Value& operator()(const Key& key)
    {
        const auto [entry, isNew] = values_.try_emplace(key);
        if (isNew) {
            entry->second = make_(key);
        }
        return entry->second;
    }

private:
    Value (*make_)(const Key&);
    std::unordered_map<Key, Value> values_;
};
