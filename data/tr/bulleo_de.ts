<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="fr_FR">
<context>
    <name>AccesBDNet</name>
    <message>
        <source>Le navigateur n&apos;est pas installé (paquet libqt6webenginewidgets6). L&apos;adresse d&apos;une fiche d&apos;album, écrite ci-dessus, suffit pour l&apos;analyser.</source>
        <translation>Der Browser ist nicht installiert (Paket libqt6webenginewidgets6). Um eine Albumseite zu analysieren, genügt es, oben ihre Adresse einzugeben.</translation>
    </message>
    <message>
        <source>Donnez l&apos;adresse du catalogue, d&apos;où viennent les couvertures, et la page par laquelle sa visite commence.</source>
        <translation>Geben Sie die Adresse des Katalogs an, von dem die Titelbilder kommen, und die Seite, auf der sein Besuch beginnt.</translation>
    </message>
    <message>
        <source>Adresse du catalogue</source>
        <translation>Adresse des Katalogs</translation>
    </message>
    <message>
        <source>Page d&apos;accueil</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Enregistrer</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>« %1 » n&apos;est pas une adresse du web.</source>
        <translation>„%1“ ist keine Webadresse.</translation>
    </message>
</context>
<context>
    <name>AccordPourLaNote</name>
    <message>
        <source>Cette dédicace est une note : « %1 ». L&apos;image la remplacera. Continuer ?</source>
        <translation>Diese Widmung ist eine Notiz: „%1“. Das Bild wird sie ersetzen. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>Accueil</name>
    <message>
        <source>Bienvenue dans votre bibliothèque</source>
        <translation>Willkommen in Ihrer Bibliothek</translation>
    </message>
    <message>
        <source>Votre collection est encore vide. Par quoi voulez-vous commencer ?</source>
        <translation>Ihre Sammlung ist noch leer. Womit möchten Sie anfangen?</translation>
    </message>
    <message>
        <source>Choisissez une ligne de la liste pour voir sa fiche.</source>
        <translation>Wählen Sie eine Zeile der Liste aus, um ihre Karte zu sehen.</translation>
    </message>
    <message>
        <source>Saisir un premier album</source>
        <translation>Ein erstes Album eingeben</translation>
    </message>
    <message>
        <source>Le prendre dans le catalogue fourni</source>
        <translation>Aus dem mitgelieferten Katalog nehmen</translation>
    </message>
    <message>
        <source>Importer un fichier CSV</source>
        <translation>Eine CSV-Datei importieren</translation>
    </message>
    <message>
        <source>Reprendre une ancienne base (bd.mdb)</source>
        <translation>Alte Datenbank übernehmen (bd.mdb)</translation>
    </message>
