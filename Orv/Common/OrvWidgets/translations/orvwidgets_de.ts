<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
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
</TS>
