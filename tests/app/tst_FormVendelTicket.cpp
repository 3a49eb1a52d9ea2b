// SPDX-License-Identifier: MIT
#include "app/FormVendelTicket.h"
#include "app/Payment.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"
#include "widgets/OpenWindow.h"

#include <QFontInfo>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

namespace {
QTextEdit& receiptOf(FormVendelTicket& window)
{
    return child<QTextEdit>(window, "txt_Ticket");
}

/// The first line that begins with \a start.
QTextBlock lineStarting(const QTextEdit& edit, const QString& start)
{
    QTextBlock block = edit.document()->begin();
    while (block.isValid() && !block.text().startsWith(start)) {
        block = block.next();
    }
    return block;
}

QFont fontOf(const QTextBlock& block)
{
    return block.begin().fragment().charFormat().font();
}

/// Where the character at \a column of a line stands, in pixels from the line's start.
double xOf(const QTextBlock& block, int column)
{
    const QTextLine line = block.layout()->lineAt(0);
    return line.cursorToX(column) - line.cursorToX(0);
}

void prepare(const Shop& shop)
{
    shop.sql("update Config set valeur = 20 where param = 'TVA'");
    writeHeader(shop, "titre:Chez Paul\n12 rue X");
    writeFooter(shop, "Merci ; \xc3\xa0 bient\xc3\xb4t");
    putOnTicket(shop, "Thé; citron", "2.5");
    putOnTicket(shop, "Thé; citron", "2.5");
    putOnTicket(shop, "Croque-monsieur", "5");
}

const QLatin1String lineOf48("123456789012345678901234567890123456789012345678");
} // namespace

