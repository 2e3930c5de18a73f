<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr_FR">
<context>
    <name>AccesBDNet</name>
    <message>
        <source>Le navigateur n&apos;est pas installé (paquet libqt6webenginewidgets6). L&apos;adresse d&apos;une fiche d&apos;album, écrite ci-dessus, suffit pour l&apos;analyser.</source>
        <translation>The browser is not installed (package libqt6webenginewidgets6). To analyse an album page, just type its address above.</translation>
    </message>
    <message>
        <source>Donnez l&apos;adresse du catalogue, d&apos;où viennent les couvertures, et la page par laquelle sa visite commence.</source>
        <translation>Give the address of the catalogue, where the covers come from, and the page on which a visit to it begins.</translation>
    </message>
    <message>
        <source>Adresse du catalogue</source>
        <translation>Address of the catalogue</translation>
    </message>
    <message>
        <source>Page d&apos;accueil</source>
        <translation>Home page</translation>
    </message>
    <message>
        <source>Enregistrer</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>« %1 » n&apos;est pas une adresse du web.</source>
        <translation>“%1” is not a web address.</translation>
    </message>
</context>
<context>
    <name>AccordPourLaNote</name>
    <message>
        <source>Cette dédicace est une note : « %1 ». L&apos;image la remplacera. Continuer ?</source>
        <translation>This signed sketch is a note: “%1”. The picture will replace it. Continue?</translation>
    </message>
</context>
<context>
    <name>Accueil</name>
    <message>
        <source>Bienvenue dans votre bibliothèque</source>
        <translation>Welcome to your library</translation>
    </message>
    <message>
        <source>Votre collection est encore vide. Par quoi voulez-vous commencer ?</source>
        <translation>Your collection is still empty. What do you want to begin with?</translation>
    </message>
    <message>
        <source>Choisissez une ligne de la liste pour voir sa fiche.</source>
        <translation>Choose a line of the list to see its sheet.</translation>
    </message>
    <message>
        <source>Saisir un premier album</source>
        <translation>Enter a first album</translation>
    </message>
    <message>
        <source>Le prendre dans le catalogue fourni</source>
        <translation>Take it from the catalogue supplied</translation>
    </message>
    <message>
        <source>Importer un fichier CSV</source>
        <translation>Import a CSV file</translation>
    </message>
    <message>
        <source>Reprendre une ancienne base (bd.mdb)</source>
        <translation>Bring in an old database (bd.mdb)</translation>
    </message>
