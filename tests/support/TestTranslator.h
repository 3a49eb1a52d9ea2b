// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

/// Answers every look-up of a text with a function of context and French source while it lives; an
/// empty answer stands for "no translation".
class TestTranslator : public QTranslator
{
    Q_OBJECT

public:
    using Answer = std::function<QString(const QString& context, const QString& source)>;

    explicit TestTranslator(Answer answer)
        : answer_(std::move(answer))
    {
        QCoreApplication::installTranslator(this);
    }

    bool isEmpty() const override
    {
        return false;
    }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return answer_(QString::fromUtf8(context), QString::fromUtf8(source));
    }

private:
    Answer answer_;
};

/// Fails at the look-up of one text, as any part of a slot might fail.
class FailingText : public TestTranslator
{
    Q_OBJECT

public:
    explicit FailingText(const char* text)
        : TestTranslator([text = QString::fromUtf8(text)](const QString&, const QString& source) {
            if (source == text) {
                throw std::runtime_error("no text");
            }
            return QString();
        })
    { }
};
