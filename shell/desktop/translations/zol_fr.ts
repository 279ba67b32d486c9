<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>zol</name>
    <message>
        <source>Atom Distance</source>
        <translation>Distances atomiques</translation>
    </message>
    <message>
        <source>distance maximum (A)</source>
        <translation>distance maximale (A)</translation>
    </message>
    <message>
        <source>largest distance that is listed, in angstroms; Enter calculates</source>
        <translation>plus grande distance listée, en angströms ; Entrée calcule</translation>
    </message>
    <message>
        <source>Calc</source>
        <translation>Calculer</translation>
    </message>
    <message>
        <source>list the distances in the crystal as it is now</source>
        <translation>liste les distances dans le cristal tel qu'il est</translation>
    </message>
    <message>
        <source>for each atom of the asymmetric unit: its label and element, those of the other atom, and the distance in angstroms; a dashed line ends each atom</source>
        <translation>pour chaque atome de l'unité asymétrique : son nom et son élément, ceux de l'autre atome et la distance en angströms ; une ligne de tirets termine chaque atome</translation>
    </message>
    <message>
        <source>AUTOMATIC INDEXING</source>
        <translation>INDEXATION AUTOMATIQUE</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>Bandes</translation>
    </message>
    <message>
        <source>number of bands to look for, 3 to 30; the strongest of the picture</source>
        <translation>bandes cherchées, 3 à 30 ; les plus fortes de l'image</translation>
    </message>
    <message>
        <source>Families</source>
        <translation>Familles</translation>
    </message>
    <message>
        <source>families of planes that bands may belong to, the strongest of the crystal</source>
        <translation>familles de plans auxquelles les bandes peuvent appartenir, les plus fortes du cristal</translation>
    </message>
    <message>
        <source>Sample tilt (deg)</source>
        <translation>Inclinaison (°)</translation>
    </message>
    <message>
        <source>tilt of the sample less that of the screen, degrees: for the Euler angles</source>
        <translation>inclinaison de l'échantillon moins celle de l'écran, en degrés : pour les angles d'Euler</translation>
    </message>
    <message>
        <source>Round picture</source>
        <translation>Image ronde</translation>
    </message>
    <message>
        <source>the pattern fills a circle; what lies outside is left out</source>
        <translation>le cliché remplit un cercle ; ce qui est dehors est ignoré</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Indexer</translation>
    </message>
    <message>
        <source>finds bands, orientation and indices in the picture of PATTERN3</source>
        <translation>trouve bandes, orientation et indices dans l'image de PATTERN3</translation>
    </message>
    <message>
        <source>Refine centre</source>
        <translation>Affiner le centre</translation>
    </message>
    <message>
        <source>fits half angle and shifts of PATTERN3 to the picture, and indexes again</source>
        <translation>ajuste le demi-angle et les décalages de PATTERN3 à l'image, et indexe de nouveau</translation>
    </message>
    <message>
        <source>Show in simulation</source>
        <translation>Montrer dans la simulation</translation>
    </message>
    <message>
        <source>draws the picked orientation in the window of Kikuchi patterns</source>
        <translation>dessine l'orientation choisie dans la fenêtre des clichés de Kikuchi</translation>
    </message>
    <message>
        <source>Take lines</source>
        <translation>Prendre les lignes</translation>
    </message>
    <message>
        <source>the three clearest bands that do not meet in one point become the lines of PATTERN3, for CALC there</source>
        <translation>les trois bandes les plus nettes qui ne se coupent pas en un point deviennent les lignes de PATTERN3, pour le calcul là-bas</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copier le rapport</translation>
    </message>
    <message>
        <source>copies crystal, centre, orientation and bands as text and JSON</source>
        <translation>cristal, centre, orientation et bandes en texte et JSON, à coller ailleurs</translation>
    </message>
    <message>
        <source>Solutions</source>
        <translation>Solutions</translation>
    </message>
    <message>
        <source>orientations, the best first; a click draws its bands over the picture of PATTERN3</source>
        <translation>orientations, la meilleure d'abord ; un clic dessine ses bandes sur l'image de PATTERN3</translation>
    </message>
    <message>
        <source>Bands found</source>
        <translation>Bandes trouvées</translation>
    </message>
    <message>
        <source>bands of the picture, the strongest first: azimuth, distance from the centre and width in degrees; a click marks one</source>
        <translation>bandes de l'image, la plus forte d'abord : azimut, distance au centre et largeur en degrés ; un clic en marque une</translation>
    </message>
    <message>
        <source>Measured and simulated</source>
        <translation>Mesuré et simulé</translation>
    </message>
    <message>
        <source>the measured picture and that of the crystal's bands in the picked orientation</source>
        <translation>l'image mesurée et celle des bandes du cristal dans l'orientation choisie</translation>
    </message>
    <message>
        <source>Beside</source>
        <translation>À côté</translation>
    </message>
    <message>
        <source>measured on the left, simulated on the right</source>
        <translation>mesuré à gauche, simulé à droite</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Dessus</translation>
    </message>
    <message>
        <source>one over the other; the slider sets the share of each</source>
        <translation>l'une sur l'autre ; le curseur dit combien de chacune</translation>
    </message>
    <message>
        <source>Alternating</source>
        <translation>En alternance</translation>
    </message>
    <message>
        <source>a click on the picture changes between them</source>
        <translation>un clic sur l'image passe de l'une à l'autre</translation>
    </message>
    <message>
        <source>Simulated (%)</source>
        <translation>Simulé (%)</translation>
    </message>
    <message>
        <source>share of the simulated picture in "Over"</source>
        <translation>part de l'image simulée avec « Dessus »</translation>
    </message>
    <message>
        <source>Families of planes</source>
        <translation>Familles de plans</translation>
    </message>
    <message>
        <source>families of the crystal, the strongest first; x: bands may belong to it</source>
        <translation>familles du cristal, la plus forte d'abord ; x : des bandes peuvent lui appartenir</translation>
    </message>
    <message>
        <source>Leave out / take in</source>
        <translation>Omettre / reprendre</translation>
    </message>
    <message>
        <source>changes the mark of the picked family</source>
        <translation>change la marque de la famille choisie</translation>
    </message>
    <message>
        <source>Other crystals to try</source>
        <translation>Autres cristaux à essayer</translation>
    </message>
    <message>
        <source>crystal files tried beside the present crystal; the ranking shows which fits</source>
        <translation>fichiers de cristaux essayés outre le cristal présent ; le classement dit lequel convient</translation>
    </message>
    <message>
        <source>Add crystal...</source>
        <translation>Ajouter un cristal...</translation>
    </message>
    <message>
        <source>adds a crystal file</source>
        <translation>ajoute un fichier de cristal</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>removes the picked crystal from the list</source>
        <translation>retire de la liste le cristal choisi</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Detector</source>
        <translation>Détecteur</translation>
    </message>
    <message>
        <source>Centre from numbers...</source>
        <translation>Centre par des nombres...</translation>
    </message>
    <message>
        <source>converts the pattern centre of the detector software to the boxes of PATTERN3</source>
        <translation>convertit le centre donné par le logiciel du détecteur dans les champs de PATTERN3</translation>
    </message>
    <message>
        <source>Save picture...</source>
        <translation>Enregistrer l'image...</translation>
    </message>
    <message>
        <source>Camera Parameters</source>
        <translation>Paramètres de la caméra</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Acquisition angle (deg.)</source>
        <translation>Angle d'acquisition (°)</translation>
    </message>
    <message>
        <source>half opening of the picture, degrees</source>
        <translation>demi-ouverture de l'image, degrés</translation>
    </message>
    <message>
        <source>X-shift (deg.)</source>
        <translation>Décalage X (°)</translation>
    </message>
    <message>
        <source>offset of the pattern centre in x, degrees</source>
        <translation>décalage du centre du cliché en x, degrés</translation>
    </message>
    <message>
        <source>Y-shift (deg.)</source>
        <translation>Décalage Y (°)</translation>
    </message>
    <message>
        <source>offset of the pattern centre in y, degrees</source>
        <translation>décalage du centre du cliché en y, degrés</translation>
    </message>
    <message>
        <source>Detector area (mm)</source>
        <translation>Taille du détecteur (mm)</translation>
    </message>
    <message>
        <source>edge length of the detector, mm</source>
        <translation>longueur du côté du détecteur, mm</translation>
    </message>
    <message>
        <source>XY-ratio</source>
        <translation>Rapport XY</translation>
    </message>
    <message>
        <source>scale of y against x</source>
        <translation>échelle de y par rapport à x</translation>
    </message>
    <message>
        <source>Substrate normal (deg.)</source>
        <translation>Normale du substrat (°)</translation>
    </message>
    <message>
        <source>tilt of the substrate normal from the screen normal, degrees</source>
        <translation>inclinaison de la normale du substrat sur celle de l'écran, degrés</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>read the parameters from a file</source>
        <translation>lit les paramètres dans un fichier</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>write the parameters to a file</source>
        <translation>écrit les paramètres dans un fichier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>hide this window</source>
        <translation>cache cette fenêtre</translation>
    </message>
    <message>
        <source>DS-ring</source>
        <translation>Anneaux de Debye-Scherrer</translation>
    </message>
    <message>
        <source>intensity over 1/d, from 0 to its end; a click reads d and intensity</source>
        <translation>intensité en fonction de 1/d, de 0 à sa fin ; un clic lit d et l'intensité</translation>
    </message>
    <message>
        <source>d at the place of the last click, in angstroms</source>
        <translation>d à l'endroit du dernier clic, en angströms</translation>
    </message>
    <message>
        <source>height of the profile at the last click, in per cent of full height</source>
        <translation>hauteur du profil au dernier clic, en pour cent de la pleine hauteur</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Cliché</translation>
    </message>
    <message>
        <source>d*-max(A-1)</source>
        <translation>d* max (A-1)</translation>
    </message>
    <message>
        <source>right end of the profile and radius of the ring picture: 1/d in inverse angstroms</source>
        <translation>fin du profil à droite et rayon de l'image des anneaux : 1/d en angströms inverses</translation>
    </message>
    <message>
        <source>half.width</source>
        <translation>mi-hauteur</translation>
    </message>
    <message>
        <source>full width of a line at half of its height, in inverse angstroms; 0 becomes 0.01</source>
        <translation>largeur d'une raie à mi-hauteur, en angströms inverses ; 0 devient 0.01</translation>
    </message>
    <message>
        <source>Crystallite, in unit cells</source>
        <translation>Cristallite, en mailles</translation>
    </message>
    <message>
        <source>Steps along a*, b*, c*</source>
        <translation>Pas selon a*, b*, c*</translation>
    </message>
    <message>
        <source>steps of the interference function along a*, b*, c* in the last calculation; each reflection is spread over up to (2n+1) points along each axis</source>
        <translation>pas de la fonction d'interférence selon a*, b*, c* au dernier calcul ; chaque réflexion est étalée sur (2n+1) points au plus selon chaque axe</translation>
    </message>
    <message>
        <source>Intensity at full height</source>
        <translation>Intensité à pleine hauteur</translation>
    </message>
    <message>
        <source>I-up</source>
        <translation>I plus</translation>
    </message>
    <message>
        <source>halves the value at full height and brightness, and calculates again</source>
        <translation>divise par deux la valeur à pleine hauteur et clarté, et recalcule</translation>
    </message>
    <message>
        <source>intensity that is drawn at full height and brightness; a new one clears the pictures and acts at the next CALC</source>
        <translation>intensité dessinée à pleine hauteur et clarté ; une nouvelle efface les images et vaut au prochain calcul</translation>
    </message>
    <message>
        <source>I-dwn</source>
        <translation>I moins</translation>
    </message>
    <message>
        <source>doubles the value at full height and brightness, and calculates again</source>
        <translation>double la valeur à pleine hauteur et clarté, et recalcule</translation>
    </message>
    <message>
        <source>CALC</source>
        <translation>CALCULER</translation>
    </message>
    <message>
        <source>calculates profile and rings from the present reflection list</source>
        <translation>calcule profil et anneaux à partir de la liste des réflexions telle qu'elle est</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>clears both pictures; the next CALC takes the largest intensity as full height</source>
        <translation>efface les deux images ; le prochain calcul prend la plus grande intensité comme pleine hauteur</translation>
    </message>
    <message>
        <source>SAVE IMAGE</source>
        <translation>ENREGISTRER L'IMAGE</translation>
    </message>
    <message>
        <source>the rings as a bitmap file, ".BMP" unless the name has an ending</source>
        <translation>les anneaux en fichier bitmap, « .BMP » si le nom n'a pas d'extension</translation>
    </message>
    <message>
        <source>save to file</source>
        <translation>enregistrer</translation>
    </message>
    <message>
        <source>1001 samples of the profile as a text file, ".EDP" unless the name has an ending</source>
        <translation>1001 points du profil en fichier texte, « .EDP » si le nom n'a pas d'extension</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>imprimer</translation>
    </message>
    <message>
        <source>prints this window: printer set-up, then the page</source>
        <translation>imprime cette fenêtre : réglage de l'imprimante, puis la page</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Anneaux</translation>
    </message>
    <message>
        <source>Sqr( I )</source>
        <translation>Racine( I )</translation>
    </message>
    <message>
        <source>square roots of the intensities, which show weak rings better; acts at the next CALC</source>
        <translation>racines carrées des intensités, pour montrer les anneaux faibles ; vaut au prochain calcul</translation>
    </message>
    <message>
        <source>Center Origin</source>
        <translation>Origine au centre</translation>
    </message>
    <message>
        <source>the beam in the middle of the picture, otherwise in the lower left corner, with its red point just outside the picture; acts at the next CALC</source>
        <translation>le faisceau au milieu de l'image, sinon dans le coin inférieur gauche avec son point rouge juste hors de l'image ; vaut au prochain calcul</translation>
    </message>
    <message>
        <source>Color Inverse</source>
        <translation>Inverser les couleurs</translation>
    </message>
    <message>
        <source>dark rings on white, otherwise bright rings on black; acts at the next CALC</source>
        <translation>anneaux sombres sur blanc, sinon clairs sur noir ; vaut au prochain calcul</translation>
    </message>
    <message>
        <source>Peaks</source>
        <translation>Pics</translation>
    </message>
    <message>
        <source>maxima of at least 1 % of full height: d in angstroms, height in per cent of full height</source>
        <translation>maximums d'au moins 1 % de la pleine hauteur : d en angströms, hauteur en pour cent de la pleine hauteur</translation>
    </message>
    <message>
        <source>progress: reflections, then samples</source>
        <translation>avancement : réflexions, puis points</translation>
    </message>
    <message>
        <source>the rings; a click reads d from the distance to the beam</source>
        <translation>les anneaux ; un clic lit d par la distance au faisceau</translation>
    </message>
    <message>
        <source>d at the place of the last click on the rings, in angstroms</source>
        <translation>d à l'endroit du dernier clic sur les anneaux, en angströms</translation>
    </message>
    <message>
        <source>Fiber Texture Pattern</source>
        <translation>Cliché de texture de fibre</translation>
    </message>
    <message>
        <source>texture pattern: the beam in the centre, the fiber axis up; the right mouse button copies and exports</source>
        <translation>cliché de texture : le faisceau au centre, l'axe de fibre vers le haut ; le bouton droit copie et exporte</translation>
    </message>
    <message>
        <source>Fiber direction</source>
        <translation>Direction de la fibre</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Étalement</translation>
    </message>
    <message>
        <source>Dispersion (degree)</source>
        <translation>Dispersion (degrés)</translation>
    </message>
    <message>
        <source>width of the Gaussian by which fibers deviate from their axis, in degrees; 0 becomes 0.5</source>
        <translation>largeur de la gaussienne dont les fibres s'écartent de leur axe, en degrés ; 0 devient 0.5</translation>
    </message>
    <message>
        <source>sort the reflections by intensity and draw the pattern</source>
        <translation>trie les réflexions par intensité et dessine le cliché</translation>
    </message>
    <message>
        <source>area(A-1)</source>
        <translation>largeur (A-1)</translation>
    </message>
    <message>
        <source>width of the picture in the unit of 1/d, inverse angstroms</source>
        <translation>largeur de l'image dans l'unité de 1/d, angströms inverses</translation>
    </message>
    <message>
        <source>Zoom Up</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>enlarge: the width shrinks by 1.4142 and is rounded to three decimals</source>
        <translation>agrandit : la largeur est divisée par 1.4142 et arrondie à trois décimales</translation>
    </message>
    <message>
        <source>Zoom Dwn</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>show more: the width grows by 1.4142 and is rounded to three decimals</source>
        <translation>montre plus : la largeur est multipliée par 1.4142 et arrondie à trois décimales</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>exponent</source>
        <translation>exposant</translation>
    </message>
    <message>
        <source>intensities are divided by the strongest one to this power: below 1 darkens the arcs; empty: 1</source>
        <translation>les intensités sont divisées par la plus forte puis portées à cette puissance : au-dessous de 1 les arcs foncent ; vide : 1</translation>
    </message>
    <message>
        <source>write h k l of each reflection, at the next drawing</source>
        <translation>écrit h k l de chaque réflexion, au prochain dessin</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>choose a printer and print this window</source>
        <translation>choisit une imprimante et imprime cette fenêtre</translation>
    </message>
    <message>
        <source>close</source>
        <translation>fermer</translation>
    </message>
    <message>
        <source>Pattern Save</source>
        <translation>Enregistrer le cliché</translation>
    </message>
    <message>
        <source>write the picture as a bitmap; .bmp is added to the name</source>
        <translation>écrit l'image en bitmap ; .bmp est ajouté au nom</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Taille de police</translation>
    </message>
    <message>
        <source>size of the indices in points</source>
        <translation>taille des indices en points</translation>
    </message>
    <message>
        <source>Rotation Angle Pitch</source>
        <translation>Pas de rotation</translation>
    </message>
    <message>
        <source>step of the rotation buttons in degrees</source>
        <translation>pas des boutons de rotation en degrés</translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation>Taille de l'image</translation>
    </message>
    <message>
        <source>width and height of the picture in twips, 15 to a pixel</source>
        <translation>largeur et hauteur de l'image en twips, 15 par pixel</translation>
    </message>
    <message>
        <source>Diffraction Size</source>
        <translation>Taille des taches</translation>
    </message>
    <message>
        <source>size of the spots in per cent; draws the spot pattern again</source>
        <translation>taille des taches en pour cent ; redessine le cliché de taches</translation>
    </message>
    <message>
        <source>Atomic Coodinates</source>
        <translation>Coordonnées atomiques</translation>
    </message>
    <message>
        <source>type a value, Enter accepts it and moves on; F2 or a double click changes the text of a cell; rows can be pasted; right button: more; site name, element as in the table of scattering factors, occupancy, fractional coordinates, B in square angstroms; the first empty site name ends the table</source>
        <translation>taper une valeur, Entrée la prend et avance ; F2 ou double clic change le texte d'une cellule ; des lignes peuvent être collées ; bouton droit : plus ; nom du site, élément comme dans la table des facteurs de diffusion, occupation, coordonnées fractionnaires, B en angströms carrés ; le premier nom vide termine la table</translation>
    </message>
    <message>
        <source>Typed so far</source>
        <translation>Déjà tapé</translation>
    </message>
    <message>
        <source>what has been typed for the current cell; Enter puts it in</source>
        <translation>ce qui a été tapé pour la cellule présente ; Entrée l'inscrit</translation>
    </message>
    <message>
        <source>delete a cell</source>
        <translation>vider la cellule</translation>
    </message>
    <message>
        <source>empty the current cell</source>
        <translation>vide la cellule présente</translation>
    </message>
    <message>
        <source>delete a row</source>
        <translation>supprimer la ligne</translation>
    </message>
    <message>
        <source>remove the current row</source>
        <translation>supprime la ligne présente</translation>
    </message>
    <message>
        <source>origin shift</source>
        <translation>origine</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>accept the table for the crystal</source>
        <translation>reprend la table dans le cristal</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>close and change nothing</source>
        <translation>ferme sans rien changer</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>JCPDS input</source>
        <translation>Saisie JCPDS</translation>
    </message>
    <message>
        <source>type a value, Enter accepts it and moves on; F2 or a double click changes the text of a cell; rows can be pasted; right button: more; relative intensity, then the indices h, k, l; the first empty intensity ends the table</source>
        <translation>taper une valeur, Entrée la prend et avance ; F2 ou double clic change le texte d'une cellule ; des lignes peuvent être collées ; bouton droit : plus ; intensité relative, puis les indices h, k, l ; la première intensité vide termine la table</translation>
    </message>
    <message>
        <source>MAIN MENU</source>
        <translation>MENU PRINCIPAL</translation>
    </message>
    <message>
        <source>New Crystal Registration or Edit Crystal Data</source>
        <translation>Nouveau cristal ou modifier un cristal</translation>
    </message>
    <message>
        <source>the crystal and its reflections</source>
        <translation>le cristal et ses réflexions</translation>
    </message>
    <message>
        <source>Calculate Kikuchi Pattern</source>
        <translation>Calculer un cliché de Kikuchi</translation>
    </message>
    <message>
        <source>simulate a Kikuchi pattern</source>
        <translation>simule un cliché de Kikuchi</translation>
    </message>
    <message>
        <source>Analyze Kikuchi Pattern (three lines)</source>
        <translation>Analyser un cliché de Kikuchi (trois lignes)</translation>
    </message>
    <message>
        <source>index a measured Kikuchi pattern</source>
        <translation>indexe un cliché de Kikuchi mesuré</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>end the program</source>
        <translation>quitte le programme</translation>
    </message>
    <message>
        <source>Utility</source>
        <translation>Utilitaires</translation>
    </message>
    <message>
        <source>CELL CONSTANTS</source>
        <translation>PARAMÈTRES DE MAILLE</translation>
    </message>
    <message>
        <source>alpha</source>
        <translation>alpha</translation>
    </message>
    <message>
        <source>beta</source>
        <translation>bêta</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>Space group</source>
        <translation>Groupe d'espace</translation>
    </message>
    <message>
        <source>space group number, 1 to 230; 231 to 250 are further settings; its file is read at each key</source>
        <translation>numéro du groupe d'espace, 1 à 230 ; 231 à 250 sont d'autres choix d'axes ; son fichier est lu à chaque touche</translation>
    </message>
    <message>
        <source>symbol of the space group</source>
        <translation>symbole du groupe d'espace</translation>
    </message>
    <message>
        <source>crystal system</source>
        <translation>système cristallin</translation>
    </message>
    <message>
        <source>axis change</source>
        <translation>axes</translation>
    </message>
    <message>
        <source>changes the operators of the space group to another choice of axes</source>
        <translation>tourne les opérateurs du groupe d'espace vers un autre choix d'axes</translation>
    </message>
    <message>
        <source>All groups</source>
        <translation>Tous les groupes</translation>
    </message>
    <message>
        <source>all space groups; a click chooses one</source>
        <translation>tous les groupes d'espace ; un clic en prend un</translation>
    </message>
    <message>
        <source>Reciprocal cell</source>
        <translation>Maille réciproque</translation>
    </message>
    <message>
        <source>cell volume in cubic angstroms</source>
        <translation>volume de la maille en angströms cubes</translation>
    </message>
    <message>
        <source>Radiation</source>
        <translation>Rayonnement</translation>
    </message>
    <message>
        <source>X-ray</source>
        <translation>Rayons X</translation>
    </message>
    <message>
        <source>X-ray scattering factors and intensities</source>
        <translation>facteurs de diffusion et intensités des rayons X</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Électrons</translation>
    </message>
    <message>
        <source>electron scattering factors and intensities</source>
        <translation>facteurs de diffusion et intensités des électrons</translation>
    </message>
    <message>
        <source>Acc. Vol.(kV)</source>
        <translation>Tension (kV)</translation>
    </message>
    <message>
        <source>X-ray source, or acceleration voltage in kV; sets the wavelength</source>
        <translation>tube à rayons X ou tension d'accélération en kV ; fixe la longueur d'onde</translation>
    </message>
    <message>
        <source>Wave Length(A)</source>
        <translation>Long. d'onde (A)</translation>
    </message>
    <message>
        <source>wavelength in angstroms; you may type another one</source>
        <translation>longueur d'onde en angströms ; peut être remplacée</translation>
    </message>
    <message>
        <source>Atoms</source>
        <translation>Atomes</translation>
    </message>
    <message>
        <source>Atomic Coordinates</source>
        <translation>Coordonnées atomiques</translation>
    </message>
    <message>
        <source>enter the atom sites in a table</source>
        <translation>saisir les sites des atomes dans une table</translation>
    </message>
    <message>
        <source>JCPDS reflections</source>
        <translation>Réflexions JCPDS</translation>
    </message>
    <message>
        <source>enter observed powder reflections in place of atoms</source>
        <translation>saisir des réflexions de poudre observées au lieu des atomes</translation>
    </message>
    <message>
        <source>No. of ref.</source>
        <translation>Réflexions</translation>
    </message>
    <message>
        <source>number of observed powder reflections</source>
        <translation>nombre de réflexions de poudre observées</translation>
    </message>
    <message>
        <source>No. of atom</source>
        <translation>Atomes</translation>
    </message>
    <message>
        <source>number of atom sites</source>
        <translation>nombre de sites</translation>
    </message>
    <message>
        <source>atoms of the unit cell: number, label, element, occupancy, x, y, z, B in square angstroms</source>
        <translation>atomes de la maille : numéro, nom, élément, occupation, x, y, z, B en angströms carrés</translation>
    </message>
    <message>
        <source>No. of atom in a cell</source>
        <translation>Atomes dans la maille</translation>
    </message>
    <message>
        <source>atoms in the unit cell, and the sum of their occupancies</source>
        <translation>atomes dans la maille, et somme de leurs occupations</translation>
    </message>
    <message>
        <source>print to file</source>
        <translation>dans un fichier</translation>
    </message>
    <message>
        <source>write the atoms of the cell to a file</source>
        <translation>écrit les atomes de la maille dans un fichier</translation>
    </message>
    <message>
        <source>Print out</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>print the atoms of the cell</source>
        <translation>imprime les atomes de la maille</translation>
    </message>
    <message>
        <source>Reflections</source>
        <translation>Réflexions</translation>
    </message>
    <message>
        <source>Dmin(A)</source>
        <translation>Dmin (A)</translation>
    </message>
    <message>
        <source>smallest d-spacing of the list in angstroms</source>
        <translation>plus petite distance réticulaire de la liste, en angströms</translation>
    </message>
    <message>
        <source>-H calc</source>
        <translation>avec -H</translation>
    </message>
    <message>
        <source>include negative h</source>
        <translation>inclure h négatifs</translation>
    </message>
    <message>
        <source>-K calc</source>
        <translation>avec -K</translation>
    </message>
    <message>
        <source>include negative k</source>
        <translation>inclure k négatifs</translation>
    </message>
    <message>
        <source>-L calc</source>
        <translation>avec -L</translation>
    </message>
    <message>
        <source>include negative l</source>
        <translation>inclure l négatifs</translation>
    </message>
    <message>
        <source>compute the reflection list</source>
        <translation>calcule la liste des réflexions</translation>
    </message>
    <message>
        <source>k/2 = sin(theta)/lambda in inverse angstroms, d in angstroms, 2-theta in degrees, structure factor A + iB, its modulus F, intensity</source>
        <translation>k/2 = sin(thêta)/lambda en angströms inverses, d en angströms, 2-thêta en degrés, facteur de structure A + iB, son module F, intensité</translation>
    </message>
    <message>
        <source>number of reflections</source>
        <translation>nombre de réflexions</translation>
    </message>
    <message>
        <source>write h, k, l, k/2, A, B to a file</source>
        <translation>écrit h, k, l, k/2, A, B dans un fichier</translation>
    </message>
    <message>
        <source>print h, k, l, k/2, A, B</source>
        <translation>imprime h, k, l, k/2, A, B</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Clichés</translation>
    </message>
    <message>
        <source>Powder XRD Pattern</source>
        <translation>Poudre, rayons X</translation>
    </message>
    <message>
        <source>simulated X-ray powder diagram</source>
        <translation>diagramme de poudre simulé, rayons X</translation>
    </message>
    <message>
        <source>Electron Debye-ring</source>
        <translation>Anneaux, électrons</translation>
    </message>
    <message>
        <source>simulated electron ring pattern</source>
        <translation>anneaux simulés de diffraction d'électrons</translation>
    </message>
    <message>
        <source>Single Crystal</source>
        <translation>Monocristal</translation>
    </message>
    <message>
        <source>electron spot pattern of one crystal</source>
        <translation>cliché de taches d'un cristal, électrons</translation>
    </message>
    <message>
        <source>Fiber Pattern</source>
        <translation>Fibre</translation>
    </message>
    <message>
        <source>electron pattern of a fiber texture</source>
        <translation>cliché d'électrons d'une texture de fibre</translation>
    </message>
    <message>
        <source>KP CALC</source>
        <translation>KIKUCHI</translation>
    </message>
    <message>
        <source>simulated Kikuchi pattern</source>
        <translation>cliché de Kikuchi simulé</translation>
    </message>
    <message>
        <source>KP ANALYSIS(A)</source>
        <translation>ANALYSE KIKUCHI</translation>
    </message>
    <message>
        <source>distances between atoms</source>
        <translation>distances entre atomes</translation>
    </message>
    <message>
        <source>Crystal file</source>
        <translation>Fichier du cristal</translation>
    </message>
    <message>
        <source>path of the crystal file</source>
        <translation>chemin du fichier du cristal</translation>
    </message>
    <message>
        <source>Crystal_Data</source>
        <translation>Données_cristal</translation>
    </message>
    <message>
        <source>OPTION</source>
        <translation>OPTION</translation>
    </message>
    <message>
        <source>LOAD</source>
        <translation>CHARGER</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>ENREGISTRER</translation>
    </message>
    <message>
        <source>Import from icsd.txt</source>
        <translation>Importer de icsd.txt</translation>
    </message>
    <message>
        <source>Open structure file...</source>
        <translation>Ouvrir un fichier de structure...</translation>
    </message>
    <message>
        <source>Opens a structure file of any kind: CIF, SHELX, POSCAR, crystal file</source>
        <translation>Ouvre un fichier de structure de tout genre : CIF, SHELX, POSCAR, fichier de cristal</translation>
    </message>
    <message>
        <source>Save as CIF...</source>
        <translation>Enregistrer en CIF...</translation>
    </message>
    <message>
        <source>Writes the crystal as a crystallographic information file for other programs</source>
        <translation>Écrit le cristal en fichier CIF pour d'autres programmes</translation>
    </message>
    <message>
        <source>Import from CIF</source>
        <translation>Importer de CIF</translation>
    </message>
    <message>
        <source>END</source>
        <translation>FIN</translation>
    </message>
    <message>
        <source>REF SELECT FOR SHEET SILICATES</source>
        <translation>CHOIX DES RÉFLEXIONS POUR PHYLLOSILICATES</translation>
    </message>
    <message>
        <source>KIKUCHI PATTERN ANALYSIS</source>
        <translation>ANALYSE DE CLICHÉS DE KIKUCHI</translation>
    </message>
    <message>
        <source>press at one end of a line, drag to the other; once all lines are drawn, the nearest end moves</source>
        <translation>presser à un bout d'une ligne, tirer jusqu'à l'autre ; quand toutes sont là, le bout le plus proche suit</translation>
    </message>
    <message>
        <source>remove all lines</source>
        <translation>enlève toutes les lignes</translation>
    </message>
    <message>
        <source>Redraw</source>
        <translation>Redessiner</translation>
    </message>
    <message>
        <source>draw the finished lines again</source>
        <translation>redessine les lignes finies</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>draw a grid of 64 picture units</source>
        <translation>dessine une grille de 64 unités d'image</translation>
    </message>
    <message>
        <source>CORRECTOR</source>
        <translation>CORRECTEUR</translation>
    </message>
    <message>
        <source>shift the rows of the picture by the numbers in the corrector file</source>
        <translation>décale les lignes de l'image comme le dit le fichier de correction</translation>
    </message>
    <message>
        <source>progress of corrector and search</source>
        <translation>avancement du correcteur et de la recherche</translation>
    </message>
    <message>
        <source>Crystal</source>
        <translation>Cristal</translation>
    </message>
    <message>
        <source>CRYSTAL SELECT</source>
        <translation>CHOISIR LE CRISTAL</translation>
    </message>
    <message>
        <source>load a crystal file and rebuild the triple table</source>
        <translation>charge un fichier de cristal et refait la table des triplets</translation>
    </message>
    <message>
        <source>title of the crystal file</source>
        <translation>titre du fichier de cristal</translation>
    </message>
    <message>
        <source>number of the strongest reflections in the triple table, extended over equal intensities; its memory grows with the third power</source>
        <translation>nombre des plus fortes réflexions dans la table des triplets, étendu aux intensités égales ; sa mémoire croît avec le cube</translation>
    </message>
    <message>
        <source>used</source>
        <translation>utilisées</translation>
    </message>
    <message>
        <source>reflections in the triple table</source>
        <translation>réflexions dans la table des triplets</translation>
    </message>
    <message>
        <source>Acc. Vol (kv)</source>
        <translation>Tension (kV)</translation>
    </message>
    <message>
        <source>acceleration voltage in kV; sets the wavelength when the box is left</source>
        <translation>tension d'accélération en kV ; fixe la longueur d'onde quand on quitte le champ</translation>
    </message>
    <message>
        <source>progress of the triple table and of matching</source>
        <translation>avancement de la table des triplets et de la comparaison</translation>
    </message>
    <message>
        <source>Matching</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>Tolerance(deg.)</source>
        <translation>Tolérance (°)</translation>
    </message>
    <message>
        <source>largest deviation of an angle between two planes, degrees; azimuth differences may deviate by twice as much</source>
        <translation>plus grand écart d'un angle entre deux plans, degrés ; les différences d'azimut peuvent s'écarter du double</translation>
    </message>
    <message>
        <source>measure the lines and list the solutions</source>
        <translation>mesure les lignes et liste les solutions</translation>
    </message>
    <message>
        <source>Omit eqivalent. direction</source>
        <translation>omettre direction équivalente</translation>
    </message>
    <message>
        <source>list only the first of the solutions whose planes have the same spacings and intensities</source>
        <translation>des solutions dont les plans ont mêmes distances et intensités, ne lister que la première</translation>
    </message>
    <message>
        <source>Consider band width (6 lines required))</source>
        <translation>largeur des bandes (6 lignes requises)</translation>
    </message>
    <message>
        <source>pick both edges of each band and compare the widths too; removes all lines</source>
        <translation>poser les deux bords de chaque bande et comparer aussi les largeurs ; enlève toutes les lignes</translation>
    </message>
    <message>
        <source>Width tolerance (%)</source>
        <translation>Tolérance de largeur (%)</translation>
    </message>
    <message>
        <source>largest deviation of a band width, per cent</source>
        <translation>plus grand écart d'une largeur de bande, pour cent</translation>
    </message>
    <message>
        <source>No. of Ref.</source>
        <translation>Réflexions</translation>
    </message>
    <message>
        <source>Area (deg.)</source>
        <translation>Ouverture (°)</translation>
    </message>
    <message>
        <source>Detector Position (mm)</source>
        <translation>Position du détecteur (mm)</translation>
    </message>
    <message>
        <source>distance of the detector from the source, mm; Enter accepts it</source>
        <translation>distance du détecteur à la source, mm ; Entrée la prend</translation>
    </message>
    <message>
        <source>X-shift(deg)</source>
        <translation>Décalage X (°)</translation>
    </message>
    <message>
        <source>offset of the pattern centre to the right, degrees</source>
        <translation>décalage du centre du cliché vers la droite, degrés</translation>
    </message>
    <message>
        <source>X-shift(mm)</source>
        <translation>Décalage X (mm)</translation>
    </message>
    <message>
        <source>offset of the pattern centre to the right, mm on the detector; Enter accepts it</source>
        <translation>décalage du centre du cliché vers la droite, mm sur le détecteur ; Entrée le prend</translation>
    </message>
    <message>
        <source>Y-shift(deg)</source>
        <translation>Décalage Y (°)</translation>
    </message>
    <message>
        <source>offset of the pattern centre downward in this picture, degrees; on the detector upward if the picture was flipped</source>
        <translation>décalage du centre vers le bas dans cette image, degrés ; vers le haut sur le détecteur si l'image a été renversée</translation>
    </message>
    <message>
        <source>Y-shift(mm)</source>
        <translation>Décalage Y (mm)</translation>
    </message>
    <message>
        <source>offset of the pattern centre downward, mm on the detector; Enter accepts it</source>
        <translation>décalage du centre vers le bas, mm sur le détecteur ; Entrée le prend</translation>
    </message>
    <message>
        <source>(enter required)</source>
        <translation>(Entrée requise)</translation>
    </message>
    <message>
        <source>the boxes in mm count when Enter is pressed</source>
        <translation>les champs en mm valent quand on presse Entrée</translation>
    </message>
    <message>
        <source>WD change (mm)</source>
        <translation>Écart de WD (mm)</translation>
    </message>
    <message>
        <source>change of the working distance from that of the camera file, mm; reads the file again</source>
        <translation>écart de la distance de travail à celle du fichier de caméra, mm ; relit le fichier</translation>
    </message>
    <message>
        <source>Detector incline (deg)</source>
        <translation>Inclin. détecteur (°)</translation>
    </message>
    <message>
        <source>tilt of the detector, degrees; reads the camera file again</source>
        <translation>inclinaison du détecteur, degrés ; relit le fichier de caméra</translation>
    </message>
    <message>
        <source>calibration of the camera on a pattern of Si(001)</source>
        <translation>étalonnage de la caméra sur un cliché de Si(001)</translation>
    </message>
    <message>
        <source>Si(001) marker</source>
        <translation>Repère Si(001)</translation>
    </message>
    <message>
        <source>clicks set the marker on the &lt;001&gt; pole</source>
        <translation>les clics posent le repère sur le pôle &lt;001&gt;</translation>
    </message>
    <message>
        <source>clicks set the other marker on a &lt;112&gt; pole, 35.264 degrees off</source>
        <translation>les clics posent l'autre repère sur un pôle &lt;112&gt;, à 35.264 degrés</translation>
    </message>
    <message>
        <source>clicks set the other marker on a &lt;111&gt; pole, 54.735 degrees off</source>
        <translation>les clics posent l'autre repère sur un pôle &lt;111&gt;, à 54.735 degrés</translation>
    </message>
    <message>
        <source>move the marker left by 0.5</source>
        <translation>déplace le repère de 0.5 vers la gauche</translation>
    </message>
    <message>
        <source>move the marker right by 0.5</source>
        <translation>déplace le repère de 0.5 vers la droite</translation>
    </message>
    <message>
        <source>move the marker up by 0.5</source>
        <translation>déplace le repère de 0.5 vers le haut</translation>
    </message>
    <message>
        <source>move the marker down by 0.5</source>
        <translation>déplace le repère de 0.5 vers le bas</translation>
    </message>
    <message>
        <source>acquisition angle and shifts from the two markers</source>
        <translation>angle d'acquisition et décalages d'après les deux repères</translation>
    </message>
    <message>
        <source>Area step</source>
        <translation>Pas ouverture</translation>
    </message>
    <message>
        <source>step of the acquisition angle, degrees</source>
        <translation>pas de l'angle d'acquisition, degrés</translation>
    </message>
    <message>
        <source>less acquisition angle by one step, then CALC</source>
        <translation>angle d'acquisition diminué d'un pas, puis calcul</translation>
    </message>
    <message>
        <source>more acquisition angle by one step, then CALC</source>
        <translation>angle d'acquisition augmenté d'un pas, puis calcul</translation>
    </message>
    <message>
        <source>X step</source>
        <translation>Pas X</translation>
    </message>
    <message>
        <source>step of the x shift, degrees</source>
        <translation>pas du décalage x, degrés</translation>
    </message>
    <message>
        <source>less x shift by one step, then CALC</source>
        <translation>décalage x diminué d'un pas, puis calcul</translation>
    </message>
    <message>
        <source>more x shift by one step, then CALC</source>
        <translation>décalage x augmenté d'un pas, puis calcul</translation>
    </message>
    <message>
        <source>Y step</source>
        <translation>Pas Y</translation>
    </message>
    <message>
        <source>step of the y shift, degrees</source>
        <translation>pas du décalage y, degrés</translation>
    </message>
    <message>
        <source>less y shift by one step, then CALC</source>
        <translation>décalage y diminué d'un pas, puis calcul</translation>
    </message>
    <message>
        <source>more y shift by one step, then CALC</source>
        <translation>décalage y augmenté d'un pas, puis calcul</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>Solution</translation>
    </message>
    <message>
        <source>number of the solution that the parameters are adjusted for</source>
        <translation>numéro de la solution pour laquelle les paramètres sont ajustés</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>steps to each side in the search</source>
        <translation>pas de chaque côté dans la recherche</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>measure over a grid of parameters around the present ones</source>
        <translation>mesure sur une grille de paramètres autour des présents</translation>
    </message>
    <message>
        <source>Bands and solutions</source>
        <translation>Bandes et solutions</translation>
    </message>
    <message>
        <source>No   h   k   l   h   k   l   h   k   l      u      v      w  d12  d23  d31</source>
        <translation>No   h   k   l   h   k   l   h   k   l      u      v      w  d12  d23  d31</translation>
    </message>
    <message>
        <source>solutions: indices of the three bands, direction towards the screen, deviations of the angles in degrees, of the widths in per cent; a click shows it in the simulation</source>
        <translation>solutions : indices des trois bandes, direction vers l'écran, écarts des angles en degrés, des largeurs en pour cent ; un clic la montre dans la simulation</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Camera_Parameters_Set</source>
        <translation>Régler_la_caméra</translation>
    </message>
    <message>
        <source>load a picture (BMP, PNG, JPEG, TIFF) as the measured pattern</source>
        <translation>prend une image (BMP, PNG, JPEG, TIFF) comme cliché mesuré</translation>
    </message>
    <message>
        <source>write the picture with its lines as a bitmap</source>
        <translation>écrit l'image avec ses lignes en bitmap</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>EFFACER</translation>
    </message>
    <message>
        <source>remove the picture</source>
        <translation>enlève l'image</translation>
    </message>
    <message>
        <source>FLIP</source>
        <translation>RENVERSER</translation>
    </message>
    <message>
        <source>turn the picture upside down: for patterns recorded as seen from behind the screen</source>
        <translation>renverse l'image : pour des clichés vus de derrière l'écran</translation>
    </message>
    <message>
        <source>MIRROR</source>
        <translation>MIROIR</translation>
    </message>
    <message>
        <source>turn the picture left to right</source>
        <translation>échange la gauche et la droite de l'image</translation>
    </message>
    <message>
        <source>Matching Method</source>
        <translation>Méthode de comparaison</translation>
    </message>
    <message>
        <source>0: angles and sense of rotation must fit; 1: only angles</source>
        <translation>0 : angles et sens de rotation doivent convenir ; 1 : les angles seuls</translation>
    </message>
    <message>
        <source>Correct File</source>
        <translation>Fichier de correction</translation>
    </message>
    <message>
        <source>file with the shift of each picture row</source>
        <translation>fichier du décalage de chaque ligne de l'image</translation>
    </message>
    <message>
        <source>Automatic indexing</source>
        <translation>Indexation automatique</translation>
    </message>
    <message>
        <source>finds bands, orientation and indices without picked lines</source>
        <translation>trouve bandes, orientation et indices sans lignes posées</translation>
    </message>
    <message>
        <source>calibrate the camera on two poles of a Si(001) pattern</source>
        <translation>étalonne la caméra sur deux pôles d'un cliché de Si(001)</translation>
    </message>
    <message>
        <source>Parameter_Adjust</source>
        <translation>Ajuster_les_paramètres</translation>
    </message>
    <message>
        <source>adjust the detector parameters for one solution</source>
        <translation>ajuste les paramètres du détecteur pour une solution</translation>
    </message>
    <message>
        <source>Center Position</source>
        <translation>Centre du cliché</translation>
    </message>
    <message>
        <source>the next click on the picture sets the pattern centre</source>
        <translation>le prochain clic sur l'image pose le centre du cliché</translation>
    </message>
    <message>
        <source>ED PATTERN</source>
        <translation>DIFFRACTION D'ÉLECTRONS</translation>
    </message>
    <message>
        <source>spot pattern: the beam in the centre, darkness by intensity; the right mouse button copies and exports</source>
        <translation>cliché de taches : le faisceau au centre, noirceur selon l'intensité ; le bouton droit copie et exporte</translation>
    </message>
    <message>
        <source>Zone axis</source>
        <translation>Axe de zone</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Laue level N: reflections with h u + k v + l w = N are shown</source>
        <translation>zone de Laue N : les réflexions avec h u + k v + l w = N sont montrées</translation>
    </message>
    <message>
        <source>next Laue level</source>
        <translation>zone de Laue suivante</translation>
    </message>
    <message>
        <source>Laue level before</source>
        <translation>zone de Laue précédente</translation>
    </message>
    <message>
        <source>draw the pattern</source>
        <translation>dessine le cliché</translation>
    </message>
    <message>
        <source>width of the picture in the unit of 1/(2d), inverse angstroms</source>
        <translation>largeur de l'image dans l'unité de 1/(2d), angströms inverses</translation>
    </message>
    <message>
        <source>Grey scale</source>
        <translation>Échelle de gris</translation>
    </message>
    <message>
        <source>darkness follows the intensity</source>
        <translation>la noirceur suit l'intensité</translation>
    </message>
    <message>
        <source>darkness follows the square root of the intensity, which shows weak spots better</source>
        <translation>la noirceur suit la racine de l'intensité, ce qui montre les taches faibles</translation>
    </message>
    <message>
        <source>Frame1</source>
        <translation>Noirceur</translation>
    </message>
    <message>
        <source>another power of the intensity</source>
        <translation>une autre puissance de l'intensité</translation>
    </message>
    <message>
        <source>darkness follows the intensity to this power; empty: as chosen above</source>
        <translation>la noirceur suit cette puissance de l'intensité ; vide : comme choisi ci-dessus</translation>
    </message>
    <message>
        <source>UP</source>
        <translation>PLUS</translation>
    </message>
    <message>
        <source>all spots darker: half the intensity becomes black</source>
        <translation>toutes les taches plus sombres : la moitié de l'intensité devient noire</translation>
    </message>
    <message>
        <source>DWN</source>
        <translation>MOINS</translation>
    </message>
    <message>
        <source>all spots lighter: twice the intensity becomes black</source>
        <translation>toutes les taches plus claires : le double de l'intensité devient noir</translation>
    </message>
    <message>
        <source>write h k l at each spot, at the next drawing</source>
        <translation>écrit h k l à chaque tache, au prochain dessin</translation>
    </message>
    <message>
        <source>PATTERN SAVE</source>
        <translation>ENREGISTRER LE CLICHÉ</translation>
    </message>
    <message>
        <source>Diffraction spot size</source>
        <translation>Taille des taches</translation>
    </message>
    <message>
        <source>radius of the direct beam in per cent of half the picture; a spot has half of it</source>
        <translation>rayon du faisceau direct en pour cent de la demi-image ; une tache en a la moitié</translation>
    </message>
    <message>
        <source>Rotation angle pitch</source>
        <translation>Pas de rotation</translation>
    </message>
    <message>
        <source>KIKUCHI PATTERN</source>
        <translation>CLICHÉ DE KIKUCHI</translation>
    </message>
    <message>
        <source>a click finds the axis there, a double click draws its pattern</source>
        <translation>un clic trouve l'axe à cet endroit, un double clic dessine son cliché</translation>
    </message>
    <message>
        <source>draw the pattern of this axis</source>
        <translation>dessine le cliché de cet axe</translation>
    </message>
    <message>
        <source>component u of the axis that was found, not yet in the pattern</source>
        <translation>composante u de l'axe trouvé, pas encore dans le cliché</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>draw the pattern of the axis that was found</source>
        <translation>dessine le cliché de l'axe trouvé</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>rotation</translation>
    </message>
    <message>
        <source>rotation of the pattern at the next transfer, degrees</source>
        <translation>rotation du cliché à la prochaine reprise, degrés</translation>
    </message>
    <message>
        <source>°   reference</source>
        <translation>°   référence</translation>
    </message>
    <message>
        <source>reference reflection of the new axis</source>
        <translation>réflexion de référence du nouvel axe</translation>
    </message>
    <message>
        <source>Walk</source>
        <translation>Marche</translation>
    </message>
    <message>
        <source>narrow the picture by the zoom increment</source>
        <translation>resserre l'image d'un pas de zoom</translation>
    </message>
    <message>
        <source>widen the picture by the zoom increment</source>
        <translation>élargit l'image d'un pas de zoom</translation>
    </message>
    <message>
        <source>area(deg.)</source>
        <translation>ouverture (°)</translation>
    </message>
    <message>
        <source>half width of the picture in degrees, at most 85 with the shifts</source>
        <translation>demi-largeur de l'image en degrés, 85 au plus avec les décalages</translation>
    </message>
    <message>
        <source>acceleration voltage in kV; leaving the box sets the wavelength</source>
        <translation>tension d'accélération en kV ; quitter le champ fixe la longueur d'onde</translation>
    </message>
    <message>
        <source>Number of band</source>
        <translation>Nombre de bandes</translation>
    </message>
    <message>
        <source>how many of the strongest reflections are drawn; 0 or empty for all</source>
        <translation>combien des plus fortes réflexions sont dessinées ; 0 ou vide pour toutes</translation>
    </message>
    <message>
        <source>Intensity Min. (0-255)</source>
        <translation>Gris minimal (0-255)</translation>
    </message>
    <message>
        <source>lowest grey level that is drawn, 0 to 255</source>
        <translation>plus bas niveau de gris dessiné, 0 à 255</translation>
    </message>
    <message>
        <source>Radius (deg.)</source>
        <translation>Rayon (°)</translation>
    </message>
    <message>
        <source>angle of a circle around the centre, degrees; empty for none</source>
        <translation>angle d'un cercle autour du centre, degrés ; vide : aucun</translation>
    </message>
    <message>
        <source>switch the grid of eight by eight on or off and draw</source>
        <translation>met ou enlève la grille de huit sur huit et dessine</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>grid over the picture at the next drawing</source>
        <translation>grille sur l'image au prochain dessin</translation>
    </message>
    <message>
        <source>Zone Axis Map</source>
        <translation>Carte des axes de zone</translation>
    </message>
    <message>
        <source>show the map of zone axes at each drawing</source>
        <translation>montre la carte des axes de zone à chaque dessin</translation>
    </message>
    <message>
        <source>Express as Line</source>
        <translation>En lignes</translation>
    </message>
    <message>
        <source>draw the traces of the planes in place of the lines at the Bragg angle</source>
        <translation>dessine les traces des plans au lieu des lignes à l'angle de Bragg</translation>
    </message>
    <message>
        <source>Intensity Fix</source>
        <translation>Intensité fixe</translation>
    </message>
    <message>
        <source>keep the grey scale from drawing to drawing</source>
        <translation>garde l'échelle de gris d'un dessin à l'autre</translation>
    </message>
    <message>
        <source>blue disc at the centre</source>
        <translation>disque bleu au centre</translation>
    </message>
    <message>
        <source>Nomal Position</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>blue disc at the substrate normal</source>
        <translation>disque bleu à la normale du substrat</translation>
    </message>
    <message>
        <source>grey level by the intensity</source>
        <translation>niveau de gris selon l'intensité</translation>
    </message>
    <message>
        <source>grey level by the root of the intensity</source>
        <translation>niveau de gris selon la racine de l'intensité</translation>
    </message>
    <message>
        <source>CONTRAST</source>
        <translation>CONTRASTE</translation>
    </message>
    <message>
        <source>grey scale of the lines</source>
        <translation>échelle de gris des lignes</translation>
    </message>
    <message>
        <source>exponent of the grey scale; used in place of I and Sqr( I ) when not empty</source>
        <translation>exposant de l'échelle de gris ; prime sur I et Racine( I ) s'il n'est pas vide</translation>
    </message>
    <message>
        <source>darker lines: fixes the grey scale and divides it by the root of 2</source>
        <translation>lignes plus sombres : fixe l'échelle de gris et la divise par la racine de 2</translation>
    </message>
    <message>
        <source>DOWN</source>
        <translation>MOINS</translation>
    </message>
    <message>
        <source>lighter lines</source>
        <translation>lignes plus claires</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Marques</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Montrer</translation>
    </message>
    <message>
        <source>draw the line of this reflection in red</source>
        <translation>dessine en rouge la ligne de cette réflexion</translation>
    </message>
    <message>
        <source>azimuth</source>
        <translation>azimut</translation>
    </message>
    <message>
        <source>azimuth of a direction, degrees</source>
        <translation>azimut d'une direction, degrés</translation>
    </message>
    <message>
        <source>° latitude</source>
        <translation>° latitude</translation>
    </message>
    <message>
        <source>latitude of a direction above the plane of the picture, degrees; 90 is the centre</source>
        <translation>latitude d'une direction au-dessus du plan de l'image, degrés ; 90 est le centre</translation>
    </message>
    <message>
        <source>plot</source>
        <translation>placer</translation>
    </message>
    <message>
        <source>mark the direction and find its axis</source>
        <translation>marque la direction et trouve son axe</translation>
    </message>
    <message>
        <source>Bands: number, h, k, l, latitude, azimuth, grey level</source>
        <translation>Bandes : numéro, h, k, l, latitude, azimut, niveau de gris</translation>
    </message>
    <message>
        <source>bands in the picture: number, h, k, l, latitude and azimuth in degrees, grey level; a click marks one in red</source>
        <translation>bandes de l'image : numéro, h, k, l, latitude et azimut en degrés, niveau de gris ; un clic en marque une en rouge</translation>
    </message>
    <message>
        <source>Crystal Select</source>
        <translation>Choisir le cristal</translation>
    </message>
    <message>
        <source>load a crystal file</source>
        <translation>charge un fichier de cristal</translation>
    </message>
    <message>
        <source>crystal file</source>
        <translation>fichier de cristal</translation>
    </message>
    <message>
        <source>print the window of the spot pattern</source>
        <translation>imprime la fenêtre du cliché de taches</translation>
    </message>
    <message>
        <source>Bands as a picture</source>
        <translation>Bandes en image</translation>
    </message>
    <message>
        <source>soft bands of the crystal in grey, as a detector shows them</source>
        <translation>bandes douces du cristal en gris, comme un détecteur les montre</translation>
    </message>
    <message>
        <source>Image size</source>
        <translation>Taille de l'image</translation>
    </message>
    <message>
        <source>Superpose</source>
        <translation>Superposer</translation>
    </message>
    <message>
        <source>Sfhift angle pitch</source>
        <translation>Pas de déplacement</translation>
    </message>
    <message>
        <source>Zoom pitch</source>
        <translation>Pas de zoom</translation>
    </message>
    <message>
        <source>Deternmination of direction from two SEM photographs with different rotations.</source>
        <translation>Direction d'après deux clichés MEB de rotations différentes.</translation>
    </message>
    <message>
        <source>from two azimuths</source>
        <translation>par deux azimuts</translation>
    </message>
    <message>
        <source>phi-1(deg.)</source>
        <translation>phi-1 (°)</translation>
    </message>
    <message>
        <source>apparent azimuth of the line in the first photograph, degrees; folded into -90 to 90 at Calc.</source>
        <translation>azimut apparent de la ligne sur le premier cliché, degrés ; ramené entre -90 et 90 au calcul</translation>
    </message>
    <message>
        <source>rotate-1(deg.)</source>
        <translation>rotation-1 (°)</translation>
    </message>
    <message>
        <source>rotation of the specimen about x in the first photograph, degrees</source>
        <translation>rotation de l'échantillon autour de x sur le premier cliché, degrés</translation>
    </message>
    <message>
        <source>phi-2(deg.)</source>
        <translation>phi-2 (°)</translation>
    </message>
    <message>
        <source>apparent azimuth of the line in the second photograph, degrees; folded into -90 to 90 at Calc.</source>
        <translation>azimut apparent de la ligne sur le second cliché, degrés ; ramené entre -90 et 90 au calcul</translation>
    </message>
    <message>
        <source>rotation of the specimen about x in the second photograph, degrees; Enter calculates</source>
        <translation>rotation de l'échantillon autour de x sur le second cliché, degrés ; Entrée calcule</translation>
    </message>
    <message>
        <source>Calc.</source>
        <translation>Calculer</translation>
    </message>
    <message>
        <source>search the direction that shows these azimuths</source>
        <translation>cherche la direction qui montre ces azimuts</translation>
    </message>
    <message>
        <source>azimuth of the direction on the unrotated specimen, degrees</source>
        <translation>azimut de la direction sur l'échantillon non tourné, degrés</translation>
    </message>
    <message>
        <source>angle of the direction above the plane of the unrotated photograph, degrees</source>
        <translation>angle de la direction au-dessus du plan du cliché non tourné, degrés</translation>
    </message>
    <message>
        <source>azimuth that the direction found shows in the first photograph, degrees; compare with phi-1</source>
        <translation>azimut que la direction trouvée montre sur le premier cliché, degrés ; à comparer à phi-1</translation>
    </message>
    <message>
        <source>azimuth that the direction found shows in the second photograph, degrees; compare with phi-2</source>
        <translation>azimut que la direction trouvée montre sur le second cliché, degrés ; à comparer à phi-2</translation>
    </message>
    <message>
        <source>from two lengths</source>
        <translation>par deux longueurs</translation>
    </message>
    <message>
        <source>length_1</source>
        <translation>longueur_1</translation>
    </message>
    <message>
        <source>length of the line in the first photograph, in any unit</source>
        <translation>longueur de la ligne sur le premier cliché, dans une unité quelconque</translation>
    </message>
    <message>
        <source>rotation of the specimen in the first photograph, degrees; shared with the block of azimuths</source>
        <translation>rotation de l'échantillon sur le premier cliché, degrés ; commune avec le bloc des azimuts</translation>
    </message>
    <message>
        <source>length_2</source>
        <translation>longueur_2</translation>
    </message>
    <message>
        <source>length of the line in the second photograph, in the same unit</source>
        <translation>longueur de la ligne sur le second cliché, dans la même unité</translation>
    </message>
    <message>
        <source>rotation of the specimen in the second photograph, degrees; shared with the block of azimuths; Enter calculates</source>
        <translation>rotation de l'échantillon sur le second cliché, degrés ; commune avec le bloc des azimuts ; Entrée calcule</translation>
    </message>
    <message>
        <source>find the angle whose cosines have the ratio of the lengths</source>
        <translation>trouve l'angle dont les cosinus sont dans le rapport des longueurs</translation>
    </message>
    <message>
        <source>half plane of the direction: 90 or -90 degrees</source>
        <translation>demi-plan de la direction : 90 ou -90 degrés</translation>
    </message>
    <message>
        <source>angle of the direction in that half plane, degrees</source>
        <translation>angle de la direction dans ce demi-plan, degrés</translation>
    </message>
    <message>
        <source>Inverse Matrix Calculation</source>
        <translation>Matrice inverse</translation>
    </message>
    <message>
        <source>the inverse matrix is on the right</source>
        <translation>la matrice inverse est à droite</translation>
    </message>
    <message>
        <source>invert the matrix on the left</source>
        <translation>inverse la matrice de gauche</translation>
    </message>
    <message>
        <source>Equivalent vector</source>
        <translation>Vecteur équivalent</translation>
    </message>
    <message>
        <source>component of the direct vector along a, in units of a</source>
        <translation>composante du vecteur direct selon a, en unités de a</translation>
    </message>
    <message>
        <source>h, k, l of the reciprocal vector along u, v, w; magnitudes scaled to the sum 1000</source>
        <translation>h, k, l du vecteur réciproque selon u, v, w ; valeurs ramenées à la somme 1000</translation>
    </message>
    <message>
        <source>u, v, w of the direct vector along h, k, l; magnitudes scaled to the sum 1000</source>
        <translation>u, v, w du vecteur direct selon h, k, l ; valeurs ramenées à la somme 1000</translation>
    </message>
    <message>
        <source>Angle between two vectors</source>
        <translation>Angle entre deux vecteurs</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>genre</translation>
    </message>
    <message>
        <source>both are direct vectors, in units of a, b, c</source>
        <translation>les deux sont des vecteurs directs, en unités de a, b, c</translation>
    </message>
    <message>
        <source>both are reciprocal vectors, in units of a*, b*, c*</source>
        <translation>les deux sont des vecteurs réciproques, en unités de a*, b*, c*</translation>
    </message>
    <message>
        <source>both are planes: 180 degrees less the angle of their normals</source>
        <translation>les deux sont des plans : 180 degrés moins l'angle de leurs normales</translation>
    </message>
    <message>
        <source>vector 1</source>
        <translation>vecteur 1</translation>
    </message>
    <message>
        <source>vector 2</source>
        <translation>vecteur 2</translation>
    </message>
    <message>
        <source>Angle(deg.)</source>
        <translation>Angle (°)</translation>
    </message>
    <message>
        <source>angle between the two vectors in degrees; an obtuse angle of vectors shows less by 180, a right one may show 0 (planes: 180)</source>
        <translation>angle entre les deux vecteurs en degrés ; un angle obtus de vecteurs montre 180 de moins, un angle droit peut montrer 0 (plans : 180)</translation>
    </message>
    <message>
        <source>X-ray Powder Diffraction</source>
        <translation>Diffraction de poudre, rayons X</translation>
    </message>
    <message>
        <source>intensity over 2-theta from the left to the right end of the pattern; a click reads 2-theta, d and intensity</source>
        <translation>intensité en fonction de 2-thêta d'un bout à l'autre ; un clic lit 2-thêta, d et l'intensité</translation>
    </message>
    <message>
        <source>2-theta at the place of the last click, in degrees</source>
        <translation>2-thêta à l'endroit du dernier clic, en degrés</translation>
    </message>
    <message>
        <source>height of the curve at the last click, in per cent of the highest sample</source>
        <translation>hauteur de la courbe au dernier clic, en pour cent du point le plus haut</translation>
    </message>
    <message>
        <source>2theta.min</source>
        <translation>2thêta min</translation>
    </message>
    <message>
        <source>left end of the pattern, 2-theta in degrees</source>
        <translation>bout gauche du diagramme, 2-thêta en degrés</translation>
    </message>
    <message>
        <source>2theta.max</source>
        <translation>2thêta max</translation>
    </message>
    <message>
        <source>right end of the pattern, 2-theta in degrees; 0 becomes 60</source>
        <translation>bout droit du diagramme, 2-thêta en degrés ; 0 devient 60</translation>
    </message>
    <message>
        <source>full width of a line at half of its height, in degrees of 2-theta; 0 becomes 0.1</source>
        <translation>largeur d'une raie à mi-hauteur, en degrés de 2-thêta ; 0 devient 0.1</translation>
    </message>
    <message>
        <source>Gaussian Ratio(%)</source>
        <translation>Part de Gauss (%)</translation>
    </message>
    <message>
        <source>share of the Gaussian in a line, in per cent; the rest is a Lorentzian</source>
        <translation>part de la gaussienne dans une raie, en pour cent ; le reste est une lorentzienne</translation>
    </message>
    <message>
        <source>doubles the height of the curve: the value drawn at full height is halved</source>
        <translation>double la hauteur de la courbe : la valeur à pleine hauteur est divisée par deux</translation>
    </message>
    <message>
        <source>intensity that is drawn at full height; Enter accepts a new one</source>
        <translation>intensité dessinée à pleine hauteur ; Entrée en prend une nouvelle</translation>
    </message>
    <message>
        <source>halves the height of the curve: the value drawn at full height is doubled</source>
        <translation>divise par deux la hauteur de la courbe : la valeur à pleine hauteur est doublée</translation>
    </message>
    <message>
        <source>maxima of at least 1 % of the highest one: 2-theta in degrees, d in angstroms, height in per cent</source>
        <translation>maximums d'au moins 1 % du plus haut : 2-thêta en degrés, d en angströms, hauteur en pour cent</translation>
    </message>
    <message>
        <source>calculates the pattern from the present reflection list and draws it over the old one</source>
        <translation>calcule le diagramme d'après la liste des réflexions telle qu'elle est et le dessine sur l'ancien</translation>
    </message>
    <message>
        <source>clears the picture and the reference of the per cents</source>
        <translation>efface l'image et la référence des pour cent</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>settings and 1001 samples as a text file, ".XDP" unless the name has an ending</source>
        <translation>réglages et 1001 points en fichier texte, « .XDP » si le nom n'a pas d'extension</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Enregistrer l'image</translation>
    </message>
    <message>
        <source>the picture as a bitmap file, ".BMP" unless the name has an ending</source>
        <translation>l'image en fichier bitmap, « .BMP » si le nom n'a pas d'extension</translation>
    </message>
    <message>
        <source>Zone Axis</source>
        <translation>Axes de zone</translation>
    </message>
    <message>
        <source>map of zone axes: the circle is the equator</source>
        <translation>carte des axes de zone : le cercle est l'équateur</translation>
    </message>
    <message>
        <source>Directions on the map</source>
        <translation>Directions sur la carte</translation>
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
        <translation>Une direction</translation>
    </message>
    <message>
        <source>azimuth of the direction, degrees</source>
        <translation>azimut de la direction, degrés</translation>
    </message>
    <message>
        <source>latitude of the direction, degrees; 90 is the centre</source>
        <translation>latitude de la direction, degrés ; 90 est le centre</translation>
    </message>
    <message>
        <source>PLOT</source>
        <translation>PLACER</translation>
    </message>
    <message>
        <source>red disc at Phi, Theta</source>
        <translation>disque rouge à Phi, Thêta</translation>
    </message>
    <message>
        <source>Axes of the cell (degrees)</source>
        <translation>Axes de la maille (degrés)</translation>
    </message>
    <message>
        <source>Detecter normal</source>
        <translation>Normale du détecteur</translation>
    </message>
    <message>
        <source>the centre of the map is the screen normal</source>
        <translation>le centre de la carte est la normale de l'écran</translation>
    </message>
    <message>
        <source>Substrate normal</source>
        <translation>Normale du substrat</translation>
    </message>
    <message>
        <source>the centre of the map is the substrate normal</source>
        <translation>le centre de la carte est la normale du substrat</translation>
    </message>
    <message>
        <source>Draw the southern semisphere</source>
        <translation>Dessiner l'hémisphère sud</translation>
    </message>
    <message>
        <source>directions behind the equator in cyan</source>
        <translation>directions derrière l'équateur en cyan</translation>
    </message>
    <message>
        <source>Theta as latitude</source>
        <translation>Thêta comme latitude</translation>
    </message>
    <message>
        <source>rings at equal distances in angle</source>
        <translation>anneaux à distances angulaires égales</translation>
    </message>
    <message>
        <source>Show [uvw] on Kikuchi pattern</source>
        <translation>Montrer [uvw] sur le cliché</translation>
    </message>
    <message>
        <source>label the directions on the Kikuchi pattern</source>
        <translation>marque les directions sur le cliché de Kikuchi</translation>
    </message>
    <message>
        <source>narrow the map by 0.1</source>
        <translation>resserre la carte de 0.1</translation>
    </message>
    <message>
        <source>widen the map by 0.1</source>
        <translation>élargit la carte de 0.1</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>SAVE MAP</source>
        <translation>ENREGISTRER LA CARTE</translation>
    </message>
    <message>
        <source>Theta</source>
        <translation>Thêta</translation>
    </message>
    <message>
        <source>MINCRYST</source>
        <translation>MINCRYST</translation>
    </message>
    <message>
        <source>size of the crystallite in unit cells along %1, not 0; an empty box leaves it as it was</source>
        <translation>taille du cristallite en mailles selon %1, pas 0 ; un champ vide la laisse telle quelle</translation>
    </message>
    <message>
        <source>index %1 of the plane whose normal is the fiber axis, a whole number</source>
        <translation>indice %1 du plan dont la normale est l'axe de fibre, un entier</translation>
    </message>
    <message>
        <source>index L of the plane whose normal is the fiber axis, a whole number; Enter draws</source>
        <translation>indice L du plan dont la normale est l'axe de fibre, un entier ; Entrée dessine</translation>
    </message>
    <message>
        <source>turn back (PatternAngle falls) by %1</source>
        <translation>tourne en arrière (PatternAngle baisse) : %L1</translation>
    </message>
    <message>
        <source>turn on (PatternAngle rises) by %1</source>
        <translation>tourne en avant (PatternAngle monte) : %L1</translation>
    </message>
    <message>
        <source>turn clockwise by %1</source>
        <translation>tourne en sens horaire : %L1</translation>
    </message>
    <message>
        <source>turn anticlockwise by %1</source>
        <translation>tourne en sens antihoraire : %L1</translation>
    </message>
    <message>
        <source>five times the rotation pitch</source>
        <translation>cinq pas de rotation</translation>
    </message>
    <message>
        <source>the rotation pitch, 5 degrees unless set in the menu</source>
        <translation>un pas de rotation, 5 degrés sauf réglage au menu</translation>
    </message>
    <message>
        <source>a fifth of the rotation pitch</source>
        <translation>un cinquième de pas de rotation</translation>
    </message>
    <message>
        <source>ten times the rotation pitch</source>
        <translation>dix pas de rotation</translation>
    </message>
    <message>
        <source>the rotation pitch</source>
        <translation>un pas de rotation</translation>
    </message>
    <message>
        <source>a tenth of the rotation pitch</source>
        <translation>un dixième de pas de rotation</translation>
    </message>
    <message>
        <source>added to %1 of every atom at "OK"; empty counts as 0</source>
        <translation>ajouté au %1 de chaque atome avec « OK » ; vide compte pour 0</translation>
    </message>
    <message>
        <source>cell edge %1 in angstroms</source>
        <translation>arête %1 de la maille, en angströms</translation>
    </message>
    <message>
        <source>cell angle %1 in degrees</source>
        <translation>angle %1 de la maille, en degrés</translation>
    </message>
    <message>
        <source>reciprocal edge %1 in inverse angstroms</source>
        <translation>arête réciproque %1 en angströms inverses</translation>
    </message>
    <message>
        <source>reciprocal angle %1 in degrees</source>
        <translation>angle réciproque %1 en degrés</translation>
    </message>
    <message>
        <source>only this %1, when not empty</source>
        <translation>seulement ce %1, s'il n'est pas vide</translation>
    </message>
    <message>
        <source>keep only %1 = 0</source>
        <translation>ne garder que %1 = 0</translation>
    </message>
    <message>
        <source>keep only %1 not 0</source>
        <translation>ne garder que %1 non nul</translation>
    </message>
    <message>
        <source>band %1: azimuth and polar angle of its normal and the angle to the next, degrees; after a click in the list the in-plane rotation</source>
        <translation>bande %1 : azimut et angle polaire de sa normale et angle à la suivante, degrés ; après un clic dans la liste, la rotation dans le plan</translation>
    </message>
    <message>
        <source>component %1 of the zone axis, the direction of the beam, in lattice units</source>
        <translation>composante %1 de l'axe de zone, direction du faisceau, en unités du réseau</translation>
    </message>
    <message>
        <source>component w of the zone axis, the direction of the beam, in lattice units; Enter draws</source>
        <translation>composante w de l'axe de zone, direction du faisceau, en unités du réseau ; Entrée dessine</translation>
    </message>
    <message>
        <source>component %1 of the zone axis at the centre</source>
        <translation>composante %1 de l'axe de zone au centre</translation>
    </message>
    <message>
        <source>component w of the zone axis at the centre; Enter draws</source>
        <translation>composante w de l'axe de zone au centre ; Entrée dessine</translation>
    </message>
    <message>
        <source>component %1 of the axis that was found</source>
        <translation>composante %1 de l'axe trouvé</translation>
    </message>
    <message>
        <source>index %1 of the plane normal to that axis, per cent of the sum</source>
        <translation>indice %1 du plan normal à cet axe, pour cent de la somme</translation>
    </message>
    <message>
        <source>tilt up by the shift pitch</source>
        <translation>incline d'un pas vers le haut</translation>
    </message>
    <message>
        <source>tilt down by the shift pitch</source>
        <translation>incline d'un pas vers le bas</translation>
    </message>
    <message>
        <source>tilt to the left by the shift pitch</source>
        <translation>incline d'un pas vers la gauche</translation>
    </message>
    <message>
        <source>tilt to the right by the shift pitch</source>
        <translation>incline d'un pas vers la droite</translation>
    </message>
    <message>
        <source>index %1 of a reflection to mark</source>
        <translation>indice %1 d'une réflexion à marquer</translation>
    </message>
    <message>
        <source>index l of a reflection to mark; Enter draws</source>
        <translation>indice l d'une réflexion à marquer ; Entrée dessine</translation>
    </message>
    <message>
        <source>element in row %1, column %2 of the matrix</source>
        <translation>élément de la ligne %1, colonne %2 de la matrice</translation>
    </message>
    <message>
        <source>element in row %1, column %2 of the inverse matrix</source>
        <translation>élément de la ligne %1, colonne %2 de la matrice inverse</translation>
    </message>
    <message>
        <source>component of the direct vector along %1, in units of %2</source>
        <translation>composante du vecteur direct selon %1, en unités de %2</translation>
    </message>
    <message>
        <source>component of the reciprocal vector along %1, in units of %2</source>
        <translation>composante du vecteur réciproque selon %1, en unités de %2</translation>
    </message>
    <message>
        <source>first component of vector %1: u or h</source>
        <translation>première composante du vecteur %1 : u ou h</translation>
    </message>
    <message>
        <source>second component of vector %1: v or k</source>
        <translation>deuxième composante du vecteur %1 : v ou k</translation>
    </message>
    <message>
        <source>third component of vector %1: w or l</source>
        <translation>troisième composante du vecteur %1 : w ou l</translation>
    </message>
    <message>
        <source>largest index %1; empty counts as 1</source>
        <translation>plus grand indice %1 ; vide compte pour 1</translation>
    </message>
    <message>
        <source>component %1 of a direction to look up</source>
        <translation>composante %1 d'une direction à chercher</translation>
    </message>
    <message>
        <source>component w of a direction to look up; Enter plots</source>
        <translation>composante w d'une direction à chercher ; Entrée la place</translation>
    </message>
    <message>
        <source>latitude of %1, degrees</source>
        <translation>latitude de %1, degrés</translation>
    </message>
    <message>
        <source>azimuth of %1, degrees</source>
        <translation>azimut de %1, degrés</translation>
    </message>
    <message>
        <source>Shared with other windows</source>
        <translation>Commun à d'autres fenêtres</translation>
    </message>
    <message>
        <source>%1. Do it all the same?</source>
        <translation>%L1. Le faire quand même ?</translation>
    </message>
    <message>
        <source>The program ends here. Files are as they were saved last. Correct this and start it again; see "Known behaviour" in the user guide.</source>
        <translation>Le programme s'arrête ici. Les fichiers sont tels qu'ils ont été enregistrés en dernier. Corrigez ceci et relancez-le ; voir « Known behaviour » dans le guide.</translation>
    </message>
    <message>
        <source>Your work as it was before is kept: the next start offers it.</source>
        <translation>Votre travail d'avant est gardé : le prochain démarrage le propose.</translation>
    </message>
    <message>
        <source>Nothing can be saved in the folder of the data files.</source>
        <translation>Rien ne peut être enregistré dans le dossier des données.</translation>
    </message>
    <message>
        <source>%1

