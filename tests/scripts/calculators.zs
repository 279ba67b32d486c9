# The five calculators of Utility, and distances in quartz.
show Utility
echo direction from azimuths
set Utility.Text1 30
set Utility.Text2 0
set Utility.Text3 0.8906
type Utility.Text4 "30\r"
print Utility.Label5
print Utility.Label6
print Utility.Label9
print Utility.Label11
echo direction from lengths
set Utility.Text9 10
set Utility.Text8 -20
set Utility.Text7 17.368
type Utility.Text6 "30\r"
print Utility.Label15
print Utility.Label14
echo inverse matrix
set Utility.Text5(0) 1
set Utility.Text5(1) 2
set Utility.Text5(4) 1
set Utility.Text5(8) 4
click Utility.Command2
print Utility.Label10(0)
print Utility.Label10(1)
print Utility.Label10(8)
set Utility.Text5(8) 0
click Utility.Command2
answer "data/ZOLDATA/Quartz.cry"
click Main1.DATA_LOAD
echo equivalent vector
type Utility.Text10 2
type Utility.Text11 1
click Utility.Command4
print Utility.Text13
print Utility.Text14
print Utility.Text15
echo angle
type Utility.Text46 1
type Utility.Text50 1
print Utility.Text52
click Utility.Option3
print Utility.Text52
echo distances
click Main1.Command11
type AtomDistance.Text1 "1.65\r"
print AtomDistance.List1
