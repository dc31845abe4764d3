<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>NotiBox</name>
    <message>
        <source>Notification</source>
        <translation>Benachrichtigung</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>OrvBaseLayoutWidget</name>
    <message>
        <source>Planning</source>
        <translation>Planung</translation>
    </message>
    <message>
        <source>Execution</source>
        <translation>Durchführung</translation>
    </message>
    <message>
        <source>After Action</source>
        <translation>Nachbereitung</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Spezial</translation>
    </message>
    <message>
        <source>Debug functions</source>
        <translation>Debug-Funktionen</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Aktuelle Zeit</translation>
    </message>
    <message>
        <source>Exercise time</source>
        <translation>Übungszeit</translation>
    </message>
</context>
<context>
    <name>OrvDateTimeEdit</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
</context>
<context>
    <name>OrvDialog</name>
    <message>
        <source>&lt;br&gt;Apply - apply changes and close.&lt;br&gt;Discard - discard changes and close.&lt;br&gt;Cancel - do not close.</source>
        <translation>&lt;br&gt;Übernehmen - Änderungen übernehmen und schließen.&lt;br&gt;Verwerfen - Änderungen verwerfen und schließen.&lt;br&gt;Abbrechen - nicht schließen.</translation>
    </message>
    <message>
        <source>Unapplied changes made. Apply the changes?</source>
        <translation>Es gibt nicht übernommene Änderungen. Änderungen übernehmen?</translation>
    </message>
</context>
<context>
    <name>OrvDialogButtonBox</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Center Map</source>
        <translation>Karte zentrieren</translation>
    </message>
    <message>
        <source>Zoom to</source>
        <translation>Zoomen auf</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
</context>
<context>
    <name>OrvInfoDialog</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Exercise Control Suite&lt;/h2&gt;</source>
        <translation>&lt;h2&gt;Übungssteuerung&lt;/h2&gt;</translation>
    </message>
    <message>
        <source>User interface library by the OrvWidgets developers</source>
        <translation>Bedienoberflächen-Bibliothek der OrvWidgets-Entwickler</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>OrvMessageDialogHelper</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>OrvOperatorMenu</name>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Operator settings</source>
        <translation>Bedienereinstellungen</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Swap screens</source>
        <translation>Bildschirme tauschen</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>OrvOverlayLoading</name>
    <message>
        <source>Loading ...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Shift+C</source>
        <translation>Shift+A</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvAngleEdit</name>
    <message>
        <source>Degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Mil</source>
        <translation>Strich</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radiant</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvBaseLayoutWidget</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy in milliseconds</source>
        <translation>In Millisekunden kopieren</translation>
    </message>
    <message>
        <source>no exercise</source>
        <translation>keine Übung</translation>
    </message>
    <message>
        <source>Exercise name</source>
        <translation>Übungsname</translation>
    </message>
    <message>
        <source>
Partition Id:</source>
        <translation>
Partitions-ID:</translation>
    </message>
    <message>
        <source>
Description:</source>
        <translation>
Beschreibung:</translation>
    </message>
    <message>
        <source>no phase</source>
        <translation>keine Phase</translation>
    </message>
    <message>
        <source>Exercise phase</source>
        <translation>Übungsphase</translation>
    </message>
    <message>
        <source>no status</source>
        <translation>kein Status</translation>
    </message>
    <message>
        <source>Operator Name: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Bediener: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>There are dialogs with unsaved changes.&lt;br&gt;Please save or discard their changes before closing</source>
        <translation>Es gibt Dialoge mit ungespeicherten Änderungen.&lt;br&gt;Bitte speichern oder verwerfen Sie die Änderungen vor dem Schließen</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Discard All</source>
        <translation>Alle verwerfen</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvComboBox</name>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvDialog</name>
    <message>
        <source>There are elements that have invalid or no value.&lt;br&gt;Please change values in the elements which are marked with red text.</source>
        <translation>Es gibt Elemente mit ungültigem oder fehlendem Wert.&lt;br&gt;Bitte ändern Sie die Werte in den rot markierten Elementen.</translation>
    </message>
    <message>
        <source>Operation not complete</source>
        <translation>Vorgang nicht abgeschlossen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Locked by: %1</source>
        <translation>Gesperrt von: %1</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvDialogButtonBox</name>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected entry(ies)?</source>
        <translation>Möchten Sie den/die ausgewählten Eintrag/Einträge wirklich löschen?</translation>
    </message>
    <message>
        <source>Remove selected entry(ies)</source>
        <translation>Ausgewählte(n) Eintrag/Einträge entfernen</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvMultiRangeSpinBox</name>
    <message>
        <source>%1-%2%3</source>
        <translation>%1-%2%3</translation>
    </message>
    <message>
        <source>Ranges:
%1</source>
        <translation>Bereiche:
%1</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvNotificationBox</name>
    <message>
        <source>Notification</source>
        <translation>Benachrichtigung</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvOperatorMenu</name>
    <message>
        <source>Host: %1</source>
        <translation>Rechner: %1</translation>
    </message>
    <message>
        <source>Workspace: &gt;&gt;&gt;%1&lt;&lt;&lt;</source>
        <translation>Arbeitsplatz: &gt;&gt;&gt;%1&lt;&lt;&lt;</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvProgressDialogHelper</name>
    <message>
        <source>Waiting for server reply...</source>
        <translation>Warte auf Antwort des Servers...</translation>
    </message>
    <message>
        <source>Operation was successful</source>
        <translation>Vorgang erfolgreich</translation>
    </message>
    <message>
        <source>Operation has failed!
Reason: &apos;%1&apos;</source>
        <translation>Vorgang fehlgeschlagen!
