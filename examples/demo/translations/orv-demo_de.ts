<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>DemoWindow</name>
    <message>
        <source>OrvWidgets demo</source>
        <translation>OrvWidgets-Demo</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Exercise control&lt;/h2&gt;&lt;p&gt;Current time: %1&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Übungssteuerung&lt;/h2&gt;&lt;p&gt;Aktuelle Zeit: %1&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Show a message</source>
        <translation>Meldung anzeigen</translation>
    </message>
    <message>
        <source>Ask before closing a changed page</source>
        <translation>Vor dem Schließen einer geänderten Seite fragen</translation>
    </message>
    <message>
        <source>Ask without blocking</source>
        <translation>Ohne Blockieren fragen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>English</translation>
    </message>
    <message>
        <source>The exercise has been saved.</source>
        <translation>Die Übung wurde gespeichert.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
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
    <message>
        <source>Answer: %1</source>
        <translation>Antwort: %1</translation>
    </message>
    <message>
        <source>Start the exercise now?</source>
        <translation>Übung jetzt starten?</translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation>Übung</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
</TS>
