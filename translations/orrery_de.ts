<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AnchorAlignment</name>
    <message>
        <source>Anchor Alignment</source>
        <translation>Ankerausrichtung</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Cntr</source>
        <translation>Zentr.</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Middle center</source>
        <translation>Mitte Mitte</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
</context>
<context>
    <name>AxisTitlesDialog</name>
    <message>
        <source>Axis Titles</source>
        <translation>Achsentitel</translation>
    </message>
    <message>
        <source>&amp;X axis:</source>
        <translation>&amp;X-Achse:</translation>
    </message>
    <message>
        <source>&amp;Y axis:</source>
        <translation>&amp;Y-Achse:</translation>
    </message>
    <message>
        <source>&amp;Z axis:</source>
        <translation>&amp;Z-Achse:</translation>
    </message>
</context>
<context>
    <name>ChooseLoader</name>
    <message>
        <source>Choose Loader</source>
        <translation>Lader wählen</translation>
    </message>
    <message>
        <source>Multiple loaders support this kind of file.  Please choose 
which loader you would like to use.</source>
        <translation>Mehrere Lader unterstützen diese Dateiart.  Bitte wählen Sie, 
welchen Lader Sie verwenden möchten.</translation>
    </message>
    <message>
        <source>Choose Loader </source>
        <translation>Lader wählen </translation>
    </message>
    <message>
        <source>A loader could not be found for this file type.
Please choose which loader you would like to use.</source>
        <translation>Für diesen Dateityp wurde kein Lader gefunden.
Bitte wählen Sie, welchen Lader Sie verwenden möchten.</translation>
    </message>
    <message>
        <source>Multiple loaders support this kind of file.
Please choose which loader you would like to use.</source>
        <translation>Mehrere Lader unterstützen diese Dateiart.
Bitte wählen Sie, welchen Lader Sie verwenden möchten.</translation>
    </message>
    <message>
        <source>Suggested Loaders</source>
        <translation>Vorgeschlagene Lader</translation>
    </message>
    <message>
        <source>Other Available Loaders</source>
        <translation>Weitere verfügbare Lader</translation>
    </message>
    <message>
        <source>Loaders</source>
        <translation>Lader</translation>
    </message>
    <message>
        <source>CSV table</source>
        <translation>CSV-Tabelle</translation>
    </message>
    <message>
        <source>Text table</source>
        <translation>Texttabelle</translation>
    </message>
    <message>
        <source>VTK legacy</source>
        <translation>VTK (Legacy)</translation>
    </message>
    <message>
        <source>Zone blocks</source>
        <translation>Zonenblöcke</translation>
    </message>
</context>
<context>
    <name>ColorButtonDemoDialog</name>
    <message>
        <source>Mesh Color</source>
        <translation>Gitterfarbe</translation>
    </message>
    <message>
        <source>Mesh &amp;color of zone 1:</source>
        <translation>Gitter&amp;farbe von Zone 1:</translation>
    </message>
</context>
<context>
    <name>ColorChooser</name>
    <message>
        <source>Color Chooser</source>
        <translation>Farbauswahl</translation>
    </message>
    <message>
        <source>Multi &amp;1</source>
        <translation>Multi &amp;1</translation>
    </message>
    <message>
        <source>&amp;2</source>
        <translation>&amp;2</translation>
    </message>
    <message>
        <source>&amp;3</source>
        <translation>&amp;3</translation>
    </message>
    <message>
        <source>&amp;4</source>
        <translation>&amp;4</translation>
    </message>
    <message>
        <source>&amp;5</source>
        <translation>&amp;5</translation>
    </message>
    <message>
        <source>&amp;6</source>
        <translation>&amp;6</translation>
    </message>
    <message>
        <source>&amp;7</source>
        <translation>&amp;7</translation>
    </message>
    <message>
        <source>&amp;8</source>
        <translation>&amp;8</translation>
    </message>
    <message>
        <source>&amp;RGB</source>
        <translation>&amp;RGB</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Cust %1</source>
        <translation>Ben. %1</translation>
    </message>
    <message>
        <source>Custom color %1</source>
        <translation>Benutzerfarbe %1</translation>
    </message>
    <message>
        <source>RGBCOLOR</source>
        <translation>RGB-FARBE</translation>
    </message>
    <message>
        <source>Multi</source>
        <translation>Multi</translation>
    </message>
    <message>
        <source>Multi%1</source>
        <translation>Multi%1</translation>
    </message>
    <message>
        <source>Multi-colouring %1: coloured by a variable</source>
        <translation>Mehrfarbig %1: nach einer Variablen gefärbt</translation>
    </message>
    <message>
        <source>RGB colouring: red, green and blue from three variables</source>
        <translation>RGB-Färbung: Rot, Grün und Blau aus drei Variablen</translation>
    </message>
</context>
<context>
    <name>ColourRamp</name>
    <message>
        <source>Perceptual (violet to yellow)</source>
        <translation>Wahrnehmungsgleich (Violett bis Gelb)</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Rainbow (blue to red)</source>
        <translation>Regenbogen (Blau bis Rot)</translation>
    </message>
