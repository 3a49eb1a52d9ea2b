// SPDX-License-Identifier: MIT
#include "app/EndSignals.h"
#include "app/FormVendel.h"
#include "widgets/Application.h"
#include "widgets/Pictures.h"
#include "widgets/SmallScreen.h"

#include <QApplication>
#include <QIcon>

#include <csignal>

int main(int argc, char* argv[])
{
    // The reader of the till's output may exit; that must not end a sale.
    std::signal(SIGPIPE, SIG_IGN);
    EndSignals endSignals;
    Application::setAttributes();
    QApplication application(argc, argv);
    Application::setUp(application);
    endSignals.attach();
    const SmallScreen smallScreen(&application);

    FormVendel window;
    window.setWindowIcon(Pictures::read(QStringLiteral("Vendel.png")));
    smallScreen.centre(window);
    window.show();
    return QApplication::exec();
}
