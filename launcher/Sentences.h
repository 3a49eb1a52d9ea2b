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
    "Usage : vendel [--langue en|fr] [--taille TAILLE]\n"
    "        vendel --restaurer [COPIE]\n"
    "        vendel --copies-vers DOSSIER\n"
    "        vendel --central URI\n"
    "        vendel --etat\n"
    "        vendel --aide | --guide | --version\n"
    "\n"
    "Démarre la caisse dans « %1 ».\n"
    "\n"
    "  --langue en|fr         démarre en anglais ou en français et s'en souvient\n"
    "  --taille TAILLE        démarre à cette taille et s'en souvient : 100 à 300 (pour cent),\n"
    "                         ecran (aussi grand que possible) ou auto (celle du bureau)\n"
    "  --restaurer [COPIE]    montre les copies de la base et en remet une en place\n"
    "  --copies-vers DOSSIER  garde aussi les copies dans ce dossier ; « - » l'oublie\n"
    "  --central URI          envoie les ventes au livre central (vendel-central) ; « - » l'oublie\n"
    "  --etat                 dit l'état de la caisse, pour qui aide au téléphone\n"
    "  --aide                 montre ce texte\n"
    "  --guide                ouvre le guide de la caisse dans le navigateur\n"
    "  --version              montre la version\n",
    "Usage: vendel [--langue en|fr] [--taille SIZE]\n"
    "       vendel --restaurer [COPY]\n"
    "       vendel --copies-vers FOLDER\n"
    "       vendel --central URI\n"
    "       vendel --etat\n"
    "       vendel --help | --guide | --version\n"
    "\n"
    "Starts the till in \"%1\".\n"
    "\n"
    "  --langue en|fr        starts in English or French and remembers it\n"
    "  --taille SIZE         starts at this size and remembers it: 100 to 300 (per cent),\n"
    "                        ecran (as large as possible) or auto (the desktop's own)\n"
    "  --restaurer [COPY]    shows the copies of the database and puts one back\n"
    "  --copies-vers FOLDER  keeps the copies in this folder too; \"-\" forgets it\n"
    "  --central URI         sends sales to the central book (vendel-central); \"-\" forgets it\n"
    "  --etat                shows the state of the till, for whoever helps on the telephone\n"
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
inline constexpr Sentence databaseMissing{
    "La base de données manque : la caisse en commence une vide. Les copies sont dans « %1/copies » et "
    "« vendel --restaurer » en remet une en place.",
    "The database is missing: the till begins an empty one. The copies are in \"%1/copies\" and "
    "\"vendel --restaurer\" puts one back."};
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

inline constexpr Sentence noBookUri{
    "« %1 » n'est pas l'adresse d'une base PostgreSQL (postgresql://MACHINE/BASE).",
    "\"%1\" is not the address of a PostgreSQL database (postgresql://HOST/DATABASE)."};
inline constexpr Sentence passwordInBookUri{
    "L'adresse contient un mot de passe : sa place est dans le fichier ~/.pgpass.",
    "The address contains a password: its place is the file ~/.pgpass."};
inline constexpr Sentence bookRemembered{
    "Les ventes iront aussi dans le livre central « %1 », après chaque copie de la base.",
    "Sales will go to the central book \"%1\" too, after each copy of the database."};
inline constexpr Sentence bookRememberedForLater{
    "Les ventes iront aussi dans le livre central « %1 », dès que le paquet vendel-central est "
    "installé.",
    "Sales will go to the central book \"%1\" too, as soon as the package vendel-central is "
    "installed."};
inline constexpr Sentence bookForgotten{
    "Les ventes n'iront plus dans un livre central.", "Sales will go to no central book any more."};
inline constexpr Sentence notSent{"Les ventes n'ont pas pu être envoyées au livre central (%1).",
    "Sales could not be sent to the central book (%1)."};
inline constexpr Sentence bookSilent{"il ne répond pas", "it does not answer"};
inline constexpr Sentence bookRefuses{"il refuse la liaison", "it refuses the connection"};
inline constexpr Sentence bookNotPrepared{"il n'est pas prêt", "it is not ready"};
inline constexpr Sentence bookLater{
    "il est d'une version plus récente", "it is of a later version"};
inline constexpr Sentence bookFull{"il n'a plus de place", "it has no room left"};
inline constexpr Sentence bookAddressWrong{
    "son adresse est inutilisable", "its address cannot be used"};
inline constexpr Sentence bookTillUnreadable{
    "la base de la caisse ne peut pas être lue", "the till's database cannot be read"};
inline constexpr Sentence bookNoIdentity{
    "l'identité de la caisse est inutilisable", "the till's identity cannot be used"};
inline constexpr Sentence bookAnotherTill{
    "ces ventes y sont déjà comme celles d'une autre caisse ; « vendel-central --envoyer » dit que "
    "faire",
    "these sales are there already as those of another till; \"vendel-central --envoyer\" says what "
    "to do"};
inline constexpr Sentence bookTooSlow{"l'envoi prend trop de temps", "sending takes too long"};
inline constexpr Sentence bookFails{
    "« vendel-central --envoyer » dit pourquoi", "\"vendel-central --envoyer\" says why"};

inline constexpr Sentence whichCopy{
    "Quelle copie de la base remettre en place ?", "Which copy of the database shall be put back?"};
inline constexpr Sentence noCopies{"Il n'y a aucune copie de la base dans « %1/copies ».",
    "There is no copy of the database in \"%1/copies\"."};
inline constexpr Sentence noSuchCopy{
    "Il n'y a pas de copie « %1 » dans « %2/copies ».", R"(There is no copy "%1" in "%2/copies".)"};