</context>
<context>
    <name>DialogCatalog</name>
    <message>
        <source>Title of the new frame:</source>
        <translation>Titel des neuen Rahmens:</translation>
    </message>
    <message>
        <source>Frame 1</source>
        <translation>Rahmen 1</translation>
    </message>
    <message>
        <source>Index Range</source>
        <translation>Indexbereich</translation>
    </message>
    <message>
        <source>&amp;Begin</source>
        <translation>&amp;Beginn</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Schritt</translation>
    </message>
    <message>
        <source>Text String...</source>
        <translation>Textzeichenfolge...</translation>
    </message>
    <message>
        <source>Three Integer Values...</source>
        <translation>Drei ganze Zahlen...</translation>
    </message>
    <message>
        <source>ASCII Character...</source>
        <translation>ASCII-Zeichen...</translation>
    </message>
    <message>
        <source>Anchor Alignment...</source>
        <translation>Ankerausrichtung...</translation>
    </message>
    <message>
        <source>Choose Loader...</source>
        <translation>Lader wählen...</translation>
    </message>
    <message>
        <source>Color Chooser...</source>
        <translation>Farbauswahl...</translation>
    </message>
    <message>
        <source>Color Chooser, Multi Color...</source>
        <translation>Farbauswahl, Mehrfarbig...</translation>
    </message>
    <message>
        <source>Color Chooser without Variable Coloring...</source>
        <translation>Farbauswahl ohne Färbung nach Variable...</translation>
    </message>
    <message>
        <source>Color Chooser, RGB...</source>
        <translation>Farbauswahl, RGB...</translation>
    </message>
    <message>
        <source>Color Button...</source>
        <translation>Farbknopf...</translation>
    </message>
    <message>
        <source>RGB Coloring Options...</source>
        <translation>RGB-Färbungsoptionen...</translation>
    </message>
    <message>
        <source>Color Chooser, RGB with Channel Variables...</source>
        <translation>Farbauswahl, RGB mit Kanalvariablen...</translation>
    </message>
    <message>
        <source>Scatter Size and Font...</source>
        <translation>Streusymbol: Größe und Schrift...</translation>
    </message>
    <message>
        <source>Axis Variables...</source>
        <translation>Achsenvariablen...</translation>
    </message>
    <message>
        <source>Vector Variables...</source>
        <translation>Vektorvariablen...</translation>
    </message>
    <message>
        <source>RGB Variables...</source>
        <translation>RGB-Variablen...</translation>
    </message>
    <message>
        <source>Add-on Variables...</source>
        <translation>Add-on-Variablen...</translation>
    </message>
    <message>
        <source>Select Zone...</source>
        <translation>Zone wählen...</translation>
    </message>
    <message>
        <source>color = %1 (%2)</source>
        <translation>Farbe = %1 (%2)</translation>
    </message>
    <message>
        <source>mesh color of zone 1 = %1, button shows &quot;%2&quot;</source>
        <translation>Gitterfarbe von Zone 1 = %1, Schaltfläche zeigt &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Heated plate</source>
        <translation>Beheizte Platte</translation>
    </message>
    <message>
        <source>Choose the add-on&apos;s input variables.</source>
        <translation>Wählen Sie die Eingabevariablen des Zusatzmoduls.</translation>
    </message>
    <message>
        <source>&amp;Source:</source>
        <translation>&amp;Quelle:</translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation>&amp;Gewicht:</translation>
    </message>
    <message>
        <source>source = %1, weight = %2, %3</source>
        <translation>Quelle = %1, Gewicht = %2, %3</translation>
    </message>
    <message>
        <source>zone = %1</source>
        <translation>Zone = %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>text = &quot;%1&quot;</source>
        <translation>Text = &quot;%1&quot;</translation>
    </message>
    <message>
        <source>values = %1, %2, %3</source>
        <translation>Werte = %1, %2, %3</translation>
    </message>
    <message>
        <source>character = &apos;%1&apos;, type face = %2, base font = %3</source>
        <translation>Zeichen = &apos;%1&apos;, Schriftart = %2, Grundschrift = %3</translation>
    </message>
    <message>
        <source>alignment = %1</source>
        <translation>Ausrichtung = %1</translation>
    </message>
    <message>
        <source>loader = %1</source>
        <translation>Lader = %1</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keiner)</translation>
    </message>
    <message>
        <source>mode = &quot;%1&quot;, red = %2, green = %3, blue = %4</source>
        <translation>Modus = &quot;%1&quot;, Rot = %2, Grün = %3, Blau = %4</translation>
    </message>
    <message>
        <source>%1: variable = %2, cm/magnitude = %3, grid units/magnitude = %4</source>
        <translation>%1: Variable = %2, cm/Betrag = %3, Gittereinheiten/Betrag = %4</translation>
    </message>
    <message>
        <source>no style written</source>
        <translation>kein Stil geschrieben</translation>
    </message>
    <message>
        <source>wrote %1</source>
        <translation>geschrieben: %1</translation>
    </message>
    <message>
        <source>the plot is unchanged: %1</source>
        <translation>der Plot bleibt unverändert: %1</translation>
    </message>
    <message>
        <source>no zone is coloured by RGB yet: choose RGB in the Color Chooser</source>
        <translation>noch ist keine Zone nach RGB gefärbt: RGB in der Farbauswahl wählen</translation>
    </message>
    <message>
        <source>the plot&apos;s title is &quot;%1&quot;</source>
        <translation>der Titel des Plots ist „%1“</translation>
    </message>
    <message>
        <source>points %1 to %2 of each zone are drawn, every %3</source>
        <translation>Punkte %1 bis %2 jeder Zone werden gezeichnet, in Schritten von %3</translation>
    </message>
    <message>
        <source>the scatter symbols are &quot;%1&quot;</source>
        <translation>die Streusymbole sind „%1“</translation>
    </message>
    <message>
        <source>the title is placed by the anchor chosen</source>
        <translation>der Titel steht am gewählten Ankerpunkt</translation>
    </message>
    <message>
        <source>the plot is unchanged: a loader reads a file when one is opened</source>
        <translation>der Plot bleibt unverändert: ein Lader liest eine Datei, wenn sie geöffnet wird</translation>
    </message>
    <message>
        <source>vectors are shown</source>
        <translation>Vektoren werden gezeigt</translation>
    </message>
    <message>
        <source>the plot is unchanged: the add-on&apos;s inputs are its own</source>
        <translation>der Plot bleibt unverändert: die Eingaben gehören dem Add-on</translation>
    </message>
    <message>
        <source>zone %1 is picked out, the others are pale</source>
        <translation>Zone %1 ist hervorgehoben, die anderen sind blass</translation>
    </message>
    <message>
        <source>the points of zone %1 are coloured %2</source>
        <translation>die Punkte von Zone %1 haben die Farbe %2</translation>
    </message>
    <message>
        <source>symbols are hidden: View &gt; Show Scatter Symbols shows them</source>
        <translation>Symbole sind ausgeblendet: Ansicht &gt; Streusymbole zeigen blendet sie ein</translation>
    </message>
