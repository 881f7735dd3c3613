<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>&lt;b&gt;NIVRA Reader %1&lt;/b&gt;&lt;br&gt;Built with Qt %2 (runtime: Qt %3)&lt;br&gt;muParserX %4&lt;br&gt;Qwt %5&lt;br&gt;</source>
        <translation>&lt;b&gt;NIVRA Reader %1&lt;/b&gt;&lt;br&gt;Erstellt mit Qt %2 (Laufzeit: Qt %3)&lt;br&gt;muParserX %4&lt;br&gt;Qwt %5&lt;br&gt;</translation>
    </message>
    <message>
        <source>Build on %1
From revision %2
Git tag: %3
Git refspec: %4
Git local changes: %5</source>
        <translation>Erstellt am %1
Aus Revision %2
Git-Tag: %3
Git-Refspec: %4
Lokale Git-Änderungen: %5</translation>
    </message>
    <message>
        <source>About Nivra Reader</source>
        <translation>Über Nivra Reader</translation>
    </message>
</context>
<context>
    <name>Appearance</name>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Light or dark, as the other windows of the desktop are</source>
        <translation>Hell oder dunkel, wie die anderen Fenster der Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark letters on light ground</source>
        <translation>Dunkle Schrift auf hellem Grund</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light letters on dark ground; pictures and paper stay light</source>
        <translation>Helle Schrift auf dunklem Grund; Bilder und Papier bleiben hell</translation>
    </message>
    <message>
        <source>The choice holds until the program ends: %1</source>
        <translation>Die Wahl gilt bis zum Ende des Programms: %1</translation>
    </message>
</context>
<context>
    <name>Attribute</name>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Unique name of the element, regardless of case</source>
        <translation>Eindeutiger Name des Elements, unabhängig von Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Type code, such as p for pipe</source>
        <translation>Kürzel des Typs, etwa p für Leitung</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Another name for people</source>
        <translation>Ein anderer Name, für Menschen</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Free text</source>
        <translation>Freier Text</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Layer that the element belongs to</source>
        <translation>Ebene, zu der das Element gehört</translation>
    </message>
    <message>
        <source>visibility</source>
        <translation>Sichtbarkeit</translation>
    </message>
    <message>
        <source>Whether the element shows its symbol and label</source>
        <translation>Ob das Element sein Symbol und seine Beschriftung zeigt</translation>
    </message>
    <message>
        <source>zoom threshold</source>
        <translation>Zoomschwelle</translation>
    </message>
    <message>
        <source>Visible extents below which the element is shown with &quot;auto&quot;, one or two numbers joined by semicolons</source>
        <translation>Sichtbare Ausdehnung, unter der das Element mit &quot;auto&quot; gezeigt wird, ein oder zwei Zahlen mit Semikolon dazwischen</translation>
    </message>
    <message>
        <source>symbol size</source>
        <translation>Symbolgröße</translation>
    </message>
    <message>
        <source>Size of the symbol</source>
        <translation>Größe des Symbols</translation>
    </message>
    <message>
        <source>text colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Colour of the label&apos;s text</source>
        <translation>Farbe der Schrift in der Beschriftung</translation>
    </message>
    <message>
        <source>font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Font of the label</source>
        <translation>Schrift der Beschriftung</translation>
    </message>
    <message>
        <source>background colour</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Background of the label</source>
        <translation>Hintergrund der Beschriftung</translation>
    </message>
    <message>
        <source>background opacity</source>
        <translation>Deckkraft des Hintergrunds</translation>
    </message>
    <message>
        <source>0 transparent to 255 opaque</source>
        <translation>0 durchsichtig bis 255 deckend</translation>
    </message>
    <message>
        <source>frame colour</source>
        <translation>Rahmenfarbe</translation>
    </message>
    <message>
        <source>Frame of the label</source>
        <translation>Rahmen der Beschriftung</translation>
    </message>
    <message>
        <source>frame opacity</source>
        <translation>Deckkraft des Rahmens</translation>
    </message>
    <message>
        <source>symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Symbol in place of the one of the type</source>
        <translation>Symbol anstelle des Symbols des Typs</translation>
    </message>
    <message>
        <source>drawn element</source>
        <translation>gezeichnetes Element</translation>
    </message>
    <message>
        <source>Kept by the drawing</source>
        <translation>Wird von der Zeichnung geführt</translation>
    </message>
    <message>
        <source>picture file</source>
        <translation>Bilddatei</translation>
    </message>
    <message>
        <source>Picture drawn in place of the symbol</source>
        <translation>Bild, das anstelle des Symbols gezeichnet wird</translation>
    </message>
    <message>
        <source>character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Character drawn in place of the symbol</source>
        <translation>Zeichen, das anstelle des Symbols gezeichnet wird</translation>
    </message>
    <message>
        <source>picture width</source>
        <translation>Bildbreite</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>Breite des Bildes</translation>
    </message>
    <message>
        <source>picture height</source>
        <translation>Bildhöhe</translation>
    </message>
    <message>
        <source>Height of the picture</source>
        <translation>Höhe des Bildes</translation>
    </message>
    <message>
        <source>is search result</source>
        <translation>ist Suchergebnis</translation>
    </message>
    <message>
        <source>Set by the search</source>
        <translation>Wird von der Suche gesetzt</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>symbol item</source>
        <translation>Symbolobjekt</translation>
    </message>
    <message>
        <source>violated bounds</source>
        <translation>verletzte Schranken</translation>
    </message>
    <message>
        <source>Messages of the violated constraints</source>
        <translation>Meldungen der verletzten Bedingungen</translation>
    </message>
    <message>
        <source>is saved</source>
        <translation>wird gespeichert</translation>
    </message>
    <message>
        <source>false for elements that belong to no file</source>
        <translation>false bei Elementen, die zu keiner Datei gehören</translation>
    </message>
    <message>
        <source>template element</source>
        <translation>Vorlagenelement</translation>
    </message>
    <message>
        <source>Element of the template that this one was made from</source>
        <translation>Element der Vorlage, aus dem dieses entstand</translation>
    </message>
    <message>
        <source>year of construction</source>
        <translation>Baujahr</translation>
    </message>
    <message>
        <source>Year in which the element was built</source>
        <translation>Jahr, in dem das Element gebaut wurde</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Horizontal position in plot units</source>
        <translation>Waagerechte Lage in Zeichnungseinheiten</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>Vertical position in plot units</source>
        <translation>Senkrechte Lage in Zeichnungseinheiten</translation>
    </message>
    <message>
        <source>longitude</source>
        <translation>Länge (geografisch)</translation>
    </message>
    <message>
        <source>Geographic longitude, east positive</source>
        <translation>Geografische Länge, östlich positiv</translation>
    </message>
    <message>
        <source>latitude</source>
        <translation>Breite (geografisch)</translation>
    </message>
    <message>
        <source>Geographic latitude, north positive</source>
        <translation>Geografische Breite, nördlich positiv</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Height above sea level</source>
        <translation>Höhe über dem Meeresspiegel</translation>
    </message>
    <message>
        <source>kind of node</source>
        <translation>Art des Knotens</translation>
    </message>
    <message>
        <source>source, sink or innode</source>
        <translation>source (Quelle), sink (Senke) oder innode (innerer Knoten)</translation>
    </message>
    <message>
        <source>lowest pressure</source>
        <translation>kleinster Druck</translation>
    </message>
    <message>
        <source>Lower bound of the pressure</source>
        <translation>Untere Schranke des Drucks</translation>
    </message>
    <message>
        <source>highest pressure</source>
        <translation>größter Druck</translation>
    </message>
    <message>
        <source>Upper bound of the pressure</source>
        <translation>Obere Schranke des Drucks</translation>
    </message>
    <message>
        <source>lowest flow</source>
        <translation>kleinster Durchfluss</translation>
    </message>
    <message>
        <source>Lower bound of the norm volume flow out of the network, supplies negative</source>
        <translation>Untere Schranke des Normvolumenstroms aus dem Netz, Einspeisungen negativ</translation>
    </message>
    <message>
        <source>highest flow</source>
        <translation>größter Durchfluss</translation>
    </message>
    <message>
        <source>Upper bound of the norm volume flow out of the network, supplies negative</source>
        <translation>Obere Schranke des Normvolumenstroms aus dem Netz, Einspeisungen negativ</translation>
    </message>
    <message>
        <source>set pressure</source>
        <translation>Druckvorgabe</translation>
    </message>
    <message>
        <source>Pressure that is held</source>
        <translation>Druck, der gehalten wird</translation>
    </message>
    <message>
        <source>set flow</source>
        <translation>Durchflussvorgabe</translation>
    </message>
    <message>
        <source>Norm volume flow out of the network, supplies negative</source>
        <translation>Normvolumenstrom aus dem Netz, Einspeisungen negativ</translation>
    </message>
    <message>
        <source>set mass flow</source>
        <translation>Massenstromvorgabe</translation>
    </message>
    <message>
        <source>Mass flow out of the network, supplies negative</source>
        <translation>Massenstrom aus dem Netz, Einspeisungen negativ</translation>
    </message>
    <message>
        <source>set power</source>
        <translation>Leistungsvorgabe</translation>
    </message>
    <message>
        <source>Energy flow out of the network, supplies negative</source>
        <translation>Energiestrom aus dem Netz, Einspeisungen negativ</translation>
    </message>
    <message>
        <source>set temperature</source>
        <translation>Temperaturvorgabe</translation>
    </message>
    <message>
        <source>Temperature of the gas that is supplied</source>
        <translation>Temperatur des eingespeisten Gases</translation>
    </message>
    <message>
        <source>contract</source>
        <translation>Vertrag</translation>
    </message>
    <message>
        <source>Contract of a supply or demand</source>
        <translation>Vertrag einer Ein- oder Ausspeisung</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Name of the gas that is supplied</source>
        <translation>Name des eingespeisten Gases</translation>
    </message>
    <message>
        <source>calorific value</source>
        <translation>Brennwert</translation>
    </message>
    <message>
        <source>Upper calorific value at norm conditions</source>
        <translation>Brennwert bei Normbedingungen</translation>
    </message>
    <message>
        <source>lower calorific value</source>
        <translation>Heizwert</translation>
    </message>
    <message>
        <source>Lower calorific value at norm conditions</source>
        <translation>Heizwert bei Normbedingungen</translation>
    </message>
    <message>
        <source>Wobbe index</source>
        <translation>Wobbe-Index</translation>
    </message>
    <message>
        <source>Upper Wobbe index at norm conditions</source>
        <translation>Oberer Wobbe-Index bei Normbedingungen</translation>
    </message>
    <message>
        <source>norm density</source>
        <translation>Normdichte</translation>
    </message>
    <message>
        <source>Density at norm conditions</source>
        <translation>Dichte bei Normbedingungen</translation>
    </message>
    <message>
        <source>molar mass</source>
        <translation>molare Masse</translation>
    </message>
    <message>
        <source>Mass of one mole</source>
        <translation>Masse eines Mols</translation>
    </message>
    <message>
        <source>critical pressure</source>
        <translation>kritischer Druck</translation>
    </message>
    <message>
        <source>Pseudo-critical pressure</source>
        <translation>Pseudokritischer Druck</translation>
    </message>
    <message>
        <source>critical temperature</source>
        <translation>kritische Temperatur</translation>
    </message>
    <message>
        <source>Pseudo-critical temperature</source>
        <translation>Pseudokritische Temperatur</translation>
    </message>
    <message>
        <source>heat capacity</source>
        <translation>Wärmekapazität</translation>
    </message>
    <message>
        <source>Isobaric heat capacity</source>
        <translation>Isobare Wärmekapazität</translation>
    </message>
    <message>
        <source>heat capacity, constant</source>
        <translation>Wärmekapazität, konstant</translation>
    </message>
    <message>
        <source>A of the molar isobaric heat capacity A + B T + C T^2 of the ideal gas</source>
        <translation>A der molaren isobaren Wärmekapazität A + B T + C T^2 des idealen Gases</translation>
    </message>
    <message>
        <source>heat capacity, linear</source>
        <translation>Wärmekapazität, linear</translation>
    </message>
    <message>
        <source>B of the molar isobaric heat capacity A + B T + C T^2 of the ideal gas</source>
        <translation>B der molaren isobaren Wärmekapazität A + B T + C T^2 des idealen Gases</translation>
    </message>
    <message>
        <source>heat capacity, quadratic</source>
        <translation>Wärmekapazität, quadratisch</translation>
    </message>
    <message>
        <source>C of the molar isobaric heat capacity A + B T + C T^2 of the ideal gas</source>
        <translation>C der molaren isobaren Wärmekapazität A + B T + C T^2 des idealen Gases</translation>
    </message>
    <message>
        <source>hydrogen share</source>
        <translation>Wasserstoffanteil</translation>
    </message>
    <message>
        <source>Molar share of hydrogen</source>
        <translation>Molanteil des Wasserstoffs</translation>
    </message>
    <message>
        <source>carbon dioxide share</source>
        <translation>Kohlendioxidanteil</translation>
    </message>
    <message>
        <source>Molar share of carbon dioxide</source>
        <translation>Molanteil des Kohlendioxids</translation>
    </message>
    <message>
        <source>nitrogen share</source>
        <translation>Stickstoffanteil</translation>
    </message>
    <message>
        <source>Molar share of nitrogen</source>
        <translation>Molanteil des Stickstoffs</translation>
    </message>
    <message>
        <source>methane share</source>
        <translation>Methananteil</translation>
    </message>
    <message>
        <source>Molar share of methane</source>
        <translation>Molanteil des Methans</translation>
    </message>
    <message>
        <source>pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Temperature of the gas</source>
        <translation>Temperatur des Gases</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Density of the gas</source>
        <translation>Dichte des Gases</translation>
    </message>
    <message>
        <source>compressibility factor</source>
        <translation>Kompressibilitätsfaktor</translation>
    </message>
    <message>
        <source>Real-gas factor</source>
        <translation>Realgasfaktor</translation>
    </message>
    <message>
        <source>balance</source>
        <translation>Bilanz</translation>
    </message>
    <message>
        <source>What is left of the mass balance</source>
        <translation>Was von der Massenbilanz übrig bleibt</translation>
    </message>
    <message>
        <source>accumulated length</source>
        <translation>aufsummierte Länge</translation>
    </message>
    <message>
        <source>Length of pipe from the next source</source>
        <translation>Leitungslänge von der nächsten Quelle</translation>
    </message>
    <message>
        <source>first node</source>
        <translation>erster Knoten</translation>
    </message>
    <message>
        <source>Name of the node where the element begins</source>
        <translation>Name des Knotens, an dem das Element beginnt</translation>
    </message>
    <message>
        <source>second node</source>
        <translation>zweiter Knoten</translation>
    </message>
    <message>
        <source>Name of the node where the element ends</source>
        <translation>Name des Knotens, an dem das Element endet</translation>
    </message>
    <message>
        <source>Lower bound of the norm volume flow</source>
        <translation>Untere Schranke des Normvolumenstroms</translation>
    </message>
    <message>
        <source>Upper bound of the norm volume flow</source>
        <translation>Obere Schranke des Normvolumenstroms</translation>
    </message>
    <message>
        <source>volume flow</source>
        <translation>Volumenstrom</translation>
    </message>
    <message>
        <source>Norm volume flow from the first to the second node</source>
        <translation>Normvolumenstrom vom ersten zum zweiten Knoten</translation>
    </message>
    <message>
        <source>mass flow</source>
        <translation>Massenstrom</translation>
    </message>
    <message>
        <source>Mass flow from the first to the second node</source>
        <translation>Massenstrom vom ersten zum zweiten Knoten</translation>
    </message>
    <message>
        <source>energy flow</source>
        <translation>Energiestrom</translation>
    </message>
    <message>
        <source>Energy flow from the first to the second node</source>
        <translation>Energiestrom vom ersten zum zweiten Knoten</translation>
    </message>
    <message>
        <source>pressure difference</source>
        <translation>Druckdifferenz</translation>
    </message>
    <message>
        <source>Pressure at the first less pressure at the second node</source>
        <translation>Druck am ersten abzüglich Druck am zweiten Knoten</translation>
    </message>
    <message>
        <source>temperature difference</source>
        <translation>Temperaturdifferenz</translation>
    </message>
    <message>
        <source>Temperature at the first less temperature at the second node</source>
        <translation>Temperatur am ersten abzüglich Temperatur am zweiten Knoten</translation>
    </message>
    <message>
        <source>input pressure</source>
        <translation>Eingangsdruck</translation>
    </message>
    <message>
        <source>Pressure at the inlet</source>
        <translation>Druck am Eingang</translation>
    </message>
    <message>
        <source>output pressure</source>
        <translation>Ausgangsdruck</translation>
    </message>
    <message>
        <source>Pressure at the outlet</source>
        <translation>Druck am Ausgang</translation>
    </message>
    <message>
        <source>input temperature</source>
        <translation>Eingangstemperatur</translation>
    </message>
    <message>
        <source>Temperature at the inlet</source>
        <translation>Temperatur am Eingang</translation>
    </message>
    <message>
        <source>output temperature</source>
        <translation>Ausgangstemperatur</translation>
    </message>
    <message>
        <source>Temperature at the outlet</source>
        <translation>Temperatur am Ausgang</translation>
    </message>
    <message>
        <source>state</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>open, closed, active, bypass or off</source>
        <translation>open (offen), closed (geschlossen), active (aktiv), bypass oder off (aus)</translation>
    </message>
    <message>
        <source>diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Inner diameter</source>
        <translation>Innendurchmesser</translation>
    </message>
    <message>
        <source>length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>roughness</source>
        <translation>Rauheit</translation>
    </message>
    <message>
        <source>Integral roughness of the inner wall</source>
        <translation>Integrale Rauheit der Innenwand</translation>
    </message>
    <message>
        <source>heat transfer coefficient</source>
        <translation>Wärmedurchgangskoeffizient</translation>
    </message>
    <message>
        <source>Heat transfer from the gas to the soil</source>
        <translation>Wärmeübergang vom Gas in den Boden</translation>
    </message>
    <message>
        <source>soil temperature</source>
        <translation>Bodentemperatur</translation>
    </message>
    <message>
        <source>Temperature of the soil around the pipe</source>
        <translation>Temperatur des Bodens um die Leitung</translation>
    </message>
    <message>
        <source>velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Velocity of the gas, largest along the pipe</source>
        <translation>Geschwindigkeit des Gases, die größte in der Leitung</translation>
    </message>
    <message>
        <source>friction factor</source>
        <translation>Reibungszahl</translation>
    </message>
    <message>
        <source>Darcy friction factor</source>
        <translation>Rohrreibungszahl nach Darcy</translation>
    </message>
    <message>
        <source>Reynolds number</source>
        <translation>Reynolds-Zahl</translation>
    </message>
    <message>
        <source>line pack</source>
        <translation>Leitungsinhalt</translation>
    </message>
    <message>
        <source>Gas in the pipe at norm conditions</source>
        <translation>Gas in der Leitung bei Normbedingungen</translation>
    </message>
    <message>
        <source>wall thickness</source>
        <translation>Wandstärke</translation>
    </message>
    <message>
        <source>Thickness of the wall</source>
        <translation>Stärke der Rohrwand</translation>
    </message>
    <message>
        <source>material</source>
        <translation>Werkstoff</translation>
    </message>
    <message>
        <source>Steel grade or other material</source>
        <translation>Stahlsorte oder anderer Werkstoff</translation>
    </message>
    <message>
        <source>drive</source>
        <translation>Antrieb</translation>
    </message>
    <message>
        <source>Name of the drive</source>
        <translation>Name des Antriebs</translation>
    </message>
    <message>
        <source>machine</source>
        <translation>Maschine</translation>
    </message>
    <message>
        <source>Name of the machine in the compressor database</source>
        <translation>Name der Maschine in der Verdichterdatenbank</translation>
    </message>
    <message>
        <source>inlet pressure loss</source>
        <translation>Druckverlust am Eingang</translation>
    </message>
    <message>
        <source>Constant pressure loss before the machine or valve</source>
        <translation>Konstanter Druckverlust vor Maschine oder Armatur</translation>
    </message>
    <message>
        <source>outlet pressure loss</source>
        <translation>Druckverlust am Ausgang</translation>
    </message>
    <message>
        <source>Constant pressure loss behind the machine or valve</source>
        <translation>Konstanter Druckverlust hinter Maschine oder Armatur</translation>
    </message>
    <message>
        <source>inlet drag factor</source>
        <translation>Widerstandsbeiwert am Eingang</translation>
    </message>
    <message>
        <source>Dimensionless resistance before the machine or valve, in the place of a constant loss</source>
        <translation>Dimensionsloser Widerstand vor Maschine oder Armatur, anstelle eines konstanten Verlusts</translation>
    </message>
    <message>
        <source>outlet drag factor</source>
        <translation>Widerstandsbeiwert am Ausgang</translation>
    </message>
    <message>
        <source>Dimensionless resistance behind the machine or valve, in the place of a constant loss</source>
        <translation>Dimensionsloser Widerstand hinter Maschine oder Armatur, anstelle eines konstanten Verlusts</translation>
    </message>
    <message>
        <source>inlet diameter</source>
        <translation>Durchmesser am Eingang</translation>
    </message>
    <message>
        <source>Inner diameter to which the inlet drag factor belongs</source>
        <translation>Innendurchmesser, auf den sich der Widerstandsbeiwert am Eingang bezieht</translation>
    </message>
    <message>
        <source>outlet diameter</source>
        <translation>Durchmesser am Ausgang</translation>
    </message>
    <message>
        <source>Inner diameter to which the outlet drag factor belongs</source>
        <translation>Innendurchmesser, auf den sich der Widerstandsbeiwert am Ausgang bezieht</translation>
    </message>
    <message>
        <source>needs a bypass</source>
        <translation>braucht einen Bypass</translation>
    </message>
    <message>
        <source>Whether the element must have an internal bypass</source>
        <translation>Ob das Element einen inneren Bypass haben muss</translation>
    </message>
    <message>
        <source>fuel gas node</source>
        <translation>Brenngasknoten</translation>
    </message>
    <message>
        <source>Node that feeds the drives of the station</source>
        <translation>Knoten, der die Antriebe der Station speist</translation>
    </message>
    <message>
        <source>gas cooler</source>
        <translation>Gaskühler</translation>
    </message>
    <message>
        <source>Whether the gas is cooled behind the machine</source>
        <translation>Ob das Gas hinter der Maschine gekühlt wird</translation>
    </message>
    <message>
        <source>lowest inlet pressure</source>
        <translation>kleinster Eingangsdruck</translation>
    </message>
    <message>
        <source>Lower bound of the inlet pressure</source>
        <translation>Untere Schranke des Eingangsdrucks</translation>
    </message>
    <message>
        <source>set inlet pressure</source>
        <translation>Eingangsdruckvorgabe</translation>
    </message>
    <message>
        <source>Inlet pressure that is held</source>
        <translation>Eingangsdruck, der gehalten wird</translation>
    </message>
    <message>
        <source>highest outlet pressure</source>
        <translation>größter Ausgangsdruck</translation>
    </message>
    <message>
        <source>Upper bound of the outlet pressure</source>
        <translation>Obere Schranke des Ausgangsdrucks</translation>
    </message>
    <message>
        <source>set outlet pressure</source>
        <translation>Ausgangsdruckvorgabe</translation>
    </message>
    <message>
        <source>Outlet pressure that is held</source>
        <translation>Ausgangsdruck, der gehalten wird</translation>
    </message>
    <message>
        <source>Norm volume flow that is held</source>
        <translation>Normvolumenstrom, der gehalten wird</translation>
    </message>
    <message>
        <source>Mass flow that is held</source>
        <translation>Massenstrom, der gehalten wird</translation>
    </message>
    <message>
        <source>control</source>
        <translation>Regelung</translation>
    </message>
    <message>
        <source>What the element holds</source>
        <translation>Was das Element hält</translation>
    </message>
    <message>
        <source>shaft power</source>
        <translation>Wellenleistung</translation>
    </message>
    <message>
        <source>Power at the shaft</source>
        <translation>Leistung an der Welle</translation>
    </message>
    <message>
        <source>adiabatic head</source>
        <translation>adiabate Förderhöhe</translation>
    </message>
    <message>
        <source>Adiabatic head</source>
        <translation>Adiabate Förderhöhe</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>Drehzahl</translation>
    </message>
    <message>
        <source>Speed of the machine</source>
        <translation>Drehzahl der Maschine</translation>
    </message>
    <message>
        <source>efficiency</source>
        <translation>Wirkungsgrad</translation>
    </message>
    <message>
        <source>Adiabatic efficiency, 0 to 1</source>
        <translation>Adiabater Wirkungsgrad, 0 bis 1</translation>
    </message>
    <message>
        <source>compression ratio</source>
        <translation>Verdichtungsverhältnis</translation>
    </message>
    <message>
        <source>Outlet pressure to inlet pressure</source>
        <translation>Ausgangsdruck zu Eingangsdruck</translation>
    </message>
    <message>
        <source>inlet volume flow</source>
        <translation>Ansaugvolumenstrom</translation>
    </message>
    <message>
        <source>Volume flow at inlet conditions</source>
        <translation>Volumenstrom bei Bedingungen am Eingang</translation>
    </message>
    <message>
        <source>gas node</source>
        <translation>Gasknoten</translation>
    </message>
    <message>
        <source>Node that feeds the drive</source>
        <translation>Knoten, der den Antrieb speist</translation>
    </message>
    <message>
        <source>driven compressor</source>
        <translation>angetriebener Verdichter</translation>
    </message>
    <message>
        <source>Compressor that is driven</source>
        <translation>Verdichter, der angetrieben wird</translation>
    </message>
    <message>
        <source>kind of drive</source>
        <translation>Art des Antriebs</translation>
    </message>
    <message>
        <source>Gas turbine, gas engine, electric motor</source>
        <translation>Gasturbine, Gasmotor, Elektromotor</translation>
    </message>
    <message>
        <source>Name of the drive in the compressor database</source>
        <translation>Name des Antriebs in der Verdichterdatenbank</translation>
    </message>
    <message>
        <source>highest power</source>
        <translation>größte Leistung</translation>
    </message>
    <message>
        <source>Largest power at the shaft</source>
        <translation>Größte Leistung an der Welle</translation>
    </message>
    <message>
        <source>power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>fuel flow</source>
        <translation>Brenngasstrom</translation>
    </message>
    <message>
        <source>Norm volume flow of the fuel</source>
        <translation>Normvolumenstrom des Brenngases</translation>
    </message>
    <message>
        <source>lowest pressure difference</source>
        <translation>kleinste Druckdifferenz</translation>
    </message>
    <message>
        <source>Lower bound of the pressure difference</source>
        <translation>Untere Schranke der Druckdifferenz</translation>
    </message>
    <message>
        <source>highest pressure difference</source>
        <translation>größte Druckdifferenz</translation>
    </message>
    <message>
        <source>Upper bound of the pressure difference</source>
        <translation>Obere Schranke der Druckdifferenz</translation>
    </message>
    <message>
        <source>pre-heating</source>
        <translation>Vorwärmung</translation>
    </message>
    <message>
        <source>Whether the gas is heated before the pressure falls</source>
        <translation>Ob das Gas vor der Druckminderung erwärmt wird</translation>
    </message>
    <message>
        <source>flow coefficient</source>
        <translation>Durchflusskoeffizient</translation>
    </message>
    <message>
        <source>Water flow at one bar</source>
        <translation>Wasserdurchfluss bei einem Bar</translation>
    </message>
    <message>
        <source>drag factor</source>
        <translation>Widerstandsbeiwert</translation>
    </message>
    <message>
        <source>Dimensionless resistance</source>
        <translation>Dimensionsloser Widerstand</translation>
    </message>
    <message>
        <source>drag factor zeta</source>
        <translation>Widerstandsbeiwert Zeta</translation>
    </message>
    <message>
        <source>Dimensionless resistance, referred to the diameter</source>
        <translation>Dimensionsloser Widerstand, auf den Durchmesser bezogen</translation>
    </message>
    <message>
        <source>pressure loss</source>
        <translation>Druckverlust</translation>
    </message>
    <message>
        <source>Constant pressure loss</source>
        <translation>Konstanter Druckverlust</translation>
    </message>
    <message>
        <source>Outlet temperature that is held</source>
        <translation>Ausgangstemperatur, die gehalten wird</translation>
    </message>
    <message>
        <source>heat flow</source>
        <translation>Wärmestrom</translation>
    </message>
    <message>
        <source>Heat given to the gas, cooling negative</source>
        <translation>Wärme, die das Gas aufnimmt, Kühlung negativ</translation>
    </message>
    <message>
        <source>Mean temperature of the gas</source>
        <translation>Mittlere Temperatur des Gases</translation>
    </message>
    <message>
        <source>Mean density of the gas</source>
        <translation>Mittlere Dichte des Gases</translation>
    </message>
    <message>
        <source>connected part</source>
        <translation>zusammenhängender Teil</translation>
    </message>
    <message>
        <source>Number of the connected part of the network</source>
        <translation>Nummer des zusammenhängenden Netzteils</translation>
    </message>
    <message>
        <source>variant</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Name of the subassembly</source>
        <translation>Name der Baugruppe</translation>
    </message>
    <message>
        <source>pins</source>
        <translation>Anschlüsse</translation>
    </message>
    <message>
        <source>Nodes that the subnet connects to, joined by semicolons</source>
        <translation>Knoten, mit denen das Teilnetz verbunden ist, mit Semikolon dazwischen</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Symbol file</source>
        <translation>Symboldatei</translation>
    </message>
    <message>
        <source>constraints file</source>
        <translation>Datei der Bedingungen</translation>
    </message>
    <message>
        <source>File of the constraints</source>
        <translation>Datei mit den Bedingungen</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Distance between the first two pins</source>
        <translation>Abstand der beiden ersten Anschlüsse</translation>
    </message>
    <message>
        <source>rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Direction from the first to the second pin</source>
        <translation>Richtung vom ersten zum zweiten Anschluss</translation>
    </message>
    <message>
        <source>main element</source>
        <translation>Hauptelement</translation>
    </message>
    <message>
        <source>Element that stands for the subnet</source>
        <translation>Element, das für das Teilnetz steht</translation>
    </message>
    <message>
        <source>Control state of the subnet</source>
        <translation>Regelzustand des Teilnetzes</translation>
    </message>
    <message>
        <source>subassemblies</source>
        <translation>Baugruppen</translation>
    </message>
    <message>
        <source>Kept by the expansion of subnets</source>
        <translation>Wird vom Aufbau der Teilnetze geführt</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>What the text box says</source>
        <translation>Was im Textfeld steht</translation>
    </message>
    <message>
        <source>lowest contracted flow</source>
        <translation>kleinster vertraglicher Fluss</translation>
    </message>
    <message>
        <source>Lower bound of the norm volume flow by contract, supplies negative</source>
        <translation>Untere vertragliche Schranke des Normvolumenstroms, Einspeisungen negativ</translation>
    </message>
    <message>
        <source>highest contracted flow</source>
        <translation>größter vertraglicher Fluss</translation>
    </message>
    <message>
        <source>Upper bound of the norm volume flow by contract, supplies negative</source>
        <translation>Obere vertragliche Schranke des Normvolumenstroms, Einspeisungen negativ</translation>
    </message>
    <message>
        <source>capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Largest norm volume flow that the connection can carry</source>
        <translation>Größter Normvolumenstrom, den der Anschluss tragen kann</translation>
    </message>
    <message>
        <source>distance to surge</source>
        <translation>Abstand zur Pumpgrenze</translation>
    </message>
    <message>
        <source>How much less flow brings the machine to its surge line at the same speed, in percent of the flow; negative beyond the line; of a station that of the machine with the least</source>
        <translation>Um wie viel weniger Durchfluss die Maschine bei gleicher Drehzahl an ihre Pumpgrenze bringt, in Prozent des Durchflusses; jenseits der Grenze negativ; bei einer Station der Wert der Maschine mit dem kleinsten</translation>
    </message>
    <message>
        <source>turndown</source>
        <translation>Regelbereich</translation>
    </message>
    <message>
        <source>How much less flow brings the machine to its surge line at the same head, in percent of the flow; negative beyond the line; of a station that of the machine with the least</source>
        <translation>Um wie viel weniger Durchfluss die Maschine bei gleicher Förderhöhe an ihre Pumpgrenze bringt, in Prozent des Durchflusses; jenseits der Grenze negativ; bei einer Station der Wert der Maschine mit dem kleinsten</translation>
    </message>
    <message>
        <source>distance to choke</source>
        <translation>Abstand zur Schluckgrenze</translation>
    </message>
    <message>
        <source>How much more flow brings the machine to its choke line at the same speed, in percent of the flow; negative beyond the line; of a station that of the machine with the least</source>
        <translation>Um wie viel mehr Durchfluss die Maschine bei gleicher Drehzahl an ihre Schluckgrenze bringt, in Prozent des Durchflusses; jenseits der Grenze negativ; bei einer Station der Wert der Maschine mit dem kleinsten</translation>
    </message>
    <message>
        <source>speed reserve</source>
        <translation>Drehzahlreserve</translation>
    </message>
    <message>
        <source>How much faster the machine may turn, in percent of its largest speed; negative above it; of a station that of the machine with the least</source>
        <translation>Um wie viel schneller die Maschine drehen darf, in Prozent ihrer größten Drehzahl; darüber negativ; bei einer Station der Wert der Maschine mit dem kleinsten</translation>
    </message>
    <message>
        <source>power reserve</source>
        <translation>Leistungsreserve</translation>
    </message>
    <message>
        <source>Largest power of the drive at this speed and ambient temperature less the power at the shaft; of a station that of the machine with the least</source>
        <translation>Größte Leistung des Antriebs bei dieser Drehzahl und Umgebungstemperatur abzüglich der Leistung an der Welle; bei einer Station der Wert der Maschine mit dem kleinsten</translation>
    </message>
</context>
<context>
    <name>BalanceDock</name>
    <message>
        <source>Balance</source>
        <translation>Bilanz</translation>
    </message>
