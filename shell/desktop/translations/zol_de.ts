<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>zol</name>
    <message>
        <source>Atom Distance</source>
        <translation>Atomabstände</translation>
    </message>
    <message>
        <source>distance maximum (A)</source>
        <translation>größter Abstand (A)</translation>
    </message>
    <message>
        <source>largest distance that is listed, in angstroms; Enter calculates</source>
        <translation>größter Abstand, der aufgeführt wird, in Ångström; Enter rechnet</translation>
    </message>
    <message>
        <source>Calc</source>
        <translation>Rechnen</translation>
    </message>
    <message>
        <source>list the distances in the crystal as it is now</source>
        <translation>führt die Abstände im jetzigen Kristall auf</translation>
    </message>
    <message>
        <source>for each atom of the asymmetric unit: its label and element, those of the other atom, and the distance in angstroms; a dashed line ends each atom</source>
        <translation>für jedes Atom der asymmetrischen Einheit: Bezeichnung und Element, die des anderen Atoms und der Abstand in Ångström; eine gestrichelte Linie schließt jedes Atom ab</translation>
    </message>
    <message>
        <source>AUTOMATIC INDEXING</source>
        <translation>AUTOMATISCHE INDIZIERUNG</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>Bänder</translation>
    </message>
    <message>
        <source>number of bands to look for, 3 to 30; the strongest of the picture</source>
        <translation>Bänder, die gesucht werden, 3 bis 30; die stärksten des Bildes</translation>
    </message>
    <message>
        <source>Families</source>
        <translation>Familien</translation>
    </message>
    <message>
        <source>families of planes that bands may belong to, the strongest of the crystal</source>
        <translation>Ebenenfamilien, zu denen Bänder gehören dürfen, die stärksten des Kristalls</translation>
    </message>
    <message>
        <source>Sample tilt (deg)</source>
        <translation>Probenkippung (°)</translation>
    </message>
    <message>
        <source>tilt of the sample less that of the screen, degrees: for the Euler angles</source>
        <translation>Kippung der Probe weniger der des Schirms, Grad: für die Eulerwinkel</translation>
    </message>
    <message>
        <source>Round picture</source>
        <translation>Rundes Bild</translation>
    </message>
    <message>
        <source>the pattern fills a circle; what lies outside is left out</source>
        <translation>das Beugungsbild füllt einen Kreis; was außerhalb liegt, bleibt unbeachtet</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Indizieren</translation>
    </message>
    <message>
        <source>finds bands, orientation and indices in the picture of PATTERN3</source>
        <translation>findet Bänder, Orientierung und Indizes im Bild von PATTERN3</translation>
    </message>
    <message>
        <source>Refine centre</source>
        <translation>Zentrum verfeinern</translation>
    </message>
    <message>
        <source>fits half angle and shifts of PATTERN3 to the picture, and indexes again</source>
        <translation>passt halben Öffnungswinkel und Verschiebungen von PATTERN3 an das Bild an und indiziert neu</translation>
    </message>
    <message>
        <source>Show in simulation</source>
        <translation>In der Simulation zeigen</translation>
    </message>
    <message>
        <source>draws the picked orientation in the window of Kikuchi patterns</source>
        <translation>zeichnet die gewählte Orientierung im Fenster der Kikuchi-Bilder</translation>
    </message>
    <message>
        <source>Take lines</source>
        <translation>Linien nehmen</translation>
    </message>
    <message>
        <source>the three clearest bands that do not meet in one point become the lines of PATTERN3, for CALC there</source>
        <translation>die drei deutlichsten Bänder, die sich nicht in einem Punkt treffen, werden die Linien von PATTERN3, für die Rechnung dort</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>copies crystal, centre, orientation and bands as text and JSON</source>
        <translation>Kristall, Zentrum, Orientierung und Bänder als Text und JSON, zum Einfügen anderswo</translation>
    </message>
    <message>
        <source>Solutions</source>
        <translation>Lösungen</translation>
    </message>
    <message>
        <source>orientations, the best first; a click draws its bands over the picture of PATTERN3</source>
        <translation>Orientierungen, die beste zuerst; ein Klick zeichnet ihre Bänder über das Bild von PATTERN3</translation>
    </message>
    <message>
        <source>Bands found</source>
        <translation>Gefundene Bänder</translation>
    </message>
    <message>
        <source>bands of the picture, the strongest first: azimuth, distance from the centre and width in degrees; a click marks one</source>
        <translation>Bänder des Bildes, das stärkste zuerst: Azimut, Abstand vom Zentrum und Breite in Grad; ein Klick markiert eines</translation>
    </message>
    <message>
        <source>Measured and simulated</source>
        <translation>Gemessen und simuliert</translation>
    </message>
    <message>
        <source>the measured picture and that of the crystal's bands in the picked orientation</source>
        <translation>das gemessene Bild und das der Bänder des Kristalls in der gewählten Orientierung</translation>
    </message>
    <message>
        <source>Beside</source>
        <translation>Daneben</translation>
    </message>
    <message>
        <source>measured on the left, simulated on the right</source>
        <translation>links gemessen, rechts simuliert</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Darüber</translation>
    </message>
    <message>
        <source>one over the other; the slider sets the share of each</source>
        <translation>eines über dem anderen; der Schieber sagt, wie viel von jedem</translation>
    </message>
    <message>
        <source>Alternating</source>
        <translation>Wechselnd</translation>
    </message>
    <message>
        <source>a click on the picture changes between them</source>
        <translation>ein Klick auf das Bild wechselt zwischen ihnen</translation>
    </message>
    <message>
        <source>Simulated (%)</source>
        <translation>Simuliert (%)</translation>
    </message>
    <message>
        <source>share of the simulated picture in "Over"</source>
        <translation>Anteil des simulierten Bildes bei „Darüber“</translation>
    </message>
    <message>
        <source>Families of planes</source>
        <translation>Ebenenfamilien</translation>
    </message>
    <message>
        <source>families of the crystal, the strongest first; x: bands may belong to it</source>
        <translation>Familien des Kristalls, die stärkste zuerst; x: Bänder dürfen zu ihr gehören</translation>
    </message>
    <message>
        <source>Leave out / take in</source>
        <translation>Auslassen / aufnehmen</translation>
    </message>
    <message>
        <source>changes the mark of the picked family</source>
        <translation>ändert die Marke der gewählten Familie</translation>
    </message>
    <message>
        <source>Other crystals to try</source>
        <translation>Andere Kristalle zum Versuch</translation>
    </message>
    <message>
        <source>crystal files tried beside the present crystal; the ranking shows which fits</source>
        <translation>Kristalldateien, die neben dem jetzigen Kristall versucht werden; die Rangfolge sagt, welcher passt</translation>
    </message>
    <message>
        <source>Add crystal...</source>
        <translation>Kristall hinzufügen...</translation>
    </message>
    <message>
        <source>adds a crystal file</source>
        <translation>fügt eine Kristalldatei hinzu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>removes the picked crystal from the list</source>
        <translation>nimmt den gewählten Kristall von der Liste</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Detector</source>
        <translation>Detektor</translation>
    </message>
    <message>
        <source>Centre from numbers...</source>
        <translation>Zentrum aus Zahlen...</translation>
    </message>
    <message>
        <source>converts the pattern centre of the detector software to the boxes of PATTERN3</source>
        <translation>rechnet das Zentrum der Detektorsoftware in die Felder von PATTERN3 um</translation>
    </message>
    <message>
        <source>Save picture...</source>
        <translation>Bild speichern...</translation>
    </message>
    <message>
        <source>Camera Parameters</source>
        <translation>Kameraparameter</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Acquisition angle (deg.)</source>
        <translation>Aufnahmewinkel (°)</translation>
    </message>
    <message>
        <source>half opening of the picture, degrees</source>
        <translation>halber Öffnungswinkel des Bildes, Grad</translation>
    </message>
    <message>
        <source>X-shift (deg.)</source>
        <translation>X-Verschiebung (°)</translation>
    </message>
    <message>
        <source>offset of the pattern centre in x, degrees</source>
        <translation>Versatz des Zentrums in x, Grad</translation>
    </message>
    <message>
        <source>Y-shift (deg.)</source>
        <translation>Y-Verschiebung (°)</translation>
    </message>
    <message>
        <source>offset of the pattern centre in y, degrees</source>
        <translation>Versatz des Zentrums in y, Grad</translation>
    </message>
    <message>
        <source>Detector area (mm)</source>
        <translation>Detektorfläche (mm)</translation>
    </message>
    <message>
        <source>edge length of the detector, mm</source>
        <translation>Kantenlänge des Detektors, mm</translation>
    </message>
    <message>
        <source>XY-ratio</source>
        <translation>XY-Verhältnis</translation>
    </message>
    <message>
        <source>scale of y against x</source>
        <translation>Maßstab von y gegen x</translation>
    </message>
    <message>
        <source>Substrate normal (deg.)</source>
        <translation>Substratnormale (°)</translation>
    </message>
    <message>
        <source>tilt of the substrate normal from the screen normal, degrees</source>
        <translation>Neigung der Substratnormale gegen die Schirmnormale, Grad</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>read the parameters from a file</source>
        <translation>liest die Parameter aus einer Datei</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>write the parameters to a file</source>
        <translation>schreibt die Parameter in eine Datei</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>hide this window</source>
        <translation>verbirgt dieses Fenster</translation>
    </message>
    <message>
        <source>DS-ring</source>
        <translation>Debye-Scherrer-Ringe</translation>
    </message>
    <message>
        <source>intensity over 1/d, from 0 to its end; a click reads d and intensity</source>
        <translation>Intensität über 1/d, von 0 bis zu dessen Ende; ein Klick liest d und Intensität ab</translation>
    </message>
    <message>
        <source>d at the place of the last click, in angstroms</source>
        <translation>d an der Stelle des letzten Klicks, in Ångström</translation>
    </message>
    <message>
        <source>height of the profile at the last click, in per cent of full height</source>
        <translation>Höhe des Profils am letzten Klick, in Prozent der vollen Höhe</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Beugungsbild</translation>
    </message>
    <message>
        <source>d*-max(A-1)</source>
        <translation>d*-max (1/A)</translation>
    </message>
    <message>
        <source>right end of the profile and radius of the ring picture: 1/d in inverse angstroms</source>
        <translation>rechtes Ende des Profils und Radius des Ringbildes: 1/d in reziproken Ångström</translation>
    </message>
    <message>
        <source>half.width</source>
        <translation>Halbwertsbreite</translation>
    </message>
    <message>
        <source>full width of a line at half of its height, in inverse angstroms; 0 becomes 0.01</source>
        <translation>volle Breite einer Linie in halber Höhe, in reziproken Ångström; 0 wird 0.01</translation>
    </message>
    <message>
        <source>Crystallite, in unit cells</source>
        <translation>Kristallit, in Elementarzellen</translation>
    </message>
    <message>
        <source>Steps along a*, b*, c*</source>
        <translation>Schritte entlang a*, b*, c*</translation>
    </message>
    <message>
        <source>steps of the interference function along a*, b*, c* in the last calculation; each reflection is spread over up to (2n+1) points along each axis</source>
        <translation>Schritte der Interferenzfunktion entlang a*, b*, c* in der letzten Rechnung; jeder Reflex wird entlang jeder Achse auf bis zu (2n+1) Punkte verteilt</translation>
    </message>
    <message>
        <source>Intensity at full height</source>
        <translation>Intensität bei voller Höhe</translation>
    </message>
    <message>
        <source>I-up</source>
        <translation>I höher</translation>
    </message>
    <message>
        <source>halves the value at full height and brightness, and calculates again</source>
        <translation>halbiert den Wert bei voller Höhe und Helligkeit und rechnet neu</translation>
    </message>
    <message>
        <source>intensity that is drawn at full height and brightness; a new one clears the pictures and acts at the next CALC</source>
        <translation>Intensität, die mit voller Höhe und Helligkeit gezeichnet wird; eine neue löscht die Bilder und gilt bei der nächsten Rechnung</translation>
    </message>
    <message>
        <source>I-dwn</source>
        <translation>I tiefer</translation>
    </message>
    <message>
        <source>doubles the value at full height and brightness, and calculates again</source>
        <translation>verdoppelt den Wert bei voller Höhe und Helligkeit und rechnet neu</translation>
    </message>
    <message>
        <source>CALC</source>
        <translation>RECHNEN</translation>
    </message>
    <message>
        <source>calculates profile and rings from the present reflection list</source>
        <translation>berechnet Profil und Ringe aus der Reflexliste, wie sie dasteht</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>clears both pictures; the next CALC takes the largest intensity as full height</source>
        <translation>löscht beide Bilder; die nächste Rechnung nimmt die größte Intensität als volle Höhe</translation>
    </message>
    <message>
        <source>SAVE IMAGE</source>
        <translation>BILD SPEICHERN</translation>
    </message>
    <message>
        <source>the rings as a bitmap file, ".BMP" unless the name has an ending</source>
        <translation>die Ringe als Bitmap-Datei, „.BMP“, wenn der Name keine Endung hat</translation>
    </message>
    <message>
        <source>save to file</source>
        <translation>in Datei speichern</translation>
    </message>
    <message>
        <source>1001 samples of the profile as a text file, ".EDP" unless the name has an ending</source>
        <translation>1001 Punkte des Profils als Textdatei, „.EDP“, wenn der Name keine Endung hat</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>drucken</translation>
    </message>
    <message>
        <source>prints this window: printer set-up, then the page</source>
        <translation>druckt dieses Fenster: erst die Einrichtung des Druckers, dann die Seite</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <source>Sqr( I )</source>
        <translation>Wurzel( I )</translation>
    </message>
    <message>
        <source>square roots of the intensities, which show weak rings better; acts at the next CALC</source>
        <translation>Quadratwurzeln der Intensitäten, um schwache Ringe zu heben; gilt bei der nächsten Rechnung</translation>
    </message>
    <message>
        <source>Center Origin</source>
        <translation>Ursprung in der Mitte</translation>
    </message>
    <message>
        <source>the beam in the middle of the picture, otherwise in the lower left corner, with its red point just outside the picture; acts at the next CALC</source>
        <translation>der Strahl in der Bildmitte, sonst in der unteren linken Ecke mit seinem roten Punkt knapp außerhalb des Bildes; gilt bei der nächsten Rechnung</translation>
    </message>
    <message>
        <source>Color Inverse</source>
        <translation>Farben umkehren</translation>
    </message>
    <message>
        <source>dark rings on white, otherwise bright rings on black; acts at the next CALC</source>
        <translation>dunkle Ringe auf Weiß, sonst helle Ringe auf Schwarz; gilt bei der nächsten Rechnung</translation>
    </message>
    <message>
        <source>Peaks</source>
        <translation>Maxima</translation>
    </message>
    <message>
        <source>maxima of at least 1 % of full height: d in angstroms, height in per cent of full height</source>
        <translation>Maxima von mindestens 1 % der vollen Höhe: d in Ångström, Höhe in Prozent der vollen Höhe</translation>
    </message>
    <message>
        <source>progress: reflections, then samples</source>
        <translation>Fortschritt: erst Reflexe, dann Punkte</translation>
    </message>
    <message>
        <source>the rings; a click reads d from the distance to the beam</source>
        <translation>die Ringe; ein Klick liest d aus dem Abstand zum Strahl</translation>
    </message>
    <message>
        <source>d at the place of the last click on the rings, in angstroms</source>
        <translation>d an der Stelle des letzten Klicks auf die Ringe, in Ångström</translation>
    </message>
    <message>
        <source>Fiber Texture Pattern</source>
        <translation>Fasertexturbild</translation>
    </message>
    <message>
        <source>texture pattern: the beam in the centre, the fiber axis up; the right mouse button copies and exports</source>
        <translation>Texturbild: der Strahl in der Mitte, die Faserachse nach oben; die rechte Maustaste kopiert und exportiert</translation>
    </message>
    <message>
        <source>Fiber direction</source>
        <translation>Faserrichtung</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Dispersion (degree)</source>
        <translation>Streuung (Grad)</translation>
    </message>
    <message>
        <source>width of the Gaussian by which fibers deviate from their axis, in degrees; 0 becomes 0.5</source>
        <translation>Breite der Gaußkurve, mit der Fasern von ihrer Achse abweichen, in Grad; 0 wird 0.5</translation>
    </message>
    <message>
        <source>sort the reflections by intensity and draw the pattern</source>
        <translation>sortiert die Reflexe nach Intensität und zeichnet das Bild</translation>
    </message>
    <message>
        <source>area(A-1)</source>
        <translation>Breite (1/A)</translation>
    </message>
    <message>
        <source>width of the picture in the unit of 1/d, inverse angstroms</source>
        <translation>Breite des Bildes in der Einheit von 1/d, reziproke Ångström</translation>
    </message>
    <message>
        <source>Zoom Up</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>enlarge: the width shrinks by 1.4142 and is rounded to three decimals</source>
        <translation>vergrößert: die Breite schrumpft um 1.4142 und wird auf drei Stellen gerundet</translation>
    </message>
    <message>
        <source>Zoom Dwn</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>show more: the width grows by 1.4142 and is rounded to three decimals</source>
        <translation>zeigt mehr: die Breite wächst um 1.4142 und wird auf drei Stellen gerundet</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>exponent</source>
        <translation>Exponent</translation>
    </message>
    <message>
        <source>intensities are divided by the strongest one to this power: below 1 darkens the arcs; empty: 1</source>
        <translation>Intensitäten werden durch die stärkste geteilt und hiermit potenziert: unter 1 werden die Bögen dunkler; leer: 1</translation>
    </message>
    <message>
        <source>write h k l of each reflection, at the next drawing</source>
        <translation>schreibt h k l jedes Reflexes, bei der nächsten Zeichnung</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>choose a printer and print this window</source>
        <translation>Drucker wählen und dieses Fenster drucken</translation>
    </message>
    <message>
        <source>close</source>
        <translation>schließen</translation>
    </message>
    <message>
        <source>Pattern Save</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>write the picture as a bitmap; .bmp is added to the name</source>
        <translation>schreibt das Bild als Bitmap; .bmp wird an den Namen gehängt</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>size of the indices in points</source>
        <translation>Größe der Indizes in Punkt</translation>
    </message>
    <message>
        <source>Rotation Angle Pitch</source>
        <translation>Schritt der Drehung</translation>
    </message>
    <message>
        <source>step of the rotation buttons in degrees</source>
        <translation>Schritt der Drehknöpfe in Grad</translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>width and height of the picture in twips, 15 to a pixel</source>
        <translation>Breite und Höhe des Bildes in Twips, 15 je Pixel</translation>
    </message>
    <message>
        <source>Diffraction Size</source>
        <translation>Größe der Reflexe</translation>
    </message>
    <message>
        <source>size of the spots in per cent; draws the spot pattern again</source>
        <translation>Größe der Reflexe in Prozent; zeichnet das Punktdiagramm neu</translation>
    </message>
    <message>
        <source>Atomic Coodinates</source>
        <translation>Atomkoordinaten</translation>
    </message>
    <message>
        <source>type a value, Enter accepts it and moves on; F2 or a double click changes the text of a cell; rows can be pasted; right button: more; site name, element as in the table of scattering factors, occupancy, fractional coordinates, B in square angstroms; the first empty site name ends the table</source>
        <translation>einen Wert tippen, Enter nimmt ihn und geht weiter; F2 oder Doppelklick ändert den Text einer Zelle; Zeilen lassen sich einfügen; rechte Taste: mehr; Name des Platzes, Element wie in der Tabelle der Streufaktoren, Besetzung, relative Koordinaten, B in Quadratångström; der erste leere Name beendet die Tabelle</translation>
    </message>
    <message>
        <source>Typed so far</source>
        <translation>Bisher getippt</translation>
    </message>
    <message>
        <source>what has been typed for the current cell; Enter puts it in</source>
        <translation>was für die jetzige Zelle getippt wurde; Enter trägt es ein</translation>
    </message>
    <message>
        <source>delete a cell</source>
        <translation>Zelle leeren</translation>
    </message>
    <message>
        <source>empty the current cell</source>
        <translation>leert die jetzige Zelle</translation>
    </message>
    <message>
        <source>delete a row</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>remove the current row</source>
        <translation>entfernt die jetzige Zeile</translation>
    </message>
    <message>
        <source>origin shift</source>
        <translation>Nullpunkt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>accept the table for the crystal</source>
        <translation>übernimmt die Tabelle in den Kristall</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>close and change nothing</source>
        <translation>schließt und ändert nichts</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>JCPDS input</source>
        <translation>JCPDS-Eingabe</translation>
    </message>
    <message>
        <source>type a value, Enter accepts it and moves on; F2 or a double click changes the text of a cell; rows can be pasted; right button: more; relative intensity, then the indices h, k, l; the first empty intensity ends the table</source>
        <translation>einen Wert tippen, Enter nimmt ihn und geht weiter; F2 oder Doppelklick ändert den Text einer Zelle; Zeilen lassen sich einfügen; rechte Taste: mehr; relative Intensität, dann die Indizes h, k, l; die erste leere Intensität beendet die Tabelle</translation>
    </message>
    <message>
        <source>MAIN MENU</source>
        <translation>HAUPTMENÜ</translation>
    </message>
    <message>
        <source>New Crystal Registration or Edit Crystal Data</source>
        <translation>Neuen Kristall anlegen oder Kristalldaten bearbeiten</translation>
    </message>
    <message>
        <source>the crystal and its reflections</source>
        <translation>der Kristall und seine Reflexe</translation>
    </message>
    <message>
        <source>Calculate Kikuchi Pattern</source>
        <translation>Kikuchi-Bild berechnen</translation>
    </message>
    <message>
        <source>simulate a Kikuchi pattern</source>
        <translation>simuliert ein Kikuchi-Bild</translation>
    </message>
    <message>
        <source>Analyze Kikuchi Pattern (three lines)</source>
        <translation>Kikuchi-Bild auswerten (drei Linien)</translation>
    </message>
    <message>
        <source>index a measured Kikuchi pattern</source>
        <translation>indiziert ein gemessenes Kikuchi-Bild</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>end the program</source>
        <translation>beendet das Programm</translation>
    </message>
    <message>
        <source>Utility</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>CELL CONSTANTS</source>
        <translation>GITTERKONSTANTEN</translation>
    </message>
    <message>
        <source>alpha</source>
        <translation>alpha</translation>
    </message>
    <message>
        <source>beta</source>
        <translation>beta</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>Space group</source>
        <translation>Raumgruppe</translation>
    </message>
    <message>
        <source>space group number, 1 to 230; 231 to 250 are further settings; its file is read at each key</source>
        <translation>Nummer der Raumgruppe, 1 bis 230; 231 bis 250 sind weitere Aufstellungen; ihre Datei wird bei jeder Taste gelesen</translation>
    </message>
    <message>
        <source>symbol of the space group</source>
        <translation>Symbol der Raumgruppe</translation>
    </message>
    <message>
        <source>crystal system</source>
        <translation>Kristallsystem</translation>
    </message>
    <message>
        <source>axis change</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>changes the operators of the space group to another choice of axes</source>
        <translation>dreht die Operatoren der Raumgruppe auf eine andere Wahl der Achsen</translation>
    </message>
    <message>
        <source>All groups</source>
        <translation>Alle Gruppen</translation>
    </message>
    <message>
        <source>all space groups; a click chooses one</source>
        <translation>alle Raumgruppen; ein Klick nimmt eine</translation>
    </message>
    <message>
        <source>Reciprocal cell</source>
        <translation>Reziproke Zelle</translation>
    </message>
    <message>
        <source>cell volume in cubic angstroms</source>
        <translation>Zellvolumen in Kubikångström</translation>
    </message>
    <message>
        <source>Radiation</source>
        <translation>Strahlung</translation>
    </message>
    <message>
        <source>X-ray</source>
        <translation>Röntgen</translation>
    </message>
    <message>
        <source>X-ray scattering factors and intensities</source>
        <translation>Streufaktoren und Intensitäten für Röntgenstrahlung</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Elektronen</translation>
    </message>
    <message>
        <source>electron scattering factors and intensities</source>
        <translation>Streufaktoren und Intensitäten für Elektronen</translation>
    </message>
    <message>
        <source>Acc. Vol.(kV)</source>
        <translation>Spannung (kV)</translation>
    </message>
    <message>
        <source>X-ray source, or acceleration voltage in kV; sets the wavelength</source>
        <translation>Röntgenröhre oder Beschleunigungsspannung in kV; setzt die Wellenlänge</translation>
    </message>
    <message>
        <source>Wave Length(A)</source>
        <translation>Wellenlänge (A)</translation>
    </message>
    <message>
        <source>wavelength in angstroms; you may type another one</source>
        <translation>Wellenlänge in Ångström; darf überschrieben werden</translation>
    </message>
    <message>
        <source>Atoms</source>
        <translation>Atome</translation>
    </message>
    <message>
        <source>Atomic Coordinates</source>
        <translation>Atomkoordinaten</translation>
    </message>
    <message>
        <source>enter the atom sites in a table</source>
        <translation>Atomplätze in einer Tabelle eingeben</translation>
    </message>
    <message>
        <source>JCPDS reflections</source>
        <translation>JCPDS-Reflexe</translation>
    </message>
    <message>
        <source>enter observed powder reflections in place of atoms</source>
        <translation>beobachtete Pulverreflexe statt der Atome eingeben</translation>
    </message>
    <message>
        <source>No. of ref.</source>
        <translation>Reflexe</translation>
    </message>
    <message>
        <source>number of observed powder reflections</source>
        <translation>Zahl der beobachteten Pulverreflexe</translation>
    </message>
    <message>
        <source>No. of atom</source>
        <translation>Atome</translation>
    </message>
    <message>
        <source>number of atom sites</source>
        <translation>Zahl der Atomplätze</translation>
    </message>
    <message>
        <source>atoms of the unit cell: number, label, element, occupancy, x, y, z, B in square angstroms</source>
        <translation>Atome der Elementarzelle: Nummer, Bezeichnung, Element, Besetzung, x, y, z, B in Quadratångström</translation>
    </message>
    <message>
        <source>No. of atom in a cell</source>
        <translation>Atome in der Zelle</translation>
    </message>
    <message>
        <source>atoms in the unit cell, and the sum of their occupancies</source>
        <translation>Atome in der Elementarzelle und die Summe ihrer Besetzungen</translation>
    </message>
    <message>
        <source>print to file</source>
        <translation>in Datei</translation>
    </message>
    <message>
        <source>write the atoms of the cell to a file</source>
        <translation>schreibt die Atome der Zelle in eine Datei</translation>
    </message>
    <message>
        <source>Print out</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>print the atoms of the cell</source>
        <translation>druckt die Atome der Zelle</translation>
    </message>
    <message>
        <source>Reflections</source>
        <translation>Reflexe</translation>
    </message>
    <message>
        <source>Dmin(A)</source>
        <translation>Dmin (A)</translation>
    </message>
    <message>
        <source>smallest d-spacing of the list in angstroms</source>
        <translation>kleinster Netzebenenabstand der Liste in Ångström</translation>
    </message>
    <message>
        <source>-H calc</source>
        <translation>mit -H</translation>
    </message>
    <message>
        <source>include negative h</source>
        <translation>negative h einschließen</translation>
    </message>
    <message>
        <source>-K calc</source>
        <translation>mit -K</translation>
    </message>
    <message>
        <source>include negative k</source>
        <translation>negative k einschließen</translation>
    </message>
    <message>
        <source>-L calc</source>
        <translation>mit -L</translation>
    </message>
    <message>
        <source>include negative l</source>
        <translation>negative l einschließen</translation>
    </message>
    <message>
        <source>compute the reflection list</source>
        <translation>berechnet die Reflexliste</translation>
    </message>
    <message>
        <source>k/2 = sin(theta)/lambda in inverse angstroms, d in angstroms, 2-theta in degrees, structure factor A + iB, its modulus F, intensity</source>
        <translation>k/2 = sin(theta)/lambda in reziproken Ångström, d in Ångström, 2-theta in Grad, Strukturfaktor A + iB, sein Betrag F, Intensität</translation>
    </message>
    <message>
        <source>number of reflections</source>
        <translation>Zahl der Reflexe</translation>
    </message>
    <message>
        <source>write h, k, l, k/2, A, B to a file</source>
        <translation>schreibt h, k, l, k/2, A, B in eine Datei</translation>
    </message>
    <message>
        <source>print h, k, l, k/2, A, B</source>
        <translation>druckt h, k, l, k/2, A, B</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Beugungsbilder</translation>
    </message>
    <message>
        <source>Powder XRD Pattern</source>
        <translation>Pulverdiagramm</translation>
    </message>
    <message>
        <source>simulated X-ray powder diagram</source>
        <translation>simuliertes Röntgen-Pulverdiagramm</translation>
    </message>
    <message>
        <source>Electron Debye-ring</source>
        <translation>Beugungsringe</translation>
    </message>
    <message>
        <source>simulated electron ring pattern</source>
        <translation>simulierte Elektronen-Beugungsringe</translation>
    </message>
    <message>
        <source>Single Crystal</source>
        <translation>Einkristall</translation>
    </message>
    <message>
        <source>electron spot pattern of one crystal</source>
        <translation>Punktdiagramm eines Kristalls mit Elektronen</translation>
    </message>
    <message>
        <source>Fiber Pattern</source>
        <translation>Faserbild</translation>
    </message>
    <message>
        <source>electron pattern of a fiber texture</source>
        <translation>Elektronenbeugung einer Fasertextur</translation>
    </message>
    <message>
        <source>KP CALC</source>
        <translation>KIKUCHI-BILD</translation>
    </message>
    <message>
        <source>simulated Kikuchi pattern</source>
        <translation>simuliertes Kikuchi-Bild</translation>
    </message>
    <message>
        <source>KP ANALYSIS(A)</source>
        <translation>KIKUCHI-ANALYSE</translation>
    </message>
    <message>
        <source>distances between atoms</source>
        <translation>Abstände zwischen Atomen</translation>
    </message>
    <message>
        <source>Crystal file</source>
        <translation>Kristalldatei</translation>
    </message>
    <message>
        <source>path of the crystal file</source>
        <translation>Pfad der Kristalldatei</translation>
    </message>
    <message>
        <source>Crystal_Data</source>
        <translation>Kristall_Daten</translation>
    </message>
    <message>
        <source>OPTION</source>
        <translation>OPTION</translation>
    </message>
    <message>
        <source>LOAD</source>
        <translation>LADEN</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>SPEICHERN</translation>
    </message>
    <message>
        <source>Import from icsd.txt</source>
        <translation>Aus icsd.txt importieren</translation>
    </message>
    <message>
        <source>Open structure file...</source>
        <translation>Strukturdatei öffnen...</translation>
    </message>
    <message>
        <source>Opens a structure file of any kind: CIF, SHELX, POSCAR, crystal file</source>
        <translation>Öffnet eine Strukturdatei beliebiger Art: CIF, SHELX, POSCAR, Kristalldatei</translation>
    </message>
    <message>
        <source>Save as CIF...</source>
        <translation>Als CIF speichern...</translation>
    </message>
    <message>
        <source>Writes the crystal as a crystallographic information file for other programs</source>
        <translation>Schreibt den Kristall als CIF-Datei für andere Programme</translation>
    </message>
    <message>
        <source>Import from CIF</source>
        <translation>Aus CIF importieren</translation>
    </message>
    <message>
        <source>END</source>
        <translation>ENDE</translation>
    </message>
    <message>
        <source>REF SELECT FOR SHEET SILICATES</source>
        <translation>REFLEXWAHL FÜR SCHICHTSILIKATE</translation>
    </message>
    <message>
        <source>KIKUCHI PATTERN ANALYSIS</source>
        <translation>ANALYSE VON KIKUCHI-BILDERN</translation>
    </message>
    <message>
        <source>press at one end of a line, drag to the other; once all lines are drawn, the nearest end moves</source>
        <translation>an einem Ende einer Linie drücken, zum anderen ziehen; stehen alle Linien, folgt das nächste Ende</translation>
    </message>
    <message>
        <source>remove all lines</source>
        <translation>nimmt alle Linien weg</translation>
    </message>
    <message>
        <source>Redraw</source>
        <translation>Neu zeichnen</translation>
    </message>
    <message>
        <source>draw the finished lines again</source>
        <translation>zeichnet die fertigen Linien neu</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>draw a grid of 64 picture units</source>
        <translation>zeichnet ein Gitter von 64 Bildeinheiten</translation>
    </message>
    <message>
        <source>CORRECTOR</source>
        <translation>KORREKTOR</translation>
    </message>
    <message>
        <source>shift the rows of the picture by the numbers in the corrector file</source>
        <translation>verschiebt die Zeilen des Bildes, wie die Korrekturdatei sagt</translation>
    </message>
    <message>
        <source>progress of corrector and search</source>
        <translation>Fortschritt von Korrektor und Suche</translation>
    </message>
    <message>
        <source>Crystal</source>
        <translation>Kristall</translation>
    </message>
    <message>
        <source>CRYSTAL SELECT</source>
        <translation>KRISTALL WÄHLEN</translation>
    </message>
    <message>
        <source>load a crystal file and rebuild the triple table</source>
        <translation>lädt eine Kristalldatei und baut die Tripeltabelle neu auf</translation>
    </message>
    <message>
        <source>title of the crystal file</source>
        <translation>Titel der Kristalldatei</translation>
    </message>
    <message>
        <source>number of the strongest reflections in the triple table, extended over equal intensities; its memory grows with the third power</source>
        <translation>Zahl der stärksten Reflexe in der Tripeltabelle, erweitert um gleich starke; ihr Speicher wächst mit der dritten Potenz</translation>
    </message>
    <message>
        <source>used</source>
        <translation>benutzt</translation>
    </message>
    <message>
        <source>reflections in the triple table</source>
        <translation>Reflexe in der Tripeltabelle</translation>
    </message>
    <message>
        <source>Acc. Vol (kv)</source>
        <translation>Spannung (kV)</translation>
    </message>
    <message>
        <source>acceleration voltage in kV; sets the wavelength when the box is left</source>
        <translation>Beschleunigungsspannung in kV; setzt die Wellenlänge, wenn das Feld verlassen wird</translation>
    </message>
    <message>
        <source>progress of the triple table and of matching</source>
        <translation>Fortschritt von Tripeltabelle und Vergleich</translation>
    </message>
    <message>
        <source>Matching</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Tolerance(deg.)</source>
        <translation>Toleranz (°)</translation>
    </message>
    <message>
        <source>largest deviation of an angle between two planes, degrees; azimuth differences may deviate by twice as much</source>
        <translation>größte Abweichung eines Winkels zwischen zwei Ebenen, Grad; Unterschiede der Azimute dürfen doppelt so weit abweichen</translation>
    </message>
    <message>
        <source>measure the lines and list the solutions</source>
        <translation>misst die Linien und führt die Lösungen auf</translation>
    </message>
    <message>
        <source>Omit eqivalent. direction</source>
        <translation>gleichwertige Richtung weglassen</translation>
    </message>
    <message>
        <source>list only the first of the solutions whose planes have the same spacings and intensities</source>
        <translation>von Lösungen, deren Ebenen gleiche Abstände und Intensitäten haben, nur die erste aufführen</translation>
    </message>
    <message>
        <source>Consider band width (6 lines required))</source>
        <translation>Bandbreite beachten (6 Linien nötig)</translation>
    </message>
    <message>
        <source>pick both edges of each band and compare the widths too; removes all lines</source>
        <translation>beide Kanten jedes Bandes setzen und auch die Breiten vergleichen; nimmt alle Linien weg</translation>
    </message>
    <message>
        <source>Width tolerance (%)</source>
        <translation>Breitentoleranz (%)</translation>
    </message>
    <message>
        <source>largest deviation of a band width, per cent</source>
        <translation>größte Abweichung einer Bandbreite, Prozent</translation>
    </message>
    <message>
        <source>No. of Ref.</source>
        <translation>Reflexe</translation>
    </message>
    <message>
        <source>Area (deg.)</source>
        <translation>Öffnung (°)</translation>
    </message>
    <message>
        <source>Detector Position (mm)</source>
        <translation>Detektorposition (mm)</translation>
    </message>
    <message>
        <source>distance of the detector from the source, mm; Enter accepts it</source>
        <translation>Abstand des Detektors von der Quelle, mm; Enter übernimmt ihn</translation>
    </message>
    <message>
        <source>X-shift(deg)</source>
        <translation>X-Verschiebung (°)</translation>
    </message>
    <message>
        <source>offset of the pattern centre to the right, degrees</source>
        <translation>Versatz des Zentrums nach rechts, Grad</translation>
    </message>
    <message>
        <source>X-shift(mm)</source>
        <translation>X-Verschiebung (mm)</translation>
    </message>
    <message>
        <source>offset of the pattern centre to the right, mm on the detector; Enter accepts it</source>
        <translation>Versatz des Zentrums nach rechts, mm auf dem Detektor; Enter übernimmt ihn</translation>
    </message>
    <message>
        <source>Y-shift(deg)</source>
        <translation>Y-Verschiebung (°)</translation>
    </message>
    <message>
        <source>offset of the pattern centre downward in this picture, degrees; on the detector upward if the picture was flipped</source>
        <translation>Versatz des Zentrums in diesem Bild nach unten, Grad; auf dem Detektor nach oben, wenn das Bild gestürzt wurde</translation>
    </message>
    <message>
        <source>Y-shift(mm)</source>
        <translation>Y-Verschiebung (mm)</translation>
    </message>
    <message>
        <source>offset of the pattern centre downward, mm on the detector; Enter accepts it</source>
        <translation>Versatz des Zentrums nach unten, mm auf dem Detektor; Enter übernimmt ihn</translation>
    </message>
    <message>
        <source>(enter required)</source>
        <translation>(Enter nötig)</translation>
    </message>
    <message>
        <source>the boxes in mm count when Enter is pressed</source>
        <translation>die Felder in mm gelten, wenn Enter gedrückt wird</translation>
    </message>
    <message>
        <source>WD change (mm)</source>
        <translation>WD-Änderung (mm)</translation>
    </message>
    <message>
        <source>change of the working distance from that of the camera file, mm; reads the file again</source>
        <translation>Änderung des Arbeitsabstands gegen den der Kameradatei, mm; liest die Datei neu</translation>
    </message>
    <message>
        <source>Detector incline (deg)</source>
        <translation>Detektorneigung (°)</translation>
    </message>
    <message>
        <source>tilt of the detector, degrees; reads the camera file again</source>
        <translation>Neigung des Detektors, Grad; liest die Kameradatei neu</translation>
    </message>
    <message>
        <source>calibration of the camera on a pattern of Si(001)</source>
        <translation>Kalibrierung der Kamera an einem Bild von Si(001)</translation>
    </message>
    <message>
        <source>Si(001) marker</source>
        <translation>Si(001)-Marke</translation>
    </message>
    <message>
        <source>clicks set the marker on the &lt;001&gt; pole</source>
        <translation>Klicks setzen die Marke auf den Pol &lt;001&gt;</translation>
    </message>
    <message>
        <source>clicks set the other marker on a &lt;112&gt; pole, 35.264 degrees off</source>
        <translation>Klicks setzen die andere Marke auf einen Pol &lt;112&gt;, 35.264 Grad entfernt</translation>
    </message>
    <message>
        <source>clicks set the other marker on a &lt;111&gt; pole, 54.735 degrees off</source>
        <translation>Klicks setzen die andere Marke auf einen Pol &lt;111&gt;, 54.735 Grad entfernt</translation>
    </message>
    <message>
        <source>move the marker left by 0.5</source>
        <translation>rückt die Marke um 0.5 nach links</translation>
    </message>
    <message>
        <source>move the marker right by 0.5</source>
        <translation>rückt die Marke um 0.5 nach rechts</translation>
    </message>
    <message>
        <source>move the marker up by 0.5</source>
        <translation>rückt die Marke um 0.5 nach oben</translation>
    </message>
    <message>
        <source>move the marker down by 0.5</source>
        <translation>rückt die Marke um 0.5 nach unten</translation>
    </message>
    <message>
        <source>acquisition angle and shifts from the two markers</source>
        <translation>Aufnahmewinkel und Verschiebungen aus den zwei Marken</translation>
    </message>
    <message>
        <source>Area step</source>
        <translation>Schritt Öffnung</translation>
    </message>
    <message>
        <source>step of the acquisition angle, degrees</source>
        <translation>Schritt des Aufnahmewinkels, Grad</translation>
    </message>
    <message>
        <source>less acquisition angle by one step, then CALC</source>
        <translation>Aufnahmewinkel um einen Schritt kleiner, dann rechnen</translation>
    </message>
    <message>
        <source>more acquisition angle by one step, then CALC</source>
        <translation>Aufnahmewinkel um einen Schritt größer, dann rechnen</translation>
    </message>
    <message>
        <source>X step</source>
        <translation>Schritt X</translation>
    </message>
    <message>
        <source>step of the x shift, degrees</source>
        <translation>Schritt der x-Verschiebung, Grad</translation>
    </message>
    <message>
        <source>less x shift by one step, then CALC</source>
        <translation>x-Verschiebung um einen Schritt kleiner, dann rechnen</translation>
    </message>
    <message>
        <source>more x shift by one step, then CALC</source>
        <translation>x-Verschiebung um einen Schritt größer, dann rechnen</translation>
    </message>
    <message>
        <source>Y step</source>
        <translation>Schritt Y</translation>
    </message>
    <message>
        <source>step of the y shift, degrees</source>
        <translation>Schritt der y-Verschiebung, Grad</translation>
    </message>
    <message>
        <source>less y shift by one step, then CALC</source>
        <translation>y-Verschiebung um einen Schritt kleiner, dann rechnen</translation>
    </message>
    <message>
        <source>more y shift by one step, then CALC</source>
        <translation>y-Verschiebung um einen Schritt größer, dann rechnen</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>Lösung</translation>
    </message>
    <message>
        <source>number of the solution that the parameters are adjusted for</source>
        <translation>Nummer der Lösung, für die die Parameter eingestellt werden</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>steps to each side in the search</source>
        <translation>Schritte nach jeder Seite bei der Suche</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>measure over a grid of parameters around the present ones</source>
        <translation>misst über einem Gitter von Parametern um die jetzigen</translation>
    </message>
    <message>
        <source>Bands and solutions</source>
        <translation>Bänder und Lösungen</translation>
    </message>
    <message>
        <source>No   h   k   l   h   k   l   h   k   l      u      v      w  d12  d23  d31</source>
        <translation>Nr   h   k   l   h   k   l   h   k   l      u      v      w  d12  d23  d31</translation>
    </message>
    <message>
        <source>solutions: indices of the three bands, direction towards the screen, deviations of the angles in degrees, of the widths in per cent; a click shows it in the simulation</source>
        <translation>Lösungen: Indizes der drei Bänder, Richtung zum Schirm, Abweichungen der Winkel in Grad, der Breiten in Prozent; ein Klick zeigt sie in der Simulation</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Camera_Parameters_Set</source>
        <translation>Kameraparameter_setzen</translation>
    </message>
    <message>
        <source>load a picture (BMP, PNG, JPEG, TIFF) as the measured pattern</source>
        <translation>nimmt ein Bild (BMP, PNG, JPEG, TIFF) als gemessenes Beugungsbild</translation>
    </message>
    <message>
        <source>write the picture with its lines as a bitmap</source>
        <translation>schreibt das Bild mit seinen Linien als Bitmap</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>LÖSCHEN</translation>
    </message>
    <message>
        <source>remove the picture</source>
        <translation>nimmt das Bild weg</translation>
    </message>
    <message>
        <source>FLIP</source>
        <translation>STÜRZEN</translation>
    </message>
    <message>
        <source>turn the picture upside down: for patterns recorded as seen from behind the screen</source>
        <translation>stellt das Bild auf den Kopf: für Bilder, wie man sie von hinter dem Schirm sieht</translation>
    </message>
    <message>
        <source>MIRROR</source>
        <translation>SPIEGELN</translation>
    </message>
    <message>
        <source>turn the picture left to right</source>
        <translation>vertauscht im Bild links und rechts</translation>
    </message>
    <message>
        <source>Matching Method</source>
        <translation>Vergleichsmethode</translation>
    </message>
    <message>
        <source>0: angles and sense of rotation must fit; 1: only angles</source>
        <translation>0: Winkel und Drehsinn müssen passen; 1: nur die Winkel</translation>
    </message>
    <message>
        <source>Correct File</source>
        <translation>Korrekturdatei</translation>
    </message>
    <message>
        <source>file with the shift of each picture row</source>
        <translation>Datei mit der Verschiebung jeder Bildzeile</translation>
    </message>
    <message>
        <source>Automatic indexing</source>
        <translation>Automatische Indizierung</translation>
    </message>
    <message>
        <source>finds bands, orientation and indices without picked lines</source>
        <translation>findet Bänder, Orientierung und Indizes ohne gesetzte Linien</translation>
    </message>
    <message>
        <source>calibrate the camera on two poles of a Si(001) pattern</source>
        <translation>kalibriert die Kamera an zwei Polen eines Bildes von Si(001)</translation>
    </message>
    <message>
        <source>Parameter_Adjust</source>
        <translation>Parameter_anpassen</translation>
    </message>
    <message>
        <source>adjust the detector parameters for one solution</source>
        <translation>stellt die Detektorparameter für eine Lösung ein</translation>
    </message>
    <message>
        <source>Center Position</source>
        <translation>Zentrum</translation>
    </message>
    <message>
        <source>the next click on the picture sets the pattern centre</source>
        <translation>der nächste Klick auf das Bild setzt das Zentrum</translation>
    </message>
    <message>
        <source>ED PATTERN</source>
        <translation>ELEKTRONENBEUGUNG</translation>
    </message>
    <message>
        <source>spot pattern: the beam in the centre, darkness by intensity; the right mouse button copies and exports</source>
        <translation>Punktdiagramm: der Strahl in der Mitte, Schwärze nach Intensität; die rechte Maustaste kopiert und exportiert</translation>
    </message>
    <message>
        <source>Zone axis</source>
        <translation>Zonenachse</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Ebene N</translation>
    </message>
    <message>
        <source>Laue level N: reflections with h u + k v + l w = N are shown</source>
        <translation>Lauezone N: gezeigt werden Reflexe mit h u + k v + l w = N</translation>
    </message>
    <message>
        <source>next Laue level</source>
        <translation>nächste Lauezone</translation>
    </message>
    <message>
        <source>Laue level before</source>
        <translation>vorige Lauezone</translation>
    </message>
    <message>
        <source>draw the pattern</source>
        <translation>zeichnet das Beugungsbild</translation>
    </message>
    <message>
        <source>width of the picture in the unit of 1/(2d), inverse angstroms</source>
        <translation>Breite des Bildes in der Einheit von 1/(2d), reziproke Ångström</translation>
    </message>
    <message>
        <source>Grey scale</source>
        <translation>Grauwerte</translation>
    </message>
    <message>
        <source>darkness follows the intensity</source>
        <translation>die Schwärze geht mit der Intensität</translation>
    </message>
    <message>
        <source>darkness follows the square root of the intensity, which shows weak spots better</source>
        <translation>die Schwärze geht mit der Wurzel der Intensität, was schwache Reflexe hebt</translation>
    </message>
    <message>
        <source>Frame1</source>
        <translation>Schwärze</translation>
    </message>
    <message>
        <source>another power of the intensity</source>
        <translation>eine andere Potenz der Intensität</translation>
    </message>
    <message>
        <source>darkness follows the intensity to this power; empty: as chosen above</source>
        <translation>die Schwärze geht mit dieser Potenz der Intensität; leer: wie oben gewählt</translation>
    </message>
    <message>
        <source>UP</source>
        <translation>MEHR</translation>
    </message>
    <message>
        <source>all spots darker: half the intensity becomes black</source>
        <translation>alle Reflexe dunkler: die halbe Intensität wird schwarz</translation>
    </message>
    <message>
        <source>DWN</source>
        <translation>WENIGER</translation>
    </message>
    <message>
        <source>all spots lighter: twice the intensity becomes black</source>
        <translation>alle Reflexe heller: die doppelte Intensität wird schwarz</translation>
    </message>
    <message>
        <source>write h k l at each spot, at the next drawing</source>
        <translation>schreibt h k l an jeden Reflex, bei der nächsten Zeichnung</translation>
    </message>
    <message>
        <source>PATTERN SAVE</source>
        <translation>BILD SPEICHERN</translation>
    </message>
    <message>
        <source>Diffraction spot size</source>
        <translation>Größe der Reflexe</translation>
    </message>
    <message>
        <source>radius of the direct beam in per cent of half the picture; a spot has half of it</source>
        <translation>Radius des direkten Strahls in Prozent des halben Bildes; ein Reflex hat die Hälfte davon</translation>
    </message>
    <message>
        <source>Rotation angle pitch</source>
        <translation>Schritt der Drehung</translation>
    </message>
    <message>
        <source>KIKUCHI PATTERN</source>
        <translation>KIKUCHI-BILD</translation>
    </message>
    <message>
        <source>a click finds the axis there, a double click draws its pattern</source>
        <translation>ein Klick findet dort die Achse, ein Doppelklick zeichnet ihr Bild</translation>
    </message>
    <message>
        <source>draw the pattern of this axis</source>
        <translation>zeichnet das Bild dieser Achse</translation>
    </message>
    <message>
        <source>component u of the axis that was found, not yet in the pattern</source>
        <translation>Komponente u der gefundenen Achse, noch nicht im Bild</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>draw the pattern of the axis that was found</source>
        <translation>zeichnet das Bild der gefundenen Achse</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>rotation of the pattern at the next transfer, degrees</source>
        <translation>Drehung des Bildes bei der nächsten Übernahme, Grad</translation>
    </message>
    <message>
        <source>°   reference</source>
        <translation>°   Bezug</translation>
    </message>
    <message>
        <source>reference reflection of the new axis</source>
        <translation>Bezugsreflex der neuen Achse</translation>
    </message>
    <message>
        <source>Walk</source>
        <translation>Gehen</translation>
    </message>
    <message>
        <source>narrow the picture by the zoom increment</source>
        <translation>verengt das Bild um den Zoomschritt</translation>
    </message>
    <message>
        <source>widen the picture by the zoom increment</source>
        <translation>weitet das Bild um den Zoomschritt</translation>
    </message>
    <message>
        <source>area(deg.)</source>
        <translation>Öffnung (°)</translation>
    </message>
    <message>
        <source>half width of the picture in degrees, at most 85 with the shifts</source>
        <translation>halbe Breite des Bildes in Grad, mit den Verschiebungen höchstens 85</translation>
    </message>
    <message>
        <source>acceleration voltage in kV; leaving the box sets the wavelength</source>
        <translation>Beschleunigungsspannung in kV; beim Verlassen des Feldes wird die Wellenlänge gesetzt</translation>
    </message>
    <message>
        <source>Number of band</source>
        <translation>Zahl der Bänder</translation>
    </message>
    <message>
        <source>how many of the strongest reflections are drawn; 0 or empty for all</source>
        <translation>wie viele der stärksten Reflexe gezeichnet werden; 0 oder leer für alle</translation>
    </message>
    <message>
        <source>Intensity Min. (0-255)</source>
        <translation>Kleinster Grauwert (0-255)</translation>
    </message>
    <message>
        <source>lowest grey level that is drawn, 0 to 255</source>
        <translation>niedrigste Graustufe, die gezeichnet wird, 0 bis 255</translation>
    </message>
    <message>
        <source>Radius (deg.)</source>
        <translation>Radius (°)</translation>
    </message>
    <message>
        <source>angle of a circle around the centre, degrees; empty for none</source>
        <translation>Winkel eines Kreises um das Zentrum, Grad; leer: keiner</translation>
    </message>
    <message>
        <source>switch the grid of eight by eight on or off and draw</source>
        <translation>schaltet das Gitter von acht mal acht ein oder aus und zeichnet</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>grid over the picture at the next drawing</source>
        <translation>Gitter über dem Bild bei der nächsten Zeichnung</translation>
    </message>
    <message>
        <source>Zone Axis Map</source>
        <translation>Karte der Zonenachsen</translation>
    </message>
    <message>
        <source>show the map of zone axes at each drawing</source>
        <translation>zeigt bei jeder Zeichnung die Karte der Zonenachsen</translation>
    </message>
    <message>
        <source>Express as Line</source>
        <translation>Als Linien</translation>
    </message>
    <message>
        <source>draw the traces of the planes in place of the lines at the Bragg angle</source>
        <translation>zeichnet die Spuren der Ebenen statt der Linien beim Braggwinkel</translation>
    </message>
    <message>
        <source>Intensity Fix</source>
        <translation>Intensität fest</translation>
    </message>
    <message>
        <source>keep the grey scale from drawing to drawing</source>
        <translation>behält die Grauwerte von Zeichnung zu Zeichnung</translation>
    </message>
    <message>
        <source>blue disc at the centre</source>
        <translation>blaue Scheibe im Zentrum</translation>
    </message>
    <message>
        <source>Nomal Position</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>blue disc at the substrate normal</source>
        <translation>blaue Scheibe an der Substratnormalen</translation>
    </message>
    <message>
        <source>grey level by the intensity</source>
        <translation>Grauwert nach der Intensität</translation>
    </message>
    <message>
        <source>grey level by the root of the intensity</source>
        <translation>Grauwert nach der Wurzel der Intensität</translation>
    </message>
    <message>
        <source>CONTRAST</source>
        <translation>KONTRAST</translation>
    </message>
    <message>
        <source>grey scale of the lines</source>
        <translation>Grauwerte der Linien</translation>
    </message>
    <message>
        <source>exponent of the grey scale; used in place of I and Sqr( I ) when not empty</source>
        <translation>Exponent der Grauwerte; gilt vor I und Wurzel( I ), wenn nicht leer</translation>
    </message>
    <message>
        <source>darker lines: fixes the grey scale and divides it by the root of 2</source>
        <translation>dunklere Linien: hält die Grauwerte fest und teilt sie durch die Wurzel aus 2</translation>
    </message>
    <message>
        <source>DOWN</source>
        <translation>WENIGER</translation>
    </message>
    <message>
        <source>lighter lines</source>
        <translation>hellere Linien</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Marken</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>draw the line of this reflection in red</source>
        <translation>zeichnet die Linie dieses Reflexes rot</translation>
    </message>
    <message>
        <source>azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>azimuth of a direction, degrees</source>
        <translation>Azimut einer Richtung, Grad</translation>
    </message>
    <message>
        <source>° latitude</source>
        <translation>° Breite</translation>
    </message>
    <message>
        <source>latitude of a direction above the plane of the picture, degrees; 90 is the centre</source>
        <translation>Breite einer Richtung über der Bildebene, Grad; 90 ist das Zentrum</translation>
    </message>
    <message>
        <source>plot</source>
        <translation>setzen</translation>
    </message>
    <message>
        <source>mark the direction and find its axis</source>
        <translation>markiert die Richtung und findet ihre Achse</translation>
    </message>
    <message>
        <source>Bands: number, h, k, l, latitude, azimuth, grey level</source>
        <translation>Bänder: Nummer, h, k, l, Breite, Azimut, Grauwert</translation>
    </message>
    <message>
        <source>bands in the picture: number, h, k, l, latitude and azimuth in degrees, grey level; a click marks one in red</source>
        <translation>Bänder im Bild: Nummer, h, k, l, Breite und Azimut in Grad, Grauwert; ein Klick markiert eines rot</translation>
    </message>
    <message>
        <source>Crystal Select</source>
        <translation>Kristall wählen</translation>
    </message>
    <message>
        <source>load a crystal file</source>
        <translation>lädt eine Kristalldatei</translation>
    </message>
    <message>
        <source>crystal file</source>
        <translation>Kristalldatei</translation>
    </message>
    <message>
        <source>print the window of the spot pattern</source>
        <translation>druckt das Fenster des Punktdiagramms</translation>
    </message>
    <message>
        <source>Bands as a picture</source>
        <translation>Bänder als Bild</translation>
    </message>
    <message>
        <source>soft bands of the crystal in grey, as a detector shows them</source>
        <translation>weiche Bänder des Kristalls in Grau, wie ein Detektor sie zeigt</translation>
    </message>
    <message>
        <source>Image size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Superpose</source>
        <translation>Überlagern</translation>
    </message>
    <message>
        <source>Sfhift angle pitch</source>
        <translation>Schritt der Verschiebung</translation>
    </message>
    <message>
        <source>Zoom pitch</source>
        <translation>Zoomschritt</translation>
    </message>
    <message>
        <source>Deternmination of direction from two SEM photographs with different rotations.</source>
        <translation>Richtung aus zwei REM-Aufnahmen mit verschiedenen Drehungen.</translation>
    </message>
    <message>
        <source>from two azimuths</source>
        <translation>aus zwei Azimuten</translation>
    </message>
    <message>
        <source>phi-1(deg.)</source>
        <translation>phi-1 (°)</translation>
    </message>
    <message>
        <source>apparent azimuth of the line in the first photograph, degrees; folded into -90 to 90 at Calc.</source>
        <translation>scheinbarer Azimut der Linie in der ersten Aufnahme, Grad; beim Rechnen auf -90 bis 90 gebracht</translation>
    </message>
    <message>
        <source>rotate-1(deg.)</source>
        <translation>Drehung-1 (°)</translation>
    </message>
    <message>
        <source>rotation of the specimen about x in the first photograph, degrees</source>
        <translation>Drehung der Probe um x in der ersten Aufnahme, Grad</translation>
    </message>
    <message>
        <source>phi-2(deg.)</source>
        <translation>phi-2 (°)</translation>
    </message>
    <message>
        <source>apparent azimuth of the line in the second photograph, degrees; folded into -90 to 90 at Calc.</source>
        <translation>scheinbarer Azimut der Linie in der zweiten Aufnahme, Grad; beim Rechnen auf -90 bis 90 gebracht</translation>
    </message>
    <message>
        <source>rotation of the specimen about x in the second photograph, degrees; Enter calculates</source>
        <translation>Drehung der Probe um x in der zweiten Aufnahme, Grad; Enter rechnet</translation>
    </message>
    <message>
        <source>Calc.</source>
        <translation>Rechnen</translation>
    </message>
    <message>
        <source>search the direction that shows these azimuths</source>
        <translation>sucht die Richtung, die diese Azimute zeigt</translation>
    </message>
    <message>
        <source>azimuth of the direction on the unrotated specimen, degrees</source>
        <translation>Azimut der Richtung auf der ungedrehten Probe, Grad</translation>
    </message>
    <message>
        <source>angle of the direction above the plane of the unrotated photograph, degrees</source>
        <translation>Winkel der Richtung über der Ebene der ungedrehten Aufnahme, Grad</translation>
    </message>
    <message>
        <source>azimuth that the direction found shows in the first photograph, degrees; compare with phi-1</source>
        <translation>Azimut, den die gefundene Richtung in der ersten Aufnahme zeigt, Grad; mit phi-1 zu vergleichen</translation>
    </message>
    <message>
        <source>azimuth that the direction found shows in the second photograph, degrees; compare with phi-2</source>
        <translation>Azimut, den die gefundene Richtung in der zweiten Aufnahme zeigt, Grad; mit phi-2 zu vergleichen</translation>
    </message>
    <message>
        <source>from two lengths</source>
        <translation>aus zwei Längen</translation>
    </message>
    <message>
        <source>length_1</source>
        <translation>Länge_1</translation>
    </message>
    <message>
        <source>length of the line in the first photograph, in any unit</source>
        <translation>Länge der Linie in der ersten Aufnahme, in beliebiger Einheit</translation>
    </message>
    <message>
        <source>rotation of the specimen in the first photograph, degrees; shared with the block of azimuths</source>
        <translation>Drehung der Probe in der ersten Aufnahme, Grad; gemeinsam mit dem Block der Azimute</translation>
    </message>
    <message>
        <source>length_2</source>
        <translation>Länge_2</translation>
    </message>
    <message>
        <source>length of the line in the second photograph, in the same unit</source>
        <translation>Länge der Linie in der zweiten Aufnahme, in derselben Einheit</translation>
    </message>
    <message>
        <source>rotation of the specimen in the second photograph, degrees; shared with the block of azimuths; Enter calculates</source>
        <translation>Drehung der Probe in der zweiten Aufnahme, Grad; gemeinsam mit dem Block der Azimute; Enter rechnet</translation>
    </message>
    <message>
        <source>find the angle whose cosines have the ratio of the lengths</source>
        <translation>findet den Winkel, dessen Kosinus im Verhältnis der Längen stehen</translation>
    </message>
    <message>
        <source>half plane of the direction: 90 or -90 degrees</source>
        <translation>Halbebene der Richtung: 90 oder -90 Grad</translation>
    </message>
    <message>
        <source>angle of the direction in that half plane, degrees</source>
        <translation>Winkel der Richtung in dieser Halbebene, Grad</translation>
    </message>
    <message>
        <source>Inverse Matrix Calculation</source>
        <translation>Inverse Matrix</translation>
    </message>
    <message>
        <source>the inverse matrix is on the right</source>
        <translation>die inverse Matrix steht rechts</translation>
    </message>
    <message>
        <source>invert the matrix on the left</source>
        <translation>invertiert die Matrix links</translation>
    </message>
    <message>
        <source>Equivalent vector</source>
        <translation>Gleichwertiger Vektor</translation>
    </message>
    <message>
        <source>component of the direct vector along a, in units of a</source>
        <translation>Komponente des direkten Vektors entlang a, in Einheiten von a</translation>
    </message>
    <message>
        <source>h, k, l of the reciprocal vector along u, v, w; magnitudes scaled to the sum 1000</source>
        <translation>h, k, l des reziproken Vektors entlang u, v, w; Beträge auf die Summe 1000 gebracht</translation>
    </message>
    <message>
        <source>u, v, w of the direct vector along h, k, l; magnitudes scaled to the sum 1000</source>
        <translation>u, v, w des direkten Vektors entlang h, k, l; Beträge auf die Summe 1000 gebracht</translation>
    </message>
    <message>
        <source>Angle between two vectors</source>
        <translation>Winkel zwischen zwei Vektoren</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>both are direct vectors, in units of a, b, c</source>
        <translation>beide sind direkte Vektoren, in Einheiten von a, b, c</translation>
    </message>
    <message>
        <source>both are reciprocal vectors, in units of a*, b*, c*</source>
        <translation>beide sind reziproke Vektoren, in Einheiten von a*, b*, c*</translation>
    </message>
    <message>
        <source>both are planes: 180 degrees less the angle of their normals</source>
        <translation>beide sind Ebenen: 180 Grad weniger der Winkel ihrer Normalen</translation>
    </message>
    <message>
        <source>vector 1</source>
        <translation>Vektor 1</translation>
    </message>
    <message>
        <source>vector 2</source>
        <translation>Vektor 2</translation>
    </message>
    <message>
        <source>Angle(deg.)</source>
        <translation>Winkel (°)</translation>
    </message>
    <message>
        <source>angle between the two vectors in degrees; an obtuse angle of vectors shows less by 180, a right one may show 0 (planes: 180)</source>
        <translation>Winkel zwischen den zwei Vektoren in Grad; ein stumpfer Winkel von Vektoren zeigt 180 weniger, ein rechter kann 0 zeigen (Ebenen: 180)</translation>
    </message>
    <message>
        <source>X-ray Powder Diffraction</source>
        <translation>Röntgen-Pulverdiagramm</translation>
    </message>
    <message>
        <source>intensity over 2-theta from the left to the right end of the pattern; a click reads 2-theta, d and intensity</source>
        <translation>Intensität über 2-theta vom linken bis zum rechten Ende; ein Klick liest 2-theta, d und Intensität ab</translation>
    </message>
    <message>
        <source>2-theta at the place of the last click, in degrees</source>
        <translation>2-theta an der Stelle des letzten Klicks, in Grad</translation>
    </message>
    <message>
        <source>height of the curve at the last click, in per cent of the highest sample</source>
        <translation>Höhe der Kurve am letzten Klick, in Prozent des höchsten Punktes</translation>
    </message>
    <message>
        <source>2theta.min</source>
        <translation>2theta min</translation>
    </message>
    <message>
        <source>left end of the pattern, 2-theta in degrees</source>
        <translation>linkes Ende des Diagramms, 2-theta in Grad</translation>
    </message>
    <message>
        <source>2theta.max</source>
        <translation>2theta max</translation>
    </message>
    <message>
        <source>right end of the pattern, 2-theta in degrees; 0 becomes 60</source>
        <translation>rechtes Ende des Diagramms, 2-theta in Grad; 0 wird 60</translation>
    </message>
    <message>
        <source>full width of a line at half of its height, in degrees of 2-theta; 0 becomes 0.1</source>
        <translation>volle Breite einer Linie in halber Höhe, in Grad von 2-theta; 0 wird 0.1</translation>
    </message>
    <message>
        <source>Gaussian Ratio(%)</source>
        <translation>Gauß-Anteil (%)</translation>
    </message>
    <message>
        <source>share of the Gaussian in a line, in per cent; the rest is a Lorentzian</source>
        <translation>Anteil der Gaußkurve an einer Linie, in Prozent; der Rest ist eine Lorentzkurve</translation>
    </message>
    <message>
        <source>doubles the height of the curve: the value drawn at full height is halved</source>
        <translation>verdoppelt die Höhe der Kurve: der Wert bei voller Höhe wird halbiert</translation>
    </message>
    <message>
        <source>intensity that is drawn at full height; Enter accepts a new one</source>
        <translation>Intensität, die mit voller Höhe gezeichnet wird; Enter übernimmt eine neue</translation>
    </message>
    <message>
        <source>halves the height of the curve: the value drawn at full height is doubled</source>
        <translation>halbiert die Höhe der Kurve: der Wert bei voller Höhe wird verdoppelt</translation>
    </message>
    <message>
        <source>maxima of at least 1 % of the highest one: 2-theta in degrees, d in angstroms, height in per cent</source>
        <translation>Maxima von mindestens 1 % des höchsten: 2-theta in Grad, d in Ångström, Höhe in Prozent</translation>
    </message>
    <message>
        <source>calculates the pattern from the present reflection list and draws it over the old one</source>
        <translation>berechnet das Diagramm aus der Reflexliste, wie sie dasteht, und zeichnet es über das alte</translation>
    </message>
    <message>
        <source>clears the picture and the reference of the per cents</source>
        <translation>löscht das Bild und den Bezug der Prozente</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>In Datei speichern</translation>
    </message>
    <message>
        <source>settings and 1001 samples as a text file, ".XDP" unless the name has an ending</source>
        <translation>Einstellungen und 1001 Punkte als Textdatei, „.XDP“, wenn der Name keine Endung hat</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>the picture as a bitmap file, ".BMP" unless the name has an ending</source>
        <translation>das Bild als Bitmap-Datei, „.BMP“, wenn der Name keine Endung hat</translation>
    </message>
    <message>
        <source>Zone Axis</source>
        <translation>Zonenachsen</translation>
    </message>
    <message>
        <source>map of zone axes: the circle is the equator</source>
        <translation>Karte der Zonenachsen: der Kreis ist der Äquator</translation>
    </message>
    <message>
        <source>Directions on the map</source>
        <translation>Richtungen auf der Karte</translation>
    </message>
    <message>
        <source>U Max</source>
        <translation>U max</translation>
    </message>
    <message>
        <source>V Max</source>
        <translation>V max</translation>
    </message>
    <message>
        <source>W Max</source>
        <translation>W max</translation>
    </message>
    <message>
        <source>One direction</source>
        <translation>Eine Richtung</translation>
    </message>
    <message>
        <source>azimuth of the direction, degrees</source>
        <translation>Azimut der Richtung, Grad</translation>
    </message>
    <message>
        <source>latitude of the direction, degrees; 90 is the centre</source>
        <translation>Breite der Richtung, Grad; 90 ist das Zentrum</translation>
    </message>
    <message>
        <source>PLOT</source>
        <translation>SETZEN</translation>
    </message>
    <message>
        <source>red disc at Phi, Theta</source>
        <translation>rote Scheibe bei Phi, Theta</translation>
    </message>
    <message>
        <source>Axes of the cell (degrees)</source>
        <translation>Achsen der Zelle (Grad)</translation>
    </message>
    <message>
        <source>Detecter normal</source>
        <translation>Detektornormale</translation>
    </message>
    <message>
        <source>the centre of the map is the screen normal</source>
        <translation>die Mitte der Karte ist die Schirmnormale</translation>
    </message>
    <message>
        <source>Substrate normal</source>
        <translation>Substratnormale</translation>
    </message>
    <message>
        <source>the centre of the map is the substrate normal</source>
        <translation>die Mitte der Karte ist die Substratnormale</translation>
    </message>
    <message>
        <source>Draw the southern semisphere</source>
        <translation>Südliche Halbkugel zeichnen</translation>
    </message>
    <message>
        <source>directions behind the equator in cyan</source>
        <translation>Richtungen hinter dem Äquator in Türkis</translation>
    </message>
    <message>
        <source>Theta as latitude</source>
        <translation>Theta als Breite</translation>
    </message>
    <message>
        <source>rings at equal distances in angle</source>
        <translation>Ringe in gleichen Winkelabständen</translation>
    </message>
    <message>
        <source>Show [uvw] on Kikuchi pattern</source>
        <translation>[uvw] im Kikuchi-Bild zeigen</translation>
    </message>
    <message>
        <source>label the directions on the Kikuchi pattern</source>
        <translation>schreibt die Richtungen in das Kikuchi-Bild</translation>
    </message>
    <message>
        <source>narrow the map by 0.1</source>
        <translation>verengt die Karte um 0.1</translation>
    </message>
    <message>
        <source>widen the map by 0.1</source>
        <translation>weitet die Karte um 0.1</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>SAVE MAP</source>
        <translation>KARTE SPEICHERN</translation>
    </message>
    <message>
        <source>Theta</source>
        <translation>Theta</translation>
    </message>
    <message>
        <source>MINCRYST</source>
        <translation>MINCRYST</translation>
    </message>
    <message>
        <source>size of the crystallite in unit cells along %1, not 0; an empty box leaves it as it was</source>
        <translation>Größe des Kristallits in Elementarzellen entlang %1, nicht 0; ein leeres Feld lässt sie, wie sie war</translation>
    </message>
    <message>
        <source>index %1 of the plane whose normal is the fiber axis, a whole number</source>
        <translation>Index %1 der Ebene, deren Normale die Faserachse ist, eine ganze Zahl</translation>
    </message>
    <message>
        <source>index L of the plane whose normal is the fiber axis, a whole number; Enter draws</source>
        <translation>Index L der Ebene, deren Normale die Faserachse ist, eine ganze Zahl; Enter zeichnet</translation>
    </message>
    <message>
        <source>turn back (PatternAngle falls) by %1</source>
        <translation>dreht zurück (PatternAngle fällt) um %L1</translation>
    </message>
    <message>
        <source>turn on (PatternAngle rises) by %1</source>
        <translation>dreht weiter (PatternAngle steigt) um %L1</translation>
    </message>
    <message>
        <source>turn clockwise by %1</source>
        <translation>dreht im Uhrzeigersinn um %L1</translation>
    </message>
    <message>
        <source>turn anticlockwise by %1</source>
        <translation>dreht gegen den Uhrzeigersinn um %L1</translation>
    </message>
    <message>
        <source>five times the rotation pitch</source>
        <translation>das Fünffache des Drehschritts</translation>
    </message>
    <message>
        <source>the rotation pitch, 5 degrees unless set in the menu</source>
        <translation>den Drehschritt, 5 Grad, wenn im Menü nicht anders gesetzt</translation>
    </message>
    <message>
        <source>a fifth of the rotation pitch</source>
        <translation>ein Fünftel des Drehschritts</translation>
    </message>
    <message>
        <source>ten times the rotation pitch</source>
        <translation>das Zehnfache des Drehschritts</translation>
    </message>
    <message>
        <source>the rotation pitch</source>
        <translation>den Drehschritt</translation>
    </message>
    <message>
        <source>a tenth of the rotation pitch</source>
        <translation>ein Zehntel des Drehschritts</translation>
    </message>
    <message>
        <source>added to %1 of every atom at "OK"; empty counts as 0</source>
        <translation>wird bei „OK“ zu %1 jedes Atoms addiert; leer zählt als 0</translation>
    </message>
    <message>
        <source>cell edge %1 in angstroms</source>
        <translation>Zellkante %1 in Ångström</translation>
    </message>
    <message>
        <source>cell angle %1 in degrees</source>
        <translation>Zellwinkel %1 in Grad</translation>
    </message>
    <message>
        <source>reciprocal edge %1 in inverse angstroms</source>
        <translation>reziproke Kante %1 in reziproken Ångström</translation>
    </message>
    <message>
        <source>reciprocal angle %1 in degrees</source>
        <translation>reziproker Winkel %1 in Grad</translation>
    </message>
    <message>
        <source>only this %1, when not empty</source>
        <translation>nur dieses %1, wenn nicht leer</translation>
    </message>
    <message>
        <source>keep only %1 = 0</source>
        <translation>nur %1 = 0 behalten</translation>
    </message>
    <message>
        <source>keep only %1 not 0</source>
        <translation>nur %1 ungleich 0 behalten</translation>
    </message>
    <message>
        <source>band %1: azimuth and polar angle of its normal and the angle to the next, degrees; after a click in the list the in-plane rotation</source>
        <translation>Band %1: Azimut und Polwinkel seiner Normale und der Winkel zum nächsten, Grad; nach einem Klick in die Liste die Drehung in der Ebene</translation>
    </message>
    <message>
        <source>component %1 of the zone axis, the direction of the beam, in lattice units</source>
        <translation>Komponente %1 der Zonenachse, der Richtung des Strahls, in Gittereinheiten</translation>
    </message>
    <message>
        <source>component w of the zone axis, the direction of the beam, in lattice units; Enter draws</source>
        <translation>Komponente w der Zonenachse, der Richtung des Strahls, in Gittereinheiten; Enter zeichnet</translation>
    </message>
    <message>
        <source>component %1 of the zone axis at the centre</source>
        <translation>Komponente %1 der Zonenachse im Zentrum</translation>
    </message>
    <message>
        <source>component w of the zone axis at the centre; Enter draws</source>
        <translation>Komponente w der Zonenachse im Zentrum; Enter zeichnet</translation>
    </message>
    <message>
        <source>component %1 of the axis that was found</source>
        <translation>Komponente %1 der gefundenen Achse</translation>
    </message>
    <message>
        <source>index %1 of the plane normal to that axis, per cent of the sum</source>
        <translation>Index %1 der Ebene senkrecht zu dieser Achse, Prozent der Summe</translation>
    </message>
    <message>
        <source>tilt up by the shift pitch</source>
        <translation>kippt um den Schritt nach oben</translation>
    </message>
    <message>
        <source>tilt down by the shift pitch</source>
        <translation>kippt um den Schritt nach unten</translation>
    </message>
    <message>
        <source>tilt to the left by the shift pitch</source>
        <translation>kippt um den Schritt nach links</translation>
    </message>
    <message>
        <source>tilt to the right by the shift pitch</source>
        <translation>kippt um den Schritt nach rechts</translation>
    </message>
    <message>
        <source>index %1 of a reflection to mark</source>
        <translation>Index %1 eines Reflexes, der markiert wird</translation>
    </message>
    <message>
        <source>index l of a reflection to mark; Enter draws</source>
        <translation>Index l eines Reflexes, der markiert wird; Enter zeichnet</translation>
    </message>
    <message>
        <source>element in row %1, column %2 of the matrix</source>
        <translation>Element in Zeile %1, Spalte %2 der Matrix</translation>
    </message>
    <message>
        <source>element in row %1, column %2 of the inverse matrix</source>
        <translation>Element in Zeile %1, Spalte %2 der inversen Matrix</translation>
    </message>
    <message>
        <source>component of the direct vector along %1, in units of %2</source>
        <translation>Komponente des direkten Vektors entlang %1, in Einheiten von %2</translation>
    </message>
    <message>
        <source>component of the reciprocal vector along %1, in units of %2</source>
        <translation>Komponente des reziproken Vektors entlang %1, in Einheiten von %2</translation>
    </message>
    <message>
        <source>first component of vector %1: u or h</source>
        <translation>erste Komponente von Vektor %1: u oder h</translation>
    </message>
    <message>
        <source>second component of vector %1: v or k</source>
        <translation>zweite Komponente von Vektor %1: v oder k</translation>
    </message>
    <message>
        <source>third component of vector %1: w or l</source>
        <translation>dritte Komponente von Vektor %1: w oder l</translation>
    </message>
    <message>
        <source>largest index %1; empty counts as 1</source>
        <translation>größter Index %1; leer zählt als 1</translation>
    </message>
    <message>
        <source>component %1 of a direction to look up</source>
        <translation>Komponente %1 einer Richtung, die gesucht wird</translation>
    </message>
    <message>
        <source>component w of a direction to look up; Enter plots</source>
        <translation>Komponente w einer Richtung, die gesucht wird; Enter setzt sie</translation>
    </message>
    <message>
        <source>latitude of %1, degrees</source>
        <translation>Breite von %1, Grad</translation>
    </message>
    <message>
        <source>azimuth of %1, degrees</source>
        <translation>Azimut von %1, Grad</translation>
    </message>
    <message>
        <source>Shared with other windows</source>
        <translation>Gemeinsam mit anderen Fenstern</translation>
    </message>
    <message>
        <source>%1. Do it all the same?</source>
        <translation>%L1. Trotzdem tun?</translation>
    </message>
    <message>
        <source>The program ends here. Files are as they were saved last. Correct this and start it again; see "Known behaviour" in the user guide.</source>
        <translation>Das Programm endet hier. Die Dateien sind, wie sie zuletzt gespeichert wurden. Beheben Sie dies und starten Sie es neu; siehe „Known behaviour“ im Handbuch.</translation>
    </message>
    <message>
        <source>Your work as it was before is kept: the next start offers it.</source>
        <translation>Ihre Arbeit von vorher ist aufbewahrt: der nächste Start bietet sie an.</translation>
    </message>
    <message>
        <source>Nothing can be saved in the folder of the data files.</source>
        <translation>Im Ordner der Datendateien lässt sich nichts speichern.</translation>
    </message>
    <message>
        <source>%1

