// SPDX-License-Identifier: MIT
#include "tests/central/BookServer.h"

#include "central/Schema.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QUrl>

#include <algorithm>
#include <csignal>

#include <fcntl.h>
#include <libpq-fe.h>
#include <pqxx/nontransaction>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
constexpr uid_t nobody = 65534;

/// Starts \a program of PostgreSQL's. It refuses to run as root, and ends with the test.
pid_t begin(std::vector<std::string> command, const QString& log)
{
    const pid_t child = fork();
    if (child != 0) {
        return child;
    }
    command.front() = std::string(VENDEL_POSTGRES) + "/" + command.front();
    const int output
        = open(QFile::encodeName(log).constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    if (geteuid() == 0
        && (setresgid(nobody, nobody, nobody) != 0 || setresuid(nobody, nobody, nobody) != 0)) {
        _exit(EXIT_FAILURE);
    }
    prctl(PR_SET_PDEATHSIG, SIGQUIT);
    setenv("LC_ALL", "C.UTF-8", 1);
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (std::string& part : command) {
        arguments.push_back(part.data());
    }
    arguments.push_back(nullptr);
    execv(arguments.front(), arguments.data());
    _exit(EXIT_FAILURE);
}
} // namespace

BookServer& BookServer::get()
{
    static BookServer server({});
    return server;
}

BookServer::BookServer(std::vector<std::string> settings, const std::string& password)
    : folder_(QDir::tempPath() + "/vendel-pg-XXXXXX")
    , settings_(std::move(settings))
{
    const QString path = folder_.path();
    QDir(path).mkdir("data");
    QFile secret(path + "/secret");
    if (!secret.open(QIODevice::WriteOnly) || secret.write(password.c_str()) < 0) {
        qFatal("secret");
    }
    secret.close();
    if (geteuid() == 0) {
        for (const QString& folder : {path, path + "/data", secret.fileName()}) {
            if (chown(QFile::encodeName(folder).constData(), nobody, nobody) != 0) {
                qFatal("chown");
            }
        }
    }
    std::vector<std::string> command{"initdb", "-D", folder() + "/data", "-U", "owner",
        "--no-locale", "-E", "UTF8", "-N", "-A", password.empty() ? "trust" : "scram-sha-256"};
    if (!password.empty()) {
        command.push_back("--pwfile=" + folder() + "/secret");
    }
    const pid_t making = begin(command, "/dev/null");
    int state = 0;
    if (waitpid(making, &state, 0) != making || state != 0) {
        qFatal("initdb");
    }
    start();
}

BookServer::~BookServer() { end(SIGQUIT); }

void BookServer::start()
{
    // What was written is safe in the system's memory when the server crashes: only a crash of the
    // machine would need more.
    std::vector<std::string> command{"postgres", "-D", folder() + "/data", "-k", folder(), "-c",
        "listen_addresses=", "-c", "fsync=off", "-c", "max_connections=120", "-c",
        "shared_buffers=32MB", "-c", "autovacuum=off"};
    for (const std::string& setting : settings_) {
        command.insert(command.end(), {"-c", setting});
    }
    server_ = begin(command, "/dev/null");
    constexpr int patienceMs = 30000;
    QElapsedTimer waited;
    waited.start();
    while (PQping(uri("postgres").c_str()) != PQPING_OK) {
        if (waited.elapsed() > patienceMs) {
            qFatal("PostgreSQL does not start");
        }
        QThread::msleep(5);
    }
}

void BookServer::end(int signal)
{
    if (server_ > 0) {
        kill(server_, signal);
        while (waitpid(server_, nullptr, WNOHANG) == 0) {
            // A crash waits for nobody, and the server would wait for a connection whose first
            // words are still on their way.
            if (signal == SIGQUIT) {
                signalChildren(SIGKILL);
            }
            QThread::msleep(5);
        }
        server_ = -1;
    }
}

void BookServer::crash() { end(SIGQUIT); }

void BookServer::stop() { end(SIGINT); }

void BookServer::signalChildren(int signal) const
{
    QFile file(QString("/proc/%1/task/%1/children").arg(server_));
    if (file.open(QIODevice::ReadOnly)) {
        const auto children = file.readAll().simplified().split(' ');
        for (const QByteArray& child : children) {
            if (child.toInt() > 0) {
                kill(child.toInt(), signal);
            }
        }
    }
}

void BookServer::freeze(bool isFrozen) const
{
    const int signal = isFrozen ? SIGSTOP : SIGCONT;
    signalChildren(signal);
    kill(server_, signal);
}

std::string BookServer::uri(
    const std::string& name, const std::string& user, const std::string& folder) const
{
    const QString path = QString::fromStdString(folder.empty() ? this->folder() : folder);
    const auto port = std::find_if(settings_.begin(), settings_.end(),
        [](const std::string& setting) { return setting.starts_with("port="); });
    return "postgresql://" + user + "@" + QUrl::toPercentEncoding(path).toStdString() + "/" + name
        + (port == settings_.end() ? std::string() : '?' + *port);
}

std::string BookServer::newDatabase()
{
    const std::string name = "book" + std::to_string(++databases_);
    rows("postgres", "create database " + name);
    return name;
}

std::string BookServer::newBook()
{
    const std::string name = newDatabase();
    Schema::prepare(uri(name));
    return name;
}

QStringList BookServer::rows(const std::string& name, const std::string& sql) const
{
    pqxx::connection connection(uri(name));
    pqxx::nontransaction work(connection);
    QStringList found;
    for (const auto& row : work.exec(sql)) {
        QStringList cells;
        for (const auto& cell : row) {
            cells.append(QString::fromUtf8(cell.c_str()));
        }
        found.append(cells.join('|'));
    }
    return found;
}

QString BookServer::cell(const std::string& name, const std::string& sql) const
{
    return rows(name, sql).value(0).section('|', 0, 0);
}
