# The line 200 of halite as a Gaussian by formula (tests/scripts/halite_200.csv), scale 2.5, offset 30, zero 0.08: the fit finds them, the zero to a bin of 0.0002 1/angstrom, 0.018 degrees
choose Main1.Combo1 CuKa
set Main1.Text15 2
answer "data/ZOLDATA/NaCl.cry"
click Main1.DATA_LOAD
click Main1.Command7
set Xd.Text1 29
set Xd.Text2 34.5
set Xd.Text3 .8
set Xd.Text4 100
click Xd.Command1
answer tests/scripts/halite_200.csv
click Xd.AddMeasured
print Xd.MeasuredScale
print Xd.MeasuredOffset
click Xd.FitMeasured
print Xd.MeasuredScale
print Xd.MeasuredOffset
print Xd.MeasuredZero
print Xd.MeasuredResidual
snapshot
echo the boxes tell it too
set Xd.MeasuredScale 0
print Xd.MeasuredResidual
undo
print Xd.MeasuredResidual
echo what cannot be read is told and leaves all as it was
answer tests/scripts/measured_curve.zs
click Xd.AddMeasured
print Xd.MeasuredOffset
echo no line of a tube in a ring pattern, no tube at this wavelength
set Main1.Text16 1
click Main1.Command7
click Xd.Doublet