</context>
<context>
    <name>EnterASCIICharacter</name>
    <message>
        <source>Enter ASCII Character</source>
        <translation>ASCII-Zeichen eingeben</translation>
    </message>
    <message>
        <source>Enter &amp;character to use as a symbol:</source>
        <translation>&amp;Zeichen, das als Symbol dient:</translation>
    </message>
    <message>
        <source>&amp;Base</source>
        <translation>&amp;Basis</translation>
    </message>
    <message>
        <source>&amp;Math</source>
        <translation>&amp;Mathematik</translation>
    </message>
    <message>
        <source>&amp;Greek</source>
        <translation>&amp;Griechisch</translation>
    </message>
    <message>
        <source>&amp;User defined</source>
        <translation>Ben&amp;utzerdefiniert</translation>
    </message>
    <message>
        <source>Selected character cannot be empty.</source>
        <translation>Das gewählte Zeichen darf nicht leer sein.</translation>
    </message>
</context>
<context>
    <name>EnterTextString</name>
    <message>
        <source>Prompt for text string</source>
        <translation>Texteingabe</translation>
    </message>
    <message>
        <source>&amp;Enter your input string:</source>
        <translation>&amp;Geben Sie Ihren Text ein:</translation>
    </message>
</context>
<context>
    <name>EnterThreeIntValues</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>Textfeld</translation>
    </message>
    <message>
        <source>&amp;Begin</source>
        <translation>&amp;Beginn</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Schritt</translation>
    </message>
</context>
<context>
    <name>HostScene</name>
    <message>
        <source>No data set: open a file or a sample.</source>
        <translation>Kein Datensatz: Öffnen Sie eine Datei oder ein Beispiel.</translation>
    </message>
    <message>
        <source>Plot type %1 shows no data in this demo.</source>
        <translation>Plottyp %1 zeigt in dieser Demo keine Daten.</translation>
    </message>
    <message>
        <source>Symbols are drawn for the first %1 points of a zone.</source>
        <translation>Symbole werden für die ersten %1 Punkte einer Zone gezeichnet.</translation>
    </message>
    <message>
        <source>Choose the axis variables (Dialogs &gt; Axis Variables).</source>
        <translation>Wählen Sie die Achsenvariablen (Dialoge &gt; Achsenvariablen).</translation>
    </message>
    <message>
        <source>%1: %2 value(s) beyond ±1e306 or closer to 0 than 2.2e-308 cannot be drawn and are left out.</source>
        <translation>%1: %2 Wert(e) jenseits von ±1e306 oder näher an 0 als 2,2e-308 lassen sich nicht zeichnen und werden ausgelassen.</translation>
    </message>
    <message>
        <source>%1 has no positive values: its axis is linear.</source>
        <translation>%1 hat keine positiven Werte: seine Achse ist linear.</translation>
    </message>
    <message>
        <source>Nothing to draw: every value of %1 is beyond ±1e306 or closer to 0 than 2.2e-308.</source>
        <translation>Nichts zu zeichnen: Jeder Wert von %1 liegt jenseits von ±1e306 oder näher an 0 als 2,2e-308.</translation>
    </message>
    <message>
        <source>Nothing to draw: %1 has no values in the points chosen.</source>
        <translation>Nichts zu zeichnen: %1 hat in den gewählten Punkten keine Werte.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Orrery Prompts demo</source>
        <translation>Orrery-Prompts-Demo</translation>
    </message>
    <message>
        <source>Open a dialog from the Dialogs menu; its answers appear here.</source>
        <translation>Öffnen Sie einen Dialog im Menü „Dialoge“; seine Antworten erscheinen hier.</translation>
    </message>
    <message>
        <source>Every change is recorded here as a command.</source>
        <translation>Jede Änderung wird hier als Befehl aufgezeichnet.</translation>
    </message>
    <message>
        <source>Host state</source>
        <translation>Zustand des Hosts</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Antworten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open Sa&amp;mple</source>
        <translation>&amp;Beispiel öffnen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Plot Type</source>
        <translation>&amp;Plottyp</translation>
    </message>
    <message>
        <source>&amp;3D Cartesian</source>
        <translation>&amp;3D kartesisch</translation>
    </message>
    <message>
        <source>&amp;2D Cartesian</source>
        <translation>&amp;2D kartesisch</translation>
    </message>
    <message>
        <source>&amp;XY Line</source>
        <translation>&amp;XY-Linie</translation>
    </message>
    <message>
        <source>Show &amp;Vectors</source>
        <translation>&amp;Vektoren zeigen</translation>
    </message>
    <message>
        <source>Show &amp;Scatter Symbols</source>
        <translation>&amp;Streusymbole zeigen</translation>
    </message>
    <message>
        <source>&amp;Dialogs</source>
        <translation>D&amp;ialoge</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Vectors need a field plot and two variables besides the axes.</source>
        <translation>Vektoren brauchen einen Feldplot und zwei Variablen neben den Achsen.</translation>
    </message>
    <message>
        <source>%1: not available now (it needs a data set)</source>
        <translation>%1: jetzt nicht verfügbar (braucht einen Datensatz)</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>angenommen</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Open Data File</source>
        <translation>Datendatei öffnen</translation>
    </message>
    <message>
        <source>Built-in: Heated Plate</source>
        <translation>Eingebaut: Beheizte Platte</translation>
    </message>
    <message>
        <source>Loaded the built-in sample data set</source>
        <translation>Eingebauten Beispieldatensatz geladen</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>The demo did not end normally last time. Restore the session it was working on?</source>
        <translation>Die Demo wurde beim letzten Mal nicht regulär beendet. Die Sitzung wiederherstellen, an der sie arbeitete?</translation>
    </message>
    <message>
        <source>The autosaved session was kept as %1.</source>
        <translation>Die automatisch gesicherte Sitzung wurde als %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open S&amp;ession...</source>
        <translation>S&amp;itzung öffnen...</translation>
    </message>
    <message>
        <source>&amp;Save Session...</source>
        <translation>Sitzung &amp;speichern...</translation>
    </message>
    <message>
        <source>Data files and sessions (*.csv *.txt *.dat *.zbk *.vtk *.orrery-journal *.orj);;All files (*)</source>
        <translation>Datendateien und Sitzungen (*.csv *.txt *.dat *.zbk *.vtk *.orrery-journal *.orj);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Session</source>
        <translation>Sitzung speichern</translation>
    </message>
    <message>
        <source>Sessions (*.orrery-journal);;All files (*)</source>
        <translation>Sitzungen (*.orrery-journal);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation>Sitzung öffnen</translation>
    </message>
    <message>
        <source>Sessions (*.orrery-journal *.orj);;All files (*)</source>
        <translation>Sitzungen (*.orrery-journal *.orj);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>There is no autosaved session to restore in %1.</source>
        <translation>In %1 gibt es keine automatisch gesicherte Sitzung zum Wiederherstellen.</translation>
    </message>
    <message>
        <source>The restored session stays in %1 until it is saved.</source>
        <translation>Die wiederhergestellte Sitzung bleibt in %1, bis sie gespeichert wird.</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The session has changes that are not saved. Save them before closing?</source>
        <translation>Die Sitzung hat Änderungen, die nicht gespeichert sind. Vor dem Schließen speichern?</translation>
    </message>
