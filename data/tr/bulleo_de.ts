<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="fr_FR">
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation>Es ist ein unerwarteter Fehler aufgetreten.</translation>
    </message>
</context>
<context>
    <name>Bandeau</name>
    <message>
        <source>Quitter</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Aide</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Diaporama</source>
        <translation>Diashow</translation>
    </message>
    <message>
        <source>Montrer tour à tour la couverture et le dos</source>
        <translation>Titelbild und Rückseite abwechselnd zeigen</translation>
    </message>
    <message>
        <source>Pas encore disponible</source>
        <translation>Noch nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>Base</name>
    <message>
        <source>L&apos;ordre alphabétique n&apos;est pas disponible.</source>
        <translation>Die alphabetische Sortierung ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>La base est utilisée par un autre programme.</source>
        <translation>Die Datenbank wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>La base est en lecture seule.</source>
        <translation>Die Datenbank ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>La base est abîmée.</source>
        <translation>Die Datenbank ist beschädigt.</translation>
    </message>
    <message>
        <source>Le disque est plein.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>La base a refusé l&apos;opération.</source>
        <translation>Die Datenbank hat den Vorgang abgelehnt.</translation>
    </message>
    <message>
        <source>L&apos;opération a été interrompue.</source>
        <translation>Der Vorgang wurde unterbrochen.</translation>
    </message>
    <message>
        <source>Il n&apos;y a plus d&apos;enregistrement ici.</source>
        <translation>Hier gibt es keinen Datensatz mehr.</translation>
    </message>
    <message>
        <source>Un champ manque dans la base.</source>
        <translation>In der Datenbank fehlt ein Feld.</translation>
    </message>
    <message>
        <source>La fiche n&apos;existe plus.</source>
        <translation>Die Karte existiert nicht mehr.</translation>
    </message>
    <message>
        <source>La base ne peut pas être créée.</source>
        <translation>Die Datenbank kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Ce fichier existe déjà.</source>
        <translation>Diese Datei existiert bereits.</translation>
    </message>
</context>
<context>
    <name>Bureau</name>
    <message>
        <source>Cette fiche n&apos;existe pas.</source>
        <translation>Diese Karte existiert nicht.</translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Les textes du catalogue de référence ne peuvent pas être décodés.</source>
        <translation>Die Texte des Referenzkatalogs können nicht entschlüsselt werden.</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation>Diese Datei kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Dossier</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Dieser Ordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être copié.</source>
        <translation>Diese Datei kann nicht kopiert werden.</translation>
    </message>
</context>
<context>
    <name>Entete</name>
    <message>
        <source>Le fichier est introuvable.</source>
        <translation>Die Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Le fichier ne peut pas être ouvert.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Ce fichier est au format d&apos;une ancienne version.</source>
        <translation>Diese Datei hat das Format einer älteren Version.</translation>
    </message>
    <message>
        <source>Le fichier est vide.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Diese Datei ist keine Datenbank von Bulleo.</translation>
    </message>
    <message>
        <source>Le fichier est abîmé : il est plus court qu&apos;il ne devrait.</source>
        <translation>Die Datei ist beschädigt: Sie ist kürzer, als sie sein sollte.</translation>
    </message>
</context>
<context>
    <name>Facile</name>
    <message numerus="yes">
        <source>%n album(s) du catalogue ne peuvent pas être décodés.</source>
        <translation>
            <numerusform>%n Album des Katalogs kann nicht entschlüsselt werden.</numerusform>
            <numerusform>%n Alben des Katalogs können nicht entschlüsselt werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtrer le catalogue</source>
        <translation>Katalog filtern</translation>
    </message>
    <message>
        <source>Choisir</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation>Andere Seite zeigen</translation>
    </message>
    <message numerus="yes">
        <source>tome %1, %n album(s) de la série</source>
        <translation>
            <numerusform>Band %1, %n Album der Serie</numerusform>
            <numerusform>Band %1, %n Alben der Serie</numerusform>
        </translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation>Es fehlen: %1</translation>
    </message>
