// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "common/Texts.h"
#include "tests/support/TestProgram.h"
#include "tests/translations/TranslationFile.h"
#include "widgets/QtNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

namespace {
const QString catalogueContext = "FormVendelMessages";

/// Contexts of Qt whose texts a user of the till can meet: buttons of boxes, edit menus, keys,
/// what a screen reader says, errors of files.
const QStringList qtContexts{"QAbstractSpinBox", "QAccessibleActionInterface", "QApplication",
    "QComboBox", "QCoreApplication", "QDialog", "QDialogButtonBox", "QErrorMessage", "QFile",
    "QFileDevice", "QGnomeTheme", "QGuiApplication", "QIODevice", "QImageReader", "QLineEdit",
    "QMessageBox", "QPlatformTheme", "QSaveFile", "QScrollBar", "QShortcut", "QSpiAccessibleBridge",
    "QTabBar", "QUnicodeControlCharacterMenu", "QWhatsThisAction", "QWidget", "QWidgetTextControl"};

/// Words of the till in French that are the same in English, or that no language changes.
const QSet<QString> equalWords{"Click", "Composition", "composition", "Config", "Conversion",
    "Date", "date", "Dialog", "Dose", "dose", "Epson", "Id", "id", "II", "MIT", "Menu", "menu",
    "OFF", "ON", "Options", "Page", "Plus", "Purge", "Stock", "TM", "TOTAL", "Ticket", "ticket",
    "Total", "Vendel", "Version", "cl", "list", "MM", "dd", "yyyy", "titre"};

const QString source = VENDEL_SOURCE "/";

void runTool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    QVERIFY2(process.waitForFinished() && process.exitCode() == 0,
        qPrintable(program + QLatin1String(process.readAllStandardError())));
}

QString key(const TranslatedText& text) { return text.context + '\n' + text.source; }

QSet<QString> keys(const QVector<TranslatedText>& texts)
{
    QSet<QString> all;
    for (const auto& text : texts) {
        all << key(text);
    }
    return all;
}

/// The words of two letters and more in \a text, without those of its HTML.
QSet<QString> wordsOf(QString text)
{
    static const QRegularExpression tag("<[^>]*>");
    static const QRegularExpression word("\\p{L}{2,}");
    QSet<QString> words;
    auto matches = word.globalMatch(text.replace(tag, " "));
    while (matches.hasNext()) {
        words << matches.next().captured();
    }
    return words;
}
} // namespace

