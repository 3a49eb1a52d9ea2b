// SPDX-License-Identifier: MIT
#include "backoffice/output/Ink.h"
#include "tests/support/TestProgram.h"

namespace {
int grey(const QColor& colour) { return qGray(colour.rgb()); }
} // namespace

class GestionInk : public QObject
{
    Q_OBJECT

private slots:
    void neighbouringBarsDifferWithoutColours()
    {
        QPalette dark;
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        for (const Ink& ink : {Ink::onPaper(12), Ink::onScreen(dark, QFont())}) {
            for (std::size_t series = 0; series < 3; ++series) {
                QVERIFY(std::abs(grey(ink.bars(series)) - grey(ink.bars(series + 1))) >= 40);
            }
            // And the line from the bars below it, and from the paper.
            QVERIFY(std::abs(grey(ink.bars(0)) - grey(ink.line())) >= 80);
            QVERIFY(std::abs(grey(ink.background) - grey(ink.line())) >= 200);
        }
    }

    void moreIsDarker()
    {
        int before = 256;
        for (int step = 0; step <= 10; ++step) {
            const int now = grey(Ink::heat(step / 10.0));
            QVERIFY(now < before);
            before = now;
        }
    }

    void numbersCanBeReadOnEveryField()
    {
        for (int step = 0; step <= 20; ++step) {
            const QColor field = Ink::heat(step / 20.0);
            QVERIFY(std::abs(grey(Ink::textOn(field)) - grey(field)) >= 90);
        }
    }
};

VENDEL_BARE_TEST(GestionInk)
#include "tst_GestionInk.moc"
