// SPDX-License-Identifier: MIT
#include "widgets/Application.h"

#include "widgets/ButtonFrame.h"
#include "widgets/ButtonKeys.h"
#include "widgets/QtNames.h"
#include "widgets/ShopTranslation.h"

#include <QApplication>
#include <QFont>
#include <QTranslator>

namespace {
void installQtTranslation(QApplication& application)
{
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_fr"), QtNames::translationsFolder())) {
        QCoreApplication::installTranslator(translator);
    }
}

void installShopTranslation(QApplication& application)
{
    auto* translation = new ShopTranslation(&application);
    if (translation->read()) {
        QCoreApplication::installTranslator(translation);
    }
}
} // namespace

void Application::setAttributes()
{
    // The windows are laid out in pixels: text must not grow with the screen's density alone. The
    // attribute reaches fonts without a widget, the variable those of the widgets.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI")) {
        qputenv("QT_FONT_DPI", "96");
    }
    QtNames::useSharpPictures();
}

void Application::setUp(QApplication& application)
{
    QFont font = QApplication::font();
    // "1,234.50$" fits its column only in a narrow face.
    font.setFamilies({QStringLiteral("Carlito"), QStringLiteral("Liberation Sans Narrow"),
        QStringLiteral("DejaVu Sans Condensed"), QStringLiteral("sans-serif")});
    QApplication::setFont(font);

    // The shop's translation comes second, because Qt asks the last one first.
    installQtTranslation(application);
    installShopTranslation(application);

    new ButtonKeys(&application);
    new ButtonFrame(&application);
}
