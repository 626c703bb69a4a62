<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
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
        <source>--view, --peaks, --palette, --roi and --wavelength go with --screenshot</source>
        <translation>--view, --peaks, --palette, --roi und --wavelength gehören zu --screenshot</translation>
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
        <source>Usage: vkviewer [IMAGE | FOLDER]
       vkviewer --screenshot FILE.png [OPTIONS] IMAGE | FOLDER

Shows a camera image with its intensity profiles, rulers and palette.
IMAGE is a jpg, jpeg, tif, tiff, bmp or png picture or a raw camera file; of a FOLDER
its images are shown in a gallery.

  --screenshot FILE.png   save the window as a picture and exit
  --size WIDTHxHEIGHT     size of that window in pixels, else 1280x800 at 96 dpi
  --view image|x|y        show the image, or its row or column as a chart
  --peaks N               label the N strongest peaks of the chart, 1 to 200
  --palette NAME          gray, red, green, blue or color
  --roi X,Y,WIDTH,HEIGHT  mark exactly these pixels, counted from the top left; can be
                          given more than once
  --wavelength START,WIDTH[,UNIT]
                          label the axis in wavelengths: that of the first pixel, 0 to
                          2000, what each pixel adds, 1 to 100, and the unit, um or nm
  --help                  show this text
  --version               show the version
</source>
        <translation>Aufruf: vkviewer [BILD | ORDNER]
        vkviewer --screenshot DATEI.png [OPTIONEN] BILD | ORDNER

Zeigt ein Kamerabild mit seinen Intensitätsprofilen, Linealen und seiner Palette.
BILD ist eine Datei jpg, jpeg, tif, tiff, bmp oder png oder eine Rohdatei der Kamera;
von einem ORDNER werden die Bilder in einer Galerie gezeigt.

  --screenshot DATEI.png  das Fenster als Bild speichern und beenden
  --size BREITExHÖHE      Größe dieses Bildes in Pixeln, sonst 1280x800 bei 96 dpi
  --view image|x|y        das Bild, oder seine Zeile oder Spalte als Diagramm zeigen
  --peaks N               die N stärksten Peaks des Diagramms beschriften, 1 bis 200
  --palette NAME          gray, red, green, blue oder color
  --roi X,Y,BREITE,HÖHE   genau diese Pixel markieren, von links oben gezählt;
                          mehrfach möglich
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
        <source>page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
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
    <name>PictureFile</name>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Save Screenshot</source>
        <translation>Bildschirmfoto speichern</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>the window is at least %1x%2 pixels</source>
        <translation>das Fenster hat mindestens %1x%2 Pixel</translation>
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
        <source>The screenshot is saved.</source>
        <translation>Das Bildschirmfoto ist gespeichert.</translation>
    </message>
    <message>
        <source>About VKIntensity Viewer</source>
        <translation>Über VKIntensity Viewer</translation>
    </message>
    <message>
        <source>VKIntensity Viewer %1

Shows what is in a camera image: profiles, charts with labelled peaks, regions of interest and their statistics.</source>
        <translation>VKIntensity Viewer %1

Zeigt, was in einem Kamerabild steckt: Profile, Diagramme mit beschrifteten Peaks, ROIs und ihre Statistik.</translation>
    </message>
    <message>
        <source>The palette %1 cannot be read.</source>
        <translation>Die Palette %1 ist nicht lesbar.</translation>
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
