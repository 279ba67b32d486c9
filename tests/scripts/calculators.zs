# The five calculators of Utility, and distances in quartz and rutile. Checked by projecting the directions (y' = sin p
# sin a cos r - cos p sin r, x = sin p cos a), by multiplying out, and with vectors and distances of the cells in
# double.
show Utility
print Utility.Option1
echo direction from azimuths, folded into -90 to 90: 30 and 50 from the axis; then 200 and 35
set Utility.Text1 210
set Utility.Text2 0
set Utility.Text3 0.8906
type Utility.Text4 "30\r"
print Utility.Label5
print Utility.Label6
print Utility.Label9
print Utility.Label11
print Utility.Text1
print Utility.Phi1
set Utility.Text1 -10.0809
set Utility.Text2 -20
set Utility.Text3 224.1914
set Utility.Text4 25
print Utility.Rotate1
click Utility.Command1
print Utility.Label5
print Utility.Label6
print Utility.Label9
print Utility.Label11
print Utility.Text3
echo more of them: 120 and 45, 145 and 84, 310 and 70 from the axis
set Utility.Text1 -60
set Utility.Text2 0
set Utility.Text3 10.7285831
set Utility.Text4 45
click Utility.Command1
print Utility.Label5
print Utility.Label6
print Utility.Label9
print Utility.Label11
set Utility.Text1 -33.8439004
set Utility.Text2 -30
set Utility.Text3 -28.4684632
set Utility.Text4 30
click Utility.Command1
print Utility.Label5
print Utility.Label6
print Utility.Label9
print Utility.Label11
set Utility.Text1 -51.8262983
set Utility.Text2 10
set Utility.Text3 -51.9339868
set Utility.Text4 40
click Utility.Command1
print Utility.Label5
print Utility.Label6
print Utility.Label9
print Utility.Label11
echo direction from lengths, 35 and then -24.1, whose boxes are read at the calculation
set Utility.Text9 10
set Utility.Text8 -20
set Utility.Text7 17.368
set Utility.Text6 30
print Utility.Rotate2
type Utility.Text6 "\r"
print Utility.Label15
print Utility.Label14
print Utility.Rotate1
print Utility.Rotate2
print Utility.Text4
set Utility.Text7 4.785117
set Utility.Text8 0
set Utility.Text6 40
click Utility.Command3
print Utility.Label15
print Utility.Label14
echo inverse matrix: of determinant 1, singular, and half worked when it stops behind the first column
set Utility.Text5(0) 1
set Utility.Text5(1) 2
set Utility.Text5(2) 3
set Utility.Text5(3) 0
set Utility.Text5(4) 1
set Utility.Text5(5) 4
set Utility.Text5(6) 5
set Utility.Text5(7) 6
type Utility.Text5(8) "0\r"
print Utility.Text5(8)
click Utility.Command2
print Utility.Label10(0)
print Utility.Label10(1)
print Utility.Label10(2)
print Utility.Label10(3)
print Utility.Label10(4)
print Utility.Label10(5)
print Utility.Label10(6)
print Utility.Label10(7)
print Utility.Label10(8)
set Utility.Text5(0) 1
set Utility.Text5(1) 1
set Utility.Text5(2) 1
set Utility.Text5(3) 1
set Utility.Text5(4) 1
set Utility.Text5(5) 1
set Utility.Text5(6) 1
set Utility.Text5(7) 1
set Utility.Text5(8) 1
click Utility.Command2
print Utility.Label10(0)
print Utility.Label10(1)
print Utility.Label10(2)
print Utility.Label10(3)
print Utility.Label10(4)
print Utility.Label10(5)
print Utility.Label10(6)
print Utility.Label10(7)
print Utility.Label10(8)
echo angle of [1 2 3] and [3 -1 1], none before there is a cell
set Utility.Text46 1
set Utility.Text47 2
set Utility.Text48 3
set Utility.Text49 3
set Utility.Text50 -1
set Utility.Text51 1
print Utility.Text52
set Main1.Text7 2
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 95
set Main1.Text5 100
set Main1.Text6 105
type Utility.Text51 " \r"
print Utility.Text51
print Utility.Text52
click Utility.Option2
print Utility.Text52
click Utility.Option3
print Utility.Text52
echo [1 0 2] with [0 -3 -1]: an obtuse angle less 180, for planes 180 less that; no length leaves it
click Utility.Option1
print Utility.Text52
set Utility.Text47 0
set Utility.Text48 2
set Utility.Text49 0
set Utility.Text50 -3
set Utility.Text51 -1
print Utility.Text52
click Utility.Option2
print Utility.Text52
click Utility.Option3
print Utility.Text52
click Utility.Option1
set Utility.Text46 0
set Utility.Text48 0
print Utility.Text52
echo the plane normal to [1 -2 3], and back
set Utility.Text10 1
set Utility.Text11 -2
type Utility.Text12 "3\r"
click Utility.Command4
print Utility.Text13
print Utility.Text14
print Utility.Text15
type Utility.Text15 "\r"
print Utility.Text15
click Utility.Command5
print Utility.Text10
print Utility.Text11
print Utility.Text12
echo distances
answer "data/ZOLDATA/Quartz.cry"
click Main1.DATA_LOAD
click Main1.Command11
click AtomDistance.Command1
print AtomDistance.List1
type AtomDistance.Text1 "1.65\r"
print AtomDistance.List1
echo rutile: the list waits for the button; 4 at sqrt(2(1/2-u)^2 aa + cc/4) and 2 at sqrt(2) u a, u = .30479
answer "data/ZOLDATA/Rutile.cry"
click Main1.DATA_LOAD
set AtomDistance.Text1 1.99
print AtomDistance.List1
click AtomDistance.Command1
print AtomDistance.List1
