<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="fr_FR">
<context>
    <name>AccesBDNet</name>
    <message>
        <source>Le navigateur n&apos;est pas installé (paquet libqt6webenginewidgets6). L&apos;adresse d&apos;une fiche d&apos;album, écrite ci-dessus, suffit pour l&apos;analyser.</source>
        <translation>De browser is niet geïnstalleerd (pakket libqt6webenginewidgets6). Om een albumpagina te analyseren, volstaat het om hierboven het adres ervan in te voeren.</translation>
    </message>
    <message>
        <source>Donnez l&apos;adresse du catalogue, d&apos;où viennent les couvertures, et la page par laquelle sa visite commence.</source>
        <translation>Geef het adres van de catalogus op, waar de covers vandaan komen, en de pagina waarmee een bezoek eraan begint.</translation>
    </message>
    <message>
        <source>Adresse du catalogue</source>
        <translation>Adres van de catalogus</translation>
    </message>
    <message>
        <source>Page d&apos;accueil</source>
        <translation>Startpagina</translation>
    </message>
    <message>
        <source>Enregistrer</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>« %1 » n&apos;est pas une adresse du web.</source>
        <translation>“%1” is geen webadres.</translation>
    </message>
</context>
<context>
    <name>AccordPourLaNote</name>
    <message>
        <source>Cette dédicace est une note : « %1 ». L&apos;image la remplacera. Continuer ?</source>
        <translation>Deze dedicatie is een notitie: “%1”. De afbeelding zal deze vervangen. Doorgaan?</translation>
    </message>
</context>
<context>
    <name>Accueil</name>
    <message>
        <source>Bienvenue dans votre bibliothèque</source>
        <translation>Welkom in uw bibliotheek</translation>
    </message>
    <message>
        <source>Votre collection est encore vide. Par quoi voulez-vous commencer ?</source>
        <translation>Uw verzameling is nog leeg. Waarmee wilt u beginnen?</translation>
    </message>
    <message>
        <source>Choisissez une ligne de la liste pour voir sa fiche.</source>
        <translation>Kies een regel van de lijst om de fiche ervan te zien.</translation>
    </message>
    <message>
        <source>Saisir un premier album</source>
        <translation>Een eerste album invoeren</translation>
    </message>
    <message>
        <source>Le prendre dans le catalogue fourni</source>
        <translation>Uit de meegeleverde catalogus nemen</translation>
    </message>
    <message>
        <source>Importer un fichier CSV</source>
        <translation>Een CSV-bestand importeren</translation>
    </message>
    <message>
        <source>Reprendre une ancienne base (bd.mdb)</source>
        <translation>Een oude database overnemen (bd.mdb)</translation>
    </message>
