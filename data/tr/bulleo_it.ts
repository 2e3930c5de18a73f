<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="fr_FR">
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation>Si è verificato un errore imprevisto.</translation>
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
        <source>Montrer tour à tour la couverture et le dos</source>
        <translation>Mostra a turno la copertina e il retro</translation>
    </message>
    <message>
        <source>Pas encore disponible</source>
        <translation>Non ancora disponibile</translation>
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
</context>
<context>
    <name>Bureau</name>
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
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation>Impossibile leggere questo file.</translation>
    </message>
</context>
<context>
    <name>Dossier</name>
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
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation>Mostra l&apos;altro lato</translation>
    </message>
    <message numerus="yes">
        <source>tome %1, %n album(s) de la série</source>
        <translation>
            <numerusform>volume %1, %n album della serie</numerusform>
            <numerusform>volume %1, %n album della serie</numerusform>
        </translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation>Mancanti: %1</translation>
    </message>
</context>
<context>
    <name>FormeCreation</name>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Invio</translation>
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
    <name>Frmmain</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>Il titolo è stato troncato a 50 caratteri.</translation>
    </message>
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
        <source>Aucune fiche à montrer pour l&apos;instant</source>
        <translation>Per ora nessuna scheda da mostrare</translation>
    </message>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation>Impossibile aprire la guida.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure</source>
        <translation>Software libero, con licenza GNU GPL, versione 3 o successiva</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation>Non è stato possibile fare la copia.</translation>
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
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation>Questa modifica non può più essere annullata né ripetuta: nel frattempo la scheda è cambiata.</translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette adresse ne peut pas être ouverte.</source>
        <translation>Impossibile aprire questo indirizzo.</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;ouvre cette adresse.</source>
        <translation>Nessun programma apre questo indirizzo.</translation>
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
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation>Indicate almeno un titolo.</translation>
    </message>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation>Il numero è un intero da 0 a 999.</translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation>Il prezzo è un numero, come 12,50.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Questo file non è un&apos;immagine leggibile.</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation> Selezionare l&apos;elenco: </translation>
    </message>
    <message>
        <source>Pas encore disponible</source>
        <translation>Non ancora disponibile</translation>
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
</context>
</TS>
