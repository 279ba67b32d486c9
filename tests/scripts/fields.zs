# What boxes and clicks leave in fields that no window shows: a number typed in a box stands in its own field. Worked out
# apart: the reciprocal cell with vectors, normals of lines as cross products in a picture of 45 degrees (p - 255.5)/255.5,
# marks on Si(001) (centre above the second, sqrt(200^2 + 50^2)/tan 35.264 away), axes [001] + .2 x + .1 y, rounded down.
echo a table that is read and not used
print Main1.AsfECount
print Main1.AsfE(1)
print Main1.AsfXCount
echo a cell, its group, one atom
set Main1.Text1 4
set Main1.Text2 5
set Main1.Text3 6
set Main1.Text4 90
set Main1.Text5 100
set Main1.Text6 120
set Main1.Text7 2
print Main1.CellA
print Main1.CellB
print Main1.CellC
print Main1.CellAlpha
print Main1.CellBeta
print Main1.CellGamma
print Main1.CosAlpha
print Main1.CosBeta
print Main1.CosGamma
print Main1.SinAlpha
print Main1.SinBeta
print Main1.SinGamma
print Main1.CellVolume
print Main1.AStar
print Main1.BStar
print Main1.CStar
print Main1.AlphaStar
print Main1.BetaStar
print Main1.GammaStar
print Main1.CosAlphaStar
print Main1.CosBetaStar
print Main1.CosGammaStar
print Main1.SinAlphaStar
print Main1.SinBetaStar
print Main1.SinGammaStar
print Main1.SGNumber
print Main1.SystemName
print Main1.Dmin
click Main1.Command1
type InputAtom.G "A\rNa\r.25\r.1\r.2\r.3\r1.5\r"
click InputAtom.Command1
print Module1.AtomElement(1)
print Module1.AtomOcc(1)
print Module1.AtomPos(1,1)
print Module1.AtomPos(1,2)
print Module1.AtomPos(1,3)
print Module1.AtomB(1)
print Module1.UCLabel(2)
print Module1.UCElement(2)
print Module1.UCOcc(2)
print Module1.UCB(2)
print Module1.UCPos(2,1)
echo the calculators
set Utility.Text1 1
set Utility.Text2 2
set Utility.Text3 3
set Utility.Text4 4
set Utility.Text10 5
set Utility.Text11 6
set Utility.Text12 7
set Utility.Text13 8
set Utility.Text14 9
set Utility.Text15 10
set Utility.Text46 11
set Utility.Text47 12
set Utility.Text48 13
set Utility.Text49 14
set Utility.Text50 15
set Utility.Text51 16
print Utility.Phi1
print Utility.Rotate1
print Utility.Phi2
print Utility.Rotate2
print Utility.VectorU
print Utility.VectorV
print Utility.VectorW
print Utility.VectorH
print Utility.VectorK
print Utility.VectorL
print Utility.Angle1
print Utility.Angle2
print Utility.Angle3
print Utility.Angle4
print Utility.Angle5
print Utility.Angle6
set Utility.Text9 21
set Utility.Text8 22
set Utility.Text7 23
set Utility.Text6 24
click Utility.Command3
print Utility.Length1
print Utility.LengthRotate1
print Utility.Length2
print Utility.LengthRotate2
set Utility.Text5(0) 2
set Utility.Text5(1) 0
set Utility.Text5(2) 0
set Utility.Text5(3) 0
set Utility.Text5(4) 4
set Utility.Text5(5) 0
set Utility.Text5(6) 0
set Utility.Text5(7) 0
set Utility.Text5(8) 5
click Utility.Command2
print Utility.MatrixCells(1,1)
print Utility.MatrixCells(2,2)
print Utility.MatrixCells(3,3)
set AtomDistance.Text1 3.5
print AtomDistance.DistanceMax
click AtomDistance.Command1
print AtomDistance.CellA
print AtomDistance.CellB
print AtomDistance.CellC
print AtomDistance.CosAlpha
print AtomDistance.CosBeta
print AtomDistance.CosGamma
echo the picture of lines
click MAIN_MENU.Command3
set PATTERN3.Text3 45
set PATTERN3.Text14 0
set PATTERN3.Text15 0
press PATTERN3.Picture1 100 50
print PATTERN3.Dragging
move PATTERN3.Picture1 400 150
release PATTERN3.Picture1 400 150
press PATTERN3.Picture1 60 500
print PATTERN3.Dragging
move PATTERN3.Picture1 460 420
release PATTERN3.Picture1 460 420
press PATTERN3.Picture1 300 20
print PATTERN3.Dragging
move PATTERN3.Picture1 250 480
release PATTERN3.Picture1 250 480
print PATTERN3.Dragging
press PATTERN3.Picture1 250 481
print PATTERN3.DragLine
print PATTERN3.DragEnd
release PATTERN3.Picture1 250 481
print PATTERN3.LineLabel(0)
print PATTERN3.LineLabel(1)
print PATTERN3.LineLabel(2)
print PATTERN3.LineLabel(3)
print PATTERN3.LineLabel(4)
print PATTERN3.LineLabel(5)
print PATTERN3.LineLabel(6)
print PATTERN3.LineLabel(7)
print PATTERN3.LineLabel(8)
print PATTERN3.LineLabel(9)
print PATTERN3.LineLabel(10)
print PATTERN3.LineLabel(11)
print PATTERN3.LineColor(0)
print PATTERN3.LineColor(1)
print PATTERN3.LineColor(2)
print PATTERN3.LineColor(3)
print PATTERN3.LineColor(4)
print PATTERN3.LineColor(5)
set Main1.Text15 2
click Main1.Command6
click PATTERN3.Command1
print PATTERN3.ViewRange(0)
print PATTERN3.ViewRange(1)
print PATTERN3.ViewRange(2)
print PATTERN3.ViewRange(3)
print PATTERN3.ViewRange(4)
print PATTERN3.GnomX(0,0)
print PATTERN3.GnomY(0,0)
print PATTERN3.GnomX(0,1)
print PATTERN3.GnomY(0,1)
print PATTERN3.LineSlope(0)
print PATTERN3.LineIntercept(0)
print PATTERN3.LineDist(0)
print PATTERN3.BandPhi(0)
print PATTERN3.BandTheta(0)
print PATTERN3.BandCos(0)
print PATTERN3.BandAngle(0)
print PATTERN3.GnomX(1,0)
print PATTERN3.GnomY(1,0)
print PATTERN3.GnomX(1,1)
print PATTERN3.GnomY(1,1)
print PATTERN3.LineSlope(1)
print PATTERN3.LineIntercept(1)
print PATTERN3.LineDist(1)
print PATTERN3.BandPhi(1)
print PATTERN3.BandTheta(1)
print PATTERN3.BandCos(1)
print PATTERN3.BandAngle(1)
print PATTERN3.GnomX(2,0)
print PATTERN3.GnomY(2,0)
print PATTERN3.GnomX(2,1)
print PATTERN3.GnomY(2,1)
print PATTERN3.LineSlope(2)
print PATTERN3.LineIntercept(2)
print PATTERN3.LineDist(2)
print PATTERN3.BandPhi(2)
print PATTERN3.BandTheta(2)
print PATTERN3.BandCos(2)
print PATTERN3.BandAngle(2)
click PATTERN3.CP_Setting_Show
print PATTERN3.AdjustShown
set PATTERN3.Text6 0.2
print PATTERN3.AcqStep
set PATTERN3.Text8 0.3
print PATTERN3.XShiftStep
set PATTERN3.Text9 0.4
print PATTERN3.YShiftStep
set PATTERN3.Text10 3
print PATTERN3.AdjustSteps
set PATTERN3.Text11 4
print PATTERN3.AdjustSolution
set PATTERN3.Text4 5
print PATTERN3.WdChange
set PATTERN3.Text7 6
print PATTERN3.DetIncline
click PATTERN3.CPS_Si001
print PATTERN3.SiMode
click PATTERN3.Option1
press PATTERN3.Picture1 100 200
click PATTERN3.Option2
press PATTERN3.Picture1 300 150
click PATTERN3.Command9
print PATTERN3.SiCentreX
print PATTERN3.SiCentreY
print PATTERN3.SiLength
answer tests/scripts/camera.txt
click PATTERN3.CorrectFile
print PATTERN3.CorrectorFile
echo a cubic crystal with {100} alone, down [0 0 1]; the place .2 .1, then 5 degrees later
set Main1.Text7 221
set Main1.Text1 4
leave Main1.Text1
click Main1.Command15
type InputJCPDS.G "100\r1\r0\r0\r"
click InputJCPDS.Command1
print Module1.JcpdsCount
set Main1.Text15 3.9
click Main1.Command6
click Main1.Command10
set Pattern2.Text5 1
click Pattern2.Command8
print Module1.BandHKL(0,0)
print Module1.BandHKL(0,1)
print Module1.BandHKL(0,2)
press Pattern2.Picture1 .2 .1
print Main1.TiltX
print Main1.TiltY
print Main1.TiltTheta
print Main1.TiltPhi
print Main1.NewZoneU
print Main1.NewZoneV
print Main1.NewZoneW
print Main1.NewOriginH
print Main1.NewOriginK
print Main1.NewOriginL
click Pattern2.Command7
call Main1.ZoneCalc2
print Main1.TiltPhi
print Main1.NewZoneU
print Main1.NewZoneV
print Main1.NewZoneW
print Main1.NewOriginH
print Main1.NewOriginK
print Main1.NewOriginL
call Main1.ZoneCalc
print Main1.TiltPhi
answer 7
click Pattern2.Rpitch
print Pattern2.RotationPitch
answer 3
click Pattern2.Zpitch
print Pattern2.ZoomRatio
echo drawn by name: the whole pattern, then the plane (1 1 1) as marked
set Pattern2.Text19 1
call Main1.PatternDisp2
print Pattern2.Picture1
set Pattern2.Text11 1
set Pattern2.Text12 1
set Pattern2.Text13 1
call Main1.Patterndisp4
print Pattern2.Picture1
click Zaxis.Command3
print Zaxis.MapScale
echo powder patterns
click Main1.Command7
set Xd.Text1 11
print Xd.TwoThetaMin
set Xd.Text4 30
print Xd.GaussianRatio
print Xd.BinsCopy(9)
click Main1.Command8
set Dring.Text6 31
print Dring.CellsP
set Dring.Text7 32
print Dring.CellsQ
set Dring.Text8 33
print Dring.CellsR
print Dring.BinsCopy(9)
answer data/ZOLDATA/NaCl.cry
call Main1.CRYSTAL_SELECT
print Main1.Text17
