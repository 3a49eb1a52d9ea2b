// SPDX-License-Identifier: MIT
#include "launcher/dialogue/CopyDialog.h"
#include "launcher/dialogue/OpenTill.h"
#include "launcher/dialogue/Wording.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <clocale>
#include <iostream>
#include <iterator>
#include <string>

#include <langinfo.h>

namespace {
constexpr int badUsage = 2;

/// Where a locale has no accents, neither would what is typed or shown.
void useUtf8()
{
    std::setlocale(LC_ALL, "");
    if (std::string(nl_langinfo(CODESET)) != "UTF-8") {
        qputenv("LC_ALL", "C.UTF-8");
    }
}

int showBox(QMessageBox::Icon icon, const QString& text)
{
    QMessageBox box(icon, Wording::title(), Wording::breakable(text));
    box.setTextFormat(Qt::PlainText);
    box.addButton(Wording::ok(), QMessageBox::AcceptRole);
    box.exec();
    return 0;
}

/// Says what a window may take of the screen, in pixels.
int measureScreen()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return 1;
    }
    const QSize room = screen->availableSize();
    std::cout << room.width() << ' ' << room.height() << '\n';
    return 0;
}

int chooseCopy(const QString& question, bool isEnglish)
{
    const std::string input{std::istreambuf_iterator<char>(std::cin), {}};
    const QStringList lines
        = QString::fromStdString(input).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    CopyDialog dialog(question, lines, isEnglish);
    if (dialog.exec() != QDialog::Accepted) {
        return 1;
    }
    std::cout << dialog.chosen().toStdString() << '\n';
    return 0;
}
} // namespace

int main(int argc, char* argv[])
{
    constexpr int withNumber = 3;
    if (argc == withNumber && std::string(argv[1]) == "--montrer") {
        return OpenTill::bringToFront(QByteArray(argv[2]).toInt()) ? 0 : 1;
    }
    useUtf8();
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("vendel")));
    // The launcher writes UTF-8, whatever the locale was.
    int next = 1;
    const auto argument = [&] { return next < argc ? QString::fromUtf8(argv[next++]) : QString(); };
    QString kind = argument();
    const bool isEnglish = kind == QLatin1String("--en");
    if (isEnglish) {
        kind = argument();
    }
    if (kind == QLatin1String("--ecran")) {
        return measureScreen();
    }
    const QString text = argument();
    if (text.isEmpty()) {
        return badUsage;
    }
    if (kind == QLatin1String("--copies")) {
        return chooseCopy(text, isEnglish);
    }
    if (kind == QLatin1String("--erreur")) {
        return showBox(QMessageBox::Critical, text);
    }
    if (kind == QLatin1String("--avertissement")) {
        return showBox(QMessageBox::Warning, text);
    }
    return kind == QLatin1String("--note") ? showBox(QMessageBox::Information, text) : badUsage;
}
