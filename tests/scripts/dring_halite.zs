# Halite in the window of Debye rings: {111} and {200} alone lie above 2.5 angstroms; 1/d is 0.307094 and 0.354598, and a plain loop over the bins gives the same samples
set Main1.Text15 2.5
answer "data/ZOLDATA/NaCl.cry"
click Main1.DATA_LOAD
click Main1.Command8
echo the settings of every opening
print Dring.Text2
print Dring.Text3
print Dring.Text5
print Dring.Text6
print Dring.Text7
print Dring.Text8
print Dring.Label6
print Dring.BinCount
print Dring.Bins(1535)
print Dring.DisplayMax
print Dring.List1
print Dring.ProgressBar1
print Dring.Profile(886)
print Dring.Profile(890)
echo read-outs
press Dring.Picture1 0 0.4
print Dring.Label4
press Dring.Picture1 0.35579 0.4
print Dring.Label4
print Dring.Label5
press Dring.Picture1 0.35581 0.4
print Dring.Label5
press Dring.Picture2 0 0
print Dring.Label1
press Dring.Picture2 -0.3 0.4
print Dring.Label1
press Dring.Picture2 0.3546 0
print Dring.Label1
press Dring.Picture2 0 0.3546
print Dring.Label1
echo the arrows calculate anew, per cents follow the scale
click Dring.Command6
print Dring.DisplayMax
print Dring.Text5
print Dring.List1
press Dring.Picture1 0.3071 0.4
print Dring.Label5
click Dring.Command7
click Dring.Command7
print Dring.DisplayMax
print Dring.List1
click Dring.Command2
print Dring.DisplayMax
print Dring.Picture1
print Dring.Picture2
click Dring.Command6
print Dring.DisplayMax
echo a scale by hand
set Dring.Text5 "2000 x"
print Dring.Picture1
print Dring.Picture2
click Dring.Command1
print Dring.DisplayMax
print Dring.Text5
print Dring.List1
echo each box asks for the largest sample, the first one roots the samples
click Dring.Check2
print Dring.DisplayMax
print Dring.Picture1
print Dring.Picture2
click Dring.Command1
print Dring.DisplayMax
click Dring.Check3
print Dring.DisplayMax
print Dring.Picture1
print Dring.Picture2
click Dring.Command1
print Dring.DisplayMax
click Dring.Check1
print Dring.DisplayMax
print Dring.Picture1
print Dring.Picture2
click Dring.Command1
print Dring.DisplayMax
print Dring.Profile(886)
print Dring.List1
click Dring.Check1
echo a wide line, a small crystallite
set Dring.Text3 .02
print Dring.Picture2
set Dring.Text6 60
print Dring.Picture1
set Dring.Text7 90
set Dring.Text8 120
call Dring.DRCalc
print Dring.Label6
print Dring.DisplayMax
print Dring.Profile(886)
print Dring.Profile(911)
print Dring.List1
echo empty boxes
set Dring.Text6 ""
set Dring.Text7 ""
set Dring.Text8 ""
set Dring.Text3 ""
print Dring.HalfWidth
click Dring.Command1
print Dring.Text3
print Dring.Text6
print Dring.Text7
print Dring.Text8
set Dring.Text2 .34
print Dring.Picture1
print Dring.Picture2
print Dring.DStarMax
click Dring.Check1
click Dring.Check1
click Dring.Command1
print Dring.List1
click Dring.Command5
printer
echo open again
click Main1.Command8
print Dring.Text2
print Dring.Text3
print Dring.Text6
print Dring.Text8
print Dring.DisplayMax