</context>
<context>
    <name>BalanceModel</name>
    <message>
        <source>Nodes that supply</source>
        <translation>Knoten, die einspeisen</translation>
    </message>
    <message>
        <source>Set flows into the network</source>
        <translation>Vorgegebene Flüsse in das Netz</translation>
    </message>
    <message>
        <source>Nodes that take</source>
        <translation>Knoten, die entnehmen</translation>
    </message>
    <message>
        <source>Set flows out of the network, without the fuel that they count</source>
        <translation>Vorgegebene Flüsse aus dem Netz, ohne das Brenngas, das sie mitzählen</translation>
    </message>
    <message>
        <source>What drives of compressors burn, by the results, at the node that feeds them</source>
        <translation>Was Antriebe von Verdichtern nach den Ergebnissen verbrennen, an dem Knoten, der sie speist</translation>
    </message>
    <message>
        <source>Sources, sinks and nodes of held pressure whose flow nobody states</source>
        <translation>Quellen, Senken und Knoten mit gehaltenem Druck, deren Fluss niemand angibt</translation>
    </message>
    <message>
        <source>What comes in there, by the results</source>
        <translation>Was dort nach den Ergebnissen hereinkommt</translation>
    </message>
    <message>
        <source>What comes from other groups less what goes there, by the results</source>
        <translation>Was nach den Ergebnissen aus anderen Gruppen kommt, weniger dem, was dorthin geht</translation>
    </message>
    <message>
        <source>Entries - exits - fuel + unknown + from others</source>
        <translation>Einspeisungen - Ausspeisungen - Brenngas + Unbekanntes + aus anderen</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>entry nodes</source>
        <translation>Einspeiseknoten</translation>
    </message>
    <message>
        <source>entries</source>
        <translation>Einspeisungen</translation>
    </message>
    <message>
        <source>exit nodes</source>
        <translation>Ausspeiseknoten</translation>
    </message>
    <message>
        <source>exits</source>
        <translation>Ausspeisungen</translation>
    </message>
    <message>
        <source>fuel</source>
        <translation>Brenngas</translation>
    </message>
    <message>
        <source>unknown nodes</source>
        <translation>unbekannte Knoten</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>from others</source>
        <translation>aus anderen</translation>
    </message>
    <message>
        <source>imbalance</source>
        <translation>Ungleichgewicht</translation>
    </message>
</context>
<context>
    <name>BalancePage</name>
    <message>
        <source>Save …</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>Gruppieren nach</translation>
    </message>
    <message>
        <source>What nodes have in common that are summed up together</source>
        <translation>Was Knoten gemeinsam haben, die zusammengezählt werden</translation>
    </message>
    <message>
        <source>Write the table into a workbook or a CSV file</source>
        <translation>Die Tabelle in eine Arbeitsmappe oder eine CSV-Datei schreiben</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Bilanz</translation>
    </message>
    <message>
        <source>Nothing is open.</source>
        <translation>Es ist nichts geöffnet.</translation>
    </message>
    <message>
        <source>No node states a flow. Open a scenario to see what enters and leaves.</source>
        <translation>Kein Knoten gibt einen Fluss an. Öffnen Sie ein Szenario, um zu sehen, was eingespeist und entnommen wird.</translation>
    </message>
    <message>
        <source>All nodes are in one group. Give them layers, zones or categories to tell them apart.</source>
        <translation>Alle Knoten sind in einer Gruppe. Geben Sie ihnen Ebenen, Zonen oder Kategorien, um sie zu unterscheiden.</translation>
    </message>
    <message>
        <source>balance</source>
        <translation>Bilanz</translation>
    </message>
</context>
<context>
    <name>Batch</name>
    <message>
        <source>... and %1 more, see the log</source>
        <translation>... und %1 weitere, siehe Protokoll</translation>
    </message>
</context>
<context>
    <name>BuiltInStyles</name>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Durchfluss</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Auslastung</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Machine power</source>
        <translation>Maschinenleistung</translation>
    </message>
    <message>
        <source>No element has a flow or a pressure with bounds.</source>
        <translation>Kein Element hat einen Durchfluss oder Druck mit Schranken.</translation>
    </message>
    <message>
        <source>No element has a number in %1.</source>
        <translation>Kein Element hat eine Zahl in %1.</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
</context>
<context>
    <name>CanvasLegend</name>
    <message>
        <source>&amp;Legend</source>
        <translation>&amp;Legende</translation>
    </message>
    <message>
        <source>Shows what colours, widths and symbols mean (L)</source>
        <translation>Zeigt, was Farben, Breiten und Symbole bedeuten (L)</translation>
    </message>
    <message>
        <source>where it hides least</source>
        <translation>wo sie am wenigsten verdeckt</translation>
    </message>
    <message>
        <source>&amp;Where it stands</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>Colour &amp;scale beside the drawing</source>
        <translation>Farb&amp;skala neben der Zeichnung</translation>
    </message>
    <message>
        <source>Leave out the outermost &amp;2 % of the values</source>
        <translation>Die äußersten &amp;2 % der Werte weglassen</translation>
    </message>
    <message>
        <source>&amp;Dim what is not selected</source>
        <translation>Nicht Ausgewähltes &amp;abblenden</translation>
    </message>
    <message>
        <source>Configure &amp;drawing …</source>
        <translation>&amp;Zeichnung einstellen …</translation>
    </message>
</context>
<context>
    <name>CaseMachines</name>
    <message>
        <source>The scenario belongs to another geometry, %1.</source>
        <translation>Das Szenario gehört zu einer anderen Geometrie, %1.</translation>
    </message>
</context>
<context>
    <name>CaseOpening</name>
    <message>
        <source>Invalid Workspace</source>
        <translation>Ungültiger Arbeitsbereich</translation>
    </message>
    <message>
        <source>Opening the scenario %1, which was opened last</source>
        <translation>Das Szenario %1 wird geöffnet, das zuletzt offen war</translation>
    </message>
    <message>
        <source>layers of elements (%1)</source>
        <translation>Ebenen von Elementen (%1)</translation>
    </message>
    <message>
        <source>The layers of elements have changes that are not saved. Save them?</source>
        <translation>Die Ebenen von Elementen haben Änderungen, die nicht gespeichert sind. Jetzt speichern?</translation>
    </message>
    <message>
        <source>how the network is drawn</source>
        <translation>Darstellung des Netzes</translation>
    </message>
    <message>
        <source>How the network is drawn is not saved. Save it?</source>
        <translation>Die Darstellung des Netzes ist nicht gespeichert. Jetzt speichern?</translation>
    </message>
    <message>
        <source>Page of %1: %2</source>
        <translation>Seite von %1: %2</translation>
    </message>
    <message>
        <source>Startup finished in %1ms</source>
        <translation>Geöffnet in %1ms</translation>
    </message>
    <message>
        <source>Which functions of machines count cannot be kept: %1</source>
        <translation>Welche Funktionen der Maschinen gelten, lässt sich nicht merken: %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened: there is no geometry in %2</source>
        <translation>%1 kann nicht geöffnet werden: In %2 gibt es keine Geometrie</translation>
    </message>
    <message>
        <source>Scenario %1 after %2 ms</source>
        <translation>Szenario %1 nach %2 ms</translation>
    </message>
</context>
<context>
    <name>CaseReading</name>
    <message>
        <source>Include Types</source>
        <translation>Typen einschließen</translation>
    </message>
    <message>
        <source>Enter include list for types
(regular expression):</source>
        <translation>Liste der Typen, die gelesen werden
(regulärer Ausdruck):</translation>
    </message>
    <message>
        <source>Include Properties</source>
        <translation>Eigenschaften einschließen</translation>
    </message>
    <message>
        <source>Enter include list for properties
(regular expression):</source>
        <translation>Liste der Eigenschaften, die gelesen werden
(regulärer Ausdruck):</translation>
    </message>
    <message>
        <source>Reading the scenario …</source>
        <translation>Das Szenario wird gelesen …</translation>
    </message>
</context>
<context>
    <name>CaseScenarios</name>
    <message>
        <source>The scenario belongs to another geometry, %1.</source>
        <translation>Das Szenario gehört zu einer anderen Geometrie, %1.</translation>
    </message>
</context>
<context>
    <name>CategoryFile</name>
    <message>
        <source>Could not open categories file %1!</source>
        <translation>Die Kategoriendatei %1 lässt sich nicht öffnen!</translation>
    </message>
    <message>
        <source>Line contains less than 5 entries!</source>
        <translation>Die Zeile hat weniger als 5 Einträge!</translation>
    </message>
</context>
<context>
    <name>CategoryModel</name>
    <message>
        <source>check for report</source>
        <translation>für Bericht prüfen</translation>
    </message>
    <message>
        <source>category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>CharacteristicsStack</name>
    <message>
        <source>Characteristics</source>
        <translation>Kennfelder</translation>
    </message>
    <message>
        <source>Open the characteristics of a compressor or drive
by the right-click menu of the drawing.</source>
        <translation>Kennfelder eines Verdichters oder Antriebs öffnen Sie
über das Kontextmenü der Zeichnung.</translation>
    </message>
    <message>
        <source>none open</source>
        <translation>keines offen</translation>
    </message>
    <message>
        <source>The list of open characteristics cannot be kept: %1</source>
        <translation>Die Liste der offenen Kennfelder kann nicht aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source>There are no machine data for %1: neither its property &quot;machine&quot; nor its name is in the machine data of the scenario.</source>
        <translation>Es gibt keine Maschinendaten für %1: Weder seine Eigenschaft &quot;machine&quot; noch sein Name steht in den Maschinendaten des Szenarios.</translation>
    </message>
</context>
<context>
    <name>ChartFile</name>
    <message>
        <source>pictures of the kind &quot;%1&quot; are not known</source>
        <translation>Bilder der Art &quot;%1&quot; sind nicht bekannt</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.pdf *.svg)</source>
        <translation>Bilder (*.png *.jpg *.pdf *.svg)</translation>
    </message>
</context>
<context>
    <name>ClassDialog</name>
    <message>
        <source>Classes of %1</source>
        <translation>Klassen von %1</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>&amp;Add class</source>
        <translation>Klasse &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Halve the marked class</source>
        <translation>Die markierte Klasse halbieren</translation>
    </message>
    <message>
        <source>&amp;Remove class</source>
        <translation>Klasse &amp;entfernen</translation>
    </message>
    <message>
        <source>Join the marked class with the one below it</source>
        <translation>Die markierte Klasse mit der darunter vereinen</translation>
    </message>
    <message>
        <source>&amp;Colour …</source>
        <translation>&amp;Farbe …</translation>
    </message>
    <message>
        <source>The colour of the marked class; Del takes that of the ramp</source>
        <translation>Die Farbe der markierten Klasse; Entf nimmt die des Farbverlaufs</translation>
    </message>
    <message>
        <source>&amp;Equal intervals</source>
        <translation>Gleiche &amp;Abstände</translation>
    </message>
    <message>
        <source>As &amp;many in each</source>
        <translation>Gleich &amp;viele in jeder</translation>
    </message>
    <message>
        <source>&amp;Natural breaks</source>
        <translation>&amp;Natürliche Grenzen</translation>
    </message>
    <message>
        <source>Find the breaks for as many classes anew</source>
        <translation>Die Grenzen für ebenso viele Klassen neu suchen</translation>
    </message>
</context>
<context>
    <name>ClassModel</name>
    <message>
        <source>lowest</source>
        <translation>kleinster</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>&quot;%1&quot; ist keine Zahl.</translation>
    </message>
    <message>
        <source>A class begins between the beginnings of those beside it.</source>
        <translation>Eine Klasse beginnt zwischen den Anfängen ihrer Nachbarn.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <source>Name in the legend</source>
        <translation>Name in der Legende</translation>
    </message>
</context>
<context>
    <name>CloudModel</name>
    <message>
        <source>does not run</source>
        <translation>läuft nicht</translation>
    </message>
    <message>
        <source>not read: %1</source>
        <translation>nicht gelesen: %1</translation>
    </message>
    <message>
        <source>scenario</source>
        <translation>Szenario</translation>
    </message>
    <message>
        <source>volume flow</source>
        <translation>Volumenstrom</translation>
    </message>
    <message>
        <source>pressure ratio</source>
        <translation>Druckverhältnis</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>Drehzahl</translation>
    </message>
    <message>
        <source>shaft power</source>
        <translation>Wellenleistung</translation>
    </message>
    <message>
        <source>distance to surge [%]</source>
        <translation>Abstand zur Pumpgrenze [%]</translation>
    </message>
</context>
<context>
    <name>CloudView</name>
    <message>
        <source>Scenarios</source>
        <translation>Szenarien</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Neu lesen</translation>
    </message>
    <message>
        <source>Reading the scenarios of the case …</source>
        <translation>Die Szenarien des Falls werden gelesen …</translation>
    </message>
    <message>
        <source>%1 of %2 scenarios. A click on a dot, or Return on a row, opens the scenario.</source>
        <translation>%1 von %2 Szenarien. Ein Klick auf einen Punkt oder die Eingabetaste auf einer Zeile öffnet das Szenario.</translation>
    </message>
</context>
<context>
    <name>ColorBars</name>
    <message>
        <source>edges and nodes: %1</source>
        <translation>Kanten und Knoten: %1</translation>
    </message>
    <message>
        <source>edges: %1</source>
        <translation>Kanten: %1</translation>
    </message>
    <message>
        <source>nodes: %1</source>
        <translation>Knoten: %1</translation>
    </message>
</context>
<context>
    <name>ColorRamp</name>
    <message>
        <source>viridis (even steps)</source>
        <translation>viridis (gleichmäßig)</translation>
    </message>
    <message>
        <source>cividis (also for colour-blind eyes)</source>
        <translation>cividis (auch bei Farbschwäche)</translation>
    </message>
    <message>
        <source>blue, grey, red about zero</source>
        <translation>blau, grau, rot um null</translation>
    </message>
    <message>
        <source>plasma (even steps, blue to orange)</source>
        <translation>plasma (gleichmäßig, blau–orange)</translation>
    </message>
    <message>
        <source>batlow (even steps, blue to rose)</source>
        <translation>batlow (gleichmäßig, blau–rosa)</translation>
    </message>
    <message>
        <source>hues of your choice</source>
        <translation>Farbtöne nach eigener Wahl</translation>
    </message>
</context>
<context>
    <name>ColorScale</name>
    <message>
        <source>search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>Farbe: %1</translation>
    </message>
    <message>
        <source>abs. %1</source>
        <translation>Betrag von %1</translation>
    </message>
    <message>
        <source>Width: %1</source>
        <translation>Breite: %1</translation>
    </message>
</context>
<context>
    <name>ColumnChooser</name>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Search for a property</source>
        <translation>Eigenschaft suchen</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Space or a click on the box shows a property; dragging, or Alt+Up and Alt+Down, orders the columns.</source>
        <translation>Die Leertaste oder ein Klick auf das Kästchen zeigt eine Eigenschaft; Ziehen oder Alt+Auf und Alt+Ab ordnet die Spalten.</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Usual columns</source>
        <translation>Üb&amp;liche Spalten</translation>
    </message>
    <message>
        <source>The column stands further to the left (Alt+Up)</source>
        <translation>Die Spalte steht weiter links (Alt+Auf)</translation>
    </message>
    <message>
        <source>The column stands further to the right (Alt+Down)</source>
        <translation>Die Spalte steht weiter rechts (Alt+Ab)</translation>
    </message>
    <message>
        <source>The columns with which elements of this type are shown first</source>
        <translation>Die Spalten, mit denen Elemente dieses Typs zuerst gezeigt werden</translation>
    </message>
</context>
<context>
    <name>ColumnFigures</name>
    <message>
        <source>count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>max</source>
        <translation>Max</translation>
    </message>
</context>
<context>
    <name>ColumnList</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
</context>
<context>
    <name>CommandModel</name>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>No command has these words.</source>
        <translation>Kein Befehl enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Type parts of a command&apos;s words</source>
        <translation>Teile der Wörter eines Befehls eingeben</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>Wörter des Befehls</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Context menu</source>
        <translation>Kontextmenü</translation>
    </message>
    <message>
        <source>The menu of what has the keyboard</source>
        <translation>Das Menü dessen, was die Tastatur hat</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Go to element …</source>
        <translation>Gehe zu Element …</translation>
    </message>
    <message>
        <source>Show an element by a part of its name</source>
        <translation>Ein Element anhand eines Teils seines Namens zeigen</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Next panel</source>
        <translation>Nächster Bereich</translation>
    </message>
    <message>
        <source>Give the keyboard to the next panel</source>
        <translation>Die Tastatur dem nächsten Bereich geben</translation>
    </message>
    <message>
        <source>Panel before</source>
        <translation>Voriger Bereich</translation>
    </message>
    <message>
        <source>Give the keyboard to the panel before</source>
        <translation>Die Tastatur dem vorigen Bereich geben</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>All commands …</source>
        <translation>Alle Befehle …</translation>
    </message>
    <message>
        <source>Find a command by parts of its words</source>
        <translation>Einen Befehl anhand von Teilen seiner Wörter finden</translation>
    </message>
    <message>
        <source>%1 has no place in the drawing</source>
        <translation>%1 hat keinen Platz in der Zeichnung</translation>
    </message>
    <message>
        <source>%1 is in a layer that is hidden</source>
        <translation>%1 liegt in einer ausgeblendeten Ebene</translation>
    </message>
</context>
<context>
    <name>Comparison</name>
    <message>
        <source>%1: difference to %2</source>
        <translation>%1: Differenz zu %2</translation>
    </message>
    <message>
        <source>%1 less that of the scenario %2</source>
        <translation>%1 weniger den Wert des Szenarios %2</translation>
    </message>
    <message>
        <source>%1: ratio to %2</source>
        <translation>%1: Verhältnis zu %2</translation>
    </message>
    <message>
        <source>%1 by that of the scenario %2</source>
        <translation>%1 geteilt durch den Wert des Szenarios %2</translation>
    </message>
</context>
<context>
    <name>Compression</name>
    <message>
        <source>The density %1 kg/m³ that the network states at the inlet parts from that of the gas law, %2 kg/m³</source>
        <translation>Die Dichte %1 kg/m³, die das Netz am Eingang angibt, weicht von der des Gasgesetzes ab, %2 kg/m³</translation>
    </message>
</context>
<context>
    <name>ConsistencyCheck</name>
    <message>
        <source>ID or name-property empty: %1, %2</source>
        <translation>ID oder Eigenschaft name leer: %1, %2</translation>
    </message>
    <message>
        <source>ID and value of name-property not identical: %1, %2</source>
        <translation>ID und Wert der Eigenschaft name nicht gleich: %1, %2</translation>
    </message>
    <message>
        <source>value of type-property not OK: %1, %2</source>
        <translation>Wert der Eigenschaft type nicht in Ordnung: %1, %2</translation>
    </message>
    <message>
        <source>A property name is empty for element %1! Property will be erased!</source>
        <translation>Ein Eigenschaftsname des Elements %1 ist leer! Die Eigenschaft wird entfernt!</translation>
    </message>
    <message>
        <source>Cannot find element: %1@%2=%3!</source>
        <translation>Element nicht gefunden: %1@%2=%3!</translation>
    </message>
    <message>
        <source>edge</source>
        <translation>Kante</translation>
    </message>
    <message>
        <source>node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>drive</source>
        <translation>Antrieb</translation>
    </message>
    <message>
        <source>CRITICAL - %1 nodes and %2 edges had to be removed!</source>
        <translation>KRITISCH - %1 Knoten und %2 Kanten mussten entfernt werden!</translation>
    </message>
    <message>
        <source>... %1 was: %2</source>
        <translation>... %1 war: %2</translation>
    </message>
    <message>
        <source>Error for %1: %2</source>
        <translation>Fehler bei %1: %2</translation>
    </message>
    <message>
        <source>ERROR for current %1: Could not find property name! %2 will be erased!</source>
        <translation>FEHLER beim aktuellen Element (%1): Eigenschaft name nicht gefunden! %2 wird entfernt!</translation>
    </message>
    <message>
        <source>Node %1 did not possess %2-value. Set to 0.</source>
        <translation>Der Knoten %1 hatte keinen %2-Wert. Auf 0 gesetzt.</translation>
    </message>
    <message>
        <source>Could not find property %1</source>
        <translation>Eigenschaft %1 nicht gefunden</translation>
    </message>
    <message>
        <source>ERROR for edge %1: %2! Edge will be erased!</source>
        <translation>FEHLER bei Kante %1: %2! Die Kante wird entfernt!</translation>
    </message>
    <message>
        <source>Could not find %1 %2</source>
        <translation>%1 %2 nicht gefunden</translation>
    </message>
    <message>
        <source>%1 %2 not ok</source>
        <translation>%1 %2 nicht in Ordnung</translation>
    </message>
    <message>
        <source>Could not find properties GASNODE and/or DRIVEN. Drive is excluded!</source>
        <translation>Die Eigenschaften GASNODE und/oder DRIVEN fehlen. Der Antrieb wird ausgeschlossen!</translation>
    </message>
    <message>
        <source>Neither GASNODE %1 nor DRIVEN %2 could be found. Drive is excluded!</source>
        <translation>Weder GASNODE %1 noch DRIVEN %2 ist zu finden. Der Antrieb wird ausgeschlossen!</translation>
    </message>
    <message>
        <source>Could not find DRIVEN %1. Check!</source>
        <translation>DRIVEN %1 ist nicht zu finden. Bitte prüfen!</translation>
    </message>
    <message>
        <source>DRIVEN %1 is not of type compressor. Drive is excluded!</source>
        <translation>DRIVEN %1 ist nicht vom Typ Verdichter. Der Antrieb wird ausgeschlossen!</translation>
    </message>
    <message>
        <source>Could not find GASNODE %1. Check!</source>
        <translation>GASNODE %1 ist nicht zu finden. Bitte prüfen!</translation>
    </message>
    <message>
        <source>Drive %1: %2</source>
        <translation>Antrieb %1: %2</translation>
    </message>
    <message>
        <source>Drive %1 did not possess x- or y-value. Set to (%2,%3).</source>
        <translation>Der Antrieb %1 hatte keinen x- oder y-Wert. Auf (%2,%3) gesetzt.</translation>
    </message>
</context>
<context>
    <name>ConsoleDock</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Messages of the program appear here.</source>
        <translation>Hier erscheinen Meldungen des Programms.</translation>
    </message>
</context>
<context>
    <name>ConversionReport</name>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>taken</source>
        <translation>übernommen</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>umgerechnet</translation>
    </message>
    <message>
        <source>dropped</source>
        <translation>weggelassen</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>It seems that the application crashed last time. Please report the logfile to the developers:
</source>
        <translation>Anscheinend ist das Programm beim letzten Mal abgestürzt. Bitte senden Sie die Protokolldatei an die Entwickler:
</translation>
    </message>
    <message>
        <source>Crash detected</source>
        <translation>Absturz festgestellt</translation>
    </message>
    <message>
        <source>The log file %1 cannot be written; messages go to standard error.</source>
        <translation>Die Protokolldatei %1 ist nicht beschreibbar; Meldungen gehen an die Standardfehlerausgabe.</translation>
    </message>
</context>
<context>
    <name>DrawFunction</name>
    <message>
        <source>load against the bounds [%]</source>
        <translation>Auslastung der Schranken [%]</translation>
    </message>
</context>
<context>
    <name>ElementField</name>
    <message>
        <source>No element has &quot;%1&quot; in its name</source>
        <translation>Kein Element hat &quot;%1&quot; im Namen</translation>
    </message>
</context>
<context>
    <name>ElementQuery</name>
    <message>
        <source>The search stopped: %1</source>
        <translation>Die Suche wurde abgebrochen: %1</translation>
    </message>
    <message>
        <source>No element has the property &quot;%1&quot;.</source>
        <translation>Kein Element hat die Eigenschaft &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no criterion of a search: name, regex, type, prop, value and formula are.</source>
        <translation>&quot;%1&quot; ist kein Kriterium der Suche: name, regex, type, prop, value und formula sind welche.</translation>
    </message>
</context>
<context>
    <name>ElementTable</name>
    <message>
        <source>Table of Elements</source>
        <translation>Elementtabelle</translation>
    </message>
    <message>
        <source>Elements with their properties, one a row (%1)</source>
        <translation>Elemente mit ihren Eigenschaften, eines je Zeile (%1)</translation>
    </message>
</context>
<context>
    <name>ElementTableModel</name>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>All elements</source>
        <translation>Alle Elemente</translation>
    </message>
</context>
<context>
    <name>ElementTablePage</name>
    <message>
        <source>Only &amp;selected elements</source>
        <translation>N&amp;ur ausgewählte Elemente</translation>
    </message>
    <message>
        <source>Show &amp;all rows</source>
        <translation>Alle Zei&amp;len zeigen</translation>
    </message>
    <message>
        <source>Ends the filters of all columns (Alt+A)</source>
        <translation>Hebt die Filter aller Spalten auf (Alt+L)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy with &amp;header</source>
        <translation>Mit Ü&amp;berschrift kopieren</translation>
    </message>
    <message>
        <source>Copy this c&amp;ell</source>
        <translation>Diese Z&amp;elle kopieren</translation>
    </message>
    <message>
        <source>&amp;Filter this column</source>
        <translation>Diese Spalte &amp;filtern</translation>
    </message>
    <message>
        <source>Show in the &amp;drawing</source>
        <translation>In der Zeich&amp;nung zeigen</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>Gruppieren nach</translation>
    </message>
    <message>
        <source>Elements of one value stand together, with what they sum up to</source>
        <translation>Elemente mit gleichem Wert stehen beisammen, mit ihren Summen</translation>
    </message>
    <message>
        <source>Lists what was selected in the drawing last</source>
        <translation>Listet auf, was zuletzt in der Zeichnung ausgewählt wurde</translation>
    </message>
    <message>
        <source>Grou&amp;ps</source>
        <translation>Gru&amp;ppen</translation>
    </message>
    <message>
        <source>Which figures of the groups are shown; all groups opened or closed</source>
        <translation>Welche Kennzahlen der Gruppen gezeigt werden; alle Gruppen auf- oder zugeklappt</translation>
    </message>
    <message>
        <source>Co&amp;lumns …</source>
        <translation>&amp;Spalten …</translation>
    </message>
    <message>
        <source>Sa&amp;ve table …</source>
        <translation>&amp;Tabelle speichern …</translation>
    </message>
    <message>
        <source>&amp;Open all groups</source>
        <translation>Alle Gruppen &amp;aufklappen</translation>
    </message>
    <message>
        <source>&amp;Close all groups</source>
        <translation>Alle Gruppen &amp;zuklappen</translation>
    </message>
    <message>
        <source>There is no network</source>
        <translation>Es gibt kein Netz</translation>
    </message>
    <message>
        <source>There are no such elements</source>
        <translation>Solche Elemente gibt es nicht</translation>
    </message>
    <message>
        <source>None of these elements is selected in the drawing</source>
        <translation>Keines dieser Elemente ist in der Zeichnung ausgewählt</translation>
    </message>
    <message>
        <source>No element passes the filters; &quot;Show all rows&quot; ends them</source>
        <translation>Kein Element passt zu den Filtern; &quot;Alle Zeilen zeigen&quot; hebt sie auf</translation>
    </message>
    <message>
        <source>No groups</source>
        <translation>Keine Gruppen</translation>
    </message>
    <message>
        <source>All in one group</source>
        <translation>Alle in einer Gruppe</translation>
    </message>
    <message>
        <source>Group by %1</source>
        <translation>Gruppieren nach %1</translation>
    </message>
    <message>
        <source>Sort &amp;ascending</source>
        <translation>&amp;Aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort &amp;descending</source>
        <translation>A&amp;bsteigend sortieren</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtern</translation>
    </message>
    <message>
        <source>&amp;Group by this</source>
        <translation>Nach dieser Spalte &amp;gruppieren</translation>
    </message>
    <message>
        <source>&amp;Hide this column</source>
        <translation>Diese Spalte a&amp;usblenden</translation>
    </message>
    <message>
        <source>&amp;Columns …</source>
        <translation>&amp;Spalten …</translation>
    </message>
    <message>
        <source>Sort by this column, &amp;smallest first</source>
        <translation>Nach dieser Spalte sortieren, &amp;Kleinstes zuerst</translation>
    </message>
    <message>
        <source>Sort by this column, &amp;largest first</source>
        <translation>Nach dieser Spalte sortieren, &amp;Größtes zuerst</translation>
    </message>
    <message>
        <source>&amp;Group by this column</source>
        <translation>Nach dieser Spalte gru&amp;ppieren</translation>
    </message>
</context>
<context>
    <name>ElementTableView</name>
    <message>
        <source>Table of elements</source>
        <translation>Tabelle der Elemente</translation>
    </message>
</context>
<context>
    <name>ElementType</name>
    <message>
        <source>node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>drive</source>
        <translation>Antrieb</translation>
    </message>
    <message>
        <source>drives</source>
        <translation>Antriebe</translation>
    </message>
    <message>
        <source>pipe</source>
        <translation>Leitung</translation>
    </message>
    <message>
        <source>pipes</source>
        <translation>Leitungen</translation>
    </message>
    <message>
        <source>compressor</source>
        <translation>Verdichter</translation>
    </message>
    <message>
        <source>compressors</source>
        <translation>Verdichter</translation>
    </message>
    <message>
        <source>regulator</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>regulators</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>valve</source>
        <translation>Schieber</translation>
    </message>
    <message>
        <source>valves</source>
        <translation>Schieber</translation>
    </message>
    <message>
        <source>flap trap</source>
        <translation>Rückschlagklappe</translation>
    </message>
    <message>
        <source>flap traps</source>
        <translation>Rückschlagklappen</translation>
    </message>
    <message>
        <source>shortcut</source>
        <translation>Kurzschluss</translation>
    </message>
    <message>
        <source>shortcuts</source>
        <translation>Kurzschlüsse</translation>
    </message>
    <message>
        <source>resistor</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>resistors</source>
        <translation>Widerstände</translation>
    </message>
    <message>
        <source>cooler</source>
        <translation>Kühler</translation>
    </message>
    <message>
        <source>coolers</source>
        <translation>Kühler</translation>
    </message>
    <message>
        <source>heater</source>
        <translation>Erhitzer</translation>
    </message>
    <message>
        <source>heaters</source>
        <translation>Erhitzer</translation>
    </message>
    <message>
        <source>subnet</source>
        <translation>Teilnetz</translation>
    </message>
    <message>
        <source>subnets</source>
        <translation>Teilnetze</translation>
    </message>
    <message>
        <source>tBox</source>
        <translation>Textfeld</translation>
    </message>
    <message>
        <source>tBoxes</source>
        <translation>Textfelder</translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>Could not read figure.file %1: %2</source>
        <translation>figure.file %1 ist nicht lesbar: %2</translation>
    </message>
</context>
<context>
    <name>FileAccess</name>
    <message>
        <source>is a directory</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>leads nowhere: into a circle of links, or a folder that is not there</source>
        <translation>führt ins Leere: in einen Kreis von Verknüpfungen oder in einen Ordner, den es nicht gibt</translation>
    </message>
    <message>
        <source>leads out of the workspace, to %1</source>
        <translation>führt aus dem Arbeitsbereich hinaus, nach %1</translation>
    </message>
    <message>
        <source>is larger than %1</source>
        <translation>ist größer als %1</translation>
    </message>
    <message>
        <source>cannot be read to its end</source>
        <translation>lässt sich nicht bis zum Ende lesen</translation>
    </message>
</context>
<context>
    <name>FilterHeader</name>
    <message>
        <source>A part of the text; or &gt;10, &lt;=3, 5..20, =open, &lt;&gt;open; = for empty cells, &lt;&gt; for others; &quot; &amp; &quot; joins, &quot; | &quot; is for either (Ctrl+Shift+L)</source>
        <translation>Ein Teil des Textes; oder &gt;10, &lt;=3, 5..20, =open, &lt;&gt;open; = für leere Zellen, &lt;&gt; für andere; &quot; &amp; &quot; verbindet, &quot; | &quot; steht für eines von beiden (Strg+Umschalt+L)</translation>
    </message>
    <message>
        <source>Filter of %1</source>
        <translation>Filter von %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Empty cells</source>
        <translation>Leere Zellen</translation>
    </message>
    <message>
        <source>Cells that are not empty</source>
        <translation>Nicht leere Zellen</translation>
    </message>
    <message>
        <source>Larger than …</source>
        <translation>Größer als …</translation>
    </message>
    <message>
        <source>Smaller than …</source>
        <translation>Kleiner als …</translation>
    </message>
    <message>
        <source>A range …</source>
        <translation>Ein Bereich …</translation>
    </message>
    <message>
        <source>Just this …</source>
        <translation>Genau dies …</translation>
    </message>
    <message>
        <source>Anything but …</source>
        <translation>Alles außer …</translation>
    </message>
    <message>
        <source>No filter</source>
        <translation>Kein Filter</translation>
    </message>
</context>
<context>
    <name>FilterNotice</name>
    <message>
        <source>Show &amp;all rows</source>
        <translation>Alle Zei&amp;len zeigen</translation>
    </message>
    <message>
        <source>Ends the filters of the columns (Alt+A)</source>
        <translation>Hebt die Filter der Spalten auf (Alt+L)</translation>
    </message>
    <message>
        <source>1 row hidden by filters: %1</source>
        <translation>1 Zeile durch Filter ausgeblendet: %1</translation>
    </message>
    <message>
        <source>%1 rows hidden by filters: %2</source>
        <translation>%1 Zeilen durch Filter ausgeblendet: %2</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>(and 1 further message, see the log)</source>
        <translation>(und 1 weitere Meldung, siehe Protokoll)</translation>
    </message>
    <message>
        <source>(and %1 further messages, see the log)</source>
        <translation>(und %1 weitere Meldungen, siehe Protokoll)</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
</context>
<context>
    <name>FindingExport</name>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>FindingFilter</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>FindingModel</name>
    <message>
        <source>finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
</context>
<context>
    <name>Fits</name>
    <message>
        <source>%1 points are too few, at least %2 are needed</source>
        <translation>%1 Punkte sind zu wenige, mindestens %2 werden gebraucht</translation>
    </message>
    <message>
        <source>the points do not tell the coefficients: numbers are missing or all the same</source>
        <translation>die Punkte bestimmen die Koeffizienten nicht: Zahlen fehlen oder sind alle gleich</translation>
    </message>
    <message>
        <source>the points do not tell the coefficients: they stand at too few different flows or speeds</source>
        <translation>die Punkte bestimmen die Koeffizienten nicht: sie liegen bei zu wenigen verschiedenen Durchflüssen oder Drehzahlen</translation>
    </message>
