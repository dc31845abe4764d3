<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>DemoController</name>
    <message>
        <source>Exercise setup</source>
        <translation>Übungsplanung</translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation>Übung</translation>
    </message>
    <message>
        <source>Participants</source>
        <translation>Teilnehmer</translation>
    </message>
    <message>
        <source>Exercise notes</source>
        <translation>Übungsnotizen</translation>
    </message>
    <message>
        <source>Check plan data</source>
        <translation>Planungsdaten prüfen</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Import order of battle</source>
        <translation>Gliederung importieren</translation>
    </message>
    <message>
        <source>Exercise control</source>
        <translation>Übungssteuerung</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Server status</source>
        <translation>Serverstatus</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message>
        <source>Monitoring</source>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>Exercise report</source>
        <translation>Übungsbericht</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Auswertung</translation>
    </message>
    <message>
        <source>Lessons learned</source>
        <translation>Erkenntnisse</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Test notifications</source>
        <translation>Testmeldungen</translation>
    </message>
    <message>
        <source>Second operator</source>
        <translation>Zweiter Bediener</translation>
    </message>
    <message>
        <source>Exercise Control</source>
        <translation>Übungssteuerung</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Ausbildung</translation>
    </message>
    <message>
        <source>Exercise state: %1</source>
        <translation>Übungszustand: %1</translation>
    </message>
    <message>
        <source>Exercise plan changed: %1</source>
        <translation>Übungsplan geändert: %1</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Session started, operator Alpha at WS-01</source>
        <translation>Sitzung gestartet, Bediener Alpha an WS-01</translation>
    </message>
    <message>
        <source>Exercise notes saved</source>
        <translation>Übungsnotizen gespeichert</translation>
    </message>
    <message>
        <source>Lessons learned saved</source>
        <translation>Erkenntnisse gespeichert</translation>
    </message>
    <message>
        <source>Waiting for the exercise server...</source>
        <translation>Warte auf den Übungsserver...</translation>
    </message>
    <message>
        <source>Plan check</source>
        <translation>Planprüfung</translation>
    </message>
    <message>
        <source>The plan of &lt;b&gt;%1&lt;/b&gt; is complete.</source>
        <translation>Der Plan von &lt;b&gt;%1&lt;/b&gt; ist vollständig.</translation>
    </message>
    <message>
        <source>Status requested from the exercise server</source>
        <translation>Status beim Übungsserver angefragt</translation>
    </message>
    <message>
        <source>Exercise server: all %1 participants reporting</source>
        <translation>Übungsserver: alle %1 Teilnehmer melden sich</translation>
    </message>
    <message>
        <source>Exercise server</source>
        <translation>Übungsserver</translation>
    </message>
    <message>
        <source>Partition %1</source>
        <translation>Partition %1</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Operator %1 is editing the exercise plan</source>
        <translation>Bediener %1 bearbeitet den Übungsplan</translation>
    </message>
    <message>
        <source>Exercise plan locked</source>
        <translation>Übungsplan gesperrt</translation>
    </message>
    <message>
        <source>Operator %1 released the exercise plan</source>
        <translation>Bediener %1 hat den Übungsplan freigegeben</translation>
    </message>
    <message>
        <source>Exercise plan released</source>
        <translation>Übungsplan freigegeben</translation>
    </message>
    <message>
        <source>Notification acknowledged: %1</source>
        <translation>Meldung bestätigt: %1</translation>
    </message>
    <message>
        <source>Loading the exercise...</source>
        <translation>Übung wird geladen...</translation>
    </message>
    <message>
        <source>Log out at the session manager.</source>
        <translation>Abmelden am Sitzungsmanager.</translation>
    </message>
    <message>
        <source>The plan is incomplete. &lt;a href=&apos;orv://OpenPage/plan.setup&apos;&gt;Open it&lt;/a&gt;</source>
        <translation>Der Plan ist unvollständig. &lt;a href=&apos;orv://OpenPage/plan.setup&apos;&gt;Öffnen&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1: %2, %3 events. &lt;a href=&apos;orv://OpenPage/run.log&apos;&gt;Event log&lt;/a&gt;</source>
        <translation>%1: %2, %3 Ereignisse. &lt;a href=&apos;orv://OpenPage/run.log&apos;&gt;Protokoll&lt;/a&gt;</translation>
    </message>
    <message>
        <source>All participants are reporting.</source>
        <translation>Alle Teilnehmer melden sich.</translation>
    </message>
    <message>
        <source>Participant 19 has joined. &lt;a href=&apos;orv://ParticipantInfo/19&apos;&gt;Show&lt;/a&gt;</source>
        <translation>Teilnehmer 19 ist beigetreten. &lt;a href=&apos;orv://ParticipantInfo/19&apos;&gt;Anzeigen&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Plan sent to all work stations.</source>
        <translation>Plan an alle Arbeitsplätze verteilt.</translation>
    </message>
    <message>
        <source>Participant 42: low supplies. &lt;a href=&apos;orv://ParticipantInfo/42&apos;&gt;Show&lt;/a&gt;</source>
        <translation>Teilnehmer 42: Versorgung knapp. &lt;a href=&apos;orv://ParticipantInfo/42&apos;&gt;Anzeigen&lt;/a&gt;</translation>
    </message>
    <message>
        <source>WS-03 does not answer. &lt;a href=&apos;orv://OpenPage/run.log&apos;&gt;Event log&lt;/a&gt;</source>
        <translation>WS-03 antwortet nicht. &lt;a href=&apos;orv://OpenPage/run.log&apos;&gt;Protokoll&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 is editing the plan; read-only for now.</source>
        <translation>%1 bearbeitet den Plan; vorerst nur lesbar.</translation>
    </message>
    <message>
        <source>%1 is done; you can edit the plan.</source>
        <translation>%1 ist fertig; Sie können wieder planen.</translation>
    </message>
    <message>
        <source>the running exercise</source>
        <translation>die laufende Übung</translation>
    </message>
