// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/CsvFile.h"
#include "launcher/Sentences.h"

#include <QStringList>

#include <exception>
#include <optional>
#include <vector>

/// What the command line asks for.
struct Order
{
    enum class Action
    {
        Window,
        File,
        Help,
        Version
    };
    enum class Kind
    {
        Csv,
        Pdf,
        Png
    };

    Action action = Action::Window;
    /// The data folder; empty for the till's own.
    QString folder;
    /// The URI of the central book that is read instead of a till; empty for none.
    QString central;
    /// The names of the tills of the book that are read; none for all.
    std::vector<QString> tills;
    std::optional<Language> language;

    // Of a file only.
    Page page = Page::Sales;
    DayRange range;
    std::optional<double> taxRate;
    Kind kind = Kind::Csv;
    std::optional<CsvFormat> csvFormat;
    /// "-" for standard output.
    QString file;
};

/// Why a command line asks for nothing that can be done. It is made before the program has a
/// language.
class BadOrder : public std::exception
{
public:
    /// \a sentence is one of BadOrder's texts to translate, "%1" in it is \a inserted.
    BadOrder(const char* sentence, QString inserted)
        : sentence_(sentence)
        , inserted_(std::move(inserted))
    { }

    /// One sentence in the language that the program has by now.
    QString sentence() const;
    const char* what() const noexcept override { return sentence_; }

private:
    const char* sentence_;
    QString inserted_;
};

/// The order in \a arguments, which do not include the command; throws BadOrder.
Order parseOrder(const QStringList& arguments);

/// The language that \a arguments ask for, be the rest right or wrong.
std::optional<Language> languageIn(const QStringList& arguments);
