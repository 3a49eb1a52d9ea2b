// SPDX-License-Identifier: MIT
#include "backoffice/output/Ink.h"
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <cmath>

namespace {
int grey(const QColor& colour) { return qGray(colour.rgb()); }

/// How much light \a colour gives off, from 0 to 1.
double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

/// 1 for the same, 21 for black on white; small letters need 4.5.
double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}
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
            QVERIFY2(contrast(Ink::textOn(field), field) >= 4.5, qPrintable(field.name()));
        }
    }
};

VENDEL_BARE_TEST(GestionInk)
#include "tst_GestionInk.moc"
