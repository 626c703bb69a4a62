<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>About</name>
    <message>
        <source>VKIntensity Viewer %1</source>
        <translation>VKIntensity Viewer %1</translation>
    </message>
    <message>
        <source>Shows what is in a camera image: profiles, charts with labelled peaks, regions of interest and their statistics.</source>
        <translation>Zeigt, was in einem Kamerabild steckt: Profile, Diagramme mit beschrifteten Peaks, ROIs und ihre Statistik.</translation>
    </message>
    <message>
        <source>Library VKIntensityWidget %1, Qt %2</source>
        <translation>Bibliothek VKIntensityWidget %1, Qt %2</translation>
    </message>
    <message>
        <source>Copyright © 2026 The VKIntensityWidget developers</source>
        <translation>Copyright © 2026 The VKIntensityWidget developers</translation>
    </message>
    <message>
        <source>Free software under the MIT License; see the file LICENSE.</source>
        <translation>Freie Software unter der MIT-Lizenz; siehe die Datei LICENSE.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--size needs WIDTHxHEIGHT, each from 1 to %1</source>
        <translation>--size verlangt BREITExHÖHE, jeweils von 1 bis %1</translation>
    </message>
    <message>
        <source>--view needs image, x or y</source>
        <translation>--view verlangt image, x oder y</translation>
    </message>
    <message>
        <source>--peaks needs a number from 1 to %1</source>
        <translation>--peaks verlangt eine Zahl von 1 bis %1</translation>
    </message>
    <message>
        <source>--palette needs gray, red, green, blue or color</source>
        <translation>--palette verlangt gray, red, green, blue oder color</translation>
    </message>
    <message>
        <source>--wavelength needs START,WIDTH[,um|nm], START from 0 to %1, WIDTH from 1 to %2</source>
        <translation>--wavelength verlangt START,BREITE[,um|nm], START von 0 bis %1, BREITE von 1 bis %2</translation>
    </message>
    <message>
        <source>--roi needs X,Y,WIDTH,HEIGHT in pixels from the top left</source>
        <translation>--roi verlangt X,Y,BREITE,HÖHE in Pixeln von links oben</translation>
    </message>
    <message>
        <source>--screenshot needs a file name</source>
        <translation>--screenshot verlangt einen Dateinamen</translation>
    </message>
    <message>
        <source>unknown option %1 (see --help)</source>
        <translation>unbekannte Option %1 (siehe --help)</translation>
    </message>
    <message>
        <source>only one image can be opened</source>
        <translation>nur ein Bild kann geöffnet werden</translation>
    </message>
    <message>
        <source>the name of the image is empty</source>
        <translation>der Name des Bildes ist leer</translation>
    </message>
    <message>
        <source>--size goes with --screenshot</source>
        <translation>--size gehört zu --screenshot</translation>
    </message>
    <message>
        <source>--screenshot needs an image to show</source>
        <translation>--screenshot verlangt ein Bild</translation>
    </message>
    <message>
        <source>--peaks goes with --view x or --view y</source>
        <translation>--peaks gehört zu --view x oder --view y</translation>
    </message>
    <message>
        <source>there is no display to open a window on (--screenshot needs none)</source>
        <translation>es gibt keine Anzeige für ein Fenster (--screenshot braucht keine)</translation>
    </message>
    <message>
        <source>--page needs the number of a page, from 1 to %1</source>
        <translation>--page verlangt die Nummer einer Seite, von 1 bis %1</translation>
    </message>
    <message>
        <source>--regions needs a file name</source>
        <translation>--regions verlangt einen Dateinamen</translation>
    </message>
    <message>
        <source>--page needs an image to show</source>
        <translation>--page verlangt ein Bild</translation>
    </message>
    <message>
        <source>--view, --peaks, --palette, --roi, --regions and --wavelength go with --screenshot</source>
        <translation>--view, --peaks, --palette, --roi, --regions und --wavelength gehören zu --screenshot</translation>
    </message>
    <message>
        <source>Usage: vkviewer [--page N] [IMAGE | FOLDER]
       vkviewer --screenshot FILE.png [OPTIONS] IMAGE | FOLDER

