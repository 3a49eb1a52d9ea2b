// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Widgets.h"

#include <QHeaderView>
#include <QStringList>
#include <QTableView>
#include <QTest>

#include <initializer_list>
#include <vector>

/// UTF-8 \a texts as a list of strings, for comparing rows and labels.
inline QStringList cells(std::initializer_list<const char*> texts)
{
    QStringList strings;
    for (const char* text : texts) {
        strings << text;
    }
    return strings;
}

/// The rows of the list \a name, their cells parted by ";", hidden columns included.
inline QStringList rows(QWidget& window, const char* name)
{
    QStringList texts;
    for (int row = 0; row < rowCount(window, name); ++row) {
        texts << rowTexts(window, name, row).join(';');
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

/// Fails the running test unless \a view has columns of \a widths in pixels, the \a hidden ones
/// when they are shown, none of which stretches.
inline void compareColumns(QTableView& view, const std::vector<int>& widths, const QString& hidden)
{
    const QHeaderView& header = *view.horizontalHeader();
    QVERIFY(!header.stretchLastSection());
    QCOMPARE(header.count(), static_cast<int>(widths.size()));
    for (int column = 0; column < header.count(); ++column) {
        QCOMPARE(header.sectionResizeMode(column), QHeaderView::Interactive);
        QCOMPARE(view.isColumnHidden(column), hidden.contains(QString::number(column)));
        view.showColumn(column);
        QCOMPARE(view.columnWidth(column), widths.at(static_cast<std::size_t>(column)));
    }
}

/// Fails the running test unless \a view has the look of every list of the till, with letters of
/// \a points.
inline void compareLook(const QTableView& view, int points)
{
    QCOMPARE(view.font().pointSize(), points);
    QCOMPARE(view.font().families().constFirst(), QString("Carlito"));
    QVERIFY(!view.font().bold());
    QCOMPARE(view.styleSheet(),
        QString("alternate-background-color: LightBlue;background-color: White"));
    QVERIFY(view.alternatingRowColors());
    QVERIFY(view.showGrid());

    const QHeaderView& columns = *view.horizontalHeader();
    QVERIFY(columns.defaultAlignment() == Qt::AlignLeft);
    QCOMPARE(columns.minimumSectionSize(), 10);
    QVERIFY(columns.isVisible());
    const QHeaderView& rows = *view.verticalHeader();
    QCOMPARE(rows.minimumSectionSize(), 10);
    QCOMPARE(rows.defaultSectionSize(), 10);
    QCOMPARE(rows.font().pointSize(), 10);
    QVERIFY(rows.isVisible());
}

/// Fails the running test unless \a view is read row by row, and never edited.
inline void compareUse(const QTableView& view)
{
    QCOMPARE(view.editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(view.selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(!view.wordWrap());
    QVERIFY(!view.tabKeyNavigation());
    QVERIFY(!view.isSortingEnabled());
    QVERIFY(!view.dragEnabled());
}
