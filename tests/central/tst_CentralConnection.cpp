// SPDX-License-Identifier: MIT
#include "base/Descriptor.h"
#include "central/BookError.h"
#include "central/Connection.h"
#include "launcher/BookStatus.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/support/TestProgram.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QUrl>

#include <array>
#include <cstring>
#include <thread>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {
constexpr const char* secret = "tresor-7f3a";

QString uriOf(const std::string& folder, const QString& rest)
{
    return "postgresql://owner@" + QUrl::toPercentEncoding(QString::fromStdString(folder)) + rest;
}

/// A server that answers whoever connects with one error.
class Refusing
{
public:
    Refusing(const QByteArray& state, const QByteArray& says)
        : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{AF_UNIX, {}};
        const QByteArray path = QFile::encodeName(folder_.path() + "/.s.PGSQL.5432");
        std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
        if (bind(socket_.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0
            || listen(socket_.get(), 5) != 0) {
            qFatal("no socket");
        }
        const QByteArray end(1, '\0');
        const QByteArray fields
            = "SFATALAL" + end + "VFATAL" + end + "C" + state + end + "M" + says + end + end;
        const int size = static_cast<int>(fields.size()) + 4;
        answer_ = QByteArray("E") + char(size >> 24) + char(size >> 16) + char(size >> 8)
            + char(size) + fields;
        answering_ = std::thread([this] { answer(); });
    }
    Refusing(const Refusing&) = delete;
    Refusing& operator=(const Refusing&) = delete;
    Refusing(Refusing&&) = delete;
    Refusing& operator=(Refusing&&) = delete;
    ~Refusing()
    {
        shutdown(socket_.get(), SHUT_RDWR);
        answering_.join();
    }

    QString uri() const { return uriOf(folder_.path().toStdString(), "/base"); }

private:
    void answer()
    {
        for (;;) {
            const Descriptor client(accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC));
            if (!client) {
                return;
            }
            std::array<char, 1024> asked{};
            if (read(client.get(), asked.data(), asked.size()) > 0
                && write(
                       client.get(), answer_.constData(), static_cast<std::size_t>(answer_.size()))
                    < 0) {
                return;
            }
        }
    }

    QTemporaryDir folder_;
    Descriptor socket_;
    QByteArray answer_;
    std::thread answering_;
};

/// Sets the file that the user's passwords are read from, until it goes.
class Passwords
{
public:
    explicit Passwords(const QByteArray& lines)
    {
        QFile file(folder_.filePath("pgpass"));
        if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size()) {
            qFatal("no password file");
        }
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        qputenv("PGPASSFILE", QFile::encodeName(file.fileName()));
    }
    Passwords(const Passwords&) = delete;
    Passwords& operator=(const Passwords&) = delete;
    Passwords(Passwords&&) = delete;
    Passwords& operator=(Passwords&&) = delete;
    ~Passwords() { qunsetenv("PGPASSFILE"); }

private:
    QTemporaryDir folder_;
};

/// A certificate for the machine \a name, in files of \a folder that begin with \a name.
void makeCertificate(const QString& folder, const QString& name)
{
    const QString path = folder + "/" + name;
    QProcess process;
    process.start("openssl",
        {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=" + name,
            "-addext", "subjectAltName=DNS:" + name, "-keyout", path + ".key", "-out",
            path + ".crt"});
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("no certificate");
    }
}

/// A port that nobody listens on.
int freePort()
{
    const Descriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (bind(socket.get(), reinterpret_cast<sockaddr*>(&address), size) != 0
        || getsockname(socket.get(), reinterpret_cast<sockaddr*>(&address), &size) != 0) {
        qFatal("no port");
    }
    return ntohs(address.sin_port);
}

void refusedWith(const Said& said, BookStatus status, const QString& sentence)
{
    QCOMPARE(said.errors, sentence + '\n');
    QCOMPARE(said.status, static_cast<int>(status));
    QCOMPARE(said.output, QString());
}
} // namespace

