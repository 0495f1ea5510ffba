<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>QMMultiMedia::PitchListener</name>
    <message>
        <source>No sound server is running, so the instrument cannot be heard.</source>
        <translation>Es läuft kein Sound-Server, daher kann das Instrument nicht gehört werden.</translation>
    </message>
    <message>
        <source>No microphone is connected, so the instrument cannot be heard.</source>
        <translation>Kein Mikrofon angeschlossen, daher kann das Instrument nicht gehört werden.</translation>
    </message>
</context>
<context>
    <name>QMMusic::BaseMainPage</name>
    <message>
        <source>Must Have</source>
        <translation>Unverzichtbar</translation>
    </message>
    <message>
        <source>Nice to Have</source>
        <translation>Schön zu haben</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Hear</source>
        <translation>Hören</translation>
    </message>
    <message>
        <source>See</source>
        <translation>Sehen</translation>
    </message>
    <message>
        <source>Wikipedia</source>
        <translation>Wikipedia</translation>
    </message>
</context>
<context>
    <name>QMMusic::BassGuitarTuner</name>
    <message>
        <source>5 Strings</source>
        <translation>5 Saiten</translation>
    </message>
    <message>
        <source>4 Strings</source>
        <translation>4 Saiten</translation>
    </message>
</context>
<context>
    <name>QMMusic::BoardBehaviour</name>
    <message>
        <source>Find Note</source>
        <translation>Note finden</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Training</translation>
    </message>
</context>
<context>
    <name>QMMusic::ChordBaseView</name>
    <message>
        <source>Drag&amp;Drop this picture to any editor</source>
        <translation>Ziehen Sie dieses Bild in einen beliebigen Editor</translation>
    </message>
</context>
<context>
    <name>QMMusic::ChordsWindow</name>
    <message>
        <source>Guitar</source>
        <translation>Gitarre</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>Bass</translation>
    </message>
    <message>
        <source>Bass, high voicings</source>
        <translation>Bass, hohe Lagen</translation>
    </message>
    <message>
        <source>Ukulele</source>
        <translation>Ukulele</translation>
    </message>
    <message>
        <source>Mandolin</source>
        <translation>Mandoline</translation>
    </message>
    <message>
        <source>Banjo</source>
        <translation>Banjo</translation>
    </message>
    <message>
        <source>Balalaika</source>
        <translation>Balalaika</translation>
    </message>
    <message>
        <source>Piano</source>
        <translation>Klavier</translation>
    </message>
</context>
<context>
    <name>QMMusic::FavoritesDeleteDlg</name>
    <message>
        <source>Delete the chords</source>
        <translation>Akkorde löschen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>QMMusic::FinderLayout</name>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Please, stop the training to be able to do other actions.</source>
        <translation>Bitte beenden Sie das Training, um andere Aktionen ausführen zu können.</translation>
    </message>
</context>
<context>
    <name>QMMusic::ListenSwitch</name>
    <message>
        <source>The microphone is open</source>
        <translation>Das Mikrofon ist offen</translation>
    </message>
    <message>
        <source>The microphone is closed</source>
        <translation>Das Mikrofon ist geschlossen</translation>
    </message>
    <message>
        <source>The microphone could not be opened.</source>
        <translation>Das Mikrofon konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>QMMusic::MetronomeControls</name>
    <message>
        <source>Largo</source>
        <translation>Largo</translation>
    </message>
    <message>
        <source>38-56</source>
        <translation>38-56</translation>
    </message>
    <message>
        <source>Adagio</source>
        <translation>Adagio</translation>
    </message>
    <message>
        <source>57-70</source>
        <translation>57-70</translation>
    </message>
    <message>
        <source>Andante</source>
        <translation>Andante</translation>
    </message>
    <message>
        <source>71-96</source>
        <translation>71-96</translation>
    </message>
    <message>
        <source>Moderato</source>
        <translation>Moderato</translation>
    </message>
    <message>
        <source>97-108</source>
        <translation>97-108</translation>
    </message>
    <message>
        <source>Allegro</source>
        <translation>Allegro</translation>
    </message>
    <message>
        <source>109-168</source>
        <translation>109-168</translation>
    </message>
    <message>
        <source>Presto</source>
        <translation>Presto</translation>
    </message>
    <message>
        <source>169-208</source>
        <translation>169-208</translation>
    </message>
    <message>
        <source>Visible Tick</source>
        <translation>Sichtbarer Schlag</translation>
    </message>
    <message>
        <source>Audiable Tick</source>
        <translation>Hörbarer Schlag</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
