# Halite in the window of spot patterns: along c the four {200} at 1/(2d) = 0.1773, the diagonals along x; greys 255 - Int(255 (I / black)^n); angles are sums of 5 degrees
echo a width of 0 when the window is loaded; Dmin gives another in any case
set FiberTexture.Text1 1
set FiberTexture.Text1 ""
print Module1.CamAcquisition
print Pattern.Text1
print Module1.CamAcquisition
set Main1.Text15 0.8
click Main1.Command9
print Pattern.Text1
set Main1.Text15 2
answer "data/ZOLDATA/NaCl.cry"
click Main1.DATA_LOAD
click Main1.Command9
caption Pattern
print Pattern.Text1
print Pattern.Option1
print Pattern.Option2
print Pattern.RotationPitch
print Pattern.Picture1
echo the axis by Enter
set Pattern.Text3 0
type Pattern.Text3 "\r"
set Pattern.Text4 0
type Pattern.Text4 "\r"
set Pattern.Text5 1
print Pattern.Picture1
type Pattern.Text5 "\r"
print Main1.DisplayScale
print Main1.SpotScale
print Pattern.Text2
print Pattern.Picture1
echo the last spot stands in entry 0
print Module1.RefH(0)
print Module1.RefK(0)
print Module1.RefL(0)
print Module1.RefS(0)
print Module1.RefA(0)
echo indices, the next level, the one before
click Pattern.Check3
click Pattern.Command8
print Pattern.Picture1
click Pattern.Command5
print Pattern.Text2
print Main1.Level
print Pattern.Picture1
click Pattern.Command14
click Pattern.Command14
print Pattern.Text2
print Main1.Level
print Pattern.Picture1
set Pattern.Text2 2.5
print Main1.Level
set Pattern.Text2 0.3
click Pattern.Command8
print Pattern.Text2
click Pattern.Check3
echo rotations clockwise and back, in pictures too small for a spot
click Pattern.Command6
print Main1.PatternAngle
print Pattern.Picture1
set Pattern.Text1 0.02
click Pattern.Command9
print Main1.PatternAngle
print Pattern.Picture1
set Pattern.Text1 0.03
click Pattern.Command11
print Main1.PatternAngle
print Pattern.Picture1
set Pattern.Text1 0.04
click Pattern.Command12
print Main1.PatternAngle
print Pattern.Picture1
set Pattern.Text1 0.05
click Pattern.Command10
print Main1.PatternAngle
print Pattern.Picture1
answer 10
click Pattern.Rpitch
print Pattern.RotationPitch
cancel
click Pattern.Rpitch
print Pattern.RotationPitch
set Pattern.Text1 0.06
click Pattern.Command7
print Main1.PatternAngle
print Pattern.Picture1
set Pattern.Text1 0.5
answer 5
click Pattern.Rpitch
click Pattern.Command6
echo twice the black, then I, then its square over the option
click Pattern.Command13
print Main1.DisplayScale
print Pattern.Picture1
click Pattern.Option1
click Pattern.Command8
print Pattern.Picture1
click Pattern.Option2
set Pattern.Text6 2
click Pattern.Command8
print Pattern.Picture1
set Pattern.Text6 ""
click Pattern.Command4
print Main1.DisplayScale
echo another axis keeps the black: {111} along [110], c* along x
set Pattern.Text3 1
set Pattern.Text4 1
set Pattern.Text5 0
click Pattern.Command8
print Main1.DisplayScale
print Pattern.Picture1
set Pattern.Text3 0
set Pattern.Text4 0
set Pattern.Text5 1
echo sizes of spots, for nothing the first one
answer 2.5
click Pattern.Spotsize
print Main1.SpotScale
print Pattern.Picture1
answer ""
click Pattern.Spotsize
print Main1.SpotScale
echo zoom by 1.4142 to three decimals
click Pattern.Command2
print Pattern.Text1
print Module1.CamAcquisition
print Pattern.Picture1
click Pattern.Command3
print Pattern.Text1
print Module1.CamAcquisition
echo a width of 0
set Pattern.Text1 0.0006
click Pattern.Command2
print Pattern.Text1
print Module1.CamAcquisition
set Pattern.Text1 ""
print Module1.CamAcquisition
call Main1.PatternDisp
print Pattern.Text1
print Module1.CamAcquisition
echo another opening forgets the black
click Main1.Command9
print Main1.DisplayScale
print Pattern.Text1
echo in quartz it has a phase: in the list (1 1 0) has -4.24 and -1.48
answer "data/ZOLDATA/Quartz.cry"
click Main1.DATA_LOAD
click Main1.Command9
set Pattern.Text1 .42
click Pattern.Command8
print Module1.RefH(0)
print Module1.RefK(0)
print Module1.RefL(0)
print Module1.RefA(0)
print Module1.RefB(0)
echo an element without scattering factors is noted by the spots
click Pattern.Command8
print Main1.ScatterMissing
click Main1.Command1
cell InputAtom.G 1 2
type InputAtom.G "\b\bXx\r"
click InputAtom.Command1
print Main1.ScatterMissing
click Pattern.Command8
print Main1.ScatterMissing