Shows a camera image with its intensity profiles, rulers and palette.
IMAGE is a jpg, jpeg, tif, tiff, bmp or png picture or a raw camera file; of a FOLDER
its images are shown in a gallery.

  --page N                show page N of a TIFF file with several pages, counted from 1
  --screenshot FILE.png   save the window as a picture and exit
  --size WIDTHxHEIGHT     size of that window in pixels, else 1280x800 at 96 dpi
  --view image|x|y        show the image, or its row or column as a chart
  --peaks N               label the N strongest peaks of the chart, 1 to 200
  --palette NAME          gray, red, green, blue or color
  --roi X,Y,WIDTH,HEIGHT  mark exactly these pixels, counted from the top left; can be
                          given more than once
  --regions FILE.reg      mark the regions of a DS9 region file; what is left out is told
  --wavelength START,WIDTH[,UNIT]
                          label the axis in wavelengths: that of the first pixel, 0 to
                          2000, what each pixel adds, 1 to 100, and the unit, um or nm
  --help                  show this text
  --version               show the version
</source>
        <translation>Aufruf: vkviewer [--page N] [BILD | ORDNER]
        vkviewer --screenshot DATEI.png [OPTIONEN] BILD | ORDNER

Zeigt ein Kamerabild mit seinen Intensitätsprofilen, Linealen und seiner Palette.
BILD ist eine Datei jpg, jpeg, tif, tiff, bmp oder png oder eine Rohdatei der Kamera;
von einem ORDNER werden die Bilder in einer Galerie gezeigt.

  --page N                Seite N einer TIFF-Datei mit mehreren Seiten zeigen, ab 1 gezählt
  --screenshot DATEI.png  das Fenster als Bild speichern und beenden
  --size BREITExHÖHE      Größe dieses Bildes in Pixeln, sonst 1280x800 bei 96 dpi
  --view image|x|y        das Bild, oder seine Zeile oder Spalte als Diagramm zeigen
  --peaks N               die N stärksten Peaks des Diagramms beschriften, 1 bis 200
  --palette NAME          gray, red, green, blue oder color
  --roi X,Y,BREITE,HÖHE   genau diese Pixel markieren, von links oben gezählt;
                          mehrfach möglich
  --regions DATEI.reg     die Regionen einer DS9-Datei markieren; was fehlt, wird gemeldet
  --wavelength START,BREITE[,EINHEIT]
                          die Achse in Wellenlängen beschriften: die des ersten Pixels,
                          0 bis 2000, was jedes Pixel hinzufügt, 1 bis 100, und die
                          Einheit, um oder nm
  --help                  diesen Text zeigen
  --version               die Version zeigen
</translation>
    </message>
</context>
<context>
    <name>CrossHairKeys</name>
    <message>
        <source>Arrows</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Move the cross-hair</source>
        <translation>Fadenkreuz bewegen</translation>
    </message>
    <message>
        <source>Shift+Arrows</source>
        <translation>Umschalt+Pfeile</translation>
    </message>
    <message>
        <source>Move it by 10 pixels</source>
        <translation>um 10 Pixel bewegen</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>the region %1,%2,%3,%4 does not lie inside the image of %5x%6 pixels</source>
        <translation>die ROI %1,%2,%3,%4 liegt nicht im Bild von %5x%6 Pixeln</translation>
    </message>
    <message>
        <source>the axis does not take these wavelengths</source>
        <translation>die Achse nimmt diese Wellenlängen nicht an</translation>
    </message>
    <message>
        <source>the chart does not take %1 peaks</source>
        <translation>das Diagramm nimmt %1 Peaks nicht an</translation>
    </message>
    <message>
        <source>there is no such chart</source>
        <translation>dieses Diagramm gibt es nicht</translation>
    </message>
    <message>
        <source>there is no such view</source>
        <translation>diese Ansicht gibt es nicht</translation>
    </message>
    <message>
        <source>the palette %1 cannot be read</source>
        <translation>die Palette %1 ist nicht lesbar</translation>
    </message>
