<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="fr_FR">
<context>
    <name>AccesBDNet</name>
    <message>
        <source>Le navigateur n&apos;est pas installé (paquet libqt6webenginewidgets6). L&apos;adresse d&apos;une fiche d&apos;album, écrite ci-dessus, suffit pour l&apos;analyser.</source>
        <translation>El navegador no está instalado (paquete libqt6webenginewidgets6). Para analizar la página de un álbum, basta con escribir arriba su dirección.</translation>
    </message>
    <message>
        <source>Donnez l&apos;adresse du catalogue, d&apos;où viennent les couvertures, et la page par laquelle sa visite commence.</source>
        <translation>Indique la dirección del catálogo, de donde vienen las cubiertas, y la página por la que empieza su visita.</translation>
    </message>
    <message>
        <source>Adresse du catalogue</source>
        <translation>Dirección del catálogo</translation>
    </message>
    <message>
        <source>Page d&apos;accueil</source>
        <translation>Página de inicio</translation>
    </message>
    <message>
        <source>Enregistrer</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>« %1 » n&apos;est pas une adresse du web.</source>
        <translation>«%1» no es una dirección web.</translation>
    </message>
</context>
<context>
    <name>AccordPourLaNote</name>
    <message>
        <source>Cette dédicace est une note : « %1 ». L&apos;image la remplacera. Continuer ?</source>
        <translation>Esta dedicatoria es una nota: «%1». La imagen la sustituirá. ¿Continuar?</translation>
    </message>
</context>
<context>
    <name>Accueil</name>
    <message>
        <source>Bienvenue dans votre bibliothèque</source>
        <translation>Bienvenido a su biblioteca</translation>
    </message>
    <message>
        <source>Votre collection est encore vide. Par quoi voulez-vous commencer ?</source>
        <translation>Su colección todavía está vacía. ¿Por dónde quiere empezar?</translation>
    </message>
    <message>
        <source>Choisissez une ligne de la liste pour voir sa fiche.</source>
        <translation>Elija una línea de la lista para ver su ficha.</translation>
    </message>
    <message>
        <source>Saisir un premier album</source>
        <translation>Introducir un primer álbum</translation>
    </message>
    <message>
        <source>Le prendre dans le catalogue fourni</source>
        <translation>Tomarlo del catálogo incluido</translation>
    </message>
    <message>
        <source>Importer un fichier CSV</source>
        <translation>Importar un archivo CSV</translation>
    </message>
    <message>
        <source>Reprendre une ancienne base (bd.mdb)</source>
        <translation>Recuperar una base de datos antigua (bd.mdb)</translation>
    </message>
