<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>DefaultStatus</name>
    <message>
        <source>Offen, zu beseitigen</source>
        <translation>Open, to be remedied</translation>
    </message>
    <message>
        <source>Offen, in Arbeit</source>
        <translation>Open, in progress</translation>
    </message>
    <message>
        <source>Offen, unzureichend beseitigt</source>
        <translation>Open, insufficiently remedied</translation>
    </message>
    <message>
        <source>Offen, streitig</source>
        <translation>Open, disputed</translation>
    </message>
    <message>
        <source>Erledigt, komplett beseitigt</source>
        <translation>Done, completely remedied</translation>
    </message>
    <message>
        <source>Erledigt, teilweise beseitigt</source>
        <translation>Done, partly remedied</translation>
    </message>
    <message>
        <source>Erledigt, bleibt</source>
        <translation>Done, remains</translation>
    </message>
    <message>
        <source>Erledigt, streitig abgelehnt</source>
        <translation>Done, disputed and rejected</translation>
    </message>
</context>
<context>
    <name>KalAddressFile</name>
    <message>
        <source>Die Datei
%1
kann nicht importiert werden:
%2</source>
        <translation>The file
%1
cannot be imported:
%2</translation>
    </message>
    <message>
        <source>Die Datei existiert nicht.</source>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>Die Datei ist zu groß für eine Adressdatei.</source>
        <translation>The file is too large for an address file.</translation>
    </message>
    <message>
        <source>Die Datei ist keine Textdatei.</source>
        <translation>The file is not a text file.</translation>
    </message>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>Die Datei enthält keine Adressen.</source>
        <translation>The file contains no addresses.</translation>
    </message>
    <message>
        <source>Spalte %1</source>
        <translation>Column %1</translation>
    </message>
    <message>
        <source>Die Datei ist %1 MB groß; eine Adressdatei darf höchstens %2 MB groß sein.</source>
        <translation>The file is %1 MB in size; an address file may be at most %2 MB.</translation>
    </message>
    <message>
        <source>Die Datei enthält nur Spaltenüberschriften, aber keine Adressen.</source>
        <translation>The file contains only column headings but no addresses.</translation>
    </message>
    <message>
        <source>Das Anführungszeichen in Zeile %1 wird nie geschlossen; der Rest der Datei wäre ein einziges Feld. Bitte korrigieren Sie die Datei.</source>
        <translation>The quotation mark in line %1 is never closed; the rest of the file would be a single field. Please correct the file.</translation>
    </message>
    <message>
        <source>Vor- und Nachname</source>
        <translation>First and last name</translation>
    </message>
    <message>
        <source>- ignorieren -</source>
        <translation>- ignore -</translation>
    </message>
    <message>
        <source>Art der Angabe in „%1“</source>
        <translation>Kind of data in “%1”</translation>
    </message>
    <message>
        <source>wird nicht übernommen</source>
        <translation>is not taken over</translation>
    </message>
    <message>
        <source>Feld und Vorrang je Zeile nach „%1“</source>
        <translation>Field and precedence per line according to “%1”</translation>
    </message>
    <message>
        <source>wird in Vor- und Nachname geteilt</source>
        <translation>is split into first and last name</translation>
    </message>
    <message>
        <source>nur wenn „%1“ leer ist</source>
        <translation>only when “%1” is empty</translation>
    </message>
    <message>
        <source>wird angehängt</source>
        <translation>is appended</translation>
    </message>
</context>
<context>
    <name>KalCli</name>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation>The file
%1
does not exist.</translation>
    </message>
    <message>
        <source>Speicherfehler</source>
        <translation>Memory error</translation>
    </message>
    <message>
        <source>Für diesen Vorgang reicht der Arbeitsspeicher nicht; er wurde abgebrochen.</source>
        <translation>There is not enough memory for this operation; it was canceled.</translation>
    </message>
</context>
<context>
    <name>KalCliImportJournal</name>
    <message>
        <source>Ohne --yes bleiben Datensätze, die auf einer Seite gelöscht wurden, unverändert; das Programm fragt beim nächsten Import danach.</source>
        <translation>Without --yes, records deleted on one side stay as they are; the program asks about them at the next import.</translation>
    </message>
    <message>
        <source>Datenimport aus dem Bautagebuch</source>
        <translation>Data import from the site journal</translation>
    </message>
    <message>
        <source>Das Projekt ist mit dem Bautagebuch
%1
verknüpft. Soll es stattdessen mit
%2
verknüpft und daraus importiert werden?</source>
        <translation>The project is linked to the site journal
%1
Should it be linked to
%2
instead and imported from it?</translation>
    </message>
    <message>
        <source>Neu verknüpfen</source>
        <translation>Link anew</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist die Projektdatei selbst und keine Bautagebuch-Datei.</source>
        <translation>The file
%1
is the project file itself, not a site journal file.</translation>
    </message>
</context>
<context>
    <name>KalCommandLine</name>
    <message>
        <source>
ungültiger connect Mode: %1</source>
        <translation>
invalid connect mode: %1</translation>
    </message>
    <message>
        <source>
Parameter Pellwick-Datei fehlt.</source>
        <translation>
The Pellwick file parameter is missing.</translation>
    </message>
    <message>
        <source>
Die Pellwick-Datei existiert nicht.</source>
        <translation>
The Pellwick file does not exist.</translation>
    </message>
    <message>
        <source>
Parameter Bautagebuch-Datei fehlt.</source>
        <translation>
The site journal file parameter is missing.</translation>
    </message>
    <message>
        <source>
Die Bautagebuch-Datei %1 existiert nicht.</source>
        <translation>
The site journal file %1 does not exist.</translation>
    </message>
    <message>
        <source>Die vom Bautagebuch Programm übergebenen Parameter sind fehlerhaft:

</source>
        <translation>The parameters passed by the site journal program are incorrect:

</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>KalCompanies</name>
    <message>
        <source>Es konnte keine neue Id vergeben werden.</source>
        <translation>No new id could be assigned.</translation>
    </message>
</context>
<context>
    <name>KalCompanyDialog</name>
    <message>
        <source>Gewerk / Baufirma anlegen</source>
        <translation>Create trade / contractor</translation>
    </message>
    <message>
        <source>Ansprechpartner</source>
        <translation>Contact person</translation>
    </message>
    <message>
        <source>Gewerk:</source>
        <translation>Trade:</translation>
    </message>
    <message>
        <source>Vorname:</source>
        <translation>First name:</translation>
    </message>
    <message>
        <source>Nachname:</source>
        <translation>Last name:</translation>
    </message>
    <message>
        <source>Firma:</source>
        <translation>Company:</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Bitte geben Sie mindestens ein Gewerk, einen Namen oder eine Firma ein.</source>
        <translation>Please enter at least a trade, a name or a company.</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Die Firma konnte nicht gespeichert werden.</source>
        <translation>The company could not be saved.</translation>
    </message>
</context>
<context>
    <name>KalCompanyFormat</name>
    <message>
        <source>- leer -</source>
        <translation>- empty -</translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation>Trade</translation>
    </message>
    <message>
        <source>Vorname</source>
        <translation>First name</translation>
    </message>
    <message>
        <source>Nachname</source>
        <translation>Last name</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>Straße</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation>City</translation>
    </message>
    <message>
        <source>Telefon</source>
        <translation>Telephone</translation>
    </message>
    <message>
        <source>Handy</source>
        <translation>Cell phone phone</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Architekt</source>
        <translation>Architect</translation>
    </message>
</context>
<context>
    <name>KalCompanyImport</name>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation>The file
%1
does not exist.</translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht geöffnet werden:
%2</source>
        <translation>The file
%1
could not be opened:
%2</translation>
    </message>
    <message>
        <source>Die Firmen der Datei
%1
konnten nicht gelesen werden:
%2</source>
        <translation>The companies of the file
%1
could not be read:
%2</translation>
    </message>
    <message>
        <source>Die Datei
%1
enthält keine Firmen.</source>
        <translation>The file
%1
contains no companies.</translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation>Trade</translation>
    </message>
    <message>
        <source>Vorname</source>
        <translation>First name</translation>
    </message>
    <message>
        <source>Nachname</source>
        <translation>Last name</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>Straße</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>PLZ</source>
        <translation>ZIP code</translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation>City</translation>
    </message>
    <message>
        <source>Telefon</source>
        <translation>Telephone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Mobil</source>
        <translation>Cell phone</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist keine Pellwick-Projektdatei.</source>
        <translation>The file
%1
is not a Pellwick project file.</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist keine Bautagebuch-Datei.</source>
        <translation>The file
%1
is not a site journal file.</translation>
    </message>
    <message>
        <source>Es ist kein Projekt geöffnet.</source>
        <translation>No project is open.</translation>
    </message>
    <message>
        <source>Das Projekt ist schreibgeschützt; es können keine Firmen importiert werden.</source>
        <translation>The project is write-protected; no companies can be imported.</translation>
    </message>
    <message>
        <source>Die geänderten Firmen konnten nicht gespeichert werden:
%1</source>
        <translation>The changed companies could not be saved:
%1</translation>
    </message>
    <message>
        <source>Die Firmen konnten nicht importiert werden:
%1</source>
        <translation>The companies could not be imported:
%1</translation>
    </message>
    <message>
        <source>Es konnte keine neue Id vergeben werden.</source>
        <translation>No new id could be assigned.</translation>
    </message>
</context>
<context>
    <name>KalCompanyImportDialog</name>
    <message>
        <source>Firmen importieren</source>
        <translation>Import companies</translation>
    </message>
    <message>
        <source>Adressdatei</source>
        <translation>Address file</translation>
    </message>
    <message>
        <source>; (Semikolon)</source>
        <translation>; (semicolon)</translation>
    </message>
    <message>
        <source>, (Komma)</source>
        <translation>, (comma)</translation>
    </message>
    <message>
        <source>Tabulator</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>| (senkrechter Strich)</source>
        <translation>| (vertical bar)</translation>
    </message>
    <message>
        <source>Erste Zeile enthält Spaltenüberschriften</source>
        <translation>First row contains column headings</translation>
    </message>
    <message>
        <source>Ordnen Sie in der ersten Zeile jeder Spalte das passende Feld zu.</source>
        <translation>In the first row of each column, assign the matching field.</translation>
    </message>
    <message>
        <source>Trennzeichen:</source>
        <translation>Separator:</translation>
    </message>
    <message>
        <source>Zeichensatz:</source>
        <translation>Character set:</translation>
    </message>
    <message>
        <source>Zu importierende Firmen</source>
        <translation>Companies to import</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation>Trade</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation>City</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Alle auswählen</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Keine auswählen</source>
        <translation>Select none</translation>
    </message>
    <message>
        <source>Importieren</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Quelle: %1</source>
        <translation>Source: %1</translation>
    </message>
    <message>
        <source>Feld</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>- ignorieren -</source>
        <translation>- ignore -</translation>
    </message>
    <message>
        <source>bereits vorhanden</source>
        <translation>already exists</translation>
    </message>
    <message>
        <source>Eine Firma ist im Projekt bereits vorhanden (rot markiert) und wurde nicht ausgewählt.</source>
        <translation>One company already exists in the project (marked red) and was not selected.</translation>
    </message>
    <message>
        <source>%1 Firmen sind im Projekt bereits vorhanden (rot markiert) und wurden nicht ausgewählt.</source>
        <translation>%1 companies already exist in the project (marked red) and were not selected.</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Die Firmen konnten nicht importiert werden.</source>
        <translation>The companies could not be imported.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Eine Firma wurde importiert.</source>
        <translation>One company was imported.</translation>
    </message>
    <message>
        <source>%1 Firmen wurden importiert.</source>
        <translation>%1 companies were imported.</translation>
    </message>
    <message>
        <source>Alle Spalten mit Inhalt werden übernommen.</source>
        <translation>All columns with content are taken over.</translation>
    </message>
    <message>
        <source>Nicht übernommen werden die Spalten: %1</source>
        <translation>These columns are not taken over: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n Zeile(n) haben mehr Felder als die Überschriftenzeile; die zusätzlichen Felder stehen in eigenen Spalten.</source>
        <translation>
            <numerusform>%n line has more fields than the heading line; the additional fields are in columns of their own.</numerusform>
            <numerusform>%n lines have more fields than the heading line; the additional fields are in columns of their own.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KalCompanyImportSelectDialog</name>
    <message>
        <source>Quelle wählen</source>
        <translation>Choose source</translation>
    </message>
    <message>
        <source>&amp;Externe Adress-Datei</source>
        <translation>&amp;External address file</translation>
    </message>
    <message>
        <source>Andere &amp;Pellwick-Datei</source>
        <translation>Other &amp;Pellwick file</translation>
    </message>
    <message>
        <source>Quellor &amp;Bautagebuch</source>
        <translation>Quellor &amp;site journal</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>Zu importierende Adressdatei auswählen</source>
        <translation>Choose the address file to import</translation>
    </message>
    <message>
        <source>Pellwick-Datei auswählen</source>
        <translation>Choose Pellwick file</translation>
    </message>
    <message>
        <source>Bautagebuch-Datei auswählen</source>
        <translation>Choose site journal file</translation>
    </message>
    <message>
        <source>Adressdateien (*.csv *.txt *asc *.tab *.prn);;alle Dateien (*.*)</source>
        <translation>Address files (*.csv *.txt *asc *.tab *.prn);;all files (*.*)</translation>
    </message>
    <message>
        <source>Pellwick Projekt (*.pwp)</source>
        <translation>Pellwick project (*.pwp)</translation>
    </message>
    <message>
        <source>Bautagebuch (*.sjd)</source>
        <translation>Site journal (*.sjd)</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Die Firmen können nicht aus dem geöffneten Projekt selbst importiert werden.</source>
        <translation>The companies cannot be imported from the open project itself.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Die Datei %1 enthält keine Firmen.</source>
        <translation>The file %1 contains no companies.</translation>
    </message>
</context>
<context>
    <name>KalCompleter</name>
    <message>
        <source>Autotexte</source>
        <translation>Auto texts</translation>
    </message>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der Texte, die bisher in dieses Feld eingetragen wurden.

Für dieses Feld sind noch keine Texte gespeichert oder die Funktion ist ausgeschaltet. Jeder Text, den Sie hier eingeben, wird in die Liste aufgenommen und beim nächsten Mal vorgeschlagen.
Mit „Autotexte bearbeiten“ können Sie die Listen aller Felder ändern und die Funktion für einzelne Felder ein- oder ausschalten.</source>
        <translation>This function inserts automatically the texts that have been entered in this field so far.

No texts have been stored for this field yet, or the function is switched off. Every text you enter here is added to the list and suggested next time.
With “Edit auto texts” you can change the lists of all fields and switch the function on or off for single fields.</translation>
    </message>
    <message>
        <source>Autotexte bearbeiten</source>
        <translation>Edit auto texts</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>Do not show this message again</translation>
    </message>
</context>
<context>
    <name>KalCompleterDialog</name>
    <message>
        <source>Autovervollständigen bearbeiten</source>
        <translation>Edit auto-completion</translation>
    </message>
    <message>
        <source>Alle</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Eintrag hinzufügen</source>
        <translation>Add entry</translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation>Delete entry</translation>
    </message>
    <message>
        <source>Alles löschen</source>
        <translation>Delete all</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>&lt;Neuer Eintrag&gt;</source>
        <translation>&lt;New entry&gt;</translation>
    </message>
    <message>
        <source>Alle Completer zurücksetzen</source>
        <translation>Reset all auto texts</translation>
    </message>
    <message>
        <source>Alle Completer werden auf den Auslieferungszustand zurückgesetzt.
Alle eingegebenen Textvorschläge werden dabei gelöscht!</source>
        <translation>All auto texts are reset to their original state.
All text suggestions you entered will be deleted!</translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation>Discard changes</translation>
    </message>
    <message>
        <source>Sollen die Änderungen verworfen werden?</source>
        <translation>Do you want to discard the changes?</translation>
    </message>
</context>
<context>
    <name>KalCompleterLineEdit</name>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der 
Texte, die bisher in dieses Feld eingetragen wurden.</source>
        <translation>This function inserts automatically the 
texts that have been entered in this field so far.</translation>
    </message>
</context>
<context>
    <name>KalCompleterModel</name>
    <message>
        <source>Feld</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>Aktiv</source>
        <translation>Active</translation>
    </message>
</context>
<context>
    <name>KalCompleterStore</name>
    <message>
        <source>Mängel</source>
        <translation>Defects</translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation>Plans</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Firmen</source>
        <translation>Companies</translation>
    </message>
    <message>
        <source>Kal</source>
        <translation>Kal</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Autor</source>
        <translation>Author</translation>
    </message>
    <message>
        <source>Raumbuch-Nr.</source>
        <translation>Room schedule no.</translation>
    </message>
    <message>
        <source>Beseitigungsanweisung</source>
        <translation>Remedy instruction</translation>
    </message>
    <message>
        <source>Priorität</source>
        <translation>Priority</translation>
    </message>
    <message>
        <source>Plan-Name oder Nummer</source>
        <translation>Plan name or number</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>Titel</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Mangel vor Abnahme (§ 4 Nr. 7 VOB/B)</source>
        <translation>Defect before acceptance (§ 4 No. 7 VOB/B)</translation>
    </message>
    <message>
        <source>Gewährleistungsmangel (§ 13 Abs. 5 Nr. 1 VOB/B)</source>
        <translation>Defect under warranty (§ 13 para. 5 No. 1 VOB/B)</translation>
    </message>
    <message>
        <source>Mangelfolgeschaden</source>
        <translation>Consequential damage</translation>
    </message>
    <message>
        <source>Mangel im Bestand</source>
        <translation>Defect in existing building</translation>
    </message>
    <message>
        <source>Büro</source>
        <translation>Office</translation>
    </message>
    <message>
        <source>Küche</source>
        <translation>Kitchen</translation>
    </message>
    <message>
        <source>WC</source>
        <translation>WC</translation>
    </message>
    <message>
        <source>Flur</source>
        <translation>Hall</translation>
    </message>
    <message>
        <source>Treppenhaus</source>
        <translation>Staircase</translation>
    </message>
    <message>
        <source>Zimmer</source>
        <translation>Room</translation>
    </message>
    <message>
        <source>UG-001</source>
        <translation>B-001</translation>
    </message>
    <message>
        <source>EG-001</source>
        <translation>GF-001</translation>
    </message>
    <message>
        <source>OG-001</source>
        <translation>FF-001</translation>
    </message>
    <message>
        <source>DG-001</source>
        <translation>AT-001</translation>
    </message>
    <message>
        <source>Hoch</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Niedrig</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Raumname</source>
        <translation>Room name</translation>
    </message>