</context>
<context>
    <name>Acquisition</name>
    <message>
        <source>aucun scanner</source>
        <translation>geen scanner</translation>
    </message>
    <message>
        <source>Numérisez ou ouvrez une image, déposez un fichier ici, ou collez-la avec Ctrl+V</source>
        <translation>Scan of open een afbeelding, zet hier een bestand neer of plak een afbeelding met Ctrl+V</translation>
    </message>
    <message>
        <source>Dernier résultat</source>
        <translation>Laatste resultaat</translation>
    </message>
    <message>
        <source>Utiliser comme couverture</source>
        <translation>Als cover gebruiken</translation>
    </message>
    <message>
        <source>Utiliser comme dos</source>
        <translation>Als achterplat gebruiken</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 1</source>
        <translation>Als dedicatie 1 gebruiken</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 2</source>
        <translation>Als dedicatie 2 gebruiken</translation>
    </message>
    <message>
        <source>Montrez un album dans la fenêtre principale pour lui donner cette image.</source>
        <translation>Toon een album in het hoofdvenster om er deze afbeelding aan toe te wijzen.</translation>
    </message>
    <message>
        <source>Ouvrir un fichier image</source>
        <translation>Een afbeeldingsbestand openen</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</source>
        <translation>Alle afbeeldingsbestanden (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible : %1</source>
        <translation>Dit bestand is geen leesbare afbeelding: %1</translation>
    </message>
    <message>
        <source>Format Bitmap (*.bmp)|*.bmp</source>
        <translation>Bitmapindeling (*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</source>
        <translation>Alle afbeeldingsbestanden (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Image enregistrée : %1</source>
        <translation>Afbeelding opgeslagen: %1</translation>
    </message>
    <message>
        <source>Le presse-papiers ne contient pas d&apos;image.</source>
        <translation>Het klembord bevat geen afbeelding.</translation>
    </message>
    <message>
        <source>C&apos;est fait : %1</source>
        <translation>Gedaan: %1</translation>
    </message>
    <message>
        <source>Les scanners sont encore recherchés.</source>
        <translation>Er wordt nog naar scanners gezocht.</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>‘%1’ bestaat al. Vervangen?</translation>
    </message>
</context>
<context>
    <name>Acte</name>
    <message>
        <source>La modification est enregistrée, mais le disque a signalé une erreur.</source>
        <translation>De wijziging is opgeslagen, maar de schijf heeft een fout gemeld.</translation>
    </message>
</context>
<context>
    <name>Aide</name>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation>De Help kan niet worden geopend.</translation>
    </message>
</context>
<context>
    <name>AnalysePage</name>
    <message>
        <source>La page ne peut pas être analysée.</source>
        <translation>De pagina kan niet worden geanalyseerd.</translation>
    </message>
    <message>
        <source>Il lui manque une ligne.</source>
        <translation>Er ontbreekt een regel.</translation>
    </message>
    <message>
        <source>Son prix n&apos;est pas un nombre.</source>
        <translation>De prijs is geen getal.</translation>
    </message>
    <message>
        <source>Une balise n&apos;y est jamais fermée.</source>
        <translation>Een tag erin wordt nooit gesloten.</translation>
    </message>
</context>
<context>
    <name>Apparence</name>
    <message>
        <source>Apparence</source>
        <translation>Weergave</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation>Er is een onverwachte fout opgetreden.</translation>
    </message>
</context>
<context>
    <name>BDNet</name>
    <message>
        <source>Cette page ne peut pas être montrée.</source>
        <translation>Deze pagina kan niet worden getoond.</translation>
    </message>
    <message>
        <source>Adresse d&apos;une page</source>
        <translation>Adres van een pagina</translation>
    </message>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Enter</translation>
    </message>
    <message>
        <source>Seules les adresses du web peuvent être montrées.</source>
        <translation>Alleen webadressen kunnen worden getoond.</translation>
    </message>
    <message>
        <source>La page n&apos;a pas pu être lue jusqu&apos;au bout : complétez les champs.</source>
        <translation>De pagina kon niet tot het einde worden gelezen: vul de velden aan.</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>“%1”: een begonnen album is nog niet aangemaakt, het gaat verloren.</translation>
    </message>
    <message>
        <source>La couverture n&apos;a pas pu être gardée : %1</source>
        <translation>De cover kon niet worden bewaard: %1</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Perdre ce qui est saisi ?</source>
        <translation>Dit album is nog niet aangemaakt. Het ingevoerde verloren laten gaan?</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Dit album is nog niet aangemaakt. Toch sluiten?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>Het ingevoerde staat er bij de volgende keer openen weer, zolang het programma niet wordt afgesloten.</translation>
    </message>
</context>
<context>
    <name>BandeSerie</name>
    <message numerus="yes">
        <source>%n tome(s) de plus</source>
        <translation>
            <numerusform>nog %n deel</numerusform>
            <numerusform>nog %n delen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Bandeau</name>
    <message>
        <source>Quitter</source>
        <translation>Afsluiten</translation>
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
        <translation>Diavoorstelling</translation>
    </message>
    <message>
        <source>Montrer tour à tour la couverture et le dos ; avec Maj, parcourir aussi la liste</source>
        <translation>Cover en achterplat om de beurt tonen; met Shift ook door de lijst lopen</translation>
    </message>
    <message>
        <source>Annuler (Ctrl+Z)</source>
        <translation>Ongedaan maken (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Annuler %1 (Ctrl+Z)</source>
        <translation>%1 ongedaan maken (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Rétablir (Ctrl+Y)</source>
        <translation>Opnieuw uitvoeren (Ctrl+Y)</translation>
    </message>
    <message>
        <source>Rétablir %1 (Ctrl+Y)</source>
        <translation>%1 opnieuw uitvoeren (Ctrl+Y)</translation>
    </message>
</context>
<context>
    <name>Base</name>
    <message>
        <source>L&apos;ordre alphabétique n&apos;est pas disponible.</source>
        <translation>De alfabetische sortering is niet beschikbaar.</translation>
    </message>
    <message>
        <source>La base est utilisée par un autre programme.</source>
        <translation>De database is in gebruik bij een ander programma.</translation>
    </message>
    <message>
        <source>La base est en lecture seule.</source>
        <translation>De database is alleen-lezen.</translation>
    </message>
    <message>
        <source>La base est abîmée.</source>
        <translation>De database is beschadigd.</translation>
    </message>
    <message>
        <source>Le disque est plein.</source>
        <translation>De schijf is vol.</translation>
    </message>
    <message>
        <source>La base a refusé l&apos;opération.</source>
        <translation>De database heeft de bewerking geweigerd.</translation>
    </message>
    <message>
        <source>L&apos;opération a été interrompue.</source>
        <translation>De bewerking is onderbroken.</translation>
    </message>
    <message>
        <source>Il n&apos;y a plus d&apos;enregistrement ici.</source>
        <translation>Hier is geen record meer.</translation>
    </message>
    <message>
        <source>Un champ manque dans la base.</source>
        <translation>In de database ontbreekt een veld.</translation>
    </message>
    <message>
        <source>La fiche n&apos;existe plus.</source>
        <translation>De fiche bestaat niet meer.</translation>
    </message>
    <message>
        <source>La base ne peut pas être créée.</source>
        <translation>De database kan niet worden aangemaakt.</translation>
    </message>
    <message>
        <source>Ce fichier existe déjà.</source>
        <translation>Dit bestand bestaat al.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être remplacé.</source>
        <translation>Dit bestand kan niet worden vervangen.</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation>De kopie kon niet worden gemaakt.</translation>
    </message>
    <message>
        <source>Une longue lecture de la base est en cours.</source>
        <translation>De database wordt gelezen, en dat duurt lang.</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>De database is alleen-lezen: er kan niets in worden gewijzigd.</translation>
    </message>
    <message>
        <source>Pour lire cette base, il en faut une copie, qui ne peut pas être faite.</source>
        <translation>Om deze database te lezen is een kopie nodig, en die kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>Ce fichier contient des vues ou des règles qui ne viennent pas de Bulleo : il n&apos;est pas ouvert.</source>
        <translation>Dit bestand bevat weergaven of regels die niet van Bulleo komen: het wordt niet geopend.</translation>
    </message>
    <message>
        <source>La lecture a été arrêtée.</source>
        <translation>Het lezen is gestopt.</translation>
    </message>
</context>
<context>
    <name>Bureau</name>
    <message>
        <source>%1 — Ctrl+Z pour annuler</source>
        <translation>%1 – Ctrl+Z om ongedaan te maken</translation>
    </message>
    <message>
        <source>Annulé : %1</source>
        <translation>Ongedaan gemaakt: %1</translation>
    </message>
    <message>
        <source>Rétabli : %1</source>
        <translation>Opnieuw uitgevoerd: %1</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>De database is alleen-lezen: er kan niets in worden gewijzigd.</translation>
    </message>
    <message>
        <source>La lecture de la base dure plus longtemps que prévu. Attendre encore ?</source>
        <translation>Het lezen van de database duurt langer dan verwacht. Blijven wachten?</translation>
    </message>
    <message>
        <source>La copie contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>De kopie bevat de gegevens, niet de afbeeldingen: de mappen daarvan, images en image, worden apart gekopieerd.</translation>
    </message>
</context>
<context>
    <name>Capture</name>
    <message>
        <source>Cette fiche n&apos;existe pas.</source>
        <translation>Deze fiche bestaat niet.</translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Les textes du catalogue de référence ne peuvent pas être décodés.</source>
        <translation>De teksten van de referentiecatalogus kunnen niet worden gedecodeerd.</translation>
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
        <translation>Geen</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>La conversion a été annulée.</source>
        <translation>De conversie is geannuleerd.</translation>
    </message>
    <message>
        <source>La conversion ne finit pas : le fichier est abîmé.</source>
        <translation>De conversie komt niet ten einde: het bestand is beschadigd.</translation>
    </message>
    <message>
        <source>La conversion s&apos;est arrêtée en chemin : le fichier est abîmé.</source>
        <translation>De conversie is onderweg gestopt: het bestand is beschadigd.</translation>
    </message>
    <message>
        <source>Le programme de conversion est introuvable.</source>
        <translation>Het conversieprogramma is niet gevonden.</translation>
    </message>
</context>
<context>
    <name>Couvertures</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>De afbeelding kan niet worden opgeslagen.</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation>Dit bestand kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>Ligne %1</source>
        <translation>Regel %1</translation>
    </message>
    <message>
        <source>Ce n&apos;est pas un fichier de valeurs séparées (CSV).</source>
        <translation>Dit is geen bestand met gescheiden waarden (CSV).</translation>
    </message>
</context>
<context>
    <name>Demarrage</name>
    <message>
        <source>La base contient des restes que rien ne montre : saisies interrompues, liens en double, lignes d&apos;albums supprimés. Les ôter ? Ctrl+Z les remet.</source>
        <translation>De database bevat resten die nergens te zien zijn: onderbroken invoer, dubbele koppelingen, regels van verwijderde albums. Verwijderen? Ctrl+Z zet ze terug.</translation>
    </message>
</context>
<context>
    <name>Dossier</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Deze map kan niet worden aangemaakt.</translation>
    </message>
</context>
<context>
    <name>Edition</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>De titel is afgekapt op 50 tekens.</translation>
    </message>
    <message>
        <source>Le numéro a été coupé à 3 caractères : %1</source>
        <translation>Het nummer is afgekapt op 3 tekens: %1</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;existe plus.</source>
        <translation>Deze fiche bestaat niet meer.</translation>
    </message>
</context>
<context>
    <name>Entete</name>
    <message>
        <source>Le fichier est introuvable.</source>
        <translation>Het bestand is niet gevonden.</translation>
    </message>
    <message>
        <source>Le fichier ne peut pas être ouvert.</source>
        <translation>Het bestand kan niet worden geopend.</translation>
    </message>
    <message>
        <source>Ce fichier est au format d&apos;une ancienne version.</source>
        <translation>Dit bestand heeft de indeling van een oude versie.</translation>
    </message>
    <message>
        <source>Le fichier est vide.</source>
        <translation>Het bestand is leeg.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Dit bestand is geen database van Bulleo.</translation>
    </message>
    <message>
        <source>Le fichier est abîmé : il est plus court qu&apos;il ne devrait.</source>
        <translation>Het bestand is beschadigd: het is korter dan het zou moeten zijn.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Deze database komt van een nieuwere versie van Bulleo: alleen daarmee kan ze worden geopend.</translation>
    </message>
</context>
<context>
    <name>Facile</name>
    <message numerus="yes">
        <source>%n album(s) du catalogue ne peuvent pas être décodés.</source>
        <translation>
            <numerusform>%n album van de catalogus kan niet worden gedecodeerd.</numerusform>
            <numerusform>%n albums van de catalogus kunnen niet worden gedecodeerd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtrer le catalogue</source>
        <translation>De catalogus filteren</translation>
    </message>
    <message>
        <source>Choisir</source>
        <translation>Kiezen</translation>
    </message>
    <message>
        <source>Ce catalogue vient d&apos;un ancien programme : ses textes sont codés, et personne n&apos;en a la clé.</source>
        <translation>Deze catalogus komt uit een ouder programma: de teksten zijn gecodeerd en niemand heeft de sleutel.</translation>
    </message>
    <message>
        <source>Titre, série, auteur ou éditeur</source>
        <translation>Titel, reeks, auteur of uitgever</translation>
    </message>
</context>
<context>
    <name>Fiche</name>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation>Het nummer is een geheel getal van 0 tot en met 999.</translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation>De prijs is een getal, zoals 12,50.</translation>
    </message>
    <message>
        <source>Le nombre de pages est un nombre.</source>
        <translation>Het aantal pagina&apos;s moet een getal zijn.</translation>
    </message>
    <message>
        <source>Il faut ici un nombre entier.</source>
        <translation>Hier is een geheel getal nodig.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Er ontbreekt een naam.</translation>
    </message>
    <message>
        <source>« %1 » peut se lire %2 ou %3 : écrivez l&apos;un des deux.</source>
        <translation>“%1” kan als %2 of als %3 worden gelezen: schrijf een van beide.</translation>
    </message>
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation>Andere kant tonen</translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation>Ontbrekend: %1</translation>
    </message>
    <message numerus="yes">
        <source>tome %1 · %n possédé(s)</source>
        <translation>
            <numerusform>deel %1 · %n in bezit</numerusform>
            <numerusform>deel %1 · %n in bezit</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FicheForme</name>
    <message>
        <source>Groupe suivant : F6, précédent : Maj+F6</source>
        <translation>Volgende groep: F6, vorige: Shift+F6</translation>
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
        <translation>Alles wissen wat hier is ingevoerd?</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>“%1”: een begonnen album is nog niet aangemaakt, het gaat verloren.</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Dit album is nog niet aangemaakt. Toch sluiten?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>Het ingevoerde staat er bij de volgende keer openen weer, zolang het programma niet wordt afgesloten.</translation>
    </message>
    <message>
        <source>Vider</source>
        <translation>Leegmaken</translation>
    </message>
    <message>
        <source>Effacer tous les champs</source>
        <translation>Alle velden leegmaken</translation>
    </message>
</context>
<context>
    <name>FormeOutil</name>
    <message>
        <source>Annuler</source>
        <translation>Annuleren</translation>
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
        <translation>Achterplat ...</translation>
    </message>
    <message>
        <source>Déposez une image ici</source>
        <translation>Zet hier een afbeelding neer</translation>
    </message>
    <message>
        <source>Jour</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Année</source>
        <translation>Jaar</translation>
    </message>
</context>
<context>
    <name>FrmModif</name>
    <message>
        <source>« %1 » sera ajouté ; ↓ pour choisir dans la liste.</source>
        <translation>“%1” wordt toegevoegd; ↓ om uit de lijst te kiezen.</translation>
    </message>
    <message>
        <source>Tapez d&apos;abord le nom à ajouter.</source>
        <translation>Typ eerst de naam die u wilt toevoegen.</translation>
    </message>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>Dit gegeven bestaat al!</translation>
    </message>
    <message>
        <source>« %1 » est connu dans un autre métier : il sera choisi.</source>
        <translation>“%1” is in een andere functie bekend: deze wordt gekozen.</translation>
    </message>
    <message>
        <source>« %1 » sera choisi.</source>
        <translation>“%1” wordt gekozen.</translation>
    </message>
</context>
<context>
    <name>Frmmain</name>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure</source>
        <translation>Vrije software, onder de licentie GNU GPL, versie 3 of later</translation>
    </message>
    <message>
        <source>Le texte que vous venez de taper ne peut pas être enregistré. Le perdre ?</source>
        <translation>De tekst die u net hebt getypt kan niet worden opgeslagen. Verloren laten gaan?</translation>
    </message>
</context>
<context>
    <name>Images</name>
    <message>
        <source>Le dossier des images ne peut pas être créé.</source>
        <translation>De map met afbeeldingen kan niet worden aangemaakt.</translation>
    </message>
    <message>
        <source>Cette image ne peut pas être copiée.</source>
        <translation>Deze afbeelding kan niet worden gekopieerd.</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Choisir un fichier de valeurs séparées</source>
        <translation>Een bestand met gescheiden waarden kiezen</translation>
    </message>
    <message>
        <source>Un fichier CSV, avec le nom des colonnes à la première ligne. Déposez-le ici, ou choisissez-le.</source>
        <translation>Een CSV-bestand, met de namen van de kolommen op de eerste regel. Zet het hier neer of kies het.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n regel</numerusform>
            <numerusform>%1: %n regels</numerusform>
        </translation>
    </message>
    <message>
        <source>Dites quelle colonne est celle du titre.</source>
        <translation>Geef aan welke kolom die van de titel is.</translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été importé.</source>
        <translation>Geannuleerd: er is niets geïmporteerd.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) créé(s)</source>
        <translation>
            <numerusform>%n album aangemaakt</numerusform>
            <numerusform>%n albums aangemaakt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n déjà présent(s)</source>
        <translation>
            <numerusform>%n al aanwezig</numerusform>
            <numerusform>%n al aanwezig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refusé(s)</source>
        <translation>
            <numerusform>%n geweigerd</numerusform>
            <numerusform>%n geweigerd</numerusform>
        </translation>
    </message>
    <message>
        <source>Ligne %1 : %2</source>
        <translation>Regel %1: %2</translation>
    </message>
    <message>
        <source>Ligne %1 : cet album est déjà dans la collection</source>
        <translation>Regel %1: dit album staat al in de verzameling</translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Albums importeren</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Bestand kiezen…</translation>
    </message>
    <message>
        <source>Quelle colonne pour quoi ?</source>
        <translation>Welke kolom waarvoor?</translation>
    </message>
    <message>
        <source>Les premières lignes, telles qu&apos;elles entreront</source>
        <translation>De eerste regels, zoals ze binnenkomen</translation>
    </message>
    <message>
        <source>Un album de même titre, série et tome :</source>
        <translation>Een album met dezelfde titel, reeks en deel:</translation>
    </message>
    <message>
        <source>le sauter</source>
        <translation>overslaan</translation>
    </message>
    <message>
        <source>le créer quand même</source>
        <translation>toch aanmaken</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Verslag</translation>
    </message>
    <message>
        <source>Importer</source>
        <translation>Importeren</translation>
    </message>
</context>
<context>
    <name>Importation</name>
    <message>
        <source>La page ne peut pas être enregistrée.</source>
        <translation>De pagina kan niet worden opgeslagen.</translation>
    </message>
</context>
<context>
    <name>ImporterAlbums</name>
    <message>
        <source>%1 : « %2 » n&apos;est ni oui ni non.</source>
        <translation>%1: “%2” is geen ja en geen nee.</translation>
    </message>
    <message>
        <source>Importation de « %1 »</source>
        <translation>Import van “%1”</translation>
    </message>
</context>
<context>
    <name>Impression</name>
    <message>
        <source>Éditer la liste au format PDF</source>
        <translation>Lijst uitvoeren in PDF-formaat</translation>
    </message>
    <message>
        <source>Exporter la liste au format CSV</source>
        <translation>Lijst exporteren in CSV-formaat</translation>
    </message>
    <message>
        <source>La liste affichée</source>
        <translation>De getoonde lijst</translation>
    </message>
    <message>
        <source>Cochez au moins une colonne.</source>
        <translation>Vink ten minste één kolom aan.</translation>
    </message>
    <message numerus="yes">
        <source>%n ligne(s) en tout</source>
        <translation>
            <numerusform>%n regel in totaal</numerusform>
            <numerusform>%n regels in totaal</numerusform>
        </translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été écrit.</source>
        <translation>Geannuleerd: er is niets geschreven.</translation>
    </message>
    <message>
        <source>Liste enregistrée : %1</source>
        <translation>Lijst opgeslagen: %1</translation>
    </message>
    <message>
        <source>Impression annulée.</source>
        <translation>Afdrukken geannuleerd.</translation>
    </message>
    <message>
        <source>La liste est partie à l&apos;impression.</source>
        <translation>De lijst is naar de printer gestuurd.</translation>
    </message>
    <message>
        <source>Que voulez-vous lister ?</source>
        <translation>Wat wilt u in een lijst zetten?</translation>
    </message>
    <message>
        <source>Ce qui sortira</source>
        <translation>Wat eruit zal komen</translation>
    </message>
    <message>
        <source>Vers un fichier ou sur papier</source>
        <translation>Naar een bestand of op papier</translation>
    </message>
    <message>
        <source>Toute la collection</source>
        <translation>De hele verzameling</translation>
    </message>
    <message>
        <source>La fiche affichée</source>
        <translation>De getoonde fiche</translation>
    </message>
    <message>
        <source>Aperçu avant impression</source>
        <translation>Afdrukvoorbeeld</translation>
    </message>
    <message>
        <source>Imprimer…</source>
        <translation>Afdrukken…</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>‘%1’ bestaat al. Vervangen?</translation>
    </message>
    <message>
        <source>Avec autant de colonnes, une page se lit mal. Continuer ?</source>
        <translation>Met zoveel kolommen is een pagina slecht leesbaar. Doorgaan?</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation>Deze wijziging kan niet meer ongedaan worden gemaakt of opnieuw worden uitgevoerd: de fiche is intussen veranderd.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être écrit.</source>
        <translation>Het bestand dat bewaart wat nodig is om ongedaan te maken, kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être relu.</source>
        <translation>Het bestand dat bewaart wat nodig is om ongedaan te maken, kan niet worden gelezen.</translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette image n&apos;existe plus.</source>
        <translation>Deze afbeelding bestaat niet meer.</translation>
    </message>
    <message>
        <source>Cette adresse ne s&apos;ouvre pas d&apos;ici : seuls les pages web et le courrier s&apos;ouvrent.</source>
        <translation>Dit adres kan hier niet worden geopend: alleen webpagina&apos;s en e-mail.</translation>
    </message>
    <message>
        <source>Aucun programme de courrier n&apos;est installé : copiez l&apos;adresse dans le vôtre.</source>
        <translation>Er is geen e-mailprogramma geïnstalleerd: kopieer het adres naar het uwe.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé : installez-en un, ou ouvrez cette adresse ailleurs.</source>
        <translation>Er is geen browser geïnstalleerd: installeer er een of open dit adres elders.</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;est installé pour voir cette image : installez une visionneuse.</source>
        <translation>Er is geen programma geïnstalleerd om deze afbeelding te bekijken: installeer een viewer.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé pour lire l&apos;aide : installez-en un, ou ouvrez ce fichier ailleurs.</source>
        <translation>Er is geen browser geïnstalleerd om de Help te lezen: installeer er een of open dit bestand elders.</translation>
    </message>
</context>
<context>
    <name>Listage</name>
    <message>
        <source>Champ</source>
        <translation>Veld</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Waarde</translation>
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
        <translation>Deze map kan niet worden aangemaakt.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être copié.</source>
        <translation>Dit bestand kan niet worden gekopieerd.</translation>
    </message>
</context>
<context>
    <name>Modification</name>
    <message>
        <source>« %1 » n&apos;existe plus.</source>
        <translation>“%1” bestaat niet meer.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Er ontbreekt een naam.</translation>
    </message>
</context>
<context>
    <name>Moteur</name>
    <message>
        <source>Ce fichier ne peut pas être mis de côté.</source>
        <translation>Dit bestand kan niet opzij worden gezet.</translation>
    </message>
</context>
<context>
    <name>Numeriseur</name>
    <message>
        <source>Le scanner a refusé l&apos;opération.</source>
        <translation>De scanner heeft de bewerking geweigerd.</translation>
    </message>
    <message>
        <source>Le scanner a rendu une image d&apos;un format inconnu.</source>
        <translation>De scanner heeft een afbeelding in een onbekende indeling geleverd.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de scanner.</source>
        <translation>Er is geen scanner.</translation>
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
        <translation>Vensters:</translation>
    </message>
    <message>
        <source>Fenêtres claires ou sombres</source>
        <translation>Lichte of donkere vensters</translation>
    </message>
    <message>
        <source>comme le bureau</source>
        <translation>als het bureaublad</translation>
    </message>
    <message>
        <source>claires</source>
        <translation>licht</translation>
    </message>
    <message>
        <source>sombres</source>
        <translation>donker</translation>
    </message>
</context>
<context>
    <name>Parcours</name>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>Dit gegeven bestaat al!</translation>
    </message>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>De titel is afgekapt op 50 tekens.</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;est plus là : les listes ont été relues.</source>
        <translation>Deze fiche is er niet meer: de lijsten zijn opnieuw gelezen.</translation>
    </message>
</context>
<context>
    <name>PhotosFiche</name>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Dit bestand is geen leesbare afbeelding.</translation>
    </message>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>De afbeelding kan niet worden opgeslagen.</translation>
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
            <numerusform>%n reeks</numerusform>
            <numerusform>%n reeksen</numerusform>
        </translation>
    </message>
    <message>
        <source>valeur %1</source>
        <translation>waarde %1</translation>
    </message>
    <message>
        <source>lecture seule</source>
        <translation>alleen-lezen</translation>
    </message>
</context>
<context>
    <name>Polices</name>
    <message>
        <source>police</source>
        <translation>lettertype</translation>
    </message>
    <message>
        <source>Couleur du thème</source>
        <translation>Themakleur</translation>
    </message>
</context>
<context>
    <name>Pop</name>
    <message>
        <source>Quitter</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Suppr</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Renommer</source>
        <translation>Naam wijzigen</translation>
    </message>
    <message>
        <source>Rendre</source>
        <translation>Als teruggebracht markeren</translation>
    </message>
    <message>
        <source>Prêter…</source>
        <translation>Uitlenen…</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Kopiëren</translation>
    </message>
</context>
<context>
    <name>Pret</name>
    <message numerus="yes">
        <source>%n jour(s)</source>
        <translation>
            <numerusform>%n dag</numerusform>
            <numerusform>%n dagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Rendre l&apos;album</source>
        <translation>Als teruggebracht markeren</translation>
    </message>
    <message>
        <source>Supprimer la personne</source>
        <translation>Persoon verwijderen</translation>
    </message>
    <message>
        <source>Prêter « %1 »</source>
        <translation>“%1” uitlenen</translation>
    </message>
    <message>
        <source>Prêter</source>
        <translation>Uitlenen</translation>
    </message>
    <message>
        <source>Choisir à qui l&apos;album montré est prêté</source>
        <translation>Kiezen aan wie het getoonde album wordt uitgeleend</translation>
    </message>
    <message>
        <source>Montrez d&apos;abord un album dans la fenêtre principale</source>
        <translation>Toon eerst een album in het hoofdvenster</translation>
    </message>
    <message>
        <source>Dehors depuis</source>
        <translation>Uitleenduur</translation>
    </message>
    <message>
        <source>Tous les prêts</source>
        <translation>Alle uitleningen</translation>
    </message>
    <message>
        <source>quelqu&apos;un qui n&apos;est plus dans la liste</source>
        <translation>iemand die niet meer in de lijst staat</translation>
    </message>
    <message>
        <source>Une personne a un nom.</source>
        <translation>Een persoon heeft een naam nodig.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) lui restent prêtés et le resteront.</source>
        <translation>
            <numerusform>%n album is nog aan deze persoon uitgeleend en blijft dat.</numerusform>
            <numerusform>%n albums zijn nog aan deze persoon uitgeleend en blijven dat.</numerusform>
        </translation>
    </message>
    <message>
        <source>Prêter « %1 » à %2</source>
        <translation>“%1” aan %2 uitlenen</translation>
    </message>
    <message>
        <source>« %1 » est déjà prêté à %2.</source>
        <translation>“%1” is al aan %2 uitgeleend.</translation>
    </message>
    <message>
        <source>« %1 » est prêté à %2.</source>
        <translation>“%1” is aan %2 uitgeleend.</translation>
    </message>
    <message>
        <source>Le prêter maintenant à %1 ?</source>
        <translation>Nu aan %1 uitlenen?</translation>
    </message>
    <message>
        <source>Le prêter maintenant à quelqu&apos;un d&apos;autre ?</source>
        <translation>Nu aan iemand anders uitlenen?</translation>
    </message>
</context>
<context>
    <name>Prets</name>
    <message>
        <source>Retour</source>
        <translation>Teruggave</translation>
    </message>
    <message>
        <source>Prêt</source>
        <translation>Uitlening</translation>
    </message>
</context>
<context>
    <name>Recherche</name>
    <message>
        <source>Rien de tel</source>
        <translation>Niets gevonden</translation>
    </message>
</context>
<context>
    <name>Reglages</name>
    <message>
        <source>Le réglage %1 (« %2 ») n&apos;est pas valable.</source>
        <translation>De instelling %1 (“%2”) is niet geldig.</translation>
    </message>
    <message>
        <source>Le fichier de réglages ne peut pas être lu.</source>
        <translation>Het instellingenbestand kan niet worden gelezen.</translation>
    </message>
</context>
<context>
    <name>Repartition</name>
    <message>
        <source>Inconnu</source>
        <translation>Onbekend</translation>
    </message>
    <message>
        <source>Autres (%1)</source>
        <translation>Andere (%1)</translation>
    </message>
    <message>
        <source>Valeur par année d&apos;achat</source>
        <translation>Waarde per aankoopjaar</translation>
    </message>
    <message>
        <source>Payé</source>
        <translation>Betaald</translation>
    </message>
    <message>
        <source>Coté</source>
        <translation>Cataloguswaarde</translation>
    </message>
    <message>
        <source>Albums par genre</source>
        <translation>Albums per genre</translation>
    </message>
    <message>
        <source>Albums par éditeur</source>
        <translation>Albums per uitgever</translation>
    </message>
    <message>
        <source>Albums par décennie de parution</source>
        <translation>Albums per decennium van verschijning</translation>
    </message>
    <message>
        <source>Croissance de la collection, par date d&apos;achat</source>
        <translation>Groei van de verzameling, per aankoopdatum</translation>
    </message>
    <message>
        <source>Achetés dans l&apos;année</source>
        <translation>In het jaar gekocht</translation>
    </message>
    <message>
        <source>En tout</source>
        <translation>In totaal</translation>
    </message>
</context>
<context>
    <name>Restauration</name>
    <message>
        <source>Annulé : rien n&apos;a changé.</source>
        <translation>Geannuleerd: er is niets veranderd.</translation>
    </message>
    <message>
        <source>Cette base est chiffrée : elle ne peut pas être lue. Rien n&apos;a changé.</source>
        <translation>Deze database is versleuteld: ze kan niet worden gelezen. Er is niets veranderd.</translation>
    </message>
    <message>
        <source>Cette base est abîmée. Rien n&apos;a changé.</source>
        <translation>Deze database is beschadigd. Er is niets veranderd.</translation>
    </message>
    <message>
        <source>Le convertisseur manque : Bulleo est mal installé.</source>
        <translation>Het conversieprogramma ontbreekt: Bulleo is niet goed geïnstalleerd.</translation>
    </message>
    <message>
        <source>La conversion a échoué. Rien n&apos;a changé.</source>
        <translation>De conversie is mislukt. Er is niets veranderd.</translation>
    </message>
    <message>
        <source>table inconnue</source>
        <translation>onbekende tabel</translation>
    </message>
    <message>
        <source>table absente, laissée vide</source>
        <translation>ontbrekende tabel, leeg gelaten</translation>
    </message>
    <message>
        <source>champ inconnu</source>
        <translation>onbekend veld</translation>
    </message>
    <message>
        <source>numéro déjà pris, ligne laissée</source>
        <translation>nummer al in gebruik, rij weggelaten</translation>
    </message>
    <message>
        <source>ligne sans numéro, laissée</source>
        <translation>rij zonder nummer, weggelaten</translation>
    </message>
    <message>
        <source>pas un nombre, laissé vide</source>
        <translation>geen getal, leeg gelaten</translation>
    </message>
    <message>
        <source>montant trop grand, arrondi</source>
        <translation>bedrag te groot, afgerond</translation>
    </message>
    <message>
        <source>Une ancienne base : elle sera convertie, son fichier reste comme il est.</source>
        <translation>Een oude database: ze wordt geconverteerd, het bestand ervan blijft zoals het is.</translation>
    </message>
    <message>
        <source>La base en service est gardée parmi les sauvegardes.</source>
        <translation>De huidige database wordt bij de reservekopieën bewaard.</translation>
    </message>
    <message>
        <source>Convertir cette ancienne base et la mettre en service ? Son fichier est gardé.</source>
        <translation>Deze oude database converteren en in gebruik nemen? Het bestand ervan blijft bewaard.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n rij</numerusform>
            <numerusform>%1: %n rijen</numerusform>
        </translation>
    </message>
    <message>
        <source>Laissé de côté, ou changé :</source>
        <translation>Weggelaten of veranderd:</translation>
    </message>
    <message>
        <source>C&apos;était un catalogue de référence : ses textes sont repris tels quels, leur code n&apos;étant pas connu.</source>
        <translation>Het was een referentiecatalogus: de teksten zijn ongewijzigd overgenomen, omdat hun code niet bekend is.</translation>
    </message>
    <message>
        <source>Sauvegardes</source>
        <translation>Reservekopieën</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Fichier</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Aucune sauvegarde pour l&apos;instant : la première se fait d&apos;elle-même, avant votre prochaine modification. Vous pouvez aussi choisir un fichier.</source>
        <translation>Voorlopig geen reservekopie: de eerste wordt vanzelf gemaakt, vóór uw volgende wijziging. U kunt ook een bestand kiezen.</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Verslag</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Bestand kiezen…</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Terugzetten</translation>
    </message>
    <message>
        <source>Une table manque :</source>
        <translation>Er ontbreekt een tabel:</translation>
    </message>
    <message>
        <source>C&apos;est la base en service.</source>
        <translation>Dit is de huidige database.</translation>
    </message>
    <message>
        <source>Cette base est d&apos;une ancienne version : elle est à convertir d&apos;abord.</source>
        <translation>Deze database is van een oude versie: ze moet eerst worden geconverteerd.</translation>
    </message>
    <message>
        <source>C&apos;est un catalogue de référence, pas une base.</source>
        <translation>Dit is een referentiecatalogus, geen database.</translation>
    </message>
    <message>
        <source>Cette base est abîmée.</source>
        <translation>Deze database is beschadigd.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Dit bestand is geen database van Bulleo.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Deze database komt van een nieuwere versie van Bulleo: alleen daarmee kan ze worden geopend.</translation>
    </message>
    <message numerus="yes">
        <source>Remplacer la base en service par celle du %1, avec %n album(s) ?</source>
        <translation>
            <numerusform>De huidige database vervangen door die van %1, met %n album?</numerusform>
            <numerusform>De huidige database vervangen door die van %1, met %n albums?</numerusform>
        </translation>
    </message>
    <message>
        <source>Une sauvegarde contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>Een reservekopie bevat de gegevens, niet de afbeeldingen: de mappen daarvan, images en image, worden apart gekopieerd.</translation>
    </message>
</context>
<context>
    <name>Restes</name>
    <message>
        <source>Restes ôtés : %1</source>
        <translation>Resten verwijderd: %1</translation>
    </message>
</context>
<context>
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation>Geef ten minste een titel op.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Dit bestand is geen leesbare afbeelding.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Er ontbreekt een naam.</translation>
    </message>
</context>
<context>
    <name>Sauvegardes</name>
    <message>
        <source>La liste des copies de sauvegarde ne peut pas être écrite.</source>
        <translation>De lijst van de reservekopieën kan niet worden geschreven.</translation>
    </message>
</context>
<context>
    <name>Scan</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>De afbeelding kan niet worden opgeslagen.</translation>
    </message>
</context>
<context>
    <name>Secours</name>
    <message>
        <source>Il n&apos;y a aucune sauvegarde qui soit saine.</source>
        <translation>Er is geen reservekopie die nog gaaf is.</translation>
    </message>
    <message>
        <source>Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté.</source>
        <translation>Wilt u de reservekopie van %1 terugzetten? Het beschadigde bestand wordt ernaast bewaard.</translation>
    </message>
    <message>
        <source>Votre base est abîmée, ou n&apos;est plus là.</source>
        <translation>Uw database is beschadigd, of is er niet meer.</translation>
    </message>
</context>
<context>
    <name>Sorties</name>
    <message>
        <source>La liste ne peut pas être imprimée.</source>
        <translation>De lijst kan niet worden afgedrukt.</translation>
    </message>
    <message>
        <source>La liste ne peut pas être écrite.</source>
        <translation>De lijst kan niet worden geschreven.</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation> Kies de lijst van </translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Albums importeren</translation>
    </message>
    <message>
        <source>Créer beaucoup d&apos;albums d&apos;un coup, à partir d&apos;un fichier CSV</source>
        <translation>Veel albums in één keer aanmaken, uit een CSV-bestand</translation>
    </message>
    <message>
        <source>Voir la liste</source>
        <translation>Lijst bekijken</translation>
    </message>
</context>
<context>
    <name>Statistiques</name>
    <message>
        <source>La page des statistiques ne peut pas être écrite.</source>
        <translation>De statistiekpagina kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>Liens sans fiche ôtés : %1</source>
        <translation>Koppelingen zonder fiche verwijderd: %1</translation>
    </message>
    <message>
        <source>Statistiques ...</source>
        <translation>Statistieken ...</translation>
    </message>
</context>
<context>
    <name>Stats</name>
    <message>
        <source>La page est ouverte dans votre navigateur : %1</source>
        <translation>De pagina is geopend in uw browser: %1</translation>
    </message>
    <message>
        <source>La page est écrite, mais aucun programme ne l&apos;ouvre : %1</source>
        <translation>De pagina is geschreven, maar geen programma opent haar: %1</translation>
    </message>
    <message>
        <source>Recalculer</source>
        <translation>Opnieuw berekenen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Genres</source>
        <translation>Genres</translation>
    </message>
    <message>
        <source>Éditeurs</source>
        <translation>Uitgevers</translation>
    </message>
    <message>
        <source>Décennies</source>
        <translation>Decennia</translation>
    </message>
    <message>
        <source>Croissance</source>
        <translation>Groei</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Prix d&apos;achat</source>
        <translation>Aankoopprijs</translation>
    </message>
    <message>
        <source>Albums prêtés</source>
        <translation>Uitgeleende albums</translation>
    </message>
    <message>
        <source>Vue d&apos;ensemble</source>
        <translation>Overzicht</translation>
    </message>
</context>
<context>
    <name>Supprimer</name>
    <message numerus="yes">
        <source>%n album(s) restent, sans série.</source>
        <translation>
            <numerusform>%n album blijft, zonder reeks.</numerusform>
            <numerusform>%n albums blijven, zonder reeks.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans éditeur.</source>
        <translation>
            <numerusform>%n album blijft, zonder uitgever.</numerusform>
            <numerusform>%n albums blijven, zonder uitgever.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cette collection.</source>
        <translation>
            <numerusform>%n album blijft, zonder deze collectie.</numerusform>
            <numerusform>%n albums blijven, zonder deze collectie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cet auteur.</source>
        <translation>
            <numerusform>%n album blijft, zonder deze auteur.</numerusform>
            <numerusform>%n albums blijven, zonder deze auteur.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cet album est prêté à %1.</source>
        <translation>Dit album is aan %1 uitgeleend.</translation>
    </message>
</context>
<context>
    <name>Telechargement</name>
    <message>
        <source>Le serveur est trop lent.</source>
        <translation>De server is te traag.</translation>
    </message>
    <message>
        <source>Cette adresse n&apos;est pas une adresse web.</source>
        <translation>Dit adres is geen webadres.</translation>
    </message>
    <message>
        <source>Le fichier est trop gros.</source>
        <translation>Het bestand is te groot.</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Aucune texture</source>
        <translation>Geen textuur</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image JPEG lisible.</source>
        <translation>Dit bestand is geen leesbare JPEG-afbeelding.</translation>
    </message>
    <message>
        <source>Répéter l&apos;image au lieu de l&apos;étirer</source>
        <translation>Afbeelding herhalen in plaats van uitrekken</translation>
    </message>
</context>
<context>
    <name>Traduction</name>
    <message>
        <source>Le fichier de langue ne peut pas être lu.</source>
        <translation>Het taalbestand kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>Le fichier de langue a un indice qui n&apos;est pas valable.</source>
        <translation>Het taalbestand bevat een ongeldige index.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas un fichier de langue.</source>
        <translation>Dit bestand is geen taalbestand.</translation>
    </message>
    <message>
        <source>Le fichier de langue ne peut pas être écrit.</source>
        <translation>Het taalbestand kan niet worden geschreven.</translation>
    </message>
</context>
<context>
    <name>VoletListes</name>
    <message>
        <source>Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.</source>
        <translation>Uw verzameling is nog leeg. Maak een eerste album aan of open het hoofdmenu.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit avec les albums que vous créez.</source>
        <translation>Hier staat voorlopig niets. Deze lijst vult zich met de albums die u aanmaakt.</translation>
    </message>
    <message>
        <source>Rien ne correspond à « %1 ».</source>
        <translation>Niets komt overeen met “%1”.</translation>
    </message>
    <message>
        <source>Filtrer la liste (Ctrl+F)</source>
        <translation>De lijst filteren (Ctrl+F)</translation>
    </message>
    <message>
        <source>%1 — montrer toute la liste</source>
        <translation>%1 – de hele lijst tonen</translation>
    </message>
    <message>
        <source>Ces albums ne sont plus là.</source>
        <translation>Deze albums zijn er niet meer.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit à la main, ligne par ligne.</source>
        <translation>Hier staat voorlopig niets. Deze lijst wordt met de hand gevuld, regel voor regel.</translation>
    </message>
    <message>
        <source>Créer un album</source>
        <translation>Een album aanmaken</translation>
    </message>
    <message>
        <source>Entrée précédente ou suivante : Ctrl+Page préc., Ctrl+Page suiv.</source>
        <translation>Vorige of volgende regel: Ctrl+Page Up, Ctrl+Page Down</translation>
    </message>
</context>
</TS>