</context>
<context>
    <name>EmptyFolderPage</name>
    <message>
        <source>Choose Folder...</source>
        <translation>Ordner wählen...</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>&amp;Statistics of all regions</source>
        <translation>&amp;Statistik aller ROIs</translation>
    </message>
    <message>
        <source>&amp;Histogram of the image</source>
        <translation>&amp;Histogramm des Bildes</translation>
    </message>
    <message>
        <source>Histogram of the selected r&amp;egion</source>
        <translation>Histogramm der ge&amp;wählten ROI</translation>
    </message>
    <message>
        <source>&amp;Row through the cross-hair</source>
        <translation>Z&amp;eile durch das Fadenkreuz</translation>
    </message>
    <message>
        <source>&amp;Column through the cross-hair</source>
        <translation>S&amp;palte durch das Fadenkreuz</translation>
    </message>
    <message>
        <source>&amp;Peaks of this row</source>
        <translation>Peaks dieser Ze&amp;ile</translation>
    </message>
    <message>
        <source>Pea&amp;ks of this column</source>
        <translation>Peaks &amp;dieser Spalte</translation>
    </message>
    <message>
        <source>Export Numbers</source>
        <translation>Zahlen exportieren</translation>
    </message>
    <message>
        <source>Copy Numbers</source>
        <translation>Zahlen kopieren</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Format of the file</source>
        <translation>Format der Datei</translation>
    </message>
    <message>
        <source>CS&amp;V, a table</source>
        <translation>CS&amp;V, eine Tabelle</translation>
    </message>
    <message>
        <source>&amp;JSON, for programs</source>
        <translation>&amp;JSON, für Programme</translation>
    </message>
    <message>
        <source>Sa&amp;ve...</source>
        <translation>Spei&amp;chern...</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>The numbers as a table that can be pasted into a spreadsheet</source>
        <translation>Die Zahlen als Tabelle, die sich in eine Tabellenkalkulation einfügen lässt</translation>
    </message>
</context>
<context>
    <name>FileSaver</name>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1: this is the image that is shown. Choose another name.</source>
        <translation>%1: Das ist das angezeigte Bild. Bitte einen anderen Namen wählen.</translation>
    </message>
</context>
<context>
    <name>GalleryDelegate</name>
    <message>
        <source>Large image</source>
        <translation>Großes Bild</translation>
    </message>
</context>
<context>
    <name>GalleryModel</name>
    <message>
        <source>Too large for a small picture; it can be opened.</source>
        <translation>Zu groß für ein kleines Bild; es lässt sich öffnen.</translation>
    </message>
</context>
<context>
    <name>GalleryPage</name>
    <message>
        <source>Choose Folder...</source>
        <translation>Ordner wählen...</translation>
    </message>
    <message>
        <source>1 image</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <source>%1 images</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>No images in this folder</source>
        <translation>Keine Bilder in diesem Ordner</translation>
    </message>
    <message>
        <source>Images end in %1.</source>
        <translation>Bilder enden auf %1.</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <translation>Dieser Ordner kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>It is missing, or you have no permission to read it.</source>
        <translation>Es gibt ihn nicht, oder Sie dürfen ihn nicht lesen.</translation>
    </message>
    <message>
        <source>Progress of the small pictures</source>
        <translation>Fortschritt der kleinen Bilder</translation>
    </message>
    <message>
        <source>Images of the folder</source>
        <translation>Bilder des Ordners</translation>
    </message>
