// SPDX-License-Identifier: MIT
#include "backoffice/Order.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {
namespace Mistakes {
constexpr const char* unknown = QT_TRANSLATE_NOOP("BadOrder", "L'option « %1 » n'existe pas.");
constexpr const char* noValue = QT_TRANSLATE_NOOP("BadOrder", "L'option « %1 » attend une valeur.");
constexpr const char* needlessValue
    = QT_TRANSLATE_NOOP("BadOrder", "L'option « %1 » n'attend pas de valeur.");
constexpr const char* noDate
    = QT_TRANSLATE_NOOP("BadOrder", "« %1 » n'est pas une date : elle s'écrit comme 2026-11-30.");
constexpr const char* wrongOrder
    = QT_TRANSLATE_NOOP("BadOrder", "Le premier jour demandé est après le dernier, %1.");
constexpr const char* noRate
    = QT_TRANSLATE_NOOP("BadOrder", "« %1 » n'est pas un taux de 0 à 100 pour cent.");
constexpr const char* noLanguage = QT_TRANSLATE_NOOP(
    "BadOrder", "« %1 » n'est pas une langue de ce programme : il y a « fr » et « en ».");
constexpr const char* noFormat
    = QT_TRANSLATE_NOOP("BadOrder", "« %1 » n'est pas un format de CSV : il y a « fr » et « en ».");
constexpr const char* secondPage
    = QT_TRANSLATE_NOOP("BadOrder", "Une seule page peut être demandée : « %1 » est de trop.");
constexpr const char* secondFile
    = QT_TRANSLATE_NOOP("BadOrder", "Un seul fichier peut être demandé : « %1 » est de trop.");
constexpr const char* noPage = QT_TRANSLATE_NOOP("BadOrder",
    "« %1 » demande une page : --ventes, --articles, --heures, --consommation ou --cloture.");
constexpr const char* noFile
    = QT_TRANSLATE_NOOP("BadOrder", "« %1 » demande un fichier : --csv, --pdf ou --png.");
constexpr const char* noDay
    = QT_TRANSLATE_NOOP("BadOrder", "« %1 » demande un premier jour : --du 2026-11-30.");
constexpr const char* noBook
    = QT_TRANSLATE_NOOP("BadOrder", "« --caisse » demande un livre central : --central ADRESSE.");
} // namespace Mistakes

constexpr const char* languageOption = "--langue";

template <class Value> using Names = std::array<std::pair<const char*, Value>, 5>;

constexpr Names<Page> pages{{{"--ventes", Page::Sales}, {"--articles", Page::Articles},
    {"--heures", Page::Hours}, {"--consommation", Page::Uses}, {"--cloture", Page::Closing}}};

constexpr std::array<std::pair<const char*, Order::Kind>, 3> kinds{
    {{"--csv", Order::Kind::Csv}, {"--pdf", Order::Kind::Pdf}, {"--png", Order::Kind::Png}}};

/// What \a name means in \a names.
template <class All> auto find(const All& names, const QString& name)
{
    using Value = typename All::value_type::second_type;
    const auto found = std::find_if(names.begin(), names.end(),
        [&name](const auto& one) { return name == QLatin1String(one.first); });
    return found == names.end() ? std::optional<Value>() : std::optional<Value>(found->second);
}

std::optional<Language> languageNamed(const QString& name)
{
    if (name == QLatin1String("fr")) {
        return Language::French;
    }
    return name == QLatin1String("en") ? std::optional(Language::English) : std::nullopt;
}

QDate dateOf(const QString& text)
{
    constexpr int size = 10;
    const QDate date = text.size() == size ? QDate::fromString(text, Qt::ISODate) : QDate();
    if (!date.isValid()) {
        throw BadOrder(Mistakes::noDate, text);
    }
    return date;
}

double rateOf(const QString& text)
{
    constexpr double all = 100;
    bool isNumber = false;
    const double rate
        = QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    if (!isNumber || !(rate >= 0 && rate <= all)) {
        throw BadOrder(Mistakes::noRate, text);
    }
    return rate;
}

CsvFormat formatNamed(const QString& name)
{
    const std::optional<Language> language = languageNamed(name);
    if (!language) {
        throw BadOrder(Mistakes::noFormat, name);
    }
    return CsvFormat::of(
        QLocale(*language == Language::French ? QLocale::French : QLocale::English));
}

/// An option as it is written, "--name", "--name value" or "--name=value".
class Option
{
public:
    /// The next of \a arguments, which lose it and its value.
    explicit Option(QStringList& arguments)
        : name_(arguments.takeFirst())
        , rest_(arguments)
    {
        const auto sign = name_.indexOf(QLatin1Char('='));
        if (sign > 0) {
            value_ = name_.mid(sign + 1);
            name_.truncate(sign);
        }
    }

    const QString& name() const { return name_; }

    QString value()
    {
        const bool isNext
            = !value_ && !rest_.isEmpty() && !rest_.at(0).startsWith(QLatin1String("--"));
        QString value = isNext ? rest_.takeFirst() : value_.value_or(QString());
        if (value.isEmpty()) {
            throw BadOrder(Mistakes::noValue, name_);
        }
        return value;
    }

