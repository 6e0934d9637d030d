<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Starfolds</name>
    <message>
        <source>The computer runs on battery, at %1 %.</source>
        <translation>Der Rechner läuft im Akkubetrieb, bei %1 %.</translation>
    </message>
    <message>
        <source>this desktop does not tell programs when there is no input</source>
        <translation>dieser Desktop teilt Programmen nicht mit, wann keine Eingabe kommt</translation>
    </message>
    <message>
        <source>there is no desktop to watch (neither DISPLAY nor WAYLAND_DISPLAY reaches one)</source>
        <translation>es gibt keinen Desktop, der beobachtet werden kann (weder DISPLAY noch WAYLAND_DISPLAY führt zu einem)</translation>
    </message>
    <message>
        <source>the settings cannot be read</source>
        <translation>die Einstellungen können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Watching: %1</source>
        <translation>Beobachtet: %1</translation>
    </message>
    <message>
        <source>Waiting for five seconds without input.</source>
        <translation>Wartet auf fünf Sekunden ohne Eingabe.</translation>
    </message>
    <message>
        <source>not running</source>
        <translation>läuft nicht</translation>
    </message>
    <message>
        <source>running, process %1</source>
        <translation>läuft, Prozess %1</translation>
    </message>
    <message>
        <source>Idleness: %1</source>
        <translation>Untätigkeit: %1</translation>
    </message>
    <message>
        <source>Against a screen saver now: %1</source>
        <translation>Gegen einen Bildschirmschoner spricht jetzt: %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Service: %1</source>
        <translation>Dienst: %1</translation>
    </message>
    <message>
        <source>Settings: they cannot be read</source>
        <translation>Einstellungen: Sie können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Settings: %1, after %2 min, on battery from %3 %</source>
        <translation>Einstellungen: %1, nach %2 min, im Akkubetrieb ab %3 %</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>Nicht gestartet: %1</translation>
    </message>
    <message>
        <source>The screen saver starts.</source>
        <translation>Der Bildschirmschoner startet.</translation>
    </message>
    <message>
        <source>The screen saver is ended: %1</source>
        <translation>Der Bildschirmschoner wird beendet: %1</translation>
    </message>
    <message>
        <source>The screen saver is ended.</source>
        <translation>Der Bildschirmschoner wird beendet.</translation>
    </message>
    <message>
        <source>The screen saver has ended.</source>
        <translation>Der Bildschirmschoner ist beendet.</translation>
    </message>
    <message>
        <source>The screen saver has ended: %1.</source>
        <translation>Der Bildschirmschoner ist beendet: %1.</translation>
    </message>
    <message>
        <source>the saver has failed</source>
        <translation>Der Bildschirmschoner ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The screen is off.</source>
        <translation>Der Bildschirm ist aus.</translation>
    </message>
    <message>
        <source>XScreenSaver shows the screen savers here: choose Starfolds in it.</source>
        <translation>Hier zeigt XScreenSaver die Bildschirmschoner: Wählen Sie dort Starfolds.</translation>
    </message>
    <message>
        <source>cannot write to the standard output</source>
        <translation>in die Standardausgabe kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>(--help lists the options)</source>
        <translation>(--help zeigt die Optionen)</translation>
    </message>
    <message>
        <source>--root is for programs that host a screen saver, and %1 names no window of one; --saver runs the screen saver without a host</source>
        <translation>--root ist für Programme, in deren Fenster ein Bildschirmschoner läuft, und %1 nennt kein solches Fenster; --saver startet den Bildschirmschoner ohne ein solches Programm</translation>
    </message>
    <message>
        <source>%1 is '%2', which is no window of an X server; on Wayland no host can show a screen saver inside its own window</source>
        <translation>%1 ist „%2“ und damit kein Fenster eines X-Servers; unter Wayland kann kein Programm einen Bildschirmschoner in seinem eigenen Fenster zeigen</translation>
    </message>
    <message>
        <source>there is no X server to reach the window of the host (DISPLAY names none that answers)</source>
        <translation>das Fenster des anderen Programms ist ohne X-Server nicht erreichbar (DISPLAY nennt keinen, der antwortet)</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>there is no desktop to show anything on (neither DISPLAY nor WAYLAND_DISPLAY)</source>
        <translation>es gibt keinen Desktop, auf dem etwas gezeigt werden könnte (weder DISPLAY noch WAYLAND_DISPLAY)</translation>
    </message>
    <message>
        <source>What runs</source>
        <translation>Was läuft</translation>
    </message>
    <message>
        <source>run the screen saver; any input ends it</source>
        <translation>den Bildschirmschoner starten; jede Eingabe beendet ihn</translation>
    </message>
    <message>
        <source>with --saver: "all" screens, each with its own universe
(as without this option), the "primary" one, or one by its
number from 1</source>
        <translation>mit --saver: „all“ für alle Bildschirme, jeder mit eigenem
Universum (wie ohne diese Option), „primary“ für den
Hauptbildschirm, oder die Nummer eines Bildschirms ab 1</translation>
    </message>
    <message>
        <source>run the effect as an application</source>
        <translation>den Effekt als Anwendung starten</translation>
    </message>
    <message>
        <source>with --window: show this template, store nothing</source>
        <translation>mit --window: diese Vorlage zeigen, nichts speichern</translation>
    </message>
    <message>
        <source>with --window: size of the window in pixels (1280x720)</source>
        <translation>mit --window: Größe des Fensters in Pixeln (1280x720)</translation>
    </message>
    <message>
        <source>with --window: cover the screen</source>
        <translation>mit --window: den ganzen Bildschirm bedecken</translation>
    </message>
    <message>
        <source>open the settings dialog</source>
        <translation>die Einstellungen öffnen</translation>
    </message>
    <message>
        <source>For programs that host a screen saver, on X11, which handle input and end the saver</source>
        <translation>Für Programme, die unter X11 einen Bildschirmschoner aufnehmen, seine Eingaben behandeln und ihn beenden</translation>
    </message>
    <message>
        <source>run inside the window that XSCREENSAVER_WINDOW names</source>
        <translation>in dem Fenster laufen, das XSCREENSAVER_WINDOW nennt</translation>
    </message>
    <message>
        <source>run inside window N (decimal, or 0x and hexadecimal)</source>
        <translation>im Fenster N laufen (dezimal, oder 0x und hexadezimal)</translation>
    </message>
    <message>
        <source>With --saver, --window, --root or --window-id, for this run only</source>
        <translation>Mit --saver, --window, --root oder --window-id, nur für diesen Lauf</translation>
    </message>
    <message>
        <source>show the universes of seed N</source>
        <translation>die Universen zum Startwert N zeigen</translation>
    </message>
    <message>
        <source>universe theme 1 to 8; later options replace its values</source>
        <translation>Thema des Universums, 1 bis 8; spätere Optionen gehen vor</translation>
    </message>
    <message>
        <source>stars in all the starfolds, 10 to 30000</source>
        <translation>Sterne in allen Starfolds, 10 bis 30000</translation>
    </message>
    <message>
        <source>starfolds in a universe, 1 to 999</source>
        <translation>Starfolds in einem Universum, 1 bis 999</translation>
    </message>
    <message>
        <source>visits before the next universe, 1 to 999</source>
        <translation>Besuche bis zum nächsten Universum, 1 bis 999</translation>
    </message>
    <message>
        <source>length of the trails in pixels, 1 to 99</source>
        <translation>Länge der Spuren in Pixeln, 1 bis 99</translation>
    </message>
    <message>
        <source>stars between the starfolds, 0 to 3000</source>
        <translation>Sterne zwischen den Starfolds, 0 bis 3000</translation>
    </message>
    <message>
        <source>gravity between the starfolds, 0 to 999999</source>
        <translation>Schwerkraft zwischen den Starfolds, 0 bis 999999</translation>
    </message>
    <message>
        <source>watch the whole universe from one place</source>
        <translation>das ganze Universum von einem Ort aus zeigen</translation>
    </message>
    <message>
        <source>vary the bodies at random</source>
        <translation>die Körper zufällig verändern</translation>
    </message>
    <message>
        <source>minimum time of a frame in ms, 0 to 999</source>
        <translation>Mindestdauer eines Bildes in ms, 0 bis 999</translation>
    </message>
    <message>
        <source>any setting by its stored name, such as Universe_Stars=9000,
Starfold_Radius=500 (all bodies), Starfold7/Starfold_Radius=500</source>
        <translation>eine Einstellung unter ihrem gespeicherten Namen, etwa
Universe_Stars=9000, Starfold_Radius=500 (alle Körper),
Starfold7/Starfold_Radius=500</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Auskunft</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>diesen Text ausgeben</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>die Version ausgeben</translation>
    </message>
    <message>
        <source>%1: a template goes with --window, or alone</source>
        <translation>%1: eine Vorlage steht mit --window oder allein</translation>
    </message>
    <message>
        <source>--seed goes with --saver, --window, --root or --window-id</source>
        <translation>--seed gilt nur mit --saver, --window, --root oder --window-id</translation>
    </message>
    <message>
        <source>settings go with --saver, --window, --root or --window-id</source>
        <translation>Einstellungen gelten nur mit --saver, --window, --root oder --window-id</translation>
    </message>
    <message>
        <source>--screens goes with --saver</source>
        <translation>--screens gilt nur mit --saver</translation>
    </message>
    <message>
        <source>--size and --full-screen go with --window</source>
        <translation>--size und --full-screen gelten nur mit --window</translation>
    </message>
    <message>
        <source>--size and --full-screen exclude each other</source>
        <translation>--size und --full-screen schließen einander aus</translation>
    </message>
    <message>
        <source>--window-id goes alone or with --root</source>
        <translation>--window-id steht allein oder mit --root</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>as Windows gives them to a screen saver (capitals do not matter)</source>
        <translation>wie Windows sie einem Bildschirmschoner gibt (Großschreibung ist ohne Bedeutung)</translation>
    </message>
    <message>
        <source>run the screen saver, unless it is running</source>
        <translation>den Bildschirmschoner starten, falls er nicht schon läuft</translation>
    </message>
    <message>
        <source>open the settings dialog; so does no switch at all</source>
        <translation>die Einstellungen öffnen; ebenso ganz ohne Schalter</translation>
    </message>
    <message>
        <source>show a preview inside the window HANDLE</source>
        <translation>eine Vorschau im Fenster HANDLE zeigen</translation>
    </message>
    <message>
        <source>change the password, where the system has one</source>
        <translation>das Kennwort ändern, wo das System eines hat</translation>
    </message>
    <message>
        <source>load a template, store its universe, and run the screen saver</source>
        <translation>eine Vorlage laden, ihr Universum speichern und den Bildschirmschoner starten</translation>
    </message>
    <message>
        <source>[OPTION]... [FILE]</source>
        <translation>[OPTION]... [DATEI]</translation>
    </message>
    <message>
        <source>[SWITCH]</source>
        <translation>[SCHALTER]</translation>
    </message>
    <message>
        <source>A screen saver that simulates a universe of starfolds.</source>
        <translation>Ein Bildschirmschoner, der ein Universum aus Starfolds simuliert.</translation>
    </message>
    <message>
        <source>A number beyond its range is clamped to it.</source>
        <translation>Eine Zahl außerhalb ihres Bereichs wird auf ihn begrenzt.</translation>
    </message>
    <message>
        <source>cannot connect to the display</source>
        <translation>keine Verbindung zur Anzeige</translation>
    </message>
    <message>
        <source>Scale Height to Radius?</source>
        <translation>Höhe dem Radius anpassen?</translation>
    </message>
    <message>
        <source>Interleave Tilt Angles?</source>
        <translation>Neigungswinkel abwechseln?</translation>
    </message>
    <message>
        <source>Dampen Tilt Angles?</source>
        <translation>Neigungswinkel dämpfen?</translation>
    </message>
    <message>
        <source>Loc X
