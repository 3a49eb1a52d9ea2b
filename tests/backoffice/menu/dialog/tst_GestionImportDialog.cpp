// SPDX-License-Identifier: MIT
#include "backoffice/window/ImportDialog.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QCheckBox>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QUrl>

namespace {
const QByteArray fourLines("article;prix\nCafé;1,80\nLait;2\nThé;2,00\n;5\n");

/// A shop and the dialog that imports into it.
struct Importing : Shop
{
    ImportDialog dialog;
    QPushButton& start = child<QPushButton>(dialog, "start");
    QPushButton& cancel = child<QPushButton>(dialog, "cancel");
    QPushButton& choose = child<QPushButton>(dialog, "choose");
    QTableView& table = child<QTableView>(dialog, "preview");

    explicit Importing(
        ImportKind kind = ImportKind::Menu, const char* program = VENDEL_GESTION_COPY)
        : dialog(kind, Import(path(), QString(program), QLocale(QLocale::French, QLocale::France)))
    {
        fill("insert into Article (article, prix) values ('Café', 1.5), ('Thé', 2)");
        dialog.show();
    }

    void open(const QByteArray& bytes)
    {
        write("menu.csv", bytes);
        dialog.openFile("menu.csv");
        awaitEnd();
    }

    /// Waits until nothing is under way any more.
    void awaitEnd() const { QTRY_VERIFY(choose.isEnabled()); }

    QStringList rows() const
    {
        QStringList all;
        const auto* model = table.model();
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column) {
                cells += model->index(row, column).data().toString();
            }
            all += cells.join('|');
        }
        return all;
    }

    QString said(const char* label) { return child<QLabel>(dialog, label).text(); }
    QString menu() const
    {
        return cell(
            "select group_concat(article || prix) from (select * from Article order by id)");
    }
};

const QString before("Café1.5,Thé2");
} // namespace

class TestGestionImportDialog : public QObject
{
    Q_OBJECT

private slots:
    void withoutAFileNothingCanBeImported()
    {
        Importing at;
        QVERIFY(!at.start.isEnabled());
        QVERIFY(at.cancel.isDefault());
        QVERIFY(!at.start.autoDefault());
        QCOMPARE(at.dialog.windowTitle(), QString("Importer le menu"));
    }

    void eachLineIsShownInWordsAndColours()
    {
        Importing at;
        at.open(fourLines);
        QCOMPARE(at.rows(),
            (QStringList{"2|≠ Nouveau prix|Café|1,80|1,50 → 1,80", "3|+ Nouveau|Lait|2|",
                "4|= Inchangé|Thé|2,00|", "5|✕ Refusé||5|Pas de nom"}));
        QCOMPARE(at.said("counts"),
            QString("1 nouvelle · 1 nouveau prix · 1 inchangée · 1 refusée, qui reste de côté"));
        QCOMPARE(at.start.text(), QString("&Importer 2 lignes"));
        QVERIFY(at.start.isEnabled());
        QVERIFY(at.cancel.isDefault());
        const auto colour
            = [&](int row) { return at.table.model()->index(row, 0).data(Qt::BackgroundRole); };
        QVERIFY(colour(0) != colour(1));
        QVERIFY(colour(1) != colour(3));
        QVERIFY(!colour(2).isValid());
        QCOMPARE(at.menu(), before);
    }

    void theRefusedLinesCanBeShownAlone()
    {
        Importing at;
        at.open(fourLines);
        child<QCheckBox>(at.dialog, "refusedOnly").click();
        QCOMPARE(at.rows(), QStringList{"5|✕ Refusé||5|Pas de nom"});
        child<QCheckBox>(at.dialog, "refusedOnly").click();
        QCOMPARE(at.rows().size(), 4);
    }

    void enterImportsNothing()
    {
        Importing at;
        at.open(fourLines);
        QTest::keyClick(&at.dialog, Qt::Key_Return);
        QVERIFY(!at.dialog.isVisible());
        QCOMPARE(at.menu(), before);
        QVERIFY(!QDir("copies").exists());
    }

    void anImportNamesItsCopy()
    {
        Importing at;
        QSignalSpy imported(&at.dialog, &ImportDialog::imported);
        at.open(fourLines);
        click(at.dialog, "start");
        at.awaitEnd();
        QCOMPARE(at.menu(), QString("Café1.8,Thé2,Lait2"));
        const QStringList copies = QDir("copies").entryList({"*.db"});
        QCOMPARE(copies.size(), 1);
        QCOMPARE(at.said("outcome"),
            QString("2 lignes sont importées. La copie d'avant l'import est «\u00a0%1\u00a0».")
                .arg(copies.constFirst()));
        QCOMPARE(imported.count(), 1);
        QVERIFY(!at.start.isEnabled());
        QCOMPARE(at.cancel.text(), QString("&Fermer"));
    }

