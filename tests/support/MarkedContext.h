// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, a text of one context is translated as context, ":", text: it shows where a
/// window looks its texts up.
class MarkedContext : public QTranslator
{
public:
    explicit MarkedContext(const char* context)
        : context_(context)
    {
        QCoreApplication::installTranslator(this);
    }

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return qstrcmp(context, context_) == 0
            ? QString::fromLatin1(context) + ':' + QString::fromUtf8(source)
            : QString();
    }

    bool isEmpty() const override
    {
        return false;
    }

private:
    const char* context_;
};