</context>
<context>
    <name>Acquisition</name>
    <message>
        <source>aucun scanner</source>
        <translation>ningún escáner</translation>
    </message>
    <message>
        <source>Numérisez ou ouvrez une image, déposez un fichier ici, ou collez-la avec Ctrl+V</source>
        <translation>Escanee o abra una imagen, suelte aquí un archivo o pegue una imagen con Ctrl+V</translation>
    </message>
    <message>
        <source>Dernier résultat</source>
        <translation>Último resultado</translation>
    </message>
    <message>
        <source>Utiliser comme couverture</source>
        <translation>Usar como cubierta</translation>
    </message>
    <message>
        <source>Utiliser comme dos</source>
        <translation>Usar como contracubierta</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 1</source>
        <translation>Usar como dedicatoria 1</translation>
    </message>
    <message>
        <source>Utiliser comme dédicace 2</source>
        <translation>Usar como dedicatoria 2</translation>
    </message>
    <message>
        <source>Montrez un album dans la fenêtre principale pour lui donner cette image.</source>
        <translation>Muestre un álbum en la ventana principal para asignarle esta imagen.</translation>
    </message>
    <message>
        <source>Ouvrir un fichier image</source>
        <translation>Abrir un archivo de imagen</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</source>
        <translation>Todos los archivos de imagen (*.bmp;*.jpg;*.wmf;*.ico)|*.bmp;*.jpg;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible : %1</source>
        <translation>Este archivo no es una imagen legible: %1</translation>
    </message>
    <message>
        <source>Format Bitmap (*.bmp)|*.bmp</source>
        <translation>Formato Bitmap (*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</source>
        <translation>Todos los archivos de imagen (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico</translation>
    </message>
    <message>
        <source>Image enregistrée : %1</source>
        <translation>Imagen guardada: %1</translation>
    </message>
    <message>
        <source>Le presse-papiers ne contient pas d&apos;image.</source>
        <translation>El portapapeles no contiene ninguna imagen.</translation>
    </message>
    <message>
        <source>C&apos;est fait : %1</source>
        <translation>Hecho: %1</translation>
    </message>
    <message>
        <source>Les scanners sont encore recherchés.</source>
        <translation>Todavía se están buscando los escáneres.</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>«%1» ya existe. ¿Reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>Acte</name>
    <message>
        <source>La modification est enregistrée, mais le disque a signalé une erreur.</source>
        <translation>El cambio está guardado, pero el disco ha señalado un error.</translation>
    </message>
</context>
<context>
    <name>Aide</name>
    <message>
        <source>L&apos;aide ne peut pas être ouverte.</source>
        <translation>La ayuda no se puede abrir.</translation>
    </message>
</context>
<context>
    <name>AnalysePage</name>
    <message>
        <source>La page ne peut pas être analysée.</source>
        <translation>La página no se puede analizar.</translation>
    </message>
    <message>
        <source>Il lui manque une ligne.</source>
        <translation>Le falta una línea.</translation>
    </message>
    <message>
        <source>Son prix n&apos;est pas un nombre.</source>
        <translation>Su precio no es un número.</translation>
    </message>
    <message>
        <source>Une balise n&apos;y est jamais fermée.</source>
        <translation>Contiene una etiqueta que nunca se cierra.</translation>
    </message>
</context>
<context>
    <name>Apparence</name>
    <message>
        <source>Apparence</source>
        <translation>Apariencia</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Une erreur imprévue s&apos;est produite.</source>
        <translation>Se ha producido un error inesperado.</translation>
    </message>
</context>
<context>
    <name>BDNet</name>
    <message>
        <source>Cette page ne peut pas être montrée.</source>
        <translation>Esta página no se puede mostrar.</translation>
    </message>
    <message>
        <source>Adresse d&apos;une page</source>
        <translation>Dirección de una página</translation>
    </message>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Intro</translation>
    </message>
    <message>
        <source>Seules les adresses du web peuvent être montrées.</source>
        <translation>Solo se pueden mostrar direcciones web.</translation>
    </message>
    <message>
        <source>La page n&apos;a pas pu être lue jusqu&apos;au bout : complétez les champs.</source>
        <translation>No se ha podido leer la página hasta el final: complete los campos.</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>«%1»: un álbum empezado todavía no está creado, se perderá.</translation>
    </message>
    <message>
        <source>La couverture n&apos;a pas pu être gardée : %1</source>
        <translation>No se ha podido conservar la cubierta: %1</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Perdre ce qui est saisi ?</source>
        <translation>Este álbum todavía no está creado. ¿Perder lo introducido?</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Este álbum todavía no está creado. ¿Cerrar de todos modos?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>Lo introducido estará ahí la próxima vez que se abra, mientras no se salga del programa.</translation>
    </message>
</context>
<context>
    <name>BandeSerie</name>
    <message numerus="yes">
        <source>%n tome(s) de plus</source>
        <translation>
            <numerusform>%n tomo más</numerusform>
            <numerusform>%n tomos más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Bandeau</name>
    <message>
        <source>Quitter</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Aide</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Diaporama</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>Montrer tour à tour la couverture et le dos ; avec Maj, parcourir aussi la liste</source>
        <translation>Mostrar por turno la cubierta y la contracubierta; con Mayús, recorrer también la lista</translation>
    </message>
    <message>
        <source>Annuler (Ctrl+Z)</source>
        <translation>Deshacer (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Annuler %1 (Ctrl+Z)</source>
        <translation>Deshacer %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Rétablir (Ctrl+Y)</source>
        <translation>Rehacer (Ctrl+Y)</translation>
    </message>
    <message>
        <source>Rétablir %1 (Ctrl+Y)</source>
        <translation>Rehacer %1 (Ctrl+Y)</translation>
    </message>
</context>
<context>
    <name>Base</name>
    <message>
        <source>L&apos;ordre alphabétique n&apos;est pas disponible.</source>
        <translation>El orden alfabético no está disponible.</translation>
    </message>
    <message>
        <source>La base est utilisée par un autre programme.</source>
        <translation>Otro programa está utilizando la base de datos.</translation>
    </message>
    <message>
        <source>La base est en lecture seule.</source>
        <translation>La base de datos es de solo lectura.</translation>
    </message>
    <message>
        <source>La base est abîmée.</source>
        <translation>La base de datos está dañada.</translation>
    </message>
    <message>
        <source>Le disque est plein.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>La base a refusé l&apos;opération.</source>
        <translation>La base de datos ha rechazado la operación.</translation>
    </message>
    <message>
        <source>L&apos;opération a été interrompue.</source>
        <translation>La operación se ha interrumpido.</translation>
    </message>
    <message>
        <source>Il n&apos;y a plus d&apos;enregistrement ici.</source>
        <translation>Aquí ya no hay ningún registro.</translation>
    </message>
    <message>
        <source>Un champ manque dans la base.</source>
        <translation>Falta un campo en la base de datos.</translation>
    </message>
    <message>
        <source>La fiche n&apos;existe plus.</source>
        <translation>La ficha ya no existe.</translation>
    </message>
    <message>
        <source>La base ne peut pas être créée.</source>
        <translation>No se puede crear la base de datos.</translation>
    </message>
    <message>
        <source>Ce fichier existe déjà.</source>
        <translation>Este archivo ya existe.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être remplacé.</source>
        <translation>Este archivo no se puede reemplazar.</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite.</source>
        <translation>No se ha podido hacer la copia.</translation>
    </message>
    <message>
        <source>Une longue lecture de la base est en cours.</source>
        <translation>Hay una lectura larga de la base de datos en curso.</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>La base de datos es de solo lectura: no se puede modificar nada en ella.</translation>
    </message>
    <message>
        <source>Pour lire cette base, il en faut une copie, qui ne peut pas être faite.</source>
        <translation>Para leer esta base de datos hace falta una copia, que no se puede hacer.</translation>
    </message>
    <message>
        <source>Ce fichier contient des vues ou des règles qui ne viennent pas de Bulleo : il n&apos;est pas ouvert.</source>
        <translation>Este archivo contiene vistas o reglas que no vienen de Bulleo: no se abre.</translation>
    </message>
    <message>
        <source>La lecture a été arrêtée.</source>
        <translation>Se ha detenido la lectura.</translation>
    </message>
</context>
<context>
    <name>Bureau</name>
    <message>
        <source>%1 — Ctrl+Z pour annuler</source>
        <translation>%1 — Ctrl+Z para deshacer</translation>
    </message>
    <message>
        <source>Annulé : %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Rétabli : %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>La base est en lecture seule : rien ne peut y être modifié.</source>
        <translation>La base de datos es de solo lectura: no se puede modificar nada en ella.</translation>
    </message>
    <message>
        <source>La lecture de la base dure plus longtemps que prévu. Attendre encore ?</source>
        <translation>La lectura de la base de datos dura más de lo previsto. ¿Seguir esperando?</translation>
    </message>
    <message>
        <source>La copie contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>La copia contiene los datos, no las imágenes: sus carpetas, images e image, se copian aparte.</translation>
    </message>
</context>
<context>
    <name>Capture</name>
    <message>
        <source>Cette fiche n&apos;existe pas.</source>
        <translation>Esta ficha no existe.</translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Les textes du catalogue de référence ne peuvent pas être décodés.</source>
        <translation>Los textos del catálogo de referencia no se pueden descodificar.</translation>
    </message>
</context>
<context>
    <name>ChoixColonnes</name>
    <message>
        <source>Toutes</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Aucune</source>
        <translation>Ninguna</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>La conversion a été annulée.</source>
        <translation>Se ha cancelado la conversión.</translation>
    </message>
    <message>
        <source>La conversion ne finit pas : le fichier est abîmé.</source>
        <translation>La conversión no termina: el archivo está dañado.</translation>
    </message>
    <message>
        <source>La conversion s&apos;est arrêtée en chemin : le fichier est abîmé.</source>
        <translation>La conversión se ha detenido a medio camino: el archivo está dañado.</translation>
    </message>
    <message>
        <source>Le programme de conversion est introuvable.</source>
        <translation>No se encuentra el programa de conversión.</translation>
    </message>
</context>
<context>
    <name>Couvertures</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>La imagen no se puede guardar.</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>Ce fichier ne peut pas être lu.</source>
        <translation>Este archivo no se puede leer.</translation>
    </message>
    <message>
        <source>Ligne %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>Ce n&apos;est pas un fichier de valeurs séparées (CSV).</source>
        <translation>No es un archivo de valores separados (CSV).</translation>
    </message>
</context>
<context>
    <name>Demarrage</name>
    <message>
        <source>La base contient des restes que rien ne montre : saisies interrompues, liens en double, lignes d&apos;albums supprimés. Les ôter ? Ctrl+Z les remet.</source>
        <translation>La base de datos contiene restos que nada muestra: entradas interrumpidas, enlaces duplicados, líneas de álbumes eliminados. ¿Quitarlos? Ctrl+Z los devuelve.</translation>
    </message>
</context>
<context>
    <name>Dossier</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Esta carpeta no se puede crear.</translation>
    </message>
</context>
<context>
    <name>Edition</name>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>El título se ha recortado a 50 caracteres.</translation>
    </message>
    <message>
        <source>Le numéro a été coupé à 3 caractères : %1</source>
        <translation>El número se ha recortado a 3 caracteres: %1</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;existe plus.</source>
        <translation>Esta ficha ya no existe.</translation>
    </message>
</context>
<context>
    <name>Entete</name>
    <message>
        <source>Le fichier est introuvable.</source>
        <translation>No se encuentra el archivo.</translation>
    </message>
    <message>
        <source>Le fichier ne peut pas être ouvert.</source>
        <translation>El archivo no se puede abrir.</translation>
    </message>
    <message>
        <source>Ce fichier est au format d&apos;une ancienne version.</source>
        <translation>Este archivo tiene el formato de una versión antigua.</translation>
    </message>
    <message>
        <source>Le fichier est vide.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Este archivo no es una base de datos de Bulleo.</translation>
    </message>
    <message>
        <source>Le fichier est abîmé : il est plus court qu&apos;il ne devrait.</source>
        <translation>El archivo está dañado: es más corto de lo que debería.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Esta base viene de una versión más reciente de Bulleo: se necesita esa para abrirla.</translation>
    </message>
</context>
<context>
    <name>Facile</name>
    <message numerus="yes">
        <source>%n album(s) du catalogue ne peuvent pas être décodés.</source>
        <translation>
            <numerusform>%n álbum del catálogo no se puede descodificar.</numerusform>
            <numerusform>%n álbumes del catálogo no se pueden descodificar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtrer le catalogue</source>
        <translation>Filtrar el catálogo</translation>
    </message>
    <message>
        <source>Choisir</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Ce catalogue vient d&apos;un ancien programme : ses textes sont codés, et personne n&apos;en a la clé.</source>
        <translation>Este catálogo viene de un programa antiguo: sus textos están codificados y nadie tiene la clave.</translation>
    </message>
    <message>
        <source>Titre, série, auteur ou éditeur</source>
        <translation>Título, serie, autor o editorial</translation>
    </message>
</context>
<context>
    <name>Fiche</name>
    <message>
        <source>Le numéro est un nombre entier de 0 à 999.</source>
        <translation>El número es un entero de 0 a 999.</translation>
    </message>
    <message>
        <source>Le prix est un nombre, comme 12,50.</source>
        <translation>El precio es un número, como 12,50.</translation>
    </message>
    <message>
        <source>Le nombre de pages est un nombre.</source>
        <translation>El número de páginas debe ser un número.</translation>
    </message>
    <message>
        <source>Il faut ici un nombre entier.</source>
        <translation>Aquí hace falta un número entero.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Falta un nombre.</translation>
    </message>
    <message>
        <source>« %1 » peut se lire %2 ou %3 : écrivez l&apos;un des deux.</source>
        <translation>«%1» se puede leer %2 o %3: escriba uno de los dos.</translation>
    </message>
</context>
<context>
    <name>FicheAlbum</name>
    <message>
        <source>Montrer l&apos;autre face</source>
        <translation>Mostrar la otra cara</translation>
    </message>
    <message>
        <source>Manquants : %1</source>
        <translation>Faltan: %1</translation>
    </message>
    <message numerus="yes">
        <source>tome %1 · %n possédé(s)</source>
        <translation>
            <numerusform>tomo %1 · %n en la colección</numerusform>
            <numerusform>tomo %1 · %n en la colección</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FicheForme</name>
    <message>
        <source>Groupe suivant : F6, précédent : Maj+F6</source>
        <translation>Grupo siguiente: F6, anterior: Mayús+F6</translation>
    </message>
</context>
<context>
    <name>FormeCreation</name>
    <message>
        <source>Ctrl+Entrée</source>
        <translation>Ctrl+Intro</translation>
    </message>
    <message>
        <source>Effacer tout ce qui est saisi ici ?</source>
        <translation>¿Borrar todo lo introducido aquí?</translation>
    </message>
    <message>
        <source>« %1 » : un album commencé n&apos;est pas encore créé, il sera perdu.</source>
        <translation>«%1»: un álbum empezado todavía no está creado, se perderá.</translation>
    </message>
    <message>
        <source>Cet album n&apos;est pas encore créé. Fermer quand même ?</source>
        <translation>Este álbum todavía no está creado. ¿Cerrar de todos modos?</translation>
    </message>
    <message>
        <source>La saisie sera là à la prochaine ouverture, tant que le programme n&apos;est pas quitté.</source>
        <translation>Lo introducido estará ahí la próxima vez que se abra, mientras no se salga del programa.</translation>
    </message>
    <message>
        <source>Vider</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Effacer tous les champs</source>
        <translation>Borrar todos los campos</translation>
    </message>
</context>
<context>
    <name>FormeOutil</name>
    <message>
        <source>Annuler</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>FormulaireAlbum</name>
    <message>
        <source>Couverture ...</source>
        <translation>Cubierta ...</translation>
    </message>
    <message>
        <source>Dos ...</source>
        <translation>Contracubierta ...</translation>
    </message>
    <message>
        <source>Déposez une image ici</source>
        <translation>Suelte una imagen aquí</translation>
    </message>
    <message>
        <source>Jour</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Année</source>
        <translation>Año</translation>
    </message>
</context>
<context>
    <name>FrmModif</name>
    <message>
        <source>« %1 » sera ajouté ; ↓ pour choisir dans la liste.</source>
        <translation>Se añadirá «%1»; ↓ para elegir de la lista.</translation>
    </message>
    <message>
        <source>Tapez d&apos;abord le nom à ajouter.</source>
        <translation>Escriba primero el nombre que desea añadir.</translation>
    </message>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>¡Este dato ya existe!</translation>
    </message>
    <message>
        <source>« %1 » est connu dans un autre métier : il sera choisi.</source>
        <translation>«%1» se conoce en otra actividad: se elegirá.</translation>
    </message>
    <message>
        <source>« %1 » sera choisi.</source>
        <translation>Se elegirá «%1».</translation>
    </message>
</context>
<context>
    <name>Frmmain</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Logiciel libre, sous licence GNU GPL, version 3 ou ultérieure</source>
        <translation>Software libre, con licencia GNU GPL, versión 3 o posterior</translation>
    </message>
    <message>
        <source>Le texte que vous venez de taper ne peut pas être enregistré. Le perdre ?</source>
        <translation>El texto que acaba de escribir no se puede guardar. ¿Perderlo?</translation>
    </message>
</context>
<context>
    <name>Images</name>
    <message>
        <source>Le dossier des images ne peut pas être créé.</source>
        <translation>No se puede crear la carpeta de imágenes.</translation>
    </message>
    <message>
        <source>Cette image ne peut pas être copiée.</source>
        <translation>Esta imagen no se puede copiar.</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Choisir un fichier de valeurs séparées</source>
        <translation>Elegir un archivo de valores separados</translation>
    </message>
    <message>
        <source>Un fichier CSV, avec le nom des colonnes à la première ligne. Déposez-le ici, ou choisissez-le.</source>
        <translation>Un archivo CSV, con los nombres de las columnas en la primera línea. Suéltelo aquí o elíjalo.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n línea</numerusform>
            <numerusform>%1: %n líneas</numerusform>
        </translation>
    </message>
    <message>
        <source>Dites quelle colonne est celle du titre.</source>
        <translation>Indique qué columna es la del título.</translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été importé.</source>
        <translation>Cancelado: no se ha importado nada.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) créé(s)</source>
        <translation>
            <numerusform>%n álbum creado</numerusform>
            <numerusform>%n álbumes creados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n déjà présent(s)</source>
        <translation>
            <numerusform>%n ya presente</numerusform>
            <numerusform>%n ya presentes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refusé(s)</source>
        <translation>
            <numerusform>%n rechazado</numerusform>
            <numerusform>%n rechazados</numerusform>
        </translation>
    </message>
    <message>
        <source>Ligne %1 : %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Ligne %1 : cet album est déjà dans la collection</source>
        <translation>Línea %1: este álbum ya está en la colección</translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Importar álbumes</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Elegir un archivo…</translation>
    </message>
    <message>
        <source>Quelle colonne pour quoi ?</source>
        <translation>¿Qué columna para qué?</translation>
    </message>
    <message>
        <source>Les premières lignes, telles qu&apos;elles entreront</source>
        <translation>Las primeras líneas, tal como entrarán</translation>
    </message>
    <message>
        <source>Un album de même titre, série et tome :</source>
        <translation>Un álbum del mismo título, serie y tomo:</translation>
    </message>
    <message>
        <source>le sauter</source>
        <translation>omitirlo</translation>
    </message>
    <message>
        <source>le créer quand même</source>
        <translation>crearlo de todos modos</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Importer</source>
        <translation>Importar</translation>
    </message>
</context>
<context>
    <name>Importation</name>
    <message>
        <source>La page ne peut pas être enregistrée.</source>
        <translation>La página no se puede guardar.</translation>
    </message>
</context>
<context>
    <name>ImporterAlbums</name>
    <message>
        <source>%1 : « %2 » n&apos;est ni oui ni non.</source>
        <translation>%1: «%2» no es ni sí ni no.</translation>
    </message>
    <message>
        <source>Importation de « %1 »</source>
        <translation>Importación de «%1»</translation>
    </message>
</context>
<context>
    <name>Impression</name>
    <message>
        <source>Éditer la liste au format PDF</source>
        <translation>Generar la lista en formato PDF</translation>
    </message>
    <message>
        <source>Exporter la liste au format CSV</source>
        <translation>Exportar la lista en formato CSV</translation>
    </message>
    <message>
        <source>La liste affichée</source>
        <translation>La lista mostrada</translation>
    </message>
    <message>
        <source>Cochez au moins une colonne.</source>
        <translation>Marque al menos una columna.</translation>
    </message>
    <message numerus="yes">
        <source>%n ligne(s) en tout</source>
        <translation>
            <numerusform>%n línea en total</numerusform>
            <numerusform>%n líneas en total</numerusform>
        </translation>
    </message>
    <message>
        <source>Annulé : rien n&apos;a été écrit.</source>
        <translation>Cancelado: no se ha escrito nada.</translation>
    </message>
    <message>
        <source>Liste enregistrée : %1</source>
        <translation>Lista guardada: %1</translation>
    </message>
    <message>
        <source>Impression annulée.</source>
        <translation>Impresión cancelada.</translation>
    </message>
    <message>
        <source>La liste est partie à l&apos;impression.</source>
        <translation>La lista se ha enviado a la impresora.</translation>
    </message>
    <message>
        <source>Que voulez-vous lister ?</source>
        <translation>¿Qué quiere listar?</translation>
    </message>
    <message>
        <source>Ce qui sortira</source>
        <translation>Lo que saldrá</translation>
    </message>
    <message>
        <source>Vers un fichier ou sur papier</source>
        <translation>A un archivo o en papel</translation>
    </message>
    <message>
        <source>Toute la collection</source>
        <translation>Toda la colección</translation>
    </message>
    <message>
        <source>La fiche affichée</source>
        <translation>La ficha mostrada</translation>
    </message>
    <message>
        <source>Aperçu avant impression</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>Imprimer…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>« %1 » existe déjà. Le remplacer ?</source>
        <translation>«%1» ya existe. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>Avec autant de colonnes, une page se lit mal. Continuer ?</source>
        <translation>Con tantas columnas, una página se lee mal. ¿Continuar?</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Cette modification ne peut plus être reprise : la fiche a changé depuis.</source>
        <translation>Este cambio ya no se puede deshacer ni rehacer: la ficha ha cambiado desde entonces.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être écrit.</source>
        <translation>No se puede escribir el archivo que guarda lo necesario para deshacer.</translation>
    </message>
    <message>
        <source>Le fichier qui garde de quoi annuler ne peut pas être relu.</source>
        <translation>No se puede leer el archivo que guarda lo necesario para deshacer.</translation>
    </message>
</context>
<context>
    <name>Liens</name>
    <message>
        <source>Cette image n&apos;existe plus.</source>
        <translation>Esta imagen ya no existe.</translation>
    </message>
    <message>
        <source>Cette adresse ne s&apos;ouvre pas d&apos;ici : seuls les pages web et le courrier s&apos;ouvrent.</source>
        <translation>Esta dirección no se abre desde aquí: solo se abren páginas web y correo.</translation>
    </message>
    <message>
        <source>Aucun programme de courrier n&apos;est installé : copiez l&apos;adresse dans le vôtre.</source>
        <translation>No hay ningún programa de correo instalado: copie la dirección en el suyo.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé : installez-en un, ou ouvrez cette adresse ailleurs.</source>
        <translation>No hay ningún navegador instalado: instale uno o abra esta dirección en otro lugar.</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;est installé pour voir cette image : installez une visionneuse.</source>
        <translation>No hay ningún programa instalado para ver esta imagen: instale un visor.</translation>
    </message>
    <message>
        <source>Aucun navigateur n&apos;est installé pour lire l&apos;aide : installez-en un, ou ouvrez ce fichier ailleurs.</source>
        <translation>No hay ningún navegador instalado para leer la ayuda: instale uno o abra este archivo en otro lugar.</translation>
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
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>ListeEntrees</name>
    <message>
        <source>Titre</source>
        <translation>Título</translation>
    </message>
</context>
<context>
    <name>Livraison</name>
    <message>
        <source>Ce dossier ne peut pas être créé.</source>
        <translation>Esta carpeta no se puede crear.</translation>
    </message>
    <message>
        <source>Ce fichier ne peut pas être copié.</source>
        <translation>Este archivo no se puede copiar.</translation>
    </message>
</context>
<context>
    <name>Modification</name>
    <message>
        <source>« %1 » n&apos;existe plus.</source>
        <translation>«%1» ya no existe.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Falta un nombre.</translation>
    </message>
</context>
<context>
    <name>Moteur</name>
    <message>
        <source>Ce fichier ne peut pas être mis de côté.</source>
        <translation>Este archivo no se puede apartar.</translation>
    </message>
</context>
<context>
    <name>Numeriseur</name>
    <message>
        <source>Le scanner a refusé l&apos;opération.</source>
        <translation>El escáner ha rechazado la operación.</translation>
    </message>
    <message>
        <source>Le scanner a rendu une image d&apos;un format inconnu.</source>
        <translation>El escáner ha devuelto una imagen en un formato desconocido.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de scanner.</source>
        <translation>No hay ningún escáner.</translation>
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
        <translation>Ventanas:</translation>
    </message>
    <message>
        <source>Fenêtres claires ou sombres</source>
        <translation>Ventanas claras u oscuras</translation>
    </message>
    <message>
        <source>comme le bureau</source>
        <translation>como el escritorio</translation>
    </message>
    <message>
        <source>claires</source>
        <translation>claras</translation>
    </message>
    <message>
        <source>sombres</source>
        <translation>oscuras</translation>
    </message>
</context>
<context>
    <name>Parcours</name>
    <message>
        <source>La donnée existe déjà !</source>
        <translation>¡Este dato ya existe!</translation>
    </message>
    <message>
        <source>Le titre a été coupé à 50 caractères.</source>
        <translation>El título se ha recortado a 50 caracteres.</translation>
    </message>
    <message>
        <source>Cette fiche n&apos;est plus là : les listes ont été relues.</source>
        <translation>Esta ficha ya no está: se han vuelto a leer las listas.</translation>
    </message>
</context>
<context>
    <name>PhotosFiche</name>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Este archivo no es una imagen legible.</translation>
    </message>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>La imagen no se puede guardar.</translation>
    </message>
</context>
<context>
    <name>Pied</name>
    <message numerus="yes">
        <source>%n album(s)</source>
        <translation>
            <numerusform>%n álbum</numerusform>
            <numerusform>%n álbumes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n série(s)</source>
        <translation>
            <numerusform>%n serie</numerusform>
            <numerusform>%n series</numerusform>
        </translation>
    </message>
    <message>
        <source>valeur %1</source>
        <translation>valor %1</translation>
    </message>
    <message>
        <source>lecture seule</source>
        <translation>solo lectura</translation>
    </message>
</context>
<context>
    <name>Polices</name>
    <message>
        <source>police</source>
        <translation>tipo de letra</translation>
    </message>
    <message>
        <source>Couleur du thème</source>
        <translation>Color del tema</translation>
    </message>
</context>
<context>
    <name>Pop</name>
    <message>
        <source>Quitter</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Suppr</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Renommer</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Rendre</source>
        <translation>Marcar como devuelto</translation>
    </message>
    <message>
        <source>Prêter…</source>
        <translation>Prestar…</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>Pret</name>
    <message numerus="yes">
        <source>%n jour(s)</source>
        <translation>
            <numerusform>%n día</numerusform>
            <numerusform>%n días</numerusform>
        </translation>
    </message>
    <message>
        <source>Rendre l&apos;album</source>
        <translation>Marcar como devuelto</translation>
    </message>
    <message>
        <source>Supprimer la personne</source>
        <translation>Eliminar persona</translation>
    </message>
    <message>
        <source>Prêter « %1 »</source>
        <translation>Prestar «%1»</translation>
    </message>
    <message>
        <source>Prêter</source>
        <translation>Prestar</translation>
    </message>
    <message>
        <source>Choisir à qui l&apos;album montré est prêté</source>
        <translation>Elegir a quién se presta el álbum mostrado</translation>
    </message>
    <message>
        <source>Montrez d&apos;abord un album dans la fenêtre principale</source>
        <translation>Muestre primero un álbum en la ventana principal</translation>
    </message>
    <message>
        <source>Dehors depuis</source>
        <translation>Desde hace</translation>
    </message>
    <message>
        <source>Tous les prêts</source>
        <translation>Todos los préstamos</translation>
    </message>
    <message>
        <source>quelqu&apos;un qui n&apos;est plus dans la liste</source>
        <translation>alguien que ya no está en la lista</translation>
    </message>
    <message>
        <source>Une personne a un nom.</source>
        <translation>Una persona debe tener un nombre.</translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) lui restent prêtés et le resteront.</source>
        <translation>
            <numerusform>%n álbum sigue prestado a esta persona y lo seguirá estando.</numerusform>
            <numerusform>%n álbumes siguen prestados a esta persona y lo seguirán estando.</numerusform>
        </translation>
    </message>
    <message>
        <source>Prêter « %1 » à %2</source>
        <translation>Prestar «%1» a %2</translation>
    </message>
    <message>
        <source>« %1 » est déjà prêté à %2.</source>
        <translation>«%1» ya está prestado a %2.</translation>
    </message>
    <message>
        <source>« %1 » est prêté à %2.</source>
        <translation>«%1» está prestado a %2.</translation>
    </message>
    <message>
        <source>Le prêter maintenant à %1 ?</source>
        <translation>¿Prestarlo ahora a %1?</translation>
    </message>
    <message>
        <source>Le prêter maintenant à quelqu&apos;un d&apos;autre ?</source>
        <translation>¿Prestarlo ahora a otra persona?</translation>
    </message>
</context>
<context>
    <name>Prets</name>
    <message>
        <source>Retour</source>
        <translation>Devolución</translation>
    </message>
    <message>
        <source>Prêt</source>
        <translation>Préstamo</translation>
    </message>
</context>
<context>
    <name>Recherche</name>
    <message>
        <source>Rien de tel</source>
        <translation>Sin resultados</translation>
    </message>
</context>
<context>
    <name>Reglages</name>
    <message>
        <source>Le réglage %1 (« %2 ») n&apos;est pas valable.</source>
        <translation>El ajuste %1 («%2») no es válido.</translation>
    </message>
    <message>
        <source>Le fichier de réglages ne peut pas être lu.</source>
        <translation>El archivo de ajustes no se puede leer.</translation>
    </message>
</context>
<context>
    <name>Repartition</name>
    <message>
        <source>Inconnu</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Autres (%1)</source>
        <translation>Otras (%1)</translation>
    </message>
    <message>
        <source>Valeur par année d&apos;achat</source>
        <translation>Valor por año de compra</translation>
    </message>
    <message>
        <source>Payé</source>
        <translation>Pagado</translation>
    </message>
    <message>
        <source>Coté</source>
        <translation>Cotizado</translation>
    </message>
    <message>
        <source>Albums par genre</source>
        <translation>Álbumes por género</translation>
    </message>
    <message>
        <source>Albums par éditeur</source>
        <translation>Álbumes por editorial</translation>
    </message>
    <message>
        <source>Albums par décennie de parution</source>
        <translation>Álbumes por década de publicación</translation>
    </message>
    <message>
        <source>Croissance de la collection, par date d&apos;achat</source>
        <translation>Crecimiento de la colección, por fecha de compra</translation>
    </message>
    <message>
        <source>Achetés dans l&apos;année</source>
        <translation>Comprados en el año</translation>
    </message>
    <message>
        <source>En tout</source>
        <translation>En total</translation>
    </message>
</context>
<context>
    <name>Restauration</name>
    <message>
        <source>Annulé : rien n&apos;a changé.</source>
        <translation>Cancelado: no ha cambiado nada.</translation>
    </message>
    <message>
        <source>Cette base est chiffrée : elle ne peut pas être lue. Rien n&apos;a changé.</source>
        <translation>Esta base de datos está cifrada: no se puede leer. No ha cambiado nada.</translation>
    </message>
    <message>
        <source>Cette base est abîmée. Rien n&apos;a changé.</source>
        <translation>Esta base de datos está dañada. No ha cambiado nada.</translation>
    </message>
    <message>
        <source>Le convertisseur manque : Bulleo est mal installé.</source>
        <translation>Falta el convertidor: Bulleo está mal instalado.</translation>
    </message>
    <message>
        <source>La conversion a échoué. Rien n&apos;a changé.</source>
        <translation>La conversión ha fallado. No ha cambiado nada.</translation>
    </message>
    <message>
        <source>table inconnue</source>
        <translation>tabla desconocida</translation>
    </message>
    <message>
        <source>table absente, laissée vide</source>
        <translation>tabla ausente, dejada vacía</translation>
    </message>
    <message>
        <source>champ inconnu</source>
        <translation>campo desconocido</translation>
    </message>
    <message>
        <source>numéro déjà pris, ligne laissée</source>
        <translation>número ya ocupado, fila omitida</translation>
    </message>
    <message>
        <source>ligne sans numéro, laissée</source>
        <translation>fila sin número, omitida</translation>
    </message>
    <message>
        <source>pas un nombre, laissé vide</source>
        <translation>no es un número, dejado vacío</translation>
    </message>
    <message>
        <source>montant trop grand, arrondi</source>
        <translation>importe demasiado grande, redondeado</translation>
    </message>
    <message>
        <source>Une ancienne base : elle sera convertie, son fichier reste comme il est.</source>
        <translation>Una base de datos antigua: se convertirá; su archivo se queda como está.</translation>
    </message>
    <message>
        <source>La base en service est gardée parmi les sauvegardes.</source>
        <translation>La base de datos actual se guarda entre las copias de seguridad.</translation>
    </message>
    <message>
        <source>Convertir cette ancienne base et la mettre en service ? Son fichier est gardé.</source>
        <translation>¿Convertir esta base de datos antigua y ponerla en uso? Su archivo se conserva.</translation>
    </message>
    <message numerus="yes">
        <source>%1 : %n ligne(s)</source>
        <translation>
            <numerusform>%1: %n fila</numerusform>
            <numerusform>%1: %n filas</numerusform>
        </translation>
    </message>
    <message>
        <source>Laissé de côté, ou changé :</source>
        <translation>Dejado de lado o cambiado:</translation>
    </message>
    <message>
        <source>C&apos;était un catalogue de référence : ses textes sont repris tels quels, leur code n&apos;étant pas connu.</source>
        <translation>Era un catálogo de referencia: sus textos se recogen tal cual, porque no se conoce su código.</translation>
    </message>
    <message>
        <source>Sauvegardes</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Fichier</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Aucune sauvegarde pour l&apos;instant : la première se fait d&apos;elle-même, avant votre prochaine modification. Vous pouvez aussi choisir un fichier.</source>
        <translation>Todavía no hay copias de seguridad: la primera se hace por sí sola, antes de su próximo cambio. También puede elegir un archivo.</translation>
    </message>
    <message>
        <source>Rapport</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Choisir un fichier…</source>
        <translation>Elegir un archivo…</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Une table manque :</source>
        <translation>Falta una tabla:</translation>
    </message>
    <message>
        <source>C&apos;est la base en service.</source>
        <translation>Es la base de datos actual.</translation>
    </message>
    <message>
        <source>Cette base est d&apos;une ancienne version : elle est à convertir d&apos;abord.</source>
        <translation>Esta base de datos es de una versión antigua: primero hay que convertirla.</translation>
    </message>
    <message>
        <source>C&apos;est un catalogue de référence, pas une base.</source>
        <translation>Es un catálogo de referencia, no una base de datos.</translation>
    </message>
    <message>
        <source>Cette base est abîmée.</source>
        <translation>Esta base de datos está dañada.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une base de Bulleo.</source>
        <translation>Este archivo no es una base de datos de Bulleo.</translation>
    </message>
    <message>
        <source>Cette base vient d&apos;une version plus récente de Bulleo : il faut celle-là pour l&apos;ouvrir.</source>
        <translation>Esta base viene de una versión más reciente de Bulleo: se necesita esa para abrirla.</translation>
    </message>
    <message numerus="yes">
        <source>Remplacer la base en service par celle du %1, avec %n album(s) ?</source>
        <translation>
            <numerusform>¿Reemplazar la base de datos actual por la del %1, con %n álbum?</numerusform>
            <numerusform>¿Reemplazar la base de datos actual por la del %1, con %n álbumes?</numerusform>
        </translation>
    </message>
    <message>
        <source>Une sauvegarde contient les données, pas les images : leurs dossiers, images et image, se copient à part.</source>
        <translation>Una copia de seguridad contiene los datos, no las imágenes: sus carpetas, images e image, se copian aparte.</translation>
    </message>
</context>
<context>
    <name>Restes</name>
    <message>
        <source>Restes ôtés : %1</source>
        <translation>Restos quitados: %1</translation>
    </message>
</context>
<context>
    <name>Saisie</name>
    <message>
        <source>Donnez au moins un titre.</source>
        <translation>Indique al menos un título.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image lisible.</source>
        <translation>Este archivo no es una imagen legible.</translation>
    </message>
    <message>
        <source>Il manque un nom.</source>
        <translation>Falta un nombre.</translation>
    </message>
</context>
<context>
    <name>Sauvegardes</name>
    <message>
        <source>La liste des copies de sauvegarde ne peut pas être écrite.</source>
        <translation>No se puede escribir la lista de las copias de seguridad.</translation>
    </message>
</context>
<context>
    <name>Scan</name>
    <message>
        <source>L&apos;image ne peut pas être enregistrée.</source>
        <translation>La imagen no se puede guardar.</translation>
    </message>
</context>
<context>
    <name>Secours</name>
    <message>
        <source>Il n&apos;y a aucune sauvegarde qui soit saine.</source>
        <translation>No hay ninguna copia de seguridad en buen estado.</translation>
    </message>
    <message>
        <source>Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté.</source>
        <translation>¿Quiere volver a la copia de seguridad del %1? El archivo dañado se conserva al lado.</translation>
    </message>
    <message>
        <source>Votre base est abîmée, ou n&apos;est plus là.</source>
        <translation>Su base está dañada o ya no está.</translation>
    </message>
</context>
<context>
    <name>Sorties</name>
    <message>
        <source>La liste ne peut pas être imprimée.</source>
        <translation>No se puede imprimir la lista.</translation>
    </message>
    <message>
        <source>La liste ne peut pas être écrite.</source>
        <translation>No se puede escribir la lista.</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source> Sélectionner la liste des </source>
        <translation> Seleccionar la lista de </translation>
    </message>
    <message>
        <source>Importer des albums</source>
        <translation>Importar álbumes</translation>
    </message>
    <message>
        <source>Créer beaucoup d&apos;albums d&apos;un coup, à partir d&apos;un fichier CSV</source>
        <translation>Crear muchos álbumes de una vez, a partir de un archivo CSV</translation>
    </message>
    <message>
        <source>Voir la liste</source>
        <translation>Ver la lista</translation>
    </message>
</context>
<context>
    <name>Statistiques</name>
    <message>
        <source>La page des statistiques ne peut pas être écrite.</source>
        <translation>No se puede escribir la página de estadísticas.</translation>
    </message>
    <message>
        <source>Liens sans fiche ôtés : %1</source>
        <translation>Enlaces sin ficha quitados: %1</translation>
    </message>
    <message>
        <source>Statistiques ...</source>
        <translation>Estadísticas ...</translation>
    </message>
</context>
<context>
    <name>Stats</name>
    <message>
        <source>La page est ouverte dans votre navigateur : %1</source>
        <translation>La página está abierta en su navegador: %1</translation>
    </message>
    <message>
        <source>La page est écrite, mais aucun programme ne l&apos;ouvre : %1</source>
        <translation>La página está escrita, pero ningún programa la abre: %1</translation>
    </message>
    <message>
        <source>Recalculer</source>
        <translation>Volver a calcular</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Genres</source>
        <translation>Géneros</translation>
    </message>
    <message>
        <source>Éditeurs</source>
        <translation>Editoriales</translation>
    </message>
    <message>
        <source>Décennies</source>
        <translation>Décadas</translation>
    </message>
    <message>
        <source>Croissance</source>
        <translation>Crecimiento</translation>
    </message>
    <message>
        <source>Valeur</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Prix d&apos;achat</source>
        <translation>Precio de compra</translation>
    </message>
    <message>
        <source>Albums prêtés</source>
        <translation>Álbumes prestados</translation>
    </message>
    <message>
        <source>Vue d&apos;ensemble</source>
        <translation>Visión general</translation>
    </message>
</context>
<context>
    <name>Supprimer</name>
    <message numerus="yes">
        <source>%n album(s) restent, sans série.</source>
        <translation>
            <numerusform>%n álbum se queda, sin serie.</numerusform>
            <numerusform>%n álbumes se quedan, sin serie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans éditeur.</source>
        <translation>
            <numerusform>%n álbum se queda, sin editorial.</numerusform>
            <numerusform>%n álbumes se quedan, sin editorial.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cette collection.</source>
        <translation>
            <numerusform>%n álbum se queda, sin esta colección.</numerusform>
            <numerusform>%n álbumes se quedan, sin esta colección.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n album(s) restent, sans cet auteur.</source>
        <translation>
            <numerusform>%n álbum se queda, sin este autor.</numerusform>
            <numerusform>%n álbumes se quedan, sin este autor.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cet album est prêté à %1.</source>
        <translation>Este álbum está prestado a %1.</translation>
    </message>
</context>
<context>
    <name>Telechargement</name>
    <message>
        <source>Le serveur est trop lent.</source>
        <translation>El servidor es demasiado lento.</translation>
    </message>
    <message>
        <source>Cette adresse n&apos;est pas une adresse web.</source>
        <translation>Esta dirección no es una dirección web.</translation>
    </message>
    <message>
        <source>Le fichier est trop gros.</source>
        <translation>El archivo es demasiado grande.</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Aucune texture</source>
        <translation>Ninguna textura</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image JPEG lisible.</source>
        <translation>Este archivo no es una imagen JPEG legible.</translation>
    </message>
    <message>
        <source>Répéter l&apos;image au lieu de l&apos;étirer</source>
        <translation>Repetir la imagen en vez de estirarla</translation>
    </message>
</context>
<context>
    <name>Traduction</name>
    <message>
        <source>Le fichier de langue ne peut pas être lu.</source>
        <translation>El archivo de idioma no se puede leer.</translation>
    </message>
    <message>
        <source>Le fichier de langue a un indice qui n&apos;est pas valable.</source>
        <translation>El archivo de idioma tiene un índice no válido.</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas un fichier de langue.</source>
        <translation>Este archivo no es un archivo de idioma.</translation>
    </message>
    <message>
        <source>Le fichier de langue ne peut pas être écrit.</source>
        <translation>El archivo de idioma no se puede escribir.</translation>
    </message>
</context>
<context>
    <name>VoletListes</name>
    <message>
        <source>Votre collection est encore vide. Créez un premier album, ou ouvrez le menu principal.</source>
        <translation>Su colección todavía está vacía. Cree un primer álbum o abra el menú principal.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit avec les albums que vous créez.</source>
        <translation>Por ahora no hay nada aquí. Esta lista se llena con los álbumes que usted crea.</translation>
    </message>
    <message>
        <source>Rien ne correspond à « %1 ».</source>
        <translation>Nada coincide con «%1».</translation>
    </message>
    <message>
        <source>Filtrer la liste (Ctrl+F)</source>
        <translation>Filtrar la lista (Ctrl+F)</translation>
    </message>
    <message>
        <source>%1 — montrer toute la liste</source>
        <translation>%1 — mostrar toda la lista</translation>
    </message>
    <message>
        <source>Ces albums ne sont plus là.</source>
        <translation>Estos álbumes ya no están.</translation>
    </message>
    <message>
        <source>Rien ici pour l&apos;instant. Cette liste se remplit à la main, ligne par ligne.</source>
        <translation>Por ahora no hay nada aquí. Esta lista se llena a mano, línea por línea.</translation>
    </message>
    <message>
        <source>Créer un album</source>
        <translation>Crear un álbum</translation>
    </message>
    <message>
        <source>Entrée précédente ou suivante : Ctrl+Page préc., Ctrl+Page suiv.</source>
        <translation>Entrada anterior o siguiente: Ctrl+Re Pág, Ctrl+Av Pág</translation>
    </message>
</context>
</TS>
