<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="fr_FR">
<context>
    <name>AccesBDNet</name>
    <message>
        <source>Le navigateur n&apos;est pas installé (paquet libqt6webenginewidgets6). L&apos;adresse d&apos;une fiche d&apos;album, écrite ci-dessus, suffit pour l&apos;analyser.</source>
        <translation>Le navigateur n&apos;est pas installé (paquet libqt6webenginewidgets6). L&apos;adresse d&apos;une fiche d&apos;album, écrite ci-dessus, suffit pour l&apos;analyser.</translation>
    </message>
    <message>
        <source>Donnez l&apos;adresse du catalogue, d&apos;où viennent les couvertures, et la page par laquelle sa visite commence.</source>
        <translation>Donnez l&apos;adresse du catalogue, d&apos;où viennent les couvertures, et la page par laquelle sa visite commence.</translation>
    </message>
    <message>
        <source>Adresse du catalogue</source>
        <translation>Adresse du catalogue</translation>
    </message>
    <message>
        <source>Page d&apos;accueil</source>
        <translation>Page d&apos;accueil</translation>
    </message>
    <message>
        <source>Enregistrer</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>« %1 » n&apos;est pas une adresse du web.</source>
        <translation>« %1 » n&apos;est pas une adresse du web.</translation>
    </message>
</context>
<context>
    <name>AccordPourLaNote</name>
    <message>
        <source>Cette dédicace est une note : « %1 ». L&apos;image la remplacera. Continuer ?</source>
        <translation>Cette dédicace est une note : « %1 ». L&apos;image la remplacera. Continuer ?</translation>
    </message>
</context>
<context>
    <name>Accueil</name>
    <message>
        <source>Bienvenue dans votre bibliothèque</source>
        <translation>Bienvenue dans votre bibliothèque</translation>
    </message>
    <message>
        <source>Votre collection est encore vide. Par quoi voulez-vous commencer ?</source>
        <translation>Votre collection est encore vide. Par quoi voulez-vous commencer ?</translation>
    </message>
    <message>
        <source>Choisissez une ligne de la liste pour voir sa fiche.</source>
        <translation>Choisissez une ligne de la liste pour voir sa fiche.</translation>
    </message>
    <message>
        <source>Saisir un premier album</source>
        <translation>Saisir un premier album</translation>
    </message>
    <message>
        <source>Le prendre dans le catalogue fourni</source>
        <translation>Le prendre dans le catalogue fourni</translation>
    </message>
    <message>
        <source>Importer un fichier CSV</source>
        <translation>Importer un fichier CSV</translation>
    </message>
    <message>
        <source>Reprendre une ancienne base (bd.mdb)</source>
        <translation>Reprendre une ancienne base (bd.mdb)</translation>
    </message>
