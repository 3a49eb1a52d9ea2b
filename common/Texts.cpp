// SPDX-License-Identifier: MIT
#include "common/Texts.h"

#include <QCoreApplication>

#include <algorithm>
#include <initializer_list>

namespace {
constexpr auto catalogueContext = "FormVendelMessages";

/// The translation of \a source in the first of \a contexts that has one.
QString translated(
    std::initializer_list<const char*> contexts, const std::string& source, int count = -1)
{
    const QString untranslated = QString::fromStdString(source);
    // Asked without the count: with one, Qt fills in "%n" even where there is no translation.
    const auto* const found
        = std::find_if(contexts.begin(), contexts.end(), [&](const char* context) {
              return QCoreApplication::translate(context, source.c_str()) != untranslated;
          });
    const char* context = found == contexts.end() ? catalogueContext : *found;
    return QCoreApplication::translate(context, source.c_str(), nullptr, count);
}
} // namespace

QString Texts::operator()(const std::string& source, int count) const
{
    return translated({context, catalogueContext}, source, count);
}

QString Texts::caption(const char* window, const QString& source)
{
    const std::string texts = std::string(window) + "Messages";
    return translated({window, texts.c_str(), catalogueContext}, source.toStdString());
}