</context>
<context>
    <name>NewFigure</name>
    <message>
        <source>the index range</source>
        <translation>den Indexbereich</translation>
    </message>
    <message>
        <source>the zone picked out</source>
        <translation>die hervorgehobene Zone</translation>
    </message>
    <message>
        <source>the title</source>
        <translation>den Titel</translation>
    </message>
    <message>
        <source>the logarithmic X axis</source>
        <translation>die logarithmische X-Achse</translation>
    </message>
    <message>
        <source>the logarithmic Y axis</source>
        <translation>die logarithmische Y-Achse</translation>
    </message>
    <message>
        <source>the axis variables</source>
        <translation>die Achsenvariablen</translation>
    </message>
    <message>
        <source>the RGB channel variables</source>
        <translation>die RGB-Kanalvariablen</translation>
    </message>
    <message>
        <source>the vector variables</source>
        <translation>die Vektorvariablen</translation>
    </message>
    <message>
        <source>the colouring variable</source>
        <translation>die Färbungsvariable</translation>
    </message>
    <message>
        <source>the scatter size variable</source>
        <translation>die Variable der Streusymbolgröße</translation>
    </message>
    <message>
        <source>A new data set starts a new figure: reset %1.</source>
        <translation>Ein neuer Datensatz beginnt eine neue Abbildung: zurückgesetzt wurden %1.</translation>
    </message>
