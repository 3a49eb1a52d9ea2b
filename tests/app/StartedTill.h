// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// What \a tool writes on standard output.
inline QByteArray outputOf(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// The X identity of the visible window with the given title, empty when there is none.
inline QString windowTitled(const char* title)
{
    const QByteArray found = outputOf(QString("xdotool"),
        {QString("search"), QString("--onlyvisible"), QString("--name"),
            '^' + QString::fromUtf8(title) + '$'});
    return QString::fromLatin1(found.left(found.indexOf('\n'))).trimmed();
}

/// The program itself, started in the working directory and ended with its owner.
class StartedTill
{
public:
    /// \a fontDpi forces the density that text is laid out at; at 0 the program decides. Standard
    /// output goes into the file \a output, if there is one, instead of a pipe to the test.
    explicit StartedTill(int fontDpi = 0, const QString& output = QString())
    {
        process.setStandardOutputFile(output);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QString("QT_FONT_DPI"));
        if (fontDpi != 0) {
            environment.insert(QString("QT_FONT_DPI"), QString::number(fontDpi));
        }
        process.setProcessEnvironment(environment);
        process.start(QString(TILL), QStringList());
    }
    ~StartedTill()
    {
        process.terminate();
        process.waitForFinished();
    }
    StartedTill(const StartedTill&) = delete;
    StartedTill& operator=(const StartedTill&) = delete;
    StartedTill(StartedTill&&) = delete;
    StartedTill& operator=(StartedTill&&) = delete;

    QProcess process;
};
