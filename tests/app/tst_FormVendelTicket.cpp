// SPDX-License-Identifier: MIT
#include "app/FormVendelTicket.h"
#include "app/Payment.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"
#include "widgets/OpenWindow.h"
#include "widgets/SmallScreen.h"

#include <QFontInfo>
#include <QPointer>
#include <QScrollBar>
#include <QShowEvent>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QtTest/qtestspontaneevent.h>

#include <optional>

namespace {
/// A shop with a receipt that shows what receipts have: a title, two articles, tax and a footer.
struct TicketShop : Shop
{
    TicketShop()
    {
        sql("update Config set valeur = 20 where param = 'TVA'");
        writeHeader(*this, "titre:Chez Paul\n12 rue X");
        writeFooter(*this, "Merci ; à bientôt");
        putOnTicket(*this, "Thé; citron", "2.5");
        putOnTicket(*this, "Thé; citron", "2.5");
        putOnTicket(*this, "Croque-monsieur", "5");
    }
};

/// The receipt of the shop's ticket on the screen.
struct ShownReceipt
{
    QWidget opener;
    FormVendelTicket window{Payment::receipt(), &opener};
    QTextEdit& edit{child<QTextEdit>(window, "txt_Ticket")};

    ShownReceipt()
    {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            qFatal("the receipt does not open");
        }
    }

    QString text() const { return edit.toPlainText(); }

    /// The first line that begins with \a start.
    QTextBlock line(const QString& start) const
    {
        QTextBlock block = edit.document()->begin();
        while (block.isValid() && !block.text().startsWith(start)) {
            block = block.next();
        }
        return block;
    }

    /// Whether the first line that begins with \a start is seen whole.
    bool isInView(const QString& start) const
    {
        QTextCursor cursor(line(start));
        return edit.viewport()->rect().contains(edit.cursorRect(cursor));
    }

    QFont font(const QString& start) const
    {
        return line(start).begin().fragment().charFormat().font();
    }

    /// The width of a character in pixels.
    double pitch() const { return x("---", 1); }

    /// Where the character at \a column of a line stands, in pixels from the line's start.
    double x(const QString& start, int column) const
    {
        const QTextLine first = line(start).layout()->lineAt(0);
        return first.cursorToX(column) - first.cursorToX(0);
    }

    /// The same of the first character of \a text.
    double x(const QString& start, const QString& text) const
    {
        return x(start, int(line(start).text().indexOf(text)));
    }
};

/// Where a line's middle and its end are, in pixels from the paper's edge.
double middle(const QTextBlock& line)
{
    return line.layout()->position().x() + line.layout()->lineAt(0).naturalTextRect().center().x();
}

double right(const QTextBlock& line)
{
    return line.layout()->position().x() + line.layout()->lineAt(0).naturalTextRect().right();
}
} // namespace