</context>
<context>
    <name>Acquisition</name>
    <message>
        <source>aucun scanner</source>
        <translation>aucun scanner</translation>
    </message>
    <message>
        <source>Numérisez ou ouvrez une image, déposez un fichier ici, ou collez-la avec Ctrl+V</source>
        <translation>Numérisez ou ouvrez une image, déposez un fichier ici, ou collez-la avec Ctrl+V</translation>
    </message>
    <message>
        <source>Dernier résultat</source>
        <translation>Dernier résultat</translation>
    </message>
    <message>
        <source>Utiliser comme couverture</source>
        <translation>Utiliser comme couverture</translation>
    </message>
    <message>
        <source>Utiliser comme dos</source>
        <translation>Utiliser comme dos</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 1</source>
        <translation>Utiliser comme dédicace 1</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 2</source>
        <translation>Utiliser comme dédicace 2</translation>
    </message>
    <message>
        <source>Montrez un album dans la fenêtre principale pour lui donner cette image.</source>
        <translation>Montrez un album dans la fenêtre principale pour lui donner cette image.</translation>
    </message>
    <message>
        <source>Ouvrir un fichier image</source>
        <translation>Ouvrir un fichier image</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</source>
        <translation>Tous les fichiers images (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible : %1</source>
        <translation>Ce fichier n&apos;est pas une image lisible : %1</translation>
    </message>
    <message>
        <source>Format Bitmap (*.bmp)|*.bmp</source>
        <translation>Format Bitmap (*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</source>
        <translation>Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Image enregistrée : %1</source>
        <translation>Image enregistrée : %1</translation>
    </message>
    <message>
        <source>Le presse-papiers ne contient pas d&apos;image.</source>
        <translation>Le presse-papiers ne contient pas d&apos;image.</translation>
    </message>
    <message>
        <source>C&apos;est fait : %1</source>
        <translation>C&apos;est fait : %1</translation>
    </message>
    <message>
        <source>Les scanners sont encore recherchés.</source>
        <translation>Les scanners sont encore recherchés.</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>« %1 » existe déjà. Le remplacer ?</translation>
    </message>
</context>
<context>
    <name>Acte</name>
    <message>
        <source>La modification est enregistrée, mais le disque a signalé une erreur.</source>
        <translation>La modification est enregistrée, mais le disque a signalé une erreur.</translation>
    </message>
</context>
<context>
    <name>Aide</name>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation>L&apos;aide ne peut pas être ouverte.</translation>
    </message>
</context>
<context>
    <name>AnalysePage</name>
    <message>
        <source>La page ne peut pas être analysée.</source>
        <translation>La page ne peut pas être analysée.</translation>
    </message>
    <message>
        <source>Il lui manque une ligne.</source>
        <translation>Il lui manque une ligne.</translation>
    </message>
    <message>
        <source>Son prix n&apos;est pas un nombre.</source>
        <translation>Son prix n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>Une balise n&apos;y est jamais fermée.</source>
        <translation>Une balise n&apos;y est jamais fermée.</translation>
    </message>
</context>
<context>
    <name>Apparence</name>
    <message>
        <source>Apparence</source>
        <translation>Apparence</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation>Une erreur imprévue s&apos;est produite.</translation>
    </message>
</context>
<context>
    <name>BDNet</name>
    <message>
        <source>Cette page ne peut pas être montrée.</source>
        <translation>Cette page ne peut pas être montrée.</translation>
    </message>
    <message>
        <source>Adresse d&apos;une page</source>
        <translation>Adresse d&apos;une page</translation>
    </message>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Entrée</translation>
    </message>
    <message>
        <source>Seules les adresses du web peuvent être montrées.</source>
        <translation>Seules les adresses du web peuvent être montrées.</translation>
    </message>
    <message>
        <source>La page n&apos;a pas pu être lue jusqu&apos;au bout : complétez les champs.</source>
        <translation>La page n&apos;a pas pu être lue jusqu&apos;au bout : complétez les champs.</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</translation>
    </message>
    <message>
        <source>La couverture n&apos;a pas pu être gardée : %1</source>
        <translation>La couverture n&apos;a pas pu être gardée : %1</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Perdre ce qui est saisi ?</source>
        <translation>Cet album n&apos;est pas encore créé. Perdre ce qui est saisi ?</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Cet album n&apos;est pas encore créé. Fermer quand même ?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</translation>
    </message>
</context>
<context>
    <name>BandeSerie</name>
    <message numerus="yes">
        <source>%n tome(s) de plus</source>
        <translation>
            <numerusform>%n tome de plus</numerusform>
            <numerusform>%n tomes de plus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Bandeau</name>
    <message>
        <source>Quitter</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Aide</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Diaporama</source>
        <translation>Diaporama</translation>
    </message>
    <message>
        <source>Montrer tour à tour la couverture et le dos ; avec Maj, parcourir aussi la liste</source>
        <translation>Montrer tour à tour la couverture et le dos ; avec Maj, parcourir aussi la liste</translation>
    </message>
    <message>
        <source>Annuler (Ctrl+Z)</source>
        <translation>Annuler (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Annuler %1 (Ctrl+Z)</source>
        <translation>Annuler %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Rétablir (Ctrl+Y)</source>
        <translation>Rétablir (Ctrl+Y)</translation>
    </message>
    <message>
        <source>Rétablir %1 (Ctrl+Y)</source>
        <translation>Rétablir %1 (Ctrl+Y)</translation>
    </message>
</context>
<context>
    <name>Base</name>
    <message>
        <source>L&apos;ordre alphabétique n&apos;est pas disponible.</source>
        <translation>L&apos;ordre alphabétique n&apos;est pas disponible.</translation>
    </message>
    <message>
        <source>La base est utilisée par un autre programme.</source>
        <translation>La base est utilisée par un autre programme.</translation>
    </message>
    <message>
        <source>La base est en lecture seule.</source>
        <translation>La base est en lecture seule.</translation>
    </message>
    <message>
        <source>La base est abîmée.</source>
        <translation>La base est abîmée.</translation>
    </message>
    <message>
        <source>Le disque est plein.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>La base a refusé l&apos;opération.</source>
        <translation>La base a refusé l&apos;opération.</translation>
    </message>
    <message>
        <source>L&apos;opération a été interrompue.</source>
        <translation>L&apos;opération a été interrompue.</translation>
    </message>
    <message>
        <source>Il n&apos;y a plus d&apos;enregistrement ici.</source>
        <translation>Il n&apos;y a plus d&apos;enregistrement ici.</translation>
    </message>
    <message>
        <source>Un champ manque dans la base.</source>
        <translation>Un champ manque dans la base.</translation>
    </message>
    <message>
        <source>La fiche n&apos;existe plus.</source>
        <translation>La fiche n&apos;existe plus.</translation>
    </message>
    <message>
        <source>La base ne peut pas être créée.</source>
        <translation>La base ne peut pas être créée.</translation>
    </message>
    <message>
        <source>Ce fichier existe déjà.</source>
        <translation>Ce fichier existe déjà.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être remplacé.</source>
        <translation>Ce fichier ne peut pas être remplacé.</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation>La copie n&apos;a pas pu être faite.</translation>
    </message>
    <message>
        <source>Une longue lecture de la base est en cours.</source>
        <translation>Une longue lecture de la base est en cours.</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>La base est en lecture seule : rien ne peut y être modifié.</translation>
    </message>
    <message>
        <source>Pour lire cette base, il en faut une copie, qui ne peut pas être faite.</source>
        <translation>Pour lire cette base, il en faut une copie, qui ne peut pas être faite.</translation>
    </message>
    <message>
        <source>Ce fichier contient des vues ou des règles qui ne viennent pas de Bulleo : il n&apos;est pas ouvert.</source>
        <translation>Ce fichier contient des vues ou des règles qui ne viennent pas de Bulleo : il n&apos;est pas ouvert.</translation>
    </message>
    <message>
        <source>La lecture a été arrêtée.</source>
        <translation>La lecture a été arrêtée.</translation>
    </message>
</context>
<context>
    <name>Bureau</name>
    <message>
        <source>%1 — Ctrl+Z pour annuler</source>
        <translation>%1 — Ctrl+Z pour annuler</translation>
    </message>
    <message>
        <source>Annulé : %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message>
        <source>Rétabli : %1</source>
        <translation>Rétabli : %1</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>La base est en lecture seule : rien ne peut y être modifié.</translation>
    </message>
    <message>
        <source>La lecture de la base dure plus longtemps que prévu. Attendre encore ?</source>
        <translation>La lecture de la base dure plus longtemps que prévu. Attendre encore ?</translation>
    </message>
    <message>
        <source>La copie contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>La copie contient les données, pas les images : leurs dossiers, images et image, se copient à part.</translation>
    </message>
</context>
<context>
    <name>Capture</name>
    <message>
        <source>Cette fiche n&apos;existe pas.</source>
        <translation>Cette fiche n&apos;existe pas.</translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Les textes du catalogue de référence ne peuvent pas être décodés.</source>
        <translation>Les textes du catalogue de référence ne peuvent pas être décodés.</translation>
    </message>
</context>
<context>
    <name>ChoixColonnes</name>
    <message>
        <source>Toutes</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Aucune</source>
        <translation>Aucune</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>La conversion a été annulée.</source>
        <translation>La conversion a été annulée.</translation>
    </message>
    <message>
        <source>La conversion ne finit pas : le fichier est abîmé.</source>
        <translation>La conversion ne finit pas : le fichier est abîmé.</translation>
    </message>
    <message>
        <source>La conversion s&apos;est arrêtée en chemin : le fichier est abîmé.</source>
        <translation>La conversion s&apos;est arrêtée en chemin : le fichier est abîmé.</translation>
    </message>
    <message>
        <source>Le programme de conversion est introuvable.</source>
        <translation>Le programme de conversion est introuvable.</translation>
    </message>
</context>
<context>
    <name>Couvertures</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>L&apos;image ne peut pas être enregistrée.</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation>Ce fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Ligne %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Ce n&apos;est pas un fichier de valeurs séparées (CSV).</source>
        <translation>Ce n&apos;est pas un fichier de valeurs séparées (CSV).</translation>
    </message>
</context>
<context>
    <name>Demarrage</name>
    <message>
        <source>La base contient des restes que rien ne montre : saisies interrompues, liens en double, lignes d&apos;albums supprimés. Les ôter ? Ctrl+Z les remet.</source>
        <translation>La base contient des restes que rien ne montre : saisies interrompues, liens en double, lignes d&apos;albums supprimés. Les ôter ? Ctrl+Z les remet.</translation>
    </message>
</context>
<context>
    <name>Dossier</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Ce dossier ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>Edition</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>Le titre a été coupé à 50 caractères.</translation>
    </message>
    <message>
        <source>Le numéro a été coupé à 3 caractères : %1</source>
        <translation>Le numéro a été coupé à 3 caractères : %1</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;existe plus.</source>
        <translation>Cette fiche n&apos;existe plus.</translation>
    </message>
</context>
<context>
    <name>Entete</name>
    <message>
        <source>Le fichier est introuvable.</source>
        <translation>Le fichier est introuvable.</translation>
    </message>
    <message>
        <source>Le fichier ne peut pas être ouvert.</source>
        <translation>Le fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>Ce fichier est au format d&apos;une ancienne version.</source>
        <translation>Ce fichier est au format d&apos;une ancienne version.</translation>
    </message>
    <message>
        <source>Le fichier est vide.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Ce fichier n&apos;est pas une base de Bulleo.</translation>
    </message>
    <message>
        <source>Le fichier est abîmé : il est plus court qu&apos;il ne devrait.</source>
        <translation>Le fichier est abîmé : il est plus court qu&apos;il ne devrait.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</translation>
    </message>
</context>
<context>
    <name>Facile</name>
    <message numerus="yes">
        <source>%n album(s) du catalogue ne peuvent pas être décodés.</source>
        <translation>
            <numerusform>%n album du catalogue ne peut pas être décodé.</numerusform>
            <numerusform>%n albums du catalogue ne peuvent pas être décodés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtrer le catalogue</source>
        <translation>Filtrer le catalogue</translation>
    </message>
    <message>
        <source>Choisir</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Ce catalogue vient d&apos;un ancien programme : ses textes sont codés, et personne n&apos;en a la clé.</source>
        <translation>Ce catalogue vient d&apos;un ancien programme : ses textes sont codés, et personne n&apos;en a la clé.</translation>
    </message>
    <message>
        <source>Titre, série, auteur ou éditeur</source>
        <translation>Titre, série, auteur ou éditeur</translation>
    </message>
</context>
<context>
    <name>Fiche</name>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation>Le numéro est un nombre entier de 0 à 999.</translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation>Le prix est un nombre, comme 12,50.</translation>
    </message>
    <message>
        <source>Le nombre de pages est un nombre.</source>
        <translation>Le nombre de pages est un nombre.</translation>
    </message>
    <message>
        <source>Il faut ici un nombre entier.</source>
        <translation>Il faut ici un nombre entier.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Il manque un nom.</translation>
    </message>
    <message>
        <source>« %1 » peut se lire %2 ou %3 : écrivez l&apos;un des deux.</source>
        <translation>« %1 » peut se lire %2 ou %3 : écrivez l&apos;un des deux.</translation>
    </message>
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation>Montrer l&apos;autre face</translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation>Manquants : %1</translation>
    </message>
    <message numerus="yes">
        <source>tome %1 · %n possédé(s)</source>
        <translation>
            <numerusform>tome %1 · %n possédé</numerusform>
            <numerusform>tome %1 · %n possédés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FicheForme</name>
    <message>
        <source>Groupe suivant : F6, précédent : Maj+F6</source>
        <translation>Groupe suivant : F6, précédent : Maj+F6</translation>
    </message>
</context>
<context>
    <name>FormeCreation</name>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Entrée</translation>
    </message>
    <message>
        <source>Effacer tout ce qui est saisi ici ?</source>
        <translation>Effacer tout ce qui est saisi ici ?</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Cet album n&apos;est pas encore créé. Fermer quand même ?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</translation>
    </message>
    <message>
        <source>Vider</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Effacer tous les champs</source>
        <translation>Effacer tous les champs</translation>
    </message>
</context>
<context>
    <name>FormeOutil</name>
    <message>
        <source>Annuler</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FormulaireAlbum</name>
    <message>
        <source>Couverture ...</source>
        <translation>Couverture ...</translation>
    </message>
    <message>
        <source>Dos ...</source>
        <translation>Dos ...</translation>
    </message>
    <message>
        <source>Déposez une image ici</source>
        <translation>Déposez une image ici</translation>
    </message>
    <message>
        <source>Jour</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Année</source>
        <translation>Année</translation>
    </message>
</context>
<context>
    <name>FrmModif</name>
    <message>
        <source>« %1 » sera ajouté ; ↓ pour choisir dans la liste.</source>
        <translation>« %1 » sera ajouté ; ↓ pour choisir dans la liste.</translation>
    </message>
    <message>
        <source>Tapez d&apos;abord le nom à ajouter.</source>
        <translation>Tapez d&apos;abord le nom à ajouter.</translation>
    </message>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>La donnée existe déjà !</translation>
    </message>
    <message>
        <source>« %1 » est connu dans un autre métier : il sera choisi.</source>
        <translation>« %1 » est connu dans un autre métier : il sera choisi.</translation>
    </message>
    <message>
        <source>« %1 » sera choisi.</source>
        <translation>« %1 » sera choisi.</translation>
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
        <translation>Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure</translation>
    </message>
    <message>
        <source>Le texte que vous venez de taper ne peut pas être enregistré. Le perdre ?</source>
        <translation>Le texte que vous venez de taper ne peut pas être enregistré. Le perdre ?</translation>
    </message>
</context>
<context>
    <name>Images</name>
    <message>
        <source>Le dossier des images ne peut pas être créé.</source>
        <translation>Le dossier des images ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Cette image ne peut pas être copiée.</source>
        <translation>Cette image ne peut pas être copiée.</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Choisir un fichier de valeurs séparées</source>
        <translation>Choisir un fichier de valeurs séparées</translation>
    </message>
    <message>
        <source>Un fichier CSV, avec le nom des colonnes à la première ligne. Déposez-le ici, ou choisissez-le.</source>
        <translation>Un fichier CSV, avec le nom des colonnes à la première ligne. Déposez-le ici, ou choisissez-le.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1 : %n ligne</numerusform>
            <numerusform>%1 : %n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>Dites quelle colonne est celle du titre.</source>
        <translation>Dites quelle colonne est celle du titre.</translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été importé.</source>
        <translation>Annulé : rien n&apos;a été importé.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) créé(s)</source>
        <translation>
            <numerusform>%n album créé</numerusform>
            <numerusform>%n albums créés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n déjà présent(s)</source>
        <translation>
            <numerusform>%n déjà présent</numerusform>
            <numerusform>%n déjà présents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refusé(s)</source>
        <translation>
            <numerusform>%n refusé</numerusform>
            <numerusform>%n refusés</numerusform>
        </translation>
    </message>
    <message>
        <source>Ligne %1 : %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Ligne %1 : cet album est déjà dans la collection</source>
        <translation>Ligne %1 : cet album est déjà dans la collection</translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Importer des albums</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>Quelle colonne pour quoi ?</source>
        <translation>Quelle colonne pour quoi ?</translation>
    </message>
    <message>
        <source>Les premières lignes, telles qu&apos;elles entreront</source>
        <translation>Les premières lignes, telles qu&apos;elles entreront</translation>
    </message>
    <message>
        <source>Un album de même titre, série et tome :</source>
        <translation>Un album de même titre, série et tome :</translation>
    </message>
    <message>
        <source>le sauter</source>
        <translation>le sauter</translation>
    </message>
    <message>
        <source>le créer quand même</source>
        <translation>le créer quand même</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Importer</source>
        <translation>Importer</translation>
    </message>
</context>
<context>
    <name>Importation</name>
    <message>
        <source>La page ne peut pas être enregistrée.</source>
        <translation>La page ne peut pas être enregistrée.</translation>
    </message>
</context>
<context>
    <name>ImporterAlbums</name>
    <message>
        <source>%1 : « %2 » n&apos;est ni oui ni non.</source>
        <translation>%1 : « %2 » n&apos;est ni oui ni non.</translation>
    </message>
    <message>
        <source>Importation de « %1 »</source>
        <translation>Importation de « %1 »</translation>
    </message>
</context>
<context>
    <name>Impression</name>
    <message>
        <source>Éditer la liste au format PDF</source>
        <translation>Éditer la liste au format PDF</translation>
    </message>
    <message>
        <source>Exporter la liste au format CSV</source>
        <translation>Exporter la liste au format CSV</translation>
    </message>
    <message>
        <source>La liste affichée</source>
        <translation>La liste affichée</translation>
    </message>
    <message>
        <source>Cochez au moins une colonne.</source>
        <translation>Cochez au moins une colonne.</translation>
    </message>
    <message numerus="yes">
        <source>%n ligne(s) en tout</source>
        <translation>
            <numerusform>%n ligne en tout</numerusform>
            <numerusform>%n lignes en tout</numerusform>
        </translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été écrit.</source>
        <translation>Annulé : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Liste enregistrée : %1</source>
        <translation>Liste enregistrée : %1</translation>
    </message>
    <message>
        <source>Impression annulée.</source>
        <translation>Impression annulée.</translation>
    </message>
    <message>
        <source>La liste est partie à l&apos;impression.</source>
        <translation>La liste est partie à l&apos;impression.</translation>
    </message>
    <message>
        <source>Que voulez-vous lister ?</source>
        <translation>Que voulez-vous lister ?</translation>
    </message>
    <message>
        <source>Ce qui sortira</source>
        <translation>Ce qui sortira</translation>
    </message>
    <message>
        <source>Vers un fichier ou sur papier</source>
        <translation>Vers un fichier ou sur papier</translation>
    </message>
    <message>
        <source>Toute la collection</source>
        <translation>Toute la collection</translation>
    </message>
    <message>
        <source>La fiche affichée</source>
        <translation>La fiche affichée</translation>
    </message>
    <message>
        <source>Aperçu avant impression</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Imprimer…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>« %1 » existe déjà. Le remplacer ?</translation>
    </message>
    <message>
        <source>Avec autant de colonnes, une page se lit mal. Continuer ?</source>
        <translation>Avec autant de colonnes, une page se lit mal. Continuer ?</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation>Cette modification ne peut plus être reprise : la fiche a changé depuis.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être écrit.</source>
        <translation>Le fichier qui garde de quoi annuler ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être relu.</source>
        <translation>Le fichier qui garde de quoi annuler ne peut pas être relu.</translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette image n&apos;existe plus.</source>
        <translation>Cette image n&apos;existe plus.</translation>
    </message>
    <message>
        <source>Cette adresse ne s&apos;ouvre pas d&apos;ici : seuls les pages web et le courrier s&apos;ouvrent.</source>
        <translation>Cette adresse ne s&apos;ouvre pas d&apos;ici : seuls les pages web et le courrier s&apos;ouvrent.</translation>
    </message>
    <message>
        <source>Aucun programme de courrier n&apos;est installé : copiez l&apos;adresse dans le vôtre.</source>
        <translation>Aucun programme de courrier n&apos;est installé : copiez l&apos;adresse dans le vôtre.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé : installez-en un, ou ouvrez cette adresse ailleurs.</source>
        <translation>Aucun navigateur n&apos;est installé : installez-en un, ou ouvrez cette adresse ailleurs.</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;est installé pour voir cette image : installez une visionneuse.</source>
        <translation>Aucun programme n&apos;est installé pour voir cette image : installez une visionneuse.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé pour lire l&apos;aide : installez-en un, ou ouvrez ce fichier ailleurs.</source>
        <translation>Aucun navigateur n&apos;est installé pour lire l&apos;aide : installez-en un, ou ouvrez ce fichier ailleurs.</translation>
    </message>
</context>
<context>
    <name>Listage</name>
    <message>
        <source>Champ</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>ListeEntrees</name>
    <message>
        <source>Titre</source>
        <translation>Titre</translation>
    </message>
</context>
<context>
    <name>Livraison</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Ce dossier ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être copié.</source>
        <translation>Ce fichier ne peut pas être copié.</translation>
    </message>
</context>
<context>
    <name>Modification</name>
    <message>
        <source>« %1 » n&apos;existe plus.</source>
        <translation>« %1 » n&apos;existe plus.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Il manque un nom.</translation>
    </message>
</context>
<context>
    <name>Moteur</name>
    <message>
        <source>Ce fichier ne peut pas être mis de côté.</source>
        <translation>Ce fichier ne peut pas être mis de côté.</translation>
    </message>
</context>
<context>
    <name>Numeriseur</name>
    <message>
        <source>Le scanner a refusé l&apos;opération.</source>
        <translation>Le scanner a refusé l&apos;opération.</translation>
    </message>
    <message>
        <source>Le scanner a rendu une image d&apos;un format inconnu.</source>
        <translation>Le scanner a rendu une image d&apos;un format inconnu.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de scanner.</source>
        <translation>Il n&apos;y a pas de scanner.</translation>
    </message>
</context>
<context>
    <name>PageTheme</name>
    <message>
        <source>Thème</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Fenêtres :</source>
        <translation>Fenêtres :</translation>
    </message>
    <message>
        <source>Fenêtres claires ou sombres</source>
        <translation>Fenêtres claires ou sombres</translation>
    </message>
    <message>
        <source>comme le bureau</source>
        <translation>comme le bureau</translation>
    </message>
    <message>
        <source>claires</source>
        <translation>claires</translation>
    </message>
    <message>
        <source>sombres</source>
        <translation>sombres</translation>
    </message>
</context>
<context>
    <name>Parcours</name>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>La donnée existe déjà !</translation>
    </message>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>Le titre a été coupé à 50 caractères.</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;est plus là : les listes ont été relues.</source>
        <translation>Cette fiche n&apos;est plus là : les listes ont été relues.</translation>
    </message>
</context>
<context>
    <name>PhotosFiche</name>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Ce fichier n&apos;est pas une image lisible.</translation>
    </message>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>L&apos;image ne peut pas être enregistrée.</translation>
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
            <numerusform>%n série</numerusform>
            <numerusform>%n séries</numerusform>
        </translation>
    </message>
    <message>
        <source>valeur %1</source>
        <translation>valeur %1</translation>
    </message>
    <message>
        <source>lecture seule</source>
        <translation>lecture seule</translation>
    </message>
</context>
<context>
    <name>Polices</name>
    <message>
        <source>police</source>
        <translation>police</translation>
    </message>
    <message>
        <source>Couleur du thème</source>
        <translation>Couleur du thème</translation>
    </message>
</context>
<context>
    <name>Pop</name>
    <message>
        <source>Quitter</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Suppr</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Renommer</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Rendre</source>
        <translation>Rendre</translation>
    </message>
    <message>
        <source>Prêter…</source>
        <translation>Prêter…</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>Pret</name>
    <message numerus="yes">
        <source>%n jour(s)</source>
        <translation>
            <numerusform>%n jour</numerusform>
            <numerusform>%n jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Rendre l&apos;album</source>
        <translation>Rendre l&apos;album</translation>
    </message>
    <message>
        <source>Supprimer la personne</source>
        <translation>Supprimer la personne</translation>
    </message>
    <message>
        <source>Prêter « %1 »</source>
        <translation>Prêter « %1 »</translation>
    </message>
    <message>
        <source>Prêter</source>
        <translation>Prêter</translation>
    </message>
    <message>
        <source>Choisir à qui l&apos;album montré est prêté</source>
        <translation>Choisir à qui l&apos;album montré est prêté</translation>
    </message>
    <message>
        <source>Montrez d&apos;abord un album dans la fenêtre principale</source>
        <translation>Montrez d&apos;abord un album dans la fenêtre principale</translation>
    </message>
    <message>
        <source>Dehors depuis</source>
        <translation>Dehors depuis</translation>
    </message>
    <message>
        <source>Tous les prêts</source>
        <translation>Tous les prêts</translation>
    </message>
    <message>
        <source>quelqu&apos;un qui n&apos;est plus dans la liste</source>
        <translation>quelqu&apos;un qui n&apos;est plus dans la liste</translation>
    </message>
    <message>
        <source>Une personne a un nom.</source>
        <translation>Une personne a un nom.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) lui restent prêtés et le resteront.</source>
        <translation>
            <numerusform>%n album lui reste prêté et le restera.</numerusform>
            <numerusform>%n albums lui restent prêtés et le resteront.</numerusform>
        </translation>
    </message>
    <message>
        <source>Prêter « %1 » à %2</source>
        <translation>Prêter « %1 » à %2</translation>
    </message>
    <message>
        <source>« %1 » est déjà prêté à %2.</source>
        <translation>« %1 » est déjà prêté à %2.</translation>
    </message>
    <message>
        <source>« %1 » est prêté à %2.</source>
        <translation>« %1 » est prêté à %2.</translation>
    </message>
    <message>
        <source>Le prêter maintenant à %1 ?</source>
        <translation>Le prêter maintenant à %1 ?</translation>
    </message>
    <message>
        <source>Le prêter maintenant à quelqu&apos;un d&apos;autre ?</source>
        <translation>Le prêter maintenant à quelqu&apos;un d&apos;autre ?</translation>
    </message>
</context>
<context>
    <name>Prets</name>
    <message>
        <source>Retour</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Prêt</source>
        <translation>Prêt</translation>
    </message>
</context>
<context>
    <name>Recherche</name>
    <message>
        <source>Rien de tel</source>
        <translation>Rien de tel</translation>
    </message>
</context>
<context>
    <name>Reglages</name>
    <message>
        <source>Le réglage %1 (« %2 ») n&apos;est pas valable.</source>
        <translation>Le réglage %1 (« %2 ») n&apos;est pas valable.</translation>
    </message>
    <message>
        <source>Le fichier de réglages ne peut pas être lu.</source>
        <translation>Le fichier de réglages ne peut pas être lu.</translation>
    </message>
</context>
<context>
    <name>Repartition</name>
    <message>
        <source>Inconnu</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Autres (%1)</source>
        <translation>Autres (%1)</translation>
    </message>
    <message>
        <source>Valeur par année d&apos;achat</source>
        <translation>Valeur par année d&apos;achat</translation>
    </message>
    <message>
        <source>Payé</source>
        <translation>Payé</translation>
    </message>
    <message>
        <source>Coté</source>
        <translation>Coté</translation>
    </message>
    <message>
        <source>Albums par genre</source>
        <translation>Albums par genre</translation>
    </message>
    <message>
        <source>Albums par éditeur</source>
        <translation>Albums par éditeur</translation>
    </message>
    <message>
        <source>Albums par décennie de parution</source>
        <translation>Albums par décennie de parution</translation>
    </message>
    <message>
        <source>Croissance de la collection, par date d&apos;achat</source>
        <translation>Croissance de la collection, par date d&apos;achat</translation>
    </message>
    <message>
        <source>Achetés dans l&apos;année</source>
        <translation>Achetés dans l&apos;année</translation>
    </message>
    <message>
        <source>En tout</source>
        <translation>En tout</translation>
    </message>
</context>
<context>
    <name>Restauration</name>
    <message>
        <source>Annulé : rien n&apos;a changé.</source>
        <translation>Annulé : rien n&apos;a changé.</translation>
    </message>
    <message>
        <source>Cette base est chiffrée : elle ne peut pas être lue. Rien n&apos;a changé.</source>
        <translation>Cette base est chiffrée : elle ne peut pas être lue. Rien n&apos;a changé.</translation>
    </message>
    <message>
        <source>Cette base est abîmée. Rien n&apos;a changé.</source>
        <translation>Cette base est abîmée. Rien n&apos;a changé.</translation>
    </message>
    <message>
        <source>Le convertisseur manque : Bulleo est mal installé.</source>
        <translation>Le convertisseur manque : Bulleo est mal installé.</translation>
    </message>
    <message>
        <source>La conversion a échoué. Rien n&apos;a changé.</source>
        <translation>La conversion a échoué. Rien n&apos;a changé.</translation>
    </message>
    <message>
        <source>table inconnue</source>
        <translation>table inconnue</translation>
    </message>
    <message>
        <source>table absente, laissée vide</source>
        <translation>table absente, laissée vide</translation>
    </message>
    <message>
        <source>champ inconnu</source>
        <translation>champ inconnu</translation>
    </message>
    <message>
        <source>numéro déjà pris, ligne laissée</source>
        <translation>numéro déjà pris, ligne laissée</translation>
    </message>
    <message>
        <source>ligne sans numéro, laissée</source>
        <translation>ligne sans numéro, laissée</translation>
    </message>
    <message>
        <source>pas un nombre, laissé vide</source>
        <translation>pas un nombre, laissé vide</translation>
    </message>
    <message>
        <source>montant trop grand, arrondi</source>
        <translation>montant trop grand, arrondi</translation>
    </message>
    <message>
        <source>Une ancienne base : elle sera convertie, son fichier reste comme il est.</source>
        <translation>Une ancienne base : elle sera convertie, son fichier reste comme il est.</translation>
    </message>
    <message>
        <source>La base en service est gardée parmi les sauvegardes.</source>
        <translation>La base en service est gardée parmi les sauvegardes.</translation>
    </message>
    <message>
        <source>Convertir cette ancienne base et la mettre en service ? Son fichier est gardé.</source>
        <translation>Convertir cette ancienne base et la mettre en service ? Son fichier est gardé.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1 : %n ligne</numerusform>
            <numerusform>%1 : %n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>Laissé de côté, ou changé :</source>
        <translation>Laissé de côté, ou changé :</translation>
    </message>
    <message>
        <source>C&apos;était un catalogue de référence : ses textes sont repris tels quels, leur code n&apos;étant pas connu.</source>
        <translation>C&apos;était un catalogue de référence : ses textes sont repris tels quels, leur code n&apos;étant pas connu.</translation>
    </message>
    <message>
        <source>Sauvegardes</source>
        <translation>Sauvegardes</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Fichier</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Aucune sauvegarde pour l&apos;instant : la première se fait d&apos;elle-même, avant votre prochaine modification. Vous pouvez aussi choisir un fichier.</source>
        <translation>Aucune sauvegarde pour l&apos;instant : la première se fait d&apos;elle-même, avant votre prochaine modification. Vous pouvez aussi choisir un fichier.</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Une table manque :</source>
        <translation>Une table manque :</translation>
    </message>
    <message>
        <source>C&apos;est la base en service.</source>
        <translation>C&apos;est la base en service.</translation>
    </message>
    <message>
        <source>Cette base est d&apos;une ancienne version : elle est à convertir d&apos;abord.</source>
        <translation>Cette base est d&apos;une ancienne version : elle est à convertir d&apos;abord.</translation>
    </message>
    <message>
        <source>C&apos;est un catalogue de référence, pas une base.</source>
        <translation>C&apos;est un catalogue de référence, pas une base.</translation>
    </message>
    <message>
        <source>Cette base est abîmée.</source>
        <translation>Cette base est abîmée.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Ce fichier n&apos;est pas une base de Bulleo.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</translation>
    </message>
    <message numerus="yes">
        <source>Remplacer la base en service par celle du %1, avec %n album(s) ?</source>
        <translation>
            <numerusform>Remplacer la base en service par celle du %1, avec %n album ?</numerusform>
            <numerusform>Remplacer la base en service par celle du %1, avec %n albums ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Une sauvegarde contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>Une sauvegarde contient les données, pas les images : leurs dossiers, images et image, se copient à part.</translation>
    </message>
</context>
<context>
    <name>Restes</name>
    <message>
        <source>Restes ôtés : %1</source>
        <translation>Restes ôtés : %1</translation>
    </message>
</context>
<context>
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation>Donnez au moins un titre.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Ce fichier n&apos;est pas une image lisible.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Il manque un nom.</translation>
    </message>
</context>
<context>
    <name>Sauvegardes</name>
    <message>
        <source>La liste des copies de sauvegarde ne peut pas être écrite.</source>
        <translation>La liste des copies de sauvegarde ne peut pas être écrite.</translation>
    </message>
</context>
<context>
    <name>Scan</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>L&apos;image ne peut pas être enregistrée.</translation>
    </message>
</context>
<context>
    <name>Secours</name>
    <message>
        <source>Il n&apos;y a aucune sauvegarde qui soit saine.</source>
        <translation>Il n&apos;y a aucune sauvegarde qui soit saine.</translation>
    </message>
    <message>
        <source>Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté.</source>
        <translation>Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté.</translation>
    </message>
    <message>
        <source>Votre base est abîmée, ou n&apos;est plus là.</source>
        <translation>Votre base est abîmée, ou n&apos;est plus là.</translation>
    </message>
</context>
<context>
    <name>Sorties</name>
    <message>
        <source>La liste ne peut pas être imprimée.</source>
        <translation>La liste ne peut pas être imprimée.</translation>
    </message>
    <message>
        <source>La liste ne peut pas être écrite.</source>
        <translation>La liste ne peut pas être écrite.</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation> Sélectionner la liste des </translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Importer des albums</translation>
    </message>
    <message>
        <source>Créer beaucoup d&apos;albums d&apos;un coup, à partir d&apos;un fichier CSV</source>
        <translation>Créer beaucoup d&apos;albums d&apos;un coup, à partir d&apos;un fichier CSV</translation>
    </message>
    <message>
        <source>Voir la liste</source>
        <translation>Voir la liste</translation>
    </message>
</context>
<context>
    <name>Statistiques</name>
    <message>
        <source>La page des statistiques ne peut pas être écrite.</source>
        <translation>La page des statistiques ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>Liens sans fiche ôtés : %1</source>
        <translation>Liens sans fiche ôtés : %1</translation>
    </message>
    <message>
        <source>Statistiques ...</source>
        <translation>Statistiques ...</translation>
    </message>
</context>
<context>
    <name>Stats</name>
    <message>
        <source>La page est ouverte dans votre navigateur : %1</source>
        <translation>La page est ouverte dans votre navigateur : %1</translation>
    </message>
    <message>
        <source>La page est écrite, mais aucun programme ne l&apos;ouvre : %1</source>
        <translation>La page est écrite, mais aucun programme ne l&apos;ouvre : %1</translation>
    </message>
    <message>
        <source>Recalculer</source>
        <translation>Recalculer</translation>
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
        <translation>Éditeurs</translation>
    </message>
    <message>
        <source>Décennies</source>
        <translation>Décennies</translation>
    </message>
    <message>
        <source>Croissance</source>
        <translation>Croissance</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Prix d&apos;achat</source>
        <translation>Prix d&apos;achat</translation>
    </message>
    <message>
        <source>Albums prêtés</source>
        <translation>Albums prêtés</translation>
    </message>
    <message>
        <source>Vue d&apos;ensemble</source>
        <translation>Vue d&apos;ensemble</translation>
    </message>
</context>
<context>
    <name>Supprimer</name>
    <message numerus="yes">
        <source>%n album(s) restent, sans série.</source>
        <translation>
            <numerusform>%n album reste, sans série.</numerusform>
            <numerusform>%n albums restent, sans série.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans éditeur.</source>
        <translation>
            <numerusform>%n album reste, sans éditeur.</numerusform>
            <numerusform>%n albums restent, sans éditeur.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cette collection.</source>
        <translation>
            <numerusform>%n album reste, sans cette collection.</numerusform>
            <numerusform>%n albums restent, sans cette collection.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cet auteur.</source>
        <translation>
            <numerusform>%n album reste, sans cet auteur.</numerusform>
            <numerusform>%n albums restent, sans cet auteur.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cet album est prêté à %1.</source>
        <translation>Cet album est prêté à %1.</translation>
    </message>
</context>
<context>
    <name>Telechargement</name>
    <message>
        <source>Le serveur est trop lent.</source>
        <translation>Le serveur est trop lent.</translation>
    </message>
    <message>
        <source>Cette adresse n&apos;est pas une adresse web.</source>
        <translation>Cette adresse n&apos;est pas une adresse web.</translation>
    </message>
    <message>
        <source>Le fichier est trop gros.</source>
        <translation>Le fichier est trop gros.</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Aucune texture</source>
        <translation>Aucune texture</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image JPEG lisible.</source>
        <translation>Ce fichier n&apos;est pas une image JPEG lisible.</translation>
    </message>
    <message>
        <source>Répéter l&apos;image au lieu de l&apos;étirer</source>
        <translation>Répéter l&apos;image au lieu de l&apos;étirer</translation>
    </message>
</context>
<context>
    <name>Traduction</name>
    <message>
        <source>Le fichier de langue ne peut pas être lu.</source>
        <translation>Le fichier de langue ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Le fichier de langue a un indice qui n&apos;est pas valable.</source>
        <translation>Le fichier de langue a un indice qui n&apos;est pas valable.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas un fichier de langue.</source>
        <translation>Ce fichier n&apos;est pas un fichier de langue.</translation>
    </message>
    <message>
        <source>Le fichier de langue ne peut pas être écrit.</source>
        <translation>Le fichier de langue ne peut pas être écrit.</translation>
    </message>
</context>
<context>
    <name>VoletListes</name>
    <message>
        <source>Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.</source>
        <translation>Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit avec les albums que vous créez.</source>
        <translation>Rien ici pour l&apos;instant. Cette liste se remplit avec les albums que vous créez.</translation>
    </message>
    <message>
        <source>Rien ne correspond à « %1 ».</source>
        <translation>Rien ne correspond à « %1 ».</translation>
    </message>
    <message>
        <source>Filtrer la liste (Ctrl+F)</source>
        <translation>Filtrer la liste (Ctrl+F)</translation>
    </message>
    <message>
        <source>%1 — montrer toute la liste</source>
        <translation>%1 — montrer toute la liste</translation>
    </message>
    <message>
        <source>Ces albums ne sont plus là.</source>
        <translation>Ces albums ne sont plus là.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit à la main, ligne par ligne.</source>
        <translation>Rien ici pour l&apos;instant. Cette liste se remplit à la main, ligne par ligne.</translation>
    </message>
    <message>
        <source>Créer un album</source>
        <translation>Créer un album</translation>
    </message>
    <message>
        <source>Entrée précédente ou suivante : Ctrl+Page préc., Ctrl+Page suiv.</source>
        <translation>Entrée précédente ou suivante : Ctrl+Page préc., Ctrl+Page suiv.</translation>
    </message>
</context>
</TS>
