<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="fr_FR">
<context>
    <name>AccesBDNet</name>
    <message>
        <source>Le navigateur n&apos;est pas installé (paquet libqt6webenginewidgets6). L&apos;adresse d&apos;une fiche d&apos;album, écrite ci-dessus, suffit pour l&apos;analyser.</source>
        <translation>Il browser non è installato (pacchetto libqt6webenginewidgets6). Per analizzare la pagina di un album basta scriverne l&apos;indirizzo qui sopra.</translation>
    </message>
    <message>
        <source>Donnez l&apos;adresse du catalogue, d&apos;où viennent les couvertures, et la page par laquelle sa visite commence.</source>
        <translation>Indicate l&apos;indirizzo del catalogo, da cui vengono le copertine, e la pagina da cui comincia la visita.</translation>
    </message>
    <message>
        <source>Adresse du catalogue</source>
        <translation>Indirizzo del catalogo</translation>
    </message>
    <message>
        <source>Page d&apos;accueil</source>
        <translation>Pagina iniziale</translation>
    </message>
    <message>
        <source>Enregistrer</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>« %1 » n&apos;est pas une adresse du web.</source>
        <translation>«%1» non è un indirizzo web.</translation>
    </message>
</context>
<context>
    <name>AccordPourLaNote</name>
    <message>
        <source>Cette dédicace est une note : « %1 ». L&apos;image la remplacera. Continuer ?</source>
        <translation>Questa dedica è una nota: «%1». L&apos;immagine la sostituirà. Continuare?</translation>
    </message>
</context>
<context>
    <name>Accueil</name>
    <message>
        <source>Bienvenue dans votre bibliothèque</source>
        <translation>Benvenuti nella vostra biblioteca</translation>
    </message>
    <message>
        <source>Votre collection est encore vide. Par quoi voulez-vous commencer ?</source>
        <translation>La vostra collezione è ancora vuota. Da dove volete cominciare?</translation>
    </message>
    <message>
        <source>Choisissez une ligne de la liste pour voir sa fiche.</source>
        <translation>Scegliete una riga dell&apos;elenco per vederne la scheda.</translation>
    </message>
    <message>
        <source>Saisir un premier album</source>
        <translation>Inserisci un primo album</translation>
    </message>
    <message>
        <source>Le prendre dans le catalogue fourni</source>
        <translation>Prendilo dal catalogo fornito</translation>
    </message>
    <message>
        <source>Importer un fichier CSV</source>
        <translation>Importa un file CSV</translation>
    </message>
    <message>
        <source>Reprendre une ancienne base (bd.mdb)</source>
        <translation>Riprendi una vecchia base dati (bd.mdb)</translation>
    </message>
