// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPair>
#include <QString>
#include <QTranslator>

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