/// How a server lets a till in, or does not.
class TestCentralConnection : public QObject
{
    Q_OBJECT

private slots:
    void aRefusalIsToldInAnyLanguageOfTheServer_data()
    {
        QTest::addColumn<QByteArray>("state");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("password")
            << QByteArray("28P01") << 4
            << "Le livre central refuse le mot de passe de ~/.pgpass, ou n'en trouve pas.";
        QTest::newRow("database") << QByteArray(
            "3D000") << 4 << "Le serveur du livre central n'a pas la base de cette adresse.";
        QTest::newRow("connections") << QByteArray(
            "53300") << 3 << "Le livre central ne répond pas (le serveur a trop de liaisons).";
        QTest::newRow("starting") << QByteArray(
            "57P03") << 3 << "Le livre central ne répond pas (le serveur démarre ou s'arrête).";
        QTest::newRow("no room") << QByteArray("53100") << 8
                                 << "Le livre central n'a plus de place.";
        QTest::newRow("user") << QByteArray("28000") << 4
                              << "Le serveur du livre central refuse la liaison "
                                 "(FATALAL:  zxcv invalid SSL qwer).";
    }
    void aRefusalIsToldInAnyLanguageOfTheServer()
    {
        QFETCH(QByteArray, state);
        QFETCH(int, status);
        QFETCH(QString, sentence);
        const Refusing server(state, "zxcv invalid SSL qwer");
        const SoldTill till;
        refusedWith(till.sendTo(server.uri().toStdString()), BookStatus(status), sentence);
    }