</context>
<context>
    <name>HelpOverlay</name>
    <message>
        <source>Click the image</source>
        <translation>Klick ins Bild</translation>
    </message>
    <message>
        <source>Move the cross-hair</source>
        <translation>Fadenkreuz setzen</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Zoom the image</source>
        <translation>Bild zoomen</translation>
    </message>
    <message>
        <source>Drag a profile</source>
        <translation>Profil ziehen</translation>
    </message>
    <message>
        <source>Scroll the zoomed image</source>
        <translation>Ausschnitt verschieben</translation>
    </message>
    <message>
        <source>Drag a region</source>
        <translation>ROI ziehen</translation>
    </message>
    <message>
        <source>Move the region of interest</source>
        <translation>ROI verschieben</translation>
    </message>
    <message>
        <source>Drag a corner</source>
        <translation>Ecke ziehen</translation>
    </message>
    <message>
        <source>Resize the region of interest</source>
        <translation>Größe der ROI ändern</translation>
    </message>
    <message>
        <source>Click the chart</source>
        <translation>Klick ins Diagramm</translation>
    </message>
    <message>
        <source>Read a sample of the profile</source>
        <translation>Wert des Profils ablesen</translation>
    </message>
    <message>
        <source>Click a title bar</source>
        <translation>Klick auf eine Titelleiste</translation>
    </message>
    <message>
        <source>Fold a part of the panel</source>
        <translation>Teil der Leiste einklappen</translation>
    </message>
    <message>
        <source>Drop a file or folder</source>
        <translation>Datei oder Ordner ablegen</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>Maus und Tasten</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Any key or a click closes this.</source>
        <translation>Eine Taste oder ein Klick schließt die Hilfe.</translation>
    </message>
    <message>
        <source>Double click in the gallery</source>
        <translation>Doppelklick in der Galerie</translation>
    </message>
    <message>
        <source>Open the image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Click a region</source>
        <translation>ROI anklicken</translation>
    </message>
    <message>
        <source>Select the region of interest</source>
        <translation>ROI auswählen</translation>
    </message>
</context>
<context>
    <name>ImageCommands</name>
    <message>
        <source>The palette %1 cannot be read.</source>
        <translation>Die Palette %1 ist nicht lesbar.</translation>
    </message>
</context>
<context>
    <name>ImageFiles</name>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>ImageReport</name>
    <message>
        <source>Region</source>
        <translation>ROI</translation>
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
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
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
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Standardabw.</translation>
    </message>
    <message>
        <source>Signal to Noise</source>
        <translation>Signal/Rauschen</translation>
    </message>
    <message>
        <source>Cross-hair: X %1, Y %2, value %3</source>
        <translation>Fadenkreuz: X %1, Y %2, Wert %3</translation>
    </message>
    <message>
        <source>Wavelengths: %1 %3 at pixel 0, %2 %3 a pixel</source>
        <translation>Wellenlängen: %1 %3 bei Pixel 0, %2 %3 je Pixel</translation>
    </message>
    <message>
        <source>X and Y count from 0 at the top left pixel.</source>
        <translation>X und Y zählen ab 0 beim Pixel oben links.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>ROI %1</source>
        <translation>ROI %1</translation>
    </message>