    void rejectValue() const
    {
        if (value_) {
            throw BadOrder(Mistakes::needlessValue, name_);
        }
    }

private:
    QString name_;
    std::optional<QString> value_;
    QStringList& rest_;
};

/// Reads one option after the other, then looks whether they belong together.
class Parser
{
public:
    void take(Option option)
    {
        if (!takePage(option) && !takeFile(option) && !takeShop(option) && !takeDetail(option)) {
            throw BadOrder(Mistakes::unknown, option.name());
        }
    }

    Order order()
    {
        if (order_.action == Order::Action::Help || order_.action == Order::Action::Version) {
            return order_;
        }
        if (!order_.tills.empty() && order_.central.isEmpty()) {
            throw BadOrder(Mistakes::noBook, {});
        }
        if (page_.isEmpty() && !needsPage_.isEmpty()) {
            throw BadOrder(Mistakes::noPage, needsPage_);
        }
        if (page_.isEmpty()) {
            return order_;
        }
        if (order_.file.isEmpty()) {
            throw BadOrder(Mistakes::noFile, page_);
        }
        if (!order_.range.first.isValid()) {
            throw BadOrder(Mistakes::noDay, page_);
        }
        if (!order_.range.last.isValid()) {
            order_.range.last = order_.range.first;
        }
        if (!order_.range.isValid()) {
            throw BadOrder(Mistakes::wrongOrder, order_.range.last.toString(Qt::ISODate));
        }
        order_.action = Order::Action::File;
        return order_;
    }

private:
    bool takePage(const Option& option)
    {
        const std::optional<Page> page = find(pages, option.name());
        if (!page) {
            return false;
        }
        option.rejectValue();
        if (!page_.isEmpty()) {
            throw BadOrder(Mistakes::secondPage, option.name());
        }
        page_ = option.name();
        order_.page = *page;
        return true;
    }

    bool takeFile(Option& option)
    {
        const std::optional<Order::Kind> kind = find(kinds, option.name());
        if (!kind) {
            return false;
        }
        if (!order_.file.isEmpty()) {
            throw BadOrder(Mistakes::secondFile, option.name());
        }
        order_.kind = *kind;
        order_.file = option.value();
        needsPage_ = option.name();
        return true;
    }

    /// What a window can be opened with, too.
    bool takeShop(Option& option)
    {
        const QString& name = option.name();
        if (name == QLatin1String("--dossier")) {
            order_.folder = option.value();
        } else if (name == QLatin1String("--central")) {
            order_.central = option.value();
        } else if (name == QLatin1String("--caisse")) {
            addTill(option.value());
        } else if (name == QLatin1String(languageOption)) {
            const QString value = option.value();
            order_.language = languageNamed(value);
            if (!order_.language) {
                throw BadOrder(Mistakes::noLanguage, value);
            }
        } else if (name == QLatin1String("--aide") || name == QLatin1String("--help")) {
            option.rejectValue();
            order_.action = Order::Action::Help;
        } else if (name == QLatin1String("--version")) {
            option.rejectValue();
            order_.action = Order::Action::Version;
        } else {
            return false;
        }
        return true;
    }

    void addTill(const QString& name)
    {
        if (std::find(order_.tills.begin(), order_.tills.end(), name) == order_.tills.end()) {
            order_.tills.push_back(name);
        }
    }

    bool takeDetail(Option& option)
    {
        const QString& name = option.name();
        if (name == QLatin1String("--du")) {
            order_.range.first = dateOf(option.value());
        } else if (name == QLatin1String("--au")) {
            order_.range.last = dateOf(option.value());
        } else if (name == QLatin1String("--taux")) {
            order_.taxRate = rateOf(option.value());
        } else if (name == QLatin1String("--csv-format")) {
            order_.csvFormat = formatNamed(option.value());
        } else {
            return false;
        }
        needsPage_ = name;
        return true;
    }

    Order order_;
    /// The option that names the page.
    QString page_;
    /// An option that makes no sense without one.
    QString needsPage_;
};
} // namespace

QString BadOrder::sentence() const
{
    const QString text = QCoreApplication::translate("BadOrder", sentence_);
    return text.contains(QLatin1String("%1")) ? text.arg(inserted_) : text;
}

Order parseOrder(const QStringList& arguments)
{
    Parser parser;
    QStringList rest = arguments;
    while (!rest.isEmpty()) {
        parser.take(Option(rest));
    }
    return parser.order();
}

std::optional<Language> languageIn(const QStringList& arguments)
{
    std::optional<Language> language;
    for (int place = 0; place < arguments.size(); ++place) {
        const QString& argument = arguments.at(place);
        if (argument == QLatin1String(languageOption) && place + 1 < arguments.size()) {
            language = languageNamed(arguments.at(place + 1));
        } else if (argument.startsWith(QLatin1String("--langue="))) {
            language = languageNamed(argument.mid(argument.indexOf(QLatin1Char('=')) + 1));
        }
    }
    return language;
}