    void theProgramItselfMakesTheCopy()
    {
        Importing at(ImportKind::Menu, VENDEL_GESTION);
        at.open(fourLines);
        click(at.dialog, "start");
        at.awaitEnd();
        QCOMPARE(at.menu(), QString("Café1.8,Thé2,Lait2"));
        QCOMPARE(QDir("copies").entryList({"*.db"}).size(), 1);
    }

    void aChangedMenuIsShownBeforeAnythingIsDone()
    {
        Importing at;
        at.open(fourLines);
        at.sql("update Article set prix = 1.8 where article = 'Café'");
        click(at.dialog, "start");
        at.awaitEnd();
        QCOMPARE(at.said("outcome"),
            QString("Le menu ou les recettes ont changé depuis l'aperçu\u00a0: rien n'est importé. "
                    "Voici ce que l'import ferait maintenant."));
        QCOMPARE(at.rows().constFirst(), QString("2|= Inchangé|Café|1,80|"));
        QCOMPARE(at.menu(), QString("Café1.8,Thé2"));
        QCOMPARE(at.start.text(), QString("&Importer 1 ligne"));
        click(at.dialog, "start");
        at.awaitEnd();
        QCOMPARE(at.menu(), QString("Café1.8,Thé2,Lait2"));
    }

    void whatGoesWrongIsSaid()
    {
        Importing at(ImportKind::Menu, "/nowhere");
        at.open(fourLines);
        click(at.dialog, "start");
        at.awaitEnd();
        QCOMPARE(at.said("outcome"),
            QString("La copie d'avant l'import n'est pas faite\u00a0: le disque est plein ou "
                    "défaillant, ou la base est endommagée. Rien n'est changé."));
        QVERIFY(at.start.isEnabled());
        at.open("");
        QCOMPARE(at.said("outcome"), QString("Le fichier est vide."));
        QCOMPARE(at.rows(), QStringList());
        QVERIFY(!at.start.isEnabled());
        at.open("article;prix\n");
        QCOMPARE(at.said("outcome"), QString("Le fichier n'a que des titres."));
        QCOMPARE(at.menu(), before);
    }

    void aFileCanBeDropped()
    {
        Importing at;
        at.write("menu.csv", fourLines);
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(at.path() + "/menu.csv")});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&at.dialog, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&at.dialog, &drop);
        at.awaitEnd();
        QCOMPARE(at.rows().size(), 4);
        QMimeData text;
        text.setText("article;prix");
        QDragEnterEvent other(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        other.ignore();
        QCoreApplication::sendEvent(&at.dialog, &other);
        QVERIFY(!other.isAccepted());
    }

    void recipesHaveTheirOwnColumns()
    {
        Importing at(ImportKind::Recipes);
        at.open("Café;Lait;2,5;cl\nCafé;Sel;1;kg\n");
        QCOMPARE(at.dialog.windowTitle(), QString("Importer les recettes"));
        QCOMPARE(at.rows(),
            (QStringList{"1|+ Nouveau|Café|Lait|2,5|cl|",
                "2|✕ Refusé|Café|Sel|1|kg|Unité\u00a0: «\u00a0cl\u00a0» ou «\u00a0g\u00a0»"}));
        click(at.dialog, "start");
        at.awaitEnd();
        QCOMPARE(at.cell("select id || composition || dose || unite from DoseStock"),
            QString("1Lait2.5cl"));
    }

    void closingWhileACopyIsMadeStopsIt()
    {
        Importing at(ImportKind::Menu, "./hanging");
        at.write("hanging", "#!/bin/sh\n: > begun\nexec sleep 600\n");
        QVERIFY(QFile("hanging").setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        at.open(fourLines);
        click(at.dialog, "start");
        QTRY_VERIFY(QFile::exists("begun"));
        QVERIFY(!at.choose.isEnabled());
        at.dialog.reject();
        QTRY_VERIFY(!at.dialog.isVisible());
        QCOMPARE(at.menu(), before);
    }

    void aDialogThatIsDestroyedMeanwhileWaits()
    {
        const Shop shop;
        shop.fill("insert into Article (article, prix) values ('Café', 1.5)");
        shop.write("menu.csv", fourLines);
        {
            ImportDialog dialog(ImportKind::Menu, Import(shop.path(), "/bin/cat", QLocale::c()));
            dialog.openFile("menu.csv");
        }
        QCOMPARE(shop.cell("select article from Article"), QString("Café"));
    }
};

VENDEL_TEST(TestGestionImportDialog)
#include "tst_GestionImportDialog.moc"
