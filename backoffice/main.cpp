// SPDX-License-Identifier: MIT
#include "backoffice/menu/CopyProcess.h"
#include "backoffice/Order.h"
#include "backoffice/output/PaperFile.h"
#include "backoffice/OutputFile.h"
#include "backoffice/sales/BookSource.h"
#include "backoffice/sales/TillSource.h"
#include "backoffice/Session.h"
#include "backoffice/window/MainWindow.h"

#include <QApplication>
#include <QDir>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include <fcntl.h>

namespace {
constexpr int cannotBeDone = 1;
constexpr int wrongCommand = 2;

/// What a program may count on, whoever starts it.
void prepare()
{
    // Who reads the output may exit; that is an error like any other.
    std::signal(SIGPIPE, SIG_IGN);
    // So is a file that may not become so large.
    std::signal(SIGXFSZ, SIG_IGN);
    int descriptor = 0;
    do {
        // A file that is opened later must not become the standard output that somebody closed.
        descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    close(descriptor);
}

int fail(int status, const QString& sentence)
{
    Session::say(sentence);
    return status;
}

QByteArray fileOf(const Order& order, const Report& report, const Session& session)
{
    switch (order.kind) {
    case Order::Kind::Pdf:
        return pdf(report, session.locale());
    case Order::Kind::Png:
        return png(report, session.locale());
    case Order::Kind::Csv:
        break;
    }
    return csv(report.file(), order.csvFormat.value_or(session.csvFormat()));
}

/// The sales that \a order is about.
std::unique_ptr<SalesSource> open(const Order& order, const QString& folder)
{
    std::unique_ptr<SalesSource> source;
    if (order.central.isEmpty()) {
        source = std::make_unique<TillSource>(folder);
    } else {
        source = std::make_unique<BookSource>(order.central);
    }
    source->choose(order.tills);
    return source;
}

int writeFile(const Order& order, const Session& session)
{
    const std::unique_ptr<SalesSource> source = open(order, session.folder());
    ReportOrder wanted;
    wanted.tills = order.tills;
    wanted.page = order.page;
    wanted.range = order.range;
    wanted.taxRate = order.taxRate;
    wanted.today = QDate::currentDate();
    wanted.locale = session.locale();
    const Report report = makeReport(wanted, *source, {});
    OutputFile::write(order.file, fileOf(order, report, session));
    return 0;
}

/// A server that hangs must not keep a program without a window: its reader waits for an answer.
void endWithin(std::chrono::seconds patience, int status)
{
    std::thread([patience, status] {
        std::this_thread::sleep_for(patience);
        std::_Exit(status);
    }).detach();
}

int showWindow(const Order& order, const Session& session)
{
    // An import changes the working directory.
    const QString folder
        = session.folder().isEmpty() ? QString() : QDir(session.folder()).absolutePath();
    if (!order.tills.empty()) {
        // A name that the book does not have is said before there is a window.
        open(order, folder);
    }
    Order all = order;
    all.tills.clear();
    MainWindow window({[all, folder] { return open(all, folder); }, makeReport, session.locale(),
        &QDate::currentDate, folder, session.csvFormat(), !order.central.isEmpty(), order.tills});
    window.show();
    const int status = QApplication::exec();
    if (!order.central.isEmpty()) {
        endWithin(std::chrono::seconds(3), status);
    }
    return status;
}

int run(const Order& order, const Session& session)
{
    switch (order.action) {
    case Order::Action::Help:
        OutputFile::write(QStringLiteral("-"), session.usage().toUtf8());
        return 0;
    case Order::Action::Version:
        OutputFile::write(QStringLiteral("-"), "Vendel – Gestion " VENDEL_VERSION "\n");
        return 0;
    case Order::Action::File:
    case Order::Action::Window:
        break;
    }
    if (session.folder().isEmpty() && order.central.isEmpty()) {
        return fail(cannotBeDone, Session::noHome());
    }
    return order.action == Order::Action::File ? writeFile(order, session)
                                               : showWindow(order, session);
}
} // namespace

int main(int argc, char* argv[])
{
    if (const std::optional<int> status = CopyProcess::asked(argc, argv)) {
        return *status;
    }
    prepare();
    Session::useUtf8();
    QStringList arguments;
    for (int place = 1; place < argc; ++place) {
        arguments += QString::fromLocal8Bit(argv[place]);
    }
    Order order;
    std::optional<BadOrder> mistake;
    try {
        order = parseOrder(arguments);
    } catch (const BadOrder& bad) {
        mistake = bad;
        // It is said without a window, in the language that was asked for.
        order.action = Order::Action::Help;
        order.language = languageIn(arguments);
    }
    const Session session(order, argc, argv);
    if (mistake) {
        return fail(wrongCommand, mistake->sentence());
    }
    try {
        return run(order, session);
    } catch (const SalesError& error) {
        return fail(cannotBeDone, error.sentence());
    } catch (const OutputError& error) {
        return fail(cannotBeDone, error.sentence());
    } catch (const std::exception& error) {
        return fail(cannotBeDone, QString::fromUtf8(error.what()));
    }
}
