// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "common/Texts.h"
#include "tests/support/TestProgram.h"
#include "tests/translations/TranslationFile.h"
#include "widgets/QtNames.h"

#include <QDir>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

namespace {
const QString catalogueContext = QString("FormVendelMessages");

/// Contexts of Qt whose texts a user of the till can meet: buttons of boxes, edit menus, keys,
/// what a screen reader says, errors of files.
const QStringList qtContexts{QString("QAbstractSpinBox"), QString("QAccessibleActionInterface"),
    QString("QApplication"), QString("QComboBox"), QString("QCoreApplication"), QString("QDialog"),
    QString("QDialogButtonBox"), QString("QErrorMessage"), QString("QFile"), QString("QFileDevice"),
    QString("QGnomeTheme"), QString("QGuiApplication"), QString("QIODevice"),
    QString("QImageReader"), QString("QLineEdit"), QString("QMessageBox"),
    QString("QPlatformTheme"), QString("QSaveFile"), QString("QScrollBar"), QString("QShortcut"),
    QString("QSpiAccessibleBridge"), QString("QTabBar"), QString("QUnicodeControlCharacterMenu"),
    QString("QWhatsThisAction"), QString("QWidget"), QString("QWidgetTextControl")};

const QString source = QString(VENDEL_SOURCE "/");

void runTool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    QVERIFY2(process.waitForFinished() && process.exitCode() == 0,
        qPrintable(program + QLatin1String(process.readAllStandardError())));
}

QString key(const TranslatedText& text)
{
    return text.context + '\n' + text.source;
}

QSet<QString> keys(const QVector<TranslatedText>& texts)
{
    QSet<QString> all;
    for (const auto& text : texts) {
        all << key(text);
    }
    return all;
}

/// Words of the till in French that are the same in English, or that no language changes.
const QSet<QString>& equalWords()
{
    static const QSet<QString> words{QString("Click"), QString("Composition"),
        QString("composition"), QString("Config"), QString("Conversion"), QString("Date"),
        QString("date"), QString("Dialog"), QString("Dose"), QString("dose"), QString("Epson"),
        QString("Id"), QString("id"), QString("II"), QString("MIT"), QString("Menu"),
        QString("menu"), QString("OFF"), QString("ON"), QString("Options"), QString("Page"),
        QString("Purge"), QString("Stock"), QString("TM"), QString("TOTAL"), QString("Ticket"),
        QString("ticket"), QString("Total"), QString("Vendel"), QString("Version"), QString("cl"),
        QString("list"), QString("MM"), QString("dd"), QString("yyyy"), QString("titre")};
    return words;
}

