// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTest>

/// What \a tool writes on standard output.
inline QByteArray outputOf(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// The X identity of the visible window with the given title, empty when there is none.
inline QString windowTitled(const QString& title)
{
    const QByteArray found
        = outputOf("xdotool", {"search", "--onlyvisible", "--name", '^' + title + '$'});
    return found.left(found.indexOf('\n')).trimmed();
}

/// Where the visible window with the given title is, empty when there is none.
inline QRect geometry(const QString& title)
{
    const QByteArray text = outputOf("xdotool",
        {"search", "--onlyvisible", "--name", '^' + title + '$', "getwindowgeometry", "--shell"});
    const auto value = [&](const QByteArray& name) {
        const auto start = text.indexOf('\n' + name + '=') + name.size() + 2;
        return text.mid(start, text.indexOf('\n', start) - start).toInt();
    };
    return {value("X"), value("Y"), value("WIDTH"), value("HEIGHT")};
}

/// Waits until a window with \a title is on the screen; it has long on a busy machine.
inline bool opens(const QString& title)
{
    return QTest::qWaitFor([&] { return !windowTitled(title).isEmpty(); }, 30000);
}

/// Waits until no window with \a title is on the screen.
inline bool closes(const QString& title)
{
    return QTest::qWaitFor([&] { return windowTitled(title).isEmpty(); }, 30000);
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
        environment.remove("QT_FONT_DPI");
        if (fontDpi != 0) {
            environment.insert("QT_FONT_DPI", QString::number(fontDpi));
        }
        process.setProcessEnvironment(environment);
        process.start(TILL, QStringList());
    }
    ~StartedTill()
    {
        process.terminate();
        process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(StartedTill)

    /// Waits until exactly \a text came on standard output; whether the program runs on.
    bool writes(const QByteArray& text)
    {
        QByteArray written;
        return QTest::qWaitFor(
                   [&] { return (written += process.readAllStandardOutput()) == text; }, 30000)
            && process.state() == QProcess::Running;
    }

    /// Waits until \a line was logged on standard error.
    bool logs(const QByteArray& line)
    {
        return QTest::qWaitFor(
            [&] { return (log_ += process.readAllStandardError()).contains(line); }, 30000);
    }

    /// All that is logged until the program was asked to end.
    QByteArray takeLog()
    {
        process.terminate();
        process.waitForFinished();
        return log_ + process.readAllStandardError();
    }

    QProcess process;

private:
    QByteArray log_;
};
