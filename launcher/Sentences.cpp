// SPDX-License-Identifier: MIT
#include "launcher/Sentences.h"

namespace {
/// \a pattern with each %N replaced by text(N); what is inserted is not looked at again.
template <class Text> std::string filled(std::string_view pattern, Text&& text)
{
    std::string result;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        if (pattern[at] == '%' && at + 1 < pattern.size() && pattern[at + 1] >= '1'
            && pattern[at + 1] <= '9') {
            result += text(static_cast<std::size_t>(pattern[++at] - '1'));
        } else {
            result += pattern[at];
        }
    }
    return result;
}
} // namespace

Words::Words(const char* same)
    : Words(std::string(same))
{ }

Words::Words(std::string same)
    : french(same)
    , english(std::move(same))
{ }

Words::Words(const Sentence& sentence)
    : french(sentence.french)
    , english(sentence.english)
{ }

Words::Words(const Sentence& sentence, std::initializer_list<Words> inserted)
    : french(filled(
        sentence.french, [&](std::size_t number) { return std::data(inserted)[number].french; }))
    , english(filled(sentence.english,
          [&](std::size_t number) { return std::data(inserted)[number].english; }))
{ }

const std::string& say(Language language, const Words& words)
{
    return language == Language::English ? words.english : words.french;
}
