# Albite, h k 0 at 6.3 angstroms, in the window of fiber textures: (0 2 0) first, then (1 1 0) and (1 -1 0) with four arcs each, their angles to the fiber direction and their greys worked out from the metric
set Pattern.Text1 1
set Pattern.Text1 ""
print Module1.CamAcquisition
print FiberTexture.Text1
print Module1.CamAcquisition
set Main1.Text15 6.2
answer "data/ZOLDATA/Albite.cry"
click Main1.DATA_LOAD
click Main1.Check1
set Main1.Text20 0
click Main1.Command6
click Main1.Command12
caption FiberTexture
print FiberTexture.RotationPitch
print FiberTexture.Picture1
echo directions are whole numbers, halves go to the even one
set FiberTexture.Text3 2.5
print Main1.OriginH
set FiberTexture.Text4 -1.5
print Main1.OriginK
set FiberTexture.Text5 3.5
print Main1.OriginL
echo a picture of 20 x 20 pixels: 3 degrees are one
set FiberTexture.Text1 0.4
set FiberTexture.Text2 2
set FiberTexture.Text3 1
type FiberTexture.Text3 "\r"
set FiberTexture.Text4 1
type FiberTexture.Text4 "\r"
set FiberTexture.Text5 2
print FiberTexture.Picture1
answer 300
click FiberTexture.Imagesize
print FiberTexture.Picture1
print Main1.SpotScale
print Main1.Dispersion
echo from the second reflection on by intensity, all but 2-theta
print Module1.RefK(1)
print Module1.RefK(2)
print Module1.RefK(3)
print Module1.RefK(4)
print Module1.RefI(1)
print Module1.RefI(2)
print Module1.RefI(3)
print Module1.RefI(4)
print Module1.RefH(2)
print Module1.RefH(4)
print Module1.RefL(2)
print Module1.RefL(4)
print Module1.RefS(2)
print Module1.RefS(4)
print Module1.RefA(2)
print Module1.RefA(4)
print Module1.RefTwoTheta(2)
print Module1.RefTwoTheta(4)
echo indices, the strongest to the power of 0.9
answer ""
click FiberTexture.Imagesize
click FiberTexture.Check3
set FiberTexture.Text6 .9
type FiberTexture.Text5 "\r"
print FiberTexture.Picture1
click FiberTexture.Check3
set FiberTexture.Text6 ""
echo all buttons draw, here pictures too small for an arc
set FiberTexture.Text1 0.2
click FiberTexture.Command8
print FiberTexture.Picture1
click FiberTexture.Command2
print FiberTexture.Text1
print Module1.CamAcquisition
print FiberTexture.Picture1
click FiberTexture.Command3
print FiberTexture.Text1
print FiberTexture.Picture1
set FiberTexture.Text1 0.01
click FiberTexture.Command6
print Main1.PatternAngle
print FiberTexture.Picture1
set FiberTexture.Text1 0.02
click FiberTexture.Command9
print Main1.PatternAngle
print FiberTexture.Picture1
set FiberTexture.Text1 0.03
click FiberTexture.Command11
print Main1.PatternAngle
print FiberTexture.Picture1
answer 15
click FiberTexture.Rpitch
print FiberTexture.RotationPitch
set FiberTexture.Text1 0.04
click FiberTexture.Command7
print Main1.PatternAngle
print FiberTexture.Picture1
set FiberTexture.Text1 0.05
click FiberTexture.Command10
print Main1.PatternAngle
print FiberTexture.Picture1
set FiberTexture.Text1 0.06
click FiberTexture.Command12
print Main1.PatternAngle
print FiberTexture.Picture1
set FiberTexture.Text1 0.07
answer 12
click FiberTexture.Fsize
print FiberTexture.Picture1
echo the size is for spots, which are drawn instead
set Pattern.Text5 1
set FiberTexture.Text1 0.08
answer 1.2
click FiberTexture.Spotsize
print Main1.SpotScale
print FiberTexture.Picture1
print Pattern.Picture1
echo turned by 62 degrees, the narrowest arcs around c*
set FiberTexture.Text1 0.4
set FiberTexture.Text2 ""
set FiberTexture.Text3 0
set FiberTexture.Text4 0
set FiberTexture.Text5 1
answer ""
click FiberTexture.Spotsize
print Main1.SpotScale
click FiberTexture.Command8
print FiberTexture.Text2
print FiberTexture.Picture1
echo a width of 0
set FiberTexture.Text1 ""
call Main1.PatternDisp3
print FiberTexture.Text1
print Module1.CamAcquisition
click FiberTexture.Command5
printer