</context>
<context>
    <name>ImageTexts</name>
    <message>
        <source>raw camera file</source>
        <translation>Rohdatei der Kamera</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG-Bild</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF-Bild</translation>
    </message>
    <message>
        <source>%1 image</source>
        <translation>%1-Bild</translation>
    </message>
    <message>
        <source>The file name has no suffix. Images end in %1.</source>
        <translation>Der Dateiname hat keine Endung. Bilder enden auf %1.</translation>
    </message>
    <message>
        <source>Files of the kind &quot;%1&quot; are not known. Images end in %2.</source>
        <translation>Dateien der Art „%1“ sind nicht bekannt. Bilder enden auf %2.</translation>
    </message>
    <message>
        <source>You have no permission to read this file.</source>
        <translation>Sie dürfen diese Datei nicht lesen.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file cannot be read as a %1: it is damaged, or of another kind than its suffix says.</source>
        <translation>Die Datei ist als %1 nicht lesbar: Sie ist beschädigt oder von anderer Art, als ihre Endung sagt.</translation>
    </message>
    <message>
        <source>color as gray</source>
        <translation>Farbe als Grau</translation>
    </message>
    <message>
        <source>alpha dropped</source>
        <translation>ohne Alpha</translation>
    </message>
    <message>
        <source>floating-point samples as whole numbers</source>
        <translation>Gleitkommawerte als ganze Zahlen</translation>
    </message>
    <message>
        <source>signed samples as whole numbers</source>
        <translation>Werte mit Vorzeichen als ganze Zahlen</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>There is no file of this name.</source>
        <translation>Es gibt keine Datei dieses Namens.</translation>
    </message>
    <message>
        <source>This is a folder, not an image file.</source>
        <translation>Das ist ein Ordner, keine Bilddatei.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file may be sound, but its kind is not supported: its number of bits a sample or its compression, for example.</source>
        <translation>Die Datei mag in Ordnung sein, ihre Art wird aber nicht unterstützt: zum Beispiel die Zahl ihrer Bits je Wert oder ihre Kompression.</translation>
    </message>
    <message>
        <source>The image holds no pixels.</source>
        <translation>Das Bild enthält keine Pixel.</translation>
    </message>
    <message>
        <source>The image is larger than can be loaded, or than the memory that is free.</source>
        <translation>Das Bild ist größer, als geladen werden kann, oder als der freie Speicher.</translation>
    </message>
    <message>
        <source>The image has more pixels than are allowed.</source>
        <translation>Das Bild hat mehr Pixel, als erlaubt sind.</translation>
    </message>
    <message>
        <source>The file has no such page.</source>
        <translation>Diese Seite gibt es in der Datei nicht.</translation>
    </message>
    <message>
        <source>The image cannot be shown faithfully: it has values that are negative, fractional or larger than 4294967295.</source>
        <translation>Das Bild kann nicht getreu gezeigt werden: Es hat Werte, die negativ, gebrochen oder größer als 4294967295 sind.</translation>
    </message>
    <message>
        <source>The image cannot be shown faithfully: only 8, 16 or 32 bits a sample can be.</source>
        <translation>Das Bild kann nicht getreu gezeigt werden: Das geht nur mit 8, 16 oder 32 Bit je Wert.</translation>
    </message>
    <message>
        <source>The image cannot be shown faithfully: only one channel or three can be, with or without alpha.</source>
        <translation>Das Bild kann nicht getreu gezeigt werden: Das geht nur mit einem Kanal oder dreien, mit oder ohne Alpha.</translation>
    </message>
    <message>
        <source>The file cannot be shown.</source>
        <translation>Die Datei kann nicht gezeigt werden.</translation>
    </message>
</context>
<context>
    <name>LoadProblemPage</name>
    <message>
        <source>This file cannot be shown</source>
        <translation>Diese Datei kann nicht gezeigt werden</translation>
    </message>
</context>
<context>
    <name>NumberCommands</name>
    <message>
        <source>The image has changed, and these numbers are gone.</source>
        <translation>Das Bild hat sich geändert, diese Zahlen gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>There is not enough memory for the numbers.</source>
        <translation>Für die Zahlen reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>Export Numbers</source>
        <translation>Zahlen exportieren</translation>
    </message>
    <message>
        <source>JSON file (*.json)</source>
        <translation>JSON-Datei (*.json)</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>CSV-Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>The numbers are on the clipboard.</source>
        <translation>Die Zahlen sind in der Zwischenablage.</translation>
    </message>
    <message>
        <source>The value %1 is on the clipboard.</source>
        <translation>Der Wert %1 ist in der Zwischenablage.</translation>
    </message>
</context>
<context>
    <name>PageControl</name>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Seitennummer</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
