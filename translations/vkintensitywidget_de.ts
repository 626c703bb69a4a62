<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CVKDataHistogram</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>ROI Analysis</source>
        <translation>ROI-Auswertung</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Total Counts</source>
        <translation>Anzahl Pixel</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Standard Deviation</source>
        <translation>Standardabw.</translation>
    </message>
    <message>
        <source>Signal To Noise</source>
        <translation>Signal/Rauschen</translation>
    </message>
    <message>
        <source>None Select</source>
        <translation>Keine Auswahl</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>CVKDisplayPreferences</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>2D</source>
        <translation>2D</translation>
    </message>
    <message>
        <source>Peak Labels</source>
        <translation>Peaks beschriften</translation>
    </message>
    <message>
        <source>Number of peak labels:</source>
        <translation>Anzahl Peaks:</translation>
    </message>
    <message>
        <source>10</source>
        <translation>10</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Axis Units</source>
        <translation>Achseneinheiten</translation>
    </message>
    <message>
        <source>X-Axis Label:</source>
        <translation>X-Achse:</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>X Start:</source>
        <translation>X-Start:</translation>
    </message>
    <message>
        <source>100</source>
        <translation>100</translation>
    </message>
    <message>
        <source>Pixel Width:</source>
        <translation>Pixelbreite:</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>X-Axis</source>
        <translation>X-Achse</translation>
    </message>
    <message>
        <source>Y-Axis</source>
        <translation>Y-Achse</translation>
    </message>
    <message>
        <source>Pixels Number</source>
        <translation>Pixelnummer</translation>
    </message>
    <message>
        <source>Wavelength</source>
        <translation>Wellenlänge</translation>
    </message>
    <message>
        <source>um</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>nm</translation>
    </message>
</context>
<context>
    <name>CVKIntensityCtrlWidget</name>
    <message>
        <source>Return</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Display Preferences</source>
        <translation>Anzeigeoptionen</translation>
    </message>
    <message>
        <source>Data Histogram</source>
        <translation>Datenhistogramm</translation>
    </message>
</context>
<context>
    <name>CVKIntensityMdiWidget</name>
    <message>
        <source>Gray</source>
        <translation>Grauwert</translation>
    </message>
    <message>
        <source>Pixel Number</source>
        <translation>Pixelnummer</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>X:%1  Y:%2
Data:%3</source>
        <translation>X:%1  Y:%2
Wert:%3</translation>
    </message>
</context>
<context>
    <name>RectangleItems</name>
    <message>
        <source>ROI</source>
        <translation>ROI</translation>
    </message>
</context>
</TS>
