// SPDX-License-Identifier: MIT
#include "tests/support/Translation.h"

#include <QCoreApplication>

Translation::Translation() { QCoreApplication::installTranslator(this); }

Translation::~Translation() { QCoreApplication::removeTranslator(this); }

void Translation::add(const QString& context, const QString& source, const QString& text)
{
    texts_.insert({context, source}, text);
}

void Translation::addPlural(const QString& context, const QString& source, const QString& text)
{
    plurals_.insert({context, source}, text);
}

QString Translation::translate(
    const char* context, const char* source, const char* /*disambiguation*/, int count) const
{
    const Key key(QString::fromUtf8(context), QString::fromUtf8(source));
    return count > 1 && plurals_.contains(key) ? plurals_.value(key) : texts_.value(key);
}

bool Translation::isEmpty() const { return false; }
