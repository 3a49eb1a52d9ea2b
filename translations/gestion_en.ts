<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
<context>
    <name>ArticlesReport</name>
    <message>
        <source>Les plus vendus</source>
        <translation>Best sellers</translation>
    </message>
    <message>
        <source>Les meilleures recettes</source>
        <translation>Highest takings</translation>
    </message>
    <message>
        <source>Articles vendus</source>
        <translation>Articles sold</translation>
    </message>
    <message>
        <source>Rang</source>
        <translation>Rank</translation>
    </message>
    <message>
        <source>Part cumulée</source>
        <translation>Running share</translation>
    </message>
    <message>
        <source>Au menu, sans vente</source>
        <translation>On the menu, not sold</translation>
    </message>
    <message>
        <source>Prix HT</source>
        <translation>Price before tax</translation>
    </message>
    <message>
        <source>Articles</source>
        <translation>Articles</translation>
    </message>
    <message>
        <source>Articles différents</source>
        <translation>Different articles</translation>
    </message>
    <message>
        <source>Lignes vendues</source>
        <translation>Lines sold</translation>
    </message>
    <message>
        <source>Les parts sont celles du total, remises déduites&#xa0;: la part cumulée peut dépasser 100&#xa0;% avant les remises.</source>
        <translation>Shares are of the total after discounts: the running share may exceed 100% before the discounts.</translation>
    </message>
</context>
<context>
    <name>BadOrder</name>
    <message>
        <source>L&apos;option «&#xa0;%1&#xa0;» n&apos;existe pas.</source>
        <translation>There is no option &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>L&apos;option «&#xa0;%1&#xa0;» attend une valeur.</source>
        <translation>The option &quot;%1&quot; needs a value.</translation>
    </message>
    <message>
        <source>L&apos;option «&#xa0;%1&#xa0;» n&apos;attend pas de valeur.</source>
        <translation>The option &quot;%1&quot; takes no value.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» n&apos;est pas une date&#xa0;: elle s&apos;écrit comme 2026-11-30.</source>
        <translation>&quot;%1&quot; is not a date: write it like 2026-11-30.</translation>
    </message>
    <message>
        <source>Le premier jour demandé est après le dernier, %1.</source>
        <translation>The first day is after the last one, %1.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» n&apos;est pas un taux de 0 à 100 pour cent.</source>
        <translation>&quot;%1&quot; is not a rate of 0 to 100 per cent.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» n&apos;est pas une langue de ce programme&#xa0;: il y a «&#xa0;fr&#xa0;» et «&#xa0;en&#xa0;».</source>
        <translation>&quot;%1&quot; is not a language of this program: there are &quot;fr&quot; and &quot;en&quot;.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» n&apos;est pas un format de CSV&#xa0;: il y a «&#xa0;fr&#xa0;» et «&#xa0;en&#xa0;».</source>
        <translation>&quot;%1&quot; is not a CSV format: there are &quot;fr&quot; and &quot;en&quot;.</translation>
    </message>
    <message>
        <source>Une seule page peut être demandée&#xa0;: «&#xa0;%1&#xa0;» est de trop.</source>
        <translation>Only one page can be asked for: &quot;%1&quot; is one too many.</translation>
    </message>
    <message>
        <source>Un seul fichier peut être demandé&#xa0;: «&#xa0;%1&#xa0;» est de trop.</source>
        <translation>Only one file can be asked for: &quot;%1&quot; is one too many.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» demande une page&#xa0;: --ventes, --articles, --heures, --consommation ou --cloture.</source>
        <translation>&quot;%1&quot; needs a page: --ventes, --articles, --heures, --consommation or --cloture.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» demande un fichier&#xa0;: --csv, --pdf ou --png.</source>
        <translation>&quot;%1&quot; needs a file: --csv, --pdf or --png.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» demande un premier jour&#xa0;: --du 2026-11-30.</source>
        <translation>&quot;%1&quot; needs a first day: --du 2026-11-30.</translation>
    </message>
    <message>
        <source>«&#xa0;--caisse&#xa0;» demande un livre central&#xa0;: --central ADRESSE.</source>
        <translation>&quot;--caisse&quot; needs a central book: --central ADDRESS.</translation>
    </message>
