// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

#include <QWidget>

class QGridLayout;

/// Single figures beside one another, in as many lines as the width asks for.
class FigureStrip : public QWidget
{
    Q_OBJECT

public:
    explicit FigureStrip(const QLocale& locale, QWidget* parent = nullptr);

    void setFigures(const std::vector<KeyFigure>& figures);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeCard();
    void fillCard(QWidget& card, const KeyFigure& figure) const;
    void arrange();

    QLocale locale_;
    QGridLayout* grid_;
    std::vector<QWidget*> cards_;
    int columns_ = 0;
};
