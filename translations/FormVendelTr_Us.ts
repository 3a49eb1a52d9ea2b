<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="fr_FR">
<context>
    <name>FormVendelMessages</name>
    <message>
        <source>Le ticket est vide</source>
        <translation>The ticket is empty</translation>
    </message>
    <message>
        <source>Effacer ticket</source>
        <translation>Clear ticket</translation>
    </message>
    <message>
        <source>Ticket</source>
        <translation>Ticket</translation>
    </message>
    <message>
        <source>Total ticket</source>
        <translation>Ticket total</translation>
    </message>
    <message>
        <source>TVA </source>
        <translation>VAT </translation>
    </message>
    <message>
        <source>TOTAL </source>
        <translation>TOTAL </translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Payer</source>
        <translation>Pay</translation>
    </message>
    <message>
        <source>Produit</source>
        <translation>Product</translation>
    </message>
    <message>
        <source>Qtité  </source>
        <translation>Qty    </translation>
    </message>
    <message>
        <source>Article</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>Prix U</source>
        <translation>Unit price</translation>
    </message>
    <message>
        <source>Prix * Qtité</source>
        <translation>Price * Qty</translation>
    </message>
    <message>
        <source>Saisir un montant</source>
        <translation>Enter an amount</translation>
    </message>
    <message>
        <source>+/-</source>
        <translation>+/-</translation>
    </message>
    <message>
        <source>Saisir un montant valide</source>
        <translation>Enter a valid amount</translation>
    </message>
    <message>
        <source>Saisir un article avec son montant</source>
        <translation>Enter an item with its amount</translation>
    </message>
    <message>
        <source>Ajouter</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Voulez-vous supprimer : </source>
        <translation>Do you want to delete: </translation>
    </message>
    <message>
        <source> ...</source>
        <translation> ...</translation>
    </message>
    <message>
        <source>Supprimer</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Selectionner un/des article(s) dans le menu</source>
        <translation>Select one or more items in the menu</translation>
    </message>
    <message>
        <source>Renommer</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Voulez-vous renommer : </source>
        <translation>Do you want to rename: </translation>
    </message>
    <message>
        <source>Selectionner 1 article dans le menu à renommer</source>
        <translation>Select 1 item in the menu to rename</translation>
    </message>
    <message>
        <source>Saisir un article et son montant</source>
        <translation>Enter an item and its amount</translation>
    </message>
    <message>
        <source>Saisir un article</source>
        <translation>Enter an item</translation>
    </message>
    <message>
        <source>Rechercher</source>
        <translation>Search</translation>
    </message>
    <message numerus="yes">
        <source>Supprimer le(s) %n doublon(s) note(s) X...</source>
        <translation>
            <numerusform>Delete the %n duplicate marked X...</numerusform>
            <numerusform>Delete the %n duplicates marked X...</numerusform>
        </translation>
    </message>
    <message>
        <source>Doublon</source>
        <translation>Duplicate</translation>
    </message>
    <message>
        <source>Le menu est vide
Ajouter des articles
Allez dans le menu Vendel Saisie Article</source>
        <translation>The menu is empty
Add items
Go to the menu Vendel Item Entry</translation>
    </message>
    <message>
        <source>Afficher</source>
        <translation>Show</translation>
    </message>
    <message numerus="yes">
        <source>Supprimer le(s) %n doublon(s) note(s) X...
Allez dans le menu Vendel Saisie Article</source>
        <translation>
            <numerusform>Delete the %n duplicate marked X...
Go to the menu Vendel Item Entry</numerusform>
            <numerusform>Delete the %n duplicates marked X...
Go to the menu Vendel Item Entry</numerusform>
        </translation>
    </message>
    <message>
        <source>Le menu est vide
Ajouter des articles</source>
        <translation>The menu is empty
Add items</translation>
    </message>
    <message>
        <source>Nombre de caractères ne doient pas dépasser : </source>
        <translation>The number of characters must not exceed: </translation>
    </message>
    <message>
        <source>Nbre caractères</source>
        <translation>Number of characters</translation>
    </message>
    <message>
        <source>Article Nbre caractères : </source>
        <translation>Item, number of characters: </translation>
    </message>
    <message>
        <source>Historique est vide
Ajouter des articles et faite PAYER</source>
        <translation>The history is empty
Add items and press PAY</translation>
    </message>
    <message>
        <source>Historique</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Première date doit-être &lt; seconde date</source>
        <translation>The first date must be &lt; the second date</translation>
    </message>
    <message>
        <source>Valide date</source>
        <translation>Valid date</translation>
    </message>
    <message>
        <source>Saisir une date valide</source>
        <translation>Enter a valid date</translation>
    </message>
    <message>
        <source>Première date doit-être &lt; seconde date
Ajouter 1 jour à la seconde date</source>
        <translation>The first date must be &lt; the second date
Add 1 day to the second date</translation>
    </message>
    <message>
        <source>Historique est vide pour la pèriode du </source>
        <translation>The history is empty for the period from </translation>
    </message>
    <message>
        <source> au </source>
        <translation> to </translation>
    </message>
    <message>
        <source>Première date doit-être &lt;= seconde date</source>
        <translation>The first date must be &lt;= the second date</translation>
    </message>
    <message>
        <source>Saisir une date valide dans première date et seconde date
Click sur Afficher Date</source>
        <translation>Enter a valid date in First Date and Second Date