</context>
<context>
    <name>Formula</name>
    <message>
        <source>it needs more work than is allowed for one element</source>
        <translation>sie braucht mehr Arbeit, als für ein Element erlaubt ist</translation>
    </message>
    <message>
        <source>it makes a text of more than %1 bytes</source>
        <translation>sie erzeugt einen Text von mehr als %1 Bytes</translation>
    </message>
    <message>
        <source>its result is a matrix of more than %1 numbers</source>
        <translation>ihr Ergebnis ist eine Matrix mit mehr als %1 Zahlen</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 is &quot;%2&quot;</source>
        <translation>%1 ist &quot;%2&quot;</translation>
    </message>
    <message>
        <source>The formula &quot;%1&quot; is stopped: %2</source>
        <translation>Die Formel &quot;%1&quot; wird angehalten: %2</translation>
    </message>
    <message>
        <source>The formula is empty.</source>
        <translation>Die Formel ist leer.</translation>
    </message>
    <message>
        <source>The formula is longer than %1 characters.</source>
        <translation>Die Formel ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>The formula is nested more deeply than %1 brackets.</source>
        <translation>Die Formel ist tiefer als %1 Klammern geschachtelt.</translation>
    </message>
    <message>
        <source>The formula has more than %1 commas.</source>
        <translation>Die Formel hat mehr als %1 Kommas.</translation>
    </message>
    <message>
        <source>A name is missing after &quot;@&quot; at character %1.</source>
        <translation>Nach dem &quot;@&quot; bei Zeichen %1 fehlt ein Name.</translation>
    </message>
</context>
<context>
    <name>FormulaFile</name>
    <message>
        <source>there is no expression after &quot;=&quot;</source>
        <translation>nach dem &quot;=&quot; steht kein Ausdruck</translation>
    </message>
    <message>
        <source>&quot;=&quot; or &quot;in&quot; expected at character %1</source>
        <translation>&quot;=&quot; oder &quot;in&quot; wird bei Zeichen %1 erwartet</translation>
    </message>
    <message>
        <source>the line does not begin with the name of a property</source>
        <translation>die Zeile beginnt nicht mit dem Namen einer Eigenschaft</translation>
    </message>
    <message>
        <source>a closing bracket is missing after the elements</source>
        <translation>nach den Elementen fehlt eine schließende Klammer</translation>
    </message>
    <message>
        <source>the pattern &quot;%1&quot; is none: %2</source>
        <translation>das Muster &quot;%1&quot; ist keines: %2</translation>
    </message>
    <message>
        <source>there is no element type &quot;%1&quot;</source>
        <translation>einen Elementtyp &quot;%1&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>a closing bracket is missing after the unit</source>
        <translation>nach der Einheit fehlt eine schließende Klammer</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not known</source>
        <translation>die Einheit &quot;%1&quot; ist nicht bekannt</translation>
    </message>
    <message>
        <source>the bounds are not parted by &quot;..&quot; between blanks</source>
        <translation>die Schranken sind nicht durch &quot;..&quot; zwischen Leerzeichen getrennt</translation>
    </message>
    <message>
        <source>there is no bound</source>
        <translation>es gibt keine Schranke</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>sie ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>The line is left out: %1</source>
        <translation>Die Zeile wird ausgelassen: %1</translation>
    </message>
    <message>
        <source>The formulas cannot be read: %1</source>
        <translation>Die Formeln sind nicht lesbar: %1</translation>
    </message>
</context>
<context>
    <name>FormulaMode</name>
    <message>
        <source>Formula Search</source>
        <translation>Formelsuche</translation>
    </message>
    <message>
        <source>Formula Search
Use ELE to refer to current element, e.g. p@ELE&gt;0.1</source>
        <translation>Formelsuche
ELE steht für das aktuelle Element, z. B. p@ELE&gt;0.1</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
</context>
<context>
    <name>FunctionChooser</name>
    <message>
        <source>Words of the name</source>
        <translation>Wörter des Namens</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funktionen</translation>
    </message>
</context>
<context>
    <name>FunctionMenu</name>
    <message>
        <source>Edge colour</source>
        <translation>Kantenfarbe</translation>
    </message>
    <message>
        <source>Edge width</source>
        <translation>Kantenbreite</translation>
    </message>
    <message>
        <source>Node colour</source>
        <translation>Knotenfarbe</translation>
    </message>
    <message>
        <source>Node size</source>
        <translation>Knotengröße</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>fest</translation>
    </message>
    <message>
        <source>all of one size</source>
        <translation>alle gleich groß</translation>
    </message>
    <message>
        <source>All functions …</source>
        <translation>Alle Funktionen …</translation>
    </message>
    <message>
        <source>All functions of this network, with units, numbers of elements and histograms</source>
        <translation>Alle Funktionen dieses Netzes, mit Einheiten, Anzahl der Elemente und Histogrammen</translation>
    </message>
</context>
<context>
    <name>FunctionModel</name>
    <message>
        <source>all of one size</source>
        <translation>alle gleich groß</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Distribution</source>
        <translation>Verteilung</translation>
    </message>
</context>
<context>
    <name>FunctionRow</name>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Draw function</source>
        <translation>Zeichenfunktion</translation>
    </message>
    <message>
        <source>min.</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>from data</source>
        <translation>aus den Daten</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Reset to currently stored user-defined min. value (might have been re-calculated)</source>
        <translation>Zurück zum gespeicherten eigenen Minimum (das inzwischen neu berechnet sein kann)</translation>
    </message>
    <message>
        <source>max.</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Reset to currently stored user-defined max. value (might have been re-calculated)</source>
        <translation>Zurück zum gespeicherten eigenen Maximum (das inzwischen neu berechnet sein kann)</translation>
    </message>
    <message>
        <source>From data</source>
        <translation>Aus Daten</translation>
    </message>
    <message>
        <source>Take both bounds from the data</source>
        <translation>Beide Grenzen aus den Daten nehmen</translation>
    </message>
    <message>
        <source>abs.
values</source>
        <translation>nur
Beträge</translation>
    </message>
    <message>
        <source>log-
scale</source>
        <translation>log.
Skala</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no number.</source>
        <translation>%1: &quot;%2&quot; ist keine Zahl.</translation>
    </message>
    <message>
        <source>Choose …</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>All functions of this network, with units, numbers of elements and histograms</source>
        <translation>Alle Funktionen dieses Netzes, mit Einheiten, Anzahl der Elemente und Histogrammen</translation>
    </message>
</context>
<context>
    <name>FunctionsPage</name>
    <message>
        <source>Edge colour</source>
        <translation>Kantenfarbe</translation>
    </message>
    <message>
        <source>Edge width</source>
        <translation>Kantenbreite</translation>
    </message>
    <message>
        <source>Node colour</source>
        <translation>Knotenfarbe</translation>
    </message>
    <message>
        <source>Node size</source>
        <translation>Knotengröße</translation>
    </message>
    <message>
        <source>if checked: absolute values are used for color</source>
        <translation>angekreuzt: für die Farbe zählen die Beträge</translation>
    </message>
    <message>
        <source>if checked:  absolute values used for width</source>
        <translation>angekreuzt: für die Breite zählen die Beträge</translation>
    </message>
    <message>
        <source>No element has a value.</source>
        <translation>Kein Element hat einen Wert.</translation>
    </message>
    <message>
        <source>The data reach from %1 to %2%3.</source>
        <translation>Die Daten reichen von %1 bis %2%3.</translation>
    </message>
    <message>
        <source>Without 2 % at either end from %1 to %2%3.</source>
        <translation>Ohne 2 % an jedem Ende von %1 bis %2%3.</translation>
    </message>
    <message>
        <source>The minimum lies above all values.</source>
        <translation>Das Minimum liegt über allen Werten.</translation>
    </message>
    <message>
        <source>The maximum lies below all values.</source>
        <translation>Das Maximum liegt unter allen Werten.</translation>
    </message>
    <message>
        <source>You specified an invalid range (min&gt;max or difference too tiny)!</source>
        <translation>Der angegebene Bereich ist ungültig (Min&gt;Max oder Abstand zu klein)!</translation>
    </message>
    <message>
        <source>
Proceed with a default/corrected scala? (No-answer will skip action)?</source>
        <translation>
Mit einer berichtigten Standardskala fortfahren? (Bei Nein geschieht nichts)?</translation>
    </message>
    <message>
        <source>
Proceed with a default tiny scala? (No-answer will skip action)?</source>
        <translation>
Mit einer sehr kleinen Standardskala fortfahren? (Bei Nein geschieht nichts)?</translation>
    </message>
</context>
<context>
    <name>GasComposition</name>
    <message>
        <source>density and calorific value</source>
        <translation>Dichte und Brennwert</translation>
    </message>
    <message>
        <source>density alone</source>
        <translation>Dichte allein</translation>
    </message>
    <message>
        <source>density, calorific value and critical temperature</source>
        <translation>Dichte, Brennwert und kritische Temperatur</translation>
    </message>
    <message>
        <source>molar mass and critical values</source>
        <translation>molare Masse und kritische Werte</translation>
    </message>
    <message>
        <source>Nothing tells the share of carbon dioxide, %1 % are assumed</source>
        <translation>Der Anteil des Kohlendioxids ist nirgends angegeben, %1 % werden angenommen</translation>
    </message>
</context>
<context>
    <name>GasData</name>
    <message>
        <source>&quot;%1&quot; is no number: %2</source>
        <translation>&quot;%1&quot; ist keine Zahl: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be %2</source>
        <translation>&quot;%1&quot; kann nicht %2 sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be %2 %</source>
        <translation>&quot;%1&quot; kann nicht %2 % sein</translation>
    </message>
</context>
<context>
    <name>GasLaw</name>
    <message>
        <source>z by the formula of %1, as the scenario asks; the rest by %2</source>
        <translation>z nach der Formel von %1, wie es das Szenario verlangt; der Rest nach %2</translation>
    </message>
    <message>
        <source>Papay (OGIL 1968)</source>
        <translation>Papay (OGIL 1968)</translation>
    </message>
    <message>
        <source>AGA (up to 70 bar)</source>
        <translation>AGA (bis 70 bar)</translation>
    </message>
    <message>
        <source>The molar mass %1 does not fit the norm density %2 kg/m³, to which %3 belongs</source>
        <translation>Die molare Masse %1 passt nicht zur Normdichte %2 kg/m³, zu der %3 gehört</translation>
    </message>
    <message>
        <source>GERG-2008 for %1, by its %2</source>
        <translation>GERG-2008 für %1, nach %2</translation>
    </message>
    <message>
        <source>corresponding states by its critical values (methane of GERG-2008)</source>
        <translation>korrespondierende Zustände nach den kritischen Werten (Methan nach GERG-2008)</translation>
    </message>
    <message>
        <source>The scenario asks for the formula &quot;%1&quot;, which does not hold for this gas</source>
        <translation>Das Szenario verlangt die Formel &quot;%1&quot;, die für dieses Gas nicht gilt</translation>
    </message>
    <message>
        <source>GERG-2008 for methane, since nothing says what the gas is</source>
        <translation>GERG-2008 für Methan, da nirgends steht, welches Gas es ist</translation>
    </message>
    <message>
        <source>The gas is not known, methane is assumed</source>
        <translation>Das Gas ist nicht bekannt, Methan wird angenommen</translation>
    </message>
</context>
<context>
    <name>GasLibXml</name>
    <message>
        <source>... and more, which are not told</source>
        <translation>... und weitere, die nicht genannt werden</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>The file is not written in UTF-8, nor in what it says: nothing is read.</source>
        <translation>Die Datei ist weder in UTF-8 noch in dem geschrieben, was sie angibt: nichts wird gelesen.</translation>
    </message>
    <message>
        <source>: nothing is read.</source>
        <translation>: nichts wird gelesen.</translation>
    </message>
    <message>
        <source>The file holds %1 instead of %2: nothing is read.</source>
        <translation>Die Datei enthält %1 statt %2: nichts wird gelesen.</translation>
    </message>
    <message>
        <source>The namespace is &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Der Namensraum ist &quot;%1&quot; statt &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The file cannot be read any further: %1</source>
        <translation>Die Datei lässt sich nicht weiter lesen: %1</translation>
    </message>
</context>
<context>
    <name>GasModel</name>
    <message>
        <source>gas property</source>
        <translation>Gaseigenschaft</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>GasSource</name>
    <message>
        <source>of the node %1</source>
        <translation>des Knotens %1</translation>
    </message>
    <message>
        <source>%1, which the node names</source>
        <translation>%1, vom Knoten genannt</translation>
    </message>
    <message>
        <source>%1 of the scenario</source>
        <translation>%1 des Szenarios</translation>
    </message>
    <message>
        <source>of the node %1, the first that states one</source>
        <translation>des Knotens %1, des ersten, der eines angibt</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>angenommen</translation>
    </message>
    <message>
        <source>The temperature %1 K at the inlet cannot be, %2 K are taken</source>
        <translation>Die Temperatur %1 K am Eingang kann nicht sein, %2 K werden angesetzt</translation>
    </message>
    <message>
        <source>Gas %1: %2</source>
        <translation>Gas %1: %2</translation>
    </message>
    <message>
        <source>The scenario has %1 gases: where a machine&apos;s inlet node says none, it is taken to be %2</source>
        <translation>Das Szenario hat %1 Gase: Wo der Eingangsknoten einer Maschine keines nennt, wird %2 angenommen</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Cannot open General settings file %1</source>
        <translation>Die Datei der allgemeinen Einstellungen lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>Line is too long!</source>
        <translation>Die Zeile ist zu lang!</translation>
    </message>
    <message>
        <source>Line contains less than 6 entries!</source>
        <translation>Die Zeile hat weniger als 6 Einträge!</translation>
    </message>
    <message>
        <source>Value &quot;%1&quot; does not suit the setting &quot;%2&quot;; &quot;%3&quot; stays.</source>
        <translation>Der Wert &quot;%1&quot; passt nicht zur Einstellung &quot;%2&quot;; es bleibt bei &quot;%3&quot;.</translation>
    </message>
</context>
<context>
    <name>Grouping</name>
    <message>
        <source>Whole network</source>
        <translation>Ganzes Netz</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ohne)</translation>
    </message>
    <message>
        <source>Single nodes</source>
        <translation>Einzelne Knoten</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Teil %1</translation>
    </message>
</context>
<context>
    <name>GroupingChoice</name>
    <message>
        <source>Whole network</source>
        <translation>Ganzes Netz</translation>
    </message>
    <message>
        <source>Connected part</source>
        <translation>Zusammenhängender Teil</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Layer (%1)</source>
        <translation>Ebene (%1)</translation>
    </message>
    <message>
        <source>Zone (%1)</source>
        <translation>Zone (%1)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ohne)</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Nivra Reader – Guide</source>
        <translation>Nivra Reader – Handbuch</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 bei Byte %2</translation>
    </message>
    <message>
        <source>is no JSON object</source>
        <translation>ist kein JSON-Objekt</translation>
    </message>
</context>
<context>
    <name>LabelContents</name>
    <message>
        <source>The label contents of &quot;%1&quot; have %2 characters; those beyond the first %3 are left out</source>
        <translation>Der Beschriftungsinhalt von &quot;%1&quot; hat %2 Zeichen; die nach den ersten %3 werden weggelassen</translation>
    </message>
    <message>
        <source>The label formula &quot;%1&quot; cannot be used: %2</source>
        <translation>Die Beschriftungsformel &quot;%1&quot; ist nicht brauchbar: %2</translation>
    </message>
</context>
<context>
    <name>LabelTable</name>
    <message>
        <source>A cell of %1 characters is left out; it may have %2</source>
        <translation>Eine Zelle mit %1 Zeichen wird ausgelassen; erlaubt sind %2</translation>
    </message>
    <message>
        <source>EOF while reading %1 in file %2! Stopped!</source>
        <translation>Dateiende beim Lesen (%1) in der Datei %2! Abgebrochen!</translation>
    </message>
    <message>
        <source>template icon data</source>
        <translation>Symboldaten einer Vorlage</translation>
    </message>
    <message>
        <source>template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>%1: templates beyond the first %2 are left out</source>
        <translation>%1: Vorlagen nach den ersten %2 werden ausgelassen</translation>
    </message>
    <message>
        <source>header</source>
        <translation>Kopf</translation>
    </message>
    <message>
        <source>type data</source>
        <translation>Daten eines Typs</translation>
    </message>
    <message>
        <source>### Could not open settings file %1</source>
        <translation>### Die Einstellungsdatei lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>version (first line)</source>
        <translation>Version (erste Zeile)</translation>
    </message>
    <message>
        <source>Version of vfd file: %1, entries for masters are ignored.
Please perform apply and save</source>
        <translation>Version der vfd-Datei: %1, Einträge für Vorlagen (masters) werden übergangen.
Bitte anwenden und speichern</translation>
    </message>
</context>
<context>
    <name>LabelTableEditor</name>
    <message>
        <source>Currently, changing symbol only via property vis.symbol allowed!</source>
        <translation>Das Symbol lässt sich zurzeit nur über die Eigenschaft vis.symbol ändern!</translation>
    </message>
    <message>
        <source>Error - allowed values for property vis missing! Defaults used!</source>
        <translation>Fehler - erlaubte Werte der Eigenschaft vis fehlen! Vorgaben werden verwendet!</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Symbols and labels of this type are</source>
        <translation>Symbole und Beschriftungen dieses Typs sind</translation>
    </message>
    <message>
        <source>Label Contents</source>
        <translation>Beschriftungsinhalt</translation>
    </message>
    <message>
        <source>Enter description of label contents:</source>
        <translation>Beschreibung des Beschriftungsinhalts:</translation>
    </message>
    <message>
        <source>all types</source>
        <translation>alle Typen</translation>
    </message>
    <message>
        <source>Apply to …</source>
        <translation>Anwenden auf …</translation>
    </message>
    <message>
        <source>Give this look to</source>
        <translation>Dieses Aussehen erhält</translation>
    </message>
    <message>
        <source>Deleting this row is not allowed!</source>
        <translation>Diese Zeile darf nicht gelöscht werden!</translation>
    </message>
</context>
<context>
    <name>LabelTableModel</name>
    <message>
        <source>template %1</source>
        <translation>Vorlage %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: it takes a number above 0, or nothing for the size that all symbols have.</source>
        <translation>&quot;%1&quot; ist keine Größe: Es braucht eine Zahl über 0, oder nichts für die Größe, die alle Symbole haben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no opacity: it takes a whole number from 0 to %2.</source>
        <translation>&quot;%1&quot; ist keine Deckkraft: Es braucht eine ganze Zahl von 0 bis %2.</translation>
    </message>
    <message>
        <source>long name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>short</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>show</source>
        <translation>zeigen</translation>
    </message>
    <message>
        <source>contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>bgr-color</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>bgr-alpha</source>
        <translation>Grund-Deckkraft</translation>
    </message>
    <message>
        <source>bord-color</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>bord-alpha</source>
        <translation>Rahmen-Deckkraft</translation>
    </message>
    <message>
        <source>font</source>
        <translation>Schrift</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>en</source>
        <comment>code of the language of these texts</comment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>LanguageChoice</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>The language changes when the program starts the next time. Restart it now? What is open comes back as it was.</source>
        <translation>Die Sprache wechselt beim nächsten Start des Programms. Jetzt neu starten? Was offen ist, kommt wieder, wie es war.</translation>
    </message>
