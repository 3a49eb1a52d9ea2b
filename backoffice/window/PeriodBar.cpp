// SPDX-License-Identifier: MIT
#include "backoffice/window/PeriodBar.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <array>

namespace {
constexpr std::array presets{DayRange::Preset::Today, DayRange::Preset::Yesterday,
    DayRange::Preset::ThisWeek, DayRange::Preset::ThisMonth, DayRange::Preset::ThisYear,
    DayRange::Preset::LastYear};
constexpr int twoDates = static_cast<int>(presets.size());

/// The locale's short date with all digits of the year.
QString dateFormat(const QLocale& locale)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy"))) {
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    }
    return format;
}
} // namespace

PeriodBar::PeriodBar(const QLocale& locale, std::function<QDate()> today, QWidget* parent)
    : QWidget(parent)
    , locale_(locale)
    , today_(std::move(today))
    , presets_(new QComboBox(this))
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    presets_->setObjectName(QStringLiteral("period"));
    presets_->setAccessibleName(tr("Période"));
    presets_->addItems({tr("Aujourd'hui"), tr("Hier"), tr("Cette semaine"), tr("Ce mois"),
        tr("Cette année"), tr("L'année dernière"), tr("Deux dates")});
    auto* caption = new QLabel(tr("&Période"), this);
    caption->setBuddy(presets_);
    line->addWidget(caption);
    line->addWidget(presets_);
    line->addSpacing(line->spacing());
    line->addWidget(new QLabel(tr("du"), this));
    first_ = addDate(QStringLiteral("first"));
    first_->setAccessibleName(tr("Premier jour"));
    line->addWidget(first_);
    line->addWidget(new QLabel(tr("au"), this));
    last_ = addDate(QStringLiteral("last"));
    last_->setAccessibleName(tr("Dernier jour, compris"));
    line->addWidget(last_);
    showRange(range());
    connect(
        presets_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PeriodBar::choose);
    connect(first_, &QDateEdit::dateChanged, this, &PeriodBar::takeFirst);
    connect(last_, &QDateEdit::dateChanged, this, &PeriodBar::takeLast);
}

QDateEdit* PeriodBar::addDate(const QString& name)
{
    auto* edit = new QDateEdit(this);
    edit->setObjectName(name);
    edit->setLocale(locale_);
    edit->setDisplayFormat(dateFormat(locale_));
    edit->setCalendarPopup(true);
    edit->calendarWidget()->setLocale(locale_);
    edit->calendarWidget()->setFirstDayOfWeek(locale_.firstDayOfWeek());
    // A date that is being typed is read when it is complete, not at each digit.
    edit->setKeyboardTracking(false);
    return edit;
}

DayRange PeriodBar::range() const
{
    const int index = presets_->currentIndex();
    if (index == twoDates) {
        return {first_->date(), last_->date()};
    }
    return DayRange::of(presets.at(static_cast<std::size_t>(std::max(0, index))), today_(),
        locale_.firstDayOfWeek());
}

void PeriodBar::followTheDay() { showRange(range()); }

void PeriodBar::showRange(const DayRange& range)
{
    const QSignalBlocker first(first_);
    const QSignalBlocker last(last_);
    first_->setDate(range.first);
    last_->setDate(range.last);
}

void PeriodBar::choose(int index)
{
    if (index == twoDates) {
        first_->setFocus();
    } else {
        showRange(range());
    }
    emit chosen();
}

void PeriodBar::takeFirst(QDate day)
{
    const QSignalBlocker presetsAreQuiet(presets_);
    presets_->setCurrentIndex(twoDates);
    showRange({day, std::max(day, last_->date())});
    emit chosen();
}

void PeriodBar::takeLast(QDate day)
{
    const QSignalBlocker presetsAreQuiet(presets_);
    presets_->setCurrentIndex(twoDates);
    showRange({std::min(day, first_->date()), day});
    emit chosen();
}