Click Show Dates</translation>
    </message>
    <message>
        <source>Total historique</source>
        <translation>History total</translation>
    </message>
    <message>
        <source>Voulez-vous purger de </source>
        <translation>Do you want to purge from </translation>
    </message>
    <message>
        <source>Purger</source>
        <translation>Purge</translation>
    </message>
    <message>
        <source>Aucun Article
Faite Mise à jour</source>
        <translation>No item
Make an update</translation>
    </message>
    <message>
        <source>Valide</source>
        <translation>Valid</translation>
    </message>
    <message>
        <source>Périmé</source>
        <translation>Expired</translation>
    </message>
    <message>
        <source>Vous n&apos;avez rien à mettre à jour </source>
        <translation>You have nothing to update </translation>
    </message>
    <message>
        <source>Mettre à jour</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Saisir une dose valide</source>
        <translation>Enter a valid dose</translation>
    </message>
    <message>
        <source>Choisir Unité soit g ou cl</source>
        <translation>Choose the unit, g or cl</translation>
    </message>
    <message>
        <source>Saisir Composition / Dose / Choisir Unité</source>
        <translation>Enter Composition / Dose / Choose Unit</translation>
    </message>
    <message>
        <source>Voulez-vous modifier : </source>
        <translation>Do you want to change: </translation>
    </message>
    <message>
        <source> ... dans </source>
        <translation> ... in </translation>
    </message>
    <message>
        <source>Modifier</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Selectionner un/des composition(s) / dose(s) dans la list</source>
        <translation>Select one or more compositions / doses in the list</translation>
    </message>
    <message>
        <source>Vous n&apos;avez rien à couper / coller</source>
        <translation>You have nothing to cut / paste</translation>
    </message>
    <message>
        <source>Composition est vide
Aller dans le menu Stock Saisie Stock
DoubleClick sur article et composez</source>
        <translation>The composition is empty
Go to the menu Stock Stock Entry
Double-click an item and compose it</translation>
    </message>
    <message>
        <source>Calcul Stock</source>
        <translation>Stock Calculation</translation>
    </message>
    <message>
        <source>Saisir une TVA valide</source>
        <translation>Enter a valid VAT rate</translation>
    </message>
    <message>
        <source>TVA</source>
        <translation>VAT</translation>
    </message>
    <message>
        <source>Choisir entre ON ou OFF</source>
        <translation>Choose ON or OFF</translation>
    </message>
    <message>
        <source>Epson TM-T20II</source>
        <translation>Epson TM-T20II</translation>
    </message>
    <message>
        <source>Entête de page</source>
        <translation>Page header</translation>
    </message>
    <message>
        <source>Pied de page</source>
        <translation>Page footer</translation>
    </message>
    <message>
        <source>Sauvegarde</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>titre:</source>
        <translation>titre:</translation>
    </message>
    <message>
        <source>Imprimante non connectée</source>
        <translation>Printer not connected</translation>
    </message>
    <message>
        <source>Menu
Click sur : </source>
        <translation>Menu
Click: </translation>
    </message>
    <message>
        <source>
Pour l&apos;ajouter au ticket</source>
        <translation>
To add it to the ticket</translation>
    </message>
    <message>
        <source>Ticket
Click sur : </source>
        <translation>Ticket
Click: </translation>
    </message>
    <message>
        <source>
Pour supprimer l&apos;article du ticket</source>
        <translation>
To remove the item from the ticket</translation>
    </message>
    <message>
        <source>Menu
DblClick sur : </source>
        <translation>Menu
Double-click: </translation>
    </message>
    <message>
        <source>
Pour l&apos;afficher dans Article et Montant</source>
        <translation>
To show it in Item and Amount</translation>
    </message>
    <message>
        <source>Date
Click sur : </source>
        <translation>Date
Click: </translation>
    </message>
    <message>
        <source>
Pour sélectionner la date dans première date ou seconde date
Click Options Pre date ou Sec date</source>
        <translation>
To select the date as first date or second date
Click Options 1st Date or 2nd Date</translation>
    </message>
    <message>
        <source>Date Heure
Click sur : </source>
        <translation>Date Time
Click: </translation>
    </message>
    <message>
        <source>Article
DoubleClick sur : </source>
        <translation>Item
Double-click: </translation>
    </message>
    <message>
        <source>
Pour faire composition</source>
        <translation>
To compose it</translation>
    </message>
    <message>
        <source>Composition
DoubleClick sur : </source>
        <translation>Composition
Double-click: </translation>
    </message>
    <message>
        <source>
Pour supprimer l&apos;article de la composition</source>
        <translation>
To remove the item from the composition</translation>
    </message>
    <message>
        <source>Composition
Faire votre choix dans la liste déroulante
Sélectionner la composition : </source>
        <translation>Composition
Make your choice in the drop-down list
Select the composition: </translation>
    </message>
    <message>
        <source>
Puis Modifier</source>
        <translation>
