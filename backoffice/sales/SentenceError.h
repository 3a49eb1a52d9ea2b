// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>
#include <utility>

/// Why something is not done, as the owner is told.
class SentenceError : public std::exception
{
public:
    explicit SentenceError(QString sentence)
        : sentence_(std::move(sentence))
        , bytes_(sentence_.toUtf8())
    { }

    /// One sentence, in the language of the program.
    const QString& sentence() const { return sentence_; }
    const char* what() const noexcept override { return bytes_.constData(); }

private:
    QString sentence_;
    QByteArray bytes_;
};