class TestFormVendelTicket : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheReceiptsWindow()
    {
        const Shop shop;
        CapturedLog log;
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        QVERIFY(qobject_cast<QDialog*>(&window) != nullptr);
        QCOMPARE(window.windowTitle(), QString("Impression Ticket"));
        QCOMPARE(window.size(), QSize(477, 414));
        QCOMPARE(window.minimumSize(), QSize(477, 414));
        QCOMPARE(window.maximumSize(), QSize(477, 414));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(window.parent(), &opener);
        QVERIFY(receiptOf(window).isReadOnly());
        QCOMPARE(window.findChildren<QTextEdit*>().size(), 1);
        QCOMPARE(log.warnings(), QStringList());
    }

    void showsWhatThePrinterPrints()
    {
        const Shop shop;
        prepare(shop);
        QWidget opener;
        const QDateTime before = QDateTime::currentDateTime();
        FormVendelTicket window(Payment::receipt(), &opener);
        const QDateTime after = QDateTime::currentDateTime();
        QStringList lines = receiptOf(window).toPlainText().split('\n');
        const QStringList expected{QString("Chez Paul"),
            QString("                   12 rue X                   "), QString(), QString(),
            QString("Produit\t\t\t     "), QString(),
            QString("Qtité  Article\t\tPrix U   Prix * Qtité"), QString(),
            QString("1  Croque-monsieur\t$5.00       $5.00"),
            QString("2  Thé; citron   \t$2.50       $5.00"), QString(),
            QString("->  Total ticket\t\t    $10.00"), QString("->  TVA 20.00%\t\t\t    $2.01"),
            QString("------------------------------------------------"),
            QString("->  TOTAL \t    $12.01"), QString(),
            QString("              Merci ; à bientôt              "), QString()};
        QVERIFY(lines.size() > 4);
        const QDateTime shown
            = QDateTime::fromString(lines.at(4).right(19), QString("dd/MM/yyyy hh:mm:ss"));
        QVERIFY(shown >= before.addSecs(-1) && shown <= after);
        lines[4].chop(19);
        QCOMPARE(lines, expected);
    }

    void isReadFromTheTop()
    {
        const Shop shop;
        prepare(shop);
        writeHeader(shop, QByteArray("a\n").repeated(40));
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(receiptOf(window).verticalScrollBar()->maximum() > 0);
        QCOMPARE(receiptOf(window).verticalScrollBar()->value(), 0);
    }

    void writesBlackOnWhite()
    {
        const Shop shop;
        prepare(shop);
        QWidget opener;
        QPalette dark = opener.palette();
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        opener.setPalette(dark);
        FormVendelTicket window(Payment::receipt(), &opener);
        const auto& edit = receiptOf(window);
        for (QTextBlock line = edit.document()->begin(); line.isValid(); line = line.next()) {
            for (auto piece = line.begin(); !piece.atEnd(); ++piece) {
                QCOMPARE(piece.fragment().charFormat().foreground(), QBrush(Qt::black));
            }
        }
        const QImage image = window.grab().toImage();
        const QPoint corner = edit.geometry().topLeft() + QPoint(4, 4);
        QCOMPARE(image.pixelColor(corner), QColor(Qt::white));
    }

    void writesTwelvePointsInAFixedPitch()
    {
        const Shop shop;
        prepare(shop);
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        const auto& edit = receiptOf(window);
        QCOMPARE(edit.font().pointSize(), 12);
        const QFont font = fontOf(lineStarting(edit, QString("Produit")));
        QCOMPARE(font.pointSize(), 12);
        QVERIFY(QFontInfo(font).fixedPitch());
        const QFontMetricsF metrics(font);
        QCOMPARE(metrics.horizontalAdvance('i'), metrics.horizontalAdvance('M'));
    }

    void fortyEightColumnsFitBesideTheScrollBar()
    {
        const Shop shop;
        prepare(shop);
        const QByteArray line48 = QByteArray(lineOf48.data(), lineOf48.size());
        writeHeader(shop, (line48 + '\n').repeated(60));
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto& edit = receiptOf(window);
        QVERIFY(edit.verticalScrollBar()->isVisible());
        for (const QString& start : {QString(lineOf48), QString(48, '-')}) {
            const QTextBlock block = lineStarting(edit, start);
            QCOMPARE(block.layout()->lineCount(), 1);
            const double left = block.layout()->position().x();
            QVERIFY(left >= 0);
            QVERIFY(
                left + block.layout()->lineAt(0).naturalTextWidth() <= edit.viewport()->width());
        }
    }

    void nothingIsWiderThanTheWindow()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 20 where param = 'TVA'");
        putOnTicket(shop, "Repas de quartier", "999.99");
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto& edit = receiptOf(window);
        QVERIFY(!edit.horizontalScrollBar()->isVisible());
        // The widest total: above a thousand there is none.
        const QTextBlock total = lineStarting(edit, QString("->  TOTAL"));
        QCOMPARE(total.text(), QString("->  TOTAL \t    $1,199.99"));
        for (QTextBlock line = edit.document()->begin(); line.isValid(); line = line.next()) {
            QCOMPARE(line.layout()->lineCount(), 1);
            const double right = line.layout()->position().x()
                + line.layout()->lineAt(0).naturalTextRect().right();
            QVERIFY2(right <= edit.viewport()->width(), qPrintable(line.text()));
        }
    }

    void columnsStandUnderEachOther()
    {
        const Shop shop;
        prepare(shop);
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto& edit = receiptOf(window);
        const auto column = [&](const char* start, const char* text) {
            const QTextBlock block = lineStarting(edit, QString::fromUtf8(start));
            return xOf(block, int(block.text().indexOf(QString::fromUtf8(text))));
        };
        const double width = xOf(lineStarting(edit, QString("---")), 1);
        QCOMPARE(column("Qtité", "Prix U"), 24 * width);
        QCOMPARE(column("1  Croque", "$5.00"), 24 * width);
        QCOMPARE(column("2  Thé", "$2.50"), 24 * width);
        QCOMPARE(column("1  Croque", "$5.00"), 24 * width);
        QCOMPARE(column("2  Thé", "$5.00"), 36 * width);
        QCOMPARE(column("->  Total", "$10.00"), 36 * width);
        QCOMPARE(column("->  TVA", "$2.01"), 36 * width);
    }

    void aTitleIsBigBoldAndCentredOverThePaper()
    {
        const Shop shop;
        prepare(shop);
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto& edit = receiptOf(window);
        const QTextBlock title = lineStarting(edit, QString("Chez Paul"));
        QCOMPARE(fontOf(title).pointSize(), 24);
        QVERIFY(fontOf(title).bold());
        const auto middle = [](const QTextBlock& block) {
            return block.layout()->position().x()
                + block.layout()->lineAt(0).naturalTextRect().center().x();
        };
        const QTextBlock rule = lineStarting(edit, QString("---"));
        QVERIFY(qAbs(middle(title) - middle(rule)) <= 1);
    }

    void theHeaderIsBoldAndTheFooterIsNot()
    {
        const Shop shop;
        prepare(shop);
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        const auto& edit = receiptOf(window);
        QVERIFY(fontOf(lineStarting(edit, QString("                   12"))).bold());
        QVERIFY(!fontOf(lineStarting(edit, QString("              Merci"))).bold());
        QVERIFY(!fontOf(lineStarting(edit, QString("->  Total ticket"))).bold());
    }

    void theTotalIsBoldAndTwiceAsWide()
    {
        const Shop shop;
        prepare(shop);
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto& edit = receiptOf(window);
        const QTextBlock total = lineStarting(edit, QString("->  TOTAL"));
        QVERIFY(fontOf(total).bold());
        const double width = xOf(lineStarting(edit, QString("---")), 1);
        QVERIFY(qAbs(xOf(total, 10) - 20 * width) < 1);
        // The tab stops stay where they are.
        QCOMPARE(xOf(total, 11), 24 * width);
        QVERIFY(qAbs(xOf(total, int(total.text().size())) - 44 * width) < 1);
    }

    void aLongNameIsWrappedAndNotLost()
    {
        const Shop shop;
        const QByteArray name(10'000, 'x');
        putOnTicket(shop, name.constData(), "1");
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto& edit = receiptOf(window);
        const QTextBlock item = lineStarting(edit, QString("1  xxx"));
        QCOMPARE(item.text().count('x'), 10'000);
        // 10,003 characters in lines of 48.
        QCOMPARE(item.layout()->lineCount(), 209);
        QVERIFY(!edit.horizontalScrollBar()->isVisible());
    }

    void aTextLikeHtmlIsShownAsText()
    {
        const Shop shop;
        writeHeader(shop, "<b>Chez</b>\n;;_ _");
        putOnTicket(shop, "<h1>Eau</h1>", "1");
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        const QString text = receiptOf(window).toPlainText();
        QVERIFY(text.startsWith(QString("                  <b>Chez</b>                  \n"
                                        "                     ;;_ _                     \n")));
        QVERIFY(text.contains(QString("\n1  <h1>Eau</h1>   \t$1.00       $1.00\n")));
    }

    void aCharacterThatThePrinterLacksIsShown()
    {
        const Shop shop;
        putOnTicket(shop, "c\xc5\x93ur \xf0\x9f\x8d\xba", "1");
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        // Eleven bytes in seven characters (the last in two halves) and four blanks.
        const QString text = receiptOf(window).toPlainText();
        QVERIFY2(text.contains(QString::fromUtf8("\n1  c\xc5\x93ur \xf0\x9f\x8d\xba     \t$1.00")),
            qPrintable(text));
    }

    void carriageReturnsAreNotShown()
    {
        const Shop shop;
        writeHeader(shop, "ab\r\ntitre:Paul\r\n");
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        QVERIFY(receiptOf(window).toPlainText().startsWith(
            QString("                      ab                      \nPaul\n")));
    }

    void aHeaderOfAMegabyteIsShownWhole()
    {
        const Shop shop;
        writeHeader(shop, QByteArray("titre:Paul\n").repeated(90'000));
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(receiptOf(window).toPlainText().count(QString("Paul\n")), 90'000);
    }

    void isDeletedWhenItIsClosed()
    {
        const Shop shop;
        QWidget opener;
        for (const bool byKey : {true, false}) {
            openWindow<FormVendelTicket>(&opener, Receipt());
            const QPointer<FormVendelTicket> window = opener.findChild<FormVendelTicket*>();
            QVERIFY(window != nullptr && window->isVisible());
            if (byKey) {
                QTest::keyClick(window, Qt::Key_Escape);
            } else {
                window->close();
            }
            QTRY_VERIFY(window.isNull());
        }
    }
};

VENDEL_TEST(TestFormVendelTicket)
#include "tst_FormVendelTicket.moc"