    void aPasswordIsReadFromItsFileAndSaidNowhere()
    {
        const BookServer server({}, secret);
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const QString uri = uriOf(server.folder(), "/postgres");
        const char* refused
            = "Le livre central refuse le mot de passe de ~/.pgpass, ou n'en trouve pas.";
        {
            const Passwords none("");
            refusedWith(till.sendTo(uri.toStdString()), BookStatus::Refused, refused);
        }
        {
            const Passwords wrong("*:*:*:*:faux-0c11\n");
            const Said said = till.sendTo(uri.toStdString());
            refusedWith(said, BookStatus::Refused, refused);
        }
        const Passwords right(QByteArray("*:*:*:owner:") + secret + '\n');
        QCOMPARE(till.command({"--preparer", uri}).status, 0);
        const Said said = till.sendTo(uri.toStdString());
        QCOMPARE(said.errors, QString());
        QCOMPARE(said.output, "Le livre central a reçu 1 nouvelle(s) ligne(s) de vente.\n");
        const QDir folder(till.path());
        const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
        QVERIFY(names.contains(".identite"));
        for (const QString& name : names) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY2(!file.readAll().contains(secret), qPrintable(name));
        }
    }

    void tlsIsAsTheAddressAsksForIt()
    {
        const QTemporaryDir folder;
        makeCertificate(folder.path(), "localhost");
        makeCertificate(folder.path(), "autre");
        const int port = freePort();
        const auto path = [&](const char* name) { return folder.filePath(name); };
        // The server wants a key of its own.
        QVERIFY(QFile::setPermissions(path("localhost.key"), QFile::ReadOwner));
        if (geteuid() == 0) {
            constexpr uid_t nobody = 65534;
            for (const QString& owned :
                {folder.path(), path("localhost.key"), path("localhost.crt"), path("autre.crt")}) {
                QCOMPARE(chown(QFile::encodeName(owned).constData(), nobody, nobody), 0);
            }
        }
        const std::string tcp = "listen_addresses=127.0.0.1";
        const BookServer server({tcp, "port=" + std::to_string(port), "ssl=on",
            "ssl_key_file=" + path("localhost.key").toStdString(),
            "ssl_cert_file=" + path("localhost.crt").toStdString()});
        const auto prepare = [&](const char* machine, const QString& settings) {
            return SoldTill().command({"--preparer",
                QString("postgresql://owner@%1:%2/postgres?%3")
                    .arg(machine)
                    .arg(port)
                    .arg(settings)});
        };
        const QString verified = "sslmode=verify-full&sslrootcert=";
        const Said right = prepare("localhost", verified + path("localhost.crt"));
        QCOMPARE(right.errors, QString());
        QCOMPARE(right.status, 0);
        const QString no
            = "La liaison protégée (TLS) avec le livre central n'est pas possible (%1).";
        refusedWith(prepare("localhost", verified + path("autre.crt")), BookStatus::Refused,
            no.arg("SSL error: certificate verify failed"));
        refusedWith(prepare("localhost", verified + "/rien"), BookStatus::Refused,
            no.arg("root certificate file \"/rien\" does not exist"));
        const Said other = prepare("127.0.0.1", verified + path("localhost.crt"));
        QCOMPARE(other.status, static_cast<int>(BookStatus::Refused));
        QVERIFY2(other.errors.contains("does not match host name"), qPrintable(other.errors));
    }

    void aServerWithoutTlsIsNotTakenForNone()
    {
        const int port = freePort();
        const BookServer server({"listen_addresses=127.0.0.1", "port=" + std::to_string(port)});
        refusedWith(SoldTill().sendTo("postgresql://owner@localhost:" + std::to_string(port)
                        + "/postgres?sslmode=require"),
            BookStatus::Refused,
            "La liaison protégée (TLS) avec le livre central n'est pas possible "
            "(server does not support SSL, but SSL was required).");
    }

    void aWrongSettingIsTheAddressesFault()
    {
        BookServer& server = BookServer::get();
        for (const char* setting :
            {"sslmode=grosse", "sslmod=require", "connect_timeout=abc", "options=-c%20foo=bar"}) {
            const Said said = SoldTill().sendTo(server.uri("postgres") + "?" + setting);
            QCOMPARE(said.status, static_cast<int>(BookStatus::BadUsage));
            QVERIFY2(said.errors.contains("n'est pas l'adresse"), qPrintable(said.errors));
        }
    }

    void theRememberedBookIsSentToAndNotedAsReached()
    {
        BookServer& server = BookServer::get();
        const std::string book = server.newBook();
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        QFile remembered(till.path() + "/central");
        QVERIFY(remembered.open(QIODevice::WriteOnly));
        remembered.write(QByteArray::fromStdString(server.uri(book)) + '\n');
        remembered.close();
        QFile reached(till.path() + "/.central-vu");
        QCOMPARE(till.sendTo(server.uri(server.newBook())).status, 0);
        QVERIFY(!reached.exists());
        QCOMPARE(till.command({"--envoyer"}).output,
            "Le livre central a reçu 1 nouvelle(s) ligne(s) de vente.\n");
        QVERIFY(reached.open(QIODevice::ReadOnly));
        const QDateTime moment = QDateTime::fromString(
            QString::fromLatin1(reached.readAll()), "yyyy-MM-dd HH:mm:ss\n");
        constexpr qint64 minute = 60;
        QVERIFY(moment.isValid() && qAbs(moment.secsTo(QDateTime::currentDateTime())) < minute);
        QCOMPARE(SoldTill::bookLines(book), till.lines());
    }

    void textsAreUtf8WhateverTheMachineIsSetTo()
    {
        const std::string book = BookServer::get().newBook();
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000", "Café à 1 €");
        qputenv("PGCLIENTENCODING", "LATIN1");
        till.sendTo(BookServer::get().uri(book));
        qunsetenv("PGCLIENTENCODING");
        QCOMPARE(till.sendTo(BookServer::get().uri(book)).output,
            "Le livre central a reçu 0 nouvelle(s) ligne(s) de vente.\n");
        QCOMPARE(BookServer::get().cell(book, "select name from vendel.name"), "Café à 1 €");
    }

    void onlyAnUpgradeMayTakeItsTime()
    {
        const std::string uri = BookServer::get().uri("postgres");
        const auto wait = [](pqxx::work& transaction) { transaction.exec("select pg_sleep(1.5)"); };
        Connection hasty(uri, std::chrono::seconds(1));
        QVERIFY_EXCEPTION_THROWN(hasty.transact(wait), BookError);
        Connection(uri, Connection::endless).transact(wait);
    }

    void aDatabaseThatLacksLettersIsRefused()
    {
        BookServer& server = BookServer::get();
        server.rows("postgres", "drop database if exists latin");
        server.rows("postgres",
            "create database latin encoding 'LATIN1' lc_collate 'C' lc_ctype 'C' "
            "template template0");
        refusedWith(SoldTill().command({"--preparer", QString::fromStdString(server.uri("latin"))}),
            BookStatus::NotPrepared,
            "La base du livre central doit être en UTF-8, et celle-ci est en LATIN1.");
        QCOMPARE(server.cell("latin", "select count(*) from pg_namespace where nspname = 'vendel'"),
            "0");
    }

    void whatIsSaidOfTheTillIsEnglishToo()
    {
        const std::string book = BookServer::get().newBook();
        const SoldTill till;
        QVERIFY(QFile::remove(till.file()));
        const Said said = till.command(
            {"--envoyer", QString::fromStdString(BookServer::get().uri(book)), "--langue", "en"});
        QCOMPARE(said.status, static_cast<int>(BookStatus::Till));
        QVERIFY2(said.errors.contains("has no database of the till"), qPrintable(said.errors));
    }
};

VENDEL_TEST(TestCentralConnection)
#include "tst_CentralConnection.moc"
