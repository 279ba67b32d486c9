# Directions of silicon around [0 0 1], and their names on the Kikuchi pattern.
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click Main1.Command10             # "KP CALC"
set Pattern2.Text3 0
set Pattern2.Text4 0
set Pattern2.Text5 1
set Pattern2.Text1 50             # half width of the picture, degrees
click Pattern2.Check2             # "Zone Axis Map"
click Pattern2.Command8
click Zaxis.Check3                # "Show [uvw] on Kikuchi pattern"
set Zaxis.Text4 1
set Zaxis.Text5 1
type Zaxis.Text6 "2\r"            # Enter plots [1 1 2]
echo "Azimuth and latitude of [1 1 2]:"
print Zaxis.Text7
print Zaxis.Text8
export Zaxis.Picture1 figure-zone-axis-map.png
export Pattern2.Picture1 figure-kikuchi-names.png
