# Albite, triclinic and C centred: spots worked out from Cartesian vectors normal to the zone axis, +x along (w, w, -u-v), turned clockwise; 1.0001 under the root moves those on the x axis sideways by up to 1 %
set Main1.Text15 4
answer "data/ZOLDATA/Albite.cry"
click Main1.DATA_LOAD
click Main1.Command9
click Pattern.Check3
set Pattern.Text1 0.4
set Pattern.Text3 1
set Pattern.Text4 -1
set Pattern.Text5 1
click Pattern.Command8
print Pattern.Picture1
echo the next level, turned by 25 degrees
click Pattern.Command9
click Pattern.Command5
print Pattern.Picture1
echo [1 1 1] and [-1 1 0]
set Pattern.Text2 0
set Pattern.Text4 1
click Pattern.Command8
print Pattern.Picture1
set Pattern.Text3 -1
set Pattern.Text5 0
click Pattern.Command8
print Pattern.Picture1