class TestFormVendelTicket : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheReceiptsWindow()
    {
        const Shop shop;
        const CapturedLog log;
        QWidget opener;
        FormVendelTicket window(Payment::receipt(), &opener);
        QVERIFY(qobject_cast<QDialog*>(&window) != nullptr);
        QCOMPARE(window.windowTitle(), QString("Impression Ticket"));
        QCOMPARE(window.size(), QSize(477, 414));
        QCOMPARE(window.minimumSize(), QSize(477, 414));
        QCOMPARE(window.maximumSize(), QSize(477, 414));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(window.parent(), &opener);
        QVERIFY(child<QTextEdit>(window, "txt_Ticket").isReadOnly());
        QCOMPARE(window.findChildren<QTextEdit*>().size(), 1);
        QCOMPARE(log.warnings(), QStringList());
    }

    void showsWhatThePrinterPrints()
    {
        const TicketShop shop;
        const QDateTime before = QDateTime::currentDateTime();
        const ShownReceipt receipt;
        const QDateTime after = QDateTime::currentDateTime();
        QStringList lines = receipt.text().split('\n');
        QVERIFY(lines.size() > 4);
        const auto shown = QDateTime::fromString(lines.at(4).right(19), "dd/MM/yyyy hh:mm:ss");
        QVERIFY(shown >= before.addSecs(-1) && shown <= after);
        lines[4].chop(19);
        QCOMPARE(lines,
            QStringList({"Chez Paul", "                   12 rue X                   ", "", "",
                "Produit\t\t\t     ", "", "Qtité  Article\t\tPrix U   Prix * Qtité", "",
                "1  Croque-monsieur\t$5.00       $5.00", "2  Thé; citron   \t$2.50       $5.00", "",
                "->  Total ticket\t\t    $10.00", "->  TVA 20.00%\t\t\t    $2.01",
                "------------------------------------------------", "->  TOTAL \t    $12.01", "",
                "              Merci ; à bientôt              ", ""}));
    }

    void writesBlackOnWhite()
    {
        const TicketShop shop;
        QWidget opener;
        QPalette dark = opener.palette();
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        opener.setPalette(dark);
        FormVendelTicket window(Payment::receipt(), &opener);
        const auto& edit = child<QTextEdit>(window, "txt_Ticket");
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
        const TicketShop shop;
        const ShownReceipt receipt;
        QCOMPARE(receipt.edit.font().pointSize(), 12);
        const QFont font = receipt.font("Produit");
        QCOMPARE(font.pointSize(), 12);
        QVERIFY(QFontInfo(font).fixedPitch());
        const QFontMetricsF metrics(font);
        QCOMPARE(metrics.horizontalAdvance('i'), metrics.horizontalAdvance('M'));
    }

    void fortyEightColumnsFitBesideTheScrollBar()
    {
        const TicketShop shop;
        const QByteArray line48 = "123456789012345678901234567890123456789012345678";
        writeHeader(shop, (line48 + '\n').repeated(60));
        const ShownReceipt receipt;
        QVERIFY(receipt.edit.verticalScrollBar()->isVisible());
        QVERIFY(receipt.edit.verticalScrollBar()->maximum() > 0);
        // Its total is at its end.
        QCOMPARE(
            receipt.edit.verticalScrollBar()->value(), receipt.edit.verticalScrollBar()->maximum());
        QVERIFY(receipt.isInView("->  TOTAL"));
        for (const QString& start : {QString(line48), QString(48, '-')}) {
            QCOMPARE(receipt.line(start).layout()->lineCount(), 1);
            QVERIFY(receipt.line(start).layout()->position().x() >= 0);
            QVERIFY(right(receipt.line(start)) <= receipt.edit.viewport()->width());
        }
    }

    void aLongReceiptIsOpenedAtItsEnd_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<QSize>("screen");
        QTest::newRow("forty lines") << 40 << QSize();
        QTest::newRow("forty lines on a small screen") << 40 << QSize(400, 300);
        QTest::newRow("more lines than Qt lays out at once") << 5000 << QSize();
        QTest::newRow("the same on a small screen") << 5000 << QSize(400, 300);
    }

    void aLongReceiptIsOpenedAtItsEnd()
    {
        QFETCH(const int, lines);
        QFETCH(const QSize, screen);
        const TicketShop shop;
        writeHeader(shop, QByteArray("12 rue X\n").repeated(lines));
        std::optional<SmallScreen> small;
        if (!screen.isEmpty()) {
            small.emplace(qApp, screen);
        }
        const ShownReceipt receipt;
        QCOMPARE(receipt.window.width() < 477, small.has_value());
        const QScrollBar& bar = *receipt.edit.verticalScrollBar();
        QVERIFY(bar.maximum() > lines);
        QCOMPARE(bar.value(), bar.maximum());
        QVERIFY(receipt.isInView("->  TOTAL"));
        QVERIFY(receipt.isInView("              Merci"));
        // It stays there.
        QCoreApplication::processEvents();
        QCOMPARE(bar.value(), bar.maximum());
    }

    void aReceiptThatFitsIsNotMoved()
    {
        const Shop shop;
        putOnTicket(shop, "Eau", "1");
        const ShownReceipt receipt;
        QCOMPARE(receipt.edit.verticalScrollBar()->maximum(), 0);
        QCOMPARE(receipt.edit.verticalScrollBar()->value(), 0);
        QVERIFY(receipt.isInView("Produit"));
        QVERIFY(receipt.isInView("->  TOTAL"));
    }

    void whoScrollsUpStaysThere()
    {
        const TicketShop shop;
        writeHeader(shop, QByteArray("12 rue X\n").repeated(40));
        ShownReceipt receipt;
        receipt.edit.verticalScrollBar()->setValue(0);
        // A show from the desktop, out of the task bar say.
        QShowEvent restored;
        QSpontaneKeyEvent::setSpontaneous(&restored);
        qApp->notify(&receipt.window, &restored);
        QCOMPARE(receipt.edit.verticalScrollBar()->value(), 0);
    }

    void nothingIsWiderThanTheWindow()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 20 where param = 'TVA'");
        putOnTicket(shop, "Repas de quartier", "999.99");
        const ShownReceipt receipt;
        QVERIFY(!receipt.edit.horizontalScrollBar()->isVisible());
        // The widest total: above a thousand there is none.
        const QTextBlock total = receipt.line("->  TOTAL");
        QCOMPARE(total.text(), QString("->  TOTAL \t    $1,199.99"));
        for (QTextBlock line = receipt.line(""); line.isValid(); line = line.next()) {
            QCOMPARE(line.layout()->lineCount(), 1);
            QVERIFY2(right(line) <= receipt.edit.viewport()->width(), qPrintable(line.text()));
        }
    }

    void columnsStandUnderEachOther()
    {
        const TicketShop shop;
        const ShownReceipt receipt;
        QCOMPARE(receipt.x("Qtité", "Prix U"), 24 * receipt.pitch());
        QCOMPARE(receipt.x("1  Croque", "$5.00"), 24 * receipt.pitch());
        QCOMPARE(receipt.x("2  Thé", "$2.50"), 24 * receipt.pitch());
        QCOMPARE(receipt.x("2  Thé", "$5.00"), 36 * receipt.pitch());
        QCOMPARE(receipt.x("->  Total", "$10.00"), 36 * receipt.pitch());
        QCOMPARE(receipt.x("->  TVA", "$2.01"), 36 * receipt.pitch());
        // The total's letters are twice as wide; the tab stops stay where they are.
        QVERIFY(qAbs(receipt.x("->  TOTAL", 10) - 20 * receipt.pitch()) < 1);
        QCOMPARE(receipt.x("->  TOTAL", "    $12.01"), 24 * receipt.pitch());
        const auto size = receipt.line("->  TOTAL").text().size();
        QVERIFY(qAbs(receipt.x("->  TOTAL", int(size)) - 44 * receipt.pitch()) < 1);
        // The title is centred over the paper.
        QVERIFY(qAbs(middle(receipt.line("Chez Paul")) - middle(receipt.line("---"))) <= 1);
    }

    void theTitleIsBigAndWhatMattersIsBold()
    {
        const TicketShop shop;
        const ShownReceipt receipt;
        QCOMPARE(receipt.font("Chez Paul").pointSize(), 24);
        for (const char* bold : {"Chez Paul", "                   12", "->  TOTAL"}) {
            QVERIFY2(receipt.font(bold).bold(), bold);
        }
        for (const char* plain : {"              Merci", "->  Total ticket"}) {
            QVERIFY2(!receipt.font(plain).bold(), plain);
        }
    }

    void aLongNameIsWrappedAndNotLost()
    {
        const Shop shop;
        putOnTicket(shop, QByteArray(10'000, 'x').constData(), "1");
        const ShownReceipt receipt;
        const QTextBlock item = receipt.line("1  xxx");
        QCOMPARE(item.text().count('x'), 10'000);
        // 10,003 characters in lines of 48.
        QCOMPARE(item.layout()->lineCount(), 209);
        QVERIFY(!receipt.edit.horizontalScrollBar()->isVisible());
    }

    void textsAreShownAsTheyAre_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<QByteArray>("article");
        QTest::addColumn<QString>("shown");
        const auto row
            = [](const char* name, QByteArray header, QByteArray article, const char* shown) {
                  QTest::newRow(name) << header << article << QString(shown);
              };
        row("a header like HTML", "<b>Chez</b>\n;;_ _", "Eau",
            "                  <b>Chez</b>                  \n"
            "                     ;;_ _                     \n");
        row("an article like HTML", "", "<h1>Eau</h1>",
            "\n1  <h1>Eau</h1>   \t$1.00       $1.00\n");
        // Eleven bytes in seven characters (the last in two halves) and four blanks.
        row("a character that the printer lacks", "", "cœur 🍺", "\n1  cœur 🍺     \t$1.00");
        row("carriage returns", "ab\r\ntitre:Paul\r\n", "Eau",
            "                      ab                      \nPaul\n");
    }

    void textsAreShownAsTheyAre()
    {
        QFETCH(QByteArray, header);
        QFETCH(QByteArray, article);
        QFETCH(QString, shown);
        const Shop shop;
        writeHeader(shop, header);
        putOnTicket(shop, article.constData(), "1");
        const ShownReceipt receipt;
        const bool isAtTheTop = !header.isEmpty();
        QVERIFY2(isAtTheTop ? receipt.text().startsWith(shown) : receipt.text().contains(shown),
            qPrintable(receipt.text()));
    }

    void aHeaderOfAMegabyteIsShownWhole()
    {
        const Shop shop;
        writeHeader(shop, QByteArray("titre:Paul\n").repeated(90'000));
        const ShownReceipt receipt;
        QCOMPARE(receipt.text().count("Paul\n"), 90'000);
    }

    void isDeletedWhenItIsClosed()
    {
        QWidget opener;
        for (const bool byKey : {true, false}) {
            openWindow<FormVendelTicket>(&opener, Receipt());
            const QPointer<FormVendelTicket> window = opener.findChild<FormVendelTicket*>();
            QVERIFY(window != nullptr && window->isVisible());
            byKey ? QTest::keyClick(window, Qt::Key_Escape) : void(window->close());
            QTRY_VERIFY(window.isNull());
        }
    }
};

VENDEL_TEST(TestFormVendelTicket)
#include "tst_FormVendelTicket.moc"
