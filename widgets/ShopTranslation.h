// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QTranslator>

/// The texts that the working directory's translation puts in the place of the till's own.
class ShopTranslation : public QTranslator
{
public:
    explicit ShopTranslation(QObject* parent);
    ~ShopTranslation() override;
    ShopTranslation(const ShopTranslation&) = delete;
    ShopTranslation& operator=(const ShopTranslation&) = delete;
    ShopTranslation(ShopTranslation&&) = delete;
    ShopTranslation& operator=(ShopTranslation&&) = delete;

    /// Reads "FormVendelTr_Us", under the names that Qt would try. Returns false when there is none
    /// or it is no translation; with one critical log line when SmallFile refuses the file, or when
    /// it names another one to load.
    bool read();

private:
    QByteArray bytes_;
};
