// SPDX-License-Identifier: MIT
#include "widgets/Shrinking.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QTableView>

#include <cmath>
#include <utility>
#include <vector>

namespace {
/// Whether the form itself says where \a widget is, and no layout does.
bool isPlacedByHand(const QWidget& widget, const QWidget& window)
{
    const QWidget& parent = *widget.parentWidget();
    return parent.layout() == nullptr
        && (&parent == &window || parent.metaObject() == &QWidget::staticMetaObject);
}
} // namespace

void Shrinking::apply(QWidget& window) const
{
    const QSize size = window.size();
    shrinkFonts(window);
    const auto layouts = window.findChildren<QLayout*>();
    for (QLayout* layout : layouts) {
        shrinkDistances(*layout);
    }
    const auto widgets = window.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!widget->isWindow()) {
            shrinkLimits(*widget);
            shrinkContent(*widget);
            if (isPlacedByHand(*widget, window)) {
                place(*widget);
            }
        }
    }
    shrinkLimits(window);
    window.resize(shrunk(size));
    if (window.layout() != nullptr) {
        window.layout()->activate();
    }
}

// Rounding down keeps the whole within the room that the factor is made for.
int Shrinking::shrunk(int pixels) const
{
    constexpr double rounding = 1e-6;
    return static_cast<int>(std::floor(pixels * factor_ + rounding));
}

QSize Shrinking::shrunk(const QSize& size) const
{
    return {shrunk(size.width()), shrunk(size.height())};
}

QRect Shrinking::shrunk(const QRect& area) const
{
    const QPoint topLeft(shrunk(area.x()), shrunk(area.y()));
    return {
        topLeft, QPoint(shrunk(area.x() + area.width()) - 1, shrunk(area.y() + area.height()) - 1)};
}

void Shrinking::place(QWidget& widget) const
{
    QRect area = shrunk(widget.geometry());
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        // The style draws its square as large as ever.
        area.setSize(area.size().expandedTo(box->minimumSizeHint()));
    }
    widget.setGeometry(area);
}

void Shrinking::shrinkFonts(QWidget& window) const
{
    // All sizes are read before the first is set, because children inherit.
    std::vector<std::pair<QWidget*, QFont>> fonts{{&window, window.font()}};
    const auto widgets = window.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        fonts.emplace_back(widget, widget->font());
    }
    for (auto& [widget, font] : fonts) {
        if (font.pixelSize() > 0) {
            font.setPixelSize(std::max(1, shrunk(font.pixelSize())));
        } else {
            font.setPointSizeF(font.pointSizeF() * factor_);
        }
        if (widget->font() != font) {
            widget->setFont(font);
        }
    }
}

void Shrinking::shrinkLimits(QWidget& widget) const
{
    const QSize least = widget.minimumSize();
    const QSize most = widget.maximumSize();
    widget.setMinimumSize(shrunk(least));
    widget.setMaximumSize(most.width() == QWIDGETSIZE_MAX ? most.width() : shrunk(most.width()),
        most.height() == QWIDGETSIZE_MAX ? most.height() : shrunk(most.height()));
}

void Shrinking::shrinkContent(QWidget& widget) const
{
    if (auto* view = qobject_cast<QTableView*>(&widget)) {
        shrinkSections(*view->horizontalHeader());
        shrinkSections(*view->verticalHeader());
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setIconSize(shrunk(button->iconSize()));
    }
}

void Shrinking::shrinkSections(QHeaderView& header) const
{
    for (int section = 0; section < header.count(); ++section) {
        if (!header.isSectionHidden(section)) {
            header.resizeSection(section, shrunk(header.sectionSize(section)));
        }
    }
}

void Shrinking::shrinkDistances(QLayout& layout) const
{
    const QMargins margins = layout.contentsMargins();
    layout.setContentsMargins(shrunk(margins.left()), shrunk(margins.top()),
        shrunk(margins.right()), shrunk(margins.bottom()));
    if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
        grid->setHorizontalSpacing(shrunk(grid->horizontalSpacing()));
        grid->setVerticalSpacing(shrunk(grid->verticalSpacing()));
    } else if (auto* box = qobject_cast<QBoxLayout*>(&layout)) {
        box->setSpacing(shrunk(box->spacing()));
        shrinkSpacers(*box);
    }
}

void Shrinking::shrinkSpacers(QBoxLayout& box) const
{
    for (int at = 0; at < box.count(); ++at) {
        if (QSpacerItem* spacer = box.itemAt(at)->spacerItem()) {
            const QSizePolicy policy = spacer->sizePolicy();
            const QSize size = shrunk(spacer->sizeHint());
            spacer->changeSize(
                size.width(), size.height(), policy.horizontalPolicy(), policy.verticalPolicy());
        }
    }
}
