// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// The languages that the till speaks.
enum class Language
{
    French,
    English
};

/// What the launcher can say; %1 to %3 are replaced.
struct Sentence
{
    std::string_view french;
    std::string_view english;
};

/// A text in both languages, because a failure does not know in which one it will be said.
struct Words
{
    Words(const char* same);
    Words(std::string same);
    Words(const Sentence& sentence);
    /// \a sentence with %1, %2, ... replaced by \a inserted.
    Words(const Sentence& sentence, std::initializer_list<Words> inserted);

    std::string french;
    std::string english;
};

/// \a words in \a language.
const std::string& say(Language language, const Words& words);

/// Every sentence of the launcher.
namespace Sentences {
inline constexpr Sentence usage{
    "Usage : vendel [--langue en|fr]\n"
    "        vendel --restaurer [COPIE]\n"
    "        vendel --copies-vers DOSSIER\n"
    "        vendel --aide | --guide | --version\n"
    "\n"
    "Démarre la caisse dans « %1 ».\n"
    "\n"
    "  --langue en|fr         démarre en anglais ou en français et s'en souvient\n"
    "  --restaurer [COPIE]    montre les copies de la base et en remet une en place\n"
    "  --copies-vers DOSSIER  garde aussi les copies dans ce dossier ; « - » l'oublie\n"
    "  --aide                 montre ce texte\n"
    "  --guide                ouvre le guide de la caisse dans le navigateur\n"
    "  --version              montre la version\n",
    "Usage: vendel [--langue en|fr]\n"
    "       vendel --restaurer [COPY]\n"
    "       vendel --copies-vers FOLDER\n"
    "       vendel --help | --guide | --version\n"
    "\n"
    "Starts the till in \"%1\".\n"
    "\n"
    "  --langue en|fr        starts in English or French and remembers it\n"
    "  --restaurer [COPY]    shows the copies of the database and puts one back\n"
    "  --copies-vers FOLDER  keeps the copies in this folder too; \"-\" forgets it\n"
    "  --help                shows this text\n"
    "  --guide               opens the guide, which is French, in the browser\n"
    "  --version             shows the version\n"};

inline constexpr Sentence noHome{
    "Aucun dossier personnel n'est connu pour les données de la caisse.",
    "No home directory is known for the till's data."};
inline constexpr Sentence alreadyOpen{"La caisse est déjà ouverte sur les données de « %1 ».",
    "The till is already open on the data in \"%1\"."};
inline constexpr Sentence programMissing{"Le programme « %1 » manque : Vendel est à réinstaller.",
    "The program \"%1\" is missing: Vendel has to be installed again."};
inline constexpr Sentence noTranslation{
    "La traduction anglaise n'est pas installée.", "The English translation is not installed."};

inline constexpr Sentence guideMissing{"Le guide « %1 » manque : Vendel est à réinstaller.",
    "The guide \"%1\" is missing: Vendel has to be installed again."};
inline constexpr Sentence guideNotShown{
    "Aucun navigateur ne s'est ouvert ; le guide est dans le fichier « %1 ».",
    "No browser has opened; the guide is in the file \"%1\"."};

inline constexpr Sentence dataUnusable{"Le dossier de données « %1 » est inutilisable (%2) ; les "
                                       "copies de la base sont dans « %1/copies ».",
    "The data directory \"%1\" cannot be used (%2); the copies of the database are in "
    "\"%1/copies\"."};
inline constexpr Sentence notMade{"il ne peut pas être créé", "it cannot be made"};
inline constexpr Sentence notDirectory{"ce n'est pas un dossier", "it is not a directory"};
inline constexpr Sentence notReadable{"il ne peut pas être lu", "it cannot be read"};
inline constexpr Sentence notWritable{"rien ne peut y être écrit", "nothing can be written there"};
inline constexpr Sentence notOurs{
    "il appartient à quelqu'un d'autre", "it belongs to somebody else"};
inline constexpr Sentence fileNotWritten{
    "« %1 » ne peut pas y être écrit", "\"%1\" cannot be written there"};
inline constexpr Sentence notMoved{"rien ne peut y être déplacé", "nothing can be moved there"};
inline constexpr Sentence notKept{"la base à remplacer ne peut pas y être gardée",
    "the database to be replaced cannot be kept there"};

inline constexpr Sentence databaseUnusable{
    "La base de données « %1/Vendel.db » est inutilisable (%2) ; les copies sont dans « %1/copies "
    "» et « vendel --restaurer » en remet une en place.",
    "The database \"%1/Vendel.db\" cannot be used (%2); the copies are in \"%1/copies\" and "
    "\"vendel --restaurer\" puts one back."};
inline constexpr Sentence fileIsNone{"« %1 » n'est pas un fichier", "\"%1\" is not a file"};
inline constexpr Sentence notFile{"ce n'est pas un fichier", "it is not a file"};
inline constexpr Sentence notAccessible{
    "elle ne peut pas être lue et écrite", "it cannot be read and written"};
inline constexpr Sentence lacksTables{"il lui manque des tables", "it lacks tables"};
inline constexpr Sentence foreignContent{"elle contient autre chose que les tables de la caisse",
    "it contains something other than the till's tables"};
inline constexpr Sentence foreignJournal{
    "son journal n'est pas celui de la caisse", "its journal is not the till's"};
inline constexpr Sentence occupied{"un autre programme l'occupe", "another program is using it"};
inline constexpr Sentence notDatabase{"ce n'est pas une base de données", "it is not a database"};
inline constexpr Sentence damaged{"elle est endommagée", "it is damaged"};
inline constexpr Sentence diskFull{"le disque est plein", "the disk is full"};
inline constexpr Sentence diskFails{
    "le disque répond par des erreurs", "the disk answers with errors"};
inline constexpr Sentence machineExhausted{
    "la machine n'a plus assez de mémoire", "the machine is short of memory"};
inline constexpr Sentence systemSays{"le système dit : « %1 »", "the system says \"%1\""};
inline constexpr Sentence tooLong{"son contrôle prend trop de temps", "checking it takes too long"};
inline constexpr Sentence setAside{
    "Une base de données inachevée et vide est mise de côté : « %1 ».",
    "An unfinished, empty database is set aside: \"%1\"."};

inline constexpr Sentence noDailyCopy{
    "La copie du jour de la base n'a pas pu être faite dans « %1/copies ».",
    "Today's copy of the database could not be made in \"%1/copies\"."};
inline constexpr Sentence noSuchFolder{"Le dossier « %1 » n'existe pas ou ne peut pas être écrit.",
    "The folder \"%1\" does not exist or cannot be written."};
inline constexpr Sentence folderOfData{
    "Le dossier « %1 » est déjà celui de la caisse : une copie n'y serait pas à l'abri.",
    "The folder \"%1\" is the till's own: a copy would not be safe there."};
inline constexpr Sentence notCarried{"La copie de la base n'a pas pu être mise dans « %1 » (%2).",
    "The copy of the database could not be put into \"%1\" (%2)."};
inline constexpr Sentence copiesGoTo{
    "Chaque copie ira aussi dans « %1 ».", "Each copy will go to \"%1\" too."};
inline constexpr Sentence copiesStay{
    "Les copies n'iront plus ailleurs.", "The copies will go nowhere else any more."};
inline constexpr Sentence notReachedFor{
    "Aucune copie n'a atteint « %1 » depuis le %2 : branchez-y le support, ou choisissez un autre "
    "dossier avec « vendel --copies-vers DOSSIER ».",
    "No copy has reached \"%1\" since %2: plug the medium in, or choose another folder with "
    "\"vendel --copies-vers FOLDER\"."};

inline constexpr Sentence whichCopy{
    "Quelle copie de la base remettre en place ?", "Which copy of the database shall be put back?"};
inline constexpr Sentence noCopies{"Il n'y a aucune copie de la base dans « %1/copies ».",
    "There is no copy of the database in \"%1/copies\"."};
inline constexpr Sentence noSuchCopy{
    "Il n'y a pas de copie « %1 » dans « %2/copies ».", R"(There is no copy "%1" in "%2/copies".)"};
inline constexpr Sentence copyDamaged{
    "La copie « %1 » est endommagée ; la base n'a pas été changée.",
    "The copy \"%1\" is damaged; the database has not been changed."};
inline constexpr Sentence copyRefused{
    "La copie « %1 » est refusée (%2) ; la base n'a pas été changée.",
    "The copy \"%1\" is refused (%2); the database has not been changed."};
inline constexpr Sentence restored{
    "La copie « %1 » est remise en place%2.", "The copy \"%1\" is back in place%2."};
inline constexpr Sentence replacedKept{
    " ; la base remplacée est gardée dans « %1 »", "; the replaced database is kept in \"%1\""};

inline constexpr Sentence notStarted{
    "La caisse ne peut pas être démarrée (%1).", "The till cannot be started (%1)."};
inline constexpr Sentence startedAgain{
    "La caisse s'est arrêtée d'elle-même (signal %1) ; elle redémarre.",
    "The till ended by itself (signal %1); it starts again."};
inline constexpr Sentence endedTwice{"La caisse s'est arrêtée deux fois d'elle-même en une minute "
                                     "(signal %1) ; ce qu'elle a dit est dans « %2/vendel.log ».",
    "The till ended by itself twice within a minute (signal %1); what it said is in "
    "\"%2/vendel.log\"."};
} // namespace Sentences
