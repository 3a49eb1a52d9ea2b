// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTemporaryDir>

#include <string>
#include <vector>

#include <sys/types.h>

/// A PostgreSQL of the test program's own, in a folder of its own, reached by a socket in it. The
/// one that most tests share is started when it is first needed, and ends with the program.
class BookServer
{
public:
    /// The program's one.
    static BookServer& get();
    /// One more, with \a settings like "ssl=on"; it asks for a password where \a password is one,
    /// the user's "owner".
    explicit BookServer(std::vector<std::string> settings, const std::string& password = {});

    BookServer(const BookServer&) = delete;
    BookServer& operator=(const BookServer&) = delete;
    BookServer(BookServer&&) = delete;
    BookServer& operator=(BookServer&&) = delete;
    ~BookServer();

    /// The URI of the database \a name for \a user, through the socket in \a folder, or the
    /// server's own.
    std::string uri(const std::string& name, const std::string& user = "owner",
        const std::string& folder = {}) const;
    /// The name of a new empty database.
    std::string newDatabase();
    /// The name of a new database with a book in it.
    std::string newBook();

    /// The rows of \a sql in the database \a name, cells joined by "|".
    QStringList rows(const std::string& name, const std::string& sql) const;
    /// The first cell of rows().
    QString cell(const std::string& name, const std::string& sql) const;

    /// Ends the server as a crash does, and waits for it.
    void crash();
    /// Ends it in order.
    void stop();
    /// Starts it again.
    void start();
    /// Stops its processes, as a machine that hangs, and lets them go on.
    void freeze(bool isFrozen) const;

    /// The folder of its socket.
    std::string folder() const { return folder_.path().toStdString(); }

private:
    void end(int signal);
    void signalChildren(int signal) const;

    QTemporaryDir folder_;
    std::vector<std::string> settings_;
    pid_t server_ = -1;
    int databases_ = 0;
};