Then Change</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Montant</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>Effacer Saisie</source>
        <translation>Clear Entry</translation>
    </message>
    <message>
        <source>Effacer Ticket</source>
        <translation>Clear Ticket</translation>
    </message>
    <message>
        <source>Total Ticket</source>
        <translation>Ticket Total</translation>
    </message>
    <message>
        <source>,</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Vendel</source>
        <translation>Vendel</translation>
    </message>
    <message>
        <source>Config</source>
        <translation>Config</translation>
    </message>
    <message>
        <source>Saisie Article</source>
        <translation>Item Entry</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>A propos de</source>
        <translation>About</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Prix</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>dd/MM/yyyy</source>
        <translation>MM/dd/yyyy</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Impression Ticket</source>
        <translation>Receipt</translation>
    </message>
    <message>
        <source>Formulaire Impression Ticket</source>
        <translation>Receipt Form</translation>
    </message>
    <message>
        <source>MAJ</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Entête Page</source>
        <translation>Page Header</translation>
    </message>
    <message>
        <source>Pied Page</source>
        <translation>Page Footer</translation>
    </message>
    <message>
        <source>Formulaire</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Sauv Pied Page</source>
        <translation>Save Footer</translation>
    </message>
    <message>
        <source>Sauv Entête Page</source>
        <translation>Save Header</translation>
    </message>
    <message>
        <source>Date Heure</source>
        <translation>Date Time</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Qtité</source>
        <translation>Qty</translation>
    </message>
    <message>
        <source>Qtité * Prix</source>
        <translation>Qty * Price</translation>
    </message>
    <message>
        <source>Vendel Historique</source>
        <translation>Vendel History</translation>
    </message>
    <message>
        <source>Afficher Historique</source>
        <translation>Show History</translation>
    </message>
    <message>
        <source>Afficher Date</source>
        <translation>Show Dates</translation>
    </message>
    <message>
        <source>Purge</source>
        <translation>Purge</translation>
    </message>
    <message>
        <source>Première Date</source>
        <translation>First Date</translation>
    </message>
    <message>
        <source>Seconde Date</source>
        <translation>Second Date</translation>
    </message>
    <message>
        <source>Pre Date</source>
        <translation>1st Date</translation>
    </message>
    <message>
        <source>Sec Date</source>
        <translation>2nd Date</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>Saisie Stock</source>
        <translation>Stock Entry</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Validité</source>
        <translation>Validity</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Composition</translation>
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
        <source>cl</source>
        <translation>cl</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Mise à jour</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Article :</source>
        <translation>Item:</translation>
    </message>
    <message>
        <source>Mise à jour Stock</source>
        <translation>Stock Update</translation>
    </message>
    <message>
        <source>Couper / Coller</source>
        <translation>Cut / Paste</translation>
    </message>
    <message>
        <source>Mise à Jour</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Couper /
Coller</source>
        <translation>Cut /
Paste</translation>
    </message>
    <message>
        <source>Dose Unitaire</source>
        <translation>Unit Dose</translation>
    </message>
    <message>
        <source>Qtité * Dose</source>
        <translation>Qty * Dose</translation>
    </message>
    <message>
        <source>Consommation</source>
        <translation>Consumption</translation>
    </message>
    <message>
        <source>Conversion</source>
        <translation>Conversion</translation>
    </message>
    <message>
        <source>Pèriode du</source>
        <translation>Period from</translation>
    </message>
    <message>
        <source>au</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Le texte n&apos;a pas pu être enregistré</source>
        <translation>The text could not be saved</translation>
    </message>
    <message>
        <source>Le texte n&apos;est pas sauvegardé
L&apos;abandonner ?</source>
        <translation>The text is not saved
Discard it?</translation>
    </message>
    <message>
        <source>La vente n&apos;est pas enregistrée
Le ticket est gardé</source>
        <translation>The sale is not recorded
The ticket is kept</translation>
    </message>
    <message>
        <source>Virgule</source>
        <translation>Decimal point</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Moins</source>
        <translation>Minus</translation>
    </message>
    <message>
        <source>Ventes par article</source>
        <translation>Sales by item</translation>
    </message>
    <message>
        <source>Remplaçant</source>
        <translation>Replacement</translation>
    </message>
    <message>
        <source>Consommation par article</source>
        <translation>Consumption by item</translation>
    </message>
    <message>
        <source>MAJ TVA</source>
        <translation>Update VAT</translation>
    </message>
    <message>
        <source>MAJ Epson TM-T20II</source>
        <translation>Update Epson TM-T20II</translation>
    </message>
    <message>
        <source>MAJ Formulaire Impression Ticket</source>
        <translation>Update Receipt Form</translation>
    </message>
    <message>
        <source>Numéro</source>
        <translation>Number</translation>
    </message>
</context>
<context>
    <name>FormVendel</name>
    <message>
        <source>InfoBulle</source>
        <translation>Tooltips</translation>
    </message>
</context>
<context>
    <name>FormVendelStart</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Système Vendel</source>
        <translation>Vendel System</translation>
    </message>
