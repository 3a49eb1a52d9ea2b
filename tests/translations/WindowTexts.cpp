// SPDX-License-Identifier: MIT
#include "tests/translations/WindowTexts.h"

#include "tests/translations/EveryWindow.h"

#include <QCoreApplication>

NumberedShop::NumberedShop()
{
    fill("insert into Article values (1, '11', 2), (2, '12', 3), (3, '13', 3);"
         "insert into ArticleStock (id, article) values (1, '11'), (2, '22'), (4, '14');"
         "insert into DoseStock (id, composition, dose, unite) values (1, '31', 2, 'cl'), "
         "(4, '32', 3, 'g');"
         "insert into Historique values (1, '11', 2, '2019-05-04 12:00:00.000');"
         "insert into Ticket (id, article, prix) values (1, '11', 2)");
    write("EnteteFormulaire.dat", "1");
    write("PiedFormulaire.dat", "2");
}

InFrench::InFrench()
    : english_(QCoreApplication::instance()->findChildren<QTranslator*>().constLast())
{
    QCoreApplication::removeTranslator(english_);
}

InFrench::~InFrench() { QCoreApplication::installTranslator(english_); }

QVector<ShownText> textsOfRow()
{
    const NumberedShop shop;
    QWidget opener;
    auto texts = shownTexts(*openWindowOfRow(opener));
    for (ShownText& text : texts) {
        text.text.remove(shop.path());
    }
    return texts;
}

QString clippedTexts()
{
    QStringList clipped;
    const auto texts = textsOfRow();
    for (const ShownText& text : texts) {
        if (text.missing > 0) {
            clipped << QString("%1: \"%2\" lacks %3 pixels")
                           .arg(text.place, text.text, QString::number(text.missing));
        }
    }
    return clipped.join('\n');
}
