// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Shop.h"

#include <QCoreApplication>
#include <QTranslator>

/// A shop whose names are numbers, so that every letter on the screen is the till's.
class NumberedShop : public Shop
{
public:
    NumberedShop()
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
};

/// Takes the English away for a while.
class InFrench
{
public:
    InFrench()
        : english_(QCoreApplication::instance()->findChildren<QTranslator*>().constLast())
    {
        QCoreApplication::removeTranslator(english_);
    }
    ~InFrench() { QCoreApplication::installTranslator(english_); }
    Q_DISABLE_COPY_MOVE(InFrench)

private:
    QTranslator* english_;
};
