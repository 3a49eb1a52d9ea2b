// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"

/// Every sentence of the command "vendel-central".
namespace CentralSentences {
inline constexpr Sentence usage{
    "Usage : vendel-central --preparer URI\n"
    "        vendel-central --envoyer [URI] [--dossier DOSSIER] [--nom NOM]\n"
    "        vendel-central --suivre [URI] [--dossier DOSSIER] [--nom NOM]\n"
    "        vendel-central --reprendre [URI] [--dossier DOSSIER] [--nom NOM]\n"
    "        vendel-central --aide | --version\n"
    "\n"
    "Porte les ventes de cette caisse dans le livre central, une base PostgreSQL que plusieurs\n"
    "caisses partagent. Sans URI, c'est celle que « vendel --central URI » a retenue.\n"
    "\n"
    "  --preparer URI     crée le livre dans cette base, ou le met à jour\n"
    "  --envoyer [URI]    envoie ce qui est nouveau\n"
    "  --suivre [URI]     reste, et envoie chaque vente dans les dix secondes\n"
    "  --reprendre [URI]  continue à la place de la caisse dont elle a les ventes, et envoie\n"
    "  --dossier DOSSIER  les données de la caisse, d'ordinaire « %1 »\n"
    "  --nom NOM          le nom de la caisse dans le livre, retenu ; d'abord celui de la machine\n"
    "  --langue en|fr     parle anglais ou français cette fois\n"
    "  --aide             montre ce texte\n"
    "  --version          montre la version\n"
    "\n"
    "URI : postgresql://UTILISATEUR@MACHINE/BASE?sslmode=verify-full\n"
    "Le mot de passe est lu dans le fichier ~/.pgpass.\n",
    "Usage: vendel-central --preparer URI\n"
    "       vendel-central --envoyer [URI] [--dossier FOLDER] [--nom NAME]\n"
    "       vendel-central --suivre [URI] [--dossier FOLDER] [--nom NAME]\n"
    "       vendel-central --reprendre [URI] [--dossier FOLDER] [--nom NAME]\n"
    "       vendel-central --help | --version\n"
    "\n"
    "Carries this till's sales into the central book, a PostgreSQL database that several tills\n"
    "share. Without a URI, it is the one that \"vendel --central URI\" has remembered.\n"
    "\n"
    "  --preparer URI    makes the book in this database, or upgrades it\n"
    "  --envoyer [URI]   sends what is new\n"
    "  --suivre [URI]    stays, and sends each sale within ten seconds\n"
    "  --reprendre [URI] goes on in the place of the till whose sales it has, and sends\n"
    "  --dossier FOLDER  the till's data, \"%1\" by default\n"
    "  --nom NAME        the till's name in the book, remembered; at first the machine's\n"
    "  --langue en|fr    speaks English or French this time\n"
    "  --help            shows this text\n"
    "  --version         shows the version\n"
    "\n"
    "URI: postgresql://USER@HOST/DATABASE?sslmode=verify-full\n"
    "The password is read from the file ~/.pgpass.\n"};

inline constexpr Sentence prepared{"Le livre central est prêt.", "The central book is ready."};
inline constexpr Sentence sent{"Le livre central a reçu %1 nouvelle(s) ligne(s) de vente.",
    "The central book has received %1 new line(s) of sales."};
inline constexpr Sentence oddLines{
    "%1 ligne(s) sans date ni prix utilisables sont gardées à part dans le livre central.",
    "%1 line(s) without a usable date or price are kept aside in the central book."};

inline constexpr Sentence soldByAnother{
    "Les ventes de cette caisse sont déjà dans le livre central, comme celles de « %1 » : si cette "
    "machine la remplace, « vendel-central --reprendre [URI] » continue à sa place ; si c'est une "
    "caisse de plus, purgez-en d'abord les ventes de l'autre.",
    "This till's sales are in the central book already, as those of \"%1\": if this machine "
    "replaces it, \"vendel-central --reprendre [URI]\" goes on in its place; if it is one more "
    "till, purge the other one's sales from it first."};
inline constexpr Sentence soldByNobody{
    "Aucune autre caisse du livre central n'a les ventes de celle-ci : rien n'a été changé.",
    "No other till of the central book has the sales of this one: nothing has been changed."};
inline constexpr Sentence soldBySeveral{
    "Plusieurs caisses du livre central ont en commun avec celle-ci autant de ventes (%1) : rien "
    "n'a été changé.",
    "Several tills of the central book have equally many sales in common with this one (%1): "
    "nothing has been changed."};
inline constexpr Sentence takenOver{
    "Cette caisse continue à la place de « %1 » dans le livre central.",
    "This till goes on in the place of \"%1\" in the central book."};
inline constexpr Sentence nothingToTakeOver{
    "Le livre central a déjà des ventes de cette caisse : il n'y a rien à reprendre.",
    "The central book has sales of this till already: there is nothing to take over."};

inline constexpr Sentence noUri{
    "Aucun livre central n'est retenu : « vendel --central URI » le fait.",
    "No central book is remembered: \"vendel --central URI\" does that."};
inline constexpr Sentence wrongUri{
    "« %1 » n'est pas l'adresse d'une base PostgreSQL (postgresql://MACHINE/BASE).",
    "\"%1\" is not the address of a PostgreSQL database (postgresql://HOST/DATABASE)."};
inline constexpr Sentence passwordInUri{
    "L'adresse contient un mot de passe : sa place est dans le fichier ~/.pgpass.",
    "The address contains a password: its place is the file ~/.pgpass."};
inline constexpr Sentence unreachable{
    "Le livre central ne répond pas (%1).", "The central book does not answer (%1)."};
inline constexpr Sentence noServer{"pas de serveur ou pas de réseau", "no server or no network"};
inline constexpr Sentence tooSlow{"pas de réponse à temps", "no answer in time"};
inline constexpr Sentence connectionLost{"la liaison a été coupée", "the connection was cut"};
inline constexpr Sentence tooMany{
    "le serveur a trop de liaisons", "the server has too many connections"};
inline constexpr Sentence startsOrEnds{
    "le serveur démarre ou s'arrête", "the server is starting or stopping"};
inline constexpr Sentence wrongPassword{
    "Le livre central refuse le mot de passe de ~/.pgpass, ou n'en trouve pas.",
    "The central book refuses the password in ~/.pgpass, or finds none."};
inline constexpr Sentence noSuchDatabase{
    "Le serveur du livre central n'a pas la base de cette adresse.",
    "The central book's server does not have the database of this address."};
inline constexpr Sentence refused{"Le serveur du livre central refuse la liaison (%1).",
    "The central book's server refuses the connection (%1)."};
inline constexpr Sentence notSecure{
    "La liaison protégée (TLS) avec le livre central n'est pas possible (%1).",
    "The protected connection (TLS) with the central book is not possible (%1)."};
inline constexpr Sentence notUtf8{
    "La base du livre central doit être en UTF-8, et celle-ci est en %1.",
    "The central book's database has to be in UTF-8, and this one is in %1."};
inline constexpr Sentence noRight{
    "Cet utilisateur n'a pas le droit d'écrire dans le livre central.",
    "This user may not write into the central book."};
inline constexpr Sentence notPrepared{
    "La base de données n'est pas prête : « vendel-central --preparer URI » la prépare.",
    "The database is not ready: \"vendel-central --preparer URI\" prepares it."};
inline constexpr Sentence later{
    "Le livre central est d'une version plus récente : Vendel est à mettre à jour sur cette "
    "machine.",
    "The central book is of a later version: Vendel has to be upgraded on this machine."};
inline constexpr Sentence full{
    "Le livre central n'a plus de place.", "The central book has no room left."};
inline constexpr Sentence serverSays{
    "Le livre central répond par une erreur (%1).", "The central book answers with an error (%1)."};
inline constexpr Sentence disturbed{
    "La base de la caisse change sans cesse : les ventes seront envoyées plus tard.",
    "The till's database changes all the time: the sales will be sent later."};
inline constexpr Sentence noTill{"Le dossier « %1 » n'existe pas ou ne peut pas être écrit.",
    "The folder \"%1\" does not exist or cannot be written."};
inline constexpr Sentence identityDamaged{
    "Le fichier « %1/.identite » est endommagé : remettez-le d'une sauvegarde du dossier. "
    "Sans lui, le livre central prendrait cette caisse pour une autre.",
    "The file \"%1/.identite\" is damaged: put it back from a backup of the folder. Without it, "
    "the central book would take this till for another one."};
inline constexpr Sentence identityNotMade{
    "L'identité de la caisse n'a pas pu être écrite dans « %1 » (%2).",
    "The till's identity could not be written into \"%1\" (%2)."};
} // namespace CentralSentences