class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QTemporaryDir folder;
        const QString designer = folder.filePath("designer.ts");
        const QString qtFrench = folder.filePath("qt.ts");
        runTool(VENDEL_LUPDATE,
            {"-silent", source + "app", source + "forms", source + "common", "-ts", designer});
        runTool(VENDEL_LCONVERT, {QtNames::translationsFolder() + "/qtbase_fr.qm", "-o", qtFrench});
        catalogue_ = readCatalogue(source + "common/Messages.cpp");
        catalogue_.removeAll(QString());
        english_ = readTranslation(source + "translations/FormVendelTr_Us.ts");
        designer_ = readTranslation(designer);
        for (const char* place : {"app", "forms"}) {
            const QDir forms(source + place);
            const auto names = forms.entryList({"*.ui"});
            for (const QString& name : names) {
                captions_ += readCaptions(forms.filePath(name));
            }
        }
        qtFrench_ = readTranslation(qtFrench);
    }

    void theCatalogueIsReadWhole()
    {
        QVERIFY(catalogue_.size() >= 250);
        QVERIFY(catalogue_.contains("+/-"));
        QVERIFY(catalogue_.contains("Composition est vide\nAller dans le menu Stock Saisie Stock\n"
                                    "DoubleClick sur article et composez"));
        QVERIFY(!catalogue_.join("").contains('\\'));
    }

    void everyTextIsTranslated()
    {
        const auto translated = keys(english_);
        for (const QString& text : qAsConst(catalogue_)) {
            QVERIFY2(translated.contains(catalogueContext + '\n' + text), qPrintable(text));
        }
        QVERIFY(!designer_.isEmpty());
        for (const auto& text : qAsConst(designer_)) {
            QVERIFY2(translated.contains(key(text)), qPrintable(key(text)));
        }
    }

    void everyCaptionIsInTheCatalogueOrTranslatedForItsWindow()
    {
        // Filled in by the window, or the same in every language.
        static const QRegularExpression others("^(|DateTime|[0-9+-])$");
        const auto translated = keys(english_);
        QVERIFY(captions_.size() > 80);
        for (const auto& caption : qAsConst(captions_)) {
            QVERIFY2(catalogue_.contains(caption.source) || caption.source.contains(others)
                    || translated.contains(key(caption)),
                qPrintable(key(caption)));
        }
    }

    void everyTranslationIsOfATextThatIsShown()
    {
        const auto shown = keys(designer_ + captions_);
        for (const auto& text : qAsConst(english_)) {
            const bool isShown = text.context == catalogueContext ? catalogue_.contains(text.source)
                                                                  : shown.contains(key(text));
            QVERIFY2(isShown || qtContexts.contains(text.context), qPrintable(key(text)));
        }
    }

    void everyTranslationIsFinishedAndMadeOnce()
    {
        QCOMPARE(keys(english_).size(), english_.size());
        for (const auto& text : qAsConst(english_)) {
            QVERIFY2(text.isFinished, qPrintable(key(text)));
            QVERIFY2(!text.forms.isEmpty() && !text.forms.contains(""), qPrintable(key(text)));
        }
    }

    void noLetterAndNoWordStaysFrench()
    {
        static const QRegularExpression letters("[àâçéèêëîïôùûüœÀÂÇÉÈÊ]");
        QSet<QString> french;
        QVector<TranslatedText> tills;
        for (const auto& text : qAsConst(english_)) {
            QVERIFY2(!text.forms.join("").contains(letters), qPrintable(key(text)));
            if (text.context.startsWith("FormVendel")) {
                tills << text;
                french += wordsOf(text.source);
            }
        }
        QVERIFY(french.size() > 100);
        french -= equalWords;
        for (const auto& text : qAsConst(tills)) {
            QVERIFY2((wordsOf(text.forms.join(' ')) & french).isEmpty(), qPrintable(key(text)));
        }
    }

    void numbersHaveBothPluralForms()
    {
        int plurals = 0;
        for (const auto& text : qAsConst(english_)) {
            const bool counts = text.source.contains("%n");
            QVERIFY2(text.hasPlural == counts, qPrintable(key(text)));
            QVERIFY2(text.forms.size() == (counts ? 2 : 1), qPrintable(key(text)));
            for (const QString& form : text.forms) {
                QVERIFY2(form.contains("%n") == counts, qPrintable(form));
            }
            plurals += counts ? 1 : 0;
        }
        QCOMPARE(plurals, 2);
    }

    void lineBreaksBlanksAndPlacesStayWhereTheyAre()
    {
        for (const auto& text : qAsConst(english_)) {
            for (const QString& form : text.forms) {
                for (const char* piece : {"\n", "%1", "%2", "%3", "%4"}) {
                    QVERIFY2(form.count(piece) == text.source.count(piece), qPrintable(form));
                }
                for (const char* edge : {"\n", " "}) {
                    const bool isOfQt = text.context != catalogueContext && *edge == ' ';
                    QVERIFY2(isOfQt || form.startsWith(edge) == text.source.startsWith(edge),
                        qPrintable(form));
                    QVERIFY2(isOfQt || form.endsWith(edge) == text.source.endsWith(edge),
                        qPrintable(form));
                }
            }
        }
    }

    void receiptsKeepTheirColumnsAndTitleLines()
    {
        QHash<QString, QString> english;
        for (const auto& text : qAsConst(english_)) {
            if (text.context == catalogueContext) {
                english[text.source] = text.forms.join('|');
            }
        }
        QCOMPARE(english["titre:"], QString("titre:"));
        QCOMPARE(english["Qtité  "], QString("Qty    "));
        QCOMPARE(english["Produit"], QString("Product"));
        QCOMPARE(english["Prix U"], QString("Unit price"));
        QCOMPARE(english["Prix * Qtité"], QString("Price * Qty"));
        QCOMPARE(english["Total ticket"], QString("Ticket total"));
        QCOMPARE(english["TVA "], QString("VAT "));
        QCOMPARE(english["TOTAL "], QString("TOTAL "));
    }

    void qtsOwnTextsAreEnglishAgain()
    {
        for (const auto& text : qAsConst(english_)) {
            if (qtContexts.contains(text.context)) {
                const bool isDirection = text.source == "QT_LAYOUT_DIRECTION";
                QCOMPARE(text.forms, QStringList(isDirection ? "LTR" : text.source));
            }
        }
    }

    void noTextOfQtsContextsStaysFrench()
    {
        const auto translated = keys(english_);
        QSet<QString> contexts;
        for (const auto& text : qAsConst(qtFrench_)) {
            if (qtContexts.contains(text.context)) {
                contexts << text.context;
                QVERIFY2(translated.contains(key(text)), qPrintable(key(text)));
            }
        }
        QCOMPARE(contexts.size(), qtContexts.size());
    }

    void theTillFindsItsEnglish()
    {
        const Texts catalogue{"FormVendelMessages"};
        QCOMPARE(Texts{"FormVendel"}(Messages::Messages89[0]), QString("Pay"));
        QCOMPARE(catalogue(Messages::Messages0[0]), QString("The ticket is empty"));
        QCOMPARE(catalogue(Messages::Messages101[0]), QString("."));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "&Yes"), QString("&Yes"));
        QCOMPARE(QCoreApplication::translate("QLineEdit", "&Paste"), QString("&Paste"));
    }

    void theTillCountsInEnglish()
    {
        const Texts texts{"FormVendelSaisieArticleMessages"};
        QCOMPARE(texts(Messages::Messages23[0], 1), QString("Delete the 1 duplicate marked X..."));
        QCOMPARE(texts(Messages::Messages23[0], 2), QString("Delete the 2 duplicates marked X..."));
        QCOMPARE(texts(Messages::Messages26[0], 7),
            QString("Delete the 7 duplicates marked X...\nGo to the menu Vendel Item Entry"));
    }

private:
    QStringList catalogue_;
    QVector<TranslatedText> english_;
    /// What the code translates beside the catalogue, and the captions of the forms.
    QVector<TranslatedText> designer_;
    QVector<TranslatedText> captions_;
    QVector<TranslatedText> qtFrench_;
};

VENDEL_TEST(TestTranslation)
#include "tst_Translation.moc"