</context>
<context>
    <name>Acquisition</name>
    <message>
        <source>aucun scanner</source>
        <translation>nessuno scanner</translation>
    </message>
    <message>
        <source>Numérisez ou ouvrez une image, déposez un fichier ici, ou collez-la avec Ctrl+V</source>
        <translation>Scansionate o aprite un&apos;immagine, trascinate qui un file oppure incollate un&apos;immagine con Ctrl+V</translation>
    </message>
    <message>
        <source>Dernier résultat</source>
        <translation>Ultimo risultato</translation>
    </message>
    <message>
        <source>Utiliser comme couverture</source>
        <translation>Usa come copertina</translation>
    </message>
    <message>
        <source>Utiliser comme dos</source>
        <translation>Usa come retro</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 1</source>
        <translation>Usa come dedica 1</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 2</source>
        <translation>Usa come dedica 2</translation>
    </message>
    <message>
        <source>Montrez un album dans la fenêtre principale pour lui donner cette image.</source>
        <translation>Mostrate un album nella finestra principale per assegnargli questa immagine.</translation>
    </message>
    <message>
        <source>Ouvrir un fichier image</source>
        <translation>Apri un file immagine</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</source>
        <translation>Tutti i file immagine (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible : %1</source>
        <translation>Questo file non è un&apos;immagine leggibile: %1</translation>
    </message>
    <message>
        <source>Format Bitmap (*.bmp)|*.bmp</source>
        <translation>Formato Bitmap (*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</source>
        <translation>Tutti i file immagine (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Image enregistrée : %1</source>
        <translation>Immagine salvata: %1</translation>
    </message>
    <message>
        <source>Le presse-papiers ne contient pas d&apos;image.</source>
        <translation>Gli appunti non contengono alcuna immagine.</translation>
    </message>
    <message>
        <source>C&apos;est fait : %1</source>
        <translation>Fatto: %1</translation>
    </message>
    <message>
        <source>Les scanners sont encore recherchés.</source>
        <translation>La ricerca degli scanner è ancora in corso.</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>«%1» esiste già. Sostituirlo?</translation>
    </message>
</context>
<context>
    <name>Acte</name>
    <message>
        <source>La modification est enregistrée, mais le disque a signalé une erreur.</source>
        <translation>La modifica è salvata, ma il disco ha segnalato un errore.</translation>
    </message>
</context>
<context>
    <name>Aide</name>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation>Impossibile aprire la guida.</translation>
    </message>
</context>
<context>
    <name>AnalysePage</name>
    <message>
        <source>La page ne peut pas être analysée.</source>
        <translation>Impossibile analizzare la pagina.</translation>
    </message>
    <message>
        <source>Il lui manque une ligne.</source>
        <translation>Manca una riga.</translation>
    </message>
    <message>
        <source>Son prix n&apos;est pas un nombre.</source>
        <translation>Il prezzo non è un numero.</translation>
    </message>
    <message>
        <source>Une balise n&apos;y est jamais fermée.</source>
        <translation>Contiene un tag che non viene mai chiuso.</translation>
    </message>
</context>
<context>
    <name>Apparence</name>
    <message>
        <source>Apparence</source>
        <translation>Aspetto</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation>Si è verificato un errore imprevisto.</translation>
    </message>
</context>
<context>
    <name>BDNet</name>
    <message>
        <source>Cette page ne peut pas être montrée.</source>
        <translation>Impossibile mostrare questa pagina.</translation>
    </message>
    <message>
        <source>Adresse d&apos;une page</source>
        <translation>Indirizzo di una pagina</translation>
    </message>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Invio</translation>
    </message>
    <message>
        <source>Seules les adresses du web peuvent être montrées.</source>
        <translation>Si possono mostrare solo indirizzi web.</translation>
    </message>
    <message>
        <source>La page n&apos;a pas pu être lue jusqu&apos;au bout : complétez les champs.</source>
        <translation>Non è stato possibile leggere la pagina fino in fondo: completate i campi.</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>«%1»: un album iniziato non è ancora creato, andrà perso.</translation>
    </message>
    <message>
        <source>La couverture n&apos;a pas pu être gardée : %1</source>
        <translation>Non è stato possibile conservare la copertina: %1</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Perdre ce qui est saisi ?</source>
        <translation>Questo album non è ancora creato. Perdere quanto inserito?</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Questo album non è ancora creato. Chiudere comunque?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>Quanto inserito sarà lì alla prossima apertura, finché non si esce dal programma.</translation>
    </message>
</context>
<context>
    <name>BandeSerie</name>
    <message numerus="yes">
        <source>%n tome(s) de plus</source>
        <translation>
            <numerusform>%n altro volume</numerusform>
            <numerusform>%n altri volumi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Bandeau</name>
    <message>
        <source>Quitter</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Aide</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Diaporama</source>
        <translation>Presentazione</translation>
    </message>
    <message>
        <source>Montrer tour à tour la couverture et le dos ; avec Maj, parcourir aussi la liste</source>
        <translation>Mostra a turno la copertina e il retro; con Maiusc scorre anche l&apos;elenco</translation>
    </message>
    <message>
        <source>Annuler (Ctrl+Z)</source>
        <translation>Annulla (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Annuler %1 (Ctrl+Z)</source>
        <translation>Annulla %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Rétablir (Ctrl+Y)</source>
        <translation>Ripeti (Ctrl+Y)</translation>
    </message>
    <message>
        <source>Rétablir %1 (Ctrl+Y)</source>
        <translation>Ripeti %1 (Ctrl+Y)</translation>
    </message>
</context>
<context>
    <name>Base</name>
    <message>
        <source>L&apos;ordre alphabétique n&apos;est pas disponible.</source>
        <translation>L&apos;ordine alfabetico non è disponibile.</translation>
    </message>
    <message>
        <source>La base est utilisée par un autre programme.</source>
        <translation>La base dati è usata da un altro programma.</translation>
    </message>
    <message>
        <source>La base est en lecture seule.</source>
        <translation>La base dati è in sola lettura.</translation>
    </message>
    <message>
        <source>La base est abîmée.</source>
        <translation>La base dati è danneggiata.</translation>
    </message>
    <message>
        <source>Le disque est plein.</source>
        <translation>Il disco è pieno.</translation>
    </message>
    <message>
        <source>La base a refusé l&apos;opération.</source>
        <translation>La base dati ha rifiutato l&apos;operazione.</translation>
    </message>
    <message>
        <source>L&apos;opération a été interrompue.</source>
        <translation>L&apos;operazione è stata interrotta.</translation>
    </message>
    <message>
        <source>Il n&apos;y a plus d&apos;enregistrement ici.</source>
        <translation>Qui non c&apos;è più alcun record.</translation>
    </message>
    <message>
        <source>Un champ manque dans la base.</source>
        <translation>Nella base dati manca un campo.</translation>
    </message>
    <message>
        <source>La fiche n&apos;existe plus.</source>
        <translation>La scheda non esiste più.</translation>
    </message>
    <message>
        <source>La base ne peut pas être créée.</source>
        <translation>Impossibile creare la base dati.</translation>
    </message>
    <message>
        <source>Ce fichier existe déjà.</source>
        <translation>Questo file esiste già.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être remplacé.</source>
        <translation>Impossibile sostituire questo file.</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation>Non è stato possibile fare la copia.</translation>
    </message>
    <message>
        <source>Une longue lecture de la base est en cours.</source>
        <translation>È in corso una lunga lettura della base dati.</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>La base dati è in sola lettura: non vi si può modificare nulla.</translation>
    </message>
    <message>
        <source>Pour lire cette base, il en faut une copie, qui ne peut pas être faite.</source>
        <translation>Per leggere questa base dati ne serve una copia, che non può essere fatta.</translation>
    </message>
    <message>
        <source>Ce fichier contient des vues ou des règles qui ne viennent pas de Bulleo : il n&apos;est pas ouvert.</source>
        <translation>Questo file contiene viste o regole che non vengono da Bulleo: non viene aperto.</translation>
    </message>
    <message>
        <source>La lecture a été arrêtée.</source>
        <translation>La lettura è stata interrotta.</translation>
    </message>
</context>
<context>
    <name>Bureau</name>
    <message>
        <source>%1 — Ctrl+Z pour annuler</source>
        <translation>%1 — Ctrl+Z per annullare</translation>
    </message>
    <message>
        <source>Annulé : %1</source>
        <translation>Annullato: %1</translation>
    </message>
    <message>
        <source>Rétabli : %1</source>
        <translation>Ripetuto: %1</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>La base dati è in sola lettura: non vi si può modificare nulla.</translation>
    </message>
    <message>
        <source>La lecture de la base dure plus longtemps que prévu. Attendre encore ?</source>
        <translation>La lettura della base dati dura più del previsto. Attendere ancora?</translation>
    </message>
    <message>
        <source>La copie contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>La copia contiene i dati, non le immagini: le loro cartelle, images e image, si copiano a parte.</translation>
    </message>
</context>
<context>
    <name>Capture</name>
    <message>
        <source>Cette fiche n&apos;existe pas.</source>
        <translation>Questa scheda non esiste.</translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Les textes du catalogue de référence ne peuvent pas être décodés.</source>
        <translation>Impossibile decodificare i testi del catalogo di riferimento.</translation>
    </message>
</context>
<context>
    <name>ChoixColonnes</name>
    <message>
        <source>Toutes</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Aucune</source>
        <translation>Nessuna</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>La conversion a été annulée.</source>
        <translation>La conversione è stata annullata.</translation>
    </message>
    <message>
        <source>La conversion ne finit pas : le fichier est abîmé.</source>
        <translation>La conversione non finisce: il file è danneggiato.</translation>
    </message>
    <message>
        <source>La conversion s&apos;est arrêtée en chemin : le fichier est abîmé.</source>
        <translation>La conversione si è fermata a metà: il file è danneggiato.</translation>
    </message>
    <message>
        <source>Le programme de conversion est introuvable.</source>
        <translation>Il programma di conversione non è stato trovato.</translation>
    </message>
</context>
<context>
    <name>Couvertures</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>Impossibile salvare l&apos;immagine.</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation>Impossibile leggere questo file.</translation>
    </message>
    <message>
        <source>Ligne %1</source>
        <translation>Riga %1</translation>
    </message>
    <message>
        <source>Ce n&apos;est pas un fichier de valeurs séparées (CSV).</source>
        <translation>Non è un file di valori separati (CSV).</translation>
    </message>
</context>
<context>
    <name>Demarrage</name>
    <message>
        <source>La base contient des restes que rien ne montre : saisies interrompues, liens en double, lignes d&apos;albums supprimés. Les ôter ? Ctrl+Z les remet.</source>
        <translation>La base dati contiene resti che nulla mostra: inserimenti interrotti, collegamenti doppi, righe di album eliminati. Toglierli? Ctrl+Z li rimette.</translation>
    </message>
</context>
<context>
    <name>Dossier</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Impossibile creare questa cartella.</translation>
    </message>
</context>
<context>
    <name>Edition</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>Il titolo è stato troncato a 50 caratteri.</translation>
    </message>
    <message>
        <source>Le numéro a été coupé à 3 caractères : %1</source>
        <translation>Il numero è stato troncato a 3 caratteri: %1</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;existe plus.</source>
        <translation>Questa scheda non esiste più.</translation>
    </message>
</context>
<context>
    <name>Entete</name>
    <message>
        <source>Le fichier est introuvable.</source>
        <translation>Il file non è stato trovato.</translation>
    </message>
    <message>
        <source>Le fichier ne peut pas être ouvert.</source>
        <translation>Impossibile aprire il file.</translation>
    </message>
    <message>
        <source>Ce fichier est au format d&apos;une ancienne version.</source>
        <translation>Questo file è nel formato di una vecchia versione.</translation>
    </message>
    <message>
        <source>Le fichier est vide.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Questo file non è una base dati di Bulleo.</translation>
    </message>
    <message>
        <source>Le fichier est abîmé : il est plus court qu&apos;il ne devrait.</source>
        <translation>Il file è danneggiato: è più corto del dovuto.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Questo archivio viene da una versione più recente di Bulleo: serve quella per aprirlo.</translation>
    </message>
</context>
<context>
    <name>Facile</name>
    <message numerus="yes">
        <source>%n album(s) du catalogue ne peuvent pas être décodés.</source>
        <translation>
            <numerusform>%n album del catalogo non può essere decodificato.</numerusform>
            <numerusform>%n album del catalogo non possono essere decodificati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtrer le catalogue</source>
        <translation>Filtra il catalogo</translation>
    </message>
    <message>
        <source>Choisir</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Ce catalogue vient d&apos;un ancien programme : ses textes sont codés, et personne n&apos;en a la clé.</source>
        <translation>Questo catalogo viene da un vecchio programma: i suoi testi sono codificati e nessuno ne ha la chiave.</translation>
    </message>
    <message>
        <source>Titre, série, auteur ou éditeur</source>
        <translation>Titolo, serie, autore o editore</translation>
    </message>
</context>
<context>
    <name>Fiche</name>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation>Il numero è un intero da 0 a 999.</translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation>Il prezzo è un numero, come 12,50.</translation>
    </message>
    <message>
        <source>Le nombre de pages est un nombre.</source>
        <translation>Il numero di pagine deve essere un numero.</translation>
    </message>
    <message>
        <source>Il faut ici un nombre entier.</source>
        <translation>Qui serve un numero intero.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Manca un nome.</translation>
    </message>
    <message>
        <source>« %1 » peut se lire %2 ou %3 : écrivez l&apos;un des deux.</source>
        <translation>«%1» si può leggere %2 o %3: scrivete uno dei due.</translation>
    </message>
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation>Mostra l&apos;altro lato</translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation>Mancanti: %1</translation>
    </message>
    <message numerus="yes">
        <source>tome %1 · %n possédé(s)</source>
        <translation>
            <numerusform>volume %1 · %n posseduto</numerusform>
            <numerusform>volume %1 · %n posseduti</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FicheForme</name>
    <message>
        <source>Groupe suivant : F6, précédent : Maj+F6</source>
        <translation>Gruppo successivo: F6, precedente: Maiusc+F6</translation>
    </message>
</context>
<context>
    <name>FormeCreation</name>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Invio</translation>
    </message>
    <message>
        <source>Effacer tout ce qui est saisi ici ?</source>
        <translation>Cancellare tutto ciò che è inserito qui?</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>«%1»: un album iniziato non è ancora creato, andrà perso.</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Questo album non è ancora creato. Chiudere comunque?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>Quanto inserito sarà lì alla prossima apertura, finché non si esce dal programma.</translation>
    </message>
    <message>
        <source>Vider</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Effacer tous les champs</source>
        <translation>Svuota tutti i campi</translation>
    </message>
</context>
<context>
    <name>FormeOutil</name>
    <message>
        <source>Annuler</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>FormulaireAlbum</name>
    <message>
        <source>Couverture ...</source>
        <translation>Copertina ...</translation>
    </message>
    <message>
        <source>Dos ...</source>
        <translation>Retro ...</translation>
    </message>
    <message>
        <source>Déposez une image ici</source>
        <translation>Trascinate qui un&apos;immagine</translation>
    </message>
    <message>
        <source>Jour</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Année</source>
        <translation>Anno</translation>
    </message>
</context>
<context>
    <name>FrmModif</name>
    <message>
        <source>« %1 » sera ajouté ; ↓ pour choisir dans la liste.</source>
        <translation>«%1» sarà aggiunto; ↓ per scegliere dall&apos;elenco.</translation>
    </message>
    <message>
        <source>Tapez d&apos;abord le nom à ajouter.</source>
        <translation>Scrivete prima il nome da aggiungere.</translation>
    </message>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>Questo dato esiste già!</translation>
    </message>
    <message>
        <source>« %1 » est connu dans un autre métier : il sera choisi.</source>
        <translation>«%1» è noto in un&apos;altra attività: sarà scelto.</translation>
    </message>
    <message>
        <source>« %1 » sera choisi.</source>
        <translation>«%1» sarà scelto.</translation>
    </message>
</context>
<context>
    <name>Frmmain</name>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure</source>
        <translation>Software libero, con licenza GNU GPL, versione 3 o successiva</translation>
    </message>
    <message>
        <source>Le texte que vous venez de taper ne peut pas être enregistré. Le perdre ?</source>
        <translation>Il testo appena scritto non può essere salvato. Perderlo?</translation>
    </message>
</context>
<context>
    <name>Images</name>
    <message>
        <source>Le dossier des images ne peut pas être créé.</source>
        <translation>Impossibile creare la cartella delle immagini.</translation>
    </message>
    <message>
        <source>Cette image ne peut pas être copiée.</source>
        <translation>Impossibile copiare questa immagine.</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Choisir un fichier de valeurs séparées</source>
        <translation>Scegli un file di valori separati</translation>
    </message>
    <message>
        <source>Un fichier CSV, avec le nom des colonnes à la première ligne. Déposez-le ici, ou choisissez-le.</source>
        <translation>Un file CSV, con i nomi delle colonne nella prima riga. Trascinatelo qui oppure sceglietelo.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n riga</numerusform>
            <numerusform>%1: %n righe</numerusform>
        </translation>
    </message>
    <message>
        <source>Dites quelle colonne est celle du titre.</source>
        <translation>Indicate qual è la colonna del titolo.</translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été importé.</source>
        <translation>Annullato: non è stato importato nulla.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) créé(s)</source>
        <translation>
            <numerusform>%n album creato</numerusform>
            <numerusform>%n album creati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n déjà présent(s)</source>
        <translation>
            <numerusform>%n già presente</numerusform>
            <numerusform>%n già presenti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refusé(s)</source>
        <translation>
            <numerusform>%n rifiutato</numerusform>
            <numerusform>%n rifiutati</numerusform>
        </translation>
    </message>
    <message>
        <source>Ligne %1 : %2</source>
        <translation>Riga %1: %2</translation>
    </message>
    <message>
        <source>Ligne %1 : cet album est déjà dans la collection</source>
        <translation>Riga %1: questo album è già nella collezione</translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Importa album</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Scegli un file…</translation>
    </message>
    <message>
        <source>Quelle colonne pour quoi ?</source>
        <translation>Quale colonna per cosa?</translation>
    </message>
    <message>
        <source>Les premières lignes, telles qu&apos;elles entreront</source>
        <translation>Le prime righe, così come entreranno</translation>
    </message>
    <message>
        <source>Un album de même titre, série et tome :</source>
        <translation>Un album con lo stesso titolo, serie e volume:</translation>
    </message>
    <message>
        <source>le sauter</source>
        <translation>saltalo</translation>
    </message>
    <message>
        <source>le créer quand même</source>
        <translation>crealo comunque</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Resoconto</translation>
    </message>
    <message>
        <source>Importer</source>
        <translation>Importa</translation>
    </message>
</context>
<context>
    <name>Importation</name>
    <message>
        <source>La page ne peut pas être enregistrée.</source>
        <translation>Impossibile salvare la pagina.</translation>
    </message>
</context>
<context>
    <name>ImporterAlbums</name>
    <message>
        <source>%1 : « %2 » n&apos;est ni oui ni non.</source>
        <translation>%1: «%2» non è né sì né no.</translation>
    </message>
    <message>
        <source>Importation de « %1 »</source>
        <translation>Importazione di «%1»</translation>
    </message>
</context>
<context>
    <name>Impression</name>
    <message>
        <source>Éditer la liste au format PDF</source>
        <translation>Genera l&apos;elenco in formato PDF</translation>
    </message>
    <message>
        <source>Exporter la liste au format CSV</source>
        <translation>Esporta l&apos;elenco in formato CSV</translation>
    </message>
    <message>
        <source>La liste affichée</source>
        <translation>L&apos;elenco mostrato</translation>
    </message>
    <message>
        <source>Cochez au moins une colonne.</source>
        <translation>Selezionate almeno una colonna.</translation>
    </message>
    <message numerus="yes">
        <source>%n ligne(s) en tout</source>
        <translation>
            <numerusform>%n riga in tutto</numerusform>
            <numerusform>%n righe in tutto</numerusform>
        </translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été écrit.</source>
        <translation>Annullato: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Liste enregistrée : %1</source>
        <translation>Elenco salvato: %1</translation>
    </message>
    <message>
        <source>Impression annulée.</source>
        <translation>Stampa annullata.</translation>
    </message>
    <message>
        <source>La liste est partie à l&apos;impression.</source>
        <translation>L&apos;elenco è stato inviato alla stampante.</translation>
    </message>
    <message>
        <source>Que voulez-vous lister ?</source>
        <translation>Che cosa volete elencare?</translation>
    </message>
    <message>
        <source>Ce qui sortira</source>
        <translation>Che cosa uscirà</translation>
    </message>
    <message>
        <source>Vers un fichier ou sur papier</source>
        <translation>In un file o su carta</translation>
    </message>
    <message>
        <source>Toute la collection</source>
        <translation>Tutta la collezione</translation>
    </message>
    <message>
        <source>La fiche affichée</source>
        <translation>La scheda mostrata</translation>
    </message>
    <message>
        <source>Aperçu avant impression</source>
        <translation>Anteprima di stampa</translation>
    </message>
    <message>
        <source>Imprimer…</source>
        <translation>Stampa…</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>«%1» esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>Avec autant de colonnes, une page se lit mal. Continuer ?</source>
        <translation>Con tante colonne una pagina si legge male. Continuare?</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation>Questa modifica non può più essere annullata né ripetuta: nel frattempo la scheda è cambiata.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être écrit.</source>
        <translation>Il file che conserva quanto serve per annullare non può essere scritto.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être relu.</source>
        <translation>Il file che conserva quanto serve per annullare non può essere riletto.</translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette image n&apos;existe plus.</source>
        <translation>Questa immagine non esiste più.</translation>
    </message>
    <message>
        <source>Cette adresse ne s&apos;ouvre pas d&apos;ici : seuls les pages web et le courrier s&apos;ouvrent.</source>
        <translation>Questo indirizzo non si apre da qui: si aprono solo pagine web e posta.</translation>
    </message>
    <message>
        <source>Aucun programme de courrier n&apos;est installé : copiez l&apos;adresse dans le vôtre.</source>
        <translation>Nessun programma di posta è installato: copiate l&apos;indirizzo nel vostro.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé : installez-en un, ou ouvrez cette adresse ailleurs.</source>
        <translation>Nessun browser è installato: installatene uno oppure aprite questo indirizzo altrove.</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;est installé pour voir cette image : installez une visionneuse.</source>
        <translation>Nessun programma è installato per vedere questa immagine: installate un visualizzatore.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé pour lire l&apos;aide : installez-en un, ou ouvrez ce fichier ailleurs.</source>
        <translation>Nessun browser è installato per leggere la guida: installatene uno oppure aprite questo file altrove.</translation>
    </message>
</context>
<context>
    <name>Listage</name>
    <message>
        <source>Champ</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Valore</translation>
    </message>
</context>
<context>
    <name>ListeEntrees</name>
    <message>
        <source>Titre</source>
        <translation>Titolo</translation>
    </message>
</context>
<context>
    <name>Livraison</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Impossibile creare questa cartella.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être copié.</source>
        <translation>Impossibile copiare questo file.</translation>
    </message>
</context>
<context>
    <name>Modification</name>
    <message>
        <source>« %1 » n&apos;existe plus.</source>
        <translation>«%1» non esiste più.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Manca un nome.</translation>
    </message>
</context>
<context>
    <name>Moteur</name>
    <message>
        <source>Ce fichier ne peut pas être mis de côté.</source>
        <translation>Impossibile mettere da parte questo file.</translation>
    </message>
</context>
<context>
    <name>Numeriseur</name>
    <message>
        <source>Le scanner a refusé l&apos;opération.</source>
        <translation>Lo scanner ha rifiutato l&apos;operazione.</translation>
    </message>
    <message>
        <source>Le scanner a rendu une image d&apos;un format inconnu.</source>
        <translation>Lo scanner ha restituito un&apos;immagine in un formato sconosciuto.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de scanner.</source>
        <translation>Non c&apos;è alcuno scanner.</translation>
    </message>
</context>
<context>
    <name>PageTheme</name>
    <message>
        <source>Thème</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Fenêtres :</source>
        <translation>Finestre:</translation>
    </message>
    <message>
        <source>Fenêtres claires ou sombres</source>
        <translation>Finestre chiare o scure</translation>
    </message>
    <message>
        <source>comme le bureau</source>
        <translation>come il desktop</translation>
    </message>
    <message>
        <source>claires</source>
        <translation>chiare</translation>
    </message>
    <message>
        <source>sombres</source>
        <translation>scure</translation>
    </message>
</context>
<context>
    <name>Parcours</name>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>Questo dato esiste già!</translation>
    </message>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>Il titolo è stato troncato a 50 caratteri.</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;est plus là : les listes ont été relues.</source>
        <translation>Questa scheda non c&apos;è più: gli elenchi sono stati riletti.</translation>
    </message>
</context>
<context>
    <name>PhotosFiche</name>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Questo file non è un&apos;immagine leggibile.</translation>
    </message>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>Impossibile salvare l&apos;immagine.</translation>
    </message>
</context>
<context>
    <name>Pied</name>
    <message numerus="yes">
        <source>%n album(s)</source>
        <translation>
            <numerusform>%n album</numerusform>
            <numerusform>%n album</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n série(s)</source>
        <translation>
            <numerusform>%n serie</numerusform>
            <numerusform>%n serie</numerusform>
        </translation>
    </message>
    <message>
        <source>valeur %1</source>
        <translation>valore %1</translation>
    </message>
    <message>
        <source>lecture seule</source>
        <translation>sola lettura</translation>
    </message>
</context>
<context>
    <name>Polices</name>
    <message>
        <source>police</source>
        <translation>carattere</translation>
    </message>
    <message>
        <source>Couleur du thème</source>
        <translation>Colore del tema</translation>
    </message>
</context>
<context>
    <name>Pop</name>
    <message>
        <source>Quitter</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Suppr</source>
        <translation>Canc</translation>
    </message>
    <message>
        <source>Renommer</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Rendre</source>
        <translation>Segna come restituito</translation>
    </message>
    <message>
        <source>Prêter…</source>
        <translation>Presta…</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Copia</translation>
    </message>
</context>
<context>
    <name>Pret</name>
    <message numerus="yes">
        <source>%n jour(s)</source>
        <translation>
            <numerusform>%n giorno</numerusform>
            <numerusform>%n giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>Rendre l&apos;album</source>
        <translation>Segna come restituito</translation>
    </message>
    <message>
        <source>Supprimer la personne</source>
        <translation>Elimina la persona</translation>
    </message>
    <message>
        <source>Prêter « %1 »</source>
        <translation>Presta «%1»</translation>
    </message>
    <message>
        <source>Prêter</source>
        <translation>Presta</translation>
    </message>
    <message>
        <source>Choisir à qui l&apos;album montré est prêté</source>
        <translation>Scegli a chi prestare l&apos;album mostrato</translation>
    </message>
    <message>
        <source>Montrez d&apos;abord un album dans la fenêtre principale</source>
        <translation>Mostrate prima un album nella finestra principale</translation>
    </message>
    <message>
        <source>Dehors depuis</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Tous les prêts</source>
        <translation>Tutti i prestiti</translation>
    </message>
    <message>
        <source>quelqu&apos;un qui n&apos;est plus dans la liste</source>
        <translation>qualcuno che non è più nell&apos;elenco</translation>
    </message>
    <message>
        <source>Une personne a un nom.</source>
        <translation>Una persona deve avere un nome.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) lui restent prêtés et le resteront.</source>
        <translation>
            <numerusform>%n album è ancora prestato a questa persona e lo resterà.</numerusform>
            <numerusform>%n album sono ancora prestati a questa persona e lo resteranno.</numerusform>
        </translation>
    </message>
    <message>
        <source>Prêter « %1 » à %2</source>
        <translation>Presta «%1» a %2</translation>
    </message>
    <message>
        <source>« %1 » est déjà prêté à %2.</source>
        <translation>«%1» è già prestato a %2.</translation>
    </message>
    <message>
        <source>« %1 » est prêté à %2.</source>
        <translation>«%1» è prestato a %2.</translation>
    </message>
    <message>
        <source>Le prêter maintenant à %1 ?</source>
        <translation>Prestarlo ora a %1?</translation>
    </message>
    <message>
        <source>Le prêter maintenant à quelqu&apos;un d&apos;autre ?</source>
        <translation>Prestarlo ora a qualcun altro?</translation>
    </message>
</context>
<context>
    <name>Prets</name>
    <message>
        <source>Retour</source>
        <translation>Restituzione</translation>
    </message>
    <message>
        <source>Prêt</source>
        <translation>Prestito</translation>
    </message>
</context>
<context>
    <name>Recherche</name>
    <message>
        <source>Rien de tel</source>
        <translation>Nessun risultato</translation>
    </message>
</context>
<context>
    <name>Reglages</name>
    <message>
        <source>Le réglage %1 (« %2 ») n&apos;est pas valable.</source>
        <translation>L&apos;impostazione %1 («%2») non è valida.</translation>
    </message>
    <message>
        <source>Le fichier de réglages ne peut pas être lu.</source>
        <translation>Impossibile leggere il file delle impostazioni.</translation>
    </message>
</context>
<context>
    <name>Repartition</name>
    <message>
        <source>Inconnu</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Autres (%1)</source>
        <translation>Altri (%1)</translation>
    </message>
    <message>
        <source>Valeur par année d&apos;achat</source>
        <translation>Valore per anno d&apos;acquisto</translation>
    </message>
    <message>
        <source>Payé</source>
        <translation>Pagato</translation>
    </message>
    <message>
        <source>Coté</source>
        <translation>Quotato</translation>
    </message>
    <message>
        <source>Albums par genre</source>
        <translation>Album per genere</translation>
    </message>
    <message>
        <source>Albums par éditeur</source>
        <translation>Album per editore</translation>
    </message>
    <message>
        <source>Albums par décennie de parution</source>
        <translation>Album per decennio di uscita</translation>
    </message>
    <message>
        <source>Croissance de la collection, par date d&apos;achat</source>
        <translation>Crescita della collezione, per data d&apos;acquisto</translation>
    </message>
    <message>
        <source>Achetés dans l&apos;année</source>
        <translation>Acquistati nell&apos;anno</translation>
    </message>
    <message>
        <source>En tout</source>
        <translation>In tutto</translation>
    </message>
</context>
<context>
    <name>Restauration</name>
    <message>
        <source>Annulé : rien n&apos;a changé.</source>
        <translation>Annullato: non è cambiato nulla.</translation>
    </message>
    <message>
        <source>Cette base est chiffrée : elle ne peut pas être lue. Rien n&apos;a changé.</source>
        <translation>Questa base dati è cifrata: non può essere letta. Non è cambiato nulla.</translation>
    </message>
    <message>
        <source>Cette base est abîmée. Rien n&apos;a changé.</source>
        <translation>Questa base dati è danneggiata. Non è cambiato nulla.</translation>
    </message>
    <message>
        <source>Le convertisseur manque : Bulleo est mal installé.</source>
        <translation>Manca il convertitore: Bulleo è installato male.</translation>
    </message>
    <message>
        <source>La conversion a échoué. Rien n&apos;a changé.</source>
        <translation>La conversione non è riuscita. Non è cambiato nulla.</translation>
    </message>
    <message>
        <source>table inconnue</source>
        <translation>tabella sconosciuta</translation>
    </message>
    <message>
        <source>table absente, laissée vide</source>
        <translation>tabella assente, lasciata vuota</translation>
    </message>
    <message>
        <source>champ inconnu</source>
        <translation>campo sconosciuto</translation>
    </message>
    <message>
        <source>numéro déjà pris, ligne laissée</source>
        <translation>numero già preso, riga tralasciata</translation>
    </message>
    <message>
        <source>ligne sans numéro, laissée</source>
        <translation>riga senza numero, tralasciata</translation>
    </message>
    <message>
        <source>pas un nombre, laissé vide</source>
        <translation>non è un numero, lasciato vuoto</translation>
    </message>
    <message>
        <source>montant trop grand, arrondi</source>
        <translation>importo troppo grande, arrotondato</translation>
    </message>
    <message>
        <source>Une ancienne base : elle sera convertie, son fichier reste comme il est.</source>
        <translation>Una vecchia base dati: sarà convertita, il suo file resta com&apos;è.</translation>
    </message>
    <message>
        <source>La base en service est gardée parmi les sauvegardes.</source>
        <translation>La base dati attuale viene conservata fra i salvataggi.</translation>
    </message>
    <message>
        <source>Convertir cette ancienne base et la mettre en service ? Son fichier est gardé.</source>
        <translation>Convertire questa vecchia base dati e metterla in uso? Il suo file viene conservato.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n riga</numerusform>
            <numerusform>%1: %n righe</numerusform>
        </translation>
    </message>
    <message>
        <source>Laissé de côté, ou changé :</source>
        <translation>Tralasciato o cambiato:</translation>
    </message>
    <message>
        <source>C&apos;était un catalogue de référence : ses textes sont repris tels quels, leur code n&apos;étant pas connu.</source>
        <translation>Era un catalogo di riferimento: i suoi testi sono ripresi tali e quali, perché il loro codice non è noto.</translation>
    </message>
    <message>
        <source>Sauvegardes</source>
        <translation>Salvataggi</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Fichier</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Aucune sauvegarde pour l&apos;instant : la première se fait d&apos;elle-même, avant votre prochaine modification. Vous pouvez aussi choisir un fichier.</source>
        <translation>Per ora nessun salvataggio: il primo si fa da sé, prima della vostra prossima modifica. Potete anche scegliere un file.</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Resoconto</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Scegli un file…</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Une table manque :</source>
        <translation>Manca una tabella:</translation>
    </message>
    <message>
        <source>C&apos;est la base en service.</source>
        <translation>È la base dati attuale.</translation>
    </message>
    <message>
        <source>Cette base est d&apos;une ancienne version : elle est à convertir d&apos;abord.</source>
        <translation>Questa base dati è di una vecchia versione: prima va convertita.</translation>
    </message>
    <message>
        <source>C&apos;est un catalogue de référence, pas une base.</source>
        <translation>È un catalogo di riferimento, non una base dati.</translation>
    </message>
    <message>
        <source>Cette base est abîmée.</source>
        <translation>Questa base dati è danneggiata.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Questo file non è una base dati di Bulleo.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Questo archivio viene da una versione più recente di Bulleo: serve quella per aprirlo.</translation>
    </message>
    <message numerus="yes">
        <source>Remplacer la base en service par celle du %1, avec %n album(s) ?</source>
        <translation>
            <numerusform>Sostituire la base dati attuale con quella del %1, con %n album?</numerusform>
            <numerusform>Sostituire la base dati attuale con quella del %1, con %n album?</numerusform>
        </translation>
    </message>
    <message>
        <source>Une sauvegarde contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>Un salvataggio contiene i dati, non le immagini: le loro cartelle, images e image, si copiano a parte.</translation>
    </message>
</context>
<context>
    <name>Restes</name>
    <message>
        <source>Restes ôtés : %1</source>
        <translation>Resti tolti: %1</translation>
    </message>
</context>
<context>
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation>Indicate almeno un titolo.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Questo file non è un&apos;immagine leggibile.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Manca un nome.</translation>
    </message>
</context>
<context>
    <name>Sauvegardes</name>
    <message>
        <source>La liste des copies de sauvegarde ne peut pas être écrite.</source>
        <translation>Impossibile scrivere l&apos;elenco dei salvataggi.</translation>
    </message>
</context>
<context>
    <name>Scan</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>Impossibile salvare l&apos;immagine.</translation>
    </message>
</context>
<context>
    <name>Secours</name>
    <message>
        <source>Il n&apos;y a aucune sauvegarde qui soit saine.</source>
        <translation>Non c&apos;è alcun salvataggio integro.</translation>
    </message>
    <message>
        <source>Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté.</source>
        <translation>Volete riprendere il salvataggio del %1? Il file danneggiato viene conservato accanto.</translation>
    </message>
    <message>
        <source>Votre base est abîmée, ou n&apos;est plus là.</source>
        <translation>Il vostro database è danneggiato, o non c&apos;è più.</translation>
    </message>
</context>
<context>
    <name>Sorties</name>
    <message>
        <source>La liste ne peut pas être imprimée.</source>
        <translation>Impossibile stampare l&apos;elenco.</translation>
    </message>
    <message>
        <source>La liste ne peut pas être écrite.</source>
        <translation>Impossibile scrivere l&apos;elenco.</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation> Selezionare l&apos;elenco: </translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Importa album</translation>
    </message>
    <message>
        <source>Créer beaucoup d&apos;albums d&apos;un coup, à partir d&apos;un fichier CSV</source>
        <translation>Crea molti album in una volta, a partire da un file CSV</translation>
    </message>
    <message>
        <source>Voir la liste</source>
        <translation>Vedi l&apos;elenco</translation>
    </message>
</context>
<context>
    <name>Statistiques</name>
    <message>
        <source>La page des statistiques ne peut pas être écrite.</source>
        <translation>La pagina delle statistiche non può essere scritta.</translation>
    </message>
    <message>
        <source>Liens sans fiche ôtés : %1</source>
        <translation>Collegamenti senza scheda tolti: %1</translation>
    </message>
    <message>
        <source>Statistiques ...</source>
        <translation>Statistiche ...</translation>
    </message>
</context>
<context>
    <name>Stats</name>
    <message>
        <source>La page est ouverte dans votre navigateur : %1</source>
        <translation>La pagina è aperta nel browser: %1</translation>
    </message>
    <message>
        <source>La page est écrite, mais aucun programme ne l&apos;ouvre : %1</source>
        <translation>La pagina è scritta, ma nessun programma la apre: %1</translation>
    </message>
    <message>
        <source>Recalculer</source>
        <translation>Ricalcola</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Genres</source>
        <translation>Generi</translation>
    </message>
    <message>
        <source>Éditeurs</source>
        <translation>Editori</translation>
    </message>
    <message>
        <source>Décennies</source>
        <translation>Decenni</translation>
    </message>
    <message>
        <source>Croissance</source>
        <translation>Crescita</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Prix d&apos;achat</source>
        <translation>Prezzo d&apos;acquisto</translation>
    </message>
    <message>
        <source>Albums prêtés</source>
        <translation>Album prestati</translation>
    </message>
    <message>
        <source>Vue d&apos;ensemble</source>
        <translation>Panoramica</translation>
    </message>
</context>
<context>
    <name>Supprimer</name>
    <message numerus="yes">
        <source>%n album(s) restent, sans série.</source>
        <translation>
            <numerusform>%n album resta, senza serie.</numerusform>
            <numerusform>%n album restano, senza serie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans éditeur.</source>
        <translation>
            <numerusform>%n album resta, senza editore.</numerusform>
            <numerusform>%n album restano, senza editore.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cette collection.</source>
        <translation>
            <numerusform>%n album resta, senza questa collana.</numerusform>
            <numerusform>%n album restano, senza questa collana.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cet auteur.</source>
        <translation>
            <numerusform>%n album resta, senza questo autore.</numerusform>
            <numerusform>%n album restano, senza questo autore.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cet album est prêté à %1.</source>
        <translation>Questo album è prestato a %1.</translation>
    </message>
</context>
<context>
    <name>Telechargement</name>
    <message>
        <source>Le serveur est trop lent.</source>
        <translation>Il server è troppo lento.</translation>
    </message>
    <message>
        <source>Cette adresse n&apos;est pas une adresse web.</source>
        <translation>Questo indirizzo non è un indirizzo web.</translation>
    </message>
    <message>
        <source>Le fichier est trop gros.</source>
        <translation>Il file è troppo grande.</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Aucune texture</source>
        <translation>Nessuna trama</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image JPEG lisible.</source>
        <translation>Questo file non è un&apos;immagine JPEG leggibile.</translation>
    </message>
    <message>
        <source>Répéter l&apos;image au lieu de l&apos;étirer</source>
        <translation>Ripeti l&apos;immagine invece di allungarla</translation>
    </message>
</context>
<context>
    <name>Traduction</name>
    <message>
        <source>Le fichier de langue ne peut pas être lu.</source>
        <translation>Impossibile leggere il file della lingua.</translation>
    </message>
    <message>
        <source>Le fichier de langue a un indice qui n&apos;est pas valable.</source>
        <translation>Il file della lingua ha un indice non valido.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas un fichier de langue.</source>
        <translation>Questo file non è un file della lingua.</translation>
    </message>
    <message>
        <source>Le fichier de langue ne peut pas être écrit.</source>
        <translation>Impossibile scrivere il file della lingua.</translation>
    </message>
</context>
<context>
    <name>VoletListes</name>
    <message>
        <source>Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.</source>
        <translation>La vostra collezione è ancora vuota. Create un primo album oppure aprite il menu principale.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit avec les albums que vous créez.</source>
        <translation>Per ora qui non c&apos;è nulla. Questo elenco si riempie con gli album che create.</translation>
    </message>
    <message>
        <source>Rien ne correspond à « %1 ».</source>
        <translation>Nulla corrisponde a «%1».</translation>
    </message>
    <message>
        <source>Filtrer la liste (Ctrl+F)</source>
        <translation>Filtra l&apos;elenco (Ctrl+F)</translation>
    </message>
    <message>
        <source>%1 — montrer toute la liste</source>
        <translation>%1 — mostra tutto l&apos;elenco</translation>
    </message>
    <message>
        <source>Ces albums ne sont plus là.</source>
        <translation>Questi album non ci sono più.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit à la main, ligne par ligne.</source>
        <translation>Per ora qui non c&apos;è nulla. Questo elenco si riempie a mano, riga per riga.</translation>
    </message>
    <message>
        <source>Créer un album</source>
        <translation>Crea un album</translation>
    </message>
    <message>
        <source>Entrée précédente ou suivante : Ctrl+Page préc., Ctrl+Page suiv.</source>
        <translation>Voce precedente o successiva: Ctrl+Pag su, Ctrl+Pag giù</translation>
    </message>
</context>
</TS>