</context>
<context>
    <name>BookDatabase</name>
    <message>
        <source>Il manque à ce système de quoi lire un livre central&#xa0;: installez le paquet libqt%1sql%1-psql.</source>
        <translation>This system lacks what reads a central book: install the package libqt%1sql%1-psql.</translation>
    </message>
    <message>
        <source>L&apos;adresse du livre central contient un mot de passe, que d&apos;autres pourraient lire&#xa0;: il se met dans le fichier ~/.pgpass.</source>
        <translation>The central book&apos;s address contains a password, which others could read: its place is the file ~/.pgpass.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» n&apos;est pas l&apos;adresse d&apos;un livre central, qui s&apos;écrit comme postgresql://utilisateur@serveur/base.</source>
        <translation>&quot;%1&quot; is not the address of a central book, which is written like postgresql://user@server/database.</translation>
    </message>
    <message>
        <source>Le livre central est d&apos;une version plus récente que ce programme, qu&apos;il faut mettre à jour.</source>
        <translation>The central book is of a later version than this program, which has to be upgraded.</translation>
    </message>
    <message>
        <source>Le livre central n&apos;est pas préparé pour cette version&#xa0;: la commande «&#xa0;vendel-central --preparer&#xa0;» le prépare.</source>
        <translation>The central book is not prepared for this version: the command &quot;vendel-central --preparer&quot; prepares it.</translation>
    </message>
    <message>
        <source>Le serveur du livre central refuse le mot de passe&#xa0;: le bon se met dans le fichier ~/.pgpass.</source>
        <translation>The central book&apos;s server refuses the password: the right one goes into the file ~/.pgpass.</translation>
    </message>
    <message>
        <source>L&apos;adresse du livre central ne peut pas être lue&#xa0;: %1</source>
        <translation>The central book&apos;s address cannot be read: %1</translation>
    </message>
    <message>
        <source>Le serveur du livre central refuse la connexion&#xa0;: %1</source>
        <translation>The central book&apos;s server refuses the connection: %1</translation>
    </message>
    <message>
        <source>Le livre central est injoignable&#xa0;: %1</source>
        <translation>The central book cannot be reached: %1</translation>
    </message>
    <message>
        <source>Cet utilisateur n&apos;a pas le droit de lire le livre central.</source>
        <translation>This user has no right to read the central book.</translation>
    </message>
    <message>
        <source>Cette base de données ne contient pas de livre central préparé&#xa0;: la commande «&#xa0;vendel-central --preparer&#xa0;» le prépare.</source>
        <translation>This database contains no prepared central book: the command &quot;vendel-central --preparer&quot; prepares it.</translation>
    </message>
    <message>
        <source>Le serveur du livre central ne répond pas assez vite.</source>
        <translation>The central book&apos;s server does not answer quickly enough.</translation>
    </message>
    <message>
        <source>La connexion au livre central a été coupée.</source>
        <translation>The connection to the central book was cut.</translation>
    </message>
    <message>
        <source>Le livre central ne peut pas être lu&#xa0;: %1</source>
        <translation>The central book cannot be read: %1</translation>
    </message>