</context>
<context>
    <name>QMMusic::ModesPanel</name>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Must Have</source>
        <translation>Unverzichtbar</translation>
    </message>
    <message>
        <source>Nice to Have</source>
        <translation>Schön zu haben</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Hear</source>
        <translation>Hören</translation>
    </message>
    <message>
        <source>See</source>
        <translation>Sehen</translation>
    </message>
    <message>
        <source>Wikipedia</source>
        <translation>Wikipedia</translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesLernReportDialog</name>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;No report data is available&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Keine Auswertungsdaten vorhanden&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesLernStatistic</name>
    <message>
        <source>Full Report</source>
        <translation>Vollständiger Bericht</translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesTrainerWidget</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Play to answer</source>
        <translation>Durch Spielen antworten</translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesWidget</name>
    <message>
        <source>do</source>
        <translation>do</translation>
    </message>
    <message>
        <source>re</source>
        <translation>re</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>mi</translation>
    </message>
    <message>
        <source>fa</source>
        <translation>fa</translation>
    </message>
    <message>
        <source>sol</source>
        <translation>sol</translation>
    </message>
    <message>
        <source>la</source>
        <translation>la</translation>
    </message>
    <message>
        <source>si</source>
        <translation>si</translation>
    </message>
</context>
<context>
    <name>QMMusic::Transposer</name>
    <message>
        <source>Add chord</source>
        <translation>Akkord hinzufügen</translation>
    </message>
    <message>
        <source>Remove selected chord</source>
        <translation>Gewählten Akkord entfernen</translation>
    </message>
    <message>
        <source>Transpose</source>
        <translation>Transponieren</translation>
    </message>
    <message>
        <source>Sound On</source>
        <translation>Ton an</translation>
    </message>
    <message>
        <source>Sound Off</source>
        <translation>Ton aus</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Löschen...</translation>
    </message>
    <message>
        <source>Save Favorite</source>
        <translation>Favorit speichern</translation>
    </message>
    <message>
        <source>Favorite&apos;s Name:</source>
        <translation>Name des Favoriten:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Can not create the favorite without name</source>
        <translation>Ein Favorit ohne Namen kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Remove the favorite:
 &quot;</source>
        <translation>Den Favoriten entfernen:
 „</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>“?</translation>
    </message>
</context>
<context>
    <name>QMMusic::TunerBasePage</name>
    <message>
        <source>Listen</source>
        <translation>Hören</translation>
    </message>