</context>
<context>
    <name>PictureCommands</name>
    <message>
        <source>The window is on the clipboard.</source>
        <translation>Das Fenster ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>The canvas is on the clipboard.</source>
        <translation>Die Zeichenfläche ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Save Screenshot</source>
        <translation>Bildschirmfoto speichern</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Save Visible Part</source>
        <translation>Sichtbaren Teil speichern</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>Für das Bild reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>The page is printed.</source>
        <translation>Die Seite ist gedruckt.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The printer or its file takes no pages.</source>
        <translation>Der Drucker oder seine Datei nimmt keine Seiten an.</translation>
    </message>
    <message>
        <source>No Printer: Save as PDF</source>
        <translation>Kein Drucker: Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
</context>
<context>
    <name>RegionCommands</name>
    <message>
        <source>DS9 regions (*.reg)</source>
        <translation>DS9-Regionen (*.reg)</translation>
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
        <source>New Region</source>
        <translation>Neue ROI</translation>
    </message>
    <message>
        <source>ROI %1</source>
        <translation>ROI %1</translation>
    </message>
    <message>
        <source>Save Regions</source>
        <translation>ROIs speichern</translation>
    </message>
    <message>
        <source>Load Regions</source>
        <translation>ROIs laden</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Not all of %1 is loaded. Left out: %2.</source>
        <translation>%1 ist nicht vollständig geladen. Es fehlen: %2.</translation>
    </message>
</context>
<context>
    <name>RegionDialog</name>
    <message>
        <source>&amp;X:</source>
        <translation>&amp;X:</translation>
    </message>
    <message>
        <source>&amp;Y:</source>
        <translation>&amp;Y:</translation>
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
        <source>Pixels of the image (%1 × %2), counted from 0 at its top left.
The panel counts Y from the bottom row.</source>
        <translation>Pixel des Bildes (%1 × %2), von links oben ab 0 gezählt.
Das Bedienfeld zählt Y von der untersten Zeile an.</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>X + width is %1, the image is %2 pixels wide.</source>
        <translation>X + Breite ist %1, das Bild ist %2 Pixel breit.</translation>
    </message>
    <message>
        <source>Y + height is %1, the image is %2 pixels high.</source>
        <translation>Y + Höhe ist %1, das Bild ist %2 Pixel hoch.</translation>
    </message>
</context>
<context>
    <name>RegionFile</name>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is larger than 16 MiB</source>
        <translation>sie ist größer als 16 MiB</translation>
    </message>
    <message>
        <source>shapes other than upright boxes (%1)</source>
        <translation>andere Formen als aufrechte Rechtecke (%1)</translation>
    </message>
    <message>
        <source>shapes in other than image coordinates (%1)</source>
        <translation>Formen in anderen als Bildkoordinaten (%1)</translation>
    </message>
    <message>
        <source>boxes not inside the image (%1)</source>
        <translation>Rechtecke außerhalb des Bildes (%1)</translation>
    </message>
    <message>
        <source>lines that cannot be read (%1)</source>
        <translation>unlesbare Zeilen (%1)</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: there is no region in it</source>
        <translation>%1: enthält keine ROI</translation>
    </message>
    <message>
        <source>%1: there is no region in it that can be used: %2</source>
        <translation>%1: enthält keine verwendbare ROI: %2</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>RegionHistory</name>
    <message>
        <source>Add Region</source>
        <translation>ROI hinzufügen</translation>
    </message>
    <message>
        <source>Delete Region</source>
        <translation>ROI löschen</translation>
    </message>
    <message>
        <source>Move Region</source>
        <translation>ROI verschieben</translation>
    </message>
    <message>
        <source>Resize Region</source>
        <translation>ROI-Größe ändern</translation>
    </message>
    <message>
        <source>Change Regions</source>
        <translation>ROIs ändern</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>the window is at least %1x%2 pixels</source>
        <translation>das Fenster hat mindestens %1x%2 Pixel</translation>
    </message>
    <message>
        <source>%1: left out: %2</source>
        <translation>%1: es fehlen: %2</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>Fortschritt des Ladens</translation>
    </message>
    <message>
        <source>Time that the image took to load</source>
        <translation>Ladezeit des Bildes</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>%1 wird geladen...</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Pixel under the pointer and its value</source>
        <translation>Pixel unter dem Mauszeiger und sein Wert</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>The next image opens with palette, axes, view, peaks and regions of this one (View &gt; Keep Settings)</source>
        <translation>Das nächste Bild öffnet sich mit Palette, Achsen, Ansicht, Peaks und ROIs von diesem (Ansicht &gt; Einstellungen behalten)</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Settings kept</source>
        <translation>Einstellungen bleiben</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>The user guide is not there: it belongs into the folder %1.</source>
        <translation>Das Benutzerhandbuch fehlt: Es gehört in den Ordner %1.</translation>
    </message>
