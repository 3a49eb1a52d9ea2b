// SPDX-License-Identifier: MIT
#include "launcher/dialogue/CopyDialog.h"

#include "launcher/dialogue/Wording.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

CopyDialog::CopyDialog(const QString& question, const QStringList& lines, bool isEnglish)
    : list_(new QTreeWidget(this))
{
    setWindowTitle(Wording::title());
    auto* label = new QLabel(question, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setBuddy(list_);

    list_->setObjectName(QStringLiteral("copies"));
    list_->setAccessibleName(question);
    list_->setHeaderLabels(Wording::columns(isEnglish));
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    fill(lines);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    connect(list_, &QTreeWidget::itemActivated, this, &CopyDialog::accept);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(Wording::ok());
    buttons->button(QDialogButtonBox::Cancel)->setText(Wording::cancel(isEnglish));
    connect(buttons, &QDialogButtonBox::accepted, this, &CopyDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(list_);
    layout->addWidget(buttons);
    constexpr QSize size(420, 360);
    resize(size);
    list_->setFocus();
}

QString CopyDialog::chosen() const
{
    const auto items = list_->selectedItems();
    return items.isEmpty() ? QString() : items.first()->text(0);
}

void CopyDialog::accept()
{
    if (!chosen().isEmpty()) {
        QDialog::accept();
    }
}

void CopyDialog::fill(const QStringList& lines)
{
    QList<QTreeWidgetItem*> items;
    for (const QString& line : lines) {
        auto* item = new QTreeWidgetItem(line.split(QLatin1Char('\t')));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        items.append(item);
    }
    list_->addTopLevelItems(items);
    if (!items.isEmpty()) {
        list_->setCurrentItem(items.first());
    }
}