</context>
<context>
    <name>EventLogModel</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation>Übung</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
</context>
<context>
    <name>EventLogPage</name>
    <message>
        <source>Request server status</source>
        <translation>Serverstatus anfragen</translation>
    </message>
    <message>
        <source>Ask the exercise server for its status; the answer takes a moment.</source>
        <translation>Fragt den Übungsserver nach seinem Status; die Antwort dauert einen Moment.</translation>
    </message>
    <message>
        <source>Waiting for the exercise server...</source>
        <translation>Warte auf den Übungsserver...</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
</context>
<context>
    <name>Exercise</name>
    <message>
        <source>Northern Shield</source>
        <translation>Nordschild</translation>
    </message>
    <message>
        <source>Command post exercise of the northern task force</source>
        <translation>Gefechtsstandübung des nördlichen Einsatzverbands</translation>
    </message>
    <message>
        <source>Deployment</source>
        <translation>Aufmarsch</translation>
    </message>
    <message>
        <source>Defence</source>
        <translation>Verteidigung</translation>
    </message>
    <message>
        <source>Counter-attack</source>
        <translation>Gegenangriff</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Angelegt</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Terminated</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>ExerciseControlPage</name>
    <message>
        <source>State:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>Phase:</source>
        <translation>Phase:</translation>
    </message>
    <message>
        <source>Exercise time:</source>
        <translation>Übungszeit:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Next phase</source>
        <translation>Nächste Phase</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 von %3)</translation>
    </message>
    <message>
        <source>not started</source>
        <translation>nicht gestartet</translation>
    </message>
    <message>
        <source>Exercise control</source>
        <translation>Übungssteuerung</translation>
    </message>
