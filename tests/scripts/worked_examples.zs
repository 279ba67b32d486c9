# The worked examples of docs/user-guide, whose numbers the pages quote, window by window.
echo rock salt by hand
set Main1.Text7 225
set Main1.Text1 5.6402
type Main1.Text1 "\r"
show InputAtom
type InputAtom.G "Na1\rNa\r1\r0\r0\r0\r0.5\rCl1\rCl\r1\r0.5\r0.5\r0.5\r0.5\r"
click InputAtom.Command1
print Main1.Label20
choose Main1.Combo1 CuKa
set Main1.Text15 2.7
click Main1.Command6
print Main1.List2

echo caesium chloride from it
set Main1.Text7 221
set Main1.Text1 4.123
type Main1.Text1 "\r"
show InputAtom
cell InputAtom.G 1 1
type InputAtom.G "Cs1\rCs\r\r\r\r\r\rCl1\rCl\r\r\r\r\r\r"
click InputAtom.Command1
print Main1.Label20

echo copper from a card
set Main1.Text7 225
set Main1.Text1 3.615
type Main1.Text1 "\r"
set Main1.Text15 1.2
click Main1.Command15
type InputJCPDS.G "100\r1\r1\r1\r46\r2\r0\r0\r20\r2\r2\r0\r"
click InputJCPDS.Command1
print Main1.Label31
click Main1.Command6
print Main1.List2

echo quartz: crystallites of 10000 and of 100 cells
answer data/ZOLDATA/Quartz.cry
click Main1.DATA_LOAD
set Main1.Text15 2.5
click Main1.Command6
click Main1.Command7
set Xd.Text1 20
set Xd.Text2 30
set Xd.Text3 0.05
click Xd.Command1
print Xd.List1
press Xd.Picture1 26.64 0.5
print Xd.Label7
set Xd.Text6 100
set Xd.Text7 100
set Xd.Text8 100
click Xd.Command1
press Xd.Picture1 26.64 0.5
print Xd.Label7

echo rings of copper, then their roots
choose Main1.Combo1 200
set Main1.Text15 1
answer data/ZOLDATA/Copper.cry
click Main1.DATA_LOAD
click Main1.Command8
print Dring.List1
click Dring.Check1
click Dring.Command1
print Dring.List1

echo a click on the centre of [1 1 2]
choose Main1.Combo1 20
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
click Main1.Command10
set Pattern2.Text3 1
set Pattern2.Text4 1
set Pattern2.Text5 2
click Pattern2.Command8
press Pattern2.Picture1 0 0
print Pattern2.Text6
print Pattern2.Text7
print Pattern2.Text8

echo poles of Si(001)
set CameraParameters.Text7 20
click PATTERN3.CPS_Si001
click PATTERN3.Option1
press PATTERN3.Picture1 283 354
click PATTERN3.Option2
press PATTERN3.Picture1 283 103
click PATTERN3.Command9
print PATTERN3.Text3
print PATTERN3.Text14
print PATTERN3.Text15

echo calculators on rutile
answer data/ZOLDATA/Rutile.cry
click Main1.DATA_LOAD
set Utility.Text1 30
set Utility.Text2 0
set Utility.Text3 0.8906
type Utility.Text4 "30\r"
print Utility.Label5
print Utility.Label6
set Utility.Text1 62.5
set Utility.Text3 51.04942
click Utility.Command1
print Utility.Label5
print Utility.Label6
set Utility.Text9 10
set Utility.Text8 -20
set Utility.Text7 17.368
type Utility.Text6 "30\r"
print Utility.Label15
print Utility.Label14
set Utility.Text10 1
set Utility.Text12 1
click Utility.Command4
print Utility.Text13
print Utility.Text15
set Utility.Text46 1
set Utility.Text48 1
set Utility.Text51 1
print Utility.Text52
click Utility.Option3
print Utility.Text52
set AtomDistance.Text1 2
click AtomDistance.Command1
print AtomDistance.List1

echo settings that one window leaves to the next
click Main1.Command9
set Pattern.Text5 1
click Pattern.Command8
print Module1.CamAcquisition
set Pattern2.Text1 20
click Pattern2.Command8
click Main1.Command9
echo the box of the spots, and what is in force
print Pattern.Text1
print Module1.CamAcquisition
choose Main1.Combo2 -cba
show InputAtom
click InputAtom.Command1
print Main1.List1

echo peaks of silicon in a part of the curve, and its list; {111} for MoKa, then for 0.7107 angstroms
choose Main1.Combo1 CuKa
answer data/ZOLDATA/Silicon.cry
click Main1.DATA_LOAD
set Main1.Text15 2.7
click Main1.Command6
print Main1.List2
set Main1.Text15 1
click Main1.Command6
click Main1.Command7
set Xd.Text1 87
set Xd.Text2 89
click Xd.Command1
print Xd.List1
set Main1.Text15 3
choose Main1.Combo1 MoKa
click Main1.Command6
print Main1.List2
set Main1.Text16 0.7107
click Main1.Command6
print Main1.List2