</context>
<context>
    <name>KalCompleterTextEdit</name>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der 
Texte, die bisher in dieses Feld eingetragen wurden.</source>
        <translation>This function inserts automatically the 
texts that have been entered in this field so far.</translation>
    </message>
    <message>
        <source>Zum Wörterbuch hinzufügen</source>
        <translation>Add to dictionary</translation>
    </message>
    <message>
        <source>Rechtschreibung prüfen</source>
        <translation>Check spelling</translation>
    </message>
</context>
<context>
    <name>KalDatabaseSchema</name>
    <message>
        <source>interner Fehler</source>
        <translation>internal error</translation>
    </message>
    <message>
        <source>Datenbank-Initialisierung fehlgeschlagen.</source>
        <translation>Database initialization failed.</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation>New project</translation>
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
        <translation>No more new ids can be assigned for the table &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>KalDateEdit</name>
    <message>
        <source>Datum auswählen</source>
        <translation>Choose date</translation>
    </message>
    <message>
        <source>Format-Fehler</source>
        <translation>Format error</translation>
    </message>
    <message>
        <source>Das eingegebene Datum ist nicht korrekt.
Bitte verwenden Sie das Format %1!</source>
        <translation>The date entered is not correct.
Please use the format %1!</translation>
    </message>
</context>
<context>
    <name>KalDefectCsv</name>
    <message>
        <source>Die Mängelliste konnte nicht gelesen werden:
%1</source>
        <translation>The defect list could not be read:
%1</translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht geschrieben werden:
%2</source>
        <translation>The file
%1
could not be written:
%2</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Es ist kein Projekt geöffnet.</source>
        <translation>No project is open.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Die Mängelliste kann nicht in die Projektdatei selbst oder eine ihrer Begleitdateien geschrieben werden:
%1</source>
        <translation>The defect list cannot be written into the project file itself or one of its companion files:
%1</translation>
    </message>
    <message>
        <source>Für die Mängelliste reicht der Arbeitsspeicher nicht.</source>
        <translation>There is not enough memory for the defect list.</translation>
    </message>
</context>
<context>
    <name>KalDefectEditor</name>
    <message>
        <source>Tragen Sie hier die Initialen der Person ein, die den Mangel erfasst hat
(höchstens zwei Buchstaben, z. B. &quot;KM&quot; für Karl Mustermann).
Kleinbuchstaben werden automatisch in Großbuchstaben umgewandelt.</source>
        <translation>Enter here the initials of the person who recorded the defect
(at most two letters, e.g. &quot;JS&quot; for John Smith).
Lower-case letters are converted to capitals automatically.</translation>
    </message>
    <message>
        <source>Mangel bearbeiten</source>
        <translation>Edit defect</translation>
    </message>
    <message>
        <source>Erfassung</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Hinweis zum Feld &quot;Erfasst von&quot;</source>
        <translation>Note on the field &quot;Recorded by&quot;</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Erfasst von</source>
        <translation>Recorded by</translation>
    </message>
    <message>
        <source>Erfasst am</source>
        <translation>Recorded on</translation>
    </message>
    <message>
        <source>Lokalisierung</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>Plan austauschen</source>
        <translation>Replace plan</translation>
    </message>
    <message>
        <source>Marker bearbeiten</source>
        <translation>Edit marker</translation>
    </message>
    <message>
        <source>Fotos hinzufügen</source>
        <translation>Add photos</translation>
    </message>
    <message>
        <source>Raumname</source>
        <translation>Room name</translation>
    </message>
    <message>
        <source>Raumbuch-Nr.</source>
        <translation>Room schedule no.</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Management</source>
        <translation>Management</translation>
    </message>
    <message>
        <source>3. Nachfrist</source>
        <translation>3rd extension</translation>
    </message>
    <message>
        <source>Minderung</source>
        <translation>Price reduction</translation>
    </message>
    <message>
        <source>Beseitigungsanweisung</source>
        <translation>Remedy instruction</translation>
    </message>
    <message>
        <source>Priorität</source>
        <translation>Priority</translation>
    </message>
    <message>
        <source>Frist</source>
        <translation>Deadline</translation>
    </message>
    <message>
        <source>1. Nachfrist</source>
        <translation>1st extension</translation>
    </message>
    <message>
        <source>2. Nachfrist</source>
        <translation>2nd extension</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>New...</translation>
    </message>
    <message>
        <source>%1 (Index %2)</source>
        <translation>%1 (revision %2)</translation>
    </message>
    <message>
        <source>Planzuordnung aufheben</source>
        <translation>Remove plan assignment</translation>
    </message>
    <message>
        <source>Neuen Status anlegen</source>
        <translation>Create new status</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Sie können hier einen neuen Status für dieses Projekt anlegen</source>
        <translation>Here you can create a new status for this project</translation>
    </message>
    <message>
        <source>Fotos bearbeiten</source>
        <translation>Edit photos</translation>
    </message>
    <message>
        <source>Als Autor können Sie nur Initialen eingeben: höchstens zwei Buchstaben.</source>
        <translation>As author you can only enter initials: at most two letters.</translation>
    </message>
    <message>
        <source>Dem Mangel ist bereits ein Plan zugeordnet.
Soll der Plan tatsächlich ausgetauscht werden?</source>
        <translation>A plan is already assigned to the defect.
Do you really want to replace the plan?</translation>
    </message>
    <message>
        <source>Plan auswählen</source>
        <translation>Select plan</translation>
    </message>
    <message>
        <source>Diesem Mangel ist noch kein Plan zugeordnet.
Wählen Sie zuerst im Feld &quot;Plan&quot; einen Plan aus.</source>
        <translation>No plan has been assigned to this defect yet.
First choose a plan in the &quot;Plan&quot; field.</translation>
    </message>
</context>
<context>
    <name>KalDefectFilter</name>
    <message>
        <source>Nach Firma
</source>
        <translation>By company
</translation>
    </message>
    <message>
        <source>Nach Status
</source>
        <translation>By status
</translation>
    </message>
    <message>
        <source>Nach Typ
</source>
        <translation>By type
</translation>
    </message>
    <message>
        <source>Nach Raum
</source>
        <translation>By room
</translation>
    </message>
    <message>
        <source>Nach Raumbuch-Nr.
</source>
        <translation>By room schedule no.
</translation>
    </message>
    <message>
        <source>Nach Priorität
</source>
        <translation>By priority
</translation>
    </message>
    <message>
        <source>Datenauswahl zur Mängelliste</source>
        <translation>Data selection for the defect list</translation>
    </message>
    <message>
        <source>Fehleingabe bei der Datenauswahl der Mängelliste</source>
        <translation>Input error in the data selection for the defect list</translation>
    </message>
    <message>
        <source>Fehler bei den Erfassungsdaten:
 Das Von-Datum muss vor dem Bis-Datum liegen.</source>
        <translation>Error in the recording dates:
 The from date must be before the to date.</translation>
    </message>
    <message>
        <source>Sie haben folgende Filter eingeschaltet ohne eine Auswahl zu treffen:
</source>
        <translation>You have turned on the following filters without making a selection:
</translation>
    </message>
    <message>
        <source>Die Liste der ausgewählten Mängel ist leer, da kein Mangel die eingestellten Auswahlkriterien erfüllt.</source>
        <translation>The list of selected defects is empty because no defect meets the selection criteria.</translation>
    </message>
    <message>
        <source>Beachten Sie, dass das Von-Datum vor dem Bis-Datum liegen muss.</source>
        <translation>Please note that the from date must be before the to date.</translation>
    </message>
</context>
<context>
    <name>KalDefects</name>
    <message>
        <source>Eine Firma mit der Id %1 gibt es in diesem Projekt nicht.</source>
        <translation>There is no company with the id %1 in this project.</translation>
    </message>
    <message>
        <source>Einen Status mit der Id %1 gibt es in diesem Projekt nicht.</source>
        <translation>There is no status with the id %1 in this project.</translation>
    </message>
    <message>
        <source>Als Autor sind höchstens zwei Großbuchstaben (Initialen) erlaubt, nicht &quot;%1&quot;.</source>
        <translation>At most two capital letters (initials) are allowed as author, not &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Der Mangel konnte nicht gespeichert werden.</source>
        <translation>The defect could not be saved.</translation>
    </message>
    <message>
        <source>Die Mängel konnten nicht kopiert werden.</source>
        <translation>The defects could not be copied.</translation>
    </message>
</context>
<context>
    <name>KalFilterDialog</name>
    <message>
        <source>Datenauswahl zur Mängelliste</source>
        <translation>Data selection for the defect list</translation>
    </message>
    <message>
        <source>Filtern der Mängel</source>
        <translation>Filter the defects</translation>
    </message>
    <message>
        <source>Um nur bestimmte Mängel zu drucken, setzen Sie bitte die entsprechenden Filter. 
Um alle Mängel zu drucken, entfernen Sie sämtliche Häkchen.</source>
        <translation>To print only certain defects, please set the corresponding filters. 
To print all defects, remove all check marks.</translation>
    </message>
    <message>
        <source>Nach Erfassungsdatum</source>
        <translation>By recording date</translation>
    </message>
    <message>
        <source>von</source>
        <translation>from</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Nach  Fristablauf spätestens:</source>
        <translation>By deadline, expiring at the latest:</translation>
    </message>
    <message>
        <source>Nach Firma</source>
        <translation>By company</translation>
    </message>
    <message>
        <source>Mängel ohne Firmenzuordnung</source>
        <translation>Defects without a company</translation>
    </message>
    <message>
        <source>Nach Status</source>
        <translation>By status</translation>
    </message>
    <message>
        <source>Nach Typ</source>
        <translation>By type</translation>
    </message>
    <message>
        <source>Nach Raum</source>
        <translation>By room</translation>
    </message>
    <message>
        <source>Nach Raumbuch-Nr.</source>
        <translation>By room schedule no.</translation>
    </message>
    <message>
        <source>Nach Priorität</source>
        <translation>By priority</translation>
    </message>
    <message>
        <source>Nach Minderung</source>
        <translation>By price reduction</translation>
    </message>
    <message>
        <source>mit Minderung</source>
        <translation>with price reduction</translation>
    </message>
    <message>
        <source>ohne Minderung</source>
        <translation>without price reduction</translation>
    </message>
    <message>
        <source>Alle Filter zurücksetzen</source>
        <translation>Reset all filters</translation>
    </message>
    <message>
        <source>Auswahl</source>
        <translation>Selection</translation>
    </message>
    <message>
        <source>Alle wählen</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Auswahl aufheben</source>
        <translation>Clear selection</translation>
    </message>
    <message>
        <source>Auswahl umkehren</source>
        <translation>Invert selection</translation>
    </message>
    <message>
        <source>Sortierung</source>
        <translation>Sort order</translation>
    </message>
    <message>
        <source>nach Nummer</source>
        <translation>by number</translation>
    </message>
    <message>
        <source>nach Firmenname</source>
        <translation>by company name</translation>
    </message>
    <message>
        <source>nach Erfassungsdatum</source>
        <translation>by recording date</translation>
    </message>
    <message>
        <source>nach Frist</source>
        <translation>by deadline</translation>
    </message>
    <message>
        <source>aufsteigend</source>
        <translation>ascending</translation>
    </message>
    <message>
        <source>absteigend</source>
        <translation>descending</translation>
    </message>
    <message>
        <source>Fotos und Pläne</source>
        <translation>Photos and plans</translation>
    </message>
    <message>
        <source>Ausgabe der Fotos innerhalb der Liste</source>
        <translation>Print the photos within the list</translation>
    </message>
    <message>
        <source>Ausgabe der Fotos als Anhang</source>
        <translation>Print the photos as an appendix</translation>
    </message>
    <message>
        <source>Ausgabe der Pläne als Anhang</source>
        <translation>Print the plans as an appendix</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Druckvorschau</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>PDF speichern</source>
        <translation>Save PDF</translation>
    </message>
    <message>
        <source>Speichern und beenden</source>
        <translation>Save and close</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Möchten Sie das Häkchen entfernen?

Dann klicken Sie bitte nochmals. Beim ersten Klick wird die Auswahl-Liste des Filters geladen, erst beim zweiten Klick wird das Häkchen entfernt.
</source>
        <translation>Do you want to remove the check mark?

Then please click again. The first click loads the filter&apos;s selection list; only the second click removes the check mark.
</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>Do not show this message again</translation>
    </message>
    <message>
        <source>Wollen Sie wirklich alle Filter, Daten und Auswahllisten zurücksetzen?</source>
        <translation>Do you really want to reset all filters, dates and selection lists?</translation>
    </message>
    <message>
        <source>Fortfahren</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>PDF je Firma</source>
        <translation>PDF per company</translation>
    </message>
    <message>
        <source>Für jede Firma der Liste eine eigene PDF-Datei mit nur ihren Mängeln speichern</source>
        <translation>Save a separate PDF file for each company in the list with only its defects</translation>
    </message>
</context>
<context>
    <name>KalFontCheck</name>
    <message>
        <source>Fehlende Schriften im Fotoeditor</source>
        <translation>Missing fonts in the photo editor</translation>
    </message>
    <message>
        <source>Folgende Schriften sind auf Ihrem System nicht installiert:</source>
        <translation>The following fonts are not installed on your system:</translation>
    </message>
    <message>
        <source>
Sie müssen diese Schriften installieren, um den vollen Funktionsumfang des Fotoeditors nutzen zu können.</source>
        <translation>
You need to install these fonts to use all functions of the photo editor.</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>Don&apos;t show this message again</translation>
    </message>
</context>
<context>
    <name>KalItemDelegate</name>
    <message>
        <source>Format-Fehler</source>
        <translation>Format error</translation>
    </message>
    <message>
        <source>Das eingegebene Datum ist nicht korrekt.
Bitte verwenden Sie das Format %1!</source>
        <translation>The date entered is not correct.
Please use the format %1!</translation>
    </message>
</context>
<context>
    <name>KalLanguageDialog</name>
    <message>
        <source>Sprachauswahl</source>
        <translation>Language selection</translation>
    </message>
    <message>
        <source>Sprache wählen</source>
        <translation>Choose language</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>German</translation>
    </message>
    <message>
        <source>Spanisch</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>Englisch (Großbritannien)</source>
        <translation>English (United Kingdom)</translation>
    </message>
    <message>
        <source>Englisch (USA)</source>
        <translation>English (USA)</translation>
    </message>
    <message>
        <source>Die gewählte Sprache wird nach einem Neustart der Anwendung aktiviert.</source>
        <translation>The chosen language takes effect after the application has been restarted.</translation>
    </message>
    <message>
        <source>Sprache wurde geändert</source>
        <translation>Language changed</translation>
    </message>
    <message>
        <source>Soll das Programm jetzt neu gestartet werden?</source>
        <translation>Do you want to restart the program now?</translation>
    </message>
    <message>
        <source>(Die neue Spracheinstellung erfordert einen Programm-Neustart)</source>
        <translation>(The new language setting requires a restart of the program)</translation>
    </message>
    <message>
        <source>Jetzt neu starten</source>
        <translation>Restart now</translation>
    </message>
    <message>
        <source>Später neu starten</source>
        <translation>Restart later</translation>
    </message>
</context>
<context>
    <name>KalLogoDialog</name>
    <message>
        <source>Logo bearbeiten</source>
        <translation>Edit logo</translation>
    </message>
    <message>
        <source>Logohöhe im Druck:</source>
        <translation>Logo height in print:</translation>
    </message>
    <message>
        <source>Höhe der Logos auf der gedruckten Seite</source>
        <translation>Height of the logos on the printed page</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Die Logos stehen unter den Texten der Kopfzeile statt darüber</source>
        <translation>The logos stand below the header texts instead of above them</translation>
    </message>
    <message>
        <source>Logos unter Kopfzeile anzeigen</source>
        <translation>Show logos below the header</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Erstes Logo</source>
        <translation>First logo</translation>
    </message>
    <message>
        <source>Zweites Logo</source>
        <translation>Second logo</translation>
    </message>