inline constexpr Sentence noSuchChoice{
    "« %1 » n'est pas dans la liste : tapez un numéro, ou Entrée pour ne rien changer.",
    "\"%1\" is not in the list: type a number, or Enter to change nothing."};
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

// What "vendel --etat" says.
inline constexpr Sentence stateTillOpen{
    "Vendel %1, la caisse est ouverte", "Vendel %1, the till is open"};
inline constexpr Sentence stateTillClosed{
    "Vendel %1, la caisse est fermée", "Vendel %1, the till is closed"};
inline constexpr Sentence stateFolder{"Dossier de données : « %1 »", "Data directory: \"%1\""};
inline constexpr Sentence stateFolderFault{
    "Dossier de données : « %1 » (%2)", "Data directory: \"%1\" (%2)"};
inline constexpr Sentence nothingYet{"il n'y a encore rien, la caisse n'a jamais démarré ici",
    "there is nothing yet, the till has never been started here"};
inline constexpr Sentence stateDatabaseSound{
    "Base de données : %1, en bon état", "Database: %1, sound"};
inline constexpr Sentence stateDatabaseMissing{"Base de données : aucune", "Database: none"};
inline constexpr Sentence stateDatabaseUnusable{
    "Base de données : %1, inutilisable (%2)", "Database: %1, cannot be used (%2)"};
inline constexpr Sentence stateDatabaseUnchecked{
    "Base de données : %1, pas contrôlée (%2)", "Database: %1, not checked (%2)"};
inline constexpr Sentence unknownSize{"taille inconnue", "of unknown size"};
inline constexpr Sentence noRoomToCheck{"il n'y a pas assez de place sur le disque pour cela",
    "there is not enough room on the disk for that"};
inline constexpr Sentence checkNotEnded{
    "son contrôle n'a pas abouti", "checking it did not come to an end"};
inline constexpr Sentence stateCopies{
    "Copies ici : %1, en dernier %2", "Copies here: %1, the last %2"};
inline constexpr Sentence stateNoCopies{"Copies ici : aucune", "Copies here: none"};
inline constexpr Sentence stateCopiesUnreadable{
    "Copies ici : leur dossier ne peut pas être lu", "Copies here: their folder cannot be read"};
inline constexpr Sentence stateNoPlace{
    "Second endroit des copies : aucun", "Second place of the copies: none"};
inline constexpr Sentence statePlace{
    "Second endroit des copies : « %1 », atteint le %2, dernière copie : %3",
    "Second place of the copies: \"%1\", reached on %2, last copy: %3"};
inline constexpr Sentence statePlaceAway{
    "Second endroit des copies : « %1 », absent maintenant, atteint le %2",
    "Second place of the copies: \"%1\", away now, reached on %2"};
inline constexpr Sentence statePlaceUnreadable{
    "Second endroit des copies : « copies-vers » ne peut pas être lu",
    "Second place of the copies: \"copies-vers\" cannot be read"};
inline constexpr Sentence stateBook{
    "Livre central : « %1 », atteint le %2", "Central book: \"%1\", reached on %2"};
inline constexpr Sentence stateBookNever{
    "Livre central : « %1 », jamais atteint", "Central book: \"%1\", never reached"};
inline constexpr Sentence noCopyThere{"aucune", "none"};
inline constexpr Sentence stateNoTrouble{
    "Ennuis dans le journal : aucun", "Trouble in the log: none"};
inline constexpr Sentence stateTrouble{
    "Derniers ennuis dans le journal :", "Last trouble in the log:"};
inline constexpr Sentence stateLogUnreadable{
    "Journal : il ne peut pas être lu", "Log: it cannot be read"};
inline constexpr Sentence statePrinterReady{"Imprimante : branchée, et elle peut être ouverte",
    "Printer: plugged in, and it may be opened"};
inline constexpr Sentence statePrinterForbidden{
    "Imprimante : branchée, mais cet utilisateur n'a pas le droit de l'ouvrir",
    "Printer: plugged in, but this user may not open it"};
inline constexpr Sentence statePrinterClosed{
    "Imprimante : branchée, mais elle ne peut pas être ouverte (%1)",
    "Printer: plugged in, but it cannot be opened (%1)"};
inline constexpr Sentence statePrinterAbsent{
    "Imprimante : absente du bus USB", "Printer: not on the USB bus"};
inline constexpr Sentence statePrinterMissing{
    "Imprimante : absente du bus USB, et les tickets s'impriment sur papier",
    "Printer: not on the USB bus, and receipts are printed on paper"};
inline constexpr Sentence stateNoBus{
    "Imprimante : le bus USB ne peut pas être lu (%1)", "Printer: the USB bus cannot be read (%1)"};
inline constexpr Sentence noAnswer{"pas de réponse", "no answer"};
inline constexpr Sentence stateWell{"Tout va bien.", "All is well."};
inline constexpr Sentence stateNeedsHand{"À voir : %1.", "To be looked at: %1."};
inline constexpr Sentence topicFolder{"le dossier de données", "the data directory"};
inline constexpr Sentence topicDatabase{"la base de données", "the database"};
inline constexpr Sentence topicCopies{"les copies", "the copies"};
inline constexpr Sentence topicPlace{"le second endroit", "the second place"};
inline constexpr Sentence topicBook{"le livre central", "the central book"};
inline constexpr Sentence topicLog{"le journal", "the log"};
inline constexpr Sentence topicPrinter{"l'imprimante", "the printer"};
} // namespace Sentences