</context>
<context>
    <name>FormVendelAbout</name>
    <message>
        <source>A propos de Système Vendel</source>
        <translation>About the Vendel System</translation>
    </message>
    <message>
        <source>Système Vendel</source>
        <translation>Vendel System</translation>
    </message>
    <message>
        <source>Version 1.0.0.0</source>
        <translation>Version 1.0.0.0</translation>
    </message>
    <message>
        <source>Informations</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;%2&lt;/p&gt;&lt;p&gt;Caisse enregistreuse sous licence MIT&lt;/p&gt;&lt;p&gt;Les données du magasin se trouvent dans le dossier&lt;br&gt;%3&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;%2&lt;/p&gt;&lt;p&gt;Cash register under the MIT license&lt;/p&gt;&lt;p&gt;The shop&apos;s data lies in the directory&lt;br&gt;%3&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>Step &amp;down</source>
        <translation>Step &amp;down</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Step up</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Select All</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <translation>Press</translation>
    </message>
    <message>
        <source>Shows the menu</source>
        <translation>Shows the menu</translation>
    </message>
    <message>
        <source>Scrolls to the left</source>
        <translation>Scrolls to the left</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>Scroll Down</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>Scroll Left</translation>
    </message>
    <message>
        <source>Goes back a page</source>
        <translation>Goes back a page</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Triggers the action</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Increase</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Toggle</translation>
    </message>
    <message>
        <source>Toggles the state</source>
        <translation>Toggles the state</translation>
    </message>
    <message>
        <source>Scrolls up</source>
        <translation>Scrolls up</translation>
    </message>
    <message>
        <source>Scrolls down</source>
        <translation>Scrolls down</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>Scroll Up</translation>
    </message>
    <message>
        <source>Goes to the next page</source>
        <translation>Goes to the next page</translation>
    </message>
    <message>
        <source>Scrolls to the right</source>
        <translation>Scrolls to the right</translation>
    </message>
    <message>
        <source>Increase the value</source>
        <translation>Increase the value</translation>
    </message>
    <message>
        <source>Decrease the value</source>
        <translation>Decrease the value</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Decrease</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Scroll Right</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Previous Page</translation>
    </message>
    <message>
        <source>Sets the focus</source>
        <translation>Sets the focus</translation>
    </message>
    <message>
        <source>SetFocus</source>
        <translation>SetFocus</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Next Page</translation>
    </message>
    <message>
        <source>ShowMenu</source>
        <translation>ShowMenu</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Executable &apos;%1&apos; requires Qt %2, found Qt %3.</source>
        <translation>Executable &apos;%1&apos; requires Qt %2, found Qt %3.</translation>
    </message>
    <message>
        <source>Incompatible Qt Library Error</source>
        <translation>Incompatible Qt Library Error</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>True</source>
        <translation>True</translation>
    </message>
    <message>
        <source>False</source>
        <translation>False</translation>
    </message>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Open the combo box selection popup</translation>
    </message>
</context>
<context>
    <name>QCoreApplication</name>
    <message>
        <source>%1: key is empty</source>
        <translation>%1: key is empty</translation>
    </message>
    <message>
        <source>%1: unable to make key</source>
        <translation>%1: unable to make key</translation>
    </message>
    <message>
        <source>%1: ftok failed</source>
        <translation>%1: ftok failed</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>What&apos;s This?</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QErrorMessage</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Fatal Error:</source>
        <translation>Fatal Error:</translation>
    </message>
    <message>
        <source>&amp;Show this message again</source>
        <translation>&amp;Show this message again</translation>
    </message>
    <message>
        <source>Debug Message:</source>
        <translation>Debug Message:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Warning:</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Cannot remove source file</source>
        <translation>Cannot remove source file</translation>
    </message>
    <message>
        <source>Destination file is the same file.</source>
        <translation>Destination file is the same file.</translation>
    </message>
    <message>
        <source>Error while renaming.</source>
        <translation>Error while renaming.</translation>
    </message>
    <message>
        <source>Cannot create %1 for output</source>
        <translation>Cannot create %1 for output</translation>
    </message>
    <message>
        <source>Failure to write block</source>
        <translation>Failure to write block</translation>
    </message>
    <message>
        <source>Cannot open %1 for input</source>
        <translation>Cannot open %1 for input</translation>
    </message>
    <message>
        <source>Destination file exists</source>
        <translation>Destination file exists</translation>
    </message>
    <message>
        <source>Cannot open for output</source>
        <translation>Cannot open for output</translation>
    </message>
    <message>
        <source>Will not rename sequential file using block copy</source>
        <translation>Will not rename sequential file using block copy</translation>
    </message>
    <message>
        <source>Source file does not exist.</source>
        <translation>Source file does not exist.</translation>
    </message>
    <message>
        <source>Unable to restore from %1: %2</source>
        <translation>Unable to restore from %1: %2</translation>
    </message>
</context>
<context>
    <name>QFileDevice</name>
    <message>
        <source>No file engine available or engine does not support UnMapExtension</source>
        <translation>No file engine available or engine does not support UnMapExtension</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Close without Saving</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>No such file or directory</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>file to open is a directory</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No space left on device</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Too many open files</translation>
    </message>
