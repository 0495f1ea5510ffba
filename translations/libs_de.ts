<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>QMMusic::BoardBase</name>
    <message>
        <source>Find Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Training</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMMusic::GuitarBoard</name>
    <message>
        <source>Find Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Training</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMMusic::GuitarTonarium</name>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, stop the training to be able to do other actions.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesLernReportDialog</name>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;No report data is available&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesLernStatistic</name>
    <message>
        <source>Full Report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesTrainerWidget</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesWidget</name>
    <message>
        <source>do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>re</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fa</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>la</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>si</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More Apps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::TopWidget</name>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
