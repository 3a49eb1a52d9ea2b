// SPDX-License-Identifier: MIT
#include "widgets/HoverTip.h"

#include "widgets/Lists.h"
#include "widgets/QtNames.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QCursor>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTextDocument>
#include <QToolTip>

#include <utility>

namespace {
constexpr int tipMs = 10000;
constexpr int longestTipCharacters = 200;

/// Lets the mouse through every tip: one may be under the pointer, and the click is meant for
/// the list below it.
class TipOpener : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Polish && watched->inherits("QTipLabel")) {
            auto* tip = static_cast<QWidget*>(watched);
            // Without StaysOnTop, X11 creates the tip window twice, the second time opaque.
            tip->setWindowFlags(
                tip->windowFlags() | Qt::WindowTransparentForInput | Qt::WindowStaysOnTopHint);
        }
        return false;
    }
};

void letTheMouseThroughTips()
{
    static QPointer<TipOpener> opener;
    if (opener.isNull()) {
        opener = new TipOpener(QCoreApplication::instance());
        QCoreApplication::instance()->installEventFilter(opener);
    }
}
} // namespace

void watchMouse(QAbstractItemView& view, QObject& window)
{
    view.viewport()->setAttribute(Qt::WA_MouseTracking, true);
    view.viewport()->installEventFilter(&window);
}

std::optional<QPoint> mouseMoveOver(
    const QAbstractItemView& view, const QObject* watched, const QEvent* event)
{
    if (watched != view.viewport() || event->type() != QEvent::MouseMove) {
        return std::nullopt;
    }
    return QtNames::position(*static_cast<const QMouseEvent*>(event)).toPoint();
}

QString textUnder(const QAbstractItemView& view, QPoint position, int column)
{
    const QModelIndex index = view.indexAt(position);
    QString text = index.sibling(index.row(), column).data().toString();
    if (text.size() <= longestTipCharacters) {
        return text;
    }
    const bool splitsCharacter = text.at(longestTipCharacters - 1).isHighSurrogate();
    return text.left(longestTipCharacters - (splitsCharacter ? 1 : 0)) + QChar(0x2026);
}

void showTip(QWidget& window, QPoint point, const QString& text)
{
    // A platform may deliver waiting mouse moves while it makes the tip's window; a second tip
    // would delete the one being created.
    static bool isShowing = false;
    if (isShowing) {
        return;
    }
    const QScopedValueRollback<bool> showing(isShowing, true);
    letTheMouseThroughTips();
    const QString plain
        = Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
    QToolTip::showText(point, plain, &window, QRect(), tipMs);
}

void hideTip() { QToolTip::hideText(); }

HoverTips::HoverTips(QWidget& window, const Texts& texts, IsWanted isWanted)
    : window_(window)
    , texts_(texts)
    , isWanted_(std::move(isWanted))
{ }

HoverTips::~HoverTips()
{
    for (const auto& model : explained_) {
        if (model != nullptr) {
            model->explain({});
        }
    }
}

void HoverTips::add(const HoverTip& tip)
{
    watchMouse(tip.view, window_);
    tips_.push_back(tip);
    if (auto* model = dynamic_cast<ListModel*>(tip.view.model())) {
        model->explain([this, tip](const QModelIndex& cell) { return explanation(tip, cell); });
        explained_.emplace_back(model);
    }
}

/// What \a tip shows over \a cell, the longest name whole.
QString HoverTips::explanation(const HoverTip& tip, const QModelIndex& cell) const
{
    constexpr QPoint withinTheList(1, 1);
    const QString text = textAt(cell, tip.column);
    return text.isEmpty() || !isWanted_(withinTheList, text)
        ? QString()
        : texts_(tip.message[0]) + text + texts_(tip.message[1]);
}

void HoverTips::show(const QObject* watched, const QEvent* event) const
{
    for (const HoverTip& tip : tips_) {
        const auto position = mouseMoveOver(tip.view, watched, event);
        if (!position) {
            continue;
        }
        const QString text = textUnder(tip.view, *position, tip.column);
        if (text.isEmpty() || !isWanted_(*position, text)) {
            hideTip();
            continue;
        }
        showTip(window_, tip.offset ? *position + *tip.offset : QCursor::pos(),
            texts_(tip.message[0]) + text + texts_(tip.message[1]));
    }
}

bool isOffTheCorner(QPoint position) { return position.x() > 0 || position.y() > 0; }