</context>
<context>
    <name>QImageReader</name>
    <message>
        <source>Unable to read image data</source>
        <translation>Unable to read image data</translation>
    </message>
    <message>
        <source>Invalid device</source>
        <translation>Invalid device</translation>
    </message>
    <message>
        <source>Unsupported image format</source>
        <translation>Unsupported image format</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>File not found</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Show Details...</source>
        <translation>Show Details...</translation>
    </message>
    <message>
        <source>&lt;p&gt;Qt is a C++ toolkit for cross-platform application development.&lt;/p&gt;&lt;p&gt;Qt provides single-source portability across all major desktop operating systems. It is also available for embedded Linux and other embedded and mobile operating systems.&lt;/p&gt;&lt;p&gt;Qt is available under three different licensing options designed to accommodate the needs of our various users.&lt;/p&gt;&lt;p&gt;Qt licensed under our commercial license agreement is appropriate for development of proprietary/commercial software where you do not want to share any source code with third parties or otherwise cannot comply with the terms of the GNU LGPL version 3 or GNU LGPL version 2.1.&lt;/p&gt;&lt;p&gt;Qt licensed under the GNU LGPL version 3 is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the GNU LGPL version 3.&lt;/p&gt;&lt;p&gt;Qt licensed under the GNU LGPL version 2.1 is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the GNU LGPL version 2.1.&lt;/p&gt;&lt;p&gt;Please see &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt; for an overview of Qt licensing.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd and other contributors.&lt;/p&gt;&lt;p&gt;Qt and the Qt logo are trademarks of The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;Qt is The Qt Company Ltd product developed as an open source project. See &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt; for more information.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Qt is a C++ toolkit for cross-platform application development.&lt;/p&gt;&lt;p&gt;Qt provides single-source portability across all major desktop operating systems. It is also available for embedded Linux and other embedded and mobile operating systems.&lt;/p&gt;&lt;p&gt;Qt is available under three different licensing options designed to accommodate the needs of our various users.&lt;/p&gt;&lt;p&gt;Qt licensed under our commercial license agreement is appropriate for development of proprietary/commercial software where you do not want to share any source code with third parties or otherwise cannot comply with the terms of the GNU LGPL version 3 or GNU LGPL version 2.1.&lt;/p&gt;&lt;p&gt;Qt licensed under the GNU LGPL version 3 is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the GNU LGPL version 3.&lt;/p&gt;&lt;p&gt;Qt licensed under the GNU LGPL version 2.1 is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the GNU LGPL version 2.1.&lt;/p&gt;&lt;p&gt;Please see &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt; for an overview of Qt licensing.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd and other contributors.&lt;/p&gt;&lt;p&gt;Qt and the Qt logo are trademarks of The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;Qt is The Qt Company Ltd product developed as an open source project. See &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt; for more information.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>About Qt</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Hide Details...</translation>
    </message>
    <message>
        <source>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abort</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restore Defaults</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;o to All</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Save All</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Yes to &amp;All</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Filename refers to a directory</translation>
    </message>
    <message>
        <source>Writing canceled by application</source>
        <translation>Writing canceled by application</translation>
    </message>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>Existing file %1 is not writable</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Scroll here</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page right</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scroll right</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Left edge</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page down</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page left</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Right edge</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>CD</source>
        <translation>CD</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>F%1</source>
        <translation>F%1</translation>
    </message>
    <message>
        <source>DOS</source>
        <translation>DOS</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Ins</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>WWW</source>
        <translation>WWW</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Away</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Book</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Flip</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>News</source>
        <translation>News</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>Shop</source>
        <translation>Shop</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>XFer</source>
        <translation>XFer</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Split Screen</source>
        <translation>Split Screen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Eject</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>Kanji</source>
        <translation>Kanji</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Reply</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Sleep</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Hiragana</source>
        <translation>Hiragana</translation>
    </message>
    <message>
        <source>Wireless</source>
        <translation>Wireless</translation>
    </message>
    <message>
        <source>Media Record</source>
        <translation>Media Record</translation>
    </message>
    <message>
        <source>Media Rewind</source>
        <translation>Media Rewind</translation>
    </message>
    <message>
        <source>Multiple Candidate</source>
        <translation>Multiple Candidate</translation>
    </message>
    <message>
        <source>Zenkaku</source>
        <translation>Zenkaku</translation>
    </message>
    <message>
        <source>Print Screen</source>
        <translation>Print Screen</translation>
    </message>
    <message>
        <source>Audio Repeat</source>
        <translation>Audio Repeat</translation>
    </message>
    <message>
        <source>Toggle Call/Hangup</source>
        <translation>Toggle Call/Hangup</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom In</translation>
    </message>
    <message>
        <source>Camera Shutter</source>
        <translation>Camera Shutter</translation>
    </message>
    <message>
        <source>Ultra Wide Band</source>
        <translation>Ultra Wide Band</translation>
    </message>
    <message>
        <source>Hangul Special</source>
        <translation>Hangul Special</translation>
    </message>
    <message>
        <source>Treble Down</source>
        <translation>Treble Down</translation>
    </message>
    <message>
        <source>Scroll Lock</source>
        <translation>Scroll Lock</translation>
    </message>
    <message>
        <source>Media Pause</source>
        <translation>Media Pause</translation>
    </message>
    <message>
        <source>Word Processor</source>
        <translation>Word Processor</translation>
    </message>
    <message>
        <source>Volume Down</source>
        <translation>Volume Down</translation>
    </message>
    <message>
        <source>Volume Mute</source>
        <translation>Volume Mute</translation>
    </message>
    <message>
        <source>Kana Shift</source>
        <translation>Kana Shift</translation>
    </message>
    <message>
        <source>Media Previous</source>
        <translation>Media Previous</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Home Page</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>Meeting</translation>
    </message>
    <message>
        <source>Touchpad Off</source>
        <translation>Touchpad Off</translation>
    </message>
    <message>
        <source>Volume Up</source>
        <translation>Volume Up</translation>
    </message>
    <message>
        <source>Menu PB</source>
        <translation>Menu PB</translation>
    </message>
    <message>
        <source>Keyboard Brightness Up</source>
        <translation>Keyboard Brightness Up</translation>
    </message>
    <message>
        <source>Hangul PostHanja</source>
        <translation>Hangul PostHanja</translation>
    </message>
    <message>
        <source>Kana Lock</source>
        <translation>Kana Lock</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>Community</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Launch (6)</source>
        <translation>Launch (6)</translation>
    </message>
    <message>
        <source>Launch (7)</source>
        <translation>Launch (7)</translation>
    </message>
    <message>
        <source>Launch (8)</source>
        <translation>Launch (8)</translation>
    </message>
    <message>
        <source>Launch (9)</source>
        <translation>Launch (9)</translation>
    </message>
    <message>
        <source>Launch (2)</source>
        <translation>Launch (2)</translation>
    </message>
    <message>
        <source>Launch (3)</source>
        <translation>Launch (3)</translation>
    </message>
    <message>
        <source>Launch (4)</source>
        <translation>Launch (4)</translation>
    </message>
    <message>
        <source>Launch (5)</source>
        <translation>Launch (5)</translation>
    </message>
    <message>
        <source>Launch (0)</source>
        <translation>Launch (0)</translation>
    </message>
    <message>
        <source>Launch (1)</source>
        <translation>Launch (1)</translation>
    </message>
    <message>
        <source>Launch (F)</source>
        <translation>Launch (F)</translation>
    </message>
    <message>
        <source>Launch (B)</source>
        <translation>Launch (B)</translation>
    </message>
    <message>
        <source>Launch (C)</source>
        <translation>Launch (C)</translation>
    </message>
    <message>
        <source>Launch (D)</source>
        <translation>Launch (D)</translation>
    </message>
    <message>
        <source>Launch (E)</source>
        <translation>Launch (E)</translation>
    </message>
    <message>
        <source>Launch (A)</source>
        <translation>Launch (A)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Audio Random Play</source>
        <translation>Audio Random Play</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>Hangul</translation>
    </message>
    <message>
        <source>Hangup</source>
        <translation>Hangup</translation>
    </message>
    <message>
        <source>Henkan</source>
        <translation>Henkan</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Home Office</source>
        <translation>Home Office</translation>
    </message>
    <message>
        <source>Last Number Redial</source>
        <translation>Last Number Redial</translation>
    </message>
    <message>
        <source>Logoff</source>
        <translation>Logoff</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Market</translation>
    </message>
    <message>
        <source>Massyo</source>
        <translation>Massyo</translation>
    </message>
    <message>
        <source>Bass Boost</source>
        <translation>Bass Boost</translation>
    </message>
    <message>
        <source>Channel Up</source>
        <translation>Channel Up</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>PgDown</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Reload</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Romaji</source>
        <translation>Romaji</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>SysReq</source>
        <translation>SysReq</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Travel</translation>
    </message>
    <message>
        <source>NumLock</source>
        <translation>NumLock</translation>
    </message>
    <message>
        <source>WebCam</source>
        <translation>WebCam</translation>
    </message>
    <message>
        <source>Hiragana Katakana</source>
        <translation>Hiragana Katakana</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Top Menu</source>
        <translation>Top Menu</translation>
    </message>
    <message>
        <source>ScrollLock</source>
        <translation>ScrollLock</translation>
    </message>
    <message>
        <source>Hot Links</source>
        <translation>Hot Links</translation>
    </message>
    <message>
        <source>Audio Cycle Track</source>
        <translation>Audio Cycle Track</translation>
    </message>
    <message>
        <source>Context1</source>
        <translation>Context1</translation>
    </message>
    <message>
        <source>Context2</source>
        <translation>Context2</translation>
    </message>
    <message>
        <source>Context3</source>
        <translation>Context3</translation>
    </message>
    <message>
        <source>Context4</source>
        <translation>Context4</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom Out</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Open URL</source>
        <translation>Open URL</translation>
    </message>
    <message>
        <source>iTouch</source>
        <translation>iTouch</translation>
    </message>
    <message>
        <source>Previous Candidate</source>
        <translation>Previous Candidate</translation>
    </message>
    <message>
        <source>Toggle Media Play/Pause</source>
        <translation>Toggle Media Play/Pause</translation>
    </message>
    <message>
        <source>Caps Lock</source>
        <translation>Caps Lock</translation>
    </message>
    <message>
        <source>Eisu Shift</source>
        <translation>Eisu Shift</translation>
    </message>
    <message>
        <source>Code input</source>
        <translation>Code input</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Camera Focus</source>
        <translation>Camera Focus</translation>
    </message>
    <message>
        <source>Adjust Brightness</source>
        <translation>Adjust Brightness</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Spreadsheet</translation>
    </message>
    <message>
        <source>Eisu toggle</source>
        <translation>Eisu toggle</translation>
    </message>
    <message>
        <source>Keyboard Brightness Down</source>
        <translation>Keyboard Brightness Down</translation>
    </message>
    <message>
        <source>Clear Grab</source>
        <translation>Clear Grab</translation>
    </message>
    <message>
        <source>Monitor Brightness Up</source>
        <translation>Monitor Brightness Up</translation>
    </message>
    <message>
        <source>System Request</source>
        <translation>System Request</translation>
    </message>
    <message>
        <source>Microphone Volume Up</source>
        <translation>Microphone Volume Up</translation>
    </message>
    <message>
        <source>CapsLock</source>
        <translation>CapsLock</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Backtab</translation>
    </message>
    <message>
        <source>Bass Up</source>
        <translation>Bass Up</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Battery</translation>
    </message>
    <message>
        <source>Katakana</source>
        <translation>Katakana</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Hibernate</translation>
    </message>
    <message>
        <source>Application Left</source>
        <translation>Application Left</translation>
    </message>
    <message>
        <source>Voice Dial</source>
        <translation>Voice Dial</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Keyboard Menu</source>
        <translation>Keyboard Menu</translation>
    </message>
    <message>
        <source>Back Forward</source>
        <translation>Back Forward</translation>
    </message>
    <message>
        <source>Launch Mail</source>
        <translation>Launch Mail</translation>
    </message>
    <message>
        <source>Keyboard Light On/Off</source>
        <translation>Keyboard Light On/Off</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Bass Down</source>
        <translation>Bass Down</translation>
    </message>
    <message>
        <source>Mail Forward</source>
        <translation>Mail Forward</translation>
    </message>
    <message>
        <source>Messenger</source>
        <translation>Messenger</translation>
    </message>
    <message>
        <source>Hangul Banja</source>
        <translation>Hangul Banja</translation>
    </message>
    <message>
        <source>Hangul Hanja</source>
        <translation>Hangul Hanja</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Hangul Start</source>
        <translation>Hangul Start</translation>
    </message>
    <message>
        <source>Rotation KB</source>
        <translation>Rotation KB</translation>
    </message>
    <message>
        <source>Rotation PB</source>
        <translation>Rotation PB</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Calculator</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Suspend</source>
        <translation>Suspend</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Hangul Romaja</source>
        <translation>Hangul Romaja</translation>
    </message>
    <message>
        <source>My Sites</source>
        <translation>My Sites</translation>
    </message>
    <message>
        <source>Rotate Windows</source>
        <translation>Rotate Windows</translation>
    </message>
    <message>
        <source>Touroku</source>
        <translation>Touroku</translation>
    </message>
    <message>
        <source>Zenkaku Hankaku</source>
        <translation>Zenkaku Hankaku</translation>
    </message>
    <message>
        <source>Hangul Jeonja</source>
        <translation>Hangul Jeonja</translation>
    </message>
    <message>
        <source>Treble Up</source>
        <translation>Treble Up</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtitle</translation>
    </message>
    <message>
        <source>Hangul Jamo</source>
        <translation>Hangul Jamo</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Muhenkan</source>
        <translation>Muhenkan</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Num Lock</translation>
    </message>
    <message>
        <source>Screensaver</source>
        <translation>Screensaver</translation>
    </message>
    <message>
        <source>Number Lock</source>
        <translation>Number Lock</translation>
    </message>
    <message>
        <source>Power Down</source>
        <translation>Power Down</translation>
    </message>
    <message>
        <source>Spellchecker</source>
        <translation>Spellchecker</translation>
    </message>
    <message>
        <source>Hangul PreHanja</source>
        <translation>Hangul PreHanja</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Add Favorite</source>
        <translation>Add Favorite</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Execute</translation>
    </message>
    <message>
        <source>Finance</source>
        <translation>Finance</translation>
    </message>
    <message>
        <source>Microphone Volume Down</source>
        <translation>Microphone Volume Down</translation>
    </message>
    <message>
        <source>Task Panel</source>
        <translation>Task Panel</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Wake Up</source>
        <translation>Wake Up</translation>
    </message>
    <message>
        <source>Power Off</source>
        <translation>Power Off</translation>
    </message>
    <message>
        <source>LightBulb</source>
        <translation>LightBulb</translation>
    </message>
    <message>
        <source>Touchpad Toggle</source>
        <translation>Touchpad Toggle</translation>
    </message>
    <message>
        <source>Hankaku</source>
        <translation>Hankaku</translation>
    </message>
    <message>
        <source>Media Fast Forward</source>
        <translation>Media Fast Forward</translation>
    </message>
    <message>
        <source>Hangul End</source>
        <translation>Hangul End</translation>
    </message>
    <message>
        <source>Monitor Brightness Down</source>
        <translation>Monitor Brightness Down</translation>
    </message>
    <message>
        <source>Microphone Mute</source>
        <translation>Microphone Mute</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Media Play</source>
        <translation>Media Play</translation>
    </message>
    <message>
        <source>Media Stop</source>
        <translation>Media Stop</translation>
    </message>
    <message>
        <source>Media Next</source>
        <translation>Media Next</translation>
    </message>
    <message>
        <source>Touchpad On</source>
        <translation>Touchpad On</translation>
    </message>
    <message>
        <source>Channel Down</source>
        <translation>Channel Down</translation>
    </message>
    <message>
        <source>Launch Media</source>
        <translation>Launch Media</translation>
    </message>
    <message>
        <source>Application Right</source>
        <translation>Application Right</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
