# Pattern2 on a primitive cubic lattice, a = 4, with observed {100} and {110}, at 20 kV. Each line agrees to 2e-5 with
# its plane normal, Bragg angle asin(lambda/2d) and reference (w, w, -u-v) worked out apart with vectors; so do the
# axes of the walk and of angles (rounded down), and the turns (as large as seen along the new axis, signed as along
# the old one).
set Main1.Text7 221
set Main1.Text1 4
leave Main1.Text1
click Main1.Command15
type InputJCPDS.G "100\r1\r0\r0\r64\r1\r1\r0\r"
click InputJCPDS.Command1
set Main1.Text15 2.8
click Main1.Command6
print Main1.Label26
echo nothing without an axis; the camera starts anew
set PATTERN3.Text14 3
set PATTERN3.Text15 4
set CameraParameters.Text6 2
click Pattern2.Command8
print Pattern2.Picture1
print Pattern2.Option1
click Pattern2.Option2
click Pattern2.Check2
click Main1.Command10
print Pattern2.Option1
print Pattern2.Check2
print Module1.CamXShift
print Module1.CamXYRatio
print Pattern2.Text1
print Pattern2.Text14
print Pattern2.Text15
print Module1.CamYShift
print Pattern2.ShiftPitch
echo the whole pattern
set Pattern2.Text3 0
set Pattern2.Text4 0
print Main1.PatternFlag
set CameraParameters.Text1 20
set CameraParameters.Text2 5
set CameraParameters.Text3 6
type Pattern2.Text5 "1\r"
print Main1.PatternFlag
print Module1.CamYShift
print Main1.DisplayScale
print Main1.OriginH
print Main1.OriginK
print Main1.OriginL
print Pattern2.Picture1
print Pattern2.List1
echo the last two {110} and {100}: a fixed grey scale, square root, exponent, lowest level
set Pattern2.Text19 8
click Pattern2.Command14
print Pattern2.Check4
print Main1.DisplayScale
click Pattern2.Option2
click Pattern2.Command15
print Main1.DisplayScale
print Pattern2.List1
set Pattern2.Text10 2
click Pattern2.Command8
print Pattern2.List1
set Pattern2.Text10 ""
click Pattern2.Check4
click Pattern2.Option1
set Pattern2.Text2 114
click Pattern2.Command8
print Pattern2.List1
select Pattern2.List1 0
print Main1.MarkH
print Main1.MarkK
print Main1.MarkL
set Pattern2.Text2 115
echo only {100}, as traces, with centre, normal and circle of 10 degrees
click Pattern2.Check3
click Pattern2.Check5
click Pattern2.Check6
set Pattern2.Text9 10
set CameraParameters.Text7 -20
click Pattern2.Command8
print Pattern2.Picture1
echo a listed band and (1 1 1) marked in red, then the edge of (0 1 1)
select Pattern2.List1 2
print Main1.MarkK
set Pattern2.Text11 1
set Pattern2.Text12 1
set Pattern2.Text13 1
click Pattern2.Command13
click Pattern2.Check3
set Pattern2.Text11 0
type Pattern2.Text13 "\r"
print Pattern2.Text13
print Pattern2.Picture1
echo (-1 0 0) of the list, then again what the boxes hold
select Pattern2.List1 0
print Main1.MarkH
print Main1.MarkK
print Main1.MarkL
click Pattern2.Command13
print Main1.MarkH
print Main1.MarkK
print Main1.MarkL
click Pattern2.Check5
click Pattern2.Check6
set Pattern2.Text9 ""
set Pattern2.Text19 3
click Pattern2.Command8
echo grid
click Pattern2.Command17
print Pattern2.Check1
print Pattern2.Picture1
click Pattern2.Command17
echo turns: 5 degrees are 0.0872665, then ten times and a tenth
click Pattern2.Command7
print Main1.PatternAngle
click Pattern2.Command6
click Pattern2.Command6
print Main1.PatternAngle
click Pattern2.Command10
print Main1.PatternAngle
click Pattern2.Command9
print Main1.PatternAngle
click Pattern2.Command12
print Main1.PatternAngle
click Pattern2.Command11
click Pattern2.Command11
print Main1.PatternAngle
answer 10
click Pattern2.Rpitch
answer ""
click Pattern2.Rpitch
click Pattern2.Command7
print Main1.PatternAngle
print Pattern2.List1
echo forty half turns later, and before: the list adds the radians of the turn to its azimuths, within 0 and 360
answer 180
click Pattern2.Rpitch
set Pattern2.Text19 6
click Pattern2.Command10
click Pattern2.Command10
click Pattern2.Command10
click Pattern2.Command10
print Main1.PatternAngle
print Pattern2.List1
click Pattern2.Command9
click Pattern2.Command9
click Pattern2.Command9
click Pattern2.Command9
click Pattern2.Command9
click Pattern2.Command9
click Pattern2.Command9
click Pattern2.Command9
print Pattern2.List1
set Pattern2.Text19 3
click Pattern2.Command10
click Pattern2.Command10
click Pattern2.Command10
click Pattern2.Command10
echo zoom, by 1.4142 and by 2, shifts and ratio
click Pattern2.Command2
print Pattern2.Text1
answer 2
click Pattern2.Zpitch
click Pattern2.Command3
print Pattern2.Text1
print Module1.CamAcquisition
set Pattern2.Text14 -10
set Pattern2.Text15 20
set CameraParameters.Text6 1.1
set Pattern2.Text1 45
click Pattern2.Command8
print Pattern2.Picture1
echo the half width keeps the edges within 85 degrees and above 3
set Pattern2.Text1 80
print Pattern2.Text1
set Pattern2.Text14 10
set Pattern2.Text15 0
set Pattern2.Text1 80
print Pattern2.Text1
set Pattern2.Text14 -10
set Pattern2.Text1 80
print Module1.CamAcquisition
set Pattern2.Text14 0
set Pattern2.Text15 -20
set Pattern2.Text1 70
print Pattern2.Text1
set Pattern2.Text15 0
set Pattern2.Text1 85
print Pattern2.Text1
set Pattern2.Text1 90
print Pattern2.Text1
set CameraParameters.Text6 1
set Pattern2.Text1 3
click Pattern2.Command8
print Pattern2.Text1
set Pattern2.Text1 2.9
click Pattern2.Command8
print Pattern2.Text1
print Module1.CamAcquisition
echo the voltage counts when its box is left, and brings the electrons back; 0 leaves the wavelength
choose Main1.Combo1 200
choose Main1.Combo1 CuKa
set Pattern2.Text21 15
print Main1.AccVoltage
leave Pattern2.Text21
print Main1.Combo1
print Main1.Option2
print Main1.MassRatio
print Main1.WaveLength
print Main1.Text16
print PATTERN3.Text5
set Pattern2.Text21 0
leave Pattern2.Text21
print Main1.AccVoltage
print Main1.Combo1
print Main1.WaveLength
echo how many bands; none is all
set Pattern2.Text2 0
set Pattern2.Text19 9
print Main1.KikuchiRefLimit
click Pattern2.Command8
set Pattern2.Text19 ""
print Main1.KikuchiRefLimit
echo walking by 10 degrees: right, up, left, down, and where the reference (1 1 0) stays
set Pattern2.Text3 0
set Pattern2.Text4 0
set Pattern2.Text5 1
answer 10
click Pattern2.Spitch
set Pattern2.Text19 1
click Pattern2.Command8
click Pattern2.Command1(0)
print Pattern2.Text3
print Pattern2.Text4
print Pattern2.Text5
print Pattern2.Label9
print Pattern2.Label10
print Main1.PatternAngle
click Pattern2.Command1(1)
print Pattern2.Text3
print Pattern2.Text4
print Pattern2.Text5
print Pattern2.Label9
print Pattern2.Label10
print Main1.PatternAngle
click Pattern2.Command1(2)
print Pattern2.Text3
print Pattern2.Text4
print Pattern2.Text5
print Pattern2.Label9
print Pattern2.Label10
print Main1.PatternAngle
click Pattern2.Command1(3)
print Pattern2.Text3
print Pattern2.Text4
print Pattern2.Text5
print Pattern2.Label9
print Pattern2.Label10
print Main1.PatternAngle
print Pattern2.Text16
print Pattern2.Text17
print Pattern2.Text18
print Main1.PrevZoneU
print Main1.PrevZoneV
print Main1.PrevZoneW
print Main1.PatternAngleStep
print Main1.PatternFlag
echo a place in the pattern: its azimuth and latitude, its axis; the double click goes there
set Pattern2.Text3 0
set Pattern2.Text4 0
set Pattern2.Text5 1
click Pattern2.Command8
press Pattern2.Picture1 0.2 0.1
print Pattern2.Text22
print Pattern2.Text23
print Pattern2.Text6
print Pattern2.Text7
print Pattern2.Text8
print Pattern2.Text16
print Main1.ZoneU
doubleclick Pattern2.Picture1
print Main1.ZoneU
print Main1.ZoneW
print Main1.PrevZoneW
echo directions by angle: a disc above 10 degrees of latitude alone, or behind Enter
set Pattern2.Text3 0
set Pattern2.Text4 0
set Pattern2.Text5 1
click Pattern2.Command8
set Pattern2.Text22 26.57
set Pattern2.Text23 77.4
click Pattern2.Command18
print Pattern2.Text6
print Pattern2.Text7
print Pattern2.Text8
set Pattern2.Text23 10
click Pattern2.Command18
type Pattern2.Text23 "\r"
set Pattern2.Text23 60
type Pattern2.Text22 "\r"
print Pattern2.Text22
print Pattern2.Text23
print Pattern2.Text18
print Pattern2.Picture1
echo sizes of picture, font and spots: drawn anew, without the discs
answer 0
click Pattern2.Imagesize
answer 5000
click Pattern2.Imagesize
print Pattern2.Picture1
click Pattern2.Command18
answer 9
call Pattern2.Fsize
print Pattern2.Picture1
click Pattern2.Command18
answer 2
call Pattern2.Spotsize
print Main1.SpotScale
print Pattern2.Picture1
echo another crystal
click Pattern2.Command14
print Pattern2.Check4
answer data/ZOLDATA/Magnesium.cry
click Pattern2.Command16
print Pattern2.Check4
print Pattern2.Label18
caption Pattern2
click Pattern2.Command5
printer
