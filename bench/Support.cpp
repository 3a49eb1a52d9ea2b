// SPDX-License-Identifier: MIT
#include "bench/Support.h"

#include "widgets/Application.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>

#include <stdexcept>

#include <time.h>
#include <unistd.h>

namespace {
/// Says what Qt wants to know before the application object; returns \a argc.
int& prepared(int& argc)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application::setAttributes();
    return argc;
}
} // namespace

void check(bool holds, const char* what)
{
    if (!holds) {
        throw std::runtime_error(what);
    }
}

double workedSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    check(file.open(QIODevice::ReadOnly), "statm");
    return file.readAll().split(' ').at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

void fillByFloor(QTableView& view, const DbRows& texts, int height)
{
    auto& model = static_cast<QStandardItemModel&>(*view.model());
    view.setUpdatesEnabled(false);
    view.verticalHeader()->setUpdatesEnabled(false);
    for (const auto& row : texts) {
        QList<QStandardItem*> items;
        items.reserve(static_cast<int>(row.size()));
        for (const std::string& text : row) {
            items << new QStandardItem(QString::fromStdString(text));
        }
        model.appendRow(items);
        view.setRowHeight(model.rowCount() - 1, height);
    }
    view.verticalHeader()->setUpdatesEnabled(true);
    view.setUpdatesEnabled(true);
}

DbRows textsOf(const QTableView& view)
{
    const QAbstractItemModel& model = *view.model();
    DbRows texts(static_cast<std::size_t>(model.rowCount()));
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            texts[static_cast<std::size_t>(row)].push_back(
                model.index(row, column).data().toString().toStdString());
        }
    }
    return texts;
}

BenchTill::BenchTill(int& argc, char** argv)
    : application_(prepared(argc), argv)
{
    Application::setUp(application_);
    check(folder_.isValid() && QDir::setCurrent(folder_.path()), "a working directory");
    Db::DbCreate();
}

BenchTill::~BenchTill() { QDir::setCurrent(QStringLiteral("/")); }