The program works with the files in %2 as they are. Choose another folder when you save.</source>
        <translation>%L1

Le programme utilise les fichiers de %2 tels qu'ils sont. Choisissez un autre dossier pour enregistrer.</translation>
    </message>
    <message>
        <source>the program started</source>
        <translation>le programme a démarré</translation>
    </message>
    <message>
        <source>Export PNG...</source>
        <translation>Exporter en PNG...</translation>
    </message>
    <message>
        <source>Export PNG, double size...</source>
        <translation>Exporter en PNG, taille double...</translation>
    </message>
    <message>
        <source>Export PNG, four times...</source>
        <translation>Exporter en PNG, quatre fois...</translation>
    </message>
    <message>
        <source>Export PNG, resolution...</source>
        <translation>Exporter en PNG, résolution...</translation>
    </message>
    <message>
        <source>Export SVG...</source>
        <translation>Exporter en SVG...</translation>
    </message>
    <message>
        <source>Export PDF...</source>
        <translation>Exporter en PDF...</translation>
    </message>
    <message>
        <source>With caption</source>
        <translation>Avec légende</translation>
    </message>
    <message>
        <source>With scale and labels</source>
        <translation>Avec échelle et étiquettes</translation>
    </message>
    <message>
        <source>Export PNG</source>
        <translation>Exporter en PNG</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>Resolution (dots per inch)</source>
        <translation>Résolution (points par pouce)</translation>
    </message>
    <message>
        <source>%1 was exported</source>
        <translation>%1 exporté</translation>
    </message>
    <message>
        <source>new crystal[*]</source>
        <translation>nouveau cristal[*]</translation>
    </message>
    <message>
        <source>new crystal, %1</source>
        <translation>nouveau cristal, %1</translation>
    </message>
    <message>
        <source>Linear intensity</source>
        <translation>Intensité linéaire</translation>
    </message>
    <message>
        <source>Square root of the intensity</source>
        <translation>Racine de l'intensité</translation>
    </message>
    <message>
        <source>Logarithm of the intensity</source>
        <translation>Logarithme de l'intensité</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout montrer</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Height follows the part that is shown</source>
        <translation>La hauteur suit la partie montrée</translation>
    </message>
    <message>
        <source>h k l at the peaks</source>
        <translation>h k l aux pics</translation>
    </message>
    <message>
        <source>Ticks of all reflections</source>
        <translation>Traits de toutes les réflexions</translation>
    </message>
    <message>
        <source>d as second axis</source>
        <translation>d comme second axe</translation>
    </message>
    <message>
        <source>Radiation in the picture</source>
        <translation>Rayonnement dans l'image</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler : %L1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir : %L1</translation>
    </message>
    <message>
        <source>F1: user guide</source>
        <translation>F1 : guide</translation>
    </message>
    <message>
        <source>the layout of %1 is broken: %2</source>
        <translation>la disposition de %1 est abîmée : %2</translation>
    </message>
    <message>
        <source>%1 was closed by its frame</source>
        <translation>%1 fermé par son cadre</translation>
    </message>
    <message>
        <source>%1 files (*%2 *%3)</source>
        <translation>Fichiers %1 (*%2 *%3)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Crystal files</source>
        <translation>Fichiers de cristaux</translation>
    </message>
    <message>
        <source>Structure files</source>
        <translation>Fichiers de structures</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Fichiers de texte</translation>
    </message>
    <message>
        <source>Lists of atoms</source>
        <translation>Listes d'atomes</translation>
    </message>
    <message>
        <source>Measured patterns</source>
        <translation>Diagrammes mesurés</translation>
    </message>
    <message>
        <source>Lists of d and I</source>
        <translation>Listes de d et I</translation>
    </message>
    <message>
        <source>Replace file</source>
        <translation>Remplacer le fichier</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer ?</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>cannot print the window %1</source>
        <translation>impossible d'imprimer la fenêtre %L1</translation>
    </message>
    <message>
        <source>cannot print the report: the printer does not answer</source>
        <translation>impossible d'imprimer le rapport : l'imprimante ne répond pas</translation>
    </message>
    <message>
        <source>cannot export to %1: the name must end in .bmp, .png, .svg or .pdf</source>
        <translation>impossible d'exporter vers %1 : le nom doit finir par .bmp, .png, .svg ou .pdf</translation>
    </message>
    <message>
        <source>%1 was dropped on %2</source>
        <translation>%1 a été déposé sur %2</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>il n'y a pas de fichier %1</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 n'est pas un fichier</translation>
    </message>
    <message>
        <source>open %1</source>
        <translation>ouvrir %1</translation>
    </message>
    <message>
        <source>This is the last cell of the table.</source>
        <translation>C'est la dernière cellule de la table.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Insert Row</source>
        <translation>Insérer une ligne</translation>
    </message>
    <message>
        <source>Move Row Up</source>
        <translation>Ligne vers le haut</translation>
    </message>
    <message>
        <source>Move Row Down</source>
        <translation>Ligne vers le bas</translation>
    </message>
    <message>
        <source>Nothing is pasted: row %1 of the text has %2 cells, there is room for %3.</source>
        <translation>Rien n'est collé : la ligne %1 du texte a %2 cellules, il y a place pour %3.</translation>
    </message>
    <message>
        <source>Nothing is pasted: the text has %1 rows, there is room for %2.</source>
        <translation>Rien n'est collé : le texte a %1 lignes, il y a place pour %2.</translation>
    </message>
    <message>
        <source>rows pasted: %1</source>
        <translation>lignes collées : %1</translation>
    </message>
    <message>
        <source>cells emptied: %1</source>
        <translation>cellules vidées : %1</translation>
    </message>
    <message>
        <source>No row is inserted: row %1 is in use.</source>
        <translation>Aucune ligne insérée : la ligne %1 est occupée.</translation>
    </message>
    <message>
        <source>row %1 inserted</source>
        <translation>ligne %1 insérée</translation>
    </message>
    <message>
        <source>row %1 up</source>
        <translation>ligne %1 vers le haut</translation>
    </message>
    <message>
        <source>row %1 down</source>
        <translation>ligne %1 vers le bas</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>no crystal</source>
        <translation>aucun cristal</translation>
    </message>
    <message>
        <source>ended by a failure: %1</source>
        <translation>terminé par une erreur : %L1</translation>
    </message>
    <message>
        <source>ended with the crystal not saved</source>
        <translation>terminé sans enregistrer le cristal</translation>
    </message>
    <message>
        <source>the program was cut off</source>
        <translation>le programme a été coupé</translation>
    </message>
    <message>
        <source>Work that was not finished</source>
        <translation>Travail inachevé</translation>
    </message>
    <message>
        <source>and %1 older</source>
        <translation>et %1 plus anciens</translation>
    </message>
    <message>
        <source>%1: cannot be restored, %2</source>
        <translation>%L1 : ne peut être rétabli, %L2</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Restores crystal and windows; undo reverses this</source>
        <translation>Ramène cristal et fenêtres ; « Annuler » le défait</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>The next start offers it again</source>
        <translation>Le prochain démarrage le propose encore</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Jeter</translation>
    </message>
    <message>
        <source>Throws this work away</source>
        <translation>Jette ce travail</translation>
    </message>
    <message>
        <source>Not taken: here and in the files only characters of Latin-1 are possible (Western European letters and signs)</source>
        <translation>Refusé : les caractères sont ici et dans les fichiers en Latin-1 (lettres et signes d'Europe de l'Ouest)</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stops this and leaves everything as it was before (Esc)</source>
        <translation>Arrête ceci et laisse tout comme avant (Échap)</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>encore %1</translation>
    </message>
    <message>
        <source>Draw again</source>
        <translation>Redessiner</translation>
    </message>
    <message>
        <source>Makes it again for the present crystal and settings</source>
        <translation>Le refait pour le cristal et les réglages présents</translation>
    </message>
    <message>
        <source>Measure: click two places, or drag from one to the other; Esc ends it</source>
        <translation>Mesurer : cliquer deux endroits, ou tirer de l'un à l'autre ; Échap termine</translation>
    </message>
    <message>
        <source>turned by dragging</source>
        <translation>tourné en tirant</translation>
    </message>
    <message>
        <source>tilted by dragging</source>
        <translation>incliné en tirant</translation>
    </message>
    <message>
        <source>turn by dragging</source>
        <translation>rotation en tirant</translation>
    </message>
    <message>
        <source>tilt by dragging</source>
        <translation>inclinaison en tirant</translation>
    </message>
    <message>
        <source>Scale bar</source>
        <translation>Barre d'échelle</translation>
    </message>
    <message>
        <source>Angle circle</source>
        <translation>Cercle d'angle</translation>
    </message>
    <message>
        <source>Labels h k l</source>
        <translation>Étiquettes h k l</translation>
    </message>
    <message>
        <source>Labels in colours of families</source>
        <translation>Étiquettes aux couleurs des familles</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesurer</translation>
    </message>
    <message>
        <source>cannot make an image of %1 x %2 pixels: %3</source>
        <translation>impossible de faire une image de %1 x %2 pixels : %L3</translation>
    </message>
    <message>
        <source>at most 8192 x 8192 are possible</source>
        <translation>8192 x 8192 au plus sont possibles</translation>
    </message>
    <message>
        <source>a PNG picture</source>
        <translation>une image PNG</translation>
    </message>
    <message>
        <source>a JPEG picture</source>
        <translation>une image JPEG</translation>
    </message>
    <message>
        <source>a TIFF picture</source>
        <translation>une image TIFF</translation>
    </message>
    <message>
        <source>a bitmap</source>
        <translation>un bitmap</translation>
    </message>
    <message>
        <source>cannot read %1 as %2: %3</source>
        <translation>impossible de lire %1 comme %L2 : %L3</translation>
    </message>
    <message>
        <source>it is cut short: its end is missing</source>
        <translation>il est tronqué : sa fin manque</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels; %3</source>
        <translation>elle a %1 x %2 pixels ; %L3</translation>
    </message>
    <message>
        <source>not enough memory for a picture</source>
        <translation>pas assez de mémoire pour une image</translation>
    </message>
    <message>
        <source>cannot write %1: no picture of the kind %2 can be made</source>
        <translation>impossible d'écrire %1 : aucune image du genre %2 ne peut être faite</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Crystals</source>
        <translation>Cristaux</translation>
    </message>
    <message>
        <source>Structures</source>
        <translation>Structures</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (manque)</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aucun encore</translation>
    </message>
    <message>
        <source>%1; it is no longer in the list of recent files</source>
        <translation>%L1 ; la liste des fichiers récents ne le nomme plus</translation>
    </message>
    <message>
        <source>Your work cannot be kept for the next start: %1</source>
        <translation>Votre travail ne peut être gardé pour le prochain démarrage : %L1</translation>
    </message>
    <message>
        <source>restore %1</source>
        <translation>rétablir %L1</translation>
    </message>
    <message>
        <source>a key was pressed in %1</source>
        <translation>touche pressée dans %1</translation>
    </message>
    <message>
        <source>Or begin here</source>
        <translation>Ou commencer ici</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Arranger</translation>
    </message>
    <message>
        <source>Puts the open windows side by side, as far as the screen allows</source>
        <translation>Met les fenêtres ouvertes côte à côte, autant que l'écran le permet</translation>
    </message>
    <message>
        <source>folded; Space opens it</source>
        <translation>repliée ; Espace l'ouvre</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>Picture alone</source>
        <translation>L'image seule</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERREUR</translation>
    </message>
    <message>
        <source>, while </source>
        <translation>, pendant : </translation>
    </message>
    <message>
        <source>%1 (!)</source>
        <translation>%L1 (!)</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels</source>
        <translation>elle a %1 x %2 pixels</translation>
    </message>
    <message>
        <source>it is no longer in the list of recent files</source>
        <translation>la liste des fichiers récents ne le nomme plus</translation>
    </message>
    <message>
        <source>%1 was pressed</source>
        <translation>%1 pressé</translation>
    </message>
    <message>
        <source>%1 was moved over</source>
        <translation>pointeur sur %1</translation>
    </message>
    <message>
        <source>%1 was released</source>
        <translation>%1 relâché</translation>
    </message>
    <message>
        <source>%1 was double clicked</source>
        <translation>double clic sur %1</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 changé</translation>
    </message>
    <message>
        <source>%1 lost the focus</source>
        <translation>%1 quitté</translation>
    </message>
    <message>
        <source>%1 was clicked</source>
        <translation>clic sur %1</translation>
    </message>
    <message>
        <source>%1 was moved</source>
        <translation>%1 déplacé</translation>
    </message>
    <message>
        <source>%1 was shown</source>
        <translation>%1 montré</translation>
    </message>
    <message>
        <source>%1 was activated</source>
        <translation>%1 activé</translation>
    </message>
    <message>
        <source>%1 was opened</source>
        <translation>%1 ouvert</translation>
    </message>
    <message>
        <source>item %1 of %2 does not exist, it has %3 items, the first is 0</source>
        <translation>l'élément %1 de %2 n'existe pas, il y en a %3, le premier est 0</translation>
    </message>
    <message>
        <source>row %1 of the table %2 is outside 0 to %3</source>
        <translation>la ligne %1 de la table %2 est hors de 0 à %3</translation>
    </message>
    <message>
        <source>column %1 of the table %2 is outside 0 to %3</source>
        <translation>la colonne %1 de la table %2 est hors de 0 à %3</translation>
    </message>
    <message>
        <source>the program is at fault: %1</source>
        <translation>le programme est en faute : %1</translation>
    </message>
    <message>
        <source>the program is at fault, it does not say how</source>
        <translation>le programme est en faute, il ne dit pas comment</translation>
    </message>
    <message>
        <source>there is no cell: type one in the main window</source>
        <translation>il n'y a pas de maille : en saisir une dans la fenêtre principale</translation>
    </message>
    <message>
        <source>the list of reflections is empty: "Calc" of the main window makes it</source>
        <translation>la liste des réflexions est vide : « Calculer » de la fenêtre principale la fait</translation>
    </message>
    <message>
        <source>the list holds fewer than %1 reflections</source>
        <translation>la liste contient moins de %1 réflexions</translation>
    </message>
    <message>
        <source>the list holds fewer than %1 reflections: "Calc" of the main window makes it</source>
        <translation>la liste contient moins de %1 réflexions : « Calculer » de la fenêtre principale la fait</translation>
    </message>
    <message>
        <source>the zone axis u, v, w is 0 0 0</source>
        <translation>l'axe de zone u, v, w est 0 0 0</translation>
    </message>
    <message>
        <source>the box takes whole numbers up to 32767</source>
        <translation>le champ prend des entiers jusqu'à 32767</translation>
    </message>
    <message>
        <source>This would take about %1. Do it all the same?</source>
        <translation>Cela prendrait environ %L1. Le faire quand même ?</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondes</translation>
    </message>
    <message>
        <source>%1 second</source>
        <translation>%1 seconde</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutes</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <translation>%1 minute</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 heures</translation>
    </message>
    <message>
        <source>%1 hour</source>
        <translation>%1 heure</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 jours</translation>
    </message>
    <message>
        <source>%1 day</source>
        <translation>%1 jour</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>years</source>
        <translation>des années</translation>
    </message>
    <message>
        <source>%1 from the centre</source>
        <translation>%1 du centre</translation>
    </message>
    <message>
        <source>azimuth %1</source>
        <translation>azimut %1</translation>
    </message>
    <message>
        <source>latitude %1</source>
        <translation>latitude %1</translation>
    </message>
    <message>
        <source>x %1</source>
        <translation>x %1</translation>
    </message>
    <message>
        <source>y %1 pixels</source>
        <translation>y %1 pixels</translation>
    </message>
    <message>
        <source>angle %1</source>
        <translation>angle %1</translation>
    </message>
    <message>
        <source>area %1°</source>
        <translation>ouverture %1°</translation>
    </message>
    <message>
        <source>half width %1</source>
        <translation>demi-largeur %1</translation>
    </message>
    <message>
        <source>shifts %1</source>
        <translation>décalages %1</translation>
    </message>
    <message>
        <source>axis [%1]</source>
        <translation>axe [%1]</translation>
    </message>
    <message>
        <source>turn %1°</source>
        <translation>rotation %1°</translation>
    </message>
    <message>
        <source>list by 1/d</source>
        <translation>liste par 1/d</translation>
    </message>
    <message>
        <source>list by I/d</source>
        <translation>liste par I/d</translation>
    </message>
    <message>
        <source>list by I/d, weakest first</source>
        <translation>liste par I/d, la plus faible d'abord</translation>
    </message>
    <message>
        <source>list by I, weakest first</source>
        <translation>liste par I, la plus faible d'abord</translation>
    </message>
    <message>
        <source>list in no order</source>
        <translation>liste sans ordre</translation>
    </message>
    <message>
        <source>d from %1 Å</source>
        <translation>d à partir de %1 Å</translation>
    </message>
    <message>
        <source>I (% of full height)</source>
        <translation>I (% de la pleine hauteur)</translation>
    </message>
    <message>
        <source>S.G</source>
        <translation>G.E.</translation>
    </message>
    <message>
        <source>crystal</source>
        <translation>cristal</translation>
    </message>
    <message>
        <source>radiation</source>
        <translation>rayonnement</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>réglages</translation>
    </message>
    <message>
        <source>detector</source>
        <translation>détecteur</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%L1 et %L2</translation>
    </message>
    <message>
        <source>%1, %2 and %3</source>
        <translation>%L1, %L2 et %L3</translation>
    </message>
    <message>
        <source>an unnamed crystal</source>
        <translation>un cristal sans nom</translation>
    </message>
    <message>
        <source>an unnamed crystal, %1</source>
        <translation>un cristal sans nom, %1</translation>
    </message>
    <message>
        <source>drawn for %1</source>
        <translation>dessiné pour %L1</translation>
    </message>
    <message>
        <source>made for %1</source>
        <translation>fait pour %L1</translation>
    </message>
    <message>
        <source>%1 changed since</source>
        <translation>changé depuis : %L1</translation>
    </message>
    <message>
        <source>table of %1</source>
        <translation>table de %L1</translation>
    </message>
    <message>
        <source>line %1 of %2</source>
        <translation>ligne %1 de %L2</translation>
    </message>
    <message>
        <source>Open a structure...</source>
        <translation>Ouvrir une structure...</translation>
    </message>
    <message>
        <source>a CIF or another structure file of yours, with its reflections</source>
        <translation>un fichier CIF ou de structure à vous, avec ses réflexions</translation>
    </message>
    <message>
        <source>Take an example</source>
        <translation>Prendre un exemple</translation>
    </message>
    <message>
        <source>quartz, with its reflections</source>
        <translation>le quartz, avec ses réflexions</translation>
    </message>
    <message>
        <source>Index the example picture</source>
        <translation>Indexer l'image d'exemple</translation>
    </message>
    <message>
        <source>Crystals, diffraction, Kikuchi patterns</source>
        <translation>Cristaux, diffraction, clichés de Kikuchi</translation>
    </message>
    <message>
        <source>cannot copy the data files from %1 to %2: %3</source>
        <translation>impossible de copier les données de %1 vers %2 : %L3</translation>
    </message>
    <message>
        <source>no data files found: neither in %1 nor in %2; name their folder in %3 with "data_root = FOLDER"</source>
        <translation>aucune donnée trouvée : ni dans %1 ni dans %2 ; nommez leur dossier dans %3 avec « data_root = DOSSIER »</translation>
    </message>
    <message>
        <source>%1: a line "data_root = FOLDER" is missing</source>
        <translation>%1 : une ligne « data_root = DOSSIER » manque</translation>
    </message>
    <message>
        <source>cannot write into %1: %2</source>
        <translation>impossible d'écrire dans %1 : %L2</translation>
    </message>
    <message>
        <source>cannot make %1: %2</source>
        <translation>impossible de créer %1 : %L2</translation>
    </message>
    <message>
        <source>another program has taken it</source>
        <translation>un autre programme l'a pris</translation>
    </message>
    <message>
        <source>it is no longer there</source>
        <translation>il n'est plus là</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>il est tronqué</translation>
    </message>
    <message>
        <source>its checksum is another one</source>
        <translation>sa somme de contrôle est autre</translation>
    </message>
    <message>
        <source>it is not a file of kept work</source>
        <translation>ce n'est pas un fichier de travail gardé</translation>
    </message>
    <message>
        <source>it was kept by version %1 of the program, this is %2</source>
        <translation>il vient de la version %1 du programme, celle-ci est %2</translation>
    </message>
    <message>
        <source>the file of kept work is damaged: %1</source>
        <translation>le fichier de travail gardé est abîmé : %L1</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>aucun fichier ni dossier de ce nom</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>permission refusée</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>plus de place sur le périphérique</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>erreur d'entrée-sortie</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossible d'écrire %1 : %L2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c'est un dossier</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>il est protégé en écriture</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>personne n'y lit</translation>
    </message>
    <message>
        <source>not enough memory for %1: it takes %2, there are %3</source>
        <translation>pas assez de mémoire pour %L1 : il faut %2, il y a %3</translation>
    </message>
    <message>
        <source>not enough memory for %1</source>
        <translation>pas assez de mémoire pour %1</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>pas assez de mémoire</translation>
    </message>
    <message>
        <source>index %1 of %2, which has not been allocated yet</source>
        <translation>indice %1 de %2, qui n'est pas encore alloué</translation>
    </message>
    <message>
        <source>index %1 of %2 is outside 0 to %3</source>
        <translation>l'indice %1 de %2 est hors de 0 à %3</translation>
    </message>
    <message>
        <source>the last index of %1 would be %2, it must be 0 or more</source>
        <translation>le dernier indice de %1 serait %2, il doit être 0 ou plus</translation>
    </message>
    <message>
        <source>division by zero: %1 is 0</source>
        <translation>division par zéro : %L1 vaut 0</translation>
    </message>
    <message>
        <source>division by zero: the scale of the picture %1 goes from %2 to %3 across and from %4 to %5 down, which leaves no room to draw</source>
        <translation>division par zéro : l'échelle de l'image %1 va de %2 à %3 en largeur et de %4 à %5 en hauteur, ce qui ne laisse pas de place</translation>
    </message>
    <message>
        <source>square root of a negative number: %1 is %2</source>
        <translation>racine d'un nombre négatif : %L1 vaut %L2</translation>
    </message>
    <message>
        <source>overflow: %1 does not fit an Integer (%2 to %3)</source>
        <translation>dépassement : %L1 n'entre pas dans un Integer (%2 à %3)</translation>
    </message>
    <message>
        <source>overflow: %1 does not fit a Long (%2 to %3)</source>
        <translation>dépassement : %L1 n'entre pas dans un Long (%2 à %3)</translation>
    </message>
    <message>
        <source>a calculation gave no number (0/0 or the like)</source>
        <translation>un calcul n'a donné aucun nombre (0/0 ou semblable)</translation>
    </message>
    <message>
        <source>overflow: a value is too large for a Single, it must stay below 3.4E+38</source>
        <translation>dépassement : une valeur est trop grande pour un Single, elle doit rester sous 3.4E+38</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>pas un nombre</translation>
    </message>
    <message>
        <source>not a finite number</source>
        <translation>pas un nombre fini</translation>
    </message>
    <message>
        <source>cannot read %1: it is %2, not a file</source>
        <translation>impossible de lire %1 : c'est %L2, pas un fichier</translation>
    </message>
    <message>
        <source>cannot read %1: it has %2 bytes or more, at most %3 are taken</source>
        <translation>impossible de lire %1 : il a %2 octets ou plus, %3 au plus sont pris</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>impossible d'ouvrir %1 : %L2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1 : %L2</translation>
    </message>
    <message>
        <source>cannot read the folder %1: %2</source>
        <translation>impossible de lire le dossier %1 : %L2</translation>
    </message>
    <message>
        <source>cannot load %1: there are no pixel images here</source>
        <translation>impossible de charger %1 : il n'y a pas d'images en pixels ici</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>un dossier</translation>
    </message>
    <message>
        <source>a pipe</source>
        <translation>un tube</translation>
    </message>
    <message>
        <source>a socket</source>
        <translation>un socket</translation>
    </message>
    <message>
        <source>a device</source>
        <translation>un périphérique</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2 : %L3</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %L2</translation>
    </message>
    <message>
        <source>the file ends where %1 is expected</source>
        <translation>le fichier finit là où %L1 est attendu</translation>
    </message>
    <message>
        <source>the quote before %1 has no closing quote</source>
        <translation>le guillemet devant %1 n'est pas fermé</translation>
    </message>
    <message>
        <source>%1 is %2, a number is expected</source>
        <translation>%L1 est %2, un nombre est attendu</translation>
    </message>
    <message>
        <source>%1 is %2, too large for a Single (below 3.4E+38)</source>
        <translation>%L1 est %2, trop grand pour un Single (sous 3.4E+38)</translation>
    </message>
    <message>
        <source>%1 is %2, a whole number is expected</source>
        <translation>%L1 est %2, un entier est attendu</translation>
    </message>
    <message>
        <source>%1 is %2, it must be within -32768 to 32767</source>
        <translation>%L1 est %2, il doit être entre -32768 et 32767</translation>
    </message>
    <message>
        <source>%1 is "%2", a whole number from %3 to %4 is expected</source>
        <translation>%L1 est « %2 », un entier de %3 à %4 est attendu</translation>
    </message>
    <message>
        <source>%1 is "%2": %3</source>
        <translation>%L1 est « %2 » : %L3</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3 by steps of %4, which lead nowhere</source>
        <translation>%L1 va de %2 à %3 par pas de %4, qui ne mènent nulle part</translation>
    </message>
    <message>
        <source>the number of %1 is %2, at most %3 are allowed</source>
        <translation>le nombre de %L1 est %2, %3 au plus sont permis</translation>
    </message>
    <message>
        <source>the number of operators is %1, at most 1000 are allowed</source>
        <translation>le nombre d'opérateurs est %1, 1000 au plus sont permis</translation>
    </message>
    <message>
        <source>the cell edge %1 is %2 angstroms, must be above 0</source>
        <translation>l'arête %1 est de %L2 angströms, elle doit dépasser 0</translation>
    </message>
    <message>
        <source>the cell angle %1 is %2 degrees, must be above 0 and below 180</source>
        <translation>l'angle %1 est de %L2 degrés, il doit être entre 0 et 180</translation>
    </message>
    <message>
        <source>the cell angles span no volume: no such cell exists</source>
        <translation>les angles ne forment aucun volume : une telle maille n'existe pas</translation>
    </message>
    <message>
        <source>the cell edges give a volume beyond all numbers</source>
        <translation>les arêtes donnent un volume au-delà des nombres</translation>
    </message>
    <message>
        <source>a plane without indices has no spacing</source>
        <translation>un plan sans indices n'a pas de distance</translation>
    </message>
    <message>
        <source>the cell edge %1</source>
        <translation>l'arête %1</translation>
    </message>
    <message>
        <source>the cell angle %1</source>
        <translation>l'angle %1</translation>
    </message>
    <message>
        <source>the lattice letter</source>
        <translation>la lettre du réseau</translation>
    </message>
    <message>
        <source>the space group number</source>
        <translation>le numéro du groupe d'espace</translation>
    </message>
    <message>
        <source>the axis setting</source>
        <translation>le choix d'axes</translation>
    </message>
    <message>
        <source>the number of atoms</source>
        <translation>le nombre d'atomes</translation>
    </message>
    <message>
        <source>the number of observed reflections</source>
        <translation>le nombre de réflexions observées</translation>
    </message>
    <message>
        <source>observed reflections</source>
        <translation>réflexions observées</translation>
    </message>
    <message>
        <source>the label of atom %1</source>
        <translation>le nom de l'atome %1</translation>
    </message>
    <message>
        <source>the element of atom %1</source>
        <translation>l'élément de l'atome %1</translation>
    </message>
    <message>
        <source>the occupancy of atom %1</source>
        <translation>l'occupation de l'atome %1</translation>
    </message>
    <message>
        <source>%1 of atom %2</source>
        <translation>%1 de l'atome %2</translation>
    </message>
    <message>
        <source>%1 of observed reflection %2</source>
        <translation>%1 de la réflexion %2</translation>
    </message>
    <message>
        <source>the crystal system</source>
        <translation>le système cristallin</translation>
    </message>
    <message>
        <source>the space group symbol</source>
        <translation>le symbole du groupe d'espace</translation>
    </message>
    <message>
        <source>the number of operators</source>
        <translation>le nombre d'opérateurs</translation>
    </message>
    <message>
        <source>the acquisition angle</source>
        <translation>l'angle d'acquisition</translation>
    </message>
    <message>
        <source>the x shift</source>
        <translation>le décalage x</translation>
    </message>
    <message>
        <source>the y shift</source>
        <translation>le décalage y</translation>
    </message>
    <message>
        <source>the detector edge</source>
        <translation>le côté du détecteur</translation>
    </message>
    <message>
        <source>the xy ratio</source>
        <translation>le rapport xy</translation>
    </message>
    <message>
        <source>the substrate normal</source>
        <translation>la normale du substrat</translation>
    </message>
    <message>
        <source>the cell volume</source>
        <translation>le volume de la maille</translation>
    </message>
    <message>
        <source>the sine of a cell angle</source>
        <translation>le sinus d'un angle de la maille</translation>
    </message>
    <message>
        <source>sin(theta) in Bragg's law</source>
        <translation>sin(thêta) dans la loi de Bragg</translation>
    </message>
    <message>
        <source>the length of a reflection</source>
        <translation>la longueur d'une réflexion</translation>
    </message>
    <message>
        <source>the squared length of a vector</source>
        <translation>le carré de la longueur d'un vecteur</translation>
    </message>
    <message>
        <source>the occupancy of %1 is %2, above 1</source>
        <translation>l'occupation de %1 est %2, au-dessus de 1</translation>
    </message>
    <message>
        <source>%1 and %2 are %3 Å apart, nearer than any bond</source>
        <translation>%1 et %2 sont à %3 Å, plus près qu'aucune liaison</translation>
    </message>
    <message>
        <source>P 1 has no symmetry operators: only the sites fill the cell</source>
        <translation>P 1 n'a pas d'opérateurs de symétrie : les sites seuls remplissent la maille</translation>
    </message>
    <message>
        <source>group %1 has no operators: those of the previous group stay</source>
        <translation>le groupe %1 n'a pas d'opérateurs : ceux du précédent restent</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Attention : %L1</translation>
    </message>
    <message>
        <source>%1 is a dummy atom, its place is not known</source>
        <translation>%1 est un atome fictif, sa place est inconnue</translation>
    </message>
    <message>
        <source>no displacement parameters for %1; B = 0.5 square angstroms is taken</source>
        <translation>pas de paramètres de déplacement pour %1 ; B = 0.5 angströms carrés est pris</translation>
    </message>
    <message>
        <source>hydrogen of water or hydroxyl is not listed (%1)</source>
        <translation>l'hydrogène d'eau ou d'hydroxyle n'est pas listé (%1)</translation>
    </message>
    <message>
        <source>the formula of the file has no %1 (%2)</source>
        <translation>la formule du fichier n'a pas de %1 (%2)</translation>
    </message>
    <message>
        <source>the occupancy of %1 is above 1</source>
        <translation>l'occupation de %1 dépasse 1</translation>
    </message>
    <message>
        <source>B of %1 is negative; 0.5 square angstroms is taken</source>
        <translation>B de %1 est négatif ; 0.5 angströms carrés est pris</translation>
    </message>
    <message>
        <source>the structure is modulated; its average is taken</source>
        <translation>la structure est modulée ; sa moyenne est prise</translation>
    </message>
    <message>
        <source>the structure is magnetic; its atoms are taken without their moments</source>
        <translation>la structure est magnétique ; ses atomes sont pris sans leurs moments</translation>
    </message>
    <message>
        <source>no atoms: a loop with _atom_site_fract_x is expected</source>
        <translation>pas d'atomes : une boucle avec _atom_site_fract_x est attendue</translation>
    </message>
    <message>
        <source>The file has %1 crystals. Which one (number or name)?</source>
        <translation>Le fichier a %1 cristaux. Lequel (numéro ou nom) ?</translation>
    </message>
    <message>
        <source>there is no block "%1" with atoms</source>
        <translation>il n'y a pas de bloc « %1 » avec des atomes</translation>
    </message>
    <message>
        <source>missing cell edges follow from the crystal system</source>
        <translation>les arêtes absentes découlent du système</translation>
    </message>
    <message>
        <source>missing cell angles follow from the crystal system</source>
        <translation>les angles absents découlent du système</translation>
    </message>
    <message>
        <source>_cell_length_a is missing or is not a length</source>
        <translation>_cell_length_a manque ou n'est pas une longueur</translation>
    </message>
    <message>
        <source>_cell_length_b or _cell_length_c is missing or is not a length</source>
        <translation>_cell_length_b ou _cell_length_c manque ou n'est pas une longueur</translation>
    </message>
    <message>
        <source>_cell_length_c is missing or is not a length</source>
        <translation>_cell_length_c manque ou n'est pas une longueur</translation>
    </message>
    <message>
        <source>a closing quote is missing, the value ends with the line</source>
        <translation>un guillemet fermant manque, la valeur finit avec la ligne</translation>
    </message>
    <message>
        <source>the text that starts here has no end</source>
        <translation>le texte qui commence ici n'a pas de fin</translation>
    </message>
    <message>
        <source>the loop that ends here lacks values of its last row</source>
        <translation>il manque des valeurs à la dernière ligne de la boucle qui finit ici</translation>
    </message>
    <message>
        <source>"%1" belongs to no tag</source>
        <translation>« %1 » n'appartient à aucun nom</translation>
    </message>
    <message>
        <source>no block has been opened before, as by "data_"</source>
        <translation>aucun bloc n'a été ouvert avant, comme par « data_ »</translation>
    </message>
    <message>
        <source>no atom can be read</source>
        <translation>aucun atome n'est lisible</translation>
    </message>
    <message>
        <source>%1 occurs twice; the first one with a value is used</source>
        <translation>%1 s'y trouve une seconde fois ; le premier qui a une valeur est pris</translation>
    </message>
    <message>
        <source>the cell is too small or too flat to hold atoms</source>
        <translation>la maille est trop petite ou trop plate pour des atomes</translation>
    </message>
    <message>
        <source>it cannot be unpacked</source>
        <translation>il ne peut être décompressé</translation>
    </message>
    <message>
        <source>the compressed file is too large</source>
        <translation>le fichier compressé est trop grand</translation>
    </message>
    <message>
        <source>it unpacks to more than %1 MB</source>
        <translation>décompressé, il dépasse %1 Mo</translation>
    </message>
    <message>
        <source>the compressed file is broken or cut short</source>
        <translation>le fichier compressé est abîmé ou tronqué</translation>
    </message>
    <message>
        <source>the symmetry operator "%1": %2</source>
        <translation>l'opérateur de symétrie « %1 » : %L2</translation>
    </message>
    <message>
        <source>the Hall symbol "%1": %2</source>
        <translation>le symbole de Hall « %1 » : %L2</translation>
    </message>
    <message>
        <source>it is not a sum of x, y, z and numbers</source>
        <translation>ce n'est pas une somme de x, y, z et de nombres</translation>
    </message>
    <message>
        <source>it is not a whole number of 24ths</source>
        <translation>ce n'est pas un nombre entier de 24es</translation>
    </message>
    <message>
        <source>three parts with commas between are expected</source>
        <translation>trois parties séparées par des virgules sont attendues</translation>
    </message>
    <message>
        <source>The file does not name its elements. Which are its %1, in their order (as Na Cl)?</source>
        <translation>Le fichier ne nomme pas ses éléments. Quels sont ses %1, dans leur ordre (comme Na Cl) ?</translation>
    </message>
    <message>
        <source>the file gives no symmetry and no displacement parameters; B = 0.5 square angstroms is taken</source>
        <translation>le fichier ne dit ni symétrie ni paramètres de déplacement ; B = 0.5 angströms carrés est pris</translation>
    </message>
    <message>
        <source>the file ends before line %1</source>
        <translation>le fichier finit avant la ligne %1</translation>
    </message>
    <message>
        <source>three numbers are expected</source>
        <translation>trois nombres sont attendus</translation>
    </message>
    <message>
        <source>the cell has no volume</source>
        <translation>la maille n'a pas de volume</translation>
    </message>
    <message>
        <source>the cell vectors are left-handed; the crystal is mirrored</source>
        <translation>les vecteurs de la maille sont gauches ; le cristal est reflété</translation>
    </message>
    <message>
        <source>"%1" is not a count of atoms</source>
        <translation>« %1 » n'est pas un nombre d'atomes</translation>
    </message>
    <message>
        <source>counts of atoms are expected</source>
        <translation>des nombres d'atomes sont attendus</translation>
    </message>
    <message>
        <source>there are %1 counts of atoms and %2 elements</source>
        <translation>il y a %1 nombres d'atomes et %2 éléments</translation>
    </message>
    <message>
        <source>"%1" is not an element</source>
        <translation>« %1 » n'est pas un élément</translation>
    </message>
    <message>
        <source>no atoms</source>
        <translation>pas d'atomes</translation>
    </message>
    <message>
        <source>the setting is changed to %1 (number %2): %3; indices change with it</source>
        <translation>le choix d'axes devient %1 (numéro %2) : %3 ; les indices changent avec lui</translation>
    </message>
    <message>
        <source>the cell has %1 atoms where that of the file has %2</source>
        <translation>la maille a %1 atomes, celle du fichier %2</translation>
    </message>
    <message>
        <source>the symmetry fits none of the program's space groups; all atoms are taken in P1</source>
        <translation>la symétrie ne convient à aucun groupe d'espace du programme ; tous les atomes sont pris en P1</translation>
    </message>
    <message>
        <source>no CELL instruction</source>
        <translation>pas d'instruction CELL</translation>
    </message>
    <message>
        <source>CELL needs a wavelength, three edges and three angles</source>
        <translation>CELL demande une longueur d'onde, trois arêtes et trois angles</translation>
    </message>
    <message>
        <source>LATT is 0</source>
        <translation>LATT vaut 0</translation>
    </message>
    <message>
        <source>a value is too large</source>
        <translation>une valeur est trop grande</translation>
    </message>
    <message>
        <source>an atom before SFAC</source>
        <translation>un atome avant SFAC</translation>
    </message>
    <message>
        <source>"%1" is not an instruction and has no coordinates</source>
        <translation>« %1 » n'est pas une instruction et n'a pas de coordonnées</translation>
    </message>
    <message>
        <source>a coordinate of %1 is "%2", a number is expected</source>
        <translation>une coordonnée de %1 est « %2 », un nombre est attendu</translation>
    </message>
    <message>
        <source>the element %1 is not known; %2 is left out</source>
        <translation>l'élément %1 est inconnu ; %2 est omis</translation>
    </message>
    <message>
        <source>sites with an occupancy of 0 are left out</source>
        <translation>les sites d'occupation 0 sont omis</translation>
    </message>
    <message>
        <source>there are no scattering factors of %1; those of %2 are taken</source>
        <translation>il n'y a pas de facteurs de diffusion de %1 ; ceux de %2 sont pris</translation>
    </message>
    <message>
        <source>there are no scattering factors of %1; %2 is left out</source>
        <translation>il n'y a pas de facteurs de diffusion de %1 ; %2 est omis</translation>
    </message>
    <message>
        <source>none of the atoms has scattering factors</source>
        <translation>aucun des atomes n'a de facteurs de diffusion</translation>
    </message>
    <message>
        <source>the cell does not fit the symmetry</source>
        <translation>la maille ne convient pas à la symétrie</translation>
    </message>
    <message>
        <source>the occupancies at the place of %1 sum up to %2</source>
        <translation>les occupations à la place de %1 font au total %2</translation>
    </message>
    <message>
        <source>the crystal has %1, at most %2 are allowed</source>
        <translation>le cristal a %1, %2 au plus sont permis</translation>
    </message>
    <message>
        <source>the cell has %1 atoms, at most %2 are allowed</source>
        <translation>la maille a %1 atomes, %2 au plus sont permis</translation>
    </message>
    <message>
        <source>the symmetric positions lie too close for the program to tell them apart; all atoms are taken in P1</source>
        <translation>les positions symétriques sont trop proches pour être distinguées ; tous les atomes sont pris en P1</translation>
    </message>
    <message>
        <source>formula: %1</source>
        <translation>formule : %1</translation>
    </message>
    <message>
        <source>density: %1</source>
        <translation>densité : %1</translation>
    </message>
    <message>
        <source>cell: %1</source>
        <translation>maille : %1</translation>
    </message>
    <message>
        <source>space group: %1 (number %2, axes %3)</source>
        <translation>groupe d'espace : %1 (numéro %2, axes %3)</translation>
    </message>
    <message>
        <source>shortest distance: %1 angstroms</source>
        <translation>plus courte distance : %1 angströms</translation>
    </message>
    <message>
        <source>atoms lie close: %1 angstroms</source>
        <translation>des atomes sont proches : %1 angströms</translation>
    </message>
    <message>
        <source>the cell holds %1, the file's formula is %2</source>
        <translation>la maille contient %1, la formule du fichier est %2</translation>
    </message>
    <message>
        <source>the density is %1 g/cm3, the file says %2</source>
        <translation>la densité est de %1 g/cm3, le fichier dit %2</translation>
    </message>
    <message>
        <source>the crystal file holds no atoms; "LOAD" opens it</source>
        <translation>le fichier de cristal n'a pas d'atomes ; « CHARGER » l'ouvre</translation>
    </message>
    <message>
        <source>there is no space group file %1 with the axes "%2"</source>
        <translation>il n'y a pas de fichier de groupe d'espace %1 avec les axes « %2 »</translation>
    </message>
    <message>
        <source>it is none of the known kinds: CIF, SHELX, POSCAR, crystal file</source>
        <translation>il n'est d'aucun genre connu : CIF, SHELX, POSCAR, fichier de cristal</translation>
    </message>
    <message>
        <source>the space group symbol "%1" is not known</source>
        <translation>le symbole de groupe d'espace « %1 » est inconnu</translation>
    </message>
    <message>
        <source>the symbol %1 has number %2, the file says %3; the symbol counts</source>
        <translation>le symbole %1 a le numéro %2, le fichier dit %3 ; le symbole compte</translation>
    </message>
    <message>
        <source>%1; it is left out</source>
        <translation>%L1 ; il est omis</translation>
    </message>
    <message>
        <source>the symmetry operators do not form a group; those of %1 are taken</source>
        <translation>les opérateurs de symétrie ne sont pas un groupe ; ceux de %1 sont pris</translation>
    </message>
    <message>
        <source>the symmetry operators do not form a group and are left out</source>
        <translation>les opérateurs de symétrie ne sont pas un groupe et sont omis</translation>
    </message>
    <message>
        <source>1 or 2 is expected as an answer, not "%1"</source>
        <translation>1 ou 2 est attendu comme réponse, pas « %1 »</translation>
    </message>
    <message>
        <source>the file gives no symmetry; the atoms are taken as they are listed</source>
        <translation>le fichier ne dit pas de symétrie ; les atomes sont pris comme ils sont listés</translation>
    </message>
    <message>
        <source>without symmetry operators the atoms are taken as they are listed</source>
        <translation>sans opérateurs de symétrie, les atomes sont pris comme ils sont listés</translation>
    </message>
    <message>
        <source>no symmetry operators in the file; those of %1 are taken</source>
        <translation>pas d'opérateurs de symétrie dans le fichier ; ceux de %1 sont pris</translation>
    </message>
    <message>
        <source>origin %1 of %2 is taken</source>
        <translation>l'origine %1 de %2 est prise</translation>
    </message>
    <message>
        <source>%1 has two origins, and the file gives neither origin nor operators.</source>
        <translation>%1 a deux origines, et le fichier ne dit ni origine ni opérateurs.</translation>
    </message>
    <message>
        <source>1: origin choice 1</source>
        <translation>1 : choix d'origine 1</translation>
    </message>
    <message>
        <source>2: origin choice 2, on a centre of inversion</source>
        <translation>2 : choix d'origine 2, sur un centre d'inversion</translation>
    </message>
    <message>
        <source>Proposed is %1, which fits formula and distances.</source>
        <translation>%1 est proposé : il convient à la formule et aux distances.</translation>
    </message>
    <message>
        <source>Formula and distances speak for neither.</source>
        <translation>Formule et distances ne parlent pour aucun.</translation>
    </message>
    <message>
        <source>The only symmetry operator of the file is the identity, but its space group is %1.</source>
        <translation>Le seul opérateur de symétrie du fichier est l'identité, mais son groupe d'espace est %1.</translation>
    </message>
    <message>
        <source>1: the atoms are those of the asymmetric unit</source>
        <translation>1 : les atomes sont ceux de l'unité asymétrique</translation>
    </message>
    <message>
        <source>2: all atoms of the cell are listed</source>
        <translation>2 : tous les atomes de la maille sont listés</translation>
    </message>
    <message>
        <source>the reflection list cannot have %1 entries: cell constants give %2</source>
        <translation>la liste des réflexions ne peut avoir %1 entrées : les paramètres de maille donnent %L2</translation>
    </message>
    <message>
        <source>a list of up to %1 reflections</source>
        <translation>une liste de %1 réflexions au plus</translation>
    </message>
    <message>
        <source>the table has more than %1 rows</source>
        <translation>la table a plus de %1 lignes</translation>
    </message>
    <message>
        <source>Dmin is not above 0: the program asks for it until it is</source>
        <translation>Dmin n'est pas au-dessus de 0 : il sera demandé jusqu'à ce qu'il le soit</translation>
    </message>
    <message>
        <source>there are no atoms</source>
        <translation>il n'y a pas d'atomes</translation>
    </message>
    <message>
        <source>the box Dmin holds 0</source>
        <translation>le champ Dmin contient 0</translation>
    </message>
    <message>
        <source>the table has no room for 200 atoms or more</source>
        <translation>il y a 200 atomes ou plus, la table n'a pas la place</translation>
    </message>
    <message>
        <source>this removes the atoms, even if you cancel there</source>
        <translation>les atomes seront enlevés, même en annulant là</translation>
    </message>
    <message>
        <source>the table has no room for 200 reflections</source>
        <translation>il y a 200 réflexions, la table n'a pas la place</translation>
    </message>
    <message>
        <source>a file without atoms and reflections cannot be loaded again</source>
        <translation>sans atomes ni réflexions le fichier ne pourra être rechargé</translation>
    </message>
    <message>
        <source>there is no such space group</source>
        <translation>un tel groupe d'espace n'existe pas</translation>
    </message>
    <message>
        <source>there is no file of this space group</source>
        <translation>il n'y a pas de fichier pour ce groupe d'espace</translation>
    </message>
    <message>
        <source>-cba has no operators: every atom falls on 0 0 0</source>
        <translation>aucun opérateur ne peut être tourné vers -cba : chaque atome tombe sur 0 0 0</translation>
    </message>
    <message>
        <source>the acceleration voltage</source>
        <translation>la tension d'accélération</translation>
    </message>
    <message>
        <source>Input D-value Minimum</source>
        <translation>Entrer la valeur minimale de d</translation>
    </message>
    <message>
        <source>D-value Minimum</source>
        <translation>Valeur minimale de d</translation>
    </message>
    <message>
        <source>Angstroms, above 0; the list grows with 1/d cubed.</source>
        <translation>Angströms, au-dessus de 0 ; la liste croît avec le cube de 1/d.</translation>
    </message>
    <message>
        <source>without a number above 0 the question comes again, without end</source>
        <translation>sans nombre au-dessus de 0 la question revient sans fin</translation>
    </message>
    <message>
        <source>the smallest d</source>
        <translation>le plus petit d</translation>
    </message>
    <message>
        <source>the unit cell needs a space group, none has been chosen</source>
        <translation>la maille demande un groupe d'espace, aucun n'est choisi</translation>
    </message>
    <message>
        <source>No Scattering factor table</source>
        <translation>Pas de table des facteurs de diffusion</translation>
    </message>
    <message>
        <source>%1, line %2: the table holds 200 lines of atoms at most</source>
        <translation>%1, ligne %2 : la table a au plus 200 lignes d'atomes</translation>
    </message>
    <message>
        <source>not taken: the empty first cell of row %1 ends the table</source>
        <translation>non pris : la première cellule vide de la ligne %1 termine la table</translation>
    </message>
    <message>
        <source>"%1" is not a number, it counts as %2</source>
        <translation>« %1 » n'est pas un nombre, il compte pour %2</translation>
    </message>
    <message>
        <source>the same site as row %1, both count as one</source>
        <translation>le même site que la ligne %1, les deux comptent pour un</translation>
    </message>
    <message>
        <source>in the place of row %1, together with an occupancy of %2</source>
        <translation>à la place de la ligne %1, ensemble avec une occupation de %2</translation>
    </message>
    <message>
        <source>outside %1 to %2</source>
        <translation>hors de %1 à %2</translation>
    </message>
    <message>
        <source>no element: the atom scatters nothing</source>
        <translation>pas d'élément : l'atome ne diffuse rien</translation>
    </message>
    <message>
        <source>no scattering factors for "%1": the atom scatters nothing</source>
        <translation>pas de facteurs de diffusion pour « %1 » : l'atome ne diffuse rien</translation>
    </message>
    <message>
        <source>empty: an occupancy of 0, the atom scatters nothing</source>
        <translation>vide : occupation 0, l'atome ne diffuse rien</translation>
    </message>
    <message>
        <source>below 0: the atom would scatter more at higher angles</source>
        <translation>au-dessous de 0 : l'atome diffuserait plus aux grands angles</translation>
    </message>
    <message>
        <source>not whole: no reflection has this index</source>
        <translation>non entier : aucune réflexion n'a cet indice</translation>
    </message>
    <message>
        <source>below 0</source>
        <translation>au-dessous de 0</translation>
    </message>
    <message>
        <source>the same indices as row %1</source>
        <translation>les mêmes indices que la ligne %1</translation>
    </message>
    <message>
        <source>no space group has been chosen</source>
        <translation>aucun groupe d'espace n'est choisi</translation>
    </message>
    <message>
        <source>Site Name</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Occupancy</source>
        <translation>Occupation</translation>
    </message>
    <message>
        <source>there are no atoms to save</source>
        <translation>il n'y a pas d'atomes à enregistrer</translation>
    </message>
    <message>
        <source>Open structure file</source>
        <translation>Ouvrir un fichier de structure</translation>
    </message>
    <message>
        <source>Save as CIF</source>
        <translation>Enregistrer en CIF</translation>
    </message>
    <message>
        <source>there are no operators of space group %1 with the axes "%2"</source>
        <translation>il n'y a pas d'opérateurs du groupe d'espace %1 avec les axes « %2 »</translation>
    </message>
    <message>
        <source>"%1" of atom %2 is no element</source>
        <translation>« %1 » de l'atome %2 n'est pas un élément</translation>
    </message>
    <message>
        <source>this is the last cell: there is no next row</source>
        <translation>c'est la dernière cellule : il n'y a pas de ligne suivante</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%L1 : %L2</translation>
    </message>
    <message>
        <source>the measured pattern has %1 points where the curve is calculated, expected are four or more</source>
        <translation>le diagramme mesuré a %1 points là où la courbe est calculée, il en faut quatre ou plus</translation>
    </message>
    <message>
        <source>no scale above 0 brings the calculated curve onto the measured pattern: one is flat, or falls where the other rises</source>
        <translation>aucune échelle au-dessus de 0 n'amène la courbe calculée sur le diagramme mesuré : l'un est plat, ou descend où l'autre monte</translation>
    </message>
    <message>
        <source>it has no scan with two columns</source>
        <translation>il n'a pas de balayage à deux colonnes</translation>
    </message>
    <message>
        <source>%1 begins with other bytes</source>
        <translation>%1 commence par d'autres octets</translation>
    </message>
    <message>
        <source>the interference function cannot have %1 steps along an axis</source>
        <translation>la fonction d'interférence ne peut avoir %1 pas selon un axe</translation>
    </message>
    <message>
        <source>the crystallite size %1</source>
        <translation>la taille %1 du cristallite</translation>
    </message>
    <message>
        <source>the interference grid has %1 x %2 x %3 points, at most 32767 are possible: P, Q or R is too small</source>
        <translation>la grille d'interférence a %1 x %2 x %3 points, 32767 au plus sont possibles : P, Q ou R est trop petit</translation>
    </message>
    <message>
        <source>the histogram would end at bin %1, the last one possible is 32767: Dmin is too small</source>
        <translation>l'histogramme finirait à la classe %1, la dernière possible est 32767 : Dmin est trop petit</translation>
    </message>
    <message>
        <source>the line width</source>
        <translation>la largeur de raie</translation>
    </message>
    <message>
        <source>the intensity at full height (DisplayMax)</source>
        <translation>l'intensité à pleine hauteur (DisplayMax)</translation>
    </message>
    <message>
        <source>the intensity at full height (DisplayMax, which "Clear" sets to 0)</source>
        <translation>l'intensité à pleine hauteur (DisplayMax, mise à 0 par « Effacer »)</translation>
    </message>
    <message>
        <source>the largest intensity (PeakMax, which "Clear" sets to 0)</source>
        <translation>la plus grande intensité (PeakMax, mise à 0 par « Effacer »)</translation>
    </message>
    <message>
        <source>the width of the pattern in 2-theta</source>
        <translation>la largeur du diagramme en 2-thêta</translation>
    </message>
    <message>
        <source>the width of the pattern in 1/d</source>
        <translation>la largeur du diagramme en 1/d</translation>
    </message>
    <message>
        <source>%1 has %2 points, expected are two or more</source>
        <translation>%1 a %2 points, il en faut deux ou plus</translation>
    </message>
    <message>
        <source>%1: no line has two numbers, %2</source>
        <translation>%1 : aucune ligne n'a deux nombres, %L2</translation>
    </message>
    <message>
        <source>%1, line %2: "%3", expected are two numbers, %4</source>
        <translation>%1, ligne %2 : « %3 », deux nombres sont attendus, %L4</translation>
    </message>
    <message>
        <source>the place and the intensity</source>
        <translation>la place et l'intensité</translation>
    </message>
    <message>
        <source>the spacing d and the intensity</source>
        <translation>la distance d et l'intensité</translation>
    </message>
    <message>
        <source>Add measured pattern...</source>
        <translation>Ajouter un diagramme mesuré...</translation>
    </message>
    <message>
        <source>Remove measured pattern</source>
        <translation>Retirer le diagramme mesuré</translation>
    </message>
    <message>
        <source>Fit to measured pattern</source>
        <translation>Ajuster au diagramme mesuré</translation>
    </message>
    <message>
        <source>Add list of lines...</source>
        <translation>Ajouter une liste de raies...</translation>
    </message>
    <message>
        <source>Remove lists of lines</source>
        <translation>Retirer les listes de raies</translation>
    </message>
    <message>
        <source>measured: scale</source>
        <translation>mesuré : échelle</translation>
    </message>
    <message>
        <source>offset</source>
        <translation>fond</translation>
    </message>
    <message>
        <source>zero</source>
        <translation>zéro</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>K-alpha 1 and K-alpha 2</source>
        <translation>K-alpha 1 et K-alpha 2</translation>
    </message>
    <message>
        <source>there is no measured pattern: "Add measured pattern..." reads one</source>
        <translation>il n'y a pas de diagramme mesuré : « Ajouter un diagramme mesuré... » en prend un</translation>
    </message>
    <message>
        <source>there is no list of lines</source>
        <translation>il n'y a pas de liste de raies</translation>
    </message>
    <message>
        <source>the wavelength is that of no known tube: Cr, Fe, Co, Cu or Mo</source>
        <translation>la longueur d'onde n'est celle d'aucun tube connu : Cr, Fe, Co, Cu ou Mo</translation>
    </message>
    <message>
        <source>takes the measured pattern away</source>
        <translation>enlève le diagramme mesuré</translation>
    </message>
    <message>
        <source>scale, offset and zero by least squares</source>
        <translation>échelle, fond et zéro par moindres carrés</translation>
    </message>
    <message>
        <source>a text file with d and I in each line, shown as sticks</source>
        <translation>un fichier texte avec d et I à chaque ligne, montré en bâtons</translation>
    </message>
    <message>
        <source>takes the sticks away</source>
        <translation>enlève les bâtons</translation>
    </message>
    <message>
        <source>adds the curve of both lines of the tube, the second half as strong as the first</source>
        <translation>ajoute la courbe des deux raies du tube, la seconde moitié moins forte que la première</translation>
    </message>
    <message>
        <source>measured units for one per cent of the highest calculated sample; above 0</source>
        <translation>unités mesurées pour un pour cent du plus haut point calculé ; au-dessus de 0</translation>
    </message>
    <message>
        <source>constant background, in measured units</source>
        <translation>fond constant, en unités mesurées</translation>
    </message>
    <message>
        <source>what the instrument adds to the place</source>
        <translation>ce que l'appareil ajoute à la place</translation>
    </message>
    <message>
        <source>finds scale, offset and zero by least squares</source>
        <translation>trouve échelle, fond et zéro par moindres carrés</translation>
    </message>
    <message>
        <source>what is left of the measured intensities: R-wp in per cent</source>
        <translation>ce qui reste des intensités mesurées : R-wp en pour cent</translation>
    </message>
    <message>
        <source>the scale has to be above 0</source>
        <translation>l'échelle doit dépasser 0</translation>
    </message>
    <message>
        <source>Measured pattern</source>
        <translation>Diagramme mesuré</translation>
    </message>
    <message>
        <source>there is no measured pattern</source>
        <translation>il n'y a pas de diagramme mesuré</translation>
    </message>
    <message>
        <source>there is no calculated curve: press "CALC" first</source>
        <translation>il n'y a pas de courbe calculée : « CALCULER » en fait une</translation>
    </message>
    <message>
        <source>List of lines</source>
        <translation>Liste de raies</translation>
    </message>
    <message>
        <source>the wavelength, %1 angstroms, is that of no known tube: expected is K-alpha of Cr, Fe, Co, Cu or Mo</source>
        <translation>la longueur d'onde, %1 angströms, n'est celle d'aucun tube connu : K-alpha de Cr, Fe, Co, Cu ou Mo est attendu</translation>
    </message>
    <message>
        <source>CALC draws the diagram</source>
        <translation>CALCULER dessine le diagramme</translation>
    </message>
    <message>
        <source>the end of the profile, d*-max, is 0</source>
        <translation>la fin du profil, d* max, vaut 0</translation>
    </message>
    <message>
        <source>there is no curve yet: press "CALC" first</source>
        <translation>il n'y a pas encore de courbe : « CALCULER » en fait une</translation>
    </message>
    <message>
        <source>"Clear" has removed the curve: press "CALC" first</source>
        <translation>« Effacer » a enlevé la courbe : d'abord « CALCULER »</translation>
    </message>
    <message>
        <source>the curve does not reach to this place</source>
        <translation>la courbe ne va pas jusque-là</translation>
    </message>
    <message>
        <source>the intensities are those of X-rays</source>
        <translation>les intensités sont celles des rayons X</translation>
    </message>
    <message>
        <source>the intensities are those of electrons</source>
        <translation>les intensités sont celles des électrons</translation>
    </message>
    <message>
        <source>the half width is 0</source>
        <translation>la largeur à mi-hauteur vaut 0</translation>
    </message>
    <message>
        <source>the half width is below the step of the samples, %1: heights of peaks are wrong</source>
        <translation>la largeur à mi-hauteur est sous le pas des points, %1 : les hauteurs des pics sont fausses</translation>
    </message>
    <message>
        <source>2theta.min and 2theta.max are the same</source>
        <translation>2thêta min et 2thêta max sont égaux</translation>
    </message>
    <message>
        <source>an intensity of 0 cannot be drawn at full height</source>
        <translation>une intensité de 0 ne peut être dessinée à pleine hauteur</translation>
    </message>
    <message>
        <source>a fiber texture needs two reflections or more, the list has %1</source>
        <translation>une texture de fibre demande deux réflexions ou plus, la liste en a %1</translation>
    </message>
    <message>
        <source>overflow: %1 is %2, its power %3 is not a number</source>
        <translation>dépassement : %L1 vaut %2, sa puissance %3 n'est pas un nombre</translation>
    </message>
    <message>
        <source>the intensity that maps to black (DisplayScale)</source>
        <translation>l'intensité qui devient noire (DisplayScale)</translation>
    </message>
    <message>
        <source>the relative intensity</source>
        <translation>l'intensité relative</translation>
    </message>
    <message>
        <source>the strongest intensity</source>
        <translation>la plus forte intensité</translation>
    </message>
    <message>
        <source>the dispersion</source>
        <translation>la dispersion</translation>
    </message>
    <message>
        <source>the length of the fiber direction</source>
        <translation>la longueur de la direction de fibre</translation>
    </message>
    <message>
        <source>the length of the zone axis</source>
        <translation>la longueur de l'axe de zone</translation>
    </message>
    <message>
        <source>the length of the reference reflection</source>
        <translation>la longueur de la réflexion de référence</translation>
    </message>
    <message>
        <source>the zone axis has no length</source>
        <translation>l'axe de zone n'a pas de longueur</translation>
    </message>
    <message>
        <source>the length of the zone axis or of a direction</source>
        <translation>la longueur de l'axe de zone ou d'une direction</translation>
    </message>
    <message>
        <source>the length of a direction</source>
        <translation>la longueur d'une direction</translation>
    </message>
    <message>
        <source>the length of a plane</source>
        <translation>la longueur d'un plan</translation>
    </message>
    <message>
        <source>the wavelength</source>
        <translation>la longueur d'onde</translation>
    </message>
    <message>
        <source>the fiber direction H, K, L is 0 0 0</source>
        <translation>la direction de fibre H, K, L est 0 0 0</translation>
    </message>
    <message>
        <source>it draws the spot pattern, not this one</source>
        <translation>il dessine le cliché de taches, pas celui-ci</translation>
    </message>
    <message>
        <source>%1 input fontsize</source>
        <translation>%1 entrer la taille de police</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Taille de police</translation>
    </message>
    <message>
        <source>Points, above 0 and up to 2160; 8 is usual.</source>
        <translation>Points, au-dessus de 0 et jusqu'à 2160 ; 8 est usuel.</translation>
    </message>
    <message>
        <source>this is not a font size</source>
        <translation>ce n'est pas une taille de police</translation>
    </message>
    <message>
        <source>the font size is "%1", must be a number of points</source>
        <translation>la taille de police est « %1 », elle doit être un nombre de points</translation>
    </message>
    <message>
        <source>the font size is %1 points, must be above 0 and at most %2</source>
        <translation>la taille de police est de %1 points, elle doit être entre 0 et %2</translation>
    </message>
    <message>
        <source>%1 Input Diffraction spot size (% of the picture width)</source>
        <translation>%1 entrer la taille des taches (% de la largeur de l'image)</translation>
    </message>
    <message>
        <source>Above 0; with more than 10 the spots cover one another.</source>
        <translation>Au-dessus de 0 ; à plus de 10 les taches se couvrent.</translation>
    </message>
    <message>
        <source>without a size above 0 the first one is taken</source>
        <translation>sans taille au-dessus de 0 la première est prise</translation>
    </message>
    <message>
        <source>no spot of this size shows</source>
        <translation>aucune tache de cette taille ne se voit</translation>
    </message>
    <message>
        <source>the spot size</source>
        <translation>la taille des taches</translation>
    </message>
    <message>
        <source>%1 Input Rotation Angle Minimum (deg.)</source>
        <translation>%1 entrer le pas de rotation (degrés)</translation>
    </message>
    <message>
        <source>Degrees; with 0 nothing turns.</source>
        <translation>Degrés ; avec 0 rien ne tourne.</translation>
    </message>
    <message>
        <source>with 0 degrees nothing turns</source>
        <translation>avec 0 degré rien ne tourne</translation>
    </message>
    <message>
        <source>the rotation angle pitch</source>
        <translation>le pas de rotation</translation>
    </message>
    <message>
        <source>%1 Input size of image</source>
        <translation>%1 entrer la taille de l'image</translation>
    </message>
    <message>
        <source>Twips, 15 to a pixel, of both edges: 7500 gives 500 pixels. The largest is 122880, the least 15; 0 leaves it.</source>
        <translation>Twips des côtés, 15 par pixel : 7500 donne 500 pixels. Le plus grand est 122880, le moindre 15 ; 0 la laisse.</translation>
    </message>
    <message>
        <source>a picture of this size has no pixels</source>
        <translation>une image de cette taille n'a pas de pixels</translation>
    </message>
    <message>
        <source>no picture of more than 8192 pixels can be made</source>
        <translation>aucune image de plus de 8192 pixels n'est possible</translation>
    </message>
    <message>
        <source>the image size</source>
        <translation>la taille de l'image</translation>
    </message>
    <message>
        <source>Type a direction and press Calc</source>
        <translation>Taper une direction et presser « Calculer »</translation>
    </message>
    <message>
        <source>the cosine of a latitude</source>
        <translation>le cosinus d'une latitude</translation>
    </message>
    <message>
        <source>index 1 of the reflection list, which is empty ("Calc" makes it)</source>
        <translation>indice 1 de la liste des réflexions, qui est vide (« Calculer » la fait)</translation>
    </message>
    <message>
        <source>the zoom pitch is 0 (Option, Zoom pitch)</source>
        <translation>le pas de zoom est 0 (Option, Pas de zoom)</translation>
    </message>
    <message>
        <source>nothing is drawn yet: "Calc" first</source>
        <translation>rien n'est encore dessiné : d'abord « Calculer »</translation>
    </message>
    <message>
        <source>no axis has been found: click the picture first</source>
        <translation>aucun axe trouvé : cliquer d'abord l'image</translation>
    </message>
    <message>
        <source>h, k, l of the mark are 0 0 0</source>
        <translation>h, k, l de la marque sont 0 0 0</translation>
    </message>
    <message>
        <source>the bands are those of a list that is gone: draw them again</source>
        <translation>les bandes sont celles d'une liste disparue : les redessiner</translation>
    </message>
    <message>
        <source>the zoom increment</source>
        <translation>le pas de zoom</translation>
    </message>
    <message>
        <source>[%1] Input Shift Angle  (deg.)</source>
        <translation>[%1] entrer le pas de déplacement (degrés)</translation>
    </message>
    <message>
        <source>Shift Angle Pitch</source>
        <translation>Pas de déplacement</translation>
    </message>
    <message>
        <source>with 0 degrees the arrows shift nothing</source>
        <translation>avec 0 degré les flèches ne déplacent rien</translation>
    </message>
    <message>
        <source>[%1] Input Zoom increment (ratio)</source>
        <translation>[%1] entrer le pas de zoom (rapport)</translation>
    </message>
    <message>
        <source>Zoom increment</source>
        <translation>Pas de zoom</translation>
    </message>
    <message>
        <source>with 0 "Zoom Up" ends the program</source>
        <translation>avec 0 « Agrandir » arrête le programme</translation>
    </message>
    <message>
        <source>beyond the half sphere</source>
        <translation>au-delà de l'hémisphère</translation>
    </message>
    <message>
        <source>Calc of the Kikuchi window fills the map</source>
        <translation>« Calculer » de la fenêtre de Kikuchi remplit la carte</translation>
    </message>
    <message>
        <source>the map cannot be made larger: it would turn over</source>
        <translation>la carte ne peut être agrandie : elle se retournerait</translation>
    </message>
    <message>
        <source>Det Error Div. By Zero</source>
        <translation>déterminant nul</translation>
    </message>
    <message>
        <source>No Real Ans.</source>
        <translation>pas de solution réelle</translation>
    </message>
    <message>
        <source>the tangent of the acquisition angle</source>
        <translation>la tangente de l'angle d'acquisition</translation>
    </message>
    <message>
        <source>the detector area</source>
        <translation>la taille du détecteur</translation>
    </message>
    <message>
        <source>the detector position</source>
        <translation>la position du détecteur</translation>
    </message>
    <message>
        <source>the distance of the two poles</source>
        <translation>la distance des deux pôles</translation>
    </message>
    <message>
        <source>the number of a row</source>
        <translation>le numéro d'une ligne</translation>
    </message>
    <message>
        <source>the shift of a row</source>
        <translation>le décalage d'une ligne</translation>
    </message>
    <message>
        <source>the shift %1 must be 0 to 511</source>
        <translation>le décalage %1 doit être entre 0 et 511</translation>
    </message>
    <message>
        <source>Drop a measured pattern here, or Image &gt; LOAD. Then draw three lines along bands and press CALC</source>
        <translation>Déposer ici un cliché mesuré, ou Image &gt; CHARGER. Puis tracer trois lignes le long de bandes et presser CALCULER</translation>
    </message>
    <message>
        <source>no lines are picked</source>
        <translation>aucune ligne posée</translation>
    </message>
    <message>
        <source>%1 of %2 lines are picked</source>
        <translation>%1 lignes posées sur %2</translation>
    </message>
    <message>
        <source>the area is 0 degrees</source>
        <translation>l'ouverture est de 0 degré</translation>
    </message>
    <message>
        <source>there is no solution of this number to adjust</source>
        <translation>il n'y a pas de solution du numéro pour lequel on ajuste</translation>
    </message>
    <message>
        <source>no picture is loaded</source>
        <translation>aucune image chargée</translation>
    </message>
    <message>
        <source>the corrector file is missing</source>
        <translation>le fichier de correction manque</translation>
    </message>
    <message>
        <source>the markers of the two poles are not set, or at the same height</source>
        <translation>les repères des deux pôles ne sont pas posés, ou à la même hauteur</translation>
    </message>
    <message>
        <source>this line is the number of solutions, not a solution</source>
        <translation>cette ligne est le nombre de solutions, pas une solution</translation>
    </message>
    <message>
        <source>a click without a drag draws the line to the corner</source>
        <translation>un clic sans tirer mène la ligne au coin</translation>
    </message>
    <message>
        <source>no list has fewer than 0 reflections</source>
        <translation>aucune liste n'a moins de 0 réflexion</translation>
    </message>
    <message>
        <source>[%1] Input matching method (0:triangle and direction 1:only triangle)</source>
        <translation>[%1] entrer la méthode (0 : triangle et sens, 1 : triangle seul)</translation>
    </message>
    <message>
        <source>the matching method</source>
        <translation>la méthode de comparaison</translation>
    </message>
    <message>
        <source>[%1] Equivalent solution (0:Display 1:Omitt)</source>
        <translation>[%1] Solutions équivalentes (0 : montrer, 1 : omettre)</translation>
    </message>
    <message>
        <source>Equivale solution</source>
        <translation>Solutions équivalentes</translation>
    </message>
    <message>
        <source>the choice of solutions</source>
        <translation>le choix des solutions</translation>
    </message>
    <message>
        <source>Take back the last line</source>
        <translation>Reprendre la dernière ligne</translation>
    </message>
    <message>
        <source>the acceleration voltage is not above 0</source>
        <translation>la tension d'accélération n'est pas au-dessus de 0</translation>
    </message>
    <message>
        <source>an element of the crystal has no scattering factor</source>
        <translation>un élément du cristal n'a pas de facteur de diffusion</translation>
    </message>
    <message>
        <source>the crystal has no reflection of any intensity: it needs atoms or observed lines</source>
        <translation>le cristal n'a aucune réflexion d'intensité : il lui faut des atomes ou des raies observées</translation>
    </message>
    <message>
        <source>the crystal has fewer than three families of planes to index with</source>
        <translation>le cristal a moins de trois familles de plans pour indexer</translation>
    </message>
    <message>
        <source>the picture is blank: it has no contrast to find bands in</source>
        <translation>l'image est vide : elle n'a pas de contraste où trouver des bandes</translation>
    </message>
    <message>
        <source>only %1 bands were found, three are needed</source>
        <translation>seulement %1 bandes trouvées, il en faut trois</translation>
    </message>
    <message>
        <source>there is no solution yet: press Index</source>
        <translation>pas encore de solution : presser « Indexer »</translation>
    </message>
    <message>
        <source>there is no picture: load one in PATTERN3 (Image, LOAD)</source>
        <translation>il n'y a pas d'image : en charger une dans PATTERN3 (Image, CHARGER)</translation>
    </message>
    <message>
        <source>%1 bands, but no orientation explains three of them</source>
        <translation>%1 bandes, mais aucune orientation n'en explique trois</translation>
    </message>
    <message>
        <source>%1: %2 of %3 bands, off by %4 deg, correlation %5, confidence %6</source>
        <translation>%1 : %2 bandes sur %3, écart %4°, corrélation %5, confiance %6</translation>
    </message>
    <message>
        <source>%1; centre good to %2, %3, %4 % of the width</source>
        <translation>%L1 ; centre à %2, %3, %4 % de la largeur</translation>
    </message>
    <message>
        <source>the half angle of PATTERN3, Area (deg.), is %1; it must lie between 0 and 89</source>
        <translation>le demi-angle de PATTERN3 est %1 ; il doit être entre 0 et 89</translation>
    </message>
    <message>
        <source>no orientation was found to refine the centre with</source>
        <translation>aucune orientation trouvée pour affiner le centre</translation>
    </message>
    <message>
        <source>a maker and its numbers are expected, as "bruker 0.5 0.25 0.6", or "emsoft 10 -20 15000 70" with the size of a pixel in micrometres</source>
        <translation>un fabricant et ses nombres sont attendus, comme « bruker 0.5 0.25 0.6 », ou « emsoft 10 -20 15000 70 » avec la taille d'un pixel en micromètres</translation>
    </message>
    <message>
        <source>"%1" is not a pattern centre: %2</source>
        <translation>« %1 » n'est pas un centre de cliché : %L2</translation>
    </message>
    <message>
        <source>"%1" is not a number: %2</source>
        <translation>« %1 » n'est pas un nombre : %L2</translation>
    </message>
    <message>
        <source>the specimen would be %1 widths from the screen; expected are 0.05 to 20</source>
        <translation>l'échantillon serait à %1 largeurs de l'écran ; 0.05 à 20 sont attendus</translation>
    </message>
    <message>
        <source>the pattern centre would lie %1, %2 widths from the upper left corner; expected are less than 3</source>
        <translation>le centre serait à %1, %2 largeurs du coin supérieur gauche ; moins de 3 sont attendus</translation>
    </message>
    <message>
        <source>Pattern centre of the detector software: bruker, edax, oxford or emsoft and its three numbers, as edax 0.52 0.76 0.80</source>
        <translation>Centre du cliché donné par le logiciel du détecteur : bruker, edax, oxford ou emsoft et ses trois nombres, comme edax 0.52 0.76 0.80</translation>
    </message>
    <message>
        <source>fewer than three bands are clear enough to be taken</source>
        <translation>moins de trois bandes sont assez nettes pour être prises</translation>
    </message>
    <message>
        <source>pick a family in the list first</source>
        <translation>choisir d'abord une famille dans la liste</translation>
    </message>
    <message>
        <source>pick a crystal in the list first</source>
        <translation>choisir d'abord un cristal dans la liste</translation>
    </message>
    <message>
        <source>the cell constants make no cell</source>
        <translation>les paramètres ne forment pas de maille</translation>
    </message>
    <message>
        <source>present crystal</source>
        <translation>cristal présent</translation>
    </message>
    <message>
        <source>there is no crystal: load one in the main window, or add a crystal file</source>
        <translation>il n'y a pas de cristal : en charger un dans la fenêtre principale, ou ajouter un fichier</translation>
    </message>
    <message>
        <source>the simulation needs the reflection list: press Calc in the main window</source>
        <translation>la simulation demande la liste des réflexions : presser « Calculer » dans la fenêtre principale</translation>
    </message>
    <message>
        <source>the zone axis is zero</source>
        <translation>l'axe de zone est nul</translation>
    </message>
    <message>
        <source>the zone axis has no reference reflection</source>
        <translation>l'axe de zone n'a pas de réflexion de référence</translation>
    </message>
    <message>
        <source>there is no crystal: load one in the main window</source>
        <translation>il n'y a pas de cristal : en charger un dans la fenêtre principale</translation>
    </message>
    <message>
        <source>the squared distance of two atoms</source>
        <translation>le carré de la distance de deux atomes</translation>
    </message>
    <message>
        <source>the largest distance is not above 0</source>
        <translation>la distance maximale n'est pas au-dessus de 0</translation>
    </message>
    <message>
        <source>length_1 is 0</source>
        <translation>longueur_1 vaut 0</translation>
    </message>
    <message>
        <source>u, v, w are 0 0 0</source>
        <translation>u, v, w sont 0 0 0</translation>
    </message>
    <message>
        <source>h, k, l are 0 0 0</source>
        <translation>h, k, l sont 0 0 0</translation>
    </message>
    <message>
        <source>Phi-1 calc=%1</source>
        <translation>Phi-1 calc.=%1</translation>
    </message>
    <message>
        <source>Phi-2 calc=%1</source>
        <translation>Phi-2 calc.=%1</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>triclinic</source>
        <translation>triclinique</translation>
    </message>
    <message>
        <source>monoclinic</source>
        <translation>monoclinique</translation>
    </message>
    <message>
        <source>orthorhombic</source>
        <translation>orthorhombique</translation>
    </message>
    <message>
        <source>tetragonal</source>
        <translation>tétragonal</translation>
    </message>
    <message>
        <source>trigonal</source>
        <translation>trigonal</translation>
    </message>
    <message>
        <source>rhombohedral</source>
        <translation>rhomboédrique</translation>
    </message>
    <message>
        <source>hexagonal</source>
        <translation>hexagonal</translation>
    </message>
    <message>
        <source>cubic</source>
        <translation>cubique</translation>
    </message>
    <message>
        <source>the position of the site "%1" is not a finite number</source>
        <translation>la position du site « %1 » n'est pas un nombre fini</translation>
    </message>
    <message>
        <source>the product of two symmetry operators has no exact form</source>
        <translation>le produit de deux opérateurs de symétrie n'a pas de forme exacte</translation>
    </message>
    <message>
        <source>its first letter is not a lattice</source>
        <translation>sa première lettre n'est pas un réseau</translation>
    </message>
    <message>
        <source>"%1" is not a translation</source>
        <translation>« %1 » n'est pas une translation</translation>
    </message>
    <message>
        <source>"%1" has no order of a rotation</source>
        <translation>« %1 » n'a pas d'ordre de rotation</translation>
    </message>
    <message>
        <source>three numbers are expected in its brackets</source>
        <translation>trois nombres sont attendus entre ses parenthèses</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>images of %1 lie closer than %2 angstroms; by their occupancies they are a split site, and stay apart</source>
        <translation>des images de %1 sont à moins de %2 angströms ; d'après les occupations c'est un site dédoublé, elles restent séparées</translation>
    </message>
    <message>
        <source>the %1 symmetry operators do not form a group; the %2 that they make are taken</source>
        <translation>les %1 opérateurs de symétrie ne sont pas un groupe ; les %2 qu'ils engendrent sont pris</translation>
    </message>
    <message>
        <source>the %1 symmetry operators do not belong to %2, which has %3; the operators count</source>
        <translation>les %1 opérateurs de symétrie n'appartiennent pas à %2, qui en a %3 ; les opérateurs comptent</translation>
    </message>
    <message>
        <source>the only symmetry operator is the identity, although the file says %1; the atoms are taken as they are listed</source>
        <translation>le seul opérateur de symétrie est l'identité, bien que le fichier dise %1 ; les atomes sont pris comme ils sont listés</translation>
    </message>
    <message>
        <source>the only symmetry operator is the identity; those of %1 are taken</source>
        <translation>le seul opérateur de symétrie est l'identité ; ceux de %1 sont pris</translation>
    </message>
    <message>
        <source>the symmetry operators make no finite group</source>
        <translation>les opérateurs de symétrie ne forment pas un groupe fini</translation>
    </message>
    <message>
        <source>H   K   L     k/2    D(A)   2-Theta     A       B       F      I(powder)</source>
        <translation>H   K   L     k/2    D(A)   2-Theta     A       B       F      I(poudre)</translation>
    </message>
    <message>
        <source>%1 begins with other bytes, expected is %2</source>
        <translation>%1 commence par d'autres octets, il faut %2</translation>
    </message>
    <message>
        <source>%1, %2: expected are two finite numbers</source>
        <translation>%1, %L2 : deux nombres finis sont attendus</translation>
    </message>
    <message>
        <source>%1, %2: %3 after %4, expected are places that %5 from one line to the next</source>
        <translation>%1, %L2 : %3 après %4, des places qui %L5 d'une ligne à l'autre sont attendues</translation>
    </message>
    <message>
        <source>rise</source>
        <translation>montent</translation>
    </message>
    <message>
        <source>fall</source>
        <translation>descendent</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>point %1</source>
        <translation>point %1</translation>
    </message>
    <message>
        <source>crystal axes from picture axes</source>
        <translation>axes du cristal d'après les axes de l'image</translation>
    </message>
    <message>
        <source>%1 has indices from 1 to 3</source>
        <translation>%1 a des indices de 1 à 3</translation>
    </message>
    <message>
        <source>h  k  l   n   d (A)   width  F2 (%)</source>
        <translation>h  k  l   n   d (A) largeur  F2 (%)</translation>
    </message>
    <message>
        <source>no  azimuth distance  width strength   h  k  l   off</source>
        <translation>no   azimut distance  larg.    force   h  k  l   éc.</translation>
    </message>
    <message>
        <source>no bands    off  corr. conf.      u      v      w   phi1    Phi   phi2</source>
        <translation>no band.    éc.  corr. conf.      u      v      w   phi1    Phi   phi2</translation>
    </message>
    <message>
        <source>cannot read %1 as a bitmap: %2</source>
        <translation>impossible de lire %1 comme bitmap : %L2</translation>
    </message>
    <message>
        <source>it is cut short: %1 goes to byte %2, there are %3</source>
        <translation>il est tronqué : %L1 va jusqu'à l'octet %2, il y en a %3</translation>
    </message>
    <message>
        <source>its header</source>
        <translation>son en-tête</translation>
    </message>
    <message>
        <source>its palette</source>
        <translation>sa palette</translation>
    </message>
    <message>
        <source>a bitmap (BMP) begins with the letters BM</source>
        <translation>un bitmap (BMP) commence par les lettres BM</translation>
    </message>
    <message>
        <source>its header is said to have %1 bytes; known are 12, 40, 64, 108 and 124</source>
        <translation>son en-tête aurait %1 octets ; connus sont 12, 40, 64, 108 et 124</translation>
    </message>
    <message>
        <source>its header says %1 x %2 pixels; %3</source>
        <translation>son en-tête dit %1 x %2 pixels ; %L3</translation>
    </message>
    <message>
        <source>a side has 1 to 32767, and 8192 x 8192 in all are possible</source>
        <translation>un côté a 1 à 32767, et 8192 x 8192 en tout sont possibles</translation>
    </message>
    <message>
        <source>its header says %1 bits per pixel in %2 planes with compression %3; 1, 4, 8, 16, 24 or 32 bits in 1 plane are possible, plain, run-length encoded or with bit fields</source>
        <translation>son en-tête dit %1 bits par pixel en %2 plans avec compression %3 ; possibles sont 1, 4, 8, 16, 24 ou 32 bits en 1 plan, simples, codés par plages ou avec champs de bits</translation>
    </message>
    <message>
        <source>its palette is said to have %1 colours; at most 256 are possible</source>
        <translation>sa palette aurait %1 couleurs ; 256 au plus sont possibles</translation>
    </message>
    <message>
        <source>it is cut short: %1 rows of %2 bytes need %3, there are %4, for %5 rows</source>
        <translation>il est tronqué : %1 lignes de %2 octets demandent %3, il y a %4, pour %5 lignes</translation>
    </message>
    <message>
        <source>%1 after pixel %2 of %3 in row %4 of %5</source>
        <translation>%L1 après le pixel %2 sur %3 dans la ligne %4 sur %5</translation>
    </message>
    <message>
        <source>it is cut short: it ends</source>
        <translation>il est tronqué : il finit</translation>
    </message>
    <message>
        <source>its run-length code leaves pixels out</source>
        <translation>son code par plages omet des pixels</translation>
    </message>
    <message>
        <source>its run-length code ends</source>
        <translation>son code par plages finit</translation>
    </message>
    <message>
        <source>its run-length code goes beyond the row</source>
        <translation>son code par plages dépasse la ligne</translation>
    </message>
    <message>
        <source>the picture %1 has no pixels here</source>
        <translation>l'image %1 n'a pas de pixels ici</translation>
    </message>
    <message>
        <source>there is no field %1</source>
        <translation>il n'y a pas de champ %1</translation>
    </message>
    <message>
        <source>%1 takes %2 indices</source>
        <translation>%1 prend %2 indices</translation>
    </message>
    <message>
        <source>there are no pixel images here</source>
        <translation>il n'y a pas d'images en pixels ici</translation>
    </message>
    <message>
        <source>the work to be kept has %1 parts, at most 4294967295 are possible</source>
        <translation>ce qui est à garder a %1 parties, 4294967295 au plus sont possibles</translation>
    </message>
    <message>
        <source>%1 takes no file</source>
        <translation>%1 ne prend pas de fichier</translation>
    </message>
    <message>
        <source>there is no %1 to be used</source>
        <translation>il n'y a pas de %1 à utiliser</translation>
    </message>
    <message>
        <source>there is no window %1</source>
        <translation>il n'y a pas de fenêtre %1</translation>
    </message>
    <message>
        <source>cannot lock a file in %1: %2</source>
        <translation>impossible de verrouiller un fichier dans %1 : %L2</translation>
    </message>
    <message>
        <source>neither HOME nor XDG_STATE_HOME names a folder</source>
        <translation>ni HOME ni XDG_STATE_HOME ne nomme un dossier</translation>
    </message>
    <message>
        <source>it is of format %1, this program reads format %2</source>
        <translation>il est au format %1, ce programme lit le format %2</translation>
    </message>
    <message>
        <source>new crystal</source>
        <translation>nouveau cristal</translation>
    </message>
    <message>
        <source>The pages of the user guide are not installed: %1 is missing.</source>
        <translation>Les pages du guide ne sont pas installées : %1 manque.</translation>
    </message>
    <message>
        <source>ended by a failure</source>
        <translation>terminé par une erreur</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>Qt's plug-in for it is missing (in Debian's package qt6-image-formats-plugins)</source>
        <translation>le greffon de Qt pour cela manque (paquet Debian qt6-image-formats-plugins)</translation>
    </message>
    <message>
        <source>Dark halo behind coloured lines</source>
        <translation>Halo sombre derrière les lignes colorées</translation>
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
        <translation>un diagramme d'un fichier, montré sous la courbe : .xy, .xye, .csv, .xrdml, .raw et autres</translation>
    </message>
    <message>
        <source>a simulated Kikuchi pattern of silicon, indexed automatically</source>
        <translation>un cliché de Kikuchi simulé de silicium, indexé automatiquement</translation>
    </message>
    <message>
        <source>an orientation is none</source>
        <translation>une orientation n'en est pas une</translation>
    </message>
    <message>
        <source>the planes of a crystal do not fit together</source>
        <translation>les plans d'un cristal ne vont pas ensemble</translation>
    </message>
    <message>
        <source>an orientation is of no crystal</source>
        <translation>une orientation n'est d'aucun cristal</translation>
    </message>
    <message>
        <source>the bands of an orientation are others</source>
        <translation>les bandes d'une orientation sont autres</translation>
    </message>
    <message>
        <source>CUBIC</source>
        <translation>CUBIQUE</translation>
    </message>
    <message>
        <source>Bonds and angles</source>
        <translation>Liaisons et angles</translation>
    </message>
    <message>
        <source>the bonds of each atom, the angles between them and the coordination numbers, in a window of their own</source>
        <translation>les liaisons de chaque atome, leurs angles et les coordinences, dans une fenêtre à part</translation>
    </message>
    <message>
        <source>Bonds up to (A)</source>
        <translation>Liaisons jusqu'à (A)</translation>
    </message>
    <message>
        <source>longest bond, in angstroms; empty: the bonds of an atom end at the first gap; Enter calculates</source>
        <translation>plus longue liaison, en angströms ; vide : les liaisons d'un atome finissent au premier écart ; Entrée calcule</translation>
    </message>
    <message>
        <source>First gap (%)</source>
        <translation>Premier écart (%)</translation>
    </message>
    <message>
        <source>the bonds of an atom end where the next atom is farther by more than this share of the distance; not used where a longest bond is given</source>
        <translation>les liaisons d'un atome finissent où le suivant est plus loin de plus que cette part de la distance ; sans effet si une plus longue liaison est donnée</translation>
    </message>
    <message>
        <source>bonds, angles and coordination numbers in the crystal as it is now</source>
        <translation>liaisons, angles et coordinences dans le cristal tel qu'il est</translation>
    </message>
    <message>
        <source>each atom of the asymmetric unit: element, coordination number, shortest, mean and longest bond, and the nearest atom that is not bonded, in angstroms</source>
        <translation>chaque atome de l'unité asymétrique : élément, coordinence, liaisons la plus courte, moyenne et la plus longue, et l'atome non lié le plus proche, en angströms</translation>
    </message>
    <message>
        <source>each bond: its two atoms, the distance in angstroms, and where the second atom is, in cell edges</source>
        <translation>chaque liaison : ses deux atomes, la distance en angströms, et où est le second atome, en arêtes de la maille</translation>
    </message>
    <message>
        <source>each two bonds of an atom: the angle at it in degrees, and the two distances in angstroms</source>
        <translation>chaque paire de liaisons d'un atome : l'angle en degrés et les deux distances en angströms</translation>
    </message>
    <message>
        <source>it asks more than is known of it</source>
        <translation>il demande plus qu'on n'en sait</translation>
    </message>
    <message>
        <source>%1: a number is expected, as in a=5.43</source>
        <translation>%1 : un nombre est attendu, comme dans a=5.43</translation>
    </message>
    <message>
        <source>%1: an element is expected after the sign, as in +Si</source>
        <translation>%1 : un élément est attendu après le signe, comme dans +Si</translation>
    </message>
    <message>
        <source>%1: there is no such space group or crystal system</source>
        <translation>%1 : il n'y a pas de tel groupe d'espace ou système cristallin</translation>
    </message>
    <message>
        <source>%1: a, b, c, alpha, beta, gamma, V, density or group are expected before the sign</source>
        <translation>%1 : a, b, c, alpha, beta, gamma, V, density ou group sont attendus avant le signe</translation>
    </message>
    <message>
        <source>how many reflections are equivalent, Friedel mates included</source>
        <translation>combien de réflexions sont équivalentes, paires de Friedel comprises</translation>
    </message>
    <message>
        <source>where a screw axis or a glide plane forbids the reflection</source>
        <translation>où un axe hélicoïdal ou un plan de glissement n'en laisse rien</translation>
    </message>
    <message>
        <source>the reflection that represents the family</source>
        <translation>la réflexion qui représente toute la famille</translation>
    </message>
    <message>
        <source>Atoms of the unit cell</source>
        <translation>Atomes de la maille</translation>
    </message>
    <message>
        <source>sin(theta)/lambda = 1/(2d), k/2 in the list</source>
        <translation>sin(thêta)/lambda = 1/(2d), k/2 dans la liste</translation>
    </message>
    <message>
        <source>real part of the structure factor</source>
        <translation>partie réelle du facteur de structure</translation>
    </message>
    <message>
        <source>imaginary part of the structure factor</source>
        <translation>partie imaginaire du facteur de structure</translation>
    </message>
    <message>
        <source>modulus of the structure factor</source>
        <translation>module du facteur de structure</translation>
    </message>
    <message>
        <source>width of a band, computed less measured</source>
        <translation>largeur d'une bande, calculée moins mesurée</translation>
    </message>
    <message>
        <source>planes of the family</source>
        <translation>plans de la famille</translation>
    </message>
    <message>
        <source>x: used, -: left out</source>
        <translation>x : utilisée, - : omise</translation>
    </message>
    <message>
        <source>from the plane of the picked solution</source>
        <translation>au plan de la solution choisie</translation>
    </message>
    <message>
        <source>bands that are explained</source>
        <translation>bandes expliquées</translation>
    </message>
    <message>
        <source>mean deviation of the bands</source>
        <translation>écart moyen des bandes</translation>
    </message>
    <message>
        <source>correlation with the picture</source>
        <translation>corrélation avec l'image</translation>
    </message>
    <message>
        <source>confidence</source>
        <translation>confiance</translation>
    </message>
    <message>
        <source>coordination number</source>
        <translation>coordinence</translation>
    </message>
    <message>
        <source>nearest atom that is not bonded</source>
        <translation>atome non lié le plus proche</translation>
    </message>
    <message>
        <source>of the second atom</source>
        <translation>du second atome</translation>
    </message>
    <message>
        <source>Space groups</source>
        <translation>Groupes d'espace</translation>
    </message>
    <message>
        <source>Bonds</source>
        <translation>Liaisons</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>Angles</translation>
    </message>
    <message>
        <source>Coordination</source>
        <translation>Coordinence</translation>
    </message>
    <message>
        <source>Multiplicity</source>
        <translation>Multiplicité</translation>
    </message>
    <message>
        <source>Systematic absences</source>
        <translation>Absences systématiques</translation>
    </message>
    <message>
        <source>Families of equivalents</source>
        <translation>Familles d'équivalents</translation>
    </message>
    <message>
        <source>Four indices h k i l</source>
        <translation>Quatre indices h k i l</translation>
    </message>
    <message>
        <source>Four indices U V T W</source>
        <translation>Quatre indices U V T W</translation>
    </message>
    <message>
        <source>atom    elem.    CN  shortest      mean   longest      next</source>
        <translation>atome   élém.    NC    courte   moyenne    longue   suivant</translation>
    </message>
    <message>
        <source>atom 1  elem. atom 2  elem.   distance         x         y         z</source>
        <translation>atome 1 élém. atome 2 élém.   distance         x         y         z</translation>
    </message>
    <message>
        <source>atom 1  centre  atom 2      angle       d 1       d 2</source>
        <translation>atome 1 centre  atome 2     angle       d 1       d 2</translation>
    </message>
    <message>
        <source>%1 is "%2"; expected is a number above 0, or nothing</source>
        <translation>%L1 est « %2 » ; un nombre au-dessus de 0, ou rien, est attendu</translation>
    </message>
    <message>
        <source>search for a space group</source>
        <translation>recherche d'un groupe d'espace</translation>
    </message>
    <message>
        <source>Fm-3m, 225, cubic</source>
        <translation>Fm-3m, 225, cubique</translation>
    </message>
    <message>
        <source>number, symbol or crystal system of a space group; Enter takes the first one found</source>
        <translation>numéro, symbole ou système cristallin d'un groupe d'espace ; Entrée prend le premier trouvé</translation>
    </message>
    <message>
        <source>Show as table</source>
        <translation>Montrer en table</translation>
    </message>
    <message>
        <source>Table: %1</source>
        <translation>Table : %L1</translation>
    </message>
    <message>
        <source>d&gt;1.5 h=1, or a word</source>
        <translation>d&gt;1.5 h=1, ou un mot</translation>
    </message>
    <message>
        <source>only rows that match all parts: a column compared by = &lt;&gt; &lt; &gt; &lt;= &gt;=, or any text</source>
        <translation>seulement les lignes où tout est vrai : une colonne comparée par = &lt;&gt; &lt; &gt; &lt;= &gt;=, ou un texte quelconque</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>columns that can be added to those of the list</source>
        <translation>ce qui peut s'ajouter aux colonnes de la liste</translation>
    </message>
    <message>
        <source>the selected rows, or all, with their heads, tabs between the cells</source>
        <translation>les lignes choisies, ou toutes, avec leurs têtes, des tabulations entre les cellules</translation>
    </message>
    <message>
        <source>Save as CSV...</source>
        <translation>Enregistrer en CSV...</translation>
    </message>
    <message>
        <source>all rows that are shown, in their order, to a file of comma-separated values</source>
        <translation>toutes les lignes montrées, dans leur ordre, dans un fichier de valeurs séparées par des virgules</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Trier par cette colonne</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 lignes sur %2</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Enregistrer en CSV</translation>
    </message>
    <message>
        <source>Crystal library</source>
        <translation>Bibliothèque de cristaux</translation>
    </message>
    <message>
        <source>reading file %1 of %2</source>
        <translation>lecture du fichier %1 sur %2</translation>
    </message>
    <message>
        <source>search in the crystal library</source>
        <translation>recherche dans la bibliothèque de cristaux</translation>
    </message>
    <message>
        <source>quartz, +Si -Al, Fm-3m, a=5.43</source>
        <translation>quartz, +Si -Al, Fm-3m, a=5.43</translation>
    </message>
    <message>
        <source>A crystal has to match all words:
quartz - in the name, the title or a folder
SiO2 - this formula
+Si -Al - with, without an element
225, Fm-3m, cubic - space group or crystal system
a=5.43 - within 1 %; a=5.43~0.01, a=5.4..5.5, a&gt;5; also b, c, alpha, beta, gamma, V, density</source>
        <translation>Mots qui doivent tous convenir :
quartz - dans le nom, le titre ou un dossier
SiO2 - cette formule
+Si -Al - avec, sans un élément
225, Fm-3m, cubic - groupe d'espace ou système cristallin
a=5.43 - à 1 % près ; a=5.43~0.01, a=5.4..5.5, a&gt;5 ; aussi b, c, alpha, beta, gamma, V, density</translation>
    </message>
    <message>
        <source>crystals</source>
        <translation>cristaux</translation>
    </message>
    <message>
        <source>Enter or a double click opens the crystal</source>
        <translation>Entrée ou un double clic ouvre le cristal</translation>
    </message>
    <message>
        <source>%1 crystals</source>
        <translation>%1 cristaux</translation>
    </message>
    <message>
        <source>%1 of %2 crystals</source>
        <translation>%1 cristaux sur %2</translation>
    </message>
    <message>
        <source>%1 crystals, %2</source>
        <translation>%1 cristaux, %L2</translation>
    </message>
    <message>
        <source>%1 of %2 crystals, %3</source>
        <translation>%1 cristaux sur %2, %L3</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formule</translation>
    </message>
    <message>
        <source>%1, of the strongest family</source>
        <translation>%1, de la plus forte famille</translation>
    </message>
    <message>
        <source>1 - cos^2 of a reciprocal angle</source>
        <translation>1 - cos^2 d'un angle réciproque</translation>
    </message>
    <message>
        <source>a number of the older layout</source>
        <translation>un nombre de l'ancienne disposition</translation>
    </message>
    <message>
        <source>atoms without coordinates left out: %1</source>
        <translation>atomes sans coordonnées omis : %1</translation>
    </message>
    <message>
        <source>atoms whose element is not known left out: %1</source>
        <translation>atomes d'élément inconnu omis : %1</translation>
    </message>
    <message>
        <source>there is not enough memory to read it</source>
        <translation>il n'y a pas assez de mémoire pour le lire</translation>
    </message>
    <message>
        <source>a count of atoms</source>
        <translation>un nombre d'atomes</translation>
    </message>
    <message>
        <source>a value refers to free variable %1, which is not there</source>
        <translation>une valeur renvoie à la variable libre %1, qui n'existe pas</translation>
    </message>
    <message>
        <source>the element of %1</source>
        <translation>l'élément de %1</translation>
    </message>
    <message>
        <source>density: %1 (the file says %2)</source>
        <translation>densité : %1 (le fichier dit %2)</translation>
    </message>
    <message>
        <source>Dmin (Main1.Text15)</source>
        <translation>Dmin (Main1.Text15)</translation>
    </message>
    <message>
        <source>%1, line %2: "%3" is taken for %4 (%5), a number and nothing else is expected</source>
        <translation>%1, ligne %2 : « %3 » est pris pour %L4 (%L5), un nombre et rien d'autre est attendu</translation>
    </message>
    <message>
        <source>there is no column for it</source>
        <translation>il n'y a pas de colonne pour lui</translation>
    </message>
    <message>
        <source>it is word %1</source>
        <translation>c'est le mot %1</translation>
    </message>
    <message>
        <source>a Bruker .raw file, which begins with RAW</source>
        <translation>un fichier .raw de Bruker, qui commence par RAW</translation>
    </message>
    <message>
        <source>a Philips %1 file</source>
        <translation>un fichier %1 de Philips</translation>
    </message>
    <message>
        <source>a Siemens or Bruker .uxd file</source>
        <translation>un fichier .uxd de Siemens ou Bruker</translation>
    </message>
    <message>
        <source>a Sietronics .cpi file</source>
        <translation>un fichier .cpi de Sietronics</translation>
    </message>
    <message>
        <source>the interference grid along an axis</source>
        <translation>la grille d'interférence selon un axe</translation>
    </message>
    <message>
        <source>the grid width</source>
        <translation>la largeur de la grille</translation>
    </message>
    <message>
        <source>the squared length of a reciprocal vector</source>
        <translation>le carré de la longueur d'un vecteur réciproque</translation>
    </message>
    <message>
        <source>sin(theta) of a peak</source>
        <translation>sin(thêta) d'un pic</translation>
    </message>
    <message>
        <source>1/d of a peak</source>
        <translation>1/d d'un pic</translation>
    </message>
    <message>
        <source>the distance from the beam</source>
        <translation>la distance au faisceau</translation>
    </message>
    <message>
        <source>the number of bins, 5000 / Dmin</source>
        <translation>le nombre de classes, 5000 / Dmin</translation>
    </message>
    <message>
        <source>the number of points of the interference grid</source>
        <translation>le nombre de points de la grille d'interférence</translation>
    </message>
    <message>
        <source>% of full height</source>
        <translation>% de la pleine hauteur</translation>
    </message>
    <message>
        <source>an arc of the fiber texture</source>
        <translation>un arc de la texture de fibre</translation>
    </message>
    <message>
        <source>1.0001 - cos^2 of a spot's azimuth</source>
        <translation>1.0001 - cos^2 de l'azimut d'une tache</translation>
    </message>
    <message>
        <source>the product of zone axis and reference reflection</source>
        <translation>le produit de l'axe de zone et de la réflexion de référence</translation>
    </message>
    <message>
        <source>the largest component of the direction</source>
        <translation>la plus grande composante de la direction</translation>
    </message>
    <message>
        <source>the sum of the indices of the normal plane</source>
        <translation>la somme des indices du plan normal</translation>
    </message>
    <message>
        <source>the length of the new axis</source>
        <translation>la longueur du nouvel axe</translation>
    </message>
    <message>
        <source>1 - cos^2 of old reference and new axis</source>
        <translation>1 - cos^2 de l'ancienne référence et du nouvel axe</translation>
    </message>
    <message>
        <source>the part of the old reference normal to the new axis</source>
        <translation>la part de l'ancienne référence normale au nouvel axe</translation>
    </message>
    <message>
        <source>the answer to "%1"</source>
        <translation>la réponse à « %L1 »</translation>
    </message>
    <message>
        <source>RefS of a reflection of the triple table</source>
        <translation>RefS d'une réflexion de la table des triplets</translation>
    </message>
    <message>
        <source>the largest component of a direction</source>
        <translation>la plus grande composante d'une direction</translation>
    </message>
    <message>
        <source>TripleS of a former solution</source>
        <translation>TripleS d'une solution antérieure</translation>
    </message>
    <message>
        <source>TripleI of a former solution</source>
        <translation>TripleI d'une solution antérieure</translation>
    </message>
    <message>
        <source>the height between the two markers</source>
        <translation>la hauteur entre les deux repères</translation>
    </message>
    <message>
        <source>the distance of the picture from the source</source>
        <translation>la distance de l'image à la source</translation>
    </message>
    <message>
        <source>the square term of a direction's length</source>
        <translation>le terme carré de la longueur d'une direction</translation>
    </message>
    <message>
        <source>the length of the reference vector of a direction</source>
        <translation>la longueur du vecteur de référence d'une direction</translation>
    </message>
    <message>
        <source>the cosine of a plane's latitude</source>
        <translation>le cosinus de la latitude d'un plan</translation>
    </message>
    <message>
        <source>the search for a direction</source>
        <translation>la recherche d'une direction</translation>
    </message>
    <message>
        <source>the cosine against the first rotation</source>
        <translation>le cosinus par rapport à la première rotation</translation>
    </message>
    <message>
        <source>the sum of the components of the equivalent vector (no cell or no vector)</source>
        <translation>la somme des composantes du vecteur équivalent (pas de maille ou pas de vecteur)</translation>
    </message>
    <message>
        <source>1 - cos^2 of the angle between two reciprocal vectors</source>
        <translation>1 - cos^2 de l'angle entre deux vecteurs réciproques</translation>
    </message>
    <message>
        <source>%1 sites have more than %2 bonds, whose angles are left out</source>
        <translation>%1 sites ont plus de %2 liaisons, dont les angles sont omis</translation>
    </message>
    <message>
        <source>"%1" (U+%2) is outside Latin-1</source>
        <translation>« %1 » (U+%2) est hors de Latin-1</translation>
    </message>
    <message>
        <source>families in the order of the list</source>
        <translation>familles dans l'ordre de la liste</translation>
    </message>
    <message>
        <source>rows of the list that belong to it</source>
        <translation>lignes de la liste qui en font partie</translation>
    </message>
    <message>
        <source>it holds a value of another type</source>
        <translation>il contient une valeur d'un autre type</translation>
    </message>
    <message>
        <source>it names a kind that there is none of</source>
        <translation>il nomme un genre qui n'existe pas</translation>
    </message>
    <message>
        <source>an array has more elements than room</source>
        <translation>un tableau a plus d'éléments que de place</translation>
    </message>
    <message>
        <source>an array has a bound of %1</source>
        <translation>un tableau a la borne %1</translation>
    </message>
    <message>
        <source>a table has too many columns</source>
        <translation>une table a trop de colonnes</translation>
    </message>
    <message>
        <source>its parts do not fit together</source>
        <translation>ses parties ne vont pas ensemble</translation>
    </message>
    <message>
        <source>neither HOME nor XDG_DATA_HOME names a folder for a copy of %1</source>
        <translation>ni HOME ni XDG_DATA_HOME ne nomme un dossier pour une copie de %1</translation>
    </message>
    <message>
        <source>its note is none</source>
        <translation>sa note n'en est pas une</translation>
    </message>
    <message>
        <source>there is something after its end</source>
        <translation>il y a quelque chose après sa fin</translation>
    </message>
    <message>
        <source>it is longer than what it holds</source>
        <translation>il est plus long que son contenu</translation>
    </message>
    <message>
        <source>it is cut short or damaged, or its pixels do not have 8 or 16 bits per colour</source>
        <translation>il est tronqué ou abîmé, ou ses pixels n'ont pas 8 ou 16 bits par couleur</translation>
    </message>
    <message>
        <source>a picture has %1 x %2 pixels of depth %3</source>
        <translation>une image a %1 x %2 pixels de profondeur %3</translation>
    </message>
    <message>
        <source>a grey picture has another depth</source>
        <translation>une image grise a une autre profondeur</translation>
    </message>
    <message>
        <source>a picture has another depth</source>
        <translation>une image a une autre profondeur</translation>
    </message>
    <message>
        <source>a picture has two sizes</source>
        <translation>une image a deux tailles</translation>
    </message>
    <message>
        <source>%1 was saved as a table</source>
        <translation>%1 enregistré en table</translation>
    </message>
    <message>
        <source>%1 is nothing that something is made from</source>
        <translation>%1 n'est rien dont quelque chose est fait</translation>
    </message>
    <message>
        <source>%1 has no widget</source>
        <translation>%1 n'a pas de widget</translation>
    </message>
    <message>
        <source>the box takes whole numbers up to %1</source>
        <translation>le champ prend des entiers jusqu'à %1</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>"%1" (%2) was clicked</source>
        <translation>clic sur « %L1 » (%2)</translation>
    </message>
    <message>
        <source>"%1" (%2) changed</source>
        <translation>« %L1 » (%2) changé</translation>
    </message>
    <message>
        <source>"%1" (%2) lost the focus</source>
        <translation>« %L1 » (%2) quitté</translation>
    </message>
    <message>
        <source>"%1" (%2) was moved</source>
        <translation>« %L1 » (%2) déplacé</translation>
    </message>
    <message>
        <source>Dynamical</source>
        <translation>Dynamique</translation>
    </message>
    <message>
        <source>fits the picture to the crystal's dynamical pattern, which takes some seconds to calculate</source>
        <translation>ajuste l'image au diagramme dynamique du cristal, dont le calcul prend quelques secondes</translation>
    </message>
    <message>
        <source>%1 has no dynamical pattern: %2</source>
        <translation>%1 n'a pas de diagramme dynamique : %L2</translation>
    </message>
    <message>
        <source>it has observed lines and no atoms</source>
        <translation>il a des raies observées et pas d'atomes</translation>
    </message>
    <message>
        <source>%1 is "%2"; expected is at most 15 angstroms</source>
        <translation>%1 vaut « %2 » ; au plus 15 ångströms sont attendus</translation>
    </message>
    <message>
        <source>MASTER PATTERN</source>
        <translation>DIAGRAMME MAÎTRE</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Voltage (kV)</source>
        <translation>Tension (kV)</translation>
    </message>
    <message>
        <source>acceleration voltage of the electrons, 1 to 400 kV; at first that of the program</source>
        <translation>tension d’accélération des électrons, de 1 à 400 kV ; au début celle du programme</translation>
    </message>
    <message>
        <source>Mean depth (nm)</source>
        <translation>Profondeur moyenne (nm)</translation>
    </message>
    <message>
        <source>mean depth that the electrons come from, nm</source>
        <translation>profondeur moyenne d’où viennent les électrons, nm</translation>
    </message>
    <message>
        <source>Points along a side</source>
        <translation>Points par côté</translation>
    </message>
    <message>
        <source>points along a side of the map of each half sphere, an odd number; the time grows with its square</source>
        <translation>points par côté de la carte de chaque demi-sphère, un nombre impair ; la durée croît comme son carré</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Calculer</translation>
    </message>
    <message>
        <source>computes the master pattern of the crystal by dynamical diffraction and draws it; Esc stops it</source>
        <translation>calcule le diagramme maître du cristal par diffraction dynamique et le dessine ; Échap l’arrête</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>Stéréographique</translation>
    </message>
    <message>
        <source>keeps angles; a to the right, c* in the middle</source>
        <translation>conserve les angles ; a vers la droite, c* au milieu</translation>
    </message>
    <message>
        <source>Equal area (square)</source>
        <translation>Équivalente (carré)</translation>
    </message>
    <message>
        <source>keeps areas: the map as it is computed and kept in files</source>
        <translation>conserve les aires : la carte telle qu’elle est calculée et gardée dans les fichiers</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Sphère</translation>
    </message>
    <message>
        <source>seen from outside; a drag turns it, with Ctrl about the middle</source>
        <translation>vue de l’extérieur ; glisser la tourne, avec Ctrl autour du milieu</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>the half around c*, of the flat views</source>
        <translation>la moitié autour de c*, des vues planes</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Sud</translation>
    </message>
    <message>
        <source>the half around -c*, seen through the sphere</source>
        <translation>la moitié autour de -c*, vue à travers la sphère</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>Zone axes</source>
        <translation>Axes de zone</translation>
    </message>
    <message>
        <source>[u v w] where strong bands meet, as many as there is room for</source>
        <translation>[u v w] où se croisent des bandes fortes, autant qu’il y a de place</translation>
    </message>
    <message>
        <source>(h k l) and the traces of the strongest planes</source>
        <translation>(h k l) et les traces des plans les plus forts</translation>
    </message>
    <message>
        <source>Middle of the sphere</source>
        <translation>Milieu de la sphère</translation>
    </message>
    <message>
        <source>u of the direction in the middle, along a</source>
        <translation>u de la direction au milieu, le long de a</translation>
    </message>
    <message>
        <source>v of the direction in the middle, along b</source>
        <translation>v de la direction au milieu, le long de b</translation>
    </message>
    <message>
        <source>w of the direction in the middle, along c</source>
        <translation>w de la direction au milieu, le long de c</translation>
    </message>
    <message>
        <source>Turned by (deg)</source>
        <translation>Tournée de (deg)</translation>
    </message>
    <message>
        <source>anticlockwise about the middle, from where c* points upward</source>
        <translation>dans le sens antihoraire autour du milieu, depuis c* vers le haut</translation>
    </message>
    <message>
        <source>turns the sphere so that this direction is in the middle</source>
        <translation>tourne la sphère pour que cette direction soit au milieu</translation>
    </message>
    <message>
        <source>the pattern in all directions; a click shows the direction, a drag turns the sphere</source>
        <translation>le diagramme dans toutes les directions ; un clic dit la direction, glisser tourne la sphère</translation>
    </message>
    <message>
        <source>writes the picture with its names: .png, .svg, .pdf, .bmp</source>
        <translation>écrit l’image avec ses noms : .png, .svg, .pdf, .bmp</translation>
    </message>
    <message>
        <source>Master pattern...</source>
        <translation>Diagramme maître...</translation>
    </message>
    <message>
        <source>the dynamical pattern of the crystal in all directions, flat or as a sphere</source>
        <translation>le diagramme dynamique du cristal dans toutes les directions, plan ou en sphère</translation>
    </message>
    <message>
        <source>the element %1 has no scattering factor for electrons</source>
        <translation>l’élément %1 n’a pas de facteur de diffusion pour les électrons</translation>
    </message>
    <message>
        <source>the crystal has no atoms: dynamical patterns need them</source>
        <translation>le cristal n’a pas d’atomes : les diagrammes dynamiques en ont besoin</translation>
    </message>
    <message>
        <source>the acceleration voltage is %1 kV, must be above 0 and at most 10000</source>
        <translation>la tension d’accélération est %1 kV, doit être supérieure à 0 et au plus 10000</translation>
    </message>
    <message>
        <source>master pattern: %L1 is %2, must be %3 to %4</source>
        <translation>diagramme maître : %L1 est %2, doit être de %3 à %4</translation>
    </message>
    <message>
        <source>master pattern:</source>
        <translation>diagramme maître :</translation>
    </message>
    <message>
        <source>the size</source>
        <translation>la taille</translation>
    </message>
    <message>
        <source>master pattern: the size is even, must be odd</source>
        <translation>diagramme maître : la taille est paire, doit être impaire</translation>
    </message>
    <message>
        <source>the depth in nm</source>
        <translation>la profondeur en nm</translation>
    </message>
    <message>
        <source>master pattern: no voltage</source>
        <translation>diagramme maître : pas de tension</translation>
    </message>
    <message>
        <source>the voltage in kV</source>
        <translation>la tension en kV</translation>
    </message>
    <message>
        <source>the number of beams</source>
        <translation>le nombre de faisceaux</translation>
    </message>
    <message>
        <source>the smallest spacing in angstroms</source>
        <translation>le plus petit espacement en ångströms</translation>
    </message>
    <message>
        <source>the smallest spacing is not above 0</source>
        <translation>le plus petit espacement n’est pas supérieur à 0</translation>
    </message>
    <message>
        <source>the cell has more than 60000 reflections down to that spacing: take a larger one</source>
        <translation>la maille a plus de 60000 réflexions jusqu’à cet espacement : en prendre un plus grand</translation>
    </message>
    <message>
        <source>the direction [0 0 0] is none</source>
        <translation>la direction [0 0 0] n’en est pas une</translation>
    </message>
    <message>
        <source>the crystal has observed reflections and no atoms: a master pattern is computed from atoms</source>
        <translation>le cristal a des réflexions observées et pas d’atomes : un diagramme maître se calcule à partir d’atomes</translation>
    </message>
    <message>
        <source>there is no crystal with atoms: load one in the main window</source>
        <translation>il n’y a pas de cristal avec des atomes : en charger un dans la fenêtre principale</translation>
    </message>
    <message>
        <source>%1 at %2 kV: %3 x %4 points, %5 beams, spacings down to %6 angstroms, mean depth %7 nm</source>
        <translation>%1 à %2 kV : %3 x %4 points, %5 faisceaux, espacements jusqu’à %6 ångströms, profondeur moyenne %7 nm</translation>
    </message>
    <message>
        <source>%1° from [%2]</source>
        <translation>à %1° de [%2]</translation>
    </message>
    <message>
        <source>%1° from the middle</source>
        <translation>à %1° du milieu</translation>
    </message>
    <message>
        <source>%1]   %2° from [%3]   %4° from the middle</source>
        <translation>%1]   à %2° de [%3]   à %4° du milieu</translation>
    </message>
    <message>
        <source>Make computes the pattern of the crystal</source>
        <translation>Calculer donne le diagramme du cristal</translation>
    </message>
    <message>
        <source>nothing is drawn yet: press Make</source>
        <translation>rien n’est encore dessiné : appuyer sur Calculer</translation>
    </message>
    <message>
        <source>the pattern was not kept with the picture: press Make, which computes it again</source>
        <translation>le diagramme n’a pas été gardé avec l’image : appuyer sur Calculer, qui le refait</translation>
    </message>
    <message>
        <source>Origin %1: %2 g/cm3</source>
        <translation>Origine %1 : %2 g/cm3</translation>
    </message>
    <message>
        <source>The file itself can tell it: %1 :1 or %2 :2.</source>
        <translation>Le fichier lui-même peut le dire : %1 :1 ou %2 :2.</translation>
    </message>
    <message>
        <source>the wavelength is still that of electrons of %1 kV: choose CuKa or MoKa</source>
        <translation>la longueur d'onde est encore celle d'électrons de %1 kV : choisir CuKa ou MoKa</translation>
    </message>
    <message>
        <source>Dynamical bands as a picture</source>
        <translation>Bandes dynamiques en image</translation>
    </message>
    <message>
        <source>the dynamical pattern of the crystal in grey; it takes some seconds to calculate and is kept</source>
        <translation>le diagramme dynamique du cristal en gris ; son calcul prend quelques secondes et il est conservé</translation>
    </message>
    <message>
        <source>%1: %2 of %3 bands, off by %4 deg, correlation %5 dynamical, %6 kinematic, confidence %7</source>
        <translation>%1 : %2 bandes sur %3, écart %4°, corrélation %5 dynamique, %6 cinématique, confiance %7</translation>
    </message>
    <message>
        <source>%1: %2 of %3 bands, off by %4 deg, correlation %5 kinematic, confidence %6</source>
        <translation>%1 : %2 bandes sur %3, écart %4°, corrélation %5 cinématique, confiance %6</translation>
    </message>
    <message>
        <source>no bands    off  corr.   kin. conf.      u      v      w   phi1    Phi   phi2</source>
        <translation>no band.    éc.  corr.   cin. conf.      u      v      w   phi1    Phi   phi2</translation>
    </message>
    <message>
        <source>correlation of the drawn bands with the picture</source>
        <translation>corrélation des bandes dessinées avec l'image</translation>
    </message>
    <message>
        <source>the cell is too small: more than %1 cells lie within %2 angstroms of an atom; expected are fewer</source>
        <translation>la maille est trop petite : plus de %1 mailles se trouvent à moins de %2 ångströms d'un atome ; il en faut moins</translation>
    </message>
    <message>
        <source>Pattern centre of the detector software: bruker, edax, oxford or emsoft and its three numbers</source>
        <translation>Centre du cliché donné par le logiciel du détecteur : bruker, edax, oxford ou emsoft et ses trois nombres</translation>
    </message>
    <message>
        <source>number</source>
        <translation>numéro</translation>
    </message>
    <message>
        <source>symbol</source>
        <translation>symbole</translation>
    </message>
    <message>
        <source>label</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>element</source>
        <translation>élément</translation>
    </message>
    <message>
        <source>occupancy</source>
        <translation>occupation</translation>
    </message>
    <message>
        <source>absent</source>
        <translation>absente</translation>
    </message>
    <message>
        <source>form</source>
        <translation>forme</translation>
    </message>
    <message>
        <source>family</source>
        <translation>famille</translation>
    </message>
    <message>
        <source>listed</source>
        <translation>listées</translation>
    </message>
    <message>
        <source>sum %1</source>
        <translation>somme %1</translation>
    </message>
    <message>
        <source>latitude</source>
        <translation>latitude</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>atom</source>
        <translation>atome</translation>
    </message>
    <message>
        <source>shortest</source>
        <translation>plus courte</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>longest</source>
        <translation>plus longue</translation>
    </message>
    <message>
        <source>next</source>
        <translation>suivante</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>distance</translation>
    </message>
    <message>
        <source>centre</source>
        <translation>centre</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>angle</translation>
    </message>
    <message>
        <source>taken</source>
        <translation>prise</translation>
    </message>
    <message>
        <source>width</source>
        <translation>largeur</translation>
    </message>
    <message>
        <source>strength</source>
        <translation>force</translation>
    </message>
    <message>
        <source>matched</source>
        <translation>expliquées</translation>
    </message>
    <message>
        <source>bands</source>
        <translation>bandes</translation>
    </message>
    <message>
        <source>corr</source>
        <translation>corr</translation>
    </message>
    <message>
        <source>conf</source>
        <translation>conf</translation>
    </message>
    <message>
        <source>solved by</source>
        <translation>résolu par</translation>
    </message>
    <message>
        <source>atom 1</source>
        <translation>atome 1</translation>
    </message>
    <message>
        <source>atom 2</source>
        <translation>atome 2</translation>
    </message>
    <message>
        <source>element 1</source>
        <translation>élément 1</translation>
    </message>
    <message>
        <source>element 2</source>
        <translation>élément 2</translation>
    </message>
    <message>
        <source>off</source>
        <translation>écart</translation>
    </message>
    <message>
        <source>no</source>
        <translation>n°</translation>
    </message>
    <message>
        <source>Distances</source>
        <translation>Distances</translation>
    </message>
    <message>
        <source>Merge equivalents</source>
        <translation>Réunir les équivalents</translation>
    </message>
    <message>
        <source>User &amp;guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>angle between two bands, computed less measured</source>
        <translation>angle entre deux bandes, calculé moins mesuré</translation>
    </message>
    <message>
        <source>master pattern: %1 weights for %2 voltages</source>
        <translation>diagramme maître : %1 poids pour %2 tensions</translation>
    </message>
    <message>
        <source>master pattern: the weights of voltages must be 0 and above, and one above 0</source>
        <translation>diagramme maître : les poids des tensions doivent être positifs ou nuls, et l'un au moins positif</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>rien trouvé</translation>
    </message>
    <message>
        <source>Table: %1 - %2</source>
        <translation>Table : %L1 - %2</translation>
    </message>
    <message>
        <source>%1: there is no column "%2"</source>
        <translation>%1 : il n'y a pas de colonne « %2 »</translation>
    </message>
    <message>
        <source>%1: "%2" is not a number</source>
        <translation>%1 : « %2 » n'est pas un nombre</translation>
    </message>
</context>
</TS>