(0-9999):</source>
        <translation>Ort X
(0-9999):</translation>
    </message>
    <message>
        <source>Loc Y
(0-9999):</source>
        <translation>Ort Y
(0-9999):</translation>
    </message>
    <message>
        <source>Loc Z
(0-9999):</source>
        <translation>Ort Z
(0-9999):</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Symmetry Radius</source>
        <translation>Symmetrieradius</translation>
    </message>
    <message>
        <source>Points per
Edge (1-99)</source>
        <translation>Punkte je
Kante (1-99)</translation>
    </message>
    <message>
        <source>Atom Offset</source>
        <translation>Atomabstand</translation>
    </message>
    <message>
        <source>You must specify at least one Atomic Structure in order to Preview the Molecule.  
Consider selecting one of the Themes in order to see a sample Molecule  
or press Cancel to return to the Starfold Settings.</source>
        <translation>Geben Sie mindestens eine Atomstruktur an, um eine Vorschau des Moleküls zu sehen.  
Wählen Sie eines der Themen, um ein Beispiel zu sehen,  
oder kehren Sie mit „Abbrechen“ zu den Starfold-Einstellungen zurück.</translation>
    </message>
    <message>
        <source>You have reached the limit with respect to the number 
elements that can be associated with a given molecule.</source>
        <translation>Mehr Elemente kann ein Molekül 
nicht enthalten.</translation>
    </message>
    <message>
        <source>Scale
(0-100):</source>
        <translation>Maßstab
(0-100):</translation>
    </message>
    <message>
        <source>Axis
(X,Y,Z):</source>
        <translation>Achse
(X,Y,Z):</translation>
    </message>
    <message>
        <source>Angle
(0-360):</source>
        <translation>Winkel
(0-360):</translation>
    </message>
    <message>
        <source>Rel.Pct.
(0-9999):</source>
        <translation>Rel. Ant.
(0-9999):</translation>
    </message>
    <message>
        <source>You must specify two or more Attractor Points in order to Preview the I.F.S.  
Consider selecting one of the Themes in order to see a sample I.F.S.  
or press Cancel to return to the Starfold Settings.</source>
        <translation>Geben Sie mindestens zwei Attraktorpunkte an, um eine Vorschau des IFS zu sehen.  
Wählen Sie eines der Themen, um ein Beispiel zu sehen,  
oder kehren Sie mit „Abbrechen“ zu den Starfold-Einstellungen zurück.</translation>
    </message>
    <message>
        <source>Tree structure with a hexagonal shape.</source>
        <translation>Sechseckige Baumstruktur.</translation>
    </message>
    <message>
        <source>Attenuated space station scaffolding structure.</source>
        <translation>Feines Gerüst einer Raumstation.</translation>
    </message>
    <message>
        <source>Swirls of color pulled to the starfold core</source>
        <translation>Farbwirbel, zum Kern des Starfolds gezogen</translation>
    </message>
    <message>
        <source>Bulky shaped starship.</source>
        <translation>Klobiges Raumschiff.</translation>
    </message>
    <message>
        <source>Fractional Segments</source>
        <translation>Bruchstücke</translation>
    </message>
    <message>
        <source>Fractal Fern</source>
        <translation>Fraktaler Farn</translation>
    </message>
    <message>
        <source>Twisted tree-like branches</source>
        <translation>Verdrehte, baumartige Äste</translation>
    </message>
    <message>
        <source>Warped Tetrahedron.</source>
        <translation>Verzogenes Tetraeder.</translation>
    </message>
    <message>
        <source>Root-Like Structures</source>
        <translation>Wurzelartige Strukturen</translation>
    </message>
    <message>
        <source>Elegant Starship</source>
        <translation>Elegantes Raumschiff</translation>
    </message>
    <message>
        <source>Octanitrocubane.</source>
        <translation>Octanitrocuban.</translation>
    </message>
    <message>
        <source>Hexagonal Plane.</source>
        <translation>Sechseckige Ebene.</translation>
    </message>
    <message>
        <source>Tetrahedral Lattice.</source>
        <translation>Tetraedergitter.</translation>
    </message>
    <message>
        <source>Cubic Hydrocarbon Lattice.</source>
        <translation>Kubisches Kohlenwasserstoff-Gitter.</translation>
    </message>
    <message>
        <source>Hexagonal Nested Lattice.</source>
        <translation>Verschachteltes Sechseckgitter.</translation>
    </message>
    <message>
        <source>Active Gas Configuration.</source>
        <translation>Anordnung reaktiver Gase.</translation>
    </message>
    <message>
        <source>Shells and Points Configuration.</source>
        <translation>Anordnung aus Schalen und Punkten.</translation>
    </message>
    <message>
        <source>Nested Shell Configuration.</source>
        <translation>Anordnung verschachtelter Schalen.</translation>
    </message>
    <message>
        <source>Star Point System.</source>
        <translation>System aus Sternpunkten.</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>unerwartetes Argument %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 hat keinen Wert</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>takes WIDTHxHEIGHT, each from 1 to %1, not %2</source>
        <translation>braucht BREITExHÖHE, jeweils von 1 bis %1, nicht %2</translation>
    </message>
    <message>
        <source>takes Name=value, not %1</source>
        <translation>braucht Name=Wert, nicht %1</translation>
    </message>
    <message>
        <source>takes a whole number from %1 to %2, not %3</source>
        <translation>braucht eine ganze Zahl von %1 bis %2, nicht %3</translation>
    </message>
    <message>
        <source>Esc: leave    F5: next universe    Ctrl+P: pause    Ctrl+S: save a picture    F1: help    any other key: settings</source>
        <translation>Esc: beenden    F5: nächstes Universum    Strg+P: Pause    Strg+S: Bild speichern    F1: Hilfe    andere Taste: Einstellungen</translation>
    </message>
    <message>
        <source>Esc: leave    F1: help    any other key: settings</source>
        <translation>Esc: beenden    F1: Hilfe    andere Taste: Einstellungen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>print what was found here, and what forbids the saver now</source>
        <translation>zeigen, was hier gefunden wurde und was den Bildschirmschoner
im Augenblick verhindert</translation>
    </message>
    <message>
        <source>start the saver once, after five seconds without input</source>
        <translation>den Bildschirmschoner einmal starten, nach fünf Sekunden ohne
Eingabe</translation>
    </message>
    <message>
        <source>start FILE --saver instead of the starfolds beside this
program</source>
        <translation>FILE --saver starten statt des starfolds neben diesem
Programm</translation>
    </message>
    <message>
        <source>[OPTION]...</source>
        <translation>[OPTION]...</translation>
    </message>
    <message>
        <source>Starts the Starfolds screen saver when there was no input for some time, and
ends it at the next input. It waits while a film or a call inhibits idleness,
on battery, and while the screen is locked or off. It locks nothing.</source>
        <translation>Startet den Bildschirmschoner Starfolds nach einiger Zeit ohne Eingabe und
beendet ihn bei der nächsten Eingabe. Das Programm wartet, solange ein Film oder
ein Anruf den Leerlauf verhindert, im Akkubetrieb und solange der Bildschirm
gesperrt oder ausgeschaltet ist. Es sperrt nichts.</translation>
    </message>
    <message>
        <source>The settings are in the settings dialog: starfolds --settings, Edit, When Idle.
Without options it ends at once if they are off.</source>
        <translation>Die Einstellungen stehen im Eigenschaften-Dialog: starfolds --settings,
Bearbeiten, Bei Leerlauf. Ohne Optionen endet das Programm sofort, wenn sie
ausgeschaltet sind.</translation>
    </message>
    <message>
        <source>No Access</source>
        <translation>Kein Zugriff</translation>
    </message>
    <message>
        <source>The Registry is used to store the values necessary for this product.  
If the word OK appears in the test field, then you have write access.  
If you do not have write access, then you will have to change your 
administrative privileges with respect to your user account.</source>
        <translation>In der Registrierung werden die Werte gespeichert, die dieses Programm benötigt.  
Erscheint im Testfeld das Wort OK, dann haben Sie Schreibzugriff.  
Wenn Sie keinen Schreibzugriff haben, müssen Sie die Rechte 
Ihres Benutzerkontos ändern.</translation>
    </message>
    <message>
        <source>The %1 is used to render the effects to the 
display device.  If a circle does not appear in the region to the right, 
then your display hardware or driver may not support the API.  
You may need to install the latest driver.  Consult the website for 
your hardware vendor for current information.</source>
        <translation>Die Effekte werden mit dieser Schnittstelle gezeichnet: %1. 
