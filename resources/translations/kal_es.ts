<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>DefaultStatus</name>
    <message>
        <source>Offen, zu beseitigen</source>
        <translation>Abierto, por subsanar</translation>
    </message>
    <message>
        <source>Offen, in Arbeit</source>
        <translation>Abierto, en curso</translation>
    </message>
    <message>
        <source>Offen, unzureichend beseitigt</source>
        <translation>Abierto, subsanado de forma insuficiente</translation>
    </message>
    <message>
        <source>Offen, streitig</source>
        <translation>Abierto, en disputa</translation>
    </message>
    <message>
        <source>Erledigt, komplett beseitigt</source>
        <translation>Resuelto, subsanado por completo</translation>
    </message>
    <message>
        <source>Erledigt, teilweise beseitigt</source>
        <translation>Resuelto, subsanado en parte</translation>
    </message>
    <message>
        <source>Erledigt, bleibt</source>
        <translation>Resuelto, se mantiene</translation>
    </message>
    <message>
        <source>Erledigt, streitig abgelehnt</source>
        <translation>Resuelto, rechazado en disputa</translation>
    </message>
</context>
<context>
    <name>KalAddressFile</name>
    <message>
        <source>Die Datei
%1
kann nicht importiert werden:
%2</source>
        <translation>El archivo
%1
no se puede importar:
%2</translation>
    </message>
    <message>
        <source>Die Datei existiert nicht.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>Die Datei ist zu groß für eine Adressdatei.</source>
        <translation>El archivo es demasiado grande para ser un archivo de direcciones.</translation>
    </message>
    <message>
        <source>Die Datei ist keine Textdatei.</source>
        <translation>El archivo no es un archivo de texto.</translation>
    </message>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>Die Datei enthält keine Adressen.</source>
        <translation>El archivo no contiene direcciones.</translation>
    </message>
    <message>
        <source>Spalte %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>Die Datei ist %1 MB groß; eine Adressdatei darf höchstens %2 MB groß sein.</source>
        <translation>El archivo ocupa %1 MB; un archivo de direcciones puede ocupar como máximo %2 MB.</translation>
    </message>
    <message>
        <source>Die Datei enthält nur Spaltenüberschriften, aber keine Adressen.</source>
        <translation>El archivo solo contiene encabezados de columna, pero ninguna dirección.</translation>
    </message>
    <message>
        <source>Das Anführungszeichen in Zeile %1 wird nie geschlossen; der Rest der Datei wäre ein einziges Feld. Bitte korrigieren Sie die Datei.</source>
        <translation>Las comillas de la línea %1 nunca se cierran; el resto del archivo sería un único campo. Corrija el archivo.</translation>
    </message>
    <message>
        <source>Vor- und Nachname</source>
        <translation>Nombre y apellidos</translation>
    </message>
    <message>
        <source>- ignorieren -</source>
        <translation>- ignorar -</translation>
    </message>
    <message>
        <source>Art der Angabe in „%1“</source>
        <translation>Tipo de dato en «%1»</translation>
    </message>
    <message>
        <source>wird nicht übernommen</source>
        <translation>no se importa</translation>
    </message>
    <message>
        <source>Feld und Vorrang je Zeile nach „%1“</source>
        <translation>Campo y prioridad por línea según «%1»</translation>
    </message>
    <message>
        <source>wird in Vor- und Nachname geteilt</source>
        <translation>se divide en nombre y apellidos</translation>
    </message>
    <message>
        <source>nur wenn „%1“ leer ist</source>
        <translation>solo si «%1» está vacío</translation>
    </message>
    <message>
        <source>wird angehängt</source>
        <translation>se añade al final</translation>
    </message>
</context>
<context>
    <name>KalCli</name>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation>El archivo
%1
no existe.</translation>
    </message>
    <message>
        <source>Speicherfehler</source>
        <translation>Error de memoria</translation>
    </message>
    <message>
        <source>Für diesen Vorgang reicht der Arbeitsspeicher nicht; er wurde abgebrochen.</source>
        <translation>No hay memoria suficiente para esta operación; se ha cancelado.</translation>
    </message>
</context>
<context>
    <name>KalCliImportJournal</name>
    <message>
        <source>Ohne --yes bleiben Datensätze, die auf einer Seite gelöscht wurden, unverändert; das Programm fragt beim nächsten Import danach.</source>
        <translation>Sin --yes, los registros borrados en uno de los lados quedan como están; el programa preguntará por ellos en la próxima importación.</translation>
    </message>
    <message>
        <source>Datenimport aus dem Bautagebuch</source>
        <translation>Importación de datos del diario de obra</translation>
    </message>
    <message>
        <source>Das Projekt ist mit dem Bautagebuch
%1
verknüpft. Soll es stattdessen mit
%2
verknüpft und daraus importiert werden?</source>
        <translation>El proyecto está vinculado al diario de obra
%1
¿Desea vincularlo en su lugar a
%2
e importar desde él?</translation>
    </message>
    <message>
        <source>Neu verknüpfen</source>
        <translation>Volver a vincular</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist die Projektdatei selbst und keine Bautagebuch-Datei.</source>
        <translation>El archivo
%1
es el propio archivo del proyecto y no un archivo de diario de obra.</translation>
    </message>
</context>
<context>
    <name>KalCommandLine</name>
    <message>
        <source>
ungültiger connect Mode: %1</source>
        <translation>
modo de conexión no válido: %1</translation>
    </message>
    <message>
        <source>
Parameter Pellwick-Datei fehlt.</source>
        <translation>
Falta el parámetro del archivo de Pellwick.</translation>
    </message>
    <message>
        <source>
Die Pellwick-Datei existiert nicht.</source>
        <translation>
El archivo de Pellwick no existe.</translation>
    </message>
    <message>
        <source>
Parameter Bautagebuch-Datei fehlt.</source>
        <translation>
Falta el parámetro del archivo del diario de obra.</translation>
    </message>
    <message>
        <source>
Die Bautagebuch-Datei %1 existiert nicht.</source>
        <translation>
El archivo del diario de obra %1 no existe.</translation>
    </message>
    <message>
        <source>Die vom Bautagebuch Programm übergebenen Parameter sind fehlerhaft:

</source>
        <translation>Los parámetros transmitidos por el programa del diario de obra son incorrectos:

</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
</context>
<context>
    <name>KalCompanies</name>
    <message>
        <source>Es konnte keine neue Id vergeben werden.</source>
        <translation>No se pudo asignar un nuevo id.</translation>
    </message>
</context>
<context>
    <name>KalCompanyDialog</name>
    <message>
        <source>Gewerk / Baufirma anlegen</source>
        <translation>Crear oficio / empresa constructora</translation>
    </message>
    <message>
        <source>Ansprechpartner</source>
        <translation>Persona de contacto</translation>
    </message>
    <message>
        <source>Gewerk:</source>
        <translation>Oficio:</translation>
    </message>
    <message>
        <source>Vorname:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Nachname:</source>
        <translation>Apellidos:</translation>
    </message>
    <message>
        <source>Firma:</source>
        <translation>Empresa:</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Bitte geben Sie mindestens ein Gewerk, einen Namen oder eine Firma ein.</source>
        <translation>Introduzca al menos un oficio, un nombre o una empresa.</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Die Firma konnte nicht gespeichert werden.</source>
        <translation>No se ha podido guardar la empresa.</translation>
    </message>
</context>
<context>
    <name>KalCompanyFormat</name>
    <message>
        <source>- leer -</source>
        <translation>- vacío -</translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation>Oficio</translation>
    </message>
    <message>
        <source>Vorname</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Nachname</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Straße</source>
        <translation>Calle</translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Telefon</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Handy</source>
        <translation>Teléfono móvil</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Architekt</source>
        <translation>Arquitecto</translation>
    </message>
</context>
<context>
    <name>KalCompanyImport</name>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation>El archivo
%1
no existe.</translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht geöffnet werden:
%2</source>
        <translation>El archivo
%1
no se ha podido abrir:
%2</translation>
    </message>
    <message>
        <source>Die Firmen der Datei
%1
konnten nicht gelesen werden:
%2</source>
        <translation>Las empresas del archivo
%1
no se han podido leer:
%2</translation>
    </message>
    <message>
        <source>Die Datei
%1
enthält keine Firmen.</source>
        <translation>El archivo
%1
no contiene empresas.</translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation>Oficio</translation>
    </message>
    <message>
        <source>Vorname</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Nachname</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Straße</source>
        <translation>Calle</translation>
    </message>
    <message>
        <source>PLZ</source>
        <translation>C.P.</translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Telefon</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Mobil</source>
        <translation>Móvil</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist keine Pellwick-Projektdatei.</source>
        <translation>El archivo
%1
no es un archivo de proyecto de Pellwick.</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist keine Bautagebuch-Datei.</source>
        <translation>El archivo
%1
no es un archivo de diario de obra.</translation>
    </message>
    <message>
        <source>Es ist kein Projekt geöffnet.</source>
        <translation>No hay ningún proyecto abierto.</translation>
    </message>
    <message>
        <source>Das Projekt ist schreibgeschützt; es können keine Firmen importiert werden.</source>
        <translation>El proyecto está protegido contra escritura; no se pueden importar empresas.</translation>
    </message>
    <message>
        <source>Die geänderten Firmen konnten nicht gespeichert werden:
%1</source>
        <translation>No se han podido guardar las empresas modificadas:
%1</translation>
    </message>
    <message>
        <source>Die Firmen konnten nicht importiert werden:
%1</source>
        <translation>No se han podido importar las empresas:
%1</translation>
    </message>
    <message>
        <source>Es konnte keine neue Id vergeben werden.</source>
        <translation>No se ha podido asignar un nuevo identificador.</translation>
    </message>
</context>
<context>
    <name>KalCompanyImportDialog</name>
    <message>
        <source>Firmen importieren</source>
        <translation>Importar empresas</translation>
    </message>
    <message>
        <source>Adressdatei</source>
        <translation>Archivo de direcciones</translation>
    </message>
    <message>
        <source>; (Semikolon)</source>
        <translation>; (punto y coma)</translation>
    </message>
    <message>
        <source>, (Komma)</source>
        <translation>, (coma)</translation>
    </message>
    <message>
        <source>Tabulator</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>| (senkrechter Strich)</source>
        <translation>| (barra vertical)</translation>
    </message>
    <message>
        <source>Erste Zeile enthält Spaltenüberschriften</source>
        <translation>La primera fila contiene los encabezados de columna</translation>
    </message>
    <message>
        <source>Ordnen Sie in der ersten Zeile jeder Spalte das passende Feld zu.</source>
        <translation>En la primera fila de cada columna, asigne el campo correspondiente.</translation>
    </message>
    <message>
        <source>Trennzeichen:</source>
        <translation>Separador:</translation>
    </message>
    <message>
        <source>Zeichensatz:</source>
        <translation>Juego de caracteres:</translation>
    </message>
    <message>
        <source>Zu importierende Firmen</source>
        <translation>Empresas que se importarán</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation>Oficio</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Alle auswählen</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Keine auswählen</source>
        <translation>No seleccionar ninguna</translation>
    </message>
    <message>
        <source>Importieren</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Quelle: %1</source>
        <translation>Origen: %1</translation>
    </message>
    <message>
        <source>Feld</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>- ignorieren -</source>
        <translation>- ignorar -</translation>
    </message>
    <message>
        <source>bereits vorhanden</source>
        <translation>ya existe</translation>
    </message>
    <message>
        <source>Eine Firma ist im Projekt bereits vorhanden (rot markiert) und wurde nicht ausgewählt.</source>
        <translation>Una empresa ya existe en el proyecto (marcada en rojo) y no se ha seleccionado.</translation>
    </message>
    <message>
        <source>%1 Firmen sind im Projekt bereits vorhanden (rot markiert) und wurden nicht ausgewählt.</source>
        <translation>%1 empresas ya existen en el proyecto (marcadas en rojo) y no se han seleccionado.</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Die Firmen konnten nicht importiert werden.</source>
        <translation>No se han podido importar las empresas.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Eine Firma wurde importiert.</source>
        <translation>Se ha importado una empresa.</translation>
    </message>
    <message>
        <source>%1 Firmen wurden importiert.</source>
        <translation>Se han importado %1 empresas.</translation>
    </message>
    <message>
        <source>Alle Spalten mit Inhalt werden übernommen.</source>
        <translation>Se importan todas las columnas con contenido.</translation>
    </message>
    <message>
        <source>Nicht übernommen werden die Spalten: %1</source>
        <translation>No se importan las columnas: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) haben mehr Felder als die Überschriftenzeile; die zusätzlichen Felder stehen in eigenen Spalten.</source>
        <translation>
            <numerusform>%n línea tiene más campos que la línea de encabezado; los campos adicionales están en columnas propias.</numerusform>
            <numerusform>%n líneas tienen más campos que la línea de encabezado; los campos adicionales están en columnas propias.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KalCompanyImportSelectDialog</name>
    <message>
        <source>Quelle wählen</source>
        <translation>Elegir origen</translation>
    </message>
    <message>
        <source>&amp;Externe Adress-Datei</source>
        <translation>Archivo de direcciones &amp;externo</translation>
    </message>
    <message>
        <source>Andere &amp;Pellwick-Datei</source>
        <translation>Otro archivo de &amp;Pellwick</translation>
    </message>
    <message>
        <source>Quellor &amp;Bautagebuch</source>
        <translation>&amp;Diario de obra de Quellor</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Zu importierende Adressdatei auswählen</source>
        <translation>Elegir el archivo de direcciones que desea importar</translation>
    </message>
    <message>
        <source>Pellwick-Datei auswählen</source>
        <translation>Elegir archivo de Pellwick</translation>
    </message>
    <message>
        <source>Bautagebuch-Datei auswählen</source>
        <translation>Elegir archivo del diario de obra</translation>
    </message>
    <message>
        <source>Adressdateien (*.csv *.txt *asc *.tab *.prn);;alle Dateien (*.*)</source>
        <translation>Archivos de direcciones (*.csv *.txt *asc *.tab *.prn);;todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Pellwick Projekt (*.pwp)</source>
        <translation>Proyecto de Pellwick (*.pwp)</translation>
    </message>
    <message>
        <source>Bautagebuch (*.sjd)</source>
        <translation>Diario de obra (*.sjd)</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Die Firmen können nicht aus dem geöffneten Projekt selbst importiert werden.</source>
        <translation>Las empresas no se pueden importar del propio proyecto abierto.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Die Datei %1 enthält keine Firmen.</source>
        <translation>El archivo %1 no contiene empresas.</translation>
    </message>
</context>
<context>
    <name>KalCompleter</name>
    <message>
        <source>Autotexte</source>
        <translation>Textos automáticos</translation>
    </message>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der Texte, die bisher in dieses Feld eingetragen wurden.

Für dieses Feld sind noch keine Texte gespeichert oder die Funktion ist ausgeschaltet. Jeder Text, den Sie hier eingeben, wird in die Liste aufgenommen und beim nächsten Mal vorgeschlagen.
Mit „Autotexte bearbeiten“ können Sie die Listen aller Felder ändern und die Funktion für einzelne Felder ein- oder ausschalten.</source>
        <translation>Esta función inserta automáticamente los textos que se han introducido hasta ahora en este campo.

Todavía no hay textos guardados para este campo o la función está desactivada. Cada texto que introduzca aquí se añade a la lista y se propone la próxima vez.
Con «Editar textos automáticos» puede modificar las listas de todos los campos y activar o desactivar la función para cada campo.</translation>
    </message>
    <message>
        <source>Autotexte bearbeiten</source>
        <translation>Editar textos automáticos</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
</context>
<context>
    <name>KalCompleterDialog</name>
    <message>
        <source>Autovervollständigen bearbeiten</source>
        <translation>Editar autocompletado</translation>
    </message>
    <message>
        <source>Alle</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Eintrag hinzufügen</source>
        <translation>Añadir entrada</translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation>Eliminar entrada</translation>
    </message>
    <message>
        <source>Alles löschen</source>
        <translation>Eliminar todo</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>&lt;Neuer Eintrag&gt;</source>
        <translation>&lt;Nueva entrada&gt;</translation>
    </message>
    <message>
        <source>Alle Completer zurücksetzen</source>
        <translation>Restablecer todos los textos automáticos</translation>
    </message>
    <message>
        <source>Alle Completer werden auf den Auslieferungszustand zurückgesetzt.
Alle eingegebenen Textvorschläge werden dabei gelöscht!</source>
        <translation>Todos los textos automáticos vuelven a su estado original.
¡Se eliminarán todas las propuestas de texto introducidas!</translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation>Descartar cambios</translation>
    </message>
    <message>
        <source>Sollen die Änderungen verworfen werden?</source>
        <translation>¿Desea descartar los cambios?</translation>
    </message>
</context>
<context>
    <name>KalCompleterLineEdit</name>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der 
Texte, die bisher in dieses Feld eingetragen wurden.</source>
        <translation>Esta función inserta automáticamente los 
textos que se han introducido hasta ahora en este campo.</translation>
    </message>
</context>
<context>
    <name>KalCompleterModel</name>
    <message>
        <source>Feld</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Aktiv</source>
        <translation>Activo</translation>
    </message>
</context>
<context>
    <name>KalCompleterStore</name>
    <message>
        <source>Mängel</source>
        <translation>Defectos</translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation>Planos</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Firmen</source>
        <translation>Empresas</translation>
    </message>
    <message>
        <source>Kal</source>
        <translation>Kal</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Autor</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Raumbuch-Nr.</source>
        <translation>N.º de libro de estancias</translation>
    </message>
    <message>
        <source>Beseitigungsanweisung</source>
        <translation>Instrucción de subsanación</translation>
    </message>
    <message>
        <source>Priorität</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Plan-Name oder Nummer</source>
        <translation>Nombre o número del plano</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Titel</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Mangel vor Abnahme (§ 4 Nr. 7 VOB/B)</source>
        <translation>Defecto antes de la recepción (§ 4 n.º 7 VOB/B)</translation>
    </message>
    <message>
        <source>Gewährleistungsmangel (§ 13 Abs. 5 Nr. 1 VOB/B)</source>
        <translation>Defecto en garantía (§ 13 ap. 5 n.º 1 VOB/B)</translation>
    </message>
    <message>
        <source>Mangelfolgeschaden</source>
        <translation>Daño derivado del defecto</translation>
    </message>
    <message>
        <source>Mangel im Bestand</source>
        <translation>Defecto en edificio existente</translation>
    </message>
    <message>
        <source>Büro</source>
        <translation>Oficina</translation>
    </message>
    <message>
        <source>Küche</source>
        <translation>Cocina</translation>
    </message>
    <message>
        <source>WC</source>
        <translation>Aseo</translation>
    </message>
    <message>
        <source>Flur</source>
        <translation>Pasillo</translation>
    </message>
    <message>
        <source>Treppenhaus</source>
        <translation>Escalera</translation>
    </message>
    <message>
        <source>Zimmer</source>
        <translation>Habitación</translation>
    </message>
    <message>
        <source>UG-001</source>
        <translation>S-001</translation>
    </message>
    <message>
        <source>EG-001</source>
        <translation>PB-001</translation>
    </message>
    <message>
        <source>OG-001</source>
        <translation>P1-001</translation>
    </message>
    <message>
        <source>DG-001</source>
        <translation>BC-001</translation>
    </message>
    <message>
        <source>Hoch</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Niedrig</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Raumname</source>
        <translation>Nombre de la estancia</translation>
    </message>
</context>
<context>
    <name>KalCompleterTextEdit</name>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der 
Texte, die bisher in dieses Feld eingetragen wurden.</source>
        <translation>Esta función inserta automáticamente los 
textos que se han introducido hasta ahora en este campo.</translation>
    </message>
    <message>
        <source>Zum Wörterbuch hinzufügen</source>
        <translation>Añadir al diccionario</translation>
    </message>
    <message>
        <source>Rechtschreibung prüfen</source>
        <translation>Revisar ortografía</translation>
    </message>
