// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Widgets.h"

#include <QHeaderView>
#include <QStringList>
#include <QTableView>
#include <QTest>

#include <vector>

/// The rows of the list \a name, cells parted by "|", those of hidden columns included.
inline QStringList rows(QWidget& window, const char* name)
{
    QStringList texts;
    for (int row = 0; row < rowCount(window, name); ++row) {
        texts << rowTexts(window, name, row).join('|');
    }
    return texts;
}

/// The column labels of \a view, hidden columns included.
inline QStringList labels(const QTableView& view)
{
    QStringList texts;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        texts << view.model()->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
}

/// The widths in pixels of the columns of \a view that are seen.
inline std::vector<int> widths(const QTableView& view)
{
    std::vector<int> pixels;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        if (!view.isColumnHidden(column)) {
            pixels.push_back(view.columnWidth(column));
        }
    }
    return pixels;
}

/// Fails the running test unless \a view looks and acts like every list of the till, with letters
/// of \a points and columns of \a wanted pixels, the \a hidden ones when they are shown.
inline void compareList(
    QTableView& view, int points, const std::vector<int>& wanted, const QString& hidden)
{
    QCOMPARE(view.font().pointSize(), points);
    QCOMPARE(view.font().families().constFirst(), QString("Carlito"));
    QVERIFY(!view.font().bold());
    QCOMPARE(view.styleSheet(),
        QString("alternate-background-color: LightBlue;background-color: White"));
    QVERIFY(view.alternatingRowColors() && view.showGrid());
    QCOMPARE(view.editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(view.selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(!view.wordWrap() && !view.tabKeyNavigation());
    QVERIFY(!view.isSortingEnabled() && !view.dragEnabled());

    const QHeaderView& numbers = *view.verticalHeader();
    QCOMPARE(numbers.minimumSectionSize(), 10);
    QCOMPARE(numbers.defaultSectionSize(), 10);
    QCOMPARE(numbers.font().pointSize(), 10);
    QVERIFY(numbers.isVisible());

    const QHeaderView& header = *view.horizontalHeader();
    QVERIFY(header.defaultAlignment() == Qt::AlignLeft);
    QCOMPARE(header.minimumSectionSize(), 10);
    QVERIFY(header.isVisible() && !header.stretchLastSection());
    QCOMPARE(header.count(), static_cast<int>(wanted.size()));
    for (int column = 0; column < header.count(); ++column) {
        QCOMPARE(header.sectionResizeMode(column), QHeaderView::Interactive);
        QCOMPARE(view.isColumnHidden(column), hidden.contains(QString::number(column)));
        view.showColumn(column);
        QCOMPARE(view.columnWidth(column), wanted.at(static_cast<std::size_t>(column)));
    }
}