Erscheint im Feld rechts kein Kreis, dann wird sie von 
Ihrer Grafikhardware oder deren Treiber nicht unterstützt.  
Installieren Sie gegebenenfalls den neuesten Treiber. 
Auskunft gibt die Website des Herstellers Ihrer Hardware.</translation>
    </message>
    <message>
        <source>Fo&amp;nt:</source>
        <translation>Sch&amp;rift:</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>Frame &amp;delay in milliseconds (0 - 999):</source>
        <translation>Bild&amp;verzögerung in Millisekunden (0 - 999):</translation>
    </message>
    <message>
        <source>Fo&amp;cal length distance (0.01 - 10.0):</source>
        <translation>&amp;Brennweite (0.01 - 10.0):</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>Text H&amp;ue (0 - 359):</source>
        <translation>&amp;Farbton des Textes (0 - 359):</translation>
    </message>
    <message>
        <source>&amp;Randomize Properties</source>
        <translation>Eigenschaften &amp;zufällig verändern</translation>
    </message>
    <message>
        <source>Randomization &amp;Magnitude (1 - 100):</source>
        <translation>&amp;Stärke der Veränderung (1 - 100):</translation>
    </message>
    <message>
        <source>&amp;Bias Exponent to Normal (1 - 100):</source>
        <translation>Exponent der Häufung um den &amp;Normalwert (1 - 100):</translation>
    </message>
    <message>
        <source>&amp;Window can be resized (EXE version only)</source>
        <translation>Fenst&amp;ergröße änderbar (nur EXE-Version)</translation>
    </message>
    <message>
        <source>&amp;Ignore mouse moves in screen saver mode</source>
        <translation>&amp;Mausbewegungen im Bildschirmschoner ignorieren</translation>
    </message>
    <message>
        <source>Display in bac&amp;kground (double-click to stop)</source>
        <translation>Im Hintergr&amp;und anzeigen (Doppelklick beendet)</translation>
    </message>
    <message>
        <source>&amp;Let the text drift slowly</source>
        <translation>Den Text &amp;langsam wandern lassen</translation>
    </message>
    <message>
        <source>&amp;Accept Settings</source>
        <translation>&amp;Einstellungen übernehmen</translation>
    </message>
    <message>
        <source>&amp;Return to Universe Settings</source>
        <translation>Zurück zu den U&amp;niversum-Einstellungen</translation>
    </message>
    <message>
        <source>Starfold Properties</source>
        <translation>Starfold-Eigenschaften</translation>
    </message>
    <message>
        <source>Attractor Iteration Points</source>
        <translation>Attraktor-Iterationspunkte</translation>
    </message>
    <message>
        <source>Attractor Iteration Scale %</source>
        <translation>Attraktor-Iterationsmaßstab %</translation>
    </message>
    <message>
        <source>Attractor Rotation Angle</source>
        <translation>Attraktor-Drehwinkel</translation>
    </message>
    <message>
        <source>Wireframe Vertices</source>
        <translation>Drahtgitter-Ecken</translation>
    </message>
    <message>
        <source>Wireframe Scale %</source>
        <translation>Drahtgitter-Maßstab %</translation>
    </message>
    <message>
        <source>Wireframe Iteration Levels</source>
        <translation>Drahtgitter-Iterationsstufen</translation>
    </message>
    <message>
        <source>Fractal Iteration Points</source>
        <translation>Fraktal-Iterationspunkte</translation>
    </message>
    <message>
        <source>Fractal Iteration Scale %</source>
        <translation>Fraktal-Iterationsmaßstab %</translation>
    </message>
    <message>
        <source>Nebula Expansion Speed</source>
        <translation>Nebel-Ausdehnungsgeschwindigkeit</translation>
    </message>
    <message>
        <source>Nebula Solar Wind Magnitude</source>
        <translation>Nebel-Sonnenwindstärke</translation>
    </message>
    <message>
        <source>Quasar Emit Speed</source>
        <translation>Quasar-Ausstoßgeschwindigkeit</translation>
    </message>
    <message>
        <source>Graviton Force</source>
        <translation>Graviton-Kraft</translation>
    </message>
    <message>
        <source>Starwave Expansion Rate</source>
        <translation>Sternenwellen-Ausdehnung</translation>
    </message>
    <message>
        <source>Starwave Interleaved Waves</source>
        <translation>Sternenwellen, verschränkt</translation>
    </message>
    <message>
        <source>Starwave Amplitude Persistence</source>
        <translation>Sternenwellen-Beständigkeit</translation>
    </message>
    <message>
        <source>Starwave Particle Angle Increment</source>
        <translation>Sternenwellen-Winkelzunahme</translation>
    </message>
    <message>
        <source>Range (%1 - %2):</source>
        <translation>Bereich (%1 - %2):</translation>
    </message>
    <message>
        <source>New Stars</source>
        <translation>Neue Sterne</translation>
    </message>
    <message>
        <source>Novas</source>
        <translation>Novae</translation>
    </message>
    <message>
        <source>Pulsars</source>
        <translation>Pulsare</translation>
    </message>
    <message>
        <source>Comets</source>
        <translation>Kometen</translation>
    </message>
    <message>
        <source>Hue Start</source>
        <translation>Farbton am Anfang</translation>
    </message>
    <message>
        <source>Hue End</source>
        <translation>Farbton am Ende</translation>
    </message>
    <message>
        <source>Theme of the universe</source>
        <translation>Thema des Universums</translation>
    </message>
    <message>
        <source>Universe Profile</source>
        <translation>Profil des Universums</translation>
    </message>
    <message>
        <source>Starfolds to visit</source>
        <translation>Zu besuchende Starfolds</translation>
    </message>
    <message>
        <source>Composite starfolds and their relative percent</source>
        <translation>Verbünde und ihr relativer Anteil</translation>
    </message>
    <message>
        <source>Major starfold type</source>
        <translation>Haupttyp</translation>
    </message>
    <message>
        <source>Minor starfold types</source>
        <translation>Nebentypen</translation>
    </message>
    <message>
        <source>Commit the composite starfold</source>
        <translation>Den Verbund eintragen</translation>
    </message>
    <message>
        <source>Property to copy</source>
        <translation>Zu kopierende Eigenschaft</translation>
    </message>
    <message>
        <source>Note:  The time required to compute the gravitational attraction 
between Starfolds is related to the Square of the number of Starfolds 
in the Universe.  Entering 0 will ensure that gravity computations are 
bypassed entirely.  See the Online help for more information.
Comets will NOT appear in any of the Starfolds if a non-zero Gravity is entered.</source>
        <translation>Hinweis:  Der Rechenaufwand für die Anziehung zwischen den Starfolds 
