// SPDX-License-Identifier: MIT
#include "tests/support/Counter.h"

#include "app/FormVendelStart.h"
#include "tests/support/Widgets.h"

Counter::Counter(const char* sql)
{
    shop.fill(sql);
    form.show();
    child<FormVendelStart>(form, "FormVendelStart").close();
    const bool isExposed = QTest::qWaitForWindowExposed(&form);
    form.activateWindow();
    if (!isExposed || !QTest::qWaitForWindowActive(&form)) {
        qFatal("the sales screen does not open");
    }
}

QString Counter::names(const char* list)
{
    QStringList texts;
    for (int row = 0; row < rowCount(form, list); ++row) {
        texts << rowTexts(form, list, row).at(2);
    }
    return texts.join(QLatin1Char('|'));
}