The program works with the files in %2 as they are. Choose another folder when you save.</source>
        <translation>%L1

Das Programm arbeitet mit den Dateien in %2, wie sie sind. Wählen Sie beim Speichern einen anderen Ordner.</translation>
    </message>
    <message>
        <source>the program started</source>
        <translation>das Programm wurde gestartet</translation>
    </message>
    <message>
        <source>Export PNG...</source>
        <translation>PNG exportieren...</translation>
    </message>
    <message>
        <source>Export PNG, double size...</source>
        <translation>PNG exportieren, doppelte Größe...</translation>
    </message>
    <message>
        <source>Export PNG, four times...</source>
        <translation>PNG exportieren, vierfach...</translation>
    </message>
    <message>
        <source>Export PNG, resolution...</source>
        <translation>PNG exportieren, Auflösung...</translation>
    </message>
    <message>
        <source>Export SVG...</source>
        <translation>SVG exportieren...</translation>
    </message>
    <message>
        <source>Export PDF...</source>
        <translation>PDF exportieren...</translation>
    </message>
    <message>
        <source>With caption</source>
        <translation>Mit Unterschrift</translation>
    </message>
    <message>
        <source>With scale and labels</source>
        <translation>Mit Maßstab und Beschriftung</translation>
    </message>
    <message>
        <source>Export PNG</source>
        <translation>PNG exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Resolution (dots per inch)</source>
        <translation>Auflösung (Punkte je Zoll)</translation>
    </message>
    <message>
        <source>%1 was exported</source>
        <translation>%1 exportiert</translation>
    </message>
    <message>
        <source>new crystal[*]</source>
        <translation>neuer Kristall[*]</translation>
    </message>
    <message>
        <source>new crystal, %1</source>
        <translation>neuer Kristall, %1</translation>
    </message>
    <message>
        <source>Linear intensity</source>
        <translation>Intensität linear</translation>
    </message>
    <message>
        <source>Square root of the intensity</source>
        <translation>Wurzel der Intensität</translation>
    </message>
    <message>
        <source>Logarithm of the intensity</source>
        <translation>Logarithmus der Intensität</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Height follows the part that is shown</source>
        <translation>Höhe folgt dem gezeigten Teil</translation>
    </message>
    <message>
        <source>h k l at the peaks</source>
        <translation>h k l an den Maxima</translation>
    </message>
    <message>
        <source>Ticks of all reflections</source>
        <translation>Striche aller Reflexe</translation>
    </message>
    <message>
        <source>d as second axis</source>
        <translation>d als zweite Achse</translation>
    </message>
    <message>
        <source>Radiation in the picture</source>
        <translation>Strahlung im Bild</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %L1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %L1</translation>
    </message>
    <message>
        <source>F1: user guide</source>
        <translation>F1: Handbuch</translation>
    </message>
    <message>
        <source>the layout of %1 is broken: %2</source>
        <translation>das Layout von %1 ist beschädigt: %2</translation>
    </message>
    <message>
        <source>%1 was closed by its frame</source>
        <translation>%1 am Rahmen geschlossen</translation>
    </message>
    <message>
        <source>%1 files (*%2 *%3)</source>
        <translation>%1-Dateien (*%2 *%3)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Crystal files</source>
        <translation>Kristalldateien</translation>
    </message>
    <message>
        <source>Structure files</source>
        <translation>Strukturdateien</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Textdateien</translation>
    </message>
    <message>
        <source>Lists of atoms</source>
        <translation>Listen von Atomen</translation>
    </message>
    <message>
        <source>Measured patterns</source>
        <translation>Gemessene Diagramme</translation>
    </message>
    <message>
        <source>Lists of d and I</source>
        <translation>Listen von d und I</translation>
    </message>
    <message>
        <source>Replace file</source>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>cannot print the window %1</source>
        <translation>das Fenster %L1 lässt sich nicht drucken</translation>
    </message>
    <message>
        <source>cannot print the report: the printer does not answer</source>
        <translation>der Bericht lässt sich nicht drucken: der Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>cannot export to %1: the name must end in .bmp, .png, .svg or .pdf</source>
        <translation>kein Export nach %1: der Name muss auf .bmp, .png, .svg oder .pdf enden</translation>
    </message>
    <message>
        <source>%1 was dropped on %2</source>
        <translation>%1 wurde auf %2 abgelegt</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>es gibt keine Datei %1</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 ist keine Datei</translation>
    </message>
    <message>
        <source>open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>This is the last cell of the table.</source>
        <translation>Dies ist die letzte Zelle der Tabelle.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Insert Row</source>
        <translation>Zeile einfügen</translation>
    </message>
    <message>
        <source>Move Row Up</source>
        <translation>Zeile nach oben</translation>
    </message>
    <message>
        <source>Move Row Down</source>
        <translation>Zeile nach unten</translation>
    </message>
    <message>
        <source>Nothing is pasted: row %1 of the text has %2 cells, there is room for %3.</source>
        <translation>Nichts eingefügt: Zeile %1 des Textes hat %2 Zellen, Platz ist für %3.</translation>
    </message>
    <message>
        <source>Nothing is pasted: the text has %1 rows, there is room for %2.</source>
        <translation>Nichts eingefügt: der Text hat %1 Zeilen, Platz ist für %2.</translation>
    </message>
    <message>
        <source>rows pasted: %1</source>
        <translation>eingefügte Zeilen: %1</translation>
    </message>
    <message>
        <source>cells emptied: %1</source>
        <translation>geleerte Zellen: %1</translation>
    </message>
    <message>
        <source>No row is inserted: row %1 is in use.</source>
        <translation>Keine Zeile eingefügt: Zeile %1 ist belegt.</translation>
    </message>
    <message>
        <source>row %1 inserted</source>
        <translation>Zeile %1 eingefügt</translation>
    </message>
    <message>
        <source>row %1 up</source>
        <translation>Zeile %1 nach oben</translation>
    </message>
    <message>
        <source>row %1 down</source>
        <translation>Zeile %1 nach unten</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Handbuch</translation>
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
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>no crystal</source>
        <translation>kein Kristall</translation>
    </message>
    <message>
        <source>ended by a failure: %1</source>
        <translation>durch einen Fehler beendet: %L1</translation>
    </message>
    <message>
        <source>ended with the crystal not saved</source>
        <translation>beendet, ohne den Kristall zu speichern</translation>
    </message>
    <message>
        <source>the program was cut off</source>
        <translation>das Programm wurde abgebrochen</translation>
    </message>
    <message>
        <source>Work that was not finished</source>
        <translation>Arbeit, die nicht fertig wurde</translation>
    </message>
    <message>
        <source>and %1 older</source>
        <translation>und %1 ältere</translation>
    </message>
    <message>
        <source>%1: cannot be restored, %2</source>
        <translation>%L1: nicht wiederherstellbar, %L2</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Restores crystal and windows; undo reverses this</source>
        <translation>Bringt Kristall und Fenster zurück; „Rückgängig“ nimmt das zurück</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>The next start offers it again</source>
        <translation>Der nächste Start bietet sie wieder an</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Throws this work away</source>
        <translation>Wirft diese Arbeit weg</translation>
    </message>
    <message>
        <source>Not taken: here and in the files only characters of Latin-1 are possible (Western European letters and signs)</source>
        <translation>Nicht übernommen: Zeichen sind hier und in den Dateien aus Latin-1 (westeuropäische Buchstaben und Zeichen)</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stops this and leaves everything as it was before (Esc)</source>
        <translation>Bricht dies ab und lässt alles, wie es vorher war (Esc)</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>Draw again</source>
        <translation>Neu zeichnen</translation>
    </message>
    <message>
        <source>Makes it again for the present crystal and settings</source>
        <translation>Macht es neu für den jetzigen Kristall und die jetzigen Einstellungen</translation>
    </message>
    <message>
        <source>Measure: click two places, or drag from one to the other; Esc ends it</source>
        <translation>Messen: zwei Stellen anklicken oder von einer zur anderen ziehen; Esc beendet es</translation>
    </message>
    <message>
        <source>turned by dragging</source>
        <translation>durch Ziehen gedreht</translation>
    </message>
    <message>
        <source>tilted by dragging</source>
        <translation>durch Ziehen gekippt</translation>
    </message>
    <message>
        <source>turn by dragging</source>
        <translation>Drehen durch Ziehen</translation>
    </message>
    <message>
        <source>tilt by dragging</source>
        <translation>Kippen durch Ziehen</translation>
    </message>
    <message>
        <source>Scale bar</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Angle circle</source>
        <translation>Winkelkreis</translation>
    </message>
    <message>
        <source>Labels h k l</source>
        <translation>Beschriftung h k l</translation>
    </message>
    <message>
        <source>Labels in colours of families</source>
        <translation>Beschriftung in Farben der Familien</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>cannot make an image of %1 x %2 pixels: %3</source>
        <translation>ein Bild von %1 x %2 Pixeln geht nicht: %L3</translation>
    </message>
    <message>
        <source>at most 8192 x 8192 are possible</source>
        <translation>höchstens 8192 x 8192 sind möglich</translation>
    </message>
    <message>
        <source>a PNG picture</source>
        <translation>ein PNG-Bild</translation>
    </message>
    <message>
        <source>a JPEG picture</source>
        <translation>ein JPEG-Bild</translation>
    </message>
    <message>
        <source>a TIFF picture</source>
        <translation>ein TIFF-Bild</translation>
    </message>
    <message>
        <source>a bitmap</source>
        <translation>eine Bitmap</translation>
    </message>
    <message>
        <source>cannot read %1 as %2: %3</source>
        <translation>%1 ist nicht als %L2 lesbar: %L3</translation>
    </message>
    <message>
        <source>it is cut short: its end is missing</source>
        <translation>sie ist abgeschnitten: ihr Ende fehlt</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels; %3</source>
        <translation>es hat %1 x %2 Pixel; %L3</translation>
    </message>
    <message>
        <source>not enough memory for a picture</source>
        <translation>nicht genug Speicher für ein Bild</translation>
    </message>
    <message>
        <source>cannot write %1: no picture of the kind %2 can be made</source>
        <translation>%1 ist nicht schreibbar: Bilder der Art %2 gibt es nicht</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Crystals</source>
        <translation>Kristalle</translation>
    </message>
    <message>
        <source>Structures</source>
        <translation>Strukturen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keine</translation>
    </message>
    <message>
        <source>%1; it is no longer in the list of recent files</source>
        <translation>%L1; die Liste der letzten Dateien nennt sie nicht mehr</translation>
    </message>
    <message>
        <source>Your work cannot be kept for the next start: %1</source>
        <translation>Ihre Arbeit lässt sich nicht für den nächsten Start aufbewahren: %L1</translation>
    </message>
    <message>
        <source>restore %1</source>
        <translation>%L1 wiederherstellen</translation>
    </message>
    <message>
        <source>a key was pressed in %1</source>
        <translation>Taste gedrückt in %1</translation>
    </message>
    <message>
        <source>Or begin here</source>
        <translation>Oder hier beginnen</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>Puts the open windows side by side, as far as the screen allows</source>
        <translation>Stellt die offenen Fenster nebeneinander, soweit der Bildschirm reicht</translation>
    </message>
    <message>
        <source>folded; Space opens it</source>
        <translation>zugeklappt; die Leertaste öffnet</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Schlicht</translation>
    </message>
    <message>
        <source>Picture alone</source>
        <translation>Nur das Bild</translation>
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
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>, while </source>
        <translation>, bei: </translation>
    </message>
    <message>
        <source>%1 (!)</source>
        <translation>%L1 (!)</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels</source>
        <translation>es hat %1 x %2 Pixel</translation>
    </message>
    <message>
        <source>it is no longer in the list of recent files</source>
        <translation>die Liste der letzten Dateien nennt sie nicht mehr</translation>
    </message>
    <message>
        <source>%1 was pressed</source>
        <translation>%1 gedrückt</translation>
    </message>
    <message>
        <source>%1 was moved over</source>
        <translation>Zeiger über %1</translation>
    </message>
    <message>
        <source>%1 was released</source>
        <translation>%1 losgelassen</translation>
    </message>
    <message>
        <source>%1 was double clicked</source>
        <translation>Doppelklick auf %1</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>%1 lost the focus</source>
        <translation>%1 verlassen</translation>
    </message>
    <message>
        <source>%1 was clicked</source>
        <translation>Klick auf %1</translation>
    </message>
    <message>
        <source>%1 was moved</source>
        <translation>%1 verschoben</translation>
    </message>
    <message>
        <source>%1 was shown</source>
        <translation>%1 gezeigt</translation>
    </message>
    <message>
        <source>%1 was activated</source>
        <translation>%1 aktiviert</translation>
    </message>
    <message>
        <source>%1 was opened</source>
        <translation>%1 geöffnet</translation>
    </message>
    <message>
        <source>item %1 of %2 does not exist, it has %3 items, the first is 0</source>
        <translation>Eintrag %1 von %2 gibt es nicht, es sind %3, der erste ist 0</translation>
    </message>
    <message>
        <source>row %1 of the table %2 is outside 0 to %3</source>
        <translation>Zeile %1 der Tabelle %2 liegt außerhalb 0 bis %3</translation>
    </message>
    <message>
        <source>column %1 of the table %2 is outside 0 to %3</source>
        <translation>Spalte %1 der Tabelle %2 liegt außerhalb 0 bis %3</translation>
    </message>
    <message>
        <source>the program is at fault: %1</source>
        <translation>das Programm ist fehlerhaft: %1</translation>
    </message>
    <message>
        <source>the program is at fault, it does not say how</source>
        <translation>das Programm ist fehlerhaft, es sagt nicht wie</translation>
    </message>
    <message>
        <source>there is no cell: type one in the main window</source>
        <translation>es gibt keine Zelle: eine im Hauptfenster eingeben</translation>
    </message>
    <message>
        <source>the list of reflections is empty: "Calc" of the main window makes it</source>
        <translation>die Reflexliste ist leer: „Rechnen“ im Hauptfenster macht sie</translation>
    </message>
    <message>
        <source>the list holds fewer than %1 reflections</source>
        <translation>die Liste enthält weniger als %1 Reflexe</translation>
    </message>
    <message>
        <source>the list holds fewer than %1 reflections: "Calc" of the main window makes it</source>
        <translation>die Liste enthält weniger als %1 Reflexe: „Rechnen“ im Hauptfenster macht sie</translation>
    </message>
    <message>
        <source>the zone axis u, v, w is 0 0 0</source>
        <translation>die Zonenachse u, v, w ist 0 0 0</translation>
    </message>
    <message>
        <source>the box takes whole numbers up to 32767</source>
        <translation>das Feld nimmt ganze Zahlen bis 32767</translation>
    </message>
    <message>
        <source>This would take about %1. Do it all the same?</source>
        <translation>Das würde etwa %L1 brauchen. Trotzdem tun?</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>%1 second</source>
        <translation>%1 Sekunde</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <translation>%1 Minute</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>%1 hour</source>
        <translation>%1 Stunde</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>%1 day</source>
        <translation>%1 Tag</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>%1 from the centre</source>
        <translation>%1 vom Zentrum</translation>
    </message>
    <message>
        <source>azimuth %1</source>
        <translation>Azimut %1</translation>
    </message>
    <message>
        <source>latitude %1</source>
        <translation>Breite %1</translation>
    </message>
    <message>
        <source>x %1</source>
        <translation>x %1</translation>
    </message>
    <message>
        <source>y %1 pixels</source>
        <translation>y %1 Pixel</translation>
    </message>
    <message>
        <source>angle %1</source>
        <translation>Winkel %1</translation>
    </message>
    <message>
        <source>area %1°</source>
        <translation>Öffnung %1°</translation>
    </message>
    <message>
        <source>half width %1</source>
        <translation>halbe Breite %1</translation>
    </message>
    <message>
        <source>shifts %1</source>
        <translation>Verschiebung %1</translation>
    </message>
    <message>
        <source>axis [%1]</source>
        <translation>Achse [%1]</translation>
    </message>
    <message>
        <source>turn %1°</source>
        <translation>Drehung %1°</translation>
    </message>
    <message>
        <source>list by 1/d</source>
        <translation>Liste nach 1/d</translation>
    </message>
    <message>
        <source>list by I/d</source>
        <translation>Liste nach I/d</translation>
    </message>
    <message>
        <source>list by I/d, weakest first</source>
        <translation>Liste nach I/d, schwächste zuerst</translation>
    </message>
    <message>
        <source>list by I, weakest first</source>
        <translation>Liste nach I, schwächste zuerst</translation>
    </message>
    <message>
        <source>list in no order</source>
        <translation>Liste ungeordnet</translation>
    </message>
    <message>
        <source>d from %1 Å</source>
        <translation>d ab %1 Å</translation>
    </message>
    <message>
        <source>I (% of full height)</source>
        <translation>I (% der vollen Höhe)</translation>
    </message>
    <message>
        <source>S.G</source>
        <translation>RG</translation>
    </message>
    <message>
        <source>crystal</source>
        <translation>Kristall</translation>
    </message>
    <message>
        <source>radiation</source>
        <translation>Strahlung</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>detector</source>
        <translation>Detektor</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%L1 und %L2</translation>
    </message>
    <message>
        <source>%1, %2 and %3</source>
        <translation>%L1, %L2 und %L3</translation>
    </message>
    <message>
        <source>an unnamed crystal</source>
        <translation>einen unbenannten Kristall</translation>
    </message>
    <message>
        <source>an unnamed crystal, %1</source>
        <translation>einen unbenannten Kristall, %1</translation>
    </message>
    <message>
        <source>drawn for %1</source>
        <translation>gezeichnet für %L1</translation>
    </message>
    <message>
        <source>made for %1</source>
        <translation>gemacht für %L1</translation>
    </message>
    <message>
        <source>%1 changed since</source>
        <translation>seitdem geändert: %L1</translation>
    </message>
    <message>
        <source>table of %1</source>
        <translation>Tabelle von %L1</translation>
    </message>
    <message>
        <source>line %1 of %2</source>
        <translation>Zeile %1 von %L2</translation>
    </message>
    <message>
        <source>Open a structure...</source>
        <translation>Struktur öffnen...</translation>
    </message>
    <message>
        <source>a CIF or another structure file of yours, with its reflections</source>
        <translation>eine CIF- oder andere Strukturdatei von Ihnen, mit ihren Reflexen</translation>
    </message>
    <message>
        <source>Take an example</source>
        <translation>Ein Beispiel nehmen</translation>
    </message>
    <message>
        <source>quartz, with its reflections</source>
        <translation>Quarz mit seinen Reflexen</translation>
    </message>
    <message>
        <source>Index the example picture</source>
        <translation>Das Beispielbild indizieren</translation>
    </message>
    <message>
        <source>Crystals, diffraction, Kikuchi patterns</source>
        <translation>Kristalle, Beugung, Kikuchi-Bilder</translation>
    </message>
    <message>
        <source>cannot copy the data files from %1 to %2: %3</source>
        <translation>die Datendateien lassen sich nicht von %1 nach %2 kopieren: %L3</translation>
    </message>
    <message>
        <source>no data files found: neither in %1 nor in %2; name their folder in %3 with "data_root = FOLDER"</source>
        <translation>keine Datendateien gefunden: weder in %1 noch in %2; nennen Sie ihren Ordner in %3 mit „data_root = ORDNER“</translation>
    </message>
    <message>
        <source>%1: a line "data_root = FOLDER" is missing</source>
        <translation>%1: eine Zeile „data_root = ORDNER“ fehlt</translation>
    </message>
    <message>
        <source>cannot write into %1: %2</source>
        <translation>in %1 lässt sich nicht schreiben: %L2</translation>
    </message>
    <message>
        <source>cannot make %1: %2</source>
        <translation>%1 lässt sich nicht anlegen: %L2</translation>
    </message>
    <message>
        <source>another program has taken it</source>
        <translation>ein anderes Programm hat sie genommen</translation>
    </message>
    <message>
        <source>it is no longer there</source>
        <translation>sie ist nicht mehr da</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>sie ist abgeschnitten</translation>
    </message>
    <message>
        <source>its checksum is another one</source>
        <translation>ihre Prüfsumme ist eine andere</translation>
    </message>
    <message>
        <source>it is not a file of kept work</source>
        <translation>es ist keine Datei aufbewahrter Arbeit</translation>
    </message>
    <message>
        <source>it was kept by version %1 of the program, this is %2</source>
        <translation>sie stammt von Version %1 des Programms, dies ist %2</translation>
    </message>
    <message>
        <source>the file of kept work is damaged: %1</source>
        <translation>die Datei aufbewahrter Arbeit ist beschädigt: %L1</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>kein Platz auf dem Gerät</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>schreibgeschütztes Dateisystem</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 ist nicht schreibbar: %L2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>niemand liest daraus</translation>
    </message>
    <message>
        <source>not enough memory for %1: it takes %2, there are %3</source>
        <translation>nicht genug Speicher für %L1: nötig sind %2, da sind %3</translation>
    </message>
    <message>
        <source>not enough memory for %1</source>
        <translation>nicht genug Speicher für %1</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>nicht genug Speicher</translation>
    </message>
    <message>
        <source>index %1 of %2, which has not been allocated yet</source>
        <translation>Index %1 von %2, das noch nicht angelegt ist</translation>
    </message>
    <message>
        <source>index %1 of %2 is outside 0 to %3</source>
        <translation>Index %1 von %2 liegt außerhalb 0 bis %3</translation>
    </message>
    <message>
        <source>the last index of %1 would be %2, it must be 0 or more</source>
        <translation>der letzte Index von %1 wäre %2, er muss 0 oder mehr sein</translation>
    </message>
    <message>
        <source>division by zero: %1 is 0</source>
        <translation>Division durch null: %L1 ist 0</translation>
    </message>
    <message>
        <source>division by zero: the scale of the picture %1 goes from %2 to %3 across and from %4 to %5 down, which leaves no room to draw</source>
        <translation>Division durch null: die Skala des Bildes %1 geht von %2 bis %3 quer und von %4 bis %5 abwärts, was keinen Platz zum Zeichnen lässt</translation>
    </message>
    <message>
        <source>square root of a negative number: %1 is %2</source>
        <translation>Wurzel einer negativen Zahl: %L1 ist %L2</translation>
    </message>
    <message>
        <source>overflow: %1 does not fit an Integer (%2 to %3)</source>
        <translation>Überlauf: %L1 passt in keinen Integer (%2 bis %3)</translation>
    </message>
    <message>
        <source>overflow: %1 does not fit a Long (%2 to %3)</source>
        <translation>Überlauf: %L1 passt in keinen Long (%2 bis %3)</translation>
    </message>
    <message>
        <source>a calculation gave no number (0/0 or the like)</source>
        <translation>eine Rechnung ergab keine Zahl (0/0 oder dergleichen)</translation>
    </message>
    <message>
        <source>overflow: a value is too large for a Single, it must stay below 3.4E+38</source>
        <translation>Überlauf: ein Wert ist zu groß für einen Single, er muss unter 3.4E+38 bleiben</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>not a finite number</source>
        <translation>keine endliche Zahl</translation>
    </message>
    <message>
        <source>cannot read %1: it is %2, not a file</source>
        <translation>%1 ist nicht lesbar: es ist %L2, keine Datei</translation>
    </message>
    <message>
        <source>cannot read %1: it has %2 bytes or more, at most %3 are taken</source>
        <translation>%1 ist nicht lesbar: es hat %2 Bytes oder mehr, höchstens %3 werden genommen</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>%1 lässt sich nicht öffnen: %L2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 ist nicht lesbar: %L2</translation>
    </message>
    <message>
        <source>cannot read the folder %1: %2</source>
        <translation>der Ordner %1 ist nicht lesbar: %L2</translation>
    </message>
    <message>
        <source>cannot load %1: there are no pixel images here</source>
        <translation>%1 lässt sich nicht laden: hier gibt es keine Pixelbilder</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>a pipe</source>
        <translation>eine Pipe</translation>
    </message>
    <message>
        <source>a socket</source>
        <translation>ein Socket</translation>
    </message>
    <message>
        <source>a device</source>
        <translation>ein Gerät</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %L3</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %L2</translation>
    </message>
    <message>
        <source>the file ends where %1 is expected</source>
        <translation>die Datei endet, wo %L1 erwartet wird</translation>
    </message>
    <message>
        <source>the quote before %1 has no closing quote</source>
        <translation>das Anführungszeichen vor %1 wird nicht geschlossen</translation>
    </message>
    <message>
        <source>%1 is %2, a number is expected</source>
        <translation>%L1 ist %2, erwartet wird eine Zahl</translation>
    </message>
    <message>
        <source>%1 is %2, too large for a Single (below 3.4E+38)</source>
        <translation>%L1 ist %2, zu groß für einen Single (unter 3.4E+38)</translation>
    </message>
    <message>
        <source>%1 is %2, a whole number is expected</source>
        <translation>%L1 ist %2, erwartet wird eine ganze Zahl</translation>
    </message>
    <message>
        <source>%1 is %2, it must be within -32768 to 32767</source>
        <translation>%L1 ist %2, erlaubt ist -32768 bis 32767</translation>
    </message>
    <message>
        <source>%1 is "%2", a whole number from %3 to %4 is expected</source>
        <translation>%L1 ist „%2“, erwartet wird eine ganze Zahl von %3 bis %4</translation>
    </message>
    <message>
        <source>%1 is "%2": %3</source>
        <translation>%L1 ist „%2“: %L3</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3 by steps of %4, which lead nowhere</source>
        <translation>%L1 geht von %2 bis %3 in Schritten von %4, die nirgendwohin führen</translation>
    </message>
    <message>
        <source>the number of %1 is %2, at most %3 are allowed</source>
        <translation>die Zahl von %L1 ist %2, höchstens %3 sind erlaubt</translation>
    </message>
    <message>
        <source>the number of operators is %1, at most 1000 are allowed</source>
        <translation>die Zahl der Operatoren ist %1, höchstens 1000 sind erlaubt</translation>
    </message>
    <message>
        <source>the cell edge %1 is %2 angstroms, must be above 0</source>
        <translation>die Zellkante %1 ist %L2 Ångström, sie muss über 0 sein</translation>
    </message>
    <message>
        <source>the cell angle %1 is %2 degrees, must be above 0 and below 180</source>
        <translation>der Zellwinkel %1 ist %L2 Grad, er muss über 0 und unter 180 sein</translation>
    </message>
    <message>
        <source>the cell angles span no volume: no such cell exists</source>
        <translation>die Zellwinkel spannen kein Volumen auf: eine solche Zelle gibt es nicht</translation>
    </message>
    <message>
        <source>the cell edges give a volume beyond all numbers</source>
        <translation>die Zellkanten ergeben ein Volumen jenseits aller Zahlen</translation>
    </message>
    <message>
        <source>a plane without indices has no spacing</source>
        <translation>eine Ebene ohne Indizes hat keinen Abstand</translation>
    </message>
    <message>
        <source>the cell edge %1</source>
        <translation>die Zellkante %1</translation>
    </message>
    <message>
        <source>the cell angle %1</source>
        <translation>der Zellwinkel %1</translation>
    </message>
    <message>
        <source>the lattice letter</source>
        <translation>der Gitterbuchstabe</translation>
    </message>
    <message>
        <source>the space group number</source>
        <translation>die Nummer der Raumgruppe</translation>
    </message>
    <message>
        <source>the axis setting</source>
        <translation>die Achsenwahl</translation>
    </message>
    <message>
        <source>the number of atoms</source>
        <translation>die Zahl der Atome</translation>
    </message>
    <message>
        <source>the number of observed reflections</source>
        <translation>die Zahl der beobachteten Reflexe</translation>
    </message>
    <message>
        <source>observed reflections</source>
        <translation>beobachteten Reflexen</translation>
    </message>
    <message>
        <source>the label of atom %1</source>
        <translation>die Bezeichnung von Atom %1</translation>
    </message>
    <message>
        <source>the element of atom %1</source>
        <translation>das Element von Atom %1</translation>
    </message>
    <message>
        <source>the occupancy of atom %1</source>
        <translation>die Besetzung von Atom %1</translation>
    </message>
    <message>
        <source>%1 of atom %2</source>
        <translation>%1 von Atom %2</translation>
    </message>
    <message>
        <source>%1 of observed reflection %2</source>
        <translation>%1 von Reflex %2</translation>
    </message>
    <message>
        <source>the crystal system</source>
        <translation>das Kristallsystem</translation>
    </message>
    <message>
        <source>the space group symbol</source>
        <translation>das Symbol der Raumgruppe</translation>
    </message>
    <message>
        <source>the number of operators</source>
        <translation>die Zahl der Operatoren</translation>
    </message>
    <message>
        <source>the acquisition angle</source>
        <translation>der Aufnahmewinkel</translation>
    </message>
    <message>
        <source>the x shift</source>
        <translation>die x-Verschiebung</translation>
    </message>
    <message>
        <source>the y shift</source>
        <translation>die y-Verschiebung</translation>
    </message>
    <message>
        <source>the detector edge</source>
        <translation>die Detektorkante</translation>
    </message>
    <message>
        <source>the xy ratio</source>
        <translation>das xy-Verhältnis</translation>
    </message>
    <message>
        <source>the substrate normal</source>
        <translation>die Substratnormale</translation>
    </message>
    <message>
        <source>the cell volume</source>
        <translation>das Zellvolumen</translation>
    </message>
    <message>
        <source>the sine of a cell angle</source>
        <translation>der Sinus eines Zellwinkels</translation>
    </message>
    <message>
        <source>sin(theta) in Bragg's law</source>
        <translation>sin(theta) im Braggschen Gesetz</translation>
    </message>
    <message>
        <source>the length of a reflection</source>
        <translation>die Länge eines Reflexes</translation>
    </message>
    <message>
        <source>the squared length of a vector</source>
        <translation>das Längenquadrat eines Vektors</translation>
    </message>
    <message>
        <source>the occupancy of %1 is %2, above 1</source>
        <translation>die Besetzung von %1 ist %2, über 1</translation>
    </message>
    <message>
        <source>%1 and %2 are %3 Å apart, nearer than any bond</source>
        <translation>%1 und %2 sind %3 Å voneinander entfernt, näher als jede Bindung</translation>
    </message>
    <message>
        <source>P 1 has no symmetry operators: only the sites fill the cell</source>
        <translation>P 1 hat keine Symmetrieoperatoren: allein die Plätze füllen die Zelle</translation>
    </message>
    <message>
        <source>group %1 has no operators: those of the previous group stay</source>
        <translation>Gruppe %1 hat keine Operatoren: die der vorigen bleiben</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Achtung: %L1</translation>
    </message>
    <message>
        <source>%1 is a dummy atom, its place is not known</source>
        <translation>%1 ist ein Platzhalter, seine Lage ist unbekannt</translation>
    </message>
    <message>
        <source>no displacement parameters for %1; B = 0.5 square angstroms is taken</source>
        <translation>keine Auslenkungsparameter für %1; B = 0.5 Quadratångström wird genommen</translation>
    </message>
    <message>
        <source>hydrogen of water or hydroxyl is not listed (%1)</source>
        <translation>Wasserstoff von Wasser oder Hydroxyl ist nicht aufgeführt (%1)</translation>
    </message>
    <message>
        <source>the formula of the file has no %1 (%2)</source>
        <translation>die Formel der Datei hat kein %1 (%2)</translation>
    </message>
    <message>
        <source>the occupancy of %1 is above 1</source>
        <translation>die Besetzung von %1 ist über 1</translation>
    </message>
    <message>
        <source>B of %1 is negative; 0.5 square angstroms is taken</source>
        <translation>B von %1 ist negativ; 0.5 Quadratångström wird genommen</translation>
    </message>
    <message>
        <source>the structure is modulated; its average is taken</source>
        <translation>die Struktur ist moduliert; ihr Mittel wird genommen</translation>
    </message>
    <message>
        <source>the structure is magnetic; its atoms are taken without their moments</source>
        <translation>die Struktur ist magnetisch; ihre Atome werden ohne Momente genommen</translation>
    </message>
    <message>
        <source>no atoms: a loop with _atom_site_fract_x is expected</source>
        <translation>keine Atome: erwartet wird eine Schleife mit _atom_site_fract_x</translation>
    </message>
    <message>
        <source>The file has %1 crystals. Which one (number or name)?</source>
        <translation>Die Datei hat %1 Kristalle. Welcher (Nummer oder Name)?</translation>
    </message>
    <message>
        <source>there is no block "%1" with atoms</source>
        <translation>es gibt keinen Block „%1“ mit Atomen</translation>
    </message>
    <message>
        <source>missing cell edges follow from the crystal system</source>
        <translation>fehlende Zellkanten folgen aus dem Kristallsystem</translation>
    </message>
    <message>
        <source>missing cell angles follow from the crystal system</source>
        <translation>fehlende Zellwinkel folgen aus dem Kristallsystem</translation>
    </message>
    <message>
        <source>_cell_length_a is missing or is not a length</source>
        <translation>_cell_length_a fehlt oder ist keine Länge</translation>
    </message>
    <message>
        <source>_cell_length_b or _cell_length_c is missing or is not a length</source>
        <translation>_cell_length_b oder _cell_length_c fehlt oder ist keine Länge</translation>
    </message>
    <message>
        <source>_cell_length_c is missing or is not a length</source>
        <translation>_cell_length_c fehlt oder ist keine Länge</translation>
    </message>
    <message>
        <source>a closing quote is missing, the value ends with the line</source>
        <translation>ein schließendes Anführungszeichen fehlt, der Wert endet mit der Zeile</translation>
    </message>
    <message>
        <source>the text that starts here has no end</source>
        <translation>der Text, der hier beginnt, hat kein Ende</translation>
    </message>
    <message>
        <source>the loop that ends here lacks values of its last row</source>
        <translation>der Schleife, die hier endet, fehlen Werte ihrer letzten Zeile</translation>
    </message>
    <message>
        <source>"%1" belongs to no tag</source>
        <translation>„%1“ gehört zu keinem Namen</translation>
    </message>
    <message>
        <source>no block has been opened before, as by "data_"</source>
        <translation>vorher wurde kein Block eröffnet, wie durch „data_“</translation>
    </message>
    <message>
        <source>no atom can be read</source>
        <translation>kein Atom ist lesbar</translation>
    </message>
    <message>
        <source>%1 occurs twice; the first one with a value is used</source>
        <translation>%1 steht dort ein zweites Mal; das erste mit einem Wert gilt</translation>
    </message>
    <message>
        <source>the cell is too small or too flat to hold atoms</source>
        <translation>die Zelle ist zu klein oder zu flach für Atome</translation>
    </message>
    <message>
        <source>it cannot be unpacked</source>
        <translation>sie lässt sich nicht entpacken</translation>
    </message>
    <message>
        <source>the compressed file is too large</source>
        <translation>die gepackte Datei ist zu groß</translation>
    </message>
    <message>
        <source>it unpacks to more than %1 MB</source>
        <translation>entpackt hat sie mehr als %1 MB</translation>
    </message>
    <message>
        <source>the compressed file is broken or cut short</source>
        <translation>die gepackte Datei ist beschädigt oder abgeschnitten</translation>
    </message>
    <message>
        <source>the symmetry operator "%1": %2</source>
        <translation>der Symmetrieoperator „%1“: %L2</translation>
    </message>
    <message>
        <source>the Hall symbol "%1": %2</source>
        <translation>das Hall-Symbol „%1“: %L2</translation>
    </message>
    <message>
        <source>it is not a sum of x, y, z and numbers</source>
        <translation>er ist keine Summe aus x, y, z und Zahlen</translation>
    </message>
    <message>
        <source>it is not a whole number of 24ths</source>
        <translation>es ist keine ganze Zahl von 24steln</translation>
    </message>
    <message>
        <source>three parts with commas between are expected</source>
        <translation>erwartet werden drei Teile mit Kommas dazwischen</translation>
    </message>
    <message>
        <source>The file does not name its elements. Which are its %1, in their order (as Na Cl)?</source>
        <translation>Die Datei nennt ihre Elemente nicht. Welche sind ihre %1, in ihrer Reihenfolge (wie Na Cl)?</translation>
    </message>
    <message>
        <source>the file gives no symmetry and no displacement parameters; B = 0.5 square angstroms is taken</source>
        <translation>die Datei nennt keine Symmetrie und keine Auslenkungsparameter; B = 0.5 Quadratångström wird genommen</translation>
    </message>
    <message>
        <source>the file ends before line %1</source>
        <translation>die Datei endet vor Zeile %1</translation>
    </message>
    <message>
        <source>three numbers are expected</source>
        <translation>erwartet werden drei Zahlen</translation>
    </message>
    <message>
        <source>the cell has no volume</source>
        <translation>die Zelle hat kein Volumen</translation>
    </message>
    <message>
        <source>the cell vectors are left-handed; the crystal is mirrored</source>
        <translation>die Zellvektoren sind linkshändig; der Kristall wird gespiegelt</translation>
    </message>
    <message>
        <source>"%1" is not a count of atoms</source>
        <translation>„%1“ ist keine Atomzahl</translation>
    </message>
    <message>
        <source>counts of atoms are expected</source>
        <translation>erwartet werden Atomzahlen</translation>
    </message>
    <message>
        <source>there are %1 counts of atoms and %2 elements</source>
        <translation>es gibt %1 Atomzahlen und %2 Elemente</translation>
    </message>
    <message>
        <source>"%1" is not an element</source>
        <translation>„%1“ ist kein Element</translation>
    </message>
    <message>
        <source>no atoms</source>
        <translation>keine Atome</translation>
    </message>
    <message>
        <source>the setting is changed to %1 (number %2): %3; indices change with it</source>
        <translation>die Aufstellung wird zu %1 (Nummer %2): %3; die Indizes ändern sich mit</translation>
    </message>
    <message>
        <source>the cell has %1 atoms where that of the file has %2</source>
        <translation>die Zelle hat %1 Atome, die der Datei %2</translation>
    </message>
    <message>
        <source>the symmetry fits none of the program's space groups; all atoms are taken in P1</source>
        <translation>die Symmetrie passt zu keiner Raumgruppe des Programms; alle Atome werden in P1 genommen</translation>
    </message>
    <message>
        <source>no CELL instruction</source>
        <translation>keine CELL-Anweisung</translation>
    </message>
    <message>
        <source>CELL needs a wavelength, three edges and three angles</source>
        <translation>CELL braucht eine Wellenlänge, drei Kanten und drei Winkel</translation>
    </message>
    <message>
        <source>LATT is 0</source>
        <translation>LATT ist 0</translation>
    </message>
    <message>
        <source>a value is too large</source>
        <translation>ein Wert ist zu groß</translation>
    </message>
    <message>
        <source>an atom before SFAC</source>
        <translation>ein Atom vor SFAC</translation>
    </message>
    <message>
        <source>"%1" is not an instruction and has no coordinates</source>
        <translation>„%1“ ist keine Anweisung und hat keine Koordinaten</translation>
    </message>
    <message>
        <source>a coordinate of %1 is "%2", a number is expected</source>
        <translation>eine Koordinate von %1 ist „%2“, erwartet wird eine Zahl</translation>
    </message>
    <message>
        <source>the element %1 is not known; %2 is left out</source>
        <translation>das Element %1 ist unbekannt; %2 wird ausgelassen</translation>
    </message>
    <message>
        <source>sites with an occupancy of 0 are left out</source>
        <translation>Plätze mit Besetzung 0 werden ausgelassen</translation>
    </message>
    <message>
        <source>there are no scattering factors of %1; those of %2 are taken</source>
        <translation>es gibt keine Streufaktoren von %1; die von %2 werden genommen</translation>
    </message>
    <message>
        <source>there are no scattering factors of %1; %2 is left out</source>
        <translation>es gibt keine Streufaktoren von %1; %2 wird ausgelassen</translation>
    </message>
    <message>
        <source>none of the atoms has scattering factors</source>
        <translation>keines der Atome hat Streufaktoren</translation>
    </message>
    <message>
        <source>the cell does not fit the symmetry</source>
        <translation>die Zelle passt nicht zur Symmetrie</translation>
    </message>
    <message>
        <source>the occupancies at the place of %1 sum up to %2</source>
        <translation>die Besetzungen auf dem Platz von %1 ergeben zusammen %2</translation>
    </message>
    <message>
        <source>the crystal has %1, at most %2 are allowed</source>
        <translation>der Kristall hat %1, höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>the cell has %1 atoms, at most %2 are allowed</source>
        <translation>die Zelle hat %1 Atome, höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>the symmetric positions lie too close for the program to tell them apart; all atoms are taken in P1</source>
        <translation>die symmetrischen Lagen liegen zu nah, um sie zu unterscheiden; alle Atome werden in P1 genommen</translation>
    </message>
    <message>
        <source>formula: %1</source>
        <translation>Formel: %1</translation>
    </message>
    <message>
        <source>density: %1</source>
        <translation>Dichte: %1</translation>
    </message>
    <message>
        <source>cell: %1</source>
        <translation>Zelle: %1</translation>
    </message>
    <message>
        <source>space group: %1 (number %2, axes %3)</source>
        <translation>Raumgruppe: %1 (Nummer %2, Achsen %3)</translation>
    </message>
    <message>
        <source>shortest distance: %1 angstroms</source>
        <translation>kürzester Abstand: %1 Ångström</translation>
    </message>
    <message>
        <source>atoms lie close: %1 angstroms</source>
        <translation>Atome liegen nah: %1 Ångström</translation>
    </message>
    <message>
        <source>the cell holds %1, the file's formula is %2</source>
        <translation>die Zelle enthält %1, die Formel der Datei ist %2</translation>
    </message>
    <message>
        <source>the density is %1 g/cm3, the file says %2</source>
        <translation>die Dichte ist %1 g/cm3, die Datei sagt %2</translation>
    </message>
    <message>
        <source>the crystal file holds no atoms; "LOAD" opens it</source>
        <translation>die Kristalldatei enthält keine Atome; „LADEN“ öffnet sie</translation>
    </message>
    <message>
        <source>there is no space group file %1 with the axes "%2"</source>
        <translation>es gibt keine Raumgruppendatei %1 mit den Achsen „%2“</translation>
    </message>
    <message>
        <source>it is none of the known kinds: CIF, SHELX, POSCAR, crystal file</source>
        <translation>sie ist von keiner bekannten Art: CIF, SHELX, POSCAR, Kristalldatei</translation>
    </message>
    <message>
        <source>the space group symbol "%1" is not known</source>
        <translation>das Raumgruppensymbol „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>the symbol %1 has number %2, the file says %3; the symbol counts</source>
        <translation>das Symbol %1 hat die Nummer %2, die Datei sagt %3; das Symbol gilt</translation>
    </message>
    <message>
        <source>%1; it is left out</source>
        <translation>%L1; es wird ausgelassen</translation>
    </message>
    <message>
        <source>the symmetry operators do not form a group; those of %1 are taken</source>
        <translation>die Symmetrieoperatoren sind keine Gruppe; die von %1 werden genommen</translation>
    </message>
    <message>
        <source>the symmetry operators do not form a group and are left out</source>
        <translation>die Symmetrieoperatoren sind keine Gruppe und werden ausgelassen</translation>
    </message>
    <message>
        <source>1 or 2 is expected as an answer, not "%1"</source>
        <translation>als Antwort wird 1 oder 2 erwartet, nicht „%1“</translation>
    </message>
    <message>
        <source>the file gives no symmetry; the atoms are taken as they are listed</source>
        <translation>die Datei nennt keine Symmetrie; die Atome werden genommen, wie sie dastehen</translation>
    </message>
    <message>
        <source>without symmetry operators the atoms are taken as they are listed</source>
        <translation>ohne Symmetrieoperatoren werden die Atome genommen, wie sie dastehen</translation>
    </message>
    <message>
        <source>no symmetry operators in the file; those of %1 are taken</source>
        <translation>keine Symmetrieoperatoren in der Datei; die von %1 werden genommen</translation>
    </message>
    <message>
        <source>origin %1 of %2 is taken</source>
        <translation>Ursprung %1 von %2 wird genommen</translation>
    </message>
    <message>
        <source>%1 has two origins, and the file gives neither origin nor operators.</source>
        <translation>%1 hat zwei Ursprünge, und die Datei nennt weder Ursprung noch Operatoren.</translation>
    </message>
    <message>
        <source>1: origin choice 1</source>
        <translation>1: Ursprungswahl 1</translation>
    </message>
    <message>
        <source>2: origin choice 2, on a centre of inversion</source>
        <translation>2: Ursprungswahl 2, auf einem Inversionszentrum</translation>
    </message>
    <message>
        <source>Proposed is %1, which fits formula and distances.</source>
        <translation>Vorgeschlagen ist %1, das zu Formel und Abständen passt.</translation>
    </message>
    <message>
        <source>Formula and distances speak for neither.</source>
        <translation>Formel und Abstände sprechen für keinen.</translation>
    </message>
    <message>
        <source>The only symmetry operator of the file is the identity, but its space group is %1.</source>
        <translation>Der einzige Symmetrieoperator der Datei ist die Identität, ihre Raumgruppe ist aber %1.</translation>
    </message>
    <message>
        <source>1: the atoms are those of the asymmetric unit</source>
        <translation>1: die Atome sind die der asymmetrischen Einheit</translation>
    </message>
    <message>
        <source>2: all atoms of the cell are listed</source>
        <translation>2: alle Atome der Zelle stehen da</translation>
    </message>
    <message>
        <source>the reflection list cannot have %1 entries: cell constants give %2</source>
        <translation>die Reflexliste kann keine %1 Einträge haben: die Gitterkonstanten geben %L2</translation>
    </message>
    <message>
        <source>a list of up to %1 reflections</source>
        <translation>eine Liste von bis zu %1 Reflexen</translation>
    </message>
    <message>
        <source>the table has more than %1 rows</source>
        <translation>die Tabelle hat mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>Dmin is not above 0: the program asks for it until it is</source>
        <translation>Dmin ist nicht über 0: es wird gefragt, bis es das ist</translation>
    </message>
    <message>
        <source>there are no atoms</source>
        <translation>es gibt keine Atome</translation>
    </message>
    <message>
        <source>the box Dmin holds 0</source>
        <translation>das Feld Dmin enthält 0</translation>
    </message>
    <message>
        <source>the table has no room for 200 atoms or more</source>
        <translation>es sind 200 Atome oder mehr, für die die Tabelle keinen Platz hat</translation>
    </message>
    <message>
        <source>this removes the atoms, even if you cancel there</source>
        <translation>die Atome werden weggenommen, auch durch ein Abbrechen dort</translation>
    </message>
    <message>
        <source>the table has no room for 200 reflections</source>
        <translation>es sind 200 Reflexe, für die die Tabelle keinen Platz hat</translation>
    </message>
    <message>
        <source>a file without atoms and reflections cannot be loaded again</source>
        <translation>ohne Atome und Reflexe lässt sich die Datei nicht wieder laden</translation>
    </message>
    <message>
        <source>there is no such space group</source>
        <translation>eine solche Raumgruppe gibt es nicht</translation>
    </message>
    <message>
        <source>there is no file of this space group</source>
        <translation>für diese Raumgruppe gibt es keine Datei</translation>
    </message>
    <message>
        <source>-cba has no operators: every atom falls on 0 0 0</source>
        <translation>keine Operatoren lassen sich auf -cba drehen: jedes Atom fällt auf 0 0 0</translation>
    </message>
    <message>
        <source>the acceleration voltage</source>
        <translation>die Beschleunigungsspannung</translation>
    </message>
    <message>
        <source>Input D-value Minimum</source>
        <translation>Kleinsten d-Wert eingeben</translation>
    </message>
    <message>
        <source>D-value Minimum</source>
        <translation>Kleinster d-Wert</translation>
    </message>
    <message>
        <source>Angstroms, above 0; the list grows with 1/d cubed.</source>
        <translation>Ångström, über 0; die Liste wächst mit der dritten Potenz von 1/d.</translation>
    </message>
    <message>
        <source>without a number above 0 the question comes again, without end</source>
        <translation>ohne eine Zahl über 0 wird ohne Ende neu gefragt</translation>
    </message>
    <message>
        <source>the smallest d</source>
        <translation>das kleinste d</translation>
    </message>
    <message>
        <source>the unit cell needs a space group, none has been chosen</source>
        <translation>die Elementarzelle braucht eine Raumgruppe, keine ist gewählt</translation>
    </message>
    <message>
        <source>No Scattering factor table</source>
        <translation>Keine Tabelle der Streufaktoren</translation>
    </message>
    <message>
        <source>%1, line %2: the table holds 200 lines of atoms at most</source>
        <translation>%1, Zeile %2: die Tabelle fasst höchstens 200 Zeilen Atome</translation>
    </message>
    <message>
        <source>not taken: the empty first cell of row %1 ends the table</source>
        <translation>nicht übernommen: die leere erste Zelle von Zeile %1 beendet die Tabelle</translation>
    </message>
    <message>
        <source>"%1" is not a number, it counts as %2</source>
        <translation>„%1“ ist keine Zahl, es zählt als %2</translation>
    </message>
    <message>
        <source>the same site as row %1, both count as one</source>
        <translation>derselbe Platz wie Zeile %1, beide zählen als einer</translation>
    </message>
    <message>
        <source>in the place of row %1, together with an occupancy of %2</source>
        <translation>auf dem Platz von Zeile %1, zusammen mit Besetzung %2</translation>
    </message>
    <message>
        <source>outside %1 to %2</source>
        <translation>außerhalb %1 bis %2</translation>
    </message>
    <message>
        <source>no element: the atom scatters nothing</source>
        <translation>kein Element: das Atom streut nichts</translation>
    </message>
    <message>
        <source>no scattering factors for "%1": the atom scatters nothing</source>
        <translation>keine Streufaktoren für „%1“: das Atom streut nichts</translation>
    </message>
    <message>
        <source>empty: an occupancy of 0, the atom scatters nothing</source>
        <translation>leer: Besetzung 0, das Atom streut nichts</translation>
    </message>
    <message>
        <source>below 0: the atom would scatter more at higher angles</source>
        <translation>unter 0: das Atom würde bei größeren Winkeln mehr streuen</translation>
    </message>
    <message>
        <source>not whole: no reflection has this index</source>
        <translation>nicht ganz: kein Reflex hat diesen Index</translation>
    </message>
    <message>
        <source>below 0</source>
        <translation>unter 0</translation>
    </message>
    <message>
        <source>the same indices as row %1</source>
        <translation>dieselben Indizes wie Zeile %1</translation>
    </message>
    <message>
        <source>no space group has been chosen</source>
        <translation>keine Raumgruppe ist gewählt</translation>
    </message>
    <message>
        <source>Site Name</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Occupancy</source>
        <translation>Besetzung</translation>
    </message>
    <message>
        <source>there are no atoms to save</source>
        <translation>es gibt keine Atome zu speichern</translation>
    </message>
    <message>
        <source>Open structure file</source>
        <translation>Strukturdatei öffnen</translation>
    </message>
    <message>
        <source>Save as CIF</source>
        <translation>Als CIF speichern</translation>
    </message>
    <message>
        <source>there are no operators of space group %1 with the axes "%2"</source>
        <translation>es gibt keine Operatoren der Raumgruppe %1 mit den Achsen „%2“</translation>
    </message>
    <message>
        <source>"%1" of atom %2 is no element</source>
        <translation>„%1“ von Atom %2 ist kein Element</translation>
    </message>
    <message>
        <source>this is the last cell: there is no next row</source>
        <translation>dies ist die letzte Zelle: es gibt keine nächste Zeile</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%L1: %L2</translation>
    </message>
    <message>
        <source>the measured pattern has %1 points where the curve is calculated, expected are four or more</source>
        <translation>das gemessene Diagramm hat %1 Punkte, wo die Kurve berechnet ist, erwartet werden vier oder mehr</translation>
    </message>
    <message>
        <source>no scale above 0 brings the calculated curve onto the measured pattern: one is flat, or falls where the other rises</source>
        <translation>kein Maßstab über 0 bringt die berechnete Kurve auf das gemessene Diagramm: eines ist flach oder fällt, wo das andere steigt</translation>
    </message>
    <message>
        <source>it has no scan with two columns</source>
        <translation>sie hat keinen Scan mit zwei Spalten</translation>
    </message>
    <message>
        <source>%1 begins with other bytes</source>
        <translation>%1 beginnt mit anderen Bytes</translation>
    </message>
    <message>
        <source>the interference function cannot have %1 steps along an axis</source>
        <translation>die Interferenzfunktion kann keine %1 Schritte entlang einer Achse haben</translation>
    </message>
    <message>
        <source>the crystallite size %1</source>
        <translation>die Kristallitgröße %1</translation>
    </message>
    <message>
        <source>the interference grid has %1 x %2 x %3 points, at most 32767 are possible: P, Q or R is too small</source>
        <translation>das Interferenzgitter hat %1 x %2 x %3 Punkte, höchstens 32767 sind möglich: P, Q oder R ist zu klein</translation>
    </message>
    <message>
        <source>the histogram would end at bin %1, the last one possible is 32767: Dmin is too small</source>
        <translation>das Histogramm würde bei Klasse %1 enden, die letzte mögliche ist 32767: Dmin ist zu klein</translation>
    </message>
    <message>
        <source>the line width</source>
        <translation>die Linienbreite</translation>
    </message>
    <message>
        <source>the intensity at full height (DisplayMax)</source>
        <translation>die Intensität bei voller Höhe (DisplayMax)</translation>
    </message>
    <message>
        <source>the intensity at full height (DisplayMax, which "Clear" sets to 0)</source>
        <translation>die Intensität bei voller Höhe (DisplayMax, von „Löschen“ auf 0 gesetzt)</translation>
    </message>
    <message>
        <source>the largest intensity (PeakMax, which "Clear" sets to 0)</source>
        <translation>die größte Intensität (PeakMax, von „Löschen“ auf 0 gesetzt)</translation>
    </message>
    <message>
        <source>the width of the pattern in 2-theta</source>
        <translation>die Breite des Diagramms in 2-theta</translation>
    </message>
    <message>
        <source>the width of the pattern in 1/d</source>
        <translation>die Breite des Diagramms in 1/d</translation>
    </message>
    <message>
        <source>%1 has %2 points, expected are two or more</source>
        <translation>%1 hat %2 Punkte, erwartet werden zwei oder mehr</translation>
    </message>
    <message>
        <source>%1: no line has two numbers, %2</source>
        <translation>%1: keine Zeile hat zwei Zahlen, %L2</translation>
    </message>
    <message>
        <source>%1, line %2: "%3", expected are two numbers, %4</source>
        <translation>%1, Zeile %2: „%3“, erwartet werden zwei Zahlen, %L4</translation>
    </message>
    <message>
        <source>the place and the intensity</source>
        <translation>die Stelle und die Intensität</translation>
    </message>
    <message>
        <source>the spacing d and the intensity</source>
        <translation>der Abstand d und die Intensität</translation>
    </message>
    <message>
        <source>Add measured pattern...</source>
        <translation>Gemessenes Diagramm hinzufügen...</translation>
    </message>
    <message>
        <source>Remove measured pattern</source>
        <translation>Gemessenes Diagramm entfernen</translation>
    </message>
    <message>
        <source>Fit to measured pattern</source>
        <translation>An gemessenes Diagramm anpassen</translation>
    </message>
    <message>
        <source>Add list of lines...</source>
        <translation>Linienliste hinzufügen...</translation>
    </message>
    <message>
        <source>Remove lists of lines</source>
        <translation>Linienlisten entfernen</translation>
    </message>
    <message>
        <source>measured: scale</source>
        <translation>gemessen: Maßstab</translation>
    </message>
    <message>
        <source>offset</source>
        <translation>Untergrund</translation>
    </message>
    <message>
        <source>zero</source>
        <translation>Nullpunkt</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>K-alpha 1 and K-alpha 2</source>
        <translation>K-alpha 1 und K-alpha 2</translation>
    </message>
    <message>
        <source>there is no measured pattern: "Add measured pattern..." reads one</source>
        <translation>es gibt kein gemessenes Diagramm: „Gemessenes Diagramm hinzufügen...“ nimmt eines</translation>
    </message>
    <message>
        <source>there is no list of lines</source>
        <translation>es gibt keine Linienliste</translation>
    </message>
    <message>
        <source>the wavelength is that of no known tube: Cr, Fe, Co, Cu or Mo</source>
        <translation>die Wellenlänge gehört zu keiner bekannten Röhre: Cr, Fe, Co, Cu oder Mo</translation>
    </message>
    <message>
        <source>takes the measured pattern away</source>
        <translation>nimmt das gemessene Diagramm weg</translation>
    </message>
    <message>
        <source>scale, offset and zero by least squares</source>
        <translation>Maßstab, Untergrund und Nullpunkt durch kleinste Quadrate</translation>
    </message>
    <message>
        <source>a text file with d and I in each line, shown as sticks</source>
        <translation>eine Textdatei mit d und I in jeder Zeile, als Striche gezeigt</translation>
    </message>
    <message>
        <source>takes the sticks away</source>
        <translation>nimmt die Striche weg</translation>
    </message>
    <message>
        <source>adds the curve of both lines of the tube, the second half as strong as the first</source>
        <translation>fügt die Kurve beider Linien der Röhre hinzu, die zweite halb so stark wie die erste</translation>
    </message>
    <message>
        <source>measured units for one per cent of the highest calculated sample; above 0</source>
        <translation>gemessene Einheiten für ein Prozent des höchsten berechneten Punktes; über 0</translation>
    </message>
    <message>
        <source>constant background, in measured units</source>
        <translation>konstanter Untergrund, in gemessenen Einheiten</translation>
    </message>
    <message>
        <source>what the instrument adds to the place</source>
        <translation>was das Gerät zur Stelle addiert</translation>
    </message>
    <message>
        <source>finds scale, offset and zero by least squares</source>
        <translation>findet Maßstab, Untergrund und Nullpunkt durch kleinste Quadrate</translation>
    </message>
    <message>
        <source>what is left of the measured intensities: R-wp in per cent</source>
        <translation>was von den gemessenen Intensitäten übrig bleibt: R-wp in Prozent</translation>
    </message>
    <message>
        <source>the scale has to be above 0</source>
        <translation>der Maßstab muss über 0 sein</translation>
    </message>
    <message>
        <source>Measured pattern</source>
        <translation>Gemessenes Diagramm</translation>
    </message>
    <message>
        <source>there is no measured pattern</source>
        <translation>es gibt kein gemessenes Diagramm</translation>
    </message>
    <message>
        <source>there is no calculated curve: press "CALC" first</source>
        <translation>es gibt keine berechnete Kurve: „RECHNEN“ macht eine</translation>
    </message>
    <message>
        <source>List of lines</source>
        <translation>Linienliste</translation>
    </message>
    <message>
        <source>the wavelength, %1 angstroms, is that of no known tube: expected is K-alpha of Cr, Fe, Co, Cu or Mo</source>
        <translation>die Wellenlänge, %1 Ångström, gehört zu keiner bekannten Röhre: erwartet wird K-alpha von Cr, Fe, Co, Cu oder Mo</translation>
    </message>
    <message>
        <source>CALC draws the diagram</source>
        <translation>RECHNEN zeichnet das Diagramm</translation>
    </message>
    <message>
        <source>the end of the profile, d*-max, is 0</source>
        <translation>das Ende des Profils, d*-max, ist 0</translation>
    </message>
    <message>
        <source>there is no curve yet: press "CALC" first</source>
        <translation>es gibt noch keine Kurve: „RECHNEN“ macht eine</translation>
    </message>
    <message>
        <source>"Clear" has removed the curve: press "CALC" first</source>
        <translation>„Löschen“ hat die Kurve weggenommen: erst „RECHNEN“</translation>
    </message>
    <message>
        <source>the curve does not reach to this place</source>
        <translation>die Kurve reicht nicht bis hierher</translation>
    </message>
    <message>
        <source>the intensities are those of X-rays</source>
        <translation>die Intensitäten sind die von Röntgenstrahlung</translation>
    </message>
    <message>
        <source>the intensities are those of electrons</source>
        <translation>die Intensitäten sind die von Elektronen</translation>
    </message>
    <message>
        <source>the half width is 0</source>
        <translation>die Halbwertsbreite ist 0</translation>
    </message>
    <message>
        <source>the half width is below the step of the samples, %1: heights of peaks are wrong</source>
        <translation>die Halbwertsbreite liegt unter dem Schritt der Punkte, %1: Höhen von Maxima sind falsch</translation>
    </message>
    <message>
        <source>2theta.min and 2theta.max are the same</source>
        <translation>2theta min und 2theta max sind gleich</translation>
    </message>
    <message>
        <source>an intensity of 0 cannot be drawn at full height</source>
        <translation>eine Intensität von 0 lässt sich nicht mit voller Höhe zeichnen</translation>
    </message>
    <message>
        <source>a fiber texture needs two reflections or more, the list has %1</source>
        <translation>eine Fasertextur braucht zwei oder mehr Reflexe, die Liste hat %1</translation>
    </message>
    <message>
        <source>overflow: %1 is %2, its power %3 is not a number</source>
        <translation>Überlauf: %L1 ist %2, die Potenz %3 davon ist keine Zahl</translation>
    </message>
    <message>
        <source>the intensity that maps to black (DisplayScale)</source>
        <translation>die Intensität, die schwarz wird (DisplayScale)</translation>
    </message>
    <message>
        <source>the relative intensity</source>
        <translation>die relative Intensität</translation>
    </message>
    <message>
        <source>the strongest intensity</source>
        <translation>die stärkste Intensität</translation>
    </message>
    <message>
        <source>the dispersion</source>
        <translation>die Streuung</translation>
    </message>
    <message>
        <source>the length of the fiber direction</source>
        <translation>die Länge der Faserrichtung</translation>
    </message>
    <message>
        <source>the length of the zone axis</source>
        <translation>die Länge der Zonenachse</translation>
    </message>
    <message>
        <source>the length of the reference reflection</source>
        <translation>die Länge des Bezugsreflexes</translation>
    </message>
    <message>
        <source>the zone axis has no length</source>
        <translation>die Zonenachse hat keine Länge</translation>
    </message>
    <message>
        <source>the length of the zone axis or of a direction</source>
        <translation>die Länge der Zonenachse oder einer Richtung</translation>
    </message>
    <message>
        <source>the length of a direction</source>
        <translation>die Länge einer Richtung</translation>
    </message>
    <message>
        <source>the length of a plane</source>
        <translation>die Länge einer Ebene</translation>
    </message>
    <message>
        <source>the wavelength</source>
        <translation>die Wellenlänge</translation>
    </message>
    <message>
        <source>the fiber direction H, K, L is 0 0 0</source>
        <translation>die Faserrichtung H, K, L ist 0 0 0</translation>
    </message>
    <message>
        <source>it draws the spot pattern, not this one</source>
        <translation>es zeichnet das Punktdiagramm, nicht dieses Bild</translation>
    </message>
    <message>
        <source>%1 input fontsize</source>
        <translation>%1 Schriftgröße eingeben</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Points, above 0 and up to 2160; 8 is usual.</source>
        <translation>Punkt, über 0 und bis 2160; üblich ist 8.</translation>
    </message>
    <message>
        <source>this is not a font size</source>
        <translation>das ist keine Schriftgröße</translation>
    </message>
    <message>
        <source>the font size is "%1", must be a number of points</source>
        <translation>die Schriftgröße ist „%1“, sie muss eine Zahl von Punkten sein</translation>
    </message>
    <message>
        <source>the font size is %1 points, must be above 0 and at most %2</source>
        <translation>die Schriftgröße ist %1 Punkt, sie muss über 0 und höchstens %2 sein</translation>
    </message>
    <message>
        <source>%1 Input Diffraction spot size (% of the picture width)</source>
        <translation>%1 Größe der Reflexe eingeben (% der Bildbreite)</translation>
    </message>
    <message>
        <source>Above 0; with more than 10 the spots cover one another.</source>
        <translation>Über 0; ab 10 verdecken die Reflexe einander.</translation>
    </message>
    <message>
        <source>without a size above 0 the first one is taken</source>
        <translation>ohne Größe über 0 wird die erste genommen</translation>
    </message>
    <message>
        <source>no spot of this size shows</source>
        <translation>kein Reflex dieser Größe ist zu sehen</translation>
    </message>
    <message>
        <source>the spot size</source>
        <translation>die Größe der Reflexe</translation>
    </message>
    <message>
        <source>%1 Input Rotation Angle Minimum (deg.)</source>
        <translation>%1 Drehschritt eingeben (Grad)</translation>
    </message>
    <message>
        <source>Degrees; with 0 nothing turns.</source>
        <translation>Grad; mit 0 dreht sich nichts.</translation>
    </message>
    <message>
        <source>with 0 degrees nothing turns</source>
        <translation>mit 0 Grad dreht sich nichts</translation>
    </message>
    <message>
        <source>the rotation angle pitch</source>
        <translation>der Drehschritt</translation>
    </message>
    <message>
        <source>%1 Input size of image</source>
        <translation>%1 Bildgröße eingeben</translation>
    </message>
    <message>
        <source>Twips, 15 to a pixel, of both edges: 7500 gives 500 pixels. The largest is 122880, the least 15; 0 leaves it.</source>
        <translation>Twips beider Kanten, 15 je Pixel: 7500 gibt 500 Pixel. Das Größte ist 122880, das Kleinste 15; 0 lässt sie.</translation>
    </message>
    <message>
        <source>a picture of this size has no pixels</source>
        <translation>ein Bild dieser Größe hat keine Pixel</translation>
    </message>
    <message>
        <source>no picture of more than 8192 pixels can be made</source>
        <translation>kein Bild von mehr als 8192 Pixeln ist möglich</translation>
    </message>
    <message>
        <source>the image size</source>
        <translation>die Bildgröße</translation>
    </message>
    <message>
        <source>Type a direction and press Calc</source>
        <translation>Eine Richtung tippen und „Rechnen“ drücken</translation>
    </message>
    <message>
        <source>the cosine of a latitude</source>
        <translation>der Kosinus einer Breite</translation>
    </message>
    <message>
        <source>index 1 of the reflection list, which is empty ("Calc" makes it)</source>
        <translation>Index 1 der Reflexliste, die leer ist („Rechnen“ macht sie)</translation>
    </message>
    <message>
        <source>the zoom pitch is 0 (Option, Zoom pitch)</source>
        <translation>der Zoomschritt ist 0 (Option, Zoomschritt)</translation>
    </message>
    <message>
        <source>nothing is drawn yet: "Calc" first</source>
        <translation>noch nichts gezeichnet: erst „Rechnen“</translation>
    </message>
    <message>
        <source>no axis has been found: click the picture first</source>
        <translation>keine Achse gefunden: erst das Bild anklicken</translation>
    </message>
    <message>
        <source>h, k, l of the mark are 0 0 0</source>
        <translation>h, k, l der Marke sind 0 0 0</translation>
    </message>
    <message>
        <source>the bands are those of a list that is gone: draw them again</source>
        <translation>die Bänder sind die einer Liste, die es nicht mehr gibt: neu zeichnen</translation>
    </message>
    <message>
        <source>the zoom increment</source>
        <translation>der Zoomschritt</translation>
    </message>
    <message>
        <source>[%1] Input Shift Angle  (deg.)</source>
        <translation>[%1] Schritt der Verschiebung eingeben (Grad)</translation>
    </message>
    <message>
        <source>Shift Angle Pitch</source>
        <translation>Schritt der Verschiebung</translation>
    </message>
    <message>
        <source>with 0 degrees the arrows shift nothing</source>
        <translation>mit 0 Grad verschieben die Pfeile nichts</translation>
    </message>
    <message>
        <source>[%1] Input Zoom increment (ratio)</source>
        <translation>[%1] Zoomschritt eingeben (Verhältnis)</translation>
    </message>
    <message>
        <source>Zoom increment</source>
        <translation>Zoomschritt</translation>
    </message>
    <message>
        <source>with 0 "Zoom Up" ends the program</source>
        <translation>mit 0 beendet „Größer“ das Programm</translation>
    </message>
    <message>
        <source>beyond the half sphere</source>
        <translation>jenseits der Halbkugel</translation>
    </message>
    <message>
        <source>Calc of the Kikuchi window fills the map</source>
        <translation>„Rechnen“ im Kikuchi-Fenster füllt die Karte</translation>
    </message>
    <message>
        <source>the map cannot be made larger: it would turn over</source>
        <translation>die Karte lässt sich nicht weiter vergrößern: sie würde umklappen</translation>
    </message>
    <message>
        <source>Det Error Div. By Zero</source>
        <translation>Determinante null</translation>
    </message>
    <message>
        <source>No Real Ans.</source>
        <translation>keine reelle Lösung</translation>
    </message>
    <message>
        <source>the tangent of the acquisition angle</source>
        <translation>der Tangens des Aufnahmewinkels</translation>
    </message>
    <message>
        <source>the detector area</source>
        <translation>die Detektorfläche</translation>
    </message>
    <message>
        <source>the detector position</source>
        <translation>die Detektorposition</translation>
    </message>
    <message>
        <source>the distance of the two poles</source>
        <translation>der Abstand der zwei Pole</translation>
    </message>
    <message>
        <source>the number of a row</source>
        <translation>die Nummer einer Zeile</translation>
    </message>
    <message>
        <source>the shift of a row</source>
        <translation>die Verschiebung einer Zeile</translation>
    </message>
    <message>
        <source>the shift %1 must be 0 to 511</source>
        <translation>die Verschiebung %1 muss 0 bis 511 sein</translation>
    </message>
    <message>
        <source>Drop a measured pattern here, or Image &gt; LOAD. Then draw three lines along bands and press CALC</source>
        <translation>Ein gemessenes Beugungsbild hier ablegen, oder Bild &gt; LADEN. Dann drei Linien entlang von Bändern ziehen und RECHNEN drücken</translation>
    </message>
    <message>
        <source>no lines are picked</source>
        <translation>keine Linien gesetzt</translation>
    </message>
    <message>
        <source>%1 of %2 lines are picked</source>
        <translation>%1 von %2 Linien gesetzt</translation>
    </message>
    <message>
        <source>the area is 0 degrees</source>
        <translation>die Öffnung ist 0 Grad</translation>
    </message>
    <message>
        <source>there is no solution of this number to adjust</source>
        <translation>es gibt keine Lösung mit der Nummer, für die eingestellt wird</translation>
    </message>
    <message>
        <source>no picture is loaded</source>
        <translation>kein Bild geladen</translation>
    </message>
    <message>
        <source>the corrector file is missing</source>
        <translation>die Korrekturdatei fehlt</translation>
    </message>
    <message>
        <source>the markers of the two poles are not set, or at the same height</source>
        <translation>die Marken der zwei Pole sind nicht gesetzt oder auf gleicher Höhe</translation>
    </message>
    <message>
        <source>this line is the number of solutions, not a solution</source>
        <translation>diese Zeile ist die Zahl der Lösungen, keine Lösung</translation>
    </message>
    <message>
        <source>a click without a drag draws the line to the corner</source>
        <translation>ein Klick ohne Ziehen legt die Linie zur Ecke</translation>
    </message>
    <message>
        <source>no list has fewer than 0 reflections</source>
        <translation>keine Liste hat weniger als 0 Reflexe</translation>
    </message>
    <message>
        <source>[%1] Input matching method (0:triangle and direction 1:only triangle)</source>
        <translation>[%1] Vergleichsmethode eingeben (0: Dreieck und Drehsinn, 1: nur Dreieck)</translation>
    </message>
    <message>
        <source>the matching method</source>
        <translation>die Vergleichsmethode</translation>
    </message>
    <message>
        <source>[%1] Equivalent solution (0:Display 1:Omitt)</source>
        <translation>[%1] Gleichwertige Lösungen (0: zeigen, 1: weglassen)</translation>
    </message>
    <message>
        <source>Equivale solution</source>
        <translation>Gleichwertige Lösungen</translation>
    </message>
    <message>
        <source>the choice of solutions</source>
        <translation>die Wahl der Lösungen</translation>
    </message>
    <message>
        <source>Take back the last line</source>
        <translation>Letzte Linie zurücknehmen</translation>
    </message>
    <message>
        <source>the acceleration voltage is not above 0</source>
        <translation>die Beschleunigungsspannung ist nicht über 0</translation>
    </message>
    <message>
        <source>an element of the crystal has no scattering factor</source>
        <translation>ein Element des Kristalls hat keinen Streufaktor</translation>
    </message>
    <message>
        <source>the crystal has no reflection of any intensity: it needs atoms or observed lines</source>
        <translation>der Kristall hat keinen Reflex mit Intensität: er braucht Atome oder beobachtete Linien</translation>
    </message>
    <message>
        <source>the crystal has fewer than three families of planes to index with</source>
        <translation>der Kristall hat weniger als drei Ebenenfamilien zum Indizieren</translation>
    </message>
    <message>
        <source>the picture is blank: it has no contrast to find bands in</source>
        <translation>das Bild ist leer: es hat keinen Kontrast für Bänder</translation>
    </message>
    <message>
        <source>only %1 bands were found, three are needed</source>
        <translation>nur %1 Bänder gefunden, drei sind nötig</translation>
    </message>
    <message>
        <source>there is no solution yet: press Index</source>
        <translation>noch keine Lösung: „Indizieren“ drücken</translation>
    </message>
    <message>
        <source>there is no picture: load one in PATTERN3 (Image, LOAD)</source>
        <translation>es gibt kein Bild: eines in PATTERN3 laden (Bild, LADEN)</translation>
    </message>
    <message>
        <source>%1 bands, but no orientation explains three of them</source>
        <translation>%1 Bänder, aber keine Orientierung erklärt drei davon</translation>
    </message>
    <message>
        <source>%1: %2 of %3 bands, off by %4 deg, correlation %5, confidence %6</source>
        <translation>%1: %2 von %3 Bändern, %4° daneben, Korrelation %5, Sicherheit %6</translation>
    </message>
    <message>
        <source>%1; centre good to %2, %3, %4 % of the width</source>
        <translation>%L1; Zentrum auf %2, %3, %4 % der Breite</translation>
    </message>
    <message>
        <source>the half angle of PATTERN3, Area (deg.), is %1; it must lie between 0 and 89</source>
        <translation>der halbe Öffnungswinkel von PATTERN3 ist %1; er muss zwischen 0 und 89 liegen</translation>
    </message>
    <message>
        <source>no orientation was found to refine the centre with</source>
        <translation>keine Orientierung gefunden, um das Zentrum zu verfeinern</translation>
    </message>
    <message>
        <source>a maker and its numbers are expected, as "bruker 0.5 0.25 0.6", or "emsoft 10 -20 15000 70" with the size of a pixel in micrometres</source>
        <translation>erwartet werden ein Hersteller und seine Zahlen, wie „bruker 0.5 0.25 0.6“ oder „emsoft 10 -20 15000 70“ mit der Pixelgröße in Mikrometern</translation>
    </message>
    <message>
        <source>"%1" is not a pattern centre: %2</source>
        <translation>„%1“ ist kein Zentrum: %L2</translation>
    </message>
    <message>
        <source>"%1" is not a number: %2</source>
        <translation>„%1“ ist keine Zahl: %L2</translation>
    </message>
    <message>
        <source>the specimen would be %1 widths from the screen; expected are 0.05 to 20</source>
        <translation>die Probe stünde %1 Breiten vom Schirm; erwartet werden 0.05 bis 20</translation>
    </message>
    <message>
        <source>the pattern centre would lie %1, %2 widths from the upper left corner; expected are less than 3</source>
        <translation>das Zentrum läge %1, %2 Breiten von der oberen linken Ecke; erwartet werden weniger als 3</translation>
    </message>
    <message>
        <source>Pattern centre of the detector software: bruker, edax, oxford or emsoft and its three numbers, as edax 0.52 0.76 0.80</source>
        <translation>Zentrum, wie die Software des Detektors es angibt: bruker, edax, oxford oder emsoft und seine drei Zahlen, etwa edax 0.52 0.76 0.80</translation>
    </message>
    <message>
        <source>fewer than three bands are clear enough to be taken</source>
        <translation>weniger als drei Bänder sind deutlich genug</translation>
    </message>
    <message>
        <source>pick a family in the list first</source>
        <translation>erst eine Familie in der Liste wählen</translation>
    </message>
    <message>
        <source>pick a crystal in the list first</source>
        <translation>erst einen Kristall in der Liste wählen</translation>
    </message>
    <message>
        <source>the cell constants make no cell</source>
        <translation>die Gitterkonstanten bilden keine Zelle</translation>
    </message>
    <message>
        <source>present crystal</source>
        <translation>jetziger Kristall</translation>
    </message>
    <message>
        <source>there is no crystal: load one in the main window, or add a crystal file</source>
        <translation>es gibt keinen Kristall: einen im Hauptfenster laden oder eine Kristalldatei hinzufügen</translation>
    </message>
    <message>
        <source>the simulation needs the reflection list: press Calc in the main window</source>
        <translation>die Simulation braucht die Reflexliste: „Rechnen“ im Hauptfenster drücken</translation>
    </message>
    <message>
        <source>the zone axis is zero</source>
        <translation>die Zonenachse ist null</translation>
    </message>
    <message>
        <source>the zone axis has no reference reflection</source>
        <translation>die Zonenachse hat keinen Bezugsreflex</translation>
    </message>
    <message>
        <source>there is no crystal: load one in the main window</source>
        <translation>es gibt keinen Kristall: einen im Hauptfenster laden</translation>
    </message>
    <message>
        <source>the squared distance of two atoms</source>
        <translation>das Abstandsquadrat zweier Atome</translation>
    </message>
    <message>
        <source>the largest distance is not above 0</source>
        <translation>der größte Abstand ist nicht über 0</translation>
    </message>
    <message>
        <source>length_1 is 0</source>
        <translation>Länge_1 ist 0</translation>
    </message>
    <message>
        <source>u, v, w are 0 0 0</source>
        <translation>u, v, w sind 0 0 0</translation>
    </message>
    <message>
        <source>h, k, l are 0 0 0</source>
        <translation>h, k, l sind 0 0 0</translation>
    </message>
    <message>
        <source>Phi-1 calc=%1</source>
        <translation>Phi-1 ber.=%1</translation>
    </message>
    <message>
        <source>Phi-2 calc=%1</source>
        <translation>Phi-2 ber.=%1</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>triclinic</source>
        <translation>triklin</translation>
    </message>
    <message>
        <source>monoclinic</source>
        <translation>monoklin</translation>
    </message>
    <message>
        <source>orthorhombic</source>
        <translation>orthorhombisch</translation>
    </message>
    <message>
        <source>tetragonal</source>
        <translation>tetragonal</translation>
    </message>
    <message>
        <source>trigonal</source>
        <translation>trigonal</translation>
    </message>
    <message>
        <source>rhombohedral</source>
        <translation>rhomboedrisch</translation>
    </message>
    <message>
        <source>hexagonal</source>
        <translation>hexagonal</translation>
    </message>
    <message>
        <source>cubic</source>
        <translation>kubisch</translation>
    </message>
    <message>
        <source>the position of the site "%1" is not a finite number</source>
        <translation>die Lage des Platzes „%1“ ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>the product of two symmetry operators has no exact form</source>
        <translation>das Produkt zweier Symmetrieoperatoren hat keine genaue Form</translation>
    </message>
    <message>
        <source>its first letter is not a lattice</source>
        <translation>sein erster Buchstabe ist kein Gitter</translation>
    </message>
    <message>
        <source>"%1" is not a translation</source>
        <translation>„%1“ ist keine Translation</translation>
    </message>
    <message>
        <source>"%1" has no order of a rotation</source>
        <translation>„%1“ hat keine Zähligkeit</translation>
    </message>
    <message>
        <source>three numbers are expected in its brackets</source>
        <translation>in seinen Klammern werden drei Zahlen erwartet</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>es ist leer</translation>
    </message>
    <message>
        <source>images of %1 lie closer than %2 angstroms; by their occupancies they are a split site, and stay apart</source>
        <translation>Bilder von %1 liegen näher als %2 Ångström; nach den Besetzungen ist es ein aufgespaltener Platz, sie bleiben getrennt</translation>
    </message>
    <message>
        <source>the %1 symmetry operators do not form a group; the %2 that they make are taken</source>
        <translation>die %1 Symmetrieoperatoren sind keine Gruppe; die %2, die sie erzeugen, werden genommen</translation>
    </message>
    <message>
        <source>the %1 symmetry operators do not belong to %2, which has %3; the operators count</source>
        <translation>die %1 Symmetrieoperatoren gehören nicht zu %2, das %3 hat; die Operatoren gelten</translation>
    </message>
    <message>
        <source>the only symmetry operator is the identity, although the file says %1; the atoms are taken as they are listed</source>
        <translation>der einzige Symmetrieoperator ist die Identität, obwohl die Datei %1 sagt; die Atome werden genommen, wie sie dastehen</translation>
    </message>
    <message>
        <source>the only symmetry operator is the identity; those of %1 are taken</source>
        <translation>der einzige Symmetrieoperator ist die Identität; die von %1 werden genommen</translation>
    </message>
    <message>
        <source>the symmetry operators make no finite group</source>
        <translation>die Symmetrieoperatoren ergeben keine endliche Gruppe</translation>
    </message>
    <message>
        <source>H   K   L     k/2    D(A)   2-Theta     A       B       F      I(powder)</source>
        <translation>H   K   L     k/2    D(A)   2-Theta     A       B       F      I(Pulver)</translation>
    </message>
    <message>
        <source>%1 begins with other bytes, expected is %2</source>
        <translation>%1 beginnt mit anderen Bytes, erwartet wird %2</translation>
    </message>
    <message>
        <source>%1, %2: expected are two finite numbers</source>
        <translation>%1, %L2: erwartet werden zwei endliche Zahlen</translation>
    </message>
    <message>
        <source>%1, %2: %3 after %4, expected are places that %5 from one line to the next</source>
        <translation>%1, %L2: %3 nach %4, erwartet werden Stellen, die von Zeile zu Zeile %L5</translation>
    </message>
    <message>
        <source>rise</source>
        <translation>steigen</translation>
    </message>
    <message>
        <source>fall</source>
        <translation>fallen</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>point %1</source>
        <translation>Punkt %1</translation>
    </message>
    <message>
        <source>crystal axes from picture axes</source>
        <translation>Kristallachsen aus Bildachsen</translation>
    </message>
    <message>
        <source>%1 has indices from 1 to 3</source>
        <translation>%1 hat Indizes von 1 bis 3</translation>
    </message>
    <message>
        <source>h  k  l   n   d (A)   width  F2 (%)</source>
        <translation>h  k  l   n   d (A)  Breite  F2 (%)</translation>
    </message>
    <message>
        <source>no  azimuth distance  width strength   h  k  l   off</source>
        <translation>Nr   Azimut  Abstand Breite   Stärke   h  k  l   Abw</translation>
    </message>
    <message>
        <source>no bands    off  corr. conf.      u      v      w   phi1    Phi   phi2</source>
        <translation>Nr Bänd.    Abw  Korr. Sich.      u      v      w   phi1    Phi   phi2</translation>
    </message>
    <message>
        <source>cannot read %1 as a bitmap: %2</source>
        <translation>%1 ist nicht als Bitmap lesbar: %L2</translation>
    </message>
    <message>
        <source>it is cut short: %1 goes to byte %2, there are %3</source>
        <translation>sie ist abgeschnitten: %L1 geht bis Byte %2, da sind %3</translation>
    </message>
    <message>
        <source>its header</source>
        <translation>ihr Kopf</translation>
    </message>
    <message>
        <source>its palette</source>
        <translation>ihre Palette</translation>
    </message>
    <message>
        <source>a bitmap (BMP) begins with the letters BM</source>
        <translation>eine Bitmap (BMP) beginnt mit den Buchstaben BM</translation>
    </message>
    <message>
        <source>its header is said to have %1 bytes; known are 12, 40, 64, 108 and 124</source>
        <translation>ihr Kopf soll %1 Bytes haben; bekannt sind 12, 40, 64, 108 und 124</translation>
    </message>
    <message>
        <source>its header says %1 x %2 pixels; %3</source>
        <translation>ihr Kopf nennt %1 x %2 Pixel; %L3</translation>
    </message>
    <message>
        <source>a side has 1 to 32767, and 8192 x 8192 in all are possible</source>
        <translation>eine Seite hat 1 bis 32767, und 8192 x 8192 insgesamt sind möglich</translation>
    </message>
    <message>
        <source>its header says %1 bits per pixel in %2 planes with compression %3; 1, 4, 8, 16, 24 or 32 bits in 1 plane are possible, plain, run-length encoded or with bit fields</source>
        <translation>ihr Kopf nennt %1 Bits je Pixel in %2 Ebenen mit Kompression %3; möglich sind 1, 4, 8, 16, 24 oder 32 Bits in 1 Ebene, schlicht, lauflängenkodiert oder mit Bitfeldern</translation>
    </message>
    <message>
        <source>its palette is said to have %1 colours; at most 256 are possible</source>
        <translation>ihre Palette soll %1 Farben haben; höchstens 256 sind möglich</translation>
    </message>
    <message>
        <source>it is cut short: %1 rows of %2 bytes need %3, there are %4, for %5 rows</source>
        <translation>sie ist abgeschnitten: %1 Zeilen zu %2 Bytes brauchen %3, da sind %4, für %5 Zeilen</translation>
    </message>
    <message>
        <source>%1 after pixel %2 of %3 in row %4 of %5</source>
        <translation>%L1 hinter Pixel %2 von %3 in Zeile %4 von %5</translation>
    </message>
    <message>
        <source>it is cut short: it ends</source>
        <translation>sie ist abgeschnitten: sie endet</translation>
    </message>
    <message>
        <source>its run-length code leaves pixels out</source>
        <translation>ihr Lauflängencode lässt Pixel aus</translation>
    </message>
    <message>
        <source>its run-length code ends</source>
        <translation>ihr Lauflängencode endet</translation>
    </message>
    <message>
        <source>its run-length code goes beyond the row</source>
        <translation>ihr Lauflängencode geht über die Zeile hinaus</translation>
    </message>
    <message>
        <source>the picture %1 has no pixels here</source>
        <translation>das Bild %1 hat hier keine Pixel</translation>
    </message>
    <message>
        <source>there is no field %1</source>
        <translation>es gibt kein Feld %1</translation>
    </message>
    <message>
        <source>%1 takes %2 indices</source>
        <translation>%1 nimmt %2 Indizes</translation>
    </message>
    <message>
        <source>there are no pixel images here</source>
        <translation>hier gibt es keine Pixelbilder</translation>
    </message>
    <message>
        <source>the work to be kept has %1 parts, at most 4294967295 are possible</source>
        <translation>was aufzubewahren ist, hat %1 Teile, höchstens 4294967295 gehen</translation>
    </message>
    <message>
        <source>%1 takes no file</source>
        <translation>%1 nimmt keine Datei</translation>
    </message>
    <message>
        <source>there is no %1 to be used</source>
        <translation>es gibt kein %1 zum Benutzen</translation>
    </message>
    <message>
        <source>there is no window %1</source>
        <translation>es gibt kein Fenster %1</translation>
    </message>
    <message>
        <source>cannot lock a file in %1: %2</source>
        <translation>eine Datei in %1 lässt sich nicht sperren: %L2</translation>
    </message>
    <message>
        <source>neither HOME nor XDG_STATE_HOME names a folder</source>
        <translation>weder HOME noch XDG_STATE_HOME nennt einen Ordner</translation>
    </message>
    <message>
        <source>it is of format %1, this program reads format %2</source>
        <translation>sie hat Format %1, dieses Programm liest Format %2</translation>
    </message>
    <message>
        <source>new crystal</source>
        <translation>neuer Kristall</translation>
    </message>
    <message>
        <source>The pages of the user guide are not installed: %1 is missing.</source>
        <translation>Die Seiten des Handbuchs sind nicht installiert: %1 fehlt.</translation>
    </message>
    <message>
        <source>ended by a failure</source>
        <translation>durch einen Fehler beendet</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>Qt's plug-in for it is missing (in Debian's package qt6-image-formats-plugins)</source>
        <translation>das Plug-in von Qt dafür fehlt (im Debian-Paket qt6-image-formats-plugins)</translation>
    </message>
    <message>
        <source>Dark halo behind coloured lines</source>
        <translation>Dunkler Saum hinter farbigen Linien</translation>
    </message>
    <message>
        <source>&lt;qt&gt;%1&lt;/qt&gt;</source>
        <translation>&lt;qt&gt;%L1&lt;/qt&gt;</translation>
    </message>
    <message>
        <source>%1= %2</source>
        <translation>%L1= %2</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%L1 = %2</translation>
    </message>
    <message>
        <source>a pattern from a file, shown under the curve: .xy, .xye, .csv, .xrdml, .raw and others</source>
        <translation>ein Diagramm aus einer Datei, unter der Kurve gezeigt: .xy, .xye, .csv, .xrdml, .raw und andere</translation>
    </message>
    <message>
        <source>a simulated Kikuchi pattern of silicon, indexed automatically</source>
        <translation>ein simuliertes Kikuchi-Bild von Silizium, von selbst indiziert</translation>
    </message>
    <message>
        <source>an orientation is none</source>
        <translation>eine Orientierung ist keine</translation>
    </message>
    <message>
        <source>the planes of a crystal do not fit together</source>
        <translation>die Ebenen eines Kristalls passen nicht zusammen</translation>
    </message>
    <message>
        <source>an orientation is of no crystal</source>
        <translation>eine Orientierung gehört zu keinem Kristall</translation>
    </message>
    <message>
        <source>the bands of an orientation are others</source>
        <translation>die Bänder einer Orientierung sind andere</translation>
    </message>
    <message>
        <source>CUBIC</source>
        <translation>KUBISCH</translation>
    </message>
    <message>
        <source>Bonds and angles</source>
        <translation>Bindungen und Winkel</translation>
    </message>
    <message>
        <source>the bonds of each atom, the angles between them and the coordination numbers, in a window of their own</source>
        <translation>die Bindungen jedes Atoms, die Winkel dazwischen und die Koordinationszahlen, in einem eigenen Fenster</translation>
    </message>
    <message>
        <source>Bonds up to (A)</source>
        <translation>Bindungen bis (A)</translation>
    </message>
    <message>
        <source>longest bond, in angstroms; empty: the bonds of an atom end at the first gap; Enter calculates</source>
        <translation>längste Bindung, in Ångström; leer: die Bindungen eines Atoms enden an der ersten Lücke; Enter rechnet</translation>
    </message>
    <message>
        <source>First gap (%)</source>
        <translation>Erste Lücke (%)</translation>
    </message>
    <message>
        <source>the bonds of an atom end where the next atom is farther by more than this share of the distance; not used where a longest bond is given</source>
        <translation>die Bindungen eines Atoms enden, wo das nächste Atom um mehr als diesen Anteil des Abstands weiter weg ist; gilt nicht, wo eine längste Bindung steht</translation>
    </message>
    <message>
        <source>bonds, angles and coordination numbers in the crystal as it is now</source>
        <translation>Bindungen, Winkel und Koordinationszahlen im jetzigen Kristall</translation>
    </message>
    <message>
        <source>each atom of the asymmetric unit: element, coordination number, shortest, mean and longest bond, and the nearest atom that is not bonded, in angstroms</source>
        <translation>jedes Atom der asymmetrischen Einheit: Element, Koordinationszahl, kürzeste, mittlere und längste Bindung und das nächste nicht gebundene Atom, in Ångström</translation>
    </message>
    <message>
        <source>each bond: its two atoms, the distance in angstroms, and where the second atom is, in cell edges</source>
        <translation>jede Bindung: ihre zwei Atome, der Abstand in Ångström und wo das zweite Atom liegt, in Zellkanten</translation>
    </message>
    <message>
        <source>each two bonds of an atom: the angle at it in degrees, and the two distances in angstroms</source>
        <translation>je zwei Bindungen eines Atoms: der Winkel an ihm in Grad und die zwei Abstände in Ångström</translation>
    </message>
    <message>
        <source>it asks more than is known of it</source>
        <translation>sie fragt mehr, als von ihr bekannt ist</translation>
    </message>
    <message>
        <source>%1: a number is expected, as in a=5.43</source>
        <translation>%1: erwartet wird eine Zahl, wie in a=5.43</translation>
    </message>
    <message>
        <source>%1: an element is expected after the sign, as in +Si</source>
        <translation>%1: hinter dem Zeichen wird ein Element erwartet, wie in +Si</translation>
    </message>
    <message>
        <source>%1: there is no such space group or crystal system</source>
        <translation>%1: eine solche Raumgruppe oder ein solches Kristallsystem gibt es nicht</translation>
    </message>
    <message>
        <source>%1: a, b, c, alpha, beta, gamma, V, density or group are expected before the sign</source>
        <translation>%1: vor dem Zeichen werden a, b, c, alpha, beta, gamma, V, density oder group erwartet</translation>
    </message>
    <message>
        <source>how many reflections are equivalent, Friedel mates included</source>
        <translation>wie viele Reflexe gleichwertig sind, samt den Friedel-Partnern</translation>
    </message>
    <message>
        <source>where a screw axis or a glide plane forbids the reflection</source>
        <translation>wo eine Schraubenachse oder Gleitspiegelebene nichts davon lässt</translation>
    </message>
    <message>
        <source>the reflection that represents the family</source>
        <translation>der Reflex, der für die ganze Familie steht</translation>
    </message>
    <message>
        <source>Atoms of the unit cell</source>
        <translation>Atome der Elementarzelle</translation>
    </message>
    <message>
        <source>sin(theta)/lambda = 1/(2d), k/2 in the list</source>
        <translation>sin(theta)/lambda = 1/(2d), k/2 in der Liste</translation>
    </message>
    <message>
        <source>real part of the structure factor</source>
        <translation>Realteil des Strukturfaktors</translation>
    </message>
    <message>
        <source>imaginary part of the structure factor</source>
        <translation>Imaginärteil des Strukturfaktors</translation>
    </message>
    <message>
        <source>modulus of the structure factor</source>
        <translation>Betrag des Strukturfaktors</translation>
    </message>
    <message>
        <source>width of a band, computed less measured</source>
        <translation>Breite eines Bandes, berechnet weniger gemessen</translation>
    </message>
    <message>
        <source>planes of the family</source>
        <translation>Ebenen der Familie</translation>
    </message>
    <message>
        <source>x: used, -: left out</source>
        <translation>x: benutzt, -: ausgelassen</translation>
    </message>
    <message>
        <source>from the plane of the picked solution</source>
        <translation>von der Ebene der gewählten Lösung</translation>
    </message>
    <message>
        <source>bands that are explained</source>
        <translation>erklärte Bänder</translation>
    </message>
    <message>
        <source>mean deviation of the bands</source>
        <translation>mittlere Abweichung der Bänder</translation>
    </message>
    <message>
        <source>correlation with the picture</source>
        <translation>Korrelation mit dem Bild</translation>
    </message>
    <message>
        <source>confidence</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>coordination number</source>
        <translation>Koordinationszahl</translation>
    </message>
    <message>
        <source>nearest atom that is not bonded</source>
        <translation>nächstes nicht gebundenes Atom</translation>
    </message>
    <message>
        <source>of the second atom</source>
        <translation>des zweiten Atoms</translation>
    </message>
    <message>
        <source>Space groups</source>
        <translation>Raumgruppen</translation>
    </message>
    <message>
        <source>Bonds</source>
        <translation>Bindungen</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Coordination</source>
        <translation>Koordination</translation>
    </message>
    <message>
        <source>Multiplicity</source>
        <translation>Multiplizität</translation>
    </message>
    <message>
        <source>Systematic absences</source>
        <translation>Systematische Auslöschungen</translation>
    </message>
    <message>
        <source>Families of equivalents</source>
        <translation>Familien gleichwertiger Reflexe</translation>
    </message>
    <message>
        <source>Four indices h k i l</source>
        <translation>Vier Indizes h k i l</translation>
    </message>
    <message>
        <source>Four indices U V T W</source>
        <translation>Vier Indizes U V T W</translation>
    </message>
    <message>
        <source>atom    elem.    CN  shortest      mean   longest      next</source>
        <translation>Atom    Elem.    KZ  kürzeste  mittlere   längste    nächst</translation>
    </message>
    <message>
        <source>atom 1  elem. atom 2  elem.   distance         x         y         z</source>
        <translation>Atom 1  Elem. Atom 2  Elem.    Abstand         x         y         z</translation>
    </message>
    <message>
        <source>atom 1  centre  atom 2      angle       d 1       d 2</source>
        <translation>Atom 1  Mitte   Atom 2     Winkel       d 1       d 2</translation>
    </message>
    <message>
        <source>%1 is "%2"; expected is a number above 0, or nothing</source>
        <translation>%L1 ist „%2“; erwartet wird eine Zahl über 0 oder nichts</translation>
    </message>
    <message>
        <source>search for a space group</source>
        <translation>Suche nach einer Raumgruppe</translation>
    </message>
    <message>
        <source>Fm-3m, 225, cubic</source>
        <translation>Fm-3m, 225, kubisch</translation>
    </message>
    <message>
        <source>number, symbol or crystal system of a space group; Enter takes the first one found</source>
        <translation>Nummer, Symbol oder Kristallsystem einer Raumgruppe; Enter nimmt die erste gefundene</translation>
    </message>
    <message>
        <source>Show as table</source>
        <translation>Als Tabelle zeigen</translation>
    </message>
    <message>
        <source>Table: %1</source>
        <translation>Tabelle: %L1</translation>
    </message>
    <message>
        <source>d&gt;1.5 h=1, or a word</source>
        <translation>d&gt;1.5 h=1 oder ein Wort</translation>
    </message>
    <message>
        <source>only rows that match all parts: a column compared by = &lt;&gt; &lt; &gt; &lt;= &gt;=, or any text</source>
        <translation>nur Zeilen, für die alle Teile gelten: eine Spalte verglichen durch = &lt;&gt; &lt; &gt; &lt;= &gt;=, oder irgendein Text</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>columns that can be added to those of the list</source>
        <translation>was neben den Spalten der Liste stehen kann</translation>
    </message>
    <message>
        <source>the selected rows, or all, with their heads, tabs between the cells</source>
        <translation>die ausgewählten Zeilen oder alle, mit ihren Köpfen, Tabulatoren zwischen den Zellen</translation>
    </message>
    <message>
        <source>Save as CSV...</source>
        <translation>Als CSV speichern...</translation>
    </message>
    <message>
        <source>all rows that are shown, in their order, to a file of comma-separated values</source>
        <translation>alle gezeigten Zeilen in ihrer Reihenfolge, in eine Datei mit Kommas zwischen den Werten</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Nach dieser Spalte sortieren</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Als CSV speichern</translation>
    </message>
    <message>
        <source>Crystal library</source>
        <translation>Kristallbibliothek</translation>
    </message>
    <message>
        <source>reading file %1 of %2</source>
        <translation>liest Datei %1 von %2</translation>
    </message>
    <message>
        <source>search in the crystal library</source>
        <translation>Suche in der Kristallbibliothek</translation>
    </message>
    <message>
        <source>quartz, +Si -Al, Fm-3m, a=5.43</source>
        <translation>Quarz, +Si -Al, Fm-3m, a=5.43</translation>
    </message>
    <message>
        <source>A crystal has to match all words:
quartz - in the name, the title or a folder
SiO2 - this formula
+Si -Al - with, without an element
225, Fm-3m, cubic - space group or crystal system
a=5.43 - within 1 %; a=5.43~0.01, a=5.4..5.5, a&gt;5; also b, c, alpha, beta, gamma, V, density</source>
        <translation>Wörter, die alle gelten müssen:
quartz - im Namen, im Titel oder in einem Ordner
SiO2 - diese Formel
+Si -Al - mit, ohne ein Element
225, Fm-3m, cubic - Raumgruppe oder Kristallsystem
a=5.43 - auf 1 %; a=5.43~0.01, a=5.4..5.5, a&gt;5; auch b, c, alpha, beta, gamma, V, density</translation>
    </message>
    <message>
        <source>crystals</source>
        <translation>Kristalle</translation>
    </message>
    <message>
        <source>Enter or a double click opens the crystal</source>
        <translation>Enter oder ein Doppelklick öffnet den Kristall</translation>
    </message>
    <message>
        <source>%1 crystals</source>
        <translation>%1 Kristalle</translation>
    </message>
    <message>
        <source>%1 of %2 crystals</source>
        <translation>%1 von %2 Kristallen</translation>
    </message>
    <message>
        <source>%1 crystals, %2</source>
        <translation>%1 Kristalle, %L2</translation>
    </message>
    <message>
        <source>%1 of %2 crystals, %3</source>
        <translation>%1 von %2 Kristallen, %L3</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>%1, of the strongest family</source>
        <translation>%1, von der stärksten Familie</translation>
    </message>
    <message>
        <source>1 - cos^2 of a reciprocal angle</source>
        <translation>1 - cos^2 eines reziproken Winkels</translation>
    </message>
    <message>
        <source>a number of the older layout</source>
        <translation>eine Zahl des älteren Aufbaus</translation>
    </message>
    <message>
        <source>atoms without coordinates left out: %1</source>
        <translation>Atome ohne Koordinaten ausgelassen: %1</translation>
    </message>
    <message>
        <source>atoms whose element is not known left out: %1</source>
        <translation>Atome ohne bekanntes Element ausgelassen: %1</translation>
    </message>
    <message>
        <source>there is not enough memory to read it</source>
        <translation>es ist nicht genug Speicher da, sie zu lesen</translation>
    </message>
    <message>
        <source>a count of atoms</source>
        <translation>eine Atomzahl</translation>
    </message>
    <message>
        <source>a value refers to free variable %1, which is not there</source>
        <translation>ein Wert verweist auf die freie Variable %1, die es nicht gibt</translation>
    </message>
    <message>
        <source>the element of %1</source>
        <translation>das Element von %1</translation>
    </message>
    <message>
        <source>density: %1 (the file says %2)</source>
        <translation>Dichte: %1 (die Datei sagt %2)</translation>
    </message>
    <message>
        <source>Dmin (Main1.Text15)</source>
        <translation>Dmin (Main1.Text15)</translation>
    </message>
    <message>
        <source>%1, line %2: "%3" is taken for %4 (%5), a number and nothing else is expected</source>
        <translation>%1, Zeile %2: „%3“ wird als %L4 genommen (%L5), erwartet wird eine Zahl und nichts sonst</translation>
    </message>
    <message>
        <source>there is no column for it</source>
        <translation>es gibt keine Spalte dafür</translation>
    </message>
    <message>
        <source>it is word %1</source>
        <translation>es ist Wort %1</translation>
    </message>
    <message>
        <source>a Bruker .raw file, which begins with RAW</source>
        <translation>eine .raw-Datei von Bruker, die mit RAW beginnt</translation>
    </message>
    <message>
        <source>a Philips %1 file</source>
        <translation>eine %1-Datei von Philips</translation>
    </message>
    <message>
        <source>a Siemens or Bruker .uxd file</source>
        <translation>eine .uxd-Datei von Siemens oder Bruker</translation>
    </message>
    <message>
        <source>a Sietronics .cpi file</source>
        <translation>eine .cpi-Datei von Sietronics</translation>
    </message>
    <message>
        <source>the interference grid along an axis</source>
        <translation>das Interferenzgitter entlang einer Achse</translation>
    </message>
    <message>
        <source>the grid width</source>
        <translation>die Gitterbreite</translation>
    </message>
    <message>
        <source>the squared length of a reciprocal vector</source>
        <translation>das Längenquadrat eines reziproken Vektors</translation>
    </message>
    <message>
        <source>sin(theta) of a peak</source>
        <translation>sin(theta) eines Maximums</translation>
    </message>
    <message>
        <source>1/d of a peak</source>
        <translation>1/d eines Maximums</translation>
    </message>
    <message>
        <source>the distance from the beam</source>
        <translation>der Abstand vom Strahl</translation>
    </message>
    <message>
        <source>the number of bins, 5000 / Dmin</source>
        <translation>die Zahl der Klassen, 5000 / Dmin</translation>
    </message>
    <message>
        <source>the number of points of the interference grid</source>
        <translation>die Zahl der Punkte des Interferenzgitters</translation>
    </message>
    <message>
        <source>% of full height</source>
        <translation>% der vollen Höhe</translation>
    </message>
    <message>
        <source>an arc of the fiber texture</source>
        <translation>ein Bogen der Fasertextur</translation>
    </message>
    <message>
        <source>1.0001 - cos^2 of a spot's azimuth</source>
        <translation>1.0001 - cos^2 des Azimuts eines Reflexes</translation>
    </message>
    <message>
        <source>the product of zone axis and reference reflection</source>
        <translation>das Produkt von Zonenachse und Bezugsreflex</translation>
    </message>
    <message>
        <source>the largest component of the direction</source>
        <translation>die größte Komponente der Richtung</translation>
    </message>
    <message>
        <source>the sum of the indices of the normal plane</source>
        <translation>die Summe der Indizes der senkrechten Ebene</translation>
    </message>
    <message>
        <source>the length of the new axis</source>
        <translation>die Länge der neuen Achse</translation>
    </message>
    <message>
        <source>1 - cos^2 of old reference and new axis</source>
        <translation>1 - cos^2 von altem Bezug und neuer Achse</translation>
    </message>
    <message>
        <source>the part of the old reference normal to the new axis</source>
        <translation>der Teil des alten Bezugs senkrecht zur neuen Achse</translation>
    </message>
    <message>
        <source>the answer to "%1"</source>
        <translation>die Antwort auf „%L1“</translation>
    </message>
    <message>
        <source>RefS of a reflection of the triple table</source>
        <translation>RefS eines Reflexes der Tripeltabelle</translation>
    </message>
    <message>
        <source>the largest component of a direction</source>
        <translation>die größte Komponente einer Richtung</translation>
    </message>
    <message>
        <source>TripleS of a former solution</source>
        <translation>TripleS einer früheren Lösung</translation>
    </message>
    <message>
        <source>TripleI of a former solution</source>
        <translation>TripleI einer früheren Lösung</translation>
    </message>
    <message>
        <source>the height between the two markers</source>
        <translation>die Höhe zwischen den zwei Marken</translation>
    </message>
    <message>
        <source>the distance of the picture from the source</source>
        <translation>der Abstand des Bildes von der Quelle</translation>
    </message>
    <message>
        <source>the square term of a direction's length</source>
        <translation>das quadratische Glied der Länge einer Richtung</translation>
    </message>
    <message>
        <source>the length of the reference vector of a direction</source>
        <translation>die Länge des Bezugsvektors einer Richtung</translation>
    </message>
    <message>
        <source>the cosine of a plane's latitude</source>
        <translation>der Kosinus der Breite einer Ebene</translation>
    </message>
    <message>
        <source>the search for a direction</source>
        <translation>die Suche nach einer Richtung</translation>
    </message>
    <message>
        <source>the cosine against the first rotation</source>
        <translation>der Kosinus gegen die erste Drehung</translation>
    </message>
    <message>
        <source>the sum of the components of the equivalent vector (no cell or no vector)</source>
        <translation>die Summe der Komponenten des gleichwertigen Vektors (keine Zelle oder kein Vektor)</translation>
    </message>
    <message>
        <source>1 - cos^2 of the angle between two reciprocal vectors</source>
        <translation>1 - cos^2 des Winkels zwischen zwei reziproken Vektoren</translation>
    </message>
    <message>
        <source>%1 sites have more than %2 bonds, whose angles are left out</source>
        <translation>%1 Plätze haben mehr als %2 Bindungen, deren Winkel ausgelassen sind</translation>
    </message>
    <message>
        <source>"%1" (U+%2) is outside Latin-1</source>
        <translation>„%1“ (U+%2) liegt außerhalb von Latin-1</translation>
    </message>
    <message>
        <source>families in the order of the list</source>
        <translation>Familien in der Reihenfolge der Liste</translation>
    </message>
    <message>
        <source>rows of the list that belong to it</source>
        <translation>Zeilen der Liste, die dazu gehören</translation>
    </message>
    <message>
        <source>it holds a value of another type</source>
        <translation>sie enthält einen Wert anderer Art</translation>
    </message>
    <message>
        <source>it names a kind that there is none of</source>
        <translation>sie nennt eine Art, die es nicht gibt</translation>
    </message>
    <message>
        <source>an array has more elements than room</source>
        <translation>ein Feld hat mehr Elemente als Platz</translation>
    </message>
    <message>
        <source>an array has a bound of %1</source>
        <translation>ein Feld hat die Grenze %1</translation>
    </message>
    <message>
        <source>a table has too many columns</source>
        <translation>eine Tabelle hat zu viele Spalten</translation>
    </message>
    <message>
        <source>its parts do not fit together</source>
        <translation>ihre Teile passen nicht zusammen</translation>
    </message>
    <message>
        <source>neither HOME nor XDG_DATA_HOME names a folder for a copy of %1</source>
        <translation>weder HOME noch XDG_DATA_HOME nennt einen Ordner für eine Kopie von %1</translation>
    </message>
    <message>
        <source>its note is none</source>
        <translation>ihre Notiz ist keine</translation>
    </message>
    <message>
        <source>there is something after its end</source>
        <translation>hinter ihrem Ende steht etwas</translation>
    </message>
    <message>
        <source>it is longer than what it holds</source>
        <translation>sie ist länger als ihr Inhalt</translation>
    </message>
    <message>
        <source>it is cut short or damaged, or its pixels do not have 8 or 16 bits per colour</source>
        <translation>sie ist abgeschnitten oder beschädigt, oder ihre Pixel haben nicht 8 oder 16 Bits je Farbe</translation>
    </message>
    <message>
        <source>a picture has %1 x %2 pixels of depth %3</source>
        <translation>ein Bild hat %1 x %2 Pixel der Tiefe %3</translation>
    </message>
    <message>
        <source>a grey picture has another depth</source>
        <translation>ein Graubild hat eine andere Tiefe</translation>
    </message>
    <message>
        <source>a picture has another depth</source>
        <translation>ein Bild hat eine andere Tiefe</translation>
    </message>
    <message>
        <source>a picture has two sizes</source>
        <translation>ein Bild hat zwei Größen</translation>
    </message>
    <message>
        <source>%1 was saved as a table</source>
        <translation>%1 als Tabelle gespeichert</translation>
    </message>
    <message>
        <source>%1 is nothing that something is made from</source>
        <translation>%1 ist nichts, woraus etwas gemacht wird</translation>
    </message>
    <message>
        <source>%1 has no widget</source>
        <translation>%1 hat kein Bedienelement</translation>
    </message>
    <message>
        <source>the box takes whole numbers up to %1</source>
        <translation>das Feld nimmt ganze Zahlen bis %1</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>"%1" (%2) was clicked</source>
        <translation>Klick auf „%L1“ (%2)</translation>
    </message>
    <message>
        <source>"%1" (%2) changed</source>
        <translation>„%L1“ (%2) geändert</translation>
    </message>
    <message>
        <source>"%1" (%2) lost the focus</source>
        <translation>„%L1“ (%2) verlassen</translation>
    </message>
    <message>
        <source>"%1" (%2) was moved</source>
        <translation>„%L1“ (%2) verschoben</translation>
    </message>
    <message>
        <source>Dynamical</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>fits the picture to the crystal's dynamical pattern, which takes some seconds to calculate</source>
        <translation>passt das Bild an das dynamische Muster des Kristalls an, dessen Berechnung einige Sekunden dauert</translation>
    </message>
    <message>
        <source>%1 has no dynamical pattern: %2</source>
        <translation>%1 hat kein dynamisches Muster: %L2</translation>
    </message>
    <message>
        <source>it has observed lines and no atoms</source>
        <translation>er hat beobachtete Linien und keine Atome</translation>
    </message>
    <message>
        <source>%1 is "%2"; expected is at most 15 angstroms</source>
        <translation>%1 ist „%2“; erwartet werden höchstens 15 Ångström</translation>
    </message>
    <message>
        <source>MASTER PATTERN</source>
        <translation>MASTERPATTERN</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>Voltage (kV)</source>
        <translation>Spannung (kV)</translation>
    </message>
    <message>
        <source>acceleration voltage of the electrons, 1 to 400 kV; at first that of the program</source>
        <translation>Beschleunigungsspannung der Elektronen, 1 bis 400 kV; anfangs die des Programms</translation>
    </message>
    <message>
        <source>Mean depth (nm)</source>
        <translation>Mittlere Tiefe (nm)</translation>
    </message>
    <message>
        <source>mean depth that the electrons come from, nm</source>
        <translation>mittlere Tiefe, aus der die Elektronen kommen, nm</translation>
    </message>
    <message>
        <source>Points along a side</source>
        <translation>Punkte je Seite</translation>
    </message>
    <message>
        <source>points along a side of the map of each half sphere, an odd number; the time grows with its square</source>
        <translation>Punkte je Seite der Karte jeder Halbkugel, eine ungerade Zahl; die Zeit wächst mit ihrem Quadrat</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Berechnen</translation>
    </message>
    <message>
        <source>computes the master pattern of the crystal by dynamical diffraction and draws it; Esc stops it</source>
        <translation>berechnet das Masterpattern des Kristalls durch dynamische Beugung und zeichnet es; Esc hält an</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>Stereografisch</translation>
    </message>
    <message>
        <source>keeps angles; a to the right, c* in the middle</source>
        <translation>winkeltreu; a nach rechts, c* in der Mitte</translation>
    </message>
    <message>
        <source>Equal area (square)</source>
        <translation>Flächentreu (Quadrat)</translation>
    </message>
    <message>
        <source>keeps areas: the map as it is computed and kept in files</source>
        <translation>flächentreu: die Karte, wie sie berechnet und in Dateien gehalten wird</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>seen from outside; a drag turns it, with Ctrl about the middle</source>
        <translation>von außen gesehen; Ziehen dreht sie, mit Strg um die Mitte</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>the half around c*, of the flat views</source>
        <translation>die Hälfte um c*, der flachen Ansichten</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Süd</translation>
    </message>
    <message>
        <source>the half around -c*, seen through the sphere</source>
        <translation>die Hälfte um -c*, durch die Kugel gesehen</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Zone axes</source>
        <translation>Zonenachsen</translation>
    </message>
    <message>
        <source>[u v w] where strong bands meet, as many as there is room for</source>
        <translation>[u v w], wo starke Bänder sich treffen, so viele wie Platz haben</translation>
    </message>
    <message>
        <source>(h k l) and the traces of the strongest planes</source>
        <translation>(h k l) und die Spuren der stärksten Ebenen</translation>
    </message>
    <message>
        <source>Middle of the sphere</source>
        <translation>Mitte der Kugel</translation>
    </message>
    <message>
        <source>u of the direction in the middle, along a</source>
        <translation>u der Richtung in der Mitte, entlang a</translation>
    </message>
    <message>
        <source>v of the direction in the middle, along b</source>
        <translation>v der Richtung in der Mitte, entlang b</translation>
    </message>
    <message>
        <source>w of the direction in the middle, along c</source>
        <translation>w der Richtung in der Mitte, entlang c</translation>
    </message>
    <message>
        <source>Turned by (deg)</source>
        <translation>Gedreht um (Grad)</translation>
    </message>
    <message>
        <source>anticlockwise about the middle, from where c* points upward</source>
        <translation>gegen den Uhrzeiger um die Mitte, von dort, wo c* nach oben zeigt</translation>
    </message>
    <message>
        <source>turns the sphere so that this direction is in the middle</source>
        <translation>dreht die Kugel, bis diese Richtung in der Mitte ist</translation>
    </message>
    <message>
        <source>the pattern in all directions; a click shows the direction, a drag turns the sphere</source>
        <translation>das Muster in allen Richtungen; ein Klick nennt die Richtung, Ziehen dreht die Kugel</translation>
    </message>
    <message>
        <source>writes the picture with its names: .png, .svg, .pdf, .bmp</source>
        <translation>schreibt das Bild mit seinen Namen: .png, .svg, .pdf, .bmp</translation>
    </message>
    <message>
        <source>Master pattern...</source>
        <translation>Masterpattern...</translation>
    </message>
    <message>
        <source>the dynamical pattern of the crystal in all directions, flat or as a sphere</source>
        <translation>das dynamische Muster des Kristalls in allen Richtungen, flach oder als Kugel</translation>
    </message>
    <message>
        <source>the element %1 has no scattering factor for electrons</source>
        <translation>das Element %1 hat keinen Streufaktor für Elektronen</translation>
    </message>
    <message>
        <source>the crystal has no atoms: dynamical patterns need them</source>
        <translation>der Kristall hat keine Atome: dynamische Muster brauchen sie</translation>
    </message>
    <message>
        <source>the acceleration voltage is %1 kV, must be above 0 and at most 10000</source>
        <translation>die Beschleunigungsspannung ist %1 kV, muss über 0 und höchstens 10000 sein</translation>
    </message>
    <message>
        <source>master pattern: %L1 is %2, must be %3 to %4</source>
        <translation>Masterpattern: %L1 ist %2, muss %3 bis %4 sein</translation>
    </message>
    <message>
        <source>master pattern:</source>
        <translation>Masterpattern:</translation>
    </message>
    <message>
        <source>the size</source>
        <translation>die Größe</translation>
    </message>
    <message>
        <source>master pattern: the size is even, must be odd</source>
        <translation>Masterpattern: die Größe ist gerade, muss ungerade sein</translation>
    </message>
    <message>
        <source>the depth in nm</source>
        <translation>die Tiefe in nm</translation>
    </message>
    <message>
        <source>master pattern: no voltage</source>
        <translation>Masterpattern: keine Spannung</translation>
    </message>
    <message>
        <source>the voltage in kV</source>
        <translation>die Spannung in kV</translation>
    </message>
    <message>
        <source>the number of beams</source>
        <translation>die Zahl der Strahlen</translation>
    </message>
    <message>
        <source>the smallest spacing in angstroms</source>
        <translation>der kleinste Abstand in Ångström</translation>
    </message>
    <message>
        <source>the smallest spacing is not above 0</source>
        <translation>der kleinste Abstand ist nicht über 0</translation>
    </message>
    <message>
        <source>the cell has more than 60000 reflections down to that spacing: take a larger one</source>
        <translation>die Zelle hat bis zu diesem Abstand mehr als 60000 Reflexe: einen größeren nehmen</translation>
    </message>
    <message>
        <source>the direction [0 0 0] is none</source>
        <translation>die Richtung [0 0 0] ist keine</translation>
    </message>
    <message>
        <source>the crystal has observed reflections and no atoms: a master pattern is computed from atoms</source>
        <translation>der Kristall hat beobachtete Reflexe und keine Atome: ein Masterpattern wird aus Atomen berechnet</translation>
    </message>
    <message>
        <source>there is no crystal with atoms: load one in the main window</source>
        <translation>es gibt keinen Kristall mit Atomen: im Hauptfenster einen laden</translation>
    </message>
    <message>
        <source>%1 at %2 kV: %3 x %4 points, %5 beams, spacings down to %6 angstroms, mean depth %7 nm</source>
        <translation>%1 bei %2 kV: %3 x %4 Punkte, %5 Strahlen, Abstände bis %6 Ångström, mittlere Tiefe %7 nm</translation>
    </message>
    <message>
        <source>%1° from [%2]</source>
        <translation>%1° von [%2]</translation>
    </message>
    <message>
        <source>%1° from the middle</source>
        <translation>%1° von der Mitte</translation>
    </message>
    <message>
        <source>%1]   %2° from [%3]   %4° from the middle</source>
        <translation>%1]   %2° von [%3]   %4° von der Mitte</translation>
    </message>
    <message>
        <source>Make computes the pattern of the crystal</source>
        <translation>Berechnen gibt das Muster des Kristalls</translation>
    </message>
    <message>
        <source>nothing is drawn yet: press Make</source>
        <translation>noch ist nichts gezeichnet: Berechnen drücken</translation>
    </message>
    <message>
        <source>the pattern was not kept with the picture: press Make, which computes it again</source>
        <translation>das Muster wurde nicht mit dem Bild aufbewahrt: Berechnen drücken, um es neu zu berechnen</translation>
    </message>
    <message>
        <source>Origin %1: %2 g/cm3</source>
        <translation>Ursprung %1: %2 g/cm3</translation>
    </message>
    <message>
        <source>The file itself can tell it: %1 :1 or %2 :2.</source>
        <translation>Die Datei selbst kann es sagen: %1 :1 oder %2 :2.</translation>
    </message>
    <message>
        <source>the wavelength is still that of electrons of %1 kV: choose CuKa or MoKa</source>
        <translation>die Wellenlänge ist noch die von Elektronen mit %1 kV: CuKa oder MoKa wählen</translation>
    </message>
    <message>
        <source>Dynamical bands as a picture</source>
        <translation>Dynamische Bänder als Bild</translation>
    </message>
    <message>
        <source>the dynamical pattern of the crystal in grey; it takes some seconds to calculate and is kept</source>
        <translation>das dynamische Muster des Kristalls in Grau; es wird in einigen Sekunden berechnet und aufbewahrt</translation>
    </message>
    <message>
        <source>%1: %2 of %3 bands, off by %4 deg, correlation %5 dynamical, %6 kinematic, confidence %7</source>
        <translation>%1: %2 von %3 Bändern, %4° daneben, Korrelation %5 dynamisch, %6 kinematisch, Sicherheit %7</translation>
    </message>
    <message>
        <source>%1: %2 of %3 bands, off by %4 deg, correlation %5 kinematic, confidence %6</source>
        <translation>%1: %2 von %3 Bändern, %4° daneben, Korrelation %5 kinematisch, Sicherheit %6</translation>
    </message>
    <message>
        <source>no bands    off  corr.   kin. conf.      u      v      w   phi1    Phi   phi2</source>
        <translation>Nr Bänd.    Abw  Korr.   kin. Sich.      u      v      w   phi1    Phi   phi2</translation>
    </message>
    <message>
        <source>correlation of the drawn bands with the picture</source>
        <translation>Korrelation der gezeichneten Bänder mit dem Bild</translation>
    </message>
    <message>
        <source>the cell is too small: more than %1 cells lie within %2 angstroms of an atom; expected are fewer</source>
        <translation>die Zelle ist zu klein: mehr als %1 Zellen liegen innerhalb von %2 Ångström um ein Atom; erwartet sind weniger</translation>
    </message>
    <message>
        <source>Pattern centre of the detector software: bruker, edax, oxford or emsoft and its three numbers</source>
        <translation>Zentrum, wie die Software des Detektors es angibt: bruker, edax, oxford oder emsoft und seine drei Zahlen</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>label</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>occupancy</source>
        <translation>Besetzung</translation>
    </message>
    <message>
        <source>absent</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>listed</source>
        <translation>gelistet</translation>
    </message>
    <message>
        <source>sum %1</source>
        <translation>Summe %1</translation>
    </message>
    <message>
        <source>latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>atom</source>
        <translation>Atom</translation>
    </message>
    <message>
        <source>shortest</source>
        <translation>kürzester</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>longest</source>
        <translation>längster</translation>
    </message>
    <message>
        <source>next</source>
        <translation>nächster</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>taken</source>
        <translation>benutzt</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>matched</source>
        <translation>erklärt</translation>
    </message>
    <message>
        <source>bands</source>
        <translation>Bänder</translation>
    </message>
    <message>
        <source>corr</source>
        <translation>Korr</translation>
    </message>
    <message>
        <source>conf</source>
        <translation>Konf</translation>
    </message>
    <message>
        <source>solved by</source>
        <translation>gelöst durch</translation>
    </message>
    <message>
        <source>atom 1</source>
        <translation>Atom 1</translation>
    </message>
    <message>
        <source>atom 2</source>
        <translation>Atom 2</translation>
    </message>
    <message>
        <source>element 1</source>
        <translation>Element 1</translation>
    </message>
    <message>
        <source>element 2</source>
        <translation>Element 2</translation>
    </message>
    <message>
        <source>off</source>
        <translation>Abw.</translation>
    </message>
    <message>
        <source>no</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Distances</source>
        <translation>Abstände</translation>
    </message>
    <message>
        <source>Merge equivalents</source>
        <translation>Gleichwertige zusammenfassen</translation>
    </message>
    <message>
        <source>User &amp;guide</source>
        <translation>Hand&amp;buch</translation>
    </message>
    <message>
        <source>angle between two bands, computed less measured</source>
        <translation>Winkel zwischen zwei Bändern, berechnet minus gemessen</translation>
    </message>
    <message>
        <source>master pattern: %1 weights for %2 voltages</source>
        <translation>Masterpattern: %1 Gewichte für %2 Spannungen</translation>
    </message>
    <message>
        <source>master pattern: the weights of voltages must be 0 and above, and one above 0</source>
        <translation>Masterpattern: Gewichte von Spannungen müssen 0 oder größer sein und eines über 0</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>nichts gefunden</translation>
    </message>
    <message>
        <source>Table: %1 - %2</source>
        <translation>Tabelle: %L1 - %2</translation>
    </message>
    <message>
        <source>%1: there is no column "%2"</source>
        <translation>%1: es gibt keine Spalte "%2"</translation>
    </message>
    <message>
        <source>%1: "%2" is not a number</source>
        <translation>%1: "%2" ist keine Zahl</translation>
    </message>
</context>
</TS>