Grund: &apos;%1&apos;</translation>
    </message>
    <message>
        <source>Operation has timed out and could not be processed! Please try again later</source>
        <translation>Zeitüberschreitung, der Vorgang konnte nicht ausgeführt werden! Bitte später erneut versuchen</translation>
    </message>
    <message>
        <source>Unknown result (%1)!</source>
        <translation>Unbekanntes Ergebnis (%1)!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvSelectionPopup</name>
    <message>
        <source>Search…</source>
        <translation>Suchen…</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Auswahl</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvTabBar</name>
    <message>
        <source>Save as image</source>
        <translation>Als Bild speichern</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvTabWidget</name>
    <message>
        <source>DEBUG: WindowName: %1</source>
        <translation>DEBUG: Fenstername: %1</translation>
    </message>
    <message>
        <source>Locked by: %1</source>
        <translation>Gesperrt von: %1</translation>
    </message>
    <message>
        <source>There are dialogs with unsaved changes.&lt;br&gt;Please save or discard their changes before closing.</source>
        <translation>Es gibt Dialoge mit ungespeicherten Änderungen.&lt;br&gt;Bitte speichern oder verwerfen Sie die Änderungen vor dem Schließen.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Discard All</source>
        <translation>Alle verwerfen</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvTextEditDialog</name>
    <message>
        <source>Edit Text</source>
        <translation>Text bearbeiten</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvTextEditor</name>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>The text can have at most %n characters.</source>
        <translation>
            <numerusform>Der Text darf höchstens %n Zeichen lang sein.</numerusform>
            <numerusform>Der Text darf höchstens %n Zeichen lang sein.</numerusform>
        </translation>
    </message>
    <message>
        <source>Characters used</source>
        <translation>Verwendete Zeichen</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvTextEditor2</name>
    <message>
        <source>Text Colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Background Colour</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>B</source>
        <translation>F</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>I</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>Strike Through</source>
        <translation>Durchgestrichen</translation>
    </message>
    <message>
        <source>S</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Larger Font</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Smaller Font</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>Linksbündig</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>C</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>Rechtsbündig</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>J</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Bullet List</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>•</source>
        <translation>•</translation>
    </message>
    <message>
        <source>Numbered List</source>
        <translation>Nummerierte Liste</translation>
    </message>
    <message>
        <source>1.</source>
        <translation>1.</translation>
    </message>
    <message>
        <source>Normal Text</source>
        <translation>Standardtext</translation>
    </message>
    <message>
        <source>Heading 1</source>
        <translation>Überschrift 1</translation>
    </message>
    <message>
        <source>Heading 2</source>
        <translation>Überschrift 2</translation>
    </message>
    <message>
        <source>Heading 3</source>
        <translation>Überschrift 3</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>↶</source>
        <translation>↶</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>↷</source>
        <translation>↷</translation>
    </message>
    <message>
        <source>Go to Tool Bar</source>
        <translation>Zur Werkzeugleiste</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Formatierung</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Font size in points</source>
        <translation>Schriftgröße in Punkt</translation>
    </message>
    <message>
        <source>List style</source>
        <translation>Listenart</translation>
    </message>
    <message>
        <source>Paragraph style</source>
        <translation>Absatzformat</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Keine Liste</translation>
    </message>
    <message>
        <source>Bullets •</source>
        <translation>Aufzählungszeichen •</translation>
    </message>
    <message>
        <source>Bullets ◦</source>
        <translation>Aufzählungszeichen ◦</translation>
    </message>
    <message>
        <source>Bullets ▪</source>
        <translation>Aufzählungszeichen ▪</translation>
    </message>
    <message>
        <source>Numbers 1, 2, 3</source>
        <translation>Zahlen 1, 2, 3</translation>
    </message>
    <message>
        <source>Letters a, b, c</source>
        <translation>Buchstaben a, b, c</translation>
    </message>
    <message>
        <source>Letters A, B, C</source>
        <translation>Buchstaben A, B, C</translation>
    </message>
    <message>
        <source>Roman i, ii, iii</source>
        <translation>Römisch i, ii, iii</translation>
    </message>
    <message>
        <source>Roman I, II, III</source>
        <translation>Römisch I, II, III</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Die Datei „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a file.</source>
        <translation>„%1“ ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>OpenDocument text can be saved but not loaded: &quot;%1&quot;.</source>
        <translation>OpenDocument-Text kann gespeichert, aber nicht geladen werden: „%1“.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has an unknown format. Supported are Markdown (.md), HTML (.html) and plain text (.txt).</source>
        <translation>Die Datei „%1“ hat ein unbekanntes Format. Unterstützt werden Markdown (.md), HTML (.html) und reiner Text (.txt).</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not valid UTF-8 text.</source>
        <translation>Die Datei „%1“ ist kein gültiger UTF-8-Text.</translation>
    </message>
    <message>
        <source>The format for &quot;%1&quot; is unknown. Use the suffix .md, .html, .txt or .odt.</source>
        <translation>Das Format für „%1“ ist unbekannt. Verwenden Sie die Endung .md, .html, .txt oder .odt.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>OrvWidgets::OrvToolBarArea</name>
    <message>
        <source>Drag menu entries here</source>
        <translation>Menüeinträge hierher ziehen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Function Key</source>
        <translation>Funktionstaste</translation>
    </message>
    <message>
        <source>Remove Function Key</source>
        <translation>Funktionstaste entfernen</translation>
    </message>
</context>
<context>
    <name>Waiter</name>
    <message>
        <source>Waiting for server reply...</source>
        <translation>Warte auf Antwort des Servers...</translation>
    </message>
</context>
</TS>
