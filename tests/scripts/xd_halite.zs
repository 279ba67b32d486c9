# Halite with Cu K-alpha in the X-ray powder window: {111} and {200} alone lie above 2.5 angstroms, so that sines, areas and half widths can be worked out by hand
choose Main1.Combo1 CuKa
set Main1.Text15 2.5
answer "data/ZOLDATA/NaCl.cry"
click Main1.DATA_LOAD
click Main1.Command7
echo the settings of every opening
print Xd.Text1
print Xd.Text2
print Xd.Text3
print Xd.Text4
print Xd.Text5
print Xd.Text6
print Xd.Text7
print Xd.Text8
print Xd.Label12
print Xd.BinCount
print Xd.Bins(1535)
print Xd.Bins(1772)
print Xd.PeakMax
print Xd.List1
print Xd.ProgressBar1
echo read-outs
press Xd.Picture1 0 0.5
print Xd.Label5
press Xd.Picture1 27.39 0.5
print Xd.Label5
print Xd.Label6
print Xd.Label7
press Xd.Picture1 31.74 0.5
print Xd.Label6
print Xd.Label7
echo the arrows and Enter change what is drawn, not what is listed
click Xd.Command6
print Xd.DisplayMax
print Xd.Text5
click Xd.Command7
click Xd.Command7
print Xd.DisplayMax
print Xd.Text5
set Xd.Text5 "12.75 x"
print Xd.DisplayMax
type Xd.Text5 "\r"
print Xd.DisplayMax
print Xd.Text5
press Xd.Picture1 27.39 0.5
print Xd.Label7
echo a Gaussian around the line of 111: half of it half a width away
set Xd.Text1 26.39
print Xd.Picture1
set Xd.Text2 28.39
print Xd.Picture1
set Xd.Text3 .4
print Xd.Picture1
set Xd.Text4 100
print Xd.Picture1
click Xd.Command1
print Xd.List1
print Xd.Profile(400)
print Xd.Profile(500)
print Xd.Profile(600)
press Xd.Picture1 26.9889 0.5
print Xd.Label7
press Xd.Picture1 26.9891 0.5
print Xd.Label7
echo a Lorentzian and beyond
set Xd.Text4 0
call Xd.XDCalc
print Xd.Profile(400)
print Xd.Profile(500)
print Xd.Profile(600)
set Xd.Text4 120
click Xd.Command1
print Xd.Profile(0)
print Xd.Profile(500)
echo a small crystallite
click Xd.Command6
set Xd.Text6 60
print Xd.Picture1
click Xd.Command6
set Xd.Text7 90
print Xd.Picture1
click Xd.Command6
set Xd.Text8 120
print Xd.Picture1
set Xd.Text4 50
click Xd.Command1
print Xd.Label12
print Xd.Profile(400)
print Xd.Profile(500)
print Xd.List1
echo empty boxes
set Xd.Text6 ""
set Xd.Text7 ""
set Xd.Text8 ""
print Xd.CellsP
print Xd.CellsQ
print Xd.CellsR
set Xd.Text1 ""
set Xd.Text2 ""
set Xd.Text3 ""
set Xd.Text4 ""
print Xd.HalfWidth
print Xd.TwoThetaMax
click Xd.Command1
print Xd.Text1
print Xd.Text2
print Xd.Text3
print Xd.Text4
print Xd.Text6
print Xd.TwoThetaMax
print Xd.HalfWidth
print Xd.List1
echo clear, print, open again
click Xd.Command2
print Xd.Picture1
print Xd.PeakMax
print Xd.Profile(456)
set Xd.Text1 5
print Xd.Profile(456)
click Xd.Command5
printer
click Main1.Command7
print Xd.Text1
print Xd.Text2
print Xd.Text3
print Xd.Text4
print Xd.Text8
print Xd.PeakMax
echo to 1 angstrom: JCPDS 5-628 has 3.260 13, 2.821 100, 1.994 55, 1.701 2, 1.628 15, 1.410 6, 1.261 11, 1.1515 7, its angles for 1.5405
set Main1.Text15 1
answer "data/ZOLDATA/NaCl.cry"
click Main1.DATA_LOAD
click Main1.Command7
print Xd.List1
