// SPDX-License-Identifier: MIT
#include "tests/support/Captured.h"

#include <QTest>

#include <iostream>

#include <unistd.h>

namespace {
struct Log
{
    QStringList criticals;
    QStringList warnings;
    QStringList debugs;
};

Log& currentLog()
{
    static Log log;
    return log;
}

void collect(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtCriticalMsg) {
        currentLog().criticals << message;
    } else if (type == QtWarningMsg) {
        currentLog().warnings << message;
    } else if (type == QtDebugMsg) {
        currentLog().debugs << message;
    }
}
} // namespace

CapturedOutput::CapturedOutput()
{
    if (!file_.open()) {
        qFatal("no temporary file for the captured output");
    }
    std::cout.flush();
    std::fflush(stdout);
    before_ = dup(STDOUT_FILENO);
    dup2(file_.handle(), STDOUT_FILENO);
}

CapturedOutput::~CapturedOutput()
{
    std::cout.flush();
    std::cout.clear();
    std::fflush(stdout);
    dup2(before_, STDOUT_FILENO);
    close(before_);
    // The report of a failed test went into the file, too.
    if (QTest::currentTestFailed()) {
        std::cout << text().constData() << std::flush;
    }
}

QByteArray CapturedOutput::text()
{
    std::cout.flush();
    QFile written(file_.fileName());
    if (!written.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray text;
    while (!written.atEnd()) {
        const QByteArray line = written.readLine();
        // Qt Test reports the log on standard output too.
        if (!line.startsWith("QWARN  : ") && !line.startsWith("QDEBUG : ")) {
            text += line;
        }
    }
    return text;
}

QByteArray databaseReport(const QByteArray& sql, const QByteArray& reason)
{
    return "Errors Db::DbLoad sqlite3_errmsg : " + sql + ' ' + reason + '\n';
}

CapturedLog::CapturedLog()
{
    currentLog() = Log();
    before_ = qInstallMessageHandler(collect);
}

CapturedLog::~CapturedLog() { qInstallMessageHandler(before_); }

QStringList CapturedLog::criticals() const { return currentLog().criticals; }

QStringList CapturedLog::warnings() const { return currentLog().warnings; }

QStringList CapturedLog::debugs() const { return currentLog().debugs; }