</context>
<context>
    <name>Acquisition</name>
    <message>
        <source>aucun scanner</source>
        <translation>kein Scanner</translation>
    </message>
    <message>
        <source>Numérisez ou ouvrez une image, déposez un fichier ici, ou collez-la avec Ctrl+V</source>
        <translation>Scannen oder öffnen Sie ein Bild, legen Sie hier eine Datei ab oder fügen Sie ein Bild mit Strg+V ein</translation>
    </message>
    <message>
        <source>Dernier résultat</source>
        <translation>Letztes Ergebnis</translation>
    </message>
    <message>
        <source>Utiliser comme couverture</source>
        <translation>Als Titelbild verwenden</translation>
    </message>
    <message>
        <source>Utiliser comme dos</source>
        <translation>Als Rückseite verwenden</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 1</source>
        <translation>Als Widmung 1 verwenden</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 2</source>
        <translation>Als Widmung 2 verwenden</translation>
    </message>
    <message>
        <source>Montrez un album dans la fenêtre principale pour lui donner cette image.</source>
        <translation>Zeigen Sie im Hauptfenster ein Album an, um ihm dieses Bild zuzuordnen.</translation>
    </message>
    <message>
        <source>Ouvrir un fichier image</source>
        <translation>Bilddatei öffnen</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</source>
        <translation>Alle Bilddateien (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible : %1</source>
        <translation>Diese Datei ist kein lesbares Bild: %1</translation>
    </message>
    <message>
        <source>Format Bitmap (*.bmp)|*.bmp</source>
        <translation>Bitmap-Format (*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</source>
        <translation>Alle Bilddateien (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Image enregistrée : %1</source>
        <translation>Bild gespeichert: %1</translation>
    </message>
    <message>
        <source>Le presse-papiers ne contient pas d&apos;image.</source>
        <translation>Die Zwischenablage enthält kein Bild.</translation>
    </message>
    <message>
        <source>C&apos;est fait : %1</source>
        <translation>Erledigt: %1</translation>
    </message>
    <message>
        <source>Les scanners sont encore recherchés.</source>
        <translation>Es wird noch nach Scannern gesucht.</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>Acte</name>
    <message>
        <source>La modification est enregistrée, mais le disque a signalé une erreur.</source>
        <translation>Die Änderung ist gespeichert, aber der Datenträger hat einen Fehler gemeldet.</translation>
    </message>
</context>
<context>
    <name>Aide</name>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation>Die Hilfe kann nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>AnalysePage</name>
    <message>
        <source>La page ne peut pas être analysée.</source>
        <translation>Die Seite kann nicht analysiert werden.</translation>
    </message>
    <message>
        <source>Il lui manque une ligne.</source>
        <translation>Es fehlt eine Zeile.</translation>
    </message>
    <message>
        <source>Son prix n&apos;est pas un nombre.</source>
        <translation>Der Preis ist keine Zahl.</translation>
    </message>
    <message>
        <source>Une balise n&apos;y est jamais fermée.</source>
        <translation>Ein Tag darin wird nie geschlossen.</translation>
    </message>
</context>
<context>
    <name>Apparence</name>
    <message>
        <source>Apparence</source>
        <translation>Erscheinungsbild</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation>Es ist ein unerwarteter Fehler aufgetreten.</translation>
    </message>
</context>
<context>
    <name>BDNet</name>
    <message>
        <source>Cette page ne peut pas être montrée.</source>
        <translation>Diese Seite kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Adresse d&apos;une page</source>
        <translation>Adresse einer Seite</translation>
    </message>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Strg+Eingabe</translation>
    </message>
    <message>
        <source>Seules les adresses du web peuvent être montrées.</source>
        <translation>Nur Webadressen können angezeigt werden.</translation>
    </message>
    <message>
        <source>La page n&apos;a pas pu être lue jusqu&apos;au bout : complétez les champs.</source>
        <translation>Die Seite konnte nicht bis zum Ende gelesen werden: Ergänzen Sie die Felder.</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>„%1“: Ein begonnenes Album ist noch nicht angelegt, es geht verloren.</translation>
    </message>
    <message>
        <source>La couverture n&apos;a pas pu être gardée : %1</source>
        <translation>Das Titelbild konnte nicht aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Perdre ce qui est saisi ?</source>
        <translation>Dieses Album ist noch nicht angelegt. Eingaben verwerfen?</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Dieses Album ist noch nicht angelegt. Trotzdem schließen?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>Die Eingaben sind beim nächsten Öffnen wieder da, solange das Programm nicht beendet wird.</translation>
    </message>
</context>
<context>
    <name>BandeSerie</name>
    <message numerus="yes">
        <source>%n tome(s) de plus</source>
        <translation>
            <numerusform>%n weiterer Band</numerusform>
            <numerusform>%n weitere Bände</numerusform>
        </translation>
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
        <source>Montrer tour à tour la couverture et le dos ; avec Maj, parcourir aussi la liste</source>
        <translation>Titelbild und Rückseite abwechselnd zeigen; mit Umschalt auch die Liste durchlaufen</translation>
    </message>
    <message>
        <source>Annuler (Ctrl+Z)</source>
        <translation>Rückgängig machen (Strg+Z)</translation>
    </message>
    <message>
        <source>Annuler %1 (Ctrl+Z)</source>
        <translation>%1 rückgängig machen (Strg+Z)</translation>
    </message>
    <message>
        <source>Rétablir (Ctrl+Y)</source>
        <translation>Wiederholen (Strg+Y)</translation>
    </message>
    <message>
        <source>Rétablir %1 (Ctrl+Y)</source>
        <translation>%1 wiederholen (Strg+Y)</translation>
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
    <message>
        <source>Ce fichier ne peut pas être remplacé.</source>
        <translation>Diese Datei kann nicht ersetzt werden.</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation>Die Kopie konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Une longue lecture de la base est en cours.</source>
        <translation>Die Datenbank wird gerade gelesen, und das dauert länger.</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>Die Datenbank ist schreibgeschützt: Nichts darin kann geändert werden.</translation>
    </message>
    <message>
        <source>Pour lire cette base, il en faut une copie, qui ne peut pas être faite.</source>
        <translation>Um diese Datenbank zu lesen, ist eine Kopie nötig, die nicht erstellt werden kann.</translation>
    </message>
    <message>
        <source>Ce fichier contient des vues ou des règles qui ne viennent pas de Bulleo : il n&apos;est pas ouvert.</source>
        <translation>Diese Datei enthält Sichten oder Regeln, die nicht von Bulleo stammen: Sie wird nicht geöffnet.</translation>
    </message>
    <message>
        <source>La lecture a été arrêtée.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>Bureau</name>
    <message>
        <source>%1 — Ctrl+Z pour annuler</source>
        <translation>%1 – Strg+Z macht es rückgängig</translation>
    </message>
    <message>
        <source>Annulé : %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Rétabli : %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>Die Datenbank ist schreibgeschützt: Nichts darin kann geändert werden.</translation>
    </message>
    <message>
        <source>La lecture de la base dure plus longtemps que prévu. Attendre encore ?</source>
        <translation>Das Lesen der Datenbank dauert länger als erwartet. Weiter warten?</translation>
    </message>
    <message>
        <source>La copie contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>Die Kopie enthält die Daten, nicht die Bilder: Ihre Ordner, images und image, werden getrennt kopiert.</translation>
    </message>
</context>
<context>
    <name>Capture</name>
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
    <name>ChoixColonnes</name>
    <message>
        <source>Toutes</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Aucune</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>La conversion a été annulée.</source>
        <translation>Die Umwandlung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>La conversion ne finit pas : le fichier est abîmé.</source>
        <translation>Die Umwandlung endet nicht: Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>La conversion s&apos;est arrêtée en chemin : le fichier est abîmé.</source>
        <translation>Die Umwandlung ist unterwegs stehen geblieben: Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>Le programme de conversion est introuvable.</source>
        <translation>Das Umwandlungsprogramm wurde nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>Couvertures</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation>Diese Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Ligne %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Ce n&apos;est pas un fichier de valeurs séparées (CSV).</source>
        <translation>Das ist keine Datei mit getrennten Werten (CSV).</translation>
    </message>
</context>
<context>
    <name>Demarrage</name>
    <message>
        <source>La base contient des restes que rien ne montre : saisies interrompues, liens en double, lignes d&apos;albums supprimés. Les ôter ? Ctrl+Z les remet.</source>
        <translation>Die Datenbank enthält Reste, die nirgends zu sehen sind: unterbrochene Eingaben, doppelte Verknüpfungen, Zeilen gelöschter Alben. Entfernen? Strg+Z holt sie zurück.</translation>
    </message>
</context>
<context>
    <name>Dossier</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Dieser Ordner kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>Edition</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>Der Titel wurde auf 50 Zeichen gekürzt.</translation>
    </message>
    <message>
        <source>Le numéro a été coupé à 3 caractères : %1</source>
        <translation>Die Nummer wurde auf 3 Zeichen gekürzt: %1</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;existe plus.</source>
        <translation>Diese Karte existiert nicht mehr.</translation>
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
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Diese Datenbank stammt von einer neueren Version von Bulleo: Nur mit dieser lässt sie sich öffnen.</translation>
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
    <message>
        <source>Ce catalogue vient d&apos;un ancien programme : ses textes sont codés, et personne n&apos;en a la clé.</source>
        <translation>Dieser Katalog stammt aus einem älteren Programm: Seine Texte sind verschlüsselt, und niemand hat den Schlüssel.</translation>
    </message>
    <message>
        <source>Titre, série, auteur ou éditeur</source>
        <translation>Titel, Serie, Autor oder Verlag</translation>
    </message>
</context>
<context>
    <name>Fiche</name>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation>Die Nummer ist eine ganze Zahl von 0 bis 999.</translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation>Der Preis ist eine Zahl, zum Beispiel 12,50.</translation>
    </message>
    <message>
        <source>Le nombre de pages est un nombre.</source>
        <translation>Die Seitenzahl muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>Il faut ici un nombre entier.</source>
        <translation>Hier ist eine ganze Zahl nötig.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Es fehlt ein Name.</translation>
    </message>
    <message>
        <source>« %1 » peut se lire %2 ou %3 : écrivez l&apos;un des deux.</source>
        <translation>„%1“ lässt sich als %2 oder %3 lesen: Schreiben Sie eines von beiden.</translation>
    </message>
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation>Andere Seite zeigen</translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation>Es fehlen: %1</translation>
    </message>
    <message numerus="yes">
        <source>tome %1 · %n possédé(s)</source>
        <translation>
            <numerusform>Band %1 · %n vorhanden</numerusform>
            <numerusform>Band %1 · %n vorhanden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FicheForme</name>
    <message>
        <source>Groupe suivant : F6, précédent : Maj+F6</source>
        <translation>Nächste Gruppe: F6, vorherige: Umschalt+F6</translation>
    </message>
</context>
<context>
    <name>FormeCreation</name>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Strg+Eingabe</translation>
    </message>
    <message>
        <source>Effacer tout ce qui est saisi ici ?</source>
        <translation>Alle Eingaben hier löschen?</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>„%1“: Ein begonnenes Album ist noch nicht angelegt, es geht verloren.</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Dieses Album ist noch nicht angelegt. Trotzdem schließen?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>Die Eingaben sind beim nächsten Öffnen wieder da, solange das Programm nicht beendet wird.</translation>
    </message>
    <message>
        <source>Vider</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Effacer tous les champs</source>
        <translation>Alle Felder leeren</translation>
    </message>
</context>
<context>
    <name>FormeOutil</name>
    <message>
        <source>Annuler</source>
        <translation>Abbrechen</translation>
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
    <name>FrmModif</name>
    <message>
        <source>« %1 » sera ajouté ; ↓ pour choisir dans la liste.</source>
        <translation>„%1“ wird hinzugefügt; ↓ zur Auswahl aus der Liste.</translation>
    </message>
    <message>
        <source>Tapez d&apos;abord le nom à ajouter.</source>
        <translation>Geben Sie zuerst den Namen ein, der hinzugefügt werden soll.</translation>
    </message>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>Dieser Eintrag existiert bereits!</translation>
    </message>
    <message>
        <source>« %1 » est connu dans un autre métier : il sera choisi.</source>
        <translation>„%1“ ist unter einer anderen Tätigkeit bekannt: Die Wahl fällt auf diesen Eintrag.</translation>
    </message>
    <message>
        <source>« %1 » sera choisi.</source>
        <translation>„%1“ wird ausgewählt.</translation>
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
        <translation>Freie Software unter der Lizenz GNU GPL, Version 3 oder später</translation>
    </message>
    <message>
        <source>Le texte que vous venez de taper ne peut pas être enregistré. Le perdre ?</source>
        <translation>Der soeben eingegebene Text kann nicht gespeichert werden. Verwerfen?</translation>
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
    <name>Import</name>
    <message>
        <source>Choisir un fichier de valeurs séparées</source>
        <translation>Eine Datei mit getrennten Werten auswählen</translation>
    </message>
    <message>
        <source>Un fichier CSV, avec le nom des colonnes à la première ligne. Déposez-le ici, ou choisissez-le.</source>
        <translation>Eine CSV-Datei mit den Namen der Spalten in der ersten Zeile. Legen Sie sie hier ab oder wählen Sie sie aus.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n Zeile</numerusform>
            <numerusform>%1: %n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>Dites quelle colonne est celle du titre.</source>
        <translation>Geben Sie an, welche Spalte die des Titels ist.</translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été importé.</source>
        <translation>Abgebrochen: Es wurde nichts importiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) créé(s)</source>
        <translation>
            <numerusform>%n Album angelegt</numerusform>
            <numerusform>%n Alben angelegt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n déjà présent(s)</source>
        <translation>
            <numerusform>%n schon vorhanden</numerusform>
            <numerusform>%n schon vorhanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refusé(s)</source>
        <translation>
            <numerusform>%n abgelehnt</numerusform>
            <numerusform>%n abgelehnt</numerusform>
        </translation>
    </message>
    <message>
        <source>Ligne %1 : %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Ligne %1 : cet album est déjà dans la collection</source>
        <translation>Zeile %1: Dieses Album ist schon in der Sammlung</translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Alben importieren</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Datei auswählen…</translation>
    </message>
    <message>
        <source>Quelle colonne pour quoi ?</source>
        <translation>Welche Spalte wofür?</translation>
    </message>
    <message>
        <source>Les premières lignes, telles qu&apos;elles entreront</source>
        <translation>Die ersten Zeilen, so wie sie eingehen werden</translation>
    </message>
    <message>
        <source>Un album de même titre, série et tome :</source>
        <translation>Ein Album mit gleichem Titel, gleicher Serie und gleichem Band:</translation>
    </message>
    <message>
        <source>le sauter</source>
        <translation>überspringen</translation>
    </message>
    <message>
        <source>le créer quand même</source>
        <translation>trotzdem anlegen</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Importer</source>
        <translation>Importieren</translation>
    </message>
</context>
<context>
    <name>Importation</name>
    <message>
        <source>La page ne peut pas être enregistrée.</source>
        <translation>Die Seite kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>ImporterAlbums</name>
    <message>
        <source>%1 : « %2 » n&apos;est ni oui ni non.</source>
        <translation>%1: „%2“ ist weder Ja noch Nein.</translation>
    </message>
    <message>
        <source>Importation de « %1 »</source>
        <translation>Import von „%1“</translation>
    </message>
</context>
<context>
    <name>Impression</name>
    <message>
        <source>Éditer la liste au format PDF</source>
        <translation>Liste im PDF-Format ausgeben</translation>
    </message>
    <message>
        <source>Exporter la liste au format CSV</source>
        <translation>Liste im CSV-Format exportieren</translation>
    </message>
    <message>
        <source>La liste affichée</source>
        <translation>Die angezeigte Liste</translation>
    </message>
    <message>
        <source>Cochez au moins une colonne.</source>
        <translation>Kreuzen Sie mindestens eine Spalte an.</translation>
    </message>
    <message numerus="yes">
        <source>%n ligne(s) en tout</source>
        <translation>
            <numerusform>%n Zeile insgesamt</numerusform>
            <numerusform>%n Zeilen insgesamt</numerusform>
        </translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été écrit.</source>
        <translation>Abgebrochen: Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Liste enregistrée : %1</source>
        <translation>Liste gespeichert: %1</translation>
    </message>
    <message>
        <source>Impression annulée.</source>
        <translation>Drucken abgebrochen.</translation>
    </message>
    <message>
        <source>La liste est partie à l&apos;impression.</source>
        <translation>Die Liste ist an den Drucker gegangen.</translation>
    </message>
    <message>
        <source>Que voulez-vous lister ?</source>
        <translation>Was möchten Sie auflisten?</translation>
    </message>
    <message>
        <source>Ce qui sortira</source>
        <translation>Was herauskommt</translation>
    </message>
    <message>
        <source>Vers un fichier ou sur papier</source>
        <translation>In eine Datei oder auf Papier</translation>
    </message>
    <message>
        <source>Toute la collection</source>
        <translation>Die ganze Sammlung</translation>
    </message>
    <message>
        <source>La fiche affichée</source>
        <translation>Die angezeigte Karte</translation>
    </message>
    <message>
        <source>Aperçu avant impression</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Imprimer…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>Avec autant de colonnes, une page se lit mal. Continuer ?</source>
        <translation>Mit so vielen Spalten ist eine Seite schwer zu lesen. Fortfahren?</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation>Diese Änderung kann nicht mehr rückgängig gemacht oder wiederholt werden: Die Karte wurde inzwischen geändert.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être écrit.</source>
        <translation>Die Datei, die das Rückgängigmachen ermöglicht, kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être relu.</source>
        <translation>Die Datei, die das Rückgängigmachen ermöglicht, kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette image n&apos;existe plus.</source>
        <translation>Dieses Bild existiert nicht mehr.</translation>
    </message>
    <message>
        <source>Cette adresse ne s&apos;ouvre pas d&apos;ici : seuls les pages web et le courrier s&apos;ouvrent.</source>
        <translation>Diese Adresse lässt sich von hier nicht öffnen: Nur Webseiten und E-Mail öffnen sich.</translation>
    </message>
    <message>
        <source>Aucun programme de courrier n&apos;est installé : copiez l&apos;adresse dans le vôtre.</source>
        <translation>Es ist kein E-Mail-Programm installiert: Kopieren Sie die Adresse in Ihres.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé : installez-en un, ou ouvrez cette adresse ailleurs.</source>
        <translation>Es ist kein Browser installiert: Installieren Sie einen oder öffnen Sie diese Adresse anderswo.</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;est installé pour voir cette image : installez une visionneuse.</source>
        <translation>Es ist kein Programm installiert, das dieses Bild zeigt: Installieren Sie einen Bildbetrachter.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé pour lire l&apos;aide : installez-en un, ou ouvrez ce fichier ailleurs.</source>
        <translation>Es ist kein Browser installiert, um die Hilfe zu lesen: Installieren Sie einen oder öffnen Sie diese Datei anderswo.</translation>
    </message>
</context>
<context>
    <name>Listage</name>
    <message>
        <source>Champ</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Wert</translation>
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
    <name>Livraison</name>
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
    <name>Modification</name>
    <message>
        <source>« %1 » n&apos;existe plus.</source>
        <translation>„%1“ existiert nicht mehr.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Es fehlt ein Name.</translation>
    </message>
</context>
<context>
    <name>Moteur</name>
    <message>
        <source>Ce fichier ne peut pas être mis de côté.</source>
        <translation>Diese Datei kann nicht beiseitegelegt werden.</translation>
    </message>
</context>
<context>
    <name>Numeriseur</name>
    <message>
        <source>Le scanner a refusé l&apos;opération.</source>
        <translation>Der Scanner hat den Vorgang abgelehnt.</translation>
    </message>
    <message>
        <source>Le scanner a rendu une image d&apos;un format inconnu.</source>
        <translation>Der Scanner hat ein Bild in einem unbekannten Format geliefert.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de scanner.</source>
        <translation>Es gibt keinen Scanner.</translation>
    </message>
</context>
<context>
    <name>PageTheme</name>
    <message>
        <source>Thème</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Fenêtres :</source>
        <translation>Fenster:</translation>
    </message>
    <message>
        <source>Fenêtres claires ou sombres</source>
        <translation>Helle oder dunkle Fenster</translation>
    </message>
    <message>
        <source>comme le bureau</source>
        <translation>wie der Desktop</translation>
    </message>
    <message>
        <source>claires</source>
        <translation>hell</translation>
    </message>
    <message>
        <source>sombres</source>
        <translation>dunkel</translation>
    </message>
</context>
<context>
    <name>Parcours</name>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>Dieser Eintrag existiert bereits!</translation>
    </message>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>Der Titel wurde auf 50 Zeichen gekürzt.</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;est plus là : les listes ont été relues.</source>
        <translation>Diese Karte ist nicht mehr da: Die Listen wurden neu gelesen.</translation>
    </message>
</context>
<context>
    <name>PhotosFiche</name>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Diese Datei ist kein lesbares Bild.</translation>
    </message>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>Pied</name>
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
        <source>lecture seule</source>
        <translation>schreibgeschützt</translation>
    </message>
</context>
<context>
    <name>Polices</name>
    <message>
        <source>police</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Couleur du thème</source>
        <translation>Themenfarbe</translation>
    </message>
</context>
<context>
    <name>Pop</name>
    <message>
        <source>Quitter</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Suppr</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Renommer</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Rendre</source>
        <translation>Als zurückgegeben markieren</translation>
    </message>
    <message>
        <source>Prêter…</source>
        <translation>Verleihen…</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>Pret</name>
    <message numerus="yes">
        <source>%n jour(s)</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>Rendre l&apos;album</source>
        <translation>Als zurückgegeben markieren</translation>
    </message>
    <message>
        <source>Supprimer la personne</source>
        <translation>Person löschen</translation>
    </message>
    <message>
        <source>Prêter « %1 »</source>
        <translation>„%1“ verleihen</translation>
    </message>
    <message>
        <source>Prêter</source>
        <translation>Verleihen</translation>
    </message>
    <message>
        <source>Choisir à qui l&apos;album montré est prêté</source>
        <translation>Auswählen, an wen das angezeigte Album verliehen wird</translation>
    </message>
    <message>
        <source>Montrez d&apos;abord un album dans la fenêtre principale</source>
        <translation>Zeigen Sie zuerst ein Album im Hauptfenster an</translation>
    </message>
    <message>
        <source>Dehors depuis</source>
        <translation>Ausleihdauer</translation>
    </message>
    <message>
        <source>Tous les prêts</source>
        <translation>Alle Ausleihen</translation>
    </message>
    <message>
        <source>quelqu&apos;un qui n&apos;est plus dans la liste</source>
        <translation>jemanden, der nicht mehr in der Liste steht</translation>
    </message>
    <message>
        <source>Une personne a un nom.</source>
        <translation>Eine Person braucht einen Namen.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) lui restent prêtés et le resteront.</source>
        <translation>
            <numerusform>%n Album ist noch an diese Person verliehen und bleibt es.</numerusform>
            <numerusform>%n Alben sind noch an diese Person verliehen und bleiben es.</numerusform>
        </translation>
    </message>
    <message>
        <source>Prêter « %1 » à %2</source>
        <translation>„%1“ an %2 verleihen</translation>
    </message>
    <message>
        <source>« %1 » est déjà prêté à %2.</source>
        <translation>„%1“ ist schon an %2 verliehen.</translation>
    </message>
    <message>
        <source>« %1 » est prêté à %2.</source>
        <translation>„%1“ ist an %2 verliehen.</translation>
    </message>
    <message>
        <source>Le prêter maintenant à %1 ?</source>
        <translation>Jetzt an %1 verleihen?</translation>
    </message>
    <message>
        <source>Le prêter maintenant à quelqu&apos;un d&apos;autre ?</source>
        <translation>Jetzt an jemand anderen verleihen?</translation>
    </message>
</context>
<context>
    <name>Prets</name>
    <message>
        <source>Retour</source>
        <translation>Rückgabe</translation>
    </message>
    <message>
        <source>Prêt</source>
        <translation>Ausleihe</translation>
    </message>
</context>
<context>
    <name>Recherche</name>
    <message>
        <source>Rien de tel</source>
        <translation>Nichts gefunden</translation>
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
    <name>Repartition</name>
    <message>
        <source>Inconnu</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Autres (%1)</source>
        <translation>Andere (%1)</translation>
    </message>
    <message>
        <source>Valeur par année d&apos;achat</source>
        <translation>Wert nach Kaufjahr</translation>
    </message>
    <message>
        <source>Payé</source>
        <translation>Bezahlt</translation>
    </message>
    <message>
        <source>Coté</source>
        <translation>Sammlerpreis</translation>
    </message>
    <message>
        <source>Albums par genre</source>
        <translation>Alben nach Genre</translation>
    </message>
    <message>
        <source>Albums par éditeur</source>
        <translation>Alben nach Verlag</translation>
    </message>
    <message>
        <source>Albums par décennie de parution</source>
        <translation>Alben nach Erscheinungsjahrzehnt</translation>
    </message>
    <message>
        <source>Croissance de la collection, par date d&apos;achat</source>
        <translation>Wachstum der Sammlung nach Kaufdatum</translation>
    </message>
    <message>
        <source>Achetés dans l&apos;année</source>
        <translation>Im Jahr gekauft</translation>
    </message>
    <message>
        <source>En tout</source>
        <translation>Insgesamt</translation>
    </message>
</context>
<context>
    <name>Restauration</name>
    <message>
        <source>Annulé : rien n&apos;a changé.</source>
        <translation>Abgebrochen: Es hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Cette base est chiffrée : elle ne peut pas être lue. Rien n&apos;a changé.</source>
        <translation>Diese Datenbank ist verschlüsselt: Sie kann nicht gelesen werden. Es hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Cette base est abîmée. Rien n&apos;a changé.</source>
        <translation>Diese Datenbank ist beschädigt. Es hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Le convertisseur manque : Bulleo est mal installé.</source>
        <translation>Der Konverter fehlt: Bulleo ist nicht richtig installiert.</translation>
    </message>
    <message>
        <source>La conversion a échoué. Rien n&apos;a changé.</source>
        <translation>Die Umwandlung ist fehlgeschlagen. Es hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>table inconnue</source>
        <translation>unbekannte Tabelle</translation>
    </message>
    <message>
        <source>table absente, laissée vide</source>
        <translation>fehlende Tabelle, leer gelassen</translation>
    </message>
    <message>
        <source>champ inconnu</source>
        <translation>unbekanntes Feld</translation>
    </message>
    <message>
        <source>numéro déjà pris, ligne laissée</source>
        <translation>Nummer schon vergeben, Zeile ausgelassen</translation>
    </message>
    <message>
        <source>ligne sans numéro, laissée</source>
        <translation>Zeile ohne Nummer, ausgelassen</translation>
    </message>
    <message>
        <source>pas un nombre, laissé vide</source>
        <translation>keine Zahl, leer gelassen</translation>
    </message>
    <message>
        <source>montant trop grand, arrondi</source>
        <translation>Betrag zu groß, gerundet</translation>
    </message>
    <message>
        <source>Une ancienne base : elle sera convertie, son fichier reste comme il est.</source>
        <translation>Eine alte Datenbank: Sie wird umgewandelt, ihre Datei bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>La base en service est gardée parmi les sauvegardes.</source>
        <translation>Die aktuelle Datenbank wird unter den Sicherungen aufbewahrt.</translation>
    </message>
    <message>
        <source>Convertir cette ancienne base et la mettre en service ? Son fichier est gardé.</source>
        <translation>Diese alte Datenbank umwandeln und in Gebrauch nehmen? Ihre Datei bleibt erhalten.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n Zeile</numerusform>
            <numerusform>%1: %n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>Laissé de côté, ou changé :</source>
        <translation>Ausgelassen oder geändert:</translation>
    </message>
    <message>
        <source>C&apos;était un catalogue de référence : ses textes sont repris tels quels, leur code n&apos;étant pas connu.</source>
        <translation>Es war ein Referenzkatalog: Seine Texte wurden unverändert übernommen, da ihr Code nicht bekannt ist.</translation>
    </message>
    <message>
        <source>Sauvegardes</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Fichier</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Aucune sauvegarde pour l&apos;instant : la première se fait d&apos;elle-même, avant votre prochaine modification. Vous pouvez aussi choisir un fichier.</source>
        <translation>Noch keine Sicherung: Die erste entsteht von selbst, vor Ihrer nächsten Änderung. Sie können auch eine Datei auswählen.</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Datei auswählen…</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Einspielen</translation>
    </message>
    <message>
        <source>Une table manque :</source>
        <translation>Eine Tabelle fehlt:</translation>
    </message>
    <message>
        <source>C&apos;est la base en service.</source>
        <translation>Das ist die aktuelle Datenbank.</translation>
    </message>
    <message>
        <source>Cette base est d&apos;une ancienne version : elle est à convertir d&apos;abord.</source>
        <translation>Diese Datenbank stammt aus einer älteren Version: Sie muss zuerst umgewandelt werden.</translation>
    </message>
    <message>
        <source>C&apos;est un catalogue de référence, pas une base.</source>
        <translation>Das ist ein Referenzkatalog, keine Datenbank.</translation>
    </message>
    <message>
        <source>Cette base est abîmée.</source>
        <translation>Diese Datenbank ist beschädigt.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Diese Datei ist keine Datenbank von Bulleo.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Diese Datenbank stammt von einer neueren Version von Bulleo: Nur mit dieser lässt sie sich öffnen.</translation>
    </message>
    <message numerus="yes">
        <source>Remplacer la base en service par celle du %1, avec %n album(s) ?</source>
        <translation>
            <numerusform>Die aktuelle Datenbank durch die vom %1 mit %n Album ersetzen?</numerusform>
            <numerusform>Die aktuelle Datenbank durch die vom %1 mit %n Alben ersetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Une sauvegarde contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>Eine Sicherung enthält die Daten, nicht die Bilder: Ihre Ordner, images und image, werden getrennt kopiert.</translation>
    </message>
</context>
<context>
    <name>Restes</name>
    <message>
        <source>Restes ôtés : %1</source>
        <translation>Entfernte Reste: %1</translation>
    </message>
</context>
<context>
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation>Geben Sie mindestens einen Titel an.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Diese Datei ist kein lesbares Bild.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Es fehlt ein Name.</translation>
    </message>
</context>
<context>
    <name>Sauvegardes</name>
    <message>
        <source>La liste des copies de sauvegarde ne peut pas être écrite.</source>
        <translation>Die Liste der Sicherungen kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>Scan</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>Secours</name>
    <message>
        <source>Il n&apos;y a aucune sauvegarde qui soit saine.</source>
        <translation>Es gibt keine Sicherung, die unbeschädigt ist.</translation>
    </message>
    <message>
        <source>Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté.</source>
        <translation>Möchten Sie die Sicherung vom %1 einspielen? Die beschädigte Datei wird daneben aufbewahrt.</translation>
    </message>
    <message>
        <source>Votre base est abîmée, ou n&apos;est plus là.</source>
        <translation>Ihre Datenbank ist beschädigt oder nicht mehr da.</translation>
    </message>
</context>
<context>
    <name>Sorties</name>
    <message>
        <source>La liste ne peut pas être imprimée.</source>
        <translation>Die Liste kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>La liste ne peut pas être écrite.</source>
        <translation>Die Liste kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation> Liste auswählen: </translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Alben importieren</translation>
    </message>
    <message>
        <source>Créer beaucoup d&apos;albums d&apos;un coup, à partir d&apos;un fichier CSV</source>
        <translation>Viele Alben auf einmal aus einer CSV-Datei anlegen</translation>
    </message>
    <message>
        <source>Voir la liste</source>
        <translation>Liste ansehen</translation>
    </message>
</context>
<context>
    <name>Statistiques</name>
    <message>
        <source>La page des statistiques ne peut pas être écrite.</source>
        <translation>Die Statistikseite kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Liens sans fiche ôtés : %1</source>
        <translation>Entfernte Verknüpfungen ohne Karte: %1</translation>
    </message>
    <message>
        <source>Statistiques ...</source>
        <translation>Statistik ...</translation>
    </message>
</context>
<context>
    <name>Stats</name>
    <message>
        <source>La page est ouverte dans votre navigateur : %1</source>
        <translation>Die Seite ist in Ihrem Browser geöffnet: %1</translation>
    </message>
    <message>
        <source>La page est écrite, mais aucun programme ne l&apos;ouvre : %1</source>
        <translation>Die Seite ist geschrieben, aber kein Programm öffnet sie: %1</translation>
    </message>
    <message>
        <source>Recalculer</source>
        <translation>Neu berechnen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Genres</source>
        <translation>Genres</translation>
    </message>
    <message>
        <source>Éditeurs</source>
        <translation>Verlage</translation>
    </message>
    <message>
        <source>Décennies</source>
        <translation>Jahrzehnte</translation>
    </message>
    <message>
        <source>Croissance</source>
        <translation>Wachstum</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Prix d&apos;achat</source>
        <translation>Kaufpreis</translation>
    </message>
    <message>
        <source>Albums prêtés</source>
        <translation>Verliehene Alben</translation>
    </message>
    <message>
        <source>Vue d&apos;ensemble</source>
        <translation>Überblick</translation>
    </message>
</context>
<context>
    <name>Supprimer</name>
    <message numerus="yes">
        <source>%n album(s) restent, sans série.</source>
        <translation>
            <numerusform>%n Album bleibt, ohne Serie.</numerusform>
            <numerusform>%n Alben bleiben, ohne Serie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans éditeur.</source>
        <translation>
            <numerusform>%n Album bleibt, ohne Verlag.</numerusform>
            <numerusform>%n Alben bleiben, ohne Verlag.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cette collection.</source>
        <translation>
            <numerusform>%n Album bleibt, ohne diese Verlagsreihe.</numerusform>
            <numerusform>%n Alben bleiben, ohne diese Verlagsreihe.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cet auteur.</source>
        <translation>
            <numerusform>%n Album bleibt, ohne diesen Autor.</numerusform>
            <numerusform>%n Alben bleiben, ohne diesen Autor.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cet album est prêté à %1.</source>
        <translation>Dieses Album ist an %1 verliehen.</translation>
    </message>
</context>
<context>
    <name>Telechargement</name>
    <message>
        <source>Le serveur est trop lent.</source>
        <translation>Der Server ist zu langsam.</translation>
    </message>
    <message>
        <source>Cette adresse n&apos;est pas une adresse web.</source>
        <translation>Diese Adresse ist keine Webadresse.</translation>
    </message>
    <message>
        <source>Le fichier est trop gros.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Aucune texture</source>
        <translation>Keine Textur</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image JPEG lisible.</source>
        <translation>Diese Datei ist kein lesbares JPEG-Bild.</translation>
    </message>
    <message>
        <source>Répéter l&apos;image au lieu de l&apos;étirer</source>
        <translation>Bild wiederholen statt dehnen</translation>
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
    <message>
        <source>Rien ne correspond à « %1 ».</source>
        <translation>Nichts entspricht „%1“.</translation>
    </message>
    <message>
        <source>Filtrer la liste (Ctrl+F)</source>
        <translation>Liste filtern (Strg+F)</translation>
    </message>
    <message>
        <source>%1 — montrer toute la liste</source>
        <translation>%1 – ganze Liste zeigen</translation>
    </message>
    <message>
        <source>Ces albums ne sont plus là.</source>
        <translation>Diese Alben sind nicht mehr da.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit à la main, ligne par ligne.</source>
        <translation>Hier ist noch nichts. Diese Liste wird von Hand gefüllt, Zeile für Zeile.</translation>
    </message>
    <message>
        <source>Créer un album</source>
        <translation>Album anlegen</translation>
    </message>
    <message>
        <source>Entrée précédente ou suivante : Ctrl+Page préc., Ctrl+Page suiv.</source>
        <translation>Voriger oder nächster Eintrag: Strg+Bild auf, Strg+Bild ab</translation>
    </message>
</context>
</TS>
