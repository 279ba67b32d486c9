# A trigonal crystal with a screw axis: electrons at 200 kV and MoKa, the zero layer, and the sheet silicate rules
answer "data/ZOLDATA/Quartz.cry"
click Main1.DATA_LOAD
print Main1.Label17
print Main1.Label20
print Main1.List1
choose Main1.Combo1 200
set Main1.Text15 2.2
click Main1.Command6
print Main1.Text16
print Main1.Label26
print Main1.List2
choose Main1.Combo1 MoKa
set Main1.Text20 0
click Main1.Command6
print Main1.List2
set Main1.Text20 ""
click Main1.RefselectON
click Main1.Check5
click Main1.Check6
click Main1.Command6
print Main1.List2
click Main1.Command5
printer
