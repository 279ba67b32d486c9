# A triclinic crystal along [.3 .25 .9], its reference turned by 25 degrees; camera 35, -4 and 2 degrees, ratio 1.04.
# The traces of (1 1 0) (0 1 0) (-1 0 1) (1 -1 0) (0 -1 1) and the edges of their bands were projected apart with
# vectors: the solution must give all of it back.
set Main1.Text7 2
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 95
set Main1.Text5 100
set Main1.Text6 105
click Main1.Command15
type InputJCPDS.G "100\r1\r1\r0\r90\r0\r1\r0\r80\r-1\r0\r1\r70\r1\r0\r0\r60\r0\r-1\r1\r50\r1\r-1\r0\r"
click InputJCPDS.Command1
set Main1.Text15 2.6
click PATTERN3.Command1
print PATTERN3.List1
click Main1.Command6
print PATTERN3.Text2
set PATTERN3.Text2 500
leave PATTERN3.Text2
print PATTERN3.Text2
set PATTERN3.Text3 35
set PATTERN3.Text14 -4
set PATTERN3.Text15 2
set CameraParameters.Text6 1.04
echo a tie is not cut, and a part of a reflection counts
set PATTERN3.Text2 7
leave PATTERN3.Text2
print PATTERN3.Label8
print PATTERN3.ProgressBar1
set PATTERN3.Text2 6.4
leave PATTERN3.Text2
print PATTERN3.Label8
print PATTERN3.ProgressBar1
echo lines, drawn while the mouse moves
press PATTERN3.Picture1 239.97 0
print PATTERN3.Picture1
move PATTERN3.Picture1 100 100
move PATTERN3.Picture1 4.65 511
print PATTERN3.Picture1
release PATTERN3.Picture1 4.65 511
move PATTERN3.Picture1 9 9
press PATTERN3.Picture1 0 273.1
move PATTERN3.Picture1 511 65.9
release PATTERN3.Picture1 511 65.9
press PATTERN3.Picture1 362.94 0
move PATTERN3.Picture1 413.99 511
release PATTERN3.Picture1 413.99 511
print PATTERN3.Picture1
set CameraParameters.Text1 20
set CameraParameters.Text2 5
set CameraParameters.Text3 6
click PATTERN3.Command1
print PATTERN3.ProgressBar1
print PATTERN3.Label1(0)
print PATTERN3.Label1(1)
print PATTERN3.Label1(2)
print PATTERN3.Heading
print PATTERN3.List1
echo the solution in the simulation, which counts y upward, its three bands and their other sides in red
set Pattern2.Text19 1
select PATTERN3.List1 0
print PATTERN3.Label1(0)
print PATTERN3.Label1(1)
print PATTERN3.Label1(2)
print Main1.PatternAngle
print Pattern2.Text3
print Pattern2.Text4
print Pattern2.Text5
print Pattern2.Text1
print Pattern2.Picture1
echo an end is moved, a line is wrong: no solution, but for a wide tolerance
press PATTERN3.Picture1 30 500
print PATTERN3.LineX(0,1)
print PATTERN3.LineY(0,1)
move PATTERN3.Picture1 30 511
release PATTERN3.Picture1 30 511
print PATTERN3.LineX(0,1)
click PATTERN3.Command1
print PATTERN3.List1
set PATTERN3.Text1 4
print PATTERN3.AngleTol
click PATTERN3.Command1
print PATTERN3.List1
set PATTERN3.Text1 2
echo only the triangle
press PATTERN3.Picture1 30 511
release PATTERN3.Picture1 4.65 511
move PATTERN3.Picture1 77 77
press PATTERN3.Picture1 30 511
move PATTERN3.Picture1 4.65 511
release PATTERN3.Picture1 4.65 511
answer 1
click PATTERN3.Imatch
cancel
click PATTERN3.Imatch
print PATTERN3.MatchMode
click PATTERN3.Command1
print PATTERN3.List1
click PATTERN3.Check1
click PATTERN3.Command1
print PATTERN3.List1
echo the line of the count takes the second solution of the run before
select PATTERN3.List1 1
print Pattern2.Text3
click PATTERN3.Check1
answer 0
click PATTERN3.Imatch
answer 1
call PATTERN3.EquivSet
print PATTERN3.EquivMode
echo grid behind a clear, the lines are kept but not drawn; a redraw; clear
click PATTERN3.Command6
click PATTERN3.Command3
print PATTERN3.Picture1
press PATTERN3.Picture1 20 20
click PATTERN3.Command2
move PATTERN3.Picture1 9 9
print PATTERN3.LineX(0,0)
print PATTERN3.LineDone(2)
click PATTERN3.Command3
print PATTERN3.Picture1
echo three bands of the zone [1 1 1], (1 -1 0) (0 -1 1) (-1 0 1): two roots, one of them the truth
press PATTERN3.Picture1 0 111.59
move PATTERN3.Picture1 511 492.08
release PATTERN3.Picture1 511 492.08
press PATTERN3.Picture1 511 370.3
move PATTERN3.Picture1 154.9 511
release PATTERN3.Picture1 154.9 511
press PATTERN3.Picture1 362.94 0
move PATTERN3.Picture1 413.99 511
release PATTERN3.Picture1 413.99 511
set PATTERN3.Text2 12
leave PATTERN3.Text2
click PATTERN3.Command1
print PATTERN3.List1
print PATTERN3.MatchStatus
select PATTERN3.List1 0
print PATTERN3.Label1(0)
print PATTERN3.Label1(1)
print PATTERN3.Label1(2)
select PATTERN3.List1 3
print PATTERN3.Label1(0)
print PATTERN3.Label1(1)
print PATTERN3.Label1(2)
click PATTERN3.Command2
set PATTERN3.Text2 6.4
leave PATTERN3.Text2
echo six edges: widths within .04 % of .19005, .10454, .14202, which fit to 25 % and not to .03
print PATTERN3.LastLine
visible PATTERN3.Text17
click PATTERN3.Check2
print PATTERN3.LastLine
visible PATTERN3.Text17
visible PATTERN3.Label16
press PATTERN3.Picture1 232.84 0
move PATTERN3.Picture1 0 505.61
release PATTERN3.Picture1 0 505.61
press PATTERN3.Picture1 247.04 0
move PATTERN3.Picture1 11.72 511
release PATTERN3.Picture1 11.72 511
press PATTERN3.Picture1 0 269.46
move PATTERN3.Picture1 511 62.26
release PATTERN3.Picture1 511 62.26
press PATTERN3.Picture1 0 276.72
move PATTERN3.Picture1 511 69.53
release PATTERN3.Picture1 511 69.53
press PATTERN3.Picture1 368.33 0
move PATTERN3.Picture1 419.38 511
release PATTERN3.Picture1 419.38 511
press PATTERN3.Picture1 357.6 0
move PATTERN3.Picture1 408.65 511
release PATTERN3.Picture1 408.65 511
print PATTERN3.Picture1
click PATTERN3.Command1
print PATTERN3.BandS(0)
print PATTERN3.BandS(1)
print PATTERN3.BandS(2)
print PATTERN3.Label1(0)
print PATTERN3.Label1(1)
print PATTERN3.Label1(2)
print PATTERN3.Heading
print PATTERN3.List1
set PATTERN3.Text17 .03
click PATTERN3.Command1
print PATTERN3.List1
set PATTERN3.Text17 25
click PATTERN3.Command1
echo adjustment of the first solution: steps of each button, all measured anew
click PATTERN3.CP_Setting_Show
visible PATTERN3.Text6
visible PATTERN3.Command15
print PATTERN3.Text6
print PATTERN3.Text8
print PATTERN3.Text9
print PATTERN3.Text10
print PATTERN3.Text11
set PATTERN3.Text6 .2
set PATTERN3.Text8 .3
set PATTERN3.Text9 .4
click PATTERN3.Command7
print PATTERN3.Text3
click PATTERN3.Command7
click PATTERN3.Command8
print PATTERN3.Text3
click PATTERN3.Command11
click PATTERN3.Command11
print PATTERN3.Text14
click PATTERN3.Command12
print PATTERN3.Text14
click PATTERN3.Command11
click PATTERN3.Command13
click PATTERN3.Command13
print PATTERN3.Text15
click PATTERN3.Command14
print PATTERN3.Text15
print PATTERN3.List1
echo the search ends at its first place, from which it was one step to each side
set PATTERN3.Text10 1
click PATTERN3.Command15
print PATTERN3.Text3
print PATTERN3.Text14
print PATTERN3.Text15
print PATTERN3.ProgressBar2
print PATTERN3.AngleTol
print PATTERN3.BestError
print PATTERN3.List1
click PATTERN3.CP_Setting_Show
visible PATTERN3.Text6
visible PATTERN3.Command15
click PATTERN3.Check2
visible PATTERN3.Text17
print PATTERN3.LastLine
echo operations by name: the solutions are listed behind the ones that stand there, the table is made anew
set PATTERN3.Text1 3
call PATTERN3.MatchAngle
print PATTERN3.List1
set Main1.Text15 3.9
call Main1.CalcReflections
print PATTERN3.Label8
call PATTERN3.Hkl3make
print PATTERN3.Label8
print PATTERN3.Text2
