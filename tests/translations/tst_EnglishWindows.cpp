// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"
#include "tests/translations/EveryWindow.h"
#include "tests/translations/ShownTexts.h"
#include "tests/translations/WindowTexts.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTextEdit>

#include <memory>

namespace {
/// What is the same in both languages, and what no language changes.
const QSet<QString> equalWords{"Ticket", "Menu", "Config", "Total", "TOTAL", "Vendel", "X", "Id",
    "Date", "Options", "Stock", "Composition", "Dose", "Conversion", "Purge", "cl", "g", "Epson",
    "TM", "T20II", "ON", "OFF", "OK", "Dialog", "Version", "MIT", "Page", "Plus", "bar"};

QStringList wordsOf(const QString& text)
{
    static const QRegularExpression word("\\p{L}[\\p{L}\\d]*");
    QStringList words;
    auto matches = word.globalMatch(text);
    while (matches.hasNext()) {
        words << matches.next().captured();
    }
    return words;
}

QStringList frenchWordsOfRow()
{
    const InFrench french;
    QStringList words;
    const auto texts = textsOfRow();
    for (const ShownText& text : texts) {
        words << wordsOf(text.text);
    }
    return words;
}
} // namespace

class TestEnglishWindows : public QObject
{
    Q_OBJECT

private slots:
    void noWindowStillShowsFrench_data() { eachWindow(); }

    void noWindowStillShowsFrench()
    {
        const QStringList french = frenchWordsOfRow();
        QVERIFY(!french.isEmpty());
        QStringList left;
        const auto texts = textsOfRow();
        for (const ShownText& text : texts) {
            const auto words = wordsOf(text.text);
            for (const QString& word : words) {
                if (french.contains(word) && !equalWords.contains(word)) {
                    left << text.place + ": " + word;
                }
            }
        }
        QVERIFY2(left.isEmpty(), qPrintable(left.join('\n')));
    }

    void aWidgetThatIsTooSmallLacksPixels()
    {
        const QString text = "The ticket is empty";
        QLabel label(text);
        QPushButton button(text);
        QCheckBox check(text);
        QGroupBox group(text);
        QComboBox box;
        box.addItem(text);
        for (QWidget* widget :
            std::initializer_list<QWidget*>{&label, &button, &check, &group, &box}) {
            widget->resize(400, 40);
            const char* kind = widget->metaObject()->className();
            QVERIFY2(shownTexts(*widget).constFirst().missing <= 0, kind);
            widget->resize(40, 40);
            QVERIFY2(shownTexts(*widget).constFirst().missing > 0, kind);
        }
        label.resize(400, 5);
        QVERIFY(shownTexts(label).constFirst().missing > 0);
    }

    void noTextIsClipped_data() { eachWindow(); }

    void noTextIsClipped() { QCOMPARE(clippedTexts(), QString()); }

    void noFrenchTextIsClipped_data() { eachWindow(); }

    void noFrenchTextIsClipped()
    {
        const InFrench french;
        QCOMPARE(clippedTexts(), QString());
    }

    void nothingIsBeyondTheEdge_data() { eachWindow(); }

    void nothingIsBeyondTheEdge()
    {
        const NumberedShop shop;
        QWidget opener;
        const auto window = openWindowOfRow(opener);
        QVERIFY(window->rect().contains(window->childrenRect()));
    }

    void everyFieldHasAName_data() { eachWindow(); }

    void everyFieldHasAName()
    {
        const NumberedShop shop;
        QWidget opener;
        const auto window = openWindowOfRow(opener);
        QStringList nameless;
        const auto widgets = window->findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            const bool isField = qobject_cast<QLineEdit*>(widget) != nullptr
                || qobject_cast<QComboBox*>(widget) != nullptr;
            const auto* interface = QAccessible::queryAccessibleInterface(widget);
            if (isField && interface->text(QAccessible::Name).isEmpty()) {
                nameless << widget->objectName();
            }
        }
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join('\n')));
    }

    void boxesHaveEnglishButtons()
    {
        QMessageBox box(QMessageBox::Information, "", "",
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Ok | QMessageBox::Cancel
                | QMessageBox::Close | QMessageBox::Save);
        const auto caption
            = [&](QMessageBox::StandardButton button) { return box.button(button)->text(); };
        QCOMPARE(caption(QMessageBox::Yes), QString("&Yes"));
        QCOMPARE(caption(QMessageBox::No), QString("&No"));
        QCOMPARE(caption(QMessageBox::Ok), QString("OK"));
        QCOMPARE(caption(QMessageBox::Cancel), QString("Cancel"));
        QCOMPARE(caption(QMessageBox::Close), QString("Close"));
        QCOMPARE(caption(QMessageBox::Save), QString("Save"));

        const InFrench french;
        const QMessageBox frenchBox(QMessageBox::Information, "", "", QMessageBox::Yes);
        QCOMPARE(frenchBox.button(QMessageBox::Yes)->text(), QString("&Oui"));
    }

    void editMenusAreEnglish()
    {
        const auto labelsOf = [](const QMenu& menu) {
            QStringList labels;
            const auto actions = menu.actions();
            for (const QAction* action : actions) {
                if (!action->isSeparator()) {
                    labels << action->text().section('\t', 0, 0).remove('&');
                }
            }
            return labels;
        };
        const QStringList english{"Undo", "Redo", "Cut", "Copy", "Paste", "Delete", "Select All"};
        QLineEdit line;
        QCOMPARE(labelsOf(*std::unique_ptr<QMenu>(line.createStandardContextMenu())), english);
        QTextEdit text;
        QCOMPARE(labelsOf(*std::unique_ptr<QMenu>(text.createStandardContextMenu())), english);
    }
};

VENDEL_TEST(TestEnglishWindows)
#include "tst_EnglishWindows.moc"