</context>
<context>
    <name>QMMusic::TunersCommonPanel</name>
    <message>
        <source>A4:415Hz (Baroque Pitch)</source>
        <translation>A4:415Hz (Barockstimmung)</translation>
    </message>
    <message>
        <source>A4:430Hz (Scintific Pitch)</source>
        <translation>A4:430Hz (Wissenschaftliche Stimmung)</translation>
    </message>
    <message>
        <source>A4:435Hz (France1859 Pitch)</source>
        <translation>A4:435Hz (Frankreich 1859)</translation>
    </message>
    <message>
        <source>A4:439Hz (New Philarmonic Pitch)</source>
        <translation>A4:439Hz (Neue Philharmonische Stimmung)</translation>
    </message>
    <message>
        <source>A4:440Hz (Concert Pitch)</source>
        <translation>A4:440Hz (Kammerton)</translation>
    </message>
    <message>
        <source>A4:442Hz (Boston Symphony Orchestra Pitch)</source>
        <translation>A4:442Hz (Boston Symphony Orchestra)</translation>
    </message>
    <message>
        <source>A4:443Hz (New Berliner Philharmonic Pitch)</source>
        <translation>A4:443Hz (Neue Berliner Philharmonie)</translation>
    </message>
    <message>
        <source>A4:445Hz (Old Berliner Philharmonic Pitch)</source>
        <translation>A4:445Hz (Alte Berliner Philharmonie)</translation>
    </message>
    <message>
        <source>A4:452Hz (Old Philarmonic Pitch)</source>
        <translation>A4:452Hz (Alte Philharmonische Stimmung)</translation>
    </message>
    <message>
        <source>A4:460Hz (Renaissance Pitch)</source>
        <translation>A4:460Hz (Renaissance-Stimmung)</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Stimmton</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>App</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Rate this App</source>
        <translation>Diese App bewerten</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Mitmachen</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Hilfeseite</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>QMMusic::TunersExplorer</name>
    <message>
        <source>&lt;center&gt;Guitar&lt;/center&gt;</source>
        <translation>&lt;center&gt;Gitarre&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;BassGuitar&lt;/center&gt;</source>
        <translation>&lt;center&gt;Bassgitarre&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Ukulele&lt;/center&gt;</source>
        <translation>&lt;center&gt;Ukulele&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Banjo&lt;/center&gt;</source>
        <translation>&lt;center&gt;Banjo&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Violin&lt;/center&gt;</source>
        <translation>&lt;center&gt;Geige&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Viola&lt;/center&gt;</source>
        <translation>&lt;center&gt;Bratsche&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Cello&lt;/center&gt;</source>
        <translation>&lt;center&gt;Cello&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;DoubleBass&lt;/center&gt;</source>
        <translation>&lt;center&gt;Kontrabass&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Mandolin&lt;/center&gt;</source>
        <translation>&lt;center&gt;Mandoline&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Balalaika&lt;/center&gt;</source>
        <translation>&lt;center&gt;Balalaika&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Dombra&lt;/center&gt;</source>
        <translation>&lt;center&gt;Dombra&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;More Apps&lt;/center&gt;</source>
        <translation>&lt;center&gt;Weitere Apps&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>&amp;Rechtliche Hinweise</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> – Info</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ausblenden</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Diese Anwendung verwendet:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source> Updates Check Error</source>
        <translation> – Fehler bei der Update-Prüfung</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Keine Internetverbindung verfügbar,&lt;br&gt;bitte prüfen Sie die Firewall-Einstellungen und stellen Sie sicher,&lt;br&gt;dass Sie die Internetverbindung nicht über einen Proxyserver nutzen.&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Eine neuere Version von </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> ist verfügbar.&lt;br&gt;Zur Update-Seite gehen?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Sie verwenden die neueste verfügbare Version.&lt;br&gt;Trotzdem zur Update-Seite gehen?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>Diese App bewerten</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Folgen Sie uns</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Support-Seite</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>Beim Start nach Updates suchen</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> – Updates</translation>
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
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>&amp;Beim Start nicht mehr zeigen</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – Einführung</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Folgen Sie uns</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Folgen Sie uns</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>Folgen Sie uns und erfahren Sie&lt;br&gt;als Erste von unseren</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. Gratis-Aktionen&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. App-Updates&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. Neuen Apps&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. Wichtigen Neuigkeiten&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   und mehr...</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Ja, alle</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>Nein, keine</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More Apps</source>
        <translation>Weitere Apps</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>App bewerten</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Folgen Sie uns</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>App-Menü</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;bewerten Sie sie bitte im App Store.&lt;br&gt;Danke!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Jetzt bewerten</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>&amp;Vielleicht später</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>&amp;Nie wieder fragen</translation>
    </message>
    <message>
        <source>Help Spread the Word about </source>
        <translation>Erzählen Sie weiter von </translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>If you like&lt;br&gt;</source>
        <translation>Wenn Ihnen&lt;br&gt;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;gefällt, teilen Sie es bitte mit Ihren Freunden.&lt;br&gt;Danke!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;teilen Sie sie mit Ihren Freunden.&lt;br&gt;Danke!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TopWidget</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
</context>
</TS>
