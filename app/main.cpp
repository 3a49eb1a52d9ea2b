// SPDX-License-Identifier: MIT
#include "app/Application.h"
#include "app/FormVendel.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>

int main(int argc, char* argv[])
{
    Application::setAttributes();
    QApplication application(argc, argv);
    Application::setUp(application);

    FormVendel window;
    window.setWindowIcon(QIcon(QStringLiteral("Vendel.png")));
    window.move(QGuiApplication::primaryScreen()->geometry().center() - window.rect().center());
    window.show();
    return QApplication::exec();
}