</context>
<context>
    <name>KalLogoPanel</name>
    <message>
        <source>Ein Bild als Logo für den Kopf der gedruckten Listen wählen</source>
        <translation>Choose a picture as the logo for the header of printed lists</translation>
    </message>
    <message>
        <source>Neues Logo einfügen</source>
        <translation>Insert new logo</translation>
    </message>
    <message>
        <source>Dieses Logo aus dem Projekt entfernen</source>
        <translation>Remove this logo from the project</translation>
    </message>
    <message>
        <source>Aktuelles Logo entfernen</source>
        <translation>Remove current logo</translation>
    </message>
    <message>
        <source>Ausrichtung:</source>
        <translation>Alignment:</translation>
    </message>
    <message>
        <source>Das Logo steht am linken Rand</source>
        <translation>The logo stands at the left margin</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Das Logo steht in der Mitte</source>
        <translation>The logo stands in the center</translation>
    </message>
    <message>
        <source>Zentriert</source>
        <translation>Centered</translation>
    </message>
    <message>
        <source>Das Logo steht am rechten Rand</source>
        <translation>The logo stands at the right margin</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Kein Logo</source>
        <translation>No logo</translation>
    </message>
    <message>
        <source>Logo auswählen</source>
        <translation>Choose logo</translation>
    </message>
    <message>
        <source>Bilder (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</source>
        <translation>Images (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</translation>
    </message>
    <message>
        <source>Die Datei
%1
kann nicht als Logo verwendet werden:
%2</source>
        <translation>The file
%1
cannot be used as a logo:
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
        <translation>An error occurred while creating a new project!</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Neues Projekt anlegen</source>
        <translation>Create a new project</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Open project</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation>Save project</translation>
    </message>
    <message>
        <source>Speichern unter</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>Projekt unter einem neuen Namen speichern</source>
        <translation>Save the project under a new name</translation>
    </message>
    <message>
        <source>Datenbank bereinigen</source>
        <translation>Clean up database</translation>
    </message>
    <message>
        <source>Mangel hinzufügen</source>
        <translation>Add defect</translation>
    </message>
    <message>
        <source>neue Mängel</source>
        <translation>new defects</translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation>Plans</translation>
    </message>
    <message>
        <source>Planverwaltung öffnen</source>
        <translation>Open plan management</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Statusverwaltung öffnen</source>
        <translation>Open status management</translation>
    </message>
    <message>
        <source>Projektdaten bearbeiten</source>
        <translation>Edit project data</translation>
    </message>
    <message>
        <source>Firmenliste bearbeiten</source>
        <translation>Edit company list</translation>
    </message>
    <message>
        <source>Firmendaten Ausgabeformat</source>
        <translation>Company data output format</translation>
    </message>
    <message>
        <source>Logo hinzufügen / bearbeiten</source>
        <translation>Add / edit logo</translation>
    </message>
    <message>
        <source>Mängelliste kompakt</source>
        <translation>Defect list, compact</translation>
    </message>
    <message>
        <source>Mängelliste detailliert</source>
        <translation>Defect list, detailed</translation>
    </message>
    <message>
        <source>Druckvorschau</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>Mängel und Firmen aus einem Bautagebuch importieren</source>
        <translation>Import defects and companies from a site journal</translation>
    </message>
    <message>
        <source>Mängel und Firmen aus dem Bautagebuch aktualisieren</source>
        <translation>Update defects and companies from the site journal</translation>
    </message>
    <message>
        <source>Automatischen Import neuer Mängel und Firmen einschalten</source>
        <translation>Switch on automatic import of new defects and companies</translation>
    </message>
    <message>
        <source>Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten</source>
        <translation>Switch on automatic import and update of existing defects and companies</translation>
    </message>
    <message>
        <source>Mängel und Firmen aus der Quellor App importieren
</source>
        <translation>Import defects and companies from the Quellor app
</translation>
    </message>
    <message>
        <source>Importiert Mängel aus der Quellor App</source>
        <translation>Imports defects from the Quellor app</translation>
    </message>
    <message>
        <source>Import von Firmen aus anderer Pellwick-Datei</source>
        <translation>Import companies from another Pellwick file</translation>
    </message>
    <message>
        <source>Import von Firmen aus Quellor Bautagebuch</source>
        <translation>Import companies from Quellor site journal</translation>
    </message>
    <message>
        <source>Import von Firmen aus externer Adress-Datei</source>
        <translation>Import companies from an external address file</translation>
    </message>
    <message>
        <source>Sprache wählen</source>
        <translation>Choose language</translation>
    </message>
    <message>
        <source>Texte ändern - Eingabe</source>
        <translation>Change texts - input</translation>
    </message>
    <message>
        <source>Plangröße</source>
        <translation>Plan size</translation>
    </message>
    <message>
        <source>Fotogröße</source>
        <translation>Photo size</translation>
    </message>
    <message>
        <source>Standardmarker</source>
        <translation>Standard marker</translation>
    </message>
    <message>
        <source>Mängeltexte im Plan</source>
        <translation>Defect texts on the plan</translation>
    </message>
    <message>
        <source>Wie übernehme ich Mängel und
Firmen aus einem Bautagebuch?</source>
        <translation>How do I take over defects and
companies from a site journal?</translation>
    </message>
    <message>
        <source>Wie übernehme ich Mängel und Firmen
von einem Mobilgerät?</source>
        <translation>How do I take over defects and companies
from a mobile device?</translation>
    </message>
    <message>
        <source>Info über Pellwick</source>
        <translation>About Pellwick</translation>
    </message>
    <message>
        <source>Auf Updates prüfen</source>
        <translation>Check for updates</translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Vorherige Dateien...</source>
        <translation>Recent files...</translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Stammdaten</source>
        <translation>Master data</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Datenimport</source>
        <translation>Data import</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Hilfe</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Symbolleiste</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>Alle Spalten anzeigen</source>
        <translation>Show all columns</translation>
    </message>
    <message>
        <source>Neues Pellwick-Projekt</source>
        <translation>New Pellwick project</translation>
    </message>
    <message>
        <source>Pellwick-Projekt - %0</source>
        <translation>Pellwick project - %0</translation>
    </message>
    <message>
        <source>Projekt:</source>
        <translation>Project:</translation>
    </message>
    <message>
        <source>Automatischen Import neuer Mängel und Firmen ausschalten</source>
        <translation>Switch off automatic import of new defects and companies</translation>
    </message>
    <message>
        <source>Automatischen Import und Aktualisierung vorhandener Mängel und Firmen ausschalten</source>
        <translation>Switch off automatic import and update of existing defects and companies</translation>
    </message>
    <message>
        <source>Hilfetexte ausschalten</source>
        <translation>Switch help texts off</translation>
    </message>
    <message>
        <source>Hilfetexte einschalten</source>
        <translation>Switch help texts on</translation>
    </message>
    <message>
        <source>Öffnet die Datei %1</source>
        <translation>Opens the file %1</translation>
    </message>
    <message>
        <source>Spalten ausblenden</source>
        <translation>Hide columns</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Show all columns</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Die Zuordnung von Plänen ist in dieser Programmversion noch nicht verfügbar.</source>
        <translation>Assigning plans is not yet available in this version of the program.</translation>
    </message>
    <message>
        <source>Liste der Mängel des Projekts.
Doppelklick auf einen Mangel: bearbeiten.
Klick auf eine Spaltenüberschrift: sortieren.
Die Knöpfe unten links fügen Mängel hinzu, kopieren oder löschen sie.</source>
        <translation>List of the defects of the project.
Double-click on a defect: edit.
Click on a column heading: sort.
The buttons at the bottom left add, copy or delete defects.</translation>
    </message>
</context>
<context>
    <name>KalMasterDataDialog</name>
    <message>
        <source>Stammdaten</source>
        <translation>Master data</translation>
    </message>
    <message>
        <source>Projektdaten</source>
        <translation>Project data</translation>
    </message>
    <message>
        <source>Firmendaten</source>
        <translation>Company data</translation>
    </message>
    <message>
        <source>Projektname:</source>
        <translation>Project name:</translation>
    </message>
    <message>
        <source>Projektnummer:</source>
        <translation>Project number:</translation>
    </message>
    <message>
        <source>Druckausgabe</source>
        <translation>Print output</translation>
    </message>
    <message>
        <source>Links:</source>
        <translation>Left:</translation>
    </message>
    <message>
        <source>Mitte:</source>
        <translation>Center:</translation>
    </message>
    <message>
        <source>Rechts:</source>
        <translation>Right:</translation>
    </message>
    <message>
        <source>Kopfzeile:</source>
        <translation>Header:</translation>
    </message>
    <message>
        <source>Fußzeile:</source>
        <translation>Footer:</translation>
    </message>
    <message>
        <source>Firmenliste</source>
        <translation>Company list</translation>
    </message>
    <message>
        <source>Ausgabeformat für Firmendaten</source>
        <translation>Output format for company data</translation>
    </message>
    <message>
        <source>Dieses Feld in Klammern setzen</source>
        <translation>Put this field in parentheses</translation>
    </message>
    <message>
        <source>Auf Werkseinstellungen zurücksetzen</source>
        <translation>Reset to factory settings</translation>
    </message>
    <message>
        <source>Text 1:</source>
        <translation>Text 1:</translation>
    </message>
    <message>
        <source>Text 2:</source>
        <translation>Text 2:</translation>
    </message>
    <message>
        <source>Text 3:</source>
        <translation>Text 3:</translation>
    </message>
    <message>
        <source>Beispiel:</source>
        <translation>Example:</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Firmen importieren</source>
        <translation>Import companies</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>Project name</translation>
    </message>
    <message>
        <source>Bitte denken Sie daran, den Projektnamen in der Kopfzeile zu platzieren (empfohlen)!</source>
        <translation>Please remember to place the project name in the header (recommended)!</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Die Projektdaten konnten nicht gespeichert werden.</source>
        <translation>The project data could not be saved.</translation>
    </message>
    <message>
        <source>Die Firmenliste konnte nicht gespeichert werden.</source>
        <translation>The company list could not be saved.</translation>
    </message>
    <message>
        <source>Soll der gewählte Eintrag tatsächlich entfernt werden?</source>
        <translation>Do you really want to remove the selected entry?</translation>
    </message>
    <message>
        <source>Eintrag entfernen</source>
        <translation>Remove entry</translation>
    </message>
    <message>
        <source>Der gewählten Firma ist 1 Mangel zugeordnet. Er hat nach dem Löschen keine Firma mehr.</source>
        <translation>1 defect is assigned to the selected company. After the deletion it has no company any more.</translation>
    </message>
    <message>
        <source>Der gewählten Firma sind %1 Mängel zugeordnet. Sie haben nach dem Löschen keine Firma mehr.</source>
        <translation>%1 defects are assigned to the selected company. After the deletion they have no company any more.</translation>
    </message>
    <message>
        <source>Den gewählten Firmen ist 1 Mangel zugeordnet. Er hat nach dem Löschen keine Firma mehr.</source>
        <translation>1 defect is assigned to the selected companies. After the deletion it has no company any more.</translation>
    </message>
    <message>
        <source>Den gewählten Firmen sind %1 Mängel zugeordnet. Sie haben nach dem Löschen keine Firma mehr.</source>
        <translation>%1 defects are assigned to the selected companies. After the deletion they have no company any more.</translation>
    </message>
    <message>
        <source>Firma entfernen</source>
        <translation>Remove company</translation>
    </message>
    <message>
        <source>Die Stammdaten konnten nicht gespeichert werden.</source>
        <translation>The master data could not be saved.</translation>
    </message>
</context>
<context>
    <name>KalMessageBoxPrompt</name>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>Do not show this message again</translation>
    </message>
</context>
<context>
    <name>KalPhotoEditor</name>
    <message>
        <source>Foto bearbeiten</source>
        <translation>Edit photo</translation>
    </message>
    <message>
        <source>Zeichnen</source>
        <translation>Draw</translation>
    </message>
    <message>
        <source>Linie einfügen</source>
        <translation>Insert line</translation>
    </message>
    <message>
        <source>Linienzug einfügen</source>
        <translation>Insert polyline</translation>
    </message>
    <message>
        <source>Quadrat  einfügen</source>
        <translation>Insert  square</translation>
    </message>
    <message>
        <source>Rechteck einfügen</source>
        <translation>Insert rectangle</translation>
    </message>
    <message>
        <source>Kreis einfügen</source>
        <translation>Insert circle</translation>
    </message>
    <message>
        <source>Ellipse einfügen</source>
        <translation>Insert ellipse</translation>
    </message>
    <message>
        <source>Text  einfügen</source>
        <translation>Insert  text</translation>
    </message>
    <message>
        <source>Freihand zeichnen</source>
        <translation>Draw freehand</translation>
    </message>
    <message>
        <source>Pfeile</source>
        <translation>Arrows</translation>
    </message>
    <message>
        <source>Pfeil einfügen</source>
        <translation>Insert arrow</translation>
    </message>
    <message>
        <source>Doppelpfeil einfügen</source>
        <translation>Insert double arrow</translation>
    </message>
    <message>
        <source>Dreieck einfügen</source>
        <translation>Insert triangle</translation>
    </message>
    <message>
        <source>Symbole</source>
        <translation>Symbols</translation>
    </message>
    <message>
        <source>Symbol einfügen</source>
        <translation>Insert symbol</translation>
    </message>
    <message>
        <source>Zahlensymbol einfügen</source>
        <translation>Insert number symbol</translation>
    </message>
    <message>
        <source>weiteres Symbol einfügen</source>
        <translation>Insert another symbol</translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Selektierte Objekte nach links drehen</source>
        <translation>Rotate selected objects left</translation>
    </message>
    <message>
        <source>Selektierte Objekte nach rechts drehen</source>
        <translation>Rotate selected objects right</translation>
    </message>
    <message>
        <source>Selektierte Objekte vergrößern</source>
        <translation>Enlarge selected objects</translation>
    </message>
    <message>
        <source>Selektierte Objekte verkleinern</source>
        <translation>Shrink selected objects</translation>
    </message>
    <message>
        <source>Farbe ändern</source>
        <translation>Change color</translation>
    </message>
    <message>
        <source>Linienstärke ändern</source>
        <translation>Change line width</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Hintergrund nach links drehen</source>
        <translation>Rotate background left</translation>
    </message>
    <message>
        <source>Hintergrund nach rechts drehen</source>
        <translation>Rotate background right</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>nach links</source>
        <translation>to the left</translation>
    </message>
    <message>
        <source>nach rechts</source>
        <translation>to the right</translation>
    </message>
    <message>
        <source>nach oben</source>
        <translation>upwards</translation>
    </message>
    <message>
        <source>nach unten</source>
        <translation>downwards</translation>
    </message>
    <message>
        <source>Rückgängig</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Wiederherstellen</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Eigenes Symbol erstellen</source>
        <translation>Create own symbol</translation>
    </message>
    <message>
        <source>%1 Pixel</source>
        <translation>%1 pixels</translation>
    </message>
    <message>
        <source>Objekte drehen</source>
        <translation>Rotate objects</translation>
    </message>
    <message>
        <source>Objekt vergrößern</source>
        <translation>Enlarge object</translation>
    </message>
    <message>
        <source>Objekt verkleinern</source>
        <translation>Shrink object</translation>
    </message>
    <message>
        <source>Objektfarbe wählen</source>
        <translation>Choose object color</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Verschieben</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>Text bearbeiten</source>
        <translation>Edit text</translation>
    </message>
    <message>
        <source>Änderungen übernehmen</source>
        <translation>Apply changes</translation>
    </message>
    <message>
        <source>Ihre Änderungen werden jetzt in das Bild übernommen.
Dieser Vorgang lässt sich nicht rückgängig machen.</source>
        <translation>Your changes will now be applied to the picture.
This cannot be undone.</translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation>Discard changes</translation>
    </message>
    <message>
        <source>Sollen die Änderungen verworfen werden?</source>
        <translation>Do you want to discard the changes?</translation>
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
        <translation>Photos</translation>
    </message>
    <message>
        <source>Fotos hinzufügen</source>
        <translation>Add photos</translation>
    </message>
    <message>
        <source>Fotos entfernen</source>
        <translation>Remove photos</translation>
    </message>
    <message>
        <source>Fotogröße</source>
        <translation>Photo size</translation>
    </message>
    <message>
        <source>In das Foto zeichnen und schreiben</source>
        <translation>Draw and write on the photo</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Bild um 90° nach links drehen</source>
        <translation>Rotate picture 90° to the left</translation>
    </message>
    <message>
        <source>Bild um 90° nach rechts drehen</source>
        <translation>Rotate picture 90° to the right</translation>
    </message>
    <message>
        <source>Bild um 180° drehen</source>
        <translation>Rotate picture 180°</translation>
    </message>
    <message>
        <source>Foto löschen</source>
        <translation>Delete photo</translation>
    </message>
    <message>
        <source>Fotos löschen</source>
        <translation>Delete photos</translation>
    </message>
    <message>
        <source>Sie haben 1 Foto zum Löschen ausgewählt.
Soll dieses Foto tatsächlich gelöscht werden?</source>
        <translation>You have selected 1 photo for deletion.
Do you really want to delete this photo?</translation>
    </message>
    <message>
        <source>Sie haben %1 Fotos zum Löschen ausgewählt.
Sollen diese Foto tatsächlich gelöscht werden?</source>
        <translation>You have selected %1 photos for deletion.
Do you really want to delete these photos?</translation>
    </message>
    <message>
        <source>Bitte nehmen Sie nur dann Fotos im Hochformat auf, wenn das Motiv es nicht anders zulässt. Die beste Platzausnutzung im Bericht erreichen Sie mit Fotos im Querformat. Hochformate mit Seitenverhältnissen größer 4:3 können aus Platzgründen zugeschnitten werden.</source>
        <translation>Please take photos in portrait format only when the subject allows nothing else. Photos in landscape format make the best use of space in the report. Portrait photos with aspect ratios above 4:3 may be cropped for lack of space.</translation>
    </message>
    <message>
        <source>Fotos auswählen</source>
        <translation>Select photos</translation>
    </message>
    <message>
        <source>Fotos (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</source>
        <translation>Photos (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</translation>
    </message>
    <message>
        <source>Fotoimport</source>
        <translation>Photo import</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Foto bearbeiten</source>
        <translation>Edit photo</translation>
    </message>
    <message>
        <source>Das Foto kann nicht gelesen werden.
%1</source>
        <translation>The photo cannot be read.
%1</translation>
    </message>
</context>
<context>
    <name>KalPhotos</name>
    <message>
        <source>Das Foto %1 existiert nicht.</source>
        <translation>The photo %1 does not exist.</translation>
    </message>
    <message>
        <source>Die Fotos werden importiert.</source>
        <translation>The photos are being imported.</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Fehler Fotoimport</source>
        <translation>Photo import error</translation>
    </message>
    <message>
        <source>Das Foto %1 konnte nicht importiert werden.</source>
        <translation>The photo %1 could not be imported.</translation>
    </message>
    <message>
        <source>Der Mangel %1 existiert nicht.</source>
        <translation>The defect %1 does not exist.</translation>
    </message>
    <message>
        <source>Fotos lassen sich nur um 90°, 180° oder 270° drehen.</source>
        <translation>Photos can only be rotated by 90°, 180° or 270°.</translation>
    </message>
    <message>
        <source>Das Bild ist leer.</source>
        <translation>The picture is empty.</translation>
    </message>
</context>
<context>
    <name>KalPictureStore</name>
    <message>
        <source>Das Bild ist leer.</source>
        <translation>The picture is empty.</translation>
    </message>
    <message>
        <source>Das Bild konnte nicht als JPEG gespeichert werden.</source>
        <translation>The picture could not be stored as JPEG.</translation>
    </message>
    <message>
        <source>Unbekanntes Bildformat oder unbekannte Bildgröße.</source>
        <translation>Unknown picture format or unknown picture size.</translation>
    </message>
    <message>
        <source>Das Bild ist mit %1 × %2 Pixeln zu groß.</source>
        <translation>At %1 × %2 pixels the picture is too large.</translation>
    </message>
    <message>
        <source>Die JPEG-Datei ist unvollständig.</source>
        <translation>The JPEG file is incomplete.</translation>
    </message>
    <message>
        <source>Die neue Bildnummer ist unbekannt.</source>
        <translation>The new picture number is unknown.</translation>
    </message>
    <message>
        <source>Das Bild %1 existiert nicht.</source>
        <translation>The picture %1 does not exist.</translation>
    </message>
    <message>
        <source>Das Bild %1 ist leer.</source>
        <translation>The picture %1 is empty.</translation>
    </message>
    <message>
        <source>Die Änderung zum Bild %1 konnte nicht übernommen werden.</source>
        <translation>The change to picture %1 could not be applied.</translation>
    </message>
    <message>
        <source>Die Fotos werden bearbeitet.</source>
        <translation>The photos are being processed.</translation>
    </message>
    <message>
        <source>Die Pläne werden bearbeitet.</source>
        <translation>The plans are being processed.</translation>
    </message>
    <message>
        <source>%1 ist keine Datei.</source>
        <translation>%1 is not a file.</translation>
    </message>
    <message>
        <source>Die Datei %1 existiert nicht.</source>
        <translation>The file %1 does not exist.</translation>
    </message>
    <message>
        <source>Die Datei ist zu groß.</source>
        <translation>The file is too large.</translation>
    </message>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>The file is empty.</translation>
    </message>
</context>
<context>
    <name>KalPlanEditor</name>
    <message>
        <source>Planeditor</source>
        <translation>Plan editor</translation>
    </message>
    <message>
        <source>Marker 1 (Stecknadel)</source>
        <translation>Marker 1 (pin)</translation>
    </message>
    <message>
        <source>Marker 2 (Nadel)</source>
        <translation>Marker 2 (needle)</translation>
    </message>
    <message>
        <source>Marker 3 (Fahne)</source>
        <translation>Marker 3 (flag)</translation>
    </message>
    <message>
        <source>Marker 4 (Zielscheibe)</source>
        <translation>Marker 4 (target)</translation>
    </message>
    <message>
        <source>Selektierte Objekte nach links drehen</source>
        <translation>Rotate selected objects to the left</translation>
    </message>
    <message>
        <source>Selektierte Objekte nach rechts drehen</source>
        <translation>Rotate selected objects to the right</translation>
    </message>
    <message>
        <source>Selektierte Objekte vergrößern</source>
        <translation>Enlarge selected objects</translation>
    </message>
    <message>
        <source>Selektierte Objekte verkleinern</source>
        <translation>Shrink selected objects</translation>
    </message>
    <message>
        <source>Farbe ändern</source>
        <translation>Change color</translation>
    </message>
    <message>
        <source>F</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Text fett</source>
        <translation>Bold text</translation>
    </message>
    <message>
        <source>K</source>
        <translation>I</translation>
    </message>
    <message>
        <source>Text kursiv</source>
        <translation>Italic text</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>Text unterstrichen</source>
        <translation>Underlined text</translation>
    </message>
    <message>
        <source>An Fenstergröße anpassen</source>
        <translation>Fit to window</translation>
    </message>
    <message>
        <source>Doppelklick auf den Plan: Marker setzen. Doppelklick auf einen Text: Text bearbeiten. Strg+Mausrad: zoomen.</source>
        <translation>Double-click on the plan: place a marker. Double-click on a text: edit the text. Ctrl+mouse wheel: zoom.</translation>
    </message>
    <message>
        <source>Verschieben</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>Rückgängig</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Wiederherstellen</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Marker setzen</source>
        <translation>Place marker</translation>
    </message>
    <message>
        <source>Objekte drehen</source>
        <translation>Rotate objects</translation>
    </message>
    <message>
        <source>Objekt vergrößern</source>
        <translation>Enlarge object</translation>
    </message>
    <message>
        <source>Objekt verkleinern</source>
        <translation>Shrink object</translation>
    </message>
    <message>
        <source>Objektfarbe wählen</source>
        <translation>Choose object color</translation>
    </message>
    <message>
        <source>Marker austauschen</source>
        <translation>Exchange markers</translation>
    </message>
    <message>
        <source>Sie haben keinen Marker ausgewählt.
Sie wählen einen Marker aus, indem Sie ihn anklicken.
Sie wählen mehrere Marker aus, indem Sie sie bei gedrückter Strg-Taste anklicken.
</source>
        <translation>You have not selected a marker.
You select a marker by clicking on it.
You select several markers by clicking on them while holding down the Ctrl key.
</translation>
    </message>
    <message>
        <source>Sie haben mehrere Marker ausgewählt.
Sollen diese Marker wirklich alle ausgetauscht werden?</source>
        <translation>You have selected several markers.
Do you really want to exchange all of these markers?</translation>
    </message>
    <message>
        <source>Marker/Texte löschen</source>
        <translation>Delete markers/texts</translation>
    </message>
    <message>
        <source>Sollen die selektierten Elemente wirklich gelöscht werden?</source>
        <translation>Do you really want to delete the selected elements?</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Text bearbeiten</source>
        <translation>Edit text</translation>
    </message>
    <message>
        <source>Text formatieren</source>
        <translation>Format text</translation>
    </message>
    <message>
        <source>Die Marker und Texte konnten nicht gespeichert werden.</source>
        <translation>The markers and texts could not be saved.</translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation>Discard changes</translation>
    </message>
    <message>
        <source>Sollen die Änderungen verworfen werden?</source>
        <translation>Do you want to discard the changes?</translation>
    </message>
    <message>
        <source>Der Plan %1 existiert nicht.</source>
        <translation>The plan %1 does not exist.</translation>
    </message>
    <message>
        <source>Der Plan kann nicht angezeigt werden.</source>
        <translation>The plan cannot be shown.</translation>
    </message>
    <message>
        <source>Mängeltext</source>
        <translation>Defect text</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Schriftgröße</source>
        <translation>Font size</translation>
    </message>
</context>
<context>
    <name>KalPlanInfoDialog</name>
    <message>
        <source>Pläne</source>
        <translation>Plans</translation>
    </message>
    <message>
        <source>Aus einer PDF-Datei wird nur die erste Seite als Plan übernommen. Doppelklick auf einen Plan: Name, Index und Datum bearbeiten.</source>
        <translation>Only the first page of a PDF file becomes a plan. Double-click a plan to edit its name, index and date.</translation>
    </message>
    <message>
        <source>Pläne hinzufügen</source>
        <translation>Add plans</translation>
    </message>
    <message>
        <source>Pläne entfernen</source>
        <translation>Remove plans</translation>
    </message>
    <message>
        <source>Neue Planversion laden</source>
        <translation>Load new plan version</translation>
    </message>
    <message>
        <source>Plangröße</source>
        <translation>Plan size</translation>
    </message>
    <message>
        <source>Ausgewählten Plan dem Mangel zuordnen</source>
        <translation>Assign selected plan to the defect</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Pläne (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</source>
        <translation>Plans (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</translation>
    </message>
    <message>
        <source>Plan auswählen</source>
        <translation>Select plan</translation>
    </message>
    <message>
        <source>neue Planversion auswählen</source>
        <translation>select new plan version</translation>
    </message>
    <message>
        <source>Planauswahl</source>
        <translation>Plan selection</translation>
    </message>
    <message>
        <source>Plan austauschen</source>
        <translation>Replace plan</translation>
    </message>
    <message>
        <source>Dem Mangel ist bereits ein Plan zugeordnet.
Soll dem Mangel tatsächlich ein neuer Plan zugeordnet werden?</source>
        <translation>A plan is already assigned to the defect.
Do you really want to assign a new plan to the defect?</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
</context>
<context>
    <name>KalPlanInfoEditor</name>
    <message>
        <source>Plandaten eingeben</source>
        <translation>Enter plan data</translation>
    </message>
    <message>
        <source>Plan-Name oder Nummer:</source>
        <translation>Plan name or number:</translation>
    </message>
    <message>
        <source>Planindex:</source>
        <translation>Plan index:</translation>
    </message>
    <message>
        <source>Datum:</source>
        <translation>Date:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
</context>
<context>
    <name>KalPlanPainter</name>
    <message>
        <source>Der Plan %1 existiert nicht.</source>
        <translation>Plan %1 does not exist.</translation>
    </message>
    <message>
        <source>Das Planbild ist nicht lesbar.</source>
        <translation>The plan picture cannot be read.</translation>
    </message>
</context>
<context>
    <name>KalPlanPanel</name>
    <message>
        <source>An Fenstergröße anpassen</source>
        <translation>Fit to window</translation>
    </message>
    <message>
        <source>Hinweise zum Zoomen</source>
        <translation>Zoom hints</translation>
    </message>
    <message>
        <source>Dieser Mangel ist in keinem Plan verortet.
Mit einem Doppelklick in dieses Fenster können Sie dem Mangel einen Plan zuordnen.
Mit einem Doppelklick auf einen Mangel können Sie diesen Mangel bearbeiten.
</source>
        <translation>This defect is not located on any plan.
Double-click in this window to assign a plan to the defect.
Double-click on a defect to edit it.
</translation>
    </message>
    <message>
        <source>Mit dem Mausrad vergrößern und verkleinern Sie den Plan.
Mit gedrückter linker Maustaste verschieben Sie den Ausschnitt.
&quot;An Fenstergröße anpassen&quot; zeigt den ganzen Plan.</source>
        <translation>Use the mouse wheel to zoom the plan in and out.
Hold down the left mouse button to move the view.
&quot;Fit to window&quot; shows the whole plan.</translation>
    </message>
    <message>
        <source>Plan des gewählten Mangels.
Mausrad: vergrößern und verkleinern.
Doppelklick: Plan zuordnen oder im Plan verorten.</source>
        <translation>Plan of the selected defect.
Mouse wheel: zoom in and out.
Double-click: assign a plan or locate the defect on the plan.</translation>
    </message>
    <message>
        <source>Mit Strg + Mausrad vergrößern und verkleinern Sie den Plan.
Mit gedrückter linker Maustaste verschieben Sie den vergrößerten Ausschnitt.
&quot;An Fenstergröße anpassen&quot; zeigt den ganzen Plan.</source>
        <translation>Use Ctrl + mouse wheel to zoom the plan in and out.
Hold down the left mouse button to move the enlarged view.
&quot;Fit to window&quot; shows the whole plan.</translation>
    </message>
    <message>
        <source>Plan des gewählten Mangels.
Strg + Mausrad: vergrößern und verkleinern.
Doppelklick: Plan zuordnen oder im Plan verorten.</source>
        <translation>Plan of the selected defect.
Ctrl + mouse wheel: zoom in and out.
Double-click: assign a plan or locate the defect on the plan.</translation>
    </message>
</context>
<context>
    <name>KalPlanRasteriser</name>
    <message>
        <source>Kein PDF-Konverter gefunden (ptc oder pdftocairo).</source>
        <translation>No PDF converter found (ptc or pdftocairo).</translation>
    </message>
    <message>
        <source>Die Kopie nach %1 ist fehlgeschlagen.</source>
        <translation>Copying to %1 failed.</translation>
    </message>
    <message>
        <source>PDF wird umgewandelt ...</source>
        <translation>Converting PDF ...</translation>
    </message>
    <message>
        <source>Abgebrochen.</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>Der PDF-Konverter hat nach %1 s nicht geantwortet und wurde beendet.</source>
        <translation>The PDF converter did not respond within %1 s and was stopped.</translation>
    </message>
    <message>
        <source>Der PDF-Konverter ist abgestürzt.</source>
        <translation>The PDF converter crashed.</translation>
    </message>
    <message>
        <source>Der PDF-Konverter meldet Fehler %1.</source>
        <translation>The PDF converter reports error %1.</translation>
    </message>
    <message>
        <source>Der PDF-Konverter hat keine Seite geschrieben.</source>
        <translation>The PDF converter wrote no page.</translation>
    </message>
</context>
<context>
    <name>KalPlanReference</name>
    <message>
        <source>Wählen Sie auf dem alten und dem neuen Plan je zwei oder je drei Referenzpunkte.</source>
        <translation>Choose two or three reference points on both the old and the new plan.</translation>
    </message>
    <message>
        <source>Zwei Referenzpunkte liegen aufeinander. Wählen Sie weiter auseinanderliegende Punkte.</source>
        <translation>Two reference points lie on top of each other. Choose points further apart.</translation>
    </message>
    <message>
        <source>Die drei Referenzpunkte liegen auf einer Linie. Wählen Sie Punkte, die ein Dreieck bilden.</source>
        <translation>The three reference points lie on one line. Choose points that form a triangle.</translation>
    </message>
</context>
<context>
    <name>KalPlanReferenceDialog</name>
    <message>
        <source>Neue Planversion mit Referenzpunkten laden</source>
        <translation>Load new plan version with reference points</translation>
    </message>
    <message>
        <source>Klicken Sie nacheinander auf zwei oder drei markante Punkte im alten Plan (links) und auf dieselben Punkte in derselben Reihenfolge im neuen Plan (rechts). Zwei Punktpaare verschieben, drehen und skalieren die Marker, drei Punktpaare gleichen auch Verzerrungen aus. Strg+Mausrad zoomt.</source>
        <translation>Click on two or three distinctive points of the old plan (left), one after another, and on the same points in the same order on the new plan (right). Two pairs of points move, rotate and scale the markers; three pairs also even out distortions. Ctrl+mouse wheel zooms.</translation>
    </message>
    <message>
        <source>Punkte zurücksetzen</source>
        <translation>Reset points</translation>
    </message>
    <message>
        <source>Plan auswählen</source>
        <translation>Select plan</translation>
    </message>
    <message>
        <source>Pläne (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</source>
        <translation>Plans (*.pdf *.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)</translation>
    </message>
    <message>
        <source>Die Vorschau zeigt die Marker an ihrer neuen Stelle. OK speichert den neuen Plan und die Marker.</source>
        <translation>The preview shows the markers at their new place. OK saves the new plan and the markers.</translation>
    </message>
    <message>
        <source>Punkte im alten Plan: %1, im neuen Plan: %2.</source>
        <translation>Points on the old plan: %1, on the new plan: %2.</translation>
    </message>
</context>
<context>
    <name>KalPlans</name>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>Fehler Plan Import</source>
        <translation>Plan import error</translation>
    </message>
    <message>
        <source>Der Plan %1 konnte nicht importiert werden.</source>
        <translation>Plan %1 could not be imported.</translation>
    </message>
    <message>
        <source>Die Datei existiert nicht.</source>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Die PDF-Datei %1 konnte nicht in den Temp-Ordner kopiert werden.</source>
        <translation>The PDF file %1 could not be copied to the temporary folder.</translation>
    </message>
    <message>
        <source>PDF-Fehler</source>
        <translation>PDF error</translation>
    </message>
    <message>
        <source>Die PDF-Konvertierung konnte nicht gestartet werden.
Die PDF-Datei %1 wurde nicht importiert.</source>
        <translation>The PDF conversion could not be started.
The PDF file %1 was not imported.</translation>
    </message>
    <message>
        <source>Keine neue Plannummer.</source>
        <translation>No new plan number.</translation>
    </message>
    <message>
        <source>Der Plan %1 existiert nicht.</source>
        <translation>Plan %1 does not exist.</translation>
    </message>
    <message>
        <source>Wählen Sie zunächst per Mausklick einen Plan aus.</source>
        <translation>First select a plan with a mouse click.</translation>
    </message>
    <message>
        <source>Sie haben mehrere Pläne ausgewählt. Wählen Sie nur einen Plan aus.</source>
        <translation>You have selected several plans. Select only one plan.</translation>
    </message>
    <message>
        <source>Neue Planversion laden</source>
        <translation>Load new plan version</translation>
    </message>
    <message>
        <source>Die neue Planversion wurde erfolgreich importiert.
Sie sollten die Lage der Marker und Texte im Plan an den neuen Planinhalt anpassen.

Soll der Planeditor jetzt geöffnet werden?
</source>
        <translation>The new plan version was imported successfully.
You should adjust the position of the markers and texts to the new plan content.

Open the plan editor now?
</translation>
    </message>
    <message>
        <source>Plan löschen</source>
        <translation>Delete plan</translation>
    </message>
    <message>
        <source>Pläne löschen</source>
        <translation>Delete plans</translation>
    </message>
    <message>
        <source>Sie haben 1 Plan zum Löschen ausgewählt.
Soll dieser Plan tatsächlich gelöscht werden?</source>
        <translation>You have selected 1 plan for deletion.
Do you really want to delete this plan?</translation>
    </message>
    <message>
        <source>Sie haben %1 Pläne zum Löschen ausgewählt.
Sollen diese Pläne tatsächlich gelöscht werden?</source>
        <translation>You have selected %1 plans for deletion.
Do you really want to delete these plans?</translation>
    </message>
    <message>
        <source>Der Plan %1 ist einem Mangel zugeordnet.
Wenn Sie den Plan löschen, wird diese Zuordnung aufgehoben. Der Mangel ist dann nicht mehr verortet.

Soll dieser Plan tatsächlich gelöscht werden?</source>
        <translation>Plan %1 is assigned to one defect.
If you delete the plan, this assignment is removed and the defect is no longer located.

Do you really want to delete this plan?</translation>
    </message>
    <message>
        <source>Der Plan %1 ist %2 Mängeln zugeordnet.
Wenn Sie den Plan löschen, werden diese Zuordnungen aufgehoben. Die Mängel sind dann nicht mehr verortet.

Soll dieser Plan tatsächlich gelöscht werden?</source>
        <translation>Plan %1 is assigned to %2 defects.
If you delete the plan, these assignments are removed and the defects are no longer located.

Do you really want to delete this plan?</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Der Plan %1 konnte nicht gelöscht werden.</source>
        <translation>Plan %1 could not be deleted.</translation>
    </message>
    <message>
        <source>Die neue Planversion konnte nicht gespeichert werden.</source>
        <translation>The new plan version could not be saved.</translation>
    </message>
    <message>
        <source>Der Mangel existiert nicht.</source>
        <translation>The defect does not exist.</translation>
    </message>
</context>
<context>
    <name>KalPrintDefects</name>
    <message>
        <source>Die Seite hat keinen bedruckbaren Bereich.</source>
        <translation>The page has no printable area.</translation>
    </message>
    <message>
        <source>Die Mängel konnten nicht gelesen werden.</source>
        <translation>The defects could not be read.</translation>
    </message>
    <message>
        <source>Mängelliste wird erstellt ...</source>
        <translation>Creating the defect list ...</translation>
    </message>
    <message>
        <source>Der Druck kann nicht beginnen: das Ausgabegerät ist nicht bereit.</source>
        <translation>Printing cannot start: the output device is not ready.</translation>
    </message>
    <message>
        <source>Eine neue Seite kann nicht begonnen werden.</source>
        <translation>A new page cannot be started.</translation>
    </message>
    <message>
        <source>Die Datei
%1
kann nicht geschrieben werden.
%2</source>
        <translation>The file
%1
cannot be written.
%2</translation>
    </message>
</context>
<context>
    <name>KalPrintDocument</name>
    <message>
        <source>Bild nicht lesbar</source>
        <translation>Picture not readable</translation>
    </message>
</context>
<context>
    <name>KalPrintModeSelectDialog</name>
    <message>
        <source>Druckformat wählen</source>
        <translation>Choose print format</translation>
    </message>
    <message>
        <source>Mängelliste &amp;kompakt</source>
        <translation>&amp;Compact defect list</translation>
    </message>
    <message>
        <source>Mängelliste &amp;detailliert</source>
        <translation>&amp;Detailed defect list</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>KalPrintPerCompany</name>
    <message>
        <source>Mängelliste - </source>
        <translation>Defect list - </translation>
    </message>
    <message>
        <source>Der Ordner %1 existiert nicht.</source>
        <translation>The folder %1 does not exist.</translation>
    </message>
</context>
<context>
    <name>KalPrintTargets</name>
    <message>
        <source>Druckfehler</source>
        <translation>Print error</translation>
    </message>
    <message>
        <source>Die Mängelliste konnte nicht gedruckt werden.
%1</source>
        <translation>The defect list could not be printed.
%1</translation>
    </message>
    <message>
        <source>Der Drucker meldet einen Fehler.</source>
        <translation>The printer reports an error.</translation>
    </message>
    <message>
        <source>Die Druckvorschau konnte nicht erstellt werden.
%1</source>
        <translation>The print preview could not be created.
%1</translation>
    </message>
    <message>
        <source> Mängelliste</source>
        <translation> Defect list</translation>
    </message>
    <message>
        <source>Speichern als PDF-Dokument</source>
        <translation>Save as PDF document</translation>
    </message>
    <message>
        <source>Pdf files (*.pdf)</source>
        <translation>Pdf files (*.pdf)</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert bereits und kann nicht überschrieben werden.
Überprüfen Sie
- ob die Datei bereits geöffnet ist
- Ihre Schreibrechte für die Datei.</source>
        <translation>The file
%1
already exists and cannot be overwritten.
Please check
- whether the file is already open
- your write permissions for the file.</translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht geschrieben werden.
%2</source>
        <translation>The file
%1
could not be written.
%2</translation>
    </message>
    <message>
        <source>Ordner für die PDF-Dateien je Firma wählen</source>
        <translation>Choose the folder for the PDF files per company</translation>
    </message>
    <message>
        <source>Die PDF-Dateien je Firma konnten nicht vollständig geschrieben werden.
%1
Bereits geschrieben: %2</source>
        <translation>The PDF files per company could not all be written.
%1
Already written: %2</translation>
    </message>
    <message>
        <source>PDF je Firma</source>
        <translation>PDF per company</translation>
    </message>
    <message>
        <source>%1 PDF-Dateien wurden im Ordner
%2
gespeichert.</source>
        <translation>%1 PDF files were saved in the folder
%2</translation>
    </message>
</context>
<context>
    <name>KalPrintTexts</name>
    <message>
        <source>Pellwick - Mängelmanagement für Bauprojekte</source>
        <translation>Pellwick - defect management for construction projects</translation>
    </message>
    <message>
        <source>Seite ${page.cur}/${page.count}</source>
        <translation>Page ${page.cur}/${page.count}</translation>
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
        <translation>Description: </translation>
    </message>
    <message>
        <source>Index </source>
        <translation>Index </translation>
    </message>
    <message>
        <source>Raumbuch-Nr: </source>
        <translation>Room schedule no: </translation>
    </message>
    <message>
        <source>Erfasst am: </source>
        <translation>Recorded on: </translation>
    </message>
    <message>
        <source>Erfasst von: </source>
        <translation>Recorded by: </translation>
    </message>
    <message>
        <source>Typ: </source>
        <translation>Type: </translation>
    </message>
    <message>
        <source>Beseitigungsanweisung: </source>
        <translation>Remedy instruction: </translation>
    </message>
    <message>
        <source>Datum: </source>
        <translation>Date: </translation>
    </message>
    <message>
        <source>Index: </source>
        <translation>Index: </translation>
    </message>
    <message>
        <source>Plan: </source>
        <translation>Plan: </translation>
    </message>
    <message>
        <source>Mängelliste - Anhang Pläne</source>
        <translation>Defect list - plan annex</translation>
    </message>
    <message>
        <source>Mängelliste - Anhang Fotos</source>
        <translation>Defect list - photo annex</translation>
    </message>
    <message>
        <source>Mängelliste</source>
        <translation>Defect list</translation>
    </message>
    <message>
        <source>Firma: </source>
        <translation>Company: </translation>
    </message>
    <message>
        <source>Fototitel: </source>
        <translation>Photo title: </translation>
    </message>
    <message>
        <source>Datum: %1</source>
        <translation>Date: %1</translation>
    </message>
    <message>
        <source>Foto %1 von %2 zu Mangel %3:</source>
        <translation>Photo %1 of %2 for defect %3:</translation>
    </message>
    <message>
        <source>2. Nachfrist: </source>
        <translation>2nd extension: </translation>
    </message>
    <message>
        <source>1. Nachfrist: </source>
        <translation>1st extension: </translation>
    </message>
    <message>
        <source>Frist: </source>
        <translation>Deadline: </translation>
    </message>
    <message>
        <source>Priorität: </source>
        <translation>Priority: </translation>
    </message>
    <message>
        <source>Status: </source>
        <translation>Status: </translation>
    </message>
    <message>
        <source>Raum: </source>
        <translation>Room: </translation>
    </message>
    <message>
        <source>Mangel</source>
        <translation>Defect</translation>
    </message>
    <message>
        <source>Mängelliste - Minderungen</source>
        <translation>Defect list - price reductions</translation>
    </message>
    <message>
        <source>Anzahl</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>Summe</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>ohne Firma</source>
        <translation>without company</translation>
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
        <translation>Recording personal data</translation>
    </message>
    <message>
        <source>&lt;p&gt;Wenn Sie hier personenbezogene Daten (gem. Art. 4 DSGVO) erfassen und Berichte mit diesen Daten veröffentlichen, benötigen Sie die Einwilligung der betroffenen Personen.&lt;/p&gt;&lt;p&gt;Den Personenbezug können Sie vermeiden, indem Sie allgemeine Angaben wie &amp;quot;Architekt&amp;quot; oder Initialen statt Namen eintragen.&lt;/p&gt;&lt;p&gt;Ein Muster für eine Einwilligungserklärung finden Sie unter &lt;a href=&quot;https://www.quellor.de/einwilligung&quot;&gt;www.quellor.de/einwilligung&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;If you record personal data here (as defined in Art. 4 GDPR) and publish reports containing these data, you need the consent of the persons concerned.&lt;/p&gt;&lt;p&gt;You can avoid personal references by entering general terms such as &amp;quot;Architect&amp;quot; or initials instead of names.&lt;/p&gt;&lt;p&gt;You will find a sample declaration of consent at &lt;a href=&quot;https://www.quellor.de/einwilligung&quot;&gt;www.quellor.de/einwilligung&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>Do not show this message again</translation>
    </message>
</context>
<context>
    <name>KalProgressDialog</name>
    <message>
        <source>Bitte warten...</source>
        <translation>Please wait...</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>KalProject</name>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Löschen der Datei
%1
 fehlgeschlagen.</source>
        <translation>Deleting the file
%1
 failed.</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>unbekannt</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist von
User: %1
Computer: %2
seit dem %3 %4 Uhr.</source>
        <translation>The file could not be opened because it is being edited by
User: %1
Computer: %2
since %3 %4.</translation>
    </message>
    <message>
        <source>Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist.</source>
        <translation>The file could not be opened because it is being edited.</translation>
    </message>
    <message>
        <source>Datenbank in Bearbeitung</source>
        <translation>Database in use</translation>
    </message>
    <message>
        <source>Datei öffnen</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>Die letzte Bearbeitung der Mängel-Datei wurde nicht ordnungsgemäß abgeschlossen.
Der letzte Bearbeitungsstand wird geöffnet. Speichern Sie die Datei, wenn Sie diesen Stand behalten wollen.</source>
        <translation>The last editing of the defect file was not finished properly.
The last state of editing is opened. Save the file if you want to keep this state.</translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation>The file
%1
does not exist.</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden, da sie mit einer neueren Programmversion erstellt wurde.</source>
        <translation>The file cannot be opened because it was created with a newer version of the program.</translation>
    </message>
    <message>
        <source>Tabelle KAL fehlt</source>
        <translation>Table KAL is missing</translation>
    </message>
    <message>
        <source>Die interne Struktur der Mängel-Datenbank ist beschädigt.
Wenn Sie mit dieser Datenbank weiterarbeiten, drohen Datenverluste!
</source>
        <translation>The internal structure of the defect database is damaged.
If you keep working with this database, data may be lost!
</translation>
    </message>
    <message>
        <source>Beschädigte Datenbank-Datei</source>
        <translation>Damaged database file</translation>
    </message>
    <message>
        <source>Backup wiederherstellen</source>
        <translation>Restore backup</translation>
    </message>
    <message>
        <source>Beschädigte Datei öffnen</source>
        <translation>Open damaged file</translation>
    </message>
    <message>
        <source>Das neueste unbeschädigte Backup stammt vom %1.
Soll dieses Backup wiederhergestellt werden (empfohlen)?</source>
        <translation>The newest undamaged backup dates from %1.
Do you want to restore this backup (recommended)?</translation>
    </message>
    <message>
        <source>Es existieren keine Backup-Dateien. Wenn sie über Sicherungskopien dieser Datei verfügen, stellen Sie diese wieder her.
</source>
        <translation>There are no backup files. If you have backup copies of this file, restore them.
</translation>
    </message>
    <message>
        <source>Die Backup-Dateien sind ebenfalls beschädigt. Wenn sie über Sicherungskopien dieser Datei verfügen, stellen Sie diese wieder her.
</source>
        <translation>The backup files are damaged as well. If you have backup copies of this file, restore them.
</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Die Datei konnte nicht wiederhegestellt werden.
</source>
        <translation>The file could not be restored.
</translation>
    </message>
    <message>
        <source>Die Datei wurde erfolgreich wiederhergestellt und wird jetzt geöffnet.
Die beschädigte Datei wurde umbenannt in %2.</source>
        <translation>The file has been restored successfully and is now opened.
The damaged file was renamed to %2.</translation>
    </message>
    <message>
        <source>Speicherplatz nicht ausreichend</source>
        <translation>Not enough disk space</translation>
    </message>
    <message>
        <source>Auf dem Laufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um das Projekt zu öffnen.
Geben Sie mindestens %2 MB Speicherplatz frei und versuchen Sie es erneut.</source>
        <translation>There is not enough space on drive %1 to open the project.
Free at least %2 MB and try again.</translation>
    </message>
    <message>
        <source>Speicherplatz</source>
        <translation>Disk space</translation>
    </message>
    <message>
        <source>Sie sollten auf dem Laufwerk %1 Speicherplatz freigeben, da es sonst zu Problemen beim Speichern des Projekts kommen kann.</source>
        <translation>You should free space on drive %1; otherwise saving the project may run into problems.</translation>
    </message>
    <message>
        <source>Projekt wird geöffnet...</source>
        <translation>Opening project...</translation>
    </message>
    <message>
        <source>Die Working Copy Datei konnte nicht erstellt werden.</source>
        <translation>The working copy file could not be created.</translation>
    </message>
    <message>
        <source>Datei-Warnung</source>
        <translation>File warning</translation>
    </message>
    <message>
        <source>Sie haben keine Schreibrechte für die Datei %1.
Wenn Sie die Datei speichern wollen, können Sie dies nur unter einem anderen Namen oder in einen anderen Ordner.
Wählen Sie hierzu im Menü &apos;Datei&apos; den Menüpunkt &apos;Speichern unter&apos;.</source>
        <translation>You have no write permission for the file %1.
If you want to save the file, you can only do so under another name or in another folder.
To do so, choose &apos;Save as&apos; in the &apos;File&apos; menu.</translation>
    </message>
    <message>
        <source>Die Datei %1 konnte nicht in %2 umbenannt werden.</source>
        <translation>The file %1 could not be renamed to %2.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Backup-Datei %1.</source>
        <translation>Error while copying the backup file %1.</translation>
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
        <translation>Save error</translation>
    </message>
    <message>
        <source>Sie können die Datei %1 nicht speichern, da sie keine Schreibrechte besitzen.
Wählen Sie im Menü &apos;Datei&apos; den Menüpunkt &apos;Speichern unter&apos;,
um die Datei unter einem anderen Namen oder in einen anderen Ordner zu speichern.
</source>
        <translation>You cannot save the file %1 because you have no write permission.
Choose &apos;Save as&apos; in the &apos;File&apos; menu
to save the file under another name or in another folder.
</translation>
    </message>
    <message>
        <source>Projekt wird gespeichert...</source>
        <translation>Saving project...</translation>
    </message>
    <message>
        <source>interner Fehler</source>
        <translation>internal error</translation>
    </message>
    <message>
        <source>Dateiname fehlt.</source>
        <translation>File name is missing.</translation>
    </message>
    <message>
        <source>Auf dem Ziellaufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um das Projekt zu speichern.
Geben Sie mindestens %2 MB Speicherplatz frei und versuchen Sie es erneut.</source>
        <translation>There is not enough space on the target drive %1 to save the project.
Free at least %2 MB and try again.</translation>
    </message>
    <message>
        <source>Löschen der Backup-Datei
%1
 fehlgeschlagen.</source>
        <translation>Deleting the backup file
%1
 failed.</translation>
    </message>
    <message>
        <source>Kopieren der Datei
%1
 fehlgeschlagen.</source>
        <translation>Copying the file
%1
 failed.</translation>
    </message>
    <message>
        <source>Umbenennen der Backup-Datei
%1
 fehlgeschlagen.</source>
        <translation>Renaming the backup file
%1
 failed.</translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht gelöscht werden.</source>
        <translation>The file
%1
could not be deleted.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Working Copy Datei.</source>
        <translation>Error while copying the working copy file.</translation>
    </message>
    <message>
        <source>Datenbank bereinigen</source>
        <translation>Clean up database</translation>
    </message>
    <message>
        <source>Die Datenbank wird jetzt bereinigt.
Dieser Vorgang kann für größere Datenbanken mehrere Minuten dauern.

Unterbrechen Sie diesen Vorgang nicht und schalten Sie den Computer nicht aus.
</source>
        <translation>The database is now being cleaned up.
For larger databases this can take several minutes.

Do not interrupt this process and do not switch off the computer.
</translation>
    </message>
    <message>
        <source>Aufgrund eines SQL-Fehlers konnte die Datenbank nicht bereinigt werden.</source>
        <translation>The database could not be cleaned up because of an SQL error.</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!
Die Datenbank konnte nicht bereinigt werden.
</source>
        <translation>An error occurred while saving the project!
The database could not be cleaned up.
</translation>
    </message>
    <message>
        <source>Die Datenbank wurde erfolgreich bereinigt.
</source>
        <translation>The database has been cleaned up successfully.
</translation>
    </message>
    <message>
        <source>Die Datenbank wurde erfolgreich bereinigt.
Die Dateigröße wurde von %1 auf %2 reduziert.</source>
        <translation>The database has been cleaned up successfully.
The file size was reduced from %1 to %2.</translation>
    </message>
    <message>
        <source>keine gewöhnliche Datei</source>
        <translation>not a regular file</translation>
    </message>
    <message>
        <source>leere Datei</source>
        <translation>empty file</translation>
    </message>
    <message>
        <source>keine lesbare Datenbank: %1</source>
        <translation>not a readable database: %1</translation>
    </message>
    <message>
        <source>mit einer neueren Programmversion erstellt</source>
        <translation>created with a newer program version</translation>
    </message>
    <message>
        <source>beschädigt: %1</source>
        <translation>damaged: %1</translation>
    </message>
    <message>
        <source>Der Ordner
%1
existiert nicht.</source>
        <translation>The folder
%1
does not exist.</translation>
    </message>
</context>
<context>
    <name>KalProjectFileCommands</name>
    <message>
        <source>Die Datei
%1
existiert bereits und wird nicht überschrieben.</source>
        <translation>The file
%1
already exists and will not be overwritten.</translation>
    </message>
    <message>
        <source>Pellwick Projekt (*.pwp)</source>
        <translation>Pellwick project (*.pwp)</translation>
    </message>
    <message>
        <source>Speichern unter</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation>Save project</translation>
    </message>
    <message>
        <source>Das Projekt kann nicht gespeichert werden, da die Datei
%1
schreibgeschützt ist.

Möchten Sie die Änderungen in einer neuen Datei speichern?</source>
        <translation>The project cannot be saved because the file
%1
is write-protected.

Do you want to save the changes in a new file?</translation>
    </message>
    <message>
        <source>Projekt geändert</source>
        <translation>Project changed</translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert. Möchten Sie die Änderungen speichern?</source>
        <translation>The project has been changed. Do you want to save the changes?</translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert.
Die Datei 
%1
ist jedoch schreibgeschützt.

Möchten Sie die Änderungen in einer neuen Datei speichern?</source>
        <translation>The project has been changed.
However, the file 
%1
is write-protected.

Do you want to save the changes in a new file?</translation>
    </message>
    <message>
        <source>Datei speichern</source>
        <translation>Save file</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!</source>
        <translation>An error occurred while saving the project!</translation>
    </message>
    <message>
        <source>Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!</source>
        <translation>An error occurred while creating a new project!</translation>
    </message>
    <message>
        <source>Beim Schließen des Projekts ist ein Fehler aufgetreten!</source>
        <translation>An error occurred while closing the project!</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation>The file
%1
does not exist.</translation>
    </message>
    <message>
        <source>Beim Öffnen des gewählten Projekts ist ein Fehler aufgetreten!</source>
        <translation>An error occurred while opening the chosen project!</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Open project</translation>
    </message>
    <message>
        <source>Datenbank bereinigen</source>
        <translation>Clean up database</translation>
    </message>
    <message>
        <source>Verringern der Datenbankgröße durch Bereinigung der Datenbank

Beim Löschen von Daten wird die Datenbank-Datei fragmentiert: Der frei gewordene Platz bleibt in der Datei erhalten. Die Bereinigung ordnet die Daten der Tabellen zusammenhängend an und organisiert die Datei neu.

Dadurch kann die Datei erheblich kleiner werden, vor allem nachdem Fotos gelöscht wurden.</source>
        <translation>Reducing the database size by cleaning up the database

Deleting data fragments the database file: the space that became free remains in the file. Cleaning up arranges the data of the tables contiguously and reorganizes the file.

This can make the file considerably smaller, above all after photos were deleted.</translation>
    </message>
    <message>
        <source>Das Projekt wurde noch nicht gespeichert.
Sie müssen das Projekt vor der Bereinigung der Datenbank speichern.</source>
        <translation>The project has not been saved yet.
You must save the project before the database can be cleaned up.</translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation>New project</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!
Die Datenbank konnte nicht bereinigt werden.
</source>
        <translation>An error occurred while saving the project!
The database could not be cleaned up.
</translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert.
Vor dem Bereinigen der Datenbank werden die Änderungen gespeichert.
</source>
        <translation>The project has been changed.
The changes will be saved before the database is cleaned up.
</translation>
    </message>
    <message>
        <source>Speichern und Bereinigen der Datenbank</source>
        <translation>Save and clean up the database</translation>
    </message>
</context>
<context>
    <name>KalPrompt</name>
    <message>
        <source>Ja</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Discard</translation>
    </message>
</context>
<context>
    <name>KalSelectionSteps</name>
    <message>
        <source>Sie haben kein Objekt ausgewählt.
Sie wählen ein Objekt aus, indem Sie es anklicken.
Sie wählen mehrere Objekte aus, indem Sie sie bei gedrückter Strg-Taste anklicken.
</source>
        <translation>You have not selected an object.
You select an object by clicking it.
You select several objects by clicking them while holding down the Ctrl key.
</translation>
    </message>
</context>
<context>
    <name>KalSettingsImageSizeDialog</name>
    <message>
        <source>Bildgröße Fotos</source>
        <translation>Picture size photos</translation>
    </message>
    <message>
        <source>Fotos komprimieren auf:</source>
        <translation>Compress photos to:</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Standardeinstellung</source>
        <translation>Default setting</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;br&gt;Sie haben die Größe für den Import von Fotos reduziert.&lt;/p&gt;%1 bestehende Fotos sind größer als die aktuelle Einstellung. Sollen diese Fotos verkleinert werden?&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Achtung: &lt;br&gt;Dieser Vorgang kann nicht rückgängig gemacht werden. &lt;/span&gt;Es wird daher empfohlen, ein Backup der Datei mit der bisherigen Auflösung zu erstellen.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;br&gt;You have reduced the size for importing photos.&lt;/p&gt;%1 existing photos are larger than the current setting. Do you want to shrink these photos?&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Attention: &lt;br&gt;This operation cannot be undone. &lt;/span&gt;It is therefore recommended to make a backup of the file with the previous resolution.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Fotogröße</source>
        <translation>Photo size</translation>
    </message>
    <message>
        <source>Bestehende Fotos verkleinern</source>
        <translation>Shrink existing photos</translation>
    </message>
    <message>
        <source>Die Fotos werden bearbeitet.</source>
        <translation>The photos are being processed.</translation>
    </message>
    <message>
        <source>Bildgröße Pläne</source>
        <translation>Picture size plans</translation>
    </message>
    <message>
        <source>Pläne komprimieren auf:</source>
        <translation>Compress plans to:</translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation>plans</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;br&gt;Sie haben die Größe für den Import von Plänen reduziert.&lt;/p&gt;%1 bestehende Pläne sind größer als die aktuelle Einstellung. Sollen diese Pläne verkleinert werden?&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Achtung: &lt;br&gt;Dieser Vorgang kann nicht rückgängig gemacht werden. &lt;/span&gt;Es wird daher empfohlen, ein Backup der Datei mit der bisherigen Auflösung zu erstellen.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;br&gt;You have reduced the size for importing plans.&lt;/p&gt;%1 existing plans are larger than the current setting. Do you want to shrink these plans?&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Attention: &lt;br&gt;This operation cannot be undone. &lt;/span&gt;It is therefore recommended to make a backup of the file with the previous resolution.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Plangröße</source>
        <translation>Plan size</translation>
    </message>
    <message>
        <source>Bestehende Pläne verkleinern</source>
        <translation>Shrink existing plans</translation>
    </message>
    <message>
        <source>Die Pläne werden bearbeitet.</source>
        <translation>The plans are being processed.</translation>
    </message>
    <message>
        <source>Es ist ein Fehler aufgetreten.
Die Größe der bestehenden Fotos konnte nicht geändert werden.</source>
        <translation>An error has occurred.
The size of the existing photos could not be changed.</translation>
    </message>
    <message>
        <source>Es ist sind Fehler aufgetreten.
Die Größe von %1 bestehenden Fotos konnte nicht geändert werden.</source>
        <translation>Errors have occurred.
The size of %1 existing photos could not be changed.</translation>
    </message>
    <message>
        <source>Die Größe der bestehenden Fotos wurde erfolgreich geändert.
Die Backup-Datei %1 wurde erstellt.</source>
        <translation>The size of the existing photos was changed successfully.
The backup file %1 has been created.</translation>
    </message>
    <message>
        <source>Die Größe der bestehenden Fotos wurde erfolgreich geändert.</source>
        <translation>The size of the existing photos was changed successfully.</translation>
    </message>
    <message>
        <source>Es ist ein Fehler aufgetreten.
Die Größe der bestehenden Pläne konnte nicht geändert werden.</source>
        <translation>An error has occurred.
The size of the existing plans could not be changed.</translation>
    </message>
    <message>
        <source>Es ist sind Fehler aufgetreten.
Die Größe von %1 bestehenden Plänen konnte nicht geändert werden.</source>
        <translation>Errors have occurred.
The size of %1 existing plans could not be changed.</translation>
    </message>
    <message>
        <source>Die Größe der bestehenden Pläne wurde erfolgreich geändert.
Die Backup-Datei %1 wurde erstellt.</source>
        <translation>The size of the existing plans was changed successfully.
The backup file %1 has been created.</translation>
    </message>
    <message>
        <source>Die Größe der bestehenden Pläne wurde erfolgreich geändert.</source>
        <translation>The size of the existing plans was changed successfully.</translation>
    </message>
    <message>
        <source>Hier können Sie festlegen auf welche Pixelanzahl große %1 komprimiert werden sollen.
Mit höheren Werten steigt sowohl die Bildqualität als auch die Dateigröße.
Die Komprimierung erfolgt nur für neu hinzugefügte %2.</source>
        <translation>Here you can set the number of pixels to which large %1 are compressed.
Higher values increase both the picture quality and the file size.
The compression applies only to newly added %2.</translation>
    </message>
    <message>
        <source>Backup der Datei mit bisheriger Auflösung erstellen</source>
        <translation>Make a backup of the file with the previous resolution</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Das Verkleinern wurde abgebrochen.
%1 von %2 Bildern wurden verkleinert und bleiben es; die übrigen sind unverändert.</source>
        <translation>Shrinking was canceled.
%1 of %2 pictures were shrunk and stay so; the others are unchanged.</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>

Klicken Sie im Hauptfenster auf &apos;Datei-&gt;Datenbank bereinigen&apos;, um die Dateigröße zu reduzieren.</source>
        <translation>

Click &apos;File-&gt;Clean up database&apos; in the main window to reduce the file size.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Die Backup-Datei %1 konnte nicht erstellt werden.</source>
        <translation>The backup file %1 could not be created.</translation>
    </message>
</context>
<context>
    <name>KalShortHelpDialog</name>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Anleitung für den Datenimport aus einem Bautagebuch</source>
        <translation>Guide to importing data from a site journal</translation>
    </message>
    <message>
        <source>Anleitung für den Datenimport von einem Mobilgerät</source>
        <translation>Guide to importing data from a mobile device</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Datenimport aus dem Bautagebuch für PC und Mac&lt;/h3&gt;&lt;p&gt;Das Bautagebuch ist die Datenquelle: Mängel, die Sie dort in Ihren Berichten erfassen, werden mit ihren Mängelfotos und den beteiligten Firmen in das Pellwick-Projekt übernommen.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Öffnen oder erstellen Sie das Pellwick-Projekt für die Baustelle.&lt;/li&gt;&lt;li&gt;Wählen Sie im Menü &quot;Datenimport&quot; den Eintrag &quot;Mängel und Firmen aus einem Bautagebuch importieren&quot; und wählen Sie die Bautagebuch-Datei (*.sjd) aus.&lt;/li&gt;&lt;li&gt;Das Projekt bleibt mit dem Bautagebuch verbunden: Später übernehmen Sie neue und geänderte Mängel mit &quot;Mängel und Firmen aus dem Bautagebuch aktualisieren&quot; oder automatisch.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Mängel, die Sie im Pellwick-Projekt bearbeitet haben, werden beim Aktualisieren nicht überschrieben.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Data import from the site journal for PC and Mac&lt;/h3&gt;&lt;p&gt;The site journal is the data source: defects that you record there in your reports are taken over into the Pellwick project together with their defect photos and the companies involved.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Open or create the Pellwick project for the building site.&lt;/li&gt;&lt;li&gt;In the &quot;Data import&quot; menu choose &quot;Import defects and companies from a site journal&quot; and select the site journal file (*.sjd).&lt;/li&gt;&lt;li&gt;The project stays linked to the site journal: later you take over new and changed defects with &quot;Update defects and companies from the site journal&quot; or automatically.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Defects that you have edited in the Pellwick project are not overwritten by an update.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Datenimport von einem Mobilgerät&lt;/h3&gt;&lt;p&gt;Mängel, Mängelfotos und Firmen können Sie auf der Baustelle mit der Quellor App auf einem Smartphone oder Tablet erfassen und anschließend in das Pellwick-Projekt importieren.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Übertragen Sie die Datenbank der App auf Ihren Computer.&lt;/li&gt;&lt;li&gt;Wählen Sie im Menü &quot;Datenimport&quot; den Eintrag &quot;Mängel und Firmen aus der Quellor App importieren&quot; und wählen Sie die übertragene Datei aus.&lt;/li&gt;&lt;li&gt;Die Mängel werden mit ihren Fotos und Firmen in das geöffnete Projekt übernommen.&lt;/li&gt;&lt;/ol&gt;</source>
        <translation>&lt;h3&gt;Data import from a mobile device&lt;/h3&gt;&lt;p&gt;You can record defects, defect photos and companies on the building site with the Quellor app on a smartphone or tablet and then import them into the Pellwick project.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Transfer the database of the app to your computer.&lt;/li&gt;&lt;li&gt;In the &quot;Data import&quot; menu choose &quot;Import defects and companies from the Quellor app&quot; and select the transferred file.&lt;/li&gt;&lt;li&gt;The defects are taken over into the open project together with their photos and companies.&lt;/li&gt;&lt;/ol&gt;</translation>
    </message>
</context>
<context>
    <name>KalShrinkBackup</name>
    <message>
        <source>Das Projekt wurde noch nicht gespeichert: Es gibt keine Projektdatei, die gesichert werden kann.</source>
        <translation>The project has not been saved yet: there is no project file that could be backed up.</translation>
    </message>
    <message>
        <source>Die Datei %1 existiert bereits und wird nicht überschrieben.</source>
        <translation>The file %1 already exists and is not overwritten.</translation>
    </message>
    <message>
        <source>Die Projektdatei %1 existiert nicht.</source>
        <translation>The project file %1 does not exist.</translation>
    </message>
    <message>
        <source>Auf dem Laufwerk %1 ist nicht genug Platz frei.</source>
        <translation>There is not enough free space on the drive %1.</translation>
    </message>
    <message>
        <source>Die Projektdatei konnte nicht kopiert werden.</source>
        <translation>The project file could not be copied.</translation>
    </message>
    <message>
        <source>Die Datei %1 konnte nicht angelegt werden.</source>
        <translation>The file %1 could not be created.</translation>
    </message>
</context>
<context>
    <name>KalSpellChecker</name>
    <message>
        <source>Wörterbuch-Datei %1 existiert nicht.</source>
        <translation>Dictionary file %1 does not exist.</translation>
    </message>
    <message>
        <source>Speicherfehler beim Anlegen des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den Softwarehersteller.</source>
        <translation>Memory error while creating the spell checking module. Please contact the software manufacturer.</translation>
    </message>
    <message>
        <source>Fehler beim Initialisieren des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den Softwarehersteller.</source>
        <translation>Error while initializing the spell checking module. Please contact the software manufacturer.</translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation>File error</translation>
    </message>
    <message>
        <source>Anwender-Wörterbuch in %1 konnte nicht geöffnet werden</source>
        <translation>User dictionary in %1 could not be opened</translation>
    </message>
    <message>
        <source>Anwender-Wörterbuch in %1 konnte nicht geöffnet werden.
(Evtl. fehlende Schreibrechte)
Hinzufügen des Wortes nicht möglich!</source>
        <translation>User dictionary in %1 could not be opened.
(Write permission may be missing)
The word cannot be added!</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Ordner %1 
zum Speichern der Wörterbücher konnte nicht angelegt werden!</source>
        <translation>Folder %1 
for storing the dictionaries could not be created!</translation>
    </message>
    <message>
        <source>Das Modul Rechtschreibprüfung ist nicht geladen!</source>
        <translation>The spell checking module is not loaded!</translation>
    </message>
    <message>
        <source>Rechtschreibprüfung aus</source>
        <translation>Spell checking off</translation>
    </message>
    <message>
        <source>Rechtschreibprüfung ein</source>
        <translation>Spell checking on</translation>
    </message>
</context>
<context>
    <name>KalSpellCheckerDialog</name>
    <message>
        <source>Rechtschreibprüfung</source>
        <translation>Spell checking</translation>
    </message>
    <message>
        <source>Nicht im Wörterbuch:</source>
        <translation>Not in dictionary:</translation>
    </message>
    <message>
        <source>Ersetzen durch:</source>
        <translation>Replace with:</translation>
    </message>
    <message>
        <source>Vorschläge:</source>
        <translation>Suggestions:</translation>
    </message>
    <message>
        <source>Ignorieren</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>Alle ignorieren</source>
        <translation>Ignore all</translation>
    </message>
    <message>
        <source>Ändern</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Alle ändern</source>
        <translation>Change all</translation>
    </message>
    <message>
        <source>Zum Wörterbuch hinzufügen</source>
        <translation>Add to dictionary</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Das Modul Rechtschreibprüfung ist nicht geladen!</source>
        <translation>The spell checking module is not loaded!</translation>
    </message>
    <message>
        <source>Die Rechtschreibprüfung konnte keinen Fehler finden.</source>
        <translation>The spell check found no errors.</translation>
    </message>
    <message>
        <source>Die Rechtschreibprüfung ist beendet.</source>
        <translation>The spell check is complete.</translation>
    </message>
</context>
<context>
    <name>KalSqlError</name>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
</context>
<context>
    <name>KalSqlTableModel</name>
    <message>
        <source>Nr.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Firma</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Autor</source>
        <translation>Author</translation>
    </message>
    <message>
        <source>Erfasst am</source>
        <translation>Recorded on</translation>
    </message>
    <message>
        <source>Raum</source>
        <translation>Room</translation>
    </message>
    <message>
        <source>Raumbuch-Nr.</source>
        <translation>Room schedule no.</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Beseitigungsanweisung</source>
        <translation>Remedy instruction</translation>
    </message>
    <message>
        <source>Priorität</source>
        <translation>Priority</translation>
    </message>
    <message>
        <source>Frist</source>
        <translation>Deadline</translation>
    </message>
    <message>
        <source>1. Nachfrist</source>
        <translation>1st extension</translation>
    </message>
    <message>
        <source>2. Nachfrist</source>
        <translation>2nd extension</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Minderung</source>
        <translation>Price reduction</translation>
    </message>
    <message>
        <source>Farbe</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Plan-Name oder Nummer</source>
        <translation>Plan name or number</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Titel</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation>Trade</translation>
    </message>
    <message>
        <source>Vorname</source>
        <translation>First name</translation>
    </message>
    <message>
        <source>Nachname</source>
        <translation>Last name</translation>
    </message>
    <message>
        <source>Straße</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>PLZ</source>
        <translation>ZIP code</translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation>City</translation>
    </message>
    <message>
        <source>Telefon</source>
        <translation>Telephone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Mobil</source>
        <translation>Cell phone</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Adressenliste</source>
        <translation>Address list</translation>
    </message>
    <message>
        <source> - mit Minderung</source>
        <translation> - with price reduction</translation>
    </message>
    <message>
        <source>Standardstatus</source>
        <translation>Standard status</translation>
    </message>
    <message>
        <source>Benutzerstatus</source>
        <translation>User status</translation>
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
        <translation>Defects</translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation>Plans</translation>
    </message>
    <message>
        <source>Mail-Addresslisten</source>
        <translation>Mail address lists</translation>
    </message>
    <message>
        <source>Firmen</source>
        <translation>Companies</translation>
    </message>
    <message>
        <source>Mail-Addressen</source>
        <translation>Mail addresses</translation>
    </message>
</context>
<context>
    <name>KalSqliteCheck</name>
    <message>
        <source>unbekannt</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>Der SQLite-Treiber von Qt (QSQLITE) verwendet SQLite %1, das Programm aber SQLite %2.
Projektdateien werden deshalb nicht geöffnet, damit sie nicht beschädigt werden.
Bitte installieren Sie einen SQLite-Treiber für Qt, der die SQLite-Bibliothek des Systems verwendet, oder wenden Sie sich an den Softwarehersteller.</source>
        <translation>The SQLite driver of Qt (QSQLITE) uses SQLite %1, but the program uses SQLite %2.
Project files are therefore not opened, so that they are not damaged.
Please install an SQLite driver for Qt that uses the SQLite library of the system, or contact the software publisher.</translation>
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
        <translation>Edit standard marker</translation>
    </message>
    <message>
        <source>Typ 1</source>
        <translation>Type 1</translation>
    </message>
    <message>
        <source>Typ 2</source>
        <translation>Type 2</translation>
    </message>
    <message>
        <source>Typ 3</source>
        <translation>Type 3</translation>
    </message>
    <message>
        <source>Typ 4</source>
        <translation>Type 4</translation>
    </message>
    <message>
        <source>Markerfarbe</source>
        <translation>Marker color</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Factory settings</translation>
    </message>
    <message>
        <source>Für die grauen Bereiche der Marker können Sie keine Farbe einstellen.
Diese Bereiche werden im Plan in der Statusfarbe des Mangels angezeigt.
Die Statusfarben können Sie im Statusdialog (Einstellungen-&gt;Status) einstellen.
Der Marker des aktuell ausgewählten Mangels wird im Plan durch rote Linien/Ränder gekennzeichnet.
</source>
        <translation>You cannot set a color for the gray areas of the markers.
On the plan these areas are shown in the status color of the defect.
You can set the status colors in the status dialog (Settings-&gt;Status).
The marker of the currently selected defect is marked on the plan by red lines/borders.
</translation>
    </message>
    <message>
        <source>Markerfarbe wählen</source>
        <translation>Choose marker color</translation>
    </message>
</context>
<context>
    <name>KalStartup</name>
    <message>
        <source>Projekt existiert bereits</source>
        <translation>Project already exists</translation>
    </message>
    <message>
        <source>Das Bautagebuch möchte das neue Projekt
%1
anlegen. Diese Datei existiert bereits und wird nicht überschrieben.

Möchten Sie das vorhandene Projekt öffnen und mit dem Bautagebuch verknüpfen?</source>
        <translation>The site journal wants to create the new project
%1
This file already exists and will not be overwritten.

Do you want to open the existing project and link it to the site journal?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Mängelmanagement für Bauprojekte</source>
        <translation>Defect management for building projects</translation>
    </message>
    <message>
        <source>Sie verwenden eine Bildschirm-Skalierung von %1%. Dies kann es zu Problemen bei der Darstellung des Pellwicks führen.</source>
        <translation>You are using a display scaling of %1%. This can cause problems with the way Pellwick is displayed.</translation>
    </message>
    <message>
        <source>

Wenn Schriften oder Symbole abgeschnitten oder unscharf dargestellt werden, stellen Sie die Skalierung für Pellwick auf 100 % zurück:
</source>
        <translation>

If fonts or icons appear cut off or blurred, set the scaling for Pellwick back to 100 %:
</translation>
    </message>
    <message>
        <source> 1. Öffnen Sie die Systemsteuerung.
 2. Wählen Sie &quot;Darstellung und Anpassung&quot; und dann &quot;Anzeige&quot;.
 3. Wählen Sie &quot;Kleiner - 100 %&quot; und bestätigen Sie mit &quot;Übernehmen&quot;.
 4. Melden Sie sich ab und wieder an.</source>
        <translation> 1. Open the Control Panel.
 2. Choose &quot;Appearance and Personalization&quot; and then &quot;Display&quot;.
 3. Choose &quot;Smaller - 100 %&quot; and confirm with &quot;Apply&quot;.
 4. Sign out and sign in again.</translation>
    </message>
    <message>
        <source>1. Rechtsklick auf das Pellwick-Desktop-Icon.
2. Wählen Sie &quot;Eigenschaften&quot; und dann die Registerkarte &quot;Kompatibilität&quot;.
3. Klicken Sie auf &quot;Hohe DPI-Einstellungen ändern&quot; und aktivieren Sie &quot;Verhalten bei hoher DPI-Skalierung überschreiben&quot; mit &quot;Anwendung&quot;.
4. Bestätigen Sie mit &quot;OK&quot; und starten Sie Pellwick neu.</source>
        <translation>1. Right-click the Pellwick desktop icon.
2. Choose &quot;Properties&quot; and then the &quot;Compatibility&quot; tab.
3. Click &quot;Change high DPI settings&quot; and enable &quot;Override high DPI scaling behavior&quot; with &quot;Application&quot;.
4. Confirm with &quot;OK&quot; and restart Pellwick.</translation>
    </message>
    <message>
        <source>1. Öffnen Sie die Bildschirm-Einstellungen Ihrer Arbeitsumgebung.
2. Stellen Sie die Skalierung bzw. die Schriftauflösung auf 100 % (96 DPI).
3. Melden Sie sich ab und wieder an und starten Sie Pellwick neu.</source>
        <translation>1. Open the display settings of your desktop environment.
2. Set the scaling or the font resolution to 100 % (96 DPI).
3. Log out and back in and restart Pellwick.</translation>
    </message>
    <message>
        <source>Bildschirm-Skalierung</source>
        <translation>Display scaling</translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation>Do not show this message again</translation>
    </message>
    <message>
        <source>Datenimport</source>
        <translation>Data import</translation>
    </message>
    <message>
        <source>Das Projekt wurde mit dem Bautagebuch
%1
verknüpft.

Der Import von Mängeln und Firmen aus dem Bautagebuch ist in dieser Programmversion noch nicht verfügbar.</source>
        <translation>The project has been linked to the site journal
%1

The import of defects and companies from the site journal is not yet available in this version of the program.</translation>
    </message>
    <message>
        <source>Hilfe zum Datenimport

Pellwick arbeitet eigenständig (standalone): Sie erfassen Mängel, Fotos, Pläne und Firmen direkt im Pellwick-Projekt.

Pellwick arbeitet auch mit dem Quellor Bautagebuch zusammen: Das Bautagebuch ist dann die Datenquelle, aus der Mängel, Mängelfotos und Firmen in das Pellwick-Projekt übernommen werden.

Anleitungen dazu finden Sie im Menü &quot;Hilfe&quot;.</source>
        <translation>Help on data import

Pellwick works on its own (standalone): you record defects, photos, plans and companies directly in the Pellwick project.

Pellwick also works together with the Quellor site journal: the site journal is then the data source from which defects, defect photos and companies are taken over into the Pellwick project.

You will find guides for this in the &quot;Help&quot; menu.</translation>
    </message>
    <message>
        <source>Hilfe zum Datenimport</source>
        <translation>Help on data import</translation>
    </message>
</context>
<context>
    <name>KalStatusDialog</name>
    <message>
        <source>Werkseinstellung</source>
        <translation>Factory setting</translation>
    </message>
    <message>
        <source>Alle User-Status entfernen</source>
        <translation>Remove all user statuses</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Neuer Status</source>
        <translation>New status</translation>
    </message>
    <message>
        <source>Statusfarbe wählen</source>
        <translation>Choose status color</translation>
    </message>
    <message>
        <source>Standard Status wiederherstellen</source>
        <translation>Restore standard statuses</translation>
    </message>
    <message>
        <source>Die Standard Status werden auf die Werkseinstellungen zurückgesetzt.</source>
        <translation>The standard statuses are reset to the factory settings.</translation>
    </message>
    <message>
        <source>Benutzerstatus löschen</source>
        <translation>Delete user statuses</translation>
    </message>
    <message>
        <source>Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel ihren Status!
Wollen Sie wirklich alle Benutzerstatus löschen?</source>
        <translation>If you delete a status that is already assigned to defects, these defects lose their status!
Do you really want to delete all user statuses?</translation>
    </message>
    <message>
        <source>Statusverwaltung</source>
        <translation>Status management</translation>
    </message>
</context>
<context>
    <name>KalTableView</name>
    <message>
        <source>Neue Zeile hinzufügen</source>
        <translation>Add new row</translation>
    </message>
    <message>
        <source>Gewählte Zeilen entfernen</source>
        <translation>Remove selected rows</translation>
    </message>
    <message>
        <source>Gewählte Zeilen kopieren</source>
        <translation>Copy selected rows</translation>
    </message>
    <message>
        <source>Doppelklick für neue Zeile</source>
        <translation>Double-click for a new row</translation>
    </message>
    <message>
        <source>Status löschen</source>
        <translation>Delete status</translation>
    </message>
    <message>
        <source>Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel ihren Status!
Soll der gewählte Status tatsächlich gelöscht werden?</source>
        <translation>If you delete a status that is already assigned to defects, these defects lose their status!
Do you really want to delete the selected status?</translation>
    </message>
    <message>
        <source>Eintrag entfernen</source>
        <translation>Remove entry</translation>
    </message>
    <message>
        <source>Soll der gewählte Eintrag tatsächlich entfernt werden?</source>
        <translation>Do you really want to remove the selected entry?</translation>
    </message>
    <message>
        <source>Einträge entfernen</source>
        <translation>Remove entries</translation>
    </message>
    <message>
        <source>Sollen die %1 gewählten Einträge tatsächlich entfernt werden?</source>
        <translation>Do you really want to remove the %1 selected entries?</translation>
    </message>
    <message>
        <source>Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel ihren Status!
Sollen die %1 gewählten Status tatsächlich gelöscht werden?</source>
        <translation>If you delete a status that is already assigned to defects, these defects lose their status!
Do you really want to delete the %1 selected statuses?</translation>
    </message>
</context>
<context>
    <name>KalTextEditor</name>
    <message>
        <source>Text bearbeiten</source>
        <translation>Edit text</translation>
    </message>
    <message>
        <source>Text fett</source>
        <translation>Bold text</translation>
    </message>
    <message>
        <source>F</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Text kursiv</source>
        <translation>Italic text</translation>
    </message>
    <message>
        <source>K</source>
        <translation>I</translation>
    </message>
    <message>
        <source>Text unterstrichen</source>
        <translation>Underlined text</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Schriftgröße</source>
        <translation>Font size</translation>
    </message>
    <message>
        <source>Textfarbe</source>
        <translation>Text color</translation>
    </message>
    <message>
        <source>Voreinstellungen</source>
        <translation>Presets</translation>
    </message>
    <message>
        <source>Hier den Text eingeben</source>
        <translation>Enter the text here</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Text eingeben</source>
        <translation>Enter text</translation>
    </message>
    <message>
        <source>Symbol erstellen</source>
        <translation>Create symbol</translation>
    </message>
    <message>
        <source>Standardeinstellungen Plantexte</source>
        <translation>Default settings for plan texts</translation>
    </message>
    <message>
        <source>Legen Sie die Standardeinstellungen für die automatisch im Plan erzeugten Mängeltexte fest. Sie können einzelne Texte im Plan ändern, indem Sie im Planeditor einen Doppelklick auf den Text ausführen. Den Planeditor öffnen Sie, indem Sie den Mangel in der Tabelle auswählen und einen Doppelklick auf den Plan ausführen.
</source>
        <translation>Set the defaults for the defect texts created automatically on the plan. You can change single texts on the plan by double-clicking the text in the plan editor. You open the plan editor by selecting the defect in the table and double-clicking the plan.
</translation>
    </message>
    <message>
        <source>0001: Mangelbeschreibung</source>
        <translation>0001: Defect description</translation>
    </message>
    <message>
        <source>Textfarbe wählen</source>
        <translation>Choose text color</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Sie haben den kompletten Text gelöscht.
Das Textelement im Plan wird dann ebenfalls gelöscht.
Wenn Sie den Planeditor verlassen und für diesen Mangel erneut aufrufen, wird automatisch ein neues Textelement mit der Mangelbeschreibung erzeugt.

Wollen Sie das Textelement im Plan wirklich löschen?</source>
        <translation>You have deleted the whole text.
The text element on the plan will then be deleted as well.
When you leave the plan editor and open it again for this defect, a new text element with the defect description is created automatically.

Do you really want to delete the text element on the plan?</translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation>Discard changes</translation>
    </message>
    <message>
        <source>Möchten Sie die Änderungen tatsächlich verwerfen?</source>
        <translation>Do you really want to discard the changes?</translation>
    </message>
</context>
<context>
    <name>KalUpdateCheck</name>
    <message>
        <source>Die Versionsdatei des Update-Servers ist nicht lesbar.</source>
        <translation>The update server&apos;s version file cannot be read.</translation>
    </message>
    <message>
        <source>Sie verwenden die aktuelle Version %1.</source>
        <translation>You are using the current version %1.</translation>
    </message>
    <message>
        <source>Die Version %1 ist verfügbar, aber der Update-Server nennt keine gültige Download-Seite (http oder https).</source>
        <translation>Version %1 is available, but the update server names no valid download page (http or https).</translation>
    </message>
    <message>
        <source>Die Version %1 ist verfügbar (installiert ist %2).
Download-Seite: %3</source>
        <translation>Version %1 is available (%2 is installed).
Download page: %3</translation>
    </message>
    <message>
        <source>Es ist keine Update-Quelle eingerichtet (Einstellung &quot;%1&quot;).</source>
        <translation>No update source is configured (setting &quot;%1&quot;).</translation>
    </message>
    <message>
        <source>Die Update-Quelle &quot;%1&quot; ist keine http-, https- oder Datei-Adresse.</source>
        <translation>The update source &quot;%1&quot; is not an http, https or file address.</translation>
    </message>
    <message>
        <source>Die Antwort von %1 ist größer als %2 KB und wird nicht gelesen.</source>
        <translation>The answer from %1 is larger than %2 KB and is not read.</translation>
    </message>
    <message>
        <source>%1 hat nicht innerhalb von %2 Sekunden geantwortet.</source>
        <translation>%1 did not answer within %2 seconds.</translation>
    </message>
    <message>
        <source>Der Update-Server %1 antwortete mit dem Status %2.</source>
        <translation>The update server %1 answered with status %2.</translation>
    </message>
    <message>
        <source>Der Update-Server %1 hat die Verbindung abgelehnt.</source>
        <translation>The update server %1 refused the connection.</translation>
    </message>
    <message>
        <source>Der Update-Server %1 wurde nicht gefunden. Besteht eine Internetverbindung?</source>
        <translation>The update server %1 was not found. Is there an internet connection?</translation>
    </message>
    <message>
        <source>Die Versionsdatei %1 ist nicht vorhanden oder nicht lesbar.</source>
        <translation>The version file %1 does not exist or cannot be read.</translation>
    </message>
    <message>
        <source>Der Update-Server %1 ist nicht erreichbar.</source>
        <translation>The update server %1 cannot be reached.</translation>
    </message>
</context>
<context>
    <name>KalUpdateTestCommand</name>
    <message>
        <source>Update Test</source>
        <translation>Update Test</translation>
    </message>
    <message>
        <source>Möchten Sie die Download-Seite öffnen?</source>
        <translation>Would you like to open the download page?</translation>
    </message>
    <message>
        <source>Die Download-Seite %1 konnte nicht geöffnet werden.</source>
        <translation>The download page %1 could not be opened.</translation>
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
        <translation>Your Qt installation does not support SQLite. Please contact the software manufacturer.</translation>
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
        <translation>The company

Trade: %1
First name: %2
Last name: %3
Company: %4
Street: %5
ZIP code: %6
City: %7
Telephone: %8
Fax: %9
Mobile: %10
Email: %11

was deleted in the site journal.
Should this company be deleted in Pellwick as well?
</translation>
    </message>
    <message>
        <source>Firma im Pellwick löschen</source>
        <translation>Delete company in Pellwick</translation>
    </message>
    <message>
        <source>Alle weiteren gelöschten Firmen genauso behandeln</source>
        <translation>Treat all further deleted companies the same way</translation>
    </message>
    <message>
        <source>Der Bericht %1 wurde im Bautagebuch gelöscht.
Sollen die Mängel dieses Berichts im Pellwick gelöscht werden?
</source>
        <translation>Report %1 was deleted in the site journal.
Should the defects of this report be deleted in Pellwick?
</translation>
    </message>
    <message>
        <source>Mängel im Pellwick löschen</source>
        <translation>Delete defects in Pellwick</translation>
    </message>
    <message>
        <source>Alle weiteren im Bautagebuch gelöschten Berichte genauso behandeln</source>
        <translation>Treat all further reports deleted in the site journal the same way</translation>
    </message>
    <message>
        <source>Der Mangel %1 wurde im Bautagebuch gelöscht.
Soll dieser Mangel im Pellwick ebenfalls gelöscht werden?
</source>
        <translation>Defect %1 was deleted in the site journal.
Should this defect be deleted in Pellwick as well?
</translation>
    </message>
    <message>
        <source>Mangel im Pellwick löschen</source>
        <translation>Delete defect in Pellwick</translation>
    </message>
    <message>
        <source>Alle weiteren im Bautagebuch gelöschten Mängel genauso behandeln</source>
        <translation>Treat all further defects deleted in the site journal the same way</translation>
    </message>
    <message>
        <source>Das Foto &quot;%1&quot; vom %2 wurde im Bautagebuch aus dem Mangel entfernt.
Soll dieses Foto im Pellwick ebenfalls entfernt werden?
</source>
        <translation>The photo &quot;%1&quot; of %2 was removed from the defect in the site journal.
Should this photo be removed in Pellwick as well?
</translation>
    </message>
    <message>
        <source>Foto im Pellwick entfernen</source>
        <translation>Remove photo in Pellwick</translation>
    </message>
    <message>
        <source>Alle weiteren im Bautagebuch gelöschten Fotos genauso behandeln</source>
        <translation>Treat all further photos deleted in the site journal the same way</translation>
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
        <translation>The company

Trade: %1
First name: %2
Last name: %3
Company: %4
Street: %5
ZIP code: %6
City: %7
Telephone: %8
Fax: %9
Mobile: %10
Email: %11

was deleted in Pellwick.
Should this company be imported again?
</translation>
    </message>
    <message>
        <source>Firma erneut importieren</source>
        <translation>Import company again</translation>
    </message>
    <message>
        <source>Der Mangel %1 wurde im Pellwick gelöscht.
Soll dieser Mangel erneut importiert werden?
</source>
        <translation>Defect %1 was deleted in Pellwick.
Should this defect be imported again?
</translation>
    </message>
    <message>
        <source>Mangel erneut importieren</source>
        <translation>Import defect again</translation>
    </message>
    <message>
        <source>Alle weiteren gelöschten Mängel genauso behandeln</source>
        <translation>Treat all further deleted defects the same way</translation>
    </message>
    <message>
        <source>Das Foto &quot;%1&quot; vom %2 wurde im Pellwick gelöscht.
Soll dieses Foto erneut importiert werden?
</source>
        <translation>The photo &quot;%1&quot; of %2 was deleted in Pellwick.
Should this photo be imported again?
</translation>
    </message>
    <message>
        <source>Foto erneut importieren</source>
        <translation>Import photo again</translation>
    </message>
    <message>
        <source>Alle weiteren gelöschten Fotos genauso behandeln</source>
        <translation>Treat all further deleted photos the same way</translation>
    </message>
    <message>
        <source>Datenimport aus dem Bautagebuch</source>
        <translation>Data import from the site journal</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Ohne Titel</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>&apos;Ohne Datum&apos;</source>
        <translation>&apos;No date&apos;</translation>
    </message>
</context>
<context>
    <name>KalDataImportResult</name>
    <message>
        <source>Firma</source>
        <translation>company</translation>
    </message>
    <message>
        <source>Firmen</source>
        <translation>companies</translation>
    </message>
    <message>
        <source>Mangel</source>
        <translation>defect</translation>
    </message>
    <message>
        <source>Mängel</source>
        <translation>defects</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>Die Daten wurden aktualisiert.</source>
        <translation>The data has been updated.</translation>
    </message>
    <message>
        <source>Es wurden %1 %2 und %3 %4 mit %5 %6 importiert.</source>
        <translation>%1 %2 and %3 %4 with %5 %6 were imported.</translation>
    </message>
    <message>
        <source>

Folgende Mängel wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden:

</source>
        <translation>

The following defects were not updated because they had already been changed in Pellwick:

</translation>
    </message>
    <message>
        <source>
Folgende Firmen wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden:

</source>
        <translation>
The following companies were not updated because they had already been changed in Pellwick:

</translation>
    </message>
    <message>
        <source>
1 Foto wurde nicht aktualisiert, da es bereits im Pellwick geändert wurde.
</source>
        <translation>
1 photo was not updated because it had already been changed in Pellwick.
</translation>
    </message>
    <message>
        <source>
%1 Fotos wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden.
</source>
        <translation>
%1 photos were not updated because they had already been changed in Pellwick.
</translation>
    </message>
    <message>
        <source>

Folgende Fotos konnten nicht übernommen werden:

</source>
        <translation>

The following photos could not be taken over:

</translation>
    </message>
</context>
<context>
    <name>KalSiteJournalDataImport</name>
    <message>
        <source>Datenbank wird aktualisiert ...</source>
        <translation>Updating the database ...</translation>
    </message>
    <message>
        <source>Datenimport aus dem Bautagebuch</source>
        <translation>Data import from the site journal</translation>
    </message>
    <message>
        <source>Es ist kein Projekt geöffnet.</source>
        <translation>No project is open.</translation>
    </message>
    <message>
        <source>Das Projekt ist schreibgeschützt; es kann nichts importiert werden.</source>
        <translation>The project is write-protected; nothing can be imported.</translation>
    </message>
    <message>
        <source>Datenimport aus Bautagebuch</source>
        <translation>Data import from site journal</translation>
    </message>
    <message>
        <source>Zu der Bautagebuchdatei existiert die Vorgängerdatei
%1
.Sollen die Daten dieser Vorgängerdatei ebenfalls importiert werden?
</source>
        <translation>The site journal file has the predecessor file
%1
.Should the data of this predecessor file be imported as well?
</translation>
    </message>
    <message>
        <source>Daten aus Vorgängerdatei importieren</source>
        <translation>Import data from predecessor file</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Die Vorgängerdatenbank konnte nicht geöffnet werden.
Es werden nur die Daten der Folgesatei importiert.

</source>
        <translation>The predecessor database could not be opened.
Only the data of the successor file will be imported.

</translation>
    </message>
    <message>
        <source>Bautagebuch Folgedatei gefunden</source>
        <translation>Site journal successor file found</translation>
    </message>
    <message>
        <source>Das Bautagebuch nennt die Folgedatei
%1
die nicht gefunden wurde.
Es werden nur die Daten dieser Datei importiert.</source>
        <translation>The site journal names the successor file
%1
which was not found.
Only the data of this file will be imported.</translation>
    </message>
    <message>
        <source>Die Folgedateien des Bautagebuchs verweisen im Kreis aufeinander:
%1
nennt wieder
%2
Es werden nur die Daten bis hierher importiert.</source>
        <translation>The successor files of the site journal refer to each other in a circle:
%1
names again
%2
Only the data up to here will be imported.</translation>
    </message>
    <message>
        <source>Für das mit dem Pellwick Projekt verknüpfte Bautagebuch wurde seit dem letzten Import eine Folgedatei angelegt.
Das Pellwick Projekt wird jetzt mit dieser Folgedatei verknüpft.
Im Anschluss werden die Daten der Folgedatei importiert.
Ein Import von Daten aus der Ursprungsdatei des Bautagebuchs ist dann nicht mehr möglich.</source>
        <translation>A successor file has been created for the site journal linked to the Pellwick project since the last import.
The Pellwick project will now be linked to this successor file.
Afterwards the data of the successor file will be imported.
Importing data from the original site journal file will then no longer be possible.</translation>
    </message>
    <message>
        <source>

Klicken Sie auf &apos;OK&apos;, um die importierten Daten zu speichern und im Anschluss die Folgedatei des Bautagebuchs zu importieren.</source>
        <translation>

Click &apos;OK&apos; to save the imported data and then import the successor file of the site journal.</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!</source>
        <translation>An error occurred while saving the project!</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Der Datenimport aus dem Bautagebuch ist fehlgeschlagen; das Projekt bleibt, wie es war.
%1</source>
        <translation>The data import from the site journal failed; the project stays as it was.
%1</translation>
    </message>
    <message>
        <source>Der Datenimport konnte nicht begonnen werden.</source>
        <translation>The data import could not be started.</translation>
    </message>
    <message>
        <source>Die importierten Daten konnten nicht gespeichert werden.</source>
        <translation>The imported data could not be stored.</translation>
    </message>
    <message>
        <source>Firmendaten werden importiert ...</source>
        <translation>Importing company data ...</translation>
    </message>
    <message>
        <source>Mängel werden importiert ...</source>
        <translation>Importing defects ...</translation>
    </message>
    <message>
        <source>Mangel %1: %2</source>
        <translation>Defect %1: %2</translation>
    </message>
    <message>
        <source>Mangel %1 von %2</source>
        <translation>Defect %1 of %2</translation>
    </message>
    <message>
        <source>Ohne Titel</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>&apos;Ohne Datum&apos;</source>
        <translation>&apos;No date&apos;</translation>
    </message>
    <message>
        <source>Foto &quot;%1&quot; vom %2: %3</source>
        <translation>Photo &quot;%1&quot; of %2: %3</translation>
    </message>
    <message>
        <source>Foto &quot;%1&quot;: %2</source>
        <translation>Photo &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>KalSiteJournalFile</name>
    <message>
        <source>Die Bautagebuch-Datei
%1
konnte nicht gelesen werden (%2):
%3</source>
        <translation>The site journal file
%1
could not be read (%2):
%3</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei %1 existiert nicht.</source>
        <translation>The site journal file %1 does not exist.</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei %1 konnte nicht geöffnet werden:
%2</source>
        <translation>The site journal file %1 could not be opened:
%2</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist keine Bautagebuch-Datei.</source>
        <translation>The file
%1
is not a site journal file.</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei %1 ist in einem Zustand gespeichert, in dem sie nicht gelesen werden kann, ohne sie zu verändern (WAL-Modus).
Öffnen und schließen Sie sie einmal im Bautagebuch-Programm und starten Sie den Import erneut.</source>
        <translation>The site journal file %1 is stored in a state in which it cannot be read without changing it (WAL mode).
Open and close it once in the site journal program and start the import again.</translation>
    </message>
    <message>
        <source>Neben der Bautagebuch-Datei %1 liegt eine nicht abgeschlossene Änderung (%2).
Öffnen und schließen Sie das Bautagebuch einmal im Bautagebuch-Programm und starten Sie den Import erneut.</source>
        <translation>Next to the site journal file %1 there is an unfinished change (%2).
Open and close the site journal once in the site journal program and start the import again.</translation>
    </message>
    <message>
        <source>Sperre</source>
        <translation>lock</translation>
    </message>
    <message>
        <source>Aufbau</source>
        <translation>structure</translation>
    </message>
    <message>
        <source>Tabelle &quot;%1&quot;</source>
        <translation>table &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Spalte &quot;%1&quot; der Tabelle &quot;%2&quot;</source>
        <translation>column &quot;%1&quot; of table &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Die Datei
%1
ist keine Bautagebuch-Datei oder hat einen unbekannten Aufbau.
Es fehlen: %2</source>
        <translation>The file
%1
is not a site journal file or has an unknown structure.
Missing: %2</translation>
    </message>
    <message>
        <source>Das Bild fehlt im Bautagebuch.</source>
        <translation>The picture is missing from the site journal.</translation>
    </message>
</context>
<context>
    <name>KalSiteJournalLockMarker</name>
    <message>
        <source>Bautagebuch geöffnet</source>
        <translation>Site journal open</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei ist im Bautagebuch-Programm zur Bearbeitung geöffnet.
Speichern Sie Ihre Änderungen im Bautagebuch-Programm, bevor Sie fortfahren.
Während des Import-Vorgangs ist kein Speichern des Bautagebuchs möglich!</source>
        <translation>The site journal file is open for editing in the site journal program.
Save your changes in the site journal program before you continue.
The site journal cannot be saved during the import!</translation>
    </message>
    <message>
        <source>Fortfahren</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Import abbrechen</source>
        <translation>Cancel import</translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation>Database error</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist von
User: %1
Computer: %2.</source>
        <translation>The site journal file could not be opened because it is being edited by
User: %1
Computer: %2.</translation>
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
All defects and companies will be imported from the site journal %1.

If you want the site journal to be imported automatically every time the project is opened,
tick the box below.

</translation>
    </message>
    <message>
        <source>Importieren</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Datenimport aus Bautagebuch</source>
        <translation>Data import from site journal</translation>
    </message>
    <message>
        <source>Automatischer Import neuer Mängel und Firmen beim Öffnen des Projekts</source>
        <translation>Automatically import new defects and companies when the project is opened</translation>
    </message>
    <message>
        <source>Zusätzlich auch bereits importierte Daten aktualisieren</source>
        <translation>Also update data imported before</translation>
    </message>
</context>
<context>
    <name>KalImportFromAppDialog</name>
    <message>
        <source>&lt;h3&gt;Mängel mit der Quellor App erfassen&lt;/h3&gt;&lt;p&gt;Mit der Quellor App erfassen Sie Mängel direkt auf der Baustelle: Beschreibung, Raum, Firma und Frist, dazu Fotos mit der Kamera Ihres Smartphones oder Tablets.&lt;/p&gt;&lt;p&gt;Exportieren Sie die erfassten Daten in der App und übertragen Sie die Export-Datei (*.sjd) auf diesen Computer, zum Beispiel per USB-Kabel, E-Mail oder über einen Cloud-Speicher.&lt;/p&gt;&lt;p&gt;Klicken Sie dann auf &lt;b&gt;Datei importieren&lt;/b&gt; und wählen Sie die Export-Datei aus. Neue Mängel, ihre Fotos und die Firmen werden in das Projekt übernommen; Mängel, die Sie hier bereits geändert haben, werden nicht überschrieben.&lt;/p&gt;&lt;p&gt;Die Verknüpfung des Projekts mit einem Bautagebuch bleibt dabei unverändert.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Recording defects with the Quellor App&lt;/h3&gt;&lt;p&gt;With the Quellor App you record defects right on the building site: description, room, company and deadline, together with photos taken with the camera of your smartphone or tablet.&lt;/p&gt;&lt;p&gt;Export the recorded data in the app and transfer the export file (*.sjd) to this computer, for example by USB cable, e-mail or cloud storage.&lt;/p&gt;&lt;p&gt;Then click &lt;b&gt;Import file&lt;/b&gt; and choose the export file. New defects, their photos and the companies are taken over into the project; defects you have already changed here are not overwritten.&lt;/p&gt;&lt;p&gt;The project&apos;s link to a site journal stays as it is.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Export-Datei der Quellor App auswählen</source>
        <translation>Choose the Quellor App export file</translation>
    </message>
    <message>
        <source>Export-Dateien der Quellor App (*.sjd)</source>
        <translation>Quellor App export files (*.sjd)</translation>
    </message>
    <message>
        <source>Import aus der Quellor App</source>
        <translation>Import from the Quellor App</translation>
    </message>
    <message>
        <source>Datei importieren</source>
        <translation>Import file</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
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
A conflict arose during the import for the following site-journal defect.
The defect could not be matched to any defect in Pellwick.
You can
- import the site-journal defect as a new defect or
- assign the site-journal defect to an existing defect in Pellwick,
 to update that one.

</translation>
    </message>
    <message>
        <source>Mangel</source>
        <translation>Defect</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Bericht:</source>
        <translation>Report:</translation>
    </message>
    <message>
        <source>
Beschreibung:
</source>
        <translation>
Description:
</translation>
    </message>
    <message>
        <source>
Raumname:</source>
        <translation>
Room name:</translation>
    </message>
    <message>
        <source>
Raumbuch-Nr.:</source>
        <translation>
Room book no.:</translation>
    </message>
    <message>
        <source>
Firma:</source>
        <translation>
Company:</translation>
    </message>
    <message>
        <source>
Frist:</source>
        <translation>
Deadline:</translation>
    </message>
    <message>
        <source>
Anzahl Fotos:</source>
        <translation>
Number of photos:</translation>
    </message>
    <message>
        <source> - mit Minderung</source>
        <translation> - with price reduction</translation>
    </message>
    <message>
        <source>Beschreibung:
</source>
        <translation>Description:
</translation>
    </message>
    <message>
        <source>
Typ:</source>
        <translation>
Type:</translation>
    </message>
    <message>
        <source>
Autor:</source>
        <translation>
Author:</translation>
    </message>
    <message>
        <source>
Erfasst am:</source>
        <translation>
Recorded on:</translation>
    </message>
    <message>
        <source>
Plan:</source>
        <translation>
Plan:</translation>
    </message>
    <message>
        <source>
Beseitigungsanweisung:
</source>
        <translation>
Correction instruction:
</translation>
    </message>
    <message>
        <source>
Priorität:</source>
        <translation>
Priority:</translation>
    </message>
    <message>
        <source>
1.Nachfrist:</source>
        <translation>
1st extension:</translation>
    </message>
    <message>
        <source>
2.Nachfrist:</source>
        <translation>
2nd extension:</translation>
    </message>
    <message>
        <source>
Status:</source>
        <translation>
Status:</translation>
    </message>
    <message>
        <source>Neuer Mangel</source>
        <translation>New defect</translation>
    </message>
    <message>
        <source>Sie haben einen Mangel ausgewählt.
Soll der Bautagebuch-Mangel trotzdem als ein neuer Mangel importiert werden?</source>
        <translation>You have selected a defect.
Import the site-journal defect as a new defect anyway?</translation>
    </message>
    <message>
        <source>Als neuen Mangel importieren</source>
        <translation>Import as new defect</translation>
    </message>
    <message>
        <source>Mangel zuweisen</source>
        <translation>Assign defect</translation>
    </message>
    <message>
        <source>Sie haben keinen Mangel ausgewählt.</source>
        <translation>You have not selected a defect.</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Zuordnen eines Mangels</source>
        <translation>Assigning a defect</translation>
    </message>
    <message>
        <source>Mangel im Bautagebuch</source>
        <translation>Defect in the site journal</translation>
    </message>
    <message>
        <source>Mängel im Pellwick</source>
        <translation>Defects in Pellwick</translation>
    </message>
    <message>
        <source>Dem ausgewählten Mangel zuweisen</source>
        <translation>Assign to the selected defect</translation>
    </message>
</context>
<context>
    <name>KalSiteJournalImportCommands</name>
    <message>
        <source>Datenimport aus Bautagebuch</source>
        <translation>Data import from site journal</translation>
    </message>
    <message>
        <source>Mängel und Firmen aus dem Bautagebuch aktualisieren</source>
        <translation>Update defects and companies from the site journal</translation>
    </message>
    <message>
        <source>Das Projekt wurde noch nicht gespeichert.
Sie müssen das Projekt vor dem Import speichern.</source>
        <translation>The project has not been saved yet.
You must save the project before the import.</translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation>Save project</translation>
    </message>
    <message>
        <source>Pellwick Projekt (*.pwp)</source>
        <translation>Pellwick project (*.pwp)</translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation>New project</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!</source>
        <translation>An error occurred while saving the project!</translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert.
Vor dem Datenimport werden die Änderungen gespeichert.
</source>
        <translation>The project has been changed.
The changes will be saved before the data import.
</translation>
    </message>
    <message>
        <source>Speichern und Starten des Imports</source>
        <translation>Save and start the import</translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!
Der Import konnte nicht durchgeführt werden.
</source>
        <translation>An error occurred while saving the project!
The import could not be carried out.
</translation>
    </message>
    <message>
        <source>Zu diesem Projekt ist kein zugehöriges Bautagebuch gespeichert.
Bitte wählen Sie im folgenden Dateidialog das Bautagebuch aus.
</source>
        <translation>No site journal is stored for this project.
Please choose the site journal in the following file dialog.
</translation>
    </message>
    <message>
        <source>Die Bautagebuch-Datei %1 existiert nicht.
Bitte wählen Sie im folgenden Dateidialog das Bautagebuch aus.
</source>
        <translation>The site journal file %1 does not exist.
Please choose the site journal in the following file dialog.
</translation>
    </message>
    <message>
        <source>Zum Projekt gehöriges Bautagebuch auswählen</source>
        <translation>Choose the site journal belonging to the project</translation>
    </message>
    <message>
        <source>Bautagebücher (*.sjd)</source>
        <translation>Site journals (*.sjd)</translation>
    </message>
    <message>
        <source>Der Datenimport wurde abgebrochen.
Das Projekt wurde nicht verändert.</source>
        <translation>The data import was canceled.
The project was not changed.</translation>
    </message>
    <message>
        <source>Der Datenimport wurde abgebrochen.
Die Daten der zuletzt gelesenen Datei wurden nicht übernommen.

</source>
        <translation>The data import was canceled.
The data of the file read last were not taken over.

</translation>
    </message>
    <message>
        <source>Jetzt speichern</source>
        <translation>Save now</translation>
    </message>
    <message>
        <source>Später speichern</source>
        <translation>Save later</translation>
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
Defects and companies are updated from the site journal:

- new defects / companies are taken over into Pellwick
- changes to defects / companies are taken over into Pellwick, 
  if the record concerned was not changed in Pellwick
- defects / companies deleted in the site journal can be deleted in Pellwick
- defects / companies deleted in Pellwick can be imported again
</translation>
    </message>
    <message>
        <source>Mängel und Firmen aktualisieren</source>
        <translation>Update defects and companies</translation>
    </message>
    <message>
        <source>Nur neue Mängel und Firmen importieren</source>
        <translation>Import new defects and companies only</translation>
    </message>
    <message>
        <source>Das Projekt ist mit dem Bautagebuch
%1
verknüpft.

Das Bautagebuch-Programm hat das Bautagebuch
%2
übergeben.

Soll das Projekt jetzt mit diesem Bautagebuch verknüpft und dessen Daten importiert werden?</source>
        <translation>The project is linked to the site journal
%1

The site journal program handed over the site journal
%2

Link the project to this site journal now and import its data?</translation>
    </message>
    <message>
        <source>Neu verknüpfen und importieren</source>
        <translation>Link anew and import</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Der automatische Import aus dem Bautagebuch wurde übersprungen:
Die Bautagebuch-Datei %1 existiert nicht.</source>
        <translation>The automatic import from the site journal was skipped:
The site journal file %1 does not exist.</translation>
    </message>
</context>
</TS>