</context>
<context>
    <name>LayerKeeper</name>
    <message>
        <source>%1 was changed by another program or window since it was read. Overwrite?</source>
        <translation>%1 wurde seit dem Lesen von einem anderen Programm oder Fenster geändert. Überschreiben?</translation>
    </message>
    <message>
        <source>Save Layers</source>
        <translation>Ebenen speichern</translation>
    </message>
    <message>
        <source>Layers (*.csv);;All Files (*)</source>
        <translation>Ebenen (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Load Layers</source>
        <translation>Ebenen laden</translation>
    </message>
    <message>
        <source>%1 names no element of this network.</source>
        <translation>%1 nennt kein Element dieses Netzes.</translation>
    </message>
</context>
<context>
    <name>LayerModel</name>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>count</source>
        <translation>Anzahl</translation>
    </message>
</context>
<context>
    <name>Layers</name>
    <message>
        <source>&lt;new layer&gt;</source>
        <translation>&lt;neue Ebene&gt;</translation>
    </message>
</context>
<context>
    <name>LayersFile</name>
    <message>
        <source>A line is left out: it should say property;element;layer</source>
        <translation>Eine Zeile wird ausgelassen: Sie sollte property;element;layer lauten</translation>
    </message>
</context>
<context>
    <name>LegendContents</name>
    <message>
        <source>search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>%1 – edges and nodes</source>
        <translation>%1 – Kanten und Knoten</translation>
    </message>
    <message>
        <source>%1 – edges</source>
        <translation>%1 – Kanten</translation>
    </message>
    <message>
        <source>%1 – nodes</source>
        <translation>%1 – Knoten</translation>
    </message>
    <message>
        <source>%1 – line width</source>
        <translation>%1 – Linienbreite</translation>
    </message>
    <message>
        <source>%1 – node size</source>
        <translation>%1 – Knotengröße</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>Einspeisung</translation>
    </message>
    <message>
        <source>demand</source>
        <translation>Ausspeisung</translation>
    </message>
    <message>
        <source>held pressure</source>
        <translation>Druckvorgabe</translation>
    </message>
    <message>
        <source>%1 (off)</source>
        <translation>%1 (aus)</translation>
    </message>
</context>
<context>
    <name>LegendPlace</name>
    <message>
        <source>upper left corner</source>
        <translation>obere linke Ecke</translation>
    </message>
    <message>
        <source>lower left corner</source>
        <translation>untere linke Ecke</translation>
    </message>
    <message>
        <source>upper right corner</source>
        <translation>obere rechte Ecke</translation>
    </message>
    <message>
        <source>lower right corner</source>
        <translation>untere rechte Ecke</translation>
    </message>
</context>
<context>
    <name>LegendView</name>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Drag the legend to another corner; right-click for its colours and scale; L hides it.</source>
        <translation>Die Legende lässt sich in eine andere Ecke ziehen; ein Rechtsklick führt zu Farben und Skala; L blendet sie aus.</translation>
    </message>
</context>
<context>
    <name>LineReader</name>
    <message>
        <source>became shorter while it was read</source>
        <translation>wurde kürzer, während sie gelesen wurde</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Reading the network …</source>
        <translation>Das Netz wird gelesen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop reading (Esc)</source>
        <translation>Lesen abbrechen (Esc)</translation>
    </message>
</context>
<context>
    <name>MachineAction</name>
    <message>
        <source>Open Characteristics</source>
        <translation>Kennfelder öffnen</translation>
    </message>
</context>
<context>
    <name>MachineData</name>
    <message>
        <source>no fit of the %1: %2</source>
        <translation>keine Anpassung (%1): %2</translation>
    </message>
    <message>
        <source>power limit</source>
        <translation>Leistungsgrenze</translation>
    </message>
    <message>
        <source>a point is left out: speed %1, flow %2, head %3, efficiency %4</source>
        <translation>ein Punkt wird ausgelassen: Drehzahl %1, Durchfluss %2, Förderhöhe %3, Wirkungsgrad %4</translation>
    </message>
    <message>
        <source>head</source>
        <translation>Förderhöhe</translation>
    </message>
    <message>
        <source>efficiency</source>
        <translation>Wirkungsgrad</translation>
    </message>
    <message>
        <source>surge line</source>
        <translation>Pumpgrenze</translation>
    </message>
    <message>
        <source>there are neither coefficients nor enough points for its map</source>
        <translation>für das Kennfeld gibt es weder Koeffizienten noch genug Punkte</translation>
    </message>
    <message>
        <source>energy rate</source>
        <translation>Energiebedarf</translation>
    </message>
    <message>
        <source>there are neither coefficients nor enough points for its power limit</source>
        <translation>für die Leistungsgrenze gibt es weder Koeffizienten noch genug Punkte</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>computed</source>
        <translation>berechnet</translation>
    </message>
    <message>
        <source>results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>difference</source>
        <translation>Unterschied</translation>
    </message>
    <message>
        <source>volume flow</source>
        <translation>Volumenstrom</translation>
    </message>
    <message>
        <source>pressure ratio</source>
        <translation>Druckverhältnis</translation>
    </message>
    <message>
        <source>adiabatic head</source>
        <translation>adiabate Förderhöhe</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>Drehzahl</translation>
    </message>
    <message>
        <source>efficiency</source>
        <translation>Wirkungsgrad</translation>
    </message>
    <message>
        <source>shaft power</source>
        <translation>Wellenleistung</translation>
    </message>
    <message>
        <source>power limit</source>
        <translation>Leistungsgrenze</translation>
    </message>
    <message>
        <source>fuel or current</source>
        <translation>Brenngas oder Strom</translation>
    </message>
    <message>
        <source>outlet temperature</source>
        <translation>Ausgangstemperatur</translation>
    </message>
    <message>
        <source>real gas factor z</source>
        <translation>Realgasfaktor z</translation>
    </message>
    <message>
        <source>isentropic exponent</source>
        <translation>Isentropenexponent</translation>
    </message>
    <message>
        <source>The whole station:</source>
        <translation>Die ganze Station:</translation>
    </message>
    <message>
        <source>%1: largest residual %2, mean %3</source>
        <translation>%1: größte Abweichung %2, im Mittel %3</translation>
    </message>
    <message>
        <source>, condition %1</source>
        <translation>, Kondition %1</translation>
    </message>
    <message>
        <source>Head fitted</source>
        <translation>Förderhöhe angepasst</translation>
    </message>
    <message>
        <source>Head as published</source>
        <translation>Förderhöhe wie veröffentlicht</translation>
    </message>
    <message>
        <source>Efficiency fitted</source>
        <translation>Wirkungsgrad angepasst</translation>
    </message>
    <message>
        <source>Efficiency as published</source>
        <translation>Wirkungsgrad wie veröffentlicht</translation>
    </message>
    <message>
        <source>Surge line fitted</source>
        <translation>Pumpgrenze angepasst</translation>
    </message>
    <message>
        <source>Power limit fitted</source>
        <translation>Leistungsgrenze angepasst</translation>
    </message>
    <message>
        <source>Power limit as published</source>
        <translation>Leistungsgrenze wie veröffentlicht</translation>
    </message>
    <message>
        <source>Energy rate fitted</source>
        <translation>Energiebedarf angepasst</translation>
    </message>
    <message>
        <source>The machine does not run.</source>
        <translation>Die Maschine läuft nicht.</translation>
    </message>
    <message>
        <source>The network has no flow and pressures for a working point.</source>
        <translation>Das Netz hat keinen Durchfluss und keine Drücke für einen Betriebspunkt.</translation>
    </message>
    <message>
        <source>Configuration %1: %2</source>
        <translation>Fahrweise %1: %2</translation>
    </message>
    <message>
        <source>Power at %1</source>
        <translation>Leistung bei %1</translation>
    </message>
    <message>
        <source>Gas: %1</source>
        <translation>Gas: %1</translation>
    </message>
    <message>
        <source>The machines of this station</source>
        <translation>Die Maschinen dieser Station</translation>
    </message>
    <message>
        <source>How the machines of the station work together</source>
        <translation>Wie die Maschinen der Station zusammenarbeiten</translation>
    </message>
    <message>
        <source>as it suits: the first configuration in which all machines work inside their maps</source>
        <translation>wie es passt: die erste Fahrweise, in der alle Maschinen innerhalb ihrer Kennfelder arbeiten</translation>
    </message>
    <message>
        <source>configuration %1</source>
        <translation>Fahrweise %1</translation>
    </message>
    <message>
        <source>our own fit of the measured points</source>
        <translation>unsere Anpassung der gemessenen Punkte</translation>
    </message>
    <message>
        <source>the published coefficients</source>
        <translation>die veröffentlichten Koeffizienten</translation>
    </message>
    <message>
        <source>What maps, working points and distances to limits are computed with, in the whole workspace</source>
        <translation>Womit Kennfelder, Betriebspunkte und Abstände zu Grenzen berechnet werden, im ganzen Arbeitsbereich</translation>
    </message>
    <message>
        <source>Show the lines of the other functions, too</source>
        <translation>Auch die Linien der anderen Funktionen zeigen</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kennfeld</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Residuals</source>
        <translation>Abweichungen</translation>
    </message>
    <message>
        <source>Scenarios</source>
        <translation>Szenarien</translation>
    </message>
    <message>
        <source>power reserve</source>
        <translation>Leistungsreserve</translation>
    </message>
    <message>
        <source>speed reserve</source>
        <translation>Drehzahlreserve</translation>
    </message>
    <message>
        <source>distance to surge</source>
        <translation>Abstand zur Pumpgrenze</translation>
    </message>
    <message>
        <source>turndown</source>
        <translation>Regelbereich</translation>
    </message>
    <message>
        <source>distance to choke</source>
        <translation>Abstand zur Schluckgrenze</translation>
    </message>
    <message>
        <source>fuel gas</source>
        <translation>Brenngas</translation>
    </message>
    <message>
        <source>scenario</source>
        <translation>Szenario</translation>
    </message>
    <message>
        <source>moved point</source>
        <translation>verschobener Punkt</translation>
    </message>
    <message>
        <source>efficiency of the drive</source>
        <translation>Wirkungsgrad des Antriebs</translation>
    </message>
    <message>
        <source>Esc or a double click goes back to the scenario&apos;s point. Nothing in the network changes.</source>
        <translation>Esc oder ein Doppelklick führt zum Punkt des Szenarios zurück. Im Netz ändert sich nichts.</translation>
    </message>
    <message>
        <source>machine</source>
        <translation>Maschine</translation>
    </message>
    <message>
        <source>stage</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>part of the flow</source>
        <translation>Anteil am Durchfluss</translation>
    </message>
    <message>
        <source>Shaft power of all: %1</source>
        <translation>Wellenleistung aller: %1</translation>
    </message>
    <message>
        <source>Drag the diamond, or use the arrow keys, to see what another point would need.</source>
        <translation>Ziehen Sie die Raute oder drücken Sie die Pfeiltasten, um zu sehen, was ein anderer Punkt bräuchte.</translation>
    </message>
</context>
<context>
    <name>MachineReader</name>
    <message>
        <source>&quot;%1&quot; is no number: %2</source>
        <translation>&quot;%1&quot; ist keine Zahl: %2</translation>
    </message>
    <message>
        <source>a piston compressor needs its displacement and a range of speeds</source>
        <translation>ein Kolbenverdichter braucht sein Hubvolumen und einen Drehzahlbereich</translation>
    </message>
    <message>
        <source>no machine of this name stands above this row of the table &quot;%1&quot;</source>
        <translation>über dieser Zeile der Tabelle &quot;%1&quot; steht keine Maschine dieses Namens</translation>
    </message>
    <message>
        <source>The machine data cannot be read: %1</source>
        <translation>Die Maschinendaten sind nicht lesbar: %1</translation>
    </message>
</context>
<context>
    <name>MachineXml</name>
    <message>
        <source>%1 is no number: &quot;%2&quot;</source>
        <translation>%1 ist keine Zahl: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; of %2 is not known, the value is left out</source>
        <translation>die Einheit &quot;%1&quot; von %2 ist nicht bekannt, der Wert wird ausgelassen</translation>
    </message>
    <message>
        <source>the element %1 is not known and left out</source>
        <translation>das Element %1 ist nicht bekannt und wird ausgelassen</translation>
    </message>
    <message>
        <source>%1: a piston compressor needs its displacement and a range of speeds</source>
        <translation>%1: ein Kolbenverdichter braucht sein Hubvolumen und einen Drehzahlbereich</translation>
    </message>
    <message>
        <source>%1: a measurement needs its speed and its power; it is left out</source>
        <translation>%1: eine Messung braucht ihre Drehzahl und ihre Leistung; sie wird ausgelassen</translation>
    </message>
    <message>
        <source>%1: a measurement needs its power and its consumption; it is left out</source>
        <translation>%1: eine Messung braucht ihre Leistung und ihren Verbrauch; sie wird ausgelassen</translation>
    </message>
    <message>
        <source>the configuration %1 of %2 names no compressor and is left out</source>
        <translation>die Fahrweise %1 von %2 nennt keinen Verdichter und wird ausgelassen</translation>
    </message>
</context>
<context>
    <name>MapCanvas</name>
    <message>
        <source>results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Copy picture	Ctrl+C</source>
        <translation>Bild kopieren	Strg+C</translation>
    </message>
    <message>
        <source>Save picture …</source>
        <translation>Bild speichern …</translation>
    </message>
    <message>
        <source>Print or save a page …	Ctrl+P</source>
        <translation>Seite drucken oder speichern …	Strg+P</translation>
    </message>
</context>
<context>
    <name>MapPlot</name>
    <message>
        <source>no working point</source>
        <translation>kein Betriebspunkt</translation>
    </message>
    <message>
        <source>Q = %1, H = %2</source>
        <translation>Q = %1, H = %2</translation>
    </message>
    <message>
        <source>n = %1</source>
        <translation>n = %1</translation>
    </message>
    <message>
        <source>η = %1 %</source>
        <translation>η = %1 %</translation>
    </message>
    <message>
        <source>P = %1</source>
        <translation>P = %1</translation>
    </message>
    <message>
        <source>surge</source>
        <translation>Pumpgrenze</translation>
    </message>
    <message>
        <source>choke</source>
        <translation>Schluckgrenze</translation>
    </message>
    <message>
        <source>volume flow at the inlet</source>
        <translation>Volumenstrom am Eingang</translation>
    </message>
    <message>
        <source>adiabatic head</source>
        <translation>Förderhöhe</translation>
    </message>
    <message>
        <source>Q = %1
H = %2</source>
        <translation>Q = %1
H = %2</translation>
    </message>
    <message>
        <source>
n = %1</source>
        <translation>
n = %1</translation>
    </message>
    <message>
        <source>
η = %1 %</source>
        <translation>
η = %1 %</translation>
    </message>
    <message>
        <source>pressure ratio</source>
        <translation>Druckverhältnis</translation>
    </message>
    <message>
        <source>Q = %1
ratio = %2
n = %3</source>
        <translation>Q = %1
Verhältnis = %2
n = %3</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>Drehzahl</translation>
    </message>
    <message>
        <source>largest power</source>
        <translation>größte Leistung</translation>
    </message>
    <message>
        <source>n = %1
P = %2</source>
        <translation>n = %1
P = %2</translation>
    </message>
    <message>
        <source>
limit = %1 at %2</source>
        <translation>
Grenze = %1 bei %2</translation>
    </message>
    <message>
        <source>power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>current taken</source>
        <translation>Stromaufnahme</translation>
    </message>
    <message>
        <source>fuel taken</source>
        <translation>Brenngasbedarf</translation>
    </message>
    <message>
        <source>
takes %1</source>
        <translation>
braucht %1</translation>
    </message>
    <message>
        <source>the functions that do not count</source>
        <translation>die Funktionen, die nicht gelten</translation>
    </message>
</context>
<context>
    <name>MapScale</name>
    <message>
        <source> km</source>
        <translation> km</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
</context>
<context>
    <name>MeasureLayer</name>
    <message>
        <source>Distance %1</source>
        <translation>Entfernung %1</translation>
    </message>
    <message>
        <source>Distance %1, last leg %2</source>
        <translation>Entfernung %1, letztes Stück %2</translation>
    </message>
</context>
<context>
    <name>MeasureTool</name>
    <message>
        <source>Click along a path to measure it; a double click ends the path, Esc the measuring</source>
        <translation>Einen Weg durch Klicken messen; ein Doppelklick beendet den Weg, Esc das Messen</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
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
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
</context>
<context>
    <name>MetaDataModel</name>
    <message>
        <source>ShortNames</source>
        <translation>Kurznamen</translation>
    </message>
    <message>
        <source>LongNames</source>
        <translation>Langnamen</translation>
    </message>
    <message>
        <source>Description (Attribute.csv)</source>
        <translation>Beschreibung (Attribute.csv)</translation>
    </message>
    <message>
        <source>ElementTypes</source>
        <translation>Elementtypen</translation>
    </message>
    <message>
        <source>NodeFunctions</source>
        <translation>Knotenfunktionen</translation>
    </message>
    <message>
        <source>EdgeFunctions</source>
        <translation>Kantenfunktionen</translation>
    </message>
    <message>
        <source>GeomParms</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>ScenParms</source>
        <translation>Szenario</translation>
    </message>
    <message>
        <source>ResultParms</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>GasParms</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>VisParms</source>
        <translation>Darstellung</translation>
    </message>
</context>
<context>
    <name>MetaDataTable</name>
    <message>
        <source>MetaData</source>
        <translation>Metadaten</translation>
    </message>
</context>
<context>
    <name>NetPicker</name>
    <message>
        <source>Select All (Ctrl+A)</source>
        <translation>Alles auswählen (Strg+A)</translation>
    </message>
</context>
<context>
    <name>NetPlot</name>
    <message>
        <source>1 node lies far outside this view (right-click to see it)</source>
        <translation>1 Knoten liegt weit außerhalb dieser Ansicht (ein Rechtsklick zeigt ihn)</translation>
    </message>
    <message>
        <source>%1 nodes lie far outside this view (right-click to see them)</source>
        <translation>%1 Knoten liegen weit außerhalb dieser Ansicht (ein Rechtsklick zeigt sie)</translation>
    </message>
    <message>
        <source>Nothing to draw: no element of this network has coordinates.</source>
        <translation>Nichts zu zeichnen: Kein Element dieses Netzes hat Koordinaten.</translation>
    </message>
    <message>
        <source>Nothing to draw: the network is empty.</source>
        <translation>Nichts zu zeichnen: Das Netz ist leer.</translation>
    </message>
</context>
<context>
    <name>NetUpdate</name>
    <message>
        <source>beyond bounds (major)</source>
        <translation>außerhalb der Schranken (erheblich)</translation>
    </message>
    <message>
        <source>beyond bounds</source>
        <translation>außerhalb der Schranken</translation>
    </message>
</context>
<context>
    <name>NetworkCheck</name>
    <message>
        <source>Check the network</source>
        <translation>Netz prüfen</translation>
    </message>
    <message>
        <source>Look for nominations that do not balance or break bounds, nodes that are cut off, pipes that are there twice (Shift+F8)</source>
        <translation>Nach Nominierungen suchen, die nicht aufgehen oder Schranken verletzen, nach abgeschnittenen Knoten und doppelten Leitungen (Umschalt+F8)</translation>
    </message>
    <message>
        <source>Checking the network …</source>
        <translation>Das Netz wird geprüft …</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>Die Prüfung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The check found nothing wrong.</source>
        <translation>Die Prüfung fand nichts.</translation>
    </message>
    <message>
        <source>The check found 1 thing to look at.</source>
        <translation>Die Prüfung fand 1 Stelle zum Ansehen.</translation>
    </message>
    <message>
        <source>The check found %1 things to look at.</source>
        <translation>Die Prüfung fand %1 Stellen zum Ansehen.</translation>
    </message>
    <message>
        <source>Progress of the check</source>
        <translation>Fortschritt der Prüfung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop checking</source>
        <translation>Die Prüfung abbrechen</translation>
    </message>
</context>
<context>
    <name>NetworkFileConverter</name>
    <message>
        <source>line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>unvollständig</translation>
    </message>
    <message>
        <source>element with values</source>
        <translation>Element mit Werten</translation>
    </message>
    <message>
        <source>element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>%1 does not fit: %2</source>
        <translation>%1 passt nicht: %2</translation>
    </message>
    <message>
        <source>%1 is not named as a network file is</source>
        <translation>%1 heißt nicht wie eine Netzdatei</translation>
    </message>
    <message>
        <source>%1 and %2 are named as files of different kinds</source>
        <translation>%1 und %2 heißen wie Dateien verschiedener Art</translation>
    </message>
    <message>
        <source>Cannot read %1</source>
        <translation>%1 ist nicht lesbar</translation>
    </message>
</context>
<context>
    <name>NetworkFormulas</name>
    <message>
        <source>%1 could not be computed for %2 of %3 elements, the first is %4: %5</source>
        <translation>%1 ließ sich für %2 von %3 Elementen nicht berechnen, das erste ist %4: %5</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; does not fit &quot;%2&quot;, in which %3 is stored</source>
        <translation>die Einheit &quot;%1&quot; passt nicht zu &quot;%2&quot;, in der %3 gespeichert ist</translation>
    </message>
    <message>
        <source>The formula of %1 is left out: %2</source>
        <translation>Die Formel für %1 wird ausgelassen: %2</translation>
    </message>
    <message>
        <source>The formula needs its own result and is left out: %1</source>
        <translation>Die Formel braucht ihr eigenes Ergebnis und wird ausgelassen: %1</translation>
    </message>
    <message>
        <source>These formulas need one another&apos;s results and are left out: %1</source>
        <translation>Diese Formeln brauchen wechselseitig ihre Ergebnisse und werden ausgelassen: %1</translation>
    </message>
    <message>
        <source>No element has the property &quot;%1&quot;.</source>
        <translation>Kein Element hat die Eigenschaft &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no element &quot;%1&quot;.</source>
        <translation>Ein Element &quot;%1&quot; gibt es nicht.</translation>
    </message>
    <message>
        <source>the result is not finite</source>
        <translation>das Ergebnis ist nicht endlich</translation>
    </message>
    <message>
        <source>the formulas make more than %1 MB of texts</source>
        <translation>die Formeln erzeugen mehr als %1 MB Text</translation>
    </message>
</context>
<context>
    <name>NetworkLoader</name>
    <message>
        <source>Check with findings! See log! Beginning:
</source>
        <translation>Prüfung mit Befunden! Siehe Protokoll! Anfang:
</translation>
    </message>
    <message>
        <source>%1 is no usable workspace: %2</source>
        <translation>%1 ist kein brauchbarer Arbeitsbereich: %2</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Reading was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Machine data</source>
        <translation>Maschinendaten</translation>
    </message>
    <message>
        <source>Subnets</source>
        <translation>Teilnetze</translation>
    </message>
    <message>
        <source>Formulas</source>
        <translation>Formeln</translation>
    </message>
    <message>
        <source>1 bound is violated, see the findings</source>
        <translation>1 Schranke ist verletzt, siehe Befunde</translation>
    </message>
    <message>
        <source>%1 bounds are violated, see the findings</source>
        <translation>%1 Schranken sind verletzt, siehe Befunde</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>Schranken</translation>
    </message>
</context>
<context>
    <name>NetworkMachines</name>
    <message>
        <source>all side by side</source>
        <translation>alle parallel</translation>
    </message>
    <message>
        <source>%1 alone</source>
        <translation>%1 allein</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>shaft power</source>
        <translation>Wellenleistung</translation>
    </message>
    <message>
        <source>adiabatic head</source>
        <translation>adiabate Förderhöhe</translation>
    </message>
    <message>
        <source>pressure ratio</source>
        <translation>Druckverhältnis</translation>
    </message>
    <message>
        <source>volume flow</source>
        <translation>Volumenstrom</translation>
    </message>
    <message>
        <source>efficiency</source>
        <translation>Wirkungsgrad</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>Drehzahl</translation>
    </message>
    <message>
        <source>The results state %1 = %2 %4, the map tells %3 %4</source>
        <translation>In den Ergebnissen steht %1 = %2 %4, das Kennfeld ergibt %3 %4</translation>
    </message>
</context>
<context>
    <name>NetworkPage</name>
    <message>
        <source>Network</source>
        <translation>Netz</translation>
    </message>
</context>
<context>
    <name>NetworkPaper</name>
    <message>
        <source>Whole network</source>
        <translation>Ganzes Netz</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
</context>
<context>
    <name>NetworkRules</name>
    <message>
        <source>By the results its edges bring %1, but the node takes %2</source>
        <translation>Nach den Ergebnissen bringen die Kanten %1, der Knoten nimmt aber %2</translation>
    </message>
    <message>
        <source> (its drives burn %1)</source>
        <translation> (seine Antriebe verbrennen %1)</translation>
    </message>
    <message>
        <source>The part of %1 nodes is supplied with %2 and gives %3, %4 is left</source>
        <translation>In den Teil aus %1 Knoten werden %2 eingespeist und %3 entnommen, %4 bleiben übrig</translation>
    </message>
    <message>
        <source>%1 nodes are cut off from every source and every set pressure</source>
        <translation>%1 Knoten sind von jeder Quelle und jedem vorgegebenen Druck abgeschnitten</translation>
    </message>
    <message>
        <source>The node is cut off from every source and every set pressure</source>
        <translation>Der Knoten ist von jeder Quelle und jedem vorgegebenen Druck abgeschnitten</translation>
    </message>
    <message>
        <source>, %1 is to be taken there</source>
        <translation>, dort sollen %1 entnommen werden</translation>
    </message>
    <message>
        <source>No pressure is set in the part of %1 nodes</source>
        <translation>In dem Teil aus %1 Knoten ist kein Druck vorgegeben</translation>
    </message>
    <message>
        <source>No pressure is set at the node, which nothing joins to others</source>
        <translation>An dem Knoten, den nichts mit anderen verbindet, ist kein Druck vorgegeben</translation>
    </message>
    <message>
        <source>%1 pipes of %2 and %3 lie between the same nodes, also %4</source>
        <translation>%1 Leitungen von %2 und %3 liegen zwischen denselben Knoten, auch %4</translation>
    </message>
    <message>
        <source>The pipe is %1 long</source>
        <translation>Die Leitung ist %1 lang</translation>
    </message>
    <message>
        <source>The length of the pipe is missing</source>
        <translation>Die Länge der Leitung fehlt</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>The heights of %1 differ by %2 over %3, %4 m per km</source>
        <translation>Die Höhen von %1 unterscheiden sich um %2 auf %3, %4 m je km</translation>
    </message>
    <message>
        <source>The heights of %1 differ by %2</source>
        <translation>Die Höhen von %1 unterscheiden sich um %2</translation>
    </message>
    <message>
        <source>%1 nodes lie at the point (%2, %3)</source>
        <translation>%1 Knoten liegen am Punkt (%2, %3)</translation>
    </message>
    <message>
        <source>%1 more of this kind are not listed</source>
        <translation>%1 weitere dieser Art sind nicht aufgeführt</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>The set flow is %1, contracted are %2</source>
        <translation>Der vorgegebene Fluss ist %1, vertraglich sind %2</translation>
    </message>
    <message>
        <source>The set flow is %1, allowed are %2</source>
        <translation>Der vorgegebene Fluss ist %1, erlaubt sind %2</translation>
    </message>
    <message>
        <source>The set flow is %1, the elements at the node can carry %2</source>
        <translation>Der vorgegebene Fluss ist %1, die Elemente am Knoten können %2 tragen</translation>
    </message>
    <message>
        <source>The set flow is %1, the connection can carry %2</source>
        <translation>Der vorgegebene Fluss ist %1, der Anschluss kann %2 tragen</translation>
    </message>
    <message>
        <source>The set pressure is %1, allowed are %2</source>
        <translation>Der vorgegebene Druck ist %1, erlaubt sind %2</translation>
    </message>
    <message>
        <source>The lower bound of the pressure is %1, the upper one %2</source>
        <translation>Die untere Schranke des Drucks ist %1, die obere %2</translation>
    </message>
    <message>
        <source>The lower bound of the flow is %1, the upper one %2</source>
        <translation>Die untere Schranke des Flusses ist %1, die obere %2</translation>
    </message>
    <message>
        <source>What flows to a node does not flow off</source>
        <translation>Was zu einem Knoten fließt, fließt nicht ab</translation>
    </message>
    <message>
        <source>Entries and exits of a connected part differ</source>
        <translation>Ein- und Ausspeisungen eines zusammenhängenden Teils unterscheiden sich</translation>
    </message>
    <message>
        <source>A set flow is outside of its contract</source>
        <translation>Ein vorgegebener Fluss liegt außerhalb seines Vertrags</translation>
    </message>
    <message>
        <source>A set flow is outside of its bounds</source>
        <translation>Ein vorgegebener Fluss liegt außerhalb seiner Schranken</translation>
    </message>
    <message>
        <source>A set flow is larger than the connection can carry</source>
        <translation>Ein vorgegebener Fluss ist größer, als der Anschluss tragen kann</translation>
    </message>
    <message>
        <source>A set pressure is outside of its bounds</source>
        <translation>Ein vorgegebener Druck liegt außerhalb seiner Schranken</translation>
    </message>
    <message>
        <source>A lower bound is above the upper one</source>
        <translation>Eine untere Schranke liegt über der oberen</translation>
    </message>
    <message>
        <source>Nodes are cut off from every source</source>
        <translation>Knoten sind von jeder Quelle abgeschnitten</translation>
    </message>
    <message>
        <source>Nothing holds the pressure of a connected part</source>
        <translation>Nichts hält den Druck eines zusammenhängenden Teils</translation>
    </message>
    <message>
        <source>Pipes are alike and lie between the same nodes</source>
        <translation>Gleiche Leitungen liegen zwischen denselben Knoten</translation>
    </message>
    <message>
        <source>A pipe has no length</source>
        <translation>Eine Leitung hat keine Länge</translation>
    </message>
    <message>
        <source>The height jumps between two nodes</source>
        <translation>Die Höhe springt zwischen zwei Knoten</translation>
    </message>
    <message>
        <source>Many nodes lie at one point</source>
        <translation>Viele Knoten liegen an einem Punkt</translation>
    </message>
    <message>
        <source>At all %1 nodes that state a flow the results flow the other way</source>
        <translation>An allen %1 Knoten, die einen Fluss angeben, fließt das Gas in den Ergebnissen umgekehrt</translation>
    </message>
</context>
<context>
    <name>NetworkSeries</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>NivraEleInfoWidget</name>
    <message>
        <source>Element information</source>
        <translation>Elementinformation</translation>
    </message>
    <message>
        <source>Element Information</source>
        <translation>Elementinformation</translation>
    </message>
    <message>
        <source>Currently marked element / subnet:</source>
        <translation>Aktuell markiertes Element / Teilnetz:</translation>
    </message>
    <message>
        <source>No element marked</source>
        <translation>Kein Element markiert</translation>
    </message>
    <message>
        <source>No subnet marked</source>
        <translation>Kein Teilnetz markiert</translation>
    </message>
    <message>
        <source>Label contents:</source>
        <translation>Beschriftungsinhalt:</translation>
    </message>
    <message>
        <source>Label of the element</source>
        <translation>Beschriftung des Elements</translation>
    </message>
    <message>
        <source>(Violated bounds shown here)</source>
        <translation>(Hier stehen verletzte Schranken)</translation>
    </message>
    <message>
        <source>(Element Label shown here)</source>
        <translation>(Hier steht die Beschriftung)</translation>
    </message>
    <message>
        <source>   No element marked!   </source>
        <translation>   Kein Element markiert!   </translation>
    </message>
    <message>
        <source>   No subnet marked!   </source>
        <translation>   Kein Teilnetz markiert!   </translation>
    </message>
    <message>
        <source>   &lt;b&gt;Element: %1&lt;/b&gt;   </source>
        <translation>   &lt;b&gt;Element: %1&lt;/b&gt;   </translation>
    </message>
    <message>
        <source>   &lt;b&gt;Subnet: %1&lt;/b&gt;   </source>
        <translation>   &lt;b&gt;Teilnetz: %1&lt;/b&gt;   </translation>
    </message>
</context>
<context>
    <name>NivraFindings</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Go to the next finding (F8)</source>
        <translation>Zum nächsten Befund (F8)</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter of the findings</source>
        <translation>Filter der Befunde</translation>
    </message>
    <message>
        <source>No finding has the text of the filter.</source>
        <translation>Kein Befund enthält den Text des Filters.</translation>
    </message>
    <message>
        <source>1 finding</source>
        <translation>1 Befund</translation>
    </message>
    <message>
        <source>%1 findings</source>
        <translation>%1 Befunde</translation>
    </message>
    <message>
        <source>%1 of %2 findings</source>
        <translation>%1 von %2 Befunden</translation>
    </message>
    <message>
        <source>Save …</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Write the findings that are shown into a workbook or a CSV file</source>
        <translation>Die gezeigten Befunde in eine Arbeitsmappe oder eine CSV-Datei schreiben</translation>
    </message>
    <message>
        <source>Stage or rule</source>
        <translation>Schritt oder Regel</translation>
    </message>
    <message>
        <source>Shows what one stage or rule found</source>
        <translation>Zeigt, was ein Schritt oder eine Regel fand</translation>
    </message>
    <message>
        <source>All stages and rules</source>
        <translation>Alle Schritte und Regeln</translation>
    </message>
    <message>
        <source>findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Nothing was found to be wrong. Info, &quot;Check the network&quot; (Shift+F8) looks for more.</source>
        <translation>Es wurde nichts Falsches gefunden. Info, „Netz prüfen“ (Umschalt+F8) sucht nach mehr.</translation>
    </message>
</context>
<context>
    <name>NivraGasParams</name>
    <message>
        <source>NivraGasParams::readFromFile: cannot open file %1</source>
        <translation>NivraGasParams::readFromFile: Datei lässt sich nicht öffnen: %1</translation>
    </message>
</context>
<context>
    <name>NivraNetLayersEditor</name>
    <message>
        <source>Layers Editor</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Layer Property</source>
        <translation>Eigenschaft der Ebenen</translation>
    </message>
    <message>
        <source>Property of the layers</source>
        <translation>Eigenschaft der Ebenen</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>show all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>hide all</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>invert</source>
        <translation>umkehren</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Add the selected elements to a layer</source>
        <translation>Die ausgewählten Elemente einer Ebene hinzufügen</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Delete the selected layers</source>
        <translation>Die ausgewählten Ebenen löschen</translation>
    </message>
    <message>
        <source>&amp;Save …</source>
        <translation>&amp;Speichern …</translation>
    </message>
    <message>
        <source>Write the layers that were changed to a file; as layers.csv of the case it is read whenever the case is opened</source>
        <translation>Die geänderten Ebenen in eine Datei schreiben; als layers.csv des Falls wird sie bei jedem Öffnen des Falls gelesen</translation>
    </message>
    <message>
        <source>&amp;Load …</source>
        <translation>&amp;Laden …</translation>
    </message>
    <message>
        <source>Read layers that were saved</source>
        <translation>Gespeicherte Ebenen lesen</translation>
    </message>
    <message>
        <source>Elements of the layer</source>
        <translation>Elemente der Ebene</translation>
    </message>
    <message>
        <source>show all layers</source>
        <translation>alle Ebenen zeigen</translation>
    </message>
    <message>
        <source>hide all layers</source>
        <translation>alle Ebenen ausblenden</translation>
    </message>
    <message>
        <source>invert visibility</source>
        <translation>Sichtbarkeit umkehren</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; says what an element is or where it lies. Layers of it can be shown and hidden, but not changed: choose another layer property.</source>
        <translation>Die Eigenschaft &quot;%1&quot; sagt, was ein Element ist oder wo es liegt. Ihre Ebenen lassen sich zeigen und ausblenden, aber nicht ändern: Wählen Sie eine andere Eigenschaft der Ebenen.</translation>
    </message>
    <message>
        <source>layer name contains forbidden characters! Try again!</source>
        <translation>Der Name der Ebene enthält unerlaubte Zeichen! Bitte noch einmal!</translation>
    </message>
    <message>
        <source>This will set the &quot;%1&quot; property to &quot;%2&quot; for all elements in this Layer. Existing values will be overwritten. Continue?</source>
        <translation>Die Eigenschaft &quot;%1&quot; erhält bei allen Elementen dieser Ebene den Wert &quot;%2&quot;. Vorhandene Werte werden überschrieben. Fortfahren?</translation>
    </message>
    <message>
        <source>Rename Layer</source>
        <translation>Ebene umbenennen</translation>
    </message>
    <message>
        <source>layer already exists! Use?</source>
        <translation>Die Ebene gibt es schon! Verwenden?</translation>
    </message>
    <message>
        <source>Choose layer</source>
        <translation>Ebene wählen</translation>
    </message>
    <message>
        <source>add selected elements to layer:</source>
        <translation>ausgewählte Elemente hinzufügen zu:</translation>
    </message>
    <message>
        <source>Enter name of layer</source>
        <translation>Name der Ebene</translation>
    </message>
    <message>
        <source>name of layer:</source>
        <translation>Name der Ebene:</translation>
    </message>
    <message>
        <source>layer name not allowed</source>
        <translation>dieser Name ist nicht erlaubt</translation>
    </message>
    <message>
        <source>select elements to add.</source>
        <translation>Wählen Sie Elemente aus, die hinzugefügt werden sollen.</translation>
    </message>
    <message>
        <source>This will set the &quot;%1&quot; property to &quot;%2&quot; for all selected elements. Existing values will be overwritten. Continue?</source>
        <translation>Die Eigenschaft &quot;%1&quot; erhält bei allen ausgewählten Elementen den Wert &quot;%2&quot;. Vorhandene Werte werden überschrieben. Fortfahren?</translation>
    </message>
    <message>
        <source>Add Layer</source>
        <translation>Ebene hinzufügen</translation>
    </message>
    <message>
        <source>This will erase the &quot;%1&quot; property from all elements in the selected layers. Continue?</source>
        <translation>Die Eigenschaft &quot;%1&quot; wird bei allen Elementen der ausgewählten Ebenen entfernt. Fortfahren?</translation>
    </message>
    <message>
        <source>Delete Layers</source>
        <translation>Ebenen löschen</translation>
    </message>
</context>
<context>
    <name>NivraNetObjectCats</name>
    <message>
        <source>Element Categories</source>
        <translation>Elementkategorien</translation>
    </message>
    <message>
        <source>add category</source>
        <translation>hinzufügen</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>entfernen</translation>
    </message>
    <message>
        <source>to Search</source>
        <translation>zur Suche</translation>
    </message>
    <message>
        <source>Use criteria of selected category for an element search (Search widget)</source>
        <translation>Mit den Kriterien der ausgewählten Kategorie nach Elementen suchen (Bereich Suche)</translation>
    </message>
    <message>
        <source>show in table</source>
        <translation>in Tabelle</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>apply</source>
        <translation>anwenden</translation>
    </message>
    <message>
        <source>reload from file</source>
        <translation>neu laden</translation>
    </message>
    <message>
        <source>save to file</source>
        <translation>in Datei speichern</translation>
    </message>
    <message>
        <source>The categories have changes that are not saved. Save them?</source>
        <translation>Die Kategorien haben Änderungen, die nicht gespeichert sind. Jetzt speichern?</translation>
    </message>
    <message>
        <source>Mark a row first!</source>
        <translation>Markieren Sie zuerst eine Zeile!</translation>
    </message>
</context>
<context>
    <name>NivraPropViewer</name>
    <message>
        <source>Property Viewer</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Filter of the properties</source>
        <translation>Filter der Eigenschaften</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>Open Characteristics</source>
        <translation>Kennfelder öffnen</translation>
    </message>
    <message>
        <source>Property Viewer (Hover Over Element First!)</source>
        <translation>Eigenschaften (zuerst auf ein Element zeigen!)</translation>
    </message>
    <message>
        <source>Properties of </source>
        <translation>Eigenschaften von </translation>
    </message>
    <message>
        <source> of type </source>
        <translation> vom Typ </translation>
    </message>
    <message>
        <source>Why This Value</source>
        <translation>Warum dieser Wert</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Y</source>
        <translation>Ctrl+Shift+Y</translation>
    </message>
</context>
<context>
    <name>NivraReader</name>
    <message>
        <source>readTopoAndScen: cannot read %1</source>
        <translation>readTopoAndScen: nicht lesbar: %1</translation>
    </message>
    <message>
        <source>readScen: cannot read scen file %1</source>
        <translation>readScen: scen-Datei nicht lesbar: %1</translation>
    </message>
    <message>
        <source>There is no scenario</source>
        <translation>Es gibt kein Szenario</translation>
    </message>
</context>
<context>
    <name>NivraSearch</name>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>A part of the name, or with RegEx a pattern: ^N finds what begins with N, N$ what ends with N.</source>
        <translation>Ein Teil des Namens oder mit RegEx ein Muster: ^N findet, was mit N beginnt, N$, was mit N endet.</translation>
    </message>
    <message>
        <source>Search with RegEx</source>
        <translation>Suche mit RegEx</translation>
    </message>
    <message>
        <source>Search with regular expression can be toggled.&lt;br/&gt;The search is case insensitive.</source>
        <translation>Schaltet die Suche mit regulärem Ausdruck um.&lt;br/&gt;Groß- und Kleinschreibung spielt keine Rolle.</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>A pattern of type codes (^p$ finds pipes) or a type as people say it: node, pipe, compressor.
Empty: all types.</source>
        <translation>Ein Muster der Typkürzel (^p$ findet Leitungen) oder ein Typ in Worten: Knoten, Leitung, Verdichter.
Leer: alle Typen.</translation>
    </message>
    <message>
        <source>pipe, or its code: ^p$</source>
        <translation>Leitung, oder ihr Kürzel: ^p$</translation>
    </message>
    <message>
        <source>Last searches</source>
        <translation>Letzte Suchen</translation>
    </message>
    <message>
        <source>Prop:</source>
        <translation>Eig.:</translation>
    </message>
    <message>
        <source>A pattern: p finds every property with a p in its name, ^p$ finds p alone, ^p$|^q$ finds p and q.
Empty: all properties.</source>
        <translation>Ein Muster: p findet jede Eigenschaft mit einem p im Namen, ^p$ nur p, ^p$|^q$ findet p und q.
Leer: alle Eigenschaften.</translation>
    </message>
    <message>
        <source>pattern, e.g. ^p$</source>
        <translation>Muster, z. B. ^p$</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Empties the four fields</source>
        <translation>Leert die vier Felder</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>A pattern that the value contains, a comparison with the value as it is shown (&gt;10, &lt;=3, =0),
or a formula that the element satisfies (abs(v@ELE)&gt;10).</source>
        <translation>Ein Muster, das der Wert enthält, ein Vergleich mit dem Wert, wie er gezeigt wird (&gt;10, &lt;=3, =0),
oder eine Formel, die das Element erfüllt (abs(v@ELE)&gt;10).</translation>
    </message>
    <message>
        <source>ƒ</source>
        <translation>ƒ</translation>
    </message>
    <message>
        <source>Formula …</source>
        <translation>Formel …</translation>
    </message>
    <message>
        <source>select in net</source>
        <translation>im Netz</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>replace</source>
        <translation>ersetzen</translation>
    </message>
    <message>
        <source>Found:</source>
        <translation>Treffer:</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Open Table of Vector Values</source>
        <translation>Wertetabelle öffnen</translation>
    </message>
    <message>
        <source>Add Cat</source>
        <translation>Als Kategorie</translation>
    </message>
    <message>
        <source>Use current configuration to set up a new category</source>
        <translation>Aus diesen Angaben eine neue Kategorie anlegen</translation>
    </message>
    <message>
        <source>Save …</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Formula not ok! Search stopped (incomplete)!</source>
        <translation>Formel fehlerhaft! Suche abgebrochen (unvollständig)!</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>Treffer: %1</translation>
    </message>
    <message>
        <source>Enter formula</source>
        <translation>Formel eingeben</translation>
    </message>
    <message>
        <source>Formula:</source>
        <translation>Formel:</translation>
    </message>
    <message>
        <source>Use ELE to refer to current element,
e.g. p@ELE&gt;0.1 !</source>
        <translation>ELE steht für das aktuelle Element,
z. B. p@ELE&gt;0.1 !</translation>
    </message>
    <message>
        <source>RegEx</source>
        <translation>RegEx</translation>
    </message>
    <message>
        <source>Choose File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>CSV (*.csv);;TXT (*.txt);;All Files (*)</source>
        <translation>CSV (*.csv);;TXT (*.txt);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>NivraVecTable</name>
    <message>
        <source>Table of Vector Values</source>
        <translation>Wertetabelle</translation>
    </message>
    <message>
        <source>Table of Values</source>
        <translation>Tabelle der Werte</translation>
    </message>
    <message>
        <source>Use Prop</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Toggle this for selecting between &quot;Vector Property&quot; and &quot;Category&quot; combo boxes. Only one of them can be used.</source>
        <translation>Schaltet zwischen den Listen &quot;Eigenschaft&quot; und &quot;Kategorie&quot; um. Nur eine davon kann verwendet werden.</translation>
    </message>
    <message>
        <source>Vector Property:</source>
        <translation>Eigenschaft:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Non-zero result</source>
        <translation>Ergebnis nicht null</translation>
    </message>
    <message>
        <source>Use Selection</source>
        <translation>Nur Auswahl</translation>
    </message>
    <message>
        <source>List only elements currently selected in the main net</source>
        <translation>Nur Elemente auflisten, die im Hauptnetz gerade ausgewählt sind</translation>
    </message>
    <message>
        <source>Klick on name of an element for marking it in the net and scenario data explorer. The value of one or more selected elements can be edited if the Scenario Edit Mode allows this.</source>
        <translation>Ein Klick auf den Namen eines Elements markiert es im Netz. Der Wert eines oder mehrerer ausgewählter Elemente lässt sich bearbeiten, wenn die Betriebsart es erlaubt.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Try Numerical Sort</source>
        <translation>Als Zahlen sortieren</translation>
    </message>
    <message>
        <source>This will re-sort column &quot;value&quot;. Its values are converted to doubles and then sorted.</source>
        <translation>Sortiert neu nach der Spalte &quot;Wert&quot;. Ihre Werte werden dazu in Zahlen umgewandelt.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 of %2 rows, filter: %3</source>
        <translation>%1 von %2 Zeilen, Filter: %3</translation>
    </message>
    <message>
        <source>Choose File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>CSV (*.csv);;TXT (*.txt);;All Files (*)</source>
        <translation>CSV (*.csv);;TXT (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>the selected rows</source>
        <translation>die ausgewählten Zeilen</translation>
    </message>
    <message>
        <source>the shown rows</source>
        <translation>die gezeigten Zeilen</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>numsort</source>
        <translation>Rang</translation>
    </message>
</context>
<context>
    <name>NivraViewer</name>
    <message>
        <source>Nivra Reader</source>
        <translation>Nivra Reader</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;body style=&quot;font-size:16pt; color:#888a85;&quot;&gt;Press &lt;span style=&quot;font-weight:700;&quot;&gt;Ctrl+O&lt;/span&gt; or use &lt;span style=&quot;font-weight:700;&quot;&gt;Drag &amp;amp; Drop&lt;/span&gt;&lt;br/&gt;to open a Geom or Scen file&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;body style=&quot;font-size:16pt; color:#888a85;&quot;&gt;Mit &lt;span style=&quot;font-weight:700;&quot;&gt;Strg+O&lt;/span&gt; oder durch &lt;span style=&quot;font-weight:700;&quot;&gt;Ziehen &amp;amp; Ablegen&lt;/span&gt;&lt;br/&gt;eine Geometrie- oder Szenariodatei öffnen&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>SearchElements</source>
        <translation>Elemente suchen</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>The page about what has the keyboard</source>
        <translation>Die Seite über das, was die Tastatur hat</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Metadata Table</source>
        <translation>Metadatentabelle</translation>
    </message>
    <message>
        <source>About Nivra Reader</source>
        <translation>Über Nivra Reader</translation>
    </message>
    <message>
        <source>Open Geom or Scen</source>
        <translation>Geometrie oder Szenario öffnen</translation>
    </message>
    <message>
        <source>Open Geom or Scen File</source>
        <translation>Geometrie- oder Szenariodatei öffnen</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Page &amp;Setup and Save …</source>
        <translation>&amp;Seite einrichten und speichern …</translation>
    </message>
    <message>
        <source>The drawing on a page with title, legend and scale bar, as PDF, SVG or picture (Ctrl+Alt+P)</source>
        <translation>Die Zeichnung auf einer Seite mit Titel, Legende und Maßstab, als PDF, SVG oder Bild (Strg+Alt+P)</translation>
    </message>
    <message>
        <source>Ctrl+Alt+P</source>
        <translation>Ctrl+Alt+P</translation>
    </message>
    <message>
        <source>&amp;Print …</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>The drawing on a page, seen before it is printed (Ctrl+P)</source>
        <translation>Die Zeichnung auf einer Seite, mit Vorschau vor dem Drucken (Strg+P)</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Settings …</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>General settings, units and the form of numbers (Ctrl+,)</source>
        <translation>Allgemeine Einstellungen, Einheiten und Form der Zahlen (Strg+,)</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Element Table</source>
        <translation>Wertetabelle</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>No Workspace loaded</source>
        <translation>Kein Arbeitsbereich geladen</translation>
    </message>
    <message>
        <source>Read the files of the case again (F5)</source>
        <translation>Die Dateien des Falls neu lesen (F5)</translation>
    </message>
    <message>
        <source>Cannot read the style sheet %1</source>
        <translation>Das Stylesheet ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Nivra Reader %1  |  Workspace: %2  |  CASE: %3</source>
        <translation>Nivra Reader %1  |  Arbeitsbereich: %2  |  FALL: %3</translation>
    </message>
    <message>
        <source>  |  SCEN: %1</source>
        <translation>  |  SZEN: %1</translation>
    </message>
    <message>
        <source>Select Geometry or Scenario File</source>
        <translation>Geometrie- oder Szenariodatei wählen</translation>
    </message>
    <message>
        <source>Scenario Files (*.scen *.scen.jsn);;Geom Files (*.geom *.geom.jsn)</source>
        <translation>Szenariodateien (*.scen *.scen.jsn);;Geometriedateien (*.geom *.geom.jsn)</translation>
    </message>
</context>
<context>
    <name>NivraWorkspace</name>
    <message>
        <source>NivraWorkspace::fromScenFile(): invalid file format %1</source>
        <translation>NivraWorkspace::fromScenFile(): ungültiges Dateiformat %1</translation>
    </message>
    <message>
        <source>NivraWorkspace::fromFile(): File does not exist %1 (there is something else of that name)</source>
        <translation>NivraWorkspace::fromFile(): Die Datei gibt es nicht: %1 (etwas anderes heißt so)</translation>
    </message>
    <message>
        <source>NivraWorkspace::fromFile(): File does not exist %1</source>
        <translation>NivraWorkspace::fromFile(): Die Datei gibt es nicht: %1</translation>
    </message>
    <message>
        <source>NivraWorkspace::fromFile(): workspace root not found %1</source>
        <translation>NivraWorkspace::fromFile(): Wurzel des Arbeitsbereichs nicht gefunden: %1</translation>
    </message>
    <message>
        <source>NivraWorkspace set to %1</source>
        <translation>Arbeitsbereich ist jetzt %1</translation>
    </message>
    <message>
        <source>%1 was chosen; the files of a case are named up to the first dot, and %2 is read</source>
        <translation>%1 wurde gewählt; die Dateien eines Falls heißen bis zum ersten Punkt wie er, und %2 wird gelesen</translation>
    </message>
    <message>
        <source>Case config file does not exist: %1</source>
        <translation>Konfigurationsdatei des Falls fehlt: %1</translation>
    </message>
    <message>
        <source>Case properties are no JSON object: %1</source>
        <translation>Die Eigenschaften des Falls sind kein JSON-Objekt: %1</translation>
    </message>
    <message>
        <source>Directory of geometry
%1
and config value for it
%2
did not match!
Corrected! Perform a save yourself!</source>
        <translation>Der Ordner der Geometrie
%1
und die Angabe der Konfiguration
%2
stimmen nicht überein!
Berichtigt! Bitte selbst speichern!</translation>
    </message>
    <message>
        <source>readUnifiedScenConfig: cannot open file %1</source>
        <translation>readUnifiedScenConfig: Datei lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>Scenario config file does not exist: %1</source>
        <translation>Konfigurationsdatei des Szenarios fehlt: %1</translation>
    </message>
    <message>
        <source>Directory of scenario and config value for it did not match!
Corrected! Perform a save yourself!</source>
        <translation>Der Ordner des Szenarios und die Angabe der Konfiguration stimmen nicht überein!
Berichtigt! Bitte selbst speichern!</translation>
    </message>
</context>
<context>
    <name>OutcomeStyle</name>
    <message>
        <source>&quot;%1&quot; of the setting &quot;%2&quot; is left out: it is no colour or weight.</source>
        <translation>&quot;%1&quot; in der Einstellung &quot;%2&quot; wird ausgelassen: Es ist weder Farbe noch Schriftstärke.</translation>
    </message>
</context>
<context>
    <name>PageDialog</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>The page as it will be</source>
        <translation>Die Seite, wie sie wird</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>C&amp;omment:</source>
        <translation>&amp;Kommentar:</translation>
    </message>
    <message>
        <source>below the drawing, if any</source>
        <translation>unter der Zeichnung, falls es einen gibt</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Width of the paper</source>
        <translation>Breite des Papiers</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>Höhe des Papiers</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>A&amp;usrichtung:</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>&amp;Ränder:</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>← </source>
        <translation>← </translation>
    </message>
    <message>
        <source>Upper margin</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>↑ </source>
        <translation>↑ </translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>→ </source>
        <translation>→ </translation>
    </message>
    <message>
        <source>Lower margin</source>
        <translation>Unterer Rand</translation>
    </message>
    <message>
        <source>↓ </source>
        <translation>↓ </translation>
    </message>
    <message>
        <source>Sca&amp;le:</source>
        <translation>Ska&amp;lierung:</translation>
    </message>
    <message>
        <source>How large texts, lines and symbols are: 1 as on the screen, 2 twice as large</source>
        <translation>Wie groß Texte, Linien und Symbole sind: 1 wie auf dem Bildschirm, 2 doppelt so groß</translation>
    </message>
    <message>
        <source>as it suits the paper</source>
        <translation>wie es zum Papier passt</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Of pages that are saved as PNG, JPEG or TIFF</source>
        <translation>Für Seiten, die als PNG, JPEG oder TIFF gespeichert werden</translation>
    </message>
    <message>
        <source>On the page</source>
        <translation>Auf der Seite</translation>
    </message>
    <message>
        <source>What the page shows</source>
        <translation>Was die Seite zeigt</translation>
    </message>
    <message>
        <source>What the window shows</source>
        <translation>Was das Fenster zeigt</translation>
    </message>
    <message>
        <source>The whole network</source>
        <translation>Das ganze Netz</translation>
    </message>
    <message>
        <source>&amp;Heading</source>
        <translation>Überschri&amp;ft</translation>
    </message>
    <message>
        <source>Title, case, scenario and date</source>
        <translation>Titel, Fall, Szenario und Datum</translation>
    </message>
    <message>
        <source>L&amp;egend</source>
        <translation>L&amp;egende</translation>
    </message>
    <message>
        <source>Colours, widths and symbols of the drawing</source>
        <translation>Farben, Breiten und Symbole der Zeichnung</translation>
    </message>
    <message>
        <source>Scale bar and north arro&amp;w</source>
        <translation>Maßstab und &amp;Nordpfeil</translation>
    </message>
    <message>
        <source>The arrow stands where the coordinates are geographic</source>
        <translation>Der Pfeil steht da, wo die Koordinaten geografisch sind</translation>
    </message>
    <message>
        <source>&amp;Frame</source>
        <translation>Ra&amp;hmen</translation>
    </message>
    <message>
        <source>A line around the drawing</source>
        <translation>Eine Linie um die Zeichnung</translation>
    </message>
    <message>
        <source>La&amp;bels</source>
        <translation>&amp;Beschriftungen</translation>
    </message>
    <message>
        <source>Placed anew for the size of the page</source>
        <translation>Für die Größe der Seite neu gesetzt</translation>
    </message>
    <message>
        <source>Mark the selectio&amp;n</source>
        <translation>Aus&amp;wahl hervorheben</translation>
    </message>
    <message>
        <source>Se&amp;veral pages …</source>
        <translation>&amp;Mehrere Seiten …</translation>
    </message>
    <message>
        <source>Other views and scenarios in one run</source>
        <translation>Weitere Ansichten und Szenarien in einem Durchgang</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opieren</translation>
    </message>
    <message>
        <source>The page as a picture, to be pasted elsewhere</source>
        <translation>Die Seite als Bild, um sie anderswo einzufügen</translation>
    </message>
    <message>
        <source>&amp;Save …</source>
        <translation>&amp;Speichern …</translation>
    </message>
    <message>
        <source>As PDF, SVG, PNG, JPEG or TIFF</source>
        <translation>Als PDF, SVG, PNG, JPEG oder TIFF</translation>
    </message>
    <message>
        <source>&amp;Print …</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>own size</source>
        <translation>eigene Größe</translation>
    </message>
    <message>
        <source>Save Page</source>
        <translation>Seite speichern</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of this page.</source>
        <translation>Für ein Bild dieser Seite reicht der Speicher nicht.</translation>
    </message>
</context>
<context>
    <name>PageFacts</name>
    <message>
        <source>Case: %1</source>
        <translation>Fall: %1</translation>
    </message>
    <message>
        <source>Scenario: %1</source>
        <translation>Szenario: %1</translation>
    </message>
</context>
<context>
    <name>PageSeries</name>
    <message>
        <source>the run was cancelled</source>
        <translation>der Durchgang wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>PageSetup</name>
    <message>
        <source>A paper has sides of %1 to %2 mm.</source>
        <translation>Die Seiten eines Papiers messen %1 bis %2 mm.</translation>
    </message>
    <message>
        <source>The margins leave no room on this paper.</source>
        <translation>Die Ränder lassen auf diesem Papier keinen Platz.</translation>
    </message>
</context>
<context>
    <name>PageWriter</name>
    <message>
        <source>there is no page to be written</source>
        <translation>es ist keine Seite zu schreiben</translation>
    </message>
    <message>
        <source>there is not enough memory for a page of this size in %1 dpi</source>
        <translation>für eine Seite dieser Größe mit %1 dpi reicht der Speicher nicht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no format of pages; there are %2</source>
        <translation>&quot;%1&quot; ist kein Format für Seiten; es gibt %2</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be started.</source>
        <translation>Der Drucker &quot;%1&quot; lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not take the page.</source>
        <translation>Der Drucker &quot;%1&quot; hat die Seite nicht angenommen.</translation>
    </message>
</context>
<context>
    <name>PathProfileDock</name>
    <message>
        <source>Path Profile</source>
        <translation>Wegprofil</translation>
    </message>
</context>
<context>
    <name>PathProfilePage</name>
    <message>
        <source>Through what is &amp;closed</source>
        <translation>Durch Ge&amp;schlossenes</translation>
    </message>
    <message>
        <source>C&amp;urves</source>
        <translation>&amp;Kurven</translation>
    </message>
    <message>
        <source>Which quantities are shown along the path</source>
        <translation>Welche Größen entlang des Weges gezeigt werden</translation>
    </message>
    <message>
        <source>How the way is chosen</source>
        <translation>Wie der Weg gewählt wird</translation>
    </message>
    <message>
        <source>Which of the ways between two way points is shown</source>
        <translation>Welcher der Wege zwischen zwei Wegpunkten gezeigt wird</translation>
    </message>
    <message>
        <source>Along the flow</source>
        <translation>Mit der Strömung</translation>
    </message>
    <message>
        <source>Shortest way</source>
        <translation>Kürzester Weg</translation>
    </message>
    <message>
        <source>Fewest elements</source>
        <translation>Wenigste Elemente</translation>
    </message>
    <message>
        <source>Closed valves and what is out of use are ways, too; the gas never takes them</source>
        <translation>Auch geschlossene Armaturen und was außer Betrieb ist, gelten als Wege; das Gas nimmt sie nie</translation>
    </message>
    <message>
        <source>Sce&amp;narios</source>
        <translation>Szena&amp;rien</translation>
    </message>
    <message>
        <source>Other scenarios of the case on the same path</source>
        <translation>Andere Szenarien des Falls auf demselben Weg</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>Tables, pictures and pages of the profile</source>
        <translation>Tabellen, Bilder und Seiten des Profils</translation>
    </message>
    <message>
        <source>Way points</source>
        <translation>Wegpunkte</translation>
    </message>
    <message>
        <source>Way points in their order: drag them, F2 to type a name, Delete to remove one</source>
        <translation>Wegpunkte in ihrer Reihenfolge: ziehen, mit F2 einen Namen eingeben, mit Entf einen entfernen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Add the selected nodes</source>
        <translation>Die ausgewählten Knoten hinzufügen</translation>
    </message>
    <message>
        <source>Remove this way point</source>
        <translation>Diesen Wegpunkt entfernen</translation>
    </message>
    <message>
        <source>Move this way point up</source>
        <translation>Diesen Wegpunkt nach oben schieben</translation>
    </message>
    <message>
        <source>Move this way point down</source>
        <translation>Diesen Wegpunkt nach unten schieben</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>Andersherum</translation>
    </message>
    <message>
        <source>Select nodes in the drawing first.</source>
        <translation>Wählen Sie zuerst Knoten in der Zeichnung aus.</translation>
    </message>
    <message>
        <source>One way point is not enough: select another node and press +, or choose &quot;Profile to here&quot; in its right-click menu.</source>
        <translation>Ein Wegpunkt genügt nicht: Wählen Sie einen weiteren Knoten aus und drücken Sie +, oder wählen Sie &quot;Profil bis hier&quot; in seinem Kontextmenü.</translation>
    </message>
    <message>
        <source>Pressure, height and other values along a way through the network. Select two nodes or more and choose &quot;Path profile from selection&quot;, or &quot;Profile from here&quot; and &quot;Profile to here&quot; in the right-click menus of two nodes.</source>
        <translation>Druck, Höhe und andere Werte entlang eines Weges durch das Netz. Wählen Sie zwei oder mehr Knoten aus und dann &quot;Wegprofil aus der Auswahl&quot;, oder &quot;Profil ab hier&quot; und &quot;Profil bis hier&quot; in den Kontextmenüs zweier Knoten.</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>gezeigt</translation>
    </message>
    <message>
        <source>There is no path yet</source>
        <translation>Es gibt noch keinen Weg</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1: %2, 1 element</source>
        <translation>%1: %2, 1 Element</translation>
    </message>
    <message>
        <source>%1: %2, %3 elements</source>
        <translation>%1: %2, %3 Elemente</translation>
    </message>
    <message>
        <source>; %1 from %2 to %3, lowest %4, highest %5</source>
        <translation>; %1 von %2 auf %3, kleinster Wert %4, größter %5</translation>
    </message>
    <message>
        <source>Show in the &amp;drawing</source>
        <translation>In der Zeich&amp;nung zeigen</translation>
    </message>
    <message>
        <source>Show the &amp;whole path	Home</source>
        <translation>Den &amp;ganzen Weg zeigen	Pos1</translation>
    </message>
</context>
<context>
    <name>PathSearch</name>
    <message>
        <source>No gas flows from %1 to %2: it flows from %2 to %1.</source>
        <translation>Von %1 nach %2 fließt kein Gas: Es fließt von %2 nach %1.</translation>
    </message>
    <message>
        <source>No gas flows from %1 to %2. A way that is not along the flow joins them.</source>
        <translation>Von %1 nach %2 fließt kein Gas. Ein Weg, der nicht der Strömung folgt, verbindet sie.</translation>
    </message>
    <message>
        <source>No way leads from %1 to %2 but through what is closed or out of use.</source>
        <translation>Von %1 nach %2 führt kein Weg, außer durch Geschlossenes oder was außer Betrieb ist.</translation>
    </message>
    <message>
        <source>No way leads from %1 to %2.</source>
        <translation>Von %1 nach %2 führt kein Weg.</translation>
    </message>
    <message>
        <source>%1 is no node of this network.</source>
        <translation>%1 ist kein Knoten dieses Netzes.</translation>
    </message>
</context>
<context>
    <name>PictureBounds</name>
    <message>
        <source>it is no picture of a known format</source>
        <translation>es ist kein Bild eines bekannten Formats</translation>
    </message>
    <message>
        <source>it has too many pixels</source>
        <translation>es hat zu viele Bildpunkte</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>it shows nothing</source>
        <translation>es zeigt nichts</translation>
    </message>
</context>
<context>
    <name>PlotActions</name>
    <message>
        <source>Back to the last view</source>
        <translation>Zurück zur letzten Ansicht</translation>
    </message>
    <message>
        <source>The view at which you rested before</source>
        <translation>Die Ansicht, bei der Sie zuvor verweilten</translation>
    </message>
    <message>
        <source>Forward to the next view</source>
        <translation>Vor zur nächsten Ansicht</translation>
    </message>
    <message>
        <source>The view after this one</source>
        <translation>Die Ansicht nach dieser</translation>
    </message>
    <message>
        <source>Show whole network</source>
        <translation>Ganzes Netz zeigen</translation>
    </message>
    <message>
        <source>Show the whole network; in the drawing also Home</source>
        <translation>Das ganze Netz zeigen; in der Zeichnung auch Pos1</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Ausgewähltes zeigen</translation>
    </message>
    <message>
        <source>Zoom to what is selected</source>
        <translation>Auf das Ausgewählte zoomen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom in about the middle</source>
        <translation>Um die Mitte vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom out about the middle</source>
        <translation>Um die Mitte verkleinern</translation>
    </message>
    <message>
        <source>Show what lies far outside</source>
        <translation>Weit außen Liegendes zeigen</translation>
    </message>
    <message>
        <source>Show everything, however far it lies</source>
        <translation>Alles zeigen, wie weit es auch liegt</translation>
    </message>
    <message>
        <source>Bookmark this view …</source>
        <translation>Lesezeichen für diese Ansicht …</translation>
    </message>
    <message>
        <source>Keep this view with the case, under a name</source>
        <translation>Diese Ansicht unter einem Namen beim Fall aufbewahren</translation>
    </message>
    <message>
        <source>Pick and zoom</source>
        <translation>Auswählen und zoomen</translation>
    </message>
    <message>
        <source>Pick and zoom: a click selects, dragging zooms to the rectangle</source>
        <translation>Auswählen und zoomen: Ein Klick wählt aus, Ziehen zoomt auf das Rechteck</translation>
    </message>
    <message>
        <source>Select in a rectangle</source>
        <translation>Im Rechteck auswählen</translation>
    </message>
    <message>
        <source>Select in a rectangle: dragging selects what lies wholly in it, with Shift in addition</source>
        <translation>Im Rechteck auswählen: Ziehen wählt aus, was ganz darin liegt, mit der Umschalttaste zusätzlich</translation>
    </message>
    <message>
        <source>Move the view</source>
        <translation>Ansicht verschieben</translation>
    </message>
    <message>
        <source>Move the view by dragging; the middle button and Space do so in every mode</source>
        <translation>Die Ansicht durch Ziehen verschieben; mittlere Maustaste und Leertaste tun es in jeder Betriebsart</translation>
    </message>
    <message>
        <source>Measure distances</source>
        <translation>Entfernungen messen</translation>
    </message>
    <message>
        <source>Measure distances along a path of clicks; Esc ends it</source>
        <translation>Entfernungen entlang eines Weges aus Klicks messen; Esc beendet es</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Beschriftungen</translation>
    </message>
    <message>
        <source>Show labels or hide them</source>
        <translation>Beschriftungen zeigen oder ausblenden</translation>
    </message>
    <message>
        <source>Place labels now</source>
        <translation>Beschriftungen jetzt setzen</translation>
    </message>
    <message>
        <source>Place labels for this view at once, whatever the settings say</source>
        <translation>Beschriftungen dieser Ansicht sofort setzen, was auch die Einstellungen sagen</translation>
    </message>
    <message>
        <source>List the elements whose labels found no place</source>
        <translation>Die Elemente auflisten, deren Beschriftungen keinen Platz fanden</translation>
    </message>
    <message>
        <source>Show search results</source>
        <translation>Suchergebnisse zeigen</translation>
    </message>
    <message>
        <source>Colour nothing but what the search found</source>
        <translation>Nur einfärben, was die Suche gefunden hat</translation>
    </message>
    <message>
        <source>Configure drawing …</source>
        <translation>Zeichnung einstellen …</translation>
    </message>
    <message>
        <source>What colours and sizes the elements, and how labels look</source>
        <translation>Was Elemente färbt und ihre Größe gibt, und wie Beschriftungen aussehen</translation>
    </message>
    <message>
        <source>Save picture …</source>
        <translation>Bild speichern …</translation>
    </message>
    <message>
        <source>Save the drawing as it is seen</source>
        <translation>Die Zeichnung speichern, wie sie zu sehen ist</translation>
    </message>
    <message>
        <source>Save picture with width …</source>
        <translation>Bild mit Breite speichern …</translation>
    </message>
    <message>
        <source>Save the drawing in another size</source>
        <translation>Die Zeichnung in anderer Größe speichern</translation>
    </message>
    <message>
        <source>Copy picture</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Copy the drawing as it is seen to the clipboard</source>
        <translation>Die Zeichnung, wie sie zu sehen ist, in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Select nothing; in the drawing also Esc</source>
        <translation>Nichts auswählen; in der Zeichnung auch Esc</translation>
    </message>
    <message>
        <source>Show info of the selected element</source>
        <translation>Information zum ausgewählten Element</translation>
    </message>
    <message>
        <source>Show what is known of the selected element</source>
        <translation>Zeigen, was über das ausgewählte Element bekannt ist</translation>
    </message>
    <message>
        <source>Properties of what is selected</source>
        <translation>Eigenschaften des Ausgewählten</translation>
    </message>
    <message>
        <source>Show the properties of what is selected</source>
        <translation>Die Eigenschaften des Ausgewählten zeigen</translation>
    </message>
    <message>
        <source>Open Characteristics</source>
        <translation>Kennfelder öffnen</translation>
    </message>
    <message>
        <source>Open the maps of the selected compressors and drives</source>
        <translation>Die Kennfelder der ausgewählten Verdichter und Antriebe öffnen</translation>
    </message>
    <message>
        <source>Open subnet in a window of its own</source>
        <translation>Teilnetz in eigenem Fenster öffnen</translation>
    </message>
    <message>
        <source>Open the selected subnet in a window of its own</source>
        <translation>Das ausgewählte Teilnetz in einem eigenen Fenster öffnen</translation>
    </message>
    <message>
        <source>Select upstream</source>
        <translation>Stromaufwärts auswählen</translation>
    </message>
    <message>
        <source>Select where the gas of the selected element comes from</source>
        <translation>Auswählen, woher das Gas des ausgewählten Elements kommt</translation>
    </message>
    <message>
        <source>Select downstream</source>
        <translation>Stromabwärts auswählen</translation>
    </message>
    <message>
        <source>Select where the gas of the selected element goes to</source>
        <translation>Auswählen, wohin das Gas des ausgewählten Elements geht</translation>
    </message>
    <message>
        <source>1 label found no place …</source>
        <translation>1 Beschriftung fand keinen Platz …</translation>
    </message>
    <message>
        <source>%1 labels found no place …</source>
        <translation>%1 Beschriftungen fanden keinen Platz …</translation>
    </message>
    <message>
        <source>Copied the drawing, %1 × %2 pixels</source>
        <translation>Zeichnung kopiert, %1 × %2 Bildpunkte</translation>
    </message>
    <message>
        <source>Bookmark</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Name of this view:</source>
        <translation>Name dieser Ansicht:</translation>
    </message>
    <message>
        <source>View %1</source>
        <translation>Ansicht %1</translation>
    </message>
    <message>
        <source>Labels without a place</source>
        <translation>Beschriftungen ohne Platz</translation>
    </message>
    <message>
        <source>Open Characteristics of %1</source>
        <translation>Kennfelder öffnen von %1</translation>
    </message>
    <message>
        <source>Open Characteristics of %1 machines</source>
        <translation>Kennfelder öffnen von %1 Maschinen</translation>
    </message>
    <message>
        <source>Path profile from selection</source>
        <translation>Wegprofil aus der Auswahl</translation>
    </message>
    <message>
        <source>Show pressure, height and more along a way through the selected nodes</source>
        <translation>Druck, Höhe und mehr entlang eines Weges durch die ausgewählten Knoten zeigen</translation>
    </message>
    <message>
        <source>Profile from here</source>
        <translation>Profil ab hier</translation>
    </message>
    <message>
        <source>Let the path of the profile begin at the selected node</source>
        <translation>Den Weg des Profils am ausgewählten Knoten beginnen lassen</translation>
    </message>
    <message>
        <source>Profile to here</source>
        <translation>Profil bis hier</translation>
    </message>
    <message>
        <source>Let the path of the profile end at the selected node</source>
        <translation>Den Weg des Profils am ausgewählten Knoten enden lassen</translation>
    </message>
</context>
<context>
    <name>PlotExport</name>
    <message>
        <source>&quot;%1&quot; is no format of pictures; there are %2</source>
        <translation>&quot;%1&quot; ist kein Format für Bilder; es gibt %2</translation>
    </message>
    <message>
        <source>there is not enough memory for a picture of this width</source>
        <translation>für ein Bild dieser Breite reicht der Speicher nicht</translation>
    </message>
    <message>
        <source>PostScript needs the tool pdftops (Poppler) or gs (Ghostscript), and neither is installed</source>
        <translation>PostScript braucht das Programm pdftops (Poppler) oder gs (Ghostscript), und keines ist installiert</translation>
    </message>
    <message>
        <source>the conversion to PostScript failed: %1</source>
        <translation>die Umwandlung in PostScript ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>a picture needs a width</source>
        <translation>ein Bild braucht eine Breite</translation>
    </message>
    <message>
        <source>a picture of %1 pixels cannot have the scale %2</source>
        <translation>ein Bild mit %1 Bildpunkten kann die Skalierung %2 nicht haben</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <translation>%1 ließ sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>PlotMenu</name>
    <message>
        <source>… and %1 more</source>
        <translation>… und %1 weitere</translation>
    </message>
    <message>
        <source>Legend and colours</source>
        <translation>Legende und Farben</translation>
    </message>
    <message>
        <source>Print or save a page …</source>
        <translation>Seite drucken oder speichern …</translation>
    </message>
    <message>
        <source>Select here (%1)</source>
        <translation>Hier auswählen (%1)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show Info</source>
        <translation>Information zeigen</translation>
    </message>
    <message>
        <source>Edit Properties of</source>
        <translation>Eigenschaften bearbeiten von</translation>
    </message>
    <message>
        <source>Open Characteristics of</source>
        <translation>Kennfelder öffnen von</translation>
    </message>
    <message>
        <source>Subnet</source>
        <translation>Teilnetz</translation>
    </message>
    <message>
        <source>Open in a window of its own</source>
        <translation>In eigenem Fenster öffnen</translation>
    </message>
    <message>
        <source>&lt;Could not find subnet&gt;!</source>
        <translation>&lt;Teilnetz nicht gefunden&gt;!</translation>
    </message>
    <message>
        <source>&lt;empty element list&gt;!</source>
        <translation>&lt;leere Elementliste&gt;!</translation>
    </message>
    <message>
        <source>&lt;empty characteristics list&gt;!</source>
        <translation>&lt;keine Kennfelder&gt;!</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>ALL of %1</source>
        <translation>ALLE: %1</translation>
    </message>
    <message>
        <source>ALL active of %1</source>
        <translation>ALLE aktiven: %1</translation>
    </message>
</context>
<context>
    <name>PlotSaver</name>
    <message>
        <source>Specify Width [Pixel]</source>
        <translation>Breite angeben [Bildpunkte]</translation>
    </message>
    <message>
        <source>2 makes texts, lines and symbols twice as large as on the screen, for a picture that is printed small.</source>
        <translation>2 macht Texte, Linien und Symbole doppelt so groß wie auf dem Bildschirm, für ein Bild, das klein gedruckt wird.</translation>
    </message>
    <message>
        <source>Width [pixel] of plot (max. 20,000 memory-dependent,
default is current width): </source>
        <translation>Breite der Zeichnung [Bildpunkte] (höchstens 20.000, je nach Speicher,
Vorgabe ist die jetzige Breite): </translation>
    </message>
    <message>
        <source>Scale of texts, lines and symbols:</source>
        <translation>Skalierung von Texten, Linien und Symbolen:</translation>
    </message>
    <message>
        <source>Specified width not possible!</source>
        <translation>Die angegebene Breite ist nicht möglich!</translation>
    </message>
    <message>
        <source>Portable Network Graphics (*.png)</source>
        <translation>Portable Network Graphics (*.png)</translation>
    </message>
    <message>
        <source>;;JPEG (*.jpg)</source>
        <translation>;;JPEG (*.jpg)</translation>
    </message>
    <message>
        <source>;;Scalable Vector Graphics (*.svg)</source>
        <translation>;;Scalable Vector Graphics (*.svg)</translation>
    </message>
    <message>
        <source>;;Portable Document Format (*.pdf)</source>
        <translation>;;Portable Document Format (*.pdf)</translation>
    </message>
    <message>
        <source>;;Bitmap (*.bmp)</source>
        <translation>;;Bitmap (*.bmp)</translation>
    </message>
    <message>
        <source>;;Tagged Image File Format (*.tif)</source>
        <translation>;;Tagged Image File Format (*.tif)</translation>
    </message>
    <message>
        <source>;;PostScript (*.ps)</source>
        <translation>;;PostScript (*.ps)</translation>
    </message>
    <message>
        <source>;;All Files (*)</source>
        <translation>;;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>BMP/TIFF might get large, PS might get huge! Continue?</source>
        <translation>BMP/TIFF können groß werden, PS sehr groß! Fortfahren?</translation>
    </message>
</context>
<context>
    <name>PlotSettingsFile</name>
    <message>
        <source>%1: values that are no text, number or colour are left out: %2</source>
        <translation>%1: Werte, die weder Text noch Zahl noch Farbe sind, werden ausgelassen: %2</translation>
    </message>
    <message>
        <source>%1: values that are no numbers are left out: %2</source>
        <translation>%1: Werte, die keine Zahlen sind, werden ausgelassen: %2</translation>
    </message>
    <message>
        <source>The plot settings could not be written to %1: %2</source>
        <translation>Die Zeichnungseinstellungen ließen sich nicht nach %1 schreiben: %2</translation>
    </message>
    <message>
        <source>The plot settings could not be written to %1.</source>
        <translation>Die Zeichnungseinstellungen ließen sich nicht nach %1 schreiben.</translation>
    </message>
</context>
<context>
    <name>ProfileChart</name>
    <message>
        <source>Profile along the path</source>
        <translation>Profil entlang des Weges</translation>
    </message>
</context>
<context>
    <name>ProfileFiles</name>
    <message>
        <source>Save table …</source>
        <translation>Tabelle speichern …</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>Tabelle kopieren</translation>
    </message>
    <message>
        <source>Save picture …</source>
        <translation>Bild speichern …</translation>
    </message>
    <message>
        <source>Copy picture	Ctrl+C</source>
        <translation>Bild kopieren	Strg+C</translation>
    </message>
    <message>
        <source>Print or save a page …	Ctrl+P</source>
        <translation>Seite drucken oder speichern …	Strg+P</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>prop</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>scenario</source>
        <translation>Szenario</translation>
    </message>
    <message>
        <source>geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>extra</source>
        <translation>weitere</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>verborgen</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>no flow</source>
        <translation>kein Durchfluss</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>ReadReport</name>
    <message>
        <source>types</source>
        <translation>Typen</translation>
    </message>
    <message>
        <source>properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>The include list for %1 is no regular expression, all are read: %2</source>
        <translation>Die Liste der einzuschließenden %1 ist kein regulärer Ausdruck, alle werden gelesen: %2</translation>
    </message>
    <message>
        <source>Element %1 has a property name of its own, %2; it is left out</source>
        <translation>Das Element %1 hat eine Eigenschaft, die für Namen vorbehalten ist, %2; sie wird ausgelassen</translation>
    </message>
    <message>
        <source>Property %1 of element %2 is given twice; the last value counts</source>
        <translation>Die Eigenschaft %1 des Elements %2 ist zweimal angegeben; der letzte Wert zählt</translation>
    </message>
    <message>
        <source>the number is out of range</source>
        <translation>die Zahl liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>it has no value</source>
        <translation>es hat keinen Wert</translation>
    </message>
    <message>
        <source>the value is neither number nor text</source>
        <translation>der Wert ist weder Zahl noch Text</translation>
    </message>
    <message>
        <source>it has no type</source>
        <translation>es hat keinen Typ</translation>
    </message>
    <message>
        <source>a row of the text form holds 200 line breaks and 32 MB at most</source>
        <translation>eine Zeile der Textform fasst höchstens 200 Zeilenumbrüche und 32 MB</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>es hat keinen Namen</translation>
    </message>
    <message>
        <source>the text form cannot hold such a type</source>
        <translation>die Textform kann einen solchen Typ nicht aufnehmen</translation>
    </message>
    <message>
        <source>The file holds no element</source>
        <translation>Die Datei enthält kein Element</translation>
    </message>
    <message>
        <source>bad line</source>
        <translation>fehlerhafte Zeile</translation>
    </message>
    <message>
        <source>doubtful value</source>
        <translation>zweifelhafter Wert</translation>
    </message>
    <message>
        <source>dropped element</source>
        <translation>weggelassenes Element</translation>
    </message>
    <message>
        <source>dropped property</source>
        <translation>weggelassene Eigenschaft</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>encoding</source>
        <translation>Zeichenkodierung</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>identity</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>include list</source>
        <translation>Einschlussliste</translation>
    </message>
    <message>
        <source>incomplete value</source>
        <translation>unvollständiger Wert</translation>
    </message>
    <message>
        <source>other name</source>
        <translation>anderer Name</translation>
    </message>
    <message>
        <source>property given twice</source>
        <translation>Eigenschaft zweimal angegeben</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>unknown name</source>
        <translation>unbekannter Name</translation>
    </message>
    <message>
        <source>unknown type</source>
        <translation>unbekannter Typ</translation>
    </message>
    <message>
        <source>the line is longer than 64 MB</source>
        <translation>die Zeile ist länger als 64 MB</translation>
    </message>
    <message>
        <source>Problem with line %1: %2</source>
        <translation>Problem mit Zeile %1: %2</translation>
    </message>
    <message>
        <source>Severe problem with line: %1
Check console for info!</source>
        <translation>Schweres Problem mit Zeile: %1
Näheres in den Meldungen!</translation>
    </message>
    <message>
        <source>!!!!!!!!!!!!! Problem with JSON at %1: %2</source>
        <translation>!!!!!!!!!!!!! Problem mit JSON bei %1: %2</translation>
    </message>
    <message>
        <source>!!!! Severe JSON problem with line: %1
Check console for info!</source>
        <translation>!!!! Schweres JSON-Problem mit Zeile: %1
Näheres in den Meldungen!</translation>
    </message>
    <message>
        <source>!!!!!!!!!!!!! Problem with JSON at %1: %2 (Severe JSON problem! Input line invalid, ignored!)</source>
        <translation>!!!!!!!!!!!!! Problem mit JSON bei %1: %2 (Schweres JSON-Problem! Zeile ungültig, wird übergangen!)</translation>
    </message>
    <message>
        <source>Severe JSON problem! 
Invalid input line(s) ignored! Check console for info!</source>
        <translation>Schweres JSON-Problem! 
Ungültige Zeile(n) übergangen! Näheres in den Meldungen!</translation>
    </message>
    <message>
        <source>Element %1 is left out: %2</source>
        <translation>Das Element %1 wird ausgelassen: %2</translation>
    </message>
    <message>
        <source>Property %1 of element %2 is left out: %3</source>
        <translation>Die Eigenschaft %1 des Elements %2 wird ausgelassen: %3</translation>
    </message>
    <message>
        <source>ERROR: Type %1 of element %2 not known! Element will be erased!</source>
        <translation>FEHLER: Der Typ %1 des Elements %2 ist nicht bekannt! Das Element wird entfernt!</translation>
    </message>
    <message>
        <source>Property %1 of element %2 %3</source>
        <translation>Die Eigenschaft %1 des Elements %2 %3</translation>
    </message>
    <message>
        <source>name not found, is no valid node or element: %1</source>
        <translation>Name nicht gefunden, ist kein gültiger Knoten und kein gültiges Element: %1</translation>
    </message>
    <message>
        <source>A value of element %1 is left out: it needs &quot;property&quot; and &quot;value&quot;</source>
        <translation>Ein Wert des Elements %1 wird ausgelassen: Er braucht &quot;property&quot; und &quot;value&quot;</translation>
    </message>
    <message>
        <source>The file could not be read to its end, what follows is missing: %1</source>
        <translation>Die Datei ließ sich nicht bis zum Ende lesen, was folgt, fehlt: %1</translation>
    </message>
    <message>
        <source>The file is not written in UTF-8; it is read as Windows-1252 (Latin-1)</source>
        <translation>Die Datei ist nicht in UTF-8 geschrieben; sie wird als Windows-1252 (Latin-1) gelesen</translation>
    </message>
    <message>
        <source>... and %1 more of this kind (%2)</source>
        <translation>... und %1 weitere dieser Art (%2)</translation>
    </message>
    <message>
        <source>The %1 of element %2 cannot be set by a scenario</source>
        <translation>%1 des Elements %2 kann ein Szenario nicht setzen</translation>
    </message>
    <message>
        <source>%1 of element %2 is given in &quot;%3&quot;, which cannot be converted to &quot;%4&quot;; the value is kept</source>
        <translation>%1 des Elements %2 ist in &quot;%3&quot; angegeben, das sich nicht in &quot;%4&quot; umrechnen lässt; der Wert bleibt</translation>
    </message>
    <message>
        <source>%1 of element %2 is given in &quot;%3&quot;; to convert it to &quot;%4&quot; the norm density or the calorific value of the gas must be known. The value is left out</source>
        <translation>%1 des Elements %2 ist in &quot;%3&quot; angegeben; um in &quot;%4&quot; umzurechnen, muss die Normdichte oder der Brennwert des Gases bekannt sein. Der Wert wird ausgelassen</translation>
    </message>
    <message>
        <source>something stands behind a closing quote</source>
        <translation>nach einem schließenden Anführungszeichen steht noch etwas</translation>
    </message>
    <message>
        <source>it has more than the %1 columns of its table</source>
        <translation>sie hat mehr als die %1 Spalten ihrer Tabelle</translation>
    </message>
    <message>
        <source>is taken as a text, since numbers have a decimal point</source>
        <translation>wird als Text genommen, da Zahlen einen Dezimalpunkt haben</translation>
    </message>
    <message>
        <source>a type stands alone in its line, in square brackets</source>
        <translation>ein Typ steht allein in seiner Zeile, in eckigen Klammern</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>ein Anführungszeichen ist nicht geschlossen</translation>
    </message>
    <message>
        <source>a column has no name</source>
        <translation>eine Spalte hat keinen Namen</translation>
    </message>
    <message>
        <source>no line with column names, which begins with &quot;name&quot;, stands above it</source>
        <translation>darüber steht keine Zeile mit Spaltennamen, die mit &quot;name&quot; beginnt</translation>
    </message>
</context>
<context>
    <name>ReasonModel</name>
    <message>
        <source>reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>where</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Double click or Return asks why this has its value</source>
        <translation>Doppelklick oder Eingabe fragt, warum dies seinen Wert hat</translation>
    </message>
</context>
<context>
    <name>RecentCards</name>
    <message>
        <source>no longer there</source>
        <translation>nicht mehr vorhanden</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>%1 is no list of recent files of this program and is not used</source>
        <translation>%1 ist keine Liste zuletzt geöffneter Dateien dieses Programms und wird nicht verwendet</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Forget all recent files? The files themselves stay as they are.</source>
        <translation>Alle zuletzt geöffneten Dateien vergessen? Die Dateien selbst bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste leeren</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>%1   (%2)</source>
        <translation>%1   (%2)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zuletzt &amp;geöffnet</translation>
    </message>
    <message>
        <source>%1 is no longer there</source>
        <translation>%1 ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>Keine zuletzt geöffneten Dateien</translation>
    </message>
    <message>
        <source>Remove &amp;Missing Files</source>
        <translation>Fe&amp;hlende Dateien entfernen</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>RecentModel</name>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>%1, no longer there</source>
        <translation>%1, nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>%1
is no longer there. Delete takes it from the list.</source>
        <translation>%1
ist nicht mehr vorhanden. Entf nimmt es aus der Liste.</translation>
    </message>
</context>
<context>
    <name>ReferenceView</name>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referenz: %1</translation>
    </message>
    <message>
        <source>reference: %1</source>
        <translation>Referenz: %1</translation>
    </message>
</context>
<context>
    <name>ReloadBar</name>
    <message>
        <source>%1 and 1 more</source>
        <translation>%1 und 1 weitere Datei</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere Dateien</translation>
    </message>
    <message>
        <source>Changed files</source>
        <translation>Geänderte Dateien</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Read the files again; view, selection, styles and layers stay (F5)</source>
        <translation>Die Dateien neu lesen; Ansicht, Auswahl, Stile und Ebenen bleiben (F5)</translation>
    </message>
    <message>
        <source>Ig&amp;nore</source>
        <translation>Ign&amp;orieren</translation>
    </message>
    <message>
        <source>Go on with what was read before</source>
        <translation>Mit dem weitermachen, was zuvor gelesen wurde</translation>
    </message>
    <message>
        <source>%1 was changed on disk.</source>
        <translation>%1 wurde auf der Platte geändert.</translation>
    </message>
    <message>
        <source>%1 were changed on disk.</source>
        <translation>%1 wurden auf der Platte geändert.</translation>
    </message>
    <message>
        <source>%1 is no longer there; what was read of it stays shown.</source>
        <translation>%1 ist nicht mehr vorhanden; was daraus gelesen wurde, bleibt sichtbar.</translation>
    </message>
    <message>
        <source>%1 are no longer there; what was read of them stays shown.</source>
        <translation>%1 sind nicht mehr vorhanden; was daraus gelesen wurde, bleibt sichtbar.</translation>
    </message>
</context>
<context>
    <name>ReloadOffer</name>
    <message>
        <source>The files cannot be read again, what is shown stays: %1</source>
        <translation>Die Dateien lassen sich nicht neu lesen, was zu sehen ist, bleibt: %1</translation>
    </message>
</context>
<context>
    <name>ResidualModel</name>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Root of the mean of the squared residuals</source>
        <translation>Wurzel aus dem Mittel der quadrierten Abweichungen</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>fitted:
mean</source>
        <translation>angepasst:
im Mittel</translation>
    </message>
    <message>
        <source>fitted:
largest</source>
        <translation>angepasst:
größte</translation>
    </message>
    <message>
        <source>published:
mean</source>
        <translation>veröffentlicht:
im Mittel</translation>
    </message>
    <message>
        <source>published:
largest</source>
        <translation>veröffentlicht:
größte</translation>
    </message>
</context>
<context>
    <name>ResidualPlot</name>
    <message>
        <source>volume flow at the inlet</source>
        <translation>Volumenstrom am Eingang</translation>
    </message>
    <message>
        <source>residual</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>Q = %1
residual = %2</source>
        <translation>Q = %1
Abweichung = %2</translation>
    </message>
    <message>
        <source>published</source>
        <translation>veröffentlicht</translation>
    </message>
    <message>
        <source>fitted</source>
        <translation>angepasst</translation>
    </message>
</context>
<context>
    <name>ResidualView</name>
    <message>
        <source>head</source>
        <translation>Förderhöhe</translation>
    </message>
    <message>
        <source>efficiency</source>
        <translation>Wirkungsgrad</translation>
    </message>
    <message>
        <source>surge line</source>
        <translation>Pumpgrenze</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>The function whose residuals are shown</source>
        <translation>Die Funktion, deren Abweichungen gezeigt werden</translation>
    </message>
    <message>
        <source>Residuals by speed</source>
        <translation>Abweichungen nach Drehzahl</translation>
    </message>
    <message>
        <source>%1: residuals of the %2
function less measured point</source>
        <translation>%1: Abweichungen, %2
Funktion abzüglich gemessenem Punkt</translation>
    </message>
</context>
<context>
    <name>RowFilter</name>
    <message>
        <source>Behind %1 a value is missing, such as %1 10</source>
        <translation>Nach %1 fehlt ein Wert, etwa %1 10</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number</source>
        <translation>&quot;%1&quot; ist keine Zahl</translation>
    </message>
    <message>
        <source>A range is written with two numbers, such as 5..20</source>
        <translation>Ein Bereich wird mit zwei Zahlen geschrieben, etwa 5..20</translation>
    </message>
    <message>
        <source>The range ends before it begins: %1..%2 would be one</source>
        <translation>Der Bereich endet, bevor er beginnt: %1..%2 wäre einer</translation>
    </message>
</context>
<context>
    <name>ScaleBar</name>
    <message>
        <source>%1 plot units</source>
        <translation>%1 Zeichnungseinheiten</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
</context>
<context>
    <name>ScenarioDesk</name>
    <message>
        <source>Scenario</source>
        <translation>Szenario</translation>
    </message>
    <message>
        <source>Scenario before</source>
        <translation>Voriges Szenario</translation>
    </message>
    <message>
        <source>Show the scenario before this one</source>
        <translation>Das Szenario vor diesem zeigen</translation>
    </message>
    <message>
        <source>Next scenario</source>
        <translation>Nächstes Szenario</translation>
    </message>
    <message>
        <source>Show the scenario after this one</source>
        <translation>Das Szenario nach diesem zeigen</translation>
    </message>
    <message>
        <source>Choose scenario …</source>
        <translation>Szenario wählen …</translation>
    </message>
    <message>
        <source>Find a scenario of the case by its name or date</source>
        <translation>Ein Szenario des Falls nach Name oder Datum finden</translation>
    </message>
    <message>
        <source>Show this scenario</source>
        <translation>Dieses Szenario zeigen</translation>
    </message>
    <message>
        <source>Compare with this scenario</source>
        <translation>Mit diesem Szenario vergleichen</translation>
    </message>
    <message>
        <source>Compare with the scenario shown</source>
        <translation>Mit dem gezeigten Szenario vergleichen</translation>
    </message>
    <message>
        <source>The scenario that is shown becomes the reference; scenarios shown after it are compared with it</source>
        <translation>Das gezeigte Szenario wird die Referenz; danach gezeigte Szenarien werden mit ihm verglichen</translation>
    </message>
    <message>
        <source>Compare no more</source>
        <translation>Nicht mehr vergleichen</translation>
    </message>
    <message>
        <source>Forget the reference, and colour by values</source>
        <translation>Die Referenz vergessen und nach Werten färben</translation>
    </message>
    <message>
        <source>Reference beside</source>
        <translation>Referenz daneben</translation>
    </message>
    <message>
        <source>Show the reference in a second drawing; view and selection go together</source>
        <translation>Die Referenz in einer zweiten Zeichnung zeigen; Ausschnitt und Auswahl gehen miteinander</translation>
    </message>
    <message>
        <source>Colour by values</source>
        <translation>Nach Werten färben</translation>
    </message>
    <message>
        <source>Colours show the values of the scenario</source>
        <translation>Die Farben zeigen die Werte des Szenarios</translation>
    </message>
    <message>
        <source>Colour by differences</source>
        <translation>Nach Differenzen färben</translation>
    </message>
    <message>
        <source>Colours show the values less those of the reference</source>
        <translation>Die Farben zeigen die Werte weniger die der Referenz</translation>
    </message>
    <message>
        <source>Colour by ratios</source>
        <translation>Nach Verhältnissen färben</translation>
    </message>
    <message>
        <source>Colours show the values by those of the reference</source>
        <translation>Die Farben zeigen die Werte geteilt durch die der Referenz</translation>
    </message>
</context>
<context>
    <name>ScenarioDock</name>
    <message>
        <source>Scenario</source>
        <translation>Szenario</translation>
    </message>
    <message>
        <source>Nothing is open. Open a scenario file to see its settings and gases.</source>
        <translation>Nichts ist offen. Öffnen Sie eine Szenariodatei, um ihre Einstellungen und Gase zu sehen.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter of the scenario&apos;s settings</source>
        <translation>Filter der Einstellungen des Szenarios</translation>
    </message>
    <message>
        <source>Settings of the scenario</source>
        <translation>Einstellungen des Szenarios</translation>
    </message>
    <message>
        <source>Gases</source>
        <translation>Gase</translation>
    </message>
    <message>
        <source>The case was opened without a scenario. Open a scenario file to see its settings and gases.</source>
        <translation>Der Fall wurde ohne Szenario geöffnet. Öffnen Sie eine Szenariodatei, um ihre Einstellungen und Gase zu sehen.</translation>
    </message>
    <message>
        <source>The scenario has no gases.</source>
        <translation>Das Szenario hat keine Gase.</translation>
    </message>
    <message>
        <source>Nothing has the text of the filter.</source>
        <translation>Nichts enthält den Text des Filters.</translation>
    </message>
</context>
<context>
    <name>ScenarioListModel</name>
    <message>
        <source>shown, reference</source>
        <translation>gezeigt, Referenz</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>gezeigt</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>Kennzeichen</translation>
    </message>
    <message>
        <source>scenario</source>
        <translation>Szenario</translation>
    </message>
</context>
<context>
    <name>ScenarioModel</name>
    <message>
        <source>setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Vorgabe</translation>
    </message>
</context>
<context>
    <name>ScenarioOverlays</name>
    <message>
        <source>The case has no other scenarios</source>
        <translation>Der Fall hat keine anderen Szenarien</translation>
    </message>
</context>
<context>
    <name>ScenarioSetDock</name>
    <message>
        <source>Scenario Set</source>
        <translation>Szenarienmenge</translation>
    </message>
</context>
<context>
    <name>ScenarioSetPage</name>
    <message>
        <source>Reading the series of %1: %2 %</source>
        <translation>Reihe von %1 wird gelesen: %2 %</translation>
    </message>
    <message>
        <source>Computing was cancelled.</source>
        <translation>Die Berechnung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The scenarios give no element any of these properties.</source>
        <translation>Die Szenarien geben keinem Element eine dieser Eigenschaften.</translation>
    </message>
    <message>
        <source>No scenario can be read: %1</source>
        <translation>Kein Szenario kann gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1 scenarios; the figures are properties such as %2.</source>
        <translation>%1 Szenarien; die Kennzahlen sind Eigenschaften wie %2.</translation>
    </message>
    <message>
        <source>Quantiles are estimated.</source>
        <translation>Die Quantile sind geschätzt.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 konnten nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The network has properties of its own called %1.</source>
        <translation>Das Netz hat eigene Eigenschaften namens %1.</translation>
    </message>
    <message>
        <source>Choose scenarios and properties and press &quot;Compute&quot;: minimum, maximum, mean and quantiles become properties of the elements, and the values of the current element stand here.</source>
        <translation>Wählen Sie Szenarien und Eigenschaften und drücken Sie „Berechnen“: Minimum, Maximum, Mittel und Quantile werden Eigenschaften der Elemente, und hier stehen die Werte des aktuellen Elements.</translation>
    </message>
    <message>
        <source>Nothing is open. Open a case with several scenarios.</source>
        <translation>Es ist nichts geöffnet. Öffnen Sie einen Fall mit mehreren Szenarien.</translation>
    </message>
    <message>
        <source>Click an element to see its values over the scenarios.</source>
        <translation>Klicken Sie auf ein Element, um seine Werte über die Szenarien zu sehen.</translation>
    </message>
    <message>
        <source>The set has no values of %1.</source>
        <translation>Die Menge hat keine Werte von %1.</translation>
    </message>
    <message>
        <source>Reading the series of %1 …</source>
        <translation>Reihe von %1 wird gelesen …</translation>
    </message>
</context>
<context>
    <name>ScenarioStrip</name>
    <message>
        <source>Scenarios by date</source>
        <translation>Szenarien nach Datum</translation>
    </message>
    <message>
        <source>Date of the scenario</source>
        <translation>Datum des Szenarios</translation>
    </message>
    <message>
        <source>Drag, or step with the arrow keys, to show the scenario of another date</source>
        <translation>Ziehen oder mit den Pfeiltasten weitergehen, um das Szenario eines anderen Datums zu zeigen</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>kein Datum</translation>
    </message>
</context>
<context>
    <name>ScenarioSummary</name>
    <message>
        <source>Case</source>
        <translation>Fall</translation>
    </message>
    <message>
        <source>Scenario</source>
        <translation>Szenario</translation>
    </message>
    <message>
        <source>General properties</source>
        <translation>Allgemeine Eigenschaften</translation>
    </message>
    <message>
        <source>Gas law and solver</source>
        <translation>Gasgesetz und Löser</translation>
    </message>
    <message>
        <source>Further fields</source>
        <translation>Weitere Felder</translation>
    </message>
</context>
<context>
    <name>ScenariosDock</name>
    <message>
        <source>Scenarios</source>
        <translation>Szenarien</translation>
    </message>
    <message>
        <source>Filter by name or date</source>
        <translation>Nach Name oder Datum filtern</translation>
    </message>
    <message>
        <source>Filter of the scenarios</source>
        <translation>Filter der Szenarien</translation>
    </message>
    <message>
        <source>Scenarios of the case</source>
        <translation>Szenarien des Falls</translation>
    </message>
    <message>
        <source>No case with scenarios is open. Each folder of a case that holds a scenario file is listed here.</source>
        <translation>Kein Fall mit Szenarien ist geöffnet. Jeder Ordner eines Falls, der eine Szenariodatei enthält, steht hier.</translation>
    </message>
    <message>
        <source>No scenario has the text of the filter.</source>
        <translation>Kein Szenario enthält den Text des Filters.</translation>
    </message>
</context>
<context>
    <name>SearchHint</name>
    <message>
        <source>No element is of the type &quot;%1&quot;. Types are codes or words, such as p or pipe.</source>
        <translation>Kein Element ist vom Typ &quot;%1&quot;. Typen sind Kürzel oder Wörter, etwa p oder Leitung.</translation>
    </message>
    <message>
        <source>There is no such property: &quot;%1&quot;.</source>
        <translation>Eine solche Eigenschaft gibt es nicht: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Only names are searched. For other values write the property into Prop, or nothing for all of them.</source>
        <translation>Nur Namen werden durchsucht. Für andere Werte schreiben Sie die Eigenschaft in das Feld Eig., oder nichts für alle.</translation>
    </message>
    <message>
        <source>No name fits &quot;%1&quot;. To find elements of this type write it into Type.</source>
        <translation>Kein Name passt zu &quot;%1&quot;. Um Elemente dieses Typs zu finden, schreiben Sie ihn in das Feld Typ.</translation>
    </message>
    <message>
        <source>No name fits &quot;%1&quot;.</source>
        <translation>Kein Name passt zu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a pattern and finds %2 properties with it in their names; &quot;^%1$&quot; finds %1 alone.</source>
        <translation>&quot;%1&quot; ist ein Muster und findet %2 Eigenschaften, in deren Namen es vorkommt; &quot;^%1$&quot; findet nur %1.</translation>
    </message>
</context>
<context>
    <name>SearchTable</name>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>SelectButtons</name>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Select+Closure</source>
        <translation>Auswählen+Umfeld</translation>
    </message>
    <message>
        <source>add</source>
        <translation>hinzufügen</translation>
    </message>
    <message>
        <source>replace</source>
        <translation>ersetzen</translation>
    </message>
</context>
<context>
    <name>SeriesChart</name>
    <message>
        <source>Values over the scenarios</source>
        <translation>Werte über die Szenarien</translation>
    </message>
</context>
<context>
    <name>SeriesDialog</name>
    <message>
        <source>Several Pages</source>
        <translation>Mehrere Seiten</translation>
    </message>
    <message>
        <source>&amp;Views</source>
        <translation>&amp;Ansichten</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Bookmarks of the drawing are views, too</source>
        <translation>Auch Lesezeichen der Zeichnung sind Ansichten</translation>
    </message>
    <message>
        <source>&amp;Scenarios</source>
        <translation>&amp;Szenarien</translation>
    </message>
    <message>
        <source>Scenarios</source>
        <translation>Szenarien</translation>
    </message>
    <message>
        <source>Each view of each scenario becomes a page</source>
        <translation>Jede Ansicht jedes Szenarios wird eine Seite</translation>
    </message>
    <message>
        <source>&amp;Colours and widths mean the same on every page</source>
        <translation>&amp;Farben und Breiten bedeuten auf jeder Seite dasselbe</translation>
    </message>
    <message>
        <source>What they mean in the window now; otherwise each scenario has the range of its own values</source>
        <translation>Was sie jetzt im Fenster bedeuten; sonst hat jedes Szenario den Bereich seiner eigenen Werte</translation>
    </message>
    <message>
        <source>&amp;Into:</source>
        <translation>&amp;In:</translation>
    </message>
    <message>
        <source>one PDF with all pages</source>
        <translation>ein PDF mit allen Seiten</translation>
    </message>
    <message>
        <source>a PDF each</source>
        <translation>je ein PDF</translation>
    </message>
    <message>
        <source>an SVG each</source>
        <translation>je ein SVG</translation>
    </message>
    <message>
        <source>a PNG each</source>
        <translation>je ein PNG</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Datei:</translation>
    </message>
    <message>
        <source>&amp;Browse …</source>
        <translation>D&amp;urchsuchen …</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>Sta&amp;rten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Choose at least one view and one scenario.</source>
        <translation>Wählen Sie mindestens eine Ansicht und ein Szenario.</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>Save Pages</source>
        <translation>Seiten speichern</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Folder of the Pages</source>
        <translation>Ordner der Seiten</translation>
    </message>
    <message>
        <source>1 of the files is there already. Replace it?</source>
        <translation>1 der Dateien ist schon vorhanden. Ersetzen?</translation>
    </message>
    <message>
        <source>%1 of the files are there already. Replace them?</source>
        <translation>%1 der Dateien sind schon vorhanden. Ersetzen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Page %1 of %2: %3</source>
        <translation>Seite %1 von %2: %3</translation>
    </message>
    <message>
        <source>1 page is in %1</source>
        <translation>1 Seite ist in %1</translation>
    </message>
    <message>
        <source>%1 pages are in %2</source>
        <translation>%1 Seiten sind in %2</translation>
    </message>
    <message>
        <source>The rest was cancelled.</source>
        <translation>Der Rest wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was written.</source>
        <translation>Abgebrochen: Nichts wurde geschrieben.</translation>
    </message>
</context>
<context>
    <name>SeriesPanel</name>
    <message>
        <source>Property of the series</source>
        <translation>Eigenschaft der Reihe</translation>
    </message>
    <message>
        <source>Save picture …</source>
        <translation>Bild speichern …</translation>
    </message>
    <message>
        <source>Save the chart as a picture</source>
        <translation>Das Diagramm als Bild speichern</translation>
    </message>
    <message>
        <source>Save series …</source>
        <translation>Reihe speichern …</translation>
    </message>
    <message>
        <source>Save the values as a table</source>
        <translation>Die Werte als Tabelle speichern</translation>
    </message>
    <message>
        <source>5 %</source>
        <translation>5 %</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>%1 values in %2: minimum %3 (%4), maximum %5 (%6)</source>
        <translation>%1 Werte in %2: Minimum %3 (%4), Maximum %5 (%6)</translation>
    </message>
    <message>
        <source>mean %1, standard deviation %2</source>
        <translation>Mittel %1, Standardabweichung %2</translation>
    </message>
    <message>
        <source>quantiles 5 % %1, 25 % %2, 50 % %3, 75 % %4, 95 % %5</source>
        <translation>Quantile 5 % %1, 25 % %2, 50 % %3, 75 % %4, 95 % %5</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>the places of window and docks are damaged and not used</source>
        <translation>die Lage von Fenster und Bereichen ist beschädigt und wird nicht verwendet</translation>
    </message>
    <message>
        <source>it is no session</source>
        <translation>es ist keine Sitzung</translation>
    </message>
    <message>
        <source>it is of another version of the program</source>
        <translation>sie ist von einer anderen Version des Programms</translation>
    </message>
    <message>
        <source>it is of another case</source>
        <translation>sie gehört zu einem anderen Fall</translation>
    </message>
    <message>
        <source>What was kept of this case cannot be used: %1</source>
        <translation>Was zu diesem Fall aufbewahrt wurde, ist nicht brauchbar: %1</translation>
    </message>
</context>
<context>
    <name>SessionKeeper</name>
    <message>
        <source>There is too much to keep of this case; the session before stays.</source>
        <translation>Zu diesem Fall gibt es zu viel aufzubewahren; es bleibt bei der vorigen Sitzung.</translation>
    </message>
    <message>
        <source>%1 was written since this case was open here, so it decides how the network is drawn.</source>
        <translation>%1 wurde geschrieben, seit dieser Fall hier offen war, und bestimmt deshalb, wie das Netz gezeichnet wird.</translation>
    </message>
</context>
<context>
    <name>SetChoice</name>
    <message>
        <source>Compute</source>
        <translation>Berechnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>All scenarios, or such as 2015-01*, cold*</source>
        <translation>Alle Szenarien, oder solche wie 2015-01*, kalt*</translation>
    </message>
    <message>
        <source>Names of the scenarios</source>
        <translation>Namen der Szenarien</translation>
    </message>
    <message>
        <source>Names with wildcards, separated by commas</source>
        <translation>Namen mit Platzhaltern, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Read the scenarios and make properties of their figures</source>
        <translation>Die Szenarien lesen und aus ihren Kennzahlen Eigenschaften machen</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Kennzahlen</translation>
    </message>
    <message>
        <source>Properties of the set</source>
        <translation>Eigenschaften der Menge</translation>
    </message>
    <message>
        <source>Figures that become properties</source>
        <translation>Kennzahlen, die Eigenschaften werden</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2 scenarios</source>
        <translation>%1 von %2 Szenarien</translation>
    </message>
</context>
<context>
    <name>SetScenarios</name>
    <message>
        <source>&quot;%1&quot; is no range of dates such as 2015-01-01..2015-03-31</source>
        <translation>„%1“ ist kein Zeitraum wie 2015-01-01..2015-03-31</translation>
    </message>
</context>
<context>
    <name>SetStatistic</name>
    <message>
        <source>number of values</source>
        <translation>Anzahl der Werte</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>scenario of the minimum</source>
        <translation>Szenario des Minimums</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>scenario of the maximum</source>
        <translation>Szenario des Maximums</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>standard deviation</source>
        <translation>Standardabweichung</translation>
    </message>
    <message>
        <source>5 % quantile</source>
        <translation>5-%-Quantil</translation>
    </message>
    <message>
        <source>25 % quantile</source>
        <translation>25-%-Quantil</translation>
    </message>
    <message>
        <source>median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>75 % quantile</source>
        <translation>75-%-Quantil</translation>
    </message>
    <message>
        <source>95 % quantile</source>
        <translation>95-%-Quantil</translation>
    </message>
</context>
<context>
    <name>SettingDescription</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Zooming and labels</source>
        <translation>Zoomen und Beschriftungen</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Subnets</source>
        <translation>Teilnetze</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>Maus und Tasten</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Besonderes</translation>
    </message>
    <message>
        <source>Units and numbers</source>
        <translation>Einheiten und Zahlen</translation>
    </message>
    <message>
        <source>For other tools, without effect here</source>
        <translation>Für andere Werkzeuge, hier ohne Wirkung</translation>
    </message>
    <message>
        <source>like the desktop</source>
        <translation>wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>as in the property table</source>
        <translation>wie in der Eigenschaftstabelle</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>not filled</source>
        <translation>nicht gefüllt</translation>
    </message>
    <message>
        <source>filled</source>
        <translation>gefüllt</translation>
    </message>
    <message>
        <source>dots, 94 %</source>
        <translation>Punkte, 94 %</translation>
    </message>
    <message>
        <source>dots, 88 %</source>
        <translation>Punkte, 88 %</translation>
    </message>
    <message>
        <source>dots, 63 %</source>
        <translation>Punkte, 63 %</translation>
    </message>
    <message>
        <source>dots, 50 %</source>
        <translation>Punkte, 50 %</translation>
    </message>
    <message>
        <source>dots, 37 %</source>
        <translation>Punkte, 37 %</translation>
    </message>
    <message>
        <source>dots, 12 %</source>
        <translation>Punkte, 12 %</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>Takes effect with the next opening.</source>
        <translation>Wirkt beim nächsten Öffnen.</translation>
    </message>
    <message>
        <source>Takes effect with the next start of the program.</source>
        <translation>Wirkt beim nächsten Start des Programms.</translation>
    </message>
    <message>
        <source>Kept for other tools on the same workspaces, without effect here.</source>
        <translation>Für andere Werkzeuge auf denselben Arbeitsbereichen aufbewahrt, hier ohne Wirkung.</translation>
    </message>
    <message>
        <source>Takes effect at once.</source>
        <translation>Wirkt sofort.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>A geometry file opens with the scenario of its case that was opened last.</source>
        <translation>Eine Geometriedatei öffnet sich mit dem Szenario ihres Falls, das zuletzt offen war.</translation>
    </message>
    <message>
        <source>The open pages of machine maps come back with their case.</source>
        <translation>Die offenen Kennfelder kommen mit ihrem Fall wieder.</translation>
    </message>
    <message>
        <source>Values in saved tables have a decimal comma in place of the point.</source>
        <translation>Werte in gespeicherten Tabellen haben ein Dezimalkomma anstelle des Punkts.</translation>
    </message>
    <message>
        <source>Language of the program. What a workspace says of it is not asked.</source>
        <translation>Sprache des Programms. Was ein Arbeitsbereich dazu sagt, zählt nicht.</translation>
    </message>
    <message>
        <source>Turning the wheel zooms to the element under the cursor in place of the point.</source>
        <translation>Das Mausrad zoomt auf das Element unter dem Zeiger statt auf den Punkt.</translation>
    </message>
    <message>
        <source>After moving or zooming, symbols and labels are laid out anew for the view.</source>
        <translation>Nach dem Verschieben oder Zoomen werden Symbole und Beschriftungen für die Ansicht neu gesetzt.</translation>
    </message>
    <message>
        <source>How long the view must rest before symbols and labels are laid out anew.</source>
        <translation>Wie lange die Ansicht ruhen muss, bevor Symbole und Beschriftungen neu gesetzt werden.</translation>
    </message>
    <message>
        <source>Zooming goes in small steps that the eye can follow.</source>
        <translation>Das Zoomen geschieht in kleinen Schritten, denen das Auge folgen kann.</translation>
    </message>
    <message>
        <source>How long the view must rest after a smooth zoom before symbols and labels are laid out anew.</source>
        <translation>Wie lange die Ansicht nach einem weichen Zoomen ruhen muss, bevor Symbole und Beschriftungen neu gesetzt werden.</translation>
    </message>
    <message>
        <source>How long a smooth zoom takes.</source>
        <translation>Wie lange ein weiches Zoomen dauert.</translation>
    </message>
    <message>
        <source>Pictures that a smooth zoom shows on its way.</source>
        <translation>Bilder, die ein weiches Zoomen unterwegs zeigt.</translation>
    </message>
    <message>
        <source>A click lays out symbols and labels anew as well.</source>
        <translation>Auch ein Klick setzt Symbole und Beschriftungen neu.</translation>
    </message>
    <message>
        <source>Labels are drawn at all.</source>
        <translation>Beschriftungen werden überhaupt gezeichnet.</translation>
    </message>
    <message>
        <source>Symbols of stations are drawn at all.</source>
        <translation>Symbole von Stationen werden überhaupt gezeichnet.</translation>
    </message>
    <message>
        <source>When labels are placed by themselves: always, as soon as a small enough part of the network is seen (&quot;proximity&quot;), only on request at their pace (&quot;wait&quot;), or never.</source>
        <translation>Wann Beschriftungen von selbst gesetzt werden: immer (&quot;always&quot;), sobald ein genügend kleiner Teil des Netzes zu sehen ist (&quot;proximity&quot;), nur auf Wunsch in ihrem Takt (&quot;wait&quot;) oder nie (&quot;never&quot;).</translation>
    </message>
    <message>
        <source>With &quot;proximity&quot;, labels are placed once less than this share of the network is seen.</source>
        <translation>Bei &quot;proximity&quot; werden Beschriftungen gesetzt, sobald weniger als dieser Anteil des Netzes zu sehen ist.</translation>
    </message>
    <message>
        <source>With &quot;wait&quot;, the time between two placements of labels.</source>
        <translation>Bei &quot;wait&quot; die Zeit zwischen zwei Läufen, die Beschriftungen setzen.</translation>
    </message>
    <message>
        <source>How much more than the smallest view is shown around an element that is brought into view.</source>
        <translation>Wie viel mehr als die kleinste Ansicht um ein Element gezeigt wird, das in den Blick geholt wird.</translation>
    </message>
    <message>
        <source>What is smaller than this after a conversion of units in scenario files is 0.</source>
        <translation>Was nach dem Umrechnen von Einheiten in Szenariodateien kleiner als dies ist, gilt als 0.</translation>
    </message>
    <message>
        <source>Colour that fills the marks of selected elements.</source>
        <translation>Farbe, die Markierungen ausgewählter Elemente füllt.</translation>
    </message>
    <message>
        <source>How opaque that colour is: 0 is not seen, 255 covers everything.</source>
        <translation>Wie deckend diese Farbe ist: 0 ist nicht zu sehen, 255 deckt alles ab.</translation>
    </message>
    <message>
        <source>Pattern that fills the marks of selected elements.</source>
        <translation>Muster, das Markierungen ausgewählter Elemente füllt.</translation>
    </message>
    <message>
        <source>Colour of the outline of selected elements.</source>
        <translation>Farbe des Umrisses ausgewählter Elemente.</translation>
    </message>
    <message>
        <source>How opaque the outline is: 0 is not seen, 255 covers everything.</source>
        <translation>Wie deckend der Umriss ist: 0 ist nicht zu sehen, 255 deckt alles ab.</translation>
    </message>
    <message>
        <source>Deselecting a subnet deselects its nodes, too.</source>
        <translation>Ein abgewähltes Teilnetz wählt auch seine Knoten ab.</translation>
    </message>
    <message>
        <source>Colour that fills the marks of selected subnets.</source>
        <translation>Farbe, die Markierungen ausgewählter Teilnetze füllt.</translation>
    </message>
    <message>
        <source>Pattern that fills the marks of selected subnets.</source>
        <translation>Muster, das Markierungen ausgewählter Teilnetze füllt.</translation>
    </message>
    <message>
        <source>Colour of the outline of selected subnets.</source>
        <translation>Farbe des Umrisses ausgewählter Teilnetze.</translation>
    </message>
    <message>
        <source>Size of the mark of a selected subnet, as a share of the subnet&apos;s own.</source>
        <translation>Größe der Markierung eines ausgewählten Teilnetzes, als Anteil an dessen eigener.</translation>
    </message>
    <message>
        <source>What the ring around a subnet tells: violated bounds (&quot;BV status&quot;), its control, whether the search found it, or nothing.</source>
        <translation>Was der Ring um ein Teilnetz sagt: verletzte Schranken (&quot;BV status&quot;), seine Regelung, ob die Suche es fand, oder nichts.</translation>
    </message>
    <message>
        <source>Height at which the grounds of subnets are drawn; what is higher covers what is lower.</source>
        <translation>Höhe, in der die Gründe der Teilnetze gezeichnet werden; Höheres verdeckt Tieferes.</translation>
    </message>
    <message>
        <source>How far the ground of a subnet reaches beyond its symbol.</source>
        <translation>Wie weit der Grund eines Teilnetzes über sein Symbol hinausreicht.</translation>
    </message>
    <message>
        <source>Width of the ring around a subnet.</source>
        <translation>Breite des Rings um ein Teilnetz.</translation>
    </message>
    <message>
        <source>Ring of a subnet with a major violated bound.</source>
        <translation>Ring eines Teilnetzes mit einer erheblich verletzten Schranke.</translation>
    </message>
    <message>
        <source>Ring of a subnet with a minor violated bound.</source>
        <translation>Ring eines Teilnetzes mit einer geringfügig verletzten Schranke.</translation>
    </message>
    <message>
        <source>Ring of a subnet without violated bounds.</source>
        <translation>Ring eines Teilnetzes ohne verletzte Schranken.</translation>
    </message>
    <message>
        <source>Ring of a subnet of which nobody knows.</source>
        <translation>Ring eines Teilnetzes, über das nichts bekannt ist.</translation>
    </message>
    <message>
        <source>Ring of a subnet that the search found.</source>
        <translation>Ring eines Teilnetzes, das die Suche fand.</translation>
    </message>
    <message>
        <source>Ground of a subnet that holds a flow.</source>
        <translation>Grund eines Teilnetzes, das einen Durchfluss hält.</translation>
    </message>
    <message>
        <source>Ground of a subnet that holds a pressure.</source>
        <translation>Grund eines Teilnetzes, das einen Druck hält.</translation>
    </message>
    <message>
        <source>Ground of a subnet that may hold something.</source>
        <translation>Grund eines Teilnetzes, das vielleicht etwas hält.</translation>
    </message>
    <message>
        <source>Ground of a subnet that is passed by.</source>
        <translation>Grund eines Teilnetzes, das umgangen wird.</translation>
    </message>
    <message>
        <source>Ground of a subnet whose state nobody knows.</source>
        <translation>Grund eines Teilnetzes, dessen Zustand nicht bekannt ist.</translation>
    </message>
    <message>
        <source>Ground of a subnet that is off.</source>
        <translation>Grund eines Teilnetzes, das aus ist.</translation>
    </message>
    <message>
        <source>Lines lead from a subnet to the nodes that it connects to.</source>
        <translation>Linien führen von einem Teilnetz zu den Knoten, mit denen es verbunden ist.</translation>
    </message>
    <message>
        <source>What the size of a subnet&apos;s symbol follows.</source>
        <translation>Wonach sich die Größe des Symbols eines Teilnetzes richtet.</translation>
    </message>
    <message>
        <source>Key that is held while a rectangle is dragged to zoom into it.</source>
        <translation>Taste, die gehalten wird, während ein Rechteck zum Hineinzoomen aufgezogen wird.</translation>
    </message>
    <message>
        <source>Button that moves the view when it is dragged.</source>
        <translation>Taste, die die Ansicht verschiebt, wenn mit ihr gezogen wird.</translation>
    </message>
    <message>
        <source>With &quot;ShiftSelect&quot;, Shift and the dragged left button select what is in a rectangle.</source>
        <translation>Bei &quot;ShiftSelect&quot; wählen die Umschalttaste und die gezogene linke Maustaste aus, was in einem Rechteck liegt.</translation>
    </message>
    <message>
        <source>Mismatches in the configuration are written to the log in place of message boxes.</source>
        <translation>Unstimmigkeiten der Konfiguration kommen in das Protokoll statt in Meldungsfenster.</translation>
    </message>
    <message>
        <source>Look of the status bar after an opening that failed.</source>
        <translation>Aussehen der Statusleiste nach einem fehlgeschlagenen Öffnen.</translation>
    </message>
    <message>
        <source>Look of the status bar after an opening that was cancelled.</source>
        <translation>Aussehen der Statusleiste nach einem abgebrochenen Öffnen.</translation>
    </message>
    <message>
        <source>Look of the status bar after an opening with findings.</source>
        <translation>Aussehen der Statusleiste nach einem Öffnen mit Befunden.</translation>
    </message>
    <message>
        <source>Look of the status bar after an opening without findings.</source>
        <translation>Aussehen der Statusleiste nach einem Öffnen ohne Befunde.</translation>
    </message>
    <message>
        <source>Before reading, the program asks which types and properties to take.</source>
        <translation>Vor dem Lesen fragt das Programm, welche Typen und Eigenschaften es nehmen soll.</translation>
    </message>
    <message>
        <source>A click takes effect when the button is let go in place of when it is pressed.</source>
        <translation>Ein Klick wirkt beim Loslassen der Taste statt beim Drücken.</translation>
    </message>
    <message>
        <source>Unit of pressures, which are absolute; &quot;gauge&quot; counts from 1.01325 bar.</source>
        <translation>Einheit der Drücke, die absolut sind; &quot;gauge&quot; zählt von 1,01325 bar an.</translation>
    </message>
    <message>
        <source>Unit of pressure losses and of other differences between pressures.</source>
        <translation>Einheit von Druckverlusten und anderen Unterschieden zwischen Drücken.</translation>
    </message>
    <message>
        <source>Unit of volume flows at norm conditions (0 °C, 1.01325 bar).</source>
        <translation>Einheit der Volumenströme bei Normbedingungen (0 °C, 1,01325 bar).</translation>
    </message>
    <message>
        <source>Unit of mass flows.</source>
        <translation>Einheit der Massenströme.</translation>
    </message>
    <message>
        <source>Unit of energy that flows with the gas.</source>
        <translation>Einheit der Energie, die mit dem Gas strömt.</translation>
    </message>
    <message>
        <source>Unit of the power of machines and of heat.</source>
        <translation>Einheit der Leistung von Maschinen und der Wärme.</translation>
    </message>
    <message>
        <source>Unit of temperatures.</source>
        <translation>Einheit der Temperaturen.</translation>
    </message>
    <message>
        <source>Unit of differences between temperatures.</source>
        <translation>Einheit der Unterschiede zwischen Temperaturen.</translation>
    </message>
    <message>
        <source>Unit of the length of pipes.</source>
        <translation>Einheit der Länge von Leitungen.</translation>
    </message>
    <message>
        <source>Unit of heights above sea level.</source>
        <translation>Einheit der Höhen über dem Meeresspiegel.</translation>
    </message>
    <message>
        <source>Unit of diameters.</source>
        <translation>Einheit der Durchmesser.</translation>
    </message>
    <message>
        <source>Unit of wall thickness and roughness.</source>
        <translation>Einheit von Wandstärke und Rauheit.</translation>
    </message>
    <message>
        <source>Unit of velocities of the gas.</source>
        <translation>Einheit der Geschwindigkeiten des Gases.</translation>
    </message>
    <message>
        <source>Unit of volume flows at the conditions in the inlet of a machine.</source>
        <translation>Einheit der Volumenströme bei den Bedingungen am Eingang einer Maschine.</translation>
    </message>
    <message>
        <source>Unit of adiabatic heads; a metre of head is the work against standard gravity.</source>
        <translation>Einheit der adiabaten Förderhöhen; ein Meter Förderhöhe ist die Arbeit gegen die Normfallbeschleunigung.</translation>
    </message>
    <message>
        <source>Unit of speeds of machines.</source>
        <translation>Einheit der Drehzahlen von Maschinen.</translation>
    </message>
    <message>
        <source>Unit of densities.</source>
        <translation>Einheit der Dichten.</translation>
    </message>
    <message>
        <source>Unit of calorific values and Wobbe indices.</source>
        <translation>Einheit der Brennwerte und Wobbe-Indizes.</translation>
    </message>
    <message>
        <source>Unit of amounts of gas at norm conditions.</source>
        <translation>Einheit der Gasmengen bei Normbedingungen.</translation>
    </message>
    <message>
        <source>Whether the number of digits counts all significant ones or those behind the decimal sign.</source>
        <translation>Ob die Zahl der Stellen alle gültigen zählt oder die nach dem Dezimalzeichen.</translation>
    </message>
    <message>
        <source>Digits that are shown of numbers. Tips and copies of cells have all of them.</source>
        <translation>Stellen, die von Zahlen gezeigt werden. Hinweise und Kopien von Zellen haben alle.</translation>
    </message>
    <message>
        <source>Significant digits in labels and tips of the drawing, where there is less room.</source>
        <translation>Gültige Stellen in Beschriftungen und Hinweisen der Zeichnung, wo weniger Platz ist.</translation>
    </message>
    <message>
        <source>Sign between the whole number and its decimals; also accepted where numbers are typed, besides the point.</source>
        <translation>Zeichen zwischen der ganzen Zahl und ihren Nachkommastellen; gilt neben dem Punkt auch beim Eingeben von Zahlen.</translation>
    </message>
    <message>
        <source>What stands between groups of three digits; &quot;other sign&quot; is the comma or point that is not the decimal sign.</source>
        <translation>Was zwischen Gruppen von drei Ziffern steht; &quot;das andere Zeichen&quot; ist Komma oder Punkt, je nachdem, was nicht Dezimalzeichen ist.</translation>
    </message>
    <message>
        <source>Significant digits of numbers in saved tables; 0 writes all of them.</source>
        <translation>Gültige Stellen der Zahlen in gespeicherten Tabellen; 0 schreibt alle.</translation>
    </message>
    <message>
        <source>What stands between groups of three digits in saved tables.</source>
        <translation>Was in gespeicherten Tabellen zwischen Gruppen von drei Ziffern steht.</translation>
    </message>
    <message>
        <source>How other tools update subnets.</source>
        <translation>Wie andere Werkzeuge Teilnetze aktualisieren.</translation>
    </message>
    <message>
        <source>Other tools check networks and add properties that are missing.</source>
        <translation>Andere Werkzeuge prüfen Netze und fügen fehlende Eigenschaften hinzu.</translation>
    </message>
    <message>
        <source>That check leaves subnets alone.</source>
        <translation>Diese Prüfung lässt Teilnetze aus.</translation>
    </message>
    <message>
        <source>Pattern of the properties that this check leaves alone.</source>
        <translation>Muster der Eigenschaften, die diese Prüfung auslässt.</translation>
    </message>
    <message>
        <source>Share of a subnet below which other tools place its labels.</source>
        <translation>Anteil eines Teilnetzes, unter dem andere Werkzeuge seine Beschriftungen setzen.</translation>
    </message>
    <message>
        <source>How other tools show major violated bounds.</source>
        <translation>Wie andere Werkzeuge erheblich verletzte Schranken zeigen.</translation>
    </message>
    <message>
        <source>How other tools list minor violated bounds.</source>
        <translation>Wie andere Werkzeuge geringfügig verletzte Schranken auflisten.</translation>
    </message>
    <message>
        <source>Of the solver: another factor for the smoothing of flow directions.</source>
        <translation>Löser: ein anderer Faktor für die Glättung der Strömungsrichtungen.</translation>
    </message>
    <message>
        <source>Of the solver: whether bounds of energy flows are kept at supplies.</source>
        <translation>Löser: ob Schranken der Energieströme an Einspeisungen eingehalten werden.</translation>
    </message>
    <message>
        <source>Of the solver: tolerance of set mass flows in the initialization.</source>
        <translation>Löser: Toleranz der Massenstromvorgaben in der Initialisierung.</translation>
    </message>
    <message>
        <source>Of the solver: tolerance of set mass flows in the advanced phase.</source>
        <translation>Löser: Toleranz der Massenstromvorgaben in der fortgeschrittenen Phase.</translation>
    </message>
    <message>
        <source>Of the solver: weight of its regularization.</source>
        <translation>Löser: Gewicht seiner Regularisierung.</translation>
    </message>
    <message>
        <source>Of the solver: weight of the regularization in its score.</source>
        <translation>Löser: Gewicht der Regularisierung in seiner Bewertung.</translation>
    </message>
    <message>
        <source>Of the solver: leaves out set temperatures of special supplies.</source>
        <translation>Löser: lässt Temperaturvorgaben besonderer Einspeisungen weg.</translation>
    </message>
    <message>
        <source>Of the solver: takes the largest mass flow of regulators into account.</source>
        <translation>Löser: berücksichtigt den größten Massenstrom der Regler.</translation>
    </message>
    <message>
        <source>Of the solver: length of its pseudo time step.</source>
        <translation>Löser: Länge seines Pseudozeitschritts.</translation>
    </message>
    <message>
        <source>Of the solver: the phase after which it begins to optimize.</source>
        <translation>Löser: die Phase, nach der er zu optimieren beginnt.</translation>
    </message>
    <message>
        <source>Of the solver: what follows a step of the optimization.</source>
        <translation>Löser: was auf einen Schritt der Optimierung folgt.</translation>
    </message>
    <message>
        <source>Of the solver: further steps of the initialization.</source>
        <translation>Löser: weitere Schritte der Initialisierung.</translation>
    </message>
    <message>
        <source>Of the solver: where it goes on when the initialization does not converge.</source>
        <translation>Löser: wo er fortfährt, wenn die Initialisierung nicht konvergiert.</translation>
    </message>
    <message>
        <source>Of the solver: further steps with free compressors.</source>
        <translation>Löser: weitere Schritte mit freien Verdichtern.</translation>
    </message>
    <message>
        <source>Of the solver: where it goes on when these steps do not converge.</source>
        <translation>Löser: wo er fortfährt, wenn diese Schritte nicht konvergieren.</translation>
    </message>
    <message>
        <source>Of the solver: where it goes on when the advanced phase does not converge.</source>
        <translation>Löser: wo er fortfährt, wenn die fortgeschrittene Phase nicht konvergiert.</translation>
    </message>
    <message>
        <source>Of the solver: kind of its advanced phase.</source>
        <translation>Löser: Art seiner fortgeschrittenen Phase.</translation>
    </message>
    <message>
        <source>Of the solver: keeps the folders of earlier transient results.</source>
        <translation>Löser: behält die Ordner früherer instationärer Ergebnisse.</translation>
    </message>
    <message>
        <source>Of the solver: joins nodes that shortcuts connect.</source>
        <translation>Löser: vereint Knoten, die durch Kurzschlüsse verbunden sind.</translation>
    </message>
    <message>
        <source>Of the solver: gives results back over shortcuts.</source>
        <translation>Löser: verteilt Ergebnisse über Kurzschlüsse zurück.</translation>
    </message>
    <message>
        <source>Of the solver: writes the results inside of subnets.</source>
        <translation>Löser: schreibt die Ergebnisse im Innern von Teilnetzen.</translation>
    </message>
    <message>
        <source>Of the solver: reads the results inside of subnets.</source>
        <translation>Löser: liest die Ergebnisse im Innern von Teilnetzen.</translation>
    </message>
    <message>
        <source>Of the solver: J/(mol K).</source>
        <translation>Löser: J/(mol K).</translation>
    </message>
    <message>
        <source>Of the solver: bar, of norm conditions.</source>
        <translation>Löser: bar, der Normbedingungen.</translation>
    </message>
    <message>
        <source>Of the solver: K, of norm conditions.</source>
        <translation>Löser: K, der Normbedingungen.</translation>
    </message>
    <message>
        <source>Of the solver: the equation of its gas law.</source>
        <translation>Löser: die Gleichung seines Gasgesetzes.</translation>
    </message>
    <message>
        <source>Of the solver: takes this equation whatever a scenario says.</source>
        <translation>Löser: nimmt diese Gleichung, was auch ein Szenario sagt.</translation>
    </message>
    <message>
        <source>Of the solver: file of the gases that others are mixed of.</source>
        <translation>Löser: Datei der Gase, aus denen andere gemischt werden.</translation>
    </message>
    <message>
        <source>Style sheet of headings of the first level in reports.</source>
        <translation>Stylesheet der Überschriften erster Ebene in Berichten.</translation>
    </message>
    <message>
        <source>Style sheet of headings of the second level in reports.</source>
        <translation>Stylesheet der Überschriften zweiter Ebene in Berichten.</translation>
    </message>
    <message>
        <source>Style sheet of headings of the third level in reports.</source>
        <translation>Stylesheet der Überschriften dritter Ebene in Berichten.</translation>
    </message>
    <message>
        <source>Style sheet of paragraphs in reports.</source>
        <translation>Stylesheet der Absätze in Berichten.</translation>
    </message>
    <message>
        <source>Style sheet of tables in reports.</source>
        <translation>Stylesheet der Tabellen in Berichten.</translation>
    </message>
    <message>
        <source>Quantities of which reports have plots.</source>
        <translation>Größen, von denen Berichte Diagramme haben.</translation>
    </message>
    <message>
        <source>Differences of which reports have plots.</source>
        <translation>Unterschiede, von denen Berichte Diagramme haben.</translation>
    </message>
    <message>
        <source>The progress of the solver is shown in the status bar.</source>
        <translation>Der Fortschritt des Lösers steht in der Statusleiste.</translation>
    </message>
    <message>
        <source>Patterns of the files that archives leave out.</source>
        <translation>Muster der Dateien, die Archive weglassen.</translation>
    </message>
    <message>
        <source>An archive is unpacked where it was copied to.</source>
        <translation>Ein Archiv wird entpackt, wohin es kopiert wurde.</translation>
    </message>
    <message>
        <source>An archive is removed once it was copied.</source>
        <translation>Ein Archiv wird gelöscht, sobald es kopiert ist.</translation>
    </message>
    <message>
        <source>Looks for ensembles of scenarios.</source>
        <translation>Sucht nach Gruppen von Szenarien.</translation>
    </message>
    <message>
        <source>What begins the names of variants.</source>
        <translation>Womit die Namen von Varianten beginnen.</translation>
    </message>
    <message>
        <source>How variants of scenarios are kept.</source>
        <translation>Wie Varianten von Szenarien aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Of the solver: corrects differences of height.</source>
        <translation>Löser: berichtigt Höhenunterschiede.</translation>
    </message>
    <message>
        <source>Of the solver: what it does about stalled regulators.</source>
        <translation>Löser: was er bei festgefahrenen Reglern tut.</translation>
    </message>
    <message>
        <source>Of the solver: may change the state of stalled regulators.</source>
        <translation>Löser: darf den Zustand festgefahrener Regler ändern.</translation>
    </message>
    <message>
        <source>Of the solver: may change the state of stalled compressors.</source>
        <translation>Löser: darf den Zustand festgefahrener Verdichter ändern.</translation>
    </message>
    <message>
        <source>Of the solver: the step after which it may do so.</source>
        <translation>Löser: der Schritt, nach dem er das darf.</translation>
    </message>
    <message>
        <source>Of the solver: another tolerance for stalled regulators.</source>
        <translation>Löser: eine andere Toleranz für festgefahrene Regler.</translation>
    </message>
    <message>
        <source>Of the solver: tolerance of checking stalled regulators.</source>
        <translation>Löser: Toleranz beim Prüfen festgefahrener Regler.</translation>
    </message>
    <message>
        <source>Of the solver: tolerance of their pressure difference.</source>
        <translation>Löser: Toleranz ihrer Druckdifferenz.</translation>
    </message>
    <message>
        <source>Of the solver: tolerance of the simple change.</source>
        <translation>Löser: Toleranz der einfachen Änderung.</translation>
    </message>
    <message>
        <source>Of the solver: tolerance of changing their state.</source>
        <translation>Löser: Toleranz beim Ändern ihres Zustands.</translation>
    </message>
    <message>
        <source>Of the solver: tolerance of changing their state at negative flow.</source>
        <translation>Löser: Toleranz beim Ändern ihres Zustands bei negativem Durchfluss.</translation>
    </message>
    <message>
        <source>Of the solver: lower bound of the largest mass flow of compressors and regulators.</source>
        <translation>Löser: untere Schranke des größten Massenstroms von Verdichtern und Reglern.</translation>
    </message>
    <message>
        <source>How corrections of calorific value and temperature are treated.</source>
        <translation>Wie Korrekturen von Brennwert und Temperatur behandelt werden.</translation>
    </message>
    <message>
        <source>Lowest temperature of this correction.</source>
        <translation>Kleinste Temperatur dieser Korrektur.</translation>
    </message>
    <message>
        <source>Lowest calorific value of this correction.</source>
        <translation>Kleinster Brennwert dieser Korrektur.</translation>
    </message>
    <message>
        <source>Highest temperature of this correction.</source>
        <translation>Größte Temperatur dieser Korrektur.</translation>
    </message>
    <message>
        <source>Highest calorific value of this correction.</source>
        <translation>Größter Brennwert dieser Korrektur.</translation>
    </message>
    <message>
        <source>Other tools may change values of sources.</source>
        <translation>Andere Werkzeuge dürfen Werte von Quellen ändern.</translation>
    </message>
    <message>
        <source>Other tools may change properties that were not preset.</source>
        <translation>Andere Werkzeuge dürfen Eigenschaften ändern, die nicht vorbelegt waren.</translation>
    </message>
    <message>
        <source>Other tools may change further properties.</source>
        <translation>Andere Werkzeuge dürfen weitere Eigenschaften ändern.</translation>
    </message>
    <message>
        <source>What begins the addresses of an external data exchange.</source>
        <translation>Womit die Adressen eines äußeren Datenaustauschs beginnen.</translation>
    </message>
    <message>
        <source>Sending to this exchange needs the lock of the scenario.</source>
        <translation>Das Senden an diesen Austausch braucht die Sperre des Szenarios.</translation>
    </message>
    <message>
        <source>Unlocking a scenario unlocks all that belongs to it.</source>
        <translation>Das Entsperren eines Szenarios entsperrt alles, was dazugehört.</translation>
    </message>
    <message>
        <source>When all variants are fetched from this exchange.</source>
        <translation>Wann alle Varianten von diesem Austausch geholt werden.</translation>
    </message>
    <message>
        <source>Tells when a lock is waited for.</source>
        <translation>Meldet, wenn auf eine Sperre gewartet wird.</translation>
    </message>
    <message>
        <source>significant digits</source>
        <translation>gültige Stellen</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>Nachkommastellen</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>labels only</source>
        <translation>nur in Beschriftungen</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>apostrophe</source>
        <translation>Apostroph</translation>
    </message>
    <message>
        <source>other sign</source>
        <translation>das andere Zeichen</translation>
    </message>
    <message>
        <source>Light or dark windows, or as the desktop has them. A workspace does not change it.</source>
        <translation>Helle oder dunkle Fenster, oder wie die Arbeitsumgebung sie hat. Ein Arbeitsbereich ändert es nicht.</translation>
    </message>
    <message>
        <source>Check of the network</source>
        <translation>Prüfung des Netzes</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>By the results, what the edges bring to a node is not what it takes.</source>
        <translation>Nach den Ergebnissen bringen die Kanten einem Knoten anderes, als er nimmt.</translation>
    </message>
    <message>
        <source>The set flows of a connected part do not sum up to nothing.</source>
        <translation>Die vorgegebenen Flüsse eines zusammenhängenden Teils heben sich nicht auf.</translation>
    </message>
    <message>
        <source>A set flow is outside of the contracted flows of its node.</source>
        <translation>Ein vorgegebener Fluss liegt außerhalb der vertraglichen Flüsse seines Knotens.</translation>
    </message>
    <message>
        <source>A set flow is outside of the bounds of its node.</source>
        <translation>Ein vorgegebener Fluss liegt außerhalb der Schranken seines Knotens.</translation>
    </message>
    <message>
        <source>A set flow is larger than its connection, or the elements there, can carry.</source>
        <translation>Ein vorgegebener Fluss ist größer, als sein Anschluss oder die Elemente dort tragen können.</translation>
    </message>
    <message>
        <source>A set pressure is outside of the bounds of its node.</source>
        <translation>Ein vorgegebener Druck liegt außerhalb der Schranken seines Knotens.</translation>
    </message>
    <message>
        <source>A lower bound is above its upper bound.</source>
        <translation>Eine untere Schranke liegt über der oberen.</translation>
    </message>
    <message>
        <source>Nodes are cut off from every source and every set pressure; without set flows it is information.</source>
        <translation>Knoten sind von jeder Quelle und jedem vorgegebenen Druck abgeschnitten; ohne vorgegebene Flüsse ist es eine Information.</translation>
    </message>
    <message>
        <source>Nothing holds a pressure in a connected part.</source>
        <translation>Nichts hält einen Druck in einem zusammenhängenden Teil.</translation>
    </message>
    <message>
        <source>Pipes lie between the same nodes and have the same length and diameter.</source>
        <translation>Leitungen liegen zwischen denselben Knoten und haben gleiche Länge und gleichen Durchmesser.</translation>
    </message>
    <message>
        <source>The length of a pipe is missing, nothing or negative.</source>
        <translation>Die Länge einer Leitung fehlt, ist null oder negativ.</translation>
    </message>
    <message>
        <source>The heights of the ends of an element differ more than can be.</source>
        <translation>Die Höhen der Enden eines Elements unterscheiden sich mehr, als sein kann.</translation>
    </message>
    <message>
        <source>Many nodes lie at the same point.</source>
        <translation>Viele Knoten liegen am selben Punkt.</translation>
    </message>
    <message>
        <source>How much of what flows may be missing in a balance.</source>
        <translation>Wie viel von dem, was fließt, in einer Bilanz fehlen darf.</translation>
    </message>
    <message>
        <source>Height between the ends of a pipe by its length that is no jump yet.</source>
        <translation>Höhe zwischen den Enden einer Leitung je Länge, die noch kein Sprung ist.</translation>
    </message>
    <message>
        <source>Height between the ends of any element that is no jump yet.</source>
        <translation>Höhe zwischen den Enden eines beliebigen Elements, die noch kein Sprung ist.</translation>
    </message>
    <message>
        <source>As many nodes at the same point are too many.</source>
        <translation>So viele Knoten am selben Punkt sind zu viele.</translation>
    </message>
</context>
<context>
    <name>SettingField</name>
    <message>
        <source>Choose the colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>a colour such as #58ACFA or red</source>
        <translation>eine Farbe, etwa #58ACFA oder red</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;All settings</source>
        <translation>&amp;Alle Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>&amp;Einheiten</translation>
    </message>
    <message>
        <source>&amp;Numbers</source>
        <translation>&amp;Zahlen</translation>
    </message>
    <message>
        <source>Reset a&amp;ll</source>
        <translation>A&amp;lle zurücksetzen</translation>
    </message>
    <message>
        <source>Takes back all of your own values; nothing is written before OK or Apply</source>
        <translation>Nimmt alle eigenen Werte zurück; vor OK oder Anwenden wird nichts geschrieben</translation>
    </message>
    <message>
        <source>Search in names and descriptions</source>
        <translation>In Namen und Beschreibungen suchen</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen suchen</translation>
    </message>
    <message>
        <source>Settings in which all of these words occur (Ctrl+F)</source>
        <translation>Einstellungen, in denen all diese Wörter vorkommen (Strg+F)</translation>
    </message>
    <message>
        <source>&amp;Changed only</source>
        <translation>Nur &amp;geänderte</translation>
    </message>
    <message>
        <source>Only those that you or the workspace say otherwise than the program</source>
        <translation>Nur solche, bei denen Sie oder der Arbeitsbereich etwas anderes sagen als das Programm</translation>
    </message>
    <message>
        <source>No setting fits.</source>
        <translation>Keine Einstellung passt.</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Zurüc&amp;ksetzen</translation>
    </message>
    <message>
        <source>Takes back your own value of this setting</source>
        <translation>Nimmt den eigenen Wert dieser Einstellung zurück</translation>
    </message>
    <message>
        <source>Not understood, and left as it is:</source>
        <translation>Nicht verstanden und so belassen, wie es ist:</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… und %1 weitere</translation>
    </message>
    <message>
        <source>Your values are kept in %1. Where a workspace says another one, that holds while it is open.
Choose a setting to read about it; Return, Space or a double click changes it.</source>
        <translation>Ihre Werte liegen in %1. Wo ein Arbeitsbereich einen anderen nennt, gilt der, solange er offen ist.
Wählen Sie eine Einstellung, um über sie zu lesen; Eingabe, Leertaste oder ein Doppelklick ändert sie.</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <source>workspace, in place of your %1</source>
        <translation>Arbeitsbereich, anstelle Ihres Werts %1</translation>
    </message>
    <message>
        <source>workspace</source>
        <translation>Arbeitsbereich</translation>
    </message>
    <message>
        <source>you</source>
        <translation>Sie</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>eingebaut</translation>
    </message>
    <message>
        <source>Built in: %1.</source>
        <translation>Eingebaut: %1.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>From %1.</source>
        <translation>Aus %1.</translation>
    </message>
    <message>
        <source>The workspace says %1, which holds while it is open, whatever you choose here (%2).</source>
        <translation>Der Arbeitsbereich sagt %1, was gilt, solange er offen ist, was Sie auch hier wählen (%2).</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>&amp;Open …</source>
        <translation>&amp;Öffnen …</translation>
    </message>
    <message>
        <source>Open a geometry or scenario file (Ctrl+O)</source>
        <translation>Eine Geometrie- oder Szenariodatei öffnen (Strg+O)</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Forget the recent files; the files themselves stay</source>
        <translation>Die zuletzt geöffneten Dateien vergessen; die Dateien selbst bleiben</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Aus der Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>Remove &amp;Missing Files</source>
        <translation>Fe&amp;hlende Dateien entfernen</translation>
    </message>
</context>
<context>
    <name>StationPlot</name>
    <message>
        <source>Q = %1, ratio = %2</source>
        <translation>Q = %1, Verhältnis = %2</translation>
    </message>
    <message>
        <source>%1
configuration %2</source>
        <translation>%1
Fahrweise %2</translation>
    </message>
    <message>
        <source>all configurations</source>
        <translation>alle Fahrweisen</translation>
    </message>
    <message>
        <source>volume flow at the inlet</source>
        <translation>Volumenstrom am Eingang</translation>
    </message>
    <message>
        <source>pressure ratio</source>
        <translation>Druckverhältnis</translation>
    </message>
    <message>
        <source>Q = %1
ratio = %2</source>
        <translation>Q = %1
Verhältnis = %2</translation>
    </message>
</context>
<context>
    <name>StationSplit</name>
    <message>
        <source>%1 machines side by side</source>
        <translation>%1 Maschinen parallel</translation>
    </message>
    <message>
        <source>%1 stages one behind the other with %2 machines</source>
        <translation>%1 Stufen hintereinander mit %2 Maschinen</translation>
    </message>
    <message>
        <source>%1. %2 does not run in it.</source>
        <translation>%1. %2 läuft darin nicht.</translation>
    </message>
    <message>
        <source>%1. %2 carries %3 % of the flow</source>
        <translation>%1. %2 trägt %3 % des Durchflusses</translation>
    </message>
    <message>
        <source> in stage %1; the stages share the pressure ratio alike, the gas is cooled between them</source>
        <translation> in Stufe %1; die Stufen teilen sich das Druckverhältnis gleichmäßig, dazwischen wird das Gas gekühlt</translation>
    </message>
</context>
<context>
    <name>StationSymbols</name>
    <message>
        <source>The symbol %1 for &quot;%2&quot; cannot be read; the built-in one is taken. %3</source>
        <translation>Das Symbol %1 für &quot;%2&quot; ist nicht lesbar; das eingebaute wird genommen. %3</translation>
    </message>
</context>
<context>
    <name>StyleActions</name>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Undo Style Change</source>
        <translation>Stiländerung rückgängig machen</translation>
    </message>
    <message>
        <source>Redo Style Change</source>
        <translation>Stiländerung wiederholen</translation>
    </message>
    <message>
        <source>Save Style As …</source>
        <translation>Stil speichern unter …</translation>
    </message>
    <message>
        <source>Manage Styles …</source>
        <translation>Stile verwalten …</translation>
    </message>
    <message>
        <source>Keep how the network is drawn as a style, under a name</source>
        <translation>Die Darstellung des Netzes unter einem Namen als Stil aufbewahren</translation>
    </message>
    <message>
        <source>Rename, delete, import and export styles of your own</source>
        <translation>Eigene Stile umbenennen, löschen, einlesen und ausgeben</translation>
    </message>
    <message>
        <source>What the drawing shows: a style of the program or one of your own</source>
        <translation>Was die Zeichnung zeigt: ein Stil des Programms oder ein eigener</translation>
    </message>
    <message>
        <source>Shows %1</source>
        <translation>Zeigt %1</translation>
    </message>
    <message>
        <source>%1 (no values)</source>
        <translation>%1 (keine Werte)</translation>
    </message>
    <message>
        <source>A style of your own</source>
        <translation>Ein eigener Stil</translation>
    </message>
    <message>
        <source>Your styles cannot be read</source>
        <translation>Ihre Stile sind nicht lesbar</translation>
    </message>
    <message>
        <source>There is no network to draw.</source>
        <translation>Es gibt kein Netz zu zeichnen.</translation>
    </message>
    <message>
        <source>There is no style &quot;%1&quot;.</source>
        <translation>Einen Stil &quot;%1&quot; gibt es nicht.</translation>
    </message>
    <message>
        <source>Save Style As</source>
        <translation>Stil speichern unter</translation>
    </message>
    <message>
        <source>Name of the style:</source>
        <translation>Name des Stils:</translation>
    </message>
    <message>
        <source>There is a style &quot;%1&quot; already. Replace it?</source>
        <translation>Einen Stil &quot;%1&quot; gibt es schon. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>StyleChange</name>
    <message>
        <source>edge colour</source>
        <translation>Kantenfarbe</translation>
    </message>
    <message>
        <source>edge width</source>
        <translation>Kantenbreite</translation>
    </message>
    <message>
        <source>node colour</source>
        <translation>Knotenfarbe</translation>
    </message>
    <message>
        <source>node size</source>
        <translation>Knotengröße</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>bounds of %1</source>
        <translation>Grenzen von %1</translation>
    </message>
    <message>
        <source>colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>sizes</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>labels</source>
        <translation>Beschriftungen</translation>
    </message>
    <message>
        <source>legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>open bounds</source>
        <translation>offene Grenzen</translation>
    </message>
    <message>
        <source>label table</source>
        <translation>Beschriftungstabelle</translation>
    </message>
    <message>
        <source>drawing settings</source>
        <translation>Zeichnungseinstellungen</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>StyleDialog</name>
    <message>
        <source>Plot settings (*.ini);;All Files (*)</source>
        <translation>Zeichnungseinstellungen (*.ini);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Manage Styles</source>
        <translation>Stile verwalten</translation>
    </message>
    <message>
        <source>Styles of your own</source>
        <translation>Eigene Stile</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>&amp;Verwenden</translation>
    </message>
    <message>
        <source>Draw in this style</source>
        <translation>In diesem Stil zeichnen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Another name for this style (F2)</source>
        <translation>Ein anderer Name für diesen Stil (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete this style (Del)</source>
        <translation>Diesen Stil löschen (Entf)</translation>
    </message>
    <message>
        <source>&amp;Export …</source>
        <translation>&amp;Ausgeben …</translation>
    </message>
    <message>
        <source>Write this style to a file</source>
        <translation>Diesen Stil in eine Datei schreiben</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>&amp;Einlesen …</translation>
    </message>
    <message>
        <source>Take styles from files of plot settings</source>
        <translation>Stile aus Dateien mit Zeichnungseinstellungen übernehmen</translation>
    </message>
    <message>
        <source>There are no styles of your own yet. &quot;Save Style As …&quot; keeps how the network is drawn, &quot;Import …&quot; takes a file.</source>
        <translation>Es gibt noch keine eigenen Stile. &quot;Stil speichern unter …&quot; bewahrt auf, wie das Netz gezeichnet ist, &quot;Einlesen …&quot; übernimmt eine Datei.</translation>
    </message>
    <message>
        <source>Delete the style &quot;%1&quot;? There is no way back.</source>
        <translation>Den Stil &quot;%1&quot; löschen? Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Import Styles</source>
        <translation>Stile einlesen</translation>
    </message>
    <message>
        <source>%1 holds no plot settings.</source>
        <translation>%1 enthält keine Zeichnungseinstellungen.</translation>
    </message>
    <message>
        <source>There is a style &quot;%1&quot; already. Replace it?</source>
        <translation>Einen Stil &quot;%1&quot; gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>Export Style</source>
        <translation>Stil ausgeben</translation>
    </message>
</context>
<context>
    <name>StyleHistory</name>
    <message>
        <source>style &quot;%1&quot;</source>
        <translation>Stil &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>StyleStore</name>
    <message>
        <source>A style needs a name.</source>
        <translation>Ein Stil braucht einen Namen.</translation>
    </message>
    <message>
        <source>The name of a style has at most %1 characters.</source>
        <translation>Der Name eines Stils hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>The name of a style is one line of text.</source>
        <translation>Der Name eines Stils ist eine Zeile Text.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a style of the program. Please choose another name.</source>
        <translation>&quot;%1&quot; ist ein Stil des Programms. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The name of a style does not end like that of a file.</source>
        <translation>Der Name eines Stils endet nicht wie der einer Datei.</translation>
    </message>
    <message>
        <source>This is too much for a style.</source>
        <translation>Das ist zu viel für einen Stil.</translation>
    </message>
    <message>
        <source>There are %1 styles already; please delete some.</source>
        <translation>Es gibt schon %1 Stile; bitte löschen Sie einige.</translation>
    </message>
    <message>
        <source>There is no style &quot;%1&quot; any more.</source>
        <translation>Einen Stil &quot;%1&quot; gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>There is a style &quot;%1&quot; already.</source>
        <translation>Einen Stil &quot;%1&quot; gibt es schon.</translation>
    </message>
    <message>
        <source>%1 is no list of styles of this program.</source>
        <translation>%1 ist keine Liste von Stilen dieses Programms.</translation>
    </message>
</context>
<context>
    <name>SubAssembler</name>
    <message>
        <source>Cannot read %1</source>
        <translation>%1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>%1 has no subnet named &quot;SUB&quot;, which would tell its pins</source>
        <translation>%1 hat kein Teilnetz namens &quot;SUB&quot;, das seine Anschlüsse nennen würde</translation>
    </message>
    <message>
        <source>Templates do not hold other subnets: %1 is left out</source>
        <translation>Vorlagen enthalten keine anderen Teilnetze: %1 wird ausgelassen</translation>
    </message>
    <message>
        <source>Error - could not find subassembly:%1</source>
        <translation>Fehler - Baugruppe nicht gefunden:%1</translation>
    </message>
    <message>
        <source>Creating Subnets</source>
        <translation>Teilnetze werden aufgebaut</translation>
    </message>
    <message>
        <source>Creating Subnets (%1/%2)</source>
        <translation>Teilnetze werden aufgebaut (%1/%2)</translation>
    </message>
    <message>
        <source>Problem with assembled subnet %1! It will be erased!</source>
        <translation>Problem mit Teilnetz %1! Es wird entfernt!</translation>
    </message>
    <message>
        <source>%1 assembled subnets had to be replaced with default,
%2 assembled subnets had to be erased! See log for details!</source>
        <translation>%1 Teilnetze mussten durch die Vorgabe ersetzt,
%2 Teilnetze mussten entfernt werden! Näheres im Protokoll!</translation>
    </message>
    <message>
        <source>Pin nodes have been added to net! Save manually!</source>
        <translation>Anschlussknoten wurden dem Netz hinzugefügt! Bitte selbst speichern!</translation>
    </message>
    <message>
        <source>Problem with creating assembledsubnet: loaded pins empty! Skipped!</source>
        <translation>Problem beim Aufbau eines Teilnetzes: geladene Anschlüsse leer! Übersprungen!</translation>
    </message>
    <message>
        <source>### in createEleOfAssembledSubnet: Problem with assembled subnet %1</source>
        <translation>### in createEleOfAssembledSubnet: Problem mit Teilnetz %1</translation>
    </message>
    <message>
        <source>The template %1 names a pin that is none of its nodes: %2</source>
        <translation>Die Vorlage %1 nennt einen Anschluss, der keiner ihrer Knoten ist: %2</translation>
    </message>
    <message>
        <source>Assembled subnet: name empty! Skipped!</source>
        <translation>Teilnetz: Name leer! Übersprungen!</translation>
    </message>
    <message>
        <source>Assembled subnet: variant empty for %1! Skipped!</source>
        <translation>Teilnetz: Variante von %1 leer! Übersprungen!</translation>
    </message>
    <message>
        <source>Problem with creating assembledsubnet: pins still empty! Skipped!</source>
        <translation>Problem beim Aufbau eines Teilnetzes: Anschlüsse immer noch leer! Übersprungen!</translation>
    </message>
    <message>
        <source>Assembled subnet %1: pinList sizes not consistent! reset tried!</source>
        <translation>Teilnetz %1: Längen der Anschlusslisten passen nicht zusammen! Zurücksetzen versucht!</translation>
    </message>
    <message>
        <source>pinList contains non-net nodes: %1</source>
        <translation>Die Anschlussliste enthält Knoten, die nicht zum Netz gehören: %1</translation>
    </message>
    <message>
        <source>This pin is new and needs saving: %1</source>
        <translation>Dieser Anschluss ist neu und muss gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Could not find net_subassemblies folder!</source>
        <translation>Der Ordner net_subassemblies ist nicht zu finden!</translation>
    </message>
</context>
<context>
    <name>SubnetWindow</name>
    <message>
        <source>Subassembly %1</source>
        <translation>Baugruppe %1</translation>
    </message>
    <message>
        <source>The subnet has no elements</source>
        <translation>Das Teilnetz hat keine Elemente</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Element Table</source>
        <translation>Wertetabelle</translation>
    </message>
    <message>
        <source>Metadata Table</source>
        <translation>Metadatentabelle</translation>
    </message>
    <message>
        <source>SearchElements</source>
        <translation>Elemente suchen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Page &amp;Setup and Save …</source>
        <translation>&amp;Seite einrichten und speichern …</translation>
    </message>
    <message>
        <source>&amp;Print …</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Handbuch</translation>
    </message>
</context>
<context>
    <name>SvgGuard</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>es ist nicht in UTF-8 geschrieben</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>es vereinbart Entitäten</translation>
    </message>
    <message>
        <source>its style refers to other files</source>
        <translation>sein Stil verweist auf andere Dateien</translation>
    </message>
    <message>
        <source>its style sheet has dashed lines</source>
        <translation>sein Stylesheet hat gestrichelte Linien</translation>
    </message>
    <message>
        <source>it refers to %1</source>
        <translation>es verweist auf %1</translation>
    </message>
    <message>
        <source>it has a number beyond %1: %2</source>
        <translation>es hat eine Zahl jenseits von %1: %2</translation>
    </message>
    <message>
        <source>its style has escapes or comments</source>
        <translation>sein Stil hat Escapezeichen oder Kommentare</translation>
    </message>
    <message>
        <source>it repeats parts within parts</source>
        <translation>es wiederholt Teile in Teilen</translation>
    </message>
    <message>
        <source>it has more than %1 numbers</source>
        <translation>es hat mehr als %1 Zahlen</translation>
    </message>
    <message>
        <source>its lines have too many dashes</source>
        <translation>seine Linien haben zu viele Striche</translation>
    </message>
    <message>
        <source>it is no SVG text</source>
        <translation>es ist kein SVG-Text</translation>
    </message>
</context>
<context>
    <name>TableFileDialog</name>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation>Arbeitsmappe (*.xlsx)</translation>
    </message>
    <message>
        <source>CSV with decimal point and commas (*.csv)</source>
        <translation>CSV mit Dezimalpunkt und Kommas (*.csv)</translation>
    </message>
    <message>
        <source>CSV with decimal comma and semicolons (*.csv)</source>
        <translation>CSV mit Dezimalkomma und Semikolons (*.csv)</translation>
    </message>
    <message>
        <source>Text with tabulators (*.txt)</source>
        <translation>Text mit Tabulatoren (*.txt)</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>Tabelle speichern</translation>
    </message>
</context>
<context>
    <name>TableMenu</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Filter …</source>
        <translation>Filtern …</translation>
    </message>
    <message>
        <source>Hide column</source>
        <translation>Spalte ausblenden</translation>
    </message>
    <message>
        <source>Show all rows</source>
        <translation>Alle Zeilen zeigen</translation>
    </message>
    <message>
        <source>Show all columns</source>
        <translation>Alle Spalten zeigen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show rows whose &quot;%1&quot; contains a text,
or compares: &gt; 10, &lt;= 3, = open, != 0</source>
        <translation>Zeilen zeigen, deren &quot;%1&quot; einen Text enthält
oder vergleicht: &gt; 10, &lt;= 3, = open, != 0</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
</context>
<context>
    <name>TableSummary</name>
    <message>
        <source>%1 of the selected: %2</source>
        <translation>%1 der ausgewählten: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>%1 of %2 elements</source>
        <translation>%1 von %2 Elementen</translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation>, %1 ausgewählt</translation>
    </message>
</context>
<context>
    <name>TextDecoding</name>
    <message>
        <source>%1 is not UTF-8 and is read as Windows-1252 (Latin-1)</source>
        <translation>%1 ist kein UTF-8 und wird als Windows-1252 (Latin-1) gelesen</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Main tools</source>
        <translation>Hauptwerkzeuge</translation>
    </message>
    <message>
        <source>Edge colour</source>
        <translation>Kantenfarbe</translation>
    </message>
    <message>
        <source>Node colour</source>
        <translation>Knotenfarbe</translation>
    </message>
    <message>
        <source>Go to element</source>
        <translation>Gehe zu Element</translation>
    </message>
    <message>
        <source>Name of an element to go to</source>
        <translation>Name eines Elements, zu dem es gehen soll</translation>
    </message>
    <message>
        <source>Show an element by a part of its name (%1)</source>
        <translation>Ein Element anhand eines Teils seines Namens zeigen (%1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Style: %1</source>
        <translation>Stil: %1</translation>
    </message>
</context>
<context>
    <name>ToolDocks</name>
    <message>
        <source>Show the findings</source>
        <translation>Befunde zeigen</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Werkzeugleisten</translation>
    </message>
    <message>
        <source>1 node</source>
        <translation>1 Knoten</translation>
    </message>
    <message>
        <source>%1 nodes</source>
        <translation>%1 Knoten</translation>
    </message>
    <message>
        <source>1 edge</source>
        <translation>1 Kante</translation>
    </message>
    <message>
        <source>%1 edges</source>
        <translation>%1 Kanten</translation>
    </message>
    <message>
        <source>1 subnet</source>
        <translation>1 Teilnetz</translation>
    </message>
    <message>
        <source>%1 subnets</source>
        <translation>%1 Teilnetze</translation>
    </message>
    <message>
        <source>1 other</source>
        <translation>1 weiteres</translation>
    </message>
    <message>
        <source>%1 others</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>: %1</source>
        <translation>: %1</translation>
    </message>
    <message>
        <source>Selected %1%2</source>
        <translation>Ausgewählt: %1%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>The categories have changes that are not saved. Save them?</source>
        <translation>Die Kategorien haben Änderungen, die nicht gespeichert sind. Jetzt speichern?</translation>
    </message>
    <message>
        <source>what was typed in &quot;Configure Draw&quot;</source>
        <translation>die Eingaben in &quot;Zeichnung einstellen&quot;</translation>
    </message>
    <message>
        <source>What was typed in &quot;Configure Draw&quot; is not applied. Save it?</source>
        <translation>Die Eingaben in &quot;Zeichnung einstellen&quot; sind nicht angewendet. Jetzt speichern?</translation>
    </message>
    <message>
        <source>1 finding</source>
        <translation>1 Befund</translation>
    </message>
    <message>
        <source>%1 findings</source>
        <translation>%1 Befunde</translation>
    </message>
    <message>
        <source>No machine is selected</source>
        <translation>Keine Maschine ist ausgewählt</translation>
    </message>
</context>
<context>
    <name>TypeBox</name>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Which elements are listed</source>
        <translation>Welche Elemente aufgelistet werden</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All elements</source>
        <translation>Alle Elemente</translation>
    </message>
    <message>
        <source>All edges</source>
        <translation>Alle Kanten</translation>
    </message>
</context>
<context>
    <name>UnitsPage</name>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Pressure difference</source>
        <translation>Druckdifferenz</translation>
    </message>
    <message>
        <source>Norm volume flow</source>
        <translation>Normvolumenstrom</translation>
    </message>
    <message>
        <source>Mass flow</source>
        <translation>Massenstrom</translation>
    </message>
    <message>
        <source>Energy flow</source>
        <translation>Energiestrom</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Temperature difference</source>
        <translation>Temperaturdifferenz</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Wall and roughness</source>
        <translation>Wand und Rauheit</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Volume flow in the machine</source>
        <translation>Volumenstrom in der Maschine</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Förderhöhe</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Drehzahl</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Calorific value</source>
        <translation>Brennwert</translation>
    </message>
    <message>
        <source>Gas volume</source>
        <translation>Gasmenge</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>Auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Zählweise</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Stellen</translation>
    </message>
    <message>
        <source>Digits in labels</source>
        <translation>Stellen in Beschriftungen</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Dezimalzeichen</translation>
    </message>
    <message>
        <source>Between thousands</source>
        <translation>Zwischen Tausendern</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>In labels</source>
        <translation>In Beschriftungen</translation>
    </message>
    <message>
        <source>In saved tables</source>
        <translation>In gespeicherten Tabellen</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>the workspace says %1</source>
        <translation>der Arbeitsbereich sagt %1</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>These have changes that are not saved:</source>
        <translation>Änderungen, die nicht gespeichert sind, haben:</translation>
    </message>
    <message>
        <source>Save them?</source>
        <translation>Jetzt speichern?</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
</context>
<context>
    <name>ValueReasons</name>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Held between %1 and %2</source>
        <translation>Soll zwischen %1 und %2 liegen</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Formula: %1%2 = %3</source>
        <translation>Formel: %1%2 = %3</translation>
    </message>
    <message>
        <source>no value: one that it needs is missing</source>
        <translation>kein Wert: einer, den sie braucht, fehlt</translation>
    </message>
    <message>
        <source>%1: no such element</source>
        <translation>%1: kein solches Element</translation>
    </message>
    <message>
        <source>%1 – %2 of %3</source>
        <translation>%1 – %2 von %3</translation>
    </message>
    <message>
        <source>Unit: stored and shown in %1</source>
        <translation>Einheit: gespeichert und angezeigt in %1</translation>
    </message>
    <message>
        <source>Unit: stored in %1, shown in %2: value %3</source>
        <translation>Einheit: gespeichert in %1, angezeigt in %2: Wert %3</translation>
    </message>
    <message>
        <source>Given, but replaced below</source>
        <translation>Gegeben, aber weiter unten ersetzt</translation>
    </message>
    <message>
        <source>Given by the file</source>
        <translation>Von der Datei gegeben</translation>
    </message>
    <message>
        <source>No network file gives it: the program made it, or a template of a subnet</source>
        <translation>Keine Netzdatei gibt ihn: das Programm hat ihn gebildet, oder die Vorlage eines Teilnetzes</translation>
    </message>
    <message>
        <source>%1: cannot be converted</source>
        <translation>%1: nicht umrechenbar</translation>
    </message>
    <message>
        <source>%1: value %2</source>
        <translation>%1: Wert %2</translation>
    </message>
    <message>
        <source>norm density %1 kg/m³</source>
        <translation>Normdichte %1 kg/m³</translation>
    </message>
    <message>
        <source>calorific value %1 MJ/m³</source>
        <translation>Brennwert %1 MJ/m³</translation>
    </message>
    <message>
        <source>by the gas there: %1</source>
        <translation>nach dem Gas dort: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>VectorPlot</name>
    <message>
        <source>row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>There are no numbers in %1.</source>
        <translation>In %1 stehen keine Zahlen.</translation>
    </message>
    <message>
        <source>5 %</source>
        <translation>5 %</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>%1 numbers of %2: minimum %3, maximum %4, mean %5, standard deviation %6, quantiles 5 % %7, 25 % %8, 50 % %9, </source>
        <translation>%1 Zahlen von %2: Minimum %3, Maximum %4, Mittelwert %5, Standardabweichung %6, Quantile 5 % %7, 25 % %8, 50 % %9, </translation>
    </message>
    <message>
        <source>75 % %1, 95 % %2</source>
        <translation>75 % %1, 95 % %2</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>not everything could be written; is the disk full?</source>
        <translation>nicht alles konnte geschrieben werden; ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <translation>%1 ließ sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end</source>
        <translation>%1 lässt sich nicht bis zum Ende lesen</translation>
    </message>
</context>
<context>
    <name>WhyDock</name>
    <message>
        <source>Why This Value</source>
        <translation>Warum dieser Wert</translation>
    </message>
    <message>
        <source>Back to the question before</source>
        <translation>Zurück zur vorigen Frage</translation>
    </message>
    <message>
        <source>Reasons of the value</source>
        <translation>Gründe des Wertes</translation>
    </message>
    <message>
        <source>Looking into the files …</source>
        <translation>Die Dateien werden durchsucht …</translation>
    </message>
    <message>
        <source>Ask for &quot;Why This Value&quot; in the menu of a value in the property viewer.</source>
        <translation>Fragen Sie im Menü eines Wertes im Eigenschaftenfenster nach „Warum dieser Wert“.</translation>
    </message>
</context>
<context>
    <name>WorkbookFile</name>
    <message>
        <source>the text in row %1, column %2 is longer than a cell can be</source>
        <translation>der Text in Zeile %1, Spalte %2 ist länger, als eine Zelle sein kann</translation>
    </message>
    <message>
        <source>a sheet holds %1 rows and %2 columns at most</source>
        <translation>ein Blatt fasst höchstens %1 Zeilen und %2 Spalten</translation>
    </message>
    <message>
        <source>the folder for temporary files, %1, cannot be written</source>
        <translation>der Ordner für Zwischendateien, %1, ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>the folder for temporary files, %1, is full</source>
        <translation>der Ordner für Zwischendateien, %1, ist voll</translation>
    </message>
</context>
<context>
    <name>WorkingPoint</name>
    <message>
        <source>The speed is below the smallest.</source>
        <translation>Die Drehzahl liegt unter der kleinsten.</translation>
    </message>
    <message>
        <source>The speed is above the largest.</source>
        <translation>Die Drehzahl liegt über der größten.</translation>
    </message>
    <message>
        <source>The gas law does not hold at these pressures and this temperature.</source>
        <translation>Das Gasgesetz gilt bei diesen Drücken und dieser Temperatur nicht.</translation>
    </message>
    <message>
        <source>The gas flows backwards through the machine: it does not compress.</source>
        <translation>Das Gas strömt rückwärts durch die Maschine: Sie verdichtet nicht.</translation>
    </message>
    <message>
        <source>Bypass: the gas passes without being compressed.</source>
        <translation>Bypass: Das Gas strömt durch, ohne verdichtet zu werden.</translation>
    </message>
    <message>
        <source>Not compressing: the pressure at the outlet is below that at the inlet.</source>
        <translation>Verdichtet nicht: Der Druck am Ausgang liegt unter dem am Eingang.</translation>
    </message>
    <message>
        <source>The drive cannot give this power.</source>
        <translation>Der Antrieb kann diese Leistung nicht geben.</translation>
    </message>
    <message>
        <source>The point lies beyond the surge line.</source>
        <translation>Der Punkt liegt jenseits der Pumpgrenze.</translation>
    </message>
    <message>
        <source>The point lies beyond the choke line.</source>
        <translation>Der Punkt liegt jenseits der Schluckgrenze.</translation>
    </message>
    <message>
        <source>The machine has no map.</source>
        <translation>Die Maschine hat kein Kennfeld.</translation>
    </message>
    <message>
        <source>No speed gives this head at this flow.</source>
        <translation>Keine Drehzahl gibt diese Förderhöhe bei diesem Durchfluss.</translation>
    </message>
    <message>
        <source>The map tells no efficiency here.</source>
        <translation>Das Kennfeld nennt hier keinen Wirkungsgrad.</translation>
    </message>
    <message>
        <source>The machine has no displacement.</source>
        <translation>Die Maschine hat kein Hubvolumen.</translation>
    </message>
    <message>
        <source>The pressure ratio is above the largest.</source>
        <translation>Das Druckverhältnis liegt über dem größten.</translation>
    </message>
    <message>
        <source>The torque is above the largest.</source>
        <translation>Das Drehmoment liegt über dem größten.</translation>
    </message>
</context>
<context>
    <name>XmlBounds</name>
    <message>
        <source>The file has a document type, which is not allowed</source>
        <translation>Die Datei hat einen Dokumenttyp, was nicht erlaubt ist</translation>
    </message>
    <message>
        <source>An element has %1 attributes, more than %2</source>
        <translation>Ein Element hat %1 Attribute, mehr als %2</translation>
    </message>
    <message>
        <source>Elements are nested more than %1 deep</source>
        <translation>Elemente sind tiefer als %1 geschachtelt</translation>
    </message>
    <message>
        <source>There are more than %1 namespaces</source>
        <translation>Es gibt mehr als %1 Namensräume</translation>
    </message>
</context>
<context>
    <name>viewFuncDialog</name>
    <message>
        <source>Configure Draw</source>
        <translation>Zeichnung einstellen</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>All bounds from data</source>
        <translation>Alle Grenzen aus den Daten</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Colour ramp</source>
        <translation>Farbverlauf</translation>
    </message>
    <message>
        <source>First hue [°]</source>
        <translation>Erster Farbton [°]</translation>
    </message>
    <message>
        <source>Last hue [°]</source>
        <translation>Letzter Farbton [°]</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Log factor:</source>
        <translation>Log-Faktor:</translation>
    </message>
    <message>
        <source>Larger values make the scale more strongly logarithmic, values near 0 nearly linear; negative values invert it</source>
        <translation>Größere Werte machen die Skala stärker logarithmisch, Werte nahe 0 fast linear; negative kehren sie um</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>Number of classes</source>
        <translation>Zahl der Klassen</translation>
    </message>
    <message>
        <source>Breaks</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>20; 40; 60</source>
        <translation>20; 40; 60</translation>
    </message>
    <message>
        <source>Colour scale</source>
        <translation>Farbskala</translation>
    </message>
    <message>
        <source>Names of the functions</source>
        <translation>Funktionsnamen</translation>
    </message>
    <message>
        <source>Legend in the drawing</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>What colours, widths and symbols mean. The legend can be dragged to another corner, too; the key L shows and hides it.</source>
        <translation>Was Farben, Breiten und Symbole bedeuten. Die Legende lässt sich auch in eine andere Ecke ziehen; die Taste L zeigt sie und blendet sie aus.</translation>
    </message>
    <message>
        <source>Open bounds</source>
        <translation>Offene Grenzen</translation>
    </message>
    <message>
        <source>leave out 2 % at either end</source>
        <translation>an jedem Ende 2 % weglassen</translation>
    </message>
    <message>
        <source>A bound that is not fixed leaves out the outermost 2 % of the values, so that a few outliers do not take the colours from the rest. The ends of the scale show that there are some.</source>
        <translation>Eine Grenze, die nicht fest ist, lässt die äußersten 2 % der Werte weg, damit wenige Ausreißer den übrigen nicht die Farben nehmen. Die Enden der Skala zeigen, dass es welche gibt.</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>Edge width: constant part</source>
        <translation>Kantenbreite: fester Teil</translation>
    </message>
    <message>
        <source>Edge width: factor</source>
        <translation>Kantenbreite: Faktor</translation>
    </message>
    <message>
        <source>Node size [px]</source>
        <translation>Knotengröße [px]</translation>
    </message>
    <message>
        <source>Symbol size [px]</source>
        <translation>Symbolgröße [px]</translation>
    </message>
    <message>
        <source>Arrow size</source>
        <translation>Pfeilgröße</translation>
    </message>
    <message>
        <source>Label font size [pt]</source>
        <translation>Schriftgröße [pt]</translation>
    </message>
    <message>
        <source>Label margin [px]</source>
        <translation>Textrand [px]</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Subnet opacity</source>
        <translation>Teilnetz-Deckkraft</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Ausschnitt</translation>
    </message>
    <message>
        <source>Zoom step</source>
        <translation>Zoomschritt</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>show x and y axes</source>
        <translation>x- und y-Achse zeigen</translation>
    </message>
    <message>
        <source>Property of the flow</source>
        <translation>Eigenschaft des Flusses</translation>
    </message>
    <message>
        <source>Property of the layer</source>
        <translation>Eigenschaft der Ebene</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Edge labels</source>
        <translation>Kantenbeschriftungen</translation>
    </message>
    <message>
        <source>Node labels</source>
        <translation>Knotenbeschriftungen</translation>
    </message>
    <message>
        <source>Inactive edges</source>
        <translation>Inaktive Kanten</translation>
    </message>
    <message>
        <source>Edges without flow</source>
        <translation>Kanten ohne Durchfluss</translation>
    </message>
    <message>
        <source>Major grid</source>
        <translation>Grobes Gitter</translation>
    </message>
    <message>
        <source>Minor grid</source>
        <translation>Feines Gitter</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>show the grid</source>
        <translation>Gitter zeigen</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>dim what is not selected</source>
        <translation>nicht Ausgewähltes abblenden</translation>
    </message>
    <message>
        <source>Label table</source>
        <translation>Beschriftungstabelle</translation>
    </message>
    <message>
        <source>Add template</source>
        <translation>Neue Vorlage</translation>
    </message>
    <message>
        <source>Keep the current row as a template</source>
        <translation>Die aktuelle Zeile als Vorlage aufbewahren</translation>
    </message>
    <message>
        <source>Apply to …</source>
        <translation>Anwenden auf …</translation>
    </message>
    <message>
        <source>Give the look of the current row to element types</source>
        <translation>Das Aussehen der aktuellen Zeile Elementtypen geben</translation>
    </message>
    <message>
        <source>Delete row</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Apply and Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Apply settings and save to vfd.csv file in geometry directory</source>
        <translation>Einstellungen anwenden und in die Datei vfd.csv im Ordner der Geometrie speichern</translation>
    </message>
    <message>
        <source>Saved settings</source>
        <translation>Wie gespeichert</translation>
    </message>
    <message>
        <source>Read plotsettings.ini and vfd.csv of the case again and draw with them</source>
        <translation>plotsettings.ini und vfd.csv des Falls neu lesen und damit zeichnen</translation>
    </message>
    <message>
        <source>Load …</source>
        <translation>Laden …</translation>
    </message>
    <message>
        <source>Reload vfd.csv or load a vfd.csv file (or one with appropriate contents) from a user-specified place.
Useful for importing settings from another geometry!</source>
        <translation>vfd.csv neu laden oder eine vfd.csv-Datei (oder eine mit passendem Inhalt) von anderswo laden.
Nützlich, um Einstellungen einer anderen Geometrie zu übernehmen!</translation>
    </message>
    <message>
        <source>%1 was changed by another program or window since it was read. Overwrite?</source>
        <translation>%1 wurde seit dem Lesen von einem anderen Programm oder Fenster geändert. Überschreiben?</translation>
    </message>
    <message>
        <source>none, a smooth scale</source>
        <translation>keine, stufenlos</translation>
    </message>
    <message>
        <source>equal intervals</source>
        <translation>gleiche Abstände</translation>
    </message>
    <message>
        <source>as many elements in each</source>
        <translation>gleich viele in jeder</translation>
    </message>
    <message>
        <source>breaks of your own</source>
        <translation>eigene Grenzen</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>nicht gezeigt</translation>
    </message>
    <message>
        <source>at the top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>where it hides least</source>
        <translation>wo sie am wenigsten verdeckt</translation>
    </message>
    <message>
        <source>independent axes</source>
        <translation>unabhängige Achsen</translation>
    </message>
    <message>
        <source>original ratio</source>
        <translation>Originalverhältnis</translation>
    </message>
    <message>
        <source>aspect ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>%1 could not be read, so it is not overwritten. The label table is not saved.</source>
        <translation>%1 war nicht lesbar und wird deshalb nicht überschrieben. Die Beschriftungstabelle ist nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1 has rows or cells that could not be read (%2); the message log names them. They are lost when it is overwritten. Overwrite?</source>
        <translation>%1 hat Zeilen oder Zellen, die nicht lesbar waren (%2); die Meldungen nennen sie. Beim Überschreiben gehen sie verloren. Überschreiben?</translation>
    </message>
    <message>
        <source>Choose File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*)</source>
        <translation>CSV-Dateien (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>no label</source>
        <translation>keine Beschriftung</translation>
    </message>
    <message>
        <source>name only</source>
        <translation>nur Name</translation>
    </message>
    <message>
        <source>selected properties</source>
        <translation>ausgewählte Eigenschaften</translation>
    </message>
    <message>
        <source>Edit classes …</source>
        <translation>Klassen bearbeiten …</translation>
    </message>
    <message>
        <source>Breaks, colours and names of the classes, one by one</source>
        <translation>Grenzen, Farben und Namen der Klassen, einzeln</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Show changes in the drawing before they are applied</source>
        <translation>Änderungen in der Zeichnung zeigen, bevor sie angewendet werden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Forget what was typed and not applied; the drawing is as it was</source>
        <translation>Vergessen, was eingegeben und nicht angewendet wurde; die Zeichnung ist, wie sie war</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Draw in a style of the program or one of your own</source>
        <translation>In einem Stil des Programms oder einem eigenen zeichnen</translation>
    </message>
    <message>
        <source>natural breaks</source>
        <translation>natürliche Grenzen</translation>
    </message>
    <message>
        <source>No network is shown: there is nothing to apply this to.</source>
        <translation>Es wird kein Netz gezeigt, auf das dies angewendet werden könnte.</translation>
    </message>
</context>
</TS>