</context>
<context>
    <name>KalDatabaseSchema</name>
    <message>
        <source>interner Fehler</source>
        <translation>error interno</translation>
    </message>
    <message>
        <source>Datenbank-Initialisierung fehlgeschlagen.</source>
        <translation>Ha fallado la inicialización de la base de datos.</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Quellor</source>
        <translation>Quellor</translation>
    </message>
    <message>
        <source>Pellwick</source>
        <translation>Pellwick</translation>
    </message>
    <message>
        <source>www.quellor.de</source>
        <translation>www.quellor.de</translation>
    </message>
    <message>
        <source>Für die Tabelle &quot;%1&quot; kann keine neue Id mehr vergeben werden.</source>
        <translation>Ya no se pueden asignar nuevos id para la tabla &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>KalDateEdit</name>
    <message>
        <source>Datum auswählen</source>
        <translation>Elegir fecha</translation>
    </message>
    <message>
        <source>Format-Fehler</source>
        <translation>Error de formato</translation>
    </message>
    <message>
        <source>Das eingegebene Datum ist nicht korrekt.
Bitte verwenden Sie das Format %1!</source>
        <translation>La fecha introducida no es correcta.
¡Utilice el formato %1!</translation>
    </message>
</context>
<context>
    <name>KalDefectCsv</name>
    <message>
        <source>Die Mängelliste konnte nicht gelesen werden:
%1</source>
        <translation>No se ha podido leer la lista de defectos:
%1</translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht geschrieben werden:
%2</source>
        <translation>El archivo
%1
no se ha podido escribir:
%2</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Es ist kein Projekt geöffnet.</source>
        <translation>No hay ningún proyecto abierto.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Die Mängelliste kann nicht in die Projektdatei selbst oder eine ihrer Begleitdateien geschrieben werden:
%1</source>
        <translation>La lista de defectos no se puede escribir en el propio archivo del proyecto ni en uno de sus archivos asociados:
%1</translation>
    </message>
    <message>
        <source>Für die Mängelliste reicht der Arbeitsspeicher nicht.</source>
        <translation>No hay memoria suficiente para la lista de defectos.</translation>
    </message>
</context>
<context>
    <name>KalDefectEditor</name>
    <message>
        <source>Tragen Sie hier die Initialen der Person ein, die den Mangel erfasst hat
(höchstens zwei Buchstaben, z. B. &quot;KM&quot; für Karl Mustermann).
Kleinbuchstaben werden automatisch in Großbuchstaben umgewandelt.</source>
        <translation>Introduzca aquí las iniciales de la persona que registró el defecto
(dos letras como máximo, p. ej., «JP» para Juan Pérez).
Las minúsculas se convierten automáticamente en mayúsculas.</translation>
    </message>
    <message>
        <source>Mangel bearbeiten</source>
        <translation>Editar defecto</translation>
    </message>
    <message>
        <source>Erfassung</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Hinweis zum Feld &quot;Erfasst von&quot;</source>
        <translation>Nota sobre el campo «Registrado por»</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Erfasst von</source>
        <translation>Registrado por</translation>
    </message>
    <message>
        <source>Erfasst am</source>
        <translation>Registrado el</translation>
    </message>
    <message>
        <source>Lokalisierung</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Plan austauschen</source>
        <translation>Sustituir plano</translation>
    </message>
    <message>
        <source>Marker bearbeiten</source>
        <translation>Editar marcador</translation>
    </message>
    <message>
        <source>Fotos hinzufügen</source>
        <translation>Añadir fotos</translation>
    </message>
    <message>
        <source>Raumname</source>
        <translation>Nombre de la estancia</translation>
    </message>
    <message>
        <source>Raumbuch-Nr.</source>
        <translation>N.º de libro de estancias</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Management</source>
        <translation>Gestión</translation>
    </message>
    <message>
        <source>3. Nachfrist</source>
        <translation>3.ª prórroga</translation>
    </message>
    <message>
        <source>Minderung</source>
        <translation>Reducción de precio</translation>
    </message>
    <message>
        <source>Beseitigungsanweisung</source>
        <translation>Instrucción de subsanación</translation>
    </message>
    <message>
        <source>Priorität</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Frist</source>
        <translation>Plazo</translation>
    </message>
    <message>
        <source>1. Nachfrist</source>
        <translation>1.ª prórroga</translation>
    </message>
    <message>
        <source>2. Nachfrist</source>
        <translation>2.ª prórroga</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Nuevo...</translation>
    </message>
    <message>
        <source>%1 (Index %2)</source>
        <translation>%1 (índice %2)</translation>
    </message>
    <message>
        <source>Planzuordnung aufheben</source>
        <translation>Quitar la asignación del plano</translation>
    </message>
    <message>
        <source>Neuen Status anlegen</source>
        <translation>Crear estado nuevo</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Sie können hier einen neuen Status für dieses Projekt anlegen</source>
        <translation>Aquí puede crear un estado nuevo para este proyecto</translation>
    </message>
    <message>
        <source>Fotos bearbeiten</source>
        <translation>Editar fotos</translation>
    </message>
    <message>
        <source>Als Autor können Sie nur Initialen eingeben: höchstens zwei Buchstaben.</source>
        <translation>Como autor solo puede introducir iniciales: como máximo dos letras.</translation>
    </message>
    <message>
        <source>Dem Mangel ist bereits ein Plan zugeordnet.
Soll der Plan tatsächlich ausgetauscht werden?</source>
        <translation>El defecto ya tiene un plano asignado.
¿Realmente desea cambiar el plano?</translation>
    </message>
    <message>
        <source>Plan auswählen</source>
        <translation>Seleccionar plano</translation>
    </message>
    <message>
        <source>Diesem Mangel ist noch kein Plan zugeordnet.
Wählen Sie zuerst im Feld &quot;Plan&quot; einen Plan aus.</source>
        <translation>Este defecto aún no tiene ningún plano asignado.
Elija primero un plano en el campo &quot;Plano&quot;.</translation>
    </message>
</context>
<context>
    <name>KalDefectFilter</name>
    <message>
        <source>Nach Firma
</source>
        <translation>Por empresa
</translation>
    </message>
    <message>
        <source>Nach Status
</source>
        <translation>Por estado
</translation>
    </message>
    <message>
        <source>Nach Typ
</source>
        <translation>Por tipo
</translation>
    </message>
    <message>
        <source>Nach Raum
</source>
        <translation>Por estancia
</translation>
    </message>
    <message>
        <source>Nach Raumbuch-Nr.
</source>
        <translation>Por n.º de libro de estancias
</translation>
    </message>
    <message>
        <source>Nach Priorität
</source>
        <translation>Por prioridad
</translation>
    </message>
    <message>
        <source>Datenauswahl zur Mängelliste</source>
        <translation>Selección de datos para la lista de defectos</translation>
    </message>
    <message>
        <source>Fehleingabe bei der Datenauswahl der Mängelliste</source>
        <translation>Error de entrada en la selección de datos de la lista de defectos</translation>
    </message>
    <message>
        <source>Fehler bei den Erfassungsdaten:
 Das Von-Datum muss vor dem Bis-Datum liegen.</source>
        <translation>Error en las fechas de registro:
 La fecha inicial debe ser anterior a la fecha final.</translation>
    </message>
    <message>
        <source>Sie haben folgende Filter eingeschaltet ohne eine Auswahl zu treffen:
</source>
        <translation>Ha activado los siguientes filtros sin hacer ninguna selección:
</translation>
    </message>
    <message>
        <source>Die Liste der ausgewählten Mängel ist leer, da kein Mangel die eingestellten Auswahlkriterien erfüllt.</source>
        <translation>La lista de defectos seleccionados está vacía porque ningún defecto cumple los criterios de selección.</translation>
    </message>
    <message>
        <source>Beachten Sie, dass das Von-Datum vor dem Bis-Datum liegen muss.</source>
        <translation>Tenga en cuenta que la fecha inicial debe ser anterior a la fecha final.</translation>
    </message>
</context>
<context>
    <name>KalDefects</name>
    <message>
        <source>Eine Firma mit der Id %1 gibt es in diesem Projekt nicht.</source>
        <translation>En este proyecto no existe ninguna empresa con el id %1.</translation>
    </message>
    <message>
        <source>Einen Status mit der Id %1 gibt es in diesem Projekt nicht.</source>
        <translation>En este proyecto no existe ningún estado con el id %1.</translation>
    </message>
    <message>
        <source>Als Autor sind höchstens zwei Großbuchstaben (Initialen) erlaubt, nicht &quot;%1&quot;.</source>
        <translation>Como autor se permiten como máximo dos mayúsculas (iniciales), no &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Der Mangel konnte nicht gespeichert werden.</source>
        <translation>No se pudo guardar el defecto.</translation>
    </message>
    <message>
        <source>Die Mängel konnten nicht kopiert werden.</source>
        <translation>No se pudieron copiar los defectos.</translation>
    </message>
</context>
<context>
    <name>KalFilterDialog</name>
    <message>
        <source>Datenauswahl zur Mängelliste</source>
        <translation>Selección de datos para la lista de defectos</translation>
    </message>
    <message>
        <source>Filtern der Mängel</source>
        <translation>Filtrar los defectos</translation>
    </message>
    <message>
        <source>Um nur bestimmte Mängel zu drucken, setzen Sie bitte die entsprechenden Filter. 
Um alle Mängel zu drucken, entfernen Sie sämtliche Häkchen.</source>
        <translation>Para imprimir solo determinados defectos, active los filtros correspondientes. 
Para imprimir todos los defectos, quite todas las marcas.</translation>
    </message>
    <message>
        <source>Nach Erfassungsdatum</source>
        <translation>Por fecha de registro</translation>
    </message>
    <message>
        <source>von</source>
        <translation>desde</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>hasta</translation>
    </message>
    <message>
        <source>Nach  Fristablauf spätestens:</source>
        <translation>Por plazo, que vence a más tardar el:</translation>
    </message>
    <message>
        <source>Nach Firma</source>
        <translation>Por empresa</translation>
    </message>
    <message>
        <source>Mängel ohne Firmenzuordnung</source>
        <translation>Defectos sin empresa asignada</translation>
    </message>
    <message>
        <source>Nach Status</source>
        <translation>Por estado</translation>
    </message>
    <message>
        <source>Nach Typ</source>
        <translation>Por tipo</translation>
    </message>
    <message>
        <source>Nach Raum</source>
        <translation>Por estancia</translation>
    </message>
    <message>
        <source>Nach Raumbuch-Nr.</source>
        <translation>Por n.º de libro de estancias</translation>
    </message>
    <message>
        <source>Nach Priorität</source>
        <translation>Por prioridad</translation>
    </message>
    <message>
        <source>Nach Minderung</source>
        <translation>Por reducción de precio</translation>
    </message>
    <message>
        <source>mit Minderung</source>
        <translation>con reducción de precio</translation>
    </message>
    <message>
        <source>ohne Minderung</source>
        <translation>sin reducción de precio</translation>
    </message>
    <message>
        <source>Alle Filter zurücksetzen</source>
        <translation>Restablecer todos los filtros</translation>
    </message>
    <message>
        <source>Auswahl</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Alle wählen</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Auswahl aufheben</source>
        <translation>Anular la selección</translation>
    </message>
    <message>
        <source>Auswahl umkehren</source>
        <translation>Invertir la selección</translation>
    </message>
    <message>
        <source>Sortierung</source>
        <translation>Ordenación</translation>
    </message>
    <message>
        <source>nach Nummer</source>
        <translation>por número</translation>
    </message>
    <message>
        <source>nach Firmenname</source>
        <translation>por nombre de empresa</translation>
    </message>
    <message>
        <source>nach Erfassungsdatum</source>
        <translation>por fecha de registro</translation>
    </message>
    <message>
        <source>nach Frist</source>
        <translation>por plazo</translation>
    </message>
    <message>
        <source>aufsteigend</source>
        <translation>ascendente</translation>
    </message>
    <message>
        <source>absteigend</source>
        <translation>descendente</translation>
    </message>
    <message>
        <source>Fotos und Pläne</source>
        <translation>Fotos y planos</translation>
    </message>
    <message>
        <source>Ausgabe der Fotos innerhalb der Liste</source>
        <translation>Imprimir las fotos dentro de la lista</translation>
    </message>
    <message>
        <source>Ausgabe der Fotos als Anhang</source>
        <translation>Imprimir las fotos como anexo</translation>
    </message>
    <message>
        <source>Ausgabe der Pläne als Anhang</source>
        <translation>Imprimir los planos como anexo</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Druckvorschau</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>PDF speichern</source>
        <translation>Guardar PDF</translation>
    </message>
    <message>
        <source>Speichern und beenden</source>
        <translation>Guardar y cerrar</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Möchten Sie das Häkchen entfernen?

Dann klicken Sie bitte nochmals. Beim ersten Klick wird die Auswahl-Liste des Filters geladen, erst beim zweiten Klick wird das Häkchen entfernt.
</source>
        <translation>¿Desea quitar la marca?

Entonces haga clic de nuevo. El primer clic carga la lista de selección del filtro; solo el segundo clic quita la marca.
</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Wollen Sie wirklich alle Filter, Daten und Auswahllisten zurücksetzen?</source>
        <translation>¿Realmente desea restablecer todos los filtros, fechas y listas de selección?</translation>
    </message>
    <message>
        <source>Fortfahren</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>PDF je Firma</source>
        <translation>PDF por empresa</translation>
    </message>
    <message>
        <source>Für jede Firma der Liste eine eigene PDF-Datei mit nur ihren Mängeln speichern</source>
        <translation>Guardar un archivo PDF propio para cada empresa de la lista, solo con sus defectos</translation>
    </message>
</context>
<context>
    <name>KalFontCheck</name>
    <message>
        <source>Fehlende Schriften im Fotoeditor</source>
        <translation>Fuentes que faltan en el editor de fotos</translation>
    </message>
    <message>
        <source>Folgende Schriften sind auf Ihrem System nicht installiert:</source>
        <translation>Las siguientes fuentes no están instaladas en su sistema:</translation>
    </message>
    <message>
        <source>
Sie müssen diese Schriften installieren, um den vollen Funktionsumfang des Fotoeditors nutzen zu können.</source>
        <translation>
Debe instalar estas fuentes para poder usar todas las funciones del editor de fotos.</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
</context>
<context>
    <name>KalItemDelegate</name>
    <message>
        <source>Format-Fehler</source>
        <translation>Error de formato</translation>
    </message>
    <message>
        <source>Das eingegebene Datum ist nicht korrekt.
Bitte verwenden Sie das Format %1!</source>
        <translation>La fecha introducida no es correcta.
¡Utilice el formato %1!</translation>
    </message>
</context>
<context>
    <name>KalLanguageDialog</name>
    <message>
        <source>Sprachauswahl</source>
        <translation>Selección de idioma</translation>
    </message>
    <message>
        <source>Sprache wählen</source>
        <translation>Elegir idioma</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>Spanisch</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Englisch (Großbritannien)</source>
        <translation>Inglés (Reino Unido)</translation>
    </message>
    <message>
        <source>Englisch (USA)</source>
        <translation>Inglés (EE. UU.)</translation>
    </message>
    <message>
        <source>Die gewählte Sprache wird nach einem Neustart der Anwendung aktiviert.</source>
        <translation>El idioma elegido se activa después de reiniciar la aplicación.</translation>
    </message>
    <message>
        <source>Sprache wurde geändert</source>
        <translation>Se ha cambiado el idioma</translation>
    </message>
    <message>
        <source>Soll das Programm jetzt neu gestartet werden?</source>
        <translation>¿Desea reiniciar el programa ahora?</translation>
    </message>
    <message>
        <source>(Die neue Spracheinstellung erfordert einen Programm-Neustart)</source>
        <translation>(La nueva configuración de idioma requiere reiniciar el programa)</translation>
    </message>
    <message>
        <source>Jetzt neu starten</source>
        <translation>Reiniciar ahora</translation>
    </message>
    <message>
        <source>Später neu starten</source>
        <translation>Reiniciar más tarde</translation>
    </message>
</context>
<context>
    <name>KalLogoDialog</name>
    <message>
        <source>Logo bearbeiten</source>
        <translation>Editar logotipo</translation>
    </message>
    <message>
        <source>Logohöhe im Druck:</source>
        <translation>Altura del logotipo impreso:</translation>
    </message>
    <message>
        <source>Höhe der Logos auf der gedruckten Seite</source>
        <translation>Altura de los logotipos en la página impresa</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Die Logos stehen unter den Texten der Kopfzeile statt darüber</source>
        <translation>Los logotipos se colocan debajo de los textos del encabezado en lugar de encima</translation>
    </message>
    <message>
        <source>Logos unter Kopfzeile anzeigen</source>
        <translation>Mostrar logotipos debajo del encabezado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Erstes Logo</source>
        <translation>Primer logotipo</translation>
    </message>
    <message>
        <source>Zweites Logo</source>
        <translation>Segundo logotipo</translation>
    </message>
