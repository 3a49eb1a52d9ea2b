// SPDX-License-Identifier: MIT
#include "backoffice/Session.h"

#include "launcher/DataFolder.h"
#include "launcher/PlainText.h"
#include "widgets/QtNames.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QTranslator>

#include <clocale>
#include <cstdlib>
#include <iostream>

#include <langinfo.h>

namespace {
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Session)
};

/// Said before there is an application that translates.
constexpr Sentence noDisplay{"Aucun écran n'est disponible pour ouvrir la fenêtre.",
    "There is no display to open the window on."};

/// While the application is made.
Language startLanguage
    = Language::French; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void endWithoutDisplay(
    QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/)
{
    // Where Qt would abort.
    if (type == QtFatalMsg) {
        Session::say(QString::fromStdString(say(startLanguage, noDisplay)));
        std::_Exit(1);
    }
}

/// Qt's remarks on its surroundings would be mailed to the owner every night.
void keepQuiet(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        Session::say(text);
    }
}

QString folderOf(const Order& order)
{
    const QString folder
        = order.folder.isEmpty() ? QString::fromStdString(DataFolder::find()) : order.folder;
    return folder.isEmpty() ? folder : QFileInfo(folder).absoluteFilePath();
}

QLocale localeOf(Language language)
{
    const QLocale system = QLocale::system();
    if (language == Language::French) {
        return system.language() == QLocale::French ? system
                                                    : QLocale(QLocale::French, QLocale::France);
    }
    return system.language() == QLocale::English
        ? system
        : QLocale(QLocale::English, QLocale::UnitedKingdom);
}

std::unique_ptr<QCoreApplication> applicationFor(
    const Order& order, Language language, int& argc, char** argv)
{
    const bool isWindow = order.action == Order::Action::Window;
    if (!isWindow) {
        qInstallMessageHandler(keepQuiet);
    }
    if (!isWindow && (order.action != Order::Action::File || order.kind == Order::Kind::Csv)) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    if (!isWindow) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QApplication>(argc, argv);
    }
    startLanguage = language;
    const QtMessageHandler before = qInstallMessageHandler(endWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(before);
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("vendel-gestion")));
    return application;
}

void install(const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(name, folder)) {
        QCoreApplication::installTranslator(translator);
    }
}
} // namespace

Session::Session(const Order& order, int& argc, char** argv)
    : folder_(folderOf(order))
    , language_(
          order.language.value_or(DataFolder::language(QFile::encodeName(folder_).toStdString())))
    , locale_(localeOf(language_))
    , application_(applicationFor(order, language_, argc, argv))
{
    if (language_ == Language::French) {
        install(QStringLiteral("qtbase_fr"), QtNames::translationsFolder());
    } else {
        install(QStringLiteral("gestion_en"), QStringLiteral(":/i18n"));
    }
}

void Session::useUtf8()
{
    std::setlocale(LC_CTYPE, "");
    if (qstrcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") != 0) {
        return;
    }
    // The C library may lack the language that numbers and dates are written in: it stays.
    const QByteArray all = qgetenv("LC_ALL");
    if (!all.isEmpty()) {
        for (const char* part : {"LC_NUMERIC", "LC_TIME", "LC_MONETARY", "LC_MESSAGES", "LC_ALL"}) {
            qunsetenv(part);
        }
        qputenv("LANG", all);
    }
    qputenv("LC_CTYPE", "C.UTF-8");
    std::setlocale(LC_CTYPE, "");
}

void Session::say(const QString& sentence)
{
    constexpr std::size_t longest = 2000;
    std::cerr << "vendel-gestion: " << plainText(sentence.toStdString(), longest) << '\n';
}

CsvFormat Session::csvFormat() const
{
    const QLocale system = QLocale::system();
    return CsvFormat::of(system.language() == QLocale::C ? locale_ : system);
}

QString Session::noHome()
{
    return Text::tr("Aucun dossier personnel n'est connu pour les données de la caisse : "
                    "--dossier en donne un.");
}

QString Session::usage() const
{
    return Text::tr(
        "Usage : vendel-gestion [VENTES] [--langue fr|en]\n"
        "        vendel-gestion PAGE --du JOUR [--au JOUR] [--taux POURCENT]\n"
        "                       --csv FICHIER | --pdf FICHIER | --png FICHIER\n"
        "                       [--csv-format fr|en] [VENTES] [--langue fr|en]\n"
        "        vendel-gestion --aide | --version\n"
        "VENTES : --dossier DOSSIER, ou --central ADRESSE [--caisse NOM]...\n"
        "\n"
        "Montre les ventes de la caisse, ou écrit une page dans un fichier, sans fenêtre.\n"
        "Les données sont dans « %1 ».\n"
        "\n"
        "  PAGE                  --ventes, --articles, --heures, --consommation ou --cloture\n"
        "                        (la clôture est celle du dernier jour)\n"
        "  --du JOUR, --au JOUR  le premier et le dernier jour, comme 2026-11-30 ; sans --au,\n"
        "                        un seul jour\n"
        "  --taux POURCENT       le taux de TVA à la place de celui de la caisse\n"
        "  --csv FICHIER         écrit le tableau de la page pour un tableur\n"
        "  --pdf, --png FICHIER  écrit la page comme elle s'imprime ; en PNG, sa première feuille\n"
        "                        (FICHIER « - » : la sortie standard)\n"
        "  --csv-format fr|en    « ; » et la virgule, ou « , » et le point ; sinon ceux du système\n"
        "  --dossier DOSSIER     le dossier de données à la place de celui de la caisse\n"
        "  --central ADRESSE     le livre central de plusieurs caisses à la place d'une caisse,\n"
        "                        comme postgresql://utilisateur@serveur/base\n"
        "  --caisse NOM          cette caisse du livre ; répété, plusieurs côte à côte\n"
        "  --langue fr|en        la langue, à la place de celle de la caisse\n"
        "  --aide                montre ce texte\n"
        "  --version             montre la version\n")
        .arg(folder_.isEmpty() ? QStringLiteral("~/.local/share/vendel") : folder_);
}
