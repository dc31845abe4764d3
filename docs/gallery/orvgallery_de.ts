<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>OrvGallery</name>
    <message>
        <source>Participants</source>
        <translation>Teilnehmer</translation>
    </message>
    <message>
        <source>A text too long for the width it is given</source>
        <translation>Ein Text, zu lang für die Breite, die er bekommt</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Briefing&lt;/h2&gt;&lt;p&gt;The exercise starts at &lt;b&gt;0800Z&lt;/b&gt;. Report to the control room.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Einweisung&lt;/h2&gt;&lt;p&gt;Die Übung beginnt um &lt;b&gt;0800Z&lt;/b&gt;. Melden Sie sich im Leitstand.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Observer</source>
        <translation>Beobachter</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Leitender</translation>
    </message>
    <message>
        <source>Umpire</source>
        <translation>Schiedsrichter</translation>
    </message>
    <message>
        <source>Report to the &lt;b&gt;control room&lt;/b&gt; at 0800Z.</source>
        <translation>Melden Sie sich um 0800Z im &lt;b&gt;Leitstand&lt;/b&gt;.</translation>
    </message>
</context>
</TS>
