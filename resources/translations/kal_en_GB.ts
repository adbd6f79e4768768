<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>DefaultStatus</name>
    <message>
        <source>Offen, zu beseitigen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offen, in Arbeit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offen, unzureichend beseitigt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offen, streitig</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erledigt, komplett beseitigt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erledigt, teilweise beseitigt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erledigt, bleibt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erledigt, streitig abgelehnt</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalCommandLine</name>
    <message>
        <source>
ungültiger connect Mode: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Parameter Pellwick-Datei fehlt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Die Pellwick-Datei existiert nicht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Parameter Bautagebuch-Datei fehlt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Die Bautagebuch-Datei %1 existiert nicht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die vom Bautagebuch Programm übergebenen Parameter sind fehlerhaft:

</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalCompleter</name>
    <message>
        <source>Autotexte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der Texte, die bisher in dieses Feld eingetragen wurden.

Für dieses Feld sind noch keine Texte gespeichert oder die Funktion ist ausgeschaltet. Jeder Text, den Sie hier eingeben, wird in die Liste aufgenommen und beim nächsten Mal vorgeschlagen.
Mit „Autotexte bearbeiten“ können Sie die Listen aller Felder ändern und die Funktion für einzelne Felder ein- oder ausschalten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Autotexte bearbeiten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalCompleterDialog</name>
    <message>
        <source>Autovervollständigen bearbeiten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eintrag hinzufügen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alles löschen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;Neuer Eintrag&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Completer zurücksetzen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Completer werden auf den Auslieferungszustand zurückgesetzt.
Alle eingegebenen Textvorschläge werden dabei gelöscht!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Änderungen verwerfen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sollen die Änderungen verworfen werden?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalCompleterLineEdit</name>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der 
Texte, die bisher in dieses Feld eingetragen wurden.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalCompleterModel</name>
    <message>
        <source>Feld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aktiv</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalCompleterStore</name>
    <message>
        <source>Mängel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Typ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Autor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raumbuch-Nr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beseitigungsanweisung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priorität</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plan-Name oder Nummer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mangel vor Abnahme (§ 4 Nr. 7 VOB/B)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gewährleistungsmangel (§ 13 Abs. 5 Nr. 1 VOB/B)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mangelfolgeschaden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mangel im Bestand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Büro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Küche</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Treppenhaus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zimmer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UG-001</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EG-001</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OG-001</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DG-001</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hoch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Niedrig</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalCompleterTextEdit</name>
    <message>
        <source>Diese Funktion erlaubt das automatische Einfügen der 
Texte, die bisher in dieses Feld eingetragen wurden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zum Wörterbuch hinzufügen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rechtschreibung prüfen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalDatabaseSchema</name>
    <message>
        <source>interner Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbank-Initialisierung fehlgeschlagen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quellor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pellwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>www.quellor.de</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalDateEdit</name>
    <message>
        <source>Datum auswählen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format-Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das eingegebene Datum ist nicht korrekt.
Bitte verwenden Sie das Format %1!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalItemDelegate</name>
    <message>
        <source>Format-Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das eingegebene Datum ist nicht korrekt.