</context>
<context>
    <name>OptionTables</name>
    <message>
        <source>Contour Group Levels</source>
        <translation>Konturgruppen-Niveaus</translation>
    </message>
    <message>
        <source>1 Specified Value</source>
        <translation>1 angegebener Wert</translation>
    </message>
    <message>
        <source>2 Specified Values</source>
        <translation>2 angegebene Werte</translation>
    </message>
    <message>
        <source>3 Specified Values</source>
        <translation>3 angegebene Werte</translation>
    </message>
    <message>
        <source>all corners are blanked</source>
        <translation>alle Ecken ausgeblendet sind</translation>
    </message>
    <message>
        <source>any corner is blanked</source>
        <translation>eine Ecke ausgeblendet ist</translation>
    </message>
    <message>
        <source>primary value is blanked</source>
        <translation>der Primärwert ausgeblendet ist</translation>
    </message>
    <message>
        <source>is less than or equal to</source>
        <translation>kleiner oder gleich ist</translation>
    </message>
    <message>
        <source>is greater than or equal to</source>
        <translation>größer oder gleich ist</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>kleiner ist als</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>größer ist als</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>gleich ist</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>ungleich ist</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Dash dot</source>
        <translation>Strich-Punkt</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>Long dash</source>
        <translation>Langer Strich</translation>
    </message>
    <message>
        <source>Dash dot dot</source>
        <translation>Strich-Punkt-Punkt</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Ansichtsfenster</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Before data</source>
        <translation>Vor den Daten</translation>
    </message>
    <message>
        <source>After data</source>
        <translation>Nach den Daten</translation>
    </message>
    <message>
        <source>Auto unload</source>
        <translation>Automatisch entladen</translation>
    </message>
    <message>
        <source>Never unload</source>
        <translation>Nie entladen</translation>
    </message>
    <message>
        <source>Minimize memory use</source>
        <translation>Speicherbedarf minimieren</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Innen</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Außen</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>At angle</source>
        <translation>Im Winkel</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>Parallel</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>X-Planes</source>
        <translation>X-Ebenen</translation>
    </message>
    <message>
        <source>Y-Planes</source>
        <translation>Y-Ebenen</translation>
    </message>
    <message>
        <source>Z-Planes</source>
        <translation>Z-Ebenen</translation>
    </message>
    <message>
        <source>I-Planes</source>
        <translation>I-Ebenen</translation>
    </message>
    <message>
        <source>J-Planes</source>
        <translation>J-Ebenen</translation>
    </message>
    <message>
        <source>K-Planes</source>
        <translation>K-Ebenen</translation>
    </message>
    <message>
        <source>Arbitrary</source>
        <translation>Beliebig</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Flood</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>Lines and flood</source>
        <translation>Linien und Flächen</translation>
    </message>
    <message>
        <source>Average cell flood</source>
        <translation>Zellmittel-Flächen</translation>
    </message>
    <message>
        <source>Primary value flood</source>
        <translation>Primärwert-Flächen</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Allow Quads (Smoother Contours)</source>
        <translation>Vierecke zulassen (glattere Konturen)</translation>
    </message>
    <message>
        <source>All Triangles (Avoids Holes)</source>
        <translation>Nur Dreiecke (vermeidet Löcher)</translation>
    </message>
    <message>
        <source>All Polygons (Preserves Mesh)</source>
        <translation>Nur Polygone (erhält das Gitter)</translation>
    </message>
    <message>
        <source>Paneled</source>
        <translation>Flächig</translation>
    </message>
    <message>
        <source>Gouraud</source>
        <translation>Gouraud</translation>
    </message>
    <message>
        <source>Specify R, G, and B</source>
        <translation>R, G und B angeben</translation>
    </message>
    <message>
        <source>Specify R&amp;G, calculate B</source>
        <translation>R&amp;G angeben, B berechnen</translation>
    </message>
    <message>
        <source>Specify R&amp;B, calculate G</source>
        <translation>R&amp;B angeben, G berechnen</translation>
    </message>
    <message>
        <source>Specify G&amp;B, calculate R</source>
        <translation>G&amp;B angeben, R berechnen</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>Tail at point</source>
        <translation>Ende am Punkt</translation>
    </message>
    <message>
        <source>Head at point</source>
        <translation>Spitze am Punkt</translation>
    </message>
    <message>
        <source>Anchor at midpoint</source>
        <translation>Anker in der Mitte</translation>
    </message>
    <message>
        <source>Head only</source>
        <translation>Nur Spitze</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation>Hohl</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>Delta</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>Right triangle</source>
        <translation>Dreieck rechts</translation>
    </message>
    <message>
        <source>Left triangle</source>
        <translation>Dreieck links</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Octahedron</source>
        <translation>Oktaeder</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>PieChart</source>
        <translation>Tortendiagramm</translation>
    </message>
    <message>
        <source>LineArt</source>
        <translation>Strichzeichnung</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>Auf dem Bildschirm</translation>
    </message>
    <message>
        <source>To file</source>
        <translation>In eine Datei</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>Hin und her</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einfach genau</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Doppelt genau</translation>
    </message>
    <message>
        <source>Long int</source>
        <translation>Lange Ganzzahl</translation>
    </message>
    <message>
        <source>Short int</source>
        <translation>Kurze Ganzzahl</translation>
    </message>
    <message>
        <source>Byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Bit</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Cell center</source>
        <translation>Zellmitte</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Data set</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Line map</source>
        <translation>Linienzuordnung</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Frame%</source>
        <translation>Rahmen-%</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Zuerst</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Sm rainbow</source>
        <translation>Kleiner Regenbogen</translation>
    </message>
    <message>
        <source>Lg rainbow</source>
        <translation>Großer Regenbogen</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>Modern</translation>
    </message>
    <message>
        <source>Gray scale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Wild</source>
        <translation>Wild</translation>
    </message>
    <message>
        <source>User def</source>
        <translation>Benutzerdef.</translation>
    </message>
    <message>
        <source>Two color</source>
        <translation>Zweifarbig</translation>
    </message>
    <message>
        <source>Raw user def</source>
        <translation>Benutzerdef. (roh)</translation>
    </message>
    <message>
        <source>Diverging - brown/green</source>
        <translation>Divergierend - Braun/Grün</translation>
    </message>
    <message>
        <source>Diverging - pink/yellow/green</source>
        <translation>Divergierend - Rosa/Gelb/Grün</translation>
    </message>
    <message>
        <source>Diverging - purple/green</source>
        <translation>Divergierend - Lila/Grün</translation>
    </message>
    <message>
        <source>Diverging - orange/purple</source>
        <translation>Divergierend - Orange/Lila</translation>
    </message>
    <message>
        <source>Diverging - blue/red</source>
        <translation>Divergierend - Blau/Rot</translation>
    </message>
    <message>
        <source>Diverging - blue/yellow/red</source>
        <translation>Divergierend - Blau/Gelb/Rot</translation>
    </message>
    <message>
        <source>Doppler</source>
        <translation>Doppler</translation>
    </message>
    <message>
        <source>Elevation - above ground level</source>
        <translation>Höhe - über Grund</translation>
    </message>
    <message>
        <source>Elevation - absolute</source>
        <translation>Höhe - absolut</translation>
    </message>
    <message>
        <source>Hot metal</source>
        <translation>Glühendes Metall</translation>
    </message>
    <message>
        <source>Magma</source>
        <translation>Magma</translation>
    </message>
    <message>
        <source>Modified rainbow - dark ends</source>
        <translation>Veränderter Regenbogen - dunkle Enden</translation>
    </message>
    <message>
        <source>Modified rainbow - less green</source>
        <translation>Veränderter Regenbogen - weniger Grün</translation>
    </message>
    <message>
        <source>Qualitative - accent</source>
        <translation>Qualitativ - Akzent</translation>
    </message>
    <message>
        <source>Qualitative - dark</source>
        <translation>Qualitativ - dunkel</translation>
    </message>
    <message>
        <source>Qualitative - dark 2</source>
        <translation>Qualitativ - dunkel 2</translation>
    </message>
    <message>
        <source>Qualitative - paired</source>
        <translation>Qualitativ - gepaart</translation>
    </message>
    <message>
        <source>Qualitative - pastel</source>
        <translation>Qualitativ - Pastell</translation>
    </message>
    <message>
        <source>Qualitative - pastel 2</source>
        <translation>Qualitativ - Pastell 2</translation>
    </message>
    <message>
        <source>Qualitative - pastel 3</source>
        <translation>Qualitativ - Pastell 3</translation>
    </message>
    <message>
        <source>Sequential - blue</source>
        <translation>Sequenziell - Blau</translation>
    </message>
    <message>
        <source>Sequential - blue/green</source>
        <translation>Sequenziell - Blau/Grün</translation>
    </message>
    <message>
        <source>Sequential - blue/purple</source>
        <translation>Sequenziell - Blau/Lila</translation>
    </message>
    <message>
        <source>Sequential - green</source>
        <translation>Sequenziell - Grün</translation>
    </message>
    <message>
        <source>Sequential - green/blue</source>
        <translation>Sequenziell - Grün/Blau</translation>
    </message>
    <message>
        <source>Sequential - orange</source>
        <translation>Sequenziell - Orange</translation>
    </message>
    <message>
        <source>Sequential - orange/red</source>
        <translation>Sequenziell - Orange/Rot</translation>
    </message>
    <message>
        <source>Sequential - pink/purple</source>
        <translation>Sequenziell - Rosa/Lila</translation>
    </message>
    <message>
        <source>Sequential - purple</source>
        <translation>Sequenziell - Lila</translation>
    </message>
    <message>
        <source>Sequential - purple/blue</source>
        <translation>Sequenziell - Lila/Blau</translation>
    </message>
    <message>
        <source>Sequential - purple/blue/green</source>
        <translation>Sequenziell - Lila/Blau/Grün</translation>
    </message>
    <message>
        <source>Sequential - purple/red</source>
        <translation>Sequenziell - Lila/Rot</translation>
    </message>
    <message>
        <source>Sequential - red</source>
        <translation>Sequenziell - Rot</translation>
    </message>
    <message>
        <source>Sequential - yellow/green</source>
        <translation>Sequenziell - Gelb/Grün</translation>
    </message>
    <message>
        <source>Sequential - yellow/green/blue</source>
        <translation>Sequenziell - Gelb/Grün/Blau</translation>
    </message>
    <message>
        <source>Sequential - yellow/orange/brn</source>
        <translation>Sequenziell - Gelb/Orange/Braun</translation>
    </message>
    <message>
        <source>Sequential - yellow/orange/red</source>
        <translation>Sequenziell - Gelb/Orange/Rot</translation>
    </message>
    <message>
        <source>Nearest N</source>
        <translation>Nächste N</translation>
    </message>
    <message>
        <source>Octant</source>
        <translation>Oktant</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Borders</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>Creases</source>
        <translation>Knicke</translation>
    </message>
    <message>
        <source>Borders and creases</source>
        <translation>Ränder und Knicke</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Min only</source>
        <translation>Nur Minimum</translation>
    </message>
    <message>
        <source>Max only</source>
        <translation>Nur Maximum</translation>
    </message>
    <message>
        <source>Wire frame</source>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Überlagert</translation>
    </message>
    <message>
        <source>Hidden line</source>
        <translation>Verdeckte Linien</translation>
    </message>
    <message>
        <source>Surface nodes</source>
        <translation>Oberflächenknoten</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Alle Knoten</translation>
    </message>
    <message>
        <source>Surface cell centers</source>
        <translation>Oberflächen-Zellmitten</translation>
    </message>
    <message>
        <source>All cell centers</source>
        <translation>Alle Zellmitten</translation>
    </message>
    <message>
        <source>All connected nodes</source>
        <translation>Alle verbundenen Knoten</translation>
    </message>
    <message>
        <source>Boundary cell faces</source>
        <translation>Randzellflächen</translation>
    </message>
    <message>
        <source>Exposed cell faces</source>
        <translation>Freiliegende Zellflächen</translation>
    </message>
    <message>
        <source>IJ-Planes</source>
        <translation>IJ-Ebenen</translation>
    </message>
    <message>
        <source>JK-Planes</source>
        <translation>JK-Ebenen</translation>
    </message>
    <message>
        <source>IK-Planes</source>
        <translation>IK-Ebenen</translation>
    </message>
    <message>
        <source>IJK-Planes</source>
        <translation>IJK-Ebenen</translation>
    </message>
    <message>
        <source>All surfaces</source>
        <translation>Alle Oberflächen</translation>
    </message>
    <message>
        <source>Vertical (y=f(x))</source>
        <translation>Vertikal (y=f(x))</translation>
    </message>
    <message>
        <source>Horizontal (x=f(y))</source>
        <translation>Horizontal (x=f(y))</translation>
    </message>
    <message>
        <source>y=f(x)</source>
        <translation>y=f(x)</translation>
    </message>
    <message>
        <source>x=f(y)</source>
        <translation>x=f(y)</translation>
    </message>
    <message>
        <source>R=f(Theta)</source>
        <translation>R=f(Theta)</translation>
    </message>
    <message>
        <source>Theta=f(R)</source>
        <translation>Theta=f(R)</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>I-Varying</source>
        <translation>I-variierend</translation>
    </message>
    <message>
        <source>J-Varying</source>
        <translation>J-variierend</translation>
    </message>
    <message>
        <source>K-Varying</source>
        <translation>K-variierend</translation>
    </message>
    <message>
        <source>Specific color</source>
        <translation>Bestimmte Farbe</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Using Streamtrace Placement Tool</source>
        <translation>Mit dem Stromlinien-Platzierungswerkzeug</translation>
    </message>
    <message>
        <source>On Surfaces of Selected Objects</source>
        <translation>Auf Oberflächen ausgewählter Objekte</translation>
    </message>
    <message>
        <source>On Surfaces of Active Objects</source>
        <translation>Auf Oberflächen aktiver Objekte</translation>
    </message>
    <message>
        <source>By Entering XYZ Positions</source>
        <translation>Durch Eingabe von XYZ-Positionen</translation>
    </message>
    <message>
        <source>By Entering IJK Positions</source>
        <translation>Durch Eingabe von IJK-Positionen</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Radians</source>
        <translation>Bogenmaß</translation>
    </message>