</context>
<context>
    <name>ViewerMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Folder...</source>
        <translation>&amp;Ordner öffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Gallery</source>
        <translation>&amp;Galerie</translation>
    </message>
    <message>
        <source>&amp;Next Image</source>
        <translation>&amp;Nächstes Bild</translation>
    </message>
    <message>
        <source>&amp;Previous Image</source>
        <translation>&amp;Voriges Bild</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Save Screenshot...</source>
        <translation>Bild&amp;schirmfoto speichern...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Copy Window</source>
        <translation>&amp;Fenster kopieren</translation>
    </message>
    <message>
        <source>Copy C&amp;anvas</source>
        <translation>&amp;Zeichenfläche kopieren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>V&amp;ollbild</translation>
    </message>
    <message>
        <source>I&amp;mage</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>2D Chart of the &amp;Row</source>
        <translation>2D-Diagramm der &amp;Zeile</translation>
    </message>
    <message>
        <source>2D Chart of the &amp;Column</source>
        <translation>2D-Diagramm der &amp;Spalte</translation>
    </message>
    <message>
        <source>&amp;Gray</source>
        <translation>&amp;Grau</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation>&amp;Rot</translation>
    </message>
    <message>
        <source>Gr&amp;een</source>
        <translation>Grü&amp;n</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>&amp;Blau</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>&amp;Farbe</translation>
    </message>
    <message>
        <source>Gray palette</source>
        <translation>Graue Palette</translation>
    </message>
    <message>
        <source>Red palette</source>
        <translation>Rote Palette</translation>
    </message>
    <message>
        <source>Green palette</source>
        <translation>Grüne Palette</translation>
    </message>
    <message>
        <source>Blue palette</source>
        <translation>Blaue Palette</translation>
    </message>
    <message>
        <source>Color palette</source>
        <translation>Farbpalette</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Mouse and Keys</source>
        <translation>&amp;Maus und Tasten</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>Vollbild verlassen</translation>
    </message>
    <message>
        <source>&amp;Delete Region</source>
        <translation>ROI &amp;löschen</translation>
    </message>
    <message>
        <source>Next P&amp;age</source>
        <translation>Näc&amp;hste Seite</translation>
    </message>
    <message>
        <source>Previo&amp;us Page</source>
        <translation>Vo&amp;rige Seite</translation>
    </message>
    <message>
        <source>Save P&amp;icture...</source>
        <translation>B&amp;ild speichern...</translation>
    </message>
    <message>
        <source>Save &amp;Visible Part...</source>
        <translation>Sichtbaren &amp;Teil speichern...</translation>
    </message>
    <message>
        <source>&amp;Export Numbers...</source>
        <translation>Zahlen &amp;exportieren...</translation>
    </message>
    <message>
        <source>Prin&amp;t...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Copy Window or Value</source>
        <translation>Fenster oder Wert kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Numbers...</source>
        <translation>Za&amp;hlen kopieren...</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>&amp;Regions</source>
        <translation>&amp;ROIs</translation>
    </message>
    <message>
        <source>&amp;Add Region</source>
        <translation>ROI &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add Region by &amp;Numbers...</source>
        <translation>ROI mit &amp;Zahlen hinzufügen...</translation>
    </message>
    <message>
        <source>Add by Numbers</source>
        <translation>Mit Zahlen hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit Numbers...</source>
        <translation>Zahlen &amp;bearbeiten...</translation>
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
        <source>&amp;Save Regions...</source>
        <translation>ROIs &amp;speichern...</translation>
    </message>
    <message>
        <source>&amp;Load Regions...</source>
        <translation>ROIs la&amp;den...</translation>
    </message>
    <message>
        <source>&amp;Whole Image</source>
        <translation>&amp;Ganzes Bild</translation>
    </message>
    <message>
        <source>&amp;Keep Settings</source>
        <translation>&amp;Einstellungen behalten</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>Benutzer&amp;handbuch</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>VKIntensity Viewer</source>
        <translation>VKIntensity Viewer</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>This is the last image of the folder.</source>
        <translation>Das ist das letzte Bild im Ordner.</translation>
    </message>
    <message>
        <source>This is the first image of the folder.</source>
        <translation>Das ist das erste Bild im Ordner.</translation>
    </message>
    <message>
        <source>About VKIntensity Viewer</source>
        <translation>Über VKIntensity Viewer</translation>
    </message>
    <message>
        <source>Not all is as before: %1.</source>
        <translation>Nicht alles ist wie vorher: %1.</translation>
    </message>
    <message>
        <source>only an image has controls to set</source>
        <translation>nur ein Bild hat Bedienelemente</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Open Image...</source>
        <translation>Bild öffnen...</translation>
    </message>
    <message>
        <source>Drop a camera image here</source>
        <translation>Kamerabild hier ablegen</translation>
    </message>
    <message>
        <source>JPEG, TIFF, BMP, PNG, or a raw camera file</source>
        <translation>JPEG, TIFF, BMP, PNG oder eine Rohdatei der Kamera</translation>
    </message>
