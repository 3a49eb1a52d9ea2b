// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/PaperPages.h"

#include <QScrollArea>

#include <optional>

/// The sheets of a report, as they will be printed.
class PaperView : public QScrollArea
{
    Q_OBJECT

public:
    explicit PaperView(const QLocale& locale, QWidget* parent = nullptr);

    void setReport(const Report& report);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Sheets;

    void fit();

    QLocale locale_;
    Sheets* sheets_;
};
