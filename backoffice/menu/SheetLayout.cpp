// SPDX-License-Identifier: MIT
#include "backoffice/menu/SheetLayout.h"

#include "backoffice/menu/SheetText.h"
#include "backoffice/menu/WrittenNumber.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace {
struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(SheetLayout)
};

/// A column and the headings that it is known by, without accents and in lower case.
struct Known
{
    ImportColumn column;
    QStringList headings;
};

std::vector<Known> knownColumns(ImportKind kind)
{
    const Known article{{Sentences::tr("Article"), false},
        QStringLiteral("article,articles,nom,produit,designation,libelle,name,item,product")
            .split(QLatin1Char(','))};
    if (kind == ImportKind::Menu) {
        return {article,
            {{Sentences::tr("Prix"), true},
                QStringLiteral("prix,prix unitaire,prix ttc,tarif,montant,price,unit price,amount")
                    .split(QLatin1Char(','))}};
    }
    return {article,
        {{Sentences::tr("Composition"), false},
            QStringLiteral("composition,ingredient,composant,component").split(QLatin1Char(','))},
        {{Sentences::tr("Dose"), true},
            QStringLiteral("dose,quantite,quantity").split(QLatin1Char(','))},
        {{Sentences::tr("Unité"), false}, QStringLiteral("unite,unit").split(QLatin1Char(','))}};
}

/// \a heading without accents, remarks such as "(€)" and the case of its letters.
QString plain(const QString& heading)
{
    static const QRegularExpression remark(QStringLiteral("\\([^)]*\\)"));
    static const QRegularExpression accents(QStringLiteral("\\p{Mn}"));
    QString text = heading.normalized(QString::NormalizationForm_D);
    return text.remove(accents).remove(remark).simplified().toLower();
}

/// Number of fields up to the last with a text.
int usedWidth(const QStringList& fields)
{
    const auto isUsed = [](const QString& field) { return !field.trimmed().isEmpty(); };
    const auto last = std::find_if(fields.crbegin(), fields.crend(), isUsed);
    return static_cast<int>(fields.crend() - last);
}

QString titles(const std::vector<Known>& columns)
{
    QStringList all;
    for (const Known& known : columns) {
        all += known.column.title;
    }
    return all.join(QStringLiteral(", "));
}

/// The layout of a file without a heading.
SheetLayout inOrder(const std::vector<Known>& columns, const QStringList& first)
{
    SheetLayout layout;
    layout.width = static_cast<int>(columns.size());
    for (int place = 0; place < layout.width; ++place) {
        layout.places.push_back(place);
    }
    if (usedWidth(first) > layout.width) {
        throw ImportError(Sentences::tr("Sans ligne de titres, les colonnes doivent être : %1.")
                              .arg(titles(columns)));
    }
    return layout;
}

bool isAnyNumber(const QStringList& fields)
{
    return std::any_of(fields.cbegin(), fields.cend(), [](const QString& field) {
        return WrittenNumber::of(field).kind != WrittenNumber::Kind::None;
    });
}
} // namespace

std::vector<ImportColumn> importColumns(ImportKind kind)
{
    std::vector<ImportColumn> columns;
    for (Known& known : knownColumns(kind)) {
        columns.push_back(std::move(known.column));
    }
    return columns;
}

SheetLayout SheetLayout::of(const CsvRow& first, ImportKind kind)
{
    const auto columns = knownColumns(kind);
    SheetLayout layout;
    layout.hasHeading = true;
    layout.width = static_cast<int>(first.fields.size());
    QString missing;
    for (const Known& known : columns) {
        int place = -1;
        for (int field = 0; field < first.fields.size(); ++field) {
            if (!known.headings.contains(plain(first.fields.at(field)))) {
                continue;
            }
            if (place >= 0) {
                throw ImportError(Sentences::tr("Le fichier a deux colonnes « %1 » : laquelle est "
                                                "la bonne ?")
                                      .arg(known.column.title));
            }
            place = field;
        }
        layout.places.push_back(place);
        if (place < 0) {
            missing = known.column.title;
        }
    }
    const auto found = std::count_if(
        layout.places.begin(), layout.places.end(), [](int place) { return place >= 0; });
    // An article may be called "Prix", but a heading has no number in it.
    if (found == 0 || isAnyNumber(first.fields)) {
        return inOrder(columns, first.fields);
    }
    if (!missing.isNull()) {
        throw ImportError(Sentences::tr("La colonne « %1 » manque.").arg(missing));
    }
    return layout;
}