</context>
<context>
    <name>QSpiAccessibleBridge</name>
    <message>
        <source>row</source>
        <translation>row</translation>
    </message>
    <message>
        <source>cell</source>
        <translation>cell</translation>
    </message>
    <message>
        <source>dial</source>
        <translation>dial</translation>
    </message>
    <message>
        <source>form</source>
        <translation>form</translation>
    </message>
    <message>
        <source>grip</source>
        <translation>grip</translation>
    </message>
    <message>
        <source>link</source>
        <translation>link</translation>
    </message>
    <message>
        <source>list</source>
        <translation>list</translation>
    </message>
    <message>
        <source>note</source>
        <translation>note</translation>
    </message>
    <message>
        <source>text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>tree</source>
        <translation>tree</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animation</translation>
    </message>
    <message>
        <source>chart</source>
        <translation>chart</translation>
    </message>
    <message>
        <source>clock</source>
        <translation>clock</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>frame</translation>
    </message>
    <message>
        <source>label</source>
        <translation>label</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>panel</translation>
    </message>
    <message>
        <source>space</source>
        <translation>space</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>sound</translation>
    </message>
    <message>
        <source>table</source>
        <translation>table</translation>
    </message>
    <message>
        <source>radio button</source>
        <translation>radio button</translation>
    </message>
    <message>
        <source>page tab list</source>
        <translation>page tab list</translation>
    </message>
    <message>
        <source>web document</source>
        <translation>web document</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>combo box</translation>
    </message>
    <message>
        <source>color chooser</source>
        <translation>color chooser</translation>
    </message>
    <message>
        <source>menu item</source>
        <translation>menu item</translation>
    </message>
    <message>
        <source>document</source>
        <translation>document</translation>
    </message>
    <message>
        <source>scroll bar</source>
        <translation>scroll bar</translation>
    </message>
    <message>
        <source>tool bar</source>
        <translation>tool bar</translation>
    </message>
    <message>
        <source>tool tip</source>
        <translation>tool tip</translation>
    </message>
    <message>
        <source>text caret</source>
        <translation>text caret</translation>
    </message>
    <message>
        <source>button menu</source>
        <translation>button menu</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>separator</translation>
    </message>
    <message>
        <source>canvas</source>
        <translation>canvas</translation>
    </message>
    <message>
        <source>column</source>
        <translation>column</translation>
    </message>
    <message>
        <source>cursor</source>
        <translation>cursor</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>dialog</translation>
    </message>
    <message>
        <source>filler</source>
        <translation>filler</translation>
    </message>
    <message>
        <source>footer</source>
        <translation>footer</translation>
    </message>
    <message>
        <source>push button</source>
        <translation>push button</translation>
    </message>
    <message>
        <source>row header</source>
        <translation>row header</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>spin box</translation>
    </message>
    <message>
        <source>splitter</source>
        <translation>splitter</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>slider</translation>
    </message>
    <message>
        <source>button with drop down grid</source>
        <translation>button with drop down grid</translation>
    </message>
    <message>
        <source>page tab</source>
        <translation>page tab</translation>
    </message>
    <message>
        <source>invalid role</source>
        <translation>invalid role</translation>
    </message>
    <message>
        <source>paragraph</source>
        <translation>paragraph</translation>
    </message>
    <message>
        <source>equation</source>
        <translation>equation</translation>
    </message>
    <message>
        <source>complementary content</source>
        <translation>complementary content</translation>
    </message>
    <message>
        <source>section</source>
        <translation>section</translation>
    </message>
    <message>
        <source>assistant</source>
        <translation>assistant</translation>
    </message>
    <message>
        <source>list item</source>
        <translation>list item</translation>
    </message>
    <message>
        <source>indicator</source>
        <translation>indicator</translation>
    </message>
    <message>
        <source>title bar</source>
        <translation>title bar</translation>
    </message>
    <message>
        <source>tree item</source>
        <translation>tree item</translation>
    </message>
    <message>
        <source>check box</source>
        <translation>check box</translation>
    </message>
    <message>
        <source>status bar</source>
        <translation>status bar</translation>
    </message>
    <message>
        <source>progress bar</source>
        <translation>progress bar</translation>
    </message>
    <message>
        <source>alert message</source>
        <translation>alert message</translation>
    </message>
    <message>
        <source>property page</source>
        <translation>property page</translation>
    </message>
    <message>
        <source>popup menu</source>
        <translation>popup menu</translation>
    </message>
    <message>
        <source>layered pane</source>
        <translation>layered pane</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>menu bar</source>
        <translation>menu bar</translation>
    </message>
    <message>
        <source>column header</source>
        <translation>column header</translation>
    </message>
    <message>
        <source>button with drop down</source>
        <translation>button with drop down</translation>
    </message>
    <message>
        <source>hotkey field</source>
        <translation>hotkey field</translation>
    </message>
    <message>
        <source>graphic</source>
        <translation>graphic</translation>
    </message>
    <message>
        <source>help balloon</source>
        <translation>help balloon</translation>
    </message>
    <message>
        <source>heading</source>
        <translation>heading</translation>
    </message>
    <message>
        <source>application</source>
        <translation>application</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Scroll Left</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Scroll Right</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>RLE Start of right-to-left embedding</source>
        <translation>RLE Start of right-to-left embedding</translation>
    </message>
    <message>
        <source>ZWSP Zero width space</source>
        <translation>ZWSP Zero width space</translation>
    </message>
    <message>
        <source>LRI Left-to-right isolate</source>
        <translation>LRI Left-to-right isolate</translation>
    </message>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Insert Unicode control character</translation>
    </message>
    <message>
        <source>LRO Start of left-to-right override</source>
        <translation>LRO Start of left-to-right override</translation>
    </message>
    <message>
        <source>LRE Start of left-to-right embedding</source>
        <translation>LRE Start of left-to-right embedding</translation>
    </message>
    <message>
        <source>RLI Right-to-left isolate</source>
        <translation>RLI Right-to-left isolate</translation>
    </message>
    <message>
        <source>RLM Right-to-left mark</source>
        <translation>RLM Right-to-left mark</translation>
    </message>
    <message>
        <source>PDF Pop directional formatting</source>
        <translation>PDF Pop directional formatting</translation>
    </message>
    <message>
        <source>ZWNJ Zero width non-joiner</source>
        <translation>ZWNJ Zero width non-joiner</translation>
    </message>
    <message>
        <source>RLO Start of right-to-left override</source>
        <translation>RLO Start of right-to-left override</translation>
    </message>
    <message>
        <source>PDI Pop directional isolate</source>
        <translation>PDI Pop directional isolate</translation>
    </message>
    <message>
        <source>ZWJ Zero width joiner</source>
        <translation>ZWJ Zero width joiner</translation>
    </message>
    <message>
        <source>LRM Left-to-right mark</source>
        <translation>LRM Left-to-right mark</translation>
    </message>
    <message>
        <source>FSI First strong isolate</source>
        <translation>FSI First strong isolate</translation>
    </message>
</context>
<context>
    <name>QWhatsThisAction</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>What&apos;s This?</translation>
    </message>
</context>
<context>
    <name>QWidget</name>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copy &amp;Link Location</translation>
    </message>
</context>
</TS>