</context>
<context>
    <name>PlotExport</name>
    <message>
        <source>Cannot export the plot to %1: %2</source>
        <translation>Der Plot kann nicht nach %1 exportiert werden: %2</translation>
    </message>
    <message>
        <source>the picture has no size</source>
        <translation>das Bild hat keine Größe</translation>
    </message>
    <message>
        <source>the PNG could not be written</source>
        <translation>das PNG konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>A plot drawn by %1</source>
        <translation>Ein Plot, gezeichnet von %1</translation>
    </message>
    <message>
        <source>the %1 could not be started</source>
        <translation>das %1 konnte nicht begonnen werden</translation>
    </message>
    <message>
        <source>the extension must be .png, .svg or .pdf</source>
        <translation>die Endung muss .png, .svg oder .pdf sein</translation>
    </message>
    <message>
        <source>PNG image (*.png);;SVG drawing (*.svg);;PDF document (*.pdf)</source>
        <translation>PNG-Bild (*.png);;SVG-Zeichnung (*.svg);;PDF-Dokument (*.pdf)</translation>
    </message>
</context>
<context>
    <name>PlotExportDialog</name>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Export Plot</source>
        <translation>Plot exportieren</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Resolution (PNG):</source>
        <translation>&amp;Auflösung (PNG):</translation>
    </message>
</context>
<context>
    <name>PlotKey</name>
    <message>
        <source>size ~ |%1|</source>
        <translation>Größe ~ |%1|</translation>
    </message>