</context>
<context>
    <name>Acquisition</name>
    <message>
        <source>aucun scanner</source>
        <translation>no scanner</translation>
    </message>
    <message>
        <source>Numérisez ou ouvrez une image, déposez un fichier ici, ou collez-la avec Ctrl+V</source>
        <translation>Scan or open a picture, drop a file here, or paste a picture with Ctrl+V</translation>
    </message>
    <message>
        <source>Dernier résultat</source>
        <translation>Last result</translation>
    </message>
    <message>
        <source>Utiliser comme couverture</source>
        <translation>Use as cover</translation>
    </message>
    <message>
        <source>Utiliser comme dos</source>
        <translation>Use as back</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 1</source>
        <translation>Use as signed sketch 1</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 2</source>
        <translation>Use as signed sketch 2</translation>
    </message>
    <message>
        <source>Montrez un album dans la fenêtre principale pour lui donner cette image.</source>
        <translation>Show an album in the main window to give it this picture.</translation>
    </message>
    <message>
        <source>Ouvrir un fichier image</source>
        <translation>Open a picture file</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</source>
        <translation>All picture files (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible : %1</source>
        <translation>This file is not a readable picture: %1</translation>
    </message>
    <message>
        <source>Format Bitmap (*.bmp)|*.bmp</source>
        <translation>Bitmap format (*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</source>
        <translation>All picture files (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Image enregistrée : %1</source>
        <translation>Picture saved: %1</translation>
    </message>
    <message>
        <source>Le presse-papiers ne contient pas d&apos;image.</source>
        <translation>The clipboard does not contain a picture.</translation>
    </message>
    <message>
        <source>C&apos;est fait : %1</source>
        <translation>Done: %1</translation>
    </message>
    <message>
        <source>Les scanners sont encore recherchés.</source>
        <translation>Scanners are still being looked for.</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>“%1” already exists. Replace it?</translation>
    </message>
</context>
<context>
    <name>Acte</name>
    <message>
        <source>La modification est enregistrée, mais le disque a signalé une erreur.</source>
        <translation>The change is saved, but the disk reported an error.</translation>
    </message>
</context>
<context>
    <name>Aide</name>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation>The help cannot be opened.</translation>
    </message>
</context>
<context>
    <name>AnalysePage</name>
    <message>
        <source>La page ne peut pas être analysée.</source>
        <translation>The page cannot be analysed.</translation>
    </message>
    <message>
        <source>Il lui manque une ligne.</source>
        <translation>A line is missing from it.</translation>
    </message>
    <message>
        <source>Son prix n&apos;est pas un nombre.</source>
        <translation>Its price is not a number.</translation>
    </message>
    <message>
        <source>Une balise n&apos;y est jamais fermée.</source>
        <translation>A tag in it is never closed.</translation>
    </message>
</context>
<context>
    <name>Apparence</name>
    <message>
        <source>Apparence</source>
        <translation>Appearance</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation>An unexpected error has occurred.</translation>
    </message>
</context>
<context>
    <name>BDNet</name>
    <message>
        <source>Cette page ne peut pas être montrée.</source>
        <translation>This page cannot be shown.</translation>
    </message>
    <message>
        <source>Adresse d&apos;une page</source>
        <translation>Address of a page</translation>
    </message>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Enter</translation>
    </message>
    <message>
        <source>Seules les adresses du web peuvent être montrées.</source>
        <translation>Only web addresses can be shown.</translation>
    </message>
    <message>
        <source>La page n&apos;a pas pu être lue jusqu&apos;au bout : complétez les champs.</source>
        <translation>The page could not be read to the end: complete the fields.</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>“%1”: an album begun is not created yet, it will be lost.</translation>
    </message>
    <message>
        <source>La couverture n&apos;a pas pu être gardée : %1</source>
        <translation>The cover could not be kept: %1</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Perdre ce qui est saisi ?</source>
        <translation>This album is not created yet. Lose what has been entered?</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>This album is not created yet. Close anyway?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>What has been entered will be there the next time this opens, as long as the program is not quit.</translation>
    </message>
</context>
<context>
    <name>BandeSerie</name>
    <message numerus="yes">
        <source>%n tome(s) de plus</source>
        <translation>
            <numerusform>%n more volume</numerusform>
            <numerusform>%n more volumes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Bandeau</name>
    <message>
        <source>Quitter</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Aide</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Diaporama</source>
        <translation>Slide Show</translation>
    </message>
    <message>
        <source>Montrer tour à tour la couverture et le dos ; avec Maj, parcourir aussi la liste</source>
        <translation>Show the cover and the back in turn; with Shift, go through the list, too</translation>
    </message>
    <message>
        <source>Annuler (Ctrl+Z)</source>
        <translation>Undo (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Annuler %1 (Ctrl+Z)</source>
        <translation>Undo %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Rétablir (Ctrl+Y)</source>
        <translation>Redo (Ctrl+Y)</translation>
    </message>
    <message>
        <source>Rétablir %1 (Ctrl+Y)</source>
        <translation>Redo %1 (Ctrl+Y)</translation>
    </message>
</context>
<context>
    <name>Base</name>
    <message>
        <source>L&apos;ordre alphabétique n&apos;est pas disponible.</source>
        <translation>Alphabetical order is not available.</translation>
    </message>
    <message>
        <source>La base est utilisée par un autre programme.</source>
        <translation>The database is in use by another program.</translation>
    </message>
    <message>
        <source>La base est en lecture seule.</source>
        <translation>The database is read-only.</translation>
    </message>
    <message>
        <source>La base est abîmée.</source>
        <translation>The database is damaged.</translation>
    </message>
    <message>
        <source>Le disque est plein.</source>
        <translation>The disk is full.</translation>
    </message>
    <message>
        <source>La base a refusé l&apos;opération.</source>
        <translation>The database refused the operation.</translation>
    </message>
    <message>
        <source>L&apos;opération a été interrompue.</source>
        <translation>The operation was interrupted.</translation>
    </message>
    <message>
        <source>Il n&apos;y a plus d&apos;enregistrement ici.</source>
        <translation>There are no more records here.</translation>
    </message>
    <message>
        <source>Un champ manque dans la base.</source>
        <translation>A field is missing from the database.</translation>
    </message>
    <message>
        <source>La fiche n&apos;existe plus.</source>
        <translation>The record no longer exists.</translation>
    </message>
    <message>
        <source>La base ne peut pas être créée.</source>
        <translation>The database cannot be created.</translation>
    </message>
    <message>
        <source>Ce fichier existe déjà.</source>
        <translation>This file already exists.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être remplacé.</source>
        <translation>This file cannot be replaced.</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation>The copy could not be made.</translation>
    </message>
    <message>
        <source>Une longue lecture de la base est en cours.</source>
        <translation>A long reading of the database is under way.</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>The database is read-only: nothing in it can be changed.</translation>
    </message>
    <message>
        <source>Pour lire cette base, il en faut une copie, qui ne peut pas être faite.</source>
        <translation>To read this database a copy of it is needed, and that cannot be made.</translation>
    </message>
    <message>
        <source>Ce fichier contient des vues ou des règles qui ne viennent pas de Bulleo : il n&apos;est pas ouvert.</source>
        <translation>This file contains views or rules that do not come from Bulleo: it is not opened.</translation>
    </message>
    <message>
        <source>La lecture a été arrêtée.</source>
        <translation>The reading was stopped.</translation>
    </message>
</context>
<context>
    <name>Bureau</name>
    <message>
        <source>%1 — Ctrl+Z pour annuler</source>
        <translation>%1 — Ctrl+Z to undo</translation>
    </message>
    <message>
        <source>Annulé : %1</source>
        <translation>Undone: %1</translation>
    </message>
    <message>
        <source>Rétabli : %1</source>
        <translation>Redone: %1</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>The database is read-only: nothing in it can be changed.</translation>
    </message>
    <message>
        <source>La lecture de la base dure plus longtemps que prévu. Attendre encore ?</source>
        <translation>Reading the database is taking longer than expected. Go on waiting?</translation>
    </message>
    <message>
        <source>La copie contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>The copy contains the data, not the pictures: their folders, images and image, are copied separately.</translation>
    </message>
</context>
<context>
    <name>Capture</name>
    <message>
        <source>Cette fiche n&apos;existe pas.</source>
        <translation>This record does not exist.</translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Les textes du catalogue de référence ne peuvent pas être décodés.</source>
        <translation>The texts of the reference catalogue cannot be decoded.</translation>
    </message>
</context>
<context>
    <name>ChoixColonnes</name>
    <message>
        <source>Toutes</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Aucune</source>
        <translation>None</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>La conversion a été annulée.</source>
        <translation>The conversion was cancelled.</translation>
    </message>
    <message>
        <source>La conversion ne finit pas : le fichier est abîmé.</source>
        <translation>The conversion does not end: the file is damaged.</translation>
    </message>
    <message>
        <source>La conversion s&apos;est arrêtée en chemin : le fichier est abîmé.</source>
        <translation>The conversion stopped on the way: the file is damaged.</translation>
    </message>
    <message>
        <source>Le programme de conversion est introuvable.</source>
        <translation>The conversion program cannot be found.</translation>
    </message>
</context>
<context>
    <name>Couvertures</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>The picture cannot be saved.</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation>This file cannot be read.</translation>
    </message>
    <message>
        <source>Ligne %1</source>
        <translation>Line %1</translation>
    </message>
    <message>
        <source>Ce n&apos;est pas un fichier de valeurs séparées (CSV).</source>
        <translation>This is not a file of separated values (CSV).</translation>
    </message>
</context>
<context>
    <name>Demarrage</name>
    <message>
        <source>La base contient des restes que rien ne montre : saisies interrompues, liens en double, lignes d&apos;albums supprimés. Les ôter ? Ctrl+Z les remet.</source>
        <translation>The database contains leftovers that nothing shows: interrupted entries, duplicate links, lines of deleted albums. Remove them? Ctrl+Z brings them back.</translation>
    </message>
</context>
<context>
    <name>Dossier</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>This folder cannot be created.</translation>
    </message>
</context>
<context>
    <name>Edition</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>The title was cut to 50 characters.</translation>
    </message>
    <message>
        <source>Le numéro a été coupé à 3 caractères : %1</source>
        <translation>The number was cut to 3 characters: %1</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;existe plus.</source>
        <translation>This record no longer exists.</translation>
    </message>
</context>
<context>
    <name>Entete</name>
    <message>
        <source>Le fichier est introuvable.</source>
        <translation>The file cannot be found.</translation>
    </message>
    <message>
        <source>Le fichier ne peut pas être ouvert.</source>
        <translation>The file cannot be opened.</translation>
    </message>
    <message>
        <source>Ce fichier est au format d&apos;une ancienne version.</source>
        <translation>This file is in the format of an older version.</translation>
    </message>
    <message>
        <source>Le fichier est vide.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>This file is not a Bulleo database.</translation>
    </message>
    <message>
        <source>Le fichier est abîmé : il est plus court qu&apos;il ne devrait.</source>
        <translation>The file is damaged: it is shorter than it should be.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>This database comes from a newer version of Bulleo: it takes that one to open it.</translation>
    </message>
</context>
<context>
    <name>Facile</name>
    <message numerus="yes">
        <source>%n album(s) du catalogue ne peuvent pas être décodés.</source>
        <translation>
            <numerusform>%n album of the catalogue cannot be decoded.</numerusform>
            <numerusform>%n albums of the catalogue cannot be decoded.</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtrer le catalogue</source>
        <translation>Filter the catalogue</translation>
    </message>
    <message>
        <source>Choisir</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Ce catalogue vient d&apos;un ancien programme : ses textes sont codés, et personne n&apos;en a la clé.</source>
        <translation>This catalogue comes from an older program: its texts are coded, and nobody has the key.</translation>
    </message>
    <message>
        <source>Titre, série, auteur ou éditeur</source>
        <translation>Title, series, author or publisher</translation>
    </message>
</context>
<context>
    <name>Fiche</name>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation>The number is a whole number from 0 to 999.</translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation>The price is a number, such as 12.50.</translation>
    </message>
    <message>
        <source>Le nombre de pages est un nombre.</source>
        <translation>The page count must be a number.</translation>
    </message>
    <message>
        <source>Il faut ici un nombre entier.</source>
        <translation>A whole number is needed here.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>A name is missing.</translation>
    </message>
    <message>
        <source>« %1 » peut se lire %2 ou %3 : écrivez l&apos;un des deux.</source>
        <translation>“%1” can be read as %2 or as %3: write one of the two.</translation>
    </message>
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation>Show the other side</translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation>Missing: %1</translation>
    </message>
    <message numerus="yes">
        <source>tome %1 · %n possédé(s)</source>
        <translation>
            <numerusform>volume %1 · %n owned</numerusform>
            <numerusform>volume %1 · %n owned</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FicheForme</name>
    <message>
        <source>Groupe suivant : F6, précédent : Maj+F6</source>
        <translation>Next group: F6, previous: Shift+F6</translation>
    </message>
</context>
<context>
    <name>FormeCreation</name>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Enter</translation>
    </message>
    <message>
        <source>Effacer tout ce qui est saisi ici ?</source>
        <translation>Clear everything entered here?</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>“%1”: an album begun is not created yet, it will be lost.</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>This album is not created yet. Close anyway?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>What has been entered will be there the next time this opens, as long as the program is not quit.</translation>
    </message>
    <message>
        <source>Vider</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Effacer tous les champs</source>
        <translation>Clear all the fields</translation>
    </message>
</context>
<context>
    <name>FormeOutil</name>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>FormulaireAlbum</name>
    <message>
        <source>Couverture ...</source>
        <translation>Cover ...</translation>
    </message>
    <message>
        <source>Dos ...</source>
        <translation>Back ...</translation>
    </message>
    <message>
        <source>Déposez une image ici</source>
        <translation>Drop a picture here</translation>
    </message>
    <message>
        <source>Jour</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Année</source>
        <translation>Year</translation>
    </message>
</context>
<context>
    <name>FrmModif</name>
    <message>
        <source>« %1 » sera ajouté ; ↓ pour choisir dans la liste.</source>
        <translation>“%1” will be added; ↓ to choose from the list.</translation>
    </message>
    <message>
        <source>Tapez d&apos;abord le nom à ajouter.</source>
        <translation>First type the name to add.</translation>
    </message>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>This entry already exists!</translation>
    </message>
    <message>
        <source>« %1 » est connu dans un autre métier : il sera choisi.</source>
        <translation>“%1” is known in another role: it will be chosen.</translation>
    </message>
    <message>
        <source>« %1 » sera choisi.</source>
        <translation>“%1” will be chosen.</translation>
    </message>
</context>
<context>
    <name>Frmmain</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure</source>
        <translation>Free software, under the GNU GPL licence, version 3 or later</translation>
    </message>
    <message>
        <source>Le texte que vous venez de taper ne peut pas être enregistré. Le perdre ?</source>
        <translation>The text that you have just typed cannot be saved. Lose it?</translation>
    </message>
</context>
<context>
    <name>Images</name>
    <message>
        <source>Le dossier des images ne peut pas être créé.</source>
        <translation>The pictures folder cannot be created.</translation>
    </message>
    <message>
        <source>Cette image ne peut pas être copiée.</source>
        <translation>This picture cannot be copied.</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Choisir un fichier de valeurs séparées</source>
        <translation>Choose a file of separated values</translation>
    </message>
    <message>
        <source>Un fichier CSV, avec le nom des colonnes à la première ligne. Déposez-le ici, ou choisissez-le.</source>
        <translation>A CSV file, with the names of the columns on the first line. Drop it here, or choose it.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n line</numerusform>
            <numerusform>%1: %n lines</numerusform>
        </translation>
    </message>
    <message>
        <source>Dites quelle colonne est celle du titre.</source>
        <translation>Say which column is that of the title.</translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été importé.</source>
        <translation>Cancelled: nothing was imported.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) créé(s)</source>
        <translation>
            <numerusform>%n album created</numerusform>
            <numerusform>%n albums created</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n déjà présent(s)</source>
        <translation>
            <numerusform>%n already present</numerusform>
            <numerusform>%n already present</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refusé(s)</source>
        <translation>
            <numerusform>%n refused</numerusform>
            <numerusform>%n refused</numerusform>
        </translation>
    </message>
    <message>
        <source>Ligne %1 : %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <source>Ligne %1 : cet album est déjà dans la collection</source>
        <translation>Line %1: this album is already in the collection</translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Import albums</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Choose a file…</translation>
    </message>
    <message>
        <source>Quelle colonne pour quoi ?</source>
        <translation>Which column for what?</translation>
    </message>
    <message>
        <source>Les premières lignes, telles qu&apos;elles entreront</source>
        <translation>The first lines, as they will come in</translation>
    </message>
    <message>
        <source>Un album de même titre, série et tome :</source>
        <translation>An album of the same title, series and volume:</translation>
    </message>
    <message>
        <source>le sauter</source>
        <translation>skip it</translation>
    </message>
    <message>
        <source>le créer quand même</source>
        <translation>create it anyway</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Importer</source>
        <translation>Import</translation>
    </message>
</context>
<context>
    <name>Importation</name>
    <message>
        <source>La page ne peut pas être enregistrée.</source>
        <translation>The page cannot be saved.</translation>
    </message>
</context>
<context>
    <name>ImporterAlbums</name>
    <message>
        <source>%1 : « %2 » n&apos;est ni oui ni non.</source>
        <translation>%1: “%2” is neither yes nor no.</translation>
    </message>
    <message>
        <source>Importation de « %1 »</source>
        <translation>Import of “%1”</translation>
    </message>
</context>
<context>
    <name>Impression</name>
    <message>
        <source>Éditer la liste au format PDF</source>
        <translation>Output the list in PDF format</translation>
    </message>
    <message>
        <source>Exporter la liste au format CSV</source>
        <translation>Export the list in CSV format</translation>
    </message>
    <message>
        <source>La liste affichée</source>
        <translation>The list shown</translation>
    </message>
    <message>
        <source>Cochez au moins une colonne.</source>
        <translation>Tick at least one column.</translation>
    </message>
    <message numerus="yes">
        <source>%n ligne(s) en tout</source>
        <translation>
            <numerusform>%n line in all</numerusform>
            <numerusform>%n lines in all</numerusform>
        </translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été écrit.</source>
        <translation>Cancelled: nothing was written.</translation>
    </message>
    <message>
        <source>Liste enregistrée : %1</source>
        <translation>List saved: %1</translation>
    </message>
    <message>
        <source>Impression annulée.</source>
        <translation>Printing cancelled.</translation>
    </message>
    <message>
        <source>La liste est partie à l&apos;impression.</source>
        <translation>The list has gone to the printer.</translation>
    </message>
    <message>
        <source>Que voulez-vous lister ?</source>
        <translation>What do you want to list?</translation>
    </message>
    <message>
        <source>Ce qui sortira</source>
        <translation>What will come out</translation>
    </message>
    <message>
        <source>Vers un fichier ou sur papier</source>
        <translation>To a file or on paper</translation>
    </message>
    <message>
        <source>Toute la collection</source>
        <translation>The whole collection</translation>
    </message>
    <message>
        <source>La fiche affichée</source>
        <translation>The sheet shown</translation>
    </message>
    <message>
        <source>Aperçu avant impression</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>Imprimer…</source>
        <translation>Print…</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>“%1” already exists. Replace it?</translation>
    </message>
    <message>
        <source>Avec autant de colonnes, une page se lit mal. Continuer ?</source>
        <translation>With so many columns a page is hard to read. Go on?</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation>This change can no longer be undone or redone: the record has changed since.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être écrit.</source>
        <translation>The file that keeps what undo needs cannot be written.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être relu.</source>
        <translation>The file that keeps what undo needs cannot be read.</translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette image n&apos;existe plus.</source>
        <translation>This picture no longer exists.</translation>
    </message>
    <message>
        <source>Cette adresse ne s&apos;ouvre pas d&apos;ici : seuls les pages web et le courrier s&apos;ouvrent.</source>
        <translation>This address does not open from here: only web pages and mail open.</translation>
    </message>
    <message>
        <source>Aucun programme de courrier n&apos;est installé : copiez l&apos;adresse dans le vôtre.</source>
        <translation>No mail program is installed: copy the address into yours.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé : installez-en un, ou ouvrez cette adresse ailleurs.</source>
        <translation>No browser is installed: install one, or open this address elsewhere.</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;est installé pour voir cette image : installez une visionneuse.</source>
        <translation>No program is installed to view this picture: install a picture viewer.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé pour lire l&apos;aide : installez-en un, ou ouvrez ce fichier ailleurs.</source>
        <translation>No browser is installed to read the help: install one, or open this file elsewhere.</translation>
    </message>
</context>
<context>
    <name>Listage</name>
    <message>
        <source>Champ</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>ListeEntrees</name>
    <message>
        <source>Titre</source>
        <translation>Title</translation>
    </message>
</context>
<context>
    <name>Livraison</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>This folder cannot be created.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être copié.</source>
        <translation>This file cannot be copied.</translation>
    </message>
</context>
<context>
    <name>Modification</name>
    <message>
        <source>« %1 » n&apos;existe plus.</source>
        <translation>“%1” no longer exists.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>A name is missing.</translation>
    </message>
</context>
<context>
    <name>Moteur</name>
    <message>
        <source>Ce fichier ne peut pas être mis de côté.</source>
        <translation>This file cannot be put aside.</translation>
    </message>
</context>
<context>
    <name>Numeriseur</name>
    <message>
        <source>Le scanner a refusé l&apos;opération.</source>
        <translation>The scanner refused the operation.</translation>
    </message>
    <message>
        <source>Le scanner a rendu une image d&apos;un format inconnu.</source>
        <translation>The scanner returned a picture in an unknown format.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de scanner.</source>
        <translation>There is no scanner.</translation>
    </message>
</context>
<context>
    <name>PageTheme</name>
    <message>
        <source>Thème</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Fenêtres :</source>
        <translation>Windows:</translation>
    </message>
    <message>
        <source>Fenêtres claires ou sombres</source>
        <translation>Light or dark windows</translation>
    </message>
    <message>
        <source>comme le bureau</source>
        <translation>like the desktop</translation>
    </message>
    <message>
        <source>claires</source>
        <translation>light</translation>
    </message>
    <message>
        <source>sombres</source>
        <translation>dark</translation>
    </message>
</context>
<context>
    <name>Parcours</name>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>This entry already exists!</translation>
    </message>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>The title was cut to 50 characters.</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;est plus là : les listes ont été relues.</source>
        <translation>This record is no longer there: the lists have been read again.</translation>
    </message>
</context>
<context>
    <name>PhotosFiche</name>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>This file is not a readable picture.</translation>
    </message>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>The picture cannot be saved.</translation>
    </message>
</context>
<context>
    <name>Pied</name>
    <message numerus="yes">
        <source>%n album(s)</source>
        <translation>
            <numerusform>%n album</numerusform>
            <numerusform>%n albums</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n série(s)</source>
        <translation>
            <numerusform>%n series</numerusform>
            <numerusform>%n series</numerusform>
        </translation>
    </message>
    <message>
        <source>valeur %1</source>
        <translation>value %1</translation>
    </message>
    <message>
        <source>lecture seule</source>
        <translation>read-only</translation>
    </message>
</context>
<context>
    <name>Polices</name>
    <message>
        <source>police</source>
        <translation>font</translation>
    </message>
    <message>
        <source>Couleur du thème</source>
        <translation>Theme colour</translation>
    </message>
</context>
<context>
    <name>Pop</name>
    <message>
        <source>Quitter</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Suppr</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Renommer</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Rendre</source>
        <translation>Mark as returned</translation>
    </message>
    <message>
        <source>Prêter…</source>
        <translation>Lend…</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Copy</translation>
    </message>
</context>
<context>
    <name>Pret</name>
    <message numerus="yes">
        <source>%n jour(s)</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
    <message>
        <source>Rendre l&apos;album</source>
        <translation>Mark as returned</translation>
    </message>
    <message>
        <source>Supprimer la personne</source>
        <translation>Delete the person</translation>
    </message>
    <message>
        <source>Prêter « %1 »</source>
        <translation>Lend “%1”</translation>
    </message>
    <message>
        <source>Prêter</source>
        <translation>Lend</translation>
    </message>
    <message>
        <source>Choisir à qui l&apos;album montré est prêté</source>
        <translation>Choose who the album shown is lent to</translation>
    </message>
    <message>
        <source>Montrez d&apos;abord un album dans la fenêtre principale</source>
        <translation>First show an album in the main window</translation>
    </message>
    <message>
        <source>Dehors depuis</source>
        <translation>Out for</translation>
    </message>
    <message>
        <source>Tous les prêts</source>
        <translation>All loans</translation>
    </message>
    <message>
        <source>quelqu&apos;un qui n&apos;est plus dans la liste</source>
        <translation>someone who is no longer in the list</translation>
    </message>
    <message>
        <source>Une personne a un nom.</source>
        <translation>A person needs a name.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) lui restent prêtés et le resteront.</source>
        <translation>
            <numerusform>%n album is still lent to this person and will stay so.</numerusform>
            <numerusform>%n albums are still lent to this person and will stay so.</numerusform>
        </translation>
    </message>
    <message>
        <source>Prêter « %1 » à %2</source>
        <translation>Lend “%1” to %2</translation>
    </message>
    <message>
        <source>« %1 » est déjà prêté à %2.</source>
        <translation>“%1” is already lent to %2.</translation>
    </message>
    <message>
        <source>« %1 » est prêté à %2.</source>
        <translation>“%1” is lent to %2.</translation>
    </message>
    <message>
        <source>Le prêter maintenant à %1 ?</source>
        <translation>Lend it now to %1?</translation>
    </message>
    <message>
        <source>Le prêter maintenant à quelqu&apos;un d&apos;autre ?</source>
        <translation>Lend it now to someone else?</translation>
    </message>
</context>
<context>
    <name>Prets</name>
    <message>
        <source>Retour</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Prêt</source>
        <translation>Loan</translation>
    </message>
</context>
<context>
    <name>Recherche</name>
    <message>
        <source>Rien de tel</source>
        <translation>Nothing found</translation>
    </message>
</context>
<context>
    <name>Reglages</name>
    <message>
        <source>Le réglage %1 (« %2 ») n&apos;est pas valable.</source>
        <translation>The setting %1 (“%2”) is not valid.</translation>
    </message>
    <message>
        <source>Le fichier de réglages ne peut pas être lu.</source>
        <translation>The settings file cannot be read.</translation>
    </message>
</context>
<context>
    <name>Repartition</name>
    <message>
        <source>Inconnu</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Autres (%1)</source>
        <translation>Others (%1)</translation>
    </message>
    <message>
        <source>Valeur par année d&apos;achat</source>
        <translation>Value by year of purchase</translation>
    </message>
    <message>
        <source>Payé</source>
        <translation>Paid</translation>
    </message>
    <message>
        <source>Coté</source>
        <translation>Quoted</translation>
    </message>
    <message>
        <source>Albums par genre</source>
        <translation>Albums by genre</translation>
    </message>
    <message>
        <source>Albums par éditeur</source>
        <translation>Albums by publisher</translation>
    </message>
    <message>
        <source>Albums par décennie de parution</source>
        <translation>Albums by decade of publication</translation>
    </message>
    <message>
        <source>Croissance de la collection, par date d&apos;achat</source>
        <translation>Growth of the collection, by date of purchase</translation>
    </message>
    <message>
        <source>Achetés dans l&apos;année</source>
        <translation>Bought in the year</translation>
    </message>
    <message>
        <source>En tout</source>
        <translation>In all</translation>
    </message>
</context>
<context>
    <name>Restauration</name>
    <message>
        <source>Annulé : rien n&apos;a changé.</source>
        <translation>Cancelled: nothing has changed.</translation>
    </message>
    <message>
        <source>Cette base est chiffrée : elle ne peut pas être lue. Rien n&apos;a changé.</source>
        <translation>This database is encrypted: it cannot be read. Nothing has changed.</translation>
    </message>
    <message>
        <source>Cette base est abîmée. Rien n&apos;a changé.</source>
        <translation>This database is damaged. Nothing has changed.</translation>
    </message>
    <message>
        <source>Le convertisseur manque : Bulleo est mal installé.</source>
        <translation>The converter is missing: Bulleo is not installed properly.</translation>
    </message>
    <message>
        <source>La conversion a échoué. Rien n&apos;a changé.</source>
        <translation>The conversion failed. Nothing has changed.</translation>
    </message>
    <message>
        <source>table inconnue</source>
        <translation>unknown table</translation>
    </message>
    <message>
        <source>table absente, laissée vide</source>
        <translation>missing table, left empty</translation>
    </message>
    <message>
        <source>champ inconnu</source>
        <translation>unknown field</translation>
    </message>
    <message>
        <source>numéro déjà pris, ligne laissée</source>
        <translation>number already taken, row left out</translation>
    </message>
    <message>
        <source>ligne sans numéro, laissée</source>
        <translation>row without a number, left out</translation>
    </message>
    <message>
        <source>pas un nombre, laissé vide</source>
        <translation>not a number, left empty</translation>
    </message>
    <message>
        <source>montant trop grand, arrondi</source>
        <translation>amount too large, rounded</translation>
    </message>
    <message>
        <source>Une ancienne base : elle sera convertie, son fichier reste comme il est.</source>
        <translation>An old database: it will be converted, its file stays as it is.</translation>
    </message>
    <message>
        <source>La base en service est gardée parmi les sauvegardes.</source>
        <translation>The current database is kept among the backups.</translation>
    </message>
    <message>
        <source>Convertir cette ancienne base et la mettre en service ? Son fichier est gardé.</source>
        <translation>Convert this old database and put it to use? Its file is kept.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n row</numerusform>
            <numerusform>%1: %n rows</numerusform>
        </translation>
    </message>
    <message>
        <source>Laissé de côté, ou changé :</source>
        <translation>Left out, or changed:</translation>
    </message>
    <message>
        <source>C&apos;était un catalogue de référence : ses textes sont repris tels quels, leur code n&apos;étant pas connu.</source>
        <translation>It was a reference catalogue: its texts are taken over as they are, since their code is not known.</translation>
    </message>
    <message>
        <source>Sauvegardes</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Fichier</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Aucune sauvegarde pour l&apos;instant : la première se fait d&apos;elle-même, avant votre prochaine modification. Vous pouvez aussi choisir un fichier.</source>
        <translation>No backup for now: the first one is made by itself, before your next change. You can also choose a file.</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Choose a file…</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Une table manque :</source>
        <translation>A table is missing:</translation>
    </message>
    <message>
        <source>C&apos;est la base en service.</source>
        <translation>This is the current database.</translation>
    </message>
    <message>
        <source>Cette base est d&apos;une ancienne version : elle est à convertir d&apos;abord.</source>
        <translation>This database is of an older version: it must be converted first.</translation>
    </message>
    <message>
        <source>C&apos;est un catalogue de référence, pas une base.</source>
        <translation>This is a reference catalogue, not a database.</translation>
    </message>
    <message>
        <source>Cette base est abîmée.</source>
        <translation>This database is damaged.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>This file is not a Bulleo database.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>This database comes from a newer version of Bulleo: it takes that one to open it.</translation>
    </message>
    <message numerus="yes">
        <source>Remplacer la base en service par celle du %1, avec %n album(s) ?</source>
        <translation>
            <numerusform>Replace the current database with that of %1, with %n album?</numerusform>
            <numerusform>Replace the current database with that of %1, with %n albums?</numerusform>
        </translation>
    </message>
    <message>
        <source>Une sauvegarde contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>A backup contains the data, not the pictures: their folders, images and image, are copied separately.</translation>
    </message>
</context>
<context>
    <name>Restes</name>
    <message>
        <source>Restes ôtés : %1</source>
        <translation>Leftovers removed: %1</translation>
    </message>
</context>
<context>
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation>Give at least a title.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>This file is not a readable picture.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>A name is missing.</translation>
    </message>
</context>
<context>
    <name>Sauvegardes</name>
    <message>
        <source>La liste des copies de sauvegarde ne peut pas être écrite.</source>
        <translation>The list of the backups cannot be written.</translation>
    </message>
</context>
<context>
    <name>Scan</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>The picture cannot be saved.</translation>
    </message>
</context>
<context>
    <name>Secours</name>
    <message>
        <source>Il n&apos;y a aucune sauvegarde qui soit saine.</source>
        <translation>There is no backup that is sound.</translation>
    </message>
    <message>
        <source>Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté.</source>
        <translation>Do you want to go back to the backup of %1? The damaged file is kept beside it.</translation>
    </message>
    <message>
        <source>Votre base est abîmée, ou n&apos;est plus là.</source>
        <translation>Your database is damaged, or no longer there.</translation>
    </message>
</context>
<context>
    <name>Sorties</name>
    <message>
        <source>La liste ne peut pas être imprimée.</source>
        <translation>The list cannot be printed.</translation>
    </message>
    <message>
        <source>La liste ne peut pas être écrite.</source>
        <translation>The list cannot be written.</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation> Select the list of </translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Import albums</translation>
    </message>
    <message>
        <source>Créer beaucoup d&apos;albums d&apos;un coup, à partir d&apos;un fichier CSV</source>
        <translation>Create many albums at once, from a CSV file</translation>
    </message>
    <message>
        <source>Voir la liste</source>
        <translation>See the list</translation>
    </message>
</context>
<context>
    <name>Statistiques</name>
    <message>
        <source>La page des statistiques ne peut pas être écrite.</source>
        <translation>The statistics page cannot be written.</translation>
    </message>
    <message>
        <source>Liens sans fiche ôtés : %1</source>
        <translation>Links without a record removed: %1</translation>
    </message>
    <message>
        <source>Statistiques ...</source>
        <translation>Statistics ...</translation>
    </message>
</context>
<context>
    <name>Stats</name>
    <message>
        <source>La page est ouverte dans votre navigateur : %1</source>
        <translation>The page is open in your browser: %1</translation>
    </message>
    <message>
        <source>La page est écrite, mais aucun programme ne l&apos;ouvre : %1</source>
        <translation>The page is written, but no program opens it: %1</translation>
    </message>
    <message>
        <source>Recalculer</source>
        <translation>Compute again</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Genres</source>
        <translation>Genres</translation>
    </message>
    <message>
        <source>Éditeurs</source>
        <translation>Publishers</translation>
    </message>
    <message>
        <source>Décennies</source>
        <translation>Decades</translation>
    </message>
    <message>
        <source>Croissance</source>
        <translation>Growth</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Prix d&apos;achat</source>
        <translation>Purchase Price</translation>
    </message>
    <message>
        <source>Albums prêtés</source>
        <translation>Albums lent</translation>
    </message>
    <message>
        <source>Vue d&apos;ensemble</source>
        <translation>Overview</translation>
    </message>
</context>
<context>
    <name>Supprimer</name>
    <message numerus="yes">
        <source>%n album(s) restent, sans série.</source>
        <translation>
            <numerusform>%n album stays, without a series.</numerusform>
            <numerusform>%n albums stay, without a series.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans éditeur.</source>
        <translation>
            <numerusform>%n album stays, without a publisher.</numerusform>
            <numerusform>%n albums stay, without a publisher.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cette collection.</source>
        <translation>
            <numerusform>%n album stays, without this collection.</numerusform>
            <numerusform>%n albums stay, without this collection.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cet auteur.</source>
        <translation>
            <numerusform>%n album stays, without this author.</numerusform>
            <numerusform>%n albums stay, without this author.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cet album est prêté à %1.</source>
        <translation>This album is lent to %1.</translation>
    </message>
</context>
<context>
    <name>Telechargement</name>
    <message>
        <source>Le serveur est trop lent.</source>
        <translation>The server is too slow.</translation>
    </message>
    <message>
        <source>Cette adresse n&apos;est pas une adresse web.</source>
        <translation>This address is not a web address.</translation>
    </message>
    <message>
        <source>Le fichier est trop gros.</source>
        <translation>The file is too large.</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Aucune texture</source>
        <translation>No texture</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image JPEG lisible.</source>
        <translation>This file is not a readable JPEG picture.</translation>
    </message>
    <message>
        <source>Répéter l&apos;image au lieu de l&apos;étirer</source>
        <translation>Repeat the picture instead of stretching it</translation>
    </message>
</context>
<context>
    <name>Traduction</name>
    <message>
        <source>Le fichier de langue ne peut pas être lu.</source>
        <translation>The language file cannot be read.</translation>
    </message>
    <message>
        <source>Le fichier de langue a un indice qui n&apos;est pas valable.</source>
        <translation>The language file has an index that is not valid.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas un fichier de langue.</source>
        <translation>This file is not a language file.</translation>
    </message>
    <message>
        <source>Le fichier de langue ne peut pas être écrit.</source>
        <translation>The language file cannot be written.</translation>
    </message>
</context>
<context>
    <name>VoletListes</name>
    <message>
        <source>Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.</source>
        <translation>Your collection is still empty. Create a first album, or open the main menu.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit avec les albums que vous créez.</source>
        <translation>Nothing here for now. This list fills up with the albums you create.</translation>
    </message>
    <message>
        <source>Rien ne correspond à « %1 ».</source>
        <translation>Nothing matches “%1”.</translation>
    </message>
    <message>
        <source>Filtrer la liste (Ctrl+F)</source>
        <translation>Filter the list (Ctrl+F)</translation>
    </message>
    <message>
        <source>%1 — montrer toute la liste</source>
        <translation>%1 — show the whole list</translation>
    </message>
    <message>
        <source>Ces albums ne sont plus là.</source>
        <translation>These albums are no longer there.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit à la main, ligne par ligne.</source>
        <translation>Nothing here for now. This list is filled in by hand, line by line.</translation>
    </message>
    <message>
        <source>Créer un album</source>
        <translation>Create an album</translation>
    </message>
    <message>
        <source>Entrée précédente ou suivante : Ctrl+Page préc., Ctrl+Page suiv.</source>
        <translation>Previous or next entry: Ctrl+Page Up, Ctrl+Page Down</translation>
    </message>
</context>
</TS>