</context>
<context>
    <name>KalLogoPanel</name>
    <message>
        <source>Ein Bild als Logo für den Kopf der gedruckten Listen wählen</source>
        <translation>Elegir una imagen como logotipo para el encabezado de las listas impresas</translation>
    </message>
    <message>
        <source>Neues Logo einfügen</source>
        <translation>Insertar logotipo nuevo</translation>
    </message>
    <message>
        <source>Dieses Logo aus dem Projekt entfernen</source>
        <translation>Quitar este logotipo del proyecto</translation>
    </message>
    <message>
        <source>Aktuelles Logo entfernen</source>
        <translation>Quitar logotipo actual</translation>
    </message>
    <message>
        <source>Ausrichtung:</source>
        <translation>Alineación:</translation>
    </message>
    <message>
        <source>Das Logo steht am linken Rand</source>
        <translation>El logotipo se coloca en el margen izquierdo</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Das Logo steht in der Mitte</source>
        <translation>El logotipo se coloca en el centro</translation>
    </message>
    <message>
        <source>Zentriert</source>
        <translation>Centrado</translation>
    </message>
    <message>
        <source>Das Logo steht am rechten Rand</source>
        <translation>El logotipo se coloca en el margen derecho</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Kein Logo</source>
        <translation>Sin logotipo</translation>
    </message>
    <message>
        <source>Logo auswählen</source>
        <translation>Seleccionar logotipo</translation>
    </message>
    <message>
        <source>Bilder (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</source>
        <translation>Imágenes (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</translation>
    </message>
    <message>
        <source>Die Datei
%1
kann nicht als Logo verwendet werden:
%2</source>
        <translation>El archivo
%1
no se puede usar como logotipo:
%2</translation>
    </message>
</context>
<context>
    <name>KalMainWindow</name>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!</source>
        <translation>¡Se ha producido un error al crear un proyecto nuevo!</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Neues Projekt anlegen</source>
        <translation>Crear un proyecto nuevo</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Speichern unter</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Projekt unter einem neuen Namen speichern</source>
        <translation>Guardar el proyecto con un nombre nuevo</translation>
    </message>
    <message>
        <source>Datenbank bereinigen</source>
        <translation>Depurar base de datos</translation>
    </message>
    <message>
        <source>Mangel hinzufügen</source>
        <translation>Añadir defecto</translation>
    </message>
    <message>
        <source>neue Mängel</source>
        <translation>nuevos defectos</translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation>Planos</translation>
    </message>
    <message>
        <source>Planverwaltung öffnen</source>
        <translation>Abrir gestión de planos</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Statusverwaltung öffnen</source>
        <translation>Abrir gestión de estados</translation>
    </message>
    <message>
        <source>Projektdaten bearbeiten</source>
        <translation>Editar datos del proyecto</translation>
    </message>
    <message>
        <source>Firmenliste bearbeiten</source>
        <translation>Editar lista de empresas</translation>
    </message>
    <message>
        <source>Firmendaten Ausgabeformat</source>
        <translation>Formato de salida de los datos de empresa</translation>
    </message>
    <message>
        <source>Logo hinzufügen / bearbeiten</source>
        <translation>Añadir / editar logotipo</translation>
    </message>
    <message>
        <source>Mängelliste kompakt</source>
        <translation>Lista de defectos compacta</translation>
    </message>
    <message>
        <source>Mängelliste detailliert</source>
        <translation>Lista de defectos detallada</translation>
    </message>
    <message>
        <source>Druckvorschau</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>Mängel und Firmen aus einem Bautagebuch importieren</source>
        <translation>Importar defectos y empresas de un diario de obra</translation>
    </message>
    <message>
        <source>Mängel und Firmen aus dem Bautagebuch aktualisieren</source>
        <translation>Actualizar defectos y empresas desde el diario de obra</translation>
    </message>
    <message>
        <source>Automatischen Import neuer Mängel und Firmen einschalten</source>
        <translation>Activar la importación automática de defectos y empresas nuevos</translation>
    </message>
    <message>
        <source>Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten</source>
        <translation>Activar la importación y actualización automáticas de defectos y empresas existentes</translation>
    </message>
    <message>
        <source>Mängel und Firmen aus der Quellor App importieren
</source>
        <translation>Importar defectos y empresas de la app de Quellor
</translation>
    </message>
    <message>
        <source>Importiert Mängel aus der Quellor App</source>
        <translation>Importa defectos de la app de Quellor</translation>
    </message>
    <message>
        <source>Import von Firmen aus anderer Pellwick-Datei</source>
        <translation>Importar empresas de otro archivo de Pellwick</translation>
    </message>
    <message>
        <source>Import von Firmen aus Quellor Bautagebuch</source>
        <translation>Importar empresas del diario de obra de Quellor</translation>
    </message>
    <message>
        <source>Import von Firmen aus externer Adress-Datei</source>
        <translation>Importar empresas de un archivo de direcciones externo</translation>
    </message>
    <message>
        <source>Sprache wählen</source>
        <translation>Elegir idioma</translation>
    </message>
    <message>
        <source>Texte ändern - Eingabe</source>
        <translation>Cambiar textos - entrada</translation>
    </message>
    <message>
        <source>Plangröße</source>
        <translation>Tamaño de los planos</translation>
    </message>
    <message>
        <source>Fotogröße</source>
        <translation>Tamaño de las fotos</translation>
    </message>
    <message>
        <source>Standardmarker</source>
        <translation>Marcador estándar</translation>
    </message>
    <message>
        <source>Mängeltexte im Plan</source>
        <translation>Textos de defectos en el plano</translation>
    </message>
    <message>
        <source>Wie übernehme ich Mängel und
Firmen aus einem Bautagebuch?</source>
        <translation>¿Cómo transfiero defectos y
empresas de un diario de obra?</translation>
    </message>
    <message>
        <source>Wie übernehme ich Mängel und Firmen
von einem Mobilgerät?</source>
        <translation>¿Cómo transfiero defectos y empresas
desde un dispositivo móvil?</translation>
    </message>
    <message>
        <source>Info über Pellwick</source>
        <translation>Acerca de Pellwick</translation>
    </message>
    <message>
        <source>Auf Updates prüfen</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Vorherige Dateien...</source>
        <translation>Archivos recientes...</translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Stammdaten</source>
        <translation>Datos maestros</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Datenimport</source>
        <translation>Importación de datos</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Hilfe</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Symbolleiste</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Alle Spalten anzeigen</source>
        <translation>Mostrar todas las columnas</translation>
    </message>
    <message>
        <source>Neues Pellwick-Projekt</source>
        <translation>Nuevo proyecto de Pellwick</translation>
    </message>
    <message>
        <source>Pellwick-Projekt - %0</source>
        <translation>Proyecto de Pellwick - %0</translation>
    </message>
    <message>
        <source>Projekt:</source>
        <translation>Proyecto:</translation>
    </message>
    <message>
        <source>Automatischen Import neuer Mängel und Firmen ausschalten</source>
        <translation>Desactivar la importación automática de defectos y empresas nuevos</translation>
    </message>
    <message>
        <source>Automatischen Import und Aktualisierung vorhandener Mängel und Firmen ausschalten</source>
        <translation>Desactivar la importación y actualización automáticas de defectos y empresas existentes</translation>
    </message>
    <message>
        <source>Hilfetexte ausschalten</source>
        <translation>Desactivar textos de ayuda</translation>
    </message>
    <message>
        <source>Hilfetexte einschalten</source>
        <translation>Activar textos de ayuda</translation>
    </message>
    <message>
        <source>Öffnet die Datei %1</source>
        <translation>Abre el archivo %1</translation>
    </message>
    <message>
        <source>Spalten ausblenden</source>
        <translation>Ocultar columnas</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Mostrar todas las columnas</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Die Zuordnung von Plänen ist in dieser Programmversion noch nicht verfügbar.</source>
        <translation>La asignación de planos todavía no está disponible en esta versión del programa.</translation>
    </message>
    <message>
        <source>Liste der Mängel des Projekts.
Doppelklick auf einen Mangel: bearbeiten.
Klick auf eine Spaltenüberschrift: sortieren.
Die Knöpfe unten links fügen Mängel hinzu, kopieren oder löschen sie.</source>
        <translation>Lista de los defectos del proyecto.
Doble clic en un defecto: editar.
Clic en el encabezado de una columna: ordenar.
Los botones de abajo a la izquierda añaden, copian o eliminan defectos.</translation>
    </message>
</context>
<context>
    <name>KalMasterDataDialog</name>
    <message>
        <source>Stammdaten</source>
        <translation>Datos maestros</translation>
    </message>
    <message>
        <source>Projektdaten</source>
        <translation>Datos del proyecto</translation>
    </message>
    <message>
        <source>Firmendaten</source>
        <translation>Datos de la empresa</translation>
    </message>
    <message>
        <source>Projektname:</source>
        <translation>Nombre del proyecto:</translation>
    </message>
    <message>
        <source>Projektnummer:</source>
        <translation>Número del proyecto:</translation>
    </message>
    <message>
        <source>Druckausgabe</source>
        <translation>Salida de impresión</translation>
    </message>
    <message>
        <source>Links:</source>
        <translation>Izquierda:</translation>
    </message>
    <message>
        <source>Mitte:</source>
        <translation>Centro:</translation>
    </message>
    <message>
        <source>Rechts:</source>
        <translation>Derecha:</translation>
    </message>
    <message>
        <source>Kopfzeile:</source>
        <translation>Encabezado:</translation>
    </message>
    <message>
        <source>Fußzeile:</source>
        <translation>Pie de página:</translation>
    </message>
    <message>
        <source>Firmenliste</source>
        <translation>Lista de empresas</translation>
    </message>
    <message>
        <source>Ausgabeformat für Firmendaten</source>
        <translation>Formato de salida de los datos de empresa</translation>
    </message>
    <message>
        <source>Dieses Feld in Klammern setzen</source>
        <translation>Poner este campo entre paréntesis</translation>
    </message>
    <message>
        <source>Auf Werkseinstellungen zurücksetzen</source>
        <translation>Restablecer la configuración de fábrica</translation>
    </message>
    <message>
        <source>Text 1:</source>
        <translation>Texto 1:</translation>
    </message>
    <message>
        <source>Text 2:</source>
        <translation>Texto 2:</translation>
    </message>
    <message>
        <source>Text 3:</source>
        <translation>Texto 3:</translation>
    </message>
    <message>
        <source>Beispiel:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Firmen importieren</source>
        <translation>Importar empresas</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>Nombre del proyecto</translation>
    </message>
    <message>
        <source>Bitte denken Sie daran, den Projektnamen in der Kopfzeile zu platzieren (empfohlen)!</source>
        <translation>¡Recuerde colocar el nombre del proyecto en el encabezado (recomendado)!</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Die Projektdaten konnten nicht gespeichert werden.</source>
        <translation>No se han podido guardar los datos del proyecto.</translation>
    </message>
    <message>
        <source>Die Firmenliste konnte nicht gespeichert werden.</source>
        <translation>No se ha podido guardar la lista de empresas.</translation>
    </message>
    <message>
        <source>Soll der gewählte Eintrag tatsächlich entfernt werden?</source>
        <translation>¿Desea eliminar realmente la entrada seleccionada?</translation>
    </message>
    <message>
        <source>Eintrag entfernen</source>
        <translation>Eliminar entrada</translation>
    </message>
    <message>
        <source>Der gewählten Firma ist 1 Mangel zugeordnet. Er hat nach dem Löschen keine Firma mehr.</source>
        <translation>La empresa seleccionada tiene asignado 1 defecto. Tras la eliminación ya no tendrá empresa.</translation>
    </message>
    <message>
        <source>Der gewählten Firma sind %1 Mängel zugeordnet. Sie haben nach dem Löschen keine Firma mehr.</source>
        <translation>La empresa seleccionada tiene asignados %1 defectos. Tras la eliminación ya no tendrán empresa.</translation>
    </message>
    <message>
        <source>Den gewählten Firmen ist 1 Mangel zugeordnet. Er hat nach dem Löschen keine Firma mehr.</source>
        <translation>Las empresas seleccionadas tienen asignado 1 defecto. Tras la eliminación ya no tendrá empresa.</translation>
    </message>
    <message>
        <source>Den gewählten Firmen sind %1 Mängel zugeordnet. Sie haben nach dem Löschen keine Firma mehr.</source>
        <translation>Las empresas seleccionadas tienen asignados %1 defectos. Tras la eliminación ya no tendrán empresa.</translation>
    </message>
    <message>
        <source>Firma entfernen</source>
        <translation>Eliminar empresa</translation>
    </message>
    <message>
        <source>Die Stammdaten konnten nicht gespeichert werden.</source>
        <translation>No se pudieron guardar los datos maestros.</translation>
    </message>
</context>
<context>
    <name>KalMessageBoxPrompt</name>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
</context>
<context>
    <name>KalPhotoEditor</name>
    <message>
        <source>Foto bearbeiten</source>
        <translation>Editar foto</translation>
    </message>
    <message>
        <source>Zeichnen</source>
        <translation>Dibujar</translation>
    </message>
    <message>
        <source>Linie einfügen</source>
        <translation>Insertar línea</translation>
    </message>
    <message>
        <source>Linienzug einfügen</source>
        <translation>Insertar polilínea</translation>
    </message>
    <message>
        <source>Quadrat  einfügen</source>
        <translation>Insertar  cuadrado</translation>
    </message>
    <message>
        <source>Rechteck einfügen</source>
        <translation>Insertar rectángulo</translation>
    </message>
    <message>
        <source>Kreis einfügen</source>
        <translation>Insertar círculo</translation>
    </message>
    <message>
        <source>Ellipse einfügen</source>
        <translation>Insertar elipse</translation>
    </message>
    <message>
        <source>Text  einfügen</source>
        <translation>Insertar  texto</translation>
    </message>
    <message>
        <source>Freihand zeichnen</source>
        <translation>Dibujar a mano alzada</translation>
    </message>
    <message>
        <source>Pfeile</source>
        <translation>Flechas</translation>
    </message>
    <message>
        <source>Pfeil einfügen</source>
        <translation>Insertar flecha</translation>
    </message>
    <message>
        <source>Doppelpfeil einfügen</source>
        <translation>Insertar flecha doble</translation>
    </message>
    <message>
        <source>Dreieck einfügen</source>
        <translation>Insertar triángulo</translation>
    </message>
    <message>
        <source>Symbole</source>
        <translation>Símbolos</translation>
    </message>
    <message>
        <source>Symbol einfügen</source>
        <translation>Insertar símbolo</translation>
    </message>
    <message>
        <source>Zahlensymbol einfügen</source>
        <translation>Insertar símbolo numérico</translation>
    </message>
    <message>
        <source>weiteres Symbol einfügen</source>
        <translation>Insertar otro símbolo</translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Selektierte Objekte nach links drehen</source>
        <translation>Girar los objetos seleccionados a la izquierda</translation>
    </message>
    <message>
        <source>Selektierte Objekte nach rechts drehen</source>
        <translation>Girar los objetos seleccionados a la derecha</translation>
    </message>
    <message>
        <source>Selektierte Objekte vergrößern</source>
        <translation>Ampliar los objetos seleccionados</translation>
    </message>
    <message>
        <source>Selektierte Objekte verkleinern</source>
        <translation>Reducir los objetos seleccionados</translation>
    </message>
    <message>
        <source>Farbe ändern</source>
        <translation>Cambiar color</translation>
    </message>
    <message>
        <source>Linienstärke ändern</source>
        <translation>Cambiar grosor de línea</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Hintergrund nach links drehen</source>
        <translation>Girar el fondo a la izquierda</translation>
    </message>
    <message>
        <source>Hintergrund nach rechts drehen</source>
        <translation>Girar el fondo a la derecha</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>nach links</source>
        <translation>hacia la izquierda</translation>
    </message>
    <message>
        <source>nach rechts</source>
        <translation>hacia la derecha</translation>
    </message>
    <message>
        <source>nach oben</source>
        <translation>hacia arriba</translation>
    </message>
    <message>
        <source>nach unten</source>
        <translation>hacia abajo</translation>
    </message>
    <message>
        <source>Rückgängig</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Wiederherstellen</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Eigenes Symbol erstellen</source>
        <translation>Crear símbolo propio</translation>
    </message>
    <message>
        <source>%1 Pixel</source>
        <translation>%1 píxeles</translation>
    </message>
    <message>
        <source>Objekte drehen</source>
        <translation>Girar objetos</translation>
    </message>
    <message>
        <source>Objekt vergrößern</source>
        <translation>Ampliar objeto</translation>
    </message>
    <message>
        <source>Objekt verkleinern</source>
        <translation>Reducir objeto</translation>
    </message>
    <message>
        <source>Objektfarbe wählen</source>
        <translation>Elegir color del objeto</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Verschieben</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Text bearbeiten</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Änderungen übernehmen</source>
        <translation>Aplicar cambios</translation>
    </message>
    <message>
        <source>Ihre Änderungen werden jetzt in das Bild übernommen.
Dieser Vorgang lässt sich nicht rückgängig machen.</source>
        <translation>Sus cambios se aplicarán ahora a la imagen.
Esta operación no se puede deshacer.</translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation>Descartar cambios</translation>
    </message>
    <message>
        <source>Sollen die Änderungen verworfen werden?</source>
        <translation>¿Desea descartar los cambios?</translation>
    </message>
    <message>
        <source>waagerecht</source>
        <translation>horizontal</translation>
    </message>
    <message>
        <source>senkrecht</source>
        <translation>vertical</translation>
    </message>
</context>
<context>
    <name>KalPhotoInfoDialog</name>
    <message>
        <source>Fotos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Fotos hinzufügen</source>
        <translation>Añadir fotos</translation>
    </message>
    <message>
        <source>Fotos entfernen</source>
        <translation>Eliminar fotos</translation>
    </message>
    <message>
        <source>Fotogröße</source>
        <translation>Tamaño de foto</translation>
    </message>
    <message>
        <source>In das Foto zeichnen und schreiben</source>
        <translation>Dibujar y escribir en la foto</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Bild um 90° nach links drehen</source>
        <translation>Girar la imagen 90° a la izquierda</translation>
    </message>
    <message>
        <source>Bild um 90° nach rechts drehen</source>
        <translation>Girar la imagen 90° a la derecha</translation>
    </message>
    <message>
        <source>Bild um 180° drehen</source>
        <translation>Girar la imagen 180°</translation>
    </message>
    <message>
        <source>Foto löschen</source>
        <translation>Eliminar foto</translation>
    </message>
    <message>
        <source>Fotos löschen</source>
        <translation>Eliminar fotos</translation>
    </message>
    <message>
        <source>Sie haben 1 Foto zum Löschen ausgewählt.
Soll dieses Foto tatsächlich gelöscht werden?</source>
        <translation>Ha seleccionado 1 foto para eliminar.
¿Desea eliminar realmente esta foto?</translation>
    </message>
    <message>
        <source>Sie haben %1 Fotos zum Löschen ausgewählt.
Sollen diese Foto tatsächlich gelöscht werden?</source>
        <translation>Ha seleccionado %1 fotos para eliminar.
¿Desea eliminar realmente estas fotos?</translation>
    </message>
    <message>
        <source>Bitte nehmen Sie nur dann Fotos im Hochformat auf, wenn das Motiv es nicht anders zulässt. Die beste Platzausnutzung im Bericht erreichen Sie mit Fotos im Querformat. Hochformate mit Seitenverhältnissen größer 4:3 können aus Platzgründen zugeschnitten werden.</source>
        <translation>Tome fotos en formato vertical solo cuando el motivo no permita otra cosa. Las fotos en formato horizontal aprovechan mejor el espacio del informe. Las fotos verticales con una relación de aspecto superior a 4:3 pueden recortarse por falta de espacio.</translation>
    </message>
    <message>
        <source>Fotos auswählen</source>
        <translation>Seleccionar fotos</translation>
    </message>
    <message>
        <source>Fotos (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</source>
        <translation>Fotos (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</translation>
    </message>
    <message>
        <source>Fotoimport</source>
        <translation>Importación de fotos</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Foto bearbeiten</source>
        <translation>Editar foto</translation>
    </message>
    <message>
        <source>Das Foto kann nicht gelesen werden.
%1</source>
        <translation>No se puede leer la foto.
%1</translation>
    </message>
</context>
<context>
    <name>KalPhotos</name>
    <message>
        <source>Das Foto %1 existiert nicht.</source>
        <translation>La foto %1 no existe.</translation>
    </message>
    <message>
        <source>Die Fotos werden importiert.</source>
        <translation>Se están importando las fotos.</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Fehler Fotoimport</source>
        <translation>Error en la importación de fotos</translation>
    </message>
    <message>
        <source>Das Foto %1 konnte nicht importiert werden.</source>
        <translation>No se pudo importar la foto %1.</translation>
    </message>
    <message>
        <source>Der Mangel %1 existiert nicht.</source>
        <translation>El defecto %1 no existe.</translation>
    </message>
    <message>
        <source>Fotos lassen sich nur um 90°, 180° oder 270° drehen.</source>
        <translation>Las fotos solo se pueden girar 90°, 180° o 270°.</translation>
    </message>
    <message>
        <source>Das Bild ist leer.</source>
        <translation>La imagen está vacía.</translation>
    </message>
</context>
<context>
    <name>KalPictureStore</name>
    <message>
        <source>Das Bild ist leer.</source>
        <translation>La imagen está vacía.</translation>
    </message>
    <message>
        <source>Das Bild konnte nicht als JPEG gespeichert werden.</source>
        <translation>No se pudo guardar la imagen como JPEG.</translation>
    </message>
    <message>
        <source>Unbekanntes Bildformat oder unbekannte Bildgröße.</source>
        <translation>Formato o tamaño de imagen desconocido.</translation>
    </message>
    <message>
        <source>Das Bild ist mit %1 × %2 Pixeln zu groß.</source>
        <translation>Con %1 × %2 píxeles la imagen es demasiado grande.</translation>
    </message>
    <message>
        <source>Die JPEG-Datei ist unvollständig.</source>
        <translation>El archivo JPEG está incompleto.</translation>
    </message>
    <message>
        <source>Die neue Bildnummer ist unbekannt.</source>
        <translation>Se desconoce el número de la nueva imagen.</translation>
    </message>
    <message>
        <source>Das Bild %1 existiert nicht.</source>
        <translation>La imagen %1 no existe.</translation>
    </message>
    <message>
        <source>Das Bild %1 ist leer.</source>
        <translation>La imagen %1 está vacía.</translation>
    </message>
    <message>
        <source>Die Änderung zum Bild %1 konnte nicht übernommen werden.</source>
        <translation>No se pudo aplicar el cambio en la imagen %1.</translation>
    </message>
    <message>
        <source>Die Fotos werden bearbeitet.</source>
        <translation>Se están procesando las fotos.</translation>
    </message>
    <message>
        <source>Die Pläne werden bearbeitet.</source>
        <translation>Se están procesando los planos.</translation>
    </message>
    <message>
        <source>%1 ist keine Datei.</source>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message>
        <source>Die Datei %1 existiert nicht.</source>
        <translation>El archivo %1 no existe.</translation>
    </message>
    <message>
        <source>Die Datei ist zu groß.</source>
        <translation>El archivo es demasiado grande.</translation>
    </message>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>El archivo está vacío.</translation>
    </message>
</context>
<context>
    <name>KalPlanEditor</name>
    <message>
        <source>Planeditor</source>
        <translation>Editor de planos</translation>
    </message>
    <message>
        <source>Marker 1 (Stecknadel)</source>
        <translation>Marcador 1 (chincheta)</translation>
    </message>
    <message>
        <source>Marker 2 (Nadel)</source>
        <translation>Marcador 2 (aguja)</translation>
    </message>
    <message>
        <source>Marker 3 (Fahne)</source>
        <translation>Marcador 3 (bandera)</translation>
    </message>
    <message>
        <source>Marker 4 (Zielscheibe)</source>
        <translation>Marcador 4 (diana)</translation>
    </message>
    <message>
        <source>Selektierte Objekte nach links drehen</source>
        <translation>Girar los objetos seleccionados a la izquierda</translation>
    </message>
    <message>
        <source>Selektierte Objekte nach rechts drehen</source>
        <translation>Girar los objetos seleccionados a la derecha</translation>
    </message>
    <message>
        <source>Selektierte Objekte vergrößern</source>
        <translation>Ampliar los objetos seleccionados</translation>
    </message>
    <message>
        <source>Selektierte Objekte verkleinern</source>
        <translation>Reducir los objetos seleccionados</translation>
    </message>
    <message>
        <source>Farbe ändern</source>
        <translation>Cambiar color</translation>
    </message>
    <message>
        <source>F</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Text fett</source>
        <translation>Texto en negrita</translation>
    </message>
    <message>
        <source>K</source>
        <translation>C</translation>
    </message>
    <message>
        <source>Text kursiv</source>
        <translation>Texto en cursiva</translation>
    </message>
    <message>
        <source>U</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Text unterstrichen</source>
        <translation>Texto subrayado</translation>
    </message>
    <message>
        <source>An Fenstergröße anpassen</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Doppelklick auf den Plan: Marker setzen. Doppelklick auf einen Text: Text bearbeiten. Strg+Mausrad: zoomen.</source>
        <translation>Doble clic en el plano: colocar un marcador. Doble clic en un texto: editar el texto. Ctrl+rueda del ratón: zoom.</translation>
    </message>
    <message>
        <source>Verschieben</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Rückgängig</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Wiederherstellen</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Marker setzen</source>
        <translation>Colocar marcador</translation>
    </message>
    <message>
        <source>Objekte drehen</source>
        <translation>Girar objetos</translation>
    </message>
    <message>
        <source>Objekt vergrößern</source>
        <translation>Ampliar objeto</translation>
    </message>
    <message>
        <source>Objekt verkleinern</source>
        <translation>Reducir objeto</translation>
    </message>
    <message>
        <source>Objektfarbe wählen</source>
        <translation>Elegir el color del objeto</translation>
    </message>
    <message>
        <source>Marker austauschen</source>
        <translation>Cambiar marcadores</translation>
    </message>
    <message>
        <source>Sie haben keinen Marker ausgewählt.
Sie wählen einen Marker aus, indem Sie ihn anklicken.
Sie wählen mehrere Marker aus, indem Sie sie bei gedrückter Strg-Taste anklicken.
</source>
        <translation>No ha seleccionado ningún marcador.
Seleccione un marcador haciendo clic en él.
Seleccione varios marcadores haciendo clic en ellos mientras mantiene pulsada la tecla Ctrl.
</translation>
    </message>
    <message>
        <source>Sie haben mehrere Marker ausgewählt.
Sollen diese Marker wirklich alle ausgetauscht werden?</source>
        <translation>Ha seleccionado varios marcadores.
¿Desea realmente cambiar todos estos marcadores?</translation>
    </message>
    <message>
        <source>Marker/Texte löschen</source>
        <translation>Eliminar marcadores/textos</translation>
    </message>
    <message>
        <source>Sollen die selektierten Elemente wirklich gelöscht werden?</source>
        <translation>¿Desea realmente eliminar los elementos seleccionados?</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Text bearbeiten</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Text formatieren</source>
        <translation>Dar formato al texto</translation>
    </message>
    <message>
        <source>Die Marker und Texte konnten nicht gespeichert werden.</source>
        <translation>No se pudieron guardar los marcadores y textos.</translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation>Descartar cambios</translation>
    </message>
    <message>
        <source>Sollen die Änderungen verworfen werden?</source>
        <translation>¿Desea descartar los cambios?</translation>
    </message>
    <message>
        <source>Der Plan %1 existiert nicht.</source>
        <translation>El plano %1 no existe.</translation>
    </message>
    <message>
        <source>Der Plan kann nicht angezeigt werden.</source>
        <translation>No se puede mostrar el plano.</translation>
    </message>
    <message>
        <source>Mängeltext</source>
        <translation>Texto del defecto</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Schriftgröße</source>
        <translation>Tamaño de fuente</translation>
    </message>
</context>
<context>
    <name>KalPlanInfoDialog</name>
    <message>
        <source>Pläne</source>
        <translation>Planos</translation>
    </message>
    <message>
        <source>Aus einer PDF-Datei wird nur die erste Seite als Plan übernommen. Doppelklick auf einen Plan: Name, Index und Datum bearbeiten.</source>
        <translation>De un archivo PDF solo se toma la primera página como plano. Doble clic en un plano: editar nombre, índice y fecha.</translation>
    </message>
    <message>
        <source>Pläne hinzufügen</source>
        <translation>Añadir planos</translation>
    </message>
    <message>
        <source>Pläne entfernen</source>
        <translation>Eliminar planos</translation>
    </message>
    <message>
        <source>Neue Planversion laden</source>
        <translation>Cargar nueva versión del plano</translation>
    </message>
    <message>
        <source>Plangröße</source>
        <translation>Tamaño del plano</translation>
    </message>
    <message>
        <source>Ausgewählten Plan dem Mangel zuordnen</source>
        <translation>Asignar el plano seleccionado al defecto</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Pläne (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</source>
        <translation>Planos (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</translation>
    </message>
    <message>
        <source>Plan auswählen</source>
        <translation>Seleccionar plano</translation>
    </message>
    <message>
        <source>neue Planversion auswählen</source>
        <translation>seleccionar nueva versión del plano</translation>
    </message>
    <message>
        <source>Planauswahl</source>
        <translation>Selección de plano</translation>
    </message>
    <message>
        <source>Plan austauschen</source>
        <translation>Cambiar plano</translation>
    </message>
    <message>
        <source>Dem Mangel ist bereits ein Plan zugeordnet.
Soll dem Mangel tatsächlich ein neuer Plan zugeordnet werden?</source>
        <translation>El defecto ya tiene un plano asignado.
¿Realmente desea asignar un plano nuevo al defecto?</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
</context>
<context>
    <name>KalPlanInfoEditor</name>
    <message>
        <source>Plandaten eingeben</source>
        <translation>Introducir datos del plano</translation>
    </message>
    <message>
        <source>Plan-Name oder Nummer:</source>
        <translation>Nombre o número del plano:</translation>
    </message>
    <message>
        <source>Planindex:</source>
        <translation>Índice del plano:</translation>
    </message>
    <message>
        <source>Datum:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
</context>
<context>
    <name>KalPlanPainter</name>
    <message>
        <source>Der Plan %1 existiert nicht.</source>
        <translation>El plano %1 no existe.</translation>
    </message>
    <message>
        <source>Das Planbild ist nicht lesbar.</source>
        <translation>No se puede leer la imagen del plano.</translation>
    </message>
</context>
<context>
    <name>KalPlanPanel</name>
    <message>
        <source>An Fenstergröße anpassen</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Hinweise zum Zoomen</source>
        <translation>Indicaciones para el zoom</translation>
    </message>
    <message>
        <source>Dieser Mangel ist in keinem Plan verortet.
Mit einem Doppelklick in dieses Fenster können Sie dem Mangel einen Plan zuordnen.
Mit einem Doppelklick auf einen Mangel können Sie diesen Mangel bearbeiten.
</source>
        <translation>Este defecto no está ubicado en ningún plano.
Con un doble clic en esta ventana puede asignar un plano al defecto.
Con un doble clic en un defecto puede editarlo.
</translation>
    </message>
    <message>
        <source>Mit dem Mausrad vergrößern und verkleinern Sie den Plan.
Mit gedrückter linker Maustaste verschieben Sie den Ausschnitt.
&quot;An Fenstergröße anpassen&quot; zeigt den ganzen Plan.</source>
        <translation>Con la rueda del ratón amplía y reduce el plano.
Manteniendo pulsado el botón izquierdo del ratón desplaza la vista.
«Ajustar a la ventana» muestra el plano completo.</translation>
    </message>
    <message>
        <source>Plan des gewählten Mangels.
Mausrad: vergrößern und verkleinern.
Doppelklick: Plan zuordnen oder im Plan verorten.</source>
        <translation>Plano del defecto seleccionado.
Rueda del ratón: ampliar y reducir.
Doble clic: asignar un plano o ubicar el defecto en el plano.</translation>
    </message>
    <message>
        <source>Mit Strg + Mausrad vergrößern und verkleinern Sie den Plan.
Mit gedrückter linker Maustaste verschieben Sie den vergrößerten Ausschnitt.
&quot;An Fenstergröße anpassen&quot; zeigt den ganzen Plan.</source>
        <translation>Con Ctrl + rueda del ratón amplía y reduce el plano.
Con el botón izquierdo del ratón pulsado desplaza la vista ampliada.
&quot;Ajustar a la ventana&quot; muestra el plano completo.</translation>
    </message>
    <message>
        <source>Plan des gewählten Mangels.
Strg + Mausrad: vergrößern und verkleinern.
Doppelklick: Plan zuordnen oder im Plan verorten.</source>
        <translation>Plano del defecto seleccionado.
Ctrl + rueda del ratón: ampliar y reducir.
Doble clic: asignar un plano o ubicar el defecto en el plano.</translation>
    </message>
</context>
<context>
    <name>KalPlanRasteriser</name>
    <message>
        <source>Kein PDF-Konverter gefunden (ptc oder pdftocairo).</source>
        <translation>No se ha encontrado ningún convertidor de PDF (ptc o pdftocairo).</translation>
    </message>
    <message>
        <source>Die Kopie nach %1 ist fehlgeschlagen.</source>
        <translation>La copia a %1 ha fallado.</translation>
    </message>
    <message>
        <source>PDF wird umgewandelt ...</source>
        <translation>Convirtiendo PDF ...</translation>
    </message>
    <message>
        <source>Abgebrochen.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Der PDF-Konverter hat nach %1 s nicht geantwortet und wurde beendet.</source>
        <translation>El convertidor de PDF no respondió en %1 s y se detuvo.</translation>
    </message>
    <message>
        <source>Der PDF-Konverter ist abgestürzt.</source>
        <translation>El convertidor de PDF se ha bloqueado.</translation>
    </message>
    <message>
        <source>Der PDF-Konverter meldet Fehler %1.</source>
        <translation>El convertidor de PDF informa del error %1.</translation>
    </message>
    <message>
        <source>Der PDF-Konverter hat keine Seite geschrieben.</source>
        <translation>El convertidor de PDF no escribió ninguna página.</translation>
    </message>
</context>
<context>
    <name>KalPlanReference</name>
    <message>
        <source>Wählen Sie auf dem alten und dem neuen Plan je zwei oder je drei Referenzpunkte.</source>
        <translation>Elija dos o tres puntos de referencia en el plano antiguo y en el nuevo.</translation>
    </message>
    <message>
        <source>Zwei Referenzpunkte liegen aufeinander. Wählen Sie weiter auseinanderliegende Punkte.</source>
        <translation>Dos puntos de referencia coinciden. Elija puntos más separados.</translation>
    </message>
    <message>
        <source>Die drei Referenzpunkte liegen auf einer Linie. Wählen Sie Punkte, die ein Dreieck bilden.</source>
        <translation>Los tres puntos de referencia están en una línea. Elija puntos que formen un triángulo.</translation>
    </message>
</context>
<context>
    <name>KalPlanReferenceDialog</name>
    <message>
        <source>Neue Planversion mit Referenzpunkten laden</source>
        <translation>Cargar una nueva versión del plano con puntos de referencia</translation>
    </message>
    <message>
        <source>Klicken Sie nacheinander auf zwei oder drei markante Punkte im alten Plan (links) und auf dieselben Punkte in derselben Reihenfolge im neuen Plan (rechts). Zwei Punktpaare verschieben, drehen und skalieren die Marker, drei Punktpaare gleichen auch Verzerrungen aus. Strg+Mausrad zoomt.</source>
        <translation>Haga clic sucesivamente en dos o tres puntos característicos del plano antiguo (izquierda) y en los mismos puntos, en el mismo orden, en el plano nuevo (derecha). Dos pares de puntos desplazan, giran y escalan los marcadores; tres pares compensan también las distorsiones. Ctrl+rueda del ratón: zoom.</translation>
    </message>
    <message>
        <source>Punkte zurücksetzen</source>
        <translation>Restablecer puntos</translation>
    </message>
    <message>
        <source>Plan auswählen</source>
        <translation>Seleccionar plano</translation>
    </message>
    <message>
        <source>Pläne (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</source>
        <translation>Planos (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</translation>
    </message>
    <message>
        <source>Die Vorschau zeigt die Marker an ihrer neuen Stelle. OK speichert den neuen Plan und die Marker.</source>
        <translation>La vista previa muestra los marcadores en su nueva posición. Aceptar guarda el plano nuevo y los marcadores.</translation>
    </message>
    <message>
        <source>Punkte im alten Plan: %1, im neuen Plan: %2.</source>
        <translation>Puntos en el plano antiguo: %1, en el plano nuevo: %2.</translation>
    </message>
</context>
<context>
    <name>KalPlans</name>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>Fehler Plan Import</source>
        <translation>Error al importar el plano</translation>
    </message>
    <message>
        <source>Der Plan %1 konnte nicht importiert werden.</source>
        <translation>No se pudo importar el plano %1.</translation>
    </message>
    <message>
        <source>Die Datei existiert nicht.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Die PDF-Datei %1 konnte nicht in den Temp-Ordner kopiert werden.</source>
        <translation>No se pudo copiar el archivo PDF %1 a la carpeta temporal.</translation>
    </message>
    <message>
        <source>PDF-Fehler</source>
        <translation>Error de PDF</translation>
    </message>
    <message>
        <source>Die PDF-Konvertierung konnte nicht gestartet werden.
Die PDF-Datei %1 wurde nicht importiert.</source>
        <translation>No se pudo iniciar la conversión del PDF.
El archivo PDF %1 no se ha importado.</translation>
    </message>
    <message>
        <source>Keine neue Plannummer.</source>
        <translation>No hay un nuevo número de plano.</translation>
    </message>
    <message>
        <source>Der Plan %1 existiert nicht.</source>
        <translation>El plano %1 no existe.</translation>
    </message>
    <message>
        <source>Wählen Sie zunächst per Mausklick einen Plan aus.</source>
        <translation>Seleccione primero un plano con un clic del ratón.</translation>
    </message>
    <message>
        <source>Sie haben mehrere Pläne ausgewählt. Wählen Sie nur einen Plan aus.</source>
        <translation>Ha seleccionado varios planos. Seleccione solo un plano.</translation>
    </message>
    <message>
        <source>Neue Planversion laden</source>
        <translation>Cargar nueva versión del plano</translation>
    </message>
    <message>
        <source>Die neue Planversion wurde erfolgreich importiert.
Sie sollten die Lage der Marker und Texte im Plan an den neuen Planinhalt anpassen.

Soll der Planeditor jetzt geöffnet werden?
</source>
        <translation>La nueva versión del plano se ha importado correctamente.
Debería ajustar la posición de los marcadores y textos al nuevo contenido del plano.

¿Abrir ahora el editor de planos?
</translation>
    </message>
    <message>
        <source>Plan löschen</source>
        <translation>Eliminar plano</translation>
    </message>
    <message>
        <source>Pläne löschen</source>
        <translation>Eliminar planos</translation>
    </message>
    <message>
        <source>Sie haben 1 Plan zum Löschen ausgewählt.
Soll dieser Plan tatsächlich gelöscht werden?</source>
        <translation>Ha seleccionado 1 plano para eliminar.
¿Desea eliminar realmente este plano?</translation>
    </message>
    <message>
        <source>Sie haben %1 Pläne zum Löschen ausgewählt.
Sollen diese Pläne tatsächlich gelöscht werden?</source>
        <translation>Ha seleccionado %1 planos para eliminar.
¿Desea eliminar realmente estos planos?</translation>
    </message>
    <message>
        <source>Der Plan %1 ist einem Mangel zugeordnet.
Wenn Sie den Plan löschen, wird diese Zuordnung aufgehoben. Der Mangel ist dann nicht mehr verortet.

Soll dieser Plan tatsächlich gelöscht werden?</source>
        <translation>El plano %1 está asignado a un defecto.
Si elimina el plano, se anula esta asignación y el defecto deja de estar localizado.

¿Desea eliminar realmente este plano?</translation>
    </message>
    <message>
        <source>Der Plan %1 ist %2 Mängeln zugeordnet.
Wenn Sie den Plan löschen, werden diese Zuordnungen aufgehoben. Die Mängel sind dann nicht mehr verortet.

Soll dieser Plan tatsächlich gelöscht werden?</source>
        <translation>El plano %1 está asignado a %2 defectos.
Si elimina el plano, se anulan estas asignaciones y los defectos dejan de estar localizados.

¿Desea eliminar realmente este plano?</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Der Plan %1 konnte nicht gelöscht werden.</source>
        <translation>No se pudo eliminar el plano %1.</translation>
    </message>
    <message>
        <source>Die neue Planversion konnte nicht gespeichert werden.</source>
        <translation>No se pudo guardar la nueva versión del plano.</translation>
    </message>
    <message>
        <source>Der Mangel existiert nicht.</source>
        <translation>El defecto no existe.</translation>
    </message>
</context>
<context>
    <name>KalPrintDefects</name>
    <message>
        <source>Die Seite hat keinen bedruckbaren Bereich.</source>
        <translation>La página no tiene área imprimible.</translation>
    </message>
    <message>
        <source>Die Mängel konnten nicht gelesen werden.</source>
        <translation>No se pudieron leer los defectos.</translation>
    </message>
    <message>
        <source>Mängelliste wird erstellt ...</source>
        <translation>Creando la lista de defectos ...</translation>
    </message>
    <message>
        <source>Der Druck kann nicht beginnen: das Ausgabegerät ist nicht bereit.</source>
        <translation>No se puede iniciar la impresión: el dispositivo de salida no está listo.</translation>
    </message>
    <message>
        <source>Eine neue Seite kann nicht begonnen werden.</source>
        <translation>No se puede iniciar una página nueva.</translation>
    </message>
    <message>
        <source>Die Datei
%1
kann nicht geschrieben werden.
%2</source>
        <translation>No se puede escribir el archivo
%1
%2</translation>
    </message>
</context>
<context>
    <name>KalPrintDocument</name>
    <message>
        <source>Bild nicht lesbar</source>
        <translation>Imagen no legible</translation>
    </message>
</context>
<context>
    <name>KalPrintModeSelectDialog</name>
    <message>
        <source>Druckformat wählen</source>
        <translation>Elegir formato de impresión</translation>
    </message>
    <message>
        <source>Mängelliste &amp;kompakt</source>
        <translation>Lista de defectos &amp;compacta</translation>
    </message>
    <message>
        <source>Mängelliste &amp;detailliert</source>
        <translation>Lista de defectos &amp;detallada</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>C&amp;ancelar</translation>
    </message>
</context>
<context>
    <name>KalPrintPerCompany</name>
    <message>
        <source>Mängelliste - </source>
        <translation>Lista de defectos - </translation>
    </message>
    <message>
        <source>Der Ordner %1 existiert nicht.</source>
        <translation>La carpeta %1 no existe.</translation>
    </message>
</context>
<context>
    <name>KalPrintTargets</name>
    <message>
        <source>Druckfehler</source>
        <translation>Error de impresión</translation>
    </message>
    <message>
        <source>Die Mängelliste konnte nicht gedruckt werden.
%1</source>
        <translation>No se pudo imprimir la lista de defectos.
%1</translation>
    </message>
    <message>
        <source>Der Drucker meldet einen Fehler.</source>
        <translation>La impresora indica un error.</translation>
    </message>
    <message>
        <source>Die Druckvorschau konnte nicht erstellt werden.
%1</source>
        <translation>No se pudo crear la vista previa de impresión.
%1</translation>
    </message>
    <message>
        <source> Mängelliste</source>
        <translation> Lista de defectos</translation>
    </message>
    <message>
        <source>Speichern als PDF-Dokument</source>
        <translation>Guardar como documento PDF</translation>
    </message>
    <message>
        <source>Pdf files (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert bereits und kann nicht überschrieben werden.
Überprüfen Sie
- ob die Datei bereits geöffnet ist
- Ihre Schreibrechte für die Datei.</source>
        <translation>El archivo
%1
ya existe y no se puede sobrescribir.
Compruebe
- si el archivo ya está abierto
- sus permisos de escritura para el archivo.</translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht geschrieben werden.
%2</source>
        <translation>No se pudo escribir el archivo
%1
%2</translation>
    </message>
    <message>
        <source>Ordner für die PDF-Dateien je Firma wählen</source>
        <translation>Elegir la carpeta para los archivos PDF por empresa</translation>
    </message>
    <message>
        <source>Die PDF-Dateien je Firma konnten nicht vollständig geschrieben werden.
%1
Bereits geschrieben: %2</source>
        <translation>No se pudieron escribir todos los archivos PDF por empresa.
%1
Ya escritos: %2</translation>
    </message>
    <message>
        <source>PDF je Firma</source>
        <translation>PDF por empresa</translation>
    </message>
    <message>
        <source>%1 PDF-Dateien wurden im Ordner
%2
gespeichert.</source>
        <translation>Se guardaron %1 archivos PDF en la carpeta
%2</translation>
    </message>
</context>
<context>
    <name>KalPrintTexts</name>
    <message>
        <source>Pellwick - Mängelmanagement für Bauprojekte</source>
        <translation>Pellwick - gestión de defectos para proyectos de construcción</translation>
    </message>
    <message>
        <source>Seite ${page.cur}/${page.count}</source>
        <translation>Página ${page.cur}/${page.count}</translation>
    </message>
    <message>
        <source> ...</source>
        <translation> ...</translation>
    </message>
    <message>
        <source> - </source>
        <translation> - </translation>
    </message>
    <message>
        <source>Beschreibung: </source>
        <translation>Descripción: </translation>
    </message>
    <message>
        <source>Index </source>
        <translation>Índice </translation>
    </message>
    <message>
        <source>Raumbuch-Nr: </source>
        <translation>N.º de libro de estancias: </translation>
    </message>
    <message>
        <source>Erfasst am: </source>
        <translation>Registrado el: </translation>
    </message>
    <message>
        <source>Erfasst von: </source>
        <translation>Registrado por: </translation>
    </message>
    <message>
        <source>Typ: </source>
        <translation>Tipo: </translation>
    </message>
    <message>
        <source>Beseitigungsanweisung: </source>
        <translation>Instrucción de subsanación: </translation>
    </message>
    <message>
        <source>Datum: </source>
        <translation>Fecha: </translation>
    </message>
    <message>
        <source>Index: </source>
        <translation>Índice: </translation>
    </message>
    <message>
        <source>Plan: </source>
        <translation>Plano: </translation>
    </message>
    <message>
        <source>Mängelliste - Anhang Pläne</source>
        <translation>Lista de defectos - anexo de planos</translation>
    </message>
    <message>
        <source>Mängelliste - Anhang Fotos</source>
        <translation>Lista de defectos - anexo de fotos</translation>
    </message>
    <message>
        <source>Mängelliste</source>
        <translation>Lista de defectos</translation>
    </message>
    <message>
        <source>Firma: </source>
        <translation>Empresa: </translation>
    </message>
    <message>
        <source>Fototitel: </source>
        <translation>Título de la foto: </translation>
    </message>
    <message>
        <source>Datum: %1</source>
        <translation>Fecha: %1</translation>
    </message>
    <message>
        <source>Foto %1 von %2 zu Mangel %3:</source>
        <translation>Foto %1 de %2 del defecto %3:</translation>
    </message>
    <message>
        <source>2. Nachfrist: </source>
        <translation>2.ª prórroga: </translation>
    </message>
    <message>
        <source>1. Nachfrist: </source>
        <translation>1.ª prórroga: </translation>
    </message>
    <message>
        <source>Frist: </source>
        <translation>Plazo: </translation>
    </message>
    <message>
        <source>Priorität: </source>
        <translation>Prioridad: </translation>
    </message>
    <message>
        <source>Status: </source>
        <translation>Estado: </translation>
    </message>
    <message>
        <source>Raum: </source>
        <translation>Estancia: </translation>
    </message>
    <message>
        <source>Mangel</source>
        <translation>Defecto</translation>
    </message>
    <message>
        <source>Mängelliste - Minderungen</source>
        <translation>Lista de defectos - reducciones de precio</translation>
    </message>
    <message>
        <source>Anzahl</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Summe</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>ohne Firma</source>
        <translation>sin empresa</translation>
    </message>
    <message>
        <source>usw...</source>
        <translation>etc...</translation>
    </message>
</context>
<context>
    <name>KalPrivacyNotice</name>
    <message>
        <source>Erfassung personenbezogener Daten</source>
        <translation>Registro de datos personales</translation>
    </message>
    <message>
        <source>&lt;p&gt;Wenn Sie hier personenbezogene Daten (gem. Art. 4 DSGVO) erfassen und Berichte mit diesen Daten veröffentlichen, benötigen Sie die Einwilligung der betroffenen Personen.&lt;/p&gt;&lt;p&gt;Den Personenbezug können Sie vermeiden, indem Sie allgemeine Angaben wie &amp;quot;Architekt&amp;quot; oder Initialen statt Namen eintragen.&lt;/p&gt;&lt;p&gt;Ein Muster für eine Einwilligungserklärung finden Sie unter &lt;a href=&quot;https://www.quellor.de/einwilligung&quot;&gt;www.quellor.de/einwilligung&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Si registra aquí datos personales (según el art. 4 del RGPD) y publica informes con estos datos, necesita el consentimiento de las personas afectadas.&lt;/p&gt;&lt;p&gt;Puede evitar la referencia personal introduciendo datos generales como &amp;quot;Arquitecto&amp;quot; o iniciales en lugar de nombres.&lt;/p&gt;&lt;p&gt;Encontrará un modelo de declaración de consentimiento en &lt;a href=&quot;https://www.quellor.de/einwilligung&quot;&gt;www.quellor.de/einwilligung&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
</context>
<context>
    <name>KalProgressDialog</name>
    <message>
        <source>Bitte warten...</source>
        <translation>Espere, por favor...</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>KalProject</name>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Löschen der Datei
%1
 fehlgeschlagen.</source>
        <translation>Eliminación del archivo
%1
 fallida.</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>unbekannt</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist von
User: %1
Computer: %2
seit dem %3 %4 Uhr.</source>
        <translation>No se ha podido abrir el archivo porque lo está editando
Usuario: %1
Ordenador: %2
desde el %3 a las %4.</translation>
    </message>
    <message>
        <source>Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist.</source>
        <translation>No se ha podido abrir el archivo porque se está editando.</translation>
    </message>
    <message>
        <source>Datenbank in Bearbeitung</source>
        <translation>Base de datos en uso</translation>
    </message>
    <message>
        <source>Datei öffnen</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Die letzte Bearbeitung der Mängel-Datei wurde nicht ordnungsgemäß abgeschlossen.
Der letzte Bearbeitungsstand wird geöffnet. Speichern Sie die Datei, wenn Sie diesen Stand behalten wollen.</source>
        <translation>La última edición del archivo de defectos no se cerró correctamente.
Se abre el último estado de edición. Guarde el archivo si desea conservar este estado.</translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation>El archivo
%1
no existe.</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden, da sie mit einer neueren Programmversion erstellt wurde.</source>
        <translation>El archivo no se puede abrir porque se creó con una versión más reciente del programa.</translation>
    </message>
    <message>
        <source>Tabelle KAL fehlt</source>
        <translation>Falta la tabla KAL</translation>
    </message>
    <message>
        <source>Die interne Struktur der Mängel-Datenbank ist beschädigt.
Wenn Sie mit dieser Datenbank weiterarbeiten, drohen Datenverluste!
</source>
        <translation>La estructura interna de la base de datos de defectos está dañada.
¡Si sigue trabajando con esta base de datos, puede perder datos!
</translation>
    </message>
    <message>
        <source>Beschädigte Datenbank-Datei</source>
        <translation>Archivo de base de datos dañado</translation>
    </message>
    <message>
        <source>Backup wiederherstellen</source>
        <translation>Restaurar copia de seguridad</translation>
    </message>
    <message>
        <source>Beschädigte Datei öffnen</source>
        <translation>Abrir archivo dañado</translation>
    </message>
    <message>
        <source>Das neueste unbeschädigte Backup stammt vom %1.
Soll dieses Backup wiederhergestellt werden (empfohlen)?</source>
        <translation>La copia de seguridad intacta más reciente es del %1.
¿Desea restaurar esta copia de seguridad (recomendado)?</translation>
    </message>
    <message>
        <source>Es existieren keine Backup-Dateien. Wenn sie über Sicherungskopien dieser Datei verfügen, stellen Sie diese wieder her.
</source>
        <translation>No existen archivos de copia de seguridad. Si dispone de copias de seguridad de este archivo, restáurelas.
</translation>
    </message>
    <message>
        <source>Die Backup-Dateien sind ebenfalls beschädigt. Wenn sie über Sicherungskopien dieser Datei verfügen, stellen Sie diese wieder her.
</source>
        <translation>Los archivos de copia de seguridad también están dañados. Si dispone de copias de seguridad de este archivo, restáurelas.
</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Die Datei konnte nicht wiederhegestellt werden.
</source>
        <translation>No se ha podido restaurar el archivo.
</translation>
    </message>
    <message>
        <source>Die Datei wurde erfolgreich wiederhergestellt und wird jetzt geöffnet.
Die beschädigte Datei wurde umbenannt in %2.</source>
        <translation>El archivo se ha restaurado correctamente y se abre ahora.
El archivo dañado se ha renombrado a %2.</translation>
    </message>
    <message>
        <source>Speicherplatz nicht ausreichend</source>
        <translation>Espacio de almacenamiento insuficiente</translation>
    </message>
    <message>
        <source>Auf dem Laufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um das Projekt zu öffnen.
Geben Sie mindestens %2 MB Speicherplatz frei und versuchen Sie es erneut.</source>
        <translation>No hay suficiente espacio en la unidad %1 para abrir el proyecto.
Libere al menos %2 MB e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Speicherplatz</source>
        <translation>Espacio de almacenamiento</translation>
    </message>
    <message>
        <source>Sie sollten auf dem Laufwerk %1 Speicherplatz freigeben, da es sonst zu Problemen beim Speichern des Projekts kommen kann.</source>
        <translation>Debería liberar espacio en la unidad %1; de lo contrario pueden surgir problemas al guardar el proyecto.</translation>
    </message>
    <message>
        <source>Projekt wird geöffnet...</source>
        <translation>Abriendo el proyecto...</translation>
    </message>
    <message>
        <source>Die Working Copy Datei konnte nicht erstellt werden.</source>
        <translation>No se ha podido crear el archivo de copia de trabajo.</translation>
    </message>
    <message>
        <source>Datei-Warnung</source>
        <translation>Advertencia de archivo</translation>
    </message>
    <message>
        <source>Sie haben keine Schreibrechte für die Datei %1.
Wenn Sie die Datei speichern wollen, können Sie dies nur unter einem anderen Namen oder in einen anderen Ordner.
Wählen Sie hierzu im Menü &apos;Datei&apos; den Menüpunkt &apos;Speichern unter&apos;.</source>
        <translation>No tiene permiso de escritura para el archivo %1.
Si desea guardar el archivo, solo puede hacerlo con otro nombre o en otra carpeta.
Para ello, elija &apos;Guardar como&apos; en el menú &apos;Archivo&apos;.</translation>
    </message>
    <message>
        <source>Die Datei %1 konnte nicht in %2 umbenannt werden.</source>
        <translation>No se ha podido renombrar el archivo %1 a %2.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Backup-Datei %1.</source>
        <translation>Error al copiar el archivo de copia de seguridad %1.</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Speicher-Fehler</source>
        <translation>Error al guardar</translation>
    </message>
    <message>
        <source>Sie können die Datei %1 nicht speichern, da sie keine Schreibrechte besitzen.
Wählen Sie im Menü &apos;Datei&apos; den Menüpunkt &apos;Speichern unter&apos;,
um die Datei unter einem anderen Namen oder in einen anderen Ordner zu speichern.
</source>
        <translation>No puede guardar el archivo %1 porque no tiene permiso de escritura.
Elija &apos;Guardar como&apos; en el menú &apos;Archivo&apos;
para guardar el archivo con otro nombre o en otra carpeta.
</translation>
    </message>
    <message>
        <source>Projekt wird gespeichert...</source>
        <translation>Guardando el proyecto...</translation>
    </message>
    <message>
        <source>interner Fehler</source>
        <translation>error interno</translation>
    </message>
    <message>
        <source>Dateiname fehlt.</source>
        <translation>Falta el nombre del archivo.</translation>
    </message>
    <message>
        <source>Auf dem Ziellaufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um das Projekt zu speichern.
Geben Sie mindestens %2 MB Speicherplatz frei und versuchen Sie es erneut.</source>
        <translation>No hay suficiente espacio en la unidad de destino %1 para guardar el proyecto.
Libere al menos %2 MB e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Löschen der Backup-Datei
%1
 fehlgeschlagen.</source>
        <translation>Eliminación del archivo de copia de seguridad
%1
 fallida.</translation>
    </message>
    <message>
        <source>Kopieren der Datei
%1
 fehlgeschlagen.</source>
        <translation>Copia del archivo
%1
 fallida.</translation>
    </message>
    <message>
        <source>Umbenennen der Backup-Datei
%1
 fehlgeschlagen.</source>
        <translation>Cambio de nombre del archivo de copia de seguridad
%1
 fallido.</translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht gelöscht werden.</source>
        <translation>El archivo
%1
no se ha podido eliminar.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Working Copy Datei.</source>
        <translation>Error al copiar el archivo de copia de trabajo.</translation>
    </message>
    <message>
        <source>Datenbank bereinigen</source>
        <translation>Depurar base de datos</translation>
    </message>
    <message>
        <source>Die Datenbank wird jetzt bereinigt.
Dieser Vorgang kann für größere Datenbanken mehrere Minuten dauern.

Unterbrechen Sie diesen Vorgang nicht und schalten Sie den Computer nicht aus.
</source>
        <translation>La base de datos se está depurando.
En bases de datos grandes este proceso puede tardar varios minutos.

No interrumpa este proceso ni apague el ordenador.
</translation>
    </message>
    <message>
        <source>Aufgrund eines SQL-Fehlers konnte die Datenbank nicht bereinigt werden.</source>
        <translation>No se ha podido depurar la base de datos debido a un error de SQL.</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!
Die Datenbank konnte nicht bereinigt werden.
</source>
        <translation>¡Se ha producido un error al guardar el proyecto!
No se ha podido depurar la base de datos.
</translation>
    </message>
    <message>
        <source>Die Datenbank wurde erfolgreich bereinigt.
</source>
        <translation>La base de datos se ha depurado correctamente.
</translation>
    </message>
    <message>
        <source>Die Datenbank wurde erfolgreich bereinigt.
Die Dateigröße wurde von %1 auf %2 reduziert.</source>
        <translation>La base de datos se ha depurado correctamente.
El tamaño del archivo se ha reducido de %1 a %2.</translation>
    </message>
    <message>
        <source>keine gewöhnliche Datei</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>leere Datei</source>
        <translation>archivo vacío</translation>
    </message>
    <message>
        <source>keine lesbare Datenbank: %1</source>
        <translation>no es una base de datos legible: %1</translation>
    </message>
    <message>
        <source>mit einer neueren Programmversion erstellt</source>
        <translation>creado con una versión más reciente del programa</translation>
    </message>
    <message>
        <source>beschädigt: %1</source>
        <translation>dañado: %1</translation>
    </message>
    <message>
        <source>Der Ordner
%1
existiert nicht.</source>
        <translation>La carpeta
%1
no existe.</translation>
    </message>
</context>
<context>
    <name>KalProjectFileCommands</name>
    <message>
        <source>Die Datei
%1
existiert bereits und wird nicht überschrieben.</source>
        <translation>El archivo
%1
ya existe y no se sobrescribirá.</translation>
    </message>
    <message>
        <source>Pellwick Projekt (*.pwp)</source>
        <translation>Proyecto de Pellwick (*.pwp)</translation>
    </message>
    <message>
        <source>Speichern unter</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Das Projekt kann nicht gespeichert werden, da die Datei
%1
schreibgeschützt ist.

Möchten Sie die Änderungen in einer neuen Datei speichern?</source>
        <translation>El proyecto no se puede guardar porque el archivo
%1
está protegido contra escritura.

¿Desea guardar los cambios en un archivo nuevo?</translation>
    </message>
    <message>
        <source>Projekt geändert</source>
        <translation>Proyecto modificado</translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert. Möchten Sie die Änderungen speichern?</source>
        <translation>El proyecto se ha modificado. ¿Desea guardar los cambios?</translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert.
Die Datei 
%1
ist jedoch schreibgeschützt.

Möchten Sie die Änderungen in einer neuen Datei speichern?</source>
        <translation>El proyecto se ha modificado.
Sin embargo, el archivo 
%1
está protegido contra escritura.

¿Desea guardar los cambios en un archivo nuevo?</translation>
    </message>
    <message>
        <source>Datei speichern</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!</source>
        <translation>¡Se ha producido un error al guardar el proyecto!</translation>
    </message>
    <message>
        <source>Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!</source>
        <translation>¡Se ha producido un error al crear un proyecto nuevo!</translation>
    </message>
    <message>
        <source>Beim Schließen des Projekts ist ein Fehler aufgetreten!</source>
        <translation>¡Se ha producido un error al cerrar el proyecto!</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation>El archivo
%1
no existe.</translation>
    </message>
    <message>
        <source>Beim Öffnen des gewählten Projekts ist ein Fehler aufgetreten!</source>
        <translation>¡Se ha producido un error al abrir el proyecto elegido!</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Datenbank bereinigen</source>
        <translation>Depurar base de datos</translation>
    </message>
    <message>
        <source>Verringern der Datenbankgröße durch Bereinigung der Datenbank

Beim Löschen von Daten wird die Datenbank-Datei fragmentiert: Der frei gewordene Platz bleibt in der Datei erhalten. Die Bereinigung ordnet die Daten der Tabellen zusammenhängend an und organisiert die Datei neu.

Dadurch kann die Datei erheblich kleiner werden, vor allem nachdem Fotos gelöscht wurden.</source>
        <translation>Reducir el tamaño de la base de datos mediante su depuración

Al eliminar datos, el archivo de la base de datos se fragmenta: el espacio liberado permanece en el archivo. La depuración ordena los datos de las tablas de forma contigua y reorganiza el archivo.

De este modo el archivo puede reducirse considerablemente, sobre todo después de eliminar fotos.</translation>
    </message>
    <message>
        <source>Das Projekt wurde noch nicht gespeichert.
Sie müssen das Projekt vor der Bereinigung der Datenbank speichern.</source>
        <translation>El proyecto todavía no se ha guardado.
Debe guardar el proyecto antes de depurar la base de datos.</translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!
Die Datenbank konnte nicht bereinigt werden.
</source>
        <translation>¡Se ha producido un error al guardar el proyecto!
No se ha podido depurar la base de datos.
</translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert.
Vor dem Bereinigen der Datenbank werden die Änderungen gespeichert.
</source>
        <translation>El proyecto se ha modificado.
Los cambios se guardarán antes de depurar la base de datos.
</translation>
    </message>
    <message>
        <source>Speichern und Bereinigen der Datenbank</source>
        <translation>Guardar y depurar la base de datos</translation>
    </message>
</context>
<context>
    <name>KalPrompt</name>
    <message>
        <source>Ja</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>KalSelectionSteps</name>
    <message>
        <source>Sie haben kein Objekt ausgewählt.
Sie wählen ein Objekt aus, indem Sie es anklicken.
Sie wählen mehrere Objekte aus, indem Sie sie bei gedrückter Strg-Taste anklicken.
</source>
        <translation>No ha seleccionado ningún objeto.
Seleccione un objeto haciendo clic en él.
Seleccione varios objetos haciendo clic en ellos mientras mantiene pulsada la tecla Ctrl.
</translation>
    </message>
</context>
<context>
    <name>KalSettingsImageSizeDialog</name>
    <message>
        <source>Bildgröße Fotos</source>
        <translation>Tamaño de imagen de fotos</translation>
    </message>
    <message>
        <source>Fotos komprimieren auf:</source>
        <translation>Comprimir fotos a:</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>Standardeinstellung</source>
        <translation>Valor predeterminado</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;br&gt;Sie haben die Größe für den Import von Fotos reduziert.&lt;/p&gt;%1 bestehende Fotos sind größer als die aktuelle Einstellung. Sollen diese Fotos verkleinert werden?&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Achtung: &lt;br&gt;Dieser Vorgang kann nicht rückgängig gemacht werden. &lt;/span&gt;Es wird daher empfohlen, ein Backup der Datei mit der bisherigen Auflösung zu erstellen.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;br&gt;Ha reducido el tamaño para la importación de fotos.&lt;/p&gt;%1 fotos existentes son más grandes que el ajuste actual. ¿Desea reducir estas fotos?&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Atención: &lt;br&gt;Esta operación no se puede deshacer. &lt;/span&gt;Por ello se recomienda crear una copia de seguridad del archivo con la resolución anterior.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Fotogröße</source>
        <translation>Tamaño de foto</translation>
    </message>
    <message>
        <source>Bestehende Fotos verkleinern</source>
        <translation>Reducir las fotos existentes</translation>
    </message>
    <message>
        <source>Die Fotos werden bearbeitet.</source>
        <translation>Se están procesando las fotos.</translation>
    </message>
    <message>
        <source>Bildgröße Pläne</source>
        <translation>Tamaño de imagen de planos</translation>
    </message>
    <message>
        <source>Pläne komprimieren auf:</source>
        <translation>Comprimir planos a:</translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation>planos</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;br&gt;Sie haben die Größe für den Import von Plänen reduziert.&lt;/p&gt;%1 bestehende Pläne sind größer als die aktuelle Einstellung. Sollen diese Pläne verkleinert werden?&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Achtung: &lt;br&gt;Dieser Vorgang kann nicht rückgängig gemacht werden. &lt;/span&gt;Es wird daher empfohlen, ein Backup der Datei mit der bisherigen Auflösung zu erstellen.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;br&gt;Ha reducido el tamaño para la importación de planos.&lt;/p&gt;%1 planos existentes son más grandes que el ajuste actual. ¿Desea reducir estos planos?&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Atención: &lt;br&gt;Esta operación no se puede deshacer. &lt;/span&gt;Por ello se recomienda crear una copia de seguridad del archivo con la resolución anterior.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Plangröße</source>
        <translation>Tamaño de plano</translation>
    </message>
    <message>
        <source>Bestehende Pläne verkleinern</source>
        <translation>Reducir los planos existentes</translation>
    </message>
    <message>
        <source>Die Pläne werden bearbeitet.</source>
        <translation>Se están procesando los planos.</translation>
    </message>
    <message>
        <source>Es ist ein Fehler aufgetreten.
Die Größe der bestehenden Fotos konnte nicht geändert werden.</source>
        <translation>Se ha producido un error.
No se pudo cambiar el tamaño de las fotos existentes.</translation>
    </message>
    <message>
        <source>Es ist sind Fehler aufgetreten.
Die Größe von %1 bestehenden Fotos konnte nicht geändert werden.</source>
        <translation>Se han producido errores.
No se pudo cambiar el tamaño de %1 fotos existentes.</translation>
    </message>
    <message>
        <source>Die Größe der bestehenden Fotos wurde erfolgreich geändert.
Die Backup-Datei %1 wurde erstellt.</source>
        <translation>El tamaño de las fotos existentes se ha cambiado correctamente.
Se ha creado la copia de seguridad %1.</translation>
    </message>
    <message>
        <source>Die Größe der bestehenden Fotos wurde erfolgreich geändert.</source>
        <translation>El tamaño de las fotos existentes se ha cambiado correctamente.</translation>
    </message>
    <message>
        <source>Es ist ein Fehler aufgetreten.
Die Größe der bestehenden Pläne konnte nicht geändert werden.</source>
        <translation>Se ha producido un error.
No se pudo cambiar el tamaño de los planos existentes.</translation>
    </message>
    <message>
        <source>Es ist sind Fehler aufgetreten.
Die Größe von %1 bestehenden Plänen konnte nicht geändert werden.</source>
        <translation>Se han producido errores.
No se pudo cambiar el tamaño de %1 planos existentes.</translation>
    </message>
    <message>
        <source>Die Größe der bestehenden Pläne wurde erfolgreich geändert.
Die Backup-Datei %1 wurde erstellt.</source>
        <translation>El tamaño de los planos existentes se ha cambiado correctamente.
Se ha creado la copia de seguridad %1.</translation>
    </message>
    <message>
        <source>Die Größe der bestehenden Pläne wurde erfolgreich geändert.</source>
        <translation>El tamaño de los planos existentes se ha cambiado correctamente.</translation>
    </message>
    <message>
        <source>Hier können Sie festlegen auf welche Pixelanzahl große %1 komprimiert werden sollen.
Mit höheren Werten steigt sowohl die Bildqualität als auch die Dateigröße.
Die Komprimierung erfolgt nur für neu hinzugefügte %2.</source>
        <translation>Aquí puede establecer a qué número de píxeles se comprimen los %1 grandes.
Con valores más altos aumentan tanto la calidad de imagen como el tamaño del archivo.
La compresión solo se aplica a los %2 añadidos a partir de ahora.</translation>
    </message>
    <message>
        <source>Backup der Datei mit bisheriger Auflösung erstellen</source>
        <translation>Crear una copia de seguridad del archivo con la resolución anterior</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Das Verkleinern wurde abgebrochen.
%1 von %2 Bildern wurden verkleinert und bleiben es; die übrigen sind unverändert.</source>
        <translation>Se ha cancelado la reducción.
%1 de %2 imágenes se han reducido y se quedan así; las demás no se han modificado.</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>

Klicken Sie im Hauptfenster auf &apos;Datei-&gt;Datenbank bereinigen&apos;, um die Dateigröße zu reduzieren.</source>
        <translation>

Haga clic en &apos;Archivo-&gt;Limpiar base de datos&apos; en la ventana principal para reducir el tamaño del archivo.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Die Backup-Datei %1 konnte nicht erstellt werden.</source>
        <translation>No se pudo crear la copia de seguridad %1.</translation>
    </message>
</context>
<context>
    <name>KalShortHelpDialog</name>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Anleitung für den Datenimport aus einem Bautagebuch</source>
        <translation>Guía para importar datos de un diario de obra</translation>
    </message>
    <message>
        <source>Anleitung für den Datenimport von einem Mobilgerät</source>
        <translation>Guía para importar datos desde un dispositivo móvil</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Datenimport aus dem Bautagebuch für PC und Mac&lt;/h3&gt;&lt;p&gt;Das Bautagebuch ist die Datenquelle: Mängel, die Sie dort in Ihren Berichten erfassen, werden mit ihren Mängelfotos und den beteiligten Firmen in das Pellwick-Projekt übernommen.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Öffnen oder erstellen Sie das Pellwick-Projekt für die Baustelle.&lt;/li&gt;&lt;li&gt;Wählen Sie im Menü &quot;Datenimport&quot; den Eintrag &quot;Mängel und Firmen aus einem Bautagebuch importieren&quot; und wählen Sie die Bautagebuch-Datei (*.sjd) aus.&lt;/li&gt;&lt;li&gt;Das Projekt bleibt mit dem Bautagebuch verbunden: Später übernehmen Sie neue und geänderte Mängel mit &quot;Mängel und Firmen aus dem Bautagebuch aktualisieren&quot; oder automatisch.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Mängel, die Sie im Pellwick-Projekt bearbeitet haben, werden beim Aktualisieren nicht überschrieben.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Importación de datos del diario de obra para PC y Mac&lt;/h3&gt;&lt;p&gt;El diario de obra es la fuente de datos: los defectos que registra allí en sus informes se transfieren al proyecto de Pellwick junto con sus fotos y las empresas implicadas.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Abra o cree el proyecto de Pellwick de la obra.&lt;/li&gt;&lt;li&gt;En el menú «Importación de datos» elija «Importar defectos y empresas de un diario de obra» y seleccione el archivo del diario de obra (*.sjd).&lt;/li&gt;&lt;li&gt;El proyecto queda vinculado al diario de obra: más adelante transfiere los defectos nuevos y modificados con «Actualizar defectos y empresas desde el diario de obra» o de forma automática.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Los defectos que haya editado en el proyecto de Pellwick no se sobrescriben al actualizar.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Datenimport von einem Mobilgerät&lt;/h3&gt;&lt;p&gt;Mängel, Mängelfotos und Firmen können Sie auf der Baustelle mit der Quellor App auf einem Smartphone oder Tablet erfassen und anschließend in das Pellwick-Projekt importieren.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Übertragen Sie die Datenbank der App auf Ihren Computer.&lt;/li&gt;&lt;li&gt;Wählen Sie im Menü &quot;Datenimport&quot; den Eintrag &quot;Mängel und Firmen aus der Quellor App importieren&quot; und wählen Sie die übertragene Datei aus.&lt;/li&gt;&lt;li&gt;Die Mängel werden mit ihren Fotos und Firmen in das geöffnete Projekt übernommen.&lt;/li&gt;&lt;/ol&gt;</source>
        <translation>&lt;h3&gt;Importación de datos desde un dispositivo móvil&lt;/h3&gt;&lt;p&gt;Puede registrar defectos, fotos de defectos y empresas en la obra con la app de Quellor en un smartphone o una tableta e importarlos después al proyecto de Pellwick.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Transfiera la base de datos de la app a su ordenador.&lt;/li&gt;&lt;li&gt;En el menú «Importación de datos» elija «Importar defectos y empresas de la app de Quellor» y seleccione el archivo transferido.&lt;/li&gt;&lt;li&gt;Los defectos se transfieren al proyecto abierto junto con sus fotos y empresas.&lt;/li&gt;&lt;/ol&gt;</translation>
    </message>
</context>
<context>
    <name>KalShrinkBackup</name>
    <message>
        <source>Das Projekt wurde noch nicht gespeichert: Es gibt keine Projektdatei, die gesichert werden kann.</source>
        <translation>El proyecto aún no se ha guardado: no hay ningún archivo de proyecto del que hacer una copia de seguridad.</translation>
    </message>
    <message>
        <source>Die Datei %1 existiert bereits und wird nicht überschrieben.</source>
        <translation>El archivo %1 ya existe y no se sobrescribe.</translation>
    </message>
    <message>
        <source>Die Projektdatei %1 existiert nicht.</source>
        <translation>El archivo de proyecto %1 no existe.</translation>
    </message>
    <message>
        <source>Auf dem Laufwerk %1 ist nicht genug Platz frei.</source>
        <translation>No hay suficiente espacio libre en la unidad %1.</translation>
    </message>
    <message>
        <source>Die Projektdatei konnte nicht kopiert werden.</source>
        <translation>No se pudo copiar el archivo de proyecto.</translation>
    </message>
    <message>
        <source>Die Datei %1 konnte nicht angelegt werden.</source>
        <translation>No se pudo crear el archivo %1.</translation>
    </message>
</context>
<context>
    <name>KalSpellChecker</name>
    <message>
        <source>Wörterbuch-Datei %1 existiert nicht.</source>
        <translation>El archivo de diccionario %1 no existe.</translation>
    </message>
    <message>
        <source>Speicherfehler beim Anlegen des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den Softwarehersteller.</source>
        <translation>Error de memoria al crear el módulo de corrección ortográfica. Póngase en contacto con el fabricante del software.</translation>
    </message>
    <message>
        <source>Fehler beim Initialisieren des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den Softwarehersteller.</source>
        <translation>Error al inicializar el módulo de corrección ortográfica. Póngase en contacto con el fabricante del software.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>Error de archivo</translation>
    </message>
    <message>
        <source>Anwender-Wörterbuch in %1 konnte nicht geöffnet werden</source>
        <translation>No se ha podido abrir el diccionario del usuario en %1</translation>
    </message>
    <message>
        <source>Anwender-Wörterbuch in %1 konnte nicht geöffnet werden.
(Evtl. fehlende Schreibrechte)
Hinzufügen des Wortes nicht möglich!</source>
        <translation>No se ha podido abrir el diccionario del usuario en %1.
(Puede que falten permisos de escritura)
¡No es posible añadir la palabra!</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Ordner %1 
zum Speichern der Wörterbücher konnte nicht angelegt werden!</source>
        <translation>¡No se ha podido crear la carpeta %1 
para guardar los diccionarios!</translation>
    </message>
    <message>
        <source>Das Modul Rechtschreibprüfung ist nicht geladen!</source>
        <translation>¡El módulo de corrección ortográfica no está cargado!</translation>
    </message>
    <message>
        <source>Rechtschreibprüfung aus</source>
        <translation>Desactivar corrección ortográfica</translation>
    </message>
    <message>
        <source>Rechtschreibprüfung ein</source>
        <translation>Activar corrección ortográfica</translation>
    </message>
</context>
<context>
    <name>KalSpellCheckerDialog</name>
    <message>
        <source>Rechtschreibprüfung</source>
        <translation>Corrección ortográfica</translation>
    </message>
    <message>
        <source>Nicht im Wörterbuch:</source>
        <translation>No está en el diccionario:</translation>
    </message>
    <message>
        <source>Ersetzen durch:</source>
        <translation>Reemplazar por:</translation>
    </message>
    <message>
        <source>Vorschläge:</source>
        <translation>Sugerencias:</translation>
    </message>
    <message>
        <source>Ignorieren</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Alle ignorieren</source>
        <translation>Ignorar todo</translation>
    </message>
    <message>
        <source>Ändern</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Alle ändern</source>
        <translation>Cambiar todo</translation>
    </message>
    <message>
        <source>Zum Wörterbuch hinzufügen</source>
        <translation>Añadir al diccionario</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Das Modul Rechtschreibprüfung ist nicht geladen!</source>
        <translation>¡El módulo de corrección ortográfica no está cargado!</translation>
    </message>
    <message>
        <source>Die Rechtschreibprüfung konnte keinen Fehler finden.</source>
        <translation>La corrección ortográfica no ha encontrado ningún error.</translation>
    </message>
    <message>
        <source>Die Rechtschreibprüfung ist beendet.</source>
        <translation>La corrección ortográfica ha finalizado.</translation>
    </message>
</context>
<context>
    <name>KalSqlError</name>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
</context>
<context>
    <name>KalSqlTableModel</name>
    <message>
        <source>Nr.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Autor</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Erfasst am</source>
        <translation>Registrado el</translation>
    </message>
    <message>
        <source>Raum</source>
        <translation>Estancia</translation>
    </message>
    <message>
        <source>Raumbuch-Nr.</source>
        <translation>N.º de libro de estancias</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Beseitigungsanweisung</source>
        <translation>Instrucción de subsanación</translation>
    </message>
    <message>
        <source>Priorität</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Frist</source>
        <translation>Plazo</translation>
    </message>
    <message>
        <source>1. Nachfrist</source>
        <translation>1.ª prórroga</translation>
    </message>
    <message>
        <source>2. Nachfrist</source>
        <translation>2.ª prórroga</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Minderung</source>
        <translation>Reducción de precio</translation>
    </message>
    <message>
        <source>Farbe</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Plan-Name oder Nummer</source>
        <translation>Nombre o número del plano</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Titel</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation>Oficio</translation>
    </message>
    <message>
        <source>Vorname</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Nachname</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>Straße</source>
        <translation>Calle</translation>
    </message>
    <message>
        <source>PLZ</source>
        <translation>C.P.</translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Telefon</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Mobil</source>
        <translation>Móvil</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Adressenliste</source>
        <translation>Lista de direcciones</translation>
    </message>
    <message>
        <source> - mit Minderung</source>
        <translation> - con reducción de precio</translation>
    </message>
    <message>
        <source>Standardstatus</source>
        <translation>Estado estándar</translation>
    </message>
    <message>
        <source>Benutzerstatus</source>
        <translation>Estado de usuario</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Kal</source>
        <translation>Kal</translation>
    </message>
    <message>
        <source>Mängel</source>
        <translation>Defectos</translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation>Planos</translation>
    </message>
    <message>
        <source>Mail-Addresslisten</source>
        <translation>Listas de direcciones de correo</translation>
    </message>
    <message>
        <source>Firmen</source>
        <translation>Empresas</translation>
    </message>
    <message>
        <source>Mail-Addressen</source>
        <translation>Direcciones de correo</translation>
    </message>
</context>
<context>
    <name>KalSqliteCheck</name>
    <message>
        <source>unbekannt</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Der SQLite-Treiber von Qt (QSQLITE) verwendet SQLite %1, das Programm aber SQLite %2.
Projektdateien werden deshalb nicht geöffnet, damit sie nicht beschädigt werden.
Bitte installieren Sie einen SQLite-Treiber für Qt, der die SQLite-Bibliothek des Systems verwendet, oder wenden Sie sich an den Softwarehersteller.</source>
        <translation>El controlador SQLite de Qt (QSQLITE) usa SQLite %1, pero el programa usa SQLite %2.
Por eso no se abren archivos de proyecto, para que no se dañen.
Instale un controlador SQLite para Qt que use la biblioteca SQLite del sistema o póngase en contacto con el fabricante del software.</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>KalStandardMarkerDialog</name>
    <message>
        <source>Standardmarker bearbeiten</source>
        <translation>Editar marcador estándar</translation>
    </message>
    <message>
        <source>Typ 1</source>
        <translation>Tipo 1</translation>
    </message>
    <message>
        <source>Typ 2</source>
        <translation>Tipo 2</translation>
    </message>
    <message>
        <source>Typ 3</source>
        <translation>Tipo 3</translation>
    </message>
    <message>
        <source>Typ 4</source>
        <translation>Tipo 4</translation>
    </message>
    <message>
        <source>Markerfarbe</source>
        <translation>Color del marcador</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Configuración de fábrica</translation>
    </message>
    <message>
        <source>Für die grauen Bereiche der Marker können Sie keine Farbe einstellen.
Diese Bereiche werden im Plan in der Statusfarbe des Mangels angezeigt.
Die Statusfarben können Sie im Statusdialog (Einstellungen-&gt;Status) einstellen.
Der Marker des aktuell ausgewählten Mangels wird im Plan durch rote Linien/Ränder gekennzeichnet.
</source>
        <translation>No puede elegir un color para las zonas grises de los marcadores.
En el plano estas zonas se muestran con el color de estado del defecto.
Los colores de estado se ajustan en el diálogo de estados (Configuración-&gt;Estado).
El marcador del defecto seleccionado se señala en el plano con líneas/bordes rojos.
</translation>
    </message>
    <message>
        <source>Markerfarbe wählen</source>
        <translation>Elegir color del marcador</translation>
    </message>
</context>
<context>
    <name>KalStartup</name>
    <message>
        <source>Projekt existiert bereits</source>
        <translation>El proyecto ya existe</translation>
    </message>
    <message>
        <source>Das Bautagebuch möchte das neue Projekt
%1
anlegen. Diese Datei existiert bereits und wird nicht überschrieben.

Möchten Sie das vorhandene Projekt öffnen und mit dem Bautagebuch verknüpfen?</source>
        <translation>El diario de obra quiere crear el nuevo proyecto
%1
Este archivo ya existe y no se sobrescribirá.

¿Desea abrir el proyecto existente y vincularlo con el diario de obra?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Mängelmanagement für Bauprojekte</source>
        <translation>Gestión de defectos para proyectos de construcción</translation>
    </message>
    <message>
        <source>Sie verwenden eine Bildschirm-Skalierung von %1%. Dies kann es zu Problemen bei der Darstellung des Pellwicks führen.</source>
        <translation>Está utilizando un escalado de pantalla del %1%. Esto puede causar problemas en la visualización de Pellwick.</translation>
    </message>
    <message>
        <source>

Wenn Schriften oder Symbole abgeschnitten oder unscharf dargestellt werden, stellen Sie die Skalierung für Pellwick auf 100 % zurück:
</source>
        <translation>

Si los textos o los iconos aparecen cortados o borrosos, vuelva a ajustar el escalado de Pellwick al 100 %:
</translation>
    </message>
    <message>
        <source> 1. Öffnen Sie die Systemsteuerung.
 2. Wählen Sie &quot;Darstellung und Anpassung&quot; und dann &quot;Anzeige&quot;.
 3. Wählen Sie &quot;Kleiner - 100 %&quot; und bestätigen Sie mit &quot;Übernehmen&quot;.
 4. Melden Sie sich ab und wieder an.</source>
        <translation> 1. Abra el Panel de control.
 2. Elija «Apariencia y personalización» y después «Pantalla».
 3. Elija «Más pequeño - 100 %» y confirme con «Aplicar».
 4. Cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>1. Rechtsklick auf das Pellwick-Desktop-Icon.
2. Wählen Sie &quot;Eigenschaften&quot; und dann die Registerkarte &quot;Kompatibilität&quot;.
3. Klicken Sie auf &quot;Hohe DPI-Einstellungen ändern&quot; und aktivieren Sie &quot;Verhalten bei hoher DPI-Skalierung überschreiben&quot; mit &quot;Anwendung&quot;.
4. Bestätigen Sie mit &quot;OK&quot; und starten Sie Pellwick neu.</source>
        <translation>1. Haga clic con el botón derecho en el icono de Pellwick del escritorio.
2. Elija «Propiedades» y después la pestaña «Compatibilidad».
3. Haga clic en «Cambiar configuración de PPP alta» y active «Invalidar el comportamiento de escalado de PPP alto» con «Aplicación».
4. Confirme con «Aceptar» y reinicie Pellwick.</translation>
    </message>
    <message>
        <source>1. Öffnen Sie die Bildschirm-Einstellungen Ihrer Arbeitsumgebung.
2. Stellen Sie die Skalierung bzw. die Schriftauflösung auf 100 % (96 DPI).
3. Melden Sie sich ab und wieder an und starten Sie Pellwick neu.</source>
        <translation>1. Abra la configuración de pantalla de su entorno de escritorio.
2. Ajuste el escalado o la resolución de las fuentes al 100 % (96 PPP).
3. Cierre la sesión, vuelva a iniciarla y reinicie Pellwick.</translation>
    </message>
    <message>
        <source>Bildschirm-Skalierung</source>
        <translation>Escalado de pantalla</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Datenimport</source>
        <translation>Importación de datos</translation>
    </message>
    <message>
        <source>Das Projekt wurde mit dem Bautagebuch
%1
verknüpft.

Der Import von Mängeln und Firmen aus dem Bautagebuch ist in dieser Programmversion noch nicht verfügbar.</source>
        <translation>El proyecto se ha vinculado al diario de obra
%1

La importación de defectos y empresas del diario de obra todavía no está disponible en esta versión del programa.</translation>
    </message>
    <message>
        <source>Hilfe zum Datenimport

Pellwick arbeitet eigenständig (standalone): Sie erfassen Mängel, Fotos, Pläne und Firmen direkt im Pellwick-Projekt.

Pellwick arbeitet auch mit dem Quellor Bautagebuch zusammen: Das Bautagebuch ist dann die Datenquelle, aus der Mängel, Mängelfotos und Firmen in das Pellwick-Projekt übernommen werden.

Anleitungen dazu finden Sie im Menü &quot;Hilfe&quot;.</source>
        <translation>Ayuda sobre la importación de datos

Pellwick funciona de forma independiente (standalone): registra defectos, fotos, planos y empresas directamente en el proyecto de Pellwick.

Pellwick también funciona junto con el diario de obra de Quellor: el diario de obra es entonces la fuente de datos desde la que se transfieren defectos, fotos de defectos y empresas al proyecto de Pellwick.

Encontrará guías al respecto en el menú «Ayuda».</translation>
    </message>
    <message>
        <source>Hilfe zum Datenimport</source>
        <translation>Ayuda sobre la importación de datos</translation>
    </message>
</context>
<context>
    <name>KalStatusDialog</name>
    <message>
        <source>Werkseinstellung</source>
        <translation>Configuración de fábrica</translation>
    </message>
    <message>
        <source>Alle User-Status entfernen</source>
        <translation>Eliminar todos los estados de usuario</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Neuer Status</source>
        <translation>Estado nuevo</translation>
    </message>
    <message>
        <source>Statusfarbe wählen</source>
        <translation>Elegir el color del estado</translation>
    </message>
    <message>
        <source>Standard Status wiederherstellen</source>
        <translation>Restaurar los estados estándar</translation>
    </message>
    <message>
        <source>Die Standard Status werden auf die Werkseinstellungen zurückgesetzt.</source>
        <translation>Los estados estándar se restablecen a la configuración de fábrica.</translation>
    </message>
    <message>
        <source>Benutzerstatus löschen</source>
        <translation>Eliminar estados de usuario</translation>
    </message>
    <message>
        <source>Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel ihren Status!
Wollen Sie wirklich alle Benutzerstatus löschen?</source>
        <translation>Si elimina un estado que ya está asignado a defectos, esos defectos pierden su estado.
¿Desea eliminar realmente todos los estados de usuario?</translation>
    </message>
    <message>
        <source>Statusverwaltung</source>
        <translation>Gestión de estados</translation>
    </message>
</context>
<context>
    <name>KalTableView</name>
    <message>
        <source>Neue Zeile hinzufügen</source>
        <translation>Añadir fila nueva</translation>
    </message>
    <message>
        <source>Gewählte Zeilen entfernen</source>
        <translation>Eliminar las filas seleccionadas</translation>
    </message>
    <message>
        <source>Gewählte Zeilen kopieren</source>
        <translation>Copiar las filas seleccionadas</translation>
    </message>
    <message>
        <source>Doppelklick für neue Zeile</source>
        <translation>Doble clic para una fila nueva</translation>
    </message>
    <message>
        <source>Status löschen</source>
        <translation>Eliminar estado</translation>
    </message>
    <message>
        <source>Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel ihren Status!
Soll der gewählte Status tatsächlich gelöscht werden?</source>
        <translation>Si elimina un estado que ya está asignado a defectos, esos defectos pierden su estado.
¿Desea eliminar realmente el estado seleccionado?</translation>
    </message>
    <message>
        <source>Eintrag entfernen</source>
        <translation>Eliminar entrada</translation>
    </message>
    <message>
        <source>Soll der gewählte Eintrag tatsächlich entfernt werden?</source>
        <translation>¿Desea eliminar realmente la entrada seleccionada?</translation>
    </message>
    <message>
        <source>Einträge entfernen</source>
        <translation>Eliminar entradas</translation>
    </message>
    <message>
        <source>Sollen die %1 gewählten Einträge tatsächlich entfernt werden?</source>
        <translation>¿Desea eliminar realmente las %1 entradas seleccionadas?</translation>
    </message>
    <message>
        <source>Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel ihren Status!
Sollen die %1 gewählten Status tatsächlich gelöscht werden?</source>
        <translation>Si elimina un estado que ya está asignado a defectos, esos defectos pierden su estado.
¿Desea eliminar realmente los %1 estados seleccionados?</translation>
    </message>
</context>
<context>
    <name>KalTextEditor</name>
    <message>
        <source>Text bearbeiten</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Text fett</source>
        <translation>Texto en negrita</translation>
    </message>
    <message>
        <source>F</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Text kursiv</source>
        <translation>Texto en cursiva</translation>
    </message>
    <message>
        <source>K</source>
        <translation>C</translation>
    </message>
    <message>
        <source>Text unterstrichen</source>
        <translation>Texto subrayado</translation>
    </message>
    <message>
        <source>U</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Schriftgröße</source>
        <translation>Tamaño de fuente</translation>
    </message>
    <message>
        <source>Textfarbe</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Voreinstellungen</source>
        <translation>Valores predeterminados</translation>
    </message>
    <message>
        <source>Hier den Text eingeben</source>
        <translation>Introduzca el texto aquí</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Text eingeben</source>
        <translation>Introducir texto</translation>
    </message>
    <message>
        <source>Symbol erstellen</source>
        <translation>Crear símbolo</translation>
    </message>
    <message>
        <source>Standardeinstellungen Plantexte</source>
        <translation>Configuración predeterminada de los textos del plano</translation>
    </message>
    <message>
        <source>Legen Sie die Standardeinstellungen für die automatisch im Plan erzeugten Mängeltexte fest. Sie können einzelne Texte im Plan ändern, indem Sie im Planeditor einen Doppelklick auf den Text ausführen. Den Planeditor öffnen Sie, indem Sie den Mangel in der Tabelle auswählen und einen Doppelklick auf den Plan ausführen.
</source>
        <translation>Defina la configuración predeterminada de los textos de defectos creados automáticamente en el plano. Puede cambiar textos individuales en el plano haciendo doble clic en el texto en el editor de planos. El editor de planos se abre seleccionando el defecto en la tabla y haciendo doble clic en el plano.
</translation>
    </message>
    <message>
        <source>0001: Mangelbeschreibung</source>
        <translation>0001: Descripción del defecto</translation>
    </message>
    <message>
        <source>Textfarbe wählen</source>
        <translation>Elegir color del texto</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Sie haben den kompletten Text gelöscht.
Das Textelement im Plan wird dann ebenfalls gelöscht.
Wenn Sie den Planeditor verlassen und für diesen Mangel erneut aufrufen, wird automatisch ein neues Textelement mit der Mangelbeschreibung erzeugt.

Wollen Sie das Textelement im Plan wirklich löschen?</source>
        <translation>Ha borrado todo el texto.
El elemento de texto del plano también se eliminará.
Si sale del editor de planos y lo vuelve a abrir para este defecto, se creará automáticamente un nuevo elemento de texto con la descripción del defecto.

¿Desea realmente eliminar el elemento de texto del plano?</translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation>Descartar cambios</translation>
    </message>
    <message>
        <source>Möchten Sie die Änderungen tatsächlich verwerfen?</source>
        <translation>¿Desea realmente descartar los cambios?</translation>
    </message>
</context>
<context>
    <name>KalUpdateCheck</name>
    <message>
        <source>Die Versionsdatei des Update-Servers ist nicht lesbar.</source>
        <translation>No se puede leer el archivo de versión del servidor de actualizaciones.</translation>
    </message>
    <message>
        <source>Sie verwenden die aktuelle Version %1.</source>
        <translation>Está utilizando la versión actual %1.</translation>
    </message>
    <message>
        <source>Die Version %1 ist verfügbar, aber der Update-Server nennt keine gültige Download-Seite (http oder https).</source>
        <translation>La versión %1 está disponible, pero el servidor de actualizaciones no indica ninguna página de descarga válida (http o https).</translation>
    </message>
    <message>
        <source>Die Version %1 ist verfügbar (installiert ist %2).
Download-Seite: %3</source>
        <translation>La versión %1 está disponible (instalada: %2).
Página de descarga: %3</translation>
    </message>
    <message>
        <source>Es ist keine Update-Quelle eingerichtet (Einstellung &quot;%1&quot;).</source>
        <translation>No hay ninguna fuente de actualizaciones configurada (ajuste &quot;%1&quot;).</translation>
    </message>
    <message>
        <source>Die Update-Quelle &quot;%1&quot; ist keine http-, https- oder Datei-Adresse.</source>
        <translation>La fuente de actualizaciones &quot;%1&quot; no es una dirección http, https ni de archivo.</translation>
    </message>
    <message>
        <source>Die Antwort von %1 ist größer als %2 KB und wird nicht gelesen.</source>
        <translation>La respuesta de %1 supera los %2 KB y no se lee.</translation>
    </message>
    <message>
        <source>%1 hat nicht innerhalb von %2 Sekunden geantwortet.</source>
        <translation>%1 no ha respondido en %2 segundos.</translation>
    </message>
    <message>
        <source>Der Update-Server %1 antwortete mit dem Status %2.</source>
        <translation>El servidor de actualizaciones %1 respondió con el estado %2.</translation>
    </message>
    <message>
        <source>Der Update-Server %1 hat die Verbindung abgelehnt.</source>
        <translation>El servidor de actualizaciones %1 ha rechazado la conexión.</translation>
    </message>
    <message>
        <source>Der Update-Server %1 wurde nicht gefunden. Besteht eine Internetverbindung?</source>
        <translation>No se ha encontrado el servidor de actualizaciones %1. ¿Hay conexión a Internet?</translation>
    </message>
    <message>
        <source>Die Versionsdatei %1 ist nicht vorhanden oder nicht lesbar.</source>
        <translation>El archivo de versión %1 no existe o no se puede leer.</translation>
    </message>
    <message>
        <source>Der Update-Server %1 ist nicht erreichbar.</source>
        <translation>No se puede acceder al servidor de actualizaciones %1.</translation>
    </message>
</context>
<context>
    <name>KalUpdateTestCommand</name>
    <message>
        <source>Update Test</source>
        <translation>Comprobar actualizaciones</translation>
    </message>
    <message>
        <source>Möchten Sie die Download-Seite öffnen?</source>
        <translation>¿Desea abrir la página de descarga?</translation>
    </message>
    <message>
        <source>Die Download-Seite %1 konnte nicht geöffnet werden.</source>
        <translation>No se ha podido abrir la página de descarga %1.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Ihre QT-Installation unterstützt SQLITE nicht. Bitte kontaktieren Sie den Softwarehersteller.</source>
        <translation>Su instalación de Qt no es compatible con SQLite. Póngase en contacto con el fabricante del software.</translation>
    </message>
</context>
<context>
    <name>KalDataImportQuestions</name>
    <message>
        <source>Die Firma

Gewerk: %1
Vorname: %2
Nachname: %3
Firma: %4
Straße: %5
PLZ: %6
Stadt: %7
Telefon: %8
Fax: %9
Mobil: %10
E-Mail: %11

wurde im Bautagebuch gelöscht.
Soll diese Firma auch im Pellwick gelöscht werden?
</source>
        <translation>La empresa

Gremio: %1
Nombre: %2
Apellido: %3
Empresa: %4
Calle: %5
C.P.: %6
Ciudad: %7
Teléfono: %8
Fax: %9
Móvil: %10
Correo electrónico: %11

se eliminó en el diario de obra.
¿Debe eliminarse también esta empresa en Pellwick?
</translation>
    </message>
    <message>
        <source>Firma im Pellwick löschen</source>
        <translation>Eliminar empresa en Pellwick</translation>
    </message>
    <message>
        <source>Alle weiteren gelöschten Firmen genauso behandeln</source>
        <translation>Tratar igual todas las demás empresas eliminadas</translation>
    </message>
    <message>
        <source>Der Bericht %1 wurde im Bautagebuch gelöscht.
Sollen die Mängel dieses Berichts im Pellwick gelöscht werden?
</source>
        <translation>El informe %1 se eliminó en el diario de obra.
¿Deben eliminarse en Pellwick los defectos de este informe?
</translation>
    </message>
    <message>
        <source>Mängel im Pellwick löschen</source>
        <translation>Eliminar defectos en Pellwick</translation>
    </message>
    <message>
        <source>Alle weiteren im Bautagebuch gelöschten Berichte genauso behandeln</source>
        <translation>Tratar igual todos los demás informes eliminados en el diario de obra</translation>
    </message>
    <message>
        <source>Der Mangel %1 wurde im Bautagebuch gelöscht.
Soll dieser Mangel im Pellwick ebenfalls gelöscht werden?
</source>
        <translation>El defecto %1 se eliminó en el diario de obra.
¿Debe eliminarse también este defecto en Pellwick?
</translation>
    </message>
    <message>
        <source>Mangel im Pellwick löschen</source>
        <translation>Eliminar defecto en Pellwick</translation>
    </message>
    <message>
        <source>Alle weiteren im Bautagebuch gelöschten Mängel genauso behandeln</source>
        <translation>Tratar igual todos los demás defectos eliminados en el diario de obra</translation>
    </message>
    <message>
        <source>Das Foto &quot;%1&quot; vom %2 wurde im Bautagebuch aus dem Mangel entfernt.
Soll dieses Foto im Pellwick ebenfalls entfernt werden?
</source>
        <translation>La foto &quot;%1&quot; del %2 se quitó del defecto en el diario de obra.
¿Debe quitarse también esta foto en Pellwick?
</translation>
    </message>
    <message>
        <source>Foto im Pellwick entfernen</source>
        <translation>Quitar foto en Pellwick</translation>
    </message>
    <message>
        <source>Alle weiteren im Bautagebuch gelöschten Fotos genauso behandeln</source>
        <translation>Tratar igual todas las demás fotos eliminadas en el diario de obra</translation>
    </message>
    <message>
        <source>Die Firma

Gewerk: %1
Vorname: %2
Nachname: %3
Firma: %4
Straße: %5
PLZ: %6
Stadt: %7
Telefon: %8
Fax: %9
Mobil: %10
E-Mail: %11

wurde im Pellwick gelöscht.
Soll diese Firma erneut importiert werden?
</source>
        <translation>La empresa

Gremio: %1
Nombre: %2
Apellido: %3
Empresa: %4
Calle: %5
C.P.: %6
Ciudad: %7
Teléfono: %8
Fax: %9
Móvil: %10
Correo electrónico: %11

se eliminó en Pellwick.
¿Debe volver a importarse esta empresa?
</translation>
    </message>
    <message>
        <source>Firma erneut importieren</source>
        <translation>Volver a importar la empresa</translation>
    </message>
    <message>
        <source>Der Mangel %1 wurde im Pellwick gelöscht.
Soll dieser Mangel erneut importiert werden?
</source>
        <translation>El defecto %1 se eliminó en Pellwick.
¿Debe volver a importarse este defecto?
</translation>
    </message>
    <message>
        <source>Mangel erneut importieren</source>
        <translation>Volver a importar el defecto</translation>
    </message>
    <message>
        <source>Alle weiteren gelöschten Mängel genauso behandeln</source>
        <translation>Tratar igual todos los demás defectos eliminados</translation>
    </message>
    <message>
        <source>Das Foto &quot;%1&quot; vom %2 wurde im Pellwick gelöscht.
Soll dieses Foto erneut importiert werden?
</source>
        <translation>La foto &quot;%1&quot; del %2 se eliminó en Pellwick.
¿Debe volver a importarse esta foto?
</translation>
    </message>
    <message>
        <source>Foto erneut importieren</source>
        <translation>Volver a importar la foto</translation>
    </message>
    <message>
        <source>Alle weiteren gelöschten Fotos genauso behandeln</source>
        <translation>Tratar igual todas las demás fotos eliminadas</translation>
    </message>
    <message>
        <source>Datenimport aus dem Bautagebuch</source>
        <translation>Importación de datos del diario de obra</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Ohne Titel</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>&apos;Ohne Datum&apos;</source>
        <translation>&apos;Sin fecha&apos;</translation>
    </message>
</context>
<context>
    <name>KalDataImportResult</name>
    <message>
        <source>Firma</source>
        <translation>empresa</translation>
    </message>
    <message>
        <source>Firmen</source>
        <translation>empresas</translation>
    </message>
    <message>
        <source>Mangel</source>
        <translation>defecto</translation>
    </message>
    <message>
        <source>Mängel</source>
        <translation>defectos</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>Die Daten wurden aktualisiert.</source>
        <translation>Los datos se han actualizado.</translation>
    </message>
    <message>
        <source>Es wurden %1 %2 und %3 %4 mit %5 %6 importiert.</source>
        <translation>Se importaron %1 %2 y %3 %4 con %5 %6.</translation>
    </message>
    <message>
        <source>

Folgende Mängel wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden:

</source>
        <translation>

Los siguientes defectos no se actualizaron porque ya se habían modificado en Pellwick:

</translation>
    </message>
    <message>
        <source>
Folgende Firmen wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden:

</source>
        <translation>
Las siguientes empresas no se actualizaron porque ya se habían modificado en Pellwick:

</translation>
    </message>
    <message>
        <source>
1 Foto wurde nicht aktualisiert, da es bereits im Pellwick geändert wurde.
</source>
        <translation>
1 foto no se actualizó porque ya se había modificado en Pellwick.
</translation>
    </message>
    <message>
        <source>
%1 Fotos wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden.
</source>
        <translation>
%1 fotos no se actualizaron porque ya se habían modificado en Pellwick.
</translation>
    </message>
    <message>
        <source>

Folgende Fotos konnten nicht übernommen werden:

</source>
        <translation>

Las siguientes fotos no se pudieron importar:

</translation>
    </message>
</context>
<context>
    <name>KalSiteJournalDataImport</name>
    <message>
        <source>Datenbank wird aktualisiert ...</source>
        <translation>Actualizando la base de datos ...</translation>
    </message>
    <message>
        <source>Datenimport aus dem Bautagebuch</source>
        <translation>Importación de datos del diario de obra</translation>
    </message>
    <message>
        <source>Es ist kein Projekt geöffnet.</source>
        <translation>No hay ningún proyecto abierto.</translation>
    </message>
    <message>
        <source>Das Projekt ist schreibgeschützt; es kann nichts importiert werden.</source>
        <translation>El proyecto está protegido contra escritura; no se puede importar nada.</translation>
    </message>
    <message>
        <source>Datenimport aus Bautagebuch</source>
        <translation>Importación de datos del diario de obra</translation>
    </message>
    <message>
        <source>Zu der Bautagebuchdatei existiert die Vorgängerdatei
%1
.Sollen die Daten dieser Vorgängerdatei ebenfalls importiert werden?
</source>
        <translation>El archivo del diario de obra tiene el archivo anterior
%1
.¿Deben importarse también los datos de este archivo anterior?
</translation>
    </message>
    <message>
        <source>Daten aus Vorgängerdatei importieren</source>
        <translation>Importar datos del archivo anterior</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Die Vorgängerdatenbank konnte nicht geöffnet werden.
Es werden nur die Daten der Folgesatei importiert.

</source>
        <translation>No se pudo abrir la base de datos anterior.
Solo se importarán los datos del archivo siguiente.

</translation>
    </message>
    <message>
        <source>Bautagebuch Folgedatei gefunden</source>
        <translation>Archivo siguiente del diario de obra encontrado</translation>
    </message>
    <message>
        <source>Das Bautagebuch nennt die Folgedatei
%1
die nicht gefunden wurde.
Es werden nur die Daten dieser Datei importiert.</source>
        <translation>El diario de obra indica el archivo siguiente
%1
que no se encontró.
Solo se importarán los datos de este archivo.</translation>
    </message>
    <message>
        <source>Die Folgedateien des Bautagebuchs verweisen im Kreis aufeinander:
%1
nennt wieder
%2
Es werden nur die Daten bis hierher importiert.</source>
        <translation>Los archivos siguientes del diario de obra se remiten unos a otros en círculo:
%1
vuelve a indicar
%2
Solo se importarán los datos hasta aquí.</translation>
    </message>
    <message>
        <source>Für das mit dem Pellwick Projekt verknüpfte Bautagebuch wurde seit dem letzten Import eine Folgedatei angelegt.
Das Pellwick Projekt wird jetzt mit dieser Folgedatei verknüpft.
Im Anschluss werden die Daten der Folgedatei importiert.
Ein Import von Daten aus der Ursprungsdatei des Bautagebuchs ist dann nicht mehr möglich.</source>
        <translation>Desde la última importación se ha creado un archivo siguiente para el diario de obra vinculado al proyecto Pellwick.
El proyecto Pellwick se vinculará ahora con este archivo siguiente.
A continuación se importarán los datos del archivo siguiente.
Después ya no será posible importar datos del archivo original del diario de obra.</translation>
    </message>
    <message>
        <source>

Klicken Sie auf &apos;OK&apos;, um die importierten Daten zu speichern und im Anschluss die Folgedatei des Bautagebuchs zu importieren.</source>
        <translation>

Haga clic en &apos;Aceptar&apos; para guardar los datos importados y a continuación importar el archivo siguiente del diario de obra.</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!</source>
        <translation>¡Se produjo un error al guardar el proyecto!</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Der Datenimport aus dem Bautagebuch ist fehlgeschlagen; das Projekt bleibt, wie es war.
%1</source>
        <translation>La importación de datos del diario de obra ha fallado; el proyecto queda como estaba.
%1</translation>
    </message>
    <message>
        <source>Der Datenimport konnte nicht begonnen werden.</source>
        <translation>No se pudo iniciar la importación de datos.</translation>
    </message>
    <message>
        <source>Die importierten Daten konnten nicht gespeichert werden.</source>
        <translation>No se pudieron guardar los datos importados.</translation>
    </message>
    <message>
        <source>Firmendaten werden importiert ...</source>
        <translation>Importando datos de empresas ...</translation>
    </message>
    <message>
        <source>Mängel werden importiert ...</source>
        <translation>Importando defectos ...</translation>
    </message>
    <message>
        <source>Mangel %1: %2</source>
        <translation>Defecto %1: %2</translation>
    </message>
    <message>
        <source>Mangel %1 von %2</source>
        <translation>Defecto %1 de %2</translation>
    </message>
    <message>
        <source>Ohne Titel</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>&apos;Ohne Datum&apos;</source>
        <translation>&apos;Sin fecha&apos;</translation>
    </message>
    <message>
        <source>Foto &quot;%1&quot; vom %2: %3</source>
        <translation>Foto &quot;%1&quot; del %2: %3</translation>
    </message>
    <message>
        <source>Foto &quot;%1&quot;: %2</source>
        <translation>Foto &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>KalSiteJournalFile</name>
    <message>
        <source>Die Bautagebuch-Datei
%1
konnte nicht gelesen werden (%2):
%3</source>
        <translation>No se pudo leer el archivo del diario de obra
%1
(%2):
%3</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei %1 existiert nicht.</source>
        <translation>El archivo del diario de obra %1 no existe.</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei %1 konnte nicht geöffnet werden:
%2</source>
        <translation>No se pudo abrir el archivo del diario de obra %1:
%2</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist keine Bautagebuch-Datei.</source>
        <translation>El archivo
%1
no es un archivo de diario de obra.</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei %1 ist in einem Zustand gespeichert, in dem sie nicht gelesen werden kann, ohne sie zu verändern (WAL-Modus).
Öffnen und schließen Sie sie einmal im Bautagebuch-Programm und starten Sie den Import erneut.</source>
        <translation>El archivo del diario de obra %1 está guardado en un estado en el que no se puede leer sin modificarlo (modo WAL).
Ábralo y ciérrelo una vez en el programa del diario de obra e inicie de nuevo la importación.</translation>
    </message>
    <message>
        <source>Neben der Bautagebuch-Datei %1 liegt eine nicht abgeschlossene Änderung (%2).
Öffnen und schließen Sie das Bautagebuch einmal im Bautagebuch-Programm und starten Sie den Import erneut.</source>
        <translation>Junto al archivo del diario de obra %1 hay una modificación sin terminar (%2).
Abra y cierre el diario de obra una vez en el programa del diario de obra e inicie de nuevo la importación.</translation>
    </message>
    <message>
        <source>Sperre</source>
        <translation>bloqueo</translation>
    </message>
    <message>
        <source>Aufbau</source>
        <translation>estructura</translation>
    </message>
    <message>
        <source>Tabelle &quot;%1&quot;</source>
        <translation>tabla &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Spalte &quot;%1&quot; der Tabelle &quot;%2&quot;</source>
        <translation>columna &quot;%1&quot; de la tabla &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist keine Bautagebuch-Datei oder hat einen unbekannten Aufbau.
Es fehlen: %2</source>
        <translation>El archivo
%1
no es un archivo de diario de obra o tiene una estructura desconocida.
Faltan: %2</translation>
    </message>
    <message>
        <source>Das Bild fehlt im Bautagebuch.</source>
        <translation>La imagen falta en el diario de obra.</translation>
    </message>
</context>
<context>
    <name>KalSiteJournalLockMarker</name>
    <message>
        <source>Bautagebuch geöffnet</source>
        <translation>Diario de obra abierto</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei ist im Bautagebuch-Programm zur Bearbeitung geöffnet.
Speichern Sie Ihre Änderungen im Bautagebuch-Programm, bevor Sie fortfahren.
Während des Import-Vorgangs ist kein Speichern des Bautagebuchs möglich!</source>
        <translation>El archivo del diario de obra está abierto para su edición en el programa del diario de obra.
Guarde sus cambios en el programa del diario de obra antes de continuar.
¡Durante la importación no es posible guardar el diario de obra!</translation>
    </message>
    <message>
        <source>Fortfahren</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Import abbrechen</source>
        <translation>Cancelar importación</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Error de base de datos</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist von
User: %1
Computer: %2.</source>
        <translation>No se pudo abrir el archivo del diario de obra porque lo está editando
Usuario: %1
Ordenador: %2.</translation>
    </message>
</context>
<context>
    <name>KalInitialImportDialog</name>
    <message>
        <source>
Es werden alle Mängel und Firmen aus dem Bautagebuch %1 importiert.

Wenn Sie einen automatischen Import aus dem Bautagebuch bei jedem Öffnen des Projekts wünschen,
setzen Sie unten das entsprechende Häkchen.

</source>
        <translation>
Se importarán todos los defectos y empresas del diario de obra %1.

Si desea una importación automática del diario de obra cada vez que se abra el proyecto,
marque la casilla correspondiente más abajo.

</translation>
    </message>
    <message>
        <source>Importieren</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Datenimport aus Bautagebuch</source>
        <translation>Importación de datos del diario de obra</translation>
    </message>
    <message>
        <source>Automatischer Import neuer Mängel und Firmen beim Öffnen des Projekts</source>
        <translation>Importar automáticamente defectos y empresas nuevos al abrir el proyecto</translation>
    </message>
    <message>
        <source>Zusätzlich auch bereits importierte Daten aktualisieren</source>
        <translation>Actualizar también los datos ya importados</translation>
    </message>
</context>
<context>
    <name>KalImportFromAppDialog</name>
    <message>
        <source>&lt;h3&gt;Mängel mit der Quellor App erfassen&lt;/h3&gt;&lt;p&gt;Mit der Quellor App erfassen Sie Mängel direkt auf der Baustelle: Beschreibung, Raum, Firma und Frist, dazu Fotos mit der Kamera Ihres Smartphones oder Tablets.&lt;/p&gt;&lt;p&gt;Exportieren Sie die erfassten Daten in der App und übertragen Sie die Export-Datei (*.sjd) auf diesen Computer, zum Beispiel per USB-Kabel, E-Mail oder über einen Cloud-Speicher.&lt;/p&gt;&lt;p&gt;Klicken Sie dann auf &lt;b&gt;Datei importieren&lt;/b&gt; und wählen Sie die Export-Datei aus. Neue Mängel, ihre Fotos und die Firmen werden in das Projekt übernommen; Mängel, die Sie hier bereits geändert haben, werden nicht überschrieben.&lt;/p&gt;&lt;p&gt;Die Verknüpfung des Projekts mit einem Bautagebuch bleibt dabei unverändert.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Registrar defectos con la Quellor App&lt;/h3&gt;&lt;p&gt;Con la Quellor App registra los defectos directamente en la obra: descripción, estancia, empresa y plazo, junto con fotos tomadas con la cámara de su smartphone o tableta.&lt;/p&gt;&lt;p&gt;Exporte los datos registrados en la app y transfiera el archivo de exportación (*.sjd) a este ordenador, por ejemplo por cable USB, correo electrónico o almacenamiento en la nube.&lt;/p&gt;&lt;p&gt;Después haga clic en &lt;b&gt;Importar archivo&lt;/b&gt; y elija el archivo de exportación. Los defectos nuevos, sus fotos y las empresas se incorporan al proyecto; los defectos que ya haya modificado aquí no se sobrescriben.&lt;/p&gt;&lt;p&gt;El vínculo del proyecto con un diario de obra no cambia.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Export-Datei der Quellor App auswählen</source>
        <translation>Elegir el archivo de exportación de la Quellor App</translation>
    </message>
    <message>
        <source>Export-Dateien der Quellor App (*.sjd)</source>
        <translation>Archivos de exportación de la Quellor App (*.sjd)</translation>
    </message>
    <message>
        <source>Import aus der Quellor App</source>
        <translation>Importación desde la Quellor App</translation>
    </message>
    <message>
        <source>Datei importieren</source>
        <translation>Importar archivo</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>KalDataImportDefectAssignDialog</name>
    <message>
        <source>
Für folgenden Bautagebuch-Mangel ist beim Import ein Konflikt entstanden.
Der Mangel konnte keinem Mangel im Pellwick zugeordnet werden.
Sie können
- den Bautagebuch-Mangel als neuen Mangel importieren oder
- den Bautagebuch-Mangel einem im Pellwick bestehenden Mangel zuordnen,
 um diesen zu aktualisieren.

</source>
        <translation>
Durante la importación surgió un conflicto con el siguiente defecto del diario de obra.
El defecto no se pudo asignar a ningún defecto de Pellwick.
Puede
- importar el defecto del diario de obra como defecto nuevo o
- asignar el defecto del diario de obra a un defecto existente en Pellwick,
 para actualizarlo.

</translation>
    </message>
    <message>
        <source>Mangel</source>
        <translation>Defecto</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Bericht:</source>
        <translation>Informe:</translation>
    </message>
    <message>
        <source>
Beschreibung:
</source>
        <translation>
Descripción:
</translation>
    </message>
    <message>
        <source>
Raumname:</source>
        <translation>
Nombre de la estancia:</translation>
    </message>
    <message>
        <source>
Raumbuch-Nr.:</source>
        <translation>
N.º de libro de estancias:</translation>
    </message>
    <message>
        <source>
Firma:</source>
        <translation>
Empresa:</translation>
    </message>
    <message>
        <source>
Frist:</source>
        <translation>
Plazo:</translation>
    </message>
    <message>
        <source>
Anzahl Fotos:</source>
        <translation>
Número de fotos:</translation>
    </message>
    <message>
        <source> - mit Minderung</source>
        <translation> - con reducción de precio</translation>
    </message>
    <message>
        <source>Beschreibung:
</source>
        <translation>Descripción:
</translation>
    </message>
    <message>
        <source>
Typ:</source>
        <translation>
Tipo:</translation>
    </message>
    <message>
        <source>
Autor:</source>
        <translation>
Autor:</translation>
    </message>
    <message>
        <source>
Erfasst am:</source>
        <translation>
Registrado el:</translation>
    </message>
    <message>
        <source>
Plan:</source>
        <translation>
Plano:</translation>
    </message>
    <message>
        <source>
Beseitigungsanweisung:
</source>
        <translation>
Instrucción de subsanación:
</translation>
    </message>
    <message>
        <source>
Priorität:</source>
        <translation>
Prioridad:</translation>
    </message>
    <message>
        <source>
1.Nachfrist:</source>
        <translation>
1.ª prórroga:</translation>
    </message>
    <message>
        <source>
2.Nachfrist:</source>
        <translation>
2.ª prórroga:</translation>
    </message>
    <message>
        <source>
Status:</source>
        <translation>
Estado:</translation>
    </message>
    <message>
        <source>Neuer Mangel</source>
        <translation>Defecto nuevo</translation>
    </message>
    <message>
        <source>Sie haben einen Mangel ausgewählt.
Soll der Bautagebuch-Mangel trotzdem als ein neuer Mangel importiert werden?</source>
        <translation>Ha seleccionado un defecto.
¿Importar de todos modos el defecto del diario de obra como defecto nuevo?</translation>
    </message>
    <message>
        <source>Als neuen Mangel importieren</source>
        <translation>Importar como defecto nuevo</translation>
    </message>
    <message>
        <source>Mangel zuweisen</source>
        <translation>Asignar defecto</translation>
    </message>
    <message>
        <source>Sie haben keinen Mangel ausgewählt.</source>
        <translation>No ha seleccionado ningún defecto.</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Zuordnen eines Mangels</source>
        <translation>Asignación de un defecto</translation>
    </message>
    <message>
        <source>Mangel im Bautagebuch</source>
        <translation>Defecto en el diario de obra</translation>
    </message>
    <message>
        <source>Mängel im Pellwick</source>
        <translation>Defectos en Pellwick</translation>
    </message>
    <message>
        <source>Dem ausgewählten Mangel zuweisen</source>
        <translation>Asignar al defecto seleccionado</translation>
    </message>
</context>
<context>
    <name>KalSiteJournalImportCommands</name>
    <message>
        <source>Datenimport aus Bautagebuch</source>
        <translation>Importación de datos del diario de obra</translation>
    </message>
    <message>
        <source>Mängel und Firmen aus dem Bautagebuch aktualisieren</source>
        <translation>Actualizar defectos y empresas desde el diario de obra</translation>
    </message>
    <message>
        <source>Das Projekt wurde noch nicht gespeichert.
Sie müssen das Projekt vor dem Import speichern.</source>
        <translation>El proyecto aún no se ha guardado.
Debe guardar el proyecto antes de la importación.</translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Pellwick Projekt (*.pwp)</source>
        <translation>Proyecto Pellwick (*.pwp)</translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!</source>
        <translation>¡Se produjo un error al guardar el proyecto!</translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert.
Vor dem Datenimport werden die Änderungen gespeichert.
</source>
        <translation>El proyecto se ha modificado.
Los cambios se guardarán antes de la importación de datos.
</translation>
    </message>
    <message>
        <source>Speichern und Starten des Imports</source>
        <translation>Guardar e iniciar la importación</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!
Der Import konnte nicht durchgeführt werden.
</source>
        <translation>¡Se produjo un error al guardar el proyecto!
No se pudo realizar la importación.
</translation>
    </message>
    <message>
        <source>Zu diesem Projekt ist kein zugehöriges Bautagebuch gespeichert.
Bitte wählen Sie im folgenden Dateidialog das Bautagebuch aus.
</source>
        <translation>Este proyecto no tiene guardado ningún diario de obra.
Elija el diario de obra en el siguiente diálogo de archivos.
</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei %1 existiert nicht.
Bitte wählen Sie im folgenden Dateidialog das Bautagebuch aus.
</source>
        <translation>El archivo del diario de obra %1 no existe.
Elija el diario de obra en el siguiente diálogo de archivos.
</translation>
    </message>
    <message>
        <source>Zum Projekt gehöriges Bautagebuch auswählen</source>
        <translation>Elegir el diario de obra del proyecto</translation>
    </message>
    <message>
        <source>Bautagebücher (*.sjd)</source>
        <translation>Diarios de obra (*.sjd)</translation>
    </message>
    <message>
        <source>Der Datenimport wurde abgebrochen.
Das Projekt wurde nicht verändert.</source>
        <translation>La importación de datos se canceló.
El proyecto no se ha modificado.</translation>
    </message>
    <message>
        <source>Der Datenimport wurde abgebrochen.
Die Daten der zuletzt gelesenen Datei wurden nicht übernommen.

</source>
        <translation>La importación de datos se canceló.
Los datos del último archivo leído no se incorporaron.

</translation>
    </message>
    <message>
        <source>Jetzt speichern</source>
        <translation>Guardar ahora</translation>
    </message>
    <message>
        <source>Später speichern</source>
        <translation>Guardar más tarde</translation>
    </message>
    <message>
        <source>
Mängel und Firmen aus dem Bautagebuch werden aktualisiert:

- neue Mängel / Firmen werden in den Pellwick übernommen
- Änderungen an Mängeln / Firmen werden in den Pellwick übernommen, 
  wenn der betroffene Datensatz im Pellwick nicht geändert wurde
- im Bautagebuch gelöschte Mängel / Firmen können im Pellwick gelöscht werden
- im Pellwick gelöschte Mängel / Firmen können erneut importiert werden
</source>
        <translation>
Los defectos y empresas se actualizan desde el diario de obra:

- los defectos / empresas nuevos se incorporan a Pellwick
- los cambios en defectos / empresas se incorporan a Pellwick, 
  si el registro afectado no se modificó en Pellwick
- los defectos / empresas eliminados en el diario de obra pueden eliminarse en Pellwick
- los defectos / empresas eliminados en Pellwick pueden importarse de nuevo
</translation>
    </message>
    <message>
        <source>Mängel und Firmen aktualisieren</source>
        <translation>Actualizar defectos y empresas</translation>
    </message>
    <message>
        <source>Nur neue Mängel und Firmen importieren</source>
        <translation>Importar solo defectos y empresas nuevos</translation>
    </message>
    <message>
        <source>Das Projekt ist mit dem Bautagebuch
%1
verknüpft.

Das Bautagebuch-Programm hat das Bautagebuch
%2
übergeben.

Soll das Projekt jetzt mit diesem Bautagebuch verknüpft und dessen Daten importiert werden?</source>
        <translation>El proyecto está vinculado al diario de obra
%1

El programa del diario de obra ha entregado el diario de obra
%2

¿Vincular ahora el proyecto a este diario de obra e importar sus datos?</translation>
    </message>
    <message>
        <source>Neu verknüpfen und importieren</source>
        <translation>Volver a vincular e importar</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Der automatische Import aus dem Bautagebuch wurde übersprungen:
Die Bautagebuch-Datei %1 existiert nicht.</source>
        <translation>Se omitió la importación automática del diario de obra:
El archivo del diario de obra %1 no existe.</translation>
    </message>
</context>
</TS>
