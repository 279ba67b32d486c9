# Copper at 200 kV: rings, their read-outs, roots, half of the profile
choose Main1.Combo1 200
answer "data/ZOLDATA/Copper.cry"
click Main1.DATA_LOAD
click Main1.Command8
print Dring.Text2
print Dring.Text5
print Dring.List1
press Dring.Picture1 0.479 0.5
print Dring.Label4
print Dring.Label5
press Dring.Picture2 0.3915 0.3915
print Dring.Label1
click Dring.Check1
set Dring.Text2 .7
click Dring.Command1
print Dring.List1
click Dring.Command7
print Dring.Text5
print Dring.Label6