</context>
<context>
    <name>PlotMenus</name>
    <message>
        <source>&amp;Copy Plot</source>
        <translation>Plot &amp;kopieren</translation>
    </message>
    <message>
        <source>Show &amp;All Data</source>
        <translation>&amp;Alle Daten zeigen</translation>
    </message>
    <message>
        <source>Undo the zoom and pan of the plot (Home in the plot)</source>
        <translation>Zoom und Verschiebung des Plots zurücknehmen (Pos1 im Plot)</translation>
    </message>
    <message>
        <source>Logarithmic &amp;X Axis</source>
        <translation>Logarithmische &amp;X-Achse</translation>
    </message>
    <message>
        <source>Logarithmic &amp;Y Axis</source>
        <translation>Logarithmische &amp;Y-Achse</translation>
    </message>
    <message>
        <source>&amp;Color Points By</source>
        <translation>Punkte &amp;färben nach</translation>
    </message>
    <message>
        <source>Color &amp;Map</source>
        <translation>Farbs&amp;kala</translation>
    </message>
    <message>
        <source>Export Plot</source>
        <translation>Plot exportieren</translation>
    </message>
    <message>
        <source>Exported the plot to %1</source>
        <translation>Plot nach %1 exportiert</translation>
    </message>
    <message>
        <source>Copied the plot to the clipboard</source>
        <translation>Plot in die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>E&amp;xport Plot...</source>
        <translation>Plot e&amp;xportieren...</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>&amp;Automatisch</translation>
    </message>
    <message>
        <source>&amp;Automatic (%1)</source>
        <translation>&amp;Automatisch (%1)</translation>
    </message>
    <message>
        <source>Axis &amp;Titles...</source>
        <translation>Achsen&amp;titel...</translation>
    </message>
    <message>
        <source>Y Variables as &amp;Lines</source>
        <translation>Y-Variablen als &amp;Linien</translation>
    </message>
    <message>
        <source>An XY line plot draws at least one Y variable.</source>
        <translation>Ein XY-Linienplot zeichnet mindestens eine Y-Variable.</translation>
    </message>
</context>
<context>
    <name>PlotPainter</name>
    <message>
        <source>Too small for a plot</source>
        <translation>Zu klein für einen Plot</translation>
    </message>
</context>
<context>
    <name>PlotView</name>
    <message>
        <source>The plot cannot be drawn: %1</source>
        <translation>Der Plot kann nicht gezeichnet werden: %1</translation>
    </message>
    <message>
        <source>an unexpected error</source>
        <translation>ein unerwarteter Fehler</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Loading %1...</source>
        <translation>%1 wird geladen...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cannot make the folder %1 for the autosaved session.</source>
        <translation>Der Ordner %1 für die automatisch gesicherte Sitzung kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Another running demo keeps its session in %1; this one keeps none.</source>
        <translation>Eine andere laufende Demo sichert ihre Sitzung in %1; diese sichert keine.</translation>
    </message>
    <message>
        <source>Cannot lock %1; the session is not autosaved.</source>
        <translation>%1 kann nicht gesperrt werden; die Sitzung wird nicht automatisch gesichert.</translation>
    </message>
    <message>
        <source>Cannot write the autosaved session %1: %2</source>
        <translation>Die automatisch gesicherte Sitzung %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Cannot move the autosaved session %1 aside to restore it.</source>
        <translation>Die automatisch gesicherte Sitzung %1 kann zum Wiederherstellen nicht beiseitegelegt werden.</translation>
    </message>
    <message numerus="yes">
        <source>Restored the autosaved session (%n command(s)).</source>
        <translation>
            <numerusform>Die automatisch gesicherte Sitzung wurde wiederhergestellt (%n Befehl).</numerusform>
            <numerusform>Die automatisch gesicherte Sitzung wurde wiederhergestellt (%n Befehle).</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The autosaved session could not be restored whole; the %n command(s) before the bad line were kept.
%1
The autosaved session is kept as %2.</source>
        <translation>
            <numerusform>Die automatisch gesicherte Sitzung konnte nicht vollständig wiederhergestellt werden; der %n Befehl vor der fehlerhaften Zeile wurde behalten.
%1
Die automatisch gesicherte Sitzung wird als %2 aufbewahrt.</numerusform>
            <numerusform>Die automatisch gesicherte Sitzung konnte nicht vollständig wiederhergestellt werden; die %n Befehle vor der fehlerhaften Zeile wurden behalten.
%1
Die automatisch gesicherte Sitzung wird als %2 aufbewahrt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored the autosaved session (%n command(s)) up to where it was cut off.
%1
The autosaved session is kept as %2.</source>
        <translation>
            <numerusform>Die automatisch gesicherte Sitzung wurde bis zur abgeschnittenen Stelle wiederhergestellt (%n Befehl).
%1
Die automatisch gesicherte Sitzung wird als %2 aufbewahrt.</numerusform>
            <numerusform>Die automatisch gesicherte Sitzung wurde bis zur abgeschnittenen Stelle wiederhergestellt (%n Befehle).
%1
Die automatisch gesicherte Sitzung wird als %2 aufbewahrt.</numerusform>
        </translation>
    </message>
    <message>
        <source>it is not locked</source>
        <translation>sie ist nicht gesperrt</translation>
    </message>
    <message>
        <source>The session is autosaved again in %1.</source>
        <translation>Die Sitzung wird wieder automatisch in %1 gesichert.</translation>
    </message>
    <message>
        <source>The session cannot be autosaved in %1 for now: %2. It is tried again at the next change.</source>
        <translation>Die Sitzung kann vorerst nicht automatisch in %1 gesichert werden: %2. Bei der nächsten Änderung wird es erneut versucht.</translation>
    </message>
    <message>
        <source>%1: nothing was restored, and the session is not autosaved while it is there.</source>
        <translation>%1: Es wurde nichts wiederhergestellt, und die Sitzung wird nicht automatisch gesichert, solange es dort liegt.</translation>
    </message>
</context>
<context>
    <name>RGBColorOpts</name>
    <message>
        <source>RGB Coloring Options</source>
        <translation>RGB-Färbungsoptionen</translation>
    </message>
    <message>
        <source>&amp;Mode:</source>
        <translation>&amp;Modus:</translation>
    </message>
    <message>
        <source>Specify R, G, and B</source>
        <translation>R, G und B angeben</translation>
    </message>
    <message>
        <source>Specify R&amp;G, Calculate B</source>
        <translation>R&amp;G angeben, B berechnen</translation>
    </message>
    <message>
        <source>Specify R&amp;B, Calculate G</source>
        <translation>R&amp;B angeben, G berechnen</translation>
    </message>
    <message>
        <source>Specify G&amp;B, Calculate R</source>
        <translation>G&amp;B angeben, R berechnen</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>&amp;Rot:</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Grün:</translation>
    </message>
    <message>
        <source>&amp;Blue:</source>
        <translation>B&amp;lau:</translation>
    </message>
    <message>
        <source>Variable Value Range</source>
        <translation>Wertebereich der Variablen</translation>
    </message>
    <message>
        <source>Mi&amp;nimum intensity:</source>
        <translation>Mi&amp;nimale Intensität:</translation>
    </message>
    <message>
        <source>Ma&amp;ximum intensity:</source>
        <translation>Ma&amp;ximale Intensität:</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