Bitte verwenden Sie das Format %1!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalLanguageDialog</name>
    <message>
        <source>Sprachauswahl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprache wählen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spanisch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Englisch (Großbritannien)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Englisch (USA)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die gewählte Sprache wird nach einem Neustart der Anwendung aktiviert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprache wurde geändert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soll das Programm jetzt neu gestartet werden?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Die neue Spracheinstellung erfordert einen Programm-Neustart)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jetzt neu starten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Später neu starten</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalMainWindow</name>
    <message>
        <source>Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neues Projekt anlegen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speichern unter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projekt unter einem neuen Namen speichern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbank bereinigen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mangel hinzufügen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>neue Mängel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planverwaltung öffnen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statusverwaltung öffnen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projektdaten bearbeiten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmenliste bearbeiten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmendaten Ausgabeformat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logo hinzufügen / bearbeiten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mängelliste kompakt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mängelliste detailliert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Druckvorschau</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mängel und Firmen aus einem Bautagebuch importieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mängel und Firmen aus dem Bautagebuch aktualisieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatischen Import neuer Mängel und Firmen einschalten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mängel und Firmen aus der Quellor App importieren
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importiert Mängel aus der Quellor App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import von Firmen aus anderer Pellwick-Datei</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import von Firmen aus Quellor Bautagebuch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import von Firmen aus externer Adress-Datei</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprache wählen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texte ändern - Eingabe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plangröße</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fotogröße</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standardmarker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mängeltexte im Plan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wie übernehme ich Mängel und
Firmen aus einem Bautagebuch?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wie übernehme ich Mängel und Firmen
von einem Mobilgerät?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info über Pellwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auf Updates prüfen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datei</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorherige Dateien...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stammdaten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenimport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hilfe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbolleiste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Spalten anzeigen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An Fenstergröße anpassen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hinweise zum Zoomen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neues Pellwick-Projekt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pellwick-Projekt - %0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projekt:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatischen Import neuer Mängel und Firmen ausschalten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatischen Import und Aktualisierung vorhandener Mängel und Firmen ausschalten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hilfetexte ausschalten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hilfetexte einschalten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Öffnet die Datei %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spalten ausblenden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dieser Mangel ist in keinem Plan verortet.
Mit einem Doppelklick in dieses Fenster können Sie dem Mangel einen Plan zuordnen.
Mit einem Doppelklick auf einen Mangel können Sie diesen Mangel bearbeiten.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mit dem Mausrad vergrößern und verkleinern Sie den Plan.
Mit gedrückter linker Maustaste verschieben Sie den Ausschnitt.
&quot;An Fenstergröße anpassen&quot; zeigt den ganzen Plan.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plan des gewählten Mangels.
Mausrad: vergrößern und verkleinern.
Doppelklick: Plan zuordnen oder im Plan verorten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Liste der Mängel des Projekts.
Doppelklick auf einen Mangel: bearbeiten.
Klick auf eine Spaltenüberschrift: sortieren.
Die Knöpfe oben links fügen Mängel hinzu, kopieren oder löschen sie.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pellwick Projekt (*.pwp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Projekt kann nicht gespeichert werden, da die Datei
%1
schreibgeschützt ist.

Möchten Sie die Änderungen in einer neuen Datei speichern?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projekt geändert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert. Möchten Sie die Änderungen speichern?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert.
Die Datei 
%1
ist jedoch schreibgeschützt.

Möchten Sie die Änderungen in einer neuen Datei speichern?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datei speichern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beim Schließen des Projekts ist ein Fehler aufgetreten!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beim Öffnen des gewählten Projekts ist ein Fehler aufgetreten!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verringern der Datenbankgröße durch Bereinigung der Datenbank

Beim Löschen von Daten wird die Datenbank-Datei fragmentiert: Der frei gewordene Platz bleibt in der Datei erhalten. Die Bereinigung ordnet die Daten der Tabellen zusammenhängend an und organisiert die Datei neu.

Dadurch kann die Datei erheblich kleiner werden, vor allem nachdem Fotos gelöscht wurden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Projekt wurde noch nicht gespeichert.
Sie müssen das Projekt vor der Bereinigung der Datenbank speichern.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!
Die Datenbank konnte nicht bereinigt werden.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Projekt wurde geändert.
Vor dem Bereinigen der Datenbank werden die Änderungen gespeichert.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speichern und Bereinigen der Datenbank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalMessageBoxPrompt</name>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalProgressDialog</name>
    <message>
        <source>Bitte warten...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalProject</name>
    <message>
        <source>Dateifehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Löschen der Datei
%1
 fehlgeschlagen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbankfehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unbekannt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist von
User: %1
Computer: %2
seit dem %3 %4 Uhr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbank in Bearbeitung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datei öffnen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die letzte Bearbeitung der Mängel-Datei wurde nicht ordnungsgemäß abgeschlossen.
Der letzte Bearbeitungsstand wird geöffnet. Speichern Sie die Datei, wenn Sie diesen Stand behalten wollen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei
%1
existiert nicht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden, da sie mit einer neueren Programmversion erstellt wurde.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabelle KAL fehlt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die interne Struktur der Mängel-Datenbank ist beschädigt.
Wenn Sie mit dieser Datenbank weiterarbeiten, drohen Datenverluste!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beschädigte Datenbank-Datei</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup wiederherstellen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beschädigte Datei öffnen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das neueste unbeschädigte Backup stammt vom %1.
Soll dieses Backup wiederhergestellt werden (empfohlen)?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Es existieren keine Backup-Dateien. Wenn sie über Sicherungskopien dieser Datei verfügen, stellen Sie diese wieder her.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Backup-Dateien sind ebenfalls beschädigt. Wenn sie über Sicherungskopien dieser Datei verfügen, stellen Sie diese wieder her.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei konnte nicht wiederhegestellt werden.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei wurde erfolgreich wiederhergestellt und wird jetzt geöffnet.
Die beschädigte Datei wurde umbenannt in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speicherplatz nicht ausreichend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auf dem Laufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um das Projekt zu öffnen.
Geben Sie mindestens %2 MB Speicherplatz frei und versuchen Sie es erneut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speicherplatz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sie sollten auf dem Laufwerk %1 Speicherplatz freigeben, da es sonst zu Problemen beim Speichern des Projekts kommen kann.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projekt wird geöffnet...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Working Copy Datei konnte nicht erstellt werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datei-Warnung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sie haben keine Schreibrechte für die Datei %1.
Wenn Sie die Datei speichern wollen, können Sie dies nur unter einem anderen Namen oder in einen anderen Ordner.
Wählen Sie hierzu im Menü &apos;Datei&apos; den Menüpunkt &apos;Speichern unter&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei %1 konnte nicht in %2 umbenannt werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Backup-Datei %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speicher-Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sie können die Datei %1 nicht speichern, da sie keine Schreibrechte besitzen.
Wählen Sie im Menü &apos;Datei&apos; den Menüpunkt &apos;Speichern unter&apos;,
um die Datei unter einem anderen Namen oder in einen anderen Ordner zu speichern.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projekt wird gespeichert...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>interner Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dateiname fehlt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auf dem Ziellaufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um das Projekt zu speichern.
Geben Sie mindestens %2 MB Speicherplatz frei und versuchen Sie es erneut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Löschen der Backup-Datei
%1
 fehlgeschlagen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kopieren der Datei
%1
 fehlgeschlagen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Umbenennen der Backup-Datei
%1
 fehlgeschlagen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei
%1
konnte nicht gelöscht werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Working Copy Datei.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbank bereinigen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank wird jetzt bereinigt.
Dieser Vorgang kann für größere Datenbanken mehrere Minuten dauern.

Unterbrechen Sie diesen Vorgang nicht und schalten Sie den Computer nicht aus.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aufgrund eines SQL-Fehlers konnte die Datenbank nicht bereinigt werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beim Speichern des Projekts ist ein Fehler aufgetreten!
Die Datenbank konnte nicht bereinigt werden.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank wurde erfolgreich bereinigt.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank wurde erfolgreich bereinigt.
Die Dateigröße wurde von %1 auf %2 reduziert.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalPrompt</name>
    <message>
        <source>Ja</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalShortHelpDialog</name>
    <message>
        <source>Schließen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anleitung für den Datenimport aus einem Bautagebuch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anleitung für den Datenimport von einem Mobilgerät</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Datenimport aus dem Bautagebuch für PC und Mac&lt;/h3&gt;&lt;p&gt;Das Bautagebuch ist die Datenquelle: Mängel, die Sie dort in Ihren Berichten erfassen, werden mit ihren Mängelfotos und den beteiligten Firmen in das Pellwick-Projekt übernommen.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Öffnen oder erstellen Sie das Pellwick-Projekt für die Baustelle.&lt;/li&gt;&lt;li&gt;Wählen Sie im Menü &quot;Datenimport&quot; den Eintrag &quot;Mängel und Firmen aus einem Bautagebuch importieren&quot; und wählen Sie die Bautagebuch-Datei (*.sjd) aus.&lt;/li&gt;&lt;li&gt;Das Projekt bleibt mit dem Bautagebuch verbunden: Später übernehmen Sie neue und geänderte Mängel mit &quot;Mängel und Firmen aus dem Bautagebuch aktualisieren&quot; oder automatisch.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Mängel, die Sie im Pellwick-Projekt bearbeitet haben, werden beim Aktualisieren nicht überschrieben.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Datenimport von einem Mobilgerät&lt;/h3&gt;&lt;p&gt;Mängel, Mängelfotos und Firmen können Sie auf der Baustelle mit der Quellor App auf einem Smartphone oder Tablet erfassen und anschließend in das Pellwick-Projekt importieren.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Übertragen Sie die Datenbank der App auf Ihren Computer.&lt;/li&gt;&lt;li&gt;Wählen Sie im Menü &quot;Datenimport&quot; den Eintrag &quot;Mängel und Firmen aus der Quellor App importieren&quot; und wählen Sie die übertragene Datei aus.&lt;/li&gt;&lt;li&gt;Die Mängel werden mit ihren Fotos und Firmen in das geöffnete Projekt übernommen.&lt;/li&gt;&lt;/ol&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalSpellChecker</name>
    <message>
        <source>Wörterbuch-Datei %1 existiert nicht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speicherfehler beim Anlegen des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den Softwarehersteller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fehler beim Initialisieren des Moduls Rechtschreibprüfung. Bitte kontaktieren Sie den Softwarehersteller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dateifehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anwender-Wörterbuch in %1 konnte nicht geöffnet werden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anwender-Wörterbuch in %1 konnte nicht geöffnet werden.
(Evtl. fehlende Schreibrechte)
Hinzufügen des Wortes nicht möglich!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordner %1 
zum Speichern der Wörterbücher konnte nicht angelegt werden!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Modul Rechtschreibprüfung ist nicht geladen!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rechtschreibprüfung aus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rechtschreibprüfung ein</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalSpellCheckerDialog</name>
    <message>
        <source>Rechtschreibprüfung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nicht im Wörterbuch:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ersetzen durch:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorschläge:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignorieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle ignorieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ändern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle ändern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zum Wörterbuch hinzufügen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Modul Rechtschreibprüfung ist nicht geladen!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Rechtschreibprüfung konnte keinen Fehler finden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Rechtschreibprüfung ist beendet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalSqlError</name>
    <message>
        <source>Datenbankfehler</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalSqlTableModel</name>
    <message>
        <source>Nr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Typ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Autor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erfasst am</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raumbuch-Nr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beseitigungsanweisung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priorität</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Nachfrist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2. Nachfrist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minderung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Farbe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plan-Name oder Nummer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gewerk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vorname</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nachname</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Straße</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLZ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stadt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telefon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mobil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adressenliste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - mit Minderung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standardstatus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Benutzerstatus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mängel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pläne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail-Addresslisten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail-Addressen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalStartup</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mängelmanagement für Bauprojekte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sie verwenden eine Bildschirm-Skalierung von %1%. Dies kann es zu Problemen bei der Darstellung des Pellwicks führen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>

Wenn Schriften oder Symbole abgeschnitten oder unscharf dargestellt werden, stellen Sie die Skalierung für Pellwick auf 100 % zurück:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 1. Öffnen Sie die Systemsteuerung.
 2. Wählen Sie &quot;Darstellung und Anpassung&quot; und dann &quot;Anzeige&quot;.
 3. Wählen Sie &quot;Kleiner - 100 %&quot; und bestätigen Sie mit &quot;Übernehmen&quot;.
 4. Melden Sie sich ab und wieder an.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Rechtsklick auf das Pellwick-Desktop-Icon.
2. Wählen Sie &quot;Eigenschaften&quot; und dann die Registerkarte &quot;Kompatibilität&quot;.
3. Klicken Sie auf &quot;Hohe DPI-Einstellungen ändern&quot; und aktivieren Sie &quot;Verhalten bei hoher DPI-Skalierung überschreiben&quot; mit &quot;Anwendung&quot;.
4. Bestätigen Sie mit &quot;OK&quot; und starten Sie Pellwick neu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Öffnen Sie die Bildschirm-Einstellungen Ihrer Arbeitsumgebung.
2. Stellen Sie die Skalierung bzw. die Schriftauflösung auf 100 % (96 DPI).
3. Melden Sie sich ab und wieder an und starten Sie Pellwick neu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bildschirm-Skalierung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diese Meldung nicht mehr anzeigen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenimport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Projekt wurde mit dem Bautagebuch
%1
verknüpft.

Der Import von Mängeln und Firmen aus dem Bautagebuch ist in dieser Programmversion noch nicht verfügbar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hilfe zum Datenimport

Pellwick arbeitet eigenständig (standalone): Sie erfassen Mängel, Fotos, Pläne und Firmen direkt im Pellwick-Projekt.

Pellwick arbeitet auch mit dem Quellor Bautagebuch zusammen: Das Bautagebuch ist dann die Datenquelle, aus der Mängel, Mängelfotos und Firmen in das Pellwick-Projekt übernommen werden.

Anleitungen dazu finden Sie im Menü &quot;Hilfe&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hilfe zum Datenimport</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KalTableView</name>
    <message>
        <source>Neue Zeile hinzufügen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gewählte Zeilen entfernen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gewählte Zeilen kopieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Doppelklick für neue Zeile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status löschen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, verlieren diese Mängel ihren Status!
Soll der gewählte Status tatsächlich gelöscht werden?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eintrag entfernen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soll der gewählte Eintrag tatsächlich entfernt werden?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Fehler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ihre QT-Installation unterstützt SQLITE nicht. Bitte kontaktieren Sie den Softwarehersteller.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
