# What ends the run in the windows of powder patterns, with its reason: divisors by name, 5000 / Dmin and the numbers of steps as 16 bits, samples and bins by index
answer "data/ZOLDATA/NaCl.cry"
click Main1.DATA_LOAD
click Main1.Command7
press Xd.Picture1 6 0.5
press Xd.Picture1 -0.01 0.5
click Xd.Command2
press Xd.Picture1 3 0.5
set Xd.Text5 0
type Xd.Text5 "\r"
set Xd.Text3 -0.2
click Xd.Command1
set Xd.Text3 0.2
set Xd.Text6 0
click Xd.Command1
set Xd.Text6 10
set Xd.Text7 0
click Xd.Command1
set Xd.Text7 10
set Xd.Text8 0
click Xd.Command1
set Xd.Text8 10
click Xd.Command1
set Xd.Text6 .00001
click Xd.Command1
set Xd.Text6 10000
set Xd.Text7 10000
set Xd.Text8 10000
set Xd.Text1 3
set Xd.Text2 3
click Xd.Command1
press Xd.Picture1 3 0.5
echo 220 lies at bin 2507 of 2000, 311 near the last one, 222 beyond
set Main1.Text15 2.5
click Main1.Command7
echo bins 24999 + 1000, 24999 + 10000, 31847 + 1000, 49999
set Main1.Text15 0.2
click Xd.Command1
click Main1.Command8
set Main1.Text15 0.157
click Main1.Command7
set Main1.Text15 0.1
click Main1.Command7
set Main1.Text15 0
click Main1.Command7
click Main1.Command8
echo rings
set Main1.Text15 3
click Main1.Command6
click Main1.Command8
press Dring.Picture1 0.5 0.4
click Dring.Command2
press Dring.Picture1 0.3 0.4
set Dring.Text5 0.5
click Dring.Command1
set Dring.Text5 ""
set Dring.Text3 -1
click Dring.Command1
print Dring.DisplayMax
click Dring.Check1
click Dring.Command1
click Dring.Check1
set Dring.Text3 0
set Dring.Text3 0.003
set Dring.Text6 10
set Dring.Text7 10
set Dring.Text8 500
click Dring.Command1
print Dring.Label6
set Dring.Text8 0
click Dring.Command1
set Dring.Text6 10000
set Dring.Text7 10000
set Dring.Text8 10000
set Dring.Text2 0
click Dring.Command1
press Dring.Picture1 0.3 0.4
