// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// An array as PostgreSQL reads it: "{1,2}", {"a","b"}.
class SqlArray
{
public:
    void add(std::int64_t number) { append(std::to_string(number)); }
    void add(const std::string& text);
    void addReal(double number);

    std::string get() const { return text_ + '}'; }
    bool isEmpty() const { return text_.size() == 1; }

private:
    void append(const std::string& value) { text_ += (isEmpty() ? "" : ",") + value; }

    std::string text_ = "{";
};