/// The words of two letters and more in \a text, without those of its HTML.
QSet<QString> wordsOf(QString text)
{
    static const QRegularExpression tag(QString("<[^>]*>"));
    static const QRegularExpression word(QString("\\p{L}{2,}"));
    QSet<QString> words;
    auto matches = word.globalMatch(text.replace(tag, QString(" ")));
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
        const QString designer = folder.filePath(QString("designer.ts"));
        runTool(QString(VENDEL_LUPDATE),
            {QString("-silent"), source + QLatin1String("app"), source + QLatin1String("forms"),
                source + QLatin1String("common"), QString("-ts"), designer});
        const QString qtFrench = folder.filePath(QString("qt.ts"));
        runTool(QString(VENDEL_LCONVERT),
            {QtNames::translationsFolder() + QLatin1String("/qtbase_fr.qm"), QString("-o"),
                qtFrench});

        catalogue_ = readCatalogue(source + QLatin1String("common/Messages.cpp"));
        catalogue_.removeAll(QString());
        english_ = readTranslation(source + QLatin1String("translations/FormVendelTr_Us.ts"));
        designer_ = readTranslation(designer);
        for (const char* place : {"app", "forms"}) {
            const QDir forms(source + QLatin1String(place));
            const auto names = forms.entryList({QString("*.ui")});
            for (const QString& name : names) {
                captions_ += readCaptions(forms.filePath(name));
            }
        }
        qtFrench_ = readTranslation(qtFrench);
    }

    void theCatalogueIsReadWhole()
    {
        QVERIFY(catalogue_.size() >= 250);
        QVERIFY(catalogue_.contains(QString("+/-")));
        QVERIFY(catalogue_.contains(
            QString("Composition est vide\nAller dans le menu Stock Saisie Stock\n"
                    "DoubleClick sur article et composez")));
        QVERIFY(!catalogue_.join(QString()).contains('\\'));
    }

    void everyCatalogueTextIsTranslated()
    {
        const auto translated = keys(found(catalogueContext));
        for (const QString& text : qAsConst(catalogue_)) {
            QVERIFY2(translated.contains(catalogueContext + '\n' + text), qPrintable(text));
        }
    }

    void everyDesignerTextIsTranslated()
    {
        const auto translated = keys(english_);
        QVERIFY(!designer_.isEmpty());
        for (const auto& text : qAsConst(designer_)) {
            QVERIFY2(translated.contains(key(text)), qPrintable(key(text)));
        }
    }

    void everyCaptionIsInTheCatalogueOrTranslatedForItsWindow()
    {
        // Filled in by the window, or the same in every language.
        const QStringList others{QString(), QString("DateTime")};
        static const QRegularExpression keypad(QString("^[0-9+-]$"));
        const auto translated = keys(english_);
        QVERIFY(captions_.size() > 80);
        for (const auto& caption : qAsConst(captions_)) {
            QVERIFY2(catalogue_.contains(caption.source) || others.contains(caption.source)
                    || caption.source.contains(keypad) || translated.contains(key(caption)),
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

    void noTextIsTranslatedTwice()
    {
        QCOMPARE(keys(english_).size(), english_.size());
    }

    void everyTranslationIsFinished()
    {
        for (const auto& text : qAsConst(english_)) {
            QVERIFY2(text.isFinished, qPrintable(key(text)));
            QVERIFY2(
                !text.forms.isEmpty() && !text.forms.contains(QString()), qPrintable(key(text)));
        }
    }

    void noTranslationHasFrenchLetters()
    {
        static const QRegularExpression french(QString("[àâçéèêëîïôùûüœÀÂÇÉÈÊ]"));
        for (const auto& text : qAsConst(english_)) {
            QVERIFY2(!text.forms.join(QString()).contains(french), qPrintable(key(text)));
        }
    }

    void noWordStaysFrench()
    {
        QSet<QString> french;
        QVector<TranslatedText> tills;
        for (const auto& text : qAsConst(english_)) {
            if (text.context.startsWith(QLatin1String("FormVendel"))) {
                tills << text;
                french += wordsOf(text.source);
            }
        }
        QVERIFY(french.size() > 100);
        french -= equalWords();
        for (const auto& text : qAsConst(tills)) {
            const QSet<QString> left = wordsOf(text.forms.join(' ')) & french;
            QVERIFY2(left.isEmpty(), qPrintable(key(text)));
        }
    }

    void numbersHaveBothPluralForms()
    {
        int plurals = 0;
        for (const auto& text : qAsConst(english_)) {
            const bool counts = text.source.contains(QLatin1String("%n"));
            QVERIFY2(text.hasPlural == counts, qPrintable(key(text)));
            QVERIFY2(text.forms.size() == (counts ? 2 : 1), qPrintable(key(text)));
            for (const QString& form : text.forms) {
                QVERIFY2(form.contains(QLatin1String("%n")) == counts, qPrintable(form));
            }
            plurals += counts ? 1 : 0;
        }
        QCOMPARE(plurals, 2);
    }

    void lineBreaksStayWhereTheyAre()
    {
        const QLatin1Char lineBreak('\n');
        for (const auto& text : qAsConst(english_)) {
            for (const QString& form : text.forms) {
                QVERIFY2(form.count(lineBreak) == text.source.count(lineBreak), qPrintable(form));
                QVERIFY2(form.startsWith(lineBreak) == text.source.startsWith(lineBreak),
                    qPrintable(form));
                QVERIFY2(
                    form.endsWith(lineBreak) == text.source.endsWith(lineBreak), qPrintable(form));
            }
        }
    }

    void blanksAroundATextStay()
    {
        const QLatin1Char blank(' ');
        const auto texts = found(catalogueContext);
        for (const auto& text : texts) {
            for (const QString& form : text.forms) {
                QVERIFY2(form.startsWith(blank) == text.source.startsWith(blank), qPrintable(form));
                QVERIFY2(form.endsWith(blank) == text.source.endsWith(blank), qPrintable(form));
            }
        }
    }

    void placesOfInsertedTextsStay()
    {
        for (const auto& text : qAsConst(english_)) {
            for (const char* place : {"%1", "%2", "%3", "%4"}) {
                for (const QString& form : text.forms) {
                    QVERIFY2(
                        form.count(QLatin1String(place)) == text.source.count(QLatin1String(place)),
                        qPrintable(form));
                }
            }
        }
    }

    void theMarkOfATitleLineStays()
    {
        const auto texts = found(catalogueContext);
        for (const auto& text : texts) {
            if (text.source == QLatin1String("titre:")) {
                QCOMPARE(text.forms, QStringList{QString("titre:")});
                return;
            }
        }
        QFAIL("titre:");
    }

    void receiptHeadingsKeepTheirColumns()
    {
        QHash<QString, QString> headings;
        const auto texts = found(catalogueContext);
        for (const auto& text : texts) {
            headings[text.source] = text.forms.first();
        }
        QCOMPARE(headings[QString("Qtité  ")], QString("Qty    "));
        QCOMPARE(headings[QString("Produit")], QString("Product"));
        QCOMPARE(headings[QString("Prix U")], QString("Unit price"));
        QCOMPARE(headings[QString("Prix * Qtité")], QString("Price * Qty"));
        QCOMPARE(headings[QString("Total ticket")], QString("Ticket total"));
        QCOMPARE(headings[QString("TVA ")], QString("VAT "));
        QCOMPARE(headings[QString("TOTAL ")], QString("TOTAL "));
    }

    void qtsOwnTextsAreEnglishAgain()
    {
        for (const auto& text : qAsConst(english_)) {
            if (!qtContexts.contains(text.context)) {
                continue;
            }
            const QString expected = text.source == QLatin1String("QT_LAYOUT_DIRECTION")
                ? QString("LTR")
                : text.source;
            QCOMPARE(text.forms, QStringList{expected});
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
        QCOMPARE(Texts{"FormVendel"}(Messages::Messages89[0]), QString("Pay"));
        QCOMPARE(
            Texts{"FormVendelMessages"}(Messages::Messages0[0]), QString("The ticket is empty"));
        QCOMPARE(Texts{"FormVendelMessages"}(Messages::Messages101[0]), QString("."));
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
    QVector<TranslatedText> found(const QString& context) const
    {
        QVector<TranslatedText> texts;
        for (const auto& text : english_) {
            if (text.context == context) {
                texts << text;
            }
        }
        return texts;
    }

    QStringList catalogue_;
    QVector<TranslatedText> english_;
    /// What the code translates beside the catalogue, and the captions of the forms.
    QVector<TranslatedText> designer_;
    QVector<TranslatedText> captions_;
    QVector<TranslatedText> qtFrench_;
};

VENDEL_TEST(TestTranslation)
#include "tst_Translation.moc"
