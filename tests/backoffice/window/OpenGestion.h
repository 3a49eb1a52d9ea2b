// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/window/MainWindow.h"
#include "backoffice/window/ReportPage.h"
#include "tests/backoffice/window/SampleSales.h"
#include "tests/support/Widgets.h"

#include <QComboBox>
#include <QLabel>
#include <QSettings>
#include <QTableView>
#include <QTabWidget>
#include <QTemporaryDir>

/// The back office's window on a sample shop, on Friday 20 November 2026, in French.
class OpenGestion
{
public:
    OpenGestion()
        : OpenGestion([this] { return std::make_unique<SampleSales>(shop); })
    { }

    explicit OpenGestion(ReportReader::Open open)
        : isPlaced_(place())
        , window({std::move(open), makeReport, QLocale(QLocale::French, QLocale::France),
              [this] { return today; }, QString()})
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the window is not shown");
        }
    }

    QTabWidget& pages() { return child<QTabWidget>(window, "pages"); }
    ReportPage& page() { return *qobject_cast<ReportPage*>(pages().currentWidget()); }
    QTableView& table()
    {
        auto* tables = page().findChild<QTabWidget*>();
        return *qobject_cast<QTableView*>(tables->currentWidget());
    }
    /// The text of the cell, with plain blanks.
    QString cell(int row, int column)
    {
        return page().report() == nullptr
            ? QString()
            : plain(table().model()->index(row, column).data().toString());
    }
    /// The value of the figure \a caption.
    QString figure(const QString& caption)
    {
        const auto labels = page().findChildren<QLabel*>(QStringLiteral("caption"));
        for (const QLabel* label : labels) {
            if (plain(label->text()) == caption && label->isVisible()) {
                return plain(
                    label->parentWidget()->findChild<QLabel*>(QStringLiteral("value"))->text());
            }
        }
        return {};
    }
    QString sentence()
    {
        const auto& label = child<QLabel>(page(), "sentence");
        return label.isVisible() ? label.text() : QString();
    }
    QString subtitle() { return child<QLabel>(page(), "subtitle").text(); }
    void choose(const char* name, int index)
    {
        child<QComboBox>(window, name).setFocus();
        child<QComboBox>(window, name).setCurrentIndex(index);
    }

    static QString plain(QString text)
    {
        return text.replace(QChar(0x202f), QLatin1Char(' ')).replace(QChar(0xa0), QLatin1Char(' '));
    }

    SampleShop shop;
    QDate today{2026, 11, 20};

private:
    /// Where the window remembers its place is a folder of this test's own.
    bool place()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings_.path());
        return true;
    }

    QTemporaryDir settings_;
    bool isPlaced_;

public:
    MainWindow window;
};
