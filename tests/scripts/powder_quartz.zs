# Quartz with Cu K-alpha: the powder pattern, its read-out, a small crystallite, a part of the pattern
choose Main1.Combo1 CuKa
answer "data/ZOLDATA/Quartz.cry"
click Main1.DATA_LOAD
click Main1.Command7
print Xd.Text2
print Xd.Text5
print Xd.List1
press Xd.Picture1 26.63 0.5
print Xd.Label5
print Xd.Label6
print Xd.Label7
set Xd.Text1 20
set Xd.Text2 30
set Xd.Text8 15
click Xd.Command1
print Xd.Label12
print Xd.List1
print Xd.ProgressBar1
click Xd.Command5
printer