</context>
<context>
    <name>ExerciseSetupPage</name>
    <message>
        <source>Give the exercise a name.</source>
        <translation>Geben Sie der Übung einen Namen.</translation>
    </message>
    <message>
        <source>Add at least one phase.</source>
        <translation>Legen Sie mindestens eine Phase an.</translation>
    </message>
    <message>
        <source>The planned end must lie after the planned start.</source>
        <translation>Das geplante Ende muss nach dem geplanten Beginn liegen.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>&amp;Phases:</source>
        <translation>&amp;Phasen:</translation>
    </message>
    <message>
        <source>Planned start:</source>
        <translation>Geplanter Beginn:</translation>
    </message>
    <message>
        <source>Planned end:</source>
        <translation>Geplantes Ende:</translation>
    </message>
    <message>
        <source>Add a phase</source>
        <translation>Phase hinzufügen</translation>
    </message>
    <message>
        <source>Remove the selected phase</source>
        <translation>Gewählte Phase entfernen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Before the plan can be applied:&lt;/b&gt;</source>
        <translation>&lt;b&gt;Bevor der Plan übernommen werden kann:&lt;/b&gt;</translation>
    </message>
    <message>
        <source>The exercise has a name</source>
        <translation>Die Übung hat einen Namen</translation>
    </message>
    <message>
        <source>At least one phase is planned</source>
        <translation>Mindestens eine Phase ist geplant</translation>
    </message>
    <message>
        <source>The planned end lies after the planned start</source>
        <translation>Das geplante Ende liegt nach dem geplanten Beginn</translation>
    </message>
    <message>
        <source>Phase %1</source>
        <translation>Phase %1</translation>
    </message>
    <message>
        <source>Exercise setup</source>
        <translation>Übungsplanung</translation>
    </message>
</context>
<context>
    <name>ParticipantsModel</name>
    <message>
        <source>Command</source>
        <translation>Führung</translation>
    </message>
    <message>
        <source>Manoeuvre</source>
        <translation>Manöver</translation>
    </message>
    <message>
        <source>Fires</source>
        <translation>Feuerunterstützung</translation>
    </message>
    <message>
        <source>Engineering</source>
        <translation>Pionierwesen</translation>
    </message>
    <message>
        <source>Reconnaissance</source>
        <translation>Aufklärung</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Fernmeldewesen</translation>
    </message>
    <message>
        <source>Logistics</source>
        <translation>Logistik</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Call sign</source>
        <translation>Rufzeichen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
</context>
<context>
    <name>ParticipantsPage</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Call sign</source>
        <translation>Rufzeichen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>All roles</source>
        <translation>Alle Rollen</translation>
    </message>
    <message>
        <source>%1 of %2 participants shown</source>
        <translation>%1 von %2 Teilnehmern angezeigt</translation>
    </message>
    <message>
        <source>Participants</source>
        <translation>Teilnehmer</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Default heading:</source>
        <translation>Standardrichtung:</translation>
    </message>
    <message>
        <source>Radio channel:</source>
        <translation>Funkkanal:</translation>
    </message>
    <message>
        <source>Channels 1-16 and 40-56; the others are reserved.</source>
        <translation>Kanäle 1–16 und 40–56; die übrigen sind reserviert.</translation>
    </message>
    <message>
        <source>Updates per minute:</source>
        <translation>Aktualisierungen pro Minute:</translation>
    </message>
    <message>
        <source>13 is not available: it collides with the server&apos;s cycle.</source>
        <translation>13 ist nicht verfügbar: Sie kollidiert mit dem Takt des Servers.</translation>
    </message>
    <message>
        <source>Reporting distance:</source>
        <translation>Meldeentfernung:</translation>
    </message>
    <message>
        <source> km</source>
        <translation> km</translation>
    </message>
    <message>
        <source>Alert classes:</source>
        <translation>Alarmklassen:</translation>
    </message>
    <message>
        <source>Bit 0: contacts, 1: losses, 2: supply, 3: weather, 4-7: reserved.</source>
        <translation>Bit 0: Kontakte, 1: Verluste, 2: Versorgung, 3: Wetter, 4–7: reserviert.</translation>
    </message>
    <message>
        <source>Settings applied: channel %1, %2 updates per minute, reporting distance %3 km</source>
        <translation>Einstellungen übernommen: Kanal %1, %2 Aktualisierungen pro Minute, Meldeentfernung %3 km</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
</TS>
