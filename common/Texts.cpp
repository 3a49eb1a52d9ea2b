// SPDX-License-Identifier: MIT
#include "common/Texts.h"

#include <QCoreApplication>

namespace {
constexpr auto catalogueContext = "FormVendelMessages";
}

QString Texts::operator()(const std::string& source, int count) const
{
    // Asked without the count: with one, Qt fills in "%n" even where there is no translation.
    const bool own
        = QCoreApplication::translate(context, source.c_str()) != QString::fromStdString(source);
    return QCoreApplication::translate(
        own ? context : catalogueContext, source.c_str(), nullptr, count);
}
