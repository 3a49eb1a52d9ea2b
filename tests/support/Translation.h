// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPair>
#include <QString>
#include <QTranslator>

#include <stdexcept>

/// A translation file for one test, installed while it lives.
class Translation : public QTranslator
{
public:
    Translation();
    ~Translation() override;
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;
    Translation(Translation&&) = delete;
    Translation& operator=(Translation&&) = delete;

    /// Translates \a source of \a context as \a text.
    void add(const QString& context, const QString& source, const QString& text);

    /// The same for counts other than 1; without it, add()'s text serves all counts.
    void addPlural(const QString& context, const QString& source, const QString& text);

    QString translate(const char* context, const char* source, const char* disambiguation,
        int count) const override;
    bool isEmpty() const override;

private:
    using Key = QPair<QString, QString>;
    QHash<Key, QString> texts_;
    QHash<Key, QString> plurals_;
};

/// Translates every text as the name of the context that it is looked up in.
class ContextEcho : public Translation
{
public:
    QString translate(const char* context, const char*, const char*, int) const override
    {
        return QString::fromUtf8(context);
    }
};

/// Fails at the look-up of one text while it lives, as any part of a slot might fail.
class FailingText : public Translation
{
public:
    explicit FailingText(const char* text)
        : text_(QString::fromUtf8(text))
    { }

    QString translate(const char*, const char* source, const char*, int) const override
    {
        if (QString::fromUtf8(source) == text_) {
            throw std::runtime_error("no text");
        }
        return {};
    }

private:
    QString text_;
};

/// While it lives, a text of one context is translated as context, ":", text: it shows where a
/// window looks its texts up.
class MarkedContext : public Translation
{
public:
    explicit MarkedContext(const char* context)
        : context_(context)
    { }

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return qstrcmp(context, context_) == 0
            ? QString::fromLatin1(context) + ':' + QString::fromUtf8(source)
            : QString();
    }

private:
    const char* context_;
};
