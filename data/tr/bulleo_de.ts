<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="fr_FR">
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Bandeau</name>
    <message>
        <source>Quitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diaporama</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Montrer tour à tour la couverture et le dos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pas encore disponible</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Base</name>
    <message>
        <source>L&apos;ordre alphabétique n&apos;est pas disponible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La base est utilisée par un autre programme.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La base est en lecture seule.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La base est abîmée.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le disque est plein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La base a refusé l&apos;opération.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&apos;opération a été interrompue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Il n&apos;y a plus d&apos;enregistrement ici.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un champ manque dans la base.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La fiche n&apos;existe plus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La base ne peut pas être créée.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ce fichier existe déjà.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Bureau</name>
    <message>
        <source>Cette fiche n&apos;existe pas.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Les textes du catalogue de référence ne peuvent pas être décodés.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dossier</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être copié.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Entete</name>
    <message>
        <source>Le fichier est introuvable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le fichier ne peut pas être ouvert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ce fichier est au format d&apos;une ancienne version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le fichier est vide.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le fichier est abîmé : il est plus court qu&apos;il ne devrait.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Facile</name>
    <message numerus="yes">
        <source>%n album(s) du catalogue ne peuvent pas être décodés.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Filtrer le catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choisir</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>tome %1, %n album(s) de la série</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormeCreation</name>
    <message>
        <source>Ctrl+Entrée</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormulaireAlbum</name>
    <message>
        <source>Couverture ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dos ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Déposez une image ici</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Année</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Frmmain</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n album(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n série(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>valeur %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aucune fiche à montrer pour l&apos;instant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Images</name>
    <message>
        <source>Le dossier des images ne peut pas être créé.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cette image ne peut pas être copiée.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette adresse ne peut pas être ouverte.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aucun programme n&apos;ouvre cette adresse.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListeEntrees</name>
    <message>
        <source>Titre</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reglages</name>
    <message>
        <source>Le réglage %1 (« %2 ») n&apos;est pas valable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le fichier de réglages ne peut pas être lu.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pas encore disponible</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Traduction</name>
    <message>
        <source>Le fichier de langue ne peut pas être lu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le fichier de langue a un indice qui n&apos;est pas valable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas un fichier de langue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Le fichier de langue ne peut pas être écrit.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoletListes</name>
    <message>
        <source>Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit avec les albums que vous créez.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