</context>
<context>
    <name>WidgetAccess</name>
    <message>
        <source>Return to the gallery</source>
        <translation>Zurück zur Galerie</translation>
    </message>
    <message>
        <source>Fold the display preferences</source>
        <translation>Anzeigeoptionen einklappen</translation>
    </message>
    <message>
        <source>Axis of the chart</source>
        <translation>Achse des Diagramms</translation>
    </message>
    <message>
        <source>Number of peak labels</source>
        <translation>Anzahl beschrifteter Peaks</translation>
    </message>
    <message>
        <source>Gray palette</source>
        <translation>Graue Palette</translation>
    </message>
    <message>
        <source>Red palette</source>
        <translation>Rote Palette</translation>
    </message>
    <message>
        <source>Green palette</source>
        <translation>Grüne Palette</translation>
    </message>
    <message>
        <source>Blue palette</source>
        <translation>Blaue Palette</translation>
    </message>
    <message>
        <source>Color palette</source>
        <translation>Farbpalette</translation>
    </message>
    <message>
        <source>Label of the horizontal axis</source>
        <translation>Beschriftung der waagerechten Achse</translation>
    </message>
    <message>
        <source>Unit of the wavelength</source>
        <translation>Einheit der Wellenlänge</translation>
    </message>
    <message>
        <source>Wavelength of the first pixel</source>
        <translation>Wellenlänge des ersten Pixels</translation>
    </message>
    <message>
        <source>Wavelength of one pixel</source>
        <translation>Wellenlänge je Pixel</translation>
    </message>
    <message>
        <source>Fold the data histogram</source>
        <translation>Histogramm einklappen</translation>
    </message>
    <message>
        <source>Region of interest</source>
        <translation>ROI</translation>
    </message>
    <message>
        <source>Add a region of interest</source>
        <translation>ROI hinzufügen</translation>
    </message>
    <message>
        <source>Delete the region of interest</source>
        <translation>ROI löschen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Leiste</translation>
    </message>
</context>
</TS>