</context>
<context>
    <name>FormeCreation</name>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Strg+Eingabe</translation>
    </message>
</context>
<context>
    <name>FormulaireAlbum</name>
    <message>
        <source>Couverture ...</source>
        <translation>Titelbild ...</translation>
    </message>
    <message>
        <source>Dos ...</source>
        <translation>Rückseite ...</translation>
    </message>
    <message>
        <source>Déposez une image ici</source>
        <translation>Bild hier ablegen</translation>
    </message>
    <message>
        <source>Jour</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Année</source>
        <translation>Jahr</translation>
    </message>
</context>
<context>
    <name>Frmmain</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>Der Titel wurde auf 50 Zeichen gekürzt.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s)</source>
        <translation>
            <numerusform>%n Album</numerusform>
            <numerusform>%n Alben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n série(s)</source>
        <translation>
            <numerusform>%n Serie</numerusform>
            <numerusform>%n Serien</numerusform>
        </translation>
    </message>
    <message>
        <source>valeur %1</source>
        <translation>Wert %1</translation>
    </message>
    <message>
        <source>Aucune fiche à montrer pour l&apos;instant</source>
        <translation>Zurzeit keine Karte anzuzeigen</translation>
    </message>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation>Die Hilfe kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure</source>
        <translation>Freie Software unter der Lizenz GNU GPL, Version 3 oder später</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation>Die Kopie konnte nicht erstellt werden.</translation>
    </message>
</context>
<context>
    <name>Images</name>
    <message>
        <source>Le dossier des images ne peut pas être créé.</source>
        <translation>Der Bilderordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Cette image ne peut pas être copiée.</source>
        <translation>Dieses Bild kann nicht kopiert werden.</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation>Diese Änderung kann nicht mehr rückgängig gemacht oder wiederholt werden: Die Karte wurde inzwischen geändert.</translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette adresse ne peut pas être ouverte.</source>
        <translation>Diese Adresse kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;ouvre cette adresse.</source>
        <translation>Kein Programm öffnet diese Adresse.</translation>
    </message>
</context>
<context>
    <name>ListeEntrees</name>
    <message>
        <source>Titre</source>
        <translation>Titel</translation>
    </message>
</context>
<context>
    <name>Reglages</name>
    <message>
        <source>Le réglage %1 (« %2 ») n&apos;est pas valable.</source>
        <translation>Die Einstellung %1 („%2“) ist nicht gültig.</translation>
    </message>
    <message>
        <source>Le fichier de réglages ne peut pas être lu.</source>
        <translation>Die Einstellungsdatei kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation>Geben Sie mindestens einen Titel an.</translation>
    </message>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation>Die Nummer ist eine ganze Zahl von 0 bis 999.</translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation>Der Preis ist eine Zahl, zum Beispiel 12,50.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Diese Datei ist kein lesbares Bild.</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation> Liste auswählen: </translation>
    </message>
    <message>
        <source>Pas encore disponible</source>
        <translation>Noch nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>Traduction</name>
    <message>
        <source>Le fichier de langue ne peut pas être lu.</source>
        <translation>Die Sprachdatei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Le fichier de langue a un indice qui n&apos;est pas valable.</source>
        <translation>Die Sprachdatei enthält einen ungültigen Index.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas un fichier de langue.</source>
        <translation>Diese Datei ist keine Sprachdatei.</translation>
    </message>
    <message>
        <source>Le fichier de langue ne peut pas être écrit.</source>
        <translation>Die Sprachdatei kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>VoletListes</name>
    <message>
        <source>Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.</source>
        <translation>Ihre Sammlung ist noch leer. Legen Sie ein erstes Album an oder öffnen Sie das Hauptmenü.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit avec les albums que vous créez.</source>
        <translation>Hier ist noch nichts. Diese Liste füllt sich mit den Alben, die Sie anlegen.</translation>
    </message>
</context>
</TS>