</context>
<context>
    <name>RegularFile</name>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>a FIFO</source>
        <translation>ein FIFO</translation>
    </message>
    <message>
        <source>a character device</source>
        <translation>ein zeichenorientiertes Gerät</translation>
    </message>
    <message>
        <source>a block device</source>
        <translation>ein blockorientiertes Gerät</translation>
    </message>
    <message>
        <source>a socket</source>
        <translation>ein Socket</translation>
    </message>
    <message>
        <source>a symbolic link</source>
        <translation>ein symbolischer Link</translation>
    </message>
    <message>
        <source>of an unknown kind</source>
        <translation>unbekannter Art</translation>
    </message>
    <message>
        <source>%1 is not a regular file (%2)</source>
        <translation>%1 ist keine reguläre Datei (%2)</translation>
    </message>
</context>
<context>
    <name>ScatterSizeFont</name>
    <message>
        <source>Scatter Size/Font</source>
        <translation>Streusymbol: Größe/Schrift</translation>
    </message>
    <message>
        <source>&amp;Cm/magnitude:</source>
        <translation>&amp;cm/Betrag:</translation>
    </message>
    <message>
        <source>&amp;Grid units/magnitude:</source>
        <translation>&amp;Gittereinheiten/Betrag:</translation>
    </message>
    <message>
        <source>&amp;Scatter-size variable:</source>
        <translation>&amp;Variable der Symbolgröße:</translation>
    </message>
    <message>
        <source>Size multiplier</source>
        <translation>Größenfaktor</translation>
    </message>
    <message>
        <source>ASCII symbol &amp;font:</source>
        <translation>ASCII-Symbol&amp;schrift:</translation>
    </message>
    <message>
        <source>&amp;B</source>
        <translation>&amp;F</translation>
    </message>
    <message>
        <source>&amp;I</source>
        <translation>&amp;K</translation>
    </message>
    <message>
        <source>&amp;Recalculate Size</source>
        <translation>Größe &amp;neu berechnen</translation>
    </message>
    <message>
        <source>Symbol Font</source>
        <translation>Symbolschrift</translation>
    </message>
    <message>
        <source>Centimeters per magnitude</source>
        <translation>Zentimeter pro Betrag</translation>
    </message>
    <message>
        <source>Grid units per magnitude</source>
        <translation>Gittereinheiten pro Betrag</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>Cannot load %1: %2</source>
        <translation>%1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>Loaded %1 with the loader &quot;%2&quot;</source>
        <translation>%1 mit dem Lader „%2“ geladen</translation>
    </message>
    <message numerus="yes">
        <source>The replay stopped at a bad line; the %n command(s) before it were kept.
%1</source>
        <translation>
            <numerusform>Die Wiedergabe hielt an einer fehlerhaften Zeile an; der %n Befehl davor wurde behalten.
%1</numerusform>
            <numerusform>Die Wiedergabe hielt an einer fehlerhaften Zeile an; die %n Befehle davor wurden behalten.
%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Replayed %1 commands from %2</source>
        <translation>%1 Befehle aus %2 wiedergegeben</translation>
    </message>
    <message>
        <source>%1

Load it as it is now?</source>
        <translation>%1

Die Datei so laden, wie sie jetzt ist?</translation>
    </message>
    <message>
        <source>Saved the session to %1</source>
        <translation>Sitzung in %1 gespeichert</translation>
    </message>
</context>
<context>
    <name>StateView</name>
    <message>
        <source>Item</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Data set</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keiner)</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonen</translation>
    </message>
    <message numerus="yes">
        <source> (%n categories: %1)</source>
        <translation>
            <numerusform> (%n Kategorie: %1)</numerusform>
            <numerusform> (%n Kategorien: %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Plot type</source>
        <translation>Plottyp</translation>
    </message>
    <message>
        <source>(unreadable: %1)</source>
        <translation>(nicht lesbar: %1)</translation>
    </message>
</context>
<context>
    <name>VariableSelectDialog</name>
    <message>
        <source>Select Variables</source>
        <translation>Variablen wählen</translation>
    </message>
    <message>
        <source>Choose the vector variables:</source>
        <translation>Wählen Sie die Vektorvariablen:</translation>
    </message>
    <message>
        <source>&amp;U:</source>
        <translation>&amp;U:</translation>
    </message>
    <message>
        <source>&amp;V:</source>
        <translation>&amp;V:</translation>
    </message>
    <message>
        <source>&amp;W:</source>
        <translation>&amp;W:</translation>
    </message>
    <message>
        <source>Choose the variables to assign to the axes.</source>
        <translation>Wählen Sie die Variablen für die Achsen.</translation>
    </message>
    <message>
        <source>Choose the variables to assign to the R, G, and B channels.</source>
        <translation>Wählen Sie die Variablen für die Kanäle R, G und B.</translation>
    </message>
    <message>
        <source>Choose the vector variables.</source>
        <translation>Wählen Sie die Vektorvariablen.</translation>
    </message>
</context>
<context>
    <name>WindowTitle</name>
    <message>
        <source>Orrery Prompts demo[*]</source>
        <translation>Orrery-Prompts-Demo[*]</translation>
    </message>
    <message>
        <source>%1[*] - Orrery Prompts demo</source>
        <translation>%1[*] – Orrery-Prompts-Demo</translation>
    </message>
</context>
<context>
    <name>ZoneSelect</name>
    <message>
        <source>Select Zone</source>
        <translation>Zone wählen</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonen</translation>
    </message>
</context>
<context>
    <name>orrery::dialogs::common::HelpViewer</name>
    <message>
        <source>&lt;h3&gt;Help not available&lt;/h3&gt;&lt;p&gt;No help page named &quot;%1&quot; is installed.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Hilfe nicht verfügbar&lt;/h3&gt;&lt;p&gt;Es ist keine Hilfeseite namens „%1“ installiert.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>orrery::dialogs::common::LaunchHelpAction</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
</TS>