</context>
<context>
    <name>BookSource</name>
    <message>
        <source>Aucune caisse n&apos;a encore envoyé de ventes au livre central.</source>
        <translation>No till has sent sales to the central book yet.</translation>
    </message>
    <message>
        <source>Le livre central n&apos;a pas de caisse «&#xa0;%1&#xa0;». Il a&#xa0;: %2.</source>
        <translation>The central book has no till &quot;%1&quot;. It has: %2.</translation>
    </message>
    <message>
        <source>%1 (%2&#xa0;%)</source>
        <translation>%1 (%2%)</translation>
    </message>
    <message>
        <source>La TVA est calculée à un seul taux, mais des caisses en ont un autre&#xa0;: %1.</source>
        <translation>Tax is computed at a single rate, but some tills have another: %1.</translation>
    </message>
</context>
<context>
    <name>ChartDrawing</name>
    <message>
        <source>%1&#xa0;: rien dans cette période</source>
        <translation>%1: nothing in this period</translation>
    </message>
    <message>
        <source>%1&#xa0;: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ClosingReport</name>
    <message>
        <source>Lignes vendues</source>
        <translation>Lines sold</translation>
    </message>
    <message>
        <source>Première heure de vente</source>
        <translation>First hour of sale</translation>
    </message>
    <message>
        <source>Dernière heure de vente</source>
        <translation>Last hour of sale</translation>
    </message>
    <message>
        <source>Par heure</source>
        <translation>By hour</translation>
    </message>
    <message>
        <source>Par article</source>
        <translation>By article</translation>
    </message>
    <message>
        <source>Autres (%1 articles)</source>
        <translation>Others (%1 articles)</translation>
    </message>
    <message>
        <source>Cette page récapitule les ventes que la caisse a encore en mémoire. Ce n&apos;est pas un journal scellé&#xa0;: une purge efface des ventes, et la page d&apos;un même jour peut alors changer.</source>
        <translation>This page sums up the sales that the till still has. It is not a sealed journal: a purge deletes sales, and the page of the same day may then change.</translation>
    </message>
    <message>
        <source>La caisse n&apos;est pas certifiée comme la loi française le demande aux entreprises soumises à la TVA (article 286, I, 3° bis du code général des impôts)&#xa0;: demandez à votre comptable ce qui vous est nécessaire.</source>
        <translation>The till is not certified as French law asks of businesses under VAT (article 286, I, 3° bis of the general tax code): ask your accountant what you need.</translation>
    </message>
    <message>
        <source>Clôture</source>
        <translation>Closing</translation>
    </message>
</context>
<context>
    <name>CsvRows</name>
    <message>
        <source>Ligne %1&#xa0;: trop de colonnes.</source>
        <translation>Line %1: too many columns.</translation>
    </message>
    <message>
        <source>Le guillemet de la ligne %1 n&apos;est jamais fermé.</source>
        <translation>The quote opened in line %1 is never closed.</translation>
    </message>
</context>
<context>
    <name>HeatMapDrawing</name>
    <message>
        <source>Aucune vente</source>
        <translation>No sales</translation>
    </message>
    <message>
        <source>moins</source>
        <translation>less</translation>
    </message>
    <message>
        <source>plus (jusqu&apos;à %1)</source>
        <translation>more (up to %1)</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>more</translation>
    </message>
</context>
<context>
    <name>HoursReport</name>
    <message>
        <source>Total HT par jour de la semaine et par heure</source>
        <translation>Takings before tax by weekday and hour</translation>
    </message>
    <message>
        <source>Total HT par heure</source>
        <translation>Takings before tax by hour</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Par jour de la semaine</source>
        <translation>By weekday</translation>
    </message>
    <message>
        <source>Jours</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>Moyenne par jour</source>
        <translation>Mean per day</translation>
    </message>
    <message>
        <source>Meilleure heure</source>
        <translation>Best hour</translation>
    </message>
    <message>
        <source>Meilleur jour de la semaine</source>
        <translation>Best weekday</translation>
    </message>
    <message>
        <source>%1 en moyenne</source>
        <translation>%1 on average</translation>
    </message>
    <message>
        <source>Heures</source>
        <translation>Hours</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Une copie de la base est en train d&apos;être remise en place&#xa0;: recommencez quand c&apos;est fini. Rien n&apos;est changé.</source>
        <translation>A copy of the database is being put back: try again when that is done. Nothing is changed.</translation>
    </message>
    <message>
        <source>Le dossier «&#xa0;%1&#xa0;» ne peut pas être ouvert. Rien n&apos;est changé.</source>
        <translation>The folder &quot;%1&quot; cannot be opened. Nothing is changed.</translation>
    </message>
    <message>
        <source>La base de données n&apos;a pas accepté les changements&#xa0;: elle est occupée, protégée, ou le disque est plein. Rien n&apos;est changé.</source>
        <translation>The database did not take the changes: it is in use, protected, or the disk is full. Nothing is changed.</translation>
    </message>
    <message>
        <source>Le dossier «&#xa0;%1&#xa0;» ne peut pas être ouvert.</source>
        <translation>The folder &quot;%1&quot; cannot be opened.</translation>
    </message>
    <message>
        <source>le disque est plein</source>
        <translation>the disk is full</translation>
    </message>
    <message>
        <source>le dossier ne peut pas être écrit</source>
        <translation>the folder cannot be written to</translation>
    </message>
    <message>
        <source>la base est occupée</source>
        <translation>the database is in use</translation>
    </message>
    <message>
        <source>la base n&apos;est pas celle de la caisse, ou elle est endommagée</source>
        <translation>the database is not the till&apos;s, or it is damaged</translation>
    </message>
    <message>
        <source>le disque est plein ou défaillant, ou la base est endommagée</source>
        <translation>the disk is full or failing, or the database is damaged</translation>
    </message>
    <message>
        <source>La copie d&apos;avant l&apos;import n&apos;est pas faite&#xa0;: %1. Rien n&apos;est changé.</source>
        <translation>The copy before the import was not made: %1. Nothing is changed.</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Importer le menu</source>
        <translation>Import the Menu</translation>
    </message>
    <message>
        <source>Importer les recettes</source>
        <translation>Import the Recipes</translation>
    </message>
    <message>
        <source>&amp;Choisir un fichier…</source>
        <translation>&amp;Choose a File…</translation>
    </message>
    <message>
        <source>Fichier CSV d&apos;un tableur&#xa0;; il peut aussi être déposé ici.</source>
        <translation>A spreadsheet&apos;s CSV file; it can also be dropped here.</translation>
    </message>
    <message>
        <source>Seulement les lignes &amp;refusées</source>
        <translation>&amp;Refused lines only</translation>
    </message>
    <message>
        <source>Travail en cours</source>
        <translation>Working</translation>
    </message>
    <message>
        <source>&amp;Annuler</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>Ce que l&apos;import ferait de chaque ligne</source>
        <translation>What the import would do with each line</translation>
    </message>
    <message>
        <source>Tableau (*.csv *.txt *.tsv);;Tous les fichiers (*)</source>
        <translation>Table (*.csv *.txt *.tsv);;All files (*)</translation>
    </message>
    <message>
        <source>Le fichier n&apos;a que des titres.</source>
        <translation>The file has only headings.</translation>
    </message>
    <message>
        <source>L&apos;import est arrêté. Rien n&apos;est changé.</source>
        <translation>The import was stopped. Nothing is changed.</translation>
    </message>
    <message>
        <source>Le menu ou les recettes ont changé depuis l&apos;aperçu&#xa0;: rien n&apos;est importé. Voici ce que l&apos;import ferait maintenant.</source>
        <translation>The menu or the recipes have changed since the preview: nothing is imported. This is what the import would do now.</translation>
    </message>
    <message>
        <source>%1 lignes sont importées.</source>
        <translation>%1 lines are imported.</translation>
    </message>
    <message>
        <source>%1 ligne est importée.</source>
        <translation>%1 line is imported.</translation>
    </message>
    <message>
        <source>La copie d&apos;avant l&apos;import est «&#xa0;%1&#xa0;».</source>
        <translation>The copy from before the import is &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>%1 nouvelle</source>
        <translation>%1 new</translation>
    </message>
    <message>
        <source>%1 nouvelles</source>
        <translation>%1 new</translation>
    </message>
    <message>
        <source>%1 nouveau prix</source>
        <translation>%1 new price</translation>
    </message>
    <message>
        <source>%1 nouveaux prix</source>
        <translation>%1 new prices</translation>
    </message>
    <message>
        <source>%1 changée</source>
        <translation>%1 changed</translation>
    </message>
    <message>
        <source>%1 changées</source>
        <translation>%1 changed</translation>
    </message>
    <message>
        <source>%1 inchangée</source>
        <translation>%1 unchanged</translation>
    </message>
    <message>
        <source>%1 inchangées</source>
        <translation>%1 unchanged</translation>
    </message>
    <message>
        <source>%1 refusée, qui reste de côté</source>
        <translation>%1 refused and left aside</translation>
    </message>
    <message>
        <source>%1 refusées, qui restent de côté</source>
        <translation>%1 refused and left aside</translation>
    </message>
    <message>
        <source>&amp;Importer %1 lignes</source>
        <translation>&amp;Import %1 Lines</translation>
    </message>
    <message>
        <source>&amp;Importer %1 ligne</source>
        <translation>&amp;Import %1 Line</translation>
    </message>
</context>
<context>
    <name>ImportFile</name>
    <message>
        <source>Le fichier est vide.</source>
        <translation>The file is empty.</translation>
    </message>
</context>
<context>
    <name>ImportModel</name>
    <message>
        <source>+ Nouveau (attention)</source>
        <translation>+ New (note)</translation>
    </message>
    <message>
        <source>+ Nouveau</source>
        <translation>+ New</translation>
    </message>
    <message>
        <source>≠ Nouveau prix</source>
        <translation>≠ New price</translation>
    </message>
    <message>
        <source>≠ Changé</source>
        <translation>≠ Changed</translation>
    </message>
    <message>
        <source>✕ Refusé</source>
        <translation>✕ Refused</translation>
    </message>
    <message>
        <source>= Inchangé</source>
        <translation>= Unchanged</translation>
    </message>
    <message>
        <source>Ligne</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Que devient-elle&#xa0;?</source>
        <translation>What becomes of it?</translation>
    </message>
    <message>
        <source>Remarque</source>
        <translation>Remark</translation>
    </message>
</context>
<context>
    <name>ImportPlan</name>
    <message>
        <source>La base de données est occupée&#xa0;: attendez que la caisse ait fini, et recommencez.</source>
        <translation>The database is in use: wait until the till has finished, and try again.</translation>
    </message>
    <message>
        <source>%1&#xa0;: mille ou virgule&#xa0;? Écrivez deux décimales</source>
        <translation>%1: thousand or decimal? Write two decimals</translation>
    </message>
    <message>
        <source>%1&#xa0;: trop de chiffres</source>
        <translation>%1: too many digits</translation>
    </message>
    <message>
        <source>%1&#xa0;: pas un nombre</source>
        <translation>%1: not a number</translation>
    </message>
    <message>
        <source>Plus de colonnes que de titres</source>
        <translation>More columns than headings</translation>
    </message>
    <message>
        <source>Plusieurs fois dans le fichier&#xa0;: lignes %1 et %2</source>
        <translation>Several times in the file: lines %1 and %2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Vendel – Gestion</source>
        <translation>Vendel – Back Office</translation>
    </message>
    <message>
        <source>Lecture des ventes…</source>
        <translation>Reading the sales…</translation>
    </message>
    <message>
        <source>La lecture a été arrêtée.</source>
        <translation>Reading was stopped.</translation>
    </message>
    <message>
        <source>Tableau (*.csv)</source>
        <translation>Table (*.csv)</translation>
    </message>
    <message>
        <source>Document PDF (*.pdf)</source>
        <translation>PDF document (*.pdf)</translation>
    </message>
    <message>
        <source>Image (*.png)</source>
        <translation>Picture (*.png)</translation>
    </message>
    <message>
        <source>Exporter</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Le fichier «&#xa0;%1&#xa0;» n&apos;a pas pu être écrit&#xa0;: %2</source>
        <translation>The file &quot;%1&quot; could not be written: %2</translation>
    </message>
    <message>
        <source>&amp;TVA</source>
        <translation>&amp;VAT</translation>
    </message>
    <message>
        <source>Taux de TVA</source>
        <translation>VAT rate</translation>
    </message>
    <message>
        <source>Change les pages, pas le taux de la caisse</source>
        <translation>Changes the pages, not the till&apos;s rate</translation>
    </message>
    <message>
        <source>Ventes</source>
        <translation>Sales</translation>
    </message>
    <message>
        <source>Articles</source>
        <translation>Articles</translation>
    </message>
    <message>
        <source>Heures</source>
        <translation>Hours</translation>
    </message>
    <message>
        <source>Consommation</source>
        <translation>Consumption</translation>
    </message>
    <message>
        <source>Clôture</source>
        <translation>Closing</translation>
    </message>
    <message>
        <source>&amp;Fichier</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Exporter en &amp;CSV…</source>
        <translation>Export as &amp;CSV…</translation>
    </message>
    <message>
        <source>Exporter en &amp;PDF…</source>
        <translation>Export as &amp;PDF…</translation>
    </message>
    <message>
        <source>Exporter en P&amp;NG…</source>
        <translation>Export as P&amp;NG…</translation>
    </message>
    <message>
        <source>&amp;Imprimer…</source>
        <translation>&amp;Print…</translation>
    </message>
    <message>
        <source>&amp;Quitter</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>&amp;Menu</translation>
    </message>
    <message>
        <source>&amp;Affichage</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Recharger</source>
        <translation>&amp;Reload</translation>
    </message>
    <message>
        <source>Re&amp;chercher</source>
        <translation>&amp;Search</translation>
    </message>
    <message>
        <source>Avancement de la lecture</source>
        <translation>Progress of reading</translation>
    </message>
    <message>
        <source>Arrêter</source>
        <translation>Stop</translation>
    </message>
</context>
<context>
    <name>MenuExport</name>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Recettes</source>
        <translation>Recipes</translation>
    </message>
</context>
<context>
    <name>MenuFiles</name>
    <message>
        <source>&amp;Importer le menu…</source>
        <translation>&amp;Import the Menu…</translation>
    </message>
    <message>
        <source>Importer les &amp;recettes…</source>
        <translation>Import the &amp;Recipes…</translation>
    </message>
    <message>
        <source>&amp;Exporter le menu…</source>
        <translation>&amp;Export the Menu…</translation>
    </message>
    <message>
        <source>Exporter les re&amp;cettes…</source>
        <translation>Export the Re&amp;cipes…</translation>
    </message>
    <message>
        <source>Exporter</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Tableau (*.csv)</source>
        <translation>Table (*.csv)</translation>
    </message>
    <message>
        <source>Menu.csv</source>
        <translation>Menu.csv</translation>
    </message>
    <message>
        <source>Recettes.csv</source>
        <translation>Recipes.csv</translation>
    </message>
    <message>
        <source>Le fichier «&#xa0;%1&#xa0;» ne peut pas être écrit.</source>
        <translation>The file &quot;%1&quot; cannot be written.</translation>
    </message>
</context>
<context>
    <name>MenuPlan</name>
    <message>
        <source>Pas de nom</source>
        <translation>No name</translation>
    </message>
    <message>
        <source>Nom de %1 caractères&#xa0;; %2 au plus</source>
        <translation>Name of %1 characters; %2 at most</translation>
    </message>
    <message>
        <source>Le nom contient une fin de ligne ou un caractère invisible</source>
        <translation>The name has a line end or an invisible character</translation>
    </message>
    <message>
        <source>Prix&#xa0;: plus de deux décimales</source>
        <translation>Price: more than two decimals</translation>
    </message>
    <message>
        <source>Prix</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Plusieurs fois sur le menu</source>
        <translation>Several times on the menu</translation>
    </message>
    <message>
        <source>L&apos;imprimante ne connaît pas tous ces caractères&#xa0;: aucun ticket ne s&apos;imprimera avec cet article</source>
        <translation>The printer does not know all these characters: no receipt with this article will be printed</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>La sortie standard ne peut pas être écrite (%1).</source>
        <translation>The standard output cannot be written (%1).</translation>
    </message>
    <message>
        <source>Le fichier «&#xa0;%1&#xa0;» ne peut pas être écrit (%2).</source>
        <translation>The file &quot;%1&quot; cannot be written (%2).</translation>
    </message>
    <message>
        <source>il n&apos;y a plus de place</source>
        <translation>there is no room left</translation>
    </message>
    <message>
        <source>personne ne la lit plus</source>
        <translation>nobody reads it any more</translation>
    </message>
    <message>
        <source>ce n&apos;est pas permis</source>
        <translation>that is not allowed</translation>
    </message>
    <message>
        <source>c&apos;est un dossier</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>son dossier n&apos;existe pas</source>
        <translation>its folder does not exist</translation>
    </message>
</context>
<context>
    <name>PaperFile</name>
    <message>
        <source>Vendel – Gestion</source>
        <translation>Vendel – Back Office</translation>
    </message>
</context>
<context>
    <name>PeriodBar</name>
    <message>
        <source>Période</source>
        <translation>Period</translation>
    </message>
    <message>
        <source>Aujourd&apos;hui</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Hier</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Cette semaine</source>
        <translation>This week</translation>
    </message>
    <message>
        <source>Ce mois</source>
        <translation>This month</translation>
    </message>
    <message>
        <source>Cette année</source>
        <translation>This year</translation>
    </message>
    <message>
        <source>L&apos;année dernière</source>
        <translation>Last year</translation>
    </message>
    <message>
        <source>Deux dates</source>
        <translation>Two dates</translation>
    </message>
    <message>
        <source>&amp;Période</source>
        <translation>&amp;Period</translation>
    </message>
    <message>
        <source>du</source>
        <translation>from</translation>
    </message>
    <message>
        <source>Premier jour</source>
        <translation>First day</translation>
    </message>
    <message>
        <source>au</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Dernier jour, compris</source>
        <translation>Last day, included</translation>
    </message>
</context>
<context>
    <name>RecipePlan</name>
    <message>
        <source>L&apos;article n&apos;est pas sur le menu</source>
        <translation>The article is not on the menu</translation>
    </message>
    <message>
        <source>L&apos;article est plusieurs fois sur le menu</source>
        <translation>The article is several times on the menu</translation>
    </message>
    <message>
        <source>Pas de composition</source>
        <translation>No ingredient</translation>
    </message>
    <message>
        <source>Dose</source>
        <translation>Dose</translation>
    </message>
    <message>
        <source>Dose négative</source>
        <translation>Negative dose</translation>
    </message>
    <message>
        <source>Plusieurs fois dans la recette</source>
        <translation>Several times in the recipe</translation>
    </message>
    <message>
        <source>Unité&#xa0;: «&#xa0;cl&#xa0;» ou «&#xa0;g&#xa0;»</source>
        <translation>Unit: &quot;cl&quot; or &quot;g&quot;</translation>
    </message>
    <message>
        <source>%1 %2 → %3 %4</source>
        <translation>%1 %2 → %3 %4</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>&amp;Recharger</source>
        <translation>&amp;Reload</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Ranking</translation>
    </message>
    <message>
        <source>Par recettes</source>
        <translation>By takings</translation>
    </message>
    <message>
        <source>Par nombre</source>
        <translation>By number</translation>
    </message>
    <message>
        <source>Rechercher</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Rechercher dans le tableau</source>
        <translation>Search the table</translation>
    </message>
</context>
<context>
    <name>SalesReport</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Meilleur jour</source>
        <translation>Best day</translation>
    </message>
    <message>
        <source>Jour le plus faible</source>
        <translation>Weakest day</translation>
    </message>
    <message>
        <source>Meilleure heure</source>
        <translation>Best hour</translation>
    </message>
    <message>
        <source>du %1 au %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1, jusqu&apos;à %2</source>
        <translation>%1, until %2</translation>
    </message>
    <message>
        <source>Période précédente</source>
        <translation>Period before</translation>
    </message>
    <message>
        <source>Évolution</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Lignes vendues</source>
        <translation>Lines sold</translation>
    </message>
    <message>
        <source>Moyenne par jour</source>
        <translation>Mean per day</translation>
    </message>
    <message>
        <source>sur 1 jour</source>
        <translation>over 1 day</translation>
    </message>
    <message>
        <source>sur %1 jours</source>
        <translation>over %1 days</translation>
    </message>
    <message>
        <source>Total HT</source>
        <translation>Total before tax</translation>
    </message>
    <message>
        <source>Période</source>
        <translation>Period</translation>
    </message>
    <message>
        <source>Mois</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Détail</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>TVA</source>
        <translation>VAT</translation>
    </message>
    <message>
        <source>Avant</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>Ventes</source>
        <translation>Sales</translation>
    </message>
    <message>
        <source>Détail par caisse</source>
        <translation>Detail by till</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>Aucun dossier personnel n&apos;est connu pour les données de la caisse&#xa0;: --dossier en donne un.</source>
        <translation>No home folder is known for the till&apos;s data: give one with --dossier.</translation>
    </message>
    <message>
        <source>Usage&#xa0;: vendel-gestion [VENTES] [--langue fr|en]
        vendel-gestion PAGE --du JOUR [--au JOUR] [--taux POURCENT]
                       --csv FICHIER | --pdf FICHIER | --png FICHIER
                       [--csv-format fr|en] [VENTES] [--langue fr|en]
        vendel-gestion --aide | --version
VENTES&#xa0;: --dossier DOSSIER, ou --central ADRESSE [--caisse NOM]...

Montre les ventes de la caisse, ou écrit une page dans un fichier, sans fenêtre.
Les données sont dans «&#xa0;%1&#xa0;».

  PAGE                  --ventes, --articles, --heures, --consommation ou --cloture
                        (la clôture est celle du dernier jour)
  --du JOUR, --au JOUR  le premier et le dernier jour, comme 2026-11-30&#xa0;; sans --au,
                        un seul jour
  --taux POURCENT       le taux de TVA à la place de celui de la caisse
  --csv FICHIER         écrit le tableau de la page pour un tableur
  --pdf, --png FICHIER  écrit la page comme elle s&apos;imprime&#xa0;; en PNG, sa première feuille
                        (FICHIER «&#xa0;-&#xa0;»&#xa0;: la sortie standard)
  --csv-format fr|en    «&#xa0;;&#xa0;» et la virgule, ou «&#xa0;,&#xa0;» et le point&#xa0;; sinon ceux du système
  --dossier DOSSIER     le dossier de données à la place de celui de la caisse
  --central ADRESSE     le livre central de plusieurs caisses à la place d&apos;une caisse,
                        comme postgresql://utilisateur@serveur/base
  --caisse NOM          cette caisse du livre&#xa0;; répété, plusieurs côte à côte
  --langue fr|en        la langue, à la place de celle de la caisse
  --aide                montre ce texte
  --version             montre la version
</source>
        <translation>Usage: vendel-gestion [SALES] [--langue fr|en]
       vendel-gestion PAGE --du DAY [--au DAY] [--taux PERCENT]
                      --csv FILE | --pdf FILE | --png FILE
                      [--csv-format fr|en] [SALES] [--langue fr|en]
       vendel-gestion --help | --version
SALES: --dossier FOLDER, or --central ADDRESS [--caisse NAME]...

Shows what the till sold, or writes a page to a file, without a window.
The data is in &quot;%1&quot;.

  PAGE                 --ventes (sales), --articles, --heures (hours), --consommation (use) or
                       --cloture (closing, of the last day)
  --du DAY, --au DAY   the first and the last day, like 2026-11-30; without --au,
                       one day only
  --taux PERCENT       the tax rate in place of the till&apos;s
  --csv FILE           writes the page&apos;s table for a spreadsheet
  --pdf, --png FILE    writes the page as it is printed; as PNG, its first sheet
                       (FILE &quot;-&quot;: the standard output)
  --csv-format fr|en   &quot;;&quot; and the comma, or &quot;,&quot; and the point; otherwise the system&apos;s
  --dossier FOLDER     the data folder in place of the till&apos;s
  --central ADDRESS    the central book of several tills in place of a till,
                       like postgresql://user@server/database
  --caisse NAME        this till of the book; repeated, several side by side
  --langue fr|en       the language in place of the till&apos;s
  --help               shows this text
  --version            shows the version
</translation>
    </message>
</context>
<context>
    <name>SheetLayout</name>
    <message>
        <source>Article</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>Prix</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Ingredient</translation>
    </message>
    <message>
        <source>Dose</source>
        <translation>Dose</translation>
    </message>
    <message>
        <source>Unité</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Sans ligne de titres, les colonnes doivent être&#xa0;: %1.</source>
        <translation>Without a line of headings, the columns have to be: %1.</translation>
    </message>
    <message>
        <source>Le fichier a deux colonnes «&#xa0;%1&#xa0;»&#xa0;: laquelle est la bonne&#xa0;?</source>
        <translation>The file has two columns &quot;%1&quot;: which one is right?</translation>
    </message>
    <message>
        <source>La colonne «&#xa0;%1&#xa0;» manque.</source>
        <translation>The column &quot;%1&quot; is missing.</translation>
    </message>
</context>
<context>
    <name>SheetText</name>
    <message>
        <source>Le fichier «&#xa0;%1&#xa0;» n&apos;existe pas.</source>
        <translation>The file &quot;%1&quot; does not exist.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» n&apos;est pas un fichier.</source>
        <translation>&quot;%1&quot; is not a file.</translation>
    </message>
    <message>
        <source>Le fichier «&#xa0;%1&#xa0;» dépasse 4&#xa0;Mo.</source>
        <translation>The file &quot;%1&quot; is larger than 4 MB.</translation>
    </message>
    <message>
        <source>Le fichier «&#xa0;%1&#xa0;» ne peut pas être lu.</source>
        <translation>The file &quot;%1&quot; cannot be read.</translation>
    </message>
    <message>
        <source>Le fichier n&apos;est pas un fichier texte&#xa0;: enregistrez-le au format CSV, en UTF-8.</source>
        <translation>The file is not a text file: save it as CSV, in UTF-8.</translation>
    </message>
</context>
<context>
    <name>TillChoice</name>
    <message>
        <source>Caisses</source>
        <translation>Tills</translation>
    </message>
    <message>
        <source>Toutes les caisses</source>
        <translation>All tills</translation>
    </message>
    <message>
        <source>%1 caisses</source>
        <translation>%1 tills</translation>
    </message>
</context>
<context>
    <name>TillColumn</name>
    <message>
        <source>caisse %1</source>
        <translation>till %1</translation>
    </message>
    <message>
        <source>toutes les caisses (%1)</source>
        <translation>all tills (%1)</translation>
    </message>
    <message>
        <source>%1 caisses</source>
        <translation>%1 tills</translation>
    </message>
    <message>
        <source>caisses %1</source>
        <translation>tills %1</translation>
    </message>
    <message>
        <source>Caisse</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>Par caisse</source>
        <translation>By till</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>TillDatabase</name>
    <message>
        <source>Le dossier «&#xa0;%1&#xa0;» n&apos;existe pas.</source>
        <translation>The folder &quot;%1&quot; does not exist.</translation>
    </message>
    <message>
        <source>Le dossier «&#xa0;%1&#xa0;» ne contient pas de base de la caisse&#xa0;: démarrez la caisse une fois.</source>
        <translation>The folder &quot;%1&quot; has no database of the till: start the till once.</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» n&apos;est pas un fichier.</source>
        <translation>&quot;%1&quot; is not a file.</translation>
    </message>
    <message>
        <source>La base de la caisse dans «&#xa0;%1&#xa0;» a été modifiée par un autre programme&#xa0;: démarrez la caisse une fois.</source>
        <translation>The till&apos;s database in &quot;%1&quot; was changed by another program: start the till once.</translation>
    </message>
    <message>
        <source>Le pilote SQLite de Qt manque&#xa0;: Vendel est à réinstaller.</source>
        <translation>Qt&apos;s SQLite driver is missing: install Vendel again.</translation>
    </message>
    <message>
        <source>La base dans «&#xa0;%1&#xa0;» contient autre chose que les tables de la caisse.</source>
        <translation>The database in &quot;%1&quot; holds something other than the till&apos;s tables.</translation>
    </message>
    <message>
        <source>Il manque des tables à la base de la caisse dans «&#xa0;%1&#xa0;».</source>
        <translation>The till&apos;s database in &quot;%1&quot; lacks tables.</translation>
    </message>
    <message>
        <source>La base de la caisse dans «&#xa0;%1&#xa0;» ne peut pas être lue.</source>
        <translation>The till&apos;s database in &quot;%1&quot; cannot be read.</translation>
    </message>
    <message>
        <source>La base de la caisse dans «&#xa0;%1&#xa0;» est occupée par un autre programme.</source>
        <translation>The till&apos;s database in &quot;%1&quot; is in use by another program.</translation>
    </message>
    <message>
        <source>Un changement de la base de la caisse dans «&#xa0;%1&#xa0;» a été interrompu&#xa0;: démarrez la caisse une fois.</source>
        <translation>A change of the till&apos;s database in &quot;%1&quot; was cut off: start the till once.</translation>
    </message>
    <message>
        <source>La base de la caisse dans «&#xa0;%1&#xa0;» est endommagée&#xa0;: la commande «&#xa0;vendel --restaurer&#xa0;» en remet une copie en place.</source>
        <translation>The till&apos;s database in &quot;%1&quot; is damaged: the command &quot;vendel --restaurer&quot; puts a copy back.</translation>
    </message>
    <message>
        <source>La base de la caisse dans «&#xa0;%1&#xa0;» ne peut pas être lue (%2).</source>
        <translation>The till&apos;s database in &quot;%1&quot; cannot be read (%2).</translation>
    </message>
</context>
<context>
    <name>TillSource</name>
    <message>
        <source>Caisse</source>
        <translation>Till</translation>
    </message>
</context>
<context>
    <name>UsesReport</name>
    <message>
        <source>Les plus consommés par mois, en %1</source>
        <translation>Most used by month, in %1</translation>
    </message>
    <message>
        <source>Les plus consommés par jour, en %1</source>
        <translation>Most used by day, in %1</translation>
    </message>
    <message>
        <source>Les plus consommés, en %1</source>
        <translation>Most used, in %1</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Ingredient</translation>
    </message>
    <message>
        <source>Quantité</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Unité</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Quantité convertie</source>
        <translation>Converted quantity</translation>
    </message>
    <message>
        <source>Unité convertie</source>
        <translation>Converted unit</translation>
    </message>
    <message>
        <source>Consommation</source>
        <translation>Consumption</translation>
    </message>
    <message>
        <source>Compositions consommées</source>
        <translation>Ingredients used</translation>
    </message>
    <message>
        <source>Consommation de la période</source>
        <translation>Use in the period</translation>
    </message>
    <message>
        <source>Consommation par jour</source>
        <translation>Use by day</translation>
    </message>
    <message>
        <source>Le total de la période et celui de chaque jour sont calculés comme dans la fenêtre de la caisse, où un article vendu à plusieurs prix, le même nombre de fois à chacun, compte pour un seul de ces prix&#xa0;: la somme des jours peut donc différer de la période.</source>
        <translation>The total of the period and that of each day are computed as in the till&apos;s own window, where an article sold at several prices, equally often at each, counts for one of these prices only: the days may therefore not add up to the period.</translation>
    </message>
    <message>
        <source>Consommation par mois</source>
        <translation>Use by month</translation>
    </message>
    <message>
        <source>Mois</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Au-delà de deux mois, le détail est par mois, chacun étant la somme de ses jours.</source>
        <translation>Beyond two months the details are by month, each being the sum of its days.</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>année %1</source>
        <translation>year %1</translation>
    </message>
    <message>
        <source>du %1 au %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>de %1 à %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1, à venir</source>
        <translation>%1, still to come</translation>
    </message>
    <message>
        <source>%1, journée en cours</source>
        <translation>%1, day in progress</translation>
    </message>
    <message>
        <source>%1, jusqu&apos;à aujourd&apos;hui, %2</source>
        <translation>%1, until today, %2</translation>
    </message>
    <message>
        <source>Lignes</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>Total HT</source>
        <translation>Total before tax</translation>
    </message>
    <message>
        <source>TVA à %1</source>
        <translation>VAT at %1</translation>
    </message>
    <message>
        <source>Total TTC</source>
        <translation>Total with tax</translation>
    </message>
    <message>
        <source>Article</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>Heure</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Jour</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Share</translation>
    </message>
    <message>
        <source>La caisse enregistre des prix hors taxe. La TVA est calculée sur chaque total et arrondie une fois&#xa0;: la somme des tickets ou des lignes peut en différer de quelques centimes.</source>
        <translation>The till records prices before tax. VAT is computed on each total and rounded once: the sum of receipts or lines may differ from it by some cents.</translation>
    </message>
    <message>
        <source>«&#xa0;----&#xa0;»&#xa0;: montants saisis à la caisse, remises comprises.</source>
        <translation>&quot;----&quot;: amounts typed at the till, discounts included.</translation>
    </message>
</context>
</TS>