wächst mit dem Quadrat ihrer Anzahl im Universum. Mit dem Wert 0 
entfällt die Berechnung ganz. Näheres steht in der Hilfe.
Ist die Schwerkraft nicht 0, dann erscheinen in KEINEM Starfold Kometen.</translation>
    </message>
    <message>
        <source>Radius, Rotation (1, 0 - 30000):</source>
        <translation>Radius, Drehung (1, 0 - 30000):</translation>
    </message>
    <message>
        <source>Distance (0 - 30000), Axial Plane:</source>
        <translation>Abstand (0 - 30000), Achsenebene:</translation>
    </message>
    <message>
        <source>Radials (1 - 99), Fill % (0 - 100):</source>
        <translation>Arme (1 - 99), Füllung % (0 - 100):</translation>
    </message>
    <message>
        <source>Bands (1 - 99), Fill % (0 - 100):</source>
        <translation>Ringe (1 - 99), Füllung % (0 - 100):</translation>
    </message>
    <message>
        <source>Starfold Height / Width Ratio (0.0 - 99.9):</source>
        <translation>Verhältnis Höhe / Breite (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Radius Distribution Exponent (0.0 - 99.9):</source>
        <translation>Exponent der Radiusverteilung (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Height Distribution Exponent (0.0 - 99.9):</source>
        <translation>Exponent der Höhenverteilung (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Initial Tilt Angle in Degrees (0 - 360):</source>
        <translation>Neigung am Anfang in Grad (0 - 360):</translation>
    </message>
    <message>
        <source>Tilt Angle Increment in Degrees (0 - 360):</source>
        <translation>Zunahme der Neigung in Grad (0 - 360):</translation>
    </message>
    <message>
        <source>Hue Wheel Start (0 - 359), Increment (0 - 360):</source>
        <translation>Farbkreis-Anfang (0 - 359), Schritt (0 - 360):</translation>
    </message>
    <message>
        <source>Color Multiplier (0 - 30000):</source>
        <translation>Farbfaktor (0 - 30000):</translation>
    </message>
    <message>
        <source>Hydrogen</source>
        <translation>Wasserstoff</translation>
    </message>
    <message>
        <source>Helium</source>
        <translation>Helium</translation>
    </message>
    <message>
        <source>Lithium</source>
        <translation>Lithium</translation>
    </message>
    <message>
        <source>Beryllim</source>
        <translation>Beryllium</translation>
    </message>
    <message>
        <source>Boron</source>
        <translation>Bor</translation>
    </message>
    <message>
        <source>Carbon</source>
        <translation>Kohlenstoff</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Stickstoff</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Sauerstoff</translation>
    </message>
    <message>
        <source>Flourine</source>
        <translation>Fluor</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>Sodium</source>
        <translation>Natrium</translation>
    </message>
    <message>
        <source>Magnesium</source>
        <translation>Magnesium</translation>
    </message>
    <message>
        <source>Aluminum</source>
        <translation>Aluminium</translation>
    </message>
    <message>
        <source>Silicon</source>
        <translation>Silizium</translation>
    </message>
    <message>
        <source>Phosphorus</source>
        <translation>Phosphor</translation>
    </message>
    <message>
        <source>Sulphur</source>
        <translation>Schwefel</translation>
    </message>
    <message>
        <source>Chlorine</source>
        <translation>Chlor</translation>
    </message>
    <message>
        <source>Stars in all the Starfolds (10 - 30000):</source>
        <translation>Sterne in allen Starfolds (10 - 30000):</translation>
    </message>
    <message>
        <source>Starfolds in the Universe (1- 999):</source>
        <translation>Starfolds im Universum (1- 999):</translation>
    </message>
    <message>
        <source>Star Trail Length in Pixels (1 - 99):</source>
        <translation>Länge der Sternspuren in Pixeln (1 - 99):</translation>
    </message>
    <message>
        <source>Expansion Speed (0 - 99999):</source>
        <translation>Ausdehnungsgeschwindigkeit (0 - 99999):</translation>
    </message>
    <message>
        <source>Expansion Steps (1 - 9999):</source>
        <translation>Ausdehnungsschritte (1 - 9999):</translation>
    </message>
    <message>
        <source>Star Persistence (0.25 - 1.0):</source>
        <translation>Beständigkeit der Sterne (0.25 - 1.0):</translation>
    </message>
    <message>
        <source>Universe Expansion Damping (0.0 - 1.0):</source>
        <translation>Dämpfung der Ausdehnung (0.0 - 1.0):</translation>
    </message>
    <message>
        <source>Hue Start, End (0 - 999):</source>
        <translation>Farbton Anfang, Ende (0 - 999):</translation>
    </message>
    <message>
        <source>Recycle Universe after visiting Starfolds (1 - 999):</source>
        <translation>Neues Universum nach Besuchen (1 - 999):</translation>
    </message>
    <message>
        <source>Universe Profile:</source>
        <translation>Profil des Universums:</translation>
    </message>
    <message>
        <source>New Stars Frequency (0 - 9999):</source>
        <translation>Häufigkeit neuer Sterne (0 - 9999):</translation>
    </message>
    <message>
        <source>Exclusive to Current Starfold % (0 - 100):</source>
        <translation>Nur im besuchten Starfold % (0 - 100):</translation>
    </message>
    <message>
        <source>Tour the Universe</source>
        <translation>Rundflug durch das Universum</translation>
    </message>
    <message>
        <source>Steps per Control Point (1 - 9999):</source>
        <translation>Schritte je Kontrollpunkt (1 - 9999):</translation>
    </message>
    <message>
        <source>Control Points per Starfold Visit (1 - 999):</source>
        <translation>Kontrollpunkte je Besuch (1 - 999):</translation>
    </message>
    <message>
        <source>Control Points thru Starfold Core (0 - 999):</source>
        <translation>Kontrollpunkte durch den Kern (0 - 999):</translation>
    </message>
    <message>
        <source>Distance from Universe Center (0 - 999999):</source>
        <translation>Abstand vom Mittelpunkt (0 - 999999):</translation>
    </message>
    <message>
        <source>Camera Rotation Ramping (0 - 999):</source>
        <translation>Anlauf der Kameradrehung (0 - 999):</translation>
    </message>
    <message>
        <source>Tour per space-separated Starfold indices (1-66)</source>
        <translation>Rundflug nach Starfold-Nummern, durch Leerzeichen getrennt (1-66)</translation>
    </message>
    <message>
        <source>Visit Starfold Types Sequentially:</source>
        <translation>Starfold-Typen der Reihe nach besuchen:</translation>
    </message>
    <message>
        <source>Rotate Camera on approach to Starfolds:</source>
        <translation>Kamera beim Anflug auf Starfolds drehen:</translation>
    </message>
    <message>
        <source>Stars (0 - 3000):</source>
        <translation>Sterne (0 - 3000):</translation>
    </message>
    <message>
        <source>Persistence (0.25 - 1.0):</source>
        <translation>Beständigkeit (0.25 - 1.0):</translation>
    </message>
    <message>
        <source>Age Increment (0.0 - 10.0):</source>
        <translation>Alterszunahme (0.0 - 10.0):</translation>
    </message>
    <message>
        <source>Cycle Down Frames (0 - 999):</source>
        <translation>Bilder des Abklingens (0 - 999):</translation>
    </message>
    <message>
        <source>Max. Size Extension (1 - 99999):</source>
        <translation>Größte Reichweite (1 - 99999):</translation>
    </message>
    <message>
        <source>Gravitational Magnitude (0 - 999999):</source>
        <translation>Stärke der Schwerkraft (0 - 999999):</translation>
    </message>
    <message>
        <source>Calc. Velocity Vectors per Frame (1 - 999):</source>
        <translation>Berechnete Geschwindigkeiten je Bild (1 - 999):</translation>
    </message>
    <message>
        <source>Relative Percent in Universe</source>
        <translation>Relativer Anteil im Universum</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>Level Radius Step</source>
        <translation>Radius-Zunahme je Stufe</translation>
    </message>
    <message>
        <source>Level Height Scale</source>
        <translation>Höhenfaktor der Stufen</translation>
    </message>
    <message>
        <source>Levels Scale their Own Shape</source>
        <translation>Stufen skalieren ihre eigene Form</translation>
    </message>
    <message>
        <source>Alternate Tilt of Odd Levels</source>
        <translation>Ungerade Stufen anders geneigt</translation>
    </message>
    <message>
        <source>Taper Tilt toward Outer Levels</source>
        <translation>Neigung nach außen abnehmend</translation>
    </message>
    <message>
        <source>Starfold Hue:  Red</source>
        <translation>Starfold-Farbton:  Rot</translation>
    </message>
    <message>
        <source>Starfold Hue:  Green</source>
        <translation>Starfold-Farbton:  Grün</translation>
    </message>
    <message>
        <source>Starfold Hue:  Blue</source>
        <translation>Starfold-Farbton:  Blau</translation>
    </message>
    <message>
        <source>Starfold Hue:  Base</source>
        <translation>Starfold-Farbton:  Grundwert</translation>
    </message>
    <message>
        <source>Starfold Hue:  Blend</source>
        <translation>Starfold-Farbton:  Mischung</translation>
    </message>
    <message>
        <source>Starfold Radius</source>
        <translation>Starfold-Radius</translation>
    </message>
    <message>
        <source>Starfold Rotation Speed</source>
        <translation>Starfold-Drehgeschwindigkeit</translation>
    </message>
    <message>
        <source>Starfold Core Distance from Eye</source>
        <translation>Abstand des Starfold-Kerns vom Auge</translation>
    </message>
    <message>
        <source>Starfold Radial Arms</source>
        <translation>Starfold-Arme</translation>
    </message>
    <message>
        <source>Starfold Radial Arm Fill %</source>
        <translation>Füllung der Starfold-Arme %</translation>
    </message>
    <message>
        <source>Starfold Radial Bands</source>
        <translation>Starfold-Ringe</translation>
    </message>
    <message>
        <source>Starfold Radial Band Fill %</source>
        <translation>Füllung der Starfold-Ringe %</translation>
    </message>
    <message>
        <source>New Star Frequency</source>
        <translation>Häufigkeit neuer Sterne</translation>
    </message>
    <message>
        <source>New Star Frames</source>
        <translation>Bilder eines neuen Sterns</translation>
    </message>
    <message>
        <source>New Star Extension Multiplier</source>
        <translation>Reichweite neuer Sterne</translation>
    </message>
    <message>
        <source>Nova Star Frequency</source>
        <translation>Häufigkeit der Novae</translation>
    </message>
    <message>
        <source>Nova Star Frames</source>
        <translation>Bilder einer Nova</translation>
    </message>
    <message>
        <source>Nova Star Extension Multiplier</source>
        <translation>Reichweite der Novae</translation>
    </message>
    <message>
        <source>Pulsar Star Frequency</source>
        <translation>Häufigkeit der Pulsare</translation>
    </message>
    <message>
        <source>Pulsar Star Z-Depth</source>
        <translation>Tiefe der Pulsare</translation>
    </message>
    <message>
        <source>Pulsar Star General Shape</source>
        <translation>Form der Pulsare</translation>
    </message>
    <message>
        <source>Pulsar Star Cycles</source>
        <translation>Zyklen eines Pulsars</translation>
    </message>
    <message>
        <source>Pulsar Star Frames per Cycle</source>
        <translation>Bilder je Pulsar-Zyklus</translation>
    </message>
    <message>
        <source>Pulsar Star Radius Start</source>
        <translation>Pulsar-Radius am Anfang</translation>
    </message>
    <message>
        <source>Pulsar Star Radius End</source>
        <translation>Pulsar-Radius am Ende</translation>
    </message>
    <message>
        <source>Comet Frequency</source>
        <translation>Häufigkeit der Kometen</translation>
    </message>
    <message>
        <source>Comet Stars</source>
        <translation>Sterne eines Kometen</translation>
    </message>
    <message>
        <source>Comet Orbital Speed</source>
        <translation>Umlaufgeschwindigkeit der Kometen</translation>
    </message>
    <message>
        <source>Comet Emit Speed</source>
        <translation>Ausstoßgeschwindigkeit der Kometen</translation>
    </message>
    <message>
        <source>Comet Solar Wind</source>
        <translation>Sonnenwind der Kometen</translation>
    </message>
    <message>
        <source>Comet Persistence</source>
        <translation>Beständigkeit der Kometen</translation>
    </message>
    <message>
        <source>Comet Star Persistence</source>
        <translation>Beständigkeit der Kometensterne</translation>
    </message>
    <message>
        <source>Comet Hue Wheel Start</source>
        <translation>Kometen-Farbkreis, Anfang</translation>
    </message>
    <message>
        <source>Comet Hue Wheel End</source>
        <translation>Kometen-Farbkreis, Ende</translation>
    </message>
    <message>
        <source>Comet Hue Wheel Increment</source>
        <translation>Kometen-Farbkreis, Schritt</translation>
    </message>
    <message>
        <source>Starfold Height/Width Ratio</source>
        <translation>Starfold-Verhältnis Höhe/Breite</translation>
    </message>
    <message>
        <source>Starfold Radius Exponent</source>
        <translation>Starfold-Radiusexponent</translation>
    </message>
    <message>
        <source>Starfold Height Exponent</source>
        <translation>Starfold-Höhenexponent</translation>
    </message>
    <message>
        <source>Starfold Angular Tilt</source>
        <translation>Starfold-Neigung</translation>
    </message>
    <message>
        <source>Starfold Angular Tilt Increment</source>
        <translation>Zunahme der Starfold-Neigung</translation>
    </message>
    <message>
        <source>Starfold Color Multiplier</source>
        <translation>Starfold-Farbfaktor</translation>
    </message>
    <message>
        <source>Starfold Hue Wheel Increment</source>
        <translation>Starfold-Farbkreis, Schritt</translation>
    </message>
    <message>
        <source>Starfold Style</source>
        <translation>Starfold-Stil</translation>
    </message>
    <message>
        <source>Starfold Axial Plane of Rotation</source>
        <translation>Starfold-Achsenebene der Drehung</translation>
    </message>
    <message>
        <source>Starfold Color Computation Index</source>
        <translation>Starfold-Farbberechnung</translation>
    </message>
    <message>
        <source>Starfold Hue Wheel Start</source>
        <translation>Starfold-Farbkreis, Anfang</translation>
    </message>
    <message>
        <source>Starfold Shape Profile</source>
        <translation>Starfold-Formprofil</translation>
    </message>
    <message>
        <source>Nebula Control Points</source>
        <translation>Nebel-Kontrollpunkte</translation>
    </message>
    <message>
        <source>Nebula Control Point Steps</source>
        <translation>Nebel-Schritte je Kontrollpunkt</translation>
    </message>
    <message>
        <source>Nebula Control Points Closed</source>
        <translation>Nebel-Kontrollpunkte geschlossen</translation>
    </message>
    <message>
        <source>Nebula Advances the Hue Wheel</source>
        <translation>Nebel dreht den Farbkreis weiter</translation>
    </message>
    <message>
        <source>Nebula Bias Points</source>
        <translation>Nebel-Ballungspunkte</translation>
    </message>
    <message>
        <source>Nebula Bias Exponent</source>
        <translation>Nebel-Ballungsexponent</translation>
    </message>
    <message>
        <source>Nebula Bias Travel Speed</source>
        <translation>Nebel-Ballungsgeschwindigkeit</translation>
    </message>
    <message>
        <source>Quasar Emit Speed, Graviton Force</source>
        <translation>Quasar-Ausstoß, Graviton-Kraft</translation>
    </message>
    <message>
        <source>Attractor Points</source>
        <translation>Attraktorpunkte</translation>
    </message>
    <message>
        <source>Atoms</source>
        <translation>Atome</translation>
    </message>
    <message>
        <source>Center X</source>
        <translation>Mitte X</translation>
    </message>
    <message>
        <source>Center Y</source>
        <translation>Mitte Y</translation>
    </message>
    <message>
        <source>Center Z</source>
        <translation>Mitte Z</translation>
    </message>
    <message>
        <source>Loc X</source>
        <translation>Ort X</translation>
    </message>
    <message>
        <source>Loc Y</source>
        <translation>Ort Y</translation>
    </message>
    <message>
        <source>Loc Z</source>
        <translation>Ort Z</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Rel.Pct.</source>
        <translation>Relativer Anteil</translation>
    </message>
    <message>
        <source>Periodic Table Element:</source>
        <translation>Chemisches Element:</translation>
    </message>
    <message>
        <source>Atomic Structure:</source>
        <translation>Atomstruktur:</translation>
    </message>
    <message>
        <source>%1 takes a number, not %2</source>
        <translation>%1 braucht eine Zahl, nicht %2</translation>
    </message>
    <message>
        <source>there is no setting %1 in a composite</source>
        <translation>ein Verbund hat keine Einstellung %1</translation>
    </message>
    <message>
        <source>there is no setting %1 in a profile</source>
        <translation>ein Typ hat keine Einstellung %1</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>es gibt keine Einstellung %1</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>sie kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the stored settings cannot be changed</source>
        <translation>die gespeicherten Einstellungen können nicht geändert werden</translation>
    </message>
    <message>
        <source>your settings cannot be kept as %1</source>
        <translation>Ihre Einstellungen können nicht als %1 aufgehoben werden</translation>
    </message>
    <message>
        <source>the settings could not be stored</source>
        <translation>die Einstellungen konnten nicht gespeichert werden</translation>
    </message>
    <message>
        <source>the setting %1 is %2, which is no number from %3 to %4; its default %5 is used</source>
        <translation>die Einstellung %1 ist %2 und damit keine Zahl von %3 bis %4; die Vorgabe %5 gilt</translation>
    </message>
    <message>
        <source>Do you really want to reset the Properties to the %1 factory settings?

Yes      - Save current settings to 'propsave.sfd' then Reset the Properties.
No       - Reset Properties without saving current settings.
Cancel - Don't Reset or Save Properties.</source>
        <translation>Möchten Sie die Eigenschaften wirklich auf die Werkseinstellungen von %1 zurücksetzen?

Ja - Die aktuellen Einstellungen in „propsave.sfd“ speichern, dann zurücksetzen.
Nein - Zurücksetzen, ohne die aktuellen Einstellungen zu speichern.
Abbrechen - Weder zurücksetzen noch speichern.</translation>
    </message>
    <message>
        <source>Do you really want to reset the Properties to the %1 factory settings?

Yes      - Save current settings to 'propsave.sfd' then Reset the Properties.
No       - Reset Properties without saving current settings.
Cancel - Don't Reset or Save Properties.

'propsave.sfd' will be saved in:  %2</source>
        <translation>Möchten Sie die Eigenschaften wirklich auf die Werkseinstellungen von %1 zurücksetzen?

Ja - Die aktuellen Einstellungen in „propsave.sfd“ speichern, dann zurücksetzen.
Nein - Zurücksetzen, ohne die aktuellen Einstellungen zu speichern.
Abbrechen - Weder zurücksetzen noch speichern.

„propsave.sfd“ wird hier gespeichert:  %2</translation>
    </message>
    <message>
        <source>The stored settings could not be kept in:
%1</source>
        <translation>Die gespeicherten Einstellungen konnten nicht gesichert werden in:
%1</translation>
    </message>
    <message>
        <source>The Property settings cannot be saved.

The settings that were stored before are kept.</source>
        <translation>Die Einstellungen können nicht gespeichert werden.

Die zuvor gespeicherten Einstellungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>Welcome to %1.</source>
        <translation>Willkommen bei %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The stored settings cannot be read.

The Properties show the Factory Settings.  Accepting them replaces the stored settings,
which are kept in:  %1</source>
        <translation>Die gespeicherten Einstellungen können nicht gelesen werden.

Gezeigt werden die Werkseinstellungen. Wenn Sie diese übernehmen, ersetzen sie die gespeicherten,
die hier gesichert werden:  %1</translation>
    </message>
    <message>
        <source>What you have set is not stored yet.  It is still in the dialog.

You can try to store it again, for instance after making room on the disk;
save it as a template in another folder, and open that later;
or close the dialog without saving.</source>
        <translation>Ihre Einstellungen sind noch nicht gespeichert. Im Dialog sind sie noch vorhanden.

Sie können noch einmal versuchen, sie zu speichern, etwa nachdem Sie Platz auf dem Datenträger geschaffen haben;
sie in einem anderen Ordner als Vorlage speichern und diese später öffnen;
oder den Dialog schließen, ohne zu speichern.</translation>
    </message>
    <message>
        <source>The Advanced Settings of the template cannot be stored.

Those that were stored before are kept.</source>
        <translation>Die erweiterten Einstellungen der Vorlage können nicht gespeichert werden.

Die zuvor gespeicherten bleiben erhalten.</translation>
    </message>
    <message>
        <source>The Registry is read-only.

The Property settings cannot be saved.
You must change your Windows User Privileges so that programs 
can write to the Registry.  See your System Administrator for assistance.</source>
        <translation>Die Registrierung ist schreibgeschützt.

Die Einstellungen können nicht gespeichert werden.
Ändern Sie Ihre Benutzerrechte so, dass Programme 
in die Registrierung schreiben können. Ihre Systemverwaltung hilft Ihnen dabei.</translation>
    </message>
    <message>
        <source>The current settings could not be saved to:
%1</source>
        <translation>Die aktuellen Einstellungen konnten nicht gespeichert werden in:
%1</translation>
    </message>
    <message>
        <source>Levels (1-10), H/W Ratio (0.0 - 99.9):</source>
        <translation>Stufen (1-10), Höhe/Breite (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Points (1 - 99), Scale % (0 - 100):</source>
        <translation>Punkte (1 - 99), Maßstab % (0 - 100):</translation>
    </message>
    <message>
        <source>Rotation Angle Degrees (0 - 360):</source>
        <translation>Drehwinkel in Grad (0 - 360):</translation>
    </message>
    <message>
        <source>Vertices (4 - 10), Scale % (0 - 100):</source>
        <translation>Ecken (4 - 10), Maßstab % (0 - 100):</translation>
    </message>
    <message>
        <source>Linear Iteration Levels (1 - 99):</source>
        <translation>Lineare Iterationsstufen (1 - 99):</translation>
    </message>
    <message>
        <source>Points (4 - 10), Scale % (0 - 100):</source>
        <translation>Punkte (4 - 10), Maßstab % (0 - 100):</translation>
    </message>
    <message>
        <source>C-Points (1 - 20), Steps (0 - 9999):</source>
        <translation>K-Punkte (1 - 20), Schritte (0 - 9999):</translation>
    </message>
    <message>
        <source>Bias Points (1 - 99), Span (0 - 100):</source>
        <translation>Ballungspunkte (1 - 99), Spanne (0 - 100):</translation>
    </message>
    <message>
        <source>Expansion from Spline Path (0.0 - 99.9):</source>
        <translation>Ausbreitung vom Spline-Pfad (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Solar Wind Magnitude (0.0 - 99.9):</source>
        <translation>Stärke des Sonnenwinds (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Bias Point Travel Speed (0 - 999):</source>
        <translation>Tempo der Ballungspunkte (0 - 999):</translation>
    </message>
    <message>
        <source>Quasar Speed, H/W Ratio (0.0 - 99.9):</source>
        <translation>Quasar-Tempo, Höhe/Breite (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Gravity Force, H/W Ratio (0.0 - 99.9):</source>
        <translation>Schwerkraft, Höhe/Breite (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Expansion, Rotation (1, 0 - 30000):</source>
        <translation>Ausdehnung, Drehung (1, 0 - 30000):</translation>
    </message>
    <message>
        <source>Waves (1 - 99), Persist (0 - 999):</source>
        <translation>Wellen (1 - 99), Dauer (0 - 999):</translation>
    </message>
    <message>
        <source>Particle Wave Angle Increment (0.0 - 99.9):</source>
        <translation>Winkelzunahme der Teilchenwelle (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Standard:  Stellar Rotation about Axis</source>
        <translation>Standard:  Sterne drehen sich um die Achse</translation>
    </message>
    <message>
        <source>I.F.S.:  Single Point Attractor</source>
        <translation>IFS:  Einzelpunkt-Attraktor</translation>
    </message>
    <message>
        <source>I.F.S.:  Nested Geometric Wireframe</source>
        <translation>IFS:  Verschachteltes Drahtgitter</translation>
    </message>
    <message>
        <source>I.F.S.:  Space Filling Fractal</source>
        <translation>IFS:  Raumfüllendes Fraktal</translation>
    </message>
    <message>
        <source>Nebula:  Particle Ribbons</source>
        <translation>Nebel:  Teilchenbänder</translation>
    </message>
    <message>
        <source>Nebula Hue Wheel Cycling Offset  (0 - 30000):</source>
        <translation>Nebel-Farbkreis, Versatz  (0 - 30000):</translation>
    </message>
    <message>
        <source>Quasar:  Stars emitted from Core</source>
        <translation>Quasar:  Sterne strömen aus dem Kern</translation>
    </message>
    <message>
        <source>Graviton:  Stars reflected through Core</source>
        <translation>Graviton:  Sterne schwingen durch den Kern</translation>
    </message>
    <message>
        <source>Starwave:  Attenuated Particle Waves</source>
        <translation>Sternenwelle:  Abklingende Teilchenwellen</translation>
    </message>
    <message>
        <source>User Defined:  Iterated Function Systems</source>
        <translation>Benutzerdefiniert:  Iterierte Funktionensysteme</translation>
    </message>
    <message>
        <source>User Defined Iterated Function System...</source>
        <translation>Eigenes iteriertes Funktionensystem...</translation>
    </message>
    <message>
        <source>User Defined:  Molecular Structures</source>
        <translation>Benutzerdefiniert:  Molekülstrukturen</translation>
    </message>
    <message>
        <source>Atomic Sphere Color Blending  (0 - 30000):</source>
        <translation>Farbmischung der Atome  (0 - 30000):</translation>
    </message>
    <message>
        <source>User Defined Molecular Structure...</source>
        <translation>Eigene Molekülstruktur...</translation>
    </message>
    <message>
        <source>Its settings cannot be stored</source>
        <translation>Ihre Einstellungen können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Not a plain file</source>
        <translation>Keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Templates of Starfolds</source>
        <translation>Vorlagen von Starfolds</translation>
    </message>
    <message>
        <source>The template could not be opened:
%1</source>
        <translation>Die Vorlage konnte nicht geöffnet werden:
%1</translation>
    </message>
    <message>
        <source>The template could not be saved to:
%1</source>
        <translation>Die Vorlage konnte nicht gespeichert werden in:
%1</translation>
    </message>
    <message>
        <source>Starfold Templates (*.sfd)|*.sfd|All Files (*.*)|*.*|</source>
        <translation>Starfold-Vorlagen (*.sfd)|*.sfd|Alle Dateien (*.*)|*.*|</translation>
    </message>
    <message>
        <source>%1 stars in %2 starfolds of %3 types:</source>
        <translation>%1 Sterne in %2 Starfolds von %3 Typen:</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>Erneut vers&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Save as Template...</source>
        <translation>Als Vorlage &amp;speichern...</translation>
    </message>
    <message>
        <source>&amp;Close without Saving</source>
        <translation>Ohne Speichern s&amp;chließen</translation>
    </message>
    <message>
        <source>The Web Page could not be reached.

URL:  %1</source>
        <translation>Die Webseite ist nicht erreichbar.

URL:  %1</translation>
    </message>
    <message>
        <source>there is no screen %1</source>
        <translation>es gibt keinen Bildschirm %1</translation>
    </message>
    <message>
        <source>a preview inside another program's window needs an X server</source>
        <translation>eine Vorschau im Fenster eines anderen Programms braucht einen X-Server</translation>
    </message>
    <message>
        <source>there is no window %1 to show anything in</source>
        <translation>es gibt kein Fenster %1, in dem etwas gezeigt werden könnte</translation>
    </message>
    <message>
        <source>cannot store the universe of %1</source>
        <translation>das Universum von %1 kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Window can be Resized</source>
        <translation>Fenstergröße änderbar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>&amp;Set All</source>
        <translation>Alle set&amp;zen</translation>
    </message>
    <message>
        <source>Preview Comp</source>
        <translation>Vorschau Verbund</translation>
    </message>
    <message>
        <source>Comm&amp;it</source>
        <translation>E&amp;intragen</translation>
    </message>
    <message>
        <source>Gives all composites this relative percent</source>
        <translation>Gibt allen Verbünden diesen relativen Anteil</translation>
    </message>
    <message>
        <source>Space chooses a type or lets it go</source>
        <translation>Die Leertaste wählt einen Typ an oder ab</translation>
    </message>
    <message>
        <source>Com&amp;posites:</source>
        <translation>&amp;Verbünde:</translation>
    </message>
    <message>
        <source>Relative % of a&amp;ll (0 - 9999):</source>
        <translation>Relativer Anteil a&amp;ller in % (0 - 9999):</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>Relati&amp;ve % (0 - 9999):</source>
        <translation>Relativer Anteil in &amp;% (0 - 9999):</translation>
    </message>
    <message>
        <source>Ma&amp;jor Starfold Type:</source>
        <translation>Ha&amp;upttyp:</translation>
    </message>
    <message>
        <source>Min&amp;or Starfold Types:</source>
        <translation>Nebent&amp;ypen:</translation>
    </message>
    <message>
        <source>Please select a Major Starfold Type.</source>
        <translation>Bitte wählen Sie einen Haupttyp.</translation>
    </message>
    <message>
        <source>Note:

Two or more of the selected Starfold Types have a Style of IFS.
This may result in strange looking Starfolds.</source>
        <translation>Hinweis:

Zwei oder mehr der gewählten Starfold-Typen haben einen IFS-Stil.
Solche Starfolds können seltsam aussehen.</translation>
    </message>
    <message>
        <source>Composite %1</source>
        <translation>Verbund %1</translation>
    </message>
    <message>
        <source>Please enter a value for the Reset percent.</source>
        <translation>Bitte geben Sie den Anteil ein, auf den zurückgesetzt werden soll.</translation>
    </message>
    <message>
        <source>Percent of All Composites</source>
        <translation>Anteil aller Verbünde</translation>
    </message>
    <message>
        <source>A program inhibits idleness.</source>
        <translation>Ein Programm verhindert den Leerlauf.</translation>
    </message>
    <message>
        <source>MATE shows the screen savers here: choose Starfolds in its preferences.</source>
        <translation>Hier zeigt MATE die Bildschirmschoner: Wählen Sie Starfolds in dessen Einstellungen.</translation>
    </message>
    <message>
        <source>Xfce shows the screen savers here: choose Starfolds in its preferences.</source>
        <translation>Hier zeigt Xfce die Bildschirmschoner: Wählen Sie Starfolds in dessen Einstellungen.</translation>
    </message>
    <message>
        <source>About Starfolds</source>
        <translation>Über Starfolds</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>&amp;Licence</source>
        <translation>&amp;Lizenz</translation>
    </message>
    <message>
        <source>A body of stars</source>
        <translation>Ein Körper aus Sternen</translation>
    </message>
    <message>
        <source>A universe on your screen, each star a single pixel.</source>
        <translation>Ein Universum auf Ihrem Bildschirm, jeder Stern ein Pixel.</translation>
    </message>
    <message>
        <source>Build %1, with Qt %2.
%3.
Free software under the MIT licence.</source>
        <translation>Ausgabe %1, mit Qt %2.
%3.
Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>&amp;Credits...</source>
        <translation>&amp;Mitwirkende...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Operation Properties</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>On Screen Message</source>
        <translation>Bildschirmnachricht</translation>
    </message>
    <message>
        <source>Colour of the message</source>
        <translation>Farbe der Nachricht</translation>
    </message>
    <message>
        <source>The message as it will look</source>
        <translation>Die Nachricht, wie sie aussehen wird</translation>
    </message>
    <message>
        <source>Display Enhancement</source>
        <translation>Abwechslung</translation>
    </message>
    <message>
        <source>De&amp;faults</source>
        <translation>V&amp;orgaben</translation>
    </message>
    <message>
        <source>Shows the settings that the program came with; the text stays</source>
        <translation>Zeigt die Einstellungen, mit denen das Programm geliefert wurde; der Text bleibt</translation>
    </message>
    <message>
        <source>Paused. Ctrl+P: go on</source>
        <translation>Pause. Strg+P: weiter</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>The picture could not be saved: %1</source>
        <translation>Das Bild konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>F5: next universe, in this size</source>
        <translation>F5: nächstes Universum, in dieser Größe</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Mitwirkende</translation>
    </message>
    <message>
        <source>Select Template File</source>
        <translation>Vorlagendatei wählen</translation>
    </message>
    <message>
        <source>Loading Status:</source>
        <translation>Laden:</translation>
    </message>
    <message>
        <source>Saving Status:</source>
        <translation>Speichern:</translation>
    </message>
    <message>
        <source>A file of the same name is replaced.</source>
        <translation>Eine Datei gleichen Namens wird ersetzt.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>List Files of &amp;Type:</source>
        <translation>Datei&amp;typ:</translation>
    </message>
    <message>
        <source>&amp;Drive / Directory:</source>
        <translation>&amp;Laufwerk / Ordner:</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Der Ordner kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Please select an existing file.</source>
        <translation>Bitte wählen Sie eine vorhandene Datei.</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Bitte geben Sie einen Dateinamen ein.</translation>
    </message>
    <message>
        <source>Please enter a valid path and file.</source>
        <translation>Bitte geben Sie einen gültigen Pfad und Dateinamen ein.</translation>
    </message>
    <message>
        <source>When Idle</source>
        <translation>Bei Leerlauf</translation>
    </message>
    <message>
        <source>This locks nothing. If your desktop locks the screen after some time, choose fewer minutes here: the saver starts before the lock, and ends when it comes.</source>
        <translation>Hiermit wird nichts gesperrt. Wenn Ihr Desktop den Bildschirm nach einiger Zeit sperrt, wählen Sie hier weniger Minuten: Der Bildschirmschoner startet vor der Sperre und endet, wenn sie kommt.</translation>
    </message>
    <message>
        <source>Screen Saver</source>
        <translation>Bildschirmschoner</translation>
    </message>
    <message>
        <source>&amp;Start the screen saver when there is no input</source>
        <translation>Den Bildschirmschoner &amp;starten, wenn keine Eingabe kommt</translation>
    </message>
    <message>
        <source>&amp;Minutes without input (1 - 240):</source>
        <translation>&amp;Minuten ohne Eingabe (1 - 240):</translation>
    </message>
    <message>
        <source>Least charge on &amp;battery in % (0 - 100):</source>
        <translation>Mindestladung im A&amp;kkubetrieb in % (0 - 100):</translation>
    </message>
    <message>
        <source>Found Here</source>
        <translation>Hier gefunden</translation>
    </message>
    <message>
        <source>Asking the desktop...</source>
        <translation>Der Desktop wird befragt...</translation>
    </message>
    <message>
        <source>&amp;Test in Five Seconds</source>
        <translation>In fünf Sekunden &amp;testen</translation>
    </message>
    <message>
        <source>The settings cannot be stored.</source>
        <translation>Die Einstellungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 cannot be run.</source>
        <translation>%1 kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Stop the &amp;Test</source>
        <translation>&amp;Test anhalten</translation>
    </message>
    <message>
        <source>%1 Starfold Levels:  </source>
        <translation>%1 Starfold-Stufen:  </translation>
    </message>
    <message>
        <source>Levels Preview - %1</source>
        <translation>Vorschau der Stufen - %1</translation>
    </message>
    <message>
        <source>Radius:</source>
        <translation>Radius:</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Abstand:</translation>
    </message>
    <message>
        <source>Levels (1 - 10):</source>
        <translation>Stufen (1 - 10):</translation>
    </message>
    <message>
        <source>Radius Increment (1 - 30000):</source>
        <translation>Radius-Zunahme (1 - 30000):</translation>
    </message>
    <message>
        <source>Height Multiplier (0.0 - 99.9):</source>
        <translation>Höhenfaktor (0.0 - 99.9):</translation>
    </message>
    <message>
        <source>Starfold (0 - 30000)</source>
        <translation>Starfold (0 - 30000)</translation>
    </message>
    <message>
        <source>Level Properties:</source>
        <translation>Eigenschaften der Stufen:</translation>
    </message>
    <message>
        <source>%1 User Defined Molecular Structure:  </source>
        <translation>%1 Eigene Molekülstruktur:  </translation>
    </message>
    <message>
        <source>Molecule Preview - %1</source>
        <translation>Vorschau des Moleküls - %1</translation>
    </message>
    <message>
        <source>Preview Molecule</source>
        <translation>Vorschau Molekül</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Periodic Table &amp;Element:</source>
        <translation>Chemisches &amp;Element:</translation>
    </message>
    <message>
        <source>Atomic number</source>
        <translation>Ordnungszahl</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Number, Symbol:</source>
        <translation>Nummer, Symbol:</translation>
    </message>
    <message>
        <source>Electrons per shell</source>
        <translation>Elektronen je Schale</translation>
    </message>
    <message>
        <source>Electron Shells:</source>
        <translation>Elektronenschalen:</translation>
    </message>
    <message>
        <source>Color of the element</source>
        <translation>Farbe des Elements</translation>
    </message>
    <message>
        <source>The element's own color</source>
        <translation>Die eigene Farbe des Elements</translation>
    </message>
    <message>
        <source>Color in this starfold</source>
        <translation>Farbe in diesem Starfold</translation>
    </message>
    <message>
        <source>The color that it has in this starfold</source>
        <translation>Die Farbe, die es in diesem Starfold hat</translation>
    </message>
    <message>
        <source>Color, in Starfold:</source>
        <translation>Farbe, im Starfold:</translation>
    </message>
    <message>
        <source>Atomic &amp;Structure:</source>
        <translation>Atom&amp;struktur:</translation>
    </message>
    <message>
        <source>Atom, %1</source>
        <translation>Atom, %1</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>Ä&amp;ndern</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Please select an Element to update.</source>
        <translation>Bitte wählen Sie das Element, das Sie ändern möchten.</translation>
    </message>
    <message>
        <source>Please select one or more Elements to remove.</source>
        <translation>Bitte wählen Sie die Elemente, die Sie entfernen möchten.</translation>
    </message>
    <message>
        <source>Please select an Element.</source>
        <translation>Bitte wählen Sie ein Element.</translation>
    </message>
    <message>
        <source>Please select an Atomic Structure Type.</source>
        <translation>Bitte wählen Sie eine Atomstruktur.</translation>
    </message>
    <message>
        <source>Please enter a Symmetry Radius.</source>
        <translation>Bitte geben Sie einen Symmetrieradius ein.</translation>
    </message>
    <message>
        <source>Reset of the Properties</source>
        <translation>Zurücksetzen der Eigenschaften</translation>
    </message>
    <message>
        <source>Please select a Starfold Profile.</source>
        <translation>Bitte wählen Sie einen Starfold-Typ.</translation>
    </message>
    <message>
        <source>Starfold:  %1</source>
        <translation>Starfold:  %1</translation>
    </message>
    <message>
        <source>%1 of %2:  %3</source>
        <translation>%1 von %2:  %3</translation>
    </message>
    <message>
        <source>The settings were changed.

Do you want to accept the changes?</source>
        <translation>Die Einstellungen wurden geändert.

Möchten Sie die Änderungen übernehmen?</translation>
    </message>
    <message>
        <source>Theme %1</source>
        <translation>Thema %1</translation>
    </message>
    <message>
        <source>Theme: %1</source>
        <translation>Thema: %1</translation>
    </message>
    <message>
        <source>Surprise Me</source>
        <translation>Überraschung</translation>
    </message>
    <message>
        <source>A universe drawn at random</source>
        <translation>Ein zufällig gewähltes Universum</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Reset Properties</source>
        <translation>Eigenschaften &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Advanced Settings...</source>
        <translation>&amp;Erweiterte Einstellungen...</translation>
    </message>
    <message>
        <source>When &amp;Idle...</source>
        <translation>Bei &amp;Leerlauf...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Inhalt...</translation>
    </message>
    <message>
        <source>&amp;Search...</source>
        <translation>&amp;Suche...</translation>
    </message>
    <message>
        <source>&amp;Diagnostics...</source>
        <translation>&amp;Diagnose...</translation>
    </message>
    <message>
        <source>Share as a &amp;Link</source>
        <translation>Als &amp;Link teilen</translation>
    </message>
    <message>
        <source>Starfolds &amp;Home Page</source>
        <translation>Starfolds-&amp;Website</translation>
    </message>
    <message>
        <source>A&amp;bout Starfolds...</source>
        <translation>Ü&amp;ber Starfolds...</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Previous type</source>
        <translation>Voriger Typ</translation>
    </message>
    <message>
        <source>Next type</source>
        <translation>Nächster Typ</translation>
    </message>
    <message>
        <source>Changed, not accepted yet</source>
        <translation>Geändert, noch nicht übernommen</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation><numerusform>%1 und %n weitere</numerusform><numerusform>%1 und %n weitere</numerusform></translation>
    </message>
    <message>
        <source>Overridden in this run: %1.
What you accept is stored, and holds in runs without these options.</source>
        <translation>In diesem Lauf überschrieben: %1.
Was Sie übernehmen, wird gespeichert und gilt in Läufen ohne diese Optionen.</translation>
    </message>
    <message>
        <source>System Diagnostics</source>
        <translation>Systemdiagnose</translation>
    </message>
    <message>
        <source>System Information Is Unavailable.</source>
        <translation>Systeminformationen sind nicht verfügbar.</translation>
    </message>
    <message>
        <source>The report is on the clipboard.</source>
        <translation>Der Bericht ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Registry Access</source>
        <translation>Zugriff auf die Registrierung</translation>
    </message>
    <message>
        <source>Registry write test (passed test if value is OK):</source>
        <translation>Schreibtest (bestanden bei OK):</translation>
    </message>
    <message>
        <source>&amp;Complete System   Info...</source>
        <translation>&amp;Vollständige Systeminfo...</translation>
    </message>
    <message>
        <source>Graphics Test</source>
        <translation>Grafiktest</translation>
    </message>
    <message>
        <source>Windows Graphical API</source>
        <translation>Windows-Grafikschnittstelle</translation>
    </message>
    <message>
        <source>Window System (%1)</source>
        <translation>Fenstersystem (%1)</translation>
    </message>
    <message>
        <source>A circle, if stars can be plotted</source>
        <translation>Ein Kreis, wenn Sterne gezeichnet werden können</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>Betriebssystem</translation>
    </message>
    <message>
        <source>Windows OS Version:</source>
        <translation>Windows-Version:</translation>
    </message>
    <message>
        <source>OS Version:</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Width, height (twips):</source>
        <translation>Breite, Höhe (Twips):</translation>
    </message>
    <message>
        <source>Device Twips per pixel ratio:</source>
        <translation>Twips je Pixel:</translation>
    </message>
    <message>
        <source>Total display colors:</source>
        <translation>Anzahl der Farben:</translation>
    </message>
    <message>
        <source>Problematic values are noted in Red.</source>
        <translation>Problematische Werte sind rot.</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>&amp;Bericht kopieren</translation>
    </message>
    <message>
        <source>Puts all of this on the clipboard, with versions, screens and the cost of a frame</source>
        <translation>Kopiert all dies in die Zwischenablage, mit Versionen, Bildschirmen und dem Aufwand für ein Bild</translation>
    </message>
    <message>
        <source>%1 User Defined Iterated Function System (IFS):  </source>
        <translation>%1 Eigenes iteriertes Funktionensystem (IFS):  </translation>
    </message>
    <message>
        <source>IFS Preview - %1</source>
        <translation>IFS-Vorschau - %1</translation>
    </message>
    <message>
        <source>Preview I.F.S.</source>
        <translation>Vorschau IFS</translation>
    </message>
    <message>
        <source>Point %1</source>
        <translation>Punkt %1</translation>
    </message>
    <message>
        <source>Point %1:</source>
        <translation>Punkt %1:</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>New in this version</source>
        <translation>Neu in dieser Version</translation>
    </message>
    <message>
        <source>Progress of the safety copy</source>
        <translation>Fortschritt der Sicherungskopie</translation>
    </message>
    <message>
        <source>&amp;Reset the Properties</source>
        <translation>Eigenschaften &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Saves the current settings to propsave.sfd, then resets them</source>
        <translation>Speichert die aktuellen Einstellungen in propsave.sfd und setzt sie dann zurück</translation>
    </message>
    <message>
        <source>help/en</source>
        <translation>help/de</translation>
    </message>
    <message>
        <source>Text of the help</source>
        <translation>Text der Hilfe</translation>
    </message>
    <message>
        <source>&amp;Words to look for:</source>
        <translation>Such&amp;wörter:</translation>
    </message>
    <message>
        <source>Topics found</source>
        <translation>Gefundene Themen</translation>
    </message>
    <message>
        <source>No topic contains these words.</source>
        <translation>Kein Thema enthält diese Wörter.</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suche</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Starfolds Help - %1</source>
        <translation>Starfolds-Hilfe - %1</translation>
    </message>
    <message>
        <source>A program inhibits idleness (%1).</source>
        <translation>Ein Programm verhindert den Leerlauf (%1).</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>The body fills the picture. Otherwise it is at its distance from the camera, as in a run.</source>
        <translation>Der Körper füllt das Bild. Sonst ist er so weit von der Kamera entfernt wie im Lauf.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Bewegen</translation>
    </message>
    <message>
        <source>The body moves while no preview runs.</source>
        <translation>Der Körper bewegt sich, solange keine Vorschau läuft.</translation>
    </message>
    <message>
        <source>The desktop has locked or blanked the screen.</source>
        <translation>Der Desktop hat den Bildschirm gesperrt oder abgeschaltet.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Preview Starfold</source>
        <translation>Vorschau Starfold</translation>
    </message>
    <message>
        <source>Preview Universe</source>
        <translation>Vorschau Universum</translation>
    </message>
    <message>
        <source>Please select a Starfold Type.</source>
        <translation>Bitte wählen Sie einen Starfold-Typ.</translation>
    </message>
    <message>
        <source>Please select a Composite Starfold Type.</source>
        <translation>Bitte wählen Sie einen Verbund.</translation>
    </message>
    <message>
        <source>Val&amp;ue:</source>
        <translation>&amp;Wert:</translation>
    </message>
    <message>
        <source>&amp;Copy to All</source>
        <translation>An alle &amp;kopieren</translation>
    </message>
    <message>
        <source>Propert&amp;y:</source>
        <translation>Eigens&amp;chaft:</translation>
    </message>
    <message>
        <source>Writes the value into all fifty types of starfold</source>
        <translation>Schreibt den Wert in alle fünfzig Starfold-Typen</translation>
    </message>
    <message>
        <source>Control Point Loop is Closed?</source>
        <translation>Kontrollpunkt-Schleife geschlossen?</translation>
    </message>
    <message>
        <source>Please select a Property to copy.</source>
        <translation>Bitte wählen Sie die Eigenschaft, die kopiert werden soll.</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Kopieren von %1</translation>
    </message>
    <message>
        <source>Please select a Property value.</source>
        <translation>Bitte wählen Sie einen Wert.</translation>
    </message>
    <message>
        <source>Please enter a Property value.</source>
        <translation>Bitte geben Sie einen Wert ein.</translation>
    </message>
    <message>
        <source>A program inhibits idleness (logind).</source>
        <translation>Ein Programm verhindert den Leerlauf (logind).</translation>
    </message>
    <message>
        <source>Another session is on the screen.</source>
        <translation>Eine andere Sitzung ist auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>The screen is locked.</source>
        <translation>Der Bildschirm ist gesperrt.</translation>
    </message>
    <message>
        <source>The computer goes to sleep.</source>
        <translation>Der Rechner geht in den Ruhezustand.</translation>
    </message>
    <message>
        <source>Range: %1. Default: %2.</source>
        <translation>Bereich: %1. Vorgabe: %2.</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>Vorgabe: %1.</translation>
    </message>
    <message>
        <source>Back to &amp;Default (%1)</source>
        <translation>Zurück zur &amp;Vorgabe (%1)</translation>
    </message>
    <message>
        <source>%1 holds no settings that can be read; it is kept as %2</source>
        <translation>%1 enthält keine lesbaren Einstellungen; die Datei wird als %2 aufgehoben</translation>
    </message>
    <message>
        <source>%1 is locked by another process; its settings are ignored</source>
        <translation>%1 ist von einem anderen Prozess gesperrt; die Einstellungen darin gelten nicht</translation>
    </message>
    <message>
        <source>%1 takes too long to read; its settings are ignored</source>
        <translation>%1 zu lesen dauert zu lange; die Einstellungen darin gelten nicht</translation>
    </message>
    <message>
        <source>Shape and Color</source>
        <translation>Form und Farbe</translation>
    </message>
    <message>
        <source>Flares</source>
        <translation>Ausbrüche</translation>
    </message>
    <message>
        <source>&lt; NONE &gt;</source>
        <translation>&lt; KEINES &gt;</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Thema:</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translation>Se&amp;ite:</translation>
    </message>
    <message>
        <source>S&amp;urprise Me</source>
        <translation>&amp;Überraschung</translation>
    </message>
    <message>
        <source>A random body of this style.</source>
        <translation>Ein zufälliger Körper dieses Stils.</translation>
    </message>
    <message>
        <source>Start from a Sa&amp;mple</source>
        <translation>Mit &amp;Muster beginnen</translation>
    </message>
    <message>
        <source>The values of an original type of this style, which are a good start for your own.</source>
        <translation>Die Werte eines mitgelieferten Typs dieses Stils, ein guter Anfang für einen eigenen.</translation>
    </message>
    <message>
        <source>Revert This &amp;Body</source>
        <translation>Körper &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>The values that this type had when you opened it.</source>
        <translation>Die Werte, die dieser Typ beim Öffnen hatte.</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <translation>Sti&amp;l:</translation>
    </message>
    <message>
        <source>Axial plane</source>
        <translation>Achsenebene</translation>
    </message>
    <message>
        <source>&amp;Levels...</source>
        <translation>&amp;Stufen...</translation>
    </message>
    <message>
        <source>Curve of the shape profile</source>
        <translation>Kurve des Formprofils</translation>
    </message>
    <message>
        <source>Sh&amp;ape Profile:</source>
        <translation>&amp;Formprofil:</translation>
    </message>
    <message>
        <source>C&amp;olor Computation:</source>
        <translation>Fa&amp;rbberechnung:</translation>
    </message>
    <message>
        <source>Control Point Loop is Closed</source>
        <translation>Kontrollpunkt-Schleife geschlossen</translation>
    </message>
    <message>
        <source>Advance the Hue Wheel along the Ribbon</source>
        <translation>Farbkreis entlang des Bandes weiterdrehen</translation>
    </message>
    <message>
        <source>Pulsar Star &amp;General Shape:</source>
        <translation>All&amp;gemeine Form der Pulsare:</translation>
    </message>
    <message>
        <source>Hues of comets, novas and pulsars</source>
        <translation>Farbtöne der Kometen, Novae und Pulsare</translation>
    </message>
    <message>
        <source>Hues from start to end:</source>
        <translation>Farbtöne vom Anfang zum Ende:</translation>
    </message>
    <message>
        <source>Star Color</source>
        <translation>Sternfarbe</translation>
    </message>
    <message>
        <source>Hue:  Red, Green, Blue, Base (0 - 100), Blend (1 - 60):</source>
        <translation>Farbton:  Rot, Grün, Blau, Grundwert (0 - 100), Mischung (1 - 60):</translation>
    </message>
    <message>
        <source>Hues of the stars</source>
        <translation>Farbtöne der Sterne</translation>
    </message>
    <message>
        <source>Hues of the stars:</source>
        <translation>Farbtöne der Sterne:</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>A random body. Press again for another one.</source>
        <translation>Ein zufälliger Körper. Drücken Sie erneut für einen anderen.</translation>
    </message>
    <message>
        <source>Start from a Sample</source>
        <translation>Beginn mit einem Muster</translation>
    </message>
    <message>
        <source>Sample: %1</source>
        <translation>Muster: %1</translation>
    </message>
    <message>
        <source>Revert This Body</source>
        <translation>Zurücksetzen des Körpers</translation>
    </message>
    <message>
        <source>The values are those of the type when you opened it.</source>
        <translation>Die Werte sind die, die der Typ beim Öffnen hatte.</translation>
    </message>
    <message>
        <source>It holds no settings of a universe</source>
        <translation>Sie enthält keine Einstellungen eines Universums</translation>
    </message>
    <message>
        <source>&amp;Open Template...</source>
        <translation>Vorlage ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save Template</source>
        <translation>Vorlage &amp;speichern</translation>
    </message>
    <message>
        <source>Save Template &amp;As...</source>
        <translation>Vorlage speichern &amp;unter...</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>The settings are too long for a link. Save them as a template instead.</source>
        <translation>Die Einstellungen sind zu lang für einen Link. Speichern Sie sie stattdessen als Vorlage.</translation>
    </message>
    <message>
        <source>A link to this universe is in the clipboard now. Whoever opens it sees the universe in a browser.

The link contains the settings, without your on-screen message. Nothing was sent.</source>
        <translation>Ein Link zu diesem Universum ist jetzt in der Zwischenablage. Wer ihn öffnet, sieht das Universum in einem Browser.

Der Link enthält die Einstellungen, aber nicht Ihre Bildschirmnachricht. Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>Select Template to Open</source>
        <translation>Vorlage zum Öffnen wählen</translation>
    </message>
    <message>
        <source>Enter or Select Template to Save</source>
        <translation>Vorlage zum Speichern eingeben oder wählen</translation>
    </message>
    <message>
        <source>Opening of %1</source>
        <translation>Öffnen von %1</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>%1 geladen</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Pictures of the bodies of the template</source>
        <translation>Bilder der Körper der Vorlage</translation>
    </message>
    <message>
        <source>Select a Theme</source>
        <translation>Thema wählen</translation>
    </message>
    <message>
        <source>Rotation:</source>
        <translation>Drehung:</translation>
    </message>
    <message>
        <source>Center (0 - 9999)</source>
        <translation>Mitte (0 - 9999)</translation>
    </message>
    <message>
        <source>Center %1:</source>
        <translation>Mitte %1:</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cycle All Randomly</source>
        <translation>Alle, zufällig</translation>
    </message>
    <message>
        <source>Cycle All Sequentially</source>
        <translation>Alle, der Reihe nach</translation>
    </message>
    <message>
        <source>Starfold Types</source>
        <translation>Starfold-Typen</translation>
    </message>
    <message>
        <source>Starfold types and their relative percent</source>
        <translation>Starfold-Typen und ihr relativer Anteil</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>N&amp;ame:</translation>
    </message>
    <message>
        <source>Commit</source>
        <translation>Eintragen</translation>
    </message>
    <message>
        <source>&amp;Relative Percent in Universe:</source>
        <translation>&amp;Relativer Anteil im Universum:</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alle setzen</translation>
    </message>
    <message>
        <source>Gives all 50 types this percent</source>
        <translation>Gibt allen 50 Typen diesen Anteil</translation>
    </message>
    <message>
        <source>Reset all percents to:</source>
        <translation>Alle Anteile setzen auf:</translation>
    </message>
    <message>
        <source>Sho&amp;w Props</source>
        <translation>Eigenschaften zei&amp;gen</translation>
    </message>
    <message>
        <source>Opens the properties of the selected type</source>
        <translation>Öffnet die Eigenschaften des gewählten Typs</translation>
    </message>
    <message>
        <source>Filter of the starfold types</source>
        <translation>Filter der Starfold-Typen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Shows the types as large pictures</source>
        <translation>Zeigt die Typen als große Bilder</translation>
    </message>
    <message>
        <source>Copy Starfold Props to All Types</source>
        <translation>Starfold-Eigenschaft an alle Typen kopieren</translation>
    </message>
    <message>
        <source>Set on %1 of %2 types</source>
        <translation>Bei %1 von %2 Typen gesetzt</translation>
    </message>
    <message>
        <source>Universe Properties</source>
        <translation>Eigenschaften des Universums</translation>
    </message>
    <message>
        <source>Draws a universe at random: its settings, and the types in it</source>
        <translation>Wählt ein Universum zufällig: seine Einstellungen und die Typen darin</translation>
    </message>
    <message>
        <source>Page of universe properties</source>
        <translation>Seite der Universum-Eigenschaften</translation>
    </message>
    <message>
        <source>Creation</source>
        <translation>Entstehung</translation>
    </message>
    <message>
        <source>New / Ambient</source>
        <translation>Neu / Umgebung</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Rundflug</translation>
    </message>
    <message>
        <source>Composites</source>
        <translation>Verbünde</translation>
    </message>
    <message>
        <source>Gravity</source>
        <translation>Schwerkraft</translation>
    </message>
    <message>
        <source>Hues from start to end</source>
        <translation>Farbtöne vom Anfang zum Ende</translation>
    </message>
    <message>
        <source>Sample of the universe profile</source>
        <translation>Muster des Universum-Profils</translation>
    </message>
    <message>
        <source>Choosing a body from the list adds its number</source>
        <translation>Die Wahl eines Körpers aus der Liste fügt seine Nummer an</translation>
    </message>
    <message>
        <source>Name and Percent of %1</source>
        <translation>Name und Anteil von %1</translation>
    </message>
    <message>
        <source>Percent of All Types</source>
        <translation>Anteil aller Typen</translation>
    </message>
    <message>
        <source>All types have the percent %1</source>
        <translation>Alle Typen haben den Anteil %1</translation>
    </message>
    <message>
        <source>takes the number of a window, not %1</source>
        <translation>braucht die Nummer eines Fensters, nicht %1</translation>
    </message>
    <message>
        <source>Single    </source>
        <translation>Einzeln   </translation>
    </message>
    <message>
        <source> 6 Point  </source>
        <translation> 6 Punkte </translation>
    </message>
    <message>
        <source> 8 Point  </source>
        <translation> 8 Punkte </translation>
    </message>
    <message>
        <source>18 Shell  </source>
        <translation>18 Schale </translation>
    </message>
    <message>
        <source>26 Shell  </source>
        <translation>26 Schale </translation>
    </message>
    <message>
        <source>38 Shell  </source>
        <translation>38 Schale </translation>
    </message>
    <message>
        <source>Rectgrid  </source>
        <translation>Rechteckg.</translation>
    </message>
    <message>
        <source>Hexagrid  </source>
        <translation>Sechseckg.</translation>
    </message>
    <message>
        <source>Cube      </source>
        <translation>Würfel    </translation>
    </message>
    <message>
        <source>Tetramatrx</source>
        <translation>Tetragitt.</translation>
    </message>
    <message>
        <source>Octamatrix</source>
        <translation>Oktagitter</translation>
    </message>
    <message>
        <source>Hexamatrix</source>
        <translation>Hexagitter</translation>
    </message>
    <message>
        <source>Element Name(s)   Type        XLoc  YLoc  ZLoc  Radius  SymRad</source>
        <translation>Element           Struktur    X-Ort Y-Ort Z-Ort Radius  SymRad</translation>
    </message>
    <message>
        <source>Usage: </source>
        <translation>Aufruf: </translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>Two or more of the selected Starfold Types have a Style of IFS.</source>
        <translation>Zwei oder mehr der gewählten Starfold-Typen haben einen IFS-Stil.</translation>
    </message>
    <message>
        <source>Universe Creation</source>
        <translation>Entstehung des Universums</translation>
    </message>
    <message>
        <source>New / Ambient Star Creation</source>
        <translation>Neue Sterne und Umgebungssterne</translation>
    </message>
    <message>
        <source>Starfold Tour Characteristics</source>
        <translation>Rundflug zu den Starfolds</translation>
    </message>
    <message>
        <source>Composite Starfolds</source>
        <translation>Verbund-Starfolds</translation>
    </message>
    <message>
        <source>Gravity between Starfolds</source>
        <translation>Schwerkraft zwischen Starfolds</translation>
    </message>
    <message>
        <source>Starfold Motion, Shape and Color Properties</source>
        <translation>Bewegung, Form und Farbe</translation>
    </message>
    <message>
        <source>New, Nova and Pulsar Star Properties</source>
        <translation>Neue Sterne, Novae und Pulsare</translation>
    </message>
    <message>
        <source>Comet and Color Properties</source>
        <translation>Kometen und Farbe</translation>
    </message>
    <message>
        <source>Rotational Velocity</source>
        <translation>Drehgeschwindigkeit</translation>
    </message>
    <message>
        <source>Rotational Velocity (Square Root)</source>
        <translation>Drehgeschwindigkeit (Quadratwurzel)</translation>
    </message>
    <message>
        <source>Distance from Core</source>
        <translation>Abstand vom Kern</translation>
    </message>
    <message>
        <source>Distance from Core (Squared)</source>
        <translation>Abstand vom Kern (Quadrat)</translation>
    </message>
    <message>
        <source>Black (Stars are Invisible)</source>
        <translation>Schwarz (unsichtbare Sterne)</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Top-Like</source>
        <translation>Kreisel</translation>
    </message>
    <message>
        <source>Spherical</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Conical</source>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>Hyperbolic</source>
        <translation>Hyperbel</translation>
    </message>
    <message>
        <source>Outer-Hyperbolic</source>
        <translation>Äußere Hyperbel</translation>
    </message>
    <message>
        <source>Inner-Hyperbolic</source>
        <translation>Innere Hyperbel</translation>
    </message>
    <message>
        <source>Nova</source>
        <translation>Nova</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Sphere-2</source>
        <translation>Kugel 2</translation>
    </message>
    <message>
        <source>Stored the universe and the advanced settings of %1.</source>
        <translation>Das Universum und die erweiterten Einstellungen von %1 sind gespeichert.</translation>
    </message>
    <message>
        <source>To get the factory settings back: starfolds --settings, Edit &gt; Reset Properties, Accept Settings.</source>
        <translation>Zurück zu den Werkseinstellungen: starfolds --settings, Bearbeiten &gt; Eigenschaften zurücksetzen, Einstellungen übernehmen.</translation>
    </message>
    <message>
        <source>Your former settings are kept in %1.
To get them back: starfolds --settings, File &gt; Open Template, Accept Settings.</source>
        <translation>Ihre bisherigen Einstellungen stehen in %1.
Zurück zu ihnen: starfolds --settings, Datei &gt; Vorlage öffnen, Einstellungen übernehmen.</translation>
    </message>
    <message>
        <source>To look at a template and store nothing: starfolds --window FILE</source>
        <translation>Eine Vorlage ansehen, ohne etwas zu speichern: starfolds --window DATEI</translation>
    </message>
    <message>
        <source>It appears that you already have an earlier version of the product.  In order to experience the new effects in this version, you should Reset the Properties to the Factory Settings.  

Your current settings will be saved to the template file:  propsave.sfd

Restore your settings from the menu:  File-&gt; Open Template.</source>
        <translation>Sie haben offenbar schon eine frühere Version des Programms. Um die neuen Effekte dieser Version zu sehen, sollten Sie die Eigenschaften auf die Werkseinstellungen zurücksetzen.  

Ihre aktuellen Einstellungen werden in der Vorlagendatei gespeichert:  propsave.sfd

So holen Sie Ihre Einstellungen zurück:  Datei-&gt; Vorlage öffnen.</translation>
    </message>
    <message>
        <source>Thank you for installing %1.   You can use this product to simulate a Universe populated by several user-defined Starfolds.  Watch as the camera tours the Universe, visiting the Starfolds based on a trajectory that you provide.  

The Factory settings have been optimized for a 400 MHz CPU.
Disable mouse-move sensitivity from menu:  Edit-&gt; Advanced Settings.
This product is provided 'as is' without warranty of any kind.

Works on Windows 2000 (and 95, 98, NT4).
Settings are stored per the Current User, not the Local Machine.
Effects can be displayed on the desktop background.
Define Pulsars as a new type of star.
Set Starfold randomization values.</source>
        <translation>Danke, dass Sie %1 installiert haben.   Das Programm simuliert ein Universum aus Starfolds, die Sie selbst gestalten können. Sehen Sie zu, wie die Kamera das Universum durchfliegt und die Starfolds auf einer Bahn besucht, die Sie vorgeben.  

Die Werkseinstellungen sind für einen Prozessor mit 400 MHz ausgelegt.
Die Reaktion auf Mausbewegungen schalten Sie im Menü ab:  Bearbeiten-&gt; Erweiterte Einstellungen.
Das Programm wird ohne Mängelgewähr und ohne jede Garantie geliefert.

Läuft unter Windows 2000 (und 95, 98, NT4).
Die Einstellungen gelten je Benutzer, nicht für den Rechner.
Die Effekte können auf dem Hintergrund der Arbeitsfläche gezeigt werden.
Pulsare als neue Art von Sternen.
Zufällige Veränderung der Starfolds.</translation>
    </message>
</context>
</TS>
